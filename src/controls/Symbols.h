#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

/// The glyphs of the symbol font by the names that the program's data uses.
class Symbols final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    /// The text that draws the symbol in the symbol font; empty, with a warning, for a name that it doesn't have.
    Q_INVOKABLE static QString glyph(const QString &name);
};
