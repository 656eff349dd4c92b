// A locale's number conventions from QLocale, applied through the formatter's public
// setters only: the formatter itself keeps its fixed defaults.
#include "KxCoreUnitsUI/LocaleConventions.h"

#include <QLocale>
#include <QString>
#include <QStringList>

#include <algorithm>
#include <cwchar>
#include <string>
#include <vector>

#include "KxCoreUnitsUI/LocaleUtil.h"
#include "KxCoreUnitsUI/UnitsFormatter.h"

namespace kxnorth::platform::core::units {

namespace {

using locale::LocaleUtil;

// Copies a text into a fixed field; a text that does not fit leaves the field empty,
// so that a cut separator never gets applied.
void CopyText(QString const& text, wchar_t (&field)[LocaleConventions::kMaxText]) {
    std::wstring const wide = text.toStdWString();
    field[0] = L'\0';
    if (wide.size() >= LocaleConventions::kMaxText) return;
    std::wmemcpy(field, wide.c_str(), wide.size() + 1);
}

// QLocale does not publish its group sizes; they are read off a long number it
// writes: "1,234,567,890,123,456" has {3}, the Indian "1,23,45,67,89,01,23,456"
// has {3, 2}.
void ReadGroupSizes(QLocale const& qt, LocaleConventions& out) {
    out.groupSizes[0] = 3;
    out.groupSizes[1] = 0;
    out.groupSizeCount = 1;
    QString const separator = qt.groupSeparator();
    if (separator.isEmpty()) return;
    QString digits = qt.toString(Q_INT64_C(1234567890123456));
    QStringList const groups = digits.split(separator);
    if (groups.size() < 3) return;
    int const primary = static_cast<int>(groups[groups.size() - 1].size());
    int const secondary = static_cast<int>(groups[groups.size() - 2].size());
    if (primary < 1 || primary > 9 || secondary < 1 || secondary > 9) return;
    out.groupSizes[0] = primary;
    if (secondary != primary) {
        out.groupSizes[1] = secondary;
        out.groupSizeCount = 2;
    }
}

void ReadNativeDigits(QLocale const& qt, LocaleConventions& out) {
    std::u32string const zero = qt.zeroDigit().toStdU32String();
    // Every numbering system Qt knows runs its ten digits on consecutive code points.
    char32_t const first = zero.size() == 1 ? zero[0] : U'0';
    for (int d = 0; d < 10; ++d) out.nativeDigits[d] = static_cast<wchar_t>(first + d);
}

struct SavedSettings {
    wchar_t digits[10];
    wchar_t positiveSign[64], negativeSign[64], decimalSeparator[64], groupSeparator[64];
    std::vector<int> groupSizes;
    bool includePositiveSign;

    explicit SavedSettings(UnitsFormatter const& f) {
        f.GetNativeDigits(digits);
        f.GetPositiveSign(positiveSign, 64);
        f.GetNegativeSign(negativeSign, 64);
        f.GetNumberDecimalSeparator(decimalSeparator, 64);
        f.GetNumberGroupSeparator(groupSeparator, 64);
        groupSizes.resize(static_cast<std::size_t>(std::max(f.GetNumberGroupSizes(nullptr), 0)));
        f.GetNumberGroupSizes(groupSizes.data());
        includePositiveSign = f.IncludePositiveSignInNumber();
    }

    void Restore(UnitsFormatter& f) const {
        (void)f.SetNativeDigits(digits);
        f.SetPositiveSign(positiveSign);
        f.SetNegativeSign(negativeSign);
        (void)f.SetNumberGroupSeparator(groupSeparator);
        (void)f.SetNumberDecimalSeparator(decimalSeparator);
        (void)f.SetNumberGroupSeparator(groupSeparator);  // again: the two may have swapped
        if (!groupSizes.empty()) (void)f.SetNumberGroupSizes(groupSizes.data(), static_cast<int>(groupSizes.size()));
        f.SetIncludePositiveSignInNumber(includePositiveSign);
    }
};

}  // namespace

LocaleConventions GetLocaleConventions(wchar_t const* locale) {
    QString const name = locale != nullptr ? QString::fromWCharArray(locale) : QString();
    QLocale const qt = name.isEmpty() ? QLocale::c() : QLocale(LocaleUtil::LocaleNameToQtLocaleName(name));
    LocaleConventions out{};
    CopyText(qt.decimalPoint(), out.decimalSeparator);
    CopyText(qt.groupSeparator(), out.groupSeparator);
    CopyText(qt.positiveSign(), out.positiveSign);
    CopyText(qt.negativeSign(), out.negativeSign);
    ReadGroupSizes(qt, out);
    ReadNativeDigits(qt, out);
    return out;
}

int ApplyLocaleConventions(UnitsFormatter& formatter, wchar_t const* locale, LocaleDigits digits) {
    LocaleConventions const conventions = GetLocaleConventions(locale != nullptr ? locale : formatter.GetLocale());
    wchar_t const latin[10] = {L'0', L'1', L'2', L'3', L'4', L'5', L'6', L'7', L'8', L'9'};
    SavedSettings const saved(formatter);
    bool const applied =
        conventions.negativeSign[0] != L'\0'
        && formatter.SetNativeDigits(digits == LocaleDigits::eNative ? conventions.nativeDigits : latin) == 0
        && formatter.SetNumberGroupSeparator(conventions.groupSeparator) == 0
        && formatter.SetNumberDecimalSeparator(conventions.decimalSeparator) == 0
        // The group separator once more: where the locale swaps "," and "." the first
        // call found its text still taken by the old decimal separator.
        && formatter.SetNumberGroupSeparator(conventions.groupSeparator) == 0
        && formatter.SetNumberGroupSizes(conventions.groupSizes, conventions.groupSizeCount) == 0;
    if (!applied) {
        saved.Restore(formatter);
        return 1;
    }
    formatter.SetPositiveSign(conventions.positiveSign);
    formatter.SetNegativeSign(conventions.negativeSign);
    formatter.SetIncludePositiveSignInNumber(false);
    return 0;
}

}  // namespace kxnorth::platform::core::units
