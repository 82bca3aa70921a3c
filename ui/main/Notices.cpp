#include "ui/main/Notices.h"

#include "app/UserFile.h"

#include <QDir>
#include <QLabel>
#include <QMainWindow>
#include <QMessageBox>
#include <QStatusBar>
#include <QTimer>

namespace ZARN {

namespace {

constexpr int kDelay = 200; // milliseconds: at start the window must have its place, for the message to stand in front of it
constexpr int kGap = 6;
constexpr int kLeastWidth = 160;

} // namespace

Notices::Notices(QMainWindow* pWindow) : QObject(pWindow), mpWindow(pWindow) {}

void Notices::setProblem(EProblem problem, const QString& text, const QString& detail)
{
    QLabel*& pLabel = mLabels[problem];
    if (text.isEmpty()) {
        delete pLabel;
        mLabels.erase(problem);
        return;
    }
    if (!pLabel) {
        pLabel = new QLabel;
        pLabel->setObjectName("warning");
        pLabel->setTextFormat(Qt::PlainText);
        pLabel->setContentsMargins(kGap, 0, kGap, 0);
        pLabel->setMinimumWidth(kLeastWidth); // a long one does not keep the window from being small
        mpWindow->statusBar()->insertPermanentWidget(0, pLabel);
    }
    pLabel->setText(text);
    pLabel->setToolTip(detail.isEmpty() ? QString() : "<span>" + detail.toHtmlEscaped().replace('\n', "<br>") + "</span>");
}

void Notices::tell(const QString& text)
{
    mMessages.append(text);
    QTimer::singleShot(kDelay, this, &Notices::showQueued);
}

QString Notices::takeMessages()
{
    const QString text = mMessages.join("\n\n");
    mMessages.clear();
    return text;
}

void Notices::showQueued()
{
    if (mMessages.isEmpty())
        return;
    auto* pBox = new QMessageBox(QMessageBox::Warning, tr("ZARN Warning"), takeMessages(), QMessageBox::Ok, mpWindow);
    pBox->setTextFormat(Qt::PlainText); // a path may hold what looks like markup
    pBox->setAttribute(Qt::WA_DeleteOnClose);
    pBox->open();
}

void Notices::showWaiting()
{
    if (mMessages.isEmpty())
        return;
    QMessageBox box(QMessageBox::Warning, tr("ZARN Warning"), takeMessages(), QMessageBox::Ok, mpWindow);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

void Notices::watch(UserFile& file, EProblem problem, const QString& failure)
{
    file.setListener([this, problem, failure](UserFile::EEvent event, const QString& path) {
        const QString name = QDir::toNativeSeparators(path);
        switch (event) {
        case UserFile::EEvent::eWritten: setProblem(problem, {}); break;
        case UserFile::EEvent::eNotWritten: setProblem(problem, failure, name); break;
        case UserFile::EEvent::ePutAside:
            tell(tr("A file that could not be read was put aside, as a new one takes its place:\n%1").arg(name));
            break;
        }
    });
}

} // namespace ZARN
