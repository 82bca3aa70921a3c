#pragma once

#include "profile/FormulaDefinition.h"
#include "project/Session.h"

#include <QSet>
#include <QWidget>

#include <optional>
#include <set>

class QAction;
class QCheckBox;
class QLabel;
class QLineEdit;
class QTreeView;

namespace ZARN {

class ProfileFilterModel;
class ProfileTreeModel;

/// The profile panel: the tree of the profile's parameters with the check boxes that choose which ones are shown, and a field that
/// narrows it. The main window owns it. What the user ticks goes to the profile's flags and to the project at once.
class DialogProfile : public QWidget {
    Q_OBJECT

public:
    /// @param pHead what stands above everything; owned from then on
    explicit DialogProfile(const Session& session, QWidget* pHead = nullptr, QWidget* pParent = nullptr);

    /// Shows the profile as it is now: after it was loaded, after a project was read, after a change of units. Emits nothing.
    void updateProfile();
    /// Formulas that come with the profile, to be offered.
    void setExamples(FormulaDefinitions examples) { mExamples = std::move(examples); }
    /// Applies the project's names to the profile and shows them: after the project was cleared. Emits nothing.
    void updateProject();
    /// Which parameters the loaded data hold samples of, by identifier; none while nothing is loaded.
    void setRecorded(std::optional<std::set<uint32_t>> identifiers);

Q_SIGNALS:
    /// The user changed which parameters are shown.
    void signalChanged();
    /// He wants to see a parameter of that name in the graph, ticked or not.
    void signalShow(const QString& name);
    /// The user changed the formulas: another model is in force.
    void signalFormulasChanged();

private Q_SLOTS:
    void slotSelectionChanged();
    void slotFilter(const QString& text);
    void slotOnlyRecorded(bool on);
    void slotCount();
    void slotCurrentChanged();
    void slotOnlyDevice();
    void slotCopyName();
    void slotFormulas();

protected:
    bool eventFilter(QObject* pObject, QEvent* pEvent) override;

private:
    void fitNames();
    void nameActions();
    void createTree();
    void createActions();
    QAction* addAction(const QString& name, const QString& text);
    void rememberExpanded();
    void restoreExpanded();

    Session mSession;
    ProfileTreeModel* mpModel;
    ProfileFilterModel* mpFilter;
    QLineEdit* mpSearch;
    QCheckBox* mpOnlyRecorded;
    QTreeView* mpTree;
    QLabel* mpCount;
    QAction* mpSelectAll = nullptr;
    QAction* mpSelectNone = nullptr;
    QAction* mpOnlyDevice = nullptr;
    QAction* mpCopyName = nullptr;
    FormulaDefinitions mExamples;
    QSet<QString> mExpanded; ///< names of the devices that are open while nothing is searched
};

} // namespace ZARN
