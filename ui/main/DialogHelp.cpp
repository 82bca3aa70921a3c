#include "ui/main/DialogHelp.h"

#include "app/gui/FirstSize.h"
#include "ui/graph/model/GraphKeys.h"
#include "ui/main/MainActions.h"

#include <QDialogButtonBox>
#include <QFile>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <QSplitter>
#include <QTextBlock>
#include <QTextBrowser>

#include <utility>
#include <vector>

namespace {

constexpr int kDeepestChapter = 3;
constexpr int kPosition = Qt::UserRole; // of a chapter in the text

QUrl manual(const QString& locale)
{
    const QString path = "/manual/" + locale + ".md";
    return QFile::exists(":" + path) ? "qrc:" + path : QString("qrc:/manual/en.md");
}

/// The keys of the main window's commands and of the graph, as they are.
QString commandKeys()
{
    QString text = "\n\n### " + DialogHelp::tr("Commands of the main window") + "\n\n| " + DialogHelp::tr("Key") + " | " +
                   DialogHelp::tr("Command") + " |\n| --- | --- |\n";
    for (const ZARN::MainAction& action : ZARN::MainAction::all()) {
        if (*action.shortcut)
            text += "| " + QKeySequence::listToString(QKeySequence::listFromString(action.shortcut), QKeySequence::NativeText) + " | " +
                    action.title() + " |\n";
    }
    text += "\n\n### " + DialogHelp::tr("Keys of the graph") + "\n\n| " + DialogHelp::tr("Key") + " | " + DialogHelp::tr("What it does") +
            " |\n| --- | --- |\n";
    for (const auto& [keys, what] : ZARN::GraphKey::descriptions())
        text += "| " + keys + " | " + what + " |\n";
    return text;
}

/// Code has the size of the text around it, not that of the system's font; and it is wrapped rather than moved sideways.
void fitCode(QTextDocument& document)
{
    QTextCursor cursor(&document);
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        std::vector<std::pair<int, int>> pieces; // changing one ends a walk over them
        for (auto piece = block.begin(); !piece.atEnd(); ++piece) {
            if (piece.fragment().charFormat().fontFixedPitch())
                pieces.emplace_back(piece.fragment().position(), piece.fragment().length());
        }
        for (const auto& [position, length] : pieces) {
            cursor.setPosition(position);
            cursor.setPosition(position + length, QTextCursor::KeepAnchor);
            QTextCharFormat format = cursor.charFormat();
            format.clearProperty(QTextFormat::FontPointSize);
            format.clearProperty(QTextFormat::FontPixelSize);
            cursor.setCharFormat(format);
        }
        if (block.blockFormat().nonBreakableLines()) {
            cursor.setPosition(block.position());
            QTextBlockFormat format = block.blockFormat();
            format.setNonBreakableLines(false);
            cursor.setBlockFormat(format);
        }
    }
}

/// Shows the manual, and behind its last chapter what the program knows better.
class ManualBrowser : public QTextBrowser {
public:
    QVariant loadResource(int type, const QUrl& name) override
    {
        const QVariant page = QTextBrowser::loadResource(type, name);
        const bool isManual = type == QTextDocument::MarkdownResource && name.path().startsWith("/manual/");
        return isManual ? QVariant(page.toByteArray() + commandKeys().toUtf8()) : page;
    }
};

} // namespace

DialogHelp::DialogHelp(const QString& locale, QWidget* pParent)
    : QDialog(pParent), mpChapters(new QListWidget), mpBrowser(new ManualBrowser), mpSearch(new QLineEdit)
{
    setWindowTitle(tr("ZARN Help"));
    mpChapters->setObjectName("chapters");
    mpChapters->setAccessibleName(tr("Chapters"));
    mpBrowser->setObjectName("manual");
    mpBrowser->setAccessibleName(tr("Manual"));
    mpBrowser->setOpenExternalLinks(true);
    connect(mpBrowser, &QTextBrowser::sourceChanged, this, &DialogHelp::slotSourceChanged);
    connect(mpChapters, &QListWidget::currentRowChanged, this, &DialogHelp::slotChapter);
    mpBrowser->setSource(manual(locale), QTextDocument::MarkdownResource);

    auto* pSplitter = new QSplitter;
    pSplitter->addWidget(mpChapters);
    pSplitter->addWidget(mpBrowser);
    pSplitter->setStretchFactor(1, 1);
    mpChapters->ensurePolished();
    constexpr int kAround = 40, kText = 720, kHeight = 700; // pixels, with texts of the usual size
    const int chapters = std::min(mpChapters->sizeHintForColumn(0) + kAround, ZARN::grownWithText(*mpChapters, kText / 2));
    pSplitter->setSizes({chapters, kText});
    auto* pButtons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(pButtons, &QDialogButtonBox::rejected, this, &QDialog::close);
    pButtons->button(QDialogButtonBox::Close)->setAutoDefault(false); // the return key belongs to the search
    auto* pLayout = new QVBoxLayout(this);
    pLayout->addWidget(createHead());
    pLayout->addWidget(pSplitter, 1);
    pLayout->addWidget(pButtons);
    resize(ZARN::firstSize(*this, QSize(kText + kText / 3, kHeight)));
}

QWidget* DialogHelp::createHead()
{
    auto* pBack = new QPushButton(tr("Back"));
    pBack->setAutoDefault(false);
    pBack->setEnabled(false);
    connect(pBack, &QPushButton::clicked, mpBrowser, &QTextBrowser::backward);
    connect(mpBrowser, &QTextBrowser::backwardAvailable, pBack, &QPushButton::setEnabled);
    mpSearch->setObjectName("search");
    mpSearch->setAccessibleName(tr("Search the text"));
    mpSearch->setPlaceholderText(tr("Search the text; Return for the next place"));
    mpSearch->setClearButtonEnabled(true);
    connect(mpSearch, &QLineEdit::returnPressed, this, &DialogHelp::slotSearch);
    auto* pHead = new QWidget;
    auto* pLayout = new QHBoxLayout(pHead);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->addWidget(pBack);
    pLayout->addWidget(mpSearch, 1);
    return pHead;
}

void DialogHelp::slotSourceChanged()
{
    mpBrowser->document()->setDocumentMargin(18);
    fitCode(*mpBrowser->document());
    const QSignalBlocker blocker(mpChapters);
    mpChapters->clear();
    for (QTextBlock block = mpBrowser->document()->begin(); block.isValid(); block = block.next()) {
        const int level = block.blockFormat().headingLevel();
        if (level < 1 || level > kDeepestChapter)
            continue;
        auto* pItem = new QListWidgetItem(QString(4 * (level - 1), ' ') + block.text(), mpChapters);
        pItem->setData(kPosition, block.position());
    }
}

void DialogHelp::slotChapter(int row)
{
    const QListWidgetItem* pItem = mpChapters->item(row);
    if (!pItem)
        return;
    QTextCursor cursor(mpBrowser->document());
    cursor.setPosition(pItem->data(kPosition).toInt());
    mpBrowser->setTextCursor(cursor);
    QScrollBar* pBar = mpBrowser->verticalScrollBar();
    pBar->setValue(pBar->value() + mpBrowser->cursorRect(cursor).top()); // the heading at the top, not just in sight
}

void DialogHelp::slotSearch()
{
    if (mpSearch->text().isEmpty() || mpBrowser->find(mpSearch->text()))
        return;
    mpBrowser->moveCursor(QTextCursor::Start); // once more from the beginning
    mpBrowser->find(mpSearch->text());
}
