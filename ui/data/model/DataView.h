#pragma once

#include "analysis/TimeSpan.h"
#include "card/CycleNote.h"
#include "card/NormalBand.h"
#include "project/DisplayLayout.h"
#include "ui/data/model/Comparison.h"
#include "ui/data/model/GraphMoment.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace ZARN {

class EventList;
class RecordData;
struct CycleCourse;

/// What a view may be told and asked about a part of the record.
class PartView {
public:
    virtual ~PartView() = default;

    /// The part of the record that the user looks at, where a view has one.
    [[nodiscard]] virtual std::optional<TimeSpan> shownSpan() const { return {}; }
    /// Whether the user, who sees the view, has moved it away from that time.
    [[nodiscard]] virtual bool hasLeft(double /*time*/) const { return false; }
    /// The part of the record that the user marked, where a view has one.
    [[nodiscard]] virtual std::optional<TimeSpan> markedSpan() const { return {}; }
    /// Takes whom to ask for the part of the record that another view shows, for a view that tells it apart.
    virtual void followSpan(std::function<std::optional<TimeSpan>()> /*span*/) {}
    /// Shows its part of the record, and its parameters whether they are ticked or not; who asks sets the time.
    virtual void showMoment(const GraphMoment& /*moment*/) {}
    /// Marks these parts of the record, in order of time, for a view that can.
    virtual void setFound(const std::vector<TimeSpan>& /*spans*/) {}

protected:
    PartView() = default;
    PartView(const PartView&) = default;
    PartView& operator=(const PartView&) = default;
};

/// A view of the loaded record that follows the common view time. Who keeps it up to date, and when, is its ViewLink.
class DataView : public PartView {
public:
    /// Other parameters are shown, another profile or unit is in force: everything that comes from the profile is built anew.
    virtual void updateProfile() = 0;

    /// Shows that record; null shows none. The record is not owned and lives until the next call.
    virtual void updateRecord(RecordData* pRecord) = 0;

    /// Both at once. A view that would be filled by each overrides it, to be filled once.
    virtual void update(RecordData* pRecord)
    {
        updateProfile();
        updateRecord(pRecord);
    }

    /// The flights of the record that is shown, its path or the chosen flight are others, the samples are not.
    virtual void updateFlights(RecordData* pRecord) { updateRecord(pRecord); }

    /// The record that is shown has become longer, and may have lost its beginning. @param isReviewed flights and path are others, too
    virtual void growRecord(RecordData* pRecord, bool /*isReviewed*/) { updateRecord(pRecord); }
    /// The course of a record that grows, as it is by now: who lets it grow has worked it out.
    virtual void growCourse(const std::shared_ptr<const CycleCourse>& /*pCourse*/) {}
    /// Milliseconds after which it is worth while to be told that again.
    [[nodiscard]] virtual int growthPeriod() const { return 250; }

    /// In place of updateRecord() while nobody sees the view: works out what others show of it, no more.
    virtual void prepare(RecordData* /*pRecord*/) {}
    /// In place of updateFlights() while nobody sees the view.
    virtual void prepareFlights(RecordData* /*pRecord*/) {}

    /// @param time view time in seconds on the record's own time base
    virtual void setTime(double time) = 0;

    /// Another profile file is in force; for views that build widgets out of it.
    virtual void loadProfile() {}

    /// @param mode 0 shows the record, anything else its newest values as they come in
    virtual void setZarnMode(int /*mode*/) {}

    /// @param paused whether a live display holds what it shows, and follows the view time instead
    virtual void setPaused(bool /*paused*/) {}

    /// The settings were changed, by another window.
    virtual void updateSettings() {}

    /// How many events the view lists.
    [[nodiscard]] virtual int eventCount() const { return 0; }

    /// Shows what somebody wrote about moments of the record, by time.
    virtual void setNotes(const std::vector<CycleNote>& /*notes*/) {}

    /// Shows where earlier flights of the engine lay, for a view that can.
    virtual void setNormal(const std::vector<NormalBand>& /*bands*/) {}
    /// What the view compares the record with, where it does.
    [[nodiscard]] virtual Comparison comparison() const { return {}; }

    /// Marks the events that the lists found, for a view that shows them among other things.
    virtual void setEvents(const EventList& /*limits*/, const EventList& /*lamps*/) {}
    /// The events of a view that lists them; null for others.
    [[nodiscard]] virtual const EventList* eventList() const { return nullptr; }

    /// Shows what is ticked as a layout tells, for a view that can.
    virtual void setLayout(const DisplayLayout& /*layout*/) {}
    /// What is ticked, and how the view shows it; none for a view that knows no layouts.
    [[nodiscard]] virtual std::optional<DisplayLayout> layout() const { return {}; }

protected:
    DataView() = default;
    DataView(const DataView&) = default;
    DataView& operator=(const DataView&) = default;
};

} // namespace ZARN
