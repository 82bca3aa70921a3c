#include "ui/graph/model/StripOrder.h"

#include <algorithm>
#include <numeric>

namespace ZARN {

void StripOrder::keep(const std::vector<QString>& names)
{
    // Those that are not shown stay behind the one that they stood behind.
    std::vector<QString> kept = names;
    for (std::size_t i = 0; i < mNames.size(); ++i) {
        if (std::ranges::count(names, mNames[i]) > 0)
            continue;
        const auto before = i > 0 ? std::ranges::find(kept, mNames[i - 1]) + 1 : kept.begin();
        kept.insert(before, mNames[i]);
    }
    mNames = std::move(kept);
}

std::vector<int> StripOrder::slotsFor(const std::vector<QString>& names)
{
    std::vector<int> order(names.size());
    std::iota(order.begin(), order.end(), 0);
    if (mNames.empty())
        return order;
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (std::ranges::count(mNames, names[i]) == 0)
            mNames.insert(i > 0 ? std::ranges::find(mNames, names[i - 1]) + 1 : mNames.begin(), names[i]);
    }
    std::ranges::stable_sort(order, {},
                             [&](int slot) { return std::ranges::find(mNames, names[static_cast<std::size_t>(slot)]) - mNames.begin(); });
    return order;
}

} // namespace ZARN
