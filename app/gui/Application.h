#pragma once

#include <QApplication>

#include <vector>

namespace ZARN {

/// The application object of the desktop program. Where memory runs out while an event is handled, it says so and ends the event loop with
/// status 1; an exception must not pass through the toolkit. Settings are on disk by then: each change writes them.
class Application : public QApplication {
    Q_OBJECT

public:
    Application(int& argc, char** argv);

    bool notify(QObject* pReceiver, QEvent* pEvent) override;
    /// Says on standard error that memory has run out. @return the status with which the program ends.
    static int reportExhausted();

private:
    void end();

    std::vector<char> mReserve; ///< given back for the message
};

} // namespace ZARN
