// Evaluation of typed expressions: numbers, fractions and mixed numbers, unit
// operands, operator priority, parentheses, powers, spaces, and what must fail.
#include <random>

#include "symbols_test_support.h"

using namespace symbols_test;

namespace {

struct Row {
    wchar_t const* text;
    Dims const& dims;
    double expected;        // in `unit`; in base units when `unit` is 0
    int unit;
    Dims const* resultDims; // null: the same as `dims`
};

void ExpectValues(std::initializer_list<Row> rows) {
    for (Row const& r : rows) {
        SCOPED_TRACE(Narrow(r.text));
        double base = 0;
        Dims got{};
        ASSERT_TRUE(Evaluate(r.text, r.dims, base, &got));
        double const value = r.unit != 0 ? FromBase(base, r.unit) : base;
        EXPECT_NEAR(value, r.expected, 1e-9 * std::max(1.0, std::fabs(r.expected)));
        Dims const& want = r.resultDims != nullptr ? *r.resultDims : r.dims;
        for (int i = 0; i < units::kDimensionCount; ++i) EXPECT_EQ(got[i], want[i]) << "dimension " << i;
    }
}

struct Failure {
    wchar_t const* text;
    Dims const& dims;
};

void ExpectFailures(std::initializer_list<Failure> rows) {
    for (Failure const& r : rows) {
        SCOPED_TRACE(Narrow(r.text));
        double base = 0;
        EXPECT_FALSE(Evaluate(r.text, r.dims, base)) << "read as " << base;
    }
}

constexpr double kFootInMeters = 0.3048;

}  // namespace

TEST(Evaluation, NumbersFractionsAndMixedNumbers) {
    ExpectValues({
        {L"5 in", kLength, 5, kInch, nullptr},
        {L"-5 in", kLength, -5, kInch, nullptr},
        {L"1/2 in", kLength, 0.5, kInch, nullptr},
        {L"-1/2 in", kLength, -0.5, kInch, nullptr},
        {L"5 1/2 in", kLength, 5.5, kInch, nullptr},
        {L"-5 1/2 in", kLength, -5.5, kInch, nullptr},
        {L"-0 1/2 in", kLength, -0.5, kInch, nullptr},
        {L"5-1/2 in", kLength, 5.5, kInch, nullptr},  // a hyphen glued between whole and fraction
        {L"2.5 ft", kLength, 2.5, kFoot, nullptr},
        // A bare fraction stands in the base unit of the quantity being read.
        {L"1/2", kLength, 0.5, 0, nullptr},
        {L"3 3/4", kTime, 3.75, 0, nullptr},
    });
}

TEST(Evaluation, MalformedNumbersFail) {
    ExpectFailures({
        {L"5 -1/2 in", kLength},  // negative numerator after a whole part
        {L"5 1/-2 in", kLength},
        {L"1/0 in", kLength},     // zero denominator
        {L"5 1/0 in", kLength},
        {L"5 6 in", kLength},     // two numbers, no fraction
        {L"1/2/3 in", kLength},
        {L"5", kLength},          // a bare number is the driver's to place
        {L"in", kLength},         // a unit alone
        {L"", kLength},
        {L" ", kLength},
        {L"3 ft 2", kLength},     // the space before 2 separates, it does not multiply
        {L"1/2 \u00B0C", kTemperature},  // leftovers before a result
    });
}

TEST(Evaluation, OperatorsCombineUnitsNeverNumbers) {
    ExpectValues({
        {L"2 ft m", kArea, 2 * kFootInMeters, 0, nullptr},            // a space between units multiplies
        {L"2 ft\u00B7m", kArea, 2 * kFootInMeters, 0, nullptr},
        {L"2 ft-lbf", kTorque, 2 * kFootInMeters * 4.4482216152605, 0, nullptr},  // a dash between units too
        {L"6 m/s", kVelocity, 6, 0, nullptr},
        {L"2 m\u00B2", kArea, 2, 0, nullptr},
        {L"2 ft\u00B3", kVolume, 2 * kFootInMeters * kFootInMeters * kFootInMeters, 0, nullptr},
        {L"2 ft^2", kArea, 2 * kFootInMeters * kFootInMeters, 0, nullptr},
        {L"2 ft^1", kLength, 2, kFoot, nullptr},
    });
    ExpectFailures({
        {L"2\u00B73 ft", kLength},   // plain numbers are never multiplied
        {L"3 ft\u00B72", kLength},
        {L"2 ft^0", kArea},          // powers are whole numbers of at least 1
        {L"2 ft^-1", kArea},
        {L"2 ft^1.5", kArea},
        {L"2 ft^", kArea},
        {L"2 ^2", kArea},            // a power needs a unit on its left
        {L"2 \u00B2", kArea},
    });
}

TEST(Evaluation, PriorityGroupsEqualOperatorsFromTheLeft) {
    Dims const acceleration = {1, 0, -2, 0, 0, 0, 0};
    Dims const meterSecondSquared = {1, 0, 2, 0, 0, 0, 0};
    ExpectValues({
        // (m/s)·s is a length; m/(s·s) would be an acceleration.
        {L"2 m/s\u00B7s", kLength, 2, kMeter, nullptr},
        {L"2 m/s/s", acceleration, 2, 0, nullptr},
        // The power binds before the product and the quotient.
        {L"2 m\u00B7s^2", meterSecondSquared, 2, 0, &meterSecondSquared},
        {L"2 m/s^2", acceleration, 2, 0, nullptr},
        {L"2 ft/min^2", acceleration, 2 * kFootInMeters / 3600, 0, nullptr},
    });
}

TEST(Evaluation, ParenthesesGroupAndMustMatch) {
    Dims const acceleration = {1, 0, -2, 0, 0, 0, 0};
    ExpectValues({
        {L"2 m/(s\u00B7s)", acceleration, 2, 0, nullptr},
        {L"2 m/(s s)", acceleration, 2, 0, nullptr},
        {L"2 (m)", kLength, 2, kMeter, nullptr},
        {L"(2 m)", kLength, 2, kMeter, nullptr},
        {L"2 m/((s))", kVelocity, 2, 0, nullptr},
        {L"2 (m/s)\u00B7s", kLength, 2, kMeter, nullptr},
        {L"2 \uFF08m/s\uFF09", kVelocity, 2, 0, nullptr},
    });
    ExpectFailures({
        {L"2 (m", kLength},
        {L"2 m)", kLength},
        {L"2 (m))", kLength},
        {L") 2 m", kLength},
        {L"2 m (", kLength},
    });
}

TEST(Evaluation, OperatorsAtEitherEndFail) {
    ExpectFailures({
        {L"/2 m", kLength},
        {L"\u00B72 m", kLength},
        {L"2 m/", kLength},
        {L"2 m\u00B7", kLength},
        {L"2 m\u00B7 ", kLength},
        {L"\u00B2", kArea},
        {L"^2", kArea},
    });
}

TEST(Evaluation, LetterUnitsDependOnTheQuantity) {
    ExpectValues({
        {L"5 N", kForce, 5, kNewton, nullptr},
        {L"2 N m", kTorque, 2, 0, nullptr},
        {L"3 W", kPower, 3, kWatt, nullptr},
        {L"3 S", kConductance, 3, kSiemens, nullptr},
        {L"5 d", kTime, 5, kDay, nullptr},
        {L"5 g", kMass, 5, kGram, nullptr},
        {L"5 g", kAngle, 5, kGrad, nullptr},
        {L"45d", kAngle, 45, kDegree, nullptr},
    });
    ExpectFailures({{L"5 E", kForce}});
}

TEST(Evaluation, OffsetUnitsConvertAfterANumberAndStandForDifferencesInArithmetic) {
    Dims const kelvinPerSecond = {0, 0, -1, 0, 1, 0, 0};
    ExpectValues({
        {L"20 \u00B0C", kTemperature, 293.15, kKelvin, nullptr},
        {L"-40 \u00B0F", kTemperature, -40, kCelsius, nullptr},
        {L"98.6 \u00B0F", kTemperature, 37, kCelsius, nullptr},
        // As an operand the symbol is its difference unit: no offset.
        {L"5 \u00B0C/min", kelvinPerSecond, 5.0 / 60, 0, nullptr},
        {L"9 \u00B0F/s", kelvinPerSecond, 5, 0, nullptr},
    });
    ExpectFailures({{L"\u00B0C", kTemperature}, {L"20 \u00B0C \u00B0C", kTemperature}});
}

TEST(UnitsOwnPtr, DeletesOnlyWhatItOwns) {
    struct Counted : units::IParseSymbol {
        int* alive;
        explicit Counted(int* a) : alive(a) { ++*alive; }
        ~Counted() override { --*alive; }
        int Calculate(units::ParseList&, units::ParseIterator&, bool, units::DimensionVector const&) const override {
            return 1;
        }
    };
    int alive = 0;
    Counted kept(&alive);
    {
        units::UnitsOwnPtr<units::IParseSymbol const> slot(new Counted(&alive), true);
        EXPECT_EQ(alive, 2);
        slot.Reset(&kept, false);  // the owned one goes
        EXPECT_EQ(alive, 1);
        slot.Reset(new Counted(&alive), true);  // the borrowed one stays
        EXPECT_EQ(alive, 2);
        units::UnitsOwnPtr<units::IParseSymbol const> moved(std::move(slot));
        EXPECT_EQ(slot.Get(), nullptr);
        EXPECT_TRUE(moved.IsOwned());
        EXPECT_EQ(alive, 2);
    }
    EXPECT_EQ(alive, 1);
}

// Whatever a user types, evaluation ends with a result or a refusal: no crash, no
// endless loop, no leak (the sanitizer build checks the last two).
TEST(Evaluation, RandomTokenRunsNeverCrash) {
    wchar_t const* const vocabulary[] = {
        L"5",  L"-3", L"1.5", L"0",  L" ",  L"/",  L"\u00B7", L"\u00B2", L"^",  L"(",  L")", L"'",
        L"\"", L"-",  L"\u00B0", L"N", L"E",  L"S",  L"W",       L"d",      L"g",  L"in", L"ft", L"m",
        L"s",  L"\u00B0C",
    };
    Dims const* const contexts[] = {&kLength, &kAngle, &kTime, &kForce, &kTemperature};
    std::mt19937 random(20240611);
    std::uniform_int_distribution<int> pick(0, static_cast<int>(std::size(vocabulary)) - 1);
    std::uniform_int_distribution<int> length(1, 10);
    int successes = 0;
    for (int round = 0; round < 20000; ++round) {
        std::wstring text;
        int const n = length(random);
        for (int i = 0; i < n; ++i) text += vocabulary[pick(random)];
        units::ParseList list;
        ASSERT_TRUE(Tokenize(text, list));
        Dims const& dims = *contexts[round % std::size(contexts)];
        if (units::IParseSymbol::Calculate(list, dims) == 0) {
            ++successes;
            ASSERT_NE(dynamic_cast<units::ResultSymbol const*>(list.front().Get()), nullptr) << Narrow(text);
        }
    }
    EXPECT_GT(successes, 0);
}
