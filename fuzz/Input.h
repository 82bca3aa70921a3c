#pragma once

#include "app/Console.h"

#include <cstdint>
#include <cstring>
#include <string>

/// Hands out the input of a fuzz target piece by piece; zeros when it is used up.
class Input {
public:
    Input(const uint8_t* pData, std::size_t size) : mpNext(pData), mLeft(size) {}

    [[nodiscard]] bool empty() const { return mLeft == 0; }
    [[nodiscard]] const uint8_t* rest() const { return mpNext; }
    [[nodiscard]] std::size_t left() const { return mLeft; }
    uint8_t byte() { return number<uint8_t>(); }
    template <typename T> T number()
    {
        T value{};
        const std::size_t size = std::min(sizeof value, mLeft);
        if (size > 0)
            std::memcpy(&value, mpNext, size);
        skip(size);
        return value;
    }
    /// At most so many bytes; the first one tells how many.
    std::string text(std::size_t most)
    {
        const std::size_t size = std::min<std::size_t>(byte() % (most + 1), mLeft);
        std::string text(reinterpret_cast<const char*>(mpNext), size);
        skip(size);
        return text;
    }

private:
    void skip(std::size_t size)
    {
        mpNext += size;
        mLeft -= size;
    }

    const uint8_t* mpNext;
    std::size_t mLeft;
};

/// A console that nobody reads.
inline const ZARN::Console& silence()
{
    static const ZARN::Console console([](std::string_view) {}, [](std::string_view) {});
    return console;
}
