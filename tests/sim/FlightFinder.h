#pragma once

#include <utility>
#include <vector>

/// Take-off and landing times as the program finds them in a series of ground speeds: both are confirmed by eleven samples, one
/// at 50 or more after 50 was passed, the other at 40 or less.
inline std::vector<std::pair<double, double>> findFlights(const std::vector<std::pair<double, double>>& groundSpeed)
{
    std::vector<std::pair<double, double>> flights;
    enum { eGround, eRolling, eFlying, eLanding } state = eGround;
    int count = 0;
    double takeOff = 0;
    for (const auto& [time, value] : groundSpeed) {
        if (state == eGround && value > 50) {
            state = eRolling;
            count = 0;
        } else if (state == eRolling) {
            if (value < 50) {
                state = eGround;
            } else if (count++ >= 10) {
                takeOff = time;
                state = eFlying;
            }
        } else if (state == eFlying && value < 40) {
            state = eLanding;
            count = 0;
        } else if (state == eLanding) {
            if (value > 40) {
                state = eFlying;
            } else if (count++ >= 10) {
                flights.emplace_back(takeOff, time);
                state = eGround;
            }
        }
    }
    return flights;
}
