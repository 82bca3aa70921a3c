#include "ui/canvas/FontAdvances.h"

#include <QtEndian>

#include <algorithm>

namespace ZARN {

namespace {

constexpr double kOther = 0.65;
constexpr quint16 kSegments = 4; // the form of a character map that every font has
constexpr char16_t kNone = 0xffff;

quint16 word(const QByteArray& bytes, qsizetype at)
{
    return at >= 0 && at + 2 <= bytes.size() ? qFromBigEndian<quint16>(bytes.constData() + at) : 0;
}

qsizetype number(const QByteArray& bytes, qsizetype at)
{
    return (static_cast<qsizetype>(word(bytes, at)) << 16) | word(bytes, at + 2);
}

QByteArray table(const QByteArray& file, const char* name)
{
    for (qsizetype entry = 12; entry < 12 + 16 * word(file, 4); entry += 16) {
        if (file.mid(entry, 4) == name)
            return file.mid(number(file, entry + 8), number(file, entry + 12));
    }
    return {};
}

QByteArray characterMap(const QByteArray& maps)
{
    for (qsizetype entry = 4; entry < 4 + 8 * word(maps, 2); entry += 8) {
        if (const qsizetype at = number(maps, entry + 4); word(maps, at) == kSegments)
            return maps.mid(at);
    }
    return {};
}

} // namespace

FontAdvances::FontAdvances(const QByteArray& file) : mAdvances(kNone, 0.0F)
{
    const QByteArray map = characterMap(table(file, "cmap"));
    const QByteArray widths = table(file, "hmtx").left(4 * word(table(file, "hhea"), 34));
    const double unit = std::max<double>(word(table(file, "head"), 18), 1.0);
    const qsizetype runs = word(map, 6) / 2;
    for (qsizetype run = 0; run < runs; ++run)
        readRun(map, run, runs, widths, unit);
}

/// A run of characters whose glyphs follow each other, or stand in a list.
void FontAdvances::readRun(const QByteArray& map, qsizetype run, qsizetype runs, const QByteArray& widths, double unit)
{
    const qsizetype ends = 14, starts = ends + 2 * runs + 2, deltas = starts + 2 * runs, offsets = deltas + 2 * runs;
    const quint16 first = word(map, starts + 2 * run), last = std::min<quint16>(word(map, ends + 2 * run), kNone - 1);
    const quint16 delta = word(map, deltas + 2 * run), offset = word(map, offsets + 2 * run);
    for (qsizetype character = first; character <= last; ++character) {
        const quint16 listed =
            offset == 0 ? static_cast<quint16>(character) : word(map, offsets + 2 * run + offset + 2 * (character - first));
        const auto glyph = static_cast<quint16>(listed + delta);
        if (listed != 0 && glyph != 0) // the last width is that of all later glyphs
            mAdvances[static_cast<std::size_t>(character)] =
                static_cast<float>(word(widths, std::min<qsizetype>(4 * glyph, widths.size() - 4)) / unit);
    }
}

double FontAdvances::of(char16_t character) const
{
    const double advance = character < kNone ? static_cast<double>(mAdvances[character]) : 0.0;
    return advance > 0 ? advance : kOther;
}

} // namespace ZARN
