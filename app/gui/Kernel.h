#pragma once

#include "app/gui/Appearance.h"

#include <QStringList>

#include <functional>

class QApplication;
class StyleHandler;

namespace ZARN {

class Property;

/// Where the running program is reached as a whole: its application object, owned by the main function, and what concerns all of it: its
/// style and its restart. The program's own object lives until the process ends.
class Kernel {
public:
    /// Starts a program with arguments on its own, independent of this process.
    using Starter = std::function<bool(const QString& program, const QStringList& arguments)>;

    static const QString kBuiltInStyle;

    Kernel(const Property& property, StyleHandler& style, Starter starter, const Appearance& appearance = Appearance());
    static Kernel& instance();

    void setApplication(QApplication* pApplication) { mpApplication = pApplication; }

    /// Reads a style sheet file and applies it with the font size of the settings.
    void loadStyleFile(const QString& styleFile);
    /// The user's own colours, for what is applied from then on.
    void readColours(const QString& file);
    /// Gives all windows the palette of the settings, at once.
    void applyPalette();
    /// Whether the palette is that of the system, and what comes of the toolkit is not of the kernel's own making.
    [[nodiscard]] bool followsSystem() const;
    /// What is wrong with the style file or the user's colours: what comes with the program is in force instead. Empty when nothing is.
    [[nodiscard]] QString styleProblem() const { return mStyleProblem.isEmpty() ? mColourProblem : mStyleProblem; }
    /// Whether there is no style at all, since its file cannot be read.
    [[nodiscard]] bool isStyleMissing() const { return mIsStyleMissing; }
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
    Appearance mAppearance;
    QString mStyleFile; ///< that was loaded last
    QString mStyleProblem, mColourProblem;
    QApplication* mpApplication = nullptr;
    bool mIsStyleMissing = false;
    bool mRestarts = false;
};

} // namespace ZARN
