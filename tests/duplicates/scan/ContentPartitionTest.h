#pragma once

#include "base/Files.h"
#include "base/Paths.h"
#include "duplicates/scan/ContentPartition.h"
#include "support/TempHome.h"

#include <functional>
#include <map>
#include <vector>

#include <gtest/gtest.h>
#include <unistd.h>

inline constexpr qint64 mebibyte = 1048576; // up to here a content is compared whole

/// Files in a folder, named by their number, which is their index in the table as well.
class ContentPartitionTest : public testing::Test
{
protected:
    /// The members of classes by their digest.
    using Members = std::map<QString, std::vector<quint32>>;

    TempHome temp;
    FileTable table;
    Sha256 sha256;
    quint32 folder = table.addFolder(temp.path());
    int failures = 0;      ///< of the last partition
    int lost = 0;          ///< likewise
    bool isOfMany = false; ///< the partition takes the files for part of so many that no head is kept

    QString at(quint32 index) const { return temp.at(QString::number(index)); }

    void restart()
    {
        table = FileTable();
        folder = table.addFolder(temp.path());
    }

    void addFile(const QByteArray &content)
    {
        const QByteArray name = QByteArray::number(static_cast<qulonglong>(table.files().size()));
        temp.file(QString::fromLatin1(name), content);
        table.add(folder, name, content.size(), false);
    }

    void addFiles(const std::vector<QByteArray> &contents)
    {
        for (const QByteArray &content : contents)
            addFile(content);
    }

    void remove(quint32 index) { ASSERT_EQ(unlink(paths::toBytes(at(index)).constData()), 0); }

    /// A file of the table, opened and handed over with its head.
    bool add(ContentPartition &parts, quint32 index)
    {
        const FileTable::File &file = table.files()[index];
        const files::FileReader reader(table.nativePath(file));
        QByteArray head;
        return reader.isOpen() && ContentPartition::readHead(reader, file.size, head)
               && parts.add(index, reader, head);
    }

    /// All files of the table, which are of one size, put to their likes.
    std::vector<ContentPartition::Class> partition(const std::function<void(quint32)> &before = {})
    {
        const size_t count = isOfMany ? 100000 : table.files().size();
        ContentPartition parts(table, table.files().front().size, count, sha256);
        failures = 0;
        for (quint32 index = 0; index < table.files().size(); ++index) {
            if (before)
                before(index);
            failures += add(parts, index) ? 0 : 1;
        }
        lost = parts.lostFiles();
        return parts.takeShared();
    }

    static std::vector<quint32> members(const ContentPartition::Class &equal)
    {
        std::vector<quint32> all;
        for (const ContentPartition::Member &member : equal.members)
            all.push_back(member.file);
        return all;
    }

    /// The members of each class, by its digest.
    static Members byDigest(const std::vector<ContentPartition::Class> &all)
    {
        Members members;
        for (const ContentPartition::Class &equal : all)
            members[equal.digest] = ContentPartitionTest::members(equal);
        EXPECT_EQ(members.size(), all.size()) << "a digest came twice";
        return members;
    }
};
