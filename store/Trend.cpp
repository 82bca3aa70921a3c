#include "store/Trend.h"

#include <algorithm>
#include <cmath>

namespace ZARN {

namespace {

constexpr std::size_t kFewest = 10, kBand = 30;             // flights before it
constexpr std::size_t kLatest = 5, kBefore = 20;            // of a drift
constexpr double kUnusual = 3.5, kDeviationsOfMad = 1.4826; // of a normal distribution

Distribution distributionOf(std::span<const double> figures)
{
    std::vector<double> values(figures.begin(), figures.end());
    return Distribution::of(values);
}

bool isDrifting(double figure, std::span<const double> earlier)
{
    if (earlier.size() + 1 < kLatest + kBefore)
        return false;
    std::vector<double> latest(earlier.end() - (kLatest - 1), earlier.end());
    latest.push_back(figure);
    const Distribution before = distributionOf(earlier.last(kLatest - 1 + kBefore).first(kBefore));
    const double median = Distribution::of(latest).median;
    return median < before.p05 || median > before.p95;
}

} // namespace

TrendJudgement judgeFigure(double figure, std::span<const double> earlier, int precision)
{
    const std::span<const double> band = earlier.last(std::min(earlier.size(), kBand));
    TrendJudgement judgement{distributionOf(band), std::nullopt, false, isDrifting(figure, earlier)};
    if (band.size() < kFewest)
        return judgement;
    std::vector<double> deviations;
    for (const double other : band)
        deviations.push_back(std::abs(other - judgement.band.median));
    const double spread = kDeviationsOfMad * Distribution::of(deviations).median;
    judgement.z = (figure - judgement.band.median) / (spread + std::pow(10.0, -precision));
    judgement.isUnusual = std::abs(*judgement.z) > kUnusual;
    return judgement;
}

std::vector<TrendJudgement> judgeTrend(const Trend& trend, int precision)
{
    std::vector<double> figures;
    std::vector<TrendJudgement> judgements;
    for (const TrendPoint& point : trend.points) {
        judgements.push_back(judgeFigure(point.median, figures, point.precision.value_or(precision)));
        figures.push_back(point.median);
    }
    return judgements;
}

} // namespace ZARN
