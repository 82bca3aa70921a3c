#pragma once

#include "openstreet/core/TileId.h"

#include <QString>
#include <QUrl>

namespace OpenStreet {

/// Where tiles come from: an address with {z}, {x}, {y} and, optionally, {s} for one of the sub-domains a, b, c. A plain value.
class TileServer {
public:
    /// Takes a whole template, or the address before "/{z}/{x}/{y}.png". Without a scheme it is https; other schemes than https and
    /// http are not valid. An empty text is the default server.
    explicit TileServer(const QString& address = {});

    [[nodiscard]] bool isValid() const { return mValid; }
    /// The host, with its port where one is given, for people.
    [[nodiscard]] QString name() const;
    [[nodiscard]] QUrl url(const TileId& id) const;
    /// A short name for folders, different for each template.
    [[nodiscard]] QString key() const;
    [[nodiscard]] const QString& address() const { return mTemplate; }

    friend bool operator==(const TileServer& a, const TileServer& b) { return a.mTemplate == b.mTemplate; }

private:
    QString mTemplate;
    bool mValid;
};

} // namespace OpenStreet
