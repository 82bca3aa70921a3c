#include "cli/Suggestion.h"

#include <algorithm>
#include <numeric>

namespace ZARN {

namespace {

/// How many letters have to be put in, taken out, changed, or exchanged with their neighbour, to make one word of the other.
std::size_t distance(const std::string& from, const std::string& to)
{
    std::vector<std::size_t> beforeLast;
    std::vector<std::size_t> last(to.size() + 1);
    std::iota(last.begin(), last.end(), 0U);
    for (std::size_t row = 1; row <= from.size(); ++row) {
        std::vector<std::size_t> current(to.size() + 1, row);
        for (std::size_t column = 1; column <= to.size(); ++column) {
            const std::size_t changed = last[column - 1] + (from[row - 1] == to[column - 1] ? 0 : 1);
            current[column] = std::min({changed, last[column] + 1, current[column - 1] + 1});
            if (row > 1 && column > 1 && from[row - 1] == to[column - 2] && from[row - 2] == to[column - 1])
                current[column] = std::min(current[column], beforeLast[column - 2] + 1);
        }
        beforeLast = std::move(last);
        last = std::move(current);
    }
    return last.back();
}

} // namespace

std::string suggestion(const std::string& word, const std::vector<std::string>& names)
{
    constexpr std::size_t kLongest = 64; // no name is longer; the work grows with the word
    if (word.size() > kLongest || names.empty())
        return {};
    const auto nearest = std::ranges::min_element(names, {}, [&word](const std::string& name) { return distance(word, name); });
    const bool isNear = distance(word, *nearest) <= std::max<std::size_t>(1, nearest->size() / 3);
    return isNear ? "; did you mean " + *nearest + "?" : std::string();
}

} // namespace ZARN
