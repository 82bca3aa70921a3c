#pragma once

#include <QDialog>

#include <optional>

class QPlainTextEdit;

namespace ZARN {

/// Asks for the text of a note, of several lines. Tab leaves the text and Ctrl+Return accepts it, so that keys alone do.
class NoteDialog : public QDialog {
    Q_OBJECT

public:
    /// @return none when the user cancels it
    [[nodiscard]] static std::optional<QString> ask(QWidget* pParent, const QString& label, const QString& text);

private:
    NoteDialog(const QString& label, const QString& text, QWidget* pParent);

    QPlainTextEdit* mpText;
};

} // namespace ZARN
