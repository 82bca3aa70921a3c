#include "report/IncidentGraph.h"

#include "report/PaperCanvas.h"
#include "report/ReportText.h"
#include "ui/canvas/Palette.h"
#include "ui/canvas/Triangulation.h"
#include "ui/overview/model/VerdictSign.h"

#include <algorithm>
#include <map>

namespace ZARN {

namespace {

constexpr double kMargin = 0.2;       // of the length, before and after it
constexpr double kLeastLength = 10.0; // seconds that are shown of a short one
constexpr double kTogether = 600.0;   // within which several incidents are shown in one picture
constexpr double kBeside = 3.0;       // seconds, for a line to come from what was before
constexpr double kStrip = 38.0;       // points
constexpr double kLeastStrips = 60.0; // a graph cannot do with less
constexpr double kAbove = 3.0;        // the bars, or the strips
constexpr double kBar = 9.0;
constexpr double kPeak = 2.4; // radius
constexpr double kLeastWidth = 1.5;
constexpr std::size_t kMostStrips = 3;
constexpr std::size_t kMostBars = 5;

double excess(const Episode& episode)
{
    return episode.peak ? std::abs(episode.peak->value - episode.peak->limit) / std::max(std::abs(episode.peak->limit), 1.0) : 0.0;
}

bool isWorse(const Episode& a, const Episode& b)
{
    return a.state != b.state ? a.state > b.state : excess(a) > excess(b);
}

bool isValueKind(const Episode& episode)
{
    return episode.kind == EEpisodeKind::eStop || episode.kind == EEpisodeKind::eLimit;
}

} // namespace

IncidentGraph::IncidentGraph(const ReportSubject& subject, const std::vector<Incident>& incidents, const IncidentSentence& sentence)
    : mSubject(subject)
{
    const std::vector<const Incident*> shown = chosen(incidents, sentence);
    if (shown.size() < sentence.incidents.size())
        mOf = shown.front()->start;
    findSpan(shown);
    findStrips(shown);
    mBars = quantities(shown, false);
    for (std::size_t i = std::min(kMostBars, mBars.size()); i < mBars.size(); ++i)
        mLeftOut << mBars[i].name;
    mBars.resize(std::min(kMostBars, mBars.size()));
}

std::vector<const Incident*> IncidentGraph::chosen(const std::vector<Incident>& incidents, const IncidentSentence& sentence)
{
    std::vector<const Incident*> all;
    for (const std::size_t place : sentence.incidents)
        all.push_back(&incidents[place]);
    if (all.size() == 1 || sentence.end - sentence.start <= kTogether)
        return all;
    return {*std::ranges::min_element(
        all, [](const Incident* pA, const Incident* pB) { return isWorse(pA->episodes[pA->leading], pB->episodes[pB->leading]); })};
}

void IncidentGraph::findSpan(const std::vector<const Incident*>& incidents)
{
    double start = incidents.front()->start, end = start;
    for (const Incident* pIncident : incidents) {
        start = std::min({start, pIncident->start, pIncident->end});
        end = std::max({end, pIncident->start, pIncident->end});
    }
    const double half = std::max(end - start, kLeastLength) * (0.5 + kMargin);
    mSpan = {(start + end) / 2 - half, (start + end) / 2 + half};
}

std::vector<IncidentGraph::Quantity> IncidentGraph::quantities(const std::vector<const Incident*>& incidents, bool isValue)
{
    std::vector<Quantity> found;
    std::map<QString, std::size_t> places;
    for (const Incident* pIncident : incidents) {
        for (const Episode& episode : pIncident->episodes) {
            if (isValueKind(episode) != isValue)
                continue;
            const QString name = reportText(episode.parameter);
            const auto [place, isNew] = places.try_emplace(IncidentText::laneless(name), found.size());
            if (isNew)
                found.push_back({name, {}});
            Quantity& quantity = found[place->second];
            if (quantity.name != name)
                quantity.name = place->first;
            quantity.episodes.push_back(&episode);
        }
    }
    const auto worseEpisode = [](const Episode* pA, const Episode* pB) { return isWorse(*pA, *pB); };
    for (Quantity& quantity : found)
        std::ranges::stable_sort(quantity.episodes, worseEpisode);
    std::ranges::stable_sort(found,
                             [&](const Quantity& a, const Quantity& b) { return worseEpisode(a.episodes.front(), b.episodes.front()); });
    return found;
}

void IncidentGraph::findStrips(const std::vector<const Incident*>& incidents)
{
    const ProfileModel& model = mSubject.loaded.context.model();
    const PaperGraph graph(mSubject, 1);
    for (const Quantity& quantity : quantities(incidents, true)) {
        const Episode& worst = *quantity.episodes.front();
        const ProfileParameter* pParameter = model.find(worst.parameter);
        if (!pParameter || !graph.canShow(*pParameter))
            continue;
        if (mStrips.size() < kMostStrips)
            mStrips.push_back({&worst, *pParameter});
        else
            mLeftOut << quantity.name;
    }
    // To tell what the engine did when lamps and faults are all there is.
    for (const char* key : {"EngineSpeed", "EngineSpeedA", "ManifoldPressureA", "ThrottleA", "FuelA", "GroundSpeed"}) {
        const ProfileParameter& parameter = model.ofZarnType(key);
        if (mStrips.empty() && !parameter.name.empty() && graph.canShow(parameter))
            mStrips.push_back({nullptr, parameter});
    }
}

double IncidentGraph::barsHeight() const
{
    return mBars.empty() ? 0.0 : kBar * static_cast<double>(mBars.size()) + 2.0;
}

/// Of what a graph has below its strips: the times take one line, two notes take two.
double IncidentGraph::unused() const
{
    constexpr double kLine = 8.0;
    return mOf && !mLeftOut.isEmpty() ? 0.0 : kLine;
}

double IncidentGraph::height() const
{
    if (mStrips.empty())
        return 0.0;
    const double strips = std::max(kStrip * static_cast<double>(mStrips.size()), kLeastStrips);
    return barsHeight() + kAbove + strips + PaperGraph::frame().below - unused();
}

QString IncidentGraph::text() const
{
    QStringList names;
    for (const Quantity& quantity : mBars)
        names << quantity.name;
    for (const Strip& strip : mStrips)
        names << reportText(strip.parameter.name);
    QString text = tr("%1, %2 to %3").arg(names.join(", "), time(mSpan.start), time(mSpan.end));
    if (mOf)
        text += "; " + tr("the worst of them, at %1").arg(time(*mOf));
    if (!mLeftOut.isEmpty())
        text += "; " + tr("not shown: %1").arg(mLeftOut.join(", "));
    return text;
}

QString IncidentGraph::note(const Episode& episode)
{
    if (!episode.shown)
        return {};
    const QString peak = (episode.side == ESide::eLow ? tr("least %1") : tr("peak %1")).arg(reportText(episode.text));
    const QString limit = tr("limit %1").arg(QString::number(episode.shown->limit, 'g', 6));
    const auto whole = [](QString text) { return text.replace(' ', QChar::Nbsp); }; // lines end between the two only
    return whole(peak + ",") + " " + whole(limit);
}

void IncidentGraph::draw(PaperCanvas& canvas, const QRectF& place) const
{
    PaperGraph graph(mSubject, static_cast<int>(mStrips.size()));
    std::vector<std::optional<int>> strips;
    for (const Strip& strip : mStrips)
        strips.push_back(
            graph.add(strip.parameter, {mSpan.start - kBeside, mSpan.end + kBeside}, strip.pEpisode ? note(*strip.pEpisode) : QString()));
    graph.setWindow(mSpan);
    canvas.push();
    canvas.clip(place); // what a graph has above its strips is left out here
    graph.draw(canvas, place.adjusted(0, barsHeight() + kAbove - PaperGraph::frame().above, 0, unused()));
    drawBars(canvas, graph, {place.left(), graph.plot().top() - barsHeight(), place.width(), barsHeight()});
    drawPeaks(canvas, graph, strips);
    drawNotes(canvas, {place.left(), graph.plot().bottom() + 4});
    canvas.pop();
}

/// What it leaves out, in the corner that names and times leave free.
void IncidentGraph::drawNotes(PaperCanvas& canvas, QPointF corner) const
{
    const CanvasText style{PaperGraph::kTextSize, Palette::print().text.quiet, false, Qt::AlignLeft | Qt::AlignTop, false};
    QStringList notes;
    if (mOf)
        notes << tr("the worst of them, at %1").arg(time(*mOf));
    if (!mLeftOut.isEmpty())
        notes << tr("not shown: %n more", nullptr, static_cast<int>(mLeftOut.size()));
    for (const QString& note : notes) {
        canvas.text(corner, PaperCanvas::shortened(note, PaperGraph::kNames + 10, style), style);
        corner.ry() += PaperGraph::kTextSize + 1.5;
    }
}

void IncidentGraph::drawBars(PaperCanvas& canvas, const PaperGraph& graph, const QRectF& place) const
{
    const QRectF plot = graph.plot();
    const CanvasText style{PaperGraph::kTextSize, Qt::black, false, Qt::AlignLeft | Qt::AlignTop, false};
    double y = place.top();
    for (const Quantity& bar : mBars) {
        canvas.text({place.left(), y - 0.5}, PaperCanvas::shortened(printable(bar.name), plot.left() - place.left() - 4, style), style);
        canvas.fillRect({plot.left(), y + kBar / 2, plot.width(), 0.4}, Palette::print().graph.grid);
        for (auto episode = bar.episodes.rbegin(); episode != bar.episodes.rend(); ++episode) { // the worst above
            const double from = std::clamp(graph.xOf(std::min((*episode)->start, (*episode)->end)), plot.left(), plot.right());
            const double to = std::clamp(graph.xOf(std::max((*episode)->start, (*episode)->end)), plot.left(), plot.right());
            canvas.fillRect({from, y + 1.5, std::max(to - from, kLeastWidth), kBar - 3.0},
                            VerdictSign::colour(VerdictSign::ofState((*episode)->state)));
        }
        y += kBar;
    }
}

void IncidentGraph::drawPeaks(PaperCanvas& canvas, const PaperGraph& graph, const std::vector<std::optional<int>>& strips) const
{
    for (std::size_t i = 0; i < strips.size(); ++i) {
        const Episode* pEpisode = mStrips[i].pEpisode;
        if (!strips[i] || !pEpisode || !pEpisode->shown)
            continue;
        const QPointF peak = graph.at(*strips[i], pEpisode->peakTime, pEpisode->shown->value);
        for (const auto& [radius, colour] : {std::pair(kPeak + 1.0, QColor(Qt::white)), {kPeak, QColor(Qt::black)}}) {
            std::vector<QPointF> disc = circle(radius, 16);
            for (QPointF& point : disc)
                point += peak;
            canvas.polygon(disc, colour);
        }
    }
}

} // namespace ZARN
