#pragma once

#include "app/Console.h"
#include "app/Progress.h"
#include "card/CardContainer.h"
#include "profile/Profile.h"

namespace ZARN::Test {

/// A profile and a card container of their own, with a console that writes to strings.
struct TestCycle {
    std::string lines;  ///< what was printed as diagnostics
    std::string errors; ///< what went to the standard error printer
    Console console{[this](std::string_view text) { lines += text; }, [this](std::string_view text) { errors += text; }};
    Profile profile{console};
    CardContainer container{console, profile, nullProgress()};
};

} // namespace ZARN::Test
