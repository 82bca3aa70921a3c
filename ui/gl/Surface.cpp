#include "ui/gl/Surface.h"

#include "ui/gl/CardSurface.h"
#include "ui/gl/GraphicsCheck.h"
#include "ui/gl/MemorySurface.h"
#include "ui/gl/PainterSurface.h"

namespace ZARN {

Surface* Surface::create(EKind kind, const SurfacePainting& painting, QWidget* pParent)
{
    const bool isSoftware = GraphicsCheck::isSoftware();
    const bool isPainted = kind == EKind::ePainter || (kind == EKind::eFastest && isSoftware);
    if (isPainted || (kind != EKind::eOpenGl && !GraphicsCheck::problem().isEmpty()))
        return new PainterSurface(painting, pParent);
    if (kind == EKind::eOpenGl && isSoftware)
        return new MemorySurface(painting, pParent);
    return new CardSurface(painting, kind == EKind::eFixedFunction, pParent);
}

} // namespace ZARN
