#pragma once

#include "live/BusAddress.h"
#include "live/LiveRecord.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <memory>

class QCanBusDevice;

namespace ZARN {

class RecordData;

/// Sends recorded frames into a virtual bus, at the pace at which they were recorded or a multiple of it. No other bus is ever opened:
/// nothing that this program does may reach an engine.
class RecordSender : public QObject {
    Q_OBJECT

public:
    /// Takes the frames of the data, in the order of their reception; records that no frame can carry are left out.
    RecordSender(const RecordData& data, double speed, QObject* pParent = nullptr);
    ~RecordSender() override;

    /// @return empty, or why not.
    [[nodiscard]] QString open(const BusAddress& address);
    /// Ends it before all is sent, once what was sent has left this program.
    void stop();
    [[nodiscard]] std::size_t sent() const { return mSent; }
    [[nodiscard]] std::size_t count() const { return mFrames.size(); }
    [[nodiscard]] std::size_t leftOut() const { return mLeftOut; }

Q_SIGNALS:
    /// @param problem empty when all went out.
    void finished(const QString& problem);

private:
    void send();
    void end(const QString& problem);

    LiveRecords mFrames;
    double mSpeed;
    std::size_t mSent = 0;
    std::size_t mLeftOut = 0;
    QString mProblem;
    bool mIsEnding = false;
    std::unique_ptr<QCanBusDevice> mpDevice;
    QElapsedTimer mElapsed;
    QTimer mTimer;
};

} // namespace ZARN
