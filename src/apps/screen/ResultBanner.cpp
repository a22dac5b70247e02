#include "apps/screen/ResultBanner.h"

#include "base/GuardedPost.h"
#include "base/Paths.h"
#include "common/Formatters.h"

#include <utility>

ResultBanner::ResultBanner(MainQueue &mainQueue)
    : mainQueue_(mainQueue)
{
}

QString ResultBanner::title() const
{
    if (!result_)
        return {};
    return (result_->success ? QStringLiteral("%1 cleaned") : QStringLiteral("Failed: %1"))
        .arg(paths::inOneLine(result_->appName));
}

QString ResultBanner::detail() const
{
    if (!result_)
        return {};
    if (!result_->success)
        return paths::inOneLine(result_->error.value_or(QStringLiteral("Unknown error")));
    return QStringLiteral("%1 items moved to Trash · %2 freed")
        .arg(QString::number(result_->removedCount), sizeText(result_->freedSize));
}

void ResultBanner::show(UninstallResult result)
{
    result_ = std::move(result);
    emit changed();
}

void ResultBanner::show(UninstallResult result, double seconds)
{
    show(std::move(result));
    guarded::postAfter(mainQueue_, seconds, QPointer(this), [](ResultBanner &banner) { banner.clear(); });
}

void ResultBanner::clear()
{
    if (!result_)
        return;
    result_.reset();
    emit changed();
}
