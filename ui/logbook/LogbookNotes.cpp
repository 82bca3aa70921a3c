#include "ui/logbook/LogbookNotes.h"

#include "app/TimeText.h"
#include "ui/logbook/NoteDialog.h"
#include "ui/logbook/model/LogbookTexts.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace ZARN {

LogbookNotes::LogbookNotes(LogbookWorker& worker, QWidget* pParent)
    : QWidget(pParent), mWorker(worker), mpTable(new QTableWidget(0, 4)), mpHint(new QLabel(tr("Key M in the main window pins a note to the moment that is shown."))),
      mpExport(new QPushButton(tr("Export notes ...")))
{
    mpTable->setAccessibleName(tr("Notes"));
    mpTable->setHorizontalHeaderLabels({tr("Recording"), tr("Aircraft or engine"), tr("Since power-up"), tr("Note")});
    mpTable->setSelectionBehavior(QAbstractItemView::SelectRows);
    mpTable->setSelectionMode(QAbstractItemView::SingleSelection);
    mpTable->setEditTriggers(QAbstractItemView::NoEditTriggers);
    mpTable->setTabKeyNavigation(false);
    mpTable->setShowGrid(false);
    mpTable->verticalHeader()->hide();
    mpTable->horizontalHeader()->setStretchLastSection(true);
    mpTable->horizontalHeader()->setHighlightSections(false);
    mpTable->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    const int letter = fontMetrics().horizontalAdvance('x');
    for (const auto& [column, letters] : {std::pair(0, 40), {1, 28}, {2, 20}})
        mpTable->setColumnWidth(column, std::max(letters * letter, mpTable->horizontalHeader()->sectionSizeHint(column)));
    mpHint->setObjectName("quiet");
    mpHint->setWordWrap(true);
    auto* pRow = new QHBoxLayout;
    const auto add = [&](const QString& text, const std::function<void()>& act) {
        auto* pButton = new QPushButton(text);
        connect(pButton, &QPushButton::clicked, this, act);
        pRow->addWidget(pButton);
        mOfNote.push_back(pButton);
    };
    add(tr("Show"), [this] { Q_EMIT signalOpen(QString::fromStdString(chosen()->cycleId), chosen()->note.time); });
    add(tr("Change ..."), [this] { change(false); });
    add(tr("Delete"), [this] { change(true); });
    pRow->addStretch();
    pRow->addWidget(mpExport);
    auto* pLayout = new QVBoxLayout(this);
    pLayout->addWidget(mpTable, 1);
    pLayout->addWidget(mpHint);
    pLayout->addLayout(pRow);
    connect(mpExport, &QPushButton::clicked, this, &LogbookNotes::signalExport);
    connect(mpTable, &QTableWidget::itemSelectionChanged, this, &LogbookNotes::update);
    connect(mpTable, &QTableWidget::cellActivated, this, [this](int row) {
        Q_EMIT signalOpen(QString::fromStdString(mNotes[static_cast<std::size_t>(row)].cycleId), mNotes[static_cast<std::size_t>(row)].note.time);
    });
    update();
}

void LogbookNotes::setEngine(const std::string& engine)
{
    mEngine = engine;
    reload();
}

void LogbookNotes::reload()
{
    mWorker.ask([](LogbookReader& reader) { return reader.notes(); }, [this](std::vector<LogbookNote> notes) { fill(std::move(notes)); });
}

void LogbookNotes::fill(std::vector<LogbookNote> notes)
{
    std::erase_if(notes, [this](const LogbookNote& note) { return !mEngine.empty() && note.engine != mEngine; });
    mNotes = std::move(notes);
    mpTable->setRowCount(static_cast<int>(mNotes.size()));
    for (int row = 0; row < static_cast<int>(mNotes.size()); ++row) {
        const LogbookNote& note = mNotes[static_cast<std::size_t>(row)];
        const QString origin = note.engine.empty() ? tr("not in the logbook")
                                                   : tr("%1, cycle %2").arg(QString::fromStdString(note.card)).arg(note.cycle) +
                                                         (note.dateTime.empty() ? QString() : ", " + LogbookTexts::dateTime(note.dateTime));
        const QString texts[] = {origin, note.engine.empty() ? QString() : LogbookTexts::engine(note.engine, note.aircraft),
                                 signedTimeText(wholeMilliseconds(note.note.time)), note.note.text};
        for (int column = 0; column < 4; ++column)
            mpTable->setItem(row, column, new QTableWidgetItem(texts[column]));
    }
    update();
}

const LogbookNote* LogbookNotes::chosen() const
{
    const int row = mpTable->selectedItems().isEmpty() ? -1 : mpTable->currentRow();
    return row < 0 || row >= static_cast<int>(mNotes.size()) ? nullptr : &mNotes[static_cast<std::size_t>(row)];
}

void LogbookNotes::update()
{
    for (QPushButton* pButton : mOfNote)
        pButton->setEnabled(chosen() != nullptr);
    mpExport->setEnabled(!mNotes.empty());
}

void LogbookNotes::change(bool isRemoved)
{
    LogbookNote note = *chosen();
    const QString before = note.note.text;
    if (isRemoved && !isSure(before))
        return;
    const std::optional<QString> text = isRemoved ? QString() : NoteDialog::ask(this, tr("Note:"), before);
    if (!text || *text == before)
        return;
    note.note.text = *text;
    mWorker.edit([note](LogbookEditor& editor) { editor.saveNote(note.cycleId, note.note); },
                 [this, text = note.note.text](const QString& error) {
                     if (!error.isEmpty()) // what was typed is not lost
                         Q_EMIT signalFailed(text.isEmpty() ? error : error + "\n" + tr("Not kept: %1").arg(text));
                 });
}

bool LogbookNotes::isSure(const QString& text)
{
    QMessageBox box(QMessageBox::Question, tr("Note"), tr("Delete this note?") + "\n\n" + text, QMessageBox::Yes | QMessageBox::No, this);
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

} // namespace ZARN
