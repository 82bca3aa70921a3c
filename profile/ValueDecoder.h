#pragma once

#include "card/record/RecordEntry.h"
#include "profile/CoordinateFilter.h"
#include "profile/ProfileParameter.h"
#include "profile/Threshold.h"
#include "profile/ValueKernels.h"

#include <map>
#include <optional>
#include <string>

namespace ZARN {

/// Imperial value = metric value x factor + offset.
struct UnitConversion {
    double factor = 0.0;
    double offset = 0.0;
};

using EnumList = std::map<int, std::string>;

/// How the payloads of one parameter become values and texts: the data type is resolved once, so that loops over millions of
/// records switch on nothing. Made by DecodingContext::decoder(); refers to the model's lists and must not outlive it.
///
/// Two kinds of numbers: the value (what getDouble tells) and the text value (what the display text is written from); they
/// differ by type: whole numbers lose their fraction in texts, floats are rounded to 32 bits, only floats change their unit.
class ValueDecoder {
public:
    static constexpr int kHighestPrecision = 17; ///< a parameter's is held to 0 and this

    ValueDecoder(const ProfileParameter& parameter, const ThresholdList* pThresholds, const EnumList* pLabels,
                 std::optional<UnitConversion> conversion);

    /// The raw integer of a payload by the data type code in its own byte 1, whatever the parameter's; 0 for codes that hold none.
    [[nodiscard]] static int integer(const Payload& payload, const ProfileParameter& parameter);

    /// The bytes that a data type takes of the payload; 0 for those that hold no number.
    [[nodiscard]] static int rawSize(int dataType);
    /// False for data types that hold no number; their value is 0.
    [[nodiscard]] bool isNumeric() const { return mRaw != ERaw::eNone; }
    /// Bits of a word: numbers that are states, and no quantities.
    [[nodiscard]] bool isField() const { return mRaw == ERaw::eField32 || mRaw == ERaw::eField16; }
    /// What the numbers are called; null without a list.
    [[nodiscard]] const EnumList* labels() const { return mpLabels; }
    /// The value in metric units, without threshold and unit conversion. @param scale applies factor and offset.
    [[nodiscard]] double value(const Payload& payload, bool scale, CoordinateFilter& filter) const;
    /// The number that the text is written from, in metric units; for data types without a number the entry's type code.
    [[nodiscard]] double textValue(const Payload& payload, CoordinateFilter& filter) const;
    /// The same for a run of records, in order; pOut takes as many numbers.
    void values(std::span<const StoredRecord> records, double* pOut, CoordinateFilter& filter) const;
    void textValues(std::span<const StoredRecord> records, double* pOut, CoordinateFilter& filter) const;

    [[nodiscard]] ThresholdResult threshold(double value) const { return mpThresholds ? findThreshold(*mpThresholds, value) : ThresholdResult{}; }
    /// State and colour that go with the text of a text value; bit fields are always neutral there.
    [[nodiscard]] ThresholdResult textThreshold(double textValue) const;
    /// The boundaries behind threshold(); null without a list.
    [[nodiscard]] const ThresholdList* thresholds() const { return mpThresholds; }
    /// The boundaries behind textThreshold(); null where every text is neutral.
    [[nodiscard]] const ThresholdList* textThresholds() const { return mRaw == ERaw::eNone || isField() ? nullptr : mpThresholds; }
    [[nodiscard]] double toDisplayUnit(double value) const
    {
        return mConversion ? value * mConversion->factor + mConversion->offset : value;
    }
    /// The display text of a text value; the same appended.
    [[nodiscard]] std::string text(double textValue) const;
    void appendText(double textValue, std::string& text) const;
    /// Writes the display text when it is a number alone. @return its end, or null for texts with words (use appendText).
    [[nodiscard]] char* writeNumber(double textValue, char* pOut) const;

private:
    enum class ERaw { eNone, eFloat, eLong, eULong, eField32, eField16, eShort, eUShort, eChar, eUChar };
    enum class EPosition { eNone, eLatitude, eLongitude };
    static ERaw rawOf(int dataType);
    static EPosition positionOf(const ProfileParameter& parameter);

    template <ERaw kind> [[nodiscard]] double raw(const Payload& payload) const;
    [[nodiscard]] double raw(const Payload& payload) const;
    [[nodiscard]] double applyFilter(double value, CoordinateFilter& filter) const;
    using Kernel = void (*)(std::span<const StoredRecord>, Kernels::Scaling, double*);
    [[nodiscard]] Kernel kernel() const;
    bool decodeRun(Kernel run, std::span<const StoredRecord> records, double* pOut) const;
    void appendFieldText(int value, std::string& text) const;

    ERaw mRaw;
    EPosition mPosition;
    int mStartByte;
    uint32_t mShift;
    uint32_t mMask;
    int mPrecision;
    double mFactor;
    double mOffset;
    const ThresholdList* mpThresholds;
    const EnumList* mpLabels;
    std::optional<UnitConversion> mConversion; // none in metric units
};

} // namespace ZARN
