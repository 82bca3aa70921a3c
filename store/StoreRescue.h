#pragma once

#include <string>

namespace ZARN {

class Database;

/// What became of a store whose reading failed as that of a damaged one does.
struct StoreRescue {
    std::string error;      ///< to be told
    bool isDamaged = false; ///< it was put aside
};

/// Looks a second time, and puts a damaged store aside under another name. A new one takes its place, with all that can be read of it.
/// @param error what was found first; the caller may not have the store open
[[nodiscard]] StoreRescue rescueStore(const std::string& path, const std::string& error);

/// Fails the database where its content is not sound.
void checkStoreContent(Database& database);

} // namespace ZARN
