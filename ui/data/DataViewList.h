#pragma once

#include "project/Session.h"
#include "project/TimeReference.h"
#include "ui/data/model/DataView.h"

#include <QString>

#include <array>
#include <functional>

class QWidget;

namespace ZARN {

class DialogData;

/// The views of the data area, in the order of their tabs; the map, which has none, is the last.
enum EDataView { eViewTable, eViewGraph, eViewFaultMatrix, eViewLimits, eViewWarnings, eViewStatistic, eViewMap, eViewCount };

/// How a view is chosen.
struct DataViewTab {
    const char* icon;
    const char* title; ///< in English, of the context "ZARN::DialogData"
};

/// A view as the data area needs it: a widget to place and the interface to drive it. Both are the same object.
struct DataViewEntry {
    QWidget* pWidget = nullptr;
    DataView* pView = nullptr;
    /// Connects the view's signals to the data area; empty for a view that has none.
    std::function<void(DialogData& area)> connectTo = {};
};

/// What a data area is made of. Tests give it views that only note what they are told.
struct DataViewList {
    std::array<DataViewEntry, eViewCount> entries{};
    std::function<TimeReference()> times = {}; ///< how the user wants times told; empty: since power-up

    [[nodiscard]] DataView& view(EDataView which) const { return *entries[which].pView; }

    /// @param which not the map
    [[nodiscard]] static const DataViewTab& tab(EDataView which);
    /// The program's own views. @param dataPath folder for what the map keeps
    [[nodiscard]] static DataViewList create(const Session& session, const QString& dataPath);
};

} // namespace ZARN
