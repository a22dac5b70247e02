#include "platform/linux/PanelFilter.h"

#include <QDBusArgument>
#include <QDBusMetaType>

namespace panelfilter {

/// What a file's name or its media type is like.
struct Pattern
{
    uint kind = 0; // 0 of a name, 1 of a media type
    QString text;
};

struct Filter
{
    QString name;
    QList<Pattern> patterns;
};

static QDBusArgument &operator<<(QDBusArgument &argument, const Pattern &pattern)
{
    argument.beginStructure();
    argument << pattern.kind << pattern.text;
    argument.endStructure();
    return argument;
}

static const QDBusArgument &operator>>(const QDBusArgument &argument, Pattern &pattern)
{
    argument.beginStructure();
    argument >> pattern.kind >> pattern.text;
    argument.endStructure();
    return argument;
}

static QDBusArgument &operator<<(QDBusArgument &argument, const Filter &filter)
{
    argument.beginStructure();
    argument << filter.name << filter.patterns;
    argument.endStructure();
    return argument;
}

static const QDBusArgument &operator>>(const QDBusArgument &argument, Filter &filter)
{
    argument.beginStructure();
    argument >> filter.name >> filter.patterns;
    argument.endStructure();
    return argument;
}

} // namespace panelfilter

Q_DECLARE_METATYPE(panelfilter::Pattern)
Q_DECLARE_METATYPE(panelfilter::Filter)

QVariant panelfilter::of(Workspace::FileType type)
{
    qDBusRegisterMetaType<Pattern>();
    qDBusRegisterMetaType<QList<Pattern>>();
    qDBusRegisterMetaType<Filter>();
    qDBusRegisterMetaType<QList<Filter>>();
    QList<Filter> filters;
    switch (type) {
    case Workspace::FileType::any:
        break;
    case Workspace::FileType::commaSeparatedText:
        filters.append(
            {QStringLiteral("CSV"), {{0, QStringLiteral("*.csv")}, {1, QStringLiteral("text/csv")}}});
        break;
    }
    return QVariant::fromValue(filters);
}
