// Groups, units and symbols of the catalogue by identifier or global name, as a
// person types them on the command line.
#pragma once

#include <QString>
#include <vector>

#include "KxCoreUnits/UnitsEnums.h"

namespace kxunits {

enum class IdKind { Group, Unit, Symbol };

// The catalogue's lists, in catalogue order.
std::vector<int> CatalogueGroups();
std::vector<int> CatalogueUnits(int group);
std::vector<int> CatalogueSymbols(int unit);

// The kind that the bits of `id` describe, whether or not the catalogue has it.
IdKind KindOfId(int id);
// Whether the catalogue has `id` (bits 28-31 ignored).
bool IsKnownId(int id);

QString GlobalName(int id);
// 0x02017, 0x102017: hex with at least five digits, as the catalogue lists them.
QString IdText(int id);
QString KindName(IdKind kind);

struct IdLookup {
    int id = 0;
    IdKind kind = IdKind::Group;
    QString error;  // empty when found
};

// What `text` names: an identifier in hex ("0x2017") or decimal ("8215"), or a global
// name, exact or differing only in case. `accepted` lists the kinds wanted in order of
// preference, for names that a unit and its default symbol share ("Meter"). The error
// names what was wrong and suggests near names.
IdLookup FindId(QString const& text, std::vector<IdKind> const& accepted);

// A number format by global name ("Fixed Point"), ignoring case, spaces, '-' and '_'
// where that leaves one candidate ("fixed-point"), or by number 0 to 6. False when
// nothing matches; `error` then lists the names.
bool FindNumberFormat(QString const& text, kxnorth::platform::core::units::NumberFormat& out, QString& error);

}  // namespace kxunits
