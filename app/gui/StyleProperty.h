#pragma once

#include <QStyle>
#include <QVariant>
#include <QWidget>

namespace ZARN {

/// Changes a property that the style sheet asks for; a widget looks at its sheet again only when told to.
inline void setStyleProperty(QWidget& widget, const char* name, bool value)
{
    if (widget.property(name).toBool() == value)
        return;
    widget.setProperty(name, value);
    widget.style()->unpolish(&widget);
    widget.style()->polish(&widget);
}

} // namespace ZARN
