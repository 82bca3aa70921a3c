#pragma once

#include "app/XmlHandler.h"

#include <vector>

namespace ZARN {

/// An installation that the profile file covers beside others.
struct ProfileVariant {
    std::string name;
    std::string color;
};

/// Reads what every profile document has: its root, the variants that it declares, and the attribute by which an element applies to
/// some of them only.
class ProfileXml : public XmlHandler {
public:
    using XmlHandler::XmlHandler;

    /// Whether the document with this root element is a profile.
    [[nodiscard]] static bool isProfile(const QDomElement& root);
    /// The variants that a document declares, in its order.
    [[nodiscard]] std::vector<ProfileVariant> variantsOf(const QDomElement& root) const;
    /// Whether an element applies to a variant, or the attribute that says so.
    bool checkVariant(const std::string& variant, const QDomNode& node) const;
    bool checkVariant(const std::string& variant, const QString& attribute) const;
};

} // namespace ZARN
