#pragma once

#include <QColor>
#include <QIcon>

/// The program's pictures. Icons are line drawings that are drawn anew for every size and screen, in the colour of the style.
class ImageHandler {
public:
    /// Makes the pictures that are compiled in known; called before the first of them is used.
    static void initialise();

    /// An icon by its name, always in the colour of the palette that is in force; one without lines for a name that does not exist.
    static QIcon icon(const QString& name);
    /// The same, drawn in a colour.
    static QIcon icon(const QString& name, const QColor& colour);
};
