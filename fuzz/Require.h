#pragma once

#include <cstdio>
#include <cstdlib>

/// A property that must hold for every input: when it does not, says which and ends the process, so that the fuzzer keeps the input.
#define REQUIRE(property)                                                                                                                  \
    do {                                                                                                                                   \
        if (!(property)) {                                                                                                                 \
            std::fprintf(stderr, "%s:%d: does not hold: %s\n", __FILE__, __LINE__, #property);                                             \
            std::abort();                                                                                                                  \
        }                                                                                                                                  \
    } while (false)
