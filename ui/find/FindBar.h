#pragma once

#include "ui/find/model/FindHits.h"

#include <QWidget>

class QLabel;
class QTableView;
class QToolButton;

namespace ZARN {

class FindForm;
class FindTableModel;
class TimeReference;

/// The bar below the tabs in which one asks where something held: the condition, what was found of it, the way from one place to the next,
/// and a list of all. Knows no record: who owns it searches.
class FindBar : public QWidget {
    Q_OBJECT

public:
    explicit FindBar(QWidget* pParent = nullptr);

    [[nodiscard]] FindForm& form() { return *mpForm; }
    /// Opens it, to be typed into.
    void open();
    /// What was found, or why nothing could be; one of both is empty.
    void setHits(const FindHits& hits);
    void setProblem(const QString& text);
    /// Says something that is neither.
    void setNote(const QString& text);
    /// How the times of the list are told.
    void setTimes(const TimeReference& times);
    /// Marks where the view time is.
    void setTime(double time);

Q_SIGNALS:
    /// Another condition.
    void signalChanged();
    void signalStep(bool forward);
    /// The user chose a row of the list.
    void signalChosen(int row);
    /// The user wants to see it in the graph.
    void signalShow(int row);
    void signalClosed();

protected:
    void keyPressEvent(QKeyEvent* pEvent) override;
    void hideEvent(QHideEvent* pEvent) override;

private:
    QToolButton* addButton(QLayout& row, const QString& text, const QString& toolTip);
    QWidget* createTools();
    void createList();
    void updateStatus();
    void setList(bool isShown);
    void fitList();

    FindForm* mpForm;
    QLabel* mpStatus;
    QToolButton* mpPrevious = nullptr;
    QToolButton* mpNext = nullptr;
    QToolButton* mpListed = nullptr;
    QTableView* mpList;
    FindTableModel* mpModel;
    FindHits mHits;
    double mTogether = 0.0; ///< seconds of all hits
    double mTime = 0.0;
    QString mText; ///< in place of what was found
    bool mIsProblem = false;
};

} // namespace ZARN
