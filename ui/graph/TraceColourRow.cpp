#include "ui/graph/TraceColourRow.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QSignalBlocker>

#include <algorithm>

namespace ZARN {

TraceColourRow::TraceColourRow(QWidget* pParent)
    : QWidget(pParent), mpTrace(new QComboBox), mpSelect(new QPushButton(tr("Select"))), mpDefault(new QPushButton(tr("Default")))
{
    mpTrace->setObjectName("trace");
    mpTrace->setAccessibleName(tr("Trace whose color is set"));
    mpTrace->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    mpSelect->setObjectName("traceColour");
    mpSelect->setAccessibleName(tr("Color of the trace"));
    mpDefault->setObjectName("traceDefault");
    mpDefault->setToolTip(tr("Back to the color that the trace has by itself"));
    auto* pRow = new QHBoxLayout(this);
    pRow->setContentsMargins(0, 0, 0, 0);
    pRow->addWidget(mpTrace);
    for (QPushButton* pButton : {mpSelect, mpDefault}) {
        pButton->setAutoDefault(false);
        pRow->addWidget(pButton);
    }
    connect(mpTrace, &QComboBox::currentIndexChanged, this, &TraceColourRow::showState);
    connect(mpSelect, &QPushButton::clicked, this, &TraceColourRow::signalSelect);
    connect(mpDefault, &QPushButton::clicked, this, &TraceColourRow::signalDefault);
}

void TraceColourRow::setTraces(const std::vector<TraceColour>& traces)
{
    const QSignalBlocker blocker(mpTrace);
    const QString chosen = mpTrace->currentText();
    const int before = current();
    mpTrace->clear();
    mIsOwn.clear();
    for (const TraceColour& trace : traces) {
        QPixmap swatch(16, 16);
        swatch.fill(trace.colour);
        mpTrace->addItem(swatch, trace.name);
        mIsOwn.push_back(trace.isOwn);
    }
    const bool isThere = before >= 0 && mpTrace->itemText(before) == chosen; // names may occur twice
    mpTrace->setCurrentIndex(isThere ? before : std::max(mpTrace->findText(chosen), traces.empty() ? -1 : 0));
    showState();
}

int TraceColourRow::current() const
{
    return mpTrace->currentIndex();
}

void TraceColourRow::showState()
{
    const int trace = current();
    mpTrace->setEnabled(trace >= 0);
    mpSelect->setEnabled(trace >= 0);
    mpDefault->setEnabled(trace >= 0 && mIsOwn[static_cast<std::size_t>(trace)]);
}

} // namespace ZARN
