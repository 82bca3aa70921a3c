#pragma once

#include "profile/ProfileFindings.h"

namespace ZARN {

/// Finds in a profile what is odd by itself, whatever the variant: elements and attributes that nobody reads, numbers, colours and
/// words that are none, values without effect.
class ProfileForm {
public:
    ProfileForm(ProfileFindings& findings, const QStringList& variants) : mFindings(findings), mVariants(variants) {}

    void check(const QDomElement& root) { element(root, "CanAerospaceProfile"); }

private:
    struct Attribute;
    struct Rule;
    static const std::map<QString, Rule>& rules();

    void element(const QDomElement& element, const QString& ruleName);
    void children(const QDomElement& element, const Rule& rule, const QString& ruleName);
    void unknownAttributes(const QDomElement& element, const Rule& rule);
    void attribute(const QDomElement& element, const Attribute& attribute);
    void number(const QDomElement& element, const QString& name, const QString& value, bool isWhole);
    void word(const QDomElement& element, const QString& name, const QString& value, const QStringList& known, const QString& outcome);
    void variantNames(const QDomElement& element, const QString& value);

    ProfileFindings& mFindings;
    const QStringList& mVariants;
};

} // namespace ZARN
