#include "ui/main/DialogPreferences.h"

#include "app/Property.h"
#include "app/Settings.h"
#include "app/gui/FormLayout.h"
#include "app/gui/ImageHandler.h"
#include "app/gui/Kernel.h"
#include "app/gui/SideList.h"
#include "app/gui/WheelGuard.h"
#include "profile/ui/ProfileProblem.h"
#include "ui/main/MapOptions.h"

#include <QComboBox>
#include <QEvent>
#include <QFileDialog>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QSpinBox>
#include <QStackedWidget>

#include <algorithm>
#include <utility>

namespace ZARN {

namespace {

constexpr int kListWidth = 150;

} // namespace

DialogPreferences::DialogPreferences(const Session& session, Kernel& kernel, QWidget* pParent, const QString& dataPath)
    : QDialog(pParent), mSession(session), mKernel(kernel), mLocale(Settings::kLocale.text(session.property)),
      mpList(new SideList(kListWidth)), mpPages(new QStackedWidget), mpLanguage(new QComboBox), mpPalette(new QComboBox),
      mpFontSize(new QSpinBox), mpMap(new MapOptions(session, dataPath))
{
    setWindowTitle(tr("Preferences"));
    mpList->setIconSize(QSize(16, 16));
    mpList->setAccessibleName(tr("Pages"));
    connect(mpList, &QListWidget::currentItemChanged, this, &DialogPreferences::slotChangePage);
    addPage(tr("General"), "general", createGeneralPage());
    addPage(tr("Map"), "flight", mpMap);
    addPage(tr("Profile"), "profile", createProfilePage());
    mpList->setCurrentRow(0);

    auto* pOk = new QPushButton(tr("Ok"));
    pOk->setDefault(true);
    connect(pOk, &QPushButton::clicked, this, &DialogPreferences::slotClose);
    auto* pColumns = new QHBoxLayout;
    pColumns->addWidget(mpList);
    pColumns->addWidget(mpPages, 1);
    auto* pLayout = new QVBoxLayout(this);
    pLayout->addLayout(pColumns, 1);
    pLayout->addWidget(pOk, 0, Qt::AlignRight);
    resize(580, 320);
    fillDialog();
    // Connected last: what filling the window sets is no change of the user's.
    connect(mpLanguage, &QComboBox::activated, this, [this](int index) { slotLanguage(mpLanguage->itemData(index).toString()); });
    connect(mpPalette, &QComboBox::activated, this, &DialogPreferences::slotPalette);
    connect(mpFontSize, &QSpinBox::valueChanged, this, &DialogPreferences::slotFont);
    connect(mpFontSize, &QSpinBox::editingFinished, this, &DialogPreferences::slotKeep);
    connect(mpMap, &MapOptions::signalChanged, this, [this] {
        mIsUnsaved = true;
        if (!isVisible())
            slotKeep(); // a field that was being edited when the window was closed
        Q_EMIT signalTilesChanged();
    });
}

DialogPreferences::~DialogPreferences()
{
    slotKeep();
}

QWidget* DialogPreferences::createGeneralPage()
{
    mpLanguage->addItem("Deutsch", "de");
    mpLanguage->addItem("English", "us");
    mpFontSize->setObjectName("fontSize");
    mpFontSize->setRange(Settings::kFontSize.least, Settings::kFontSize.most);
    mpPalette->setObjectName("palette");
    mpPalette->addItems({tr("Light"), tr("Dark"), tr("As the system")}); // in the order of the setting's numbers
    WheelGuard::install(*mpLanguage);
    WheelGuard::install(*mpPalette);
    WheelGuard::install(*mpFontSize);
    auto* pGroup = new QGroupBox(tr("Application"));
    auto* pForm = new FormLayout(pGroup);
    pForm->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    pForm->addRow(tr("Language :"), mpLanguage);
    pForm->addRow(tr("Colours :"), mpPalette);
    pForm->addRow(tr("Font Size :"), mpFontSize);
    auto* pPage = new QWidget;
    auto* pLayout = new QVBoxLayout(pPage);
    pLayout->setContentsMargins(8, 0, 0, 0);
    pLayout->addWidget(pGroup);
    pLayout->addStretch();
    return pPage;
}

QWidget* DialogPreferences::createProfilePage()
{
    auto* pSelect = new QPushButton(tr("Select profile file ..."));
    connect(pSelect, &QPushButton::clicked, this, &DialogPreferences::slotProfileSelect);
    auto* pText = new QLabel(tr("A profile says what the recorded bytes mean. The tool bar offers the installed ones; "
                                "here a profile file from any folder can be used."));
    pText->setWordWrap(true);
    auto* pGroup = new QGroupBox(tr("Profile file"));
    auto* pGroupLayout = new QVBoxLayout(pGroup);
    pGroupLayout->addWidget(pText);
    pGroupLayout->addWidget(pSelect, 0, Qt::AlignLeft);
    auto* pPage = new QWidget;
    auto* pLayout = new QVBoxLayout(pPage);
    pLayout->setContentsMargins(8, 0, 0, 0);
    pLayout->addWidget(pGroup);
    pLayout->addStretch();
    return pPage;
}

void DialogPreferences::addPage(const QString& name, const QString& icon, QWidget* pPage)
{
    mpPages->addWidget(pPage);
    mpList->addItem(new QListWidgetItem(ImageHandler::icon(icon), name));
}

void DialogPreferences::fillDialog()
{
    mpLanguage->setCurrentIndex(mpLanguage->findData(Settings::kLocale.text(mSession.property)));
    mpPalette->setCurrentIndex(Settings::kPalette.get(mSession.property));
    const QSignalBlocker blocker(mpFontSize);
    mpFontSize->setValue(Settings::kFontSize.get(mSession.property));
    mpMap->fill();
}

bool DialogPreferences::event(QEvent* pEvent)
{
    // The map asks the same question, and may have its answer since this window was last looked at.
    if (pEvent->type() == QEvent::Show || pEvent->type() == QEvent::WindowActivate)
        mpMap->fill();
    const bool isHandled = QDialog::event(pEvent);
    // Wrapped texts in larger letters need more height than the layout asks for.
    if (pEvent->type() == QEvent::Show || pEvent->type() == QEvent::LayoutRequest)
        setMinimumHeight(std::max(0, layout()->totalHeightForWidth(width()))); // below 0 while no text is wrapped
    return isHandled;
}

void DialogPreferences::slotLanguage(const QString& locale)
{
    if (locale == Settings::kLocale.text(mSession.property))
        return;
    Settings::kLocale.set(mSession.property, locale);
    mSession.property.writeXmlFile();
    Q_EMIT signalLanguageChanged();
    if (locale == mLocale)
        return; // taken back before any restart
    QMessageBox box(QMessageBox::Information, tr("ZARN Info"), tr("Please restart ZARN to load new language !"), QMessageBox::NoButton,
                    this);
    const QPushButton* pNow = box.addButton(tr("Restart now"), QMessageBox::AcceptRole);
    box.addButton(tr("Restart later: changes will not applied until next restart"), QMessageBox::RejectRole);
    box.exec();
    if (box.clickedButton() == pNow)
        mKernel.restart();
}

void DialogPreferences::slotPalette(int palette)
{
    Settings::kPalette.set(mSession.property, palette);
    mSession.property.writeXmlFile();
    mKernel.applyPalette();
}

void DialogPreferences::slotFont(int size)
{
    mKernel.applyFontSize(size);
    Settings::kFontSize.set(mSession.property, size);
    mIsUnsaved = true;
}

void DialogPreferences::slotKeep()
{
    if (std::exchange(mIsUnsaved, false))
        mSession.property.writeXmlFile();
}

void DialogPreferences::hideEvent(QHideEvent* pEvent)
{
    slotKeep();
    QDialog::hideEvent(pEvent);
}

void DialogPreferences::slotProfileSelect()
{
    const QString start = Settings::kProfile.text(mSession.property);
    const QString file = QFileDialog::getOpenFileName(this, tr("Select Profile File"), start, tr("ZARN Profile (*.xml);;All files (*.*)"),
                                                      nullptr, QFileDialog::DontUseNativeDialog);
    if (file.isEmpty())
        return;
    slotProfilePath(file);
    fillDialog();
}

void DialogPreferences::slotProfilePath(const QString& path)
{
    if (const QString problem = profileProblem(mSession.console, path); !problem.isEmpty()) {
        QMessageBox box(QMessageBox::Warning, tr("ZARN Warning"), tr("Not a valid ZARN profile !") + "\n" + problem, QMessageBox::Ok, this);
        box.setTextFormat(Qt::PlainText); // a path may hold what looks like markup
        box.exec();
        return;
    }
    Settings::kProfile.set(mSession.property, path);
    mSession.property.writeXmlFile();
    Q_EMIT signalProfileFileChanged();
}

void DialogPreferences::slotChangePage(QListWidgetItem* pCurrent, QListWidgetItem* pPrevious)
{
    mpPages->setCurrentIndex(mpList->row(pCurrent ? pCurrent : pPrevious));
}

void DialogPreferences::slotClose()
{
    close();
}

} // namespace ZARN
