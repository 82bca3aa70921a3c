#include "ui/main/LogbookBar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace ZARN {

LogbookBar::LogbookBar(QWidget* pParent) : QFrame(pParent)
{
    setObjectName("question");
    auto* pText = new QLabel(tr("Keep a logbook of the cards that you open?"));
    pText->setWordWrap(true);
    pText->setToolTip(tr("Flights, engine hours and trends, in a file on this computer. Nothing is sent anywhere."));
    setAccessibleName(pText->text());
    auto* pRow = new QHBoxLayout(this);
    pRow->addWidget(pText, 1);
    for (const bool isYes : {true, false}) {
        auto* pButton = new QPushButton(isYes ? tr("Yes") : tr("No"));
        pButton->setAccessibleDescription(pText->text());
        connect(pButton, &QPushButton::clicked, this, [this, isYes] { Q_EMIT signalAnswer(isYes); });
        pRow->addWidget(pButton);
    }
}

} // namespace ZARN
