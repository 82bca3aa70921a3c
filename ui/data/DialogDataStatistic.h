#pragma once

#include "project/Session.h"
#include "ui/data/model/DataView.h"

#include <QWidget>

class QTextEdit;

namespace ZARN {

struct RecordFlight;

/// The tow statistic of the selected flight as labelled values. Computes nothing.
class DialogDataStatistic : public QWidget, public DataView {
    Q_OBJECT

public:
    explicit DialogDataStatistic(const Session& session, QWidget* pParent = nullptr);

    void updateProfile() override {}
    void updateRecord(RecordData* pRecord) override;
    void setTime(double /*time*/) override {}

    /// Appends a row to the text that is being built.
    void addLine(const QString& label, const QString& value);

Q_SIGNALS:
    /// The user wants the report of the loaded data.
    void signalReport();

protected:
    bool eventFilter(QObject* pObject, QEvent* pEvent) override;

private:
    void showMenu(const QPoint& point);
    void addFlight(const RecordFlight& flight);

    const Session mSession;
    RecordData* mpRecord = nullptr;
    QString mText;
    QString mPlainText; ///< the same for the clipboard: a line a value, label and value apart by a tabulator
    QTextEdit* mpEdit;
};

} // namespace ZARN
