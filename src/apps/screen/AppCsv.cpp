#include "apps/screen/AppCsv.h"

#include "base/Paths.h"
#include "common/Formatters.h"

#include <QString>

#include <algorithm>
#include <array>
#include <charconv>

namespace {

/// A file's text as it grows, field by field.
class Lines
{
public:
    explicit Lines(const QString &header)
        : text_(header)
    {
    }

    void add(const QString &field)
    {
        separate();
        const bool needsQuotes = std::any_of(field.begin(), field.end(), [](QChar character) {
            return character == u',' || character == u'"' || character == u'\n';
        });
        if (!needsQuotes) {
            text_ += field;
            return;
        }
        text_ += u'"';
        for (const QChar character : field) {
            if (character == u'"')
                text_ += u'"';
            text_ += character;
        }
        text_ += u'"';
    }

    void add(qint64 number)
    {
        separate();
        std::array<char, 20> digits = {}; // of the largest number
        const char *end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
        text_ += QLatin1StringView(digits.data(), end - digits.data());
    }

    void endLine()
    {
        text_ += u'\n';
        isAtStart_ = true;
    }

    QByteArray utf8() const { return paths::display(text_).toUtf8(); }

private:
    void separate()
    {
        if (!isAtStart_)
            text_ += u',';
        isAtStart_ = false;
    }

    QString text_;
    bool isAtStart_ = true;
};

/// How long ago days were, for a whole list of them. Asking the calendar costs more than all the rest of a line, and there
/// are few texts, so that most need not be asked for.
class DayTexts
{
public:
    explicit DayTexts(Date now)
        : now_(now)
    {
    }

    QString of(std::optional<Date> date)
    {
        if (!date)
            return relativeDayText(date, now_);
        // These are days of 24 hours from midnight to midnight, and the calendar's differ from them by three at most, since
        // a zone's clocks are never set by more than 26 hours. Far enough from where the text changes that is near enough.
        using std::chrono::days;
        const auto about =
            static_cast<int>((std::chrono::floor<days>(now_) - std::chrono::floor<days>(*date)).count());
        if (QString text = elapsedDaysText(about - 3); about > 9 && text == elapsedDaysText(about + 3))
            return text;
        const auto known = std::find_if(spans_.begin(), spans_.end(), [&date](const Span &span) {
            return span.from <= *date && *date <= span.to;
        });
        return known == spans_.end() ? learn(*date) : known->text;
    }

private:
    struct Span
    {
        QString text;
        Date from;
        Date to;
    };

    /// All days between two with the same text have it too.
    QString learn(Date date)
    {
        QString text = relativeDayText(date, now_);
        const auto known = std::find_if(spans_.begin(), spans_.end(),
                                        [&text](const Span &span) { return span.text == text; });
        if (known == spans_.end()) {
            spans_.push_back({text, date, date});
        } else {
            known->from = std::min(known->from, date);
            known->to = std::max(known->to, date);
        }
        return text;
    }

    Date now_;
    std::vector<Span> spans_;
};

} // namespace

namespace appcsv {

QByteArray ofInstalled(const std::vector<RealInstalledApp> &apps, Date now)
{
    Lines lines(QStringLiteral("Name,Version,Bundle ID,App Size,Cache Size,Support Size,Preferences Size,"
                               "Container Size,Total Size,Last Used,Path\n"));
    DayTexts days(now);
    for (const RealInstalledApp &app : apps) {
        lines.add(app.name);
        lines.add(app.version);
        lines.add(app.bundleID);
        for (const qint64 size : {app.size, app.cacheSize, app.supportSize, app.preferencesSize,
                                  app.containerSize, app.totalSize()})
            lines.add(size);
        lines.add(days.of(app.lastUsed));
        lines.add(app.path);
        lines.endLine();
    }
    return lines.utf8();
}

QByteArray ofGhosts(const std::vector<GhostApp> &ghosts)
{
    Lines lines(QStringLiteral("App Name,Bundle ID,Category,Size,File Path\n"));
    for (const GhostApp &ghost : ghosts) {
        for (const AssociatedFile &file : ghost.files) {
            lines.add(ghost.inferredName);
            lines.add(ghost.bundleID);
            lines.add(file.category);
            lines.add(file.size);
            lines.add(file.path);
            lines.endLine();
        }
    }
    return lines.utf8();
}

} // namespace appcsv
