#pragma once

#include <QString>

namespace ZARN {

class Property;

/// Whether the user has agreed to map pictures being fetched from the network. Kept with the settings: the address of the server that was
/// agreed to, or "no". Whoever changes it writes the settings file.
class TileConsent {
public:
    enum EAnswer { eNotAsked, eNo, eYes };

    explicit TileConsent(Property& property) : mProperty(property) {}

    /// @param server the address of the tile server; agreeing to one is no answer about another.
    [[nodiscard]] EAnswer answer(const QString& server) const;
    void set(const QString& server, bool isAllowed);

private:
    Property& mProperty;
};

} // namespace ZARN
