// Ordinary unit symbols in both families, offset units, and custom symbols.
#include <memory>

#include "symbols_test_support.h"

using namespace symbols_test;

namespace {

// A unit symbol of either family; the two must behave alike.
std::unique_ptr<units::IFormatSymbol> MakeGeneric(wchar_t const* text, int unit, int flags, bool fromQString) {
    if (fromQString) return std::make_unique<units::GenericSymbol2>(QString::fromWCharArray(text), unit, flags);
    return std::make_unique<units::GenericSymbol>(text, unit, flags);
}

std::vector<std::wstring> Pieces(std::initializer_list<wchar_t const*> texts) {
    return std::vector<std::wstring>(texts.begin(), texts.end());
}

units::ParseList Numbers(std::initializer_list<double> values) {
    units::ParseList list;
    for (double v : values) list.emplace_back(new units::NumberSymbol(v, v < 0 ? units::eNSNegativeSign : 0), true);
    return list;
}

double ResultIn(units::ParseList const& list, int unit) {
    auto const* result = dynamic_cast<units::ResultSymbol const*>(list.front().Get());
    EXPECT_NE(result, nullptr);
    return result != nullptr ? FromBase(result->GetConverter().GetFactor(), unit) : std::nan("");
}

}  // namespace

class UnitSymbols : public WithFormatter {};

TEST_F(UnitSymbols, BothFamiliesWriteTheNumberAndTheText) {
    for (bool fromQString : {false, true}) {
        SCOPED_TRACE(fromQString ? "QString family" : "wchar_t family");
        auto const spaced = MakeGeneric(L"m", kMeter, 0, fromQString);
        auto const joined = MakeGeneric(L"m", kMeter, units::SimpleFormatSymbolBase::eNoSpace, fromQString);
        wchar_t buffer[32];
        // The count is that of the space, the text and the terminator only.
        EXPECT_EQ(spaced->Format(2.5, kLength, buffer, 32, Formatter()), 3);
        EXPECT_EQ(std::wstring(buffer), L"2.50 m");
        EXPECT_EQ(joined->Format(2.5, kLength, buffer, 32, Formatter()), 2);
        EXPECT_EQ(std::wstring(buffer), L"2.50m");
        EXPECT_EQ(spaced->Format(2.5, kLength, buffer, 7, Formatter()), 3);
        EXPECT_EQ(spaced->Format(2.5, kLength, buffer, 6, Formatter()), -1) << "no room for the terminator";
        EXPECT_EQ(spaced->Format(2.5, kLength, nullptr, 32, Formatter()), -1);
        EXPECT_EQ(spaced->Format(2.5, kTime, buffer, 32, Formatter()), -1) << "conversion code 1, negated";

        auto const feet = MakeGeneric(L"ft", kFoot, 0, fromQString);
        EXPECT_EQ(feet->FormatNumber(0, ToBase(3, kFoot), kLength, buffer, 32, Formatter()), 5);
        EXPECT_EQ(std::wstring(buffer), L"3.00");
        EXPECT_EQ(feet->FormatNumber(1, 1.0, kLength, buffer, 32, Formatter()), -1);
        EXPECT_EQ(feet->GetMaxIndex(0), 0);
        EXPECT_EQ(feet->GetMaxIndex(1), -1);
        EXPECT_EQ(feet->GetMaxIndex(-1), -1);
        EXPECT_EQ(std::wstring(feet->GetSymbolName()), L"ft");
    }
}

TEST(UnitSymbolParsing, ParseNumberTurnsTheLeadingNumberIntoItsValue) {
    for (bool fromQString : {false, true}) {
        auto const inch = MakeGeneric(L"in", kInch, 0, fromQString);
        units::ParseList list = Numbers({5, 7});
        ASSERT_EQ(inch->ParseNumber(list, 0), 0);
        EXPECT_DOUBLE_EQ(ResultIn(list, kInch), 5);
        EXPECT_EQ(list.size(), 2u) << "only the first element is replaced";

        units::ParseList wrongFirst;
        wrongFirst.emplace_back(new units::DivisionSymbol, true);
        wrongFirst.emplace_back(new units::NumberSymbol(5, 0), true);
        units::IParseSymbol const* before = wrongFirst.front().Get();
        EXPECT_EQ(inch->ParseNumber(wrongFirst, 0), 1);
        EXPECT_EQ(wrongFirst.front().Get(), before);
        units::ParseList empty;
        EXPECT_EQ(inch->ParseNumber(empty, 0), 1);
        units::ParseList one = Numbers({5});
        EXPECT_EQ(inch->ParseNumber(one, 1), 1);
    }
}

TEST(UnitSymbolParsing, NamesAndSymbolText) {
    units::GenericSymbolEx const unnamed(L"m", kMeter, 0, nullptr);
    units::GenericSymbolEx const named(L"m", kMeter, 0, L"meter");
    QString const name = QStringLiteral("metre");
    units::GenericSymbolEx2 const named2(QStringLiteral("m"), kMeter, 0, &name);
    units::GenericSymbolEx2 const unnamed2(QStringLiteral("m"), kMeter, 0, nullptr);
    EXPECT_EQ(std::wstring(unnamed.GetSymbolName()), L"m");
    EXPECT_EQ(std::wstring(named.GetSymbolName()), L"meter");
    EXPECT_EQ(std::wstring(named2.GetSymbolName()), L"metre");
    EXPECT_EQ(std::wstring(unnamed2.GetSymbolName()), L"m");
    EXPECT_EQ(std::wstring(units::GenericSymbolEx(L"m", kMeter, 0, L"").GetSymbolName()), L"")
        << "an empty name is still a name";
}

TEST_F(UnitSymbols, SimpleFormatSymbolWritesOnlyItsText) {
    units::SimpleFormatSymbol const spaced(L"pcs", 0);
    units::SimpleFormatSymbol2 const joined(QStringLiteral("%"), units::SimpleFormatSymbolBase::eNoSpace);
    wchar_t buffer[8];
    EXPECT_EQ(spaced.Format(1.0, kAngle, buffer, 8, Formatter()), 5);
    EXPECT_EQ(std::wstring(buffer), L" pcs");
    EXPECT_EQ(spaced.Format(1.0, kAngle, buffer, 4, Formatter()), -1);
    EXPECT_EQ(spaced.Format(1.0, kAngle, buffer, 0, Formatter()), -1);
    EXPECT_EQ(joined.Format(1.0, kAngle, buffer, 2, Formatter()), 2);
    EXPECT_EQ(std::wstring(buffer), L"%");
}

TEST_F(UnitSymbols, OffsetUnitsWriteWithTheirOffset) {
    units::LinearSymbol const celsius(L"\u00B0C", kCelsius, kKelvin, 1);
    units::LinearSymbol2 const fahrenheit(QStringLiteral("\u00B0F"), kFahrenheit, kRankine, 0);
    wchar_t buffer[32];
    EXPECT_GT(celsius.Format(293.15, kTemperature, buffer, 32, Formatter()), 0);
    EXPECT_EQ(Narrow(buffer), Narrow(L"20.00\u00B0C"));
    EXPECT_GT(fahrenheit.Format(ToBase(-40, kCelsius), kTemperature, buffer, 32, Formatter()), 0);
    EXPECT_EQ(Narrow(buffer), Narrow(L"-40.00 \u00B0F"));
    units::ParseList list = Numbers({100});
    ASSERT_EQ(celsius.ParseNumber(list, 0), 0);
    EXPECT_NEAR(ResultIn(list, kKelvin), 373.15, 1e-9);
    EXPECT_EQ(celsius.GetMaxIndex(1), -1);
}

// A feet-and-inches symbol is the base of the custom symbols below: form 0 has two
// numbers, feet (0) and inches (1).
class CustomSymbols : public WithFormatter {
protected:
    units::PrimeDoublePrimeSymbol2 const m_feetInches{QStringLiteral("ftin"), 0x502016, true, false, false};
    units::GenericSymbol const m_meter{L"m", kMeter, 0};
};

TEST_F(CustomSymbols, ValidityNeedsOneIndexPerComponentInSomeOrder) {
    struct Row {
        char const* label;
        std::vector<std::wstring> pieces;
        std::vector<int> indices;
        int form;
        bool valid;
    } const rows[] = {
        {"pieces and indices", Pieces({L"", L"ft ", L"in"}), {0, 1}, 0, true},
        {"no trailing piece", Pieces({L"", L"ft "}), {0, 1}, 0, true},
        {"inches first", Pieces({L"", L"in ", L"ft"}), {1, 0}, 0, true},
        {"pieces one fewer than indices", Pieces({L"ft"}), {0, 1}, 0, false},
        {"pieces two more", Pieces({L"", L"a", L"b", L"c"}), {0, 1}, 0, false},
        {"repeated index", Pieces({L"", L"ft ", L"in"}), {0, 0}, 0, false},
        {"index out of range", Pieces({L"", L"ft ", L"in"}), {0, 2}, 0, false},
        {"negative index", Pieces({L"", L"ft ", L"in"}), {-1, 0}, 0, false},
        {"too few indices", Pieces({L"", L"ft"}), {0}, 0, false},
        {"a form the base lacks, with a piece", Pieces({L"x"}), {}, 1, true},
        {"a form the base lacks, two pieces", Pieces({L"x", L"y"}), {}, 1, false},
        {"a form the base lacks, an index", Pieces({L"", L"x"}), {0}, 1, false},
    };
    for (Row const& r : rows) {
        SCOPED_TRACE(r.label);
        units::CustomSymbol const custom(&m_feetInches, r.pieces, r.indices, r.form);
        EXPECT_EQ(custom.IsValid(), r.valid);
        if (!r.valid) {
            EXPECT_TRUE(custom.GetStrings().empty());
            EXPECT_TRUE(custom.GetIndices().empty());
            EXPECT_EQ(custom.GetMaxIndex(r.form), -3);
            EXPECT_EQ(custom.GetSymbolName(), nullptr);
        }
    }
    EXPECT_FALSE(units::CustomSymbol(nullptr, Pieces({L""}), {}, 0).IsValid());
}

TEST_F(CustomSymbols, FormatPlacesThePiecesAroundTheNumbersInTheirOrder) {
    units::CustomSymbol const feetFirst(&m_feetInches, Pieces({L"", L"ft ", L"in"}), {0, 1}, 0);
    units::CustomSymbol const inchesFirst(&m_feetInches, Pieces({L"(", L"in, ", L"ft)"}), {1, 0}, 0);
    units::CustomSymbol const noTail(&m_feetInches, Pieces({L"", L" and "}), {0, 1}, 0);
    Formatter().SetNumberDecimalPrecision(0);
    double const base = ToBase(66, kInch);
    wchar_t buffer[32];
    EXPECT_EQ(feetFirst.Format(base, kLength, buffer, 32, Formatter()), 8);
    EXPECT_EQ(std::wstring(buffer), L"5ft 6in");
    EXPECT_GT(inchesFirst.Format(base, kLength, buffer, 32, Formatter()), 0);
    EXPECT_EQ(std::wstring(buffer), L"(6in, 5ft)");
    EXPECT_GT(noTail.Format(base, kLength, buffer, 32, Formatter()), 0);
    EXPECT_EQ(std::wstring(buffer), L"5 and 6");
    // "5ft 6in" needs 8 characters with its terminator.
    EXPECT_EQ(feetFirst.Format(base, kLength, buffer, 8, Formatter()), 8);
    EXPECT_EQ(feetFirst.Format(base, kLength, buffer, 7, Formatter()), -1);
    EXPECT_EQ(inchesFirst.Format(base, kLength, buffer, 1, Formatter()), -1) << "the first piece does not fit";
    EXPECT_EQ(feetFirst.Format(base, kLength, nullptr, 32, Formatter()), -1);
    EXPECT_EQ(feetFirst.FormatNumber(2, base, kLength, buffer, 32, Formatter()), -1);
    EXPECT_EQ(feetFirst.FormatNumber(-1, base, kLength, buffer, 32, Formatter()), -1);
    std::vector<units::CustomSymbol*> nested;
    EXPECT_EQ(feetFirst.GenerateCustomSymbols(nested, {}, {}), 3) << "custom symbols do not nest";
    EXPECT_TRUE(nested.empty());
}

TEST_F(CustomSymbols, ParseNumberReadsTheNumbersInTheirTypedOrder) {
    units::CustomSymbol const inchesFirst(&m_feetInches, Pieces({L"", L"in ", L"ft"}), {1, 0}, 0);
    units::ParseList list = Numbers({6, 5});  // "6in 5ft"
    ASSERT_EQ(inchesFirst.ParseNumber(list, 0), 0);
    EXPECT_DOUBLE_EQ(ResultIn(list, kInch), 66);
    EXPECT_EQ(list.size(), 1u);

    units::ParseList tooMany = Numbers({6, 5, 4});
    EXPECT_EQ(inchesFirst.ParseNumber(tooMany, 0), 1);
    units::ParseList tooFew = Numbers({6});
    EXPECT_EQ(inchesFirst.ParseNumber(tooFew, 0), 1);
    units::ParseList otherForm = Numbers({6, 5});
    EXPECT_EQ(inchesFirst.ParseNumber(otherForm, 1), 1);
    EXPECT_EQ(inchesFirst.GetMaxIndex(1), -1);
    EXPECT_EQ(inchesFirst.GetMaxIndex(0), 1);
    EXPECT_EQ(std::wstring(inchesFirst.GetSymbolName()), L"ftin");
}

TEST_F(CustomSymbols, AsAParseSymbolItConsumesTheNumbersWhereverItStands) {
    units::CustomSymbol const feetFirst(&m_feetInches, Pieces({L"", L"ft ", L"in"}), {0, 1}, 0);
    for (int position : {0, 1, 2}) {
        SCOPED_TRACE(position);
        units::ParseList list = Numbers({5, 6});
        list.emplace(std::next(list.begin(), position), &feetFirst, false);
        ASSERT_EQ(units::IParseSymbol::Calculate(list, kLength), 0);
        EXPECT_DOUBLE_EQ(ResultIn(list, kInch), 66);
    }
    units::ParseList refused = Numbers({5});
    refused.emplace_back(&feetFirst, false);
    EXPECT_EQ(units::IParseSymbol::Calculate(refused, kLength), 1);
}
