// Helpers shared by the symbol sources: catalogue identifiers the symbols rely on,
// list inspection, converter copies, the number runs that marks read, and a bounded
// writer for assembling formatted text.
#pragma once

#include <cstddef>

#include "KxCoreUnits/UnitsConfig.h"
#include "KxUnitsFormatterImp.h"
#include "KxUnitsSymbols.h"

namespace kxnorth::platform::core::units::symbols_detail {

// Catalogue identifiers (src/KxCoreUnits/data/units.tsv).
inline constexpr int kLengthGroup = 0x2000;
inline constexpr int kTimeGroup = 0x2C000;
inline constexpr int kInch = 0x2016;
inline constexpr int kFoot = 0x2017;
inline constexpr int kGram = 0x5002;
inline constexpr int kDegree = 0x8002;
inline constexpr int kGrad = 0x8004;
inline constexpr int kArcMinute = 0x8008;
inline constexpr int kArcSecond = 0x8009;
inline constexpr int kNewton = 0x17001;
inline constexpr int kWatt = 0x1D001;
inline constexpr int kSiemens = 0x27001;
inline constexpr int kSecond = 0x2C001;
inline constexpr int kMinute = 0x2C016;
inline constexpr int kDay = 0x2C018;

// A quarter turn in seconds of arc: bearings are measured in these while they are read.
inline constexpr double kQuarterTurnInArcSeconds = 324000.0;

template <typename T>
T const* As(ParseIterator it) {
    return ParseCast<T>(it->Get());
}

inline bool AllDimensionsZero(DimensionVector const& dims) {
    for (int d : dims) {
        if (d != 0) return false;
    }
    return true;
}

// Whether `dims` are a length's (or a time's); no other group has those dimensions, so
// this needs no search of the groups. Asked at every mark of every reading.
inline bool HasDimensionsOf(DimensionVector const& dims, DimensionVector const& groupDims) {
    for (int i = 0; i < kDimensionCount; ++i) {
        if (dims[i] != groupDims[i]) return false;
    }
    return true;
}
inline bool IsLength(DimensionVector const& dims) {
    static DimensionVector const& length = UnitsConfig::GetInstance()->FindConverter(kLengthGroup | 1)->GetDimTag();
    return HasDimensionsOf(dims, length);
}
inline bool IsTime(DimensionVector const& dims) {
    static DimensionVector const& time = UnitsConfig::GetInstance()->FindConverter(kTimeGroup | 1)->GetDimTag();
    return HasDimensionsOf(dims, time);
}

// The plain factor-and-dimensions copy of a unit's converter.
inline GenericConverter CopyConverter(UnitConverter const& converter) {
    return GenericConverter(converter.GetFactor(), converter.GetDimTag());
}

// 10^exponent for exponent >= 0, exact up to 10^22.
double Pow10(int exponent);

// Converts `value` in `unit` into base units, against `dims` when given (so that a
// unit of other dimensions fails) and else against the unit's own. 0 done.
[[nodiscard]] int ToBase(int unit, double value, DimensionVector const* dims, GenericConverter& result);

// The first element becomes the ResultSymbol of `value` in `unit` and every other
// element is erased. On a conversion failure (1) the list is unchanged.
[[nodiscard]] int ReduceToResult(ParseList& list, int unit, double value, DimensionVector const* dims);

// Shapes of the numbers that stand before a mark or a unit, from the list's start:
enum RunShape : int {
    eRunWhole = 1,        // n
    eRunFraction = 2,     // n/d
    eRunMixed = 4,        // w n/d
    eRunAfterCarried = 8, // any of those after a carried number c: c ± amount
};

struct RunValue {
    double value = 0.0;
    bool negative = false;
};

// Reads [first, last) as one of the shapes allowed. Denominators must be above zero;
// a numerator after a whole part, and any part after a carried number, may not be
// negative: the sign belongs to the leading number and governs the whole amount.
[[nodiscard]] bool ReadNumberRun(ParseIterator first, ParseIterator last, int shapes, RunValue& out);

// The first element, up to `last`, becomes one carried number: a value in the next
// smaller unit that keeps the sign of what was read.
void ReplaceRunByCarried(ParseList& list, ParseIterator last, double value, bool negative);

// Replaces the number at `number`, when it has a minus sign, by its unsigned copy: the
// sign was a separator the writers put there (see the callers for where that holds).
void DropSeparatorSign(ParseList& list, ParseIterator number);

// Writes text into a caller's buffer of fixed size. Numbers are written by the
// formatter with their terminator; the next character overwrites that terminator.
class TextWriter {
public:
    TextWriter(wchar_t* buffer, unsigned long size) : m_buffer(buffer), m_size(buffer != nullptr ? size : 0) {}

    // The formatter's result: the count with the terminator, or below 1 on failure.
    int Number(UnitsFormatterImp const& formatter, double value, int mode) {
        if (m_pos >= m_size) return -1;
        int const n = formatter.FormatNumber(value, m_buffer + m_pos, m_size - m_pos, mode);
        if (n > 0) m_pos += static_cast<unsigned long>(n) - 1;
        return n;
    }
    int NumberWithPrecision(UnitsFormatterImp const& formatter, double value, int precision, int mode) {
        if (m_pos >= m_size) return -1;
        int const n = formatter.FormatNumberWithPrecision(value, precision, m_buffer + m_pos, m_size - m_pos, mode);
        if (n > 0) m_pos += static_cast<unsigned long>(n) - 1;
        return n;
    }
    [[nodiscard]] bool Put(wchar_t c) {
        if (m_pos >= m_size) return false;
        m_buffer[m_pos++] = c;
        return true;
    }
    // Overwrites the last character written.
    void ReplaceLast(wchar_t c) {
        if (m_pos > 0) m_buffer[m_pos - 1] = c;
    }
    [[nodiscard]] bool Terminate() {
        if (m_pos >= m_size) return false;
        m_buffer[m_pos] = L'\0';
        return true;
    }
    // Characters written so far, without a terminator.
    unsigned long Length() const { return m_pos; }

private:
    wchar_t* m_buffer;
    unsigned long m_size;
    unsigned long m_pos = 0;
};

// The number formatter's modes.
inline constexpr int kModeDecimal = 0;
inline constexpr int kModeWhole = kWholeNumberOnly;
inline constexpr int kModeWholeSigned = kWholeNumberOnly | kNegativeZero;

}  // namespace kxnorth::platform::core::units::symbols_detail
