#pragma once

#include "cli/CardCommand.h"

#include <bitset>
#include <functional>

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
    using Visitor = std::function<void(uint32_t number, const Identifier& identifier)>;

    int runOnCard() override;
    static void add(Identifier& identifier, const RecordChannel& channel);
    /// In ascending order, those of the loaded cycle among those of the cycles before it.
    void forEach(const Visitor& visit) const;
    void writeJson(Output& output) const;
    void writeTable(Output& output) const;
    [[nodiscard]] std::vector<std::string> cells(uint32_t number, const Identifier& identifier) const;
    void findKnown();

    std::map<uint32_t, Identifier> mBefore; ///< of the cycles before the loaded one: what its records say is not held beside them
    std::map<uint32_t, std::vector<std::string>> mKnown; ///< by identifier, the profile's parameters that read it, in its order
};

} // namespace ZARN
