#pragma once

#include "platform/Platform.h"
#include "program/panel/FilePanelView.h"

#include <QObject>

#include <memory>

class QQmlEngine;
class QQuickWindow;

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
    /// cancelled. All of these outlive the panels.
    void attach(QQmlEngine &engine, QQuickWindow &window, const Platform &platform);

    // As Workspace tells of them.
    void chooseFolder(const Workspace::FolderRequest &request, const Workspace::PathChosen &chosen);
    void chooseSavePath(const Workspace::SaveRequest &request, const Workspace::PathChosen &chosen);

    /// Takes the panel that is on view away and answers it as cancelled, whatever it asks: the program is about to end.
    void giveUp();

private:
    void show(const FilePanelView::Request &request, const Workspace::PathChosen &chosen);
    void drop();

    QQmlEngine *engine_ = nullptr;
    QQuickWindow *window_ = nullptr;
    const Platform *platform_ = nullptr;
    std::unique_ptr<FilePanelView> view_;
    std::unique_ptr<QObject> sheet_;
};
