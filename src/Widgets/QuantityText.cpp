#include "KxCoreUnitsWidgets/QuantityText.h"

#include <QLocale>
#include <QStringList>
#include <cmath>
#include <memory>
#include <string>
#include <vector>

#include "KxCoreUnits/UnitsConfig.h"
#include "KxCoreUnitsUI/LocaleUtil.h"
#include "KxCoreUnitsUI/UnitsFormatter.h"

namespace kxnorth::platform::core::units {

using kxnorth::platform::core::locale::LocaleUtil;

namespace {

// Wide enough for any value at the usual precisions; the largest doubles at 99
// decimals with long separators are retried in a buffer of the larger size.
constexpr unsigned long kFormatBufferSize = 512;
constexpr unsigned long kLargeFormatBufferSize = 16384;

std::wstring Wide(QString const& text) { return text.toStdWString(); }

// The first unit of the group that is its coherent SI unit (factor 1, no offset).
int SiUnitOfGroup(int group) {
    UnitsConfig const* config = UnitsConfig::GetInstance();
    std::size_t const count = config->GetUnitTypes(group, nullptr);
    std::vector<int> units(count);
    if (count == 0 || config->GetUnitTypes(group, units.data()) != count) return 0;
    for (int const unit : units) {
        UnitConverter const* converter = config->FindConverter(unit);
        if (converter != nullptr && converter->GetFactor() == 1.0 && converter->GetOffset() == 0.0) return unit;
    }
    return 0;
}

// "kg/m³" from the exponents of the base dimensions; "rad" and "sr" are the angles'.
QString BaseUnitsText(int const (&dims)[kDimensionCount], int group) {
    static char const* const kBaseSymbols[kDimensionCount] = {"m", "kg", "s", "A", "K", "mol", "cd"};
    static QChar const kSuperscripts[] = {QChar(0x2070), QChar(0x00B9), QChar(0x00B2), QChar(0x00B3), QChar(0x2074),
                                          QChar(0x2075), QChar(0x2076), QChar(0x2077), QChar(0x2078), QChar(0x2079)};
    QStringList numerator, denominator;
    for (int i = 0; i < kDimensionCount; ++i) {
        int const exponent = dims[i];
        if (exponent == 0) continue;
        QString part = QLatin1String(kBaseSymbols[i]);
        int const magnitude = std::abs(exponent);
        if (magnitude > 1) {
            for (QChar const digit : QString::number(magnitude)) part += kSuperscripts[digit.digitValue()];
        }
        (exponent > 0 ? numerator : denominator) << part;
    }
    QString text = numerator.join(QChar(0x00B7));
    if (!denominator.isEmpty()) {
        if (text.isEmpty()) text = QStringLiteral("1");
        text += QLatin1Char('/') + (denominator.size() > 1
                                        ? QLatin1Char('(') + denominator.join(QChar(0x00B7)) + QLatin1Char(')')
                                        : denominator.front());
    }
    constexpr int kAngleGroup = 0x8000, kSolidAngleGroup = 0x9000;
    if (text.isEmpty() && group == kAngleGroup) return QStringLiteral("rad");
    if (text.isEmpty() && group == kSolidAngleGroup) return QStringLiteral("sr");
    return text;
}

// What follows the number when the formatter writes 0 in `symbol`: " m", "°C", "".
QString SymbolSuffix(UnitsFormatter const& formatter, int unit, int symbol) {
    QString const zero = FormatQuantity(formatter, 0.0, unit, symbol);
    int i = 0;
    while (i < zero.size() && zero[i].isDigit()) ++i;
    // The digits may be the formatter's own; the decimal separator and its decimals follow.
    wchar_t separator[16] = {};
    formatter.GetNumberDecimalSeparator(separator, 16);
    QString const decimal = QString::fromWCharArray(separator);
    if (!decimal.isEmpty() && zero.mid(i).startsWith(decimal)) {
        i += static_cast<int>(decimal.size());
        while (i < zero.size() && zero[i].isDigit()) ++i;
    }
    return zero.mid(i);
}

}  // namespace

QString FormatQuantity(UnitsFormatter const& formatter, double value, int unit, int symbol) {
    wchar_t buffer[kFormatBufferSize];
    if (formatter.Format(value, unit, buffer, kFormatBufferSize, symbol, nullptr) == 0) {
        return QString::fromWCharArray(buffer);
    }
    auto large = std::make_unique<wchar_t[]>(kLargeFormatBufferSize);
    if (formatter.Format(value, unit, large.get(), kLargeFormatBufferSize, symbol, nullptr) == 0) {
        return QString::fromWCharArray(large.get());
    }
    return QString();
}

int GroupDefaultSymbol(UnitsFormatter const& formatter, int unit) {
    return formatter.GetDefaultSymbol(formatter.GetDefaultUnit(unit & kGroupMask));
}

bool ParseQuantity(UnitsFormatter const& formatter, QString const& text, int unit, double& value) {
    double parsed = 0.0;
    if (formatter.Parse(Wide(text).c_str(), parsed, unit) != 0 || std::isnan(parsed)) return false;
    value = parsed;
    return true;
}

QString SiQuantityText(UnitsFormatter const& formatter, double value, int unit) {
    UnitConverter const* converter = UnitsConfig::GetInstance()->FindConverter(unit);
    double base = 0.0;
    if (converter == nullptr || converter->ConvertToBase(&base, converter->GetDimTag(), value) != 0) return QString();

    QLocale locale(LocaleUtil::LocaleNameToQtLocaleName(QString::fromWCharArray(formatter.GetLocale())));
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    QString const number = locale.toString(base, 'g', 10);

    int const group = unit & kGroupMask;
    int const siUnit = SiUnitOfGroup(group);
    if (siUnit != 0) {
        // The unit's second symbol is its short one ("m" beside "meter") where it has one.
        int const shortSymbol = (siUnit & kUnitMask) | (2 << kSymbolIndexShift);
        bool const hasShort = UnitsConfig::GetInstance()->GetUnitSymbols(siUnit, nullptr) >= 2;
        QString const suffix =
            SymbolSuffix(formatter, siUnit, hasShort ? shortSymbol : formatter.GetDefaultSymbol(siUnit));
        if (!suffix.isEmpty() || group == 0x1000) return number + suffix;
    }
    QString const symbols = BaseUnitsText(converter->GetDimTag(), group);
    return symbols.isEmpty() ? number : number + QLatin1Char(' ') + symbols;
}

}  // namespace kxnorth::platform::core::units
