#include "Arguments.h"

#include "base/Paths.h"
#include "base/Text.h"
#include "UsageError.h"

#include <algorithm>
#include <cmath>
#include <filesystem>

namespace {

const Option *find(const std::vector<Option> &options, const QString &name)
{
    const auto found = std::find_if(options.begin(), options.end(),
                                    [&name](const Option &option) { return option.name == name; });
    return found == options.end() ? nullptr : &*found;
}

qint64 parsedInteger(const QString &word)
{
    const auto value = text::parseInteger(paths::toBytes(word));
    if (!value)
        throw UsageError{QStringLiteral("\"%1\" is no whole number of 64 bits").arg(word)};
    return *value;
}

} // namespace

Arguments::Arguments(const std::vector<QByteArray> &words, const std::vector<Option> &known)
{
    bool optionsEnded = false;
    for (auto next = words.begin(); next != words.end();) {
        const QString word = paths::fromBytes(*next++);
        if (!optionsEnded && word == u"--")
            optionsEnded = true;
        else if (!optionsEnded && word.startsWith(u"--"))
            addOption(word.sliced(2), next, words.end(), known);
        else
            addOperand(word);
    }
}

void Arguments::addOption(const QString &word, std::vector<QByteArray>::const_iterator &next,
                          std::vector<QByteArray>::const_iterator end, const std::vector<Option> &known)
{
    const qsizetype sign = word.indexOf(u'=');
    const QString name = word.first(sign < 0 ? word.size() : sign);
    const Option *option = find(known, name);
    if (!option)
        throw UsageError{QStringLiteral("there is no option --") + name};
    if (has(name))
        throw UsageError{QStringLiteral("--%1 is given twice").arg(name)};
    QString value;
    if (!option->takesValue && sign >= 0)
        throw UsageError{QStringLiteral("--%1 takes no value").arg(name)};
    if (option->takesValue) {
        if (sign < 0 && next == end)
            throw UsageError{QStringLiteral("--%1 needs a value").arg(name)};
        value = sign < 0 ? paths::fromBytes(*next++) : word.sliced(sign + 1);
    }
    options_.insert(name, value);
}

void Arguments::addOperand(const QString &word)
{
    if (verb_.isEmpty())
        verb_ = word;
    else
        operands_.append(word);
}

void Arguments::requireOperands(qsizetype least, qsizetype most) const
{
    if (operands_.size() < least)
        throw UsageError{QStringLiteral("too few arguments")};
    if (operands_.size() > most)
        throw UsageError{QStringLiteral("too many arguments")};
}

void Arguments::requireOptions(const std::vector<Option> &allowed) const
{
    for (const QString &name : options_.keys()) {
        if (!find(allowed, name))
            throw UsageError{QStringLiteral("%1 has no option --%2").arg(verb_, name)};
    }
}

qint64 Arguments::integer(qsizetype index) const
{
    return parsedInteger(operands_.at(index));
}

qint64 Arguments::integer(const QString &option) const
{
    return parsedInteger(value(option));
}

double Arguments::number(qsizetype index) const
{
    bool valid = false;
    const double value = operands_.at(index).toDouble(&valid);
    if (!valid || !std::isfinite(value))
        throw UsageError{QStringLiteral("\"%1\" is no number").arg(operands_.at(index))};
    return value;
}

QString Arguments::path(qsizetype index) const
{
    return absolutePath(operands_.at(index));
}

QString Arguments::absolutePath(const QString &path)
{
    if (path.isEmpty())
        throw UsageError{QStringLiteral("an empty text is no path")};
    if (path.startsWith(u'/'))
        return path;
    const std::string current = std::filesystem::current_path().string();
    return paths::join(paths::fromBytes(current), path);
}
