#include "app/gui/ProgramStyle.h"

namespace ZARN {

ProgramStyle::ProgramStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

int ProgramStyle::styleHint(StyleHint hint, const QStyleOption* pOption, const QWidget* pWidget, QStyleHintReturn* pReturn) const
{
    const int result = QProxyStyle::styleHint(hint, pOption, pWidget, pReturn);
    return hint == SH_FormLayoutLabelAlignment ? result | Qt::AlignVCenter : result; // beside fields that are higher than a line
}

} // namespace ZARN
