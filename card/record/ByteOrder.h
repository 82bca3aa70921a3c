#pragma once

#include <bit>
#include <cstdint>
#include <cstring>

/// Byte-order helpers. Payloads and big-endian fields are brought to host order with these; the get and put helpers
/// work on storage of any alignment.
namespace ZARN {

/// Notes, once, whether the host is little-endian, and returns it.
bool checkEndian();

void SWAP(void* pData, int size); ///< reverses `size` bytes in place for sizes up to 8, does nothing for larger ones
void SWAP2(void* pData);          ///< reverses 2 bytes in place
void SWAP4(void* pData);
void SWAP8(void* pData);

void swap2(void* pData); ///< converts between big-endian storage and host order in place
void swap4(void* pData);
void swap8(void* pData);

float gf(const float* pData); ///< the value stored big-endian, in host order
double gd(const double* pData);
int gi(const int* pData);
short gs(const short* pData);

void pf(float value, float* pData); ///< stores a host value big-endian
void pd(double value, double* pData);
void pi(int value, int* pData);
void ps(short value, short* pData);

/// Loads an unsigned integer from storage of any alignment, exchanging its bytes when `Swap` is set.
template <typename Integer, bool Swap> [[nodiscard]] inline Integer loadInteger(const uint8_t* pData)
{
    Integer value;
    std::memcpy(&value, pData, sizeof value);
    if constexpr (Swap && sizeof(Integer) == 2)
        return __builtin_bswap16(value);
    else if constexpr (Swap && sizeof(Integer) == 4)
        return __builtin_bswap32(value);
    else
        return value;
}

template <typename Integer> [[nodiscard]] inline Integer loadBigEndian(const uint8_t* pData)
{
    return loadInteger<Integer, std::endian::native == std::endian::little>(pData);
}

} // namespace ZARN
