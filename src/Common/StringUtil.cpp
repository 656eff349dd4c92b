#define KX_SOURCE_PATH "src/Common/StringUtil"

#include "KxCoreUnitsUI/StringUtil.h"

#include <QCollator>
#include <QLocale>
#include <vector>

#include "KxAssert.h"
#include "KxCoreUnits/UnitsUtilities.h"
#include "KxCoreUnitsUI/LocaleUtil.h"

namespace kxnorth::platform::core::units {

int StringUtil::QStringToWchar(QString const& str, wchar_t* dest, int size) {
    if (dest == nullptr) return static_cast<int>(str.size());
    int count = 0;
    if (size != 0 && !str.isEmpty()) {
        if (size == -1 || str.size() < size) {
            count = str.toWCharArray(dest);
        } else if (size > 0) {
            count = str.left(size - 1).toWCharArray(dest);
        }
    }
    dest[count] = L'\0';
    return count;
}

wchar_t* StringUtil::QStringToWchar2(QString const& str, wchar_t* dest, int size) {
    KX_ASSERT(dest != NULL);
    QStringToWchar(str, dest, size);
    return dest;
}

namespace {

// Calls a catalogue lookup with `name` as a terminated UCS-4 array.
template <typename Out, typename Lookup>
int LookUpByName(QString const& name, Out& out, Lookup lookup) {
    if (name.isEmpty()) return 1;
    std::vector<wchar_t> wide(static_cast<std::size_t>(name.size()) + 1);
    wide.resize(static_cast<std::size_t>(name.toWCharArray(wide.data())) + 1);
    wide.back() = L'\0';
    return lookup(wide.data(), out);
}

template <typename Id>
QString GlobalNameOf(Id id) {
    unsigned long size = 0;
    int result = UnitsUtilities::GetGlobalNameLength(id, size);
    KX_ASSERT(result == eEOk && size > 0);
    std::vector<wchar_t> name(size);
    result = UnitsUtilities::GetGlobalName(id, name.data(), size);
    KX_ASSERT(result == eEOk);
    return QString::fromWCharArray(name.data());
}

}  // namespace

int StringUtil::GetUnitGroup(QString const& name, kxp::IDesignPropertyUnits::teGroup& group) {
    return LookUpByName(name, group, &UnitsUtilities::GetUnitGroup);
}

int StringUtil::GetUnitType(QString const& name, kxp::IDesignPropertyUnits::teType& type) {
    return LookUpByName(name, type, &UnitsUtilities::GetUnitType);
}

int StringUtil::GetUnitSymbol(QString const& name, UnitSymbol& symbol) {
    return LookUpByName(name, symbol, &UnitsUtilities::GetUnitSymbol);
}

int StringUtil::GetNumberFormatId(QString const& name, NumberFormat& format) {
    return LookUpByName(name, format, &UnitsUtilities::GetNumericFormat);
}

QString StringUtil::GetUnitGlobalName(int id) { return GlobalNameOf(id); }

QString StringUtil::GetGlobalName(NumberFormat format) { return GlobalNameOf(format); }

int StringUtil::LocaleAwareCompare(QString const& a, QString const& b) {
    if (a.isEmpty() || b.isEmpty()) return 0;
    // Names sort in the order of the user's own locale, whatever locale the library
    // shows its texts in (Qt's default locale follows the library's). A user locale
    // that is not in the table ("C", "POSIX", none) collates as "en-US", like every
    // other fallback of the library.
    QCollator const collator{QLocale(locale::LocaleUtil::LocaleNameToQtLocaleName(
        locale::LocaleUtil::GetCurrentSystemLocale()))};
    int const order = collator.compare(a, b);
    return order < 0 ? -1 : (order > 0 ? 1 : 0);
}

}  // namespace kxnorth::platform::core::units
