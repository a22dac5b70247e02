#include "controls/Pictures.h"

#include "base/Paths.h"

const QString Pictures::provider = QStringLiteral("pictures");

QString Pictures::address(const QString &key)
{
    // As digits: an address is normalised on its way, and a path may hold what it takes for its own signs.
    return key.isEmpty() ? QString()
                         : QStringLiteral("image://%1/%2")
                               .arg(provider, QString::fromLatin1(paths::toBytes(key).toHex()));
}

QString Pictures::keyOf(const QString &id)
{
    return paths::fromBytes(QByteArray::fromHex(id.toLatin1()));
}
