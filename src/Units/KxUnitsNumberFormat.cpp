#include "KxUnitsNumberFormat.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace kxnorth::platform::core::units {

NumberSettings const& NumberSettings::Defaults() {
    static NumberSettings const defaults;
    return defaults;
}

namespace {

// Large enough for any double in fixed notation at the highest precision (99):
// 309 integer digits, the point, 99 decimals and a sign.
constexpr std::size_t kRawCapacity = 512;

struct RawNumber {
    char text[kRawCapacity];
    std::size_t length = 0;
};

__extension__ typedef unsigned __int128 Uint128;

// Fixed notation with 1 to 19 decimals by exact integer arithmetic, for the values an
// application formats (below 2^52, and not so small that the binary point lies beyond
// 127 bits): the double is m * 2^-s exactly, so value * 10^precision is the exact
// fraction m * 10^precision / 2^s, rounded here half to even as printf rounds.
// False, with nothing written, for any value it does not cover.
bool FixedExact(double value, int precision, char* first, char* last, char*& end) {
    if (precision < 1 || precision > 19) return false;
    std::uint64_t bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    int const biased = static_cast<int>((bits >> 52) & 0x7FF);
    if (biased == 0 || biased >= 1075) return false;  // zero, subnormal, 2^52 and above
    int const shift = 1075 - biased;                  // value = mantissa / 2^shift
    if (shift > 127) return false;
    std::uint64_t const mantissa = (bits & ((std::uint64_t{1} << 52) - 1)) | (std::uint64_t{1} << 52);
    std::uint64_t scale = 1;
    for (int i = 0; i < precision; ++i) scale *= 10;
    Uint128 const scaled = static_cast<Uint128>(mantissa) * scale;  // below 2^117
    Uint128 quotient = scaled >> shift;
    Uint128 const remainder = scaled - (quotient << shift);
    Uint128 const half = static_cast<Uint128>(1) << (shift - 1);
    if (remainder > half || (remainder == half && (quotient & 1) != 0)) ++quotient;
    if ((quotient >> 64) != 0) return false;

    char digits[24];
    char* const digitsEnd = std::to_chars(digits, digits + sizeof digits, static_cast<std::uint64_t>(quotient)).ptr;
    int const count = static_cast<int>(digitsEnd - digits);
    int const leadingZeros = count <= precision ? precision + 1 - count : 0;
    if (last - first < count + leadingZeros + 2) return false;
    char* out = first;
    if (std::signbit(value)) *out++ = '-';
    int const wholeDigits = count + leadingZeros - precision;
    for (int i = 0; i < count + leadingZeros; ++i) {
        if (i == wholeDigits) *out++ = '.';
        *out++ = i < leadingZeros ? '0' : digits[i - leadingZeros];
    }
    end = out;
    return true;
}

// The text the C locale's printf("%+.*<letter>") writes: always a leading sign, "."
// as decimal point, no grouping, an exponent of at least two digits. std::to_chars
// gives the same digits without touching any stream or locale.
bool MakeRaw(double value, NumberFormat format, int precision, RawNumber& raw) {
    std::chars_format style = std::chars_format::fixed;
    bool upper = false;
    switch (format) {
        case eNFExponential: style = std::chars_format::scientific; upper = true; break;
        case eNFExponentialLower: style = std::chars_format::scientific; break;
        case eNFGeneral: style = std::chars_format::general; upper = true; break;
        case eNFGeneralLower: style = std::chars_format::general; break;
        default: break;
    }
    char* const first = raw.text + 1;
    if (style == std::chars_format::fixed && precision == 0 && std::fabs(value) < 1e15) {
        // Whole numbers (every part of a fraction, feet, degrees) skip the double
        // conversion. nearbyint rounds halves to even, as printf("%.0f") does.
        long long const whole = std::llabs(static_cast<long long>(std::nearbyint(value)));
        raw.text[0] = std::signbit(value) ? '-' : '+';
        raw.length = static_cast<std::size_t>(std::to_chars(first, raw.text + kRawCapacity, whole).ptr - raw.text);
        return true;
    }
    std::to_chars_result result{first, std::errc()};
    if (style != std::chars_format::fixed || !FixedExact(value, precision, first, raw.text + kRawCapacity, result.ptr)) {
        result = std::to_chars(first, raw.text + kRawCapacity, value, style, precision);
    }
    if (result.ec != std::errc()) return false;
    if (*first == '-') {
        std::memmove(raw.text, first, static_cast<std::size_t>(result.ptr - first));
        raw.length = static_cast<std::size_t>(result.ptr - first);
    } else {
        raw.text[0] = '+';
        raw.length = static_cast<std::size_t>(result.ptr - raw.text);
    }
    if (upper) {
        for (std::size_t i = 1; i < raw.length; ++i) {
            char& c = raw.text[i];
            if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
        }
    }
    return true;
}

// Digit counts from the decimal point leftwards after which a group separator goes.
// Returns how many there are (at most `capacity`, enough for any integer part).
int GroupSplits(std::vector<int> const& sizes, std::size_t integerDigits, std::size_t* splits,
                int capacity) {
    int count = 0;
    std::size_t at = 0;
    for (std::size_t index = 0; count < capacity;) {
        int const size = sizes[index];
        if (size <= 0) break;
        at += static_cast<std::size_t>(size);
        if (at >= integerDigits) break;
        splits[count++] = at;
        if (index + 1 < sizes.size()) ++index;
    }
    return count;
}

// Appends text to the output when there is room, and always counts it.
struct Writer {
    wchar_t* out;
    std::size_t room;  // characters that may be written before the terminator
    std::size_t length = 0;

    void Put(wchar_t c) {
        if (length < room) out[length] = c;
        ++length;
    }
    void Put(std::wstring const& s) {
        if (s.size() == 1) return Put(s[0]);
        for (wchar_t c : s) Put(c);
    }
};

// A whole number of magnitude 1 to 999 as the default settings write it: plain digits
// after a "-" when negative, no group separator. The size rule is FormatNumber's: the
// sign, the digits and the terminator must fit, also when no sign is written. Returns
// the characters written plus one, or -1.
int WriteSmallWhole(int value, wchar_t* buffer, unsigned long size) {
    char digits[4];
    char* const end = std::to_chars(digits, digits + sizeof digits, value < 0 ? -value : value).ptr;
    unsigned long const count = static_cast<unsigned long>(end - digits);
    if (count + 2 > size) return -1;
    unsigned long k = 0;
    if (value < 0) buffer[k++] = L'-';
    for (char const* p = digits; p != end; ++p) buffer[k++] = static_cast<wchar_t>(*p);
    buffer[k] = L'\0';
    return static_cast<int>(k + 1);
}

// A part of a fraction (a whole number), written as a new formatter writes numbers.
int WritePart(double value, wchar_t* buffer, unsigned long size, int flags) {
    if (value != 0 && std::fabs(value) < 1000) return WriteSmallWhole(static_cast<int>(value), buffer, size);
    return FormatNumber(NumberSettings::Defaults(), value, buffer, size, flags | kWholeNumberOnly);
}

}  // namespace

int FormatNumber(NumberSettings const& s, double value, wchar_t* buffer, unsigned long size,
                 int flags) {
    if (buffer == nullptr || size == 0) return -1;
    bool const valueIsZero = value == 0.0;
    if (valueIsZero) value = 0.0;  // minus zero writes like zero; only the flag adds a sign
    if (s.format == eNFFraction) return FormatNumberAsFraction(s, value, buffer, size, flags);
    if (static_cast<unsigned>(s.format) > eNFFraction) return -1;

    int const precision = (flags & kWholeNumberOnly) ? 0 : s.precision;
    RawNumber raw;
    if (!MakeRaw(value, s.format, precision, raw)) return -1;
    // The raw text with its sign and a terminator must fit, as it would in a
    // temporary buffer of the caller's size.
    if (raw.length + 1 > size) return -1;

    bool const grouped = s.format == eNFNumber && !s.groupSizes.empty() && s.groupSizes[0] != 0;
    std::size_t integerDigits = 0;
    while (1 + integerDigits < raw.length && raw.text[1 + integerDigits] >= '0' &&
           raw.text[1 + integerDigits] <= '9') {
        ++integerDigits;
    }
    std::size_t splits[kRawCapacity];
    int splitCount = grouped ? GroupSplits(s.groupSizes, integerDigits, splits, kRawCapacity) : 0;

    bool const zeroSign = valueIsZero && (flags & kNegativeZero);
    Writer w{buffer, size - 1};
    if (zeroSign) w.Put(s.negativeSign);
    std::size_t const beforeLeadingSign = w.length;

    // The leading sign of the number. The exponent forms read every sign after the
    // exponent letter as the exponent's; infinity and not-a-number have no letter, so
    // their sign stays the exponent's and follows the exponent's switches.
    bool const negative = raw.text[0] == '-';
    bool const signOfExponent =
        (s.format == eNFExponential || s.format == eNFExponentialLower) && !std::isfinite(value);
    bool const includeLeadingSign =
        negative ? (signOfExponent ? s.includeNegativeSignInExponent : s.includeNegativeSignInNumber)
                 : (signOfExponent ? s.includePositiveSignInExponent : s.includePositiveSignInNumber);
    if (includeLeadingSign) {
        w.Put(negative ? s.negativeSign : s.positiveSign);
    }
    std::size_t const leadingSignLength = w.length - beforeLeadingSign;

    // The integer digits, a group separator wherever `remaining` digits are left after
    // it: the splits ascend, so the next one due is the last stored.
    std::size_t i = 1;
    for (std::size_t remaining = integerDigits; remaining > 0; --remaining, ++i) {
        if (splitCount > 0 && splits[splitCount - 1] == remaining) {
            w.Put(s.groupSeparator);
            --splitCount;
        }
        w.Put(s.digits[raw.text[i] - '0']);
    }
    // Then the decimal separator, the decimals and the exponent.
    std::size_t omittedExponentSigns = 0;
    for (; i < raw.length; ++i) {
        char const c = raw.text[i];
        if (c >= '0' && c <= '9') {
            w.Put(s.digits[c - '0']);
        } else if (c == '.') {
            w.Put(s.decimalSeparator);
        } else if (c == '+' || c == '-') {  // only an exponent's sign gets here
            bool const include = c == '+' ? s.includePositiveSignInExponent : s.includeNegativeSignInExponent;
            if (include) {
                w.Put(c == '+' ? s.positiveSign : s.negativeSign);
            } else {
                ++omittedExponentSigns;
            }
        } else {
            w.Put(static_cast<wchar_t>(c));
        }
    }

    // Text is produced from its last character backwards, and a sign left out still
    // takes a place in that count; the count before the leading sign must stay below
    // the buffer size.
    std::size_t const producedBeforeLeadingSign =
        w.length - leadingSignLength - (zeroSign ? beforeLeadingSign : 0) + omittedExponentSigns;
    if (producedBeforeLeadingSign >= size || w.length >= size) return -1;
    buffer[w.length] = L'\0';
    return static_cast<int>(w.length + 1);
}

int FormatNumberAsFraction(NumberSettings const& s, double value, wchar_t* buffer,
                           unsigned long size, int flags) {
    if (buffer == nullptr || size == 0) return -1;
    double denominator = 1.0;
    for (int i = 0; i < s.precision; ++i) denominator *= 2.0;

    double const x = value > 0 ? value + 0.5 / denominator : value - 0.5 / denominator;
    double whole = 0;
    double const fraction = std::modf(x, &whole);
    double numerator = 0;
    std::modf(fraction * denominator, &numerator);

    // The parts are written as a new formatter writes numbers, at this precision.
    std::size_t k = 0;
    if (numerator == 0 || whole != 0) {
        int const n = WritePart(whole, buffer, size, flags);
        if (n < 1) return n;
        buffer[n - 1] = L' ';
        if (numerator == 0) {
            if (static_cast<unsigned long>(n) >= size) return -1;
            buffer[n] = L'\0';
            return n;
        }
        k = static_cast<std::size_t>(n);
    }
    if (whole < 0 && numerator < 0) numerator = -numerator;
    // Reduce: the denominator is a power of two, so only twos cancel. A not-a-number
    // numerator is never even and stays as it is.
    if (s.precision <= 62 && !std::isnan(numerator)) {
        int const twos = __builtin_ctzll(static_cast<unsigned long long>(std::llabs(static_cast<long long>(numerator))));
        numerator = std::ldexp(numerator, -twos);
        denominator = std::ldexp(denominator, -twos);
    } else {
        while (std::fmod(numerator, 2.0) == 0) {
            numerator /= 2;
            denominator /= 2;
        }
    }
    int const n1 = WritePart(numerator, buffer + k, size - k, 0);
    if (n1 < 1) return n1;
    k += static_cast<std::size_t>(n1);
    buffer[k - 1] = L'/';
    int const n2 = WritePart(denominator, buffer + k, size - k, 0);
    if (n2 < 1) return n2;
    k += static_cast<std::size_t>(n2);
    if (k >= size) return -1;
    buffer[k] = L'\0';
    return static_cast<int>(k);
}

int ReverseCopy(wchar_t* destination, std::wstring const& source, unsigned long size) {
    if (destination == nullptr || size == 0 || source.size() > size) return 1;
    std::size_t i = 0;
    for (auto it = source.rbegin(); it != source.rend(); ++it) destination[i++] = *it;
    return 0;
}

}  // namespace kxnorth::platform::core::units
