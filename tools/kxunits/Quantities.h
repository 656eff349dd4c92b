// Formatting, parsing and describing quantities through the public formatter.
#pragma once

#include <QString>

#include "KxCoreUnitsUI/UnitsFormatter.h"

namespace kxunits {

// `value`, given in `unit`, written with `symbol` (0: the unit's default symbol).
// False with the formatter's result code in `result` when it refused.
bool FormatValue(kxnorth::platform::core::units::UnitsFormatter const& formatter, double value, int unit, int symbol,
                 QString& text, int& result);

// The unit of a unit or symbol identifier.
inline int UnitOf(int id) { return id & 0xFFFFF; }
inline int GroupOf(int id) { return id & 0xFF000; }

// Whether the converters of the two units (or symbols) have the same dimensions.
bool SameDimensions(int a, int b);

// `value` in `unit` converted into coherent SI base units, written with them: "1.6891 m",
// "10 kg/m^3"; angles in "rad" and solid angles in "sr". False when the unit has no converter.
bool SiText(double value, int unit, QString& text);

// The formatter's display name of a group, unit or symbol; empty when it has none.
QString DisplayName(kxnorth::platform::core::units::UnitsFormatter const& formatter, int id);

// "Length" for error messages: the group's global name.
QString GroupWord(int id);

}  // namespace kxunits
