#pragma once

#include "base/Paths.h"

#include <QByteArray>
#include <QTemporaryDir>

#include <cstdio>
#include <filesystem>
#include <system_error>

#include <gtest/gtest.h>
#include <sys/stat.h>

/// An empty folder for one test, which stays when the test fails.
class ScratchFolder
{
public:
    ScratchFolder() { folder_.setAutoRemove(false); } // Qt's own removal leaves names that are not UTF-8
    ~ScratchFolder()
    {
        std::error_code ignored;
        if (!testing::Test::HasFailure())
            std::filesystem::remove_all(paths::toBytes(path()).toStdString(), ignored);
    }
    ScratchFolder(const ScratchFolder &) = delete;
    ScratchFolder &operator=(const ScratchFolder &) = delete;

    QString path(const QString &name = {}) const
    {
        return name.isEmpty() ? folder_.path() : paths::join(folder_.path(), name);
    }

    /// Writes a file below the folder and gives its path.
    QString write(const QString &name, const QByteArray &content) const
    {
        QString path = this->path(name);
        FILE *file = fopen(paths::toBytes(path).constData(), "wb");
        EXPECT_NE(file, nullptr) << path.toStdString();
        if (file) {
            EXPECT_EQ(fwrite(content.constData(), 1, static_cast<size_t>(content.size()), file),
                      static_cast<size_t>(content.size()));
            EXPECT_EQ(fclose(file), 0);
        }
        return path;
    }

    /// Makes a folder below the folder and gives its path.
    QString makeFolder(const QString &name) const
    {
        QString path = this->path(name);
        EXPECT_EQ(mkdir(paths::toBytes(path).constData(), 0777), 0) << path.toStdString();
        return path;
    }

private:
    QTemporaryDir folder_;
};
