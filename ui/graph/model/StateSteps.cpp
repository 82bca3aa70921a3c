#include "ui/graph/model/StateSteps.h"

#include "ui/canvas/CanvasFont.h"
#include "ui/canvas/ColourContrast.h"

#include <algorithm>
#include <cmath>

namespace ZARN {

namespace {

constexpr double kGroundAlpha = 0.28;
constexpr double kLeastGround = 2.0; // pixels of a run from which its ground is seen

} // namespace

void makeSteps(std::vector<QPointF>& vertices)
{
    std::vector<QPointF> steps;
    steps.reserve(vertices.size());
    for (std::size_t i = 0; i < vertices.size(); ++i) {
        const QPointF& vertex = vertices[i];
        const bool isFollowed = i + 1 < vertices.size() && !std::isnan(vertices[i + 1].y());
        if (steps.empty() || std::isnan(vertex.y()) || std::isnan(steps.back().y())) {
            steps.push_back(vertex);
        } else if (vertex.y() != steps.back().y()) {
            steps.emplace_back(vertex.x(), steps.back().y());
            steps.push_back(vertex);
        } else if (!isFollowed) {
            steps.push_back(vertex);
        }
    }
    vertices = std::move(steps);
}

std::vector<StateSteps::Run> StateSteps::runs(int index, std::span<const QPointF> vertices) const
{
    const QRectF area = mLayout.area(index);
    const ValueSpan span = mModel.valueSpan(index);
    std::vector<Run> runs;
    for (std::size_t i = 1; i < vertices.size(); ++i) {
        const QPointF &from = vertices[i - 1], &to = vertices[i];
        if (from.y() != to.y())
            continue;
        const double left = std::max(area.left(), area.left() + from.x() * mLayout.pixelsPerSecond());
        const double right = std::min(area.right(), area.left() + to.x() * mLayout.pixelsPerSecond());
        const double y = GraphLayout::yOf(from.y(), area, span);
        if (right - left >= kLeastGround && y < area.bottom() && y >= area.top())
            runs.emplace_back(QRectF(QPointF(left, y), QPointF(right, area.bottom())), from.y());
    }
    return runs;
}

void StateSteps::drawGrounds(Canvas& canvas, int index, const std::vector<Run>& runs) const
{
    const GraphParameter& trace = *mModel.traces().at(index);
    const double none = trace.pStates->range().isEmpty() ? 0.0 : trace.pStates->range().least;
    for (const auto& [run, value] : runs) {
        if (value > none)
            canvas.fillRect(run, withAlpha(trace.drawnColour, kGroundAlpha));
    }
}

void StateSteps::drawNames(Canvas& canvas, int index, const std::vector<Run>& runs) const
{
    canvas.push();
    canvas.clip(mLayout.area(index));
    for (const auto& [run, value] : runs)
        drawName(canvas, mModel.traces().at(index)->pStates->text(value), run);
    canvas.pop();
}

void StateSteps::drawName(Canvas& canvas, const QString& name, const QRectF& run) const
{
    const double height = mLayout.line() - 2;
    const QRectF area = mLayout.area(mLayout.stripAt(mModel, run.bottom() - 1));
    if (run.width() < canvasTextSize(name, mLayout.textSize(), false).width() + 6 || area.height() < height)
        return;
    double top = std::clamp(area.center().y() - height / 2, area.top(), area.bottom() - height);
    if (run.top() > top - 1 && run.top() < top + height) // clear of the line
        top = run.top() - height - 1 >= area.top() ? run.top() - height - 1 : std::min(run.top() + 2, area.bottom() - height);
    canvas.text({run.center().x(), top}, name, {mLayout.textSize(), mLabels.contrast(), false, Qt::AlignHCenter | Qt::AlignTop, false});
}

} // namespace ZARN
