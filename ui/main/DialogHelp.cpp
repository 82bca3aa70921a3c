#include "ui/main/DialogHelp.h"

#include <QDialogButtonBox>
#include <QFile>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace {

QString manualText(const QString& locale)
{
    for (const QString& language : {locale, QString("en")}) {
        QFile file(":/manual/" + language + ".md");
        if (file.open(QIODevice::ReadOnly))
            return QString::fromUtf8(file.readAll());
    }
    return {};
}

} // namespace

DialogHelp::DialogHelp(const QString& locale, QWidget* pParent) : QDialog(pParent)
{
    setWindowTitle(tr("ZARN Help"));
    auto* pBrowser = new QTextBrowser;
    pBrowser->setObjectName("manual");
    pBrowser->document()->setDocumentMargin(18);
    pBrowser->setMarkdown(manualText(locale));
    pBrowser->setOpenExternalLinks(true);
    auto* pButtons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(pButtons, &QDialogButtonBox::rejected, this, &QDialog::close);
    auto* pLayout = new QVBoxLayout(this);
    pLayout->addWidget(pBrowser, 1);
    pLayout->addWidget(pButtons);
    resize(720, 640);
}
