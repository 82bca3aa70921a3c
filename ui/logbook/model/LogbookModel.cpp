#include "ui/logbook/model/LogbookModel.h"

#include "app/TimeText.h"
#include "ui/logbook/model/LogbookTexts.h"

#include <algorithm>
#include <array>

namespace ZARN {

namespace {

constexpr int kPage = 128;             // rows
constexpr std::size_t kMostPages = 64; // that are kept

ELogbookOrder orderOf(int column)
{
    switch (column) {
    case LogbookModel::eEngine: return ELogbookOrder::eEngine;
    case LogbookModel::eFlightTime: return ELogbookOrder::eFlightTime;
    case LogbookModel::eFuel: return ELogbookOrder::eFuel;
    case LogbookModel::eClimb: return ELogbookOrder::eClimb;
    case LogbookModel::eVerdict: return ELogbookOrder::eVerdict;
    default: return ELogbookOrder::eDate;
    }
}

} // namespace

LogbookModel::LogbookModel(LogbookWorker& worker, QObject* pParent) : QAbstractTableModel(pParent), mWorker(worker) {}

void LogbookModel::setFilter(const LogbookFilter& filter)
{
    mFilter = filter;
    select(false);
}

void LogbookModel::reload()
{
    select(true);
}

void LogbookModel::sort(int column, Qt::SortOrder order)
{
    mColumn = column;
    mOrder = order;
    select(false);
}

void LogbookModel::select(bool isRead)
{
    mWorker.ask(
        [filter = mFilter, order = orderOf(mColumn), isDescending = mOrder == Qt::DescendingOrder, isRead](LogbookReader& reader) {
            return reader.index(isRead).select(filter, order, isDescending);
        },
        [this, asked = ++mAsked](LogbookSelection selection) {
            if (asked != mAsked) // a later one is on its way
                return;
            beginResetModel();
            mRead = asked;
            mFlights = std::move(selection.flights);
            mTotals = selection.totals;
            mPages.clear();
            mUsed.clear();
            endResetModel();
            Q_EMIT signalSelected();
        });
}

const LogbookEntry* LogbookModel::entry(int row) const
{
    const int page = row / kPage;
    const auto found = mPages.find(page);
    if (found == mPages.end())
        askPage(page);
    if (found == mPages.end() || found->second.empty())
        return nullptr;
    const LogbookEntry& entry = found->second[static_cast<std::size_t>(row % kPage)];
    return entry.flight == 0 ? nullptr : &entry;
}

void LogbookModel::askPage(int page) const
{
    mPages[page];
    mUsed.push_back(page);
    if (mUsed.size() > kMostPages) {
        mPages.erase(mUsed.front());
        mUsed.erase(mUsed.begin());
    }
    const std::size_t first = static_cast<std::size_t>(page) * kPage;
    std::vector<int64_t> flights(mFlights.begin() + static_cast<std::ptrdiff_t>(first),
                                 mFlights.begin() + static_cast<std::ptrdiff_t>(std::min(first + kPage, mFlights.size())));
    auto* pThis = const_cast<LogbookModel*>(this); // what is shown comes later; asking for it changes nothing that is
    mWorker.ask([flights](LogbookReader& reader) { return reader.entries(flights); },
                [pThis, page, read = mRead](std::vector<LogbookEntry> entries) {
                    if (read == pThis->mRead)
                        pThis->takePage(page, std::move(entries));
                });
}

void LogbookModel::takePage(int page, std::vector<LogbookEntry> entries)
{
    const auto found = mPages.find(page);
    if (found == mPages.end() || entries.empty())
        return; // nobody looks there any more
    const int first = page * kPage, last = first + static_cast<int>(entries.size()) - 1;
    found->second = std::move(entries);
    Q_EMIT dataChanged(index(first, 0), index(last, eColumns - 1));
}

int LogbookModel::rowOf(int64_t flight) const
{
    const auto found = std::ranges::find(mFlights, flight);
    return found == mFlights.end() ? -1 : static_cast<int>(found - mFlights.begin());
}

int LogbookModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(mFlights.size());
}

int LogbookModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(eColumns);
}

QString LogbookModel::text(const LogbookEntry& entry, int column, const LogbookUnits& units)
{
    const auto number = [](const std::optional<double>& value, int decimals) {
        return value ? QLocale().toString(*value, 'f', decimals) : QStringLiteral("-");
    };
    switch (column) {
    case eDate: return entry.dateTime.empty() ? tr("clock not set") : LogbookTexts::dateTime(entry.dateTime);
    case eEngine: return LogbookTexts::engine(entry.engine, entry.aircraft);
    case eFlightTime: return hoursText(entry.flightTime);
    case eFuel: return number(units.fuel(entry.fuel), 1);
    case eClimb: return number(units.climb(entry.climb), 0);
    case eVerdict: return LogbookTexts::verdictName(entry.verdict);
    case eCard: return tr("%1, cycle %2, flight %3").arg(QString::fromStdString(entry.cardName)).arg(entry.cycle).arg(entry.number);
    case eNotes: return entry.notes;
    default: return {};
    }
}

QString LogbookModel::tip(const LogbookEntry& entry, int column)
{
    if (column == eVerdict && entry.whole > entry.verdict)
        return tr("The whole recording, with its time on the ground: %1").arg(LogbookTexts::verdictName(entry.whole));
    return column == eCard ? QString::fromStdString(entry.cardPath) : column == eNotes ? entry.notes : QString();
}

QVariant LogbookModel::data(const QModelIndex& index, int role) const
{
    const int column = index.column();
    if (role == Qt::TextAlignmentRole && isNumber(column))
        return static_cast<int>(Qt::AlignRight | Qt::AlignVCenter);
    if (role != Qt::DisplayRole && role != Qt::UserRole && role != Qt::ToolTipRole)
        return {};
    const LogbookEntry* pEntry = entry(index.row());
    if (!pEntry)
        return {};
    if (role == Qt::UserRole) // of the verdict's sign
        return static_cast<int>(pEntry->verdict);
    if (role == Qt::ToolTipRole) {
        const QString tip = this->tip(*pEntry, column);
        return tip.isEmpty() ? QString() : "<span>" + tip.toHtmlEscaped() + "</span>";
    }
    return text(*pEntry, column, mUnits);
}

QVariant LogbookModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return static_cast<int>(isNumber(section) ? Qt::AlignRight | Qt::AlignVCenter : Qt::AlignLeft | Qt::AlignVCenter);
    return role == Qt::DisplayRole ? title(section, mUnits) : QVariant();
}

void LogbookModel::setUnits(const LogbookUnits& units)
{
    if (mUnits == units)
        return;
    mUnits = units;
    Q_EMIT headerDataChanged(Qt::Horizontal, eFuel, eClimb);
    if (!mFlights.empty())
        Q_EMIT dataChanged(index(0, eFuel), index(static_cast<int>(mFlights.size()) - 1, eClimb));
}

QString LogbookModel::title(int column, const LogbookUnits& units)
{
    const QString titles[] = {tr("Date"),      tr("Aircraft or engine"), tr("Flight [h]"), tr("Fuel [%1]").arg(units.fuelUnit()),
                              tr("Climb [%1]").arg(units.climbUnit()), tr("Verdict"),            tr("Card"),       tr("Notes")};
    return column >= 0 && column < eColumns ? titles[column] : QString();
}

QString LogbookModel::key(int column)
{
    constexpr std::array kKeys = {"date", "engine", "flight", "fuel", "climb", "verdict", "card", "notes"};
    static_assert(kKeys.size() == eColumns);
    return QLatin1String(kKeys.at(static_cast<std::size_t>(column)));
}

} // namespace ZARN
