#include "profile/ui/DialogProfileInfo.h"

#include "app/Console.h"
#include "app/RegularFile.h"
#include "app/SafeFile.h"
#include "app/UserFile.h"
#include "app/XmlGuard.h"
#include "profile/Profile.h"
#include "profile/ProfileCatalogue.h"
#include "profile/ui/ProfileProblem.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QTextEdit>
#include <QVBoxLayout>

#include <algorithm>

namespace {

/// Text of a file as text in the markup of a rich text field.
QString escaped(const std::string& text)
{
    return QString::fromStdString(text).toHtmlEscaped();
}

QString tableRow(const QString& label, const std::string& value)
{
    return "<tr><td>" + label + "</td><td style=\"padding-left: 8px\"><b>" + escaped(value) + "</b></td></tr>";
}

/// Puts a copy of the file in the target's place; a failure leaves the old one, and an old one that cannot be read is put aside.
/// @param aside gets the name that the old one was given, or is left empty.
bool copyProfile(const ZARN::Console& console, const QString& file, const QString& target, QString& aside)
{
    const auto content = ZARN::readRegularFile(QFile::encodeName(file).toStdString(), ZARN::XmlGuard::maxFileSize);
    if (!content || !QDir().mkpath(QFileInfo(target).absolutePath()))
        return false;
    if (QFileInfo(target).isFile() && !ZARN::profileProblem(console, target).isEmpty()) {
        aside = ZARN::UserFile::putAside(target, "damaged");
        if (aside.isEmpty())
            return false;
    }
    ZARN::SafeFile copy(QFile::encodeName(target).toStdString());
    return copy.open() && copy.write(*content) && copy.commit();
}

} // namespace

DialogProfileInfo::DialogProfileInfo(const ZARN::Session& session, const ZARN::ProfileCatalogue& catalogue, QWidget* pParent)
    : QDialog(pParent), mSession(session), mCatalogue(catalogue), mpText(new QTextEdit)
{
    setWindowTitle(tr("Profile Information"));
    mpText->setObjectName("profileInfo");
    mpText->setReadOnly(true);
    mpText->setTabChangesFocus(true);
    mpText->setAccessibleName(tr("Profile Information"));
    auto* pLink = new QLabel(tr("<a href=\"Install\">Install New Profile</a>"));
    pLink->setObjectName("link");
    pLink->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    auto* pButtons = new QDialogButtonBox(QDialogButtonBox::Close);
    auto* pLayout = new QVBoxLayout(this);
    pLayout->addWidget(mpText);
    pLayout->addWidget(pLink);
    pLayout->addWidget(pButtons);
    connect(pLink, &QLabel::linkActivated, this, &DialogProfileInfo::slotLink);
    connect(pButtons, &QDialogButtonBox::rejected, this, &DialogProfileInfo::slotClose);
    resize(480, 320);
    fillProfileInfo();
}

void DialogProfileInfo::setProfileFile(const QString& path, bool isChosenFile)
{
    mProfileFile = path;
    mIsChosenFile = isChosenFile;
    if (!path.isEmpty())
        mSession.profile.loadVariants(path);
}

QString DialogProfileInfo::profileInfo() const
{
    const ZARN::ProfileModel& model = mSession.profile.model();
    QString text = "<table>";
    text += tableRow(tr("Profile Name:"), model.name);
    text += tableRow(tr("Profile Version:"), model.version);
    text += tableRow(tr("Profile Id:"), model.profileId);
    text += tableRow(tr("Profile Comment:"), model.comment);
    text += "</table>" + tr("Variants: ") + "<br>";
    for (const ZARN::ProfileVariant& variant : mSession.profile.variants())
        text += "-  <b>" + escaped(variant.name) + "</b><br>";
    return text;
}

void DialogProfileInfo::fillProfileInfo()
{
    mpText->setHtml(profileInfo());
}

void DialogProfileInfo::showEvent(QShowEvent* pEvent)
{
    fillProfileInfo();
    QDialog::showEvent(pEvent);
}

void DialogProfileInfo::slotClose()
{
    close();
}

void DialogProfileInfo::slotLink(const QString& link)
{
    if (link != "Install")
        return;
    const QString file = askProfileFile();
    if (!file.isEmpty())
        install(file);
}

void DialogProfileInfo::install(const QString& file)
{
    const QString target = mCatalogue.installPath(mIsChosenFile ? QString() : mProfileFile, file);
    if (!mSession.profile.loadProfile(file)) {
        report(QMessageBox::Information, tr("ZARN Warning"), tr("Not a valid ZARN profile !") + "\n" + ZARN::profileProblem(mSession.console, file));
        return;
    }
    mSession.console.print("Copy profile to <%s>\n", target.toUtf8().constData());
    QString aside;
    const bool isCopied = copyProfile(mSession.console, file, target, aside);
    const QString kept = aside.isEmpty() ? QString() : "\n" + tr("The old file could not be read and is kept as:\n%1").arg(aside);
    if (!isCopied) {
        report(QMessageBox::Warning, tr("ZARN Info"), tr("Profile Installation failed !") + kept);
        fillProfileInfo();
        return;
    }
    mProfileFile = target;
    mIsChosenFile = false;
    report(QMessageBox::Information, tr("ZARN Info"), tr("New profile installed !") + kept);
    adoptVariants(target);
    fillProfileInfo();
    Q_EMIT signalProfileChanged();
}

void DialogProfileInfo::adoptVariants(const QString& file)
{
    ZARN::Profile& profile = mSession.profile;
    const std::vector<ZARN::ProfileVariant>& variants = profile.loadVariants(file);
    if (!variants.empty() && std::ranges::find(variants, profile.currentVariant(), &ZARN::ProfileVariant::name) == variants.end())
        profile.setCurrentVariant(variants.front().name);
}

QString DialogProfileInfo::askProfileFile()
{
    return QFileDialog::getOpenFileName(this, tr("Select Profile File"), {}, tr("Profile File (*.xml);;All Files (* *.*)"));
}

void DialogProfileInfo::report(QMessageBox::Icon icon, const QString& title, const QString& text)
{
    QMessageBox box(icon, title, text, QMessageBox::NoButton, this);
    box.setTextFormat(Qt::PlainText);
    box.addButton(tr("Ok"), QMessageBox::AcceptRole);
    showMessage(box);
}

void DialogProfileInfo::showMessage(QMessageBox& box)
{
    box.exec();
}
