#pragma once

#include "card/CycleNote.h"
#include "card/NormalBand.h"

#include <QObject>
#include <QScopedValueRollback>

#include <memory>
#include <vector>

namespace ZARN {

class CardContainer;
class RecordData;

/// What all views share: the record that is loaded with its chosen flight, how it is decoded, which parameters are ticked, and the view
/// time, which is kept nowhere else. Who changes one of them says so here, who shows one of them listens. All changes of one turn of the
/// event loop are told together, once; only the view times that different sources pick are each told for themselves. Knows no view;
/// what it is given outlives it.
class RecordSession : public QObject {
    Q_OBJECT

public:
    /// How often each part has changed. A view that notes what it shows sees by comparing what it has missed.
    struct Version {
        unsigned record = 0;    ///< other data
        unsigned flights = 0;   ///< the chosen flight, or flights, statistic and path of the same data
        unsigned profile = 0;   ///< another profile, or variant of it
        unsigned decoding = 0;  ///< another profile or unit
        unsigned selection = 0; ///< the ticked parameters
        unsigned time = 0;
        unsigned growth = 0; ///< more of the same recording
        unsigned review = 0; ///< flights and path of that which grows
        bool operator==(const Version&) const = default;
    };

    explicit RecordSession(CardContainer& container, QObject* pParent = nullptr) : QObject(pParent), mContainer(container) {}

    /// Takes what the container holds now, and its start as the view time.
    void setRecord();
    /// Takes what the container holds now: the same recording, which has become longer and may have lost its beginning. Tells it at once.
    /// @param isReviewed flights and path are others, too
    void growRecord(double viewTime, bool isReviewed, const QObject* pSource);
    /// Lets go of the record, and tells so at once: its data are about to be replaced.
    void clearRecord();
    /// Flights, statistic and path of the record were worked out anew; the view time stays.
    void changeFlights();
    void changeProfile();
    void changeUnit();
    void changeSelection();
    /// @param seconds on the record's own time base; a NaN is no time
    /// @param pSource who shows that time already; null for whoever is no view
    void setTime(double seconds, const QObject* pSource = nullptr);

    /// Null while nothing is loaded.
    [[nodiscard]] RecordData* record() const { return mpRecord.get(); }
    /// The same, for who refers to it longer than until the next change is told.
    [[nodiscard]] const std::shared_ptr<RecordData>& sharedRecord() const { return mpRecord; }
    /// Date and time of the power-up; invalid when the record tells none.
    [[nodiscard]] const QDateTime& powerUp() const { return mPowerUp; }
    [[nodiscard]] double startTime() const { return mStartTime; }
    [[nodiscard]] double endTime() const { return mEndTime; }
    [[nodiscard]] double viewTime() const { return mViewTime; }
    [[nodiscard]] const Version& version() const { return mVersion; }

    /// What somebody wrote about moments of the record, by time.
    [[nodiscard]] const std::vector<CycleNote>& notes() const { return mNotes; }
    void setNotes(std::vector<CycleNote> notes)
    {
        mNotes = std::move(notes);
        Q_EMIT notesChanged();
    }

    /// Where parameters lay in earlier flights of the engine.
    [[nodiscard]] const std::vector<NormalBand>& normal() const { return mNormal; }
    void setNormal(std::vector<NormalBand> bands)
    {
        mNormal = std::move(bands);
        Q_EMIT normalChanged();
    }

    /// While the result lives, whoever changes the time is a view that is being filled, and no user: it is not heard.
    [[nodiscard]] QScopedValueRollback<bool> telling() { return QScopedValueRollback<bool>(mIsTelling, true); }

Q_SIGNALS:
    // In this order, and always closed by the time.
    void recordChanged(); ///< the data, or what was worked out of them
    void recordGrown();
    void decodingChanged();
    void selectionChanged();
    void timeChanged(double seconds, const QObject* pSource);
    void notesChanged(); ///< at any time, at once
    void normalChanged(); ///< the same

private:
    void takeSpan();
    void schedule();
    void tell();

    CardContainer& mContainer;
    std::shared_ptr<RecordData> mpRecord;
    std::shared_ptr<RecordData> mpLast; ///< that which the views still refer to, until they are told
    std::vector<CycleNote> mNotes;
    std::vector<NormalBand> mNormal;
    QDateTime mPowerUp;
    double mStartTime = 0.0;
    double mEndTime = 0.0;
    double mViewTime = 0.0;
    const QObject* mpSource = nullptr;
    Version mVersion;
    Version mTold;
    bool mIsScheduled = false;
    bool mIsTelling = false;
};

} // namespace ZARN
