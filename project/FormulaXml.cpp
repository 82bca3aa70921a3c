#include "project/FormulaXml.h"

#include "app/XmlHandler.h"

#include <QFileInfo>
#include <QLocale>

#include <algorithm>
#include <cmath>

namespace ZARN {

namespace {

constexpr const char* kFormula = "Formula";

struct Bound {
    const char* attribute;
    std::optional<double> FormulaDefinition::*member;
};
constexpr Bound kBounds[] = {{"lowerLimit", &FormulaDefinition::lowerLimit},
                             {"lowerWarning", &FormulaDefinition::lowerWarning},
                             {"upperWarning", &FormulaDefinition::upperWarning},
                             {"upperLimit", &FormulaDefinition::upperLimit}};

} // namespace

FormulaDefinitions FormulaXml::read(const QDomElement& parent) const
{
    FormulaDefinitions formulas;
    const QString list = QString::fromLatin1(kList), one = QString::fromLatin1(kFormula);
    for (QDomElement element = parent.firstChildElement(list); !element.isNull(); element = element.nextSiblingElement(list)) {
        for (QDomElement child = element.firstChildElement(one); !child.isNull(); child = child.nextSiblingElement(one)) {
            FormulaDefinition formula{child.attribute("name").toStdString(), child.attribute("expression").toStdString(),
                                      child.attribute("unit").toStdString(), std::clamp(child.attribute("precision", "2").toInt(), 0, 6),
                                      {}, {}, {}, {}};
            for (const Bound& bound : kBounds) {
                bool isNumber = false;
                const double value = child.attribute(QString::fromLatin1(bound.attribute)).toDouble(&isNumber);
                if (isNumber && std::isfinite(value))
                    formula.*bound.member = value;
            }
            if (!formula.name.empty() && !formula.expression.empty() && formulas.size() < kMost)
                formulas.push_back(std::move(formula));
        }
    }
    return formulas;
}

FormulaDefinitions FormulaXml::readFile(const QString& path) const
{
    QDomDocument document;
    return QFileInfo::exists(path) && mXml.xmlReadFile(document, path) ? read(document.documentElement()) : FormulaDefinitions();
}

void FormulaXml::write(QDomDocument& document, QDomElement& parent, const FormulaDefinitions& formulas) const
{
    if (formulas.empty())
        return;
    QDomElement list = mXml.xmlCreateElement(document, parent, kList);
    for (const FormulaDefinition& formula : formulas) {
        QDomElement element = mXml.xmlCreateElement(document, list, kFormula);
        mXml.xmlCreateAttribute(document, element, "name", formula.name);
        mXml.xmlCreateAttribute(document, element, "expression", formula.expression);
        mXml.xmlCreateAttribute(document, element, "unit", formula.unit);
        mXml.xmlCreateAttribute(document, element, "precision", formula.precision);
        for (const Bound& bound : kBounds) {
            if (const auto& value = formula.*bound.member)
                mXml.xmlCreateAttribute(document, element, bound.attribute, QString::number(*value, 'g', QLocale::FloatingPointShortest));
        }
    }
}

} // namespace ZARN
