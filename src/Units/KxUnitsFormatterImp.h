// The formatter's implementation: settings, number text, the number-token dictionary,
// default units and symbols, custom symbol strings, and the format and parse drivers.
#pragma once

#include <array>
#include <cstdint>
#include <list>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "KxCoreUnits/UnitsEnums.h"
#include "KxCoreUnitsUI/KxCoreUnitsUIExport.h"
#include "KxUnitsNumberFormat.h"
#include "KxUnitsStringDict.h"

namespace kxnorth::platform::core::units {

class CustomSymbol;
class IParseSymbol;
template <typename T>
class UnitsOwnPtr;
template <typename T>
class ParseAllocator;
class UnitsDisplayNames;

// Kinds of number tokens, stored in the number-token dictionary as kind + 1.
enum NumberTokenKind : int {
    eNTDigit0 = 0,  // ... eNTDigit0 + 9
    eNTGroupSeparator = 10,
    eNTDecimalSeparator = 11,
    eNTPositiveSign = 12,
    eNTNegativeSign = 13,
    eNTExponentMark = 14,
};

// Flags ParseNumber reports.
enum ParsedNumberFlags : int {
    ePNLeadingPositiveSign = 1,
    ePNLeadingNegativeSign = 2,
    ePNExponentPositiveSign = 4,
    ePNExponentNegativeSign = 8,
    ePNGroupSeparator = 16,
    ePNDecimalSeparator = 32,
    ePNExponentDigits = 64,
    ePNWholeDigits = 128,
    ePNDecimalDigits = 256,
};

class KXCOREUNITSUI_EXPORT UnitsFormatterImp {
public:
    enum CustomSymbolStringType : int { eFormattingString = 0, eParsingString = 1 };

    // A trie over sequences of literal pieces of custom symbol strings.
    class KXCOREUNITSUI_EXPORT CustomSymbolDict {
    public:
        CustomSymbolDict() = default;
        CustomSymbolDict(CustomSymbolDict const&) = delete;
        CustomSymbolDict& operator=(CustomSymbolDict const&) = delete;
        ~CustomSymbolDict();

        using Piece = std::vector<std::wstring>::const_iterator;
        int Add(Piece first, Piece last, CustomSymbol* symbol, bool owned, bool replace);
        int Erase(Piece first, Piece last);
        // Longest non-empty piece at the start of `text` among this node's children.
        CustomSymbolDict const* Parse(wchar_t const* text, unsigned long* length) const;
        // The child reached by an empty piece (a string that starts with a number).
        CustomSymbolDict const* EmptyPiece() const;

        CustomSymbol* Value() const { return m_value; }
        bool Empty() const;

    private:
        CustomSymbol* m_value = nullptr;
        bool m_owned = false;
        UnitsStringDict<CustomSymbolDict> m_children;
    };

    struct CustomSymbolData {
        std::wstring text;
        std::vector<CustomSymbol*> symbols;  // the first one formats
    };

    explicit UnitsFormatterImp(wchar_t const* locale);
    ~UnitsFormatterImp();
    UnitsFormatterImp(UnitsFormatterImp const&) = delete;
    UnitsFormatterImp& operator=(UnitsFormatterImp const&) = delete;

    // Formatting and parsing.
    int Format(double value, int unit, wchar_t* buffer, unsigned long size, int symbol, double* rest) const;
    int Format(double baseValue, int const (&dimensions)[kDimensionCount], wchar_t* buffer,
               unsigned long size, int symbol, double* rest) const;
    int Parse(wchar_t const* text, double& value, int unit) const;
    int Parse(wchar_t const* text, double& baseValue, int const (&dimensions)[kDimensionCount], int group) const;
    int ParseNumber(wchar_t const* text, double* value, int* flags, int* start) const;
    int MakeSymbol(int id) const;
    int CheckToken(wchar_t const* text) const;

    // Number text.
    int FormatNumber(double value, wchar_t* buffer, unsigned long size, int flags) const;
    int FormatNumberAsFraction(double value, wchar_t* buffer, unsigned long size, int flags) const;
    static int ReverseCopy(wchar_t* destination, std::wstring const& source, unsigned long size);

    // Settings.
    void GetNativeDigits(wchar_t* out) const;
    int SetNativeDigits(wchar_t const* digits);
    void GetPositiveSign(wchar_t* buffer, unsigned long size) const;
    void SetPositiveSign(wchar_t const* sign);
    void GetNegativeSign(wchar_t* buffer, unsigned long size) const;
    void SetNegativeSign(wchar_t const* sign);
    void GetNumberDecimalSeparator(wchar_t* buffer, unsigned long size) const;
    int SetNumberDecimalSeparator(wchar_t const* separator);
    void GetNumberGroupSeparator(wchar_t* buffer, unsigned long size) const;
    int SetNumberGroupSeparator(wchar_t const* separator);
    int GetNumberDecimalPrecision() const;
    int SetNumberDecimalPrecision(int precision);
    NumberFormat GetNumericFormat() const;
    void SetNumericFormat(NumberFormat format);
    int GetNumberGroupSizes(int* out) const;
    int SetNumberGroupSizes(int const* sizes, int count);
    bool AllowTwoDigitExponent() const;
    void SetAllowTwoDigitExponent(bool value);
    bool IncludePositiveSignInNumber() const;
    void SetIncludePositiveSignInNumber(bool value);
    bool IncludeNegativeSignInNumber() const;
    void SetIncludeNegativeSignInNumber(bool value);
    bool IncludePositiveSignInExponent() const;
    void SetIncludePositiveSignInExponent(bool value);
    bool IncludeNegativeSignInExponent() const;
    void SetIncludeNegativeSignInExponent(bool value);

    // Custom symbol strings.
    int GetSymbolFormattingString(int symbol, wchar_t* buffer, unsigned long size) const;
    int SetSymbolFormattingString(int symbol, wchar_t const* text);
    int GetSymbolParsingString(int symbol, wchar_t* buffer, unsigned long size) const;
    int SetSymbolParsingString(int symbol, wchar_t const* text);
    int SetCustomSymbolString(int symbol, wchar_t const* text, CustomSymbolStringType type);
    static int ParseCustomString(wchar_t const* text, std::vector<std::wstring>& pieces, std::vector<int>& indices);

    // Names.
    int GetDisplayNameLength(int id, unsigned long& length) const;
    int GetDisplayName(int id, wchar_t* buffer, unsigned long size) const;
    int GetNumberFormatDisplayNameLength(NumberFormat format, unsigned long& length) const;
    int GetNumberFormatDisplayName(NumberFormat format, wchar_t* buffer, unsigned long size) const;

    // Default units and symbols.
    int GetDefaultSymbol(int unit) const;
    int SetDefaultSymbol(int symbol);
    int GetDefaultUnit(int group) const;
    int SetDefaultUnit(int unit);

    wchar_t const* GetLocale() const;
    UnitsDisplayNames const& DisplayNames() const { return *m_displayNames; }
    NumberSettings const& Numbers() const { return m_numbers; }
    UnitsStringDict<int const> const& NumberTokens() const { return m_numberTokens; }
    // False when no number can start with `c`, answered from a table for ASCII.
    bool MayStartNumberWith(wchar_t c) const { return MayStartNumber(c); }

    // Runs a formatting call at another precision without any other thread seeing a
    // changed setting: the number settings used for the call are a private copy.
    int FormatNumberWithPrecision(double value, int precision, wchar_t* buffer, unsigned long size,
                                  int flags) const;

private:
    // Every change to the number tokens goes through these two, which keep
    // m_asciiNumberTokens in step with the dictionary.
    void AddToken(std::wstring const& text, NumberTokenKind kind);
    void EraseToken(std::wstring const& text);
    // Erases `text` only when its longest match still carries `kind`: another setting
    // may have taken the key over since.
    void EraseIfStillKind(std::wstring const& text, NumberTokenKind kind);
    void RefreshAsciiNumberTokens();

    struct NumberTokenMatch {
        int kind;    // a NumberTokenKind, or -1 when no token starts the text
        int length;  // characters the token covers
    };
    // The entry of m_asciiNumberTokens for `c`; kAskNumberTokens beyond ASCII.
    signed char AsciiNumberToken(wchar_t c) const {
        auto const code = static_cast<std::uint32_t>(c);
        return code < m_asciiNumberTokens.size() ? m_asciiNumberTokens[code] : kAskNumberTokens;
    }
    // The longest number token at the start of `text`.
    NumberTokenMatch MatchNumberToken(wchar_t const* text) const {
        signed char const entry = AsciiNumberToken(*text);
        if (entry == kNoNumberToken) return {-1, 0};
        if (entry != kAskNumberTokens) return {entry, 1};
        return FindNumberToken(text);
    }
    // The dictionary's answer, for the characters the table leaves to it.
    NumberTokenMatch FindNumberToken(wchar_t const* text) const;
    // False when no number token starts with `c`: no number starts there either.
    bool MayStartNumber(wchar_t c) const { return AsciiNumberToken(c) != kNoNumberToken; }
    // ParseNumber's general reader: any token sequence, at any offset when `start` is given.
    int ParseNumberAnywhere(wchar_t const* text, double* value, int* flags, int* start) const;

    bool Tokenize(wchar_t const* text,
                  std::list<UnitsOwnPtr<IParseSymbol const>, ParseAllocator<UnitsOwnPtr<IParseSymbol const>>>& list) const;
    bool ParseCustom(wchar_t const* text, double& baseValue, int const (&dimensions)[kDimensionCount]) const;

    NumberSettings m_numbers;
    int m_reserved = 3;
    UnitsStringDict<int const> m_numberTokens;
    // For each ASCII character, what m_numberTokens answers for a text it starts:
    // kNoNumberToken, kAskNumberTokens when longer tokens start with the character,
    // or else the kind of the one token that is the character alone. Numbers are
    // looked for at every position of a typed text, and most characters there start
    // no token.
    static constexpr signed char kNoNumberToken = -1;
    static constexpr signed char kAskNumberTokens = -2;
    std::array<signed char, 128> m_asciiNumberTokens{};
    CustomSymbolDict m_customSymbols;
    std::map<int, CustomSymbolData> m_customFormattingStrings;
    std::map<int, CustomSymbolData> m_customParsingStrings;
    std::map<int, int> m_defaultSymbols;  // unit -> symbol
    std::map<int, int> m_defaultUnits;    // group -> unit
    std::unique_ptr<UnitsDisplayNames> m_displayNames;
    std::wstring m_localeName;
};

}  // namespace kxnorth::platform::core::units
