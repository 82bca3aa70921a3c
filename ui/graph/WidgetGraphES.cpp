#include "ui/graph/WidgetGraphES.h"

#include "app/gui/GraphicsCheck.h"

WidgetGraphES::WidgetGraphES(QWidget* pParent) : WidgetGraphBase(pParent)
{
    // Asked once: a machine does not change its mind, and the question makes a context.
    static const QString problem = ZARN::GraphicsCheck::problem();
    if (problem.isEmpty())
        useSurface(&ZARN::createShaderSurface);
    else
        fallBack(problem);
}
