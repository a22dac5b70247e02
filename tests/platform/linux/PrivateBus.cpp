#include "PrivateBus.h"

#include "base/Files.h"
#include "base/Paths.h"
#include "WaitUntil.h"

#include <QStandardPaths>
#include <QUuid>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

PrivateBus::PrivateBus()
{
    const QByteArray config =
        "<busconfig><type>session</type><listen>" + paths::toBytes(address())
        + "</listen><policy context=\"default\"><allow send_destination=\"*\" eavesdrop=\"true\"/>"
          "<allow eavesdrop=\"true\"/><allow own=\"*\"/></policy></busconfig>";
    const QString file = folder_.file(u"bus.conf"_s, config);
    const QString program = QStandardPaths::findExecutable(u"dbus-daemon"_s);
    EXPECT_FALSE(program.isEmpty()) << "These tests need dbus-daemon.";
    daemon_ = std::make_unique<ChildProcess>(
        program, QStringList{u"--config-file="_s + file, u"--nofork"_s, u"--nopidfile"_s});
    daemon_->launch();
    EXPECT_TRUE(waitUntil([this] { return connect().isConnected(); }));
}

PrivateBus::~PrivateBus()
{
    for (const QString &name : connections_)
        QDBusConnection::disconnectFromBus(name);
}

QDBusConnection PrivateBus::connect()
{
    const QString name = QUuid::createUuid().toString();
    connections_.append(name);
    return QDBusConnection::connectToBus(address(), name);
}

QString PrivateBus::address() const
{
    return u"unix:path="_s + folder_.at(u"bus"_s);
}

void PrivateBus::end()
{
    daemon_->terminate();
    daemon_->waitUntilExit();
}

QDBusConnection PrivateBus::none()
{
    return QDBusConnection(u"no connection of this name"_s);
}
