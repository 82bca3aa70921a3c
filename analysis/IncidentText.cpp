#include "analysis/IncidentText.h"

#include "app/Numeric.h"
#include "app/TimeText.h"
#include "profile/Threshold.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

namespace ZARN {

namespace {

constexpr qsizetype kMostHeads = 3; // what a sentence can take
constexpr qsizetype kMostRest = 5;

QString nameOf(const Episode& episode)
{
    return QString::fromStdString(episode.parameter);
}

double excess(const Episode& episode)
{
    return episode.peak ? std::abs(episode.peak->value - episode.peak->limit) : -1.0;
}

/// What makes incidents alike.
std::set<QString> parameters(const Incident& incident)
{
    std::set<QString> names;
    for (const Episode& episode : incident.episodes)
        names.insert(IncidentText::laneless(nameOf(episode)));
    return names;
}

/// In which order kinds are told.
int rank(EEpisodeKind kind)
{
    switch (kind) {
    case EEpisodeKind::eStop: return 0;
    case EEpisodeKind::eLimit: return 1;
    case EEpisodeKind::eFault: return 2;
    case EEpisodeKind::eLamp: return 3;
    }
    return 4;
}

QString joined(const QString& text, const QString& more)
{
    return text.isEmpty() || more.isEmpty() ? text + more : text + ", " + more;
}

} // namespace

QString IncidentSentence::text() const
{
    return joined(with.isEmpty() ? what : IncidentText::tr("%1, with %2").arg(what, with), when);
}

const Episode& IncidentText::Quantity::worst() const
{
    return **std::ranges::max_element(episodes, [](const Episode* pA, const Episode* pB) {
        return pA->state != pB->state ? pA->state < pB->state : excess(*pA) < excess(*pB);
    });
}

double IncidentText::Quantity::duration() const
{
    double start = episodes.front()->start, end = episodes.front()->end;
    for (const Episode* pEpisode : episodes) {
        start = std::min(start, pEpisode->start);
        end = std::max(end, pEpisode->end);
    }
    return end - start;
}

double IncidentText::Quantity::stateTime() const
{
    std::map<std::string, double> lanes; // both lanes outside at a time are so once
    const int state = worst().state;
    double longest = 0.0;
    for (const Episode* pEpisode : episodes) {
        if (pEpisode->state == state)
            longest = std::max(longest, lanes[pEpisode->parameter] += pEpisode->stateTime);
    }
    return longest;
}

std::vector<IncidentText::Quantity> IncidentText::quantities(const std::vector<const Episode*>& episodes)
{
    std::vector<Quantity> found;
    std::map<std::pair<EEpisodeKind, QString>, std::size_t> places;
    for (const Episode* pEpisode : episodes) {
        const QString name = nameOf(*pEpisode);
        const auto [place, isNew] = places.try_emplace({pEpisode->kind, laneless(name)}, found.size());
        if (isNew)
            found.push_back({name, {}});
        Quantity& quantity = found[place->second];
        if (quantity.name != name)
            quantity.name = laneless(name);
        quantity.episodes.push_back(pEpisode);
    }
    return found;
}

QStringList IncidentText::names(const std::vector<Episode>& episodes)
{
    std::vector<const Episode*> pointers;
    for (const Episode& episode : episodes)
        pointers.push_back(&episode);
    QStringList names;
    for (const Quantity& quantity : quantities(pointers))
        names << quantity.name;
    names.removeDuplicates();
    return names;
}

QString IncidentText::laneless(const QString& name)
{
    return name.endsWith(" A") || name.endsWith(" B") ? name.chopped(2) : name;
}

QString IncidentText::time(double seconds)
{
    return elapsedText(saturatingCast<int64_t>(seconds), 0);
}

QString IncidentText::duration(double seconds)
{
    constexpr double kRounding = 0.0005;                                // a sum of steps of a tenth may fall short of the second
    const int64_t whole = saturatingCast<int64_t>(seconds + kRounding); // cut, as clocks are
    if (whole < 1)
        return tr("less than 1 s");
    if (whole < 60)
        return tr("%1 s").arg(whole);
    return whole < 3600 ? tr("%1 min %2 s").arg(whole / 60).arg(whole % 60) : tr("%1 h %2 min").arg(whole / 3600).arg(whole / 60 % 60);
}

QString IncidentText::phaseText(EFlightPhase phase, bool knowsAltitude)
{
    switch (phase) {
    case EFlightPhase::eOff: return tr("with the engine off");
    case EFlightPhase::eGround: return tr("on the ground");
    case EFlightPhase::eTakeOff: return tr("in take-off");
    case EFlightPhase::eClimb: return tr("in climb");
    case EFlightPhase::eLevel: return knowsAltitude ? tr("in level flight") : tr("in flight");
    case EFlightPhase::eDescent: return tr("in descent");
    }
    return {};
}

QString IncidentText::listed(QStringList items, qsizetype most, const QString& separator)
{
    items.removeDuplicates();
    const qsizetype more = items.size() - most;
    if (more < 2) // one more takes no more room than its count
        return items.join(separator);
    return tr("%1 and %2 more").arg(items.first(most).join(separator)).arg(more);
}

QString IncidentText::number(double value, const QString& limit, int precision) const
{
    constexpr double kMostDigits = 1e7;
    const double size = std::abs(value);
    if (size >= kMostDigits)
        return mLocale.toString(value, 'g', 6);
    const int most = std::clamp(precision, 0, 6);
    int decimals = std::min(size >= 100 ? 0 : size >= 10 ? 1 : 2, most);
    const auto text = [&] { return mLocale.toString(value, 'f', decimals); };
    // Rounding must not make it look like the limit.
    while (decimals < most && mLocale.toDouble(text()) == mLocale.toDouble(limit))
        ++decimals;
    return text();
}

QString IncidentText::valueText(const Quantity& quantity, bool withLimit) const
{
    const Episode& worst = quantity.worst();
    const bool needsColon = !quantity.name.isEmpty() && quantity.name.back().isDigit();
    const QString name = needsColon ? quantity.name + ":" : quantity.name;
    if (!worst.shown)
        return tr("%1 not a number").arg(name);
    const QString limit = mLocale.toString(worst.shown->limit, 'g', std::abs(worst.shown->limit) < 1000 ? 4 : 6);
    QString text = name + " " + number(worst.shown->value, limit, worst.precision);
    if (!worst.shownUnit.empty())
        text += " " + QString::fromStdString(worst.shownUnit);
    return withLimit ? tr("%1, limit %2").arg(text, limit) : text;
}

QString IncidentText::headText(const Quantity& quantity, bool withDuration) const
{
    QString text = quantity.name;
    if (quantity.kind() == EEpisodeKind::eStop)
        text = tr("Engine stopped");
    else if (quantity.kind() == EEpisodeKind::eLimit)
        text = valueText(quantity, true);
    else if (quantity.kind() == EEpisodeKind::eLamp)
        text = restText(quantity);
    const double length = quantity.duration();
    if (!withDuration || length <= 0)
        return text;
    constexpr double kAlike = 1.5; // seconds
    const QString whole = duration(length), part = duration(std::min(quantity.stateTime(), length));
    return length - quantity.stateTime() < kAlike ? tr("%1, for %2").arg(text, whole) : tr("%1, for %2 within %3").arg(text, part, whole);
}

QString IncidentText::restText(const Quantity& quantity) const
{
    if (quantity.kind() == EEpisodeKind::eLamp)
        return (quantity.worst().state == eThresholdLimit ? tr("%1 red") : tr("%1 yellow")).arg(quantity.name);
    return quantity.kind() == EEpisodeKind::eLimit ? valueText(quantity, false) : quantity.name;
}

IncidentSentence IncidentText::sentence(const std::vector<Incident>& incidents, const std::vector<std::size_t>& places) const
{
    const Incident& first = incidents[places.front()];
    IncidentSentence sentence{0, places, first.start, first.end, mTime(first.start), {}, {}, {}};
    std::vector<const Episode*> episodes;
    for (const std::size_t place : places) {
        sentence.state = std::max(sentence.state, incidents[place].state);
        sentence.end = std::max(sentence.end, incidents[place].end);
        for (const Episode& episode : incidents[place].episodes)
            episodes.push_back(&episode);
    }
    std::vector<Quantity> all = quantities(episodes);
    const auto rankOf = [](const Quantity& quantity) { return rank(quantity.kind()); };
    std::ranges::stable_sort(all, {}, rankOf);
    const EEpisodeKind leading = all.front().kind();
    int worst = 0;
    for (const Quantity& quantity : all)
        worst = quantity.kind() == leading ? std::max(worst, quantity.worst().state) : worst;
    QStringList heads, rest;
    bool hasDuration = false; // the head told last
    for (const Quantity& quantity : all) {
        if (quantity.kind() != leading || quantity.worst().state != worst) {
            rest << restText(quantity);
            continue;
        }
        heads << headText(quantity, places.size() == 1);
        hasDuration = quantity.duration() > 0;
    }
    sentence.what = listed(heads, kMostHeads, "; ");
    if (places.size() == 1)
        sentence.what += (hasDuration ? " " : ", ") + phaseText(first.phase, first.knowsAltitude);
    else
        sentence.when = tr("%1 times, %2 to %3").arg(QString::number(places.size()), sentence.time, mTime(sentence.end));
    sentence.with = listed(rest, kMostRest, ", ");
    return sentence;
}

std::vector<IncidentSentence> IncidentText::sentences(const std::vector<Incident>& incidents) const
{
    std::map<std::set<QString>, std::vector<std::size_t>> groups;
    for (std::size_t i = 0; i < incidents.size(); ++i)
        groups[parameters(incidents[i])].push_back(i);
    std::vector<IncidentSentence> sentences;
    for (const auto& [names, places] : groups)
        sentences.push_back(sentence(incidents, places));
    std::ranges::sort(sentences, [](const IncidentSentence& a, const IncidentSentence& b) {
        return a.state != b.state ? a.state > b.state : a.incidents.front() < b.incidents.front();
    });
    return sentences;
}

} // namespace ZARN
