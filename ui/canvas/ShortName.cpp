#include "ui/canvas/ShortName.h"

#include <QStringList>

#include <algorithm>

namespace ZARN {

namespace {

constexpr qsizetype kShortest = 2; // characters of a word that was cut
constexpr qsizetype kMost = 100;   // characters that are looked at: a profile may have names of any length

/// What may still be taken from a word.
qsizetype spare(const QString& word)
{
    return word.startsWith('[') || word.endsWith(']') ? 0 : word.size() - kShortest;
}

} // namespace

QString shortName(const QString& name, const std::function<bool(const QString&)>& fits)
{
    if (fits(name))
        return name;
    QStringList words = name.left(kMost).split(' ');
    while (!fits(words.join(' '))) {
        QString& longest = *std::ranges::max_element(words, {}, spare);
        if (spare(longest) <= 0)
            return {};
        longest = longest.chopped(longest.endsWith('.') ? 2 : 1) + '.';
    }
    return words.join(' ');
}

QString shortName(const QString& name, int length)
{
    const QString text = shortName(name, [length](const QString& shorter) { return shorter.size() <= length; });
    return text.isEmpty() ? cutText(name, length) : text;
}

QString cutText(const QString& text, int length)
{
    return text.size() <= length ? text : text.left(std::max(0, length - 1)) + QChar(0x2026);
}

} // namespace ZARN
