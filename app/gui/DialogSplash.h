#pragma once

#include <QSplashScreen>
#include <QStringList>
#include <QTimer>

namespace ZARN {

/// The picture that stands while the program starts, with a line for each step. It repaints at once, for the event loop does not run
/// yet, and leaves three seconds after finish(), or as soon as it would be in the way: when a message box blocks the window, or the
/// window closes. The program's own one deletes itself when it closes.
class DialogSplash : public QSplashScreen {
    Q_OBJECT

public:
    DialogSplash();
    /// The program's splash; the first call creates and shows it, and so does the first after finish().
    static DialogSplash& instance();

    /// Adds a line below the others; the oldest leaves when there would be more than 15.
    void addEntry(const QString& text);
    /// @param pWindow the main window, which it stands in front of.
    void finish(QWidget* pWindow = nullptr);
    [[nodiscard]] const QStringList& entries() const { return mEntries; }

public Q_SLOTS:
    void slotTimeout();

protected:
    void drawContents(QPainter* pPainter) override;
    /// A click does not dismiss the splash.
    void mousePressEvent(QMouseEvent* pEvent) override;
    bool eventFilter(QObject* pObject, QEvent* pEvent) override;

private:
    static DialogSplash* mpSplash;

    QStringList mEntries;
    QTimer mTimer;
};

} // namespace ZARN
