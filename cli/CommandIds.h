#pragma once

#include "cli/CardCommand.h"

#include <set>

namespace ZARN {

/// `ids`: every identifier on a card, or in one of its cycles: how often, since when and of which type it was recorded, and what the
/// profile knows of it.
class CommandIds : public CardCommand {
public:
    explicit CommandIds(CLI::App& program);

private:
    struct Identifier {
        uint64_t count = 0;
        uint64_t intervals = 0; ///< between two records of one cycle
        double seconds = 0.0;   ///< all of them together
        double first = 0.0;     ///< seconds since power-up
        double last = 0.0;
        std::set<uint8_t> types;
    };
    using Identifiers = std::map<uint32_t, Identifier>;

    int runOnCard() override;
    static void add(Identifiers& identifiers, const RecordData& data);
    [[nodiscard]] std::string json(const Identifiers& identifiers) const;
    [[nodiscard]] std::string table(const Identifiers& identifiers) const;
    /// The names of the profile's parameters that read an identifier, in its order.
    [[nodiscard]] std::vector<std::string> known(uint32_t identifier) const;
};

} // namespace ZARN
