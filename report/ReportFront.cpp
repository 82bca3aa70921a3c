#include "report/ReportFront.h"

#include "analysis/ReviewText.h"
#include "report/IncidentGraph.h"
#include "report/PaperCanvas.h"
#include "report/ReportText.h"
#include "ui/overview/model/OverviewTexts.h"
#include "ui/overview/model/VerdictSign.h"

namespace ZARN {

namespace {

constexpr std::size_t kMostSentences = 40;
constexpr std::size_t kMostGraphs = 12;
constexpr std::size_t kMostProblems = 20;

QString capitalised(QString text)
{
    if (!text.isEmpty())
        text[0] = text[0].toUpper();
    return text;
}

} // namespace

ReportFront::ReportFront(const ReportSubject& subject)
    : mSubject(subject), mLoaded(subject.loaded), mTimes(subject.reference()), mpOverview(std::make_shared<CycleOverview>())
{
    const LoadedCard& loaded = mLoaded;
    CycleOverview& overview = *mpOverview;
    const std::vector<RecordFlight> flights = loaded.cycle ? loaded.flights : std::vector<RecordFlight>();
    overview.number = loaded.cycle.value_or(0);
    overview.dateTime = loaded.powerUp;
    overview.startTime = loaded.startTime;
    overview.endTime = loaded.endTime;
    overview.flights = flights;
    overview.times = mTimes;
    overview.review = reviewCycle(loaded.values(), flights, loaded.wholeEnd);
    mPhases = overview.review.phases;
    mEngine = overview.review.engine;
    if (!isFlight())
        return;
    const std::size_t all = overview.review.incidents.size();
    overview.flights = {loaded.flight};
    overview.review = reviewFlight(overview.review, loaded.values(), flights, loaded.flight, loaded.wholeEnd);
    mOutside = all - overview.review.incidents.size();
}

void ReportFront::addTo(ReportDocument& document) const
{
    addVerdict(document);
    addIdentity(document);
    addProblems(document);
    addIncidents(document);
    addNotes(document);
}

void ReportFront::addVerdict(ReportDocument& document) const
{
    document.add(ReportVerdict{mpOverview->review.verdict, capitalised(ReviewText(mpOverview->review).verdict()),
                               OverviewTexts::verdict(*mpOverview)});
    ReportFigures figures;
    for (const OverviewTexts::Figure& figure : OverviewTexts::figures(*mpOverview))
        figures.entries.push_back({figure.name, figure.value});
    if (mLoaded.cycle && !isFlight())
        figures.entries.push_back({tr("flights"), QString::number(mpOverview->flights.size())});
    document.add(std::move(figures));
}

void ReportFront::addIdentity(ReportDocument& document) const
{
    const ProfileModel& model = mLoaded.context.model();
    const QString cycle = mLoaded.cycle ? QString::number(*mLoaded.cycle) : tr("single files");
    document.add(
        ReportPairs{{{tr("Card"), mLoaded.card},
                     {tr("Date, as recorded"), reportDate(mLoaded.powerUp, tr("no clock"))},
                     {tr("Power cycle"), isFlight() ? tr("%1, flight %2").arg(cycle, QString::number(mLoaded.flightNumber)) : cycle},
                     {tr("From"), mTimes.textAt(mLoaded.startTime)},
                     {tr("Profile"), reportText(model.name)},
                     {tr("To"), mTimes.textAt(mLoaded.endTime)},
                     {tr("Variant"), model.variant.empty() ? QStringLiteral("-") : reportText(model.variant)}}});
    document.add(ReportParagraph{mTimes.sentence(), ReportParagraph::eQuiet});
}

void ReportFront::addProblems(ReportDocument& document) const
{
    if (mLoaded.problems.empty())
        return;
    document.add(ReportHeading{tr("Problems of the card")});
    for (std::size_t i = 0; i < std::min(kMostProblems, mLoaded.problems.size()); ++i) {
        const CardProblem& problem = mLoaded.problems[i];
        const QString file = problem.file.empty() ? mLoaded.card : reportText(problem.file);
        document.add(ReportParagraph{file + ": " + problem.reason, ReportParagraph::eAlert});
    }
    if (mLoaded.problems.size() > kMostProblems)
        document.add(ReportParagraph{tr("and %n more", nullptr, static_cast<int>(mLoaded.problems.size() - kMostProblems))});
}

void ReportFront::addIncidents(ReportDocument& document) const
{
    const std::vector<IncidentSentence> sentences = OverviewTexts::sentences(*mpOverview);
    document.add(ReportHeading{tr("What happened")});
    if (sentences.empty())
        document.add(ReportParagraph{OverviewTexts::verdict(*mpOverview) + "."});
    for (std::size_t i = 0; i < std::min(kMostSentences, sentences.size()); ++i) {
        const IncidentSentence& sentence = sentences[i];
        document.add(ReportIncident{VerdictSign::ofState(sentence.state), sentence.state >= eThresholdLimit ? tr("limit") : tr("warning"),
                                    sentence.time, sentence.what, sentence.text().mid(sentence.what.size()),
                                    i < kMostGraphs ? graph(sentence) : ReportPicture()});
    }
    if (sentences.size() > kMostSentences)
        document.add(ReportParagraph{moreText(sentences, kMostSentences), ReportParagraph::eAlert});
    else if (sentences.size() > kMostGraphs)
        document.add(ReportParagraph{tr("The first %1 are shown as graphs.").arg(kMostGraphs), ReportParagraph::eQuiet});
    if (mOutside > 0)
        document.add(ReportParagraph{tr("Outside of the flight: %n more in this power cycle.", nullptr, static_cast<int>(mOutside))});
    const bool isAllKnown = ReviewText(mpOverview->review).gaps().isEmpty();
    document.add(ReportParagraph{OverviewTexts::basis(*mpOverview), isAllKnown ? ReportParagraph::eQuiet : ReportParagraph::eNormal});
}

/// Those of the span that the report is about.
void ReportFront::addNotes(ReportDocument& document) const
{
    ReportTable table{tr("Notes"), {{tr("Time"), false, {}, true}, {tr("Note")}}};
    for (const CycleNote& note : mSubject.notes) {
        if (note.time < mLoaded.startTime || note.time > mLoaded.endTime)
            continue;
        table.columns[0].cells << mTimes.textAt(note.time);
        table.columns[1].cells << printable(note.text);
    }
    if (table.columns[0].cells.isEmpty())
        return;
    document.add(ReportHeading{tr("Notes")});
    document.add(std::move(table));
}

QString ReportFront::moreText(const std::vector<IncidentSentence>& sentences, std::size_t told) const
{
    std::size_t limits = 0, incidents = 0;
    for (std::size_t i = told; i < sentences.size(); ++i) {
        limits += sentences[i].state >= eThresholdLimit ? sentences[i].incidents.size() : 0;
        incidents += sentences[i].incidents.size();
    }
    return tr("Not told here: %1 more of the incidents (beyond a limit: %2, warnings: %3). The first %4 are shown as graphs.")
        .arg(QString::number(incidents), QString::number(limits), QString::number(incidents - limits), QString::number(kMostGraphs));
}

ReportPicture ReportFront::graph(const IncidentSentence& sentence) const
{
    const auto pGraph = std::make_shared<IncidentGraph>(mSubject, mpOverview->review.incidents, sentence);
    if (pGraph->height() <= 0.0)
        return {};
    return {pGraph->text(), pGraph->height(), false, [pGraph, pOverview = mpOverview](QPainter& painter, const QSizeF& size) {
                PaperCanvas canvas(painter);
                pGraph->draw(canvas, {QPointF(), size});
            }};
}

} // namespace ZARN
