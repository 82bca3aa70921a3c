#include "ui/graph/WidgetGraph.h"

#include "app/gui/GraphicsCheck.h"

WidgetGraph::WidgetGraph(QWidget* pParent) : WidgetGraphBase(pParent)
{
    static const QString problem = ZARN::GraphicsCheck::problem();
    if (problem.isEmpty())
        useSurface(&ZARN::createFixedSurface);
    else
        fallBack(problem);
}
