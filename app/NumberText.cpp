#include "app/NumberText.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>

namespace ZARN {

namespace {

constexpr double kPowersOfTen[] = {1, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
constexpr int kMostScaledDecimals = 15;
constexpr double kScaledLimit = 1e15; // below it the scaled value's whole part is exact

constexpr char kDigitPairs[] = "0001020304050607080910111213141516171819202122232425262728293031323334353637383940414243444546474849"
                               "5051525354555657585960616263646566676869707172737475767778798081828384858687888990919293949596979899";

char* writeNan(char* pOut)
{
    std::memcpy(pOut, "nan", 3);
    return pOut + 3;
}

/// Digits of `scaled` / 10^decimals, from the last to the first.
char* writeScaled(char* pOut, uint64_t scaled, int decimals)
{
    char buffer[40];
    char* pEnd = buffer + 24;
    char* p = pEnd;
    int done = 0;
    for (; done + 2 <= decimals; done += 2) {
        p -= 2;
        std::memcpy(p, kDigitPairs + 2 * (scaled % 100), 2);
        scaled /= 100;
    }
    if (done < decimals) {
        *--p = static_cast<char>('0' + scaled % 10);
        scaled /= 10;
    }
    if (decimals > 0)
        *--p = '.';
    while (scaled >= 100) {
        p -= 2;
        std::memcpy(p, kDigitPairs + 2 * (scaled % 100), 2);
        scaled /= 100;
    }
    if (scaled >= 10) {
        p -= 2;
        std::memcpy(p, kDigitPairs + 2 * scaled, 2);
    } else {
        *--p = static_cast<char>('0' + scaled);
    }
    const auto length = static_cast<std::size_t>(pEnd - p);
    std::memcpy(pOut, p, 16); // a copy of fixed size is a pair of moves; few texts are longer
    if (length > 16)
        std::memcpy(pOut + 16, p + 16, 8);
    return pOut + length;
}

constexpr uint64_t kShortLimit = 100'000'000; // numbers of at most eight digits

/// The eight digits, leading zeros included, as the bytes of a word from the lowest on: all at once, without a table.
uint64_t eightDigits(uint64_t number)
{
    const uint64_t fours = number / 10000 | (number % 10000) << 32;
    const uint64_t hundreds = fours * 10486 >> 20 & 0x0000007F0000007F;
    const uint64_t twos = hundreds | (fours - 100 * hundreds) << 16;
    const uint64_t tens = twos * 103 >> 10 & 0x000F000F000F000F;
    return tens | (twos - 10 * tens) << 8;
}

/// As writeScaled(), for numbers below kShortLimit with at most seven decimals, on machines with the lowest byte first.
char* writeShort(char* pOut, uint64_t scaled, int decimals)
{
    const uint64_t digits = eightDigits(scaled);
    const int leadingZeros = std::min(std::countr_zero(digits) / 8, 7 - decimals);
    const uint64_t text = (digits + 0x3030303030303030) >> 8 * leadingZeros;
    std::memcpy(pOut, &text, sizeof text);
    const int wholes = 8 - leadingZeros - decimals;
    if (decimals == 0)
        return pOut + wholes;
    const uint64_t fraction = text >> 8 * wholes; // there is at least one digit on either side of the point
    pOut[wholes] = '.';
    std::memcpy(pOut + wholes + 1, &fraction, sizeof fraction);
    return pOut + wholes + 1 + decimals;
}

} // namespace

char* writeFixed(char* pOut, double value, int decimals)
{
    if (decimals <= kMostScaledDecimals) {
        const double scaled = std::fabs(value) * kPowersOfTen[decimals];
        if (scaled < kScaledLimit) {
            auto whole = static_cast<uint64_t>(scaled);
            const double rest = scaled - static_cast<double>(whole);
            // The product is off by half a unit in its last place at most: only this near to a half could it round otherwise.
            if (std::fabs(rest - 0.5) > scaled * 0x1p-52) {
                whole += rest > 0.5;
                if (std::signbit(value))
                    *pOut++ = '-';
                const bool isShort = std::endian::native == std::endian::little && whole < kShortLimit && decimals <= 7;
                return isShort ? writeShort(pOut, whole, decimals) : writeScaled(pOut, whole, decimals);
            }
        }
    }
    if (std::isnan(value))
        return writeNan(pOut);
    return std::to_chars(pOut, pOut + kNumberTextSize, value, std::chars_format::fixed, decimals).ptr;
}

char* writeGeneral(char* pOut, double value, int digits)
{
    if (std::isnan(value))
        return writeNan(pOut);
    return std::to_chars(pOut, pOut + kNumberTextSize, value, std::chars_format::general, digits).ptr;
}

char* writeInteger(char* pOut, long long value)
{
    return std::to_chars(pOut, pOut + kNumberTextSize, value).ptr;
}

} // namespace ZARN
