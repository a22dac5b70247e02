#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringView>

#include <optional>

/// Paths as text. The file system's names are bytes, any but "/" and NUL; a path is a QString everywhere in
/// the program. Bytes that are not UTF-8 become lone low surrogates (U+DC80 to U+DCFF) on the way in and
/// those same bytes again on the way out, so that every name survives the round trip. All functions here are
/// pure and work on the text alone: nothing touches the disk, resolves links or normalises "..".
namespace paths {

/// The text of a name or path as the file system gave it.
QString fromBytes(QByteArrayView bytes);

/// The bytes of a path for a file call or a child process's argument.
QByteArray toBytes(QStringView path);

/// The text as a person may see it, or as JSON, CSV and the clipboard may carry it: a byte that is not UTF-8
/// becomes U+FFFD.
QString display(const QString &text);

/// The same for one line on a screen: characters that would break it, or change the order of what stands around them,
/// show as signs of their own, so that two names never look alike for them.
QString inOneLine(const QString &text);

/// "/a/b" of "/a/b/c". "/" of "/c" and of "/"; empty for a relative name.
QString parent(const QString &path);

/// "c" of "/a/b/c" and of "/a/b/c/". "/" of "/".
QString lastComponent(const QString &path);

/// The text behind the last dot of the last component, as it stands. Empty when the dot begins or ends the
/// name (".profile", "name.") or when there is none; "..", "." have none.
QString extension(const QString &path);

/// "c" of "/a/b/c.d" and of "/a/b/c": the last component without its extension and the dot ahead of it.
QString stem(const QString &path);

/// True when `name` names exactly one entry directly inside whatever folder it is joined to: it is not empty, neither
/// "." nor "..", and holds no slash and no NUL. To be asked of every name that someone else has chosen.
bool isEntryName(QStringView name);

/// `folder` + "/" + `name`, with one slash between them.
QString join(const QString &folder, const QString &name);

/// An absolute path without ".", ".." and doubled slashes, by the text alone.
QString standardized(const QString &path);

/// True when `path` is `folder` or lies below it, by the text alone.
bool isAtOrBelow(const QString &path, const QString &folder);

/// What leads from `folder` to a path below it, by the text alone. None for a path that isn't below it, or that goes there by
/// way of "..", "." or a slash too many.
std::optional<QString> below(const QString &path, const QString &folder);

/// "~" and "~/x" with `home` in the place of the tilde; any other text as it stands.
QString expandTilde(const QString &path, const QString &home);

/// The other way round: "~" and "~/x" for `home` and what lies below it; any other path as it stands.
QString withTilde(const QString &path, const QString &home);

/// The "file://" address of an absolute path, every byte outside the unreserved set percent-encoded.
QByteArray fileUrl(const QString &path);

/// The path of a "file://" address as another program hands it over; empty when it is none.
QString fromFileUrl(const QByteArray &url);

} // namespace paths
