#include "base/Sha256.h"

#include <QByteArray>
#include <QCryptographicHash>

#include <thread>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QString ours(const QByteArray &data)
{
    return Sha256().hex(data);
}

QString theirs(const QByteArray &data)
{
    return QString::fromLatin1(QCryptographicHash::hash(data, QCryptographicHash::Sha256).toHex());
}

QByteArray pattern(qsizetype size)
{
    QByteArray bytes(size, Qt::Uninitialized);
    for (qsizetype i = 0; i < size; ++i)
        bytes[i] = static_cast<char>(i * 7 + i / 251);
    return bytes;
}

} // namespace

/// The examples that belong to FIPS 180-4.
TEST(Sha256, givesTheDigestsOfTheStandard)
{
    EXPECT_EQ(ours("abc"), u"ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad"_s);
    EXPECT_EQ(ours(""), u"e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855"_s);
    EXPECT_EQ(ours("abcdbcdecdefdefgefghfghighijhijkijkljklmklmnlmnomnopnopq"),
              u"248d6a61d20638b8e5c026930c3e6039a33ce45964ff2167f6ecedd419db06c1"_s);
    EXPECT_EQ(ours("abcdefghbcdefghicdefghijdefghijkefghijklfghijklmghijklmn"
                   "hijklmnoijklmnopjklmnopqklmnopqrlmnopqrsmnopqrstnopqrstu"),
              u"cf5b16a778af8380036ce59e7b0492370b249b11e8f07a51afac45037afee9d1"_s);
    EXPECT_EQ(ours(QByteArray(1000000, 'a')),
              u"cdc76e5c9914fb9281a1c7e284d73e67f1809a48a497200e046d39ccc7112cd0"_s);
}

TEST(Sha256, takesNoDataForEmptyData)
{
    EXPECT_EQ(Sha256().hex(QByteArrayView()), ours(""));
}

TEST(Sha256, agreesWithAnotherImplementationAroundTheBoundsOfItsBlocks)
{
    Sha256 sha256;
    for (qsizetype size = 0; size <= 260; ++size)
        ASSERT_EQ(sha256.hex(pattern(size)), theirs(pattern(size))) << size;
    for (const qsizetype size : {4095, 4096, 4097, 16392, 65535, 1048575, 1048576, 1048577})
        EXPECT_EQ(sha256.hex(pattern(size)), theirs(pattern(size))) << size;
}

TEST(Sha256, digestsEveryByteValue)
{
    QByteArray all(256, '\0');
    for (int value = 0; value < 256; ++value)
        all[value] = static_cast<char>(value);
    EXPECT_EQ(ours(all), theirs(all));
    EXPECT_NE(ours(QByteArray("a\0b", 3)), ours(QByteArray("a\0c", 3)));
}

TEST(Sha256, computesOneDigestAfterAnother)
{
    Sha256 sha256;
    const QString first = sha256.hex("abc");
    for (int number = 0; number < 1000; ++number)
        ASSERT_EQ(sha256.hex(QByteArray::number(number)), theirs(QByteArray::number(number)));
    EXPECT_EQ(sha256.hex("abc"), first) << "nothing of the others is left in it";
}

TEST(Sha256, outlivesAnotherOneOnItsThread)
{
    Sha256 sha256;
    for (int number = 0; number < 3; ++number) {
        EXPECT_EQ(Sha256().hex("abc"), theirs("abc"));
        EXPECT_EQ(sha256.hex("abc"), theirs("abc"));
    }
}

TEST(Sha256, worksOnEachThreadWithAnObjectOfItsOwn)
{
    constexpr size_t count = 8;
    std::vector<QString> digests(count);
    std::vector<std::thread> threads;
    for (size_t number = 0; number < count; ++number) {
        threads.emplace_back([&digests, number] {
            for (int again = 0; again < 50; ++again)
                digests[number] = Sha256().hex(QByteArray::number(static_cast<qulonglong>(number)));
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    for (size_t number = 0; number < count; ++number)
        EXPECT_EQ(digests[number], theirs(QByteArray::number(static_cast<qulonglong>(number))));
}
