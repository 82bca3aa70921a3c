#pragma once

#include <algorithm>
#include <functional>
#include <vector>

namespace ZARN {

/// Brings items into ascending order of their keys; of equal keys only the last item stays.
template <typename Item, typename Key> void keepLastOfKey(std::vector<Item>& items, Key key)
{
    std::ranges::stable_sort(items, {}, key);
    const auto sameKey = [&key](const Item& a, const Item& b) { return std::invoke(key, a) == std::invoke(key, b); };
    // unique() from behind keeps the first that it meets.
    items.erase(items.begin(), std::unique(items.rbegin(), items.rend(), sameKey).base());
}

} // namespace ZARN
