#include "ui/main/MainPanels.h"

#include "profile/ui/DialogProfile.h"
#include "ui/data/DialogData.h"
#include "ui/main/DialogCard.h"
#include "ui/main/WidgetWelcome.h"

#include <QLabel>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace ZARN {

namespace {

constexpr int kMargin = 8;

} // namespace

MainPanels::MainPanels(DialogCard* pCard, DialogProfile* pProfile, DialogData* pData)
    : QSplitter(Qt::Horizontal), mpSide(new QSplitter(Qt::Vertical)), mpPages(new QStackedWidget), mpWelcome(new WidgetWelcome),
      mpData(pData), mpProblems(new QLabel)
{
    mpSide->setChildrenCollapsible(false);
    mpSide->addWidget(pCard);
    mpSide->addWidget(pProfile);
    mpPages->addWidget(mpWelcome);
    mpPages->addWidget(mpData);
    setChildrenCollapsible(false);
    setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    addWidget(mpSide);
    addWidget(createRight());
    setStretchFactor(0, 0); // what a larger window has more is for the data
    setStretchFactor(1, 1);
}

QWidget* MainPanels::createRight()
{
    mpProblems->setObjectName("cardProblems");
    mpProblems->setTextFormat(Qt::PlainText); // names of files
    mpProblems->setTextInteractionFlags(Qt::TextSelectableByMouse);
    mpProblems->setWordWrap(true);
    mpProblems->hide();
    auto* pRight = new QWidget;
    mpRight = new QVBoxLayout(pRight);
    mpRight->setContentsMargins(0, 0, 0, 0);
    mpRight->addWidget(mpProblems);
    mpRight->addWidget(mpPages, 1);
    return pRight;
}

void MainPanels::addNotice(QWidget* pNotice)
{
    mpRight->insertWidget(0, pNotice);
}

void MainPanels::showData(bool isData)
{
    mpPages->setCurrentWidget(isData ? mpData : mpWelcome);
}

void MainPanels::hideSide()
{
    mpSide->hide();
    for (int i = 0; i < mpSide->count(); ++i)
        mpSide->widget(i)->hide();
}

void MainPanels::setProblems(const QString& problems)
{
    mpProblems->setText(problems);
    mpProblems->setVisible(!problems.isEmpty());
}

} // namespace ZARN
