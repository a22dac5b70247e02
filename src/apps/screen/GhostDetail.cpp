#include "apps/screen/GhostDetail.h"

#include "apps/screen/AppFiles.h"
#include "apps/screen/GhostList.h"
#include "base/Paths.h"
#include "base/Sums.h"
#include "common/Formatters.h"

GhostDetail::GhostDetail(const QString &home)
    : categories_({
        {"label", [](const Category &category) { return category.name; }},
        {"symbol", [](const Category &category) { return appfiles::symbol(category.name); }},
        {"sizeText", [](const Category &category) { return sizeText(category.size); }},
        {"share",
         [](const Category &category) {
             return category.total == 0
                        ? 0.0
                        : static_cast<double>(category.size) / static_cast<double>(category.total);
         }},
    })
    , files_(appfiles::roles(home))
{
}

void GhostDetail::show(const std::optional<GhostApp> &ghost)
{
    ghost_ = ghost;
    categories_.reset(ghost_ ? categoriesOf(*ghost_) : std::vector<Category>());
    files_.show(ghost_ ? ghost_->files : std::vector<AssociatedFile>());
    emit changed();
}

std::vector<GhostDetail::Category> GhostDetail::categoriesOf(const GhostApp &ghost) const
{
    std::vector<Category> all;
    for (const AssociatedFile &file : ghost.files) {
        const auto known = std::ranges::find(all, file.category, &Category::name);
        if (known == all.end())
            all.push_back({file.category, file.size, ghost.totalSize()});
        else
            known->size = sums::saturated(known->size, file.size);
    }
    return all;
}

const AssociatedFile *GhostDetail::fileAt(int row) const
{
    return ghost_ && row >= 0 && row < files_.count() ? &ghost_->files[static_cast<size_t>(row)] : nullptr;
}

QString GhostDetail::name() const
{
    return ghost_ ? paths::inOneLine(ghost_->inferredName) : QString();
}

QString GhostDetail::bundleID() const
{
    return ghost_ ? paths::inOneLine(ghost_->bundleID) : QString();
}

QString GhostDetail::badgeText() const
{
    return ghost_ ? ghostlist::badgeText(ghost_->looksInstalled) : QString();
}

QString GhostDetail::badgeNote() const
{
    return ghost_ ? ghostlist::badgeNote(ghost_->looksInstalled) : QString();
}

QString GhostDetail::filesFigure() const
{
    return QString::number(ghost_ ? ghost_->files.size() : 0);
}

QString GhostDetail::categoriesFigure() const
{
    return QString::number(categories_.rowCount());
}

QString GhostDetail::totalFigure() const
{
    return sizeText(ghost_ ? ghost_->totalSize() : 0);
}

bool GhostDetail::hasTicked() const
{
    return ghost_ && appfiles::selected(ghost_->files).count > 0;
}

QString GhostDetail::removeText() const
{
    if (!ghost_)
        return {};
    const appfiles::Amount amount = appfiles::selected(ghost_->files);
    return QStringLiteral("Remove %1 files (%2)").arg(QString::number(amount.count), sizeText(amount.size));
}

void GhostDetail::toggle(int row)
{
    if (!fileAt(row))
        return;
    AssociatedFile &file = ghost_->files[static_cast<size_t>(row)];
    file.selected = !file.selected;
    files_.refresh(file);
    emit changed();
    emit ticksChanged();
}

void GhostDetail::selectAll(bool isSelected)
{
    if (!ghost_)
        return;
    appfiles::selectAll(ghost_->files, isSelected);
    files_.show(ghost_->files);
    emit changed();
    emit ticksChanged();
}
