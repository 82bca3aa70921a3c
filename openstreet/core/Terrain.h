#pragma once

#include "openstreet/core/Projection.h"

#include <QCache>
#include <QString>

#include <cstdint>
#include <memory>
#include <optional>
#include <set>
#include <utility>
#include <vector>

namespace OpenStreet {

/// Heights above the sea out of SRTM files: one degree by one degree each, named after its south-west corner ("N48E011.hgt"), 1201 or
/// 3601 rows of as many 16-bit big-endian metres, from north to south. Keeps the files that were used last in memory.
class Terrain {
public:
    static constexpr int kFilesInMemory = 4;

    /// @param folder with the files; it may be missing.
    void setFolder(const QString& folder);
    /// Whether there is any file.
    [[nodiscard]] bool isAvailable() const { return !mFiles.empty(); }
    /// Whether a file reaches into the rectangle, in degrees.
    [[nodiscard]] bool covers(double south, double west, double north, double east) const;
    /// Metres above the sea between the measured points; nothing where nothing was measured.
    [[nodiscard]] std::optional<double> height(const GeoPoint& place);

private:
    using Corner = std::pair<int, int>; ///< latitude and longitude of the south-west corner in degrees
    struct Square {
        int edge = 0; ///< rows and columns; 0 for a file that is not what it should be
        std::vector<std::int16_t> heights;
        [[nodiscard]] double at(int row, int column) const;
    };

    [[nodiscard]] static QString fileName(const Corner& corner);
    [[nodiscard]] const Square* square(const Corner& corner);
    [[nodiscard]] std::unique_ptr<Square> load(const Corner& corner) const;

    QString mFolder;
    std::set<Corner> mFiles;
    QCache<Corner, Square> mSquares{kFilesInMemory};
};

} // namespace OpenStreet
