#pragma once

#include <QDialog>

/// The About window: which program this is, and the licences of everything that comes with it.
class DialogAbout : public QDialog {
    Q_OBJECT

public:
    explicit DialogAbout(QWidget* pParent = nullptr);

private:
    QWidget* createHead() const;
    QLayout* createLicences() const;
};
