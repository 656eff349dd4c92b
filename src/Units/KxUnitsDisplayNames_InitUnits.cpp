// English source texts of group, unit type and number-format names, generated from
// the catalogue tables; QT_TRANSLATE_NOOP marks them for lupdate.
#include <QtGlobal>

#include "KxUnitsDisplayNames_Tables.h"

namespace kxnorth::platform::core::units::detail {

#include "KxDisplayNameRows.inc"

// clang-format off
NameRow const GroupNames[] = {
    KX_GROUP_NAME_ROWS
    {0, nullptr},
};

NameRow const unitNames[] = {
    KX_UNIT_NAME_ROWS
    {0, nullptr},
};

NameRow const formatNames[] = {
    {eNFExponential, QT_TRANSLATE_NOOP("NumberFormat", "Exponential")},
    {eNFExponentialLower, QT_TRANSLATE_NOOP("NumberFormat", "exponential")},
    {eNFFixedPoint, QT_TRANSLATE_NOOP("NumberFormat", "Fixed Point")},
    {eNFGeneral, QT_TRANSLATE_NOOP("NumberFormat", "General")},
    {eNFGeneralLower, QT_TRANSLATE_NOOP("NumberFormat", "general")},
    {eNFNumber, QT_TRANSLATE_NOOP("NumberFormat", "Number")},
    {eNFFraction, QT_TRANSLATE_NOOP("NumberFormat", "Fraction")},
    {eNFEnd, nullptr},
};
// clang-format on

}  // namespace kxnorth::platform::core::units::detail
