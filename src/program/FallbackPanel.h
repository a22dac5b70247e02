#pragma once

#include "platform/Workspace.h"

#include <QObject>
#include <QVariant>

#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

class QQmlEngine;
class QWindow;

/// The program's own panels for a folder and for saving, for a desktop that
/// offers none. One is on view at a time: a second request takes the place of
/// the first, which gets no answer. Main thread.
class FallbackPanel final : public QObject
{
    Q_OBJECT

public:
    FallbackPanel();
    ~FallbackPanel() override;

    /// Says where panels are to be shown; before, every request is answered as
    /// cancelled. `engine` and `window` outlive the panels, which begin in `home`
    /// where a request names no folder.
    void attach(QQmlEngine &engine, QWindow &window, const QString &home);

    // As Workspace tells of them.
    void chooseFolder(const Workspace::FolderRequest &request, Workspace::PathChosen chosen);
    void chooseSavePath(const Workspace::SaveRequest &request, Workspace::PathChosen chosen);

    /// Takes the panel that is on view away and answers it as cancelled, whatever it asks: the program is about to end.
    void giveUp();

private slots:
    void accept();
    void reject();

private:
    using Properties = std::vector<std::pair<const char *, QVariant>>;

    /// What follows on the dialog that is on view.
    struct Next
    {
        std::function<void()> accepted;
        std::function<void()> rejected;
    };

    void show(const QString &qmlFile, const Properties &properties, Next next);
    QString startFor(const QString &folder) const;
    void showSavePanel(const Workspace::SaveRequest &request);
    void takeSavePath(const Workspace::SaveRequest &request, const QString &path);
    void askToReplace(const Workspace::SaveRequest &request, const QString &path);
    QString pathOf(const char *property) const;
    void dropDialog();
    void finish(const std::optional<QString> &path);

    QQmlEngine *engine_ = nullptr;
    QWindow *window_ = nullptr;
    QString home_;
    std::unique_ptr<QObject> dialog_;
    Next next_;
    Workspace::PathChosen chosen_;
};
