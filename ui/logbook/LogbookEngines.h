#pragma once

#include "ui/logbook/model/LogbookWorker.h"

#include <QWidget>

class QLabel;
class QPushButton;
class QTableWidget;

namespace ZARN {

/// The engines of the logbook, their hours, and the services that they need.
class LogbookEngines : public QWidget {
    Q_OBJECT

public:
    explicit LogbookEngines(LogbookWorker& worker, QWidget* pParent = nullptr);

    /// The engines as they are now; the one that is chosen stays so.
    void setEngines(std::vector<LogbookEngine> engines);
    /// An empty one: none.
    void setEngine(const std::string& engine);

Q_SIGNALS:
    /// A row of the table was chosen.
    void signalEngine(const QString& engine);
    /// What could not be written, and why.
    void signalFailed(const QString& error);

private:
    void createEngineTable();
    void createServiceTable();
    QWidget* createEngineButtons();
    QWidget* createServiceButtons();
    void fillEngines();
    void readServices();
    void fillServices(std::vector<Service> services);
    void update();
    void askAircraft();
    void askHours();
    void askMerge();
    void askSeparate();
    void askService(const Service& service, const QString& hint = {});
    void changeService();
    void noteDone();
    void removeService();
    void edit(const std::function<void(LogbookEditor&)>& work);
    [[nodiscard]] const LogbookEngine* engine() const;
    [[nodiscard]] const Service* service() const;

    LogbookWorker& mWorker;
    std::vector<LogbookEngine> mEngines;
    std::string mEngine;
    std::vector<Service> mServices;
    unsigned mAsked = 0;
    QTableWidget* mpEngines;
    QLabel* mpHours;
    QTableWidget* mpServices;
    QPushButton* mpMerge = nullptr;
    QPushButton* mpSeparate = nullptr;
    std::vector<QPushButton*> mOfEngine;
    std::vector<QPushButton*> mOfService;
};

} // namespace ZARN
