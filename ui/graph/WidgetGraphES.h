#pragma once

#include "ui/graph/WidgetGraphBase.h"

/// An oscilloscope over recorded traces, drawn with OpenGL and shaders: the graph that the program shows. On a machine
/// without OpenGL it is painted, and also where a program plays the graphics card, since painting is several times faster there.
class WidgetGraphES : public WidgetGraphBase {
    Q_OBJECT

public:
    explicit WidgetGraphES(QWidget* pParent = nullptr);
};
