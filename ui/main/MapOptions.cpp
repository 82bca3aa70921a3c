#include "ui/main/MapOptions.h"

#include "app/Property.h"
#include "app/Settings.h"
#include "app/gui/FormLayout.h"
#include "app/gui/WheelGuard.h"
#include "openstreet/core/LocalTiles.h"
#include "openstreet/core/TileDisk.h"
#include "openstreet/core/TileServer.h"
#include "ui/map/model/TileConsent.h"
#include "ui/map/model/TileFolder.h"

#include <QCheckBox>
#include <QDir>
#include <QFileDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSpinBox>

namespace ZARN {

namespace {

OpenStreet::TileServer tileServer(const Property& property)
{
    return OpenStreet::TileServer(Settings::kTileServer.text(property));
}

QLabel* wrapped()
{
    auto* pLabel = new QLabel;
    pLabel->setTextFormat(Qt::PlainText);
    pLabel->setWordWrap(true);
    return pLabel;
}

QSpinBox* box(const NumberSetting& setting, const QString& suffix)
{
    auto* pBox = new QSpinBox;
    pBox->setRange(setting.least, setting.most);
    pBox->setSuffix(suffix);
    pBox->setKeyboardTracking(false);
    WheelGuard::install(*pBox);
    return pBox;
}

/// Why nothing can be loaded from there; empty for an address of tiles, for the beginning of one, and for none.
QString addressProblem(const QString& address)
{
    const OpenStreet::TileServer server(address);
    const QString host = server.url({}).host();
    const bool isWhole = address.contains('{');
    if (server.isValid() && (isWhole || address.isEmpty() || host.contains('.') || host == QStringLiteral("localhost")))
        return {};
    const bool isWeb = server.address().startsWith(QStringLiteral("http"));
    return isWhole && isWeb
               ? MapOptions::tr("its path needs {z}, {x} and {y}, as in https://tiles.example.org/{z}/{x}/{y}.png")
               : MapOptions::tr("it names no server that is asked by https or http, as https://tiles.example.org/{z}/{x}/{y}.png does");
}

} // namespace

MapOptions::MapOptions(const Session& session, const QString& dataPath, QWidget* pParent)
    : QWidget(pParent), mSession(session), mFormerTiles(dataPath.isEmpty() ? QString() : formerTileFolder(dataPath)),
      mpTiles(new QCheckBox(tr("Load map tiles from the network"))), mpServerText(wrapped()), mpServer(new QLineEdit),
      mpAttribution(new QLineEdit), mpOffline(new QCheckBox(tr("Offline: ask no server, show what is kept"))), mpPath(wrapped()),
      mpZoom(box(Settings::kMapHighestZoom, {})), mpSize(box(Settings::kMapCacheSize, tr(" MiB"))), mpUsed(wrapped())
{
    mpTiles->setObjectName("tiles");
    mpServerText->setObjectName("tileServer");
    mpServer->setObjectName("tileAddress");
    mpServer->setPlaceholderText(OpenStreet::TileServer().address());
    mpAttribution->setObjectName("tileAttribution");
    mpOffline->setObjectName("tilesOffline");
    mpPath->setObjectName("tilePath");
    auto* pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(8, 0, 0, 0);
    pLayout->addWidget(createNetwork());
    pLayout->addWidget(createLocal());
    pLayout->addWidget(createKept());
    pLayout->addStretch();
    fill();
    connectFields();
}

QWidget* MapOptions::createNetwork()
{
    auto* pGroup = new QGroupBox(tr("Map tiles from a server"));
    auto* pForm = new FormLayout(pGroup);
    pForm->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    pForm->addRow(mpTiles);
    pForm->addRow(mpServerText);
    pForm->addRow(tr("Server :"), mpServer);
    pForm->addRow(tr("Made by :"), mpAttribution);
    pForm->addRow(tr("Highest zoom :"), mpZoom);
    pForm->addRow(mpOffline);
    mpAttribution->setToolTip(tr("Shown on the map beside the name of the server"));
    return pGroup;
}

QWidget* MapOptions::createLocal()
{
    auto* pGroup = new QGroupBox(tr("Map tiles of this computer"));
    auto* pArchive = new QPushButton(tr("Archive ..."));
    auto* pFolder = new QPushButton(tr("Folder ..."));
    auto* pNone = new QPushButton(tr("None"));
    connect(pArchive, &QPushButton::clicked, this, [this] {
        setPath(QFileDialog::getOpenFileName(this, tr("Archive of map tiles"), Settings::kMapTilePath.text(mSession.property),
                                             tr("Map tiles (*.mbtiles);;All files (*.*)"), nullptr, QFileDialog::DontUseNativeDialog));
    });
    connect(pFolder, &QPushButton::clicked, this, [this] {
        setPath(QFileDialog::getExistingDirectory(this, tr("Folder of map tiles"), Settings::kMapTilePath.text(mSession.property),
                                                  QFileDialog::ShowDirsOnly | QFileDialog::DontUseNativeDialog));
    });
    connect(pNone, &QPushButton::clicked, this, [this] {
        Settings::kMapTilePath.set(mSession.property, QString());
        keep();
    });
    auto* pButtons = new QHBoxLayout;
    for (QPushButton* pButton : {pArchive, pFolder, pNone})
        pButtons->addWidget(pButton);
    pButtons->addStretch();
    auto* pLayout = new QVBoxLayout(pGroup);
    pLayout->addWidget(mpPath);
    pLayout->addLayout(pButtons);
    return pGroup;
}

QWidget* MapOptions::createKept()
{
    auto* pGroup = new QGroupBox(tr("Map tiles that are kept"));
    auto* pEmpty = new QPushButton(tr("Remove all"));
    pEmpty->setObjectName("tilesEmpty");
    connect(pEmpty, &QPushButton::clicked, this, &MapOptions::empty);
    auto* pRow = new QHBoxLayout;
    pRow->addWidget(mpUsed, 1);
    pRow->addWidget(pEmpty);
    auto* pForm = new FormLayout(pGroup);
    mpSize->setObjectName("tilesSize");
    pForm->addRow(tr("At most :"), mpSize);
    pForm->addRow(pRow);
    return pGroup;
}

void MapOptions::connectFields()
{
    connect(mpTiles, &QCheckBox::clicked, this, &MapOptions::slotTiles);
    connect(mpServer, &QLineEdit::editingFinished, this, &MapOptions::slotServer);
    connect(mpAttribution, &QLineEdit::editingFinished, this, [this] { keepText(*mpAttribution, Settings::kMapAttribution); });
    connect(mpOffline, &QCheckBox::clicked, this, [this](bool isOn) {
        Settings::kMapOffline.set(mSession.property, isOn);
        keep();
    });
    for (QSpinBox* pBox : {mpZoom, mpSize})
        connect(pBox, &QSpinBox::editingFinished, this, &MapOptions::keepNumbers);
}

/// Not with each step: that would be a walk through all tiles for each.
void MapOptions::keepNumbers()
{
    bool isChanged = false;
    for (const auto& [pBox, setting] : {std::pair(mpZoom, Settings::kMapHighestZoom), std::pair(mpSize, Settings::kMapCacheSize)}) {
        isChanged |= pBox->value() != setting.get(mSession.property);
        setting.set(mSession.property, pBox->value());
    }
    if (isChanged)
        keep();
}

void MapOptions::keepText(const QLineEdit& line, const TextSetting& setting)
{
    if (line.text().trimmed() == setting.text(mSession.property))
        return;
    setting.set(mSession.property, line.text().trimmed());
    keep();
}

/// An address that cannot be one stays in the field, to be mended; the one before is in force.
void MapOptions::slotServer()
{
    const QString problem = addressProblem(mpServer->text().trimmed());
    if (problem.isEmpty() && mpServer->text().trimmed() == Settings::kTileServer.text(mSession.property))
        return fill();
    if (problem.isEmpty())
        return keepText(*mpServer, Settings::kTileServer);
    mpServerText->setText(tr("\"Server\" was not taken over: %1").arg(problem));
}

void MapOptions::fill()
{
    const Property& property = mSession.property;
    const OpenStreet::TileServer server = tileServer(property);
    mpTiles->setEnabled(server.isValid());
    mpTiles->setChecked(server.isValid() && TileConsent(mSession.property).answer(server.address()) == TileConsent::eYes);
    mpServerText->setText(server.isValid() ? tr("Server: %1. It learns which area is looked at.").arg(server.name())
                                           : tr("The entry in \"Server\" is no address of map tiles."));
    mpServer->setText(Settings::kTileServer.text(property));
    mpAttribution->setText(Settings::kMapAttribution.text(property));
    mpOffline->setChecked(Settings::kMapOffline.get(property));
    const QString path = Settings::kMapTilePath.text(property);
    mpPath->setText(path.isEmpty() ? tr("None: an archive (MBTiles) or a folder ZOOM/X/Y.png can take the place of the server.")
                                   : QDir::toNativeSeparators(path));
    for (const auto& [pBox, setting] : {std::pair(mpZoom, Settings::kMapHighestZoom), std::pair(mpSize, Settings::kMapCacheSize)}) {
        const QSignalBlocker blocker(pBox);
        pBox->setValue(setting.get(property));
    }
    if (isVisible())
        fillUsed();
}

/// Walks through all that is kept, so not before it is seen.
void MapOptions::fillUsed()
{
    qint64 size = 0;
    for (const QString& folder : {tileFolder(), mFormerTiles}) {
        OpenStreet::TileDisk disk;
        disk.setFolder(folder);
        size += disk.size();
    }
    mpUsed->setText(tr("%1 are kept.").arg(locale().formattedDataSize(size)));
}

void MapOptions::showEvent(QShowEvent* pEvent)
{
    QWidget::showEvent(pEvent);
    fillUsed();
}

void MapOptions::hideEvent(QHideEvent* pEvent)
{
    keepNumbers(); // a window that is closed leaves no field
    QWidget::hideEvent(pEvent);
}

void MapOptions::keep()
{
    fill();
    Q_EMIT signalChanged();
}

void MapOptions::slotTiles(bool isAllowed)
{
    TileConsent(mSession.property).set(tileServer(mSession.property).address(), isAllowed);
    keep();
}

/// What cannot be shown is said, and changes nothing.
void MapOptions::setPath(const QString& path)
{
    QString problem;
    if (path.isEmpty())
        return;
    if (!OpenStreet::LocalTiles::open(path, &problem)) {
        QMessageBox box(QMessageBox::Warning, tr("ZARN Warning"), tr("These map tiles cannot be shown.") + '\n' + problem, QMessageBox::Ok,
                        this);
        box.setTextFormat(Qt::PlainText);
        box.exec();
        return;
    }
    Settings::kMapTilePath.set(mSession.property, path);
    keep();
}

void MapOptions::empty()
{
    for (const QString& folder : {tileFolder(), mFormerTiles}) {
        OpenStreet::TileDisk disk;
        disk.setFolder(folder);
        disk.clear();
    }
    keep();
}

} // namespace ZARN
