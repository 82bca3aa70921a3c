#include "cli/CommandValue.h"

#include "cli/JsonWriter.h"
#include "cli/TextTable.h"
#include "cli/VisibleText.h"

namespace ZARN {

CommandValue::CommandValue(CLI::App& program)
    : DataCommand(program, "value", "print a parameter's value at given times",
                  "zarn-cli value /media/card --parameter RPM --time 600 --time 605.5")
{
    options().add("--parameter", mParameter, "name of the parameter", CommandOptions::eRequired);
    options().addMany("--time", mTimes, "seconds since the unit's power-up; may be given many times", CommandOptions::eRequired);
    addJson();
}

CommandValue::Answer CommandValue::answer(const ProfileParameter& parameter, double time)
{
    Answer answer{time, 0.0, {}, 0, {}};
    QColor colour;
    answer.value = mContainer.getValue(parameter, time, answer.state, colour);
    if (const auto shown = mContainer.values().displayAt(parameter, time))
        answer.text = shown->text;
    if (colour.isValid())
        answer.colour = colour.name().toStdString();
    return answer;
}

int CommandValue::runOnData()
{
    const ProfileParameter* pParameter = mProfile.model().find(mParameter);
    if (!pParameter)
        return fail(mParameter + ": the profile has no such parameter");
    const std::string& unit = mProfile.context().unitOf(*pParameter);
    JsonWriter writer;
    writer.beginAnswer().member("parameter", pParameter->name).member("unit", unit).key("values").beginArray();
    TextTable table({"Time [h:m:s]", "Time [s]", tableTitle("Value", unit), tableTitle("Text", unit), "State"});
    static const char* const states[] = {"ok", "warning", "limit"};
    for (const double time : mTimes) {
        const Answer a = answer(*pParameter, time);
        writer.beginObject().member("time", a.time).member("value", a.value).member("text", a.text).member("state", a.state).key("color");
        a.colour.empty() ? writer.null() : writer.value(a.colour);
        writer.endObject();
        table.addRow({tableTime(a.time), tableNumber(a.time, 3), tableNumber(a.value, 6), a.text, a.text.empty() ? "no data" : states[a.state]});
    }
    writer.endArray();
    return print(mJson ? writer.endAnswer() : visibleText(pParameter->path) + "\n\n" + table.text());
}

} // namespace ZARN
