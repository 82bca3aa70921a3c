#include "cli/JsonWriter.h"

#include "app/DateText.h"
#include "cli/Output.h"
#include "cli/VisibleText.h"

#include <charconv>
#include <cmath>

namespace ZARN {

namespace {

template <typename Number> void appendNumber(std::string& text, Number number)
{
    char buffer[32];
    text.append(buffer, static_cast<std::size_t>(std::to_chars(buffer, buffer + sizeof buffer, number).ptr - buffer));
}

void appendEscaped(QString& text, QChar character)
{
    switch (character.unicode()) {
    case '"': text += QLatin1String("\\\""); break;
    case '\\': text += QLatin1String("\\\\"); break;
    case '\n': text += QLatin1String("\\n"); break;
    case '\t': text += QLatin1String("\\t"); break;
    default:
        if (isInvisible(character.unicode()))
            text += QString("\\u%1").arg(static_cast<uint>(character.unicode()), 4, 16, QChar('0'));
        else
            text += character;
    }
}

} // namespace

void JsonWriter::separate()
{
    constexpr std::size_t kPiece = 4096;
    if (mpOutput && mText.size() >= kPiece) {
        mpOutput->write(mText);
        mText.clear();
    }
    if (!mFirst)
        mText += ',';
    mFirst = false;
}

JsonWriter& JsonWriter::beginAnswer()
{
    return beginObject().member("schema", 1);
}

std::string JsonWriter::endAnswer()
{
    endObject();
    return std::move(mText += '\n');
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
    separate();
    mText.append("\"").append(name).append("\":");
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

JsonWriter& JsonWriter::value(const JsonWriter& built)
{
    separate();
    mText += built.mText;
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
    QString escaped;
    for (const QChar character : text)
        appendEscaped(escaped, character);
    separate();
    mText += '"' + escaped.toStdString() + '"';
    return *this;
}

JsonWriter& JsonWriter::value(const QDateTime& dateTime)
{
    return dateTime.isValid() ? value(isoDateText(dateTime)) : null();
}

JsonWriter& JsonWriter::null()
{
    separate();
    mText += "null";
    return *this;
}

} // namespace ZARN
