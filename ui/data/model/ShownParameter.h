#pragma once

#include "profile/DecodingContext.h"
#include "profile/Selection.h"

#include <QCoreApplication>
#include <QString>

#include <vector>

namespace ZARN {

/// A parameter that the user chose to see, as the data table shows it.
class ShownParameter {
    Q_DECLARE_TR_FUNCTIONS(ZARN::ShownParameter)

public:
    ShownParameter(const DecodingContext& context, const ProfileParameter& parameter)
        : mContext(context), mParameter(parameter), mDecoder(context.decoder(parameter))
    {
    }

    /// The selected parameters of a profile, in its order.
    [[nodiscard]] static std::vector<ShownParameter> all(const DecodingContext& context, const Selection& selection);

    [[nodiscard]] const std::string& name() const { return mParameter.name; }
    /// Whether its records are of the identifier; else it is computed from others.
    [[nodiscard]] bool isRecorded() const { return !mParameter.isComputed(); }
    [[nodiscard]] uint32_t identifier() const { return mParameter.identifier(); }
    [[nodiscard]] bool isPosition() const { return mParameter.isPosition(); }
    [[nodiscard]] const ValueDecoder& decoder() const { return mDecoder; }
    /// Name and unit: "Name [unit]", or the name alone.
    [[nodiscard]] QString label() const;
    /// Path, identifier, unit and thresholds, as rich text with what the profile says in it escaped.
    [[nodiscard]] QString toolTip() const;
    /// What a threshold state is called; empty for the normal one.
    [[nodiscard]] static QString stateName(int state);

private:
    [[nodiscard]] QString thresholdLines() const;

    [[nodiscard]] const std::string& unit() const { return mContext.unitOf(mParameter); }

    DecodingContext mContext;
    ProfileParameter mParameter;
    ValueDecoder mDecoder;
};

} // namespace ZARN
