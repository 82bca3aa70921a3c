#include "cli/CommandTrend.h"

#include "cli/CardCommand.h"
#include "cli/Output.h"
#include "cli/Resources.h"
#include "cli/SummaryJson.h"
#include "cli/TextTable.h"
#include "cli/VisibleText.h"

#include <algorithm>
#include <cmath>

namespace ZARN {

namespace {

std::string date(const TrendPoint& point)
{
    return point.dateTime.empty() ? "no clock" : visibleText(point.dateTime);
}

std::string band(const TrendJudgement& judgement)
{
    const Distribution& values = judgement.band;
    return values.samples == 0 ? "-" : tableNumber(values.p05, 2) + " to " + tableNumber(values.p95, 2);
}

std::string mark(const TrendJudgement& judgement)
{
    if (judgement.isUnusual)
        return judgement.isDrifting ? "unusual, drifting" : "unusual";
    return judgement.isDrifting ? "drifting" : "";
}

} // namespace

CommandTrend::CommandTrend(CLI::App& program)
    : Command(program, "trend", "how an engine's figures go from flight to flight, and which are unusual",
              "zarn-cli trend logbook.sqlite --parameter \"Oil Temperature A\" --phase climb"),
      mProfile(console())
{
    options().add("STORE", mStore, "a store that scan made", CommandOptions::eRequired);
    options().add("--engine", mEngine, "serial number of an engine (default: all)");
    options().add("--parameter", mFilter.parameter, "name of a parameter (default: all that the store has figures of)");
    options().add("--phase", mFilter.phase, "off, ground, take-off, climb, level or descent (default: all)", CommandOptions::eOptional,
                  CommandOptions::oneOf({"off", "ground", "take-off", "climb", "level", "descent"}));
    addJson();
}

int CommandTrend::run()
{
    StoreReader store(mStore);
    if (!store.error().empty())
        return fail(store.error());
    const std::vector<std::string> engines = store.engines(mEngine);
    if (engines.empty() && !mEngine.empty() && store.error().empty())
        return fail(mStore + ": no engine " + mEngine);
    const std::string problem = loadProfileFile(mProfile, shippedProfile("915"), {});
    if (!problem.empty())
        return fail(problem);
    Output output;
    const std::string failure = tell(store, engines, output);
    return failure.empty() ? output.finish() : fail(failure);
}

std::string CommandTrend::tell(StoreReader& store, const std::vector<std::string>& engines, Output& output)
{
    JsonWriter writer(output);
    bool isAny = false;
    if (mJson)
        writer.beginAnswer().key("trends").beginArray();
    for (const std::string& engine : engines) {
        const std::vector<Trend> trends = store.trends(engine, mFilter);
        if (!store.error().empty())
            return store.error();
        if (trends.empty())
            continue;
        if (mJson)
            std::ranges::for_each(trends, [&](const Trend& trend) { writeJson(writer, trend); });
        else
            output.write((isAny ? "\nEngine " : "Engine ") + visibleText(engine) + "\n" + overview(trends));
        if (!mJson && !mFilter.parameter.empty())
            std::ranges::for_each(trends, [&](const Trend& trend) { output.write("\n" + table(trend)); });
        isAny = true;
    }
    if (!isAny && !mFilter.parameter.empty())
        return mStore + ": no figures of " + mFilter.parameter + (mFilter.phase.empty() ? "" : " in the phase " + mFilter.phase);
    if (mJson)
        output.write(writer.endArray().endAnswer());
    else if (!isAny)
        output.write("No flight with figures\n");
    return store.error();
}

std::vector<TrendJudgement> CommandTrend::judge(const Trend& trend) const
{
    const auto parameter = mProfile.model().find(trend.parameter);
    return judgeTrend(trend, parameter ? std::clamp(parameter->precision, 0, 17) : 0);
}

void CommandTrend::writeJson(JsonWriter& writer, const Trend& trend) const
{
    writer.beginObject().member("engine", trend.engine).member("parameter", trend.parameter).member("unit", trend.unit);
    writer.member("phase", trend.phase).key("flights").beginArray();
    const std::vector<TrendJudgement> judgements = judge(trend);
    for (std::size_t i = 0; i < trend.points.size(); ++i) {
        const TrendPoint& point = trend.points[i];
        writer.beginObject().member("cycleId", point.cycleId).member("flight", point.place.flight).key("dateTime");
        point.dateTime.empty() ? writer.null() : writer.value(point.dateTime);
        writer.member("median", point.median).member("p05", point.p05).member("p95", point.p95);
        writeJudgement(writer, judgements[i]);
        writer.endObject();
    }
    writer.endArray().endObject();
}

/// What the latest flight tells of each trend, what is not as it used to be first.
std::string CommandTrend::overview(const std::vector<Trend>& trends) const
{
    struct Line {
        double weight;
        std::vector<std::string> cells;
    };
    std::vector<Line> lines;
    for (const Trend& trend : trends) {
        const TrendJudgement last = judge(trend).back();
        lines.push_back({last.isUnusual || last.isDrifting ? 1.0 + std::abs(last.z.value_or(0.0)) : 0.0,
                         {visibleText(tableTitle(trend.parameter.c_str(), trend.unit)), trend.phase, std::to_string(trend.points.size()),
                          tableNumber(trend.points.back().median, 2), band(last), mark(last)}});
    }
    std::ranges::stable_sort(lines, std::ranges::greater(), &Line::weight);
    TextTable text({"Parameter", "Phase", "Flights", "Latest", "Flights before", ""});
    for (Line& line : lines)
        text.addRow(std::move(line.cells));
    return text.text();
}

std::string CommandTrend::table(const Trend& trend) const
{
    TextTable text({"Flight", "Median", "5 to 95 %", "Flights before", ""});
    const std::vector<TrendJudgement> judgements = judge(trend);
    for (std::size_t i = 0; i < trend.points.size(); ++i) {
        const TrendPoint& point = trend.points[i];
        text.addRow({date(point), tableNumber(point.median, 2), tableNumber(point.p05, 2) + " to " + tableNumber(point.p95, 2),
                     band(judgements[i]), mark(judgements[i])});
    }
    return visibleText(tableTitle(trend.parameter.c_str(), trend.unit)) + ", " + visibleText(trend.phase) + "\n" + text.text();
}

} // namespace ZARN
