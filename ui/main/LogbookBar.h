#pragma once

#include <QFrame>

namespace ZARN {

/// The question whether a logbook is to be kept, within the window: it can be left unanswered.
class LogbookBar : public QFrame {
    Q_OBJECT

public:
    explicit LogbookBar(QWidget* pParent = nullptr);

Q_SIGNALS:
    void signalAnswer(bool isWanted);
};

} // namespace ZARN
