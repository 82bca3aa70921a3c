#pragma once

#include "profile/Profile.h"

#include <QByteArray>
#include <QXmlStreamWriter>

#include <utility>
#include <vector>

namespace ZARN::Test {

/// A small profile, written element by element in the order of the calls: lists first, then device() and what belongs to it.
class ProfileBuilder {
public:
    using Attributes = std::vector<std::pair<QString, QString>>;
    struct Boundary {
        double value;
        QString state;
        QString colour;
    };

    ProfileBuilder();
    ProfileBuilder& variants(const QStringList& names);
    ProfileBuilder& unit(const QString& metric, const QString& imperial, double factor, double offset = 0.0);
    ProfileBuilder& enumeration(const QString& name, const std::vector<std::pair<int, QString>>& labels);
    ProfileBuilder& thresholds(const QString& name, const std::vector<Boundary>& boundaries);
    /// Closes the device before it, if any.
    ProfileBuilder& device(const QString& name);
    ProfileBuilder& errorMatrix(int id, const QString& name);
    /// A parameter with its data at byte 4; `more` adds attributes or replaces these.
    ProfileBuilder& parameter(const QString& name, int id, const QString& dataType, const Attributes& more = {});
    /// One bit of an error matrix.
    ProfileBuilder& faultBit(const QString& name, int id, int bit, const QString& errorType);
    ProfileBuilder& position(const QString& axis, int id); ///< a FLOAT with axis ("Latitude", "Longitude") as name, view and key

    /// The whole document; nothing may be added after it.
    [[nodiscard]] QByteArray xml();
    /// Loads the document into a profile. @return whether it is one.
    bool load(Profile& profile, const std::string& variant = {});
    /// Writes the document into a folder as "Profile.xml". @return its path.
    QString write(const QString& folder);

private:
    void element(const QString& name, const Attributes& attributes);
    void list(const QString& name, const QString& item, const QString& itemName, const std::vector<Attributes>& values);

    QByteArray mBytes;
    QXmlStreamWriter mWriter{&mBytes};
    bool mInDevice = false;
    bool mClosed = false;
};

} // namespace ZARN::Test
