#pragma once

#include "platform/Workspace.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QVariantMap>

#include <functional>
#include <optional>

/// One folder panel of the desktop's portal (org.freedesktop.portal.FileChooser), from its request to its answer.
/// Nothing waits. Main thread only.
class FolderPortal final : public QObject
{
    Q_OBJECT

public:
    struct Answers
    {
        /// The folder chosen, or none: the user cancelled.
        Workspace::FolderChosen chosen;

        /// There is no such portal, or it failed. In the place of `chosen`.
        std::function<void()> failed;
    };

    explicit FolderPortal(QDBusConnection bus, Answers answers);

    /// Asks for the panel. One of the answers runs once, in a later turn of the main loop.
    void open(const Workspace::FolderRequest &request);

    /// Takes the panel away; no answer runs any more.
    void dismiss();

private slots:
    void respond(uint code, const QVariantMap &results);

private:
    void listenAt(const QString &requestPath);
    void takeReply(const QDBusMessage &reply);
    void finish(const std::optional<QString> &folder);
    void fail();

    QDBusConnection bus_;
    Answers answers_;
    QString requestPath_; // the portal's object for this panel
    QDBusServiceWatcher portal_;
    bool isOpen_ = false;
};
