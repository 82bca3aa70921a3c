#pragma once

#include "ui/graph/model/GraphModel.h"

namespace ZARN {

/// Gives a graph the colours of paper while it lives.
class PaperColours {
public:
    explicit PaperColours(GraphModel& model) : mModel(model), mKept(model.settings())
    {
        mModel.settings().usePalette(EGraphPalette::ePrint);
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
