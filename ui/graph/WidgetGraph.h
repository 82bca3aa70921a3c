#pragma once

#include "ui/graph/WidgetGraphBase.h"

/// The same graph drawn with fixed-function OpenGL, for drivers that have no shaders. It asks for a compatibility context of its own; where
/// there is none it is painted.
class WidgetGraph : public WidgetGraphBase {
    Q_OBJECT

public:
    explicit WidgetGraph(QWidget* pParent = nullptr);
};
