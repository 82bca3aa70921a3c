#pragma once

#include "cli/CardCommand.h"

#include <bitset>

namespace ZARN {

class Output;

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
        std::bitset<256> types; // codes of CANaerospace; a card may hold as many identifiers as records
    };
    using Identifiers = std::map<uint32_t, Identifier>;

    int runOnCard() override;
    static void add(Identifiers& identifiers, const RecordData& data);
    void writeJson(Output& output, const Identifiers& identifiers) const;
    void writeTable(Output& output, const Identifiers& identifiers) const;
    [[nodiscard]] std::vector<std::string> cells(uint32_t number, const Identifier& identifier) const;
    void findKnown();

    std::map<uint32_t, std::vector<std::string>> mKnown; ///< by identifier, the profile's parameters that read it, in its order
};

} // namespace ZARN
