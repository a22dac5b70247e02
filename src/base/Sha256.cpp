#include "base/Sha256.h"

#include <QByteArray>

#include <array>

#include <openssl/crypto.h>
#include <openssl/evp.h>

/// The library's own handles, both needed for any digest.
struct Sha256::Library
{
    std::unique_ptr<EVP_MD, decltype(&EVP_MD_free)> algorithm{EVP_MD_fetch(nullptr, "SHA256", nullptr),
                                                              EVP_MD_free};
    std::unique_ptr<EVP_MD_CTX, decltype(&EVP_MD_CTX_free)> context{EVP_MD_CTX_new(), EVP_MD_CTX_free};
};

Sha256::Sha256()
    : library_(std::make_unique<Library>())
{
}

/// The library keeps a state for each thread that called it, to be freed when the thread ends. A thread that ends while
/// the process does comes too late for that, so it is freed here; the library makes it anew where it is needed again.
Sha256::~Sha256()
{
    library_.reset();
    OPENSSL_thread_stop();
}

QString Sha256::hex(QByteArrayView data)
{
    std::array<unsigned char, EVP_MAX_MD_SIZE> digest{};
    unsigned int length = 0;
    EVP_MD_CTX *context = library_->context.get();
    const bool done = EVP_DigestInit_ex2(context, library_->algorithm.get(), nullptr) == 1
                      && EVP_DigestUpdate(context, data.data(), static_cast<size_t>(data.size())) == 1
                      && EVP_DigestFinal_ex(context, digest.data(), &length) == 1;
    if (!done)
        qFatal(
            "The cryptographic library can't compute SHA-256."); // a broken installation; nothing can go on
    ++count_;
    const auto *bytes = reinterpret_cast<const char *>(digest.data());
    return QString::fromLatin1(QByteArray::fromRawData(bytes, static_cast<qsizetype>(length)).toHex());
}
