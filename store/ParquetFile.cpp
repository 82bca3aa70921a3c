#include "store/ParquetFile.h"

#include <thrift/protocol/TCompactProtocol.h>
#include <thrift/transport/TBufferTransports.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <fstream>

#include <parquet_types.h>
#include <zstd.h>

namespace ZARN {

namespace {

constexpr char kMagic[] = "PAR1";
constexpr std::size_t kMagicSize = 4, kLengthSize = 4;
constexpr std::size_t kGroupFields = 1'000'000;
constexpr std::size_t kMostStatistic = 256; // bytes of a text
constexpr int kLevel = 3;

using apache::thrift::protocol::TCompactProtocolT;
using apache::thrift::transport::TMemoryBuffer;

template <typename Struct> std::string packed(const Struct& content)
{
    const auto pBuffer = std::make_shared<TMemoryBuffer>();
    TCompactProtocolT<TMemoryBuffer> protocol(pBuffer);
    content.write(&protocol);
    return pBuffer->getBufferAsString();
}

template <typename Number> std::string bytesOf(Number number)
{
    std::string bytes(sizeof number, '\0');
    std::memcpy(bytes.data(), &number, sizeof number);
    return bytes;
}

template <typename Number> void setRange(parquet::Statistics& statistics, const std::vector<Number>& numbers)
{
    const auto [least, greatest] = std::ranges::minmax_element(numbers);
    statistics.__set_min_value(bytesOf(*least));
    statistics.__set_max_value(bytesOf(*greatest));
}

void setRealRange(parquet::Statistics& statistics, const std::vector<double>& numbers)
{
    double least = std::numeric_limits<double>::infinity(), greatest = -least;
    for (const double number : numbers) {
        least = number < least ? number : least;
        greatest = number > greatest ? number : greatest;
    }
    if (least > greatest)
        return; // nothing but what is no number
    statistics.__set_min_value(bytesOf(least == 0.0 ? -0.0 : least));
    statistics.__set_max_value(bytesOf(greatest == 0.0 ? 0.0 : greatest));
}

void setTextRange(parquet::Statistics& statistics, const ParquetFields& fields)
{
    std::vector<uint8_t> isUsed(fields.texts.size());
    for (const uint32_t place : fields.places)
        isUsed[place] = 1;
    const std::string *pLeast = nullptr, *pGreatest = nullptr;
    for (std::size_t i = 0; i < isUsed.size(); ++i) {
        if (isUsed[i] == 0)
            continue;
        pLeast = !pLeast || fields.texts[i] < *pLeast ? &fields.texts[i] : pLeast;
        pGreatest = !pGreatest || fields.texts[i] > *pGreatest ? &fields.texts[i] : pGreatest;
    }
    if (!pLeast || pLeast->size() > kMostStatistic || pGreatest->size() > kMostStatistic)
        return;
    statistics.__set_min_value(*pLeast);
    statistics.__set_max_value(*pGreatest);
}

parquet::Statistics statisticsOf(const ParquetColumn& column, const ParquetFields& fields)
{
    parquet::Statistics statistics;
    statistics.__set_null_count(std::ranges::count(fields.defined, uint8_t{0}));
    if (column.type == ParquetColumn::eInteger && !fields.integers.empty())
        setRange(statistics, fields.integers);
    if (column.type == ParquetColumn::eReal)
        setRealRange(statistics, fields.reals);
    if (column.type == ParquetColumn::eText)
        setTextRange(statistics, fields);
    return statistics;
}

parquet::Type::type typeOf(const ParquetColumn& column)
{
    switch (column.type) {
    case ParquetColumn::eInteger: return parquet::Type::INT64;
    case ParquetColumn::eReal: return parquet::Type::DOUBLE;
    case ParquetColumn::eText: break;
    }
    return parquet::Type::BYTE_ARRAY;
}

parquet::Encoding::type encodingOf(ParquetPages::EEncoding encoding)
{
    switch (encoding) {
    case ParquetPages::eDictionary: return parquet::Encoding::RLE_DICTIONARY;
    case ParquetPages::eByteStreamSplit: return parquet::Encoding::BYTE_STREAM_SPLIT;
    case ParquetPages::ePlain: break;
    }
    return parquet::Encoding::PLAIN;
}

std::vector<parquet::SchemaElement> schemaOf(const std::vector<ParquetColumn>& columns)
{
    std::vector<parquet::SchemaElement> schema(1);
    schema[0].__set_name("schema");
    schema[0].__set_num_children(static_cast<int32_t>(columns.size()));
    for (const ParquetColumn& column : columns) {
        parquet::SchemaElement& element = schema.emplace_back();
        element.__set_name(column.name);
        element.__set_type(typeOf(column));
        element.__set_repetition_type(parquet::FieldRepetitionType::OPTIONAL);
        if (column.type != ParquetColumn::eText)
            continue;
        parquet::LogicalType text;
        text.__set_STRING(parquet::StringType());
        element.__set_logicalType(text);
        element.__set_converted_type(parquet::ConvertedType::UTF8);
    }
    return schema;
}

} // namespace

/// What stands at the end of the file.
struct ParquetFile::Metadata {
    parquet::FileMetaData file;
};

/// Compresses one page after the other in the same memory.
class ParquetFile::Compressor {
public:
    std::string compress(const std::string& bytes)
    {
        std::string out(ZSTD_compressBound(bytes.size()), '\0');
        const std::size_t size = ZSTD_compressCCtx(mpContext.get(), out.data(), out.size(), bytes.data(), bytes.size(), kLevel);
        if (ZSTD_isError(size) != 0)
            throw std::bad_alloc(); // nothing else can be wrong
        out.resize(size);
        return out;
    }

private:
    struct Free {
        void operator()(ZSTD_CCtx* pContext) const { ZSTD_freeCCtx(pContext); }
    };
    std::unique_ptr<ZSTD_CCtx, Free> mpContext{ZSTD_createCCtx()};
};

std::size_t ParquetFile::groupRows(std::size_t columns)
{
    return std::clamp<std::size_t>(kGroupFields / std::max<std::size_t>(columns, 1), 1000, 1 << 19);
}

ParquetFile::ParquetFile(const std::string& path, std::vector<ParquetColumn> columns)
    : mFile(path), mColumns(std::move(columns)), mpMetadata(std::make_unique<Metadata>()), mpCompressor(std::make_unique<Compressor>())
{
    parquet::FileMetaData& file = mpMetadata->file;
    file.__set_version(2);
    file.__set_schema(schemaOf(mColumns));
    file.__set_num_rows(0);
    file.__set_row_groups({});
    file.__set_created_by("ZARN");
    parquet::ColumnOrder byType;
    byType.__set_TYPE_ORDER(parquet::TypeDefinedOrder());
    file.__set_column_orders(std::vector(mColumns.size(), byType));
    if (mFile.open())
        mFile.write(kMagic);
    mOffset = kMagicSize;
}

ParquetFile::~ParquetFile() = default;

void ParquetFile::addRows(const std::vector<std::vector<FieldValue>>& rows)
{
    if (rows.empty())
        return;
    std::vector<ParquetFields> fields(mColumns.size());
    for (const std::vector<FieldValue>& row : rows) {
        for (std::size_t column = 0; column < fields.size(); ++column)
            fields[column].add(row[column]);
    }
    addGroup(fields);
}

void ParquetFile::addGroup(const std::vector<ParquetFields>& fields)
{
    parquet::FileMetaData& file = mpMetadata->file;
    const auto rows = static_cast<int64_t>(fields.front().defined.size());
    parquet::RowGroup& group = file.row_groups.emplace_back();
    group.__set_num_rows(rows);
    group.__set_file_offset(mOffset);
    group.__set_ordinal(static_cast<int16_t>(std::min<std::size_t>(file.row_groups.size() - 1, INT16_MAX)));
    const int64_t begin = mOffset;
    int64_t plain = 0;
    for (std::size_t column = 0; column < mColumns.size(); ++column) {
        addChunk(mColumns[column], fields[column]);
        plain += group.columns.back().meta_data.total_uncompressed_size;
    }
    group.__set_total_byte_size(plain);
    group.__set_total_compressed_size(mOffset - begin);
    file.num_rows += rows;
}

void ParquetFile::addChunk(const ParquetColumn& column, const ParquetFields& fields)
{
    ParquetPages pages = parquetPages(column.type, fields);
    const std::string levels = parquetLevels(fields.defined);
    parquet::ColumnMetaData chunk;
    const int64_t begin = mOffset;
    int64_t plain = 0;
    if (pages.encoding == ParquetPages::eDictionary) {
        chunk.__set_dictionary_page_offset(mOffset);
        plain += addPage(pages.dictionary, pages, true, pages.dictionarySize, mpCompressor->compress(pages.dictionary));
    }
    std::string body = levels + pages.data, small = mpCompressor->compress(body);
    if (pages.encoding == ParquetPages::ePlain && column.type == ParquetColumn::eReal) {
        std::string split = levels + splitByteStreams(pages.data), other = mpCompressor->compress(split);
        if (other.size() < small.size()) {
            pages.encoding = ParquetPages::eByteStreamSplit;
            body = std::move(split);
            small = std::move(other);
        }
    }
    chunk.__set_data_page_offset(mOffset);
    plain += addPage(body, pages, false, fields.defined.size(), small);
    chunk.__set_type(typeOf(column));
    chunk.__set_encodings({parquet::Encoding::RLE, encodingOf(pages.encoding)});
    if (pages.encoding == ParquetPages::eDictionary)
        chunk.encodings.push_back(parquet::Encoding::PLAIN);
    chunk.__set_path_in_schema({column.name});
    chunk.__set_codec(parquet::CompressionCodec::ZSTD);
    chunk.__set_num_values(static_cast<int64_t>(fields.defined.size()));
    chunk.__set_total_uncompressed_size(plain);
    chunk.__set_total_compressed_size(mOffset - begin);
    chunk.__set_statistics(statisticsOf(column, fields));
    parquet::ColumnChunk& place = mpMetadata->file.row_groups.back().columns.emplace_back();
    place.__set_file_offset(0);
    place.__set_meta_data(chunk);
}

int64_t ParquetFile::addPage(const std::string& body, const ParquetPages& pages, bool isDictionary, std::size_t fields,
                             const std::string& compressed)
{
    parquet::PageHeader header;
    header.__set_uncompressed_page_size(static_cast<int32_t>(body.size()));
    header.__set_compressed_page_size(static_cast<int32_t>(compressed.size()));
    header.__set_crc(static_cast<int32_t>(parquetCrc(compressed)));
    if (isDictionary) {
        header.__set_type(parquet::PageType::DICTIONARY_PAGE);
        parquet::DictionaryPageHeader dictionary;
        dictionary.__set_num_values(static_cast<int32_t>(fields));
        dictionary.__set_encoding(parquet::Encoding::PLAIN);
        header.__set_dictionary_page_header(dictionary);
    } else {
        header.__set_type(parquet::PageType::DATA_PAGE);
        parquet::DataPageHeader data;
        data.__set_num_values(static_cast<int32_t>(fields));
        data.__set_encoding(encodingOf(pages.encoding));
        data.__set_definition_level_encoding(parquet::Encoding::RLE);
        data.__set_repetition_level_encoding(parquet::Encoding::RLE);
        header.__set_data_page_header(data);
    }
    const std::string head = packed(header);
    mFile.write(head);
    mFile.write(compressed);
    mOffset += static_cast<int64_t>(head.size() + compressed.size());
    return static_cast<int64_t>(head.size() + body.size());
}

std::string ParquetFile::finish(const Notes& notes)
{
    std::vector<parquet::KeyValue> entries;
    for (const auto& [key, value] : notes) {
        entries.emplace_back().__set_key(key);
        entries.back().__set_value(value);
    }
    mpMetadata->file.__set_key_value_metadata(entries);
    const std::string footer = packed(mpMetadata->file);
    mFile.write(footer);
    mFile.write(bytesOf(static_cast<uint32_t>(footer.size())));
    mFile.write(kMagic);
    return mFile.commit() ? std::string() : mFile.error();
}

ParquetFile::Notes ParquetFile::notesOf(const std::string& path)
{
    constexpr std::streamoff kTail = kLengthSize + kMagicSize, kMostFooter = 64 * 1024 * 1024;
    std::ifstream file(path, std::ios::binary);
    char tail[kTail];
    uint32_t length = 0;
    if (!file.seekg(-kTail, std::ios::end))
        return {};
    const std::streamoff end = file.tellg();
    if (!file.read(tail, kTail) || std::memcmp(tail + kLengthSize, kMagic, kMagicSize) != 0)
        return {};
    std::memcpy(&length, tail, sizeof length);
    std::string footer(static_cast<std::size_t>(std::min<std::streamoff>({length, end, kMostFooter})), '\0');
    if (!file.seekg(end - static_cast<std::streamoff>(footer.size())) ||
        !file.read(footer.data(), static_cast<std::streamsize>(footer.size())))
        return {};
    Notes notes;
    try {
        const auto pBuffer =
            std::make_shared<TMemoryBuffer>(reinterpret_cast<uint8_t*>(footer.data()), static_cast<uint32_t>(footer.size()));
        TCompactProtocolT<TMemoryBuffer> protocol(pBuffer);
        parquet::FileMetaData metadata;
        metadata.read(&protocol);
        for (const parquet::KeyValue& entry : metadata.key_value_metadata)
            notes[entry.key] = entry.value;
    } catch (const apache::thrift::TException&) {
        return {}; // no such file, and so it is written anew
    }
    return notes;
}

} // namespace ZARN
