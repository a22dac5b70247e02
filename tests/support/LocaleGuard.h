#pragma once

#include <memory>

#include <unicode/locid.h>
#include <unicode/timezone.h>

/// The locale and time zone of a certain reader for as long as it lives.
class LocaleGuard
{
public:
    explicit LocaleGuard(const char *locale = "en_US", const char *timeZone = "UTC")
    {
        UErrorCode status = U_ZERO_ERROR;
        icu::Locale::setDefault(icu::Locale(locale), status);
        icu::TimeZone::adoptDefault(icu::TimeZone::createTimeZone(timeZone));
    }
    ~LocaleGuard()
    {
        UErrorCode status = U_ZERO_ERROR;
        icu::Locale::setDefault(locale_, status);
        icu::TimeZone::adoptDefault(zone_.release());
    }
    LocaleGuard(const LocaleGuard &) = delete;
    LocaleGuard &operator=(const LocaleGuard &) = delete;

private:
    icu::Locale locale_ = icu::Locale::getDefault();
    std::unique_ptr<icu::TimeZone> zone_{icu::TimeZone::createDefault()};
};
