// Qt-string front ends of the formatter that the widgets share with their hosts:
// formatting and reading one quantity, its value in SI, and the locale's separators.
#pragma once

#include <QString>

#include "KxCoreUnitsWidgets/KxCoreUnitsWidgetsExport.h"

namespace kxnorth::platform::core::units {

class UnitsFormatter;

// `value`, given in `unit`, written with `symbol` (0: the formatter's default symbol
// of `unit`). Empty when the formatter refuses (unknown unit, a symbol of another
// quantity, a value it cannot write).
KXCOREUNITSWIDGETS_EXPORT QString FormatQuantity(UnitsFormatter const& formatter, double value, int unit,
                                                 int symbol);

// The formatter's default symbol of the default unit of `unit`'s group: what a field
// of that quantity shows unless told otherwise ("meter" for lengths until the host
// makes another unit or symbol the default). 0 when the group has none.
KXCOREUNITSWIDGETS_EXPORT int GroupDefaultSymbol(UnitsFormatter const& formatter, int unit);

// Reads `text` as a person types it into a value in `unit`. False, leaving `value`
// untouched, when the formatter cannot read it.
KXCOREUNITSWIDGETS_EXPORT bool ParseQuantity(UnitsFormatter const& formatter, QString const& text, int unit,
                                             double& value);

// `value` in `unit` written in coherent SI with up to ten significant digits and the
// locale's decimal separator: "1.6891 m", "20 °C" is "293.15 K", "10 kg/m³". The symbol
// is the formatter's for the group's SI unit where the group has one, else built from
// the base units. Empty when the unit has no converter.
KXCOREUNITSWIDGETS_EXPORT QString SiQuantityText(UnitsFormatter const& formatter, double value, int unit);

// Why `text` does not read as a quantity of `unit`'s group: "cannot read "5 fx" as
// Length", with the group's display name of the formatter's locale.
KXCOREUNITSWIDGETS_EXPORT QString ParseFailureText(UnitsFormatter const& formatter, QString const& text, int unit);

}  // namespace kxnorth::platform::core::units
