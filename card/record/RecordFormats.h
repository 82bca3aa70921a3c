#pragma once

#include "card/record/RecordReader.h"

#include <QStringList>

#include <algorithm>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ZARN {

/// A format of record files: how its files are told from others, and who reads them.
struct RecordFormat {
    std::span<const std::string_view> extensions; ///< as they are written, in these cases only
    bool holdsCycle;                              ///< each file is a power cycle of its own, whole
    /// Whether a file that begins like that is one of the format; null when the name decides alone.
    bool (*accepts)(std::string_view beginning);
    std::unique_ptr<RecordReader> (*makeReader)(const Console& console, Progress& progress);
};

/// The formats of record files that are read, and the only place that knows their extensions.
class RecordFormats {
public:
    /// The format that a file's name tells; null when it tells none.
    [[nodiscard]] static const RecordFormat* ofName(std::string_view fileName);
    /// The reader of a file; null when its content is of no format that its name tells.
    [[nodiscard]] static std::unique_ptr<RecordReader> reader(const QString& path, const Console& console, Progress& progress);
    /// Leaves those of a folder's files that can be of one card: beside the unit's own files, one that holds a whole cycle is somebody's notes.
    template <typename File, typename NameOf> static void keepCard(std::vector<File>& files, NameOf nameOf)
    {
        const auto holdsCycle = [&nameOf](bool wanted) {
            return [&nameOf, wanted](const File& file) {
                const RecordFormat* pFormat = ofName(std::invoke(nameOf, file));
                return pFormat && pFormat->holdsCycle == wanted;
            };
        };
        if (std::ranges::any_of(files, holdsCycle(false)))
            std::erase_if(files, holdsCycle(true));
    }
    /// "*.CAN" and so on, for the listing of a folder.
    [[nodiscard]] static QStringList patterns();
    /// All of them in one text, for people.
    [[nodiscard]] static QString patternText() { return patterns().join(", "); }
    /// What to open as a card for a path that a person names: a folder and a file that holds a whole cycle as they are, for another
    /// record file the folder in which it lies.
    [[nodiscard]] static QString cardOf(const QString& path);
};

} // namespace ZARN
