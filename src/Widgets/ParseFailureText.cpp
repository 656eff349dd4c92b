// The reason a field shows when its text does not read. Kept apart so that a finer
// diagnosis (where reading stopped and why) can replace it without touching the widgets.
#include <memory>

#include "KxCoreUnitsUI/UnitsFormatter.h"
#include "KxCoreUnitsWidgets/QuantityText.h"

namespace kxnorth::platform::core::units {

QString ParseFailureText(UnitsFormatter const& formatter, QString const& text, int unit) {
    int const group = unit & kGroupMask;
    QString groupName;
    unsigned long length = 0;
    if (formatter.GetDisplayNameLength(group, length) == 0 && length > 0) {
        auto buffer = std::make_unique<wchar_t[]>(length);
        if (formatter.GetDisplayName(group, buffer.get(), length) == 0) groupName = QString::fromWCharArray(buffer.get());
    }
    if (groupName.isEmpty()) groupName = QStringLiteral("a quantity");
    if (text.trimmed().isEmpty()) return QStringLiteral("no value: type a %1").arg(groupName.toLower());
    return QStringLiteral("cannot read \"%1\" as %2").arg(text, groupName);
}

}  // namespace kxnorth::platform::core::units
