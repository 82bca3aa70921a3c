#include "ui/live/LiveBar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace ZARN {

namespace {

constexpr int kMostSentences = 3;
constexpr int kReadable = 40; // characters of one
const QString kBetween = QStringLiteral("  |  ");

/// A line that is cut off rather than that it makes the window wider.
QLabel* createLine(const char* name)
{
    auto* pLine = new QLabel;
    pLine->setObjectName(name);
    pLine->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    return pLine;
}

} // namespace

LiveBar::LiveBar(QWidget* pParent)
    : QFrame(pParent), mpStatus(createLine("liveStatus")), mpNote(createLine("liveNote")), mpIncidents(createLine("liveIncidents")),
      mpPause(new QPushButton(tr("Pause"))), mpReport(new QPushButton(tr("Report ..."))), mpConnect(new QPushButton)
{
    setObjectName("liveBar");
    setAccessibleName(tr("Live"));
    mpStatus->setTextFormat(Qt::PlainText);
    mpStatus->setWordWrap(true); // how the bus is may not be cut off
    mpNote->setTextFormat(Qt::PlainText);
    mpNote->hide();
    mpIncidents->setTextFormat(Qt::RichText);
    mpIncidents->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    mpPause->setCheckable(true);
    mpPause->setToolTip(tr("Hold what is shown and look back, while everything is received and recorded on (space)"));
    mpReport->setToolTip(tr("Write what was received so far as a flight report"));
    auto* pRow = new QHBoxLayout;
    pRow->addWidget(mpIncidents, 1);
    for (QPushButton* pButton : {mpPause, mpReport, mpConnect})
        pRow->addWidget(pButton);
    auto* pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(6, 2, 6, 2);
    pLayout->setSpacing(2);
    pLayout->addWidget(mpStatus);
    pLayout->addWidget(mpNote);
    pLayout->addLayout(pRow);
    setRunning(false, false);
    setIncidents({}, false);
    connect(mpPause, &QPushButton::clicked, this, &LiveBar::signalPause);
    connect(mpReport, &QPushButton::clicked, this, &LiveBar::signalReport);
    connect(mpConnect, &QPushButton::clicked, this, [this] { Q_EMIT signalConnect(!mIsOpen); });
    connect(mpIncidents, &QLabel::linkActivated, this, [this](const QString& place) { Q_EMIT signalIncident(place.toULongLong()); });
}

void LiveBar::setStatus(const QString& text, bool isTrouble)
{
    mpStatus->setText(text);
    mpStatus->setToolTip(text);
    QFont font = mpStatus->font();
    font.setBold(isTrouble);
    mpStatus->setFont(font);
}

void LiveBar::setNote(const QString& text)
{
    mpNote->setText(text);
    mpNote->setToolTip(text);
    mpNote->setVisible(!text.isEmpty());
}

void LiveBar::setIncidents(const std::vector<IncidentSentence>& sentences, bool isKnown)
{
    mSentences = sentences;
    mIsKnown = isKnown;
    showIncidents();
}

void LiveBar::resizeEvent(QResizeEvent* pEvent)
{
    QFrame::resizeEvent(pEvent);
    showIncidents();
}

/// Each as far as its share of the line goes, so that one does not hide the others.
void LiveBar::showIncidents()
{
    QFont bold = font();
    bold.setBold(true);
    const QFontMetrics metrics(bold);
    const int between = metrics.horizontalAdvance(kBetween);
    const int more = metrics.horizontalAdvance(tr("and %n more", nullptr, static_cast<int>(mSentences.size()))) + between;
    const int room = mpIncidents->width() - (mSentences.size() > 1 ? more : 0);
    const int fitting = std::clamp(room / (kReadable * metrics.averageCharWidth()), 1, kMostSentences);
    const std::size_t shown = std::min(mSentences.size(), static_cast<std::size_t>(fitting));
    const int share = (room + (shown == mSentences.size() && shown > 1 ? more : 0)) / static_cast<int>(std::max<std::size_t>(shown, 1));
    QStringList parts, all;
    for (std::size_t i = 0; i < mSentences.size(); ++i) {
        const IncidentSentence& sentence = mSentences[i];
        const QString text = sentence.time + " " + sentence.text() + (sentence.when.isEmpty() ? QString() : ", " + sentence.when);
        all.append(text.toHtmlEscaped());
        if (i >= shown)
            continue;
        const QString part = metrics.elidedText(text, Qt::ElideRight, share - (i + 1 < shown ? between : 0)).toHtmlEscaped();
        parts.append(QStringLiteral("<a href=\"%1\">%2</a>").arg(QString::number(i), sentence.state > 1 ? "<b>" + part + "</b>" : part));
    }
    if (mSentences.size() > shown)
        parts.append(tr("and %n more", nullptr, static_cast<int>(mSentences.size() - shown)));
    if (parts.isEmpty())
        parts.append(mIsKnown ? tr("Nothing outside its limits so far while the engine ran") : tr("Nothing can be told of the engine yet"));
    mpIncidents->setText(parts.join(QString(kBetween).replace(' ', QLatin1String("&nbsp;"))));
    mpIncidents->setToolTip(all.isEmpty() ? QString() : "<qt>" + all.join("<br/>") + "</qt>");
}

void LiveBar::setPaused(bool isPaused)
{
    mpPause->setChecked(isPaused);
    mpPause->setText(isPaused ? tr("Go on") : tr("Pause"));
}

void LiveBar::takeKeys()
{
    mpPause->setFocus();
}

void LiveBar::setRunning(bool isOpen, bool hasData)
{
    mIsOpen = isOpen;
    mpPause->setEnabled(hasData);
    mpReport->setEnabled(hasData);
    mpIncidents->setEnabled(hasData);
    mpConnect->setText(isOpen ? tr("Disconnect") : tr("Connect"));
}

} // namespace ZARN
