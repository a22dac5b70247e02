#include "platform/linux/GioTrash.h"

#include "base/Paths.h"

#include <memory>

// A macro of Qt's, and a member's name in the headers of GIO.
#pragma push_macro("signals")
#undef signals
#include <gio/gio.h>
#pragma pop_macro("signals")

namespace {

using File = std::unique_ptr<GFile, decltype(&g_object_unref)>;

File fileAt(const QString &path)
{
    return {g_file_new_for_path(paths::toBytes(path).constData()), g_object_unref};
}

} // namespace

namespace giotrash {

QString dataFolder()
{
    return paths::fromBytes(g_get_user_data_dir());
}

QString homeFolder()
{
    return paths::fromBytes(g_get_home_dir());
}

QString standardized(const QString &path)
{
    const std::unique_ptr<char, decltype(&g_free)> read(g_file_get_path(fileAt(path).get()), g_free);
    return read ? paths::fromBytes(read.get()) : path;
}

std::optional<Failure> move(const QString &path)
{
    const File file = fileAt(path);
    GError *reported = nullptr;
    if (g_file_trash(file.get(), nullptr, &reported))
        return std::nullopt;
    const std::unique_ptr<GError, decltype(&g_error_free)> error(reported, g_error_free);
    Failure failure;
    failure.domain = QString::fromUtf8(g_quark_to_string(error->domain));
    failure.code = error->code;
    failure.description = QString::fromUtf8(error->message);
    failure.hasNoTrash = g_error_matches(error.get(), G_IO_ERROR, G_IO_ERROR_NOT_SUPPORTED);
    failure.hasNoRoom = g_error_matches(error.get(), G_IO_ERROR, G_IO_ERROR_NO_SPACE)
                        || g_error_matches(error.get(), G_FILE_ERROR, G_FILE_ERROR_NOSPC);
    failure.nameIsTooLong = g_error_matches(error.get(), G_IO_ERROR, G_IO_ERROR_FILENAME_TOO_LONG);
    return failure;
}

} // namespace giotrash
