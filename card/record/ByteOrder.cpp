#include "card/record/ByteOrder.h"

#include <algorithm>

namespace ZARN {

namespace {

template <typename T> T fromBigEndian(const T* pData)
{
    T value;
    std::memcpy(&value, pData, sizeof value);
    if (checkEndian())
        SWAP(&value, sizeof value);
    return value;
}

template <typename T> void toBigEndian(T value, T* pData)
{
    if (checkEndian())
        SWAP(&value, sizeof value);
    std::memcpy(pData, &value, sizeof value);
}

} // namespace

bool checkEndian()
{
    static const bool little = [] {
        const uint16_t probe = 1;
        uint8_t first = 0;
        std::memcpy(&first, &probe, 1);
        return first == 1;
    }();
    return little;
}

void SWAP(void* pData, int size)
{
    if (size > 8 || size < 2)
        return;
    auto* pBytes = static_cast<uint8_t*>(pData);
    std::reverse(pBytes, pBytes + size);
}

void SWAP2(void* pData)
{
    SWAP(pData, 2);
}

void SWAP4(void* pData)
{
    SWAP(pData, 4);
}

void SWAP8(void* pData)
{
    SWAP(pData, 8);
}

void swap2(void* pData)
{
    if (checkEndian())
        SWAP2(pData);
}

void swap4(void* pData)
{
    if (checkEndian())
        SWAP4(pData);
}

void swap8(void* pData)
{
    if (checkEndian())
        SWAP8(pData);
}

float gf(const float* pData)
{
    return fromBigEndian(pData);
}

double gd(const double* pData)
{
    return fromBigEndian(pData);
}

int gi(const int* pData)
{
    return fromBigEndian(pData);
}

short gs(const short* pData)
{
    return fromBigEndian(pData);
}

void pf(float value, float* pData)
{
    toBigEndian(value, pData);
}

void pd(double value, double* pData)
{
    toBigEndian(value, pData);
}

void pi(int value, int* pData)
{
    toBigEndian(value, pData);
}

void ps(short value, short* pData)
{
    toBigEndian(value, pData);
}

} // namespace ZARN
