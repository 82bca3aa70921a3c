#include "export/ExportCsv.h"

#include "app/NumberText.h"
#include "app/SafeFile.h"
#include "export/CsvColumn.h"
#include "export/CsvTime.h"
#include "export/ProgressSpan.h"

#include <QFile>

#include <algorithm>

namespace ZARN {

namespace {

constexpr int kColumnsPercent = 5; // of the whole work, to order the columns' samples

/// Turns the columns' cells of one window after the other into lines.
class CsvRows {
public:
    CsvRows(std::vector<CsvColumn>& columns, const CsvExportOptions& options, CsvTime time, SafeFile& file, const ProgressSpan& progress)
        : mColumns(columns), mResolution(options.resolution), mTime(std::move(time)), mSpan(options.span), mFile(file),
          mProgress(progress), mWindow(windowTicks(columns.size())), mCells(columns.size() * mWindow.marked.size()),
          mLines(std::max(kLinesSize, CsvTime::kSize + (columns.size() + 1) * sizeof(CsvCell)))
    {
    }

    /// @return false when a write failed, or the user cancels.
    bool write()
    {
        uint64_t samples = 0;
        for (const CsvColumn& column : mColumns)
            samples += column.sampleCount();
        for (uint64_t tick = CsvColumn::firstTick(mColumns); tick != CsvColumn::kNoTick; tick = CsvColumn::firstTick(mColumns)) {
            mWindow.first = tick;
            fillWindow();
            if (!writeWindow() || !mProgress.step(samplesDone(), samples))
                return false;
            if (mSpan && seconds(mWindow.end()) > mSpan->end)
                break;
        }
        return true;
    }

private:
    [[nodiscard]] double seconds(uint64_t tick) const { return static_cast<double>(tick) * mResolution / 1000; }

    [[nodiscard]] uint64_t samplesDone() const
    {
        uint64_t done = 0;
        for (const CsvColumn& column : mColumns)
            done += column.samplesDone();
        return done;
    }

    // Column after column, since one column's samples lie side by side and take the same branches.
    void fillWindow()
    {
        std::fill(mWindow.marked.begin(), mWindow.marked.end(), uint8_t{0});
        mWindow.rows.clear();
        mLongTexts.clear();
        for (CsvColumn& column : mColumns)
            column.collect(mWindow);
        for (std::size_t offset = 0; offset < mWindow.marked.size(); ++offset) {
            if (mWindow.marked[offset])
                mWindow.rows.push_back(static_cast<uint16_t>(offset));
        }
        CsvCell* pCells = mCells.data();
        for (CsvColumn& column : mColumns) {
            column.fill(mWindow, pCells, mLongTexts);
            pCells += mWindow.marked.size();
        }
    }

    bool writeWindow()
    {
        mpOut = mLines.data();
        for (std::size_t row = 0; row < mWindow.rows.size(); ++row) {
            if (!mSpan || mSpan->holds(seconds(mWindow.first + mWindow.rows[row])))
                writeLine(row);
        }
        return flush();
    }

    void writeLine(std::size_t row)
    {
        // Room for a line of short texts; long ones see to theirs themselves.
        if (room() < CsvTime::kSize + (mColumns.size() + 1) * sizeof(CsvCell))
            flush();
        mpOut = mTime.write(mpOut, static_cast<uint32_t>(mWindow.first + mWindow.rows[row]));
        const CsvCell* pCell = mCells.data() + row;
        char* pOut = mpOut; // a local one: what is written through it cannot be the pointer itself
        for (std::size_t column = 0; column < mColumns.size(); ++column, pCell += mWindow.marked.size()) {
            if (pCell->length == CsvCell::kAside) {
                mpOut = pOut;
                writeLongText(*pCell);
                pOut = mpOut;
            } else {
                std::memcpy(pOut, pCell, sizeof *pCell); // whole: only `length` characters of it count
                pOut += pCell->length;
            }
        }
        pOut[-1] = '\n'; // in place of the last separator
        mpOut = pOut;
    }

    void writeLongText(const CsvCell& cell)
    {
        uint32_t number = 0;
        std::memcpy(&number, cell.text, sizeof number);
        std::string_view text = mLongTexts[number];
        const std::size_t reserve = (mColumns.size() + 1) * sizeof(CsvCell);
        while (room() < text.size() + reserve) {
            flush();
            const std::size_t part =
                std::min(text.size() - 1, mLines.size() - reserve); // the last character stays in reach of the line's end
            std::copy_n(text.data(), part, mpOut);
            mpOut += part;
            text.remove_prefix(part);
        }
        mpOut = std::copy(text.begin(), text.end(), mpOut);
    }

    [[nodiscard]] std::size_t room() const { return static_cast<std::size_t>(mLines.data() + mLines.size() - mpOut); }

    /// After a failure every later call fails too.
    bool flush()
    {
        const bool written = mFile.write({mLines.data(), static_cast<std::size_t>(mpOut - mLines.data())});
        mpOut = mLines.data();
        return written;
    }

    static constexpr std::size_t kLinesSize = 256 * 1024;
    static constexpr std::size_t kMostCells = 1 << 20; // a window of many columns has fewer ticks
    // No power of two: the cells of a row, one a column, would all fall on the same few lines of the processor's cache.
    static constexpr std::size_t kMostTicks = 508;
    static uint32_t windowTicks(std::size_t columns)
    {
        return static_cast<uint32_t>(std::clamp<std::size_t>(kMostCells / std::max<std::size_t>(columns, 1), 1, kMostTicks));
    }

    std::vector<CsvColumn>& mColumns;
    uint32_t mResolution;
    CsvTime mTime;
    std::optional<TimeSpan> mSpan;
    SafeFile& mFile;
    const ProgressSpan& mProgress;
    CsvWindow mWindow;
    std::vector<CsvCell> mCells; // column by column, one a tick of the window
    std::vector<std::string> mLongTexts;
    std::vector<char> mLines;
    char* mpOut = nullptr;
};

} // namespace

bool ExportCsv::exportData(const RecordData& recordData, const CsvExportOptions& options, Progress& progress)
{
    SafeFile file(QFile::encodeName(options.directory + "/" + options.fileName).toStdString());
    return writeFile(file, recordData, options, progress);
}

bool ExportCsv::writeFile(SafeFile& file, const RecordData& recordData, const CsvExportOptions& options, Progress& progress)
{
    mError.clear();
    const std::optional<CsvForm> form = CsvForm::of(options.locale, options.separator);
    if (!form)
        mError = "no locale " + options.locale.toStdString();
    else if (options.resolution == 0 || 1000 % options.resolution != 0)
        mError = "no resolution of " + std::to_string(options.resolution) + " ms";
    else if (!file.open())
        mError = file.error();
    if (!mError.empty())
        return false;
    const CsvTime time(*form, mPowerUp, options.times, options.resolution);
    std::string header = (form->isForSpreadsheet ? CsvForm::kByteOrderMark : "") + time.titles();
    const TraceSet traces(&recordData, mContext, ENumber::eText, options.allParameters ? TraceSet::all() : TraceSet::selected(mSelection));
    std::vector<CsvColumn> columns;
    if (!makeColumns(traces, options, *form, ProgressSpan(progress, 0, kColumnsPercent), columns, header))
        return false;
    const ProgressSpan rows(progress, kColumnsPercent, 100);
    if (file.write(header + "\n") && CsvRows(columns, options, time, file, rows).write() && file.commit())
        return true;
    mError = file.error();
    return false;
}

bool ExportCsv::makeColumns(const TraceSet& traces, const CsvExportOptions& options, const CsvForm& form,
                            const ProgressSpan& progress, std::vector<CsvColumn>& columns, std::string& header)
{
    const double ticksPerSecond = 1 / (options.resolution * 0.001);
    for (const auto& pTrace : traces.traces()) {
        header += form.separator + form.title(pTrace->name(), pTrace->unit());
        columns.emplace_back(*pTrace, ticksPerSecond, form);
        if (!progress.step(columns.size(), traces.size()))
            return false;
    }
    return true;
}

} // namespace ZARN
