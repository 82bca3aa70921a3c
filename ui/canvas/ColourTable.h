#pragma once

#include <QColor>
#include <QString>

#include <array>
#include <map>
#include <vector>

namespace ZARN {

/// The named colours of resources/styles/palette.txt for each medium, and which is read on which: the one source for widgets, canvases and
/// reports. A small value.
class ColourTable {
public:
    enum EMedium { eLight, eDark, ePaper };
    struct Use {
        QString colour;
        QString ground;
        double least = 0.0; ///< ratio of contrast
    };

    /// Those that come with the program.
    [[nodiscard]] static const ColourTable& builtIn();

    /// Other colours for some of the names, in the file's form. @return what is wrong with the text; nothing is changed then.
    [[nodiscard]] QString change(const QString& text);
    /// Invalid where a medium has none of that name.
    [[nodiscard]] QColor colour(const QString& name, EMedium medium) const;
    /// What style sheets call the colours, and how they write them.
    [[nodiscard]] std::map<QString, QString> variables(EMedium medium) const;
    [[nodiscard]] const std::vector<Use>& uses() const { return mUses; }

private:
    using Row = std::array<QColor, 3>;

    /// @return what is wrong with the line.
    QString readLine(const QString& line, bool mayAdd);
    QString readColours(Row& row, const QStringList& words) const;
    QString readUses(const QStringList& words);
    [[nodiscard]] QString read(const QString& text, bool mayAdd);
    [[nodiscard]] QString problemOfUses() const;

    std::map<QString, Row> mRows;
    std::vector<Use> mUses;
};

} // namespace ZARN
