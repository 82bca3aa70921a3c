#include "store/ParquetSamples.h"

#include "export/CsvColumn.h"
#include "store/StoreText.h"
#include "trace/TraceSet.h"

#include <QString>

#include <algorithm>
#include <set>

namespace ZARN {

namespace {

constexpr std::size_t kMostTicks = 16384; // of a group of rows

/// The names of columns: readers take no two that differ in case only.
class ColumnNames {
public:
    std::string name(const std::string& wanted)
    {
        std::string name = wanted;
        for (int number = 2; !mTaken.insert(QString::fromStdString(name).toCaseFolded()).second; ++number)
            name = wanted + " " + std::to_string(number);
        return name;
    }

private:
    std::set<QString> mTaken;
};

/// The ticks of a cycle, window by window, each column filled forward.
class TickRows {
public:
    TickRows(const TraceSet& traces, double ticksPerSecond)
        : mTicksPerSecond(ticksPerSecond), mWindow(static_cast<uint32_t>(std::min(kMostTicks, ParquetFile::groupRows(traces.size() + 1)))),
          mHeld(traces.size()), mFields(traces.size() + 1)
    {
        for (const auto& pTrace : traces.traces()) {
            mColumns.emplace_back(*pTrace, ticksPerSecond, CsvForm{});
            mIsNumeric.push_back(pTrace->decoder().isNumeric() ? 1 : 0);
        }
    }

    void write(ParquetFile& file)
    {
        for (uint64_t tick = CsvColumn::firstTick(mColumns); tick != CsvColumn::kNoTick; tick = CsvColumn::firstTick(mColumns)) {
            mWindow.first = tick;
            fillWindow();
            file.addGroup(mFields);
        }
    }

private:
    void fillWindow()
    {
        std::ranges::fill(mWindow.marked, uint8_t{0});
        mWindow.rows.clear();
        for (CsvColumn& column : mColumns)
            column.collect(mWindow);
        for (std::size_t offset = 0; offset < mWindow.marked.size(); ++offset) {
            if (mWindow.marked[offset] != 0)
                mWindow.rows.push_back(static_cast<uint16_t>(offset));
        }
        ParquetFields& times = mFields.front();
        times.clear();
        for (const uint16_t row : mWindow.rows)
            times.reals.push_back(static_cast<double>(mWindow.first + row) / mTicksPerSecond);
        times.defined.assign(mWindow.rows.size(), 1);
        for (std::size_t column = 0; column < mColumns.size(); ++column)
            fillColumn(column);
    }

    void fillColumn(std::size_t column)
    {
        ParquetFields& fields = mFields[column + 1];
        const std::span<const uint16_t> offsets = mColumns[column].takenOffsets();
        const std::span<const double> numbers = mColumns[column].takenNumbers();
        std::optional<double>& held = mHeld[column];
        fields.clear();
        fields.defined.reserve(mWindow.rows.size());
        std::size_t next = 0;
        for (const uint16_t row : mWindow.rows) {
            if (next < offsets.size() && offsets[next] == row) {
                if (mIsNumeric[column] != 0)
                    held = numbers[next];
                ++next;
            }
            fields.defined.push_back(held ? 1 : 0);
            if (held)
                fields.reals.push_back(*held);
        }
    }

    const double mTicksPerSecond;
    CsvWindow mWindow;
    std::vector<CsvColumn> mColumns;
    std::vector<uint8_t> mIsNumeric;
    std::vector<std::optional<double>> mHeld;
    std::vector<ParquetFields> mFields; // the times first
};

TraceSet metricTraces(const CycleValues& values)
{
    return {&values.data(), values.context().in(EUnit::eMetric), ENumber::eMetric, TraceSet::all()};
}

} // namespace

std::string ParquetSamples::write(const std::string& path, const ParquetFile::Notes& notes) const
{
    return mSamples == EParquetSamples::eAll ? writeAll(path, notes) : writeTicks(path, notes);
}

std::string ParquetSamples::writeTicks(const std::string& path, const ParquetFile::Notes& notes) const
{
    const TraceSet traces = metricTraces(mValues);
    ColumnNames names;
    std::vector<ParquetColumn> columns{{names.name("time"), ParquetColumn::eReal}};
    for (const auto& pTrace : traces.traces())
        columns.push_back({names.name(storeText(pTrace->name())), ParquetColumn::eReal});
    ParquetFile file(path, std::move(columns));
    TickRows(traces, mSamples == EParquetSamples::eTicks10 ? 100 : 10).write(file);
    return file.finish(notes);
}

std::string ParquetSamples::writeAll(const std::string& path, const ParquetFile::Notes& notes) const
{
    const TraceSet traces = metricTraces(mValues);
    std::vector<ParquetFields> fields(3);
    ParquetFile file(path, {{"parameter", ParquetColumn::eText}, {"time", ParquetColumn::eReal}, {"value", ParquetColumn::eReal}});
    const std::size_t most = ParquetFile::groupRows(fields.size());
    const auto flush = [&] {
        if (!fields.front().defined.empty())
            file.addGroup(fields);
        std::ranges::for_each(fields, &ParquetFields::clear);
    };
    for (const auto& pTrace : traces.traces()) {
        const FieldValue parameter = storeText(pTrace->name());
        const bool isNumeric = pTrace->decoder().isNumeric();
        pTrace->forEachSample([&](double time, double number) {
            fields[0].add(parameter);
            fields[1].add(time);
            fields[2].add(isNumeric ? FieldValue(number) : FieldValue());
            if (fields.front().defined.size() == most)
                flush();
        });
    }
    flush();
    return file.finish(notes);
}

} // namespace ZARN
