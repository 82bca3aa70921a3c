#pragma once

#include "analysis/TimeSpan.h"
#include "project/DisplayLayout.h"
#include "project/Session.h"
#include "ui/graph/model/GhostCycle.h"
#include "ui/graph/model/GraphModel.h"
#include "ui/graph/model/GraphSettings.h"
#include "ui/graph/model/StripOrder.h"
#include "ui/graph/model/TraceColours.h"

#include <QCoreApplication>
#include <QDateTime>

#include <map>
#include <set>

namespace ZARN {

class RecordData;

/// The graph of what is loaded: puts the selected parameters of the profile with their samples into the slots of a graph, and keeps its
/// window about the common view time. Record and graph are not owned.
class RecordGraph {
    Q_DECLARE_TR_FUNCTIONS(ZARN::RecordGraph)

public:
    static constexpr int kSlots = 30;

    RecordGraph(const Session& session, GraphModel& model);

    void updateProfile();
    void updateRecord(RecordData* pRecord);
    /// The chosen flight, or what is worked out of the record, is another.
    void updateFlights(RecordData* pRecord);
    /// Both in one pass over the record.
    void update(RecordData* pRecord);
    void updateSettings();
    /// How times are told from now on, here and in every other view.
    void setTimes(ETimeReference kind);
    void storeSettings() { mSettings.store(mModel); }
    /// The common view time has changed.
    void setTime(double time);
    void setZarnMode(int mode);
    /// The user moved a strip.
    void keepStrips();
    /// Order, heights, colours, scale and mode of a layout; drawn with the next update of profile or record, which the ticks of the layout
    /// want in any case. What an incident showed beside them goes.
    void setLayout(const DisplayLayout& layout);
    /// What is ticked, and how it is shown; without a name.
    [[nodiscard]] DisplayLayout layout() const;

    /// Another cycle behind the traces; null for none. Laid on this one by their take-offs, of the ghost's flight of that number (from 1,
    /// 0: the first), else by the starts of their engines.
    void setGhost(std::shared_ptr<const GhostCycle> pGhost, int flight);
    [[nodiscard]] const std::shared_ptr<const GhostCycle>& ghost() const { return mpGhost; }
    /// @return false where one of the two has no such moment
    bool alignTakeOff(int flight);
    bool alignEngineStart();

    [[nodiscard]] bool hasRecord() const { return mpRecord != nullptr; }
    [[nodiscard]] bool hasSamples() const;
    /// From the record's start to its end.
    [[nodiscard]] TimeSpan span() const;
    /// The part of the record that is seen; none where there is nothing to see.
    [[nodiscard]] std::optional<TimeSpan> shownSpan() const;

    void zoomAll();
    /// Shows a part of the record, with parameters of these names beside the ticked ones until another record is shown, or none.
    void showSpan(const TimeSpan& span, std::set<std::string> beside);
    /// Gives the window a width, and what was in sight stays there.
    void setRange(float seconds);
    /// Puts the cursor there, and the window around it.
    void showTime(double time);
    void clear();

private:
    /// What the marker was set in: another record has another time base.
    struct RecordKey {
        QString path;
        std::optional<unsigned int> cycle;
        QDateTime dateTime;
        double endTime = 0.0;
        bool operator==(const RecordKey&) const = default;
    };
    template <typename Visitor> int forEachTrace(const RecordData* pRecord, Visitor visit) const;
    [[nodiscard]] std::vector<QString> names(const std::vector<int>& slotNumbers) const;
    [[nodiscard]] RecordKey recordKey() const;
    [[nodiscard]] QString emptyMessage() const;
    [[nodiscard]] double heightOf(const std::string& name) const;
    void updateTimes();
    void describeSlots();
    void fillRecord();
    void fillGhost();

    const Session mSession;
    GraphModel& mModel;
    GraphSettings mSettings;
    StripOrder mStrips;
    ColourNumbers mColours;
    std::map<std::string, double> mHeights; ///< of strips, by the name of the parameter; of those that differ
    std::set<std::string> mBeside;          ///< names of parameters that are shown without being ticked
    std::shared_ptr<const GhostCycle> mpGhost;
    RecordData* mpRecord = nullptr;
    RecordKey mMarkedRecord;
    TimeSpan mSpan{};
    int mZarnMode = 0;
    bool mKeepsWindow = false; // at the next setTime() to the time that is shown
};

} // namespace ZARN
