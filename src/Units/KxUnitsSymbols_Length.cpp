// Lengths as feet and inches (`5'-6 1/2"`, `5'6.50"`, `66 1/2"`), the minutes and
// seconds symbol of the time group that shares their writer, and the dash.
#include <cmath>
#include <iterator>

#include "KxUnitsSymbols.h"
#include "KxUnitsSymbols2.h"
#include "KxUnitsSymbols_Internal.h"

namespace kxnorth::platform::core::units {

using namespace symbols_detail;

namespace {

constexpr wchar_t kPrime = L'\'';
constexpr wchar_t kInchMark = L'"';
constexpr wchar_t kDash = L'-';

// The symbols of the catalogue this writer serves; each selects its forms.
enum class InchStyle { eDecimalFeet, eFractionFeet, eFractionInches, eOther };

InchStyle StyleOf(int symbol) {
    switch (symbol & kIdentityMask) {
        case 0x502016:  // feet and decimal inches
        case 0x602016:  // the same with a dash
        case 0x52C001:  // minutes and seconds of time
            return InchStyle::eDecimalFeet;
        case 0x702016:  // feet and fractional inches
        case 0x802016:  // the same with dashes
            return InchStyle::eFractionFeet;
        case 0x902016:  // fractional inches
        case 0xA02016:  // the same with a dash
            return InchStyle::eFractionInches;
        default:
            return InchStyle::eOther;
    }
}

// The value in the small unit, rounded once for writing, and the fraction's
// denominator (1 for decimals).
struct Rounded {
    double value;
    double denominator;
};

Rounded RoundForWriting(double v, int precision, bool fraction) {
    if (fraction) {
        // To the nearest 1/2^P (whole inches at P = 0), halves away from zero; a value
        // of exactly 0 moves down, which the split then writes as 0.
        double denominator = 1.0;
        for (int i = 0; i < precision; ++i) denominator *= 2.0;
        double const half = 0.5 / denominator;
        return {v > 0.0 ? v + half : v - half, denominator};
    }
    // Decimal inches are rounded to the display precision here, before the split, so
    // that 143.999" at two decimals is 144.00" and writes 12'0.00", never 11'12.00".
    // The guard (half a unit of the 5th digit beyond the last shown) keeps values such
    // as 1.005, stored just below, from rounding down; halves go away from zero.
    double const scale = Pow10(precision);
    double magnitude = std::fabs(v) + 1.0 / (2.0 * scale * 100000.0);
    double const scaled = magnitude * scale;
    constexpr double kBeyondDoublePrecision = 4503599627370496.0;  // 2^52: no fraction left
    if (scaled < kBeyondDoublePrecision) magnitude = std::floor(scaled + 0.5) / scale;
    return {v > 0.0 ? magnitude : -magnitude, 1.0};
}

// Halves the numerator and the denominator while the numerator is even: 8/16 is 1/2.
void ReduceFraction(double& numerator, double& denominator) {
    while (numerator != 0.0 && std::fmod(numerator, 2.0) == 0.0) {
        numerator /= 2.0;
        denominator /= 2.0;
    }
}

}  // namespace

template <typename GenericBase>
BasicPrimeDoublePrimeSymbol<GenericBase>::BasicPrimeDoublePrimeSymbol(std::wstring text, int symbol, bool showFeet,
                                                                      bool fraction, bool dash)
    : GenericBase(std::move(text), symbol & kUnitMask, 0),
      m_unit(symbol & kUnitMask),
      m_showFeet(showFeet),
      m_fraction(fraction),
      m_dash(dash),
      m_symbol(symbol) {}

template <typename GenericBase>
BasicPrimeDoublePrimeSymbol<GenericBase>::~BasicPrimeDoublePrimeSymbol() = default;

namespace {

// The parts of one value as the writer splits it.
struct InchParts {
    double feet = 0.0;
    int feetMode = kModeWhole;
    double rest = 0.0;     // inches after the feet, never negative when there are feet
    double whole = 0.0;    // fraction styles: whole inches ...
    double numerator = 0.0;  // ... and the reduced fraction
    double denominator = 1.0;
};

InchParts SplitInches(double v, int precision, bool showFeet, bool fraction, double inchesPerFoot) {
    InchParts parts;
    // Decided before rounding, so that a negative length under one foot keeps its
    // sign on the feet: -6" writes -0'-6".
    parts.feetMode = v < 0.0 ? kModeWholeSigned : kModeWhole;
    Rounded const rounded = RoundForWriting(v, precision, fraction);
    v = rounded.value;
    parts.rest = v;
    if (showFeet) {
        parts.feet = std::trunc(v / inchesPerFoot);
        parts.rest = v - parts.feet * inchesPerFoot;
        if (parts.rest < 0.0) parts.rest = parts.feet * inchesPerFoot - v;
    }
    if (fraction) {
        parts.denominator = rounded.denominator;
        parts.whole = std::trunc(parts.rest);
        parts.numerator = std::trunc(parts.denominator * (parts.rest - parts.whole));
        // The sign stays on the whole number: -66 1/2", but -1/2" under an inch.
        if (parts.numerator < 0.0 && parts.whole < 0.0) parts.numerator = -parts.numerator;
        ReduceFraction(parts.numerator, parts.denominator);
    }
    return parts;
}

}  // namespace

template <typename GenericBase>
int BasicPrimeDoublePrimeSymbol<GenericBase>::Format(double value, DimensionVector const& dims, wchar_t* buffer,
                                                     unsigned long size, UnitsFormatterImp const& formatter) const {
    if (buffer == nullptr) return -1;
    double v = 0.0;
    int const code = this->GetConverter().ConvertFromBase(dims, v, value);
    if (code != 0) return -code;
    TextWriter writer(buffer, size);
    if (!std::isfinite(v)) {
        // Infinity or NaN has no feet and no fraction: the number with the inch mark.
        int const n = writer.Number(formatter, v, kModeDecimal);
        if (n < 1) return n;
        if (!writer.Put(kInchMark) || !writer.Terminate()) return -1;
        return static_cast<int>(writer.Length());
    }
    double const inchesPerFoot = m_unit == kInch ? 12.0 : 60.0;
    InchParts const parts =
        SplitInches(v, formatter.GetNumberDecimalPrecision(), m_showFeet, m_fraction, inchesPerFoot);

    if (m_showFeet) {
        int const n = writer.Number(formatter, parts.feet, parts.feetMode);
        if (n < 1) return n;
        if (!writer.Put(kPrime) || (m_dash && !writer.Put(kDash))) return -1;
    }
    if (!m_fraction) {
        int const n = writer.Number(formatter, parts.rest, kModeDecimal);
        if (n < 1) return n;
        if (!writer.Put(kInchMark)) return -1;
    } else {
        if (parts.numerator == 0.0 || parts.whole != 0.0) {
            int const n = writer.Number(formatter, parts.whole, kModeWhole);
            if (n < 1) return n;
            if (!writer.Put(m_dash ? kDash : L' ')) return -1;
        }
        if (parts.numerator != 0.0) {
            int n = writer.Number(formatter, parts.numerator, kModeWhole);
            if (n < 1) return n;
            if (!writer.Put(L'/')) return -1;
            n = writer.Number(formatter, parts.denominator, kModeWhole);
            if (n < 1) return n;
            if (!writer.Put(kInchMark)) return -1;
        } else {
            writer.ReplaceLast(kInchMark);  // the separator after the whole inches
        }
    }
    if (!writer.Terminate()) return -1;
    return static_cast<int>(writer.Length());
}

template <typename GenericBase>
int BasicPrimeDoublePrimeSymbol<GenericBase>::FormatNumber(int index, double value, DimensionVector const& dims,
                                                           wchar_t* buffer, unsigned long size,
                                                           UnitsFormatterImp const& formatter) const {
    if (buffer == nullptr) return -1;
    double v = 0.0;
    int const code = this->GetConverter().ConvertFromBase(dims, v, value);
    if (code != 0) return -code;
    TextWriter writer(buffer, size);
    if (!std::isfinite(v)) return writer.Number(formatter, v, kModeDecimal);
    double const inchesPerFoot = m_unit == kInch ? 12.0 : 60.0;
    InchParts const parts =
        SplitInches(v, formatter.GetNumberDecimalPrecision(), m_showFeet, m_fraction, inchesPerFoot);

    if (m_showFeet && index == 0) return writer.Number(formatter, parts.feet, parts.feetMode);
    if (!m_fraction) return writer.Number(formatter, parts.rest, kModeDecimal);
    if (parts.numerator == 0.0 || parts.whole != 0.0) {
        int const n = writer.Number(formatter, parts.whole, kModeWhole);
        if (n < 1) return n;
        if (!writer.Put(L' ')) return -1;
    }
    if (parts.numerator == 0.0) {
        writer.ReplaceLast(L'\0');  // no fraction: the space after the whole inches ends the text
        return static_cast<int>(writer.Length());
    }
    int n = writer.Number(formatter, parts.numerator, kModeWhole);
    if (n < 1) return n;
    if (!writer.Put(L'/')) return -1;
    n = writer.Number(formatter, parts.denominator, kModeWhole);
    if (n < 1) return n;
    return static_cast<int>(writer.Length()) + 1;
}

template <typename GenericBase>
int BasicPrimeDoublePrimeSymbol<GenericBase>::GetMaxIndex(int form) const {
    if (form < 0 || form > 2) return -1;
    switch (StyleOf(m_symbol)) {
        case InchStyle::eDecimalFeet: return form == 0 ? 1 : -1;
        case InchStyle::eFractionFeet: return form + 1;  // feet, [inches,] numerator, denominator
        case InchStyle::eFractionInches: return form;    // [inches,] numerator, denominator
        default: return -1;
    }
}

template <typename GenericBase>
int BasicPrimeDoublePrimeSymbol<GenericBase>::ParseNumber(ParseList& list, int form) const {
    int const maxIndex = GetMaxIndex(form);
    if (maxIndex < 0) return 1;
    NumberSymbol const* numbers[4] = {};
    ParseIterator p = list.begin();
    for (int k = 0; k <= maxIndex; ++k, ++p) {
        if (p == list.end() || (numbers[k] = As<NumberSymbol>(p)) == nullptr) return 1;
    }
    auto number = [&](int k) { return numbers[k]->GetNumber(); };

    // Every style reads feet as twelve inches, the time group's symbol too: its
    // writer's ratio of 60 is not read back here, and stays that way on purpose.
    double inches = 0.0;
    if (StyleOf(m_symbol) == InchStyle::eFractionInches) {
        switch (form) {
            case 0: inches = number(0); break;
            case 1: inches = number(0) / number(1); break;  // 1/0 reads as infinite
            default:
                if (number(2) == 0.0) return 1;
                inches = number(0) + number(1) / number(2);
                break;
        }
    } else {
        double amount = 0.0;
        switch (form) {
            case 0: amount = std::fabs(number(1)); break;
            case 1:
                if (number(2) == 0.0) return 1;
                amount = std::fabs(number(1) / number(2));
                break;
            default:
                if (number(3) == 0.0) return 1;
                amount = std::fabs(number(1) + number(2) / number(3));
                break;
        }
        // The feet's sign covers the inches, also when the feet are -0: -0 6 is -6".
        double const feetInInches = number(0) * 12.0;
        inches = numbers[0]->IsNegative() ? feetInInches - amount : feetInInches + amount;
    }
    UnitConverter const& converter = this->GetConverter();
    double base = 0.0;
    if (converter.ConvertToBase(&base, converter.GetDimTag(), inches) != 0) return 1;
    list.front() = MakeParseSymbol<ResultSymbol>(list, GenericConverter(base, converter.GetDimTag()));
    list.erase(std::next(list.begin()), p);
    return 0;
}

template <typename GenericBase>
int BasicPrimeDoublePrimeSymbol<GenericBase>::GenerateCustomSymbols(std::vector<CustomSymbol*>& out,
                                                                    std::vector<std::wstring> const& pieces,
                                                                    std::vector<int> const& indices) const {
    struct Form {
        int form;
        std::vector<std::wstring> pieces;
        std::vector<int> indices;
    };
    std::vector<Form> forms{{0, pieces, indices}};
    InchStyle const style = StyleOf(m_symbol);
    // Forms 1 and 2 read what the user types with fractions: the given pieces stay in
    // their order, with a slash before the denominator and, in form 2, a space between
    // the whole inches and the numerator.
    if (style == InchStyle::eFractionInches && !pieces.empty() && pieces.size() <= 2) {
        std::vector<std::wstring> tail(pieces.begin() + 1, pieces.end());
        Form form1{1, {pieces[0], L"/"}, {0, 1}};
        Form form2{2, {pieces[0], L" ", L"/"}, {0, 1, 2}};
        form1.pieces.insert(form1.pieces.end(), tail.begin(), tail.end());
        form2.pieces.insert(form2.pieces.end(), tail.begin(), tail.end());
        forms.push_back(std::move(form1));
        forms.push_back(std::move(form2));
    } else if (style == InchStyle::eFractionFeet && (pieces.size() == 2 || pieces.size() == 3) &&
               indices.size() == 2) {
        std::vector<std::wstring> const tail(pieces.begin() + 2, pieces.end());
        Form form1{1, {}, {}};
        Form form2{2, {}, {}};
        if (indices[0] == 0) {  // feet first: before, feet, between, inches, after
            form1.pieces = {pieces[0], pieces[1], L"/"};
            form1.indices = {0, 1, 2};
            form2.pieces = {pieces[0], pieces[1], L" ", L"/"};
            form2.indices = {0, 1, 2, 3};
        } else {  // inches first: before, inches, between, feet, after
            form1.pieces = {pieces[0], L"/", pieces[1]};
            form1.indices = {1, 2, 0};
            form2.pieces = {pieces[0], L" ", L"/", pieces[1]};
            form2.indices = {1, 2, 3, 0};
        }
        form1.pieces.insert(form1.pieces.end(), tail.begin(), tail.end());
        form2.pieces.insert(form2.pieces.end(), tail.begin(), tail.end());
        forms.push_back(std::move(form1));
        forms.push_back(std::move(form2));
    }
    std::size_t const before = out.size();
    for (Form const& form : forms) {
        auto* custom = new CustomSymbol(this, form.pieces, form.indices, form.form);
        if (!custom->IsValid()) {
            delete custom;
            // Refused as a whole: what this call added is taken back.
            for (std::size_t i = before; i < out.size(); ++i) delete out[i];
            out.resize(before);
            return 1;
        }
        out.push_back(custom);
    }
    return 0;
}

PrimeDoublePrimeSymbol::PrimeDoublePrimeSymbol(wchar_t const* text, int symbol, bool showFeet, bool fraction,
                                               bool dash)
    : BasicPrimeDoublePrimeSymbol<GenericSymbol>(text != nullptr ? std::wstring(text) : std::wstring(), symbol,
                                                 showFeet, fraction, dash) {}
PrimeDoublePrimeSymbol::~PrimeDoublePrimeSymbol() = default;

template class BasicPrimeDoublePrimeSymbol<GenericSymbol>;
template class BasicPrimeDoublePrimeSymbol<GenericSymbol2>;

// ---------------------------------------------------------------------------------
// The dash

DashSymbol::~DashSymbol() = default;

int DashSymbol::Calculate(ParseList& list, ParseIterator& it, bool, DimensionVector const& dims) const {
    // Acts in whichever pass reaches it first, like a space.
    if (it == list.begin()) return 1;
    ParseIterator const dash = it;
    ParseIterator left = std::prev(dash);
    while (As<SpaceSymbol>(left) != nullptr) {
        if (left == list.begin()) return 1;
        --left;
    }
    ParseIterator right = std::next(dash);
    while (right != list.end() && As<SpaceSymbol>(right) != nullptr) ++right;
    if (right == list.end()) return 1;

    // After a unit or a foot mark it joins; after a number it separates the parts of
    // a length typed without marks (`5 - 6`), and only as the first separator.
    bool const joins = As<OperandSymbol>(left) != nullptr || As<PrimeSymbol>(left) != nullptr;
    if (!joins && !(left == list.begin() && As<NumberSymbol>(left) != nullptr && IsLength(dims))) return 1;
    if (As<NumberSymbol>(right) != nullptr) {
        it = right;
        list.erase(std::next(left), right);  // `5'-6` reads as `5' 6`
        return 0;
    }
    if (As<OperandSymbol>(right) != nullptr) {
        ParseIterator const first = std::next(left);
        it = right;
        *first = MakeParseSymbol<MultiplicationSymbol>(list);  // `ft-lbf` is `ft·lbf`
        list.erase(std::next(first), right);
        return 0;
    }
    return 1;
}

}  // namespace kxnorth::platform::core::units
