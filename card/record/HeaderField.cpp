#include "card/record/HeaderField.h"

#include <QCoreApplication>

namespace ZARN {

namespace {

constexpr HeaderField kFields[] = {
    {QT_TRANSLATE_NOOP("ZARN::CardTree", "Bus Type"), &RecordInfo::busType},
    {QT_TRANSLATE_NOOP("ZARN::CardTree", "ECU Serial Number"), &RecordInfo::ecuSerialNumber},
    {QT_TRANSLATE_NOOP("ZARN::CardTree", "Software Part Nr. A"), &RecordInfo::softwarePartA},
    {QT_TRANSLATE_NOOP("ZARN::CardTree", "Software Part Nr. B"), &RecordInfo::softwarePartB},
    {QT_TRANSLATE_NOOP("ZARN::CardTree", "ECU Type"), &RecordInfo::ecuType},
    {QT_TRANSLATE_NOOP("ZARN::CardTree", "EMU SW Version"), &RecordInfo::emuSoftwareVersion},
    {QT_TRANSLATE_NOOP("ZARN::CardTree", "Engine Serial Nr."), &RecordInfo::engineSerial},
    {QT_TRANSLATE_NOOP("ZARN::CardTree", "Engine Type"), &RecordInfo::engineType}};

std::string asText(uint32_t number)
{
    return std::to_string(number);
}

std::string asText(const std::string& text)
{
    return text;
}

} // namespace

std::span<const HeaderField> HeaderField::all()
{
    return kFields;
}

QString HeaderField::title() const
{
    return QCoreApplication::translate("ZARN::CardTree", label);
}

std::string HeaderField::text(const RecordInfo& info) const
{
    return std::visit([&info](auto pMember) { return asText(info.*pMember); }, member);
}

} // namespace ZARN
