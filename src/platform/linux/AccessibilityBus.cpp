#include "platform/linux/AccessibilityBus.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusVariant>

#include <memory>

// A macro of Qt's, and a member's name in the headers of GIO.
#pragma push_macro("signals")
#undef signals
#include <gio/gio.h>
#pragma pop_macro("signals")

namespace {

constexpr int patience = 500; // ms, for each of the two that are asked

const QString busService = QStringLiteral("org.a11y.Bus");
const QString busPath = QStringLiteral("/org/a11y/bus");

/// What the toolkit calls its connection to this bus. It takes a connection of that name that is there already.
const QString toolkitsName = QStringLiteral("a11y");

QVariant answerOf(const QDBusConnection &session, const QDBusMessage &question)
{
    const QDBusMessage answer = session.call(question, QDBus::Block, patience);
    return answer.type() == QDBusMessage::ReplyMessage && !answer.arguments().isEmpty()
               ? answer.arguments().first()
               : QVariant();
}

bool hasStatus(const QDBusConnection &session, const char *property)
{
    QDBusMessage question = QDBusMessage::createMethodCall(
        busService, busPath, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    question << QStringLiteral("org.a11y.Status") << QString::fromLatin1(property);
    return answerOf(session, question).value<QDBusVariant>().variant().toBool();
}

/// Whether the toolkit is going to connect. Its own switch in the environment is one of three reasons.
bool isInUse(const QDBusConnection &session)
{
    return qEnvironmentVariableIsSet("QT_LINUX_ACCESSIBILITY_ALWAYS_ON") || hasStatus(session, "IsEnabled")
           || hasStatus(session, "ScreenReaderEnabled");
}

/// Where the toolkit is going to connect; empty where it isn't.
QString addressFrom(const QDBusConnection &session)
{
    const QByteArray ofTheEnvironment = qgetenv("AT_SPI_BUS_ADDRESS");
    if (!ofTheEnvironment.isEmpty())
        return QString::fromLocal8Bit(ofTheEnvironment);
    // The name is only looked at, since a call would start its owner.
    if (!session.isConnected() || !session.interface()->isServiceRegistered(busService) || !isInUse(session))
        return {};
    return answerOf(session, QDBusMessage::createMethodCall(busService, busPath, busService,
                                                            QStringLiteral("GetAddress")))
        .toString();
}

struct Attempt
{
    GCancellable *cancellable = nullptr;
    bool isOver = false;
    bool hasAnswered = false;
};

/// Any answer will do, also that nobody has that name; none came where we gave up.
void takeAnswer(GObject *connection, GAsyncResult *result, gpointer data)
{
    auto *attempt = static_cast<Attempt *>(data);
    GVariant *answer = g_dbus_connection_call_finish(G_DBUS_CONNECTION(connection), result, nullptr);
    g_clear_pointer(&answer, &g_variant_unref);
    attempt->hasAnswered = !g_cancellable_is_cancelled(attempt->cancellable);
    attempt->isOver = true;
}

/// The toolkit asks the registry as soon as it has its connection, and waits for that as well.
void takeConnection(GObject *, GAsyncResult *result, gpointer data)
{
    auto *attempt = static_cast<Attempt *>(data);
    GDBusConnection *connection = g_dbus_connection_new_for_address_finish(result, nullptr);
    if (!connection) {
        attempt->isOver = true;
        return;
    }
    g_dbus_connection_call(connection, "org.a11y.atspi.Registry", "/org/a11y/atspi/registry",
                           "org.freedesktop.DBus.Peer", "Ping", nullptr, nullptr,
                           G_DBUS_CALL_FLAGS_NO_AUTO_START, -1, attempt->cancellable, &takeAnswer, attempt);
    g_object_unref(connection); // the call holds it
}

gboolean giveUp(gpointer cancellable)
{
    g_cancellable_cancel(static_cast<GCancellable *>(cancellable));
    return G_SOURCE_REMOVE;
}

} // namespace

namespace accessibilitybus {

bool answers(const QString &address, int milliseconds)
{
    // A context of its own: no other event has its turn meanwhile.
    const std::unique_ptr<GMainContext, decltype(&g_main_context_unref)> context(g_main_context_new(),
                                                                                 &g_main_context_unref);
    const std::unique_ptr<GCancellable, decltype(&g_object_unref)> cancellable(g_cancellable_new(),
                                                                               &g_object_unref);
    const std::unique_ptr<GSource, decltype(&g_source_unref)> timer(
        g_timeout_source_new(static_cast<guint>(milliseconds)), &g_source_unref);
    g_source_set_callback(timer.get(), &giveUp, cancellable.get(), nullptr);
    g_source_attach(timer.get(), context.get());

    Attempt attempt{cancellable.get()};
    g_main_context_push_thread_default(context.get());
    g_dbus_connection_new_for_address(
        address.toUtf8().constData(),
        static_cast<GDBusConnectionFlags>(G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT
                                          | G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION),
        nullptr, cancellable.get(), &takeConnection, &attempt);
    while (!attempt.isOver)
        g_main_context_iteration(context.get(), TRUE);
    g_main_context_pop_thread_default(context.get());
    g_source_destroy(timer.get());
    return attempt.hasAnswered;
}

void passOverSilentOne(const QDBusConnection &session)
{
    const QString address = addressFrom(session);
    if (address.isEmpty() || answers(address, patience))
        return;
    qWarning("The accessibility bus does not answer; assistive technology is left out until the next start.");
    // The toolkit then says its part to the session's bus, where nobody listens.
    QDBusConnection::connectToBus(QDBusConnection::SessionBus, toolkitsName);
}

void outlive()
{
    constexpr const char *switchOfTheLibrary = "DBUS_FATAL_WARNINGS";
    if (!qEnvironmentVariableIsSet(switchOfTheLibrary))
        qputenv(switchOfTheLibrary, "0");
}

} // namespace accessibilitybus
