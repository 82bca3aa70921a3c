#include "cli/SummaryText.h"

#include "analysis/IncidentText.h"
#include "analysis/ReviewText.h"
#include "card/FlightFigures.h"
#include "cli/Command.h"
#include "cli/VisibleText.h"

namespace ZARN {

namespace {

constexpr std::size_t kLines = 24; // of a screen
constexpr std::size_t kWidth = 96;

/// Breaks a line where it grows too long; those that follow are indented.
void appendWrapped(std::vector<std::string>& lines, const std::string& first, const QString& text)
{
    const std::string indent(first.size(), ' ');
    QString line = QString::fromStdString(first);
    bool isEmpty = true;
    for (const QString& word : QString::fromStdString(visibleText(text.toStdString())).split(' ', Qt::SkipEmptyParts)) {
        if (!isEmpty && static_cast<std::size_t>(line.size() + 1 + word.size()) > kWidth) {
            lines.push_back(line.toStdString());
            line = QString::fromStdString(indent);
            isEmpty = true;
        }
        line += (isEmpty ? QString() : QStringLiteral(" ")) + word;
        isEmpty = false;
    }
    lines.push_back(line.toStdString());
}

/// As many names as one line takes.
std::string standingLine(const ReviewText& text)
{
    constexpr qsizetype kMost = 6;
    QString line;
    for (qsizetype names = kMost; names > 0 && (line.isEmpty() || static_cast<std::size_t>(line.size()) > kWidth); --names)
        line = "  Not counted: " + text.standing(names);
    return visibleText(line.toStdString());
}

void appendHead(std::vector<std::string>& lines, const ReviewedCycle& reviewed)
{
    const RecordCycle& cycle = *reviewed.pCycle;
    const std::string length = reviewed.isEmpty ? "no record"
                               : cycle.hasSoundTimes()
                                   ? IncidentText::duration(reviewed.endTime - reviewed.startTime).toStdString() + " recorded"
                                   : "damaged, length unknown";
    const ReviewText text(reviewed.review);
    lines.push_back("Cycle " + std::to_string(reviewed.number) + ", " + tableDate(cycle.dateTime) + ", " + length + ": " +
                    text.verdict().toUpper().toStdString());
    const std::optional<double>& fuel = reviewed.review.fuel;
    appendWrapped(lines, "  ",
                  "Engine ran: " + text.engineRunning() +
                      "; fuel: " + (fuel && *fuel >= 0.0 ? QString::fromStdString(tableNumber(*fuel, 1)) + " l" : QString("unknown")) +
                      "; " + text.watched());
}

/// With the words that follow it.
std::string figure(const RecordFlight& flight, EFlightFigure figure, int decimals, const char* then)
{
    const std::optional<double> value = flightFigure(flight, figure);
    return (value ? tableNumber(*value, decimals) : "-") + then;
}

std::string climbText(const RecordFlight& flight)
{
    if (!flightFigure(flight, eFigureTotalClimb))
        return "climb unknown";
    return "climb " + figure(flight, eFigureTotalClimb, 0, " m at ") + figure(flight, eFigureClimbRate, 1, " m/s");
}

void appendFlights(std::vector<std::string>& lines, const std::vector<RecordFlight>& flights)
{
    constexpr std::size_t kMost = 4;
    for (std::size_t i = 0; i < std::min(kMost, flights.size()); ++i) {
        const RecordFlight& flight = flights[i];
        lines.push_back("  Flight " + std::to_string(i + 1) + ": take-off " + IncidentText::time(flight.takeOffTime).toStdString() + ", " +
                        IncidentText::duration(flight.landingTime - flight.takeOffTime).toStdString() + ", " + climbText(flight) +
                        ", fuel " + (flightFigure(flight, eFigureTotalFuel) ? figure(flight, eFigureTotalFuel, 1, " l") : "unknown"));
    }
    if (flights.size() > kMost)
        lines.push_back("  and " + std::to_string(flights.size() - kMost) + " more flights");
}

QLocale english()
{
    return {QLocale::English, QLocale::UnitedStates};
}

void appendUnusual(std::vector<std::string>& lines, const std::vector<UnusualFigure>& unusual, const DecodingContext& context)
{
    constexpr std::size_t kMost = 4;
    for (std::size_t i = 0; i < std::min(kMost, unusual.size()); ++i) {
        appendWrapped(lines, "  Unusual in flight " + std::to_string(unusual[i].flight) + ": ",
                      UnusualText(english(), context).sentence(unusual[i]));
    }
    if (unusual.size() > kMost)
        lines.push_back("  and " + std::to_string(unusual.size() - kMost) + " more unusual figures (--json tells all)");
}

} // namespace

std::string summaryText(const ReviewedCycle& reviewed, const DecodingContext& context)
{
    std::vector<std::string> lines, last;
    const ReviewText text(reviewed.review);
    appendHead(lines, reviewed);
    appendFlights(lines, reviewed.pCycle->flights);
    appendUnusual(last, reviewed.unusual, context);
    for (const QString& gap : text.gaps())
        appendWrapped(last, "  ", gap);
    if (!reviewed.review.standing.empty())
        last.push_back(standingLine(text));
    const std::vector<IncidentSentence> sentences = IncidentText(english()).sentences(reviewed.review.incidents);
    for (std::size_t i = 0; i < sentences.size(); ++i) {
        std::vector<std::string> more;
        appendWrapped(more, (sentences[i].state == eThresholdLimit ? "  !! " : "  !  ") + sentences[i].time.toStdString() + "  ",
                      sentences[i].text());
        if (lines.size() + more.size() + last.size() + 2 > kLines && i + 1 < sentences.size()) {
            lines.push_back("  and " + std::to_string(sentences.size() - i) + " more (--json tells all)");
            break;
        }
        lines.insert(lines.end(), more.begin(), more.end());
    }
    lines.insert(lines.end(), last.begin(), last.end());
    std::string all;
    for (const std::string& line : lines)
        all += line + "\n";
    return all;
}

} // namespace ZARN
