#pragma once

namespace ZARN {

/// The first number of [first, last) that is behind a border, `last` when none is: bisection. What the library offers for it, over a view of
/// numbers, is refused by the compiler that fuzzing needs (clang 14 with the library of gcc 12).
template <typename Number, typename IsBehind> Number firstNumber(Number first, Number last, IsBehind isBehind)
{
    while (first < last) {
        const Number middle = first + (last - first) / 2;
        if (isBehind(middle))
            last = middle;
        else
            first = middle + 1;
    }
    return first;
}

} // namespace ZARN
