#include "controls/Symbols.h"

#include "controls/symbols/SymbolTable.h"

#include <QDebug>

#include <algorithm>

QString Symbols::glyph(const QString &name)
{
    if (name.isEmpty())
        return {};
    const QByteArray key = name.toUtf8();
    const std::string_view wanted(key.constData(), static_cast<size_t>(key.size()));
    const auto found =
        std::lower_bound(symbolTable.begin(), symbolTable.end(), wanted,
                         [](const SymbolEntry &entry, std::string_view text) { return entry.name < text; });
    if (found == symbolTable.end() || found->name != wanted) {
        qWarning("No symbol is named \"%s\"", key.constData());
        return {};
    }
    return QChar(found->codePoint);
}
