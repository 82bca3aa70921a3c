#pragma once

#include <QString>

#include <limits>
#include <string>

namespace ZARN {

class Property;

// The kinds of settings: each knows its name in the settings file, what holds while the file has none, and what it may be.
// Which there are stands in Settings.h.

/// A text.
struct TextSetting {
    const char* key;
    const char* fallback;

    [[nodiscard]] std::string get(const Property& settings) const;
    [[nodiscard]] QString text(const Property& settings) const { return QString::fromStdString(get(settings)); }
    /// Whether there is a text in the settings, be it the default.
    [[nodiscard]] bool isSet(const Property& settings) const;
    void set(Property& settings, const std::string& value) const;
    void set(Property& settings, const QString& value) const { set(settings, value.toStdString()); }
};

/// A row of texts, each with a number behind the name. None has a default.
struct NumberedSetting {
    const char* key;
    int count;

    [[nodiscard]] std::string get(const Property& settings, int number) const;
    [[nodiscard]] QString text(const Property& settings, int number) const { return QString::fromStdString(get(settings, number)); }
    void set(Property& settings, int number, const std::string& value) const;
};

/// Something that is on or off.
struct SwitchSetting {
    const char* key;
    bool fallback;

    [[nodiscard]] bool get(const Property& settings) const;
    void set(Property& settings, bool value) const;
};

/// A number with a fraction, taken as it is.
struct FractionSetting {
    const char* key;
    double fallback;

    [[nodiscard]] double get(const Property& settings) const;
};

/// What becomes of a number out of its range.
enum class EOutside { eNearest, eFallback };

/// A whole number from least to most.
struct NumberSetting {
    const char* key;
    int fallback;
    int least = 0;
    int most = std::numeric_limits<int>::max();
    EOutside outside = EOutside::eFallback;

    [[nodiscard]] int get(const Property& settings) const;
    void set(Property& settings, int value) const;
};

} // namespace ZARN
