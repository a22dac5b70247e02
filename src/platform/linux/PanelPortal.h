#pragma once

#include "platform/Workspace.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QVariantMap>

#include <functional>
#include <optional>

/// One panel of the desktop's portal (org.freedesktop.portal.FileChooser), from
/// its request to its answer. Nothing waits. Main thread only.
class PanelPortal final : public QObject
{
    Q_OBJECT

public:
    /// What the portal is asked for.
    struct Request
    {
        QString method;
        QString title;
        QVariantMap options; ///< by the portal's documentation, without the token
                             ///< of its handle
    };

    struct Answers
    {
        /// The path chosen, or none: the user cancelled.
        Workspace::PathChosen chosen;

        /// There is no such portal, or it failed. In the place of `chosen`.
        std::function<void()> failed;
    };

    explicit PanelPortal(QDBusConnection bus, Answers answers);

    /// The portal's panel for a folder, and the one for saving.
    static Request requestFor(const Workspace::FolderRequest &request);
    static Request requestFor(const Workspace::SaveRequest &request);

    /// Asks for the panel. One of the answers runs once, in a later turn of the
    /// main loop.
    void open(const Request &request);

    /// Takes the panel away; no answer runs any more.
    void dismiss();

private slots:
    void respond(uint code, const QVariantMap &results);

private:
    void listenAt(const QString &requestPath);
    void takeReply(const QDBusMessage &reply);
    void close();
    void finish(const std::optional<QString> &path);
    void fail();

    QDBusConnection bus_;
    Answers answers_;
    QString requestPath_; // the portal's object for this panel
    QDBusServiceWatcher portal_;
    bool isOpen_ = false;
};
