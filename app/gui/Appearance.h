#pragma once

#include "ui/canvas/ColourTable.h"

#include <QPalette>

#include <functional>

namespace ZARN {

/// The palette that the user wants. The numbers are those of the setting "Palette".
enum class EAppearance { eLight, eDark, eSystem };

/// Which of the program's palettes is in force: gives it to the toolkit, to what is drawn and to style sheets. The user may have colours of his
/// own in a file. Owned by the kernel.
class Appearance {
public:
    using SystemIsDark = std::function<bool()>;

    explicit Appearance(SystemIsDark systemIsDark = isSystemDark) : mSystemIsDark(std::move(systemIsDark)) {}

    /// The user's own colours; none where there is no such file. @return what is wrong with it: the program's are in force then.
    [[nodiscard]] QString readColours(const QString& file);
    /// The application's style sheet must be set afterwards: by that widgets learn of it.
    void apply(EAppearance wanted);
    /// Texts have the colour of links from when they were set: sets them anew. To be called when all else is done.
    static void renewLinks();
    [[nodiscard]] std::map<QString, QString> variables() const { return mColours.variables(mMedium); }
    [[nodiscard]] bool isDark() const { return mMedium == ColourTable::eDark; }
    /// While true the toolkit tells of changes that are no news.
    [[nodiscard]] bool isApplying() const { return mIsApplying; }

    /// As the desktop says, else by the windows' ground in the platform's palette, which the application takes for it.
    [[nodiscard]] static bool isSystemDark();

private:
    [[nodiscard]] QPalette toolkitPalette() const;

    SystemIsDark mSystemIsDark;
    ColourTable mColours = ColourTable::builtIn();
    ColourTable::EMedium mMedium = ColourTable::eLight;
    bool mIsApplying = false;
};

} // namespace ZARN
