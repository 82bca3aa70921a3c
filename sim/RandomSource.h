#pragma once

#include <cmath>
#include <cstdint>
#include <random>

namespace ZARN::Sim {

/// Random numbers that are the same on every platform for the same seed, which the distributions of the standard library are not.
class RandomSource {
public:
    explicit RandomSource(std::uint64_t seed) : mGenerator(seed) {}

    std::uint64_t next() { return mGenerator(); }
    /// A whole number of 0..limit - 1; 0 when the limit is 0.
    std::uint32_t below(std::uint32_t limit) { return static_cast<std::uint32_t>(((next() >> 32) * limit) >> 32); }
    /// Evenly spread over low <= x < high.
    double between(double low, double high) { return low + (high - low) * uniform(); }
    /// Between -amplitude and +amplitude, values near 0 being the most frequent.
    double noise(double amplitude) { return (uniform() + uniform() - 1.0) * amplitude; }
    bool chance(double probability) { return uniform() < probability; }

private:
    double uniform() { return static_cast<double>(next() >> 11) * 0x1p-53; }

    std::mt19937_64 mGenerator;
};

/// A value that wanders slowly about 0, as an error of position or the lift of the air does.
struct Drift {
    double amplitude, seconds; ///< the usual size of the excursions, and how long one lasts
    double value = 0, speed = 0;

    /// @param passed seconds since the step before.
    void step(double passed, RandomSource& random)
    {
        const double share = passed / seconds;
        // The push is smoothed once more, so that the result has no steps of its own.
        speed += random.noise(4.9 * amplitude * share * std::sqrt(share)) - speed * share;
        value += speed - value * share;
    }
};

} // namespace ZARN::Sim
