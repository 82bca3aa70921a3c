#pragma once

#include "ui/graph/model/GraphData.h"
#include "ui/graph/model/TraceColours.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QFormLayout;
class QLineEdit;
class QPushButton;

namespace ZARN {

class TraceColourRow;

/// The window "Oscilloscope Setup": edits the graph's display settings in place and tells of every edit; what it edits of traces it tells
/// only. The record is not owned and outlives the window.
class DialogGraphSetup : public QDialog {
    Q_OBJECT

public:
    DialogGraphSetup(QWidget* pParent, GraphData& graphData);

    /// Shows the record's present values.
    void updateDialog();
    void showTraces(std::vector<TraceColour> traces);

Q_SIGNALS:
    void signalChanged();
    /// An edit is about to be told.
    void signalChanging();
    /// The user chose a colour for a trace; an invalid one for that which the trace has by itself.
    void signalTraceColour(int slot, const QColor& colour);

protected:
    /// Asks for a colour; invalid when the user gave up.
    virtual QColor askColour(const QColor& present);
    void showEvent(QShowEvent* pEvent) override;

private:
    void slotBackgroundColor();
    void slotGridOn(int state);
    void slotGridColor();
    void slotLabelColor();
    void slotLabelBackColor();
    void slotCursorOn(int state);
    void slotCursorMode(int mode);
    void slotLegendOn(int state);
    void slotAutoscaleOn(int state);
    void slotSharedScale(int state);
    void slotYmin(const QString& text);
    void slotYmax(const QString& text);
    void slotClickMovesCursor(int state);
    void slotTraceColor();
    void slotTraceDefault();
    void slotClose();

    void createControls();
    void connectControls();
    void addRow(QFormLayout* pForm, const QString& label, const QList<QWidget*>& controls);
    QPushButton* colourButton(const QString& name, const QString& accessible);
    void chooseColour(QString& name);
    void showColour(QPushButton* pButton, const QString& name);
    void showNumber(QLineEdit* pField, double value);
    template <typename Value> void setScale(Value ValueScale::*pMember, const Value& value);
    void changed();

    GraphData& mData;
    std::vector<TraceColour> mTraces;
    QPushButton* mpBackground = nullptr;
    QPushButton* mpGridColour = nullptr;
    QPushButton* mpLabel = nullptr;
    QPushButton* mpLabelBackground = nullptr;
    QCheckBox* mpGrid = nullptr;
    QCheckBox* mpCursor = nullptr;
    QCheckBox* mpLegend = nullptr;
    QCheckBox* mpAutoscale = nullptr;
    QCheckBox* mpSharedScale = nullptr;
    QCheckBox* mpClickMovesCursor = nullptr;
    QComboBox* mpCursorMode = nullptr;
    TraceColourRow* mpTraces = nullptr;
    QLineEdit* mpYmin = nullptr;
    QLineEdit* mpYmax = nullptr;
    QPushButton* mpClose = nullptr;
};

} // namespace ZARN
