#pragma once

#include "app/XmlReader.h"
#include "profile/ProfileFindings.h"

namespace ZARN {

/// Tells what is wrong with a profile file: why it cannot be used, or else whatever in it is read otherwise than its author may have
/// meant. Changes nothing.
class ProfileCheck {
public:
    static constexpr int kMostVariants = 100; ///< each is a pass over the file

    /// What keeps the file from being used; nothing when it can be.
    static std::optional<ProfileProblem> refusal(const QString& path);
    /// Every problem in the order of the text; none when the file is good. Of a file that cannot be used, the reason alone.
    static std::vector<ProfileProblem> problems(const QString& path);
    /// The sentence with the place before it.
    static QString text(const ProfileProblem& problem);

private:
    static std::optional<ProfileProblem> read(const QString& path, XmlSource& source);
};

} // namespace ZARN
