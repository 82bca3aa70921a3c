#include "analysis/ReviewText.h"

namespace ZARN {

QString ReviewText::verdict() const
{
    switch (mReview.verdict) {
    case EVerdict::eOk: return tr("within limits");
    case EVerdict::eWarning: return tr("warning");
    case EVerdict::eLimit: return tr("limit exceeded");
    case EVerdict::eUnknown: break;
    }
    return tr("unknown");
}

QStringList ReviewText::gaps() const
{
    QStringList gaps;
    const bool hasNoTimes = mReview.engine.isKnown() && mReview.withSamples == 0;
    if (mReview.sources == 0)
        gaps << tr("The profile has no limits, lamps or faults to watch.");
    else if (hasNoTimes && !mReview.engine.hasNumbers())
        gaps << tr("Whether the engine ran is unknown, for its recorded speed is no number: nothing was watched.");
    else if (hasNoTimes && !mReview.engine.stretches().empty())
        gaps << tr("Nothing was recorded while the engine ran: nothing was watched.");
    else if (hasNoTimes)
        gaps << tr("The engine did not run: nothing was watched.");
    else if (mReview.withSamples == 0)
        gaps << tr("None of the watched parameters was recorded.");
    if (mReview.sources > 0 && !mReview.hasLimits)
        gaps << tr("The profile has no limits: values outside of any are not seen.");
    if (mReview.sources > 0 && !mReview.hasLamps)
        gaps << tr("The profile has no warning lamps: none is watched.");
    const bool isWatched = mReview.withSamples > 0;
    if (isWatched && !mReview.hasEngineSpeed)
        gaps << tr("Whether the engine ran is unknown, for the profile names no engine speed: starts and stops count as well.");
    else if (isWatched && !mReview.engine.isKnown())
        gaps << tr("Whether the engine ran is unknown, for its speed was not recorded: starts and stops count as well.");
    if (isWatched && !mReview.hasGroundSpeed)
        gaps << tr("Flights are unknown, for the profile names no ground speed: all counts as on the ground.");
    else if (isWatched && !mReview.knowsFlights)
        gaps << tr("Flights are unknown, for no ground speed was recorded: all counts as on the ground.");
    if (mReview.unfinishedSince)
        gaps << tr("The record ends in flight: the one that began at %1 is no flight of the list, and counts as on the ground.")
                    .arg(mTime(*mReview.unfinishedSince));
    if (!mReview.stopsNotCounted.empty())
        gaps << tr("THE ENGINE STOPPED in that flight, %1: the verdict here does not count it, for no flight tells it.").arg(texts(mReview.stopsNotCounted));
    if (!mReview.engine.silences().empty())
        gaps << tr("The engine speed was not recorded %1: what the engine did then is unknown, and it counts as doing what it did before.")
                    .arg(texts(mReview.engine.silences()));
    if (!mReview.damaged.empty()) {
        QStringList names;
        for (const std::string& name : mReview.damaged)
            names << QString::fromStdString(name);
        gaps << tr("Times of %1 are damaged, some lie behind the end of the record: their values at a time may stand still.")
                    .arg(some(names));
    }
    if (!mReview.heldPositions.empty())
        gaps << heldPositions();
    if (!mReview.hasAltitude)
        gaps << tr("Climb and descent are unknown, for the profile names no altitude.");
    else if (!mReview.knowsAltitude)
        gaps << tr("Climb and descent are unknown, for no altitude was recorded.");
    return gaps;
}

QString ReviewText::texts(std::span<const TimeSpan> spans) const
{
    QStringList texts;
    for (const TimeSpan& span : spans)
        texts << tr("from %1 to %2").arg(mTime(span.start), mTime(span.end));
    return some(texts);
}

QString ReviewText::heldPositions() const
{
    if (mReview.heldPositions.empty())
        return {};
    return tr("The position is not to be trusted %1: what was received then lies more than 10 km from the place before, and is not believed.")
        .arg(texts(mReview.heldPositions));
}

QString ReviewText::some(const QStringList& names, qsizetype most)
{
    if (names.size() <= most + 1)
        return names.join(", ");
    return tr("%1 and %2 more").arg(names.first(most).join(", ")).arg(names.size() - most);
}

QString ReviewText::watched() const
{
    const QString count = tr("%1 of %2 watched parameters recorded").arg(mReview.withSamples).arg(mReview.sources);
    if (mReview.missing.empty() || mReview.withSamples == 0)
        return count;
    QStringList names;
    for (const std::string& name : mReview.missing)
        names << QString::fromStdString(name);
    return tr("%1; missing: %2").arg(count, some(names));
}

QString ReviewText::standing(qsizetype most) const
{
    if (mReview.standing.empty())
        return {};
    return tr("%1 outside while not watched: %2")
        .arg(QString::number(mReview.standing.size()), some(IncidentText::names(mReview.standing), most));
}

QString ReviewText::engineRunning() const
{
    const std::optional<double> duration = mReview.engine.duration();
    return duration && mReview.engine.hasNumbers() ? IncidentText::duration(*duration) : tr("unknown");
}

} // namespace ZARN
