#include "apps/screen/AppDetail.h"

#include "base/Paths.h"
#include "common/Formatters.h"

AppDetail::AppDetail(const Clock &clock)
    : clock_(clock)
    , breakdown_({
          {"label", [](const Part &part) { return part.label; }},
          {"sizeText", [](const Part &part) { return sizeText(part.size); }},
          {"share",
           [](const Part &part) {
               return part.total == 0 ? 0.0
                                      : static_cast<double>(part.size) / static_cast<double>(part.total);
           }},
          {"isTotal", [](const Part &part) { return part.isTotal; }},
      })
{
}

void AppDetail::show(const std::optional<RealInstalledApp> &app)
{
    app_ = app;
    std::vector<Part> parts;
    if (app_) {
        const qint64 total = app_->totalSize();
        parts = {{QStringLiteral("Application"), app_->size, total},
                 {QStringLiteral("Caches"), app_->cacheSize, total},
                 {QStringLiteral("Preferences"), app_->preferencesSize, total},
                 {QStringLiteral("Support Files"), app_->supportSize, total},
                 {QStringLiteral("Containers"), app_->containerSize, total},
                 {QStringLiteral("Total"), total, total, true}};
    }
    breakdown_.reset(std::move(parts));
    emit changed();
}

QString AppDetail::name() const
{
    return app_ ? paths::inOneLine(app_->name) : QString();
}

QString AppDetail::versionText() const
{
    return app_ ? paths::inOneLine(app_->version) : QString();
}

QString AppDetail::bundleID() const
{
    return app_ ? paths::inOneLine(app_->bundleID) : QString();
}

QString AppDetail::path() const
{
    return app_ ? paths::inOneLine(app_->path) : QString();
}

QString AppDetail::icon() const
{
    return app_ ? app_->icon.value_or(QString()) : QString();
}

QString AppDetail::lastUsedText() const
{
    return app_ ? QStringLiteral("Last used: %1").arg(relativeDayText(app_->lastUsed, clock_.now()))
                : QString();
}

QString AppDetail::totalText() const
{
    return app_ ? QStringLiteral("Total size: %1 (including associated files)")
                      .arg(sizeText(app_->totalSize()))
                : QString();
}

QString AppDetail::uninstallText() const
{
    return app_ ? QStringLiteral("Uninstall %1").arg(name()) : QString();
}
