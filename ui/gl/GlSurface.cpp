#include "ui/gl/GlSurface.h"

#include <QTimer>
#include <QWidget>

namespace ZARN {

bool GlSurface::start()
{
    mpCanvas = std::make_unique<GlCanvas>(mCreateDevice ? mCreateDevice() : nullptr);
    if (mpCanvas->init())
        return true;
    const QString reason = mpCanvas->error();
    mpCanvas.reset();
    fail(reason);
    return false;
}

void GlSurface::draw(const QSize& size, double ratio, ELayers layers)
{
    if (mPainting.update)
        mPainting.update(size, ratio);
    mpCanvas->begin(size, ratio, mPainting.background);
    mPainting.paint(*mpCanvas, &mpCanvas->device());
    if (layers == ELayers::eAll)
        drawAbove(*mpCanvas);
    mpCanvas->end();
}

void GlSurface::drawAbove(Canvas& canvas) const
{
    if (mPainting.paintAbove)
        mPainting.paintAbove(canvas);
}

void GlSurface::finish()
{
    if (mPainting.release)
        mPainting.release();
    mpCanvas.reset();
}

void GlSurface::fail(const QString& reason)
{
    // The surface may be about to be replaced, which must not happen while it paints.
    QTimer::singleShot(0, &widget(), [failed = mPainting.failed, reason] { failed(reason); });
}

} // namespace ZARN
