#pragma once

#include <QDialog>

class QLineEdit;
class QListWidget;
class QTextBrowser;
class QUrl;

/// The help window: the manual in the user's language, with its chapters beside it, and the pages that it refers to.
class DialogHelp : public QDialog {
    Q_OBJECT

public:
    /// @param locale language as the settings name it; without a manual in it the English one is shown.
    explicit DialogHelp(const QString& locale, QWidget* pParent = nullptr);

private Q_SLOTS:
    void slotSourceChanged();
    void slotChapter(int row);
    void slotSearch();

private:
    QWidget* createHead();

    QListWidget* mpChapters;
    QTextBrowser* mpBrowser;
    QLineEdit* mpSearch;
};
