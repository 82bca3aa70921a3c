#include "profile/DecodingContext.h"

namespace ZARN {

DecodingContext::DecodingContext()
{
    static const auto pEmpty = std::make_shared<const ProfileModel>();
    mpModel = pEmpty;
}

ValueDecoder DecodingContext::decoder(const ProfileParameter& parameter) const
{
    return {parameter, mpModel->thresholds(parameter), mpModel->labels(parameter),
            mUnit == EUnit::eImperial ? std::optional(mpModel->conversion(parameter)) : std::nullopt};
}

} // namespace ZARN
