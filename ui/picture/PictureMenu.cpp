#include "ui/picture/PictureMenu.h"

#include "app/Property.h"
#include "app/Settings.h"
#include "card/CardContainer.h"
#include "project/DataName.h"

#include <QClipboard>
#include <QFileDialog>
#include <QGuiApplication>
#include <QMenu>
#include <QPrintDialog>
#include <QPrinter>
#include <QRegularExpression>

namespace ZARN {

PictureMenu::PictureMenu(const Session& session, Take take, std::function<QString()> about, QWidget* pParent)
    : QObject(pParent), mSession(session), mTake(std::move(take)), mAbout(std::move(about)), mpWindow(pParent)
{
}

void PictureMenu::addTo(QMenu& menu)
{
    menu.addAction(tr("Copy Picture"), this, &PictureMenu::copy);
    menu.addAction(tr("Save Picture..."), this, &PictureMenu::save);
    menu.addAction(tr("Print Picture..."), this, &PictureMenu::print);
}

void PictureMenu::copy() const
{
    QGuiApplication::clipboard()->setImage(mTake().image());
}

QString PictureMenu::name() const
{
    static const QRegularExpression kUnsafe("[^\\w .,-]", QRegularExpression::UseUnicodePropertiesOption);
    QString text = dataName(mSession.container, mSession.container.selectedFlightNumber());
    if (const QString about = mAbout(); !about.isEmpty())
        text += ' ' + about;
    return text.replace(kUnsafe, "_");
}

QString PictureMenu::askFile()
{
    // With the suffix given here, and not when the file is written, the dialog asks before it replaces that very file.
    const QStringList filters{tr("PNG Picture (*.png)"), tr("SVG Drawing (*.svg)"), tr("PDF Document (*.pdf)")};
    QFileDialog dialog(mpWindow, tr("Save Picture"), Settings::kPictureDir.text(mSession.property), filters.join(";;"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    const auto follow = [&dialog](const QString& filter) { dialog.setDefaultSuffix(filter.section("*.", 1).chopped(1)); };
    connect(&dialog, &QFileDialog::filterSelected, &dialog, follow);
    follow(filters.front());
    dialog.selectFile(name());
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return {};
    Settings::kPictureDir.set(mSession.property, dialog.directory().absolutePath());
    mSession.property.writeXmlFile();
    return dialog.selectedFiles().front();
}

void PictureMenu::save()
{
    Picture picture = mTake(); // before the dialog covers what moves on
    const QString path = askFile();
    picture.setTitle(name());
    if (!path.isEmpty() && !picture.save(path))
        Q_EMIT signalProblem(tr("The picture could not be saved.\n%1").arg(picture.error()));
}

void PictureMenu::print()
{
    Picture picture = mTake();
    picture.setTitle(name());
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageOrientation(QPageLayout::Landscape);
    printer.setDocName(name());
    if (QPrintDialog(&printer, mpWindow).exec() == QDialog::Accepted && !picture.print(printer))
        Q_EMIT signalProblem(tr("The picture could not be printed."));
}

} // namespace ZARN
