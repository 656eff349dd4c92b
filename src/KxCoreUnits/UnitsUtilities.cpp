#include "KxCoreUnits/UnitsUtilities.h"

#include <cwchar>
#include <string_view>
#include <unordered_map>

#include "Catalogue.h"

namespace kxnorth::platform::core::units {

using detail::Catalogue;

namespace {

// Global names of the number formats, indexed by NumberFormat.
constexpr wchar_t const* kNumberFormatNames[] = {
    L"Exponential", L"exponential", L"Fixed Point", L"General", L"general", L"Number", L"Fraction",
};
constexpr int kNumberFormatCount = static_cast<int>(std::size(kNumberFormatNames));

template <typename Out>
int Lookup(std::unordered_map<std::wstring_view, int> const& map, wchar_t const* name, Out& out) {
    if (name == nullptr) return eEInvalidArgument;
    auto it = map.find(name);
    if (it == map.end()) return eENotFound;
    out = static_cast<Out>(it->second);
    return eEOk;
}

wchar_t const* NameOf(int id) {
    Catalogue const& c = Catalogue::Get();
    auto it = c.names.find(id & kIdentityMask);
    return it == c.names.end() ? nullptr : it->second;
}

wchar_t const* NameOf(NumberFormat format) {
    int const i = static_cast<int>(format);
    return i >= 0 && i < kNumberFormatCount ? kNumberFormatNames[i] : nullptr;
}

int LengthOf(wchar_t const* name, unsigned long& length) {
    if (name == nullptr) return eENotFound;
    length = static_cast<unsigned long>(std::wcslen(name)) + 1;
    return eEOk;
}

int CopyName(wchar_t const* name, wchar_t* buffer, unsigned long size) {
    if (name == nullptr) return eENotFound;
    if (buffer == nullptr) return eEInvalidArgument;
    std::size_t const needed = std::wcslen(name) + 1;
    if (size < needed) return eEBufferTooSmall;
    std::wmemcpy(buffer, name, needed);
    return eEOk;
}

}  // namespace

int UnitsUtilities::GetUnitType(wchar_t const* name, teType& out) {
    return Lookup(Catalogue::Get().unitByName, name, out);
}

int UnitsUtilities::GetUnitGroup(wchar_t const* name, teGroup& out) {
    return Lookup(Catalogue::Get().groupByName, name, out);
}

int UnitsUtilities::GetUnitSymbol(wchar_t const* name, UnitSymbol& out) {
    return Lookup(Catalogue::Get().symbolByName, name, out);
}

int UnitsUtilities::GetNumericFormat(wchar_t const* name, NumberFormat& out) {
    if (name == nullptr) return eEInvalidArgument;
    for (int i = 0; i < kNumberFormatCount; ++i) {
        if (std::wcscmp(name, kNumberFormatNames[i]) == 0) {
            out = static_cast<NumberFormat>(i);
            return eEOk;
        }
    }
    return eENotFound;
}

int UnitsUtilities::GetGlobalNameLength(int id, unsigned long& length) {
    return LengthOf(NameOf(id), length);
}

int UnitsUtilities::GetGlobalName(int id, wchar_t* buffer, unsigned long size) {
    return CopyName(NameOf(id), buffer, size);
}

int UnitsUtilities::GetGlobalNameLength(NumberFormat format, unsigned long& length) {
    return LengthOf(NameOf(format), length);
}

int UnitsUtilities::GetGlobalName(NumberFormat format, wchar_t* buffer, unsigned long size) {
    return CopyName(NameOf(format), buffer, size);
}

}  // namespace kxnorth::platform::core::units
