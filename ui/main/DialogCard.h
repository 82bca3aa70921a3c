#pragma once

#include <QString>
#include <QWidget>

#include <list>

class QLineEdit;
class QTimer;
class QTreeWidget;
class QTreeWidgetItem;

namespace ZARN {

class CardContainer;

/// The card browser: the power cycles of the card with their flights, and its record files with their headers. The main window owns
/// it, and loads what its signals name. A choice does not load at once but arms a timer, so that a quick run of clicks or arrow keys
/// loads only the last one.
class DialogCard : public QWidget {
    Q_OBJECT

public:
    enum ERole { eCycleRole = Qt::UserRole, ePathRole = Qt::UserRole, eFlightRole = Qt::UserRole + 1 };
    static constexpr int kDelay = 500; ///< milliseconds from the last choice to its loading

    explicit DialogCard(const CardContainer& container, QWidget* pParent = nullptr);

    /// Forgets a choice that still waits: another card is going to be opened.
    void dropChoice();
    /// Shows the container's card, after its folder was read. A choice still waiting belonged to the old card and is dropped.
    void reloadCardInfo();
    /// Gives the list of cycles the focus.
    void focusList();
    /// Marks the record files with which something is wrong, after the folder was read or records were loaded.
    void showProblems();
    /// Marks what was chosen elsewhere, without loading it. A choice still waiting is dropped.
    void choose(unsigned int cycle, int flight);
    /// Lists the flights of a loaded cycle below it, in place of those that stood there.
    void addFlights(unsigned int cycle);
    /// False while the loaded cycle has no flights below it.
    [[nodiscard]] bool listsLoaded() const;
    /// Chooses the loaded cycle or flight, without loading it; nothing when what is loaded is none of them.
    void showLoaded();

Q_SIGNALS:
    /// Record files to load, by path.
    void signalLoadRecord(const std::list<QString>& files);
    /// A cycle to load; flight -1 is the whole cycle.
    void signalLoadCycle(unsigned int cycle, int flight);
    /// The lists were made anew.
    void signalChanged();

protected:
    bool eventFilter(QObject* pObject, QEvent* pEvent) override;

private Q_SLOTS:
    /// Lists the header lines below a record file.
    void slotExpand(QTreeWidgetItem* pItem);
    void slotSelect();
    void slotSelectCycle();
    /// Chooses what is chosen already while nothing is loaded: the card may have been put in again.
    void slotAgain(QTreeWidgetItem* pItem);
    void slotTimeout();
    void slotTimeoutLoadCycle();

private:
    QTreeWidget* createTree(const QString& name, const QString& header);
    void updateInfoRaw();
    void updateInfoPowerCycles();
    [[nodiscard]] QTreeWidgetItem* cycleItem(unsigned int cycle) const;

    const CardContainer& mContainer;
    QLineEdit* mpName;
    QTreeWidget* mpCycles;
    QTreeWidget* mpRawData;
    QTimer* mpTimer;
    QTimer* mpCycleTimer;
    std::list<QString> mSelectedFiles;
    unsigned int mSelectedCycle = 0;
    int mSelectedFlight = -1;
};

} // namespace ZARN
