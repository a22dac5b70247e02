#include "common/KeySigns.h"

#include <algorithm>
#include <array>

namespace {

struct Modifier
{
    QChar sign;
    const char *word = nullptr;
};

// In the order in which a chord names them: Ctrl first, Shift last.
constexpr std::array modifiers = {
    Modifier{u'⌘', "Ctrl"},
    Modifier{u'⌃', "Meta"},
    Modifier{u'⌥', "Alt"},
    Modifier{u'⇧', "Shift"},
};

bool isModifier(QChar character)
{
    return std::any_of(modifiers.begin(), modifiers.end(),
                       [character](const Modifier &modifier) { return modifier.sign == character; });
}

/// The words of a run of modifier signs, each with its "+".
QString chordWords(QStringView run)
{
    QString words;
    for (const Modifier &modifier : modifiers) {
        if (run.contains(modifier.sign))
            words += QLatin1StringView(modifier.word) + u'+';
    }
    return words;
}

} // namespace

namespace keysigns {

QString text(const QString &text, KeyStyle style)
{
    if (style == KeyStyle::signs)
        return text;
    QString words;
    for (qsizetype i = 0; i < text.size();) {
        qsizetype end = i;
        while (end < text.size() && isModifier(text[end]))
            ++end;
        if (end > i) {
            words += chordWords(QStringView(text).sliced(i, end - i));
            if (end < text.size() && text[end] == u'+') // "⌘+click" has its plus already
                ++end;
        } else {
            words += text[i] == u'⌫' ? QStringLiteral("Backspace") : QString(text[i]);
            end = i + 1;
        }
        i = end;
    }
    return words;
}

QString sequence(const QString &signs)
{
    return text(signs, KeyStyle::words);
}

} // namespace keysigns
