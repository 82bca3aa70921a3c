#pragma once

#include <cmath>
#include <cstdint>

namespace ZARN::Sim {

/// Random numbers that are the same on every platform for the same seed, which the distributions of the standard library
/// are not. The generator is xoshiro256** (Blackman and Vigna), its state filled by splitmix64.
class RandomSource {
public:
    explicit RandomSource(std::uint64_t seed)
    {
        for (std::uint64_t& word : mState) {
            seed += 0x9E3779B97F4A7C15U;
            std::uint64_t mixed = (seed ^ (seed >> 30)) * 0xBF58476D1CE4E5B9U;
            mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBU;
            word = mixed ^ (mixed >> 31);
        }
    }

    std::uint64_t next()
    {
        const std::uint64_t result = rotate(mState[1] * 5, 7) * 9;
        const std::uint64_t shifted = mState[1] << 17;
        mState[2] ^= mState[0];
        mState[3] ^= mState[1];
        mState[1] ^= mState[2];
        mState[0] ^= mState[3];
        mState[2] ^= shifted;
        mState[3] = rotate(mState[3], 45);
        return result;
    }

    /// A whole number of 0..limit - 1; 0 when the limit is 0.
    std::uint32_t below(std::uint32_t limit) { return static_cast<std::uint32_t>(((next() >> 32) * limit) >> 32); }
    /// Evenly spread over low <= x < high.
    double between(double low, double high) { return low + (high - low) * uniform(); }
    /// Between -amplitude and +amplitude, values near 0 being the most frequent.
    double noise(double amplitude) { return (uniform() + uniform() - 1.0) * amplitude; }
    bool chance(double probability) { return uniform() < probability; }

private:
    static std::uint64_t rotate(std::uint64_t value, int bits) { return (value << bits) | (value >> (64 - bits)); }
    double uniform() { return static_cast<double>(next() >> 11) * 0x1p-53; }

    std::uint64_t mState[4];
};

/// A value that wanders slowly about 0, as an error of position or the lift of the air does.
class Drift {
public:
    /// @param amplitude the usual size of the excursions, @param seconds how long one lasts, @param step seconds a step.
    Drift(double amplitude, double seconds, double step)
        : mKeep(1.0 - step / seconds), mPush(4.9 * amplitude * (step / seconds) * std::sqrt(step / seconds))
    {
    }

    double step(RandomSource& random)
    {
        // The push is smoothed once more, so that the result has no steps of its own.
        mSpeed = mSpeed * mKeep + random.noise(mPush);
        mValue = mValue * mKeep + mSpeed;
        return mValue;
    }

private:
    double mKeep;
    double mPush;
    double mSpeed = 0;
    double mValue = 0;
};

} // namespace ZARN::Sim
