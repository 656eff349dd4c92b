#define KX_SOURCE_PATH "src/Units/KxUnitsFormatterImp"

#include "KxUnitsFormatterImp.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cwchar>

#include "KxCoreUnits/UnitsConfig.h"
#include "KxCoreUnitsUI/StringUtil.h"
#include "KxUnitsDisplayNames.h"
#include "KxUnitsUIConfig.h"

namespace kxnorth::platform::core::units {

namespace {

// The stored token values: kind + 1, so that no stored value is 0.
int const kTokenValues[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15};

constexpr int kMaxPrecision = 99;
constexpr int kSymbolPartMask = 0xFF00000;

// Copies at most size - 1 characters and always terminates (size must be at least 1).
void BoundedCopy(std::wstring const& text, wchar_t* buffer, unsigned long size) {
    if (buffer == nullptr || size == 0) return;
    std::size_t const n = std::min<std::size_t>(text.size(), size - 1);
    std::wmemcpy(buffer, text.data(), n);
    buffer[n] = L'\0';
}

bool IsPureGroup(int id) { return (id & kGroupMask) != 0 && (id & 0xFF00FFF) == 0; }
bool IsUnit(int id) { return (id & kUnitIndexMask) != 0 && (id & kSymbolPartMask) == 0; }

int NameLength(QString const& name, unsigned long& length) {
    length = name.isEmpty() ? 0 : static_cast<unsigned long>(StringUtil::QStringToWchar(name, nullptr, 0)) + 1;
    return 0;
}

int CopyName(QString const& name, wchar_t* buffer, unsigned long size) {
    if (buffer == nullptr) return 1;
    StringUtil::QStringToWchar(name, buffer, static_cast<int>(std::min<unsigned long>(size, 0x7FFFFFFF)));
    return 0;
}

}  // namespace

UnitsFormatterImp::UnitsFormatterImp(wchar_t const* locale)
    : m_displayNames(std::make_unique<UnitsDisplayNames>(locale)),
      m_localeName(UnitsUIConfig::ConvertString(m_displayNames->locale())) {
    for (int d = 0; d < 10; ++d) AddToken(std::wstring(1, m_numbers.digits[d]), static_cast<NumberTokenKind>(d));
    AddToken(L"e", eNTExponentMark);
    AddToken(L"E", eNTExponentMark);
    AddToken(m_numbers.positiveSign, eNTPositiveSign);
    AddToken(m_numbers.negativeSign, eNTNegativeSign);
    AddToken(m_numbers.groupSeparator, eNTGroupSeparator);
    AddToken(m_numbers.decimalSeparator, eNTDecimalSeparator);
}

void UnitsFormatterImp::AddToken(std::wstring const& text, NumberTokenKind kind) {
    // Not owned; an existing key keeps its kind, as at construction.
    m_numberTokens.Add(text.c_str(), &kTokenValues[kind], false, true);
    RefreshAsciiNumberTokens();
}

void UnitsFormatterImp::EraseToken(std::wstring const& text) {
    m_numberTokens.Erase(text.c_str());
    RefreshAsciiNumberTokens();
}

void UnitsFormatterImp::EraseIfStillKind(std::wstring const& text, NumberTokenKind kind) {
    UnitsStringDict<int const>::Match const m = m_numberTokens.Find(text.c_str());
    if (m.value != nullptr && *m.value - 1 == kind) EraseToken(text);
}

UnitsFormatterImp::NumberTokenMatch UnitsFormatterImp::FindNumberToken(wchar_t const* text) const {
    UnitsStringDict<int const>::Match const m = m_numberTokens.Find(text);
    if (m.value == nullptr || m.length == 0) return {-1, 0};
    return {*m.value - 1, static_cast<int>(m.length)};
}

void UnitsFormatterImp::RefreshAsciiNumberTokens() {
    m_asciiNumberTokens.fill(kNoNumberToken);
    // Keys are told apart by their first character at the root: one branch per
    // character, or a single run when the dictionary holds one key. The empty key
    // (an empty sign) matches nothing a number is read from.
    using Node = UnitsStringDict<int const>::DictNode;
    auto note = [this](wchar_t c, Node const* next) {
        if (static_cast<std::uint32_t>(c) >= m_asciiNumberTokens.size()) return;
        bool const alone = next != nullptr && next->IsLeaf() && next->value != nullptr;
        m_asciiNumberTokens[static_cast<std::size_t>(c)] =
            alone ? static_cast<signed char>(*next->value - 1) : kAskNumberTokens;
    };
    Node const& root = m_numberTokens.Root();
    if (!root.isRun) {
        for (auto const& [c, child] : root.branches) note(c, child.get());
    } else if (!root.run.empty()) {
        note(root.run[0], nullptr);
    }
}

// --- Number text -----------------------------------------------------------------

int UnitsFormatterImp::FormatNumber(double value, wchar_t* buffer, unsigned long size, int flags) const {
    return units::FormatNumber(m_numbers, value, buffer, size, flags);
}

int UnitsFormatterImp::FormatNumberAsFraction(double value, wchar_t* buffer, unsigned long size, int flags) const {
    return units::FormatNumberAsFraction(m_numbers, value, buffer, size, flags);
}

int UnitsFormatterImp::FormatNumberWithPrecision(double value, int precision, wchar_t* buffer,
                                                 unsigned long size, int flags) const {
    if (precision == m_numbers.precision) return FormatNumber(value, buffer, size, flags);
    NumberSettings settings = m_numbers;
    settings.precision = precision;
    return units::FormatNumber(settings, value, buffer, size, flags);
}

int UnitsFormatterImp::ReverseCopy(wchar_t* destination, std::wstring const& source, unsigned long size) {
    return units::ReverseCopy(destination, source, size);
}

// --- Settings --------------------------------------------------------------------

void UnitsFormatterImp::GetNativeDigits(wchar_t* out) const { std::wmemcpy(out, m_numbers.digits, 10); }

int UnitsFormatterImp::SetNativeDigits(wchar_t const* digits) {
    for (int i = 0; i < 10; ++i) {
        for (int j = i + 1; j < 10; ++j) {
            if (digits[i] == digits[j]) return 1;
        }
    }
    for (int d = 0; d < 10; ++d) EraseToken(std::wstring(1, m_numbers.digits[d]));
    std::wmemcpy(m_numbers.digits, digits, 10);
    for (int d = 0; d < 10; ++d) AddToken(std::wstring(1, digits[d]), static_cast<NumberTokenKind>(d));
    return 0;
}

void UnitsFormatterImp::GetPositiveSign(wchar_t* buffer, unsigned long size) const {
    BoundedCopy(m_numbers.positiveSign, buffer, size);
}

void UnitsFormatterImp::GetNegativeSign(wchar_t* buffer, unsigned long size) const {
    BoundedCopy(m_numbers.negativeSign, buffer, size);
}

void UnitsFormatterImp::GetNumberDecimalSeparator(wchar_t* buffer, unsigned long size) const {
    BoundedCopy(m_numbers.decimalSeparator, buffer, size);
}

void UnitsFormatterImp::GetNumberGroupSeparator(wchar_t* buffer, unsigned long size) const {
    BoundedCopy(m_numbers.groupSeparator, buffer, size);
}

// The signs' old text is erased whatever kind it carries now; the separators below
// check first. The difference is deliberate and kept.
void UnitsFormatterImp::SetPositiveSign(wchar_t const* sign) {
    if (sign == nullptr) return;
    EraseToken(m_numbers.positiveSign);
    m_numbers.positiveSign = sign;
    AddToken(m_numbers.positiveSign, eNTPositiveSign);
}

void UnitsFormatterImp::SetNegativeSign(wchar_t const* sign) {
    if (sign == nullptr) return;
    EraseToken(m_numbers.negativeSign);
    m_numbers.negativeSign = sign;
    AddToken(m_numbers.negativeSign, eNTNegativeSign);
}

int UnitsFormatterImp::SetNumberDecimalSeparator(wchar_t const* separator) {
    if (separator == nullptr || *separator == L'\0') return 1;
    EraseIfStillKind(m_numbers.decimalSeparator, eNTDecimalSeparator);
    m_numbers.decimalSeparator = separator;
    AddToken(m_numbers.decimalSeparator, eNTDecimalSeparator);
    return 0;
}

int UnitsFormatterImp::SetNumberGroupSeparator(wchar_t const* separator) {
    if (separator == nullptr || *separator == L'\0') return 1;
    EraseIfStillKind(m_numbers.groupSeparator, eNTGroupSeparator);
    m_numbers.groupSeparator = separator;
    AddToken(m_numbers.groupSeparator, eNTGroupSeparator);
    return 0;
}

int UnitsFormatterImp::GetNumberDecimalPrecision() const { return m_numbers.precision; }

int UnitsFormatterImp::SetNumberDecimalPrecision(int precision) {
    if (static_cast<unsigned>(precision) > kMaxPrecision) return 1;
    m_numbers.precision = precision;
    return 0;
}

NumberFormat UnitsFormatterImp::GetNumericFormat() const { return m_numbers.format; }
void UnitsFormatterImp::SetNumericFormat(NumberFormat format) { m_numbers.format = format; }

int UnitsFormatterImp::GetNumberGroupSizes(int* out) const {
    if (out != nullptr) std::copy(m_numbers.groupSizes.begin(), m_numbers.groupSizes.end(), out);
    return static_cast<int>(m_numbers.groupSizes.size());
}

int UnitsFormatterImp::SetNumberGroupSizes(int const* sizes, int count) {
    if (count < 1 || sizes == nullptr) return 1;
    for (int i = 0; i + 1 < count; ++i) {
        if (sizes[i] < 1 || sizes[i] > 9) return 1;
    }
    if (sizes[count - 1] < 0 || sizes[count - 1] > 9) return 1;  // only the last may be 0
    m_numbers.groupSizes.assign(sizes, sizes + count);
    return 0;
}

bool UnitsFormatterImp::AllowTwoDigitExponent() const { return m_numbers.allowTwoDigitExponent; }
void UnitsFormatterImp::SetAllowTwoDigitExponent(bool value) { m_numbers.allowTwoDigitExponent = value; }
bool UnitsFormatterImp::IncludePositiveSignInNumber() const { return m_numbers.includePositiveSignInNumber; }
void UnitsFormatterImp::SetIncludePositiveSignInNumber(bool value) { m_numbers.includePositiveSignInNumber = value; }
bool UnitsFormatterImp::IncludeNegativeSignInNumber() const { return m_numbers.includeNegativeSignInNumber; }
void UnitsFormatterImp::SetIncludeNegativeSignInNumber(bool value) { m_numbers.includeNegativeSignInNumber = value; }
bool UnitsFormatterImp::IncludePositiveSignInExponent() const { return m_numbers.includePositiveSignInExponent; }
void UnitsFormatterImp::SetIncludePositiveSignInExponent(bool value) { m_numbers.includePositiveSignInExponent = value; }
bool UnitsFormatterImp::IncludeNegativeSignInExponent() const { return m_numbers.includeNegativeSignInExponent; }
void UnitsFormatterImp::SetIncludeNegativeSignInExponent(bool value) { m_numbers.includeNegativeSignInExponent = value; }

// --- Names -----------------------------------------------------------------------

int UnitsFormatterImp::GetDisplayNameLength(int id, unsigned long& length) const {
    if (IsPureGroup(id)) return NameLength(m_displayNames->GroupName(static_cast<UnitsDisplayNames::teGroup>(id)), length);
    if (IsUnit(id)) return NameLength(m_displayNames->unitName(static_cast<UnitsDisplayNames::teType>(id)), length);
    return UnitsUIConfig::GetInstance()->GetDisplayNameLength(id, length, m_displayNames->locale());
}

int UnitsFormatterImp::GetDisplayName(int id, wchar_t* buffer, unsigned long size) const {
    if (buffer == nullptr) return 1;
    if (IsPureGroup(id)) return CopyName(m_displayNames->GroupName(static_cast<UnitsDisplayNames::teGroup>(id)), buffer, size);
    if (IsUnit(id)) return CopyName(m_displayNames->unitName(static_cast<UnitsDisplayNames::teType>(id)), buffer, size);
    return UnitsUIConfig::GetInstance()->GetDisplayName(id, buffer, size, m_displayNames->locale());
}

int UnitsFormatterImp::GetNumberFormatDisplayNameLength(NumberFormat format, unsigned long& length) const {
    return NameLength(m_displayNames->numberFormatName(format), length);
}

int UnitsFormatterImp::GetNumberFormatDisplayName(NumberFormat format, wchar_t* buffer, unsigned long size) const {
    return CopyName(m_displayNames->numberFormatName(format), buffer, size);
}

// --- Default units and symbols ---------------------------------------------------

int UnitsFormatterImp::GetDefaultSymbol(int unit) const {
    auto it = m_defaultSymbols.find(unit & kIdentityMask);
    if (it != m_defaultSymbols.end()) return it->second;
    if ((unit & kUnitIndexMask) == 0 || (unit & kSymbolPartMask) != 0) return 0;
    int const symbol = unit | kDefaultSymbolBit;
    return UnitsUIConfig::GetInstance()->FindSymbol(symbol, *m_displayNames) != nullptr ? symbol : 0;
}

int UnitsFormatterImp::SetDefaultSymbol(int symbol) {
    if (UnitsUIConfig::GetInstance()->FindSymbol(symbol, *m_displayNames) == nullptr) return 1;
    m_defaultSymbols[symbol & kUnitMask] = symbol;
    return 0;
}

int UnitsFormatterImp::GetDefaultUnit(int group) const {
    auto it = m_defaultUnits.find(group & kIdentityMask);
    if (it != m_defaultUnits.end()) return it->second;
    if (!IsPureGroup(group)) return 0;
    int const unit = group | 1;
    return UnitsConfig::GetInstance()->FindConverter(unit) != nullptr ? unit : 0;
}

int UnitsFormatterImp::SetDefaultUnit(int unit) {
    if (UnitsConfig::GetInstance()->FindConverter(unit) == nullptr) return 1;
    m_defaultUnits[unit & kGroupMask] = unit & kUnitMask;
    return 0;
}

int UnitsFormatterImp::MakeSymbol(int id) const {
    if ((id & kSymbolPartMask) != 0) return id;
    int unit = id;
    if ((id & kUnitIndexMask) == 0) {
        auto it = m_defaultUnits.find(id & kIdentityMask);
        unit = it != m_defaultUnits.end() ? it->second : (id | 1);
    }
    auto it = m_defaultSymbols.find(unit & kIdentityMask);
    return it != m_defaultSymbols.end() ? it->second : (unit | kDefaultSymbolBit);
}

wchar_t const* UnitsFormatterImp::GetLocale() const { return m_localeName.c_str(); }

// --- Number tokens ---------------------------------------------------------------

int UnitsFormatterImp::CheckToken(wchar_t const* text) const {
    if (text == nullptr || *text == L'\0') return -1;
    UnitsStringDict<int const>::Match const m = m_numberTokens.Find(text);
    return m.value != nullptr && m.length > 0 ? *m.value - 1 : -1;
}

int UnitsFormatterImp::ParseNumber(wchar_t const* text, double* value, int* flags, int* start) const {
    if (text == nullptr || value == nullptr) return -1;
    // Most numbers typed are an optional sign and digits, each a token of one ASCII
    // character, before a character that starts no token. Those are read here, with
    // the same arithmetic as below; anything else is read below from the start.
    int found = 0;
    int length = 0;
    signed char entry = AsciiNumberToken(text[0]);
    if (entry == eNTPositiveSign || entry == eNTNegativeSign) {
        found = entry == eNTNegativeSign ? ePNLeadingNegativeSign : ePNLeadingPositiveSign;
        entry = AsciiNumberToken(text[++length]);
    }
    if (entry >= eNTDigit0 && entry <= eNTDigit0 + 9) {
        double whole = 0;
        do {
            whole = whole * 10 + entry;
            entry = AsciiNumberToken(text[++length]);
        } while (entry >= eNTDigit0 && entry <= eNTDigit0 + 9);
        if (entry == kNoNumberToken) {
            *value = (found & ePNLeadingNegativeSign) != 0 ? -whole : whole;
            if (flags != nullptr) *flags = found | ePNWholeDigits;
            if (start != nullptr) *start = 0;
            return length;
        }
    }
    return ParseNumberAnywhere(text, value, flags, start);
}

int UnitsFormatterImp::ParseNumberAnywhere(wchar_t const* text, double* value, int* flags, int* start) const {
    enum State { kStart, kAfterSign, kWhole, kAfterPoint, kDecimals, kAfterMark, kAfterExpSign, kExpDigits };
    for (int offset = 0;; ++offset) {
        wchar_t const* p = text + offset;
        State state = kStart;
        double whole = 0, decimals = 0, scale = 1;
        int exponent = 0, found = 0, length = 0, consumed = 0;
        bool negative = false, exponentNegative = false;
        for (;;) {
            NumberTokenMatch const m = MatchNumberToken(p + consumed);
            if (m.kind < 0) break;
            int const kind = m.kind;
            int const next = consumed + m.length;
            if (kind <= 9) {
                if (state == kStart || state == kAfterSign || state == kWhole) {
                    whole = whole * 10 + kind;
                    state = kWhole;
                    found |= ePNWholeDigits;
                } else if (state == kAfterPoint || state == kDecimals) {
                    decimals = decimals * 10 + kind;
                    scale *= 10;
                    state = kDecimals;
                    found |= ePNDecimalDigits;
                } else {
                    exponent = exponent < 100000 ? exponent * 10 + kind : exponent;
                    state = kExpDigits;
                    found |= ePNExponentDigits;
                }
                consumed = next;
                length = next;
                continue;
            }
            if (kind == eNTGroupSeparator && state == kWhole) {
                found |= ePNGroupSeparator;
                consumed = length = next;
                continue;
            }
            if (kind == eNTDecimalSeparator && (state == kStart || state == kAfterSign || state == kWhole)) {
                if (state == kWhole) length = next;
                found |= ePNDecimalSeparator;
                state = kAfterPoint;
                consumed = next;
                continue;
            }
            if (kind == eNTPositiveSign || kind == eNTNegativeSign) {
                bool const minus = kind == eNTNegativeSign;
                if (state == kStart) {
                    negative = minus;
                    found |= minus ? ePNLeadingNegativeSign : ePNLeadingPositiveSign;
                    state = kAfterSign;
                } else if (state == kAfterMark) {
                    exponentNegative = minus;
                    found |= minus ? ePNExponentNegativeSign : ePNExponentPositiveSign;
                    state = kAfterExpSign;
                } else {
                    break;
                }
                consumed = next;
                continue;
            }
            if (kind == eNTExponentMark && m.length == 1 &&
                (state == kWhole || state == kDecimals || (state == kAfterPoint && length > 0))) {
                state = kAfterMark;
                consumed = next;
                continue;
            }
            break;
        }
        if (length > 0) {
            double result = whole + decimals / scale;
            if (negative) result = -result;
            if (exponent != 0) result *= std::pow(10.0, exponentNegative ? -exponent : exponent);
            *value = result;
            if (flags != nullptr) *flags = found;
            if (start != nullptr) *start = offset;
            return length;
        }
        if (start == nullptr || text[offset] == L'\0') return 0;
    }
}

}  // namespace kxnorth::platform::core::units
