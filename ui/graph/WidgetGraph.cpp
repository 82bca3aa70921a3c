#include "ui/graph/WidgetGraph.h"

WidgetGraph::WidgetGraph(QWidget* pParent) : WidgetGraphBase(pParent)
{
    useSurface(ZARN::Surface::EKind::eFixedFunction);
}
