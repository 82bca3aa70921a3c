#include "ui/map/model/PathGeometry.h"

#include "openstreet/core/Clip.h"

#include <QRectF>

#include <algorithm>
#include <cmath>

namespace ZARN {

namespace {

constexpr double kTolerance = 0.3; // pixels by which what is drawn may lie beside the path
constexpr double kCoarsest = 50.0;
constexpr double kLeastTint = 10.0; // times the tolerance: a shorter way has no colour of its own
constexpr double kArrowGap = 110.0; // pixels of the way from one mark of the direction to the next
constexpr double kArrowRoom = 4.0;  // pixels of straight way that a mark needs
constexpr std::size_t kMostArrows = 400;

double cross(const QPointF& a, const QPointF& b)
{
    return a.x() * b.y() - a.y() * b.x();
}

/// Points that can be left out because the line between their neighbours passes close by them. Looks at each point once: from the last
/// point kept, those that come after open a cone which the line has to stay in.
class Simplifier {
public:
    explicit Simplifier(double tolerance) : mTolerance(tolerance) {}

    void start(const QPointF& point)
    {
        mFrom = mLast = point;
        mFarthest = 0.0;
        mIsOpen = true;
    }
    /// @return whether the point before this one has to be kept; next() then goes on from there
    [[nodiscard]] bool isEnd(const QPointF& point)
    {
        const QPointF step = point - mFrom;
        const double distance = std::hypot(step.x(), step.y());
        if (distance < mFarthest - mTolerance) // turns back
            return true;
        const bool isNear = distance <= mTolerance;
        const QPointF along = isNear ? QPointF() : step / distance;
        if (!isNear && !mIsOpen && (cross(mRight, along) < 0.0 || cross(along, mLeft) < 0.0))
            return true;
        mFarthest = std::max(mFarthest, distance);
        mLast = point;
        if (!isNear)
            narrow(along, mTolerance / distance);
        return false;
    }
    /// Keeps the point before. @return it
    const QPointF& keep()
    {
        start(mLast);
        return mFrom;
    }

private:
    void narrow(const QPointF& along, double sine)
    {
        const double cosine = std::sqrt(1.0 - sine * sine);
        const QPointF left(along.x() * cosine - along.y() * sine, along.x() * sine + along.y() * cosine);
        const QPointF right(along.x() * cosine + along.y() * sine, along.y() * cosine - along.x() * sine);
        if (mIsOpen || cross(left, mLeft) > 0.0)
            mLeft = left;
        if (mIsOpen || cross(mRight, right) > 0.0)
            mRight = right;
        mIsOpen = false;
    }

    double mTolerance;
    QPointF mFrom;
    QPointF mLast;
    QPointF mLeft;
    QPointF mRight;
    double mFarthest = 0.0;
    bool mIsOpen = true; // no point has left the first one's surroundings yet
};

/// Makes strips out of points that are added in order.
class StripBuilder {
public:
    StripBuilder(std::vector<PathGeometry::Strip>& strips, const PathTint* pTint, const QRectF& box, double tolerance)
        : mStrips(strips), mpTint(pTint), mBox(box), mLeastTint(kLeastTint * tolerance), mSimplifier(tolerance)
    {
    }

    /// @param point its number, for its colour  @param isGap whether nothing was received on the way there
    void add(std::size_t point, const QPointF& here, bool isGap)
    {
        const int step = mpTint ? mpTint->steps[point] : 0;
        if (mIsFirst)
            begin(here, step);
        const bool isOtherKind = isGap != mIsGap;
        if (isOtherKind || needsColour(here, step)) {
            keep(mSimplifier.keep(), mLastStep);
            mIsOpen = mIsOpen && !isOtherKind && !isHard();
            mIsGap = isGap;
            mStep = isHard() ? step : mLastStep;
            (void)mSimplifier.isEnd(here);
        } else if (mSimplifier.isEnd(here)) {
            keep(mSimplifier.keep(), mLastStep);
            (void)mSimplifier.isEnd(here); // from the point just kept, the next one is never one too far
        }
        mLast = here;
        mLastStep = step;
    }
    void finish()
    {
        if (!mIsFirst)
            keep(mLast, mLastStep);
    }

private:
    [[nodiscard]] bool isHard() const { return mpTint && !mpTint->isScale; }
    [[nodiscard]] bool needsColour(const QPointF& here, int step) const
    {
        if (!mpTint || step == mStep)
            return false;
        const QPointF way = here - mBefore;
        return QPointF::dotProduct(way, way) >= mLeastTint * mLeastTint;
    }
    void begin(const QPointF& here, int step)
    {
        mSimplifier.start(here);
        mBefore = mLast = here;
        mStep = mLastStep = step;
        mIsFirst = false;
    }
    void keep(const QPointF& here, int step)
    {
        if (here == mBefore)
            return;
        addStretch(mBefore, here, isHard() ? mStep : step);
        mBefore = here;
        if (!isHard())
            mStep = step;
    }
    void addStretch(QPointF from, QPointF to, int step)
    {
        const QPointF begin = from, end = to;
        if (!OpenStreet::clipStretch(from, to, mBox)) {
            mIsOpen = false;
            return;
        }
        if (!mIsOpen || from != begin) {
            mStrips.push_back({{from}, {}, mIsGap});
            addColour(mStep);
        }
        mStrips.back().points.push_back(to);
        addColour(step);
        mIsOpen = to == end;
    }
    void addColour(int step)
    {
        if (mpTint)
            mStrips.back().colours.push_back(mpTint->colours[static_cast<std::size_t>(step)]);
    }

    std::vector<PathGeometry::Strip>& mStrips;
    const PathTint* mpTint;
    const QRectF mBox;
    const double mLeastTint;
    Simplifier mSimplifier;
    QPointF mBefore; // the last point kept
    QPointF mLast;   // the last point added
    int mStep = 0;   // of the colours, at the last point kept
    int mLastStep = 0;
    bool mIsFirst = true;
    bool mIsOpen = false; // the last strip goes on
    bool mIsGap = false;
};

} // namespace

std::size_t PathGeometry::vertexCount() const
{
    std::size_t count = 0;
    for (const Strip& strip : mStrips)
        count += strip.points.size();
    return count;
}

void PathGeometry::update(const MapPath& path, const OpenStreet::Camera& camera, const Part& part)
{
    const OpenStreet::WindowPoint start = windowOrigin(camera, path.origin());
    mOffset = {start.x, start.y};
    const OpenStreet::WindowPoint ofX = camera.worldToWindowVector({camera.metresPerPixel(), 0.0});
    const OpenStreet::WindowPoint ofY = camera.worldToWindowVector({0.0, camera.metresPerPixel()});
    const auto rounded = [](double value) { return std::round(value * 1e9) / 1e9; };
    // The scale of a window that moves along a meridian changes by a hair; that is no reason to begin anew.
    const bool isSameScale = std::fabs(camera.metresPerPixel() / mKey.metresPerPixel - 1.0) < 1e-9;
    const Key key{path.generation(), camera.width(), camera.height(), isSameScale ? mKey.metresPerPixel : camera.metresPerPixel(),
                  rounded(ofX.x),    rounded(ofX.y), rounded(ofY.y), part};
    const QPointF moved = mOffset - mBuiltOffset;
    if (key == mKey && std::fabs(moved.x()) <= camera.width() && std::fabs(moved.y()) <= camera.height())
        return;
    mKey = key;
    mBuiltOffset = mOffset;
    ++mBuilds;
    double tolerance = kTolerance;
    build(path, camera, tolerance);
    while (vertexCount() > kMaxVertices && tolerance < kCoarsest) {
        tolerance *= 2.0;
        build(path, camera, tolerance);
    }
    placeArrows();
}

void PathGeometry::build(const MapPath& path, const OpenStreet::Camera& camera, double tolerance)
{
    mStrips.clear();
    // A window's size around the window, so that the next moves find the strips long enough.
    const QRectF box(-mOffset.x() - camera.width(), -mOffset.y() - camera.height(), 3.0 * camera.width(), 3.0 * camera.height());
    const std::vector<OpenStreet::WorldPoint>& world = path.world();
    const Part& part = mKey.part;
    const bool isTinted = part.pTint && part.pTint->steps.size() == world.size();
    StripBuilder strips(mStrips, isTinted ? part.pTint : nullptr, box, tolerance);
    for (std::size_t i = part.first; i < std::min(part.last, world.size()); ++i) {
        const OpenStreet::WindowPoint at = camera.worldToWindowVector(world[i]);
        strips.add(i, QPointF(at.x, at.y), i > part.first && path.isGap(i));
    }
    strips.finish();
}

void PathGeometry::placeArrows()
{
    mArrows.clear();
    double since = 0.5 * kArrowGap;
    for (const Strip& strip : mStrips) {
        for (std::size_t i = 1; i < strip.points.size(); ++i) {
            const QPointF way = strip.points[i] - strip.points[i - 1];
            const double length = std::hypot(way.x(), way.y());
            double along = kArrowGap - since; // to the next mark
            for (; along <= length && mArrows.size() < kMostArrows; along += kArrowGap) {
                if (length >= kArrowRoom && !strip.isDashed)
                    mArrows.push_back({strip.points[i - 1] + way * (along / length), way / length});
            }
            since = length - (along - kArrowGap);
        }
    }
}

} // namespace ZARN
