#pragma once

#include "store/RecordingCopies.h"
#include "store/Trend.h"

namespace ZARN {

/// Which trends are wanted; what is empty leaves all.
struct TrendFilter {
    std::string parameter;
    std::string phase;
};

/// Reads a store that others may write meanwhile. For one thread.
class StoreReader {
public:
    /// A file that is no store of the present form is an error.
    explicit StoreReader(const std::string& path);
    /// Reads one that is open, and has the present form.
    explicit StoreReader(Database& database) : mDatabase(database) {}

    /// "PATH: reason" of the first failure; else empty.
    [[nodiscard]] const std::string& error() const { return mDatabase.error(); }
    /// The engines by identifier; with a serial number, the one that has it or is called so.
    [[nodiscard]] std::vector<std::string> engines(const std::string& serial = {});
    /// The engine that one is since the user said so; else itself.
    [[nodiscard]] std::string engineOf(const std::string& engine);
    /// From now on flights that several copies of a recording tell count once in trends. @param shown what the user looks at, if anything
    void countOnce(std::optional<ShownRecording> shown = {});
    /// The trends of an engine, by parameter and phase.
    [[nodiscard]] std::vector<Trend> trends(const std::string& engine, const TrendFilter& filter = {});
    /// Where the flights of a cycle stand in the order of time; empty when the store does not have it.
    [[nodiscard]] std::vector<TrendPoint::Place> places(const std::string& engine, const std::string& cycle);

private:
    std::optional<Database> mOwn;
    Database& mDatabase;
    bool mIsCountedOnce = false;
    std::optional<ShownRecording> mShown;
};

} // namespace ZARN
