// Angles: degrees, minutes and seconds written and read, the marks typed after
// numbers (degree, prime, double prime, d, g), and surveyor's bearings.
#include <cmath>
#include <iterator>

#include "KxUnitsSymbols.h"
#include "KxUnitsSymbols2.h"
#include "KxUnitsSymbols_Internal.h"

namespace kxnorth::platform::core::units {

using namespace symbols_detail;

namespace {

constexpr wchar_t kDegreeSign = L'\u00B0';
constexpr wchar_t kPrime = L'\'';
constexpr wchar_t kDoublePrime = L'"';

// An angle split for writing. Parts the precision leaves out are 0.
struct DegreeParts {
    double degrees = 0.0;
    double minutes = 0.0;
    double seconds = 0.0;
    int shown = 1;             // 1 degrees, 2 and minutes, 3 and seconds
    int secondsDecimals = 0;   // above 0: seconds written with this many decimals
    bool negative = false;
};

// Splits `angle` (degrees) for the formatter's precision P: 0 whole degrees, 1-2
// minutes, 3-4 whole seconds, 5 and more seconds with P - 4 decimals. Each part is
// rounded in the smallest unit shown and carries at 60.
//
// A carry always adds 1, whatever the angle's sign: a negative angle that rounds up
// moves toward positive, so -45.5° at P = 0 writes -44°. That is the established
// output of this format and is kept on purpose.
DegreeParts SplitDegrees(double angle, int precision) {
    DegreeParts parts;
    parts.negative = angle < 0.0;
    // Half a unit of the 5th digit beyond the last shown, away from zero: keeps
    // representation error (29.999999999 for 30) from rounding the wrong way.
    double const guard = 1.0 / (2.0 * Pow10(precision) * 100000.0);
    angle += parts.negative ? -guard : guard;
    double degrees = std::trunc(angle);
    double const minutesExact = std::fabs(angle - degrees) * 60.0;
    double minutes = std::floor(minutesExact);
    double const secondsExact = (minutesExact - minutes) * 60.0;
    double seconds = 0.0;
    if (precision == 0) {
        if (minutes >= 30.0) degrees += 1.0;
        minutes = 0.0;
    } else if (precision <= 2) {
        parts.shown = 2;
        if (secondsExact >= 30.0) minutes += 1.0;
    } else {
        parts.shown = 3;
        seconds = secondsExact;
        if (precision <= 4) {
            // The formatter writes whole seconds rounded; lifting a half to the next
            // whole makes 59.5 carry here instead of printing 60.
            if (seconds - std::floor(seconds) >= 0.5) seconds += 0.5;
            if (seconds >= 60.0) {
                seconds = 0.0;
                minutes += 1.0;
            }
        } else {
            parts.secondsDecimals = precision - 4;
            double const scale = Pow10(parts.secondsDecimals);
            double const scaled = seconds * scale;
            if (scaled - std::floor(scaled) >= 0.5) seconds += 1.0 / (2.0 * scale);
            if (seconds >= 60.0) {
                seconds -= 60.0;
                minutes += 1.0;
            }
        }
    }
    if (minutes >= 60.0) {
        minutes = 0.0;
        degrees += 1.0;
    }
    parts.degrees = degrees;
    parts.minutes = minutes;
    parts.seconds = seconds;
    return parts;
}

// A bearing: `angle` (degrees counter-clockwise from east, in (-180, 180]) measured
// from north or south toward east or west.
struct Bearing {
    wchar_t from;
    double angle;
    wchar_t toward;
};

Bearing BearingOf(double angle) {
    if (angle >= 0.0 && angle <= 90.0) return {L'N', 90.0 - angle, L'E'};
    if (angle > 90.0) return {L'N', angle - 90.0, L'W'};
    if (angle >= -90.0) return {L'S', angle + 90.0, L'E'};
    return {L'S', -90.0 - angle, L'W'};
}

// Brings degrees into (-180, 180].
double NormalizeBearing(double degrees) {
    double a = std::fmod(degrees, 360.0);
    if (a <= -180.0) {
        a += 360.0;
    } else if (a > 180.0) {
        a -= 360.0;
    }
    return a;
}

int WriteSeconds(TextWriter& writer, UnitsFormatterImp const& formatter, DegreeParts const& parts) {
    if (parts.secondsDecimals > 0) {
        // At five or more decimals of a degree the seconds carry the decimals. They are
        // written with a private copy of the settings: the formatter itself never changes.
        return writer.NumberWithPrecision(formatter, parts.seconds, parts.secondsDecimals, kModeDecimal);
    }
    return writer.Number(formatter, parts.seconds, kModeWhole);
}

}  // namespace

// ---------------------------------------------------------------------------------
// Degrees, minutes and seconds

template <typename GenericBase>
BasicDegreePrimeDoublePrimeSymbol<GenericBase>::BasicDegreePrimeDoublePrimeSymbol(std::wstring text, bool bearing,
                                                                                  bool degreeSign)
    : GenericBase(std::move(text), kDegree, 0), m_bearing(bearing), m_degreeSign(degreeSign) {}

template <typename GenericBase>
BasicDegreePrimeDoublePrimeSymbol<GenericBase>::~BasicDegreePrimeDoublePrimeSymbol() = default;

template <typename GenericBase>
int BasicDegreePrimeDoublePrimeSymbol<GenericBase>::Format(double value, DimensionVector const& dims,
                                                           wchar_t* buffer, unsigned long size,
                                                           UnitsFormatterImp const& formatter) const {
    if (buffer == nullptr) return -1;
    double degrees = 0.0;
    int const code = this->GetConverter().ConvertFromBase(dims, degrees, value);
    if (code != 0) return -code;

    TextWriter writer(buffer, size);
    double angle = degrees;
    wchar_t toward = 0;
    if (m_bearing) {
        if (!std::isfinite(degrees)) return -1;
        double const a = NormalizeBearing(degrees);
        if (size < 2) return -1;
        wchar_t const cardinal = a == 0.0 ? L'E' : a == 90.0 ? L'N' : a == -90.0 ? L'S' : a == 180.0 ? L'W' : 0;
        if (cardinal != 0) {
            buffer[0] = cardinal;
            buffer[1] = L'\0';
            return 2;
        }
        Bearing const bearing = BearingOf(a);
        angle = bearing.angle;
        toward = bearing.toward;
        if (!writer.Put(bearing.from) || !writer.Put(L' ')) return -1;
    }
    wchar_t const degreeMark = m_degreeSign ? kDegreeSign : L'd';
    if (!std::isfinite(angle)) {
        if (writer.Number(formatter, angle, kModeDecimal) < 1 || !writer.Put(degreeMark) || !writer.Terminate()) {
            return -1;
        }
        return static_cast<int>(writer.Length()) + 1;
    }

    DegreeParts const parts = SplitDegrees(angle, formatter.GetNumberDecimalPrecision());
    if (writer.Number(formatter, parts.degrees, parts.negative ? kModeWholeSigned : kModeWhole) < 1 ||
        !writer.Put(degreeMark)) {
        return -1;
    }
    if (parts.shown >= 2 && (writer.Number(formatter, parts.minutes, kModeWhole) < 1 || !writer.Put(kPrime))) {
        return -1;
    }
    if (parts.shown >= 3 && (WriteSeconds(writer, formatter, parts) < 1 || !writer.Put(kDoublePrime))) return -1;

    if (m_bearing) {
        if (writer.Length() + 3 > size) return -1;
        if (!writer.Put(L' ') || !writer.Put(toward)) return -1;
    }
    if (!writer.Terminate()) return -1;
    return static_cast<int>(writer.Length()) + 1;
}

template <typename GenericBase>
int BasicDegreePrimeDoublePrimeSymbol<GenericBase>::FormatNumber(int index, double value, DimensionVector const& dims,
                                                                 wchar_t* buffer, unsigned long size,
                                                                 UnitsFormatterImp const& formatter) const {
    if (buffer == nullptr || index < 0 || index > 2) return -1;
    double degrees = 0.0;
    int const code = this->GetConverter().ConvertFromBase(dims, degrees, value);
    if (code != 0) return -code;
    double const angle = m_bearing ? BearingOf(NormalizeBearing(degrees)).angle : degrees;
    TextWriter writer(buffer, size);
    if (!std::isfinite(angle)) return index == 0 ? writer.Number(formatter, angle, kModeDecimal) : -1;
    DegreeParts const parts = SplitDegrees(angle, formatter.GetNumberDecimalPrecision());
    switch (index) {
        case 0: return writer.Number(formatter, parts.degrees, parts.negative ? kModeWholeSigned : kModeWhole);
        case 1: return writer.Number(formatter, parts.minutes, kModeWhole);
        default: return WriteSeconds(writer, formatter, parts);
    }
}

template <typename GenericBase>
int BasicDegreePrimeDoublePrimeSymbol<GenericBase>::ParseNumber(ParseList& list, int form) const {
    if (form != 0) return 1;
    NumberSymbol const* numbers[3];
    ParseIterator p = list.begin();
    for (NumberSymbol const*& number : numbers) {
        if (p == list.end() || (number = As<NumberSymbol>(p)) == nullptr) return 1;
        ++p;
    }
    // The degrees' sign covers minutes and seconds, also when the degrees are -0.
    double const magnitude = std::fabs(numbers[0]->GetNumber()) + std::fabs(numbers[1]->GetNumber()) / 60.0 +
                             std::fabs(numbers[2]->GetNumber()) / 3600.0;
    double const angle = numbers[0]->IsNegative() ? -magnitude : magnitude;
    UnitConverter const& converter = this->GetConverter();
    double base = 0.0;
    if (converter.ConvertToBase(&base, converter.GetDimTag(), angle) != 0) return 1;
    list.front() = MakeParseSymbol<ResultSymbol>(list, GenericConverter(base, converter.GetDimTag()));
    list.erase(std::next(list.begin()), p);
    return 0;
}

template <typename GenericBase>
int BasicDegreePrimeDoublePrimeSymbol<GenericBase>::GetMaxIndex(int form) const {
    return form == 0 ? 2 : -1;
}

DegreePrimeDoublePrimeSymbol::DegreePrimeDoublePrimeSymbol(wchar_t const* text, bool bearing)
    : BasicDegreePrimeDoublePrimeSymbol<GenericSymbol>(text != nullptr ? std::wstring(text) : std::wstring(), bearing,
                                                       /*degreeSign=*/true) {}
DegreePrimeDoublePrimeSymbol::~DegreePrimeDoublePrimeSymbol() = default;

template class BasicDegreePrimeDoublePrimeSymbol<GenericSymbol>;
template class BasicDegreePrimeDoublePrimeSymbol<GenericSymbol2>;

// ---------------------------------------------------------------------------------
// Marks typed after numbers
//
// Each mark reads the numbers from the start of the list up to itself (a whole
// number, a fraction or a mixed number, after the carried number an earlier mark left)
// and then either ends the reading, when it is last, or turns them into one carried
// number in the next smaller unit for the mark that follows:
//   45°30'15"  ->  2700 (minutes) 30 '  ->  163800 (seconds) 15 "  ->  163815 seconds
//   5'6 1/2"   ->  60 (inches) 6 1/2 "  ->  66.5 inches
// Only the leading number has a sign; it covers every later part. Before a closing E or
// W the angle is left as seconds of arc followed by a double prime, the shape the
// bearing letters read.

namespace {

enum class MarkQuantity { eNone, eAngle, eLength, eTime };

// What the marks measure in the quantity being read: an angle (also a plain number:
// all dimensions 0), a length (feet and inches) or a time (minutes and seconds).
MarkQuantity MarkQuantityOf(DimensionVector const& dims) {
    if (AllDimensionsZero(dims)) return MarkQuantity::eAngle;
    if (IsLength(dims)) return MarkQuantity::eLength;
    if (IsTime(dims)) return MarkQuantity::eTime;
    return MarkQuantity::eNone;
}

bool ClosesBearing(ParseIterator it) { return As<EastSymbol>(it) != nullptr || As<WestSymbol>(it) != nullptr; }

bool IsNumberOrSlash(ParseIterator it) { return As<NumberSymbol>(it) != nullptr || As<DivisionSymbol>(it) != nullptr; }

// The elements after a mark that make up the next part: numbers and slashes up to the
// returned position.
ParseIterator EndOfPart(ParseList& list, ParseIterator first) {
    while (first != list.end() && IsNumberOrSlash(first)) ++first;
    return first;
}

constexpr int kAnyAmount = eRunWhole | eRunFraction | eRunMixed;

// The mark at `mark` hands an angle in `secondsPerUnit` to a closing E or W: the run
// becomes seconds of arc and the mark a double prime. The mark itself may be deleted.
void HandToBearing(ParseList& list, ParseIterator mark, RunValue const& amount, double secondsPerUnit) {
    ReplaceRunByCarried(list, mark, amount.value * secondsPerUnit, amount.negative);
    if (As<DoublePrimeSymbol>(mark) == nullptr) *mark = MakeParseSymbol<DoublePrimeSymbol>(list);
}

}  // namespace

DegreeSymbol::~DegreeSymbol() = default;

int DegreeSymbol::Calculate(ParseList& list, ParseIterator& it, bool asOperand, DimensionVector const& dims) const {
    if (asOperand) {
        ++it;
        return 0;
    }
    if (it == list.begin() || !AllDimensionsZero(dims)) return 1;
    ParseIterator const mark = it;
    RunValue degrees;
    if (!ReadNumberRun(list.begin(), mark, kAnyAmount, degrees)) return 1;
    ParseIterator const next = std::next(mark);
    if (next == list.end()) {
        if (ReduceToResult(list, kDegree, degrees.value, &dims) != 0) return 1;
        it = list.end();
        return 0;
    }
    if (ClosesBearing(next)) {
        HandToBearing(list, mark, degrees, 3600.0);
        it = next;
        return 0;
    }
    // Minutes follow, closed by a prime.
    ParseIterator const end = EndOfPart(list, next);
    if (end == next || end == list.end() || As<PrimeSymbol>(end) == nullptr) return 1;
    ReplaceRunByCarried(list, mark, degrees.value * 60.0, degrees.negative);
    it = next;
    list.erase(mark);
    return 0;
}

PrimeSymbol::~PrimeSymbol() = default;

int PrimeSymbol::Calculate(ParseList& list, ParseIterator& it, bool asOperand, DimensionVector const& dims) const {
    if (asOperand) {
        // A minus sign directly after the mark (`5'-6"`, `-0'-6"`) is the dash the
        // feet-and-inches writers put between the parts, which the number reader took
        // for a sign: the part after a mark has no sign of its own. With a space
        // before it (`5' -6"`) it stays a sign, and the reading fails.
        ParseIterator const next = std::next(it);
        if (next != list.end()) DropSeparatorSign(list, next);
        it = next;
        return 0;
    }
    MarkQuantity const quantity = MarkQuantityOf(dims);
    if (quantity == MarkQuantity::eNone || it == list.begin()) return 1;
    ParseIterator const mark = it;
    RunValue amount;
    if (!ReadNumberRun(list.begin(), mark, kAnyAmount | eRunAfterCarried, amount)) return 1;

    // Feet to inches, or minutes to seconds (of time or of arc).
    static constexpr double kPartsPerUnit[2] = {60.0, 12.0};
    bool const isLength = quantity == MarkQuantity::eLength;
    double const partsPerUnit = kPartsPerUnit[isLength ? 1 : 0];
    int const unit = isLength ? kFoot : quantity == MarkQuantity::eTime ? kMinute : kArcMinute;

    ParseIterator const next = std::next(mark);
    if (next == list.end()) {
        if (ReduceToResult(list, unit, amount.value, &dims) != 0) return 1;
        it = list.end();
        return 0;
    }
    if (quantity == MarkQuantity::eAngle && ClosesBearing(next)) {
        HandToBearing(list, mark, amount, 60.0);
        it = next;
        return 0;
    }
    // The smaller part follows, closed by a double prime or by the end of the text; a
    // missing inch (or second) mark is supplied.
    ParseIterator const end = EndOfPart(list, next);
    if (end == next || (end != list.end() && As<DoublePrimeSymbol>(end) == nullptr)) return 1;
    ReplaceRunByCarried(list, mark, amount.value * partsPerUnit, amount.negative);
    if (end == list.end()) list.push_back(MakeParseSymbol<DoublePrimeSymbol>(list));
    it = next;
    list.erase(mark);
    return 0;
}

DoublePrimeSymbol::~DoublePrimeSymbol() = default;

int DoublePrimeSymbol::Calculate(ParseList& list, ParseIterator& it, bool asOperand,
                                 DimensionVector const& dims) const {
    if (asOperand) {
        ++it;
        return 0;
    }
    MarkQuantity const quantity = MarkQuantityOf(dims);
    if (quantity == MarkQuantity::eNone || it == list.begin()) return 1;
    ParseIterator const mark = it;
    RunValue amount;
    if (!ReadNumberRun(list.begin(), mark, kAnyAmount | eRunAfterCarried, amount)) return 1;
    int const unit = quantity == MarkQuantity::eLength ? kInch
                     : quantity == MarkQuantity::eTime ? kSecond
                                                       : kArcSecond;
    ParseIterator const next = std::next(mark);
    if (next == list.end()) {
        if (ReduceToResult(list, unit, amount.value, &dims) != 0) return 1;
        it = list.end();
        return 0;
    }
    if (quantity == MarkQuantity::eAngle && ClosesBearing(next)) {
        HandToBearing(list, mark, amount, 1.0);
        it = next;
        return 0;
    }
    return 1;
}

namespace {

// Replaces the letter at `it` by an operand of `unit`; `it` moves on.
int BecomeOperand(ParseList& list, ParseIterator& it, int unit) {
    UnitConverter const* converter = UnitsConfig::GetInstance()->FindConverter(unit);
    if (converter == nullptr) return 1;
    ParseIterator const self = it;
    ++it;
    *self = MakeParseSymbol<GenericOperand>(list, CopyConverter(*converter));
    return 0;
}

}  // namespace

DSymbol::~DSymbol() = default;

int DSymbol::Calculate(ParseList& list, ParseIterator& it, bool asOperand, DimensionVector const& dims) const {
    if (!asOperand) return 1;
    if (!AllDimensionsZero(dims)) return BecomeOperand(list, it, kDay);
    ParseIterator const self = it;
    ++it;
    *self = MakeParseSymbol<DegreeSymbol>(list);
    return 0;
}

GSymbol::~GSymbol() = default;

int GSymbol::Calculate(ParseList& list, ParseIterator& it, bool asOperand, DimensionVector const& dims) const {
    if (!asOperand) return 1;
    return BecomeOperand(list, it, AllDimensionsZero(dims) ? kGrad : kGram);
}

// ---------------------------------------------------------------------------------
// Bearings

namespace {

// N or S in the second pass. Alone it is the cardinal direction; otherwise it must
// open the text, and the E or W that closes it is replaced by one that knows it.
int OpenBearing(ParseList& list, ParseIterator& it, DimensionVector const& dims, double cardinalDegrees,
                BearingReference reference) {
    ParseIterator const self = it;
    if (self != list.begin()) return 1;
    if (std::next(self) == list.end()) {
        if (ReduceToResult(list, kDegree, cardinalDegrees, &dims) != 0) return 1;
        it = list.end();
        return 0;
    }
    ParseIterator const last = std::prev(list.end());
    EastSymbol const* east = As<EastSymbol>(last);
    WestSymbol const* west = As<WestSymbol>(last);
    if (east != nullptr && east->GetReference() == BearingReference::eNone) {
        *last = MakeParseSymbol<EastSymbol>(list, reference);
    } else if (west != nullptr && west->GetReference() == BearingReference::eNone) {
        *last = MakeParseSymbol<WestSymbol>(list, reference);
    } else {
        return 1;
    }
    list.erase(self);
    it = list.begin();
    return 0;
}

// E or W in the second pass: alone the cardinal direction, else the end of a bearing
// whose angle the marks left as seconds of arc before a double prime.
int CloseBearing(ParseList& list, ParseIterator& it, DimensionVector const& dims, BearingReference reference,
                 bool west) {
    ParseIterator const self = it;
    if (std::next(self) != list.end()) return 1;
    if (self == list.begin()) {
        if (reference != BearingReference::eNone) return 1;
        if (ReduceToResult(list, kDegree, west ? 180.0 : 0.0, &dims) != 0) return 1;
        it = list.end();
        return 0;
    }
    if (reference == BearingReference::eNone) return 1;
    ParseIterator const mark = std::prev(self);
    if (As<DoublePrimeSymbol>(mark) == nullptr || mark == list.begin() || std::prev(mark) != list.begin()) return 1;
    NumberSymbol const* number = As<NumberSymbol>(list.begin());
    if (number == nullptr) return 1;
    double const t = number->GetNumber();
    if (!(t >= 0.0 && t <= kQuarterTurnInArcSeconds)) return 1;
    double const q = kQuarterTurnInArcSeconds;
    double const seconds = reference == BearingReference::eFromNorth ? (west ? q + t : q - t)
                                                                      : (west ? -q - t : t - q);
    if (ReduceToResult(list, kArcSecond, seconds, &dims) != 0) return 1;
    it = list.end();
    return 0;
}

}  // namespace

NorthSymbol::~NorthSymbol() = default;

int NorthSymbol::Calculate(ParseList& list, ParseIterator& it, bool asOperand, DimensionVector const& dims) const {
    if (asOperand) {
        if (!AllDimensionsZero(dims)) return BecomeOperand(list, it, kNewton);
        ++it;
        return 0;
    }
    return OpenBearing(list, it, dims, 90.0, BearingReference::eFromNorth);
}

SouthSymbol::~SouthSymbol() = default;

int SouthSymbol::Calculate(ParseList& list, ParseIterator& it, bool asOperand, DimensionVector const& dims) const {
    if (asOperand) {
        if (!AllDimensionsZero(dims)) return BecomeOperand(list, it, kSiemens);
        ++it;
        return 0;
    }
    return OpenBearing(list, it, dims, -90.0, BearingReference::eFromSouth);
}

EastSymbol::EastSymbol(BearingReference reference) : m_reference(reference) {
    Record(ParseKind::eEast, this);
}
EastSymbol::~EastSymbol() = default;

int EastSymbol::Calculate(ParseList& list, ParseIterator& it, bool asOperand, DimensionVector const& dims) const {
    if (asOperand) {
        ++it;
        return 0;
    }
    return CloseBearing(list, it, dims, m_reference, /*west=*/false);
}

WestSymbol::WestSymbol(BearingReference reference) : m_reference(reference) {
    Record(ParseKind::eWest, this);
}
WestSymbol::~WestSymbol() = default;

int WestSymbol::Calculate(ParseList& list, ParseIterator& it, bool asOperand, DimensionVector const& dims) const {
    if (asOperand) {
        if (!AllDimensionsZero(dims)) return BecomeOperand(list, it, kWatt);
        ++it;
        return 0;
    }
    return CloseBearing(list, it, dims, m_reference, /*west=*/true);
}

}  // namespace kxnorth::platform::core::units
