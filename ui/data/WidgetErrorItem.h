#pragma once

#include <QWidget>

/// One bit of an error matrix as a cell: its name, reading upwards, on a ground that tells whether the bit is set and what it means.
class WidgetErrorItem : public QWidget {
    Q_OBJECT

public:
    explicit WidgetErrorItem(QWidget* pParent = nullptr);

    void setText(const QString& text);
    /// @param type as ZARN::EErrorType; cells of type 0 are white and without text
    void setType(int type);
    /// Repaints only when the state changes.
    void setErrorState(bool on);

    /// How high the cell must be for its whole text, and how wide; 0 where none is shown.
    [[nodiscard]] int lengthOfText() const;
    [[nodiscard]] int thicknessOfText() const;
    [[nodiscard]] const QString& text() const { return mText; }
    [[nodiscard]] int type() const { return mType; }
    [[nodiscard]] bool errorState() const { return mErrorState; }
    [[nodiscard]] QColor fill() const;

protected:
    void paintEvent(QPaintEvent* pEvent) override;

private:
    [[nodiscard]] QFont textFont() const;

    QString mText;
    int mType = 0;
    bool mErrorState = false;
};
