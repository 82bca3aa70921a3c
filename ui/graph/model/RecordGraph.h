#pragma once

#include "analysis/TimeSpan.h"
#include "project/DisplayLayout.h"
#include "project/Session.h"
#include "ui/data/model/GraphMoment.h"
#include "ui/graph/model/GraphHistory.h"
#include "ui/graph/model/GraphModel.h"
#include "ui/graph/model/GraphSettings.h"
#include "ui/graph/model/RecordGhost.h"
#include "ui/graph/model/StripOrder.h"
#include "ui/graph/model/TraceColours.h"
#include "ui/graph/model/TraceSlot.h"

#include <QCoreApplication>
#include <QDateTime>

#include <array>
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
    // These return whether the record is the one that was shown before, in another unit or with other parameters.
    bool updateRecord(RecordData* pRecord);
    /// The chosen flight, or what is worked out of the record, is another; what comes in from a bus goes on.
    bool updateFlights(RecordData* pRecord);
    /// Profile and record in one pass over the latter.
    bool update(RecordData* pRecord);
    void updateSettings();
    /// How times are told from now on, here and in every other view.
    void setTimes(ETimeReference kind);
    void storeSettings() { mSettings.store(mModel); }
    /// The common view time has changed.
    void setTime(double time);
    void setZarnMode(int mode);
    /// The user moved a strip, or made it higher or lower.
    void keepStrips();
    /// Order, heights, colours, scale and mode of a layout; drawn with the next update of profile or record, which the ticks of the layout
    /// want in any case. What an incident showed beside them goes.
    void setLayout(const DisplayLayout& layout);
    /// What is ticked, and how it is shown; without a name.
    [[nodiscard]] DisplayLayout layout() const;
    [[nodiscard]] GraphView view() const { return {mModel.window(), mModel.settings().graphMode, mModel.marker(), layout()}; }
    /// Goes from one view to another; what is alike in both stays as it is. @return whether other parameters are to be ticked
    bool showView(const GraphView& from, const GraphView& to);
    /// What is ticked and not shown.
    struct Unshown {
        QStringList names;
        bool isCrowded; ///< much was asked for besides: the strips of both would be too low to be read; else there is no slot left
    };
    [[nodiscard]] Unshown unshown() const { return {mUnshown, isCrowded()}; }

    /// What it is compared with.
    [[nodiscard]] RecordGhost& ghost() { return mGhost; }
    [[nodiscard]] bool hasRecord() const { return mpRecord != nullptr; }
    [[nodiscard]] bool hasSamples() const;
    /// From the record's start to its end.
    [[nodiscard]] TimeSpan span() const;
    /// The part of the record that is seen; none where there is nothing to see.
    [[nodiscard]] std::optional<TimeSpan> shownSpan() const;

    void zoomAll();
    /// Shows a part of the record, with parameters of these names beside the ticked ones until another record is shown, or none.
    void showMoment(const GraphMoment& moment);
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
    template <typename Visitor> int forEachTrace(const RecordData* pRecord, Visitor visit, QStringList* pUnshown = nullptr) const;
    [[nodiscard]] std::vector<QString> names(const std::vector<int>& slotNumbers) const;
    [[nodiscard]] RecordKey recordKey() const;
    [[nodiscard]] QString emptyMessage() const;
    [[nodiscard]] double heightOf(const std::string& name) const;
    void updateTimes();
    [[nodiscard]] std::optional<DisplayLayout::Scale> zoomOf(const QString& name) const;
    void describeSlots();
    void fillRecord();
    void growRecord(RecordData* pRecord);
    void highlightAsked();

    const Session mSession;
    GraphModel& mModel;
    GraphSettings mSettings;
    StripOrder mStrips;
    ColourNumbers mColours;
    std::map<std::string, double> mHeights; ///< of strips, by the name of the parameter; of those that differ
    QStringList mUnshown;
    static constexpr std::size_t kCrowd = 8;
    [[nodiscard]] bool isCrowded() const { return mBeside.size() > kCrowd; }
    std::string mLeading; ///< of these, the one that stands out
    std::set<std::string> mBeside; ///< names of parameters that are shown without being ticked
    RecordGhost mGhost;
    RecordData* mpRecord = nullptr;
    std::array<SlotFill, kSlots> mFills{};
    RecordKey mMarkedRecord;
    TimeSpan mSpan{};
    int mZarnMode = 0;
    bool mKeepsWindow = false; // at the next setTime() to the time that is shown
};

} // namespace ZARN
