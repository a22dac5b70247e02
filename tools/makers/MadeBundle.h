#pragma once

#include <QJsonObject>
#include <QString>

/// An application's bundle of the Mac's shape, for tests and the demo.
struct MadeBundle
{
    enum class Form { xml, binary };

    QString path;                 ///< absolute; its name ends in ".app"
    QJsonObject description = {}; ///< what its property list tells; empty: there is none
    Form form = Form::xml;
    qint64 size = 4096; ///< bytes of its program
    int days = 0;       ///< since it was last changed

    /// Puts it on the disk, and the folders above it. Throws std::system_error when the disk refuses.
    void make() const;
};
