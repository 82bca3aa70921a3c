#include "ui/graph/model/RecordGraph.h"

#include "app/Property.h"
#include "app/Settings.h"
#include "card/CardContainer.h"
#include "profile/Profile.h"
#include "trace/TraceSet.h"
#include "ui/graph/model/TraceSlot.h"

#include <algorithm>
#include <iterator>
#include <numeric>
#include <tuple>
#include <utility>

namespace ZARN {

namespace {

constexpr double kLiveWidth = 60.0; // seconds that are seen at first of what comes from a bus

} // namespace

RecordGraph::RecordGraph(const Session& session, GraphModel& model)
    : mSession(session), mModel(model), mSettings(session.property),
      mGhost(session, model, [this](const RecordData* pRecord, const auto& visit) { forEachTrace(pRecord, visit); })
{
    mModel.traces().setCount(kSlots);
    mModel.setOfflineMode(true);
    // A floating cursor to begin with, so that the whole record stays in view while time passes.
    mModel.settings() = GraphData{.cursorMode = eFloating};
    mModel.settings().followScreen();
    mModel.settingsChanged();
    updateProfile();
}

/// Calls with slot and trace of each selected parameter, as far as there are slots. @return how many  @param pUnshown gets the others
template <typename Visitor> int RecordGraph::forEachTrace(const RecordData* pRecord, Visitor visit, QStringList* pUnshown) const
{
    const TraceSet traces(pRecord, mSession.profile, ENumber::eDisplay, [this](const ProfileDevice&, const ProfileParameter& parameter) {
        return mSession.profile.isSelected(parameter.name) || mBeside.contains(parameter.name);
    });
    const auto isBeside = [this](const auto& pTrace) { return mBeside.contains(pTrace->name()); };
    // What was asked for last has its place before what was ticked.
    const auto asked = static_cast<int>(std::ranges::count_if(traces.traces(), isBeside));
    int ticked = isCrowded() ? 0 : kSlots - asked, used = 0;
    for (const auto& pTrace : traces.traces()) {
        if (used < kSlots && (isBeside(pTrace) || ticked-- > 0))
            visit(used++, *pTrace);
        else if (pUnshown)
            *pUnshown << QString::fromStdString(pTrace->name());
    }
    return used;
}

void RecordGraph::describeSlots()
{
    ShownTraces& traces = mModel.traces();
    const auto describe = [&](int slot, const Trace& trace) {
        describeSlot(traces, slot, trace);
        traces.edit(slot, [&](GraphParameter& parameter) {
            const double height = heightOf(trace.name());
            parameter.height = height == 1.0 && parameter.pStates ? parameter.pStates->height() : height;
        });
    };
    mUnshown.clear();
    const int used = forEachTrace(nullptr, describe, &mUnshown);
    for (int slot = used; slot < kSlots; ++slot)
        traces.setActive(slot, false);
    std::vector<int> inUse(static_cast<std::size_t>(used));
    std::iota(inUse.begin(), inUse.end(), 0);
    traces.setOrder(mStrips.slotsFor(names(inUse)));
    const std::vector<int> numbers = mColours.assign(names(inUse));
    for (std::size_t slot = 0; slot < numbers.size(); ++slot)
        traces.edit(static_cast<int>(slot), [&](GraphParameter& trace) { trace.colourNumber = numbers[slot]; });
    updateSettings();
}

void RecordGraph::updateSettings()
{
    mSettings.load(mModel);
    mModel.settingsChanged();
    updateTimes();
    mGhost.normal().fill();
}

void RecordGraph::setTimes(ETimeReference kind)
{
    Settings::kTimeReference.set(mSession.property, static_cast<int>(kind));
    mSession.property.writeXmlFile();
    updateTimes();
}

void RecordGraph::updateTimes()
{
    const TimeReference times = TimeReference::of(mSession.property, mSession.container);
    if (!(std::exchange(mModel.settings().times, times) == times))
        mModel.settingsChanged();
    mGhost.follow();
}

void RecordGraph::updateProfile()
{
    describeSlots();
    // Another parameter may have taken a slot: no trace may keep the samples of the one before.
    fillRecord();
    mKeepsWindow = true;
}

bool RecordGraph::update(RecordData* pRecord)
{
    describeSlots();
    return updateRecord(pRecord);
}

std::vector<QString> RecordGraph::names(const std::vector<int>& slotNumbers) const
{
    std::vector<QString> out;
    for (const int slot : slotNumbers)
        out.push_back(mModel.traces().at(slot)->name);
    return out;
}

void RecordGraph::keepStrips()
{
    mStrips.keep(names(mModel.traces().shown()));
    for (const int slot : mModel.traces().shown()) {
        const GraphParameter& trace = *mModel.traces().at(slot);
        mHeights[trace.name.toStdString()] = trace.height;
    }
}

double RecordGraph::heightOf(const std::string& name) const
{
    const auto found = mHeights.find(name);
    return found == mHeights.end() ? 1.0 : found->second;
}

std::optional<DisplayLayout::Scale> RecordGraph::zoomOf(const QString& name) const
{
    const ValueScale& scale = mModel.settings().scale;
    for (const int slot : mModel.traces().shown()) {
        const GraphParameter& trace = *mModel.traces().at(slot);
        const auto found = trace.name == name ? scale.zoomed.find(scale.keyOf(name, trace.unit)) : scale.zoomed.end();
        if (found != scale.zoomed.end())
            return DisplayLayout::Scale{found->second[0], found->second[1], trace.unit};
    }
    return std::nullopt;
}

void RecordGraph::setLayout(const DisplayLayout& layout)
{
    std::vector<QString> order;
    mHeights.clear();
    mBeside.clear();
    bool isColoured = false;
    ValueScale& scale = mModel.settings().scale;
    scale.isShared = layout.isShared;
    scale.zoomed.clear();
    for (const DisplayLayout::Parameter& parameter : layout.parameters) {
        order.push_back(QString::fromStdString(parameter.name));
        mHeights[parameter.name] = parameter.height;
        if (parameter.scale)
            scale.zoomed[scale.keyOf(order.back(), parameter.scale->unit)] = {parameter.scale->lower, parameter.scale->upper};
        // Without one in the layout the parameter keeps the colour that the user gave to it.
        isColoured |= !parameter.colour.isEmpty() && mSettings.setColour(parameter.name, parameter.colour.toStdString());
    }
    if (isColoured)
        mSession.property.writeXmlFile();
    mStrips.keep(order);
    mModel.settings().displayMode = layout.isSplit ? eSplit : eSingleGraph;
    scale.isAutomatic = !layout.scale;
    if (layout.scale)
        std::tie(scale.lower, scale.upper) = *layout.scale;
    mModel.settingsChanged();
}

bool RecordGraph::showView(const GraphView& from, const GraphView& to)
{
    bool areOthers = false;
    if (from.layout != to.layout) {
        for (const auto& [name, height, colour, scale] : to.layout.parameters) { // a layout leaves the colours that it does not name
            if (colour.isEmpty())
                mSettings.setColour(name, {});
        }
        const std::set<std::string> beside = mBeside;
        setLayout(to.layout);
        mBeside = beside; // slots must keep what they are filled with
        describeSlots();
        const auto names = [](const GraphView& view) {
            std::set<std::string> all;
            std::ranges::transform(view.layout.parameters, std::inserter(all, all.end()), &DisplayLayout::Parameter::name);
            return all;
        };
        areOthers = from.layout.name != to.layout.name || names(from) != names(to);
    }
    if (from.mode != to.mode)
        mModel.settings().graphMode = to.mode;
    if (!(from.window == to.window))
        mModel.setWindow(to.window);
    if (from.marker != to.marker)
        mModel.setMarker(to.marker);
    return areOthers;
}

DisplayLayout RecordGraph::layout() const
{
    std::vector<QString> ticked;
    for (const auto& [device, parameter] : mSession.profile.model().parameters()) {
        const QString name = QString::fromStdString(parameter.name);
        if (mSession.profile.isSelected(parameter.name) && std::ranges::find(ticked, name) == ticked.end())
            ticked.push_back(name);
    }
    DisplayLayout layout;
    layout.name = Settings::kGraphLayout.text(mSession.property);
    for (const int place : StripOrder(mStrips).slotsFor(ticked)) {
        const QString& text = ticked[static_cast<std::size_t>(place)];
        const std::string name = text.toStdString();
        layout.parameters.push_back({name, heightOf(name), QString::fromStdString(mSettings.colour(name)), zoomOf(text)});
    }
    const GraphData& settings = mModel.settings();
    layout.isShared = settings.scale.isShared;
    layout.isSplit = settings.displayMode == eSplit;
    if (!settings.scale.isAutomatic)
        layout.scale.emplace(settings.scale.lower, settings.scale.upper);
    return layout;
}

void RecordGraph::fillRecord()
{
    const TimeWindow window = mModel.window();
    mModel.clear();
    mFills = {};
    const auto fill = [this](int slot, const Trace& trace) {
        fillSlot(mModel, slot, trace);
        mFills[static_cast<std::size_t>(slot)] = SlotFill::of(trace);
    };
    if (mpRecord)
        forEachTrace(mpRecord, fill);
    mGhost.fill(mpRecord != nullptr);
    // Filling moves the window of the automatic mode along.
    mModel.setWindow(window);
    mModel.scenery().setMessage(emptyMessage());
}

QString RecordGraph::emptyMessage() const
{
    const bool isLive = mZarnMode != 0; // with neither card nor profile panel in sight
    if (!mpRecord && isLive)
        return tr("No record is loaded.");
    if (!mpRecord)
        return tr("No record is loaded.\nOpen a card folder and choose a power cycle or a flight.");
    if (mModel.traces().count() == 0 && isLive)
        return tr("No parameter is selected.");
    if (mModel.traces().count() == 0)
        return tr("No parameter is selected.\nTick the parameters to show in the profile panel.");
    return {};
}

bool RecordGraph::updateRecord(RecordData* pRecord)
{
    // The same once more is the same in another unit.
    const RecordKey key = pRecord ? recordKey() : mMarkedRecord;
    mKeepsWindow = mpRecord && mpRecord == pRecord && key == mMarkedRecord && span() == mSpan;
    mpRecord = pRecord;
    mModel.settings().isGrowing = pRecord && mSession.container.isLive();
    mModel.settingsChanged();
    updateTimes();
    if (!mBeside.empty() && (!pRecord || !(key == mMarkedRecord))) {
        mBeside.clear();
        describeSlots();
    }
    fillRecord();
    if (!mpRecord || mKeepsWindow)
        return mKeepsWindow;
    if (!(key == mMarkedRecord))
        mModel.setMarker({});
    const bool isLive = mSession.container.isLive(), isSameRun = isLive && key == mMarkedRecord;
    mMarkedRecord = key;
    mSpan = span();
    if (isSameRun)
        return true; // where the user looked
    if (isLive)
        mModel.setWindow({mSpan.start, mSpan.start + kLiveWidth});
    else
        zoomAll();
    mModel.setCursorPosition(mSpan.start);
    return false;
}

/// The record goes on, and may have lost its beginning: what is new of it is put behind what is there.
void RecordGraph::growRecord(RecordData* pRecord)
{
    if (!mpRecord || !pRecord) {
        updateRecord(pRecord);
        return;
    }
    mpRecord = pRecord;
    mSpan = span();
    updateTimes();
    forEachTrace(mpRecord, [this](int slot, const Trace& trace) {
        growSlot(mModel.traces(), slot, trace, mFills[static_cast<std::size_t>(slot)]);
    });
    mModel.scenery().setMessage(emptyMessage());
}

bool RecordGraph::updateFlights(RecordData* pRecord)
{
    if (mSession.container.isLive()) {
        growRecord(pRecord);
        return true;
    }
    updateTimes();
    if (!(span() == mSpan))
        return updateRecord(pRecord);
    mKeepsWindow = true; // the traces are the same
    return true;
}

RecordGraph::RecordKey RecordGraph::recordKey() const
{
    // A flight counts its times as its power cycle does: there the marker still stands where it was set.
    const CardContainer& container = mSession.container;
    const RecordCycle* pCycle = container.loadedCycle();
    const double end = container.isLive() ? 0.0 : pCycle ? pCycle->endTime : container.endTime(); // none yet
    return {container.path(), container.loadedCycleNumber(), pCycle ? pCycle->dateTime : container.dateTime(), end};
}

void RecordGraph::setTime(double time)
{
    // Where the view time stays, what the user has zoomed to stays too.
    const bool isKept = std::exchange(mKeepsWindow, false) && static_cast<float>(time) == static_cast<float>(mModel.cursor().time);
    if (!isKept)
        showTime(time);
}

void RecordGraph::showTime(double time)
{
    mModel.setCursorPosition(time);
    mModel.setWindow(mModel.window().keeping(time));
}

void RecordGraph::setZarnMode(int mode)
{
    mZarnMode = mode;
    mModel.scenery().setMessage(emptyMessage());
}

bool RecordGraph::hasSamples() const
{
    return std::ranges::any_of(mModel.traces().shown(), [this](int index) { return !mModel.traces().at(index)->samples.empty(); });
}

TimeSpan RecordGraph::span() const
{
    return {mSession.container.startTime(), mSession.container.endTime()};
}

std::optional<TimeSpan> RecordGraph::shownSpan() const
{
    const TimeWindow& window = mModel.window();
    return hasSamples() ? std::optional(TimeSpan{window.begin(), window.end()}) : std::nullopt;
}

void RecordGraph::showMoment(const GraphMoment& moment)
{
    if (!mpRecord)
        return;
    const TimeSpan& span = moment.span;
    mBeside = moment.parameters;
    mLeading = moment.leading;
    describeSlots();
    fillRecord();
    mModel.setWindow({span.end > 0 ? std::max(span.start, 0.0) : span.start, span.end}); // nothing is recorded before
    highlightAsked();
}

/// In a single graph the trace that stands out is the one whose bands are seen.
void RecordGraph::highlightAsked()
{
    ShownTraces& traces = mModel.traces();
    if (mBeside.empty())
        return;
    const auto isAsked = [&](int slot) { return traces.at(slot)->name.toStdString() == mLeading; };
    const auto asked = std::ranges::find_if(traces.shown(), isAsked);
    if (asked == traces.shown().end())
        traces.togglePin(-1);
    else if (traces.highlighted() != *asked)
        traces.togglePin(*asked);
}

void RecordGraph::zoomAll()
{
    if (mpRecord)
        mModel.setWindow(TimeWindow::ofRecord(span().start, span().end));
}

void RecordGraph::setRange(float seconds)
{
    // In the automatic mode the end of the window stays, and the cursor, or all of the record, would soon be left behind.
    const double cursor = mModel.cursor().time;
    const bool wasInSight = mModel.window().contains(cursor);
    const auto width = static_cast<double>(seconds);
    mModel.setWindow(mModel.window().ofWidth(width, mModel.settings().graphMode));
    mModel.settings().xRange = width;
    const bool isBeside = mModel.window().end() < span().start || mModel.window().begin() > span().end;
    if (mpRecord && (wasInSight || isBeside))
        showTime(cursor);
}

void RecordGraph::clear()
{
    mModel.clear();
    if (!mpRecord || mModel.traces().count() == 0)
        return;
    mModel.scenery().setMessage(mZarnMode != 0
                                    ? tr("The graph was cleared.")
                                    : tr("The graph was cleared.\nTick a parameter in the profile panel, or choose another power cycle or "
                                         "flight, to fill it again."));
}

} // namespace ZARN
