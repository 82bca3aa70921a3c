#pragma once

#include <QCoreApplication>
#include <QString>

#include <optional>
#include <vector>

namespace ZARN {

class CardContainer;
struct RecordCycle;
struct RecordInfo;

/// An entry of the card browser's trees.
struct CardNode {
    QString text;
    QString toolTip;
    std::optional<unsigned int> cycle; ///< number of the cycle, for cycles and flights
    int flight = -1;                   ///< index of the flight within the cycle, -1 for the whole cycle
    QString path;                      ///< of a record file
    std::vector<CardNode> children;

    /// Whether choosing the entry loads something.
    [[nodiscard]] bool isSelectable() const { return cycle.has_value() || !path.isEmpty(); }
};

/// Makes the entries of the card browser out of what the container holds. Dates and times of day are shown as they were recorded,
/// times on the unit's own clock as a time since its power-up.
class CardTree {
    Q_DECLARE_TR_FUNCTIONS(ZARN::CardTree)

public:
    /// The dates, below them the cycles that started on each; without flights.
    [[nodiscard]] static std::vector<CardNode> cycles(const CardContainer& container);
    /// The flights of one cycle.
    [[nodiscard]] static std::vector<CardNode> flights(unsigned int number, const RecordCycle& cycle);
    /// The dates, below them the record files of each; without header lines, of which a card has far more than anybody looks at.
    [[nodiscard]] static std::vector<CardNode> rawData(const CardContainer& container);
    [[nodiscard]] static std::vector<CardNode> headerLines(const RecordInfo& info);
    /// A text of a card for one line: damaged ones hold any bytes.
    [[nodiscard]] static QString printable(const std::string& text);

private:
    static CardNode cycleNode(unsigned int number, const RecordCycle& cycle);
    static CardNode fileNode(const RecordInfo& info);
    static QString dateText(const QDate& date);
};

} // namespace ZARN
