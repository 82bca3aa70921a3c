#pragma once

#include "ui/graph/WidgetGraphBase.h"

#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <utility>

/// Waits until a frame is drawn, the traces of its window are worked out and a look at what is left finds nothing.
inline bool drawsNoMore(const WidgetGraphBase& graph)
{
    const auto* pRecalculation = graph.findChild<QTimer*>("recalculation");
    QSignalSpy looks(graph.findChild<QTimer*>("redraw"), &QTimer::timeout);
    return QTest::qWaitFor([&, frames = 0]() mutable {
        if (std::exchange(frames, graph.frameCount()) != graph.frameCount() || pRecalculation->isActive())
            looks.clear();
        return frames > 0 && looks.count() > 1;
    });
}
