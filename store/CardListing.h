#pragma once

#include <QCoreApplication>

#include <cstdint>
#include <string>
#include <vector>

namespace ZARN {

/// A record file as its folder lists it.
struct ListedFile {
    std::string name;
    int64_t size = 0;
    double mtime = 0.0; ///< when it was last written, in seconds since 1970
};

/// The record files of one card folder, without a look into them.
struct CardListing {
    std::string path;              ///< absolute
    std::vector<ListedFile> files; ///< by name
    std::string problem;           ///< why they could not be listed; empty when they could
};

/// Lists the record files of a folder.
[[nodiscard]] CardListing listCard(const std::string& path);

/// The card folders at and below paths, each once, by path.
class CardFinder {
    Q_DECLARE_TR_FUNCTIONS(ZARN::CardFinder)

public:
    /// A path at which nothing was found, or not all.
    struct Failure {
        std::string path; ///< absolute
        std::string reason;
        bool isSystemError = false; ///< else it holds no card
    };

    void add(const std::string& path);
    /// All that were found.
    [[nodiscard]] std::vector<std::string> take();
    [[nodiscard]] const std::vector<Failure>& failures() const { return mFailures; }

private:
    void search(const std::string& folder);

    std::vector<std::string> mCards;
    std::vector<Failure> mFailures;
};

} // namespace ZARN
