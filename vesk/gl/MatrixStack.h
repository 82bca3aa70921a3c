#pragma once

#include <QTransform>

#include <vector>

namespace VESK::OpenGL {

/// Where the next primitives go: offset, scale and rotation of the plane, saved and restored in pairs. Applied when geometry is made,
/// so that line widths and texts stay in pixels.
class MatrixStack {
public:
    void MatrixPush() { mSaved.push_back(mTop); }
    /// Without a push before it, back to the identity.
    void MatrixPop();
    void MatrixTranslate(double x, double y) { mTop = QTransform::fromTranslate(x, y) * mTop; }
    void MatrixScale(double x, double y) { mTop = QTransform::fromScale(x, y) * mTop; }
    void MatrixRotate(double degrees) { mTop = QTransform().rotate(degrees) * mTop; }
    void MatrixSet(const QTransform& matrix) { mTop = matrix; }
    void clear();

    [[nodiscard]] const QTransform& top() const { return mTop; }
    [[nodiscard]] QPointF map(const QPointF& point) const
    {
        return {mTop.m11() * point.x() + mTop.m21() * point.y() + mTop.dx(), mTop.m12() * point.x() + mTop.m22() * point.y() + mTop.dy()};
    }

private:
    QTransform mTop;
    std::vector<QTransform> mSaved;
};

} // namespace VESK::OpenGL
