#pragma once

#include "export/CsvForm.h"
#include "project/TimeReference.h"

#include <QDateTime>

namespace ZARN {

/// The first cells of a table's rows: the time as the user wants it told; for spreadsheets the time since power-up and, where the unit had a
/// clock, date and time.
class CsvTime {
public:
    static constexpr std::size_t kSize = 512; ///< of the cells of a row

    /// @param powerUp wall clock of time 0; invalid without one
    CsvTime(const CsvForm& form, const QDateTime& powerUp, const TimeReference& times, uint32_t resolution);

    /// With separators between them.
    [[nodiscard]] std::string titles() const;
    /// The cells with the separators behind them. @param pOut room for kSize characters. @return their end
    char* write(char* pOut, uint32_t tick);

private:
    char* writeDateTime(char* pOut, int64_t milliseconds);

    const CsvForm mForm;
    const bool mHasClock;
    const int64_t mPowerUp;
    const TimeReference mTimes;
    const uint32_t mResolution;
    int64_t mDay = -1;     // since 1970, whose text is
    std::string mDateText; // with a blank behind it
};

} // namespace ZARN
