#pragma once

#include "platform/Workspace.h"

#include <QObject>

#include <memory>

class QQmlEngine;

/// The program's own folder panel, for a desktop that offers none. A second request takes the place of the first.
/// Main thread.
class FolderPanel final : public QObject
{
    Q_OBJECT

public:
    /// `engine` outlives the panel.
    explicit FolderPanel(QQmlEngine &engine);
    ~FolderPanel() override;

    void choose(const Workspace::FolderRequest &request, Workspace::FolderChosen chosen);

private slots:
    void accept();
    void reject();

private:
    void finish(const std::optional<QString> &folder);

    QQmlEngine &engine_;
    std::unique_ptr<QObject> dialog_;
    Workspace::FolderChosen chosen_;
};
