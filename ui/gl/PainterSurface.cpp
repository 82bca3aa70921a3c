#include "ui/gl/PainterSurface.h"

#include "ui/canvas/WindowCanvas.h"

#include <QPainter>

namespace ZARN {

PainterSurface::PainterSurface(const SurfacePainting& painting, QWidget* pParent) : QWidget(pParent), mPainting(painting)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void PainterSurface::paintEvent(QPaintEvent* /*pEvent*/)
{
    if (mPainting.update)
        mPainting.update(size(), devicePixelRatioF());
    QPainter painter(this);
    WindowCanvas canvas(painter, mStrips, size(), devicePixelRatioF());
    mPainting.paint(canvas, nullptr);
    if (mPainting.paintAbove)
        mPainting.paintAbove(canvas);
}

} // namespace ZARN
