#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QProgressDialog>
#include <QTest>
#include <QTimer>

#include <functional>

/// Answers the next modal window, once it stands; what it was is kept for the test.
class Answer : public QObject {
public:
    /// Progress that comes first goes by itself, unless it is what is to be answered.
    explicit Answer(std::function<void(QWidget*)> answer, bool answersProgress = false) : mAnswer(std::move(answer))
    {
        connect(&mTimer, &QTimer::timeout, this, [this, answersProgress] {
            QWidget* pModal = QApplication::activeModalWidget();
            if (!pModal || !pModal->isVisible() || (!answersProgress && qobject_cast<QProgressDialog*>(pModal)))
                return;
            mTimer.stop();
            title = pModal->windowTitle();
            if (const auto* pBox = qobject_cast<QMessageBox*>(pModal))
                text = pBox->text();
            mAnswer(pModal);
        });
        mTimer.start(20);
    }

    static void close(QWidget* pModal) { pModal->close(); }
    /// Presses the button with that text.
    static std::function<void(QWidget*)> press(const QString& button)
    {
        return [button](QWidget* pModal) {
            for (QAbstractButton* pButton : pModal->findChildren<QAbstractButton*>()) {
                if (pButton->text() == button)
                    return pButton->click();
            }
            pModal->close();
        };
    }

    /// Chooses a file in the toolkit's own dialog. Typed whole, as a person does: what the dialog still selects while it reads the folder
    /// does not count then.
    static void choose(QWidget* pModal, const QString& path)
    {
        auto* pName = pModal->findChild<QLineEdit*>("fileNameEdit");
        QVERIFY(pName);
        pName->setText(path);
        QMetaObject::invokeMethod(pModal, "accept");
    }

    QString title; ///< empty while no window has come
    QString text;

private:
    std::function<void(QWidget*)> mAnswer;
    QTimer mTimer;
};
