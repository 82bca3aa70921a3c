#include "ui/graph/WidgetGraph.h"

#include "app/gui/GraphicsCheck.h"

WidgetGraph::WidgetGraph(QWidget* pParent) : WidgetGraphBase(pParent)
{
    useSurface(ZARN::GraphicsCheck::problem().isEmpty() ? &ZARN::createFixedSurface : &ZARN::createPainterSurface);
}
