#pragma once

#include <QObject>

class QMainWindow;
class QSplitter;

namespace ZARN {

class Property;
struct TextSetting;

/// Keeps the place of the main window and of its splitters from run to run, in settings of its own.
class WindowLayout : public QObject {
    Q_OBJECT

public:
    WindowLayout(Property& property, QMainWindow& window, QSplitter& centre, QSplitter& side);

    /// Puts the window where it was, or in the size that it has at first.
    void restoreWindow();
    /// Sets the sizes of the splitters, and again with every size that the window gets until it settles.
    void restoreSplitters();
    /// The window has its size; from now on the splitters are the user's.
    void settle();
    bool eventFilter(QObject* pObject, QEvent* pEvent) override;
    /// Takes all of it over into the settings. @return whether anything differs from what they held.
    bool store();

private:
    void setSplitters();
    bool storeText(const TextSetting& setting, const char* text);

    Property& mProperty;
    QMainWindow& mWindow;
    QSplitter& mCentre;
    QSplitter& mSide;
};

} // namespace ZARN
