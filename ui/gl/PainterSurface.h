#pragma once

#include "ui/canvas/StripImage.h"
#include "ui/gl/Surface.h"

#include <QWidget>

namespace ZARN {

/// Drawn by the toolkit's painter straight into the window.
class PainterSurface : public QWidget, public Surface {
public:
    PainterSurface(const SurfacePainting& painting, QWidget* pParent);

    QWidget& widget() override { return *this; }
    void requestFrame() override { update(); }
    void requestAbove() override { update(); }

protected:
    void paintEvent(QPaintEvent* pEvent) override;

private:
    SurfacePainting mPainting;
    StripImage mStrips;
};

} // namespace ZARN
