#pragma once

#include "openstreet/core/BaseMap.h"

namespace OpenStreet {

/// Reads the unpacked bytes of the built-in map. Counts are believed only as far as there are bytes.
class BaseMapReader {
public:
    explicit BaseMapReader(const QByteArray& bytes) : mBytes(bytes) {}

    /// @return false when the bytes are no such map.
    bool read(BaseMap::Geometry& world);

private:
    [[nodiscard]] quint32 number();
    [[nodiscard]] quint32 count();
    [[nodiscard]] BaseMap::Line part();
    [[nodiscard]] std::vector<BaseMap::Line> list();
    [[nodiscard]] std::vector<BaseMap::Area> areas();

    const QByteArray mBytes;
    qsizetype mPosition = 0;
    bool mGood = true;
};

} // namespace OpenStreet
