#include "ui/main/CardTree.h"

#include "app/DateText.h"
#include "app/TimeText.h"
#include "card/CardContainer.h"
#include "card/PowerUp.h"
#include "card/record/HeaderField.h"

namespace ZARN {

namespace {

/// A time since power-up, or a duration, as "hh:mm:ss"; wraps after 24 hours like every clock of the program.
QString clockText(double seconds)
{
    return timeOfDayText(wholeMilliseconds(seconds), false);
}

/// Joins the entries of consecutive equal dates below one entry.
class DateGroups {
public:
    void add(const QDate& date, const QString& text, CardNode node)
    {
        if (mNodes.empty() || date != mDate)
            mNodes.emplace_back().text = text;
        mDate = date;
        mNodes.back().children.push_back(std::move(node));
    }
    std::vector<CardNode> take() { return std::move(mNodes); }

private:
    std::vector<CardNode> mNodes;
    QDate mDate;
};

} // namespace

QString CardTree::printable(const std::string& text)
{
    QString result = QString::fromStdString(text);
    for (QChar& character : result) {
        if (!character.isPrint() && !character.isSurrogate())
            character = QChar::ReplacementCharacter;
    }
    return result;
}

QString CardTree::dateText(const QDate& date)
{
    return date.isValid() ? ZARN::dateText(date) : tr("Unknown Date");
}

std::vector<CardNode> CardTree::cycles(const CardContainer& container)
{
    DateGroups groups;
    for (const auto& [number, cycle] : container.recordCycles())
        groups.add(PowerUp::of(cycle).date(), dateText(PowerUp::of(cycle).date()), cycleNode(number, cycle));
    return groups.take();
}

CardNode CardTree::cycleNode(unsigned int number, const RecordCycle& cycle)
{
    CardNode node;
    node.cycle = number;
    if (cycle.files.empty()) { // it is received still
        node.text = cycle.name + " " + shortDateText(cycle.dateTime);
        return node;
    }
    const QString name = cycle.name.isEmpty() ? QString() : tr("Cycle %1").arg(number);
    // All three at once: what a name or date contains is never taken for the next mark.
    node.text = QStringLiteral("%1 %2 (%3)").arg(name, shortDateText(PowerUp::of(cycle)), clockText(cycle.endTime));
    return node;
}

std::vector<CardNode> CardTree::flights(unsigned int number, const RecordCycle& cycle)
{
    std::vector<CardNode> nodes;
    for (const RecordFlight& flight : cycle.flights) {
        CardNode node;
        const int index = static_cast<int>(nodes.size());
        node.text = tr("Flight %1 %2 (%3)")
                        .arg(QString::number(index + 1), clockText(flight.startTime), clockText(flight.endTime - flight.startTime));
        node.cycle = number;
        node.flight = index;
        nodes.push_back(std::move(node));
    }
    return nodes;
}

std::vector<CardNode> CardTree::rawData(const CardContainer& container)
{
    DateGroups groups;
    for (const auto& [name, info] : container.recordFiles())
        groups.add(info.dateTime.date(), dateText(info.dateTime.date()), fileNode(info));
    return groups.take();
}

CardNode CardTree::fileNode(const RecordInfo& info)
{
    CardNode node;
    node.text = info.fileName.section('/', -1) + "   " + shortDateText(info.dateTime);
    node.toolTip = tr("Start Time") + ": " + clockText(info.startTime) + "\n" + tr("Stop Time") + ": " + clockText(info.endTime);
    node.path = info.fileName;
    return node;
}

std::vector<CardNode> CardTree::headerLines(const RecordInfo& info)
{
    std::vector<CardNode> lines;
    const auto add = [&lines](const QString& label, const QString& value) { lines.emplace_back().text = label + ": " + value; };
    add(tr("Date"), dateText(info.dateTime.date()));
    add(tr("Start Time"), clockText(info.startTime));
    add(tr("Stop Time"), clockText(info.endTime));
    for (const HeaderField& field : HeaderField::all())
        add(field.title(), printable(field.text(info)));
    add(tr("Samples Total"), QString::number(info.samples));
    return lines;
}

} // namespace ZARN
