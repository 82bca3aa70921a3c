#pragma once

/// Marks a function whose loop calls std::fma: it is compiled once for processors with a fused multiply-add instruction and
/// once without. The results are the same bits; without the instruction each call goes to the library, three times slower.
/// The clone is asked for by the level of instructions, never by the name of a processor: that fits this one kind alone.
/// The resolver that picks a clone runs before a sanitizer's runtime is up, so sanitized builds do without.
#if defined(__x86_64__) && defined(__GNUC__) && !defined(__clang__) && !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
#define ZARN_FUSED_MULTIPLY_ADD __attribute__((target_clones("arch=x86-64-v3", "default")))
#else
#define ZARN_FUSED_MULTIPLY_ADD
#endif
