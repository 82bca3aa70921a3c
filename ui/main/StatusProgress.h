#pragma once

#include <QTimer>
#include <QWidget>

class QProgressBar;

namespace ZARN {

/// How far a load is, in the status bar, beside a button that ends it, as the escape key does. Comes, with the cursor of somebody who is
/// busy, when the load takes long enough to be waited for.
class StatusProgress : public QWidget {
    Q_OBJECT

public:
    explicit StatusProgress(QWidget* pParent = nullptr);
    ~StatusProgress() override;

    void begin();
    void setProgress(int percent);
    void end();

Q_SIGNALS:
    void signalCancelled();

private:
    void slotAppear();

    QProgressBar* mpBar;
    QTimer mDelay;
    bool mHasCursor = false;
};

} // namespace ZARN
