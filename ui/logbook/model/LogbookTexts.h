#pragma once

#include "analysis/CycleReview.h"
#include "store/LogbookReader.h"
#include "store/Service.h"
#include "ui/logbook/model/LogbookUnits.h"

#include <QCoreApplication>
#include <QLocale>

namespace ZARN {

/// What the logbook says, in the user's language.
class LogbookTexts {
    Q_DECLARE_TR_FUNCTIONS(ZARN::LogbookTexts)

public:
    /// "D-KXYZ (1234567)"; an engine without a serial number by its unit's, or its card.
    [[nodiscard]] static QString engine(const std::string& id, const std::string& aircraft);
    /// "123.4" of hours.
    [[nodiscard]] static QString hours(double hours);
    /// "26.05.2025 13:40"; empty without a date.
    [[nodiscard]] static QString dateTime(const std::string& text);
    [[nodiscard]] static QString date(const QDate& date);
    [[nodiscard]] static QString verdictName(EVerdict verdict);
    /// "in climb" of "climb".
    [[nodiscard]] static QString phase(const std::string& key);
    [[nodiscard]] static QString totals(const LogbookTotals& totals, const LogbookUnits& units);
    /// Hours of the engine, and how far they can be trusted.
    [[nodiscard]] static QString engineHours(const LogbookEngine& engine);
    /// "in 12.3 h, or on 01.05.2026"; why it is not known.
    [[nodiscard]] static QString due(const Service& service, const ServiceDue& due);
    [[nodiscard]] static QString interval(const Service& service);
    /// A service that is due soon or was, or of which that is not certain, in a sentence; empty for others.
    [[nodiscard]] static QString warning(const Service& service, const ServiceDue& due);
};

} // namespace ZARN
