// The floor any number formatter stands on: std::to_chars with two decimals and
// hand-written grouping of the whole part into a wide buffer.
#pragma once

#include <charconv>
#include <cstring>

namespace kxbench {

inline int ToCharsGrouped(double value, wchar_t* out) {
    char raw[64];
    auto const r = std::to_chars(raw, raw + sizeof raw, value, std::chars_format::fixed, 2);
    char const* p = raw;
    int n = 0;
    if (*p == '-') out[n++] = static_cast<wchar_t>(*p++);
    char const* point = static_cast<char const*>(std::memchr(p, '.', static_cast<std::size_t>(r.ptr - p)));
    int const whole = static_cast<int>(point - p);
    for (int i = 0; i < whole; ++i) {
        if (i > 0 && (whole - i) % 3 == 0) out[n++] = L',';
        out[n++] = static_cast<wchar_t>(p[i]);
    }
    for (char const* q = point; q < r.ptr; ++q) out[n++] = static_cast<wchar_t>(*q);
    out[n] = L'\0';
    return n + 1;
}

}  // namespace kxbench
