#include "ui/main/DialogAbout.h"

#include "app/Revision.h"
#include "app/gui/Heading.h"
#include "app/gui/IconLabel.h"
#include "app/gui/SideList.h"

#include <QDialogButtonBox>
#include <QFile>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QStackedWidget>

namespace {

/// Something that comes with the program, and the text of its licence among the resources.
struct Licence {
    const char* name;
    const char* file;
};

constexpr Licence kLicences[] = {
    {"ZARN", "zarn"},         {"Qt (LGPL 3)", "lgpl-3"}, {"GPL 3", "gpl-3"},     {"CLI11", "cli11"},
    {"FreeType", "freetype"}, {"Lucide", "icons"},       {"B612", "fonts"}, {"Natural Earth", "base-map"},
    {"muParser", "muparser"}, {"SQLite, Thrift, Boost, Zstandard", "store"},
    {"GSHHG", "map-shores"},  {"GeoNames", "map-places"}, {"OurAirports", "map-airfields"},
};

constexpr int kPictureSize = 48;

QString licenceText(const char* file)
{
    QFile resource(QString(":/licences/%1.txt").arg(QLatin1String(file)));
    return resource.open(QIODevice::ReadOnly) ? QString::fromUtf8(resource.readAll()) : QString();
}

} // namespace

DialogAbout::DialogAbout(QWidget* pParent) : QDialog(pParent)
{
    setWindowTitle(tr("About ZARN"));
    auto* pButtons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(pButtons, &QDialogButtonBox::rejected, this, &QDialog::close);
    auto* pLayout = new QVBoxLayout(this);
    pLayout->setSpacing(12);
    pLayout->addWidget(createHead());
    pLayout->addLayout(createLicences(), 1);
    pLayout->addWidget(pButtons);
    resize(720, 560);
}

QWidget* DialogAbout::createHead() const
{
    auto* pPicture = new ZARN::IconLabel("zarn", kPictureSize);
    auto* pName = new ZARN::Heading(QString::fromStdString(ZARN::Revision::getRevisionString()));
    auto* pText = new QLabel(tr("After-flight review of engine recordings.") + "\n" +
                             tr("Compiled %1 with Qt %2, running on Qt %3")
                                 .arg(QString::fromStdString(ZARN::Revision::compileTime()), QT_VERSION_STR, QLatin1String(qVersion())));
    pText->setObjectName("quiet");
    auto* pHead = new QWidget;
    auto* pLayout = new QHBoxLayout(pHead);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->setSpacing(16);
    pLayout->addWidget(pPicture);
    auto* pLines = new QVBoxLayout;
    pLines->addWidget(pName);
    pLines->addWidget(pText);
    pLayout->addLayout(pLines, 1);
    return pHead;
}

QLayout* DialogAbout::createLicences() const
{
    auto* pNames = new ZARN::SideList; // more than fit into a row of tabs
    auto* pTexts = new QStackedWidget;
    pNames->setAccessibleName(tr("Licences"));
    for (const Licence& licence : kLicences) {
        auto* pText = new QPlainTextEdit(licenceText(licence.file));
        pText->setReadOnly(true);
        pText->setTabChangesFocus(true);
        pText->setAccessibleName(QLatin1String(licence.name));
        pTexts->addWidget(pText);
        pNames->addItem(QLatin1String(licence.name));
    }
    connect(pNames, &QListWidget::currentRowChanged, pTexts, &QStackedWidget::setCurrentIndex);
    pNames->setCurrentRow(0);
    auto* pLayout = new QHBoxLayout;
    pLayout->addWidget(pNames);
    pLayout->addWidget(pTexts, 1);
    return pLayout;
}
