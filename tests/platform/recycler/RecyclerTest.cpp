#include "RecyclerTest.h"

#include "base/Files.h"
#include "base/Paths.h"

#include <filesystem>
#include <fstream>
#include <future>

#include <fcntl.h>
#include <sys/stat.h>

namespace {

std::filesystem::path native(const QString &path)
{
    return paths::toBytes(path).toStdString();
}

} // namespace

bool RecyclerTest::Traits::operator==(const Traits &other) const
{
    return content == other.content && mode == other.mode && modified.tv_sec == other.modified.tv_sec
           && modified.tv_nsec == other.modified.tv_nsec;
}

RecyclerTest::RecyclerTest()
{
    // What a folder holds that can't be written to could not be removed.
    for (const auto &entry : std::filesystem::recursive_directory_iterator(native(TrashHome::path()))) {
        if (entry.is_directory() && !entry.is_symlink())
            std::filesystem::permissions(entry.path(), std::filesystem::perms::owner_all,
                                         std::filesystem::perm_options::add);
    }
    for (const auto &entry : std::filesystem::directory_iterator(native(TrashHome::path())))
        std::filesystem::remove_all(entry.path());
}

QString RecyclerTest::makeFile(const QString &relative, const QByteArray &content)
{
    files::makeDirectories(paths::parent(at(relative)));
    std::ofstream stream(native(at(relative)), std::ios::binary);
    stream.write(content.constData(), content.size());
    stream.close();
    EXPECT_TRUE(stream.good());
    return at(relative);
}

QString RecyclerTest::makeFolder(const QString &relative)
{
    files::makeDirectories(at(relative));
    return at(relative);
}

QString RecyclerTest::makeLink(const QString &relative, const QString &target)
{
    files::makeDirectories(paths::parent(at(relative)));
    std::filesystem::create_symlink(native(target), native(at(relative)));
    return at(relative);
}

void RecyclerTest::age(const QString &path, mode_t mode)
{
    const timespec times[2] = {{981173106, 0}, {981173106, 123456789}};
    EXPECT_EQ(chmod(native(path).c_str(), mode), 0);
    EXPECT_EQ(utimensat(AT_FDCWD, native(path).c_str(), times, AT_SYMLINK_NOFOLLOW), 0);
}

bool RecyclerTest::isThere(const QString &path)
{
    return files::attributes(path).has_value();
}

RecyclerTest::Traits RecyclerTest::traits(const QString &path)
{
    struct stat status = {};
    EXPECT_EQ(lstat(native(path).c_str(), &status), 0) << native(path);
    Traits traits;
    traits.mode = status.st_mode;
    traits.modified = status.st_mtim;
    if (S_ISLNK(status.st_mode))
        traits.content = QByteArray::fromStdString(std::filesystem::read_symlink(native(path)).string());
    if (S_ISREG(status.st_mode))
        traits.content = files::readPrefix(path, 1 << 20).value_or("unreadable");
    return traits;
}

QStringList RecyclerTest::names(const QString &folder)
{
    QStringList names;
    for (const QString &name : files::list(folder).value_or(std::vector<QString>()))
        names.append(name);
    names.sort();
    return names;
}

Recycler::Result RecyclerTest::recycle(const QStringList &paths)
{
    auto promise = std::make_shared<std::promise<Recycler::Result>>();
    auto result = promise->get_future();
    recycler_.recycle(paths, [promise](Recycler::Result outcome) { promise->set_value(std::move(outcome)); });
    return result.get();
}

void RecyclerTest::expectRecycled(const QString &path)
{
    const Recycler::Result result = recycle({path});
    EXPECT_FALSE(result.error) << result.error->description.toStdString();
    ASSERT_EQ(result.moved.size(), 1U);
    EXPECT_EQ(result.moved.begin()->first, path);
    EXPECT_TRUE(isThere(result.moved.begin()->second));
    EXPECT_FALSE(isThere(path));
}
