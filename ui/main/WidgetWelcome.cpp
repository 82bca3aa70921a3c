#include "ui/main/WidgetWelcome.h"

#include "app/gui/ImageHandler.h"
#include "app/gui/Heading.h"
#include "app/gui/IconLabel.h"
#include "app/gui/StyleProperty.h"
#include "app/gui/TextSize.h"

#include <QEvent>
#include <QFontInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include <algorithm>

namespace ZARN {

namespace {

constexpr int kPictureSize = 56;
constexpr int kIconSize = 16;
constexpr int kTextWidth = 38; // in sizes of the font

/// A text over the width of the page.
template <typename Label> Label* makeLabel(const char* objectName)
{
    auto* pLabel = new Label;
    pLabel->setObjectName(objectName);
    pLabel->setTextFormat(Qt::PlainText);
    pLabel->setAlignment(Qt::AlignCenter);
    pLabel->setWordWrap(true);
    return pLabel;
}

} // namespace

WidgetWelcome::WidgetWelcome(QWidget* pParent)
    : QFrame(pParent), mpArea(new QFrame), mpColumn(new QWidget), mpHeading(makeLabel<Heading>("heading")), mpText(makeLabel<QLabel>("quiet")),
      mpProblem(makeLabel<QLabel>("warning")), mpButtons(new QWidget)
{
    auto* pPicture = new IconLabel("zarn", kPictureSize);
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
    pButtons->setContentsMargins(0, 0, 0, 0);
    pButtons->addWidget(pOpen);
    pButtons->addWidget(pDemo);

    mpArea->setObjectName("dropArea");
    auto* pLayout = new QVBoxLayout(mpArea);
    pLayout->setSpacing(16);
    pLayout->addStretch();
    pLayout->addWidget(pPicture);
    auto* pColumn = new QVBoxLayout(mpColumn);
    pColumn->setContentsMargins(0, 0, 0, 0);
    pColumn->setSpacing(pLayout->spacing());
    for (QLabel* pLabel : {static_cast<QLabel*>(mpHeading), mpProblem, mpText})
        pColumn->addWidget(pLabel);
    auto* pMiddle = new QHBoxLayout;
    pMiddle->addStretch(1);
    pMiddle->addWidget(mpColumn, 100); // all the room up to its greatest width
    pMiddle->addStretch(1);
    pLayout->addLayout(pMiddle);
    pLayout->addWidget(mpButtons);
    pLayout->addStretch();
    auto* pFrame = new QVBoxLayout(this);
    pFrame->setContentsMargins(0, 0, 0, 0);
    pFrame->addWidget(mpArea);
    setProblem({});
    setState(eNoCard);
}

/// The layout asks a wrapped text for its height too early, before the style sheet gave it its font.
void WidgetWelcome::giveRoom()
{
    ensurePolished();
    mpHeading->follow();
    const QMargins margins = mpArea->layout()->contentsMargins();
    const int room = width() - margins.left() - margins.right();
    const int most = std::clamp(room, 0, kTextWidth * QFontInfo(font()).pixelSize());
    mpColumn->setMaximumWidth(most);
    const int icon = grownWithText(*this, kIconSize);
    for (auto* pButton : mpButtons->findChildren<QPushButton*>())
        pButton->setIconSize(QSize(icon + icon / 3, icon));
    int row = mpButtons->layout()->spacing();
    for (const QWidget* pButton : mpButtons->findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
        row += pButton->sizeHint().width();
    static_cast<QBoxLayout*>(mpButtons->layout())->setDirection(row > room ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    for (QLabel* pLabel : {static_cast<QLabel*>(mpHeading), mpText, mpProblem}) {
        pLabel->ensurePolished();
        pLabel->setMinimumHeight(std::max(0, pLabel->heightForWidth(most))); // an empty one has none
    }
}

void WidgetWelcome::resizeEvent(QResizeEvent* pEvent)
{
    QFrame::resizeEvent(pEvent);
    giveRoom();
}

void WidgetWelcome::changeEvent(QEvent* pEvent)
{
    QFrame::changeEvent(pEvent);
    // Later, when the labels have the new font, too.
    if (pEvent->type() == QEvent::FontChange)
        QMetaObject::invokeMethod(this, &WidgetWelcome::giveRoom, Qt::QueuedConnection);
}

void WidgetWelcome::setProblem(const QString& problem)
{
    mpProblem->setText(problem);
    giveRoom();
    mpProblem->setVisible(!problem.isEmpty());
}

void WidgetWelcome::setState(EState state)
{
    const QString headings[] = {tr("No card is open"), tr("Choose a power cycle"), tr("No records"), tr("Not read")};
    const QString texts[] = {tr("Open the folder of a memory card, or drop it here. Without a card at hand the demo card shows "
                                "an hour with two tows."),
                             tr("The list on the left holds the power cycles of the card. Click one to load it; "
                                "its flights then appear below it."),
                             tr("What was chosen in the list on the left is empty: the unit was switched on, but recorded nothing. "
                                "Choose another entry."),
                             tr("What was chosen in the list on the left could not be read; above stands why. "
                                "If the card was taken out, put it in again and choose anew.")};
    mpHeading->setText(headings[state]);
    mpText->setText(texts[state]);
    giveRoom();
    mpButtons->setVisible(state == eNoCard);
}

void WidgetWelcome::setDragged(bool dragged)
{
    setStyleProperty(*mpArea, "dragged", dragged);
}

} // namespace ZARN
