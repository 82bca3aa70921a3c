#include "ui/canvas/RasterCanvas.h"
#include "ui/graph/GraphSurface.h"

#include <QPainter>
#include <QWidget>

namespace ZARN {

namespace {

/// A graph's surface on the toolkit's painter, for machines without OpenGL.
class PainterSurface : public QWidget {
public:
    PainterSurface(const GraphPainting& painting, QWidget* pParent) : QWidget(pParent), mPainting(painting)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setAttribute(Qt::WA_OpaquePaintEvent);
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        RasterCanvas canvas(painter);
        mPainting.paint(canvas, size(), devicePixelRatioF());
    }

private:
    GraphPainting mPainting;
};

} // namespace

QWidget* createPainterSurface(const GraphPainting& painting, QWidget* pParent)
{
    return new PainterSurface(painting, pParent);
}

} // namespace ZARN
