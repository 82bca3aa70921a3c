#pragma once

#include "report/ReportSubject.h"
#include "ui/graph/model/GraphFrame.h"

namespace ZARN {

class PaperCanvas;
struct TimeSpan;

/// Parameters over time on paper, each in a strip of its own with its bands; what they are called stands left of them, where it hides no trace.
class PaperGraph {
public:
    /// @param subject must outlive it
    PaperGraph(const ReportSubject& subject, int mostStrips);

    /// Before strips are added: each has what the subject is compared with behind it.
    void compare();

    /// Whether the parameter was recorded, as a number.
    [[nodiscard]] bool canShow(const ProfileParameter& parameter) const;
    [[nodiscard]] bool isFull() const { return mUsed == mMost; }
    /// A strip of the samples in a span. @param note stands below its name. @return its number; none when it is full or there is nothing to
    /// show
    std::optional<int> add(const ProfileParameter& parameter, const TimeSpan& samples, const QString& note = {});
    [[nodiscard]] int count() const { return mModel.traces().count(); }
    void setWindow(const TimeSpan& span);
    /// Of the strips, and of what each is compared with.
    [[nodiscard]] std::vector<MarkerValues> values(const TimeSpan& span) const;
    /// Whether a strip shows where earlier flights lay.
    [[nodiscard]] bool hasNormal() const;

    /// What a drawing has above and below its strips, in points.
    struct Frame {
        double above;
        double below;
    };
    [[nodiscard]] static Frame frame();
    /// Draws it, and keeps where things are.
    void draw(PaperCanvas& canvas, const QRectF& place);
    // Of what was drawn.
    [[nodiscard]] double xOf(double time) const { return mShift.x() + mFrame.layout().xOf(time); }
    [[nodiscard]] QRectF plot() const { return mFrame.layout().plot().translated(mShift); }
    [[nodiscard]] QPointF at(int strip, double time, double value) const;

    /// A name in the place left of what it names.
    static void drawName(PaperCanvas& canvas, const QString& name, const QString& note, const QRectF& place, const QColor& colour);

    static constexpr double kNames = 104.0; ///< width of the place of the names
    static constexpr double kTextSize = 7.0;

private:
    void addGhost(int slot, const ProfileParameter& parameter, const TimeSpan& samples);

    const ReportSubject& mSubject;
    const LoadedCard& mLoaded;
    CoordinateFilter mFilter, mGhostFilter;
    std::shared_ptr<Ghost> mpGhost; ///< null where nothing is compared
    GraphModel mModel;
    GraphFrame mFrame;
    QPointF mShift;
    QStringList mNotes;
    int mUsed = 0;
    const int mMost;
};

} // namespace ZARN
