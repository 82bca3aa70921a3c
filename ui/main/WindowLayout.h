#pragma once

class QMainWindow;
class QSplitter;

namespace ZARN {

class Property;

/// Keeps the place of the main window and of its splitters from run to run, in settings of its own.
class WindowLayout {
public:
    WindowLayout(Property& property, QMainWindow& window, QSplitter& centre, QSplitter& side);

    /// Puts the window where it was, or in the size that it has at first.
    void restoreWindow();
    /// Sets the sizes of the splitters; only once the window has its size do they mean anything.
    void restoreSplitters();
    /// Takes all of it over into the settings. @return whether anything differs from what they held.
    bool store();

private:
    bool storeText(const char* key, const char* text);

    Property& mProperty;
    QMainWindow& mWindow;
    QSplitter& mCentre;
    QSplitter& mSide;
};

} // namespace ZARN
