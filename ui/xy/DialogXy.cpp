#include "ui/xy/DialogXy.h"

#include "app/Numeric.h"
#include "app/gui/WheelGuard.h"
#include "card/CardContainer.h"
#include "profile/Profile.h"
#include "project/RecordSession.h"
#include "ui/data/model/GraphMoment.h"
#include "ui/find/model/FindCondition.h"
#include "ui/picture/PictureMenu.h"
#include "ui/xy/WidgetXy.h"

#include <QComboBox>
#include <QCompleter>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QMenu>
#include <QMessageBox>
#include <QShortcut>

#include <utility>

namespace ZARN {

namespace {

constexpr QSize kFirstSize(760, 620);
constexpr int kNameLength = 12;

} // namespace

DialogXy::DialogXy(const Session& session, RecordSession& record, QWidget* pParent)
    : QWidget(pParent, Qt::Window), mSession(session), mRecord(record), mpView(new WidgetXy), mpStatus(new QLabel)
{
    setWindowTitle(tr("X against Y"));
    resize(kFirstSize);
    const auto paint = [this](Canvas& canvas, const QSize& size, bool forPaper) {
        mpView->paintOn(canvas, size, forPaper ? Palette::print() : Palette::screen());
    };
    mpPicture = new PictureMenu(
        session, [this, paint] { return Picture(paint, mpView->size(), devicePixelRatioF()); }, [this] { return about(); }, this);
    auto* pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(6, 6, 6, 6);
    pLayout->addLayout(createChoices());
    pLayout->addWidget(mpView, 1);
    mpStatus->setWordWrap(true);
    mpStatus->setTextFormat(Qt::PlainText);
    pLayout->addWidget(mpStatus);
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);
    connect(mpPicture, &PictureMenu::signalProblem, this,
            [this](const QString& text) { QMessageBox::warning(this, tr("ZARN Warning"), text); });
    connect(mpView, &WidgetXy::signalTime, this, [this](double time) { mRecord.setTime(GraphMoment::justBehind(time)); });
    connect(mpView, &WidgetXy::signalMenu, this, &DialogXy::showMenu);
    connect(&mTask, &LatestTask::signalFinished, this, &DialogXy::slotFinished);
    connect(&mRecord, &RecordSession::recordChanged, this, &DialogXy::slotData);
    connect(&mRecord, &RecordSession::recordGrown, &mPace, &GrowthTimer::grow);
    connect(&mPace, &GrowthTimer::signalDue, this, &DialogXy::slotGrown);
    connect(&mRecord, &RecordSession::decodingChanged, this, &DialogXy::slotData);
    connect(&mRecord, &RecordSession::timeChanged, this, &DialogXy::showTime);
}

QComboBox* DialogXy::addChoice(QLayout& row, const QString& title)
{
    auto* pLabel = new QLabel(title);
    auto* pBox = new QComboBox;
    pBox->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    pBox->setMinimumContentsLength(kNameLength);
    pBox->setAccessibleName(title);
    pBox->setMaxVisibleItems(25);
    pLabel->setBuddy(pBox);
    WheelGuard::install(*pBox);
    row.addWidget(pLabel);
    row.addWidget(pBox);
    connect(pBox, &QComboBox::currentIndexChanged, this, &DialogXy::refresh);
    return pBox;
}

QLayout* DialogXy::createChoices()
{
    auto* pRow = new QHBoxLayout;
    mpX = addChoice(*pRow, tr("X:"));
    mpY = addChoice(*pRow, tr("Y:"));
    mpColour = addChoice(*pRow, tr("Colour:"));
    mpSpan = addChoice(*pRow, tr("Of:"));
    for (QComboBox* pBox : {mpX, mpY, mpColour})
        pBox->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    mpSpan->addItems({tr("All of it"), tr("Marker")});
    mpSpan->setToolTip(tr("The loaded cycle or flight, or what is marked in the graph"));
    return pRow;
}

void DialogXy::setMarked(const std::optional<TimeSpan>& span)
{
    if (std::exchange(mMarked, span) != span && mpSpan->currentIndex() == eMarked)
        refresh();
}

void DialogXy::open()
{
    show();
    raise();
    activateWindow();
}

void DialogXy::showEvent(QShowEvent* pEvent)
{
    QWidget::showEvent(pEvent);
    if (!mIsBehind)
        return;
    fillParameters();
    refresh();
}

void DialogXy::slotData()
{
    mTask.stop();
    mPace.end();
    mpView->setPoints({});
    mIsBehind = true;
    if (!isVisible())
        return;
    fillParameters();
    refresh();
}

/// What was chosen stays chosen, even where the record has none of it.
void DialogXy::fillParameters()
{
    const std::vector<FindParameter> parameters =
        mRecord.record() ? FindParameter::all(*mRecord.record(), mSession.profile) : std::vector<FindParameter>();
    QStringList names, ticked;
    for (const FindParameter& parameter : parameters) {
        names << parameter.name;
        if (mSession.profile.isSelected(parameter.name.toStdString()))
            ticked << parameter.name;
    }
    ticked << names;
    const auto fill = [&names](QComboBox& box, const QString& first, const QString& preferred) {
        const QSignalBlocker quiet(&box);
        const QString chosen = box.count() > 0 ? box.currentText() : preferred;
        box.clear();
        box.addItems(first.isEmpty() ? names : QStringList{first} + names);
        if (box.findText(chosen) < 0 && !chosen.isEmpty())
            box.addItem(chosen);
        box.setCurrentText(chosen);
    };
    if (names.isEmpty())
        return;
    fill(*mpX, {}, ticked.value(0));
    fill(*mpY, {}, ticked.value(1, ticked.value(0)));
    fill(*mpColour, tr("Time"), tr("Time"));
}

XyChoice DialogXy::choice() const
{
    const std::string colour = mpColour->currentIndex() > 0 ? mpColour->currentText().toStdString() : std::string();
    return {mpX->currentText().toStdString(), mpY->currentText().toStdString(), colour,
            mpSpan->currentIndex() == eMarked ? mMarked : std::nullopt, TimeReference::of(mSession.property, mSession.container)};
}

void DialogXy::refresh()
{
    mTask.stop();
    mPace.end();
    mPace.forget();
    mIsBehind = true;
    if (!isVisible())
        return;
    mpStatus->clear();
    mpView->setPoints({});
    if (!mRecord.record())
        return mpView->setMessage(tr("No record is loaded."));
    if (mpSpan->currentIndex() == eMarked && !mMarked)
        return mpView->setMessage(tr("Nothing is marked in the graph: drag over a part of it."));
    mpView->setMessage(tr("One moment..."));
    begin();
}

void DialogXy::begin()
{
    mPace.begin();
    mTask.start(
        [this, card = mSession.container.loaded(), choice = choice()](Progress& progress) { mFound = XyPoints(card, choice, progress); });
}

/// The points stay until there are more.
void DialogXy::slotGrown()
{
    if (!isVisible())
        mIsBehind = true;
    else if (mRecord.record() && (mpSpan->currentIndex() != eMarked || mMarked))
        begin();
}

void DialogXy::slotFinished()
{
    mPace.end();
    mIsBehind = false;
    mpView->setPoints(mTask.error().isEmpty() ? std::exchange(mFound, {}) : XyPoints());
    mpStatus->setText(status());
    const bool isEmpty = mpView->points().points().empty();
    mpView->setMessage(isEmpty ? (mTask.error().isEmpty() ? status() : mTask.error()) : QString());
    showTime();
}

QString DialogXy::status() const
{
    const XyPoints& points = mpView->points();
    QStringList missing;
    for (const std::string& name : points.unrecorded())
        missing << QString::fromStdString(name);
    if (!missing.isEmpty())
        return tr("Not recorded here: %1").arg(missing.join(", "));
    const QLocale locale;
    if (points.samples() == 0)
        return tr("No sample lies in this part of the record.");
    QString text = tr("%Ln sample(s); the newest value of each parameter is held until its next.", nullptr,
                      saturatingCast<int>(static_cast<double>(points.samples())));
    if (points.dropped() > 0)
        text +=
            ' ' + tr("Left out, since they hold no finite number: %1.").arg(locale.toString(static_cast<qulonglong>(points.dropped())));
    return text;
}

void DialogXy::showTime()
{
    const XyPoints& points = mpView->points();
    if (!isVisible() || points.points().empty() || !mRecord.record())
        return;
    const DecodingContext& context = mSession.profile;
    const auto* pX = context.model().find(points.choice().x);
    const auto* pY = context.model().find(points.choice().y);
    const CycleValues values = mSession.container.values();
    const double time = mRecord.viewTime();
    const auto shownX = pX ? values.shownAt(*pX, time) : std::nullopt;
    const auto shownY = pY ? values.shownAt(*pY, time) : std::nullopt;
    if (!shownX || !shownY)
        return mpView->setCursorAt(std::nullopt);
    const QString text = QString::fromStdString(shownX->text + " / " + shownY->text);
    mpView->setCursorAt(XyCursor{values.getValue(*pX, time), values.getValue(*pY, time), text});
}

void DialogXy::showMenu(const QPoint& point)
{
    QMenu menu(this);
    mpPicture->addTo(menu);
    menu.exec(point);
}

QString DialogXy::about() const
{
    return tr("%2 over %1").arg(mpX->currentText(), mpY->currentText());
}

} // namespace ZARN
