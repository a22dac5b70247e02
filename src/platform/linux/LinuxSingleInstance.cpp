#include "platform/linux/LinuxSingleInstance.h"

#include "base/Paths.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QVariantMap>

namespace {

const QString busName = QStringLiteral("com.quillmere.app");
const QString applicationPath = QStringLiteral("/com/quillmere/app");
constexpr int activationTimeout =
    5000; // milliseconds; the running process may be busy, but is not waited for long

} // namespace

LinuxSingleInstance::LinuxSingleInstance(QDBusConnection bus, const QString &lockPath)
    : bus_(std::move(bus))
    , object_([this](const QByteArray &token) {
        if (onActivate)
            onActivate(token);
    })
    , lock_(paths::toBytes(lockPath))
{
    lock_.onSignal = [this] {
        if (onActivate)
            onActivate({});
    };
}

LinuxSingleInstance::~LinuxSingleInstance()
{
    release();
}

bool LinuxSingleInstance::acquire()
{
    if (!acquireName())
        return false;
    if (lock_.acquire() != InstanceLock::Result::heldByOther)
        return true;
    releaseName(); // the other one was started without this bus
    return false;
}

void LinuxSingleInstance::activateRunning(const QByteArray &token)
{
    QVariantMap platformData;
    if (!token.isEmpty()) {
        platformData.insert(ApplicationObject::tokenKey, QString::fromUtf8(token));
        platformData.insert(ApplicationObject::startupIdKey, QString::fromUtf8(token));
    }
    QDBusMessage call = QDBusMessage::createMethodCall(busName, applicationPath, ApplicationObject::interface,
                                                       QStringLiteral("Activate"));
    call.setAutoStartService(false); // it runs already, or not on this bus
    call.setArguments({platformData});
    // Waits, since this process ends next and would take the call with it.
    if (!bus_.isConnected()
        || bus_.call(call, QDBus::Block, activationTimeout).type() != QDBusMessage::ReplyMessage)
        lock_.signalHolder();
}

void LinuxSingleInstance::release()
{
    releaseName();
    lock_.release();
}

/// False when another process has the name. A bus that can't be asked leaves the decision to the lock.
bool LinuxSingleInstance::acquireName()
{
    if (!bus_.isConnected() || ownsName_)
        return true;
    // The object comes first, so that nobody finds the name without it.
    bus_.registerVirtualObject(applicationPath, &object_);
    const auto reply = bus_.interface()->registerService(busName, QDBusConnectionInterface::DontQueueService,
                                                         QDBusConnectionInterface::DontAllowReplacement);
    ownsName_ = reply.isValid() && reply.value() == QDBusConnectionInterface::ServiceRegistered;
    if (!ownsName_)
        bus_.unregisterObject(applicationPath);
    return ownsName_ || !reply.isValid();
}

void LinuxSingleInstance::releaseName()
{
    if (!ownsName_)
        return;
    ownsName_ = false;
    bus_.interface()->unregisterService(busName);
    bus_.unregisterObject(applicationPath);
}
