#pragma once

#include "Option.h"

#include <QMap>
#include <QString>
#include <QStringList>

#include <vector>

/// A command line taken apart: options anywhere among the rest, as "--hidden", "--layout linux" or
/// "--layout=linux". What follows a lone "--" is no option, whatever it begins with; nor is a single dash, so
/// that negative numbers need no quoting. Every read throws UsageError where the text is not what is asked for.
class Arguments
{
public:
    /// `words` without the program's name, names in any bytes; `known` are the options of all verbs.
    Arguments(const std::vector<QByteArray> &words, const std::vector<Option> &known);

    /// The verb; empty when there is none.
    const QString &verb() const { return verb_; }

    /// What stands behind the verb and is no option.
    const QStringList &operands() const { return operands_; }

    /// Requires from `least` to `most` operands.
    void requireOperands(qsizetype least, qsizetype most) const;

    /// Requires that no other options are given than these.
    void requireOptions(const std::vector<Option> &allowed) const;

    bool has(const QString &option) const { return options_.contains(option); }
    QString value(const QString &option) const { return options_.value(option); }

    qint64 integer(qsizetype index) const;
    qint64 integer(const QString &option) const; ///< of an option that is given
    double number(qsizetype index) const;        ///< finite

    /// The operand as an absolute path: a relative one begins in the current folder.
    QString path(qsizetype index) const;

    /// A path as `path` gives it, of any text.
    static QString absolutePath(const QString &path);

private:
    void addOption(const QString &word, std::vector<QByteArray>::const_iterator &next,
                   std::vector<QByteArray>::const_iterator end, const std::vector<Option> &known);
    void addOperand(const QString &word);

    QString verb_;
    QStringList operands_;
    QMap<QString, QString> options_; // a flag has an empty text
};
