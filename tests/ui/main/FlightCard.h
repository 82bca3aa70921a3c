#pragma once

#include "support/CardBuilder.h"
#include "support/ProfileBuilder.h"
#include "support/TestCycle.h"

namespace ZARN::Test {

/// A card with three cycles: one on 1.2.2024 with two flights, one on the same day, and one of a unit without a clock.
struct FlightCard : TestCycle {
    FlightCard()
    {
        ProfileBuilder().device("Airframe").parameter("Ground", kGround, "FLOAT", {{"zarnDataType", "GroundSpeed"}}).load(profile);
        // A file without a date begins a cycle; it gets its date from the dated file that follows it.
        card.file("01.CAN").addFloat(kGround, 0.0, 0.0F).addFloat(kGround, 30.0, 0.0F);
        RecordFileBuilder& flights = card.file("02.CAN");
        flights.dateTime(at(8, 0, 30));
        for (int second = 31; second < 400; ++second)
            flights.addFloat(kGround, second, second % 200 >= 100 ? 60.0F : 20.0F);
        card.file("03.CAN").addFloat(kGround, 0.0, 0.0F).addFloat(kGround, 10.0, 0.0F);
        card.file("04.CAN").dateTime(at(9, 5, 10)).addFloat(kGround, 10.0, 0.0F).addFloat(kGround, 3661.0, 0.0F);
        card.file("05.CAN").serial(4294967295U).texts({"SW<b>A", "ECU\n1", "E%1", "T&T", "", "2.1"}).addFloat(kGround, 2.5, 0.0F);
        container.readContainer(card.write());
    }
    static QDateTime at(int hour, int minute, int second) { return {QDate(2024, 2, 1), QTime(hour, minute, second), Qt::UTC}; }

    static constexpr int kGround = 320;
    CardBuilder card;
};

} // namespace ZARN::Test
