#include "cli/JsonWriter.h"

#include <charconv>
#include <cmath>

namespace ZARN {

namespace {

template <typename Number> void appendNumber(std::string& text, Number number)
{
    char buffer[32];
    text.append(buffer, static_cast<std::size_t>(std::to_chars(buffer, buffer + sizeof buffer, number).ptr - buffer));
}

void appendEscaped(std::string& text, unsigned char character)
{
    static constexpr char digits[] = "0123456789abcdef";
    switch (character) {
    case '"': text += "\\\""; break;
    case '\\': text += "\\\\"; break;
    case '\n': text += "\\n"; break;
    case '\t': text += "\\t"; break;
    default:
        if (character < 0x20)
            text.append("\\u00").append(1, digits[character >> 4]).append(1, digits[character & 15]);
        else
            text += static_cast<char>(character);
    }
}

} // namespace

void JsonWriter::separate()
{
    if (!mFirst)
        mText += ',';
    mFirst = false;
}

JsonWriter& JsonWriter::beginObject()
{
    separate();
    mText += '{';
    mFirst = true;
    return *this;
}

JsonWriter& JsonWriter::endObject()
{
    mText += '}';
    mFirst = false;
    return *this;
}

JsonWriter& JsonWriter::beginArray()
{
    separate();
    mText += '[';
    mFirst = true;
    return *this;
}

JsonWriter& JsonWriter::endArray()
{
    mText += ']';
    mFirst = false;
    return *this;
}

JsonWriter& JsonWriter::key(std::string_view name)
{
    value(name);
    mText += ':';
    mFirst = true;
    return *this;
}

JsonWriter& JsonWriter::value(double number)
{
    if (std::isnan(number))
        return value("nan");
    if (std::isinf(number))
        return value(number > 0 ? "inf" : "-inf");
    separate();
    appendNumber(mText, number);
    return *this;
}

JsonWriter& JsonWriter::value(int64_t number)
{
    separate();
    appendNumber(mText, number);
    return *this;
}

JsonWriter& JsonWriter::value(bool flag)
{
    separate();
    mText += flag ? "true" : "false";
    return *this;
}

JsonWriter& JsonWriter::value(std::string_view text)
{
    return value(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
}

JsonWriter& JsonWriter::value(const QString& text)
{
    separate();
    mText += '"';
    for (const char character : text.toUtf8())
        appendEscaped(mText, static_cast<unsigned char>(character));
    mText += '"';
    return *this;
}

JsonWriter& JsonWriter::value(const QDateTime& dateTime)
{
    return dateTime.isValid() ? value(dateTime.toString("yyyy-MM-ddThh:mm:ss")) : null();
}

JsonWriter& JsonWriter::null()
{
    separate();
    mText += "null";
    return *this;
}

} // namespace ZARN
