#pragma once

#include <QStringList>

#include <functional>

class QApplication;
class StyleHandler;

namespace ZARN {

class DialogMain;
class Property;

/// Where the running program is reached as a whole: its application object and its main window, both owned by the main
/// function, and what concerns all of it: its style and its restart. The program's own object lives until the process ends.
class Kernel {
public:
    /// Starts a program with arguments on its own, independent of this process.
    using Starter = std::function<bool(const QString& program, const QStringList& arguments)>;

    Kernel(const Property& property, StyleHandler& style, Starter starter);
    static Kernel& instance();

    void setApplication(QApplication* pApplication) { mpApplication = pApplication; }
    void setMainWindow(DialogMain* pMainWindow) { mpMainWindow = pMainWindow; }
    [[nodiscard]] DialogMain* mainWindow() const { return mpMainWindow; }

    /// Reads a style sheet file and applies it with the font size of the settings.
    void loadStyleFile(const QString& styleFile);
    /// Applies the sheet that was read last with a font size in pixels.
    void applyFontSize(int pixels);

    /// Ends the event loop, for the program to start again. A window may refuse: it calls cancelRestart() then.
    void restart();
    void cancelRestart() { mRestarts = false; }
    /// Called when the event loop has ended: starts the program again with the same arguments where restart() asked for it.
    void finishRestart();

private:
    const Property& mProperty;
    StyleHandler& mStyle;
    Starter mStarter;
    QApplication* mpApplication = nullptr;
    DialogMain* mpMainWindow = nullptr;
    bool mRestarts = false;
};

} // namespace ZARN
