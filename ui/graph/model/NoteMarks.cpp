#include "ui/graph/model/NoteMarks.h"

#include "ui/canvas/ShortName.h"

#include <array>
#include <cmath>

namespace ZARN {

namespace {

constexpr double kFlag = 9.0; // pixels
constexpr int kLeastText = 4; // characters
constexpr int kMostText = 40;

} // namespace

void NoteMarks::draw(Canvas& canvas) const
{
    const QRectF& plot = mLayout.plot();
    std::vector<std::pair<double, const CycleNote*>> shown;
    for (const CycleNote& note : mModel.settings().notes) {
        const double x = std::floor(mLayout.xOf(note.time));
        if (x >= plot.left() && x <= plot.right())
            shown.emplace_back(x, &note);
    }
    const QColor colour = mLabels.contrast();
    for (std::size_t i = 0; i < shown.size(); ++i) {
        const auto& [x, pNote] = shown[i];
        const std::array line{QPointF(x, plot.top()), QPointF(x, plot.bottom() - 1)};
        canvas.lines(line, {mLabels.contrast(0.5), 1.0, false, 2.0});
        const double y = plot.bottom() - mLayout.line() - 2 * kFlag;
        canvas.polygon(std::array{QPointF(x, y), QPointF(x + kFlag, y + kFlag / 2), QPointF(x, y + kFlag)}, colour);
        drawText(canvas, *pNote, x, i + 1 < shown.size() ? shown[i + 1].first : plot.right());
    }
}

/// Up to where the next note begins.
void NoteMarks::drawText(Canvas& canvas, const CycleNote& note, double x, double end) const
{
    const int room = std::min(kMostText, static_cast<int>((end - x - kFlag) / mLayout.character()) - 1);
    if (room >= kLeastText)
        mLabels.draw(canvas, {QPointF(x + 2, mLayout.plot().bottom() - 2), cutText(note.text.simplified(), room)},
                     Qt::AlignLeft | Qt::AlignBottom);
}

} // namespace ZARN
