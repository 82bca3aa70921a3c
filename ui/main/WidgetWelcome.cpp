#include "ui/main/WidgetWelcome.h"

#include "app/gui/ImageHandler.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>

#include <algorithm>

namespace ZARN {

namespace {

constexpr int kPictureSize = 56;
constexpr int kTextWidth = 460;

QLabel* makeLabel(const char* objectName)
{
    auto* pLabel = new QLabel;
    pLabel->setObjectName(objectName);
    pLabel->setTextFormat(Qt::PlainText);
    pLabel->setAlignment(Qt::AlignCenter);
    pLabel->setWordWrap(true);
    pLabel->setFixedWidth(kTextWidth);
    return pLabel;
}

/// The layout asks a wrapped text for its height too early, before the style sheet gave it its font.
void giveRoom(QLabel& label)
{
    label.ensurePolished();
    label.setMinimumHeight(std::max(0, label.heightForWidth(kTextWidth))); // an empty one has none
}

} // namespace

WidgetWelcome::WidgetWelcome(QWidget* pParent)
    : QFrame(pParent), mpArea(new QFrame), mpHeading(makeLabel("heading")), mpText(makeLabel("quiet")), mpProblem(makeLabel("warning")),
      mpButtons(new QWidget)
{
    auto* pPicture = new QLabel;
    pPicture->setPixmap(ImageHandler::icon("zarn").pixmap(QSize(kPictureSize, kPictureSize), devicePixelRatioF()));
    pPicture->setAlignment(Qt::AlignCenter);

    auto* pOpen = new QPushButton(ImageHandler::icon("open-folder", Qt::white), tr("Open card folder ..."));
    pOpen->setObjectName("openFolder");
    pOpen->setDefault(true);
    connect(pOpen, &QPushButton::clicked, this, &WidgetWelcome::signalOpenFolder);
    auto* pDemo = new QPushButton(ImageHandler::icon("demo"), tr("Try the demo card"));
    pDemo->setObjectName("openDemo");
    connect(pDemo, &QPushButton::clicked, this, &WidgetWelcome::signalOpenDemoCard);
    auto* pButtons = new QHBoxLayout(mpButtons);
    pButtons->setAlignment(Qt::AlignCenter);
    pButtons->addWidget(pOpen);
    pButtons->addWidget(pDemo);

    mpArea->setObjectName("dropArea");
    auto* pLayout = new QVBoxLayout(mpArea);
    pLayout->setSpacing(16);
    pLayout->addStretch();
    for (QWidget* pWidget : {static_cast<QWidget*>(pPicture), static_cast<QWidget*>(mpHeading), static_cast<QWidget*>(mpProblem),
                             static_cast<QWidget*>(mpText), mpButtons})
        pLayout->addWidget(pWidget, 0, Qt::AlignHCenter);
    pLayout->addStretch();
    auto* pFrame = new QVBoxLayout(this);
    pFrame->setContentsMargins(0, 0, 0, 0);
    pFrame->addWidget(mpArea);
    setProblem({});
    setWithCard(false);
}

void WidgetWelcome::setProblem(const QString& problem)
{
    mpProblem->setText(problem);
    giveRoom(*mpProblem);
    mpProblem->setVisible(!problem.isEmpty());
}

void WidgetWelcome::setWithCard(bool withCard)
{
    mpHeading->setText(withCard ? tr("Choose a power cycle") : tr("No card is open"));
    mpText->setText(withCard ? tr("The list on the left holds the power cycles of the card. Click one to load it; "
                                  "its flights then appear below it.")
                             : tr("Open the folder of a memory card, or drop it here. Without a card at hand the demo card shows "
                                  "an hour with two tows."));
    giveRoom(*mpText);
    mpButtons->setVisible(!withCard);
}

void WidgetWelcome::setDragged(bool dragged)
{
    mpArea->setProperty("dragged", dragged);
    mpArea->style()->unpolish(mpArea);
    mpArea->style()->polish(mpArea);
}

} // namespace ZARN
