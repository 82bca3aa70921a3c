#include "ui/graph/WidgetGraphES.h"

#include "app/gui/GraphicsCheck.h"

WidgetGraphES::WidgetGraphES(QWidget* pParent) : WidgetGraphBase(pParent)
{
    const bool isPainted = ZARN::GraphicsCheck::isSoftware() || !ZARN::GraphicsCheck::problem().isEmpty();
    useSurface(isPainted ? &ZARN::createPainterSurface : &ZARN::createShaderSurface);
}
