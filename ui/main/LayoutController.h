#pragma once

#include "project/LayoutStore.h"
#include "project/Session.h"
#include "ui/main/LayoutBar.h"
#include "ui/main/Notices.h"

#include <QObject>

namespace ZARN {

class DialogData;

/// What the selector of layouts does: chooses, saves, renames, removes, imports and exports them, asking what must be asked. The layout
/// chosen last is kept in the settings. Owned by the main window.
class LayoutController : public QObject {
    Q_OBJECT

public:
    /// @param dataPath folder of the user's own ones  @param notices where it is told that they cannot be read or written
    LayoutController(const Session& session, const QString& dataPath, Notices& notices, LayoutBar& bar, DialogData& data, QWidget* pWindow);

    /// Offers the layouts of the profile that is in force. @param file path of its file  @param resourcePath with a trailing "/"
    void setProfile(const QString& file, const QString& resourcePath);
    /// Brings back the layout of the last run. @param isFirst there are no ticks yet: it sets them, too; the first one where none was chosen
    void restore(bool isFirst);
    /// Says whether what is shown is still what was chosen.
    void update();

Q_SIGNALS:
    /// The user chose a layout: other parameters are ticked.
    void signalChosen();

private:
    void slotChosen(const QString& name);
    /// The parameters of a layout are wanted, and nothing else of it.
    void slotTicks(const DisplayLayout& layout);
    void slotCommand(int command);

    [[nodiscard]] QString current() const;
    void setCurrent(const QString& name);
    void fill();
    void tick(const DisplayLayout& layout);
    /// What is shown, under a name, with what the profile lacks of the layout that was chosen.
    [[nodiscard]] DisplayLayout shown(const QString& name) const;
    [[nodiscard]] bool isShown(const DisplayLayout& layout) const;
    /// A name that the user's own layout can have; empty when he gave up. @param replaces whether it may be one that there is
    QString askName(const QString& title, const QString& first, bool replaces);
    /// Why a name cannot be taken; empty when it can.
    [[nodiscard]] QString refusal(const QString& name, bool replaces) const;
    [[nodiscard]] QString folder() const;
    void keepFolder(const QString& file);
    bool ask(const QString& question, const QString& yes);
    void tell(const QString& text);
    void save(const QString& name);
    void saveAs();
    void rename();
    void remove();
    void importFile();
    void exportFile();

    Session mSession;
    LayoutStore mStore;
    LayoutBar& mBar;
    DialogData& mData;
    QWidget* mpWindow;
};

} // namespace ZARN
