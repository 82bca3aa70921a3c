#pragma once

#include "card/record/RecordInfo.h"

#include <string>
#include <string_view>

namespace ZARN {

/// Makes the bytes of record files as RecordFile reads them, in either byte order: what writes recordings writes them with this.
/// Appends to bytes(), which its owner may take or clear at any time.
class RecordWriter {
public:
    explicit RecordWriter(bool bigEndian = false) : mBigEndian(bigEndian) {}

    /// The file's 128 bytes of header. An invalid date is written as zeros, texts longer than their field are cut. Span and number of
    /// records stand in the records alone. @param ticks of the unit's counter when the file was begun.
    void putHeader(const RecordInfo& info, uint64_t ticks);
    /// The 28 bytes of a record.
    void putRecord(uint32_t identifier, const StoredRecord& record);

    /// "LOG00001.CAN": how the files of a recording are called, in the order of their numbers, which have five digits at most.
    static constexpr unsigned kHighestNumber = 99'999;
    [[nodiscard]] static std::string fileName(unsigned number);

    [[nodiscard]] std::string& bytes() { return mBytes; }

private:
    void putNumber(uint64_t value, int width);
    void putTicks(uint64_t ticks);
    void putText(std::string_view text, std::size_t width);

    bool mBigEndian;
    std::string mBytes;
};

} // namespace ZARN
