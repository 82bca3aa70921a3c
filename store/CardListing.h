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

    struct Found {
        std::vector<std::string> cards;
        std::vector<Failure> failures;
        std::vector<std::string> others; ///< folders that are neither
    };

    void add(const std::string& path);
    /// All that was found.
    [[nodiscard]] Found take();

private:
    void search(const std::string& folder);

    Found mFound;
};

} // namespace ZARN
