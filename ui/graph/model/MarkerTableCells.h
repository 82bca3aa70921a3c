#pragma once

#include "ui/graph/model/MarkerValues.h"
#include "ui/graph/model/VisibleRows.h"

namespace ZARN {

class GraphModel;

/// The cells of the marker's table: a row for each trace, and for what it is compared with. Columns that have no room side by side follow
/// below as further parts of the table, each with all rows and headings of its own: nothing is hidden.
class MarkerTableCells {
public:
    struct Row {
        int index = -1; ///< of the trace
        bool isGhost = false;
        QStringList cells;
    };
    struct Column {
        qsizetype cell = 0;
        int width = 0; ///< characters
    };
    /// A line below the headings of the first part.
    struct Line {
        std::size_t part = 0;
        int row = 0; ///< -1: the headings of the part
    };
    enum EColumn : qsizetype { eName, eFrom, eTo, eDifference, eMinimum, eMaximum, eMean, eIntegral, eUnit };

    MarkerTableCells() = default;
    /// @param room characters that a line has
    MarkerTableCells(const GraphModel& model, int room);

    [[nodiscard]] const QStringList& headings() const { return mHeadings; }
    [[nodiscard]] const std::vector<Row>& rows() const { return mRows; }
    [[nodiscard]] const std::vector<Line>& lines() const { return mLines; }
    [[nodiscard]] const std::vector<Column>& columns(std::size_t part) const { return mParts[part]; }
    void show(const VisibleRows& lines) { mVisible = lines; }
    [[nodiscard]] const VisibleRows& visible() const { return mVisible; }
    /// The first line of a trace; the first of all for one that has none.
    [[nodiscard]] int lineOf(int index) const;

private:
    void fill(const GraphModel& model);
    [[nodiscard]] int widthOf(qsizetype cell) const;
    [[nodiscard]] static int widthOf(const std::vector<Column>& group);
    void divide(int room);

    QStringList mHeadings;
    std::vector<Row> mRows;
    std::vector<std::vector<Column>> mParts;
    std::vector<Line> mLines;
    VisibleRows mVisible;
};

} // namespace ZARN
