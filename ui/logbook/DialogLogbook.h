#pragma once

#include "ui/logbook/model/LogbookWorker.h"

#include <QDialog>
#include <QTimer>

class QComboBox;
class QLabel;
class QTabWidget;

namespace ZARN {

class DecodingContext;
class LogbookEngines;
class LogbookFlights;
class LogbookNotes;
class LogbookTrends;

/// The logbook: what is kept of the cards that were opened, as flights, trends, hours with services, and notes. While it is seen it follows
/// what others write into the store. The main window owns it.
class DialogLogbook : public QDialog {
    Q_OBJECT

public:
    /// @param options a widget with what the logbook is to do, as its last page; taken over
    DialogLogbook(LogbookWorker& worker, QWidget* pOptions, QWidget* pParent = nullptr);

    /// In whose units figures are shown.
    void setContext(const DecodingContext& context);
    /// The columns of the flights that are not shown.
    void setHiddenColumns(const QStringList& keys);
    /// Whether cards that are opened are taken in.
    void setAllowed(bool isAllowed);
    /// What went wrong, until the store can be read again; empty: nothing.
    void tell(const QString& problem);
    /// The same until the window is closed.
    void tellLasting(const QString& problem);
    /// A file that was exported.
    void tellWritten(const QString& path);

Q_SIGNALS:
    /// A flight that the user wants to see. @param flight from 1; 0: the whole cycle. @param time the moment; a NaN is none
    void signalOpen(const QString& cycleId, int flight, double time);
    /// The user wants what is chosen as a file.
    void signalExportFlights(const std::vector<int64_t>& flights, const QString& title, const QString& totals);
    /// The user wants other columns.
    void signalHiddenColumns(const QStringList& keys);
    void signalExportNotes(const std::vector<ZARN::LogbookNote>& notes);

protected:
    void showEvent(QShowEvent* pEvent) override;
    void hideEvent(QHideEvent* pEvent) override;

private:
    QWidget* createHead();
    void connectPages();
    void setIsThere(bool isThere);
    void reload();
    void fillEngines(const std::vector<LogbookEngine>& engines);
    void setEngine();
    void exportFlights();

    LogbookWorker& mWorker;
    QComboBox* mpEngine;
    QLabel* mpProblem;
    QString mLasting; ///< what is told whatever else is
    QLabel* mpEmpty;
    QLabel* mpWritten;
    QTabWidget* mpPages;
    LogbookFlights* mpFlights;
    LogbookTrends* mpTrends;
    LogbookEngines* mpEngines;
    LogbookNotes* mpNotes;
    QTimer mLook;
    bool mIsShown = false; ///< was seen once
};

} // namespace ZARN
