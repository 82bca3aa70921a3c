#include "ui/find/model/FindCondition.h"

#include "ui/graph/model/ThresholdBands.h"

#include <cmath>
#include <ranges>
#include <set>

namespace ZARN {

namespace {

FindParameter describe(const ProfileParameter& parameter, const DecodingContext& context, const ValueDecoder& decoder)
{
    FindParameter described{QString::fromStdString(parameter.name), QString::fromStdString(context.unitOf(parameter)), {}, {}};
    // From the open ends inwards: the limit, and the warning before it.
    constexpr double far = std::numeric_limits<double>::infinity();
    const std::vector<GraphBand> bands = graphBands(decoder);
    for (const GraphBand& band : bands) {
        if (band.lower == described.lower.value_or(-far) && std::isfinite(band.upper))
            described.lower = band.upper;
    }
    for (const GraphBand& band : bands | std::views::reverse) {
        if (band.upper == described.upper.value_or(far) && std::isfinite(band.lower))
            described.upper = band.lower;
    }
    return described;
}

} // namespace

std::vector<FindParameter> FindParameter::all(const RecordData& data, const DecodingContext& context)
{
    std::vector<FindParameter> found;
    std::set<std::string> names;
    for (const auto& [device, parameter] : context.model().parameters()) {
        const ValueDecoder decoder = context.decoder(parameter);
        const bool isThere = parameter.isComputed() || data.channel(parameter.identifier());
        if (isThere && decoder.isNumeric() && names.insert(parameter.name).second)
            found.push_back(describe(parameter, context, decoder));
    }
    return found;
}

std::optional<double> FindCondition::valueIn(EUnit unit, const DecodingContext& context) const
{
    const ProfileParameter* pParameter = context.model().find(parameter.toStdString());
    if (!pParameter)
        return std::nullopt;
    double converted = value;
    if (unit != context.unit()) {
        const UnitConversion conversion = context.model().conversion(*pParameter);
        converted = unit == EUnit::eImperial ? value * conversion.factor + conversion.offset : (value - conversion.offset) / conversion.factor;
    }
    return std::isfinite(converted) ? std::optional(converted) : std::nullopt;
}

QString FindCondition::expression(const DecodingContext& context) const
{
    const std::optional<double> metric = valueIn(EUnit::eMetric, context);
    const bool hasQuote = parameter.contains('"');
    if (!metric || (hasQuote && parameter.contains('\'')))
        return {};
    const QChar quote = hasQuote ? '\'' : '"';
    return quote + parameter + quote + (isAbove ? QStringLiteral(" > ") : QStringLiteral(" < ")) + QString::number(*metric, 'g', 15);
}

} // namespace ZARN
