// Formatters on many threads at once: every thread creates its own formatters (the
// first ones of their locales among them), formats, parses and destroys them while
// the manager's locale changes, and must get exactly what one thread gets alone.
//
// ctest runs each test in a process of its own, so every test starts with no locale
// loaded and no manager instance: the races on first use are part of each run.
#include <gtest/gtest.h>

#include <atomic>
#include <cstdint>
#include <cstring>
#include <string>
#include <thread>
#include <vector>

#include "KxCoreUnitsUI/UnitsFormatter.h"
#include "KxCoreUnitsUI/UnitsManager.h"
#include "KxUnitsUIConfig.h"

namespace units = kxnorth::platform::core::units;

namespace {

constexpr int kMeter = 0x2001, kInch = 0x2016, kDegree = 0x8002, kCelsius = 0x2A002;

// The styles every thread writes in: a symbol after the number, feet and inches
// with fractions, degrees-minutes-seconds, a bearing, a temperature with offset.
struct Style {
    int unit;
    int symbol;
};
constexpr Style kStyles[] = {
    {kMeter, 0x202001}, {kInch, 0x702016}, {kInch, 0x502016}, {kDegree, 0x408002},
    {kDegree, 0x508002}, {kCelsius, 0x12A002}, {kMeter, 0x102001},
};
constexpr int kStyleCount = sizeof(kStyles) / sizeof(kStyles[0]);

// Text a user types, in every locale: good ones, mixed units, arithmetic, and junk.
// None is a text of one locale only: whether such a text reads depends on whether
// its locale was loaded yet, with threads as without (see the last test).
struct Typed {
    wchar_t const* text;
    int unit;
};
constexpr Typed kTyped[] = {
    {L"5' 6\"", kInch},         {L"5 ft 6 in", kInch},    {L"1/2\"", kInch},     {L"12.5 m", kMeter},
    {L"3 yd 2 ft", kInch},     {L"30°15'20\"", kDegree}, {L"N 45° E", kDegree}, {L"(2 ft)·(3 ft)", kMeter},
    {L"-6\"", kInch},            {L"2 m^2", kMeter},       {L"", kMeter},         {L"))((", kMeter},
    {L"1e400 m", kMeter},        {L"20 °C", kCelsius},     {L"abc", kMeter},      {L"1 1/2 in", kInch},
};
constexpr int kTypedCount = sizeof(kTyped) / sizeof(kTyped[0]);

// One observed result: a return code with the text written or the value read.
struct Outcome {
    int code;
    std::wstring text;
    std::uint64_t valueBits;

    bool operator==(Outcome const& o) const { return code == o.code && text == o.text && valueBits == o.valueBits; }
};

std::uint64_t Bits(double value) {
    std::uint64_t bits;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}

// A value that walks through signs, magnitudes and awkward fractions.
double ValueAt(int i) {
    double const base = (i % 97) * 13.37 - 600.0;
    return (i % 5 == 0) ? base / 1000.0 : (i % 7 == 0 ? base * 1000.0 : base + 0.999);
}

// Step `i` of the work on one formatter: format in one style and read it back, or
// parse a typed text, every call's outcome appended to `out`.
void Step(units::UnitsFormatter const& formatter, int i, std::vector<Outcome>& out) {
    Style const& style = kStyles[i % kStyleCount];
    wchar_t buffer[128];
    double rest = 0;
    int code = formatter.Format(ValueAt(i), style.unit, buffer, 128, style.symbol, &rest);
    out.push_back({code, code == 0 ? std::wstring(buffer) : std::wstring(), Bits(rest)});
    double value = 0;
    code = formatter.Parse(code == 0 ? buffer : L"", value, style.unit);
    out.push_back({code, std::wstring(), Bits(value)});
    if (i % 3 == 0) {
        Typed const& typed = kTyped[(i / 3) % kTypedCount];
        value = 0;
        code = formatter.Parse(typed.text, value, typed.unit);
        out.push_back({code, std::wstring(), Bits(value)});
    }
}

// What one thread records: per locale the formatter actually took, its outcomes.
struct Recorded {
    std::wstring locale;
    int firstStep;
    std::vector<Outcome> outcomes;
};

// Steps [first, first + count) on a formatter of `locale` (null: the manager's).
Recorded RunSteps(wchar_t const* locale, int first, int count) {
    units::UnitsFormatter const formatter(locale);
    Recorded recorded{formatter.GetLocale(), first, {}};
    recorded.outcomes.reserve(static_cast<std::size_t>(count) * 3);
    for (int i = first; i < first + count; ++i) Step(formatter, i, recorded.outcomes);
    return recorded;
}

// Releases all waiting threads at once, so that first uses really collide.
class StartGate {
public:
    explicit StartGate(int threads) : m_waiting(threads) {}
    void ArriveAndWait() {
        m_waiting.fetch_sub(1, std::memory_order_acq_rel);
        while (m_waiting.load(std::memory_order_acquire) > 0) std::this_thread::yield();
    }

private:
    std::atomic<int> m_waiting;
};

// Compares every recorded run with the same steps done by this thread alone, on a
// new formatter of the locale the run's formatter took. Returns the mismatches.
int CountMismatches(std::vector<Recorded> const& runs) {
    int mismatches = 0;
    for (Recorded const& run : runs) {
        std::vector<Outcome> expected;
        units::UnitsFormatter const formatter(run.locale.c_str());
        EXPECT_EQ(std::wstring(formatter.GetLocale()), run.locale);
        int step = run.firstStep;
        while (expected.size() < run.outcomes.size()) Step(formatter, step++, expected);
        for (std::size_t k = 0; k < run.outcomes.size(); ++k) {
            if (run.outcomes[k] == expected[k]) continue;
            if (mismatches++ < 5) {
                ADD_FAILURE() << "locale " << std::string(run.locale.begin(), run.locale.end()) << ", outcome " << k
                              << " of steps from " << run.firstStep << ": code " << run.outcomes[k].code
                              << " instead of " << expected[k].code;
            }
        }
    }
    return mismatches;
}

}  // namespace

// The acceptance case: four threads create the first formatters of four locales at
// the same moment (also the first manager call), then format and parse 10,000 times.
TEST(FormatterThreads, FirstFormattersOfFourLocalesAgreeWithOneThread) {
    units::UnitsManager::Initialize();
    wchar_t const* const locales[] = {L"en-US", L"de-DE", L"fr-FR", L"en-GB"};
    constexpr int kThreads = 4, kSteps = 10000;
    StartGate gate(kThreads);
    std::vector<Recorded> runs(kThreads);
    std::vector<std::thread> threads;
    for (int t = 0; t < kThreads; ++t) {
        threads.emplace_back([&, t] {
            gate.ArriveAndWait();
            runs[static_cast<std::size_t>(t)] = RunSteps(locales[t], 0, kSteps);
        });
    }
    for (std::thread& thread : threads) thread.join();
    for (Recorded const& run : runs) ASSERT_GE(run.outcomes.size(), static_cast<std::size_t>(2 * kSteps));
    EXPECT_EQ(CountMismatches(runs), 0);
}

// Many threads, each creating, using and destroying formatter after formatter of a
// locale (some of the manager's locale), while this thread, the application's,
// keeps changing the manager's locale and translation folder.
TEST(FormatterThreads, CreateUseDestroyWhileTheManagerChanges) {
    units::UnitsManager::Initialize();
    wchar_t const* const locales[] = {L"fr-FR", L"en-US", nullptr, L"de-DE", L"en-GB", nullptr};
    constexpr int kThreads = 6, kRounds = 8, kStepsPerRound = 250;
    StartGate gate(kThreads + 1);
    std::vector<std::vector<Recorded>> runs(kThreads);
    std::atomic<int> running{kThreads};
    std::vector<std::thread> threads;
    for (int t = 0; t < kThreads; ++t) {
        threads.emplace_back([&, t] {
            gate.ArriveAndWait();
            for (int round = 0; round < kRounds; ++round) {
                runs[static_cast<std::size_t>(t)].push_back(
                    RunSteps(locales[t], (t * kRounds + round) * kStepsPerRound, kStepsPerRound));
            }
            running.fetch_sub(1, std::memory_order_release);
        });
    }
    gate.ArriveAndWait();
    wchar_t const* const managerLocales[] = {L"de-DE", L"fr-FR", L"en-US"};
    int changes = 0;
    while (running.load(std::memory_order_acquire) > 0) {
        units::UnitsManager* manager = units::UnitsManager::GetInstance();
        ASSERT_NE(manager, nullptr);
        EXPECT_TRUE(manager->SetCurrentLocale(managerLocales[changes % 3]));
        wchar_t name[16];
        EXPECT_EQ(manager->GetCurrentLocale(name, 16), 5);
        EXPECT_EQ(std::wcscmp(name, managerLocales[changes % 3]), 0);
        EXPECT_NE(manager->GetCurrentLocaleThreeLetterISOLanguageName(), nullptr);
        ++changes;
        std::this_thread::yield();
    }
    for (std::thread& thread : threads) thread.join();
    EXPECT_GT(changes, 0);

    std::vector<Recorded> all;
    for (auto& list : runs) all.insert(all.end(), list.begin(), list.end());
    ASSERT_EQ(all.size(), static_cast<std::size_t>(kThreads * kRounds));
    EXPECT_EQ(CountMismatches(all), 0);
}

// A formatter keeps what it was made with: the manager's later locale changes apply
// only to formatters created afterwards; texts of a locale loaded later, on another
// thread, become readable by every formatter, as when one thread loads them.
TEST(FormatterThreads, ExistingFormattersKeepTheirLocaleAndLearnNewTexts) {
    units::UnitsManager::Initialize();
    units::UnitsManager* manager = units::UnitsManager::GetInstance();
    ASSERT_TRUE(manager->SetCurrentLocale(L"fr-FR"));
    units::UnitsFormatter const before(nullptr);
    ASSERT_EQ(std::wcscmp(before.GetLocale(), L"fr-FR"), 0);

    struct Row {
        wchar_t const* name;
        int unit;
        int symbol;
        double value;
    };
    Row const rows[] = {
        {L"feet and inches", kInch, 0x702016, 70.5},
        {L"bearing", kDegree, 0x508002, 123.456},
        {L"temperature", kCelsius, 0x12A002, -40.0},
        {L"unit name", kMeter, 0x202001, 1234.5},
    };
    std::vector<std::wstring> written;
    for (Row const& row : rows) {
        wchar_t text[128];
        ASSERT_EQ(before.Format(row.value, row.unit, text, 128, row.symbol, nullptr), 0);
        written.emplace_back(text);
    }

    std::thread([&] {
        ASSERT_TRUE(manager->SetCurrentLocale(L"de-DE"));
        units::UnitsFormatter const after(nullptr);
        EXPECT_EQ(std::wcscmp(after.GetLocale(), L"de-DE"), 0);
    }).join();

    for (std::size_t k = 0; k < std::size(rows); ++k) {
        SCOPED_TRACE(rows[k].name);
        wchar_t text[128];
        ASSERT_EQ(before.Format(rows[k].value, rows[k].unit, text, 128, rows[k].symbol, nullptr), 0);
        EXPECT_EQ(written[k], text);
    }
    EXPECT_EQ(std::wcscmp(before.GetLocale(), L"fr-FR"), 0);
    // A German text, readable once a German formatter exists anywhere.
    double value = 0;
    EXPECT_EQ(before.Parse(L"3 Fuß", value, kMeter), 0);
    EXPECT_NEAR(value, 0.9144, 1e-12);
}

// Threads racing to create the first formatters of one locale build its table and
// its version of the parse dictionary once; the same locale again adds nothing, so
// the versions kept alive for readers stay one per locale with texts of its own.
TEST(FormatterThreads, RacingFirstFormattersOfOneLocaleBuildItOnce) {
    units::UnitsManager::Initialize();
    units::UnitsUIConfig const* config = units::UnitsUIConfig::GetInstance();
    std::size_t const before = config->ParseDictVersionCount();
    auto const createAtOnce = [](wchar_t const* locale) {
        constexpr int kThreads = 4;
        StartGate gate(kThreads);
        std::vector<std::thread> threads;
        for (int t = 0; t < kThreads; ++t) {
            threads.emplace_back([&] {
                gate.ArriveAndWait();
                units::UnitsFormatter const formatter(locale);
                wchar_t text[64];
                EXPECT_EQ(formatter.Format(1.5, kMeter, text, 64, 0x202001, nullptr), 0);
            });
        }
        for (std::thread& thread : threads) thread.join();
    };
    createAtOnce(L"fr-FR");
    std::size_t const afterFirst = config->ParseDictVersionCount();
    EXPECT_LE(afterFirst, before + 1);
    createAtOnce(L"fr-FR");
    EXPECT_EQ(config->ParseDictVersionCount(), afterFirst);
}
