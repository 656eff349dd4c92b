#include "FuzzSupport.h"

#include <QCoreApplication>
#include <cstring>
#include <limits>

#include "KxCoreUnits/UnitsConfig.h"
#include "KxCoreUnitsUI/UnitsManager.h"

namespace kxfuzz {

namespace {

QCoreApplication* g_app = nullptr;
std::unique_ptr<units::UnitsFormatter> g_reused[kLocaleCount];

// A new formatter's settings, read once, which RestoreSettings puts back.
struct Defaults {
    int precision;
    units::NumberFormat format;
    std::vector<int> groupSizes;
    bool flags[5];
};
Defaults g_defaults;

// Defaults changed by ApplyRestorableSettings, to be put back.
std::vector<int> g_changedGroups;
std::vector<int> g_changedUnits;

void ReadFlags(units::UnitsFormatter const& f, bool (&flags)[5]) {
    flags[0] = f.AllowTwoDigitExponent();
    flags[1] = f.IncludePositiveSignInNumber();
    flags[2] = f.IncludeNegativeSignInNumber();
    flags[3] = f.IncludePositiveSignInExponent();
    flags[4] = f.IncludeNegativeSignInExponent();
}

void WriteFlags(units::UnitsFormatter& f, bool const (&flags)[5]) {
    f.SetAllowTwoDigitExponent(flags[0]);
    f.SetIncludePositiveSignInNumber(flags[1]);
    f.SetIncludeNegativeSignInNumber(flags[2]);
    f.SetIncludePositiveSignInExponent(flags[3]);
    f.SetIncludeNegativeSignInExponent(flags[4]);
}

std::vector<int> CatalogueList(int kind) {
    units::UnitsConfig const* config = units::UnitsConfig::GetInstance();
    std::vector<int> groups(config->GetUnitGroups(nullptr));
    config->GetUnitGroups(groups.data());
    if (kind == 0) return groups;
    std::vector<int> result;
    for (int group : groups) {
        std::vector<int> unitIds(config->GetUnitTypes(group, nullptr));
        config->GetUnitTypes(group, unitIds.data());
        for (int unit : unitIds) {
            if (kind == 1) {
                result.push_back(unit);
                continue;
            }
            std::vector<int> symbols(config->GetUnitSymbols(unit, nullptr));
            config->GetUnitSymbols(unit, symbols.data());
            result.insert(result.end(), symbols.begin(), symbols.end());
        }
    }
    return result;
}

int Pick(FuzzedDataProvider& data, std::vector<int> const& ids) {
    return ids.empty() ? 0 : ids[data.ConsumeIntegralInRange<std::size_t>(0, ids.size() - 1)];
}

// Texts that people and locales use around numbers, and a few that collide with
// unit symbols and operators.
wchar_t const* const kTokenTexts[] = {
    L",", L".", L" ", L"'", L"\u00A0", L"\u202F", L"\u066B", L"\u066C", L"-", L"\u2212", L"+",
    L"", L"e", L"E", L"/", L"m", L"ft", L"(", L"\u00B7", L",,", L"..", L"--",
};

std::wstring PickTokenText(FuzzedDataProvider& data) {
    if (data.ConsumeBool()) return kTokenTexts[data.ConsumeIntegralInRange<std::size_t>(0, std::size(kTokenTexts) - 1)];
    return WideText(data.ConsumeRandomLengthString(4));
}

}  // namespace

void Initialize(char const* programPath) {
    if (g_app != nullptr) return;
    // Qt keeps references to both; the program's own folder is found through the system.
    static int argc = 1;
    static char* argv[] = {const_cast<char*>(programPath), nullptr};
    g_app = new QCoreApplication(argc, argv);
    units::UnitsManager::Initialize();
    units::UnitsManager::GetInstance();
    for (int i = 0; i < kLocaleCount; ++i) g_reused[i] = Fresh(i);

    units::UnitsFormatter const& f = *g_reused[0];
    g_defaults.precision = f.GetNumberDecimalPrecision();
    g_defaults.format = f.GetNumericFormat();
    g_defaults.groupSizes.resize(static_cast<std::size_t>(f.GetNumberGroupSizes(nullptr)));
    f.GetNumberGroupSizes(g_defaults.groupSizes.data());
    ReadFlags(f, g_defaults.flags);
    AllUnits();
    AllSymbols();
    AllGroups();
}

units::UnitsFormatter& Reused(int locale) { return *g_reused[locale]; }

std::unique_ptr<units::UnitsFormatter> Fresh(int locale) {
    std::wstring const name(kLocales[locale], kLocales[locale] + std::strlen(kLocales[locale]));
    return std::make_unique<units::UnitsFormatter>(name.c_str());
}

std::vector<int> const& AllGroups() {
    static std::vector<int> const ids = CatalogueList(0);
    return ids;
}

std::vector<int> const& AllUnits() {
    static std::vector<int> const ids = CatalogueList(1);
    return ids;
}

std::vector<int> const& AllSymbols() {
    static std::vector<int> const ids = CatalogueList(2);
    return ids;
}

int PickId(FuzzedDataProvider& data) {
    switch (data.ConsumeIntegralInRange(0, 5)) {
        case 0:
            return Pick(data, AllUnits());
        case 1:
            return Pick(data, AllSymbols());
        case 2:
            return Pick(data, AllGroups());
        case 3:
            return 0;
        case 4:
            // Bits 28-31 are outside the identity and must be ignored.
            return static_cast<int>(static_cast<unsigned>(Pick(data, AllSymbols())) | 0x70000000u);
        default:
            return data.ConsumeIntegral<int>() & units::kIdentityMask;
    }
}

int PickSymbol(FuzzedDataProvider& data) {
    static int const kInteresting[] = {
        0x502016, 0x602016, 0x702016, 0x802016, 0x902016, 0xA02016,  // feet and inches
        0x402016, 0x302017,                                          // prime marks
        0x408002, 0x508002, 0x608002, 0x208002, 0x508008,            // degrees, minutes, seconds
        0x52C001, 0x102001, 0x202001, 0x202017, 0x22A002, 0x101001, 0x201001,
    };
    if (data.ConsumeBool()) return kInteresting[data.ConsumeIntegralInRange<std::size_t>(0, std::size(kInteresting) - 1)];
    return Pick(data, AllSymbols());
}

double PickValue(FuzzedDataProvider& data) {
    switch (data.ConsumeIntegralInRange(0, 4)) {
        case 0: {
            std::uint64_t const bits = data.ConsumeIntegral<std::uint64_t>();
            double value;
            std::memcpy(&value, &bits, sizeof value);
            return value;
        }
        case 1:
            return data.ConsumeFloatingPointInRange(-1e4, 1e4);
        case 2:
            // Near a carry: 11.99...", 59.99...", whole and half values.
            return static_cast<double>(data.ConsumeIntegralInRange(-1000, 1000)) / 8.0 -
                   data.ConsumeProbability<double>() * 1e-3;
        case 3: {
            // Values every symbol must survive, picked often rather than hoped for.
            using Limits = std::numeric_limits<double>;
            constexpr double kSpecial[] = {Limits::quiet_NaN(), -Limits::quiet_NaN(), Limits::infinity(),
                                           -Limits::infinity(), 0.0, -0.0, Limits::max(), Limits::lowest(),
                                           Limits::denorm_min(), -Limits::min(), 0x1p63, -0x1p63, 0x1p52 - 0.5};
            return data.PickValueInArray(kSpecial);
        }
        default:
            return data.ConsumeFloatingPoint<double>();
    }
}

void PickDimensions(FuzzedDataProvider& data, int (&dims)[units::kDimensionCount]) {
    for (int& d : dims) d = data.ConsumeIntegralInRange(-4, 4);
}

std::wstring WideText(std::string const& bytes) {
    std::wstring text;
    text.reserve(bytes.size());
    std::size_t i = 0;
    while (i < bytes.size()) {
        auto const b = static_cast<unsigned char>(bytes[i]);
        int const length = b < 0x80 ? 1 : (b >> 5) == 0x6 ? 2 : (b >> 4) == 0xE ? 3 : (b >> 3) == 0x1E ? 4 : 0;
        char32_t code = length == 1 ? b : length == 2 ? (b & 0x1F) : length == 3 ? (b & 0x0F) : (b & 0x07);
        bool valid = length > 0 && i + static_cast<std::size_t>(length) <= bytes.size();
        for (int k = 1; valid && k < length; ++k) {
            auto const c = static_cast<unsigned char>(bytes[i + static_cast<std::size_t>(k)]);
            valid = (c & 0xC0) == 0x80;
            code = (code << 6) | (c & 0x3F);
        }
        if (!valid) {
            code = b;
            i += 1;
        } else {
            i += static_cast<std::size_t>(length);
        }
        if (code == 0) break;
        text.push_back(static_cast<wchar_t>(code));
    }
    return text;
}

std::unique_ptr<wchar_t[]> ExactCopy(std::wstring const& text) {
    auto copy = std::make_unique<wchar_t[]>(text.size() + 1);
    std::copy(text.begin(), text.end(), copy.get());
    copy[text.size()] = L'\0';
    return copy;
}

void ApplyRestorableSettings(FuzzedDataProvider& data, units::UnitsFormatter& f) {
    if (data.ConsumeBool()) f.SetNumberDecimalPrecision(data.ConsumeIntegralInRange(-2, 101));
    if (data.ConsumeBool()) f.SetNumericFormat(static_cast<units::NumberFormat>(data.ConsumeIntegralInRange(-1, 8)));
    if (data.ConsumeBool()) {
        int sizes[4];
        int const count = data.ConsumeIntegralInRange(0, 4);
        for (int& s : sizes) s = data.ConsumeIntegralInRange(-1, 10);
        f.SetNumberGroupSizes(sizes, count);
    }
    if (data.ConsumeBool()) {
        bool flags[5];
        for (bool& flag : flags) flag = data.ConsumeBool();
        WriteFlags(f, flags);
    }
    if (data.ConsumeBool()) {
        int const unit = PickId(data);
        int const group = unit & units::kGroupMask;
        // Only a choice that can be undone: the group's first unit must be settable too.
        if (group != 0 && f.SetDefaultUnit(group | 1) == 0) {
            g_changedGroups.push_back(group);
            f.SetDefaultUnit(unit);
        }
    }
    if (data.ConsumeBool()) {
        int const symbol = PickId(data);
        int const unit = symbol & units::kUnitMask;
        if ((unit & units::kUnitIndexMask) != 0 && f.SetDefaultSymbol(unit | units::kDefaultSymbolBit) == 0) {
            g_changedUnits.push_back(unit);
            f.SetDefaultSymbol(symbol);
        }
    }
}

void RestoreSettings(units::UnitsFormatter& f) {
    f.SetNumberDecimalPrecision(g_defaults.precision);
    f.SetNumericFormat(g_defaults.format);
    f.SetNumberGroupSizes(g_defaults.groupSizes.data(), static_cast<int>(g_defaults.groupSizes.size()));
    WriteFlags(f, g_defaults.flags);
    for (int group : g_changedGroups) f.SetDefaultUnit(group | 1);
    for (int unit : g_changedUnits) f.SetDefaultSymbol(unit | units::kDefaultSymbolBit);
    g_changedGroups.clear();
    g_changedUnits.clear();
}

void ApplyTokenSettings(FuzzedDataProvider& data, units::UnitsFormatter& f) {
    if (data.ConsumeBool()) f.SetNumberGroupSeparator(PickTokenText(data).c_str());
    if (data.ConsumeBool()) f.SetNumberDecimalSeparator(PickTokenText(data).c_str());
    if (data.ConsumeBool()) f.SetPositiveSign(PickTokenText(data).c_str());
    if (data.ConsumeBool()) f.SetNegativeSign(PickTokenText(data).c_str());
    if (data.ConsumeBool()) {
        // Arabic-Indic, fullwidth or scrambled ASCII digits; the setter refuses repeats.
        static wchar_t const* const kDigits[] = {L"\u0660\u0661\u0662\u0663\u0664\u0665\u0666\u0667\u0668\u0669",
                                                 L"\uFF10\uFF11\uFF12\uFF13\uFF14\uFF15\uFF16\uFF17\uFF18\uFF19",
                                                 L"9876543210", L"0123456780"};
        f.SetNativeDigits(kDigits[data.ConsumeIntegralInRange(0, 3)]);
    }
}

void ApplyCustomStrings(FuzzedDataProvider& data, units::UnitsFormatter& f, int maxCount, CustomStrings& applied) {
    int const count = data.ConsumeIntegralInRange(0, maxCount);
    for (int i = 0; i < count; ++i) {
        int const symbol = PickSymbol(data);
        bool const parsing = data.ConsumeBool();
        std::unique_ptr<wchar_t[]> const text = ExactCopy(WideText(data.ConsumeRandomLengthString(24)));
        int const result = parsing ? f.SetSymbolParsingString(symbol, text.get()) : f.SetSymbolFormattingString(symbol, text.get());
        KXFUZZ_CHECK(result == 0 || result == 1, "custom string setter returned %d", result);
        if (result == 0) applied.set.emplace_back(symbol, parsing);
    }
}

void RemoveCustomStrings(units::UnitsFormatter& f, CustomStrings const& applied) {
    for (auto const& [symbol, parsing] : applied.set) {
        int const result = parsing ? f.SetSymbolParsingString(symbol, L"") : f.SetSymbolFormattingString(symbol, L"");
        KXFUZZ_CHECK(result == 0, "removing the custom string of 0x%X returned %d", symbol, result);
        wchar_t buffer[4];
        int const left = parsing ? f.GetSymbolParsingString(symbol, buffer, 4) : f.GetSymbolFormattingString(symbol, buffer, 4);
        KXFUZZ_CHECK(left == 3, "the custom string of 0x%X is still there after removal (%d)", symbol, left);
    }
}

}  // namespace kxfuzz
