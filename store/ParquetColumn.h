#pragma once

#include "store/FieldValue.h"

#include <unordered_map>

namespace ZARN {

/// A column of a Parquet file. Any field of it may be nothing.
struct ParquetColumn {
    enum EType { eInteger, eReal, eText };
    std::string name;
    EType type;
};

/// The fields of a column in some rows. Of the numbers and texts only those that are there.
struct ParquetFields {
    std::vector<uint8_t> defined; ///< one a row: 1, or 0 for nothing
    std::vector<int64_t> integers;
    std::vector<double> reals;
    std::vector<std::string> texts; ///< each once
    std::vector<uint32_t> places;   ///< of a text column: which of the texts

    void add(const FieldValue& value);
    /// Forgets the rows, but not the texts.
    void clear();

private:
    std::unordered_map<std::string, uint32_t> mPlaces;
};

/// Fields as the bytes of a page.
struct ParquetPages {
    enum EEncoding { ePlain, eDictionary, eByteStreamSplit };
    EEncoding encoding = ePlain;
    std::string dictionary; ///< its page, where there is one
    uint32_t dictionarySize = 0;
    std::string data; ///< without the levels
};

/// The levels of definition, as they stand at the beginning of a page.
[[nodiscard]] std::string parquetLevels(const std::vector<uint8_t>& defined);
/// Fields with a dictionary; one that would not be worth it has none and is plain.
[[nodiscard]] ParquetPages parquetPages(ParquetColumn::EType type, const ParquetFields& fields);
/// Plain numbers of 8 bytes with all first bytes side by side, then all second ones.
[[nodiscard]] std::string splitByteStreams(const std::string& plain);
/// What readers check a page by.
[[nodiscard]] uint32_t parquetCrc(const std::string& bytes);

} // namespace ZARN
