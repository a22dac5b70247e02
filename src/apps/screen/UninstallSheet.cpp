#include "apps/screen/UninstallSheet.h"

#include "apps/screen/AppFiles.h"
#include "base/Paths.h"
#include "base/Sums.h"
#include "common/Formatters.h"

#include <utility>

namespace {
const QString uninstallText = QStringLiteral("Uninstall");
const QString removingText = QStringLiteral("Removing...");
} // namespace

UninstallSheet::UninstallSheet(const QString &home, std::function<void()> confirmed)
    : confirmed_(std::move(confirmed))
    , rows_(appfiles::roles(home))
{
}

QString UninstallSheet::title() const
{
    return app_ ? QStringLiteral("Uninstall %1?").arg(paths::inOneLine(app_->name)) : QString();
}

QString UninstallSheet::totalText() const
{
    return sizeText(sums::saturated(app_ ? app_->size : 0, appfiles::selected(files_).size));
}

QString UninstallSheet::confirmText() const
{
    return isBusy_ ? removingText : uninstallText;
}

QStringList UninstallSheet::confirmLabels() const
{
    return {uninstallText, removingText};
}

void UninstallSheet::ask(const RealInstalledApp &app)
{
    app_ = app;
    files_ = app.associatedFiles;
    rows_.show(files_);
    isUp_ = true;
    emit changed();
}

void UninstallSheet::setBusy(bool isBusy)
{
    isBusy_ = isBusy;
    emit changed();
}

void UninstallSheet::close()
{
    if (std::exchange(isUp_, false))
        emit changed();
}

void UninstallSheet::cancel()
{
    if (!isBusy_)
        close();
}

void UninstallSheet::confirm()
{
    if (canChoose())
        confirmed_();
}

void UninstallSheet::toggle(int row)
{
    if (!canChoose() || row < 0 || row >= rows_.count())
        return;
    AssociatedFile &file = files_[static_cast<size_t>(row)];
    file.selected = !file.selected;
    rows_.refresh(file);
    emit changed();
}

void UninstallSheet::tickAll(bool isSelected)
{
    if (!canChoose())
        return;
    appfiles::selectAll(files_, isSelected);
    rows_.show(files_);
    emit changed();
}

void UninstallSheet::selectAll()
{
    tickAll(true);
}

void UninstallSheet::selectNone()
{
    tickAll(false);
}
