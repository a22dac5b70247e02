#include "duplicates/screen/DuplicateRows.h"

#include "base/Paths.h"
#include "base/Text.h"
#include "common/DateTexts.h"
#include "common/Formatters.h"

#include <QStringList>

#include <utility>

namespace {

QString wastedText(const DuplicateFileGroup &group)
{
    return sizeText(group.wastedBytes());
}

QString summary(const DuplicateFileGroup &group)
{
    return QStringLiteral("%1 copies · %2 each · %3 wasted")
        .arg(QString::number(group.files.size()), sizeText(group.size), wastedText(group));
}

QString headTitle(const DuplicateFileGroup &group)
{
    return group.files.empty() ? QStringLiteral("Unknown") : paths::inOneLine(group.files.front().name);
}

QString badge(const DuplicateFileEntry &file)
{
    return file.keep ? QStringLiteral("KEEP") : QStringLiteral("DELETE");
}

QString sameMark(samefile::Kind kind)
{
    return kind == samefile::Kind::none ? QString() : QStringLiteral("SAME FILE");
}

QString sameTip(samefile::Kind kind)
{
    switch (kind) {
    case samefile::Kind::oneEntry:
        return QStringLiteral(
            "Two of these paths lead to one and the same file: if one goes, both are gone.");
    case samefile::Kind::hardLinks:
        return QStringLiteral(
            "Some of these are hard links, names of one file: if one goes, nothing is lost and "
            "nothing is freed.");
    case samefile::Kind::none:
        break;
    }
    return {};
}

QString lossMark(const DuplicateFileGroup &group)
{
    return group.keepsNothing() ? QStringLiteral("NOTHING KEPT") : QString();
}

QString spokenHead(const DuplicateFileGroup &group, samefile::Kind kind)
{
    return text::joined({summary(group), sameMark(kind), sameTip(kind), lossMark(group)}, u", ");
}

} // namespace

DuplicateRows::DuplicateRows(const std::vector<DuplicateFileGroup> &groups, QString home, KindOf kindOf,
                             QObject *parent)
    : GroupRows(parent)
    , groups_(groups)
    , home_(std::move(home))
    , kindOf_(std::move(kindOf))
{
}

void DuplicateRows::refreshFile(size_t group, size_t file)
{
    refreshMember(group, file);
    const DuplicateFileGroup &changed = groups_[group];
    const qint64 staying = static_cast<qint64>(changed.files.size()) - changed.filesToGo();
    if (staying <= 1) // the flag of this one may have decided whether any is kept
        refreshHead(group);
}

QVariant DuplicateRows::headData(size_t index, int role) const
{
    const DuplicateFileGroup &group = groups_[index];
    switch (role) {
    case titleRole:
        return headTitle(group);
    case detailRole:
        return summary(group);
    case spokenRole:
        return spokenHead(group, kindOf_(group.id));
    case trailingRole:
        return QStringLiteral("%1 recoverable").arg(wastedText(group));
    case keepRole:
        return true;
    case sameMarkRole:
        return sameMark(kindOf_(group.id));
    case sameTipRole:
        return sameTip(kindOf_(group.id));
    case lossMarkRole:
        return lossMark(group);
    case lossTipRole:
        return group.keepsNothing() ? QStringLiteral("No copy of this group stays.") : QString();
    case badgeRole:
    case badgeSymbolRole:
    case tipRole:
        return QString();
    default:
        return {};
    }
}

QVariant DuplicateRows::memberData(size_t group, size_t index, int role) const
{
    const DuplicateFileEntry &file = groups_[group].files[index];
    switch (role) {
    case titleRole:
        return paths::inOneLine(file.name);
    case detailRole:
        return paths::inOneLine(paths::withTilde(file.path, home_));
    case trailingRole:
        return datetexts::mediumDay(file.modified);
    case keepRole:
        return file.keep;
    case badgeRole:
        return badge(file);
    case badgeSymbolRole:
        return file.keep ? QStringLiteral("checkmark.shield.fill") : QStringLiteral("trash.fill");
    case tipRole:
        return file.keep ? QStringLiteral("Click to mark this copy for deletion")
                         : QStringLiteral("Click to keep this copy");
    case spokenRole:
        return badge(file) + QStringLiteral(", ") + paths::inOneLine(paths::withTilde(file.path, home_))
               + QStringLiteral(", ") + datetexts::mediumDay(file.modified);
    case sameMarkRole:
    case sameTipRole:
    case lossMarkRole:
    case lossTipRole:
        return QString();
    default:
        return {};
    }
}

QHash<int, QByteArray> DuplicateRows::roleNames() const
{
    QHash<int, QByteArray> names = GroupRows::roleNames();
    names.insert({
        {titleRole, "title"},
        {detailRole, "detail"},
        {trailingRole, "trailing"},
        {keepRole, "isKept"},
        {badgeRole, "badge"},
        {badgeSymbolRole, "badgeSymbol"},
        {tipRole, "clickTip"},
        {sameMarkRole, "sameMark"},
        {sameTipRole, "sameTip"},
        {lossMarkRole, "lossMark"},
        {lossTipRole, "lossTip"},
        {spokenRole, "spoken"},
    });
    return names;
}
