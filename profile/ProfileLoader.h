#pragma once

#include "profile/ProfileModel.h"
#include "profile/ProfileXml.h"

#include <memory>

namespace ZARN {

/// Builds the model of a profile document for one variant. Used once for one load.
class ProfileLoader {
public:
    ProfileLoader(const ProfileXml& xml, const std::string& variant) : mXml(xml), mVariant(variant) {}

    [[nodiscard]] std::shared_ptr<const ProfileModel> load(const QDomElement& root);

private:
    /// The parameter that claimed a bit last, and how many matrices had been read by then.
    struct Claim {
        FaultBit bit;
        std::size_t matricesBefore;
    };

    /// Calls `visit` with every child element of that name that applies to the variant; with an empty name, every child.
    template <typename Visitor> void forEachChild(const QDomElement& parent, const char* name, Visitor visit) const;
    void readUnits(const QDomElement& element);
    void readEnums(const QDomElement& element);
    void readThresholds(const QDomElement& element);
    void readDevice(const QDomElement& element);
    void readErrorMatrix(const QDomElement& element);
    [[nodiscard]] ProfileParameter readParameter(const QDomElement& element, const std::string& device) const;
    void noteFaultBit(const ProfileParameter& parameter);
    void linkErrorMatrices();
    [[nodiscard]] std::string text(const QDomElement& element, const char* attribute) const;

    const ProfileXml& mXml;
    const std::string& mVariant;
    ProfileContent mContent;
    std::map<std::string, int> mEnumNumbers;
    std::map<std::string, int> mThresholdNumbers;
    std::unordered_map<int, std::map<int, Claim>> mClaims; ///< by identifier and bit
};

} // namespace ZARN
