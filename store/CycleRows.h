#pragma once

#include "store/CardFacts.h"
#include "store/FieldValue.h"

#include <array>
#include <functional>
#include <span>

namespace ZARN {

enum class EColumn { eInteger, eReal, eText, eId };

/// A column of a table, with what its fields are; an identifier is a number in one form of the store and a text in the other.
struct StoreColumn {
    const char* name;
    EColumn type;
};

/// The tables that a cycle fills.
enum EStoreTable { eCycleTable, eFlightTable, eIncidentTable, eEpisodeTable, eKeyValueTable, eStoreTables };

/// A table of the store, the same in all its forms.
struct StoreTable {
    const char* name;   ///< in an SQLite file
    const char* folder; ///< in a dataset of files
    std::span<const StoreColumn> columns;
};

[[nodiscard]] const StoreTable& storeTable(EStoreTable table);

/// How the rows of a cycle name each other.
struct RowIds {
    FieldValue card;
    /// The identifier of the flight, incident or episode at a place of the cycle, from 0.
    std::function<FieldValue(EStoreTable, std::size_t)> of;
};

using CycleRows = std::array<std::vector<Row>, eStoreTables>;

/// All rows of a cycle, in the order of the columns.
[[nodiscard]] CycleRows cycleRows(const CycleFacts& cycle, const AnalysisKey& key, const RowIds& ids);

} // namespace ZARN
