#include "profile/CanasType.h"

namespace ZARN {

namespace {

constexpr const char* kNames[] = {"NODATA",   "ERROR",    "FLOAT",  "LONG",    "ULONG",    "BLONG",   "SHORT",    "USHORT",
                                  "BSHORT",   "CHAR",     "UCHAR",  "BCHAR",   "SHORT_2",  "USHORT_2", "BSHORT_2", "CHAR_4",
                                  "UCHAR_4",  "BCHAR_4",  "CHAR_2", "UCHAR_2", "BCHAR_2",  "MEMID",   "CHKSUM",   "ACHAR",
                                  "ACHAR_2",  "ACHAR_4",  "CHAR_3", "UCHAR_3", "BCHAR_3",  "ACHAR_3"};

} // namespace

std::span<const char* const> canasTypeNames()
{
    return kNames;
}

int canasType(std::string_view name)
{
    for (int number = 0; number < static_cast<int>(std::size(kNames)); ++number) {
        if (name == kNames[number])
            return number;
    }
    return 0;
}

} // namespace ZARN
