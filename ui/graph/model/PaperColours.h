#pragma once

#include "ui/graph/model/GraphModel.h"

namespace ZARN {

/// Gives a graph the colours of paper while it lives.
class PaperColours {
public:
    explicit PaperColours(GraphModel& model) : mModel(model), mKept(model.settings())
    {
        GraphData& data = mModel.settings();
        const Palette::Graph& paper = Palette::print().graph;
        data.backColor = paper.ground.name();
        data.gridColor = paper.grid.name();
        data.labelColor = paper.label.name();
        data.labelBackColor = paper.labelGround.name();
        mModel.settingsChanged();
    }
    ~PaperColours()
    {
        mModel.settings() = mKept;
        mModel.settingsChanged();
    }
    PaperColours(const PaperColours&) = delete;
    PaperColours& operator=(const PaperColours&) = delete;

private:
    GraphModel& mModel;
    const GraphData mKept;
};

} // namespace ZARN
