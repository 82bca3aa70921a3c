#include "ui/graph/model/MarkerTableCells.h"

#include "ui/graph/model/GraphModel.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace ZARN {

namespace {

constexpr int kLongestLabel = 32; // characters

} // namespace

MarkerTableCells::MarkerTableCells(const GraphModel& model, int room)
{
    fill(model);
    divide(room);
    for (std::size_t part = 0; part < mParts.size(); ++part) {
        for (int row = part == 0 ? 0 : -1; row < static_cast<int>(mRows.size()); ++row)
            mLines.push_back({part, row});
    }
}

void MarkerTableCells::fill(const GraphModel& model)
{
    const GraphMarker& marker = model.marker();
    mHeadings = QStringList{QStringLiteral("dt = %1 s").arg(std::abs(marker.end - marker.start), 0, 'f', 3)} + MarkerValues::headers() +
                QStringList{QString()};
    for (const MarkerValues& value : markerValues(model.traces(), marker, &model.scenery()))
        mRows.push_back({value.index, !value.ghost.isEmpty(),
                         QStringList{value.label()} + value.texts() +
                             QStringList{QLatin1Char('[') + integralUnit(value.pParameter->unit) + QLatin1Char(']')}});
}

int MarkerTableCells::widthOf(qsizetype cell) const
{
    qsizetype longest = mHeadings[cell].size();
    for (const Row& row : mRows)
        longest = std::max(longest, cell == eName ? std::min<qsizetype>(row.cells[cell].size(), kLongestLabel) : row.cells[cell].size());
    return static_cast<int>(longest) + (cell == eUnit ? 1 : 2);
}

int MarkerTableCells::widthOf(const std::vector<Column>& group)
{
    return std::accumulate(group.begin(), group.end(), 0, [](int sum, const Column& column) { return sum + column.width; });
}

/// A number and its unit stay together.
void MarkerTableCells::divide(int room)
{
    std::vector<std::vector<Column>> groups;
    int numbers = 0;
    for (qsizetype cell = eFrom; cell <= eIntegral; ++cell) {
        groups.push_back({{cell, widthOf(cell)}});
        if (cell == eIntegral)
            groups.back().push_back({eUnit, widthOf(eUnit)});
        numbers += widthOf(groups.back());
    }
    // Where not all have room the names give way before the numbers do, but not what stands above the names.
    const int heading = static_cast<int>(mHeadings[eName].size()) + 2;
    const int name = widthOf(eName), least = std::min(name, std::max(room / 3, heading));
    const int label = std::clamp(room - numbers, least, name);
    int left = 0;
    for (const std::vector<Column>& group : groups) {
        const int width = widthOf(group);
        if (mParts.empty() || left < width) {
            mParts.push_back({{eName, label}});
            left = std::max(room - label, width);
        }
        mParts.back().insert(mParts.back().end(), group.begin(), group.end());
        left -= width;
    }
}

int MarkerTableCells::lineOf(int index) const
{
    const auto found = std::ranges::find_if(
        mLines, [&](const Line& line) { return line.row >= 0 && mRows[static_cast<std::size_t>(line.row)].index == index; });
    return found == mLines.end() ? 0 : static_cast<int>(found - mLines.begin());
}

} // namespace ZARN
