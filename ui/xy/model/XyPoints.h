#pragma once

#include "analysis/TimeSpan.h"
#include "app/Progress.h"
#include "card/LoadedCard.h"
#include "project/TimeReference.h"
#include "ui/graph/model/GraphParameter.h"

#include <array>

namespace ZARN {

/// Which parameters stand against each other, by name, in which part of the record.
struct XyChoice {
    std::string x;
    std::string y;
    std::string colour;           ///< empty: points have the colour of their time
    std::optional<TimeSpan> span; ///< none: all that is selected of the card
    TimeReference times = {};     ///< how those of the colours are told
    bool operator==(const XyChoice&) const = default;
};

/// What one axis tells, or the scale of colours.
struct XyAxis {
    QString label;      ///< "Name [unit]"
    int precision = 0;  ///< decimals
    double lower = 0.0; ///< the least and the greatest of what is shown
    double upper = 0.0;
    std::vector<GraphBand> bands; ///< of its limits

    [[nodiscard]] double range() const { return upper - lower; }
};

/// Points that share a cell of the grid; what is told of them is that of the newest.
struct XyPoint {
    std::size_t column = 0; ///< from the left
    std::size_t row = 0;    ///< from below
    double time = 0.0;      ///< seconds since power-up
    double colour = 0.0;    ///< on the scale of colours
};

/// One parameter over another: at each sample of either the newest value of the other is held. However many samples there are, no more
/// points than cells of a grid are kept, which is as fine as a screen. A plain value.
class XyPoints {
public:
    static constexpr std::size_t kColumns = 1200, kRows = 800;
    enum EAxis { eX, eY, eColour };

    XyPoints() = default;
    /// @param progress asked whether to go on; what is told of cancelled work is worth nothing
    XyPoints(const LoadedCard& card, const XyChoice& choice, const Progress& progress = nullProgress());

    [[nodiscard]] const XyAxis& axis(EAxis which) const { return mAxes[which]; }
    [[nodiscard]] bool isTimeColour() const { return mChoice.colour.empty(); }
    [[nodiscard]] const XyChoice& choice() const { return mChoice; }
    /// From the oldest to the newest.
    [[nodiscard]] const std::vector<XyPoint>& points() const { return mPoints; }
    [[nodiscard]] std::size_t samples() const { return mSamples; }
    /// Those that cannot be shown: one of their values is not finite.
    [[nodiscard]] std::size_t dropped() const { return mDropped; }
    /// The parameters without a sample; nothing is shown then.
    [[nodiscard]] const std::vector<std::string>& unrecorded() const { return mUnrecorded; }
    /// The value in the middle of a cell.
    [[nodiscard]] double valueOf(EAxis which, std::size_t cell) const;

private:
    bool describe(const LoadedCard& card);
    void findRanges(const LoadedCard& card, const Progress& progress);
    void fillGrid(const LoadedCard& card, const Progress& progress);
    /// Calls with time and the three values of what is within the span.
    template <typename Visitor> void forEach(const LoadedCard& card, const Progress& progress, Visitor visit) const;
    [[nodiscard]] static std::size_t cellOf(const XyAxis& axis, double value, std::size_t cells);

    XyChoice mChoice;
    TimeSpan mSpan;
    std::vector<const ProfileParameter*> mParameters; // of the card's model while it is worked on; empty later
    std::array<XyAxis, 3> mAxes;
    std::vector<XyPoint> mPoints;
    std::vector<std::string> mUnrecorded;
    std::size_t mSamples = 0;
    std::size_t mDropped = 0;
};

} // namespace ZARN
