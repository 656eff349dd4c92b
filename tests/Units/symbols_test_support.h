// Support for the symbol tests: a reader that cuts typed text into a parse list the
// way the parse driver does (a number where one starts, else the longest known symbol
// text), the fixed parse symbols and a few unit symbols, dimension vectors, and a
// formatter shared by a test suite.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <cwchar>
#include <memory>
#include <string>
#include <vector>

#include "KxCoreUnits/UnitsConfig.h"
#include "KxCoreUnitsUI/UnitsManager.h"
#include "KxUnitsFormatterImp.h"
#include "KxUnitsStringDict.h"
#include "KxUnitsSymbols.h"
#include "KxUnitsSymbols2.h"

namespace symbols_test {

namespace units = kxnorth::platform::core::units;
using Dims = int[units::kDimensionCount];

inline constexpr Dims kAngle = {0, 0, 0, 0, 0, 0, 0};
inline constexpr Dims kLength = {1, 0, 0, 0, 0, 0, 0};
inline constexpr Dims kArea = {2, 0, 0, 0, 0, 0, 0};
inline constexpr Dims kVolume = {3, 0, 0, 0, 0, 0, 0};
inline constexpr Dims kTime = {0, 0, 1, 0, 0, 0, 0};
inline constexpr Dims kMass = {0, 1, 0, 0, 0, 0, 0};
inline constexpr Dims kVelocity = {1, 0, -1, 0, 0, 0, 0};
inline constexpr Dims kForce = {1, 1, -2, 0, 0, 0, 0};
inline constexpr Dims kTorque = {2, 1, -2, 0, 0, 0, 0};
inline constexpr Dims kPower = {2, 1, -3, 0, 0, 0, 0};
inline constexpr Dims kConductance = {-2, -1, 3, 2, 0, 0, 0};
inline constexpr Dims kTemperature = {0, 0, 0, 0, 1, 0, 0};
inline constexpr Dims kTemperatureRate = {0, 0, -1, 0, 1, 0, 0};

// Catalogue units the tests read values in.
inline constexpr int kMeter = 0x2001, kInch = 0x2016, kFoot = 0x2017, kDegree = 0x8002, kRadian = 0x8001,
                     kSecond = 0x2C001, kMinute = 0x2C016, kDay = 0x2C018, kKelvin = 0x2A001,
                     kCelsius = 0x2A002, kFahrenheit = 0x2A003, kRankine = 0x2A004, kKilogram = 0x5001,
                     kGram = 0x5002, kGrad = 0x8004, kNewton = 0x17001, kWatt = 0x1D001, kSiemens = 0x27001;

inline std::string Narrow(std::wstring const& w) {
    std::string s;
    for (wchar_t c : w) {
        if (c < 128) {
            s += static_cast<char>(c);
        } else {
            char code[16];
            std::snprintf(code, sizeof code, "<U+%04X>", static_cast<unsigned>(c));
            s += code;
        }
    }
    return s;
}

// `value` in `unit` as a number of base units, and back.
inline double ToBase(double value, int unit) {
    auto const* c = units::UnitsConfig::GetInstance()->FindConverter(unit);
    double base = 0;
    EXPECT_EQ(c->ConvertToBase(&base, c->GetDimTag(), value), 0);
    return base;
}
inline double FromBase(double base, int unit) {
    auto const* c = units::UnitsConfig::GetInstance()->FindConverter(unit);
    double value = 0;
    EXPECT_EQ(c->ConvertFromBase(c->GetDimTag(), value, base), 0);
    return value;
}

// The parse symbols a reader knows: one instance per class, as the parse dictionary
// holds them, plus unit symbols.
class SymbolTable {
public:
    SymbolTable() {
        Add<units::DivisionSymbol>({L"/"});
        Add<units::SpaceSymbol>({L" "});
        Add<units::MultiplicationSymbol>({L"\u00B7"});
        Add<units::SquareSymbol>({L"\u00B2"});
        Add<units::CubicSymbol>({L"\u00B3"});
        Add<units::LeftParenthesisSymbol>({L"(", L"\uFF08"});
        Add<units::RightParenthesisSymbol>({L")", L"\uFF09"});
        Add<units::PrimeSymbol>({L"'", L"\u2032", L"\u2019"});
        Add<units::DoublePrimeSymbol>({L"\"", L"\u2033", L"\u201D"});
        Add<units::DashSymbol>({L"-", L"\u2013"});
        Add<units::CaretSymbol>({L"^"});
        Add<units::DegreeSymbol>({L"\u00B0"});
        Add<units::NorthSymbol>({L"N"});
        Add<units::EastSymbol>({L"E"});
        Add<units::SouthSymbol>({L"S"});
        Add<units::WestSymbol>({L"W"});
        Add<units::DSymbol>({L"d"});
        Add<units::GSymbol>({L"g"});
        AddUnit(L"in", kInch);
        AddUnit(L"ft", kFoot);
        AddUnit(L"m", kMeter);
        AddUnit(L"s", kSecond);
        AddUnit(L"min", kMinute);
        AddUnit(L"kg", kKilogram);
        AddUnit(L"lbf", 0x17018);
        AddUnit(L"h", 0x2C017);
        AddUnit(L"kW", 0x1D007);
        Own(new units::LinearSymbol(L"\u00B0C", kCelsius, kKelvin, 1), {L"\u00B0C"});
        Own(new units::LinearSymbol2(QStringLiteral("\u00B0F"), kFahrenheit, kRankine, 1), {L"\u00B0F"});
    }

    units::IParseSymbol const* Find(wchar_t const* text, std::size_t& length) const {
        auto const match = m_dict.Find(text);
        length = match.length;
        return match.length > 0 ? match.value : nullptr;
    }

private:
    template <typename T>
    void Add(std::initializer_list<wchar_t const*> texts) {
        Own(new T, texts);
    }
    void AddUnit(wchar_t const* text, int unit) { Own(new units::GenericSymbol(text, unit, 0), {text}); }
    void Own(units::IParseSymbol* symbol, std::initializer_list<wchar_t const*> texts) {
        m_owned.emplace_back(symbol);
        for (wchar_t const* t : texts) m_dict.Add(t, symbol, false, true);
    }

    std::vector<std::unique_ptr<units::IParseSymbol>> m_owned;
    units::UnitsStringDict<units::IParseSymbol const> m_dict;
};

inline SymbolTable const& Symbols() {
    static SymbolTable const table;
    return table;
}

// A number at `text` as the number reader takes it: an optional minus sign, digits and
// an optional decimal part. Its length, or 0.
inline std::size_t ReadNumber(wchar_t const* text, double& value, int& flags) {
    std::size_t i = 0;
    flags = 0;
    if (text[i] == L'-') {
        flags |= units::eNSNegativeSign;
        ++i;
    }
    std::size_t const digitsStart = i;
    while (std::iswdigit(text[i])) ++i;
    if (text[i] == L'.') {
        flags |= units::eNSDecimals;
        ++i;
        while (std::iswdigit(text[i])) ++i;
    }
    bool const anyDigit = i > digitsStart + ((flags & units::eNSDecimals) ? 1 : 0);
    if (!anyDigit) return 0;
    value = std::wcstod(std::wstring(text, i).c_str(), nullptr);
    return i;
}

// Cuts `text` into a parse list; false on a character that starts neither.
inline bool Tokenize(std::wstring const& text, units::ParseList& list) {
    wchar_t const* p = text.c_str();
    while (*p != L'\0') {
        double value = 0;
        int flags = 0;
        if (std::size_t const n = ReadNumber(p, value, flags)) {
            list.emplace_back(new units::NumberSymbol(value, flags), true);
            p += n;
            continue;
        }
        std::size_t length = 0;
        units::IParseSymbol const* symbol = Symbols().Find(p, length);
        if (symbol == nullptr) return false;
        list.emplace_back(symbol, false);
        p += length;
    }
    return true;
}

// Reads `text` for a quantity of `dims`: the value in base units with the result's
// dimensions, or false.
inline bool Evaluate(std::wstring const& text, Dims const& dims, double& base, Dims* resultDims = nullptr) {
    units::ParseList list;
    if (!Tokenize(text, list)) return false;
    if (units::IParseSymbol::Calculate(list, dims) != 0) return false;
    auto const* result = dynamic_cast<units::ResultSymbol const*>(list.front().Get());
    if (result == nullptr) return false;
    base = result->GetConverter().GetFactor();
    if (resultDims != nullptr) {
        for (int i = 0; i < units::kDimensionCount; ++i) (*resultDims)[i] = result->GetConverter().GetDimTag()[i];
    }
    return true;
}

// The formatter of one test suite, at the en-US defaults (precision 2, "Number").
class WithFormatter : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        units::UnitsManager::Initialize();
        units::UnitsManager::GetInstance();
        s_formatter = new units::UnitsFormatterImp(L"en-US");
    }
    static void TearDownTestSuite() {
        delete s_formatter;
        s_formatter = nullptr;
    }
    void SetUp() override { s_formatter->SetNumberDecimalPrecision(2); }

    static units::UnitsFormatterImp& Formatter() { return *s_formatter; }

    // Writes `base` with `symbol` at precision `precision`; the text, or "<fail n>".
    static std::wstring Write(units::IFormatSymbol const& symbol, double base, Dims const& dims, int precision) {
        s_formatter->SetNumberDecimalPrecision(precision);
        wchar_t buffer[128];
        int const n = symbol.Format(base, dims, buffer, 128, *s_formatter);
        if (n < 0) return L"<fail " + std::to_wstring(n) + L">";
        return buffer;
    }

private:
    static inline units::UnitsFormatterImp* s_formatter = nullptr;
};

}  // namespace symbols_test
