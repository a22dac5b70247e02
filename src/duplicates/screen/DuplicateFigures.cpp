#include "duplicates/screen/DuplicateFigures.h"

#include "base/Sums.h"
#include "common/Formatters.h"

QString DuplicateFigures::amountText(const QString &pattern) const
{
    return pattern.arg(QString::number(filesToDelete), sizeText(bytesToDelete));
}

DuplicateFigures figuresOf(const std::vector<DuplicateFileGroup> &groups, const std::vector<size_t> &shown)
{
    DuplicateFigures figures;
    for (const size_t index : shown) {
        const DuplicateFileGroup &group = groups[index];
        const qint64 going = group.filesToGo();
        figures.groups += 1;
        figures.files += static_cast<qint64>(group.files.size());
        figures.filesToDelete += going;
        figures.wasted = sums::saturated(figures.wasted, group.wastedBytes());
        figures.bytesToDelete =
            sums::saturated(figures.bytesToDelete, sums::saturatedProduct(going, group.size));
    }
    return figures;
}
