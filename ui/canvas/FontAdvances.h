#pragma once

#include <QByteArray>

#include <vector>

namespace ZARN {

/// How wide each character of a font is, read from the font's own tables: the same on every machine, without a display. For the fonts that come
/// with the program; of a file that is none it knows nothing.
class FontAdvances {
public:
    explicit FontAdvances(const QByteArray& file);

    /// In em. What the font lacks is as wide as a digit, as others that stand in for it are about.
    [[nodiscard]] double of(char16_t character) const;

private:
    void readRun(const QByteArray& map, qsizetype run, qsizetype runs, const QByteArray& widths, double unit);

    std::vector<float> mAdvances; ///< by character; 0 for what the font lacks
};

} // namespace ZARN
