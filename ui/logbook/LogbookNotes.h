#pragma once

#include "ui/logbook/model/LogbookWorker.h"

#include <QWidget>

class QLabel;
class QPushButton;
class QTableWidget;

namespace ZARN {

/// All notes of a store, or those of an engine.
class LogbookNotes : public QWidget {
    Q_OBJECT

public:
    explicit LogbookNotes(LogbookWorker& worker, QWidget* pParent = nullptr);

    /// An empty one: all engines.
    void setEngine(const std::string& engine);
    void reload();
    [[nodiscard]] const std::vector<LogbookNote>& notes() const { return mNotes; }

Q_SIGNALS:
    /// The user wants to see the moment of a note.
    void signalOpen(const QString& cycleId, double time);
    /// The user wants them as a file.
    void signalExport();
    /// What could not be written, and why.
    void signalFailed(const QString& error);

private:
    void fill(std::vector<LogbookNote> notes);
    void update();
    void change(bool isRemoved);
    /// Whether the user wants that note gone.
    bool isSure(const QString& text);
    [[nodiscard]] const LogbookNote* chosen() const;

    LogbookWorker& mWorker;
    std::string mEngine;
    std::vector<LogbookNote> mNotes;
    QTableWidget* mpTable;
    QLabel* mpHint;
    std::vector<QPushButton*> mOfNote;
    QPushButton* mpExport;
};

} // namespace ZARN
