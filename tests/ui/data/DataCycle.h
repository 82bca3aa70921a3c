#pragma once

#include "app/Property.h"
#include "project/Project.h"
#include "project/Session.h"
#include "support/CardBuilder.h"
#include "support/ProfileBuilder.h"
#include "support/TestCycle.h"

namespace ZARN::Test {

/// A session of its own over a card of one cycle, from 10 s to the time of the last record.
struct DataCycle : TestCycle {
    /// The file that begins the cycle, on 1.2.2024 at 8:00:10; power-up was at 8:00.
    RecordFileBuilder& records() { return mRecords; }
    /// Writes the card and loads its cycle. @param dated false for a unit that never had the time
    void load(bool dated = true)
    {
        if (dated)
            mRecords.dateTime(QDateTime(QDate(2024, 2, 1), QTime(8, 0, 10), Qt::UTC));
        container.readContainer(card.write());
        container.loadCycle(container.recordCycles().begin()->first, -1);
    }
    RecordData* data() { return &container.recordData(); }

    CardBuilder card;
    RecordFileBuilder& mRecords = card.file("01.CAN");
    Property property{console};
    Project project{console, profile};
    Session session{console, property, profile, container, project};
};

} // namespace ZARN::Test
