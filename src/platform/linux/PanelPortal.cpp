#include "platform/linux/PanelPortal.h"

#include "base/Paths.h"
#include "platform/linux/PanelFilter.h"

#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QRandomGenerator>

#include <utility>

namespace {

const QString portalName = QStringLiteral("org.freedesktop.portal.Desktop");
const QString portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString requestInterface = QStringLiteral("org.freedesktop.portal.Request");

// What a portal's Response carries.
constexpr uint succeeded = 0;
constexpr uint cancelled = 1; // by the user; 2 is every other end, such as a
                              // panel that couldn't be shown

/// A name for one request that no other program on the bus can guess.
QString randomToken()
{
    QRandomGenerator *random = QRandomGenerator::system();
    return QStringLiteral("quillmere%1%2")
        .arg(random->generate64(), 16, 16, QChar(u'0'))
        .arg(random->generate64(), 16, 16, QChar(u'0'));
}

/// Where the portal puts the object of a request of ours, by its documentation:
/// ":1.42" is "1_42" there.
QString expectedPath(const QDBusConnection &bus, const QString &token)
{
    const QString sender = bus.baseService().mid(1).replace(u'.', u'_');
    return portalPath + QStringLiteral("/request/") + sender + u'/' + token;
}

/// The options of every panel that begins in the folder `start`; without it
/// where the text is empty.
QVariantMap commonOptions(const QString &start)
{
    QVariantMap options{{QStringLiteral("modal"), true}};
    if (!start.isEmpty())
        options.insert(QStringLiteral("current_folder"),
                       paths::toBytes(start) + '\0'); // the NUL is asked for
    return options;
}

} // namespace

PanelPortal::PanelPortal(QDBusConnection bus, Answers answers)
    : bus_(std::move(bus))
    , answers_(std::move(answers))
    , portal_(portalName, bus_, QDBusServiceWatcher::WatchForUnregistration)
{
    // A portal that ends takes its panel with it and answers no more.
    connect(&portal_, &QDBusServiceWatcher::serviceUnregistered, this, [this] { finish(std::nullopt); });
}

PanelPortal::Request PanelPortal::requestFor(const Workspace::FolderRequest &request)
{
    QVariantMap options = commonOptions(request.start);
    options.insert(QStringLiteral("directory"), true);
    options.insert(QStringLiteral("multiple"), false);
    // The portal has no option for hidden folders: its panels show them at the user's word. Packages are folders here.
    return {QStringLiteral("OpenFile"), paths::display(request.message), options};
}

PanelPortal::Request PanelPortal::requestFor(const Workspace::SaveRequest &request)
{
    QVariantMap options = commonOptions(request.start);
    if (!request.suggestedName.isEmpty())
        options.insert(QStringLiteral("current_name"), paths::display(request.suggestedName));
    if (request.fileType != Workspace::FileType::any)
        options.insert(QStringLiteral("filters"), panelfilter::of(request.fileType));
    return {QStringLiteral("SaveFile"), paths::display(request.message), options};
}

void PanelPortal::open(const Request &request)
{
    isOpen_ = true;
    const QString token = randomToken();
    listenAt(expectedPath(bus_, token)); // before the call, whose answer could come at once
    QDBusMessage call = QDBusMessage::createMethodCall(
        portalName, portalPath, QStringLiteral("org.freedesktop.portal.FileChooser"), request.method);
    QVariantMap options = request.options;
    options.insert(QStringLiteral("handle_token"), token);
    const QString noParentWindow = QStringLiteral("");
    call.setArguments({noParentWindow, request.title, options});
    const auto *watcher = new QDBusPendingCallWatcher(bus_.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher *finished) {
        finished->deleteLater();
        takeReply(finished->reply());
    });
}

void PanelPortal::dismiss()
{
    if (std::exchange(isOpen_, false))
        close();
}

void PanelPortal::respond(uint code, const QVariantMap &results)
{
    if (code == cancelled) {
        finish(std::nullopt);
        return;
    }
    const QStringList addresses = results.value(QStringLiteral("uris")).toStringList();
    const QString path = addresses.isEmpty() ? QString() : paths::fromFileUrl(addresses.first().toUtf8());
    if (code != succeeded)
        fail();
    else
        finish(path.isEmpty() ? std::nullopt : std::optional(path));
}

void PanelPortal::listenAt(const QString &requestPath)
{
    requestPath_ = requestPath;
    // From any sender: naming the portal here would make Qt ask who that is and
    // wait. The path can't be guessed.
    bus_.connect(QString(), requestPath, requestInterface, QStringLiteral("Response"), this,
                 SLOT(respond(uint, QVariantMap)));
}

void PanelPortal::takeReply(const QDBusMessage &reply)
{
    if (reply.type() != QDBusMessage::ReplyMessage) {
        close(); // one that was only slow would show its panel beside ours
        fail();
        return;
    }
    // A portal from before handle tokens names the object as it likes.
    const QString path = reply.arguments().value(0).value<QDBusObjectPath>().path();
    if (!path.isEmpty() && path != requestPath_)
        listenAt(path);
}

void PanelPortal::close()
{
    QDBusMessage call =
        QDBusMessage::createMethodCall(portalName, requestPath_, requestInterface, QStringLiteral("Close"));
    call.setAutoStartService(false); // a portal that isn't there has nothing to close
    bus_.send(call);                 // nobody waits for its answer
}

void PanelPortal::finish(const std::optional<QString> &path)
{
    if (std::exchange(isOpen_, false))
        answers_.chosen(path);
}

void PanelPortal::fail()
{
    if (std::exchange(isOpen_, false))
        answers_.failed();
}
