#pragma once

#include <QByteArray>
#include <QCryptographicHash>
#include <QString>
#include <QtEndian>

/// Contents of files, and the digests that they have by another implementation than ours.
namespace contents {

/// `size` bytes that do not repeat within a block, the same ones for the same `seed`.
inline QByteArray filled(qsizetype size, quint64 seed = 1)
{
    QByteArray bytes(size, Qt::Uninitialized);
    quint64 state = seed * 0x9E3779B97F4A7C15U + 1;
    for (char &byte : bytes) {
        state = state * 6364136223846793005U + 1442695040888963407U; // a linear congruential generator
        byte = static_cast<char>(state >> 56U);
    }
    return bytes;
}

/// `bytes` with the one at `position` changed.
inline QByteArray changedAt(QByteArray bytes, qsizetype position)
{
    bytes[position] = static_cast<char>(bytes[position] ^ 1);
    return bytes;
}

inline QString sha256(const QByteArray &bytes)
{
    return QString::fromLatin1(QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex());
}

/// The digest of a file of more than 1 MiB: of its first and last 8 KiB and its size.
inline QString sampleSha256(const QByteArray &bytes)
{
    const qint64 size = qToLittleEndian(qint64(bytes.size()));
    return sha256(bytes.first(8192) + bytes.last(8192)
                  + QByteArray(reinterpret_cast<const char *>(&size), sizeof size));
}

} // namespace contents
