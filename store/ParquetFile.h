#pragma once

#include "app/SafeFile.h"
#include "store/ParquetColumn.h"

#include <map>
#include <memory>

namespace ZARN {

/// Writes a Parquet file, which takes its place when it is whole. The same rows make the same bytes.
class ParquetFile {
public:
    using Notes = std::map<std::string, std::string>;

    /// Rows of a group, so that it holds about a million fields.
    [[nodiscard]] static std::size_t groupRows(std::size_t columns);

    ParquetFile(const std::string& path, std::vector<ParquetColumn> columns);
    ~ParquetFile();

    /// Writes a group of rows. @param fields of each column, as many of all
    void addGroup(const std::vector<ParquetFields>& fields);
    /// A table that is short.
    void addRows(const std::vector<std::vector<FieldValue>>& rows);
    /// @param notes that are kept with the file. @return empty, or "NAME: reason"
    std::string finish(const Notes& notes);

    /// The notes of a file; none when it is no whole one.
    [[nodiscard]] static Notes notesOf(const std::string& path);

private:
    struct Metadata;
    class Compressor;
    void addChunk(const ParquetColumn& column, const ParquetFields& fields);
    /// @return the bytes that the page takes without compression, its header included
    int64_t addPage(const std::string& body, const ParquetPages& pages, bool isDictionary, std::size_t fields,
                    const std::string& compressed);

    SafeFile mFile;
    const std::vector<ParquetColumn> mColumns;
    int64_t mOffset = 0;
    std::unique_ptr<Metadata> mpMetadata;
    std::unique_ptr<Compressor> mpCompressor;
};

} // namespace ZARN
