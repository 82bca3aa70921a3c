#pragma once

#include "profile/ProfileFindings.h"

namespace ZARN {

/// Finds in a parameter of a profile what does not fit the payload, its data type or the program's well-known names.
class ProfileFields {
public:
    explicit ProfileFields(ProfileFindings& findings) : mFindings(findings) {}

    void checkDevice(const QDomElement& device);

private:
    void parameter(const QDomElement& element);
    void bytes(const QDomElement& element, int size);
    void bits(const QDomElement& element, int wordBits);
    void precision(const QDomElement& element);
    void wellKnown(const QDomElement& element);
    void warn(const QDomElement& element, const char* attribute, const QString& text);

    ProfileFindings& mFindings;
};

} // namespace ZARN
