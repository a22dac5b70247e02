#include "platform/linux/DesktopEntry.h"

#include "base/Paths.h"

#include <memory>

#include <glib.h>

namespace {

struct Freed
{
    void operator()(GKeyFile *file) const { g_key_file_unref(file); }
    void operator()(char *text) const { g_free(text); }
    void operator()(char **texts) const { g_strfreev(texts); }
};

constexpr const char *group = G_KEY_FILE_DESKTOP_GROUP;

QString textUnder(GKeyFile *file, const char *key)
{
    const std::unique_ptr<char, Freed> text(g_key_file_get_string(file, group, key, nullptr));
    return text ? paths::fromBytes(QByteArray(text.get())) : QString();
}

bool isTrue(GKeyFile *file, const char *key)
{
    return g_key_file_get_boolean(file, group, key, nullptr) == TRUE;
}

/// Words are quoted as the shell does it.
QString firstWord(const QString &command)
{
    int count = 0;
    char **words = nullptr;
    if (g_shell_parse_argv(paths::toBytes(command).constData(), &count, &words, nullptr) == FALSE)
        return {};
    const std::unique_ptr<char *, Freed> owned(words);
    return count > 0 ? paths::fromBytes(QByteArray(words[0])) : QString();
}

} // namespace

std::optional<DesktopEntry> DesktopEntry::parse(const QByteArray &content)
{
    const std::unique_ptr<GKeyFile, Freed> file(g_key_file_new());
    if (g_key_file_load_from_data(file.get(), content.constData(), static_cast<gsize>(content.size()),
                                  G_KEY_FILE_NONE, nullptr)
        == FALSE)
        return std::nullopt;
    if (textUnder(file.get(), G_KEY_FILE_DESKTOP_KEY_TYPE) != G_KEY_FILE_DESKTOP_TYPE_APPLICATION
        || isTrue(file.get(), G_KEY_FILE_DESKTOP_KEY_HIDDEN))
        return std::nullopt;
    return DesktopEntry{firstWord(textUnder(file.get(), G_KEY_FILE_DESKTOP_KEY_EXEC)),
                        textUnder(file.get(), G_KEY_FILE_DESKTOP_KEY_TRY_EXEC),
                        isTrue(file.get(), G_KEY_FILE_DESKTOP_KEY_DBUS_ACTIVATABLE)};
}
