#pragma once

#include "card/CycleNote.h"
#include "store/Database.h"
#include "store/Service.h"

#include <functional>

namespace ZARN {

/// Writes what people tell into a store, each thing in a transaction of its own, so that what was said to be kept is kept. Makes the store
/// where there is none; one that is damaged is put aside. For one thread.
class LogbookEditor {
    Q_DECLARE_TR_FUNCTIONS(ZARN::LogbookEditor)

public:
    explicit LogbookEditor(const std::string& path);

    /// "PATH: reason" of the first failure; else empty. Nothing is written after it.
    [[nodiscard]] const std::string& error() const { return mError; }
    /// Whether that was damage: the store was put aside.
    [[nodiscard]] bool isDamaged() const { return mIsDamaged; }

    // All return whether it was kept.
    /// A note of a cycle; one with an identifier takes the place of what it was, and without a text is removed.
    bool saveNote(const std::string& cycle, const CycleNote& note);
    /// The same of a service.
    bool saveService(const Service& service);
    bool removeService(int64_t id);
    /// An empty name is none.
    bool nameAircraft(const std::string& engine, const QString& name);
    /// Hours that an engine ran before its first recording. Who enters them knows what is lost of it.
    bool setHoursBefore(const std::string& engine, std::optional<double> hours);
    /// An engine that tells no serial number is another one: what was and will be recorded of it is of that one.
    bool merge(const std::string& engine, const std::string& into);
    /// Undoes merge().
    bool separate(const std::string& engine);

private:
    bool write(const std::function<void()>& work);
    void finishFailure();

    Database mDatabase;
    std::string mError;
    bool mIsDamaged = false;
};

} // namespace ZARN
