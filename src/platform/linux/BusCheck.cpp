#include "platform/linux/BusCheck.h"

#include <memory>
#include <optional>

// A macro of Qt's, and a member's name in the headers of GIO.
#pragma push_macro("signals")
#undef signals
#include <gio/gio.h>
#pragma pop_macro("signals")

namespace {

struct Attempt
{
    buscheck::Peer peer = {};
    GCancellable *cancellable = nullptr;
    std::optional<buscheck::Outcome> outcome;
};

void end(Attempt &attempt, buscheck::Outcome unlessGivenUp)
{
    const bool isGivenUp = g_cancellable_is_cancelled(attempt.cancellable) != FALSE;
    attempt.outcome = isGivenUp ? buscheck::Outcome::silent : unlessGivenUp;
}

void call(GDBusConnection *connection, const buscheck::Peer &peer, const char *interface, const char *method,
          GAsyncReadyCallback take, Attempt *attempt)
{
    g_dbus_connection_call(connection, peer.name, peer.path, interface, method, nullptr, nullptr,
                           G_DBUS_CALL_FLAGS_NO_AUTO_START, -1, attempt->cancellable, take, attempt);
}

/// Any answer will do, also that nobody has that name.
void takeAnswer(GObject *connection, GAsyncResult *result, gpointer data)
{
    GVariant *answer = g_dbus_connection_call_finish(G_DBUS_CONNECTION(connection), result, nullptr);
    g_clear_pointer(&answer, &g_variant_unref);
    end(*static_cast<Attempt *>(data), buscheck::Outcome::answered);
}

void takeWelcome(GObject *object, GAsyncResult *result, gpointer data)
{
    auto *attempt = static_cast<Attempt *>(data);
    GDBusConnection *connection = G_DBUS_CONNECTION(object);
    GVariant *name = g_dbus_connection_call_finish(connection, result, nullptr);
    if (!name) {
        end(*attempt, buscheck::Outcome::none);
        return;
    }
    g_variant_unref(name);
    call(connection, attempt->peer, "org.freedesktop.DBus.Peer", "Ping", &takeAnswer, attempt);
}

void takeConnection(GObject *, GAsyncResult *result, gpointer data)
{
    auto *attempt = static_cast<Attempt *>(data);
    GDBusConnection *connection = g_dbus_connection_new_for_address_finish(result, nullptr);
    if (!connection) {
        end(*attempt, buscheck::Outcome::none);
        return;
    }
    // The library's own first call to a bus could not be given up.
    call(connection, {"org.freedesktop.DBus", "/org/freedesktop/DBus"}, "org.freedesktop.DBus", "Hello",
         &takeWelcome, attempt);
    g_object_unref(connection); // the call holds it
}

gboolean giveUp(gpointer cancellable)
{
    g_cancellable_cancel(static_cast<GCancellable *>(cancellable));
    return G_SOURCE_REMOVE;
}

} // namespace

namespace buscheck {

Outcome ask(const QString &address, const Peer &peer, int milliseconds)
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

    Attempt attempt{peer, cancellable.get(), std::nullopt};
    g_main_context_push_thread_default(context.get());
    g_dbus_connection_new_for_address(address.toUtf8().constData(),
                                      G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT, nullptr,
                                      cancellable.get(), &takeConnection, &attempt);
    while (!attempt.outcome)
        g_main_context_iteration(context.get(), TRUE);
    g_main_context_pop_thread_default(context.get());
    g_source_destroy(timer.get());
    return *attempt.outcome;
}

} // namespace buscheck
