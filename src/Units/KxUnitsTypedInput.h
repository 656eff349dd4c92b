// Quantities as people type them, beyond what the evaluation of the parse list reads
// on its own: runs of quantities that add up (`5 ft 6 in`, `2 h 30 min`), sums and
// differences of whole quantities (`1.5 m + 20 cm`), quantities in parentheses as
// operands (`(2 ft)·(3 ft)`), and a dash joining whole inches to their fraction
// (`6-1/2"`). All of them live here, and Parse tries them only after the evaluation
// has refused the text, so every text the evaluation reads keeps its value.
//
// Grammar of the readings (spaces may stand between any two pieces):
//   sum      := term { ('+' | '-') term }
//   term     := [negative sign] run
//   run      := quantity { ['-' directly after a unit] quantity }
//   quantity := number-part unit-expression
// A number part is a whole, decimal, fraction or mixed number; a unit expression is
// whatever the evaluation reads after a number (`m/s`, `ft²`, `'`, `kg·m`). The
// quantities of a reading must all have the dimensions asked for; a unit with an
// offset (°C) may not be added to anything.
#pragma once

#include "KxCoreUnits/UnitConverter.h"
#include "KxCoreUnitsUI/ParseDiagnostics.h"

namespace kxnorth::platform::core::units {

class UnitsFormatterImp;

// Where and why the readings stopped.
struct TypedInputFailure {
    int offset = 0;
    ParseFailureReason reason = ParseFailureReason::eCannotEvaluate;
    int dimensions[kDimensionCount] = {};  // of the quantity at `offset`, with eWrongQuantity
};

// Reads `text` by the readings above, for a quantity of `dims`. True with the value in
// base units; false otherwise, with `failure` (when not null) telling where and why.
[[nodiscard]] bool ReadTypedInput(UnitsFormatterImp const& formatter, wchar_t const* text,
                                  DimensionVector const& dims, double& baseValue, TypedInputFailure* failure);

// The offset of the first group separator, in any number of `text`, that the
// formatter's group sizes would not have written there; -1 when there is none.
int FindMisplacedGroupSeparator(UnitsFormatterImp const& formatter, wchar_t const* text);

}  // namespace kxnorth::platform::core::units
