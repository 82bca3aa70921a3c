#include "ui/graph/TraceMenu.h"

#include <utility>

namespace ZARN {

TraceMenu::TraceMenu(const GraphParameter& trace, QWidget* pParent) : QMenu(pParent), mStroke(trace.stroke)
{
    setTitle(QString(trace.name).replace('&', "&&"));
    addAction(tr("Color..."), this, &TraceMenu::signalColour);
    QMenu* pWidths = addMenu(tr("Line Width"));
    for (int width = 1; width <= TraceStroke::kWidest; ++width)
        addStroke(pWidths, tr("%n pixel(s)", nullptr, width), {width, mStroke.style});
    QMenu* pStyles = addMenu(tr("Line Style"));
    for (const auto& [style, text] : {std::pair(ELineStyle::eAutomatic, tr("Automatic")),
                                      {ELineStyle::eSolid, tr("Solid")},
                                      {ELineStyle::eDashed, tr("Dashed")},
                                      {ELineStyle::eDotted, tr("Dotted")}})
        addStroke(pStyles, text, {mStroke.width, style});
    addAction(tr("Default"), this, &TraceMenu::signalDefault)->setEnabled(trace.hasOwnColour || mStroke != TraceStroke());
}

void TraceMenu::addStroke(QMenu* pMenu, const QString& text, const TraceStroke& stroke)
{
    QAction* pAction = pMenu->addAction(text, this, [this, stroke] { Q_EMIT signalStroke(stroke); });
    pAction->setCheckable(true);
    pAction->setChecked(stroke == mStroke);
}

} // namespace ZARN
