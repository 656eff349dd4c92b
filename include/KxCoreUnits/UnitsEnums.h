// Identifier enumerations shared by the unit catalogue and everything built on it.
//
// Groups, unit types and symbols share one 32-bit numbering:
//   bits  0-11  unit index within its group (from 1; 0 in a group identifier)
//   bits 12-19  group number (from 1)
//   bits 20-27  symbol index within its unit (from 1; index 1 is the unit's default symbol)
//   bits 28-31  not part of the identity: every lookup masks them off
#pragma once

#include "KxCoreUnits/UnitsEnumerators.h"  // generated from the catalogue tables

namespace kxp {

struct IDesignPropertyUnits {
    enum teGroup : int { eGNone = 0, KXCOREUNITS_GROUP_ENUMERATORS };
    enum teType : int { eUNone = 0, KXCOREUNITS_TYPE_ENUMERATORS };
};

}  // namespace kxp

namespace kxnorth::platform::core::units {

enum UnitSymbol : int { eSNone = 0, KXCOREUNITS_SYMBOL_ENUMERATORS };

enum NumberFormat : int {
    eNFExponential = 0,       // "Exponential": 1.23E+004
    eNFExponentialLower = 1,  // "exponential": 1.23e+004
    eNFFixedPoint = 2,        // "Fixed Point"
    eNFGeneral = 3,           // "General"
    eNFGeneralLower = 4,      // "general"
    eNFNumber = 5,            // "Number": grouped digits
    eNFFraction = 6,          // "Fraction"
    eNFEnd = -1               // ends tables of number formats; no format
};

// Result codes of the catalogue's lookups.
enum : int { eEOk = 0, eENotFound = 1, eEBufferTooSmall = 2, eEInvalidArgument = 3 };

// Identifier masks.
inline constexpr int kIdentityMask = 0x0FFFFFFF;
inline constexpr int kGroupMask = 0xFF000;
inline constexpr int kUnitMask = 0xFFFFF;
inline constexpr int kUnitIndexMask = 0xFFF;
inline constexpr int kSymbolIndexShift = 20;
inline constexpr int kDefaultSymbolBit = 1 << kSymbolIndexShift;

// Number of base dimensions: length, mass, time, electric current,
// thermodynamic temperature, amount of substance, luminous intensity.
inline constexpr int kDimensionCount = 7;

}  // namespace kxnorth::platform::core::units
