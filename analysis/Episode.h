#pragma once

#include <optional>
#include <string>
#include <vector>

namespace ZARN {

/// What an episode is one of, in the order of weight.
enum class EEpisodeKind { eStop, eLimit, eLamp, eFault };
enum class ESide { eNone, eHigh, eLow };

/// "stop", "limit", "lamp" or "fault".
[[nodiscard]] const char* episodeKindKey(EEpisodeKind kind);
/// "high" or "low"; empty for neither.
[[nodiscard]] const char* sideKey(ESide side);

/// The worst value of an episode and the limit that it passed.
struct EpisodePeak {
    double limit = 0.0;
    double value = 0.0;
};

/// Something that was not as it should be from one time to another: a value outside its limits, a lamp that was lit, a fault that was
/// reported, or an engine that stopped in flight. Times in seconds since power-up.
struct Episode {
    EEpisodeKind kind = EEpisodeKind::eLimit;
    std::string group; ///< device, or fault matrix
    std::string parameter;
    std::string unit; ///< metric
    int state = 0;    ///< the greatest in it: 1 warning, 2 limit
    double start = 0.0;
    double end = 0.0; ///< of the last sample outside in stored order: before the start where times go backwards
    double stateTime = 0.0; ///< seconds in that state: outside the limit that is told, of the time between start and end
    ESide side = ESide::eNone;
    std::optional<EpisodePeak> peak; ///< metric; none without a finite value, and of lamps, faults and stops
    double peakTime = 0.0;           ///< the first time of the peak
    std::string text;                ///< display text at the peak; of a fault, the path of its parameter

    std::string shownUnit;            ///< that of `shown`
    std::optional<EpisodePeak> shown; ///< the peak in the display unit, where the profile can tell it
    int precision = 0;                ///< of the parameter, decimals
};

/// The episodes of a cycle as they are found.
struct EpisodeList {
    std::vector<Episode> watched;  ///< while the engine ran: they make incidents
    std::vector<Episode> standing; ///< told apart, never part of the verdict

    void add(Episode episode, bool isWatched) { (isWatched ? watched : standing).push_back(std::move(episode)); }
    void add(EpisodeList&& other);
    /// By start and end; those found first stay first.
    void sort();
};

} // namespace ZARN
