#pragma once

#include "app/Progress.h"
#include "store/CardFacts.h"

#include <QCoreApplication>

namespace ZARN {

class Console;

/// Where a recording is at hand.
struct CyclePlace {
    QString folder;      ///< a card
    uint32_t cycle = 0;  ///< its number there
};

/// Copies of recordings below a folder, one folder a cycle, named by engine and identity. A copy that is there is whole: it was compared with
/// the card, byte by byte, before it got its name. Each of these folders is a card by itself.
class CardArchive {
    Q_DECLARE_TR_FUNCTIONS(ZARN::CardArchive)

public:
    CardArchive(std::string root, const Console& console) : mRoot(std::move(root)), mConsole(console) {}

    /// Copies the cycles of a card that are not there yet. @return empty, or what failed and why
    [[nodiscard]] std::string add(const std::string& card, Progress& progress) const;
    /// The folders that hold a copy of a cycle.
    [[nodiscard]] std::vector<std::string> foldersOf(const std::string& cycle) const;

private:
    [[nodiscard]] std::string folderOf(const std::string& engine, const std::string& cycle) const;
    [[nodiscard]] std::string addCycle(const std::vector<std::string>& files, const std::string& folder) const;
    [[nodiscard]] static std::string copy(const std::string& from, const std::string& to);

    const std::string mRoot;
    const Console& mConsole;
};

/// Looks for a recording in folders, one after the other. Reads the beginnings and ends of files.
[[nodiscard]] std::optional<CyclePlace> findCycle(const std::vector<std::string>& folders, const std::string& cycle, const Console& console,
                                                  Progress& progress);

} // namespace ZARN
