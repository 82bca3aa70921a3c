#pragma once

#include <QFileDialog>
#include <QStringList>

class QComboBox;

namespace ZARN {

/// Asks for the file of a report: what the report is about, and with the kind of the file its format.
class ReportFileDialog : public QFileDialog {
    Q_OBJECT

public:
    /// What a report can be about.
    struct Part {
        QString title;
        QString name; ///< proposed for the file, without a suffix
    };

    /// @param part the one that is chosen at first
    ReportFileDialog(const QString& title, const QString& folder, std::vector<Part> parts, int part, QWidget* pParent);

    [[nodiscard]] int part() const;

private:
    /// The name follows what is chosen, unless the user has typed another one.
    void propose();
    [[nodiscard]] QString suffix() const;

    const std::vector<Part> mParts;
    QComboBox* mpPart;
    QString mProposed;
};

} // namespace ZARN
