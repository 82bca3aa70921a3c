#include "profile/ValueDecoder.h"

#include "app/NumberText.h"
#include "card/record/ByteOrder.h"

#include <algorithm>

namespace ZARN {

namespace {


/// A big-endian word at any start byte; bytes outside the payload read as 0.
template <typename Word> Word wordAt(const Payload& payload, int startByte)
{
    if (startByte >= 0 && startByte <= static_cast<int>(payload.size() - sizeof(Word)))
        return loadBigEndian<Word>(payload.data() + startByte);
    uint32_t word = 0;
    for (int64_t i = startByte; i < static_cast<int64_t>(startByte) + static_cast<int64_t>(sizeof(Word)); ++i)
        word = word << 8 | (i >= 0 && i < static_cast<int64_t>(payload.size()) ? payload[static_cast<std::size_t>(i)] : 0U);
    return static_cast<Word>(word);
}

uint32_t fieldMask(int startBit, int endBit)
{
    const uint32_t width = static_cast<uint32_t>(endBit) - static_cast<uint32_t>(startBit) + 1;
    return width >= 32 ? 0xFFFFFFFFU : (1U << width) - 1;
}

void append(std::string& text, int value)
{
    char buffer[kNumberTextSize];
    text.append(buffer, static_cast<std::size_t>(writeInteger(buffer, value) - buffer));
}

} // namespace

ValueDecoder::ERaw ValueDecoder::rawOf(int dataType)
{
    switch (dataType) {
    case eFloat: return ERaw::eFloat;
    case eLong: return ERaw::eLong;
    case eULong: return ERaw::eULong;
    case eBLong: return ERaw::eField32;
    case eBShort: return ERaw::eField16;
    case eShort:
    case eShort2: return ERaw::eShort;
    case eUShort:
    case eUShort2: return ERaw::eUShort;
    case eChar:
    case eChar4:
    case eChar2:
    case eChar3: return ERaw::eChar;
    case eUChar:
    case eUChar4:
    case eUChar2:
    case eUChar3: return ERaw::eUChar;
    default: return ERaw::eNone;
    }
}

int ValueDecoder::rawSize(int dataType)
{
    switch (rawOf(dataType)) {
    case ERaw::eNone: return 0;
    case ERaw::eFloat:
    case ERaw::eLong:
    case ERaw::eULong:
    case ERaw::eField32: return 4;
    case ERaw::eField16:
    case ERaw::eShort:
    case ERaw::eUShort: return 2;
    case ERaw::eChar:
    case ERaw::eUChar: return 1;
    }
    return 0;
}

ValueDecoder::EPosition ValueDecoder::positionOf(const ProfileParameter& parameter)
{
    if (!parameter.isPosition())
        return EPosition::eNone;
    return parameter.viewId == "Latitude" ? EPosition::eLatitude : EPosition::eLongitude;
}

ValueDecoder::ValueDecoder(const ProfileParameter& parameter, const ThresholdList* pThresholds, const EnumList* pLabels,
                           std::optional<UnitConversion> conversion)
    : mRaw(rawOf(parameter.dataType)), mPosition(positionOf(parameter)), mStartByte(parameter.startByte),
      mShift(static_cast<uint32_t>(parameter.startBit) % 32), mMask(fieldMask(parameter.startBit, parameter.endBit)),
      mPrecision(std::clamp(parameter.precision, 0, kHighestPrecision)), mFactor(parameter.factor), mOffset(parameter.offset),
      mpThresholds(pThresholds), mpLabels(pLabels), mConversion(conversion)
{
}

template <ValueDecoder::ERaw kind> double ValueDecoder::raw(const Payload& payload) const
{
    if constexpr (kind == ERaw::eFloat)
        return std::bit_cast<float>(wordAt<uint32_t>(payload, mStartByte));
    else if constexpr (kind == ERaw::eLong)
        return static_cast<float>(static_cast<int32_t>(wordAt<uint32_t>(payload, mStartByte)));
    else if constexpr (kind == ERaw::eULong)
        return static_cast<float>(wordAt<uint32_t>(payload, mStartByte));
    else if constexpr (kind == ERaw::eField32)
        return wordAt<uint32_t>(payload, mStartByte) >> mShift & mMask;
    else if constexpr (kind == ERaw::eField16)
        return static_cast<uint32_t>(wordAt<uint16_t>(payload, mStartByte)) >> mShift & mMask;
    else if constexpr (kind == ERaw::eShort)
        return static_cast<int16_t>(wordAt<uint16_t>(payload, mStartByte));
    else if constexpr (kind == ERaw::eUShort)
        return wordAt<uint16_t>(payload, mStartByte);
    else if constexpr (kind == ERaw::eChar)
        return static_cast<int8_t>(wordAt<uint8_t>(payload, mStartByte));
    else if constexpr (kind == ERaw::eUChar)
        return wordAt<uint8_t>(payload, mStartByte);
    else
        return 0.0;
}

double ValueDecoder::raw(const Payload& payload) const
{
    switch (mRaw) {
    case ERaw::eFloat: return raw<ERaw::eFloat>(payload);
    case ERaw::eLong: return raw<ERaw::eLong>(payload);
    case ERaw::eULong: return raw<ERaw::eULong>(payload);
    case ERaw::eField32: return raw<ERaw::eField32>(payload);
    case ERaw::eField16: return raw<ERaw::eField16>(payload);
    case ERaw::eShort: return raw<ERaw::eShort>(payload);
    case ERaw::eUShort: return raw<ERaw::eUShort>(payload);
    case ERaw::eChar: return raw<ERaw::eChar>(payload);
    case ERaw::eUChar: return raw<ERaw::eUChar>(payload);
    case ERaw::eNone: break;
    }
    return 0.0;
}

int ValueDecoder::integer(const Payload& payload, const ProfileParameter& parameter)
{
    const auto field = [&](uint32_t word) {
        return static_cast<int>(word >> static_cast<uint32_t>(parameter.startBit) % 32 & fieldMask(parameter.startBit, parameter.endBit));
    };
    const auto word16 = [&] { return wordAt<uint16_t>(payload, parameter.startByte); };
    const auto word8 = [&] { return wordAt<uint8_t>(payload, parameter.startByte); };
    switch (rawOf(payload[1])) {
    case ERaw::eLong:
    case ERaw::eULong: return static_cast<int>(wordAt<uint32_t>(payload, parameter.startByte));
    case ERaw::eField32: return field(wordAt<uint32_t>(payload, parameter.startByte));
    case ERaw::eField16: return field(word16());
    case ERaw::eShort: return static_cast<int16_t>(word16());
    case ERaw::eUShort: return word16();
    case ERaw::eChar: return static_cast<int8_t>(word8());
    case ERaw::eUChar: return word8();
    case ERaw::eFloat:
    case ERaw::eNone: break;
    }
    return 0;
}

double ValueDecoder::applyFilter(double value, CoordinateFilter& filter) const
{
    switch (mPosition) {
    case EPosition::eLatitude: return filter.latitude(value);
    case EPosition::eLongitude: return filter.longitude(value);
    case EPosition::eNone: break;
    }
    return value;
}

double ValueDecoder::value(const Payload& payload, bool scale, CoordinateFilter& filter) const
{
    const double number = raw(payload);
    if (mRaw == ERaw::eNone || isField())
        return number;
    return applyFilter(scale ? std::fma(mFactor, number, mOffset) : number, filter);
}

double ValueDecoder::textValue(const Payload& payload, CoordinateFilter& filter) const
{
    switch (mRaw) {
    case ERaw::eNone: return payload[1];
    case ERaw::eField32:
    case ERaw::eField16: return raw(payload);
    case ERaw::eFloat: {
        const auto scaled = static_cast<float>(std::fma(mFactor, raw<ERaw::eFloat>(payload), mOffset));
        return mPosition == EPosition::eNone ? scaled : static_cast<float>(applyFilter(scaled, filter));
    }
    case ERaw::eULong: return std::fma(mFactor, static_cast<double>(wordAt<uint32_t>(payload, mStartByte)), mOffset);
    default: return saturatingCast<int>(std::fma(mFactor, raw(payload), mOffset));
    }
}

bool ValueDecoder::decodeRun(Kernel run, std::span<const StoredRecord> records, double* pOut) const
{
    const int width = mRaw == ERaw::eChar || mRaw == ERaw::eUChar ? 1 : mRaw == ERaw::eShort || mRaw == ERaw::eUShort ? 2 : 4;
    if (!run || mStartByte < 0 || mStartByte > 8 - width)
        return false;
    run(records, {mStartByte, mFactor, mOffset}, pOut);
    return true;
}

ValueDecoder::Kernel ValueDecoder::kernel() const
{
    switch (mRaw) {
    case ERaw::eFloat: return Kernels::floats;
    case ERaw::eLong: return Kernels::longsAsFloat;
    case ERaw::eULong: return Kernels::unsignedLongsAsFloat;
    case ERaw::eShort: return Kernels::shorts;
    case ERaw::eUShort: return Kernels::unsignedShorts;
    case ERaw::eChar: return Kernels::chars;
    case ERaw::eUChar: return Kernels::unsignedChars;
    default: return nullptr;
    }
}

void ValueDecoder::values(std::span<const StoredRecord> records, double* pOut, CoordinateFilter& filter) const
{
    if (!decodeRun(kernel(), records, pOut)) {
        for (const StoredRecord& record : records)
            *pOut++ = value(record.payload, true, filter);
    } else if (mPosition != EPosition::eNone) {
        std::for_each(pOut, pOut + records.size(), [&](double& number) { number = applyFilter(number, filter); });
    }
}

void ValueDecoder::textValues(std::span<const StoredRecord> records, double* pOut, CoordinateFilter& filter) const
{
    if (mRaw == ERaw::eULong && decodeRun(Kernels::unsignedLongs, records, pOut))
        return;
    if (!decodeRun(kernel(), records, pOut)) {
        for (const StoredRecord& record : records)
            *pOut++ = textValue(record.payload, filter);
    } else if (mRaw == ERaw::eFloat) {
        std::for_each(pOut, pOut + records.size(), [](double& number) { number = static_cast<float>(number); });
        if (mPosition != EPosition::eNone)
            std::for_each(pOut, pOut + records.size(), [&](double& number) { number = static_cast<float>(applyFilter(number, filter)); });
    } else {
        std::for_each(pOut, pOut + records.size(), [](double& number) { number = saturatingCast<int>(number); });
    }
}

ThresholdResult ValueDecoder::textThreshold(double textValue) const
{
    const ThresholdList* pThresholds = textThresholds();
    return pThresholds ? findThreshold(*pThresholds, textValue) : ThresholdResult{};
}

char* ValueDecoder::writeNumber(double textValue, char* pOut) const
{
    switch (mRaw) {
    case ERaw::eNone:
    case ERaw::eField32:
    case ERaw::eField16: return nullptr;
    case ERaw::eFloat: return writeFixed(pOut, toDisplayUnit(textValue), mPrecision);
    case ERaw::eULong: return writeGeneral(pOut, textValue, mPrecision);
    default: return writeInteger(pOut, static_cast<int>(textValue));
    }
}

std::string ValueDecoder::text(double textValue) const
{
    std::string text;
    appendText(textValue, text);
    return text;
}

void ValueDecoder::appendText(double textValue, std::string& text) const
{
    char buffer[kNumberTextSize];
    if (const char* pEnd = writeNumber(textValue, buffer))
        text.append(buffer, static_cast<std::size_t>(pEnd - buffer));
    else if (isField())
        appendFieldText(static_cast<int>(static_cast<uint32_t>(textValue)), text);
    else
        text.append("Datatype ").append(std::to_string(static_cast<int>(textValue))).append(" not implemented");
}

void ValueDecoder::appendFieldText(int value, std::string& text) const
{
    append(text, value);
    if (mpLabels) {
        const auto label = mpLabels->find(value);
        if (label != mpLabels->end())
            text.append(": ").append(label->second);
        else if (mRaw == ERaw::eField32)
            text.append(": Invalid ENUM Value");
    } else if (mRaw == ERaw::eField32) {
        text.append(": Invalid ENUM Type");
    }
}

} // namespace ZARN
