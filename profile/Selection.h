#pragma once

#include <set>
#include <string>

namespace ZARN {

/// Which parameters are shown and exported. The tick belongs to the name, whatever profile is loaded. A plain value.
class Selection {
public:
    [[nodiscard]] bool contains(const std::string& name) const { return mNames.contains(name); }
    void set(const std::string& name, bool selected)
    {
        if (selected)
            mNames.insert(name);
        else
            mNames.erase(name);
    }
    void clear() { mNames.clear(); }

private:
    std::set<std::string> mNames;
};

} // namespace ZARN
