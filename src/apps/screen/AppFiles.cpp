#include "apps/screen/AppFiles.h"

#include "base/Paths.h"
#include "base/Sums.h"
#include "common/Formatters.h"

#include <QHash>

namespace appfiles {

std::vector<RecordListModel<AssociatedFile>::Role> roles(const QString &home)
{
    const auto shownPath = [home](const AssociatedFile &file) {
        return paths::inOneLine(paths::withTilde(file.path, home));
    };
    return {
        {"fileName",
         [](const AssociatedFile &file) { return paths::inOneLine(paths::lastComponent(file.path)); }},
        {"path", shownPath},
        {"category", [](const AssociatedFile &file) { return file.category; }},
        {"symbol", [](const AssociatedFile &file) { return symbol(file.category); }},
        {"sizeText", [](const AssociatedFile &file) { return sizeText(file.size); }},
        {"spokenText",
         [](const AssociatedFile &file) {
             return file.category + QStringLiteral(", ") + sizeText(file.size);
         }},
        {"isTicked", [](const AssociatedFile &file) { return file.selected; }},
    };
}

QString symbol(const QString &category)
{
    static const QHash<QString, QString> symbols = {
        {QStringLiteral("Cache"), QStringLiteral("archivebox.fill")},
        {QStringLiteral("Preferences"), QStringLiteral("gearshape.fill")},
        {QStringLiteral("Support"), QStringLiteral("doc.fill")},
        {QStringLiteral("Container"), QStringLiteral("shippingbox.fill")},
    };
    return symbols.value(category, QStringLiteral("folder.fill"));
}

Amount selected(const std::vector<AssociatedFile> &files)
{
    Amount amount;
    for (const AssociatedFile &file : files) {
        if (!file.selected)
            continue;
        ++amount.count;
        amount.size = sums::saturated(amount.size, file.size);
    }
    return amount;
}

void selectAll(std::vector<AssociatedFile> &files, bool isSelected)
{
    for (AssociatedFile &file : files)
        file.selected = isSelected;
}

} // namespace appfiles
