#include "fuzz/Input.h"
#include "fuzz/Require.h"
#include "profile/ProfileModel.h"
#include "trace/Formula.h"

#include <bit>
#include <cmath>
#include <optional>

// Takes the input for the text of a formula. It is refused with a place within the text, or tells the same twice.

namespace {

using namespace ZARN;

const ProfileModel& smallModel()
{
    static const ProfileModel model([] {
        ProfileContent content;
        ProfileDevice device;
        for (const char* pName : {"a", "b (b)", "Oil \"T\""}) {
            ProfileParameter parameter;
            parameter.name = pName;
            parameter.id = 1;
            parameter.dataType = eFloat;
            device.parameters.push_back(parameter);
        }
        content.devices.push_back(device);
        return content;
    }());
    return model;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* pData, std::size_t size)
{
    const std::string text(reinterpret_cast<const char*>(pData), size);
    std::optional<Formula> formula;
    try {
        formula.emplace(text, smallModel());
    } catch (const FormulaError& error) {
        REQUIRE(error.place() <= text.size() && !error.text().isEmpty());
        return 0;
    }
    REQUIRE(!formula->operands().empty() && text.size() <= Formula::kLongest);
    double first[8];
    for (int round = 0; round < 2; ++round) {
        formula->begin();
        for (int i = 0; i < 8; ++i) {
            for (std::size_t operand = 0; operand < formula->operands().size(); ++operand)
                formula->set(operand, i == 5 ? std::nan("") : i * 1.5 - static_cast<double>(operand));
            const double value = formula->at(i == 6 ? 1.0 : i * 0.5);
            if (round == 0)
                first[i] = value;
            else
                REQUIRE((std::isnan(value) && std::isnan(first[i])) || std::bit_cast<uint64_t>(value) == std::bit_cast<uint64_t>(first[i]));
        }
    }
    return 0;
}
