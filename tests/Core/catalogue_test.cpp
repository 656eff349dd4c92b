// The unit catalogue: its shape, its identifiers and its conversion factors.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "KxCoreUnits/UnitsConfig.h"
#include "KxCoreUnits/UnitsUtilities.h"

namespace units = kxnorth::platform::core::units;
using units::UnitsConfig;
using units::UnitsUtilities;

namespace {

std::vector<int> Ids(std::size_t (UnitsConfig::*get)(int, int*) const, int owner) {
    UnitsConfig const* config = UnitsConfig::GetInstance();
    std::vector<int> ids((config->*get)(owner, nullptr));
    (config->*get)(owner, ids.data());
    return ids;
}

std::vector<int> Groups() {
    UnitsConfig const* config = UnitsConfig::GetInstance();
    std::vector<int> ids(config->GetUnitGroups(nullptr));
    config->GetUnitGroups(ids.data());
    return ids;
}

int UnitId(wchar_t const* globalName) {
    kxp::IDesignPropertyUnits::teType type{};
    EXPECT_EQ(UnitsUtilities::GetUnitType(globalName, type), units::eEOk) << globalName;
    return type;
}

double ToBase(int unit, double value) {
    units::UnitConverter const* c = UnitsConfig::GetInstance()->FindConverter(unit);
    double base = NAN;
    EXPECT_NE(c, nullptr);
    if (c) {
        EXPECT_EQ(c->ConvertToBase(&base, c->GetDimTag(), value), 0);
    }
    return base;
}

}  // namespace

TEST(CatalogueShape, CountsMatchThePublishedCatalogue) {
    std::vector<int> const groups = Groups();
    ASSERT_EQ(groups.size(), 73u);
    EXPECT_EQ(groups.front(), 0x1000);
    EXPECT_EQ(groups.back(), 0x49000);

    std::size_t unitCount = 0, symbolCount = 0, maxUnitIndex = 0;
    std::map<int, int> perIndex;
    for (int g : groups) {
        for (int u : Ids(&UnitsConfig::GetUnitTypes, g)) {
            ++unitCount;
            maxUnitIndex = std::max<std::size_t>(maxUnitIndex, u & 0xFFF);
            for (int s : Ids(&UnitsConfig::GetUnitSymbols, u)) {
                ++symbolCount;
                ++perIndex[s >> 20];
            }
        }
    }
    EXPECT_EQ(unitCount, 806u);
    EXPECT_EQ(symbolCount, 1912u);
    EXPECT_EQ(maxUnitIndex, 0x61u);
    std::map<int, int> const expected{{1, 806}, {2, 677}, {3, 267}, {4, 85}, {5, 43},
                                      {6, 10},  {7, 8},   {8, 8},   {9, 7},  {10, 1}};
    EXPECT_EQ(perIndex, expected);
}

TEST(CatalogueShape, IdentifiersAreUniqueAndNestInTheirOwners) {
    std::set<int> seen;
    for (int g : Groups()) {
        EXPECT_EQ(g & ~0xFF000, 0);
        EXPECT_TRUE(seen.insert(g).second);
        for (int u : Ids(&UnitsConfig::GetUnitTypes, g)) {
            EXPECT_EQ(u & 0xFF000, g);
            EXPECT_TRUE(seen.insert(u).second);
            std::vector<int> const symbols = Ids(&UnitsConfig::GetUnitSymbols, u);
            ASSERT_FALSE(symbols.empty());
            EXPECT_EQ(symbols.front(), u | 0x100000) << "the default symbol comes first";
            for (int s : symbols) {
                EXPECT_EQ(s & 0xFFFFF, u);
                EXPECT_TRUE(seen.insert(s).second);
            }
        }
    }
}

TEST(CatalogueShape, UnitsOfAGroupShareTheGroupsDimensions) {
    UnitsConfig const* config = UnitsConfig::GetInstance();
    for (int g : Groups()) {
        units::UnitConverter const* first = config->FindConverter(g | 1);
        ASSERT_NE(first, nullptr) << std::hex << g;
        for (int u : Ids(&UnitsConfig::GetUnitTypes, g)) {
            units::UnitConverter const* c = config->FindConverter(u);
            ASSERT_NE(c, nullptr);
            EXPECT_TRUE(c->IsCompatible(first->GetDimTag())) << std::hex << u;
        }
    }
}

TEST(CatalogueShape, EveryUnitRoundTripsThroughBaseUnits) {
    UnitsConfig const* config = UnitsConfig::GetInstance();
    double const values[] = {0.0, 1.0, -1.0, 0.1, 12.345, -273.15, 1e-9, 6.02e23};
    for (int g : Groups()) {
        for (int u : Ids(&UnitsConfig::GetUnitTypes, g)) {
            units::UnitConverter const* c = config->FindConverter(u);
            for (double v : values) {
                double base = NAN, back = NAN;
                ASSERT_EQ(c->ConvertToBase(&base, c->GetDimTag(), v), 0);
                ASSERT_EQ(c->ConvertFromBase(c->GetDimTag(), back, base), 0);
                EXPECT_NEAR(back, v, 1e-12 * std::max(1.0, std::abs(v)) + 1e-12 * std::abs(c->GetOffset()))
                    << std::hex << u << " value " << v;
            }
        }
    }
}

TEST(CatalogueShape, ConversionRefusesOtherDimensions) {
    UnitsConfig const* config = UnitsConfig::GetInstance();
    units::UnitConverter const* meter = config->FindConverter(0x2001);
    units::UnitConverter const* celsius = config->FindConverter(0x2A002);
    double out = 42;
    EXPECT_NE(meter->ConvertToBase(&out, celsius->GetDimTag(), 1.0), 0);
    EXPECT_NE(celsius->ConvertFromBase(meter->GetDimTag(), out, 1.0), 0);
    EXPECT_EQ(out, 42);
}

// Published exact definitions (NIST SP 811 appendix B, SI brochure, 1959 yard and pound).
struct Relation {
    wchar_t const* unit;
    double valueInBase;  // one unit in coherent SI base units
};

TEST(CatalogueFactors, AgreeWithTheirDefinitions) {
    double const pi = 3.14159265358979323846;
    Relation const relations[] = {
        {L"Inch", 0.0254}, {L"Foot", 0.3048}, {L"FootUSSurvey", 1200.0 / 3937.0}, {L"Yard", 0.9144},
        {L"Mile", 1609.344}, {L"NauticalMile", 1852}, {L"Acre", 4046.8564224}, {L"Liter", 1e-3},
        {L"GallonUSFluidWine", 3.785411784e-3}, {L"GallonImperial", 4.54609e-3}, {L"CubicFoot", 0.028316846592},
        {L"Pound", 0.45359237}, {L"OunceAvoirdupois", 0.028349523125}, {L"PoundForce", 4.4482216152605},
        {L"Kip", 4448.2216152605}, {L"PoundPerSquareInch", 6894.757293168361}, {L"Bar", 1e5},
        {L"BritishThermalUnitInternationalTable", 1055.05585262}, {L"CalorieThermochemical", 4.184},
        {L"KilowattHour", 3.6e6}, {L"HorsepowerImperialMechanical", 745.69987158227022}, {L"Radian", 1},
        {L"Degree", pi / 180}, {L"Grad", pi / 200}, {L"AngularMilNATO", 2 * pi / 6400}, {L"Day", 86400},
        {L"Hour", 3600}, {L"Kelvin", 1}, {L"DegreeRankine", 5.0 / 9.0}, {L"Steradian", 1},
        {L"YearJulian", 365.25 * 86400}, {L"YearGregorian", 365.2425 * 86400},
    };
    for (Relation const& r : relations) {
        SCOPED_TRACE(std::wstring(r.unit).size());
        double const got = ToBase(UnitId(r.unit), 1.0);
        EXPECT_NEAR(got / r.valueInBase, 1.0, 1e-12) << "unit " << std::string(r.unit, r.unit + wcslen(r.unit));
    }
}

TEST(CatalogueFactors, TemperatureScalesMeetAtTheirFixedPoints) {
    int const celsius = UnitId(L"DegreeCelsius");
    int const fahrenheit = UnitId(L"DegreeFahrenheit");
    EXPECT_NEAR(ToBase(celsius, 0), 273.15, 1e-12);
    EXPECT_NEAR(ToBase(celsius, 100), 373.15, 1e-12);
    EXPECT_NEAR(ToBase(fahrenheit, 32), 273.15, 1e-12);
    EXPECT_NEAR(ToBase(fahrenheit, 212), 373.15, 1e-12);
    EXPECT_NEAR(ToBase(fahrenheit, -40), ToBase(celsius, -40), 1e-12);
    EXPECT_NEAR(ToBase(fahrenheit, -459.67), 0, 1e-12);
}

TEST(GenericConverterArithmetic, ProductsAndQuotientsCombineFactorsAndExponents) {
    int const length[7] = {1, 0, 0, 0, 0, 0, 0};
    int const time[7] = {0, 0, 1, 0, 0, 0, 0};
    units::GenericConverter const foot(0.3048, length), minute(60, time);
    units::GenericConverter const area = foot * foot;
    EXPECT_DOUBLE_EQ(area.GetFactor(), 0.3048 * 0.3048);
    EXPECT_EQ(area.GetDimTag()[0], 2);
    units::GenericConverter const speed = foot / minute;
    EXPECT_DOUBLE_EQ(speed.GetFactor(), 0.3048 / 60);
    EXPECT_EQ(speed.GetDimTag()[0], 1);
    EXPECT_EQ(speed.GetDimTag()[2], -1);
}

TEST(GenericConverterArithmetic, HugeExponentsSaturateInsteadOfWrapping) {
    int const big[7] = {std::numeric_limits<int>::max(), std::numeric_limits<int>::min(), 0, 0, 0, 0, 0};
    units::GenericConverter const q(2, big);
    units::GenericConverter const product = q * q;
    EXPECT_EQ(product.GetDimTag()[0], std::numeric_limits<int>::max());
    EXPECT_EQ(product.GetDimTag()[1], std::numeric_limits<int>::min());
    units::GenericConverter const quotient = q / q;
    EXPECT_EQ(quotient.GetDimTag()[0], 0);
    units::GenericConverter const inverse = units::GenericConverter(1, {}) / q;
    EXPECT_EQ(inverse.GetDimTag()[1], std::numeric_limits<int>::max());
}
