#include "ui/overview/WidgetCycleCard.h"

#include "app/gui/Heading.h"
#include "ui/overview/FlowLayout.h"
#include "ui/overview/VerdictMark.h"
#include "ui/overview/WidgetCycleStrip.h"
#include "ui/overview/WidgetIncidentRow.h"
#include "ui/overview/model/OverviewTexts.h"

#include <QApplication>
#include <QClipboard>
#include <QPainter>
#include <QToolButton>
#include <QVBoxLayout>

namespace ZARN {

namespace {

constexpr double kMarkSize = 2.6;    // times the text
constexpr int kWide = 58; // times the text: from here on the figures have room beside the verdict
constexpr int kBar = 6;   // pixels of the verdict's colour at the left
constexpr std::size_t kRowsShown = 50;
constexpr int kFlightsShown = 24; // the strip has all

QLabel* makeLabel(QLabel* pLabel, const QString& name)
{
    pLabel->setObjectName(name);
    pLabel->setTextFormat(Qt::PlainText);
    pLabel->setText(OverviewTexts::breakable(pLabel->text()));
    pLabel->setWordWrap(true);
    return pLabel;
}

} // namespace

WidgetCycleCard::WidgetCycleCard(std::shared_ptr<const CycleOverview> pCycle, QWidget* pParent) : QFrame(pParent), mpCycle(std::move(pCycle))
{
    setObjectName("cycleCard");
    setAccessibleName(OverviewTexts::origin(*mpCycle) + ": " + OverviewTexts::verdict(*mpCycle));
    auto* pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(kBar + 14, 12, 14, 12);
    pLayout->setSpacing(6);
    pLayout->addLayout(createHead());
    if (mpCycle->problem.isEmpty()) {
        auto* pStrip = new WidgetCycleStrip(mpCycle);
        connect(pStrip, &WidgetCycleStrip::signalFlight, this, [this](int flight) { Q_EMIT signalFlight(number(), flight); });
        connect(pStrip, &WidgetCycleStrip::signalIncident, this,
                [this](std::size_t place) { Q_EMIT signalIncident(number(), mpCycle->review.incidents[place]); });
        pLayout->addWidget(pStrip);
        addIncidents(*pLayout);
    }
    if (const QStringList remarks = OverviewTexts::remarks(*mpCycle); !remarks.isEmpty())
        pLayout->addWidget(makeLabel(new QLabel(remarks.join('\n')), "remarks"));
    auto* pBasis = makeLabel(new QLabel(OverviewTexts::basis(*mpCycle)), "quiet");
    pLayout->addWidget(pBasis);
    pLayout->addLayout(createFoot());
}

QBoxLayout* WidgetCycleCard::createHead()
{
    auto* pTexts = new QVBoxLayout;
    pTexts->setSpacing(1);
    pTexts->addWidget(makeLabel(new Heading(OverviewTexts::verdict(*mpCycle), nullptr, EText::eHeading), "heading"));
    pTexts->addWidget(makeLabel(new QLabel(OverviewTexts::origin(*mpCycle)), "quiet"));
    auto* pVerdict = new QHBoxLayout;
    pVerdict->setSpacing(12);
    pVerdict->addWidget(new VerdictMark(mpCycle->verdict(), kMarkSize), 0, Qt::AlignTop);
    pVerdict->addLayout(pTexts, 1);
    mpHead = new QBoxLayout(QBoxLayout::LeftToRight);
    mpHead->setSpacing(8);
    mpHead->addLayout(pVerdict, 1);
    mpHead->addLayout(createFigures());
    return mpHead;
}

QLayout* WidgetCycleCard::createFigures() const
{
    auto* pFigures = new FlowLayout(22);
    for (const OverviewTexts::Figure& figure : OverviewTexts::figures(*mpCycle)) {
        auto* pFigure = new QWidget;
        auto* pColumn = new QVBoxLayout(pFigure);
        pColumn->setContentsMargins(0, 0, 0, 0);
        pColumn->setSpacing(1);
        for (QLabel* pLabel : {makeLabel(new Heading(figure.value, nullptr, EText::eHeading), "heading"), makeLabel(new QLabel(figure.name), "quiet")}) {
            pLabel->setWordWrap(false);
            pColumn->addWidget(pLabel);
        }
        pFigures->addWidget(pFigure);
    }
    return pFigures;
}

void WidgetCycleCard::addIncidents(QBoxLayout& layout)
{
    const std::vector<IncidentSentence> sentences = OverviewTexts::sentences(*mpCycle);
    for (std::size_t i = 0; i < std::min(sentences.size(), kRowsShown); ++i) {
        const IncidentSentence& sentence = sentences[i];
        const Incident& first = mpCycle->review.incidents[sentence.incidents.front()];
        auto* pRow = new WidgetIncidentRow(sentence.state, sentence.time, sentence.what, OverviewTexts::detail(sentence));
        connect(pRow, &QAbstractButton::clicked, this, [this, &first] { Q_EMIT signalIncident(number(), first); });
        connect(pRow, &WidgetIncidentRow::signalCopy, this,
                [this, text = sentence.time + "  " + sentence.text()] { copy(text); });
        layout.addWidget(pRow);
    }
    if (sentences.size() > kRowsShown) {
        const QString others = tr("More sentences: %1. The lists of the cycle have them all.").arg(sentences.size() - kRowsShown);
        layout.addWidget(makeLabel(new QLabel(others), "quiet"));
    }
}

void WidgetCycleCard::addButton(QLayout& layout, const QString& text, const QString& description, const std::function<void()>& act)
{
    auto* pButton = new QToolButton;
    pButton->setText(text);
    pButton->setToolTip(description);
    pButton->setAccessibleName(text + ", " + OverviewTexts::origin(*mpCycle));
    connect(pButton, &QToolButton::clicked, this, act);
    layout.addWidget(pButton);
}

QLayout* WidgetCycleCard::createFoot()
{
    auto* pFoot = new FlowLayout(6, Qt::AlignRight);
    addButton(*pFoot, tr("Open cycle"), tr("Load the whole power cycle"), [this] { Q_EMIT signalFlight(number(), -1); });
    for (int i = 0; i < static_cast<int>(mpCycle->flights.size()) && i < kFlightsShown; ++i)
        addButton(*pFoot, tr("Flight %1").arg(i + 1), tr("Load this flight"), [this, i] { Q_EMIT signalFlight(number(), i); });
    addButton(*pFoot, tr("Copy"), tr("Copy what is told of this cycle as text"), [this] { copy(OverviewTexts::plain(*mpCycle)); });
    return pFoot;
}

void WidgetCycleCard::copy(const QString& text) const
{
    QApplication::clipboard()->setText(text);
}

void WidgetCycleCard::paintEvent(QPaintEvent* pEvent)
{
    QFrame::paintEvent(pEvent);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipRect(0, 0, kBar, height());
    painter.setPen(Qt::NoPen);
    painter.setBrush(VerdictSign::colour(mpCycle->verdict()));
    painter.drawRoundedRect(QRectF(0, 0, 2 * kBar, height()), kBar, kBar);
}

void WidgetCycleCard::resizeEvent(QResizeEvent* pEvent)
{
    QFrame::resizeEvent(pEvent);
    fitTo(width());
}

void WidgetCycleCard::fitTo(int room)
{
    const bool isWide = room >= kWide * QFontInfo(font()).pixelSize();
    mpHead->setDirection(isWide ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
}

} // namespace ZARN
