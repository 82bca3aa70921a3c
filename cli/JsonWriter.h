#pragma once

#include <QDateTime>

#include <cstdint>
#include <string>
#include <string_view>

namespace ZARN {

class Output;

/// Writes one JSON value as it is built, members in the order given, so that lists of any length need no tree. Texts may hold any
/// bytes: what is no UTF-8 becomes U+FFFD, what would steer a terminal is escaped. Doubles survive the round trip; one that is not finite is the string "nan", "inf"
/// or "-inf". An invalid date and time is null.
class JsonWriter {
public:
    JsonWriter() = default;
    /// For an answer of any length: what is written goes on into the output from time to time.
    explicit JsonWriter(Output& output) : mpOutput(&output) {}
    /// The object that a subcommand answers, with the number of its form; endAnswer() closes it.
    JsonWriter& beginAnswer();
    /// @return the text, with a line break; of one that goes on into an output, the end that has not gone yet.
    [[nodiscard]] std::string endAnswer();
    JsonWriter& beginObject();
    JsonWriter& endObject();
    JsonWriter& beginArray();
    JsonWriter& endArray();
    /// @param name nothing in it needs an escape.
    JsonWriter& key(std::string_view name);

    JsonWriter& value(double number);
    JsonWriter& value(int64_t number);
    JsonWriter& value(uint32_t number) { return value(static_cast<int64_t>(number)); }
    JsonWriter& value(int number) { return value(static_cast<int64_t>(number)); }
    JsonWriter& value(bool flag);
    JsonWriter& value(std::string_view text);
    JsonWriter& value(const char* text) { return value(std::string_view(text)); }
    JsonWriter& value(const QString& text);
    JsonWriter& value(const QDateTime& dateTime);
    JsonWriter& null();
    /// The value that another writer, without an output, has built.
    JsonWriter& value(const JsonWriter& built);

    template <typename Value> JsonWriter& member(std::string_view name, const Value& content) { return key(name).value(content); }

private:
    void separate();

    std::string mText;
    Output* mpOutput = nullptr;
    bool mFirst = true; // of its object or array
};

} // namespace ZARN
