// The reason a field shows when its text does not read: where reading stopped and why,
// from the parse diagnostics, with the quantity the field wants.
#include <memory>
#include <string>

#include "KxCoreUnitsUI/ParseDiagnostics.h"
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

    QString const general = QStringLiteral("cannot read \"%1\" as %2").arg(text, groupName);
    std::wstring const wide = text.toStdWString();
    double value = 0.0;
    ParseDiagnostics diagnostics;
    if (DiagnoseParse(formatter, wide.c_str(), value, unit, diagnostics) == 0 ||
        diagnostics.reason == ParseFailureReason::eNone) {
        return general;
    }
    // The offset counts the text's characters (code points), as the wide text holds them.
    QString const reason = QString::fromLatin1(ParseFailureReasonText(diagnostics.reason));
    if (diagnostics.offset < 0 || static_cast<std::size_t>(diagnostics.offset) >= wide.size()) {
        return QStringLiteral("%1: %2").arg(general, reason);
    }
    QString const rest = QString::fromStdWString(wide.substr(static_cast<std::size_t>(diagnostics.offset)));
    return QStringLiteral("%1: %2 at \"%3\"").arg(general, reason, rest);
}

}  // namespace kxnorth::platform::core::units
