#pragma once

#include <QString>

/// The name that a file is to be saved under, as it stands in the panel's field: one that was offered, in any bytes, until
/// another is typed.
class SaveName
{
public:
    void offer(const QString &name);
    void type(const QString &text) { text_ = text; }

    const QString &text() const { return text_; }

    /// How much of the text is ahead of its extension.
    int stemLength() const;

    /// Where the file would lie, absolute; empty without a name. What is typed may be a path, from `folder` on or with a
    /// tilde for `home`.
    QString pathFrom(const QString &folder, const QString &home) const;

    /// It is written as only a folder's is: nothing can be saved under it.
    bool meansFolder() const;

private:
    bool isTyped() const;

    QString offered_;
    QString text_;
};
