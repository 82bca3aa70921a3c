#pragma once

#include <QDialog>

/// The help window: the manual in the language of the program.
class DialogHelp : public QDialog {
    Q_OBJECT

public:
    /// @param locale suffix of the translation, for instance "de"; what has no manual gets the English one.
    explicit DialogHelp(const QString& locale, QWidget* pParent = nullptr);
};
