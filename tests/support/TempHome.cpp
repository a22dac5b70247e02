#include "support/TempHome.h"

#include "base/Files.h"
#include "base/Paths.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <system_error>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

std::filesystem::path native(const QString &path)
{
    return paths::toBytes(path).toStdString();
}

void require(bool done, const QString &what)
{
    if (!done)
        throw std::system_error(errno, std::generic_category(), paths::toBytes(what).toStdString());
}

} // namespace

TempHome::TempHome()
{
    std::string pattern =
        std::filesystem::canonical(std::filesystem::temp_directory_path()).string() + "/quillmere-XXXXXX";
    require(mkdtemp(pattern.data()) != nullptr, QStringLiteral("mkdtemp"));
    path_ = paths::fromBytes(pattern);
}

TempHome::~TempHome()
{
    if (::testing::Test::HasFailure()) {
        std::cerr << "kept: " << native(path_) << '\n';
        return;
    }
    std::error_code ignored;
    const std::filesystem::path root = native(path_);
    // A folder that a test has locked keeps its content from being removed.
    for (auto it = std::filesystem::recursive_directory_iterator(
             root, std::filesystem::directory_options::skip_permission_denied, ignored);
         it != std::filesystem::recursive_directory_iterator(); it.increment(ignored)) {
        if (it->is_directory(ignored) && !it->is_symlink(ignored))
            std::filesystem::permissions(it->path(), std::filesystem::perms::owner_all,
                                         std::filesystem::perm_options::add, ignored);
    }
    std::filesystem::remove_all(root, ignored);
}

QString TempHome::at(const QString &relative) const
{
    return paths::join(path_, relative);
}

QString TempHome::file(const QString &relative, const QByteArray &content) const
{
    const QString path = at(relative);
    files::makeDirectories(paths::parent(path));
    std::ofstream stream(native(path), std::ios::binary);
    stream.write(content.constData(), content.size());
    stream.close();
    require(stream.good(), path);
    return path;
}

QString TempHome::sparseFile(const QString &relative, qint64 size) const
{
    const QString path = file(relative);
    require(truncate(native(path).c_str(), size) == 0, path);
    return path;
}

QString TempHome::folder(const QString &relative) const
{
    const QString path = at(relative);
    files::makeDirectories(path);
    return path;
}

QString TempHome::link(const QString &relative, const QString &target) const
{
    const QString path = at(relative);
    files::makeDirectories(paths::parent(path));
    require(symlink(native(target).c_str(), native(path).c_str()) == 0, path);
    return path;
}

QString TempHome::script(const QString &relative, const QByteArray &lines) const
{
    const QString path = file(relative, "#!/bin/sh\n" + lines);
    setMode(relative, 0755);
    return path;
}

void TempHome::setMode(const QString &relative, unsigned mode) const
{
    require(chmod(native(at(relative)).c_str(), mode) == 0, at(relative));
}
