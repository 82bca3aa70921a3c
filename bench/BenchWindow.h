#pragma once

#include "app/Console.h"
#include "app/Progress.h"
#include "app/Property.h"
#include "bench/BenchApplication.h"
#include "card/CardContainer.h"
#include "profile/Profile.h"
#include "project/Project.h"
#include "project/RecordSession.h"
#include "sim/DemoCard.h"
#include "ui/data/DataViewList.h"
#include "ui/data/DialogData.h"

#include <QTemporaryDir>

#include <memory>

namespace ZARN {

/// The data area of the program with all of its views, over a cycle of a demo card, with sixteen parameters shown.
struct BenchWindow {
    BenchWindow(double hours, unsigned cycle, const char* variant = "")
        : profile(console), container(console, profile, nullProgress()), property(console), project(console, profile), record(container)
    {
        loadProfile(variant);
        std::size_t shown = 0;
        for (const ProfileDevice& device : profile.data()) {
            for (const ProfileParameter& parameter : device.parameters) {
                if (shown < kShownParameters && ++shown > 0)
                    profile.setSelected(parameter.name, true);
            }
        }
        DemoCardOptions options;
        options.hours = hours;
        std::string error;
        DemoCard().write((folder.path() + "/card").toStdString(), options, error);
        container.readContainer(folder.path() + "/card");
        container.loadCycle(cycle, -1);
        views = DataViewList::create({console, property, profile, container, project}, folder.path());
        pArea = std::make_unique<DialogData>(record, views, false);
        pArea->resize(1500, 900);
        pArea->QWidget::show();
    }
    void loadProfile(const char* variant) { profile.loadProfile(QString(ZARN_SOURCE_DIR "/resources/profiles/915/Profile.xml"), variant); }

    static constexpr std::size_t kShownParameters = 16;

    QTemporaryDir folder;
    Console console{[](std::string_view) {}, [](std::string_view) {}};
    Profile profile;
    CardContainer container;
    Property property;
    Project project;
    RecordSession record;
    DataViewList views;
    std::unique_ptr<DialogData> pArea;
};

} // namespace ZARN
