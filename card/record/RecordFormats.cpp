#include "card/record/RecordFormats.h"

#include "app/FileName.h"
#include "card/record/CandumpFile.h"
#include "card/record/RecordFile.h"

#include <algorithm>
#include <array>
#include <filesystem>

namespace ZARN {

namespace {

constexpr std::size_t kBeginning = 64 * 1024; // bytes by which a content is judged

constexpr std::array<std::string_view, 3> kUnitExtensions{"CAN", "can", "xcb"};
constexpr std::array<std::string_view, 1> kLogExtensions{"log"};

template <typename Reader> std::unique_ptr<RecordReader> make(const Console& console, Progress& progress)
{
    return std::make_unique<Reader>(console, progress);
}

// The unit's own files are read however damaged their header is.
constexpr std::array kFormats{
    RecordFormat{kUnitExtensions, false, nullptr, &make<RecordFile>},
    RecordFormat{kLogExtensions, true, &CandumpFile::accepts, &make<CandumpFile>},
};

/// Whether a content is of the format. A file that cannot be read is: its reader says why.
bool accepts(const RecordFormat& format, const QString& path)
{
    if (!format.accepts)
        return true;
    int64_t size = 0;
    const File file = RecordReader::openFile(path, size);
    if (!file)
        return true;
    std::string beginning(kBeginning, '\0');
    beginning.resize(std::fread(beginning.data(), 1, beginning.size(), file.get()));
    return std::ferror(file.get()) != 0 || format.accepts(beginning);
}

} // namespace

const RecordFormat* RecordFormats::ofName(std::string_view fileName)
{
    const std::size_t dot = fileName.rfind('.');
    if (dot == std::string_view::npos)
        return nullptr;
    const auto found = std::ranges::find_if(kFormats, [extension = fileName.substr(dot + 1)](const RecordFormat& format) {
        return std::ranges::find(format.extensions, extension) != format.extensions.end();
    });
    return found == kFormats.end() ? nullptr : &*found;
}

std::unique_ptr<RecordReader> RecordFormats::reader(const QString& path, const Console& console, Progress& progress)
{
    const RecordFormat* pFormat = ofName(encodeFileName(path));
    return pFormat && accepts(*pFormat, path) ? pFormat->makeReader(console, progress) : nullptr;
}

QStringList RecordFormats::patterns()
{
    QStringList list;
    for (const RecordFormat& format : kFormats) {
        for (const std::string_view extension : format.extensions)
            list.append("*." + QString::fromUtf8(extension.data(), static_cast<qsizetype>(extension.size())));
    }
    return list;
}

QString RecordFormats::cardOf(const QString& path)
{
    std::error_code ignored;
    const std::filesystem::path file = std::filesystem::absolute(encodeFileName(path), ignored);
    const RecordFormat* pFormat = ofName(file.native());
    const bool isInFolder = std::filesystem::is_regular_file(file, ignored) && !(pFormat && pFormat->holdsCycle);
    return decodeFileName(isInFolder ? file.parent_path() : file);
}

} // namespace ZARN
