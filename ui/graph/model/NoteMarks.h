#pragma once

#include "ui/graph/model/GraphLabels.h"

namespace ZARN {

/// The notes of the record as flags along the bottom of the plot, with their texts where there is room.
class NoteMarks {
public:
    NoteMarks(const GraphModel& model, const GraphLayout& layout, const GraphLabels& labels) : mModel(model), mLayout(layout), mLabels(labels) {}

    void draw(Canvas& canvas) const;

private:
    void drawText(Canvas& canvas, const CycleNote& note, double x, double end) const;

    const GraphModel& mModel;
    const GraphLayout& mLayout;
    const GraphLabels& mLabels;
};

} // namespace ZARN
