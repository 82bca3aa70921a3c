#include "ui/canvas/WindowCanvas.h"
#include "ui/graph/GraphSurface.h"

#include <QPainter>
#include <QWidget>

namespace ZARN {

namespace {

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
        WindowCanvas canvas(painter, mStrips, size(), devicePixelRatioF());
        mPainting.paint(canvas, size(), devicePixelRatioF());
    }

private:
    GraphPainting mPainting;
    StripImage mStrips;
};

} // namespace

QWidget* createPainterSurface(const GraphPainting& painting, QWidget* pParent)
{
    return new PainterSurface(painting, pParent);
}

} // namespace ZARN
