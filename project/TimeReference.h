#pragma once

#include <QDateTime>

#include <optional>

namespace ZARN {

class CardContainer;
class Property;
struct LoadedCard;

/// What times are counted from. The numbers are those of the setting "TimeReference".
enum class ETimeReference { ePowerUp, eClock, eTakeOff };

/// How the times of what is loaded are told to the user: since power-up, as they are recorded, as the recorder's clock or since take-off.
/// The same for axes, cursors, lists and exports. A small value; only texts know of it, every time that is kept is one since power-up.
class TimeReference {
public:
    TimeReference() = default;
    /// @param shift seconds from a time since power-up to the one that is told
    TimeReference(ETimeReference kind, double shift) : mKind(kind), mShift(shift) {}
    /// The one that the user chose; since power-up where there is no clock, or no flight. Of several flights the selected one counts, else
    /// the first.
    [[nodiscard]] static TimeReference of(const Property& property, const CardContainer& container);
    [[nodiscard]] static TimeReference of(ETimeReference kind, const LoadedCard& loaded);
    /// @param powerUp invalid without a clock  @param takeOff none without a flight
    [[nodiscard]] static TimeReference of(ETimeReference kind, const QDateTime& powerUp, const std::optional<double>& takeOff);
    [[nodiscard]] static ETimeReference wanted(const Property& property);
    bool operator==(const TimeReference&) const = default;

    [[nodiscard]] ETimeReference kind() const { return mKind; }
    [[nodiscard]] double shift() const { return mShift; }
    /// The seconds that are told of a time since power-up; those of a clock begin anew every day.
    [[nodiscard]] double told(double seconds) const;
    /// The other way: the first time since power-up, from that one on, of which these seconds are told. Only those of a clock are told of several.
    [[nodiscard]] double meant(double told, double from) const;
    [[nodiscard]] int64_t toldMilliseconds(int64_t milliseconds) const;
    /// "hh:mm:ss.zzz", as lists have it.
    [[nodiscard]] QString text(int64_t milliseconds) const;
    [[nodiscard]] QString textAt(double seconds) const;
    /// As sentences have it: "12:26" or "1:02:03", "14:02:03" of a clock.
    [[nodiscard]] QString shortText(double seconds) const;
    /// Over a column of times, in the user's language.
    [[nodiscard]] QString title() const;
    /// The same in files, in English; "Time" since power-up.
    [[nodiscard]] const char* heading() const;
    /// Below a table, or above a text: what its times are, in a sentence.
    [[nodiscard]] QString sentence() const;
    /// For a choice, in the user's language.
    [[nodiscard]] static QString name(ETimeReference kind);

private:
    ETimeReference mKind = ETimeReference::ePowerUp;
    double mShift = 0.0;
};

} // namespace ZARN
