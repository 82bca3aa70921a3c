#include "ui/graph/WidgetGraphES.h"

WidgetGraphES::WidgetGraphES(QWidget* pParent) : WidgetGraphBase(pParent)
{
    useSurface(ZARN::Surface::EKind::eFastest);
}
