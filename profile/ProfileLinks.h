#pragma once

#include "profile/ProfileFindings.h"
#include "profile/ProfileXml.h"

namespace ZARN {

/// Finds in a profile, as one variant reads it, what does not fit together: names that nothing declares or that several bear, pairs
/// of units without a conversion, lists out of order, bits that two parameters claim.
class ProfileLinks {
public:
    ProfileLinks(ProfileFindings& findings, const ProfileXml& reader, std::string variant)
        : mFindings(findings), mReader(reader), mVariant(std::move(variant))
    {
    }

    void check(const QDomElement& root);

private:
    using Named = std::map<QString, QDomElement>;

    [[nodiscard]] std::vector<QDomElement> applied(const QDomElement& parent, const char* tag = "") const;
    void collect(const QDomElement& root);
    void lists(const QDomElement& child);
    void enumeration(const QDomElement& list);
    void thresholds(const QDomElement& list);
    void parameter(const QDomElement& element);
    void reference(const QDomElement& element, const QString& attribute, const Named& before, const Named& all, const QString& kind);
    void units(const QDomElement& element);
    void payload(const QDomElement& element);
    void faultBit(const QDomElement& element);
    /// Warns when the key is taken, and takes it else. @param outcome what the second one does.
    void claim(Named& taken, const QString& key, const QDomElement& element, const QString& attribute, const QString& outcome);

    ProfileFindings& mFindings;
    const ProfileXml& mReader;
    std::string mVariant;
    Named mUnits, mAllEnums, mAllThresholds, mAllMatrices; ///< of the whole file
    Named mEnums, mThresholds, mMatrices;                  ///< read so far
    Named mNames, mKeys, mPayloads, mBits;                 ///< taken by a parameter
};

} // namespace ZARN
