#pragma once

namespace ZARN {

class CardContainer;
class Console;
class Profile;
class Project;
class Property;

/// What windows, exports and commands work on. The desktop program fills it from the single instances, tests and the batch program
/// from objects of their own, so that nothing reads the user's settings by accident and two cards can be open at once. Owns nothing.
struct Session {
    const Console& console;
    Property& property;
    Profile& profile;
    CardContainer& container;
    Project& project;
};

} // namespace ZARN
