#include "ui/live/DialogLive.h"

#include "app/Property.h"
#include "app/Settings.h"
#include "app/gui/FormLayout.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QEvent>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include <algorithm>

namespace ZARN {

namespace {

constexpr int kBitRates[] = {125'000, 250'000, 500'000, 1'000'000};
const QString kUsualPlugin = QStringLiteral("socketcan"); // the system's own
constexpr const char* kExample = "tcp://127.0.0.1:40001/can0"; // of a virtual bus on this machine

QLabel* createText(const QString& text)
{
    auto* pLabel = new QLabel(text);
    pLabel->setWordWrap(true);
    pLabel->setObjectName("quiet");
    return pLabel;
}

} // namespace

DialogLive::DialogLive(const Session& session, QWidget* pParent)
    : QDialog(pParent), mSession(session), mpFields(new QWidget), mpPlugin(new QComboBox), mpInterface(new QComboBox), mpBitRate(new QComboBox),
      mpListenOnly(new QCheckBox(tr("Only where the interface confirms no frames"))), mpConfirming(createText({})), mpFolder(new QLineEdit), mpHours(new QSpinBox), mpProblem(new QLabel), mpConnect(new QPushButton(tr("Connect"))),
      mpDisconnect(new QPushButton(tr("Disconnect")))
{
    setWindowTitle(tr("Live"));
    createRows();
    connect(mpPlugin, &QComboBox::currentTextChanged, this, &DialogLive::slotPlugin);
    connect(mpConnect, &QPushButton::clicked, this, &DialogLive::slotConnect);
    connect(mpDisconnect, &QPushButton::clicked, this, [this] {
        accept();
        Q_EMIT signalDisconnect();
    });
}

void DialogLive::createRows()
{
    mpInterface->setEditable(true);
    mpInterface->setMinimumContentsLength(32);
    mpBitRate->addItem(tr("As it is set in the system"), 0);
    for (const int rate : kBitRates)
        mpBitRate->addItem(tr("%1 kbit/s").arg(rate / 1000), rate);
    mpFolder->setPlaceholderText(tr("Nothing is recorded"));
    mpFolder->setClearButtonEnabled(true);
    mpFolder->setAccessibleName(tr("Record into"));
    mpHours->setRange(Settings::kLiveHours.least, Settings::kLiveHours.most);
    mpProblem->setTextFormat(Qt::PlainText);
    mpProblem->setWordWrap(true);
    auto* pChoose = new QPushButton(tr("Folder ..."));
    connect(pChoose, &QPushButton::clicked, this, &DialogLive::askFolder);
    auto* pFolder = new QHBoxLayout;
    pFolder->addWidget(mpFolder, 1);
    pFolder->addWidget(pChoose);
    auto* pButtons = new QDialogButtonBox(QDialogButtonBox::Close);
    pButtons->addButton(mpConnect, QDialogButtonBox::ActionRole);
    pButtons->addButton(mpDisconnect, QDialogButtonBox::ActionRole);
    connect(pButtons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* pForm = new FormLayout(mpFields);
    pForm->setContentsMargins(0, 0, 0, 0);
    pForm->addRow(tr("Plugin"), mpPlugin);
    pForm->addRow(tr("Interface"), mpInterface);
    pForm->addRow(tr("Bit rate"), mpBitRate);
    pForm->addRow(tr("Listen only"), mpListenOnly);
    pForm->addRow(mpConfirming);
    pForm->addRow(tr("Record into"), pFolder);
    pForm->addRow(tr("Hours kept in memory"), mpHours);
    auto* pLayout = new QVBoxLayout(this);
    pLayout->addWidget(mpFields);
    pLayout->addWidget(createText(tr("The program never sends anything to the bus.")));
    pLayout->addWidget(mpProblem);
    pLayout->addStretch();
    pLayout->addWidget(pButtons);
    setTabOrder(mpHours, mpConnect);
    setTabOrder(mpConnect, mpDisconnect);
    setTabOrder(mpDisconnect, pButtons->button(QDialogButtonBox::Close));
}

void DialogLive::ask(bool isOpen)
{
    mIsOpen = isOpen;
    fill();
    show();
    raise();
    activateWindow();
}

/// Texts of any length are whole.
bool DialogLive::event(QEvent* pEvent)
{
    const bool isTaken = QDialog::event(pEvent);
    if (pEvent->type() == QEvent::LayoutRequest && isVisible()) {
        const int wide = std::max(width(), layout()->totalMinimumSize().width());
        resize(wide, layout()->totalHeightForWidth(wide)); // no higher either: before it has its width the texts take more lines
    }
    return isTaken;
}

void DialogLive::fill()
{
    QString problem; // of what was chosen last, which the user sees
    const LiveWish wish = last(mSession.property, problem);
    mpProblem->clear();
    QStringList plugins = BusAddress::plugins();
    if (const qsizetype place = plugins.indexOf(kUsualPlugin); place > 0)
        plugins.move(place, 0);
    mpPlugin->clear();
    mpPlugin->addItems(plugins);
    mpPlugin->setCurrentText(wish.address.plugin);
    slotPlugin();
    if (!wish.address.interface.isEmpty())
        mpInterface->setCurrentText(wish.address.interface);
    const int place = mpBitRate->findData(wish.bitRate);
    if (place < 0)
        mpBitRate->addItem(tr("%1 kbit/s").arg(wish.bitRate / 1000.0), wish.bitRate);
    mpBitRate->setCurrentIndex(place < 0 ? mpBitRate->count() - 1 : place);
    mpListenOnly->setChecked(wish.isListenOnly);
    mpFolder->setText(QDir::toNativeSeparators(wish.folder));
    mpHours->setValue(Settings::kLiveHours.get(mSession.property));
    mpConnect->setEnabled(!mIsOpen);
    mpDisconnect->setEnabled(mIsOpen);
    mpFields->setEnabled(!mIsOpen); // what is at work is not changed
    (mIsOpen ? mpDisconnect : mpConnect)->setDefault(true);
}

void DialogLive::slotPlugin()
{
    mpInterface->clear();
    mpConfirming->setText(confirmingText());
    if (mIsOpen)
        return; // the plugin is at work
    const QString plugin = mpPlugin->currentText();
    mpInterface->addItems(BusAddress::interfaces(plugin));
    if (BusAddress{plugin, {}}.isVirtual())
        mpInterface->addItem(kExample);
    mpInterface->lineEdit()->setPlaceholderText(mpInterface->count() > 0 ? QString() : tr("None was found; name it, as in can0"));
}

QString DialogLive::confirmingText() const
{
    const BusAddress address{mpPlugin->currentText(), {}};
    if (address.isVirtual())
        return tr("A virtual bus has nothing that confirms frames.");
    if (address.plugin == kUsualPlugin)
        return tr("A CAN controller confirms each frame that it receives, unless the system has set it to listen only "
                  "(ip link set can0 type can listen-only on). With the tick one that confirms is not opened. "
                  "Take it away where the engine unit is alone on its bus.");
    return tr("The plugin %1 does not tell whether its interface confirms frames: this cannot be watched, and is set "
              "with the tools of the interface.").arg(address.plugin);
}

void DialogLive::askFolder()
{
    const QString folder = QFileDialog::getExistingDirectory(this, tr("Folder to record into"), mpFolder->text(),
                                                             QFileDialog::ShowDirsOnly | QFileDialog::DontUseNativeDialog);
    if (!folder.isEmpty())
        mpFolder->setText(QDir::toNativeSeparators(folder));
}

void DialogLive::slotConnect()
{
    LiveWish wish;
    QString problem;
    wish.address = BusAddress::parse(BusAddress{mpPlugin->currentText(), mpInterface->currentText().trimmed()}.text(), problem);
    if (wish.address.interface.isEmpty())
        problem = tr("Name the interface, as in can0.");
    mpProblem->setText(problem);
    if (!problem.isEmpty())
        return;
    wish.bitRate = mpBitRate->currentData().toInt();
    wish.isListenOnly = mpListenOnly->isChecked();
    wish.folder = mpFolder->text().isEmpty() ? QString() : QDir::cleanPath(QDir::fromNativeSeparators(mpFolder->text()));
    Settings::kLiveBus.set(mSession.property, wish.address.text());
    Settings::kLiveBitRate.set(mSession.property, wish.bitRate);
    Settings::kLiveListenOnly.set(mSession.property, wish.isListenOnly);
    Settings::kLiveFolder.set(mSession.property, wish.folder);
    Settings::kLiveHours.set(mSession.property, mpHours->value());
    mSession.property.writeXmlFile();
    accept();
    Q_EMIT signalConnect(wish);
}

LiveWish DialogLive::last(const Property& property, QString& problem)
{
    LiveWish wish;
    problem.clear();
    if (const QString bus = Settings::kLiveBus.text(property); !bus.isEmpty())
        wish.address = BusAddress::parse(bus, problem);
    wish.bitRate = Settings::kLiveBitRate.get(property);
    wish.isListenOnly = Settings::kLiveListenOnly.get(property);
    wish.folder = Settings::kLiveFolder.text(property);
    return wish;
}

} // namespace ZARN
