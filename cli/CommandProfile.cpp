#include "cli/CommandProfile.h"

#include "app/FileName.h"
#include "cli/CardCommand.h"
#include "cli/JsonWriter.h"
#include "cli/TextTable.h"
#include "cli/VisibleText.h"
#include "profile/ProfileCheck.h"

#include <algorithm>

namespace ZARN {

namespace {

void writeParameter(JsonWriter& writer, const ProfileParameter& parameter)
{
    writer.beginObject()
        .member("path", parameter.path)
        .member("name", parameter.name)
        .member("id", parameter.id)
        .member("dataType", parameter.dataType)
        .member("zarnDataType", parameter.zarnDataType)
        .member("unitMetric", parameter.unitMetric)
        .member("unitImperial", parameter.unitImperial)
        .member("viewId", parameter.viewId)
        .member("startByte", parameter.startByte)
        .member("startBit", parameter.startBit)
        .member("endBit", parameter.endBit)
        .member("offset", parameter.offset)
        .member("factor", parameter.factor)
        .member("precision", parameter.precision)
        .member("enumList", parameter.enumList)
        .member("thresholdList", parameter.thresholdList)
        .member("errorType", parameter.errorType)
        .member("deviceIndex", parameter.deviceIndex)
        .endObject();
}

void writeMatrix(JsonWriter& writer, const FaultMatrix& matrix)
{
    writer.beginObject().member("id", matrix.id).member("name", matrix.name).key("bits").beginObject();
    for (const auto& [bit, definition] : matrix.bits)
        writer.key(std::to_string(bit)).beginArray().value(definition.name).endArray();
    writer.endObject().endObject();
}

std::string json(const ProfileModel& model, const std::vector<ProfileVariant>& variants)
{
    JsonWriter writer;
    writer.beginAnswer().member("version", model.version).member("profileId", model.profileId);
    writer.member("name", model.name).member("comment", model.comment).key("variants").beginArray();
    for (const ProfileVariant& variant : variants)
        writer.beginObject().member("name", variant.name).member("color", variant.color).endObject();
    writer.endArray().key("parameters").beginArray();
    for (const auto& [device, parameter] : model.parameters())
        writeParameter(writer, parameter);
    writer.endArray().key("errorMatrices").beginArray();
    for (const FaultMatrix& matrix : model.errorMatrices)
        writeMatrix(writer, matrix);
    return writer.endArray().endAnswer();
}

/// What the profile tells of itself, in one line.
std::string heading(const ProfileModel& model)
{
    std::string text;
    for (const std::string& part : {model.name, model.version, model.profileId.empty() ? "" : "(" + model.profileId + ")", model.comment}) {
        if (!part.empty())
            text += (text.empty() ? "" : " ") + part;
    }
    return text.empty() ? "Profile without a name" : text;
}

std::string tables(const ProfileModel& model, const std::vector<ProfileVariant>& variants)
{
    std::string text = visibleText(heading(model)) + "\n";
    for (const ProfileVariant& variant : variants)
        text += "Variant " + visibleText(variant.name) + "\n";
    TextTable parameters({"Parameter", "Id", "Type", "Unit", "Imperial", "Key"});
    for (const auto& [device, parameter] : model.parameters()) {
        parameters.addRow({parameter.path, std::to_string(parameter.id), std::to_string(parameter.dataType), parameter.unitMetric,
                           parameter.unitImperial, parameter.zarnDataType});
    }
    TextTable matrices({"Error matrix", "Id", "Bits"});
    for (const FaultMatrix& matrix : model.errorMatrices)
        matrices.addRow({matrix.name, std::to_string(matrix.id), std::to_string(matrix.bits.size())});
    return text + "\n" + parameters.text() + (model.errorMatrices.empty() ? "" : "\n" + matrices.text());
}

std::string json(const std::vector<ProfileProblem>& problems)
{
    JsonWriter writer;
    writer.beginAnswer().key("problems").beginArray();
    for (const ProfileProblem& problem : problems) {
        writer.beginObject().member("line", problem.line).member("column", problem.column);
        writer.member("severity", problem.isError ? "error" : "warning").member("text", problem.text).endObject();
    }
    return writer.endArray().endAnswer();
}

std::string table(const std::vector<ProfileProblem>& problems)
{
    if (problems.empty())
        return "No problem\n";
    TextTable rows({"Line", "Column", "Severity", "Text"});
    for (const ProfileProblem& problem : problems) {
        rows.addRow({std::to_string(problem.line), std::to_string(problem.column), problem.isError ? "error" : "warning",
                     problem.text.toStdString()});
    }
    return rows.text();
}

} // namespace

CommandProfile::CommandProfile(CLI::App& program)
    : Command(program, "profile", "show what a profile file declares", "zarn-cli profile Profile.xml --variant \"915 B\"")
{
    options().add("FILE", mFile, "the profile file", CommandOptions::eRequired);
    options().add("--variant", mVariant, "variant of the profile (default: none)");
    options().addFlag("--check", mIsCheck, "tell every problem of the file, with line and column, for all its variants");
    addJson();
}

int CommandProfile::check() const
{
    const std::vector<ProfileProblem> problems = ProfileCheck::problems(decodeFileName(mFile));
    const int status = print(mJson ? json(problems) : table(problems));
    const auto error = std::ranges::find_if(problems, &ProfileProblem::isError);
    if (error != problems.end())
        return fail(mFile + ": " + ProfileCheck::text(*error).toStdString());
    Profile profile(console());
    const std::string problem = loadProfileFile(profile, mFile, mVariant); // it may have no such variant
    return problem.empty() ? status : fail(problem);
}

int CommandProfile::run()
{
    if (mIsCheck)
        return check();
    Profile profile(console());
    const std::string problem = loadProfileFile(profile, mFile, mVariant);
    if (!problem.empty())
        return fail(problem);
    const std::vector<ProfileVariant>& variants = profile.loadVariants(decodeFileName(mFile));
    return print(mJson ? json(profile.model(), variants) : tables(profile.model(), variants));
}

} // namespace ZARN
