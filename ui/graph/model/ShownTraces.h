#pragma once

#include "ui/canvas/Palette.h"
#include "ui/graph/model/GraphParameter.h"

#include <functional>
#include <span>

namespace ZARN {

/// The slots of a graph with their traces: which are shown, in which order, what they are called and look like, which one stands out. Calls
/// a handler at every change but of samples, which come by the million. An index that no slot has is nobody's and changes nothing.
class ShownTraces {
public:
    explicit ShownTraces(std::function<void()> changed = {}) : mChanged(std::move(changed)) {}

    /// That many new ones, none of them shown.
    void setCount(int count);
    [[nodiscard]] const std::vector<GraphParameter>& all() const { return mTraces; }
    /// Null for an index that no slot has.
    [[nodiscard]] const GraphParameter* at(int index) const;
    /// The active ones in the order of their strips.
    [[nodiscard]] const std::vector<int>& shown() const { return mShown; }
    [[nodiscard]] int count() const { return static_cast<int>(mShown.size()); } ///< of those
    /// Changes with whatever vertices are made from.
    [[nodiscard]] std::size_t generation() const { return mGeneration; }

    void setActive(int index, bool on);
    void setName(int index, const QString& name, const QString& unit);
    void setPrecision(int index, int digits);
    /// For all that needs no rule: how it is drawn, what is said of it.
    void edit(int index, const std::function<void(GraphParameter&)>& change);
    /// The user's own choice; an invalid one gives back the colour that the slot has by itself.
    void setColour(int index, const QColor& colour);
    /// What the traces are drawn on, and the palette of those without a colour of their own.
    void setGround(const QColor& colour, EGraphPalette palette = EGraphPalette::eStandard);
    /// Puts a strip into the place of another. @return false when one of them does not exist, or both are one
    bool move(int from, int to);
    /// The strips from top to bottom; slots that are not named follow in their own order.
    void setOrder(const std::vector<int>& slotOrder);

    /// The pointer is on what stands for a trace; -1 for none.
    void point(int index);
    /// The trace stands out while the pointer is on no other, or no longer. Forgotten when the slot shows something else.
    void togglePin(int index);
    /// The trace that stands out; -1 for none.
    [[nodiscard]] int highlighted() const { return mPointed >= 0 ? mPointed : mPinned; }
    /// The trace whose values stand at the axis of a single graph; -1 when there is none.
    [[nodiscard]] int axis() const { return highlighted() >= 0 ? highlighted() : mShown.empty() ? -1 : mShown.front(); }

    /// Whether traces are interrupted where nothing was recorded for long, or no number.
    [[nodiscard]] bool gapsOn() const { return mGapsOn; }
    void setGapsOn(bool on);

    void reserve(int index, std::size_t samples);
    void append(int index, std::span<const double> times, std::span<const double> values);
    void clearSamples();
    /// The value in force at a time, and shortly before the first sample that one's; none without samples, longer before it,
    /// and in a gap where traces have such.
    [[nodiscard]] std::optional<double> valueAt(int index, double time) const;

private:
    [[nodiscard]] GraphParameter* slot(int index);
    void colour(GraphParameter& trace) const;
    void updateShown();
    void changed() const;

    std::function<void()> mChanged;
    std::vector<GraphParameter> mTraces;
    std::vector<int> mOrder; // of strips, all slots
    std::vector<int> mShown;
    QColor mGround{Qt::white};
    EGraphPalette mPalette = EGraphPalette::eStandard;
    int mPointed = -1;
    int mPinned = -1;
    bool mGapsOn = false;
    std::size_t mGeneration = 1;
};

[[nodiscard]] bool isShown(const ShownTraces& traces, int index);

} // namespace ZARN
