#pragma once

#include "analysis/IncidentText.h"

#include <QFrame>

class QLabel;
class QPushButton;

namespace ZARN {

/// The lines above the views while a bus is watched: how it is, and what was out of order so far, the worst first. Knows nothing of either
/// but texts.
class LiveBar : public QFrame {
    Q_OBJECT

public:
    explicit LiveBar(QWidget* pParent = nullptr);

    void setStatus(const QString& text, bool isTrouble);
    /// What else there is to know of it; empty for nothing.
    void setNote(const QString& text);
    /// @param sentences the worst first  @param isKnown whether so much was received that anything can be told
    void setIncidents(const std::vector<IncidentSentence>& sentences, bool isKnown);
    void setPaused(bool isPaused);
    /// The keys are for it: space pauses.
    void takeKeys();
    /// Whether there is something to pause, and something to report.
    void setRunning(bool isOpen, bool hasData);

Q_SIGNALS:
    void signalPause(bool isPaused);
    /// The user wants the connection ended, or made anew.
    void signalConnect(bool isWanted);
    void signalReport();
    /// The user wants to see what a sentence tells of.
    void signalIncident(std::size_t sentence);

protected:
    void resizeEvent(QResizeEvent* pEvent) override;

private:
    void showIncidents();

    std::vector<IncidentSentence> mSentences;
    bool mIsKnown = false;
    QLabel* mpStatus;
    QLabel* mpNote;
    QLabel* mpIncidents;
    QPushButton* mpPause;
    QPushButton* mpReport;
    QPushButton* mpConnect;
    bool mIsOpen = false;
};

} // namespace ZARN
