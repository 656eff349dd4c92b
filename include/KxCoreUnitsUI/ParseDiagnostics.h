// Where and why typed text could not be read, for showing the user: the same reading
// as UnitsFormatter::Parse, plus the offset of the first character that stopped it,
// a reason code, and warnings about readings that succeed but may not be meant.
//
// Parse itself never does this work; only a call here does.
#pragma once

#include "KxCoreUnits/UnitsEnums.h"
#include "KxCoreUnitsUI/KxCoreUnitsUIExport.h"

namespace kxnorth::platform::core::units {

class UnitsFormatter;

enum class ParseFailureReason : int {
    eNone = 0,                  // the text was read
    eNoText,                    // a null text
    eEmptyText,                 // nothing but spaces
    eUnknownUnit,               // the unit asked for is not in the catalogue
    eUnknownWord,               // a character that starts neither a number nor a known symbol
    eOperatorWithoutOperands,   // an operator (or sign) with nothing to act on on one side
    eUnmatchedParenthesis,      // a parenthesis without its partner
    eZeroDenominator,           // a fraction whose denominator is zero
    eInvalidPower,              // a power that is not a whole number of at least 1
    eNumberWithoutUnit,         // a number in a run or sum that no unit follows (`5 ft 6`)
    eUnitWithoutNumber,         // a unit where a number must come first (`ft`, `5 ft + in`)
    eWrongQuantity,             // a quantity of other dimensions than the unit's
    eOffsetUnitInSum,           // a unit with an offset (°C) in a run or sum: not defined
    eMarkOutOfOrder,            // marks of a run repeated or out of order (`5'6'`, `45°30"`)
    eNoDefaultUnit,             // a bare number, and no default unit to read it in (result 1)
    eCannotEvaluate,            // known pieces that do not form a quantity
};

// Warnings: bits, set whatever the result.
enum ParseWarning : int {
    eNoParseWarning = 0,
    // A group separator where the formatter's group sizes put none: `1,5 m` reads as 15 m.
    eGroupSeparatorInsideGroup = 1,
};

struct ParseDiagnostics {
    // The zero-based character offset of the first character that could not be read,
    // or -1 when the text was read. Always below the text's length when the text has
    // any characters; 0 for an empty or null text.
    int offset = -1;
    ParseFailureReason reason = ParseFailureReason::eNone;
    // With eWrongQuantity, the dimensions of the quantity at `offset`.
    int foundDimensions[kDimensionCount] = {};
    int warnings = eNoParseWarning;  // ParseWarning bits
    int warningOffset = -1;          // the first group separator out of place, or -1
};

// Reads `text` as `formatter.Parse(text, value, unit)` does and returns its result (0,
// or 2 with `value` untouched), filling `out` with where and why a failure happened.
KXCOREUNITSUI_EXPORT int DiagnoseParse(UnitsFormatter const& formatter, wchar_t const* text, double& value,
                                       int unit, ParseDiagnostics& out);

// The reason in English words ("unknown word"); never null.
KXCOREUNITSUI_EXPORT char const* ParseFailureReasonText(ParseFailureReason reason);

// The warning in English words ("group separator inside a group"); never null.
KXCOREUNITSUI_EXPORT char const* ParseWarningText(ParseWarning warning);

}  // namespace kxnorth::platform::core::units
