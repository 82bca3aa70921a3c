#pragma once

#include "project/Session.h"

#include <QDialog>
#include <QMessageBox>

class QTextEdit;

namespace ZARN {
class ProfileCatalogue;
}

/// Shows the header and the variants of the loaded profile, and installs a new profile file in its place. The main window owns it
/// and tells it which file is loaded.
class DialogProfileInfo : public QDialog {
    Q_OBJECT

public:
    DialogProfileInfo(const ZARN::Session& session, const ZARN::ProfileCatalogue& catalogue, QWidget* pParent = nullptr);

    /// Tells which file the profile was loaded from: its variants are those shown, and an installation goes to its folder.
    /// @param isChosenFile the user chose it as a file: nothing is ever installed beside it.
    void setProfileFile(const QString& path, bool isChosenFile = false);
    [[nodiscard]] const QString& profileFile() const { return mProfileFile; }
    /// Shows what the profile holds now.
    void fillProfileInfo();

Q_SIGNALS:
    /// A new profile was installed, and is the loaded one already; profileFile() is where it went.
    void signalProfileChanged();

public Q_SLOTS:
    /// Reacts to the link below the text: "Install" asks for a file and installs it.
    void slotLink(const QString& link);
    void slotClose();

protected:
    /// Asks the user for a profile file. @return an empty text when the user gives up.
    virtual QString askProfileFile();
    /// Shows a message box until the user closes it.
    virtual void showMessage(QMessageBox& box);
    void showEvent(QShowEvent* pEvent) override;

private:
    void install(const QString& file);
    void adoptVariants(const QString& file);
    void report(QMessageBox::Icon icon, const QString& title, const QString& text);
    [[nodiscard]] QString profileInfo() const;

    ZARN::Session mSession;
    const ZARN::ProfileCatalogue& mCatalogue;
    QTextEdit* mpText;
    QString mProfileFile;
    bool mIsChosenFile = false;
};
