#pragma once

#include "app/Console.h"

#include <string>
#include <string_view>

/// A console that keeps what is written to it.
struct ConsoleText {
    std::string text;
    std::string errors;
    ZARN::Console console{[this](std::string_view piece) { text += piece; }, [this](std::string_view piece) { errors += piece; }};

    /// What was written since the last call.
    std::string take()
    {
        std::string taken;
        taken.swap(text);
        return taken;
    }
};
