#include "Quantities.h"

#include <QStringList>
#include <memory>

#include "KxCoreUnits/UnitsConfig.h"
#include "Text.h"
#include "UnitNames.h"

namespace kxunits {

namespace units = kxnorth::platform::core::units;

namespace {

// Wide enough for the largest double in "Number" format with 99 decimals and
// multi-character separators; a refusal for lack of room is retried once larger.
constexpr unsigned long kFormatBufferSize = 1024;
constexpr unsigned long kLargeFormatBufferSize = 16384;

constexpr int kAngleGroup = 0x8000;
constexpr int kSolidAngleGroup = 0x9000;

}  // namespace

bool FormatValue(units::UnitsFormatter const& formatter, double value, int unit, int symbol, QString& text,
                 int& result) {
    wchar_t buffer[kFormatBufferSize];
    result = formatter.Format(value, unit, buffer, kFormatBufferSize, symbol, nullptr);
    if (result != 0) {
        auto large = std::make_unique<wchar_t[]>(kLargeFormatBufferSize);
        if (formatter.Format(value, unit, large.get(), kLargeFormatBufferSize, symbol, nullptr) != 0) return false;
        result = 0;
        text = FromWide(large.get());
        return true;
    }
    text = FromWide(buffer);
    return true;
}

bool SameDimensions(int a, int b) {
    units::UnitsConfig const* config = units::UnitsConfig::GetInstance();
    units::UnitConverter const* ca = config->FindConverter(a);
    units::UnitConverter const* cb = config->FindConverter(b);
    if (ca == nullptr || cb == nullptr) return false;
    for (int i = 0; i < units::kDimensionCount; ++i) {
        if (ca->GetDimTag()[i] != cb->GetDimTag()[i]) return false;
    }
    return true;
}

bool SiText(double value, int unit, QString& text) {
    units::UnitConverter const* converter = units::UnitsConfig::GetInstance()->FindConverter(unit);
    if (converter == nullptr) return false;
    double base = 0;
    if (converter->ConvertToBase(&base, converter->GetDimTag(), value) != 0) return false;

    static char const* const kBaseSymbols[units::kDimensionCount] = {"m", "kg", "s", "A", "K", "mol", "cd"};
    QStringList numerator, denominator;
    for (int i = 0; i < units::kDimensionCount; ++i) {
        int const exponent = converter->GetDimTag()[i];
        if (exponent == 0) continue;
        QString part = QLatin1String(kBaseSymbols[i]);
        if (std::abs(exponent) != 1) part += QLatin1Char('^') + QString::number(std::abs(exponent));
        (exponent > 0 ? numerator : denominator) << part;
    }
    QString symbols = numerator.join(QChar(0x00B7));
    if (!denominator.isEmpty()) {
        if (symbols.isEmpty()) symbols = QStringLiteral("1");
        symbols += QLatin1Char('/') + (denominator.size() > 1 ? QLatin1Char('(') + denominator.join(QChar(0x00B7)) + QLatin1Char(')')
                                                               : denominator.front());
    }
    if (symbols.isEmpty()) {
        int const group = GroupOf(unit);
        if (group == kAngleGroup) symbols = QStringLiteral("rad");
        if (group == kSolidAngleGroup) symbols = QStringLiteral("sr");
    }
    text = NumberText(base);
    if (!symbols.isEmpty()) text += QLatin1Char(' ') + symbols;
    return true;
}

QString DisplayName(units::UnitsFormatter const& formatter, int id) {
    unsigned long length = 0;
    if (formatter.GetDisplayNameLength(id, length) != 0 || length == 0) return QString();
    auto buffer = std::make_unique<wchar_t[]>(length);
    if (formatter.GetDisplayName(id, buffer.get(), length) != 0) return QString();
    return FromWide(buffer.get());
}

QString GroupWord(int id) { return GlobalName(GroupOf(id)); }

}  // namespace kxunits
