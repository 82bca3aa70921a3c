#pragma once

#include <QDomDocument>
#include <QString>

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace ZARN {

class Console;

/// Which parameters are shown and how the graph shows them, under a name. A plain value; what it was read from may have been anything,
/// but its numbers are finite and its sizes bounded.
struct DisplayLayout {
    /// The values at the bottom and at the top, in a unit.
    struct Scale {
        double lower = 0.0;
        double upper = 1.0;
        QString unit; ///< where another one is in force the scale is not
        bool operator==(const Scale&) const = default;
    };
    struct Parameter {
        std::string name;    ///< as ticks are kept: of whatever device
        double height = 1.0; ///< of its strip, in those of others
        QString colour;      ///< #rrggbb; empty for that which the trace has without the layout
        std::optional<Scale> scale = {}; ///< what the user zoomed to; without it the values have the say
        bool operator==(const Parameter&) const = default;
    };
    static constexpr double kLeastHeight = 0.2, kGreatestHeight = 5.0;
    static constexpr std::size_t kMostLayouts = 200, kMostParameters = 300;
    static constexpr int kLongestName = 60;

    QString name;
    QString title;                     ///< in the user's language, where it is another than the name
    std::vector<Parameter> parameters; ///< from top to bottom, each name once
    bool isSplit = true;               ///< a strip for each trace, not one area for all
    /// The values at the bottom and at the top of all traces, in display units; each has its own without.
    std::optional<std::pair<double, double>> scale;
    bool isShared = false; ///< the traces of one unit have one scale
    bool operator==(const DisplayLayout&) const = default;

    [[nodiscard]] const QString& text() const { return title.isEmpty() ? name : title; }
    /// A text as names are: without blanks at the ends and control characters, not too long; empty for one that cannot be a name.
    [[nodiscard]] static QString tidyName(const QString& text);
};

/// The layouts of a document, in its order: those with a name, each name once. What is no layout is passed over.
/// @param language for the titles, "de"; other ones have none  @return none where the document holds something else
[[nodiscard]] std::optional<std::vector<DisplayLayout>> readLayouts(const QDomDocument& document, const QString& language);
/// A document of those layouts; titles are not kept.
[[nodiscard]] QDomDocument layoutDocument(const std::vector<DisplayLayout>& layouts, const Console& console);

} // namespace ZARN
