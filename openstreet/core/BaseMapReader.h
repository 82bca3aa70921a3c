#pragma once

#include "openstreet/core/BaseMap.h"
#include "openstreet/core/PackedReader.h"

namespace OpenStreet {

/// Reads the unpacked bytes of the built-in map of the world.
class BaseMapReader {
public:
    explicit BaseMapReader(const QByteArray& bytes) : mIsMap(bytes.startsWith(kStart)), mBytes(bytes, kStartSize) {}

    /// @return false when the bytes are no such map.
    bool read(BaseMap::Geometry& world);

private:
    static constexpr const char* kStart = "ZMAP\x01";
    static constexpr int kStartSize = 5;

    [[nodiscard]] BaseMap::Line part();
    [[nodiscard]] std::vector<BaseMap::Line> list();
    [[nodiscard]] std::vector<BaseMap::Area> areas();

    const bool mIsMap;
    PackedReader mBytes;
};

} // namespace OpenStreet
