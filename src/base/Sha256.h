#pragma once

#include <QByteArrayView>
#include <QString>

#include <memory>

/// SHA-256, as FIPS 180-4 tells it, by the system's cryptographic library. One object computes one digest after another;
/// what the library needs to look up is looked up once. Not to be shared between threads.
class Sha256
{
public:
    Sha256();
    ~Sha256();
    Sha256(const Sha256 &) = delete;
    Sha256 &operator=(const Sha256 &) = delete;

    /// The digest of `data` as 64 lower-case hexadecimal digits.
    QString hex(QByteArrayView data);

    /// How many digests it has computed.
    qint64 count() const { return count_; }

private:
    struct Library;
    std::unique_ptr<Library> library_;
    qint64 count_ = 0;
};
