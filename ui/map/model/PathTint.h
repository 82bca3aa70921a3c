#pragma once

#include "analysis/FlightPhases.h"
#include "card/FlightPath.h"
#include "profile/DecodingContext.h"
#include "ui/canvas/Palette.h"

#include <QCoreApplication>
#include <QString>

#include <span>
#include <vector>

namespace ZARN {

class RecordData;

/// What the path is coloured by.
struct PathColouring {
    enum EBy { ePlain, eAltitude, eSpeed, ePhase, eParameter };
    EBy by = ePlain;
    std::string parameter; ///< its name

    /// As the settings have it: empty, "altitude", "speed", "phase", or "=" and the name of a parameter. What is none of them is plain.
    [[nodiscard]] static PathColouring of(const std::string& key);
    [[nodiscard]] std::string key() const;
    friend bool operator==(const PathColouring&, const PathColouring&) = default;
};

/// The colours of a path's points, worked out once for a path, and what a legend tells of them. A plain value.
struct PathTint {
    static constexpr int kSteps = 32;          ///< colours of a scale
    static constexpr quint8 kUnknown = kSteps; ///< of a point without a value

    /// A colour with its words, of a legend without a scale.
    struct Entry {
        QColor colour;
        QString text;
    };

    std::vector<quint8> steps; ///< for each point the place of its colour; empty: all have the path's own
    std::vector<QColor> colours;
    bool isScale = false; ///< colours go over into each other, else they end where the next begins
    QString title;        ///< with the unit
    QString unit;         ///< of the values; may be empty
    double low = 0.0;     ///< of the scale
    double high = 0.0;
    std::vector<Entry> entries;

    [[nodiscard]] bool isPlain() const { return steps.empty(); }
    /// Whether there is anything to tell.
    [[nodiscard]] bool hasLegend() const { return isScale || !entries.empty(); }
};

/// Works out the colours of a path.
class PathTinter {
    Q_DECLARE_TR_FUNCTIONS(ZARN::PathTinter)

public:
    PathTinter(std::span<const FlightPathPoint> points, const DecodingContext& context, const Palette::Map& colours)
        : mPoints(points), mContext(context), mColours(colours)
    {
    }

    /// @param pRecord null: without values of parameters  @param phases in order of time; empty while they are not known
    [[nodiscard]] PathTint tint(const PathColouring& colouring, const RecordData* pRecord,
                                const std::vector<FlightPhases::Step>& phases) const;
    /// "Altitude", "Ground speed", "Phase of flight", the parameter's name.
    [[nodiscard]] static QString title(const PathColouring& colouring);
    [[nodiscard]] static QString phaseName(EFlightPhase phase);

private:
    [[nodiscard]] PathTint byValues(const std::vector<double>& values, const QString& title, const std::string& unit) const;
    [[nodiscard]] PathTint byPhases(const std::vector<FlightPhases::Step>& phases) const;
    [[nodiscard]] std::vector<double> valuesOf(const ProfileParameter& parameter, const RecordData& record) const;
    [[nodiscard]] std::string unitOf(const char* type) const;

    std::span<const FlightPathPoint> mPoints;
    const DecodingContext& mContext;
    const Palette::Map& mColours;
};

} // namespace ZARN
