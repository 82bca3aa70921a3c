#pragma once

#include "profile/ProfileModel.h"

#include <memory>

namespace ZARN {

/// How records are read: by which profile, and into which unit system. A small value that a pass takes by const reference and keeps a
/// copy of, which keeps the profile: what is loaded or chosen meanwhile is another context.
class DecodingContext {
public:
    /// Of a profile that declares nothing.
    DecodingContext();
    DecodingContext(std::shared_ptr<const ProfileModel> pModel, EUnit unit) : mpModel(std::move(pModel)), mUnit(unit) {}

    [[nodiscard]] const ProfileModel& model() const { return *mpModel; }
    [[nodiscard]] EUnit unit() const { return mUnit; }
    /// The same profile in another system of units.
    [[nodiscard]] DecodingContext in(EUnit unit) const { return {mpModel, unit}; }

    /// The resolved decoding of one parameter; refers to the model.
    [[nodiscard]] ValueDecoder decoder(const ProfileParameter& parameter) const;
    /// The display unit of a parameter.
    [[nodiscard]] const std::string& unitOf(const ProfileParameter& parameter) const { return parameter.unit(mUnit); }

private:
    std::shared_ptr<const ProfileModel> mpModel; // never null
    EUnit mUnit = EUnit::eMetric;
};

} // namespace ZARN
