#pragma once

#include "project/Session.h"

#include <QDialog>

class QComboBox;
class QListWidget;
class QListWidgetItem;
class QSpinBox;
class QStackedWidget;

namespace ZARN {

class Kernel;
class MapOptions;

/// The preferences window: language and font size, where the map has its tiles from, and which profile file to use. Every change is in force
/// at once. Language, palette and profile are written to the settings file at once, too, all else when the window, or the field of the font
/// size, is left: font sizes and map options are tried in turn, and a file for each try would be a wait for each. The main window owns it.
class DialogPreferences : public QDialog {
    Q_OBJECT

public:
    /// @param dataPath folder in which earlier versions kept map tiles
    DialogPreferences(const Session& session, Kernel& kernel, QWidget* pParent = nullptr, const QString& dataPath = {});
    ~DialogPreferences() override;

    /// Shows what the settings hold.
    void fillDialog();

public Q_SLOTS:
    /// Keeps the language and asks whether to start again now, for a language is loaded at start alone.
    void slotLanguage(const QString& locale);
    /// Applies a palette and keeps it.
    void slotPalette(int palette);
    /// Applies a font size in pixels.
    void slotFont(int size);
    /// Writes what was changed and not written.
    void slotKeep();
    void slotProfileSelect();
    /// Puts a profile file in force; one that is none changes nothing, and why it is none is said.
    void slotProfilePath(const QString& path);
    void slotChangePage(QListWidgetItem* pCurrent, QListWidgetItem* pPrevious);
    void slotClose();

Q_SIGNALS:
    void signalLanguageChanged();
    /// The setting "Profile" names another profile file.
    void signalProfileFileChanged();
    /// Where the map's tiles come from, or whether they may be loaded, is another matter.
    void signalTilesChanged();

protected:
    bool event(QEvent* pEvent) override;
    void hideEvent(QHideEvent* pEvent) override;

private:
    QWidget* createGeneralPage();
    QWidget* createProfilePage();
    void addPage(const QString& name, const QString& icon, QWidget* pPage);

    Session mSession;
    Kernel& mKernel;
    QString mLocale; ///< the one that the program was started in
    QListWidget* mpList;
    QStackedWidget* mpPages;
    QComboBox* mpLanguage;
    QComboBox* mpPalette;
    QSpinBox* mpFontSize;
    MapOptions* mpMap;
    bool mIsUnsaved = false; ///< something is another than in the settings file
};

} // namespace ZARN
