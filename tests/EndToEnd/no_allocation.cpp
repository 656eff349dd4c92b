// Formatting an ordinary value, and reading a short typed text, take no memory from the
// heap once the formatter's tables exist. The counting operator new below replaces the
// global one for this whole test program; it only counts.
#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <new>

#include "KxCoreUnitsUI/UnitsFormatter.h"
#include "KxCoreUnitsUI/UnitsManager.h"
#include "ManagerTest.h"

namespace {

std::atomic<long> g_allocations{0};

}  // namespace

void* operator new(std::size_t size) {
    g_allocations.fetch_add(1, std::memory_order_relaxed);
    if (void* p = std::malloc(size == 0 ? 1 : size)) return p;
    throw std::bad_alloc();
}
void operator delete(void* p) noexcept { std::free(p); }
void operator delete(void* p, std::size_t) noexcept { std::free(p); }

namespace units = kxnorth::platform::core::units;

namespace {

class Allocations : public kxtest::ManagerTest<> {
protected:
    // Heap allocations made by `work`, after one warm-up call.
    template <typename Work>
    static long Count(Work work) {
        work();
        long const before = g_allocations.load();
        work();
        return g_allocations.load() - before;
    }
    units::UnitsFormatter formatter{L"en-US"};
};

}  // namespace

TEST_F(Allocations, FormatOfOrdinaryValuesTakesNone) {
    struct Style {
        char const* label;
        int unit;
        int symbol;
    } const styles[] = {
        {"meters", 0x2001, 0x202001},          {"default symbol", 0x2001, 0},
        {"feet-inches fraction", 0x2016, 0x702016}, {"feet-inches decimal", 0x2016, 0x502016},
        {"degrees minutes seconds", 0x8002, 0x408002}, {"bearing", 0x8002, 0x508002},
        {"degrees Celsius", 0x2A002, 0},       {"density", 0x11001, 0},
    };
    double const values[] = {0.0, -0.0, 1234567.891, -66.5, 0.001, 11.999, 359.99999, 1e-9, 7.5e12};
    for (Style const& style : styles) {
        SCOPED_TRACE(style.label);
        for (double value : values) {
            wchar_t out[128];
            EXPECT_EQ(Count([&] { formatter.Format(value, style.unit, out, 128, style.symbol, nullptr); }), 0)
                << value;
        }
    }
}

TEST_F(Allocations, ShortTypedTextTakesNone) {
    for (wchar_t const* text : {L"5'-6 1/2\"", L"2.5 m", L"10 kg/m\u00B3", L"N 45\u00B030'15\" E", L"-12.75"}) {
        int const unit = text[0] == L'N' ? 0x8002 : text[1] == L'0' ? 0x11001 : 0x2016;
        double value = 0;
        EXPECT_EQ(Count([&] { formatter.Parse(text, value, unit); }), 0);
    }
}

TEST_F(Allocations, ShortRunsAndSumsTakeNone) {
    for (wchar_t const* text : {L"5 ft 6 in", L"5ft-6in", L"1.5 m + 20 cm", L"5'-6-1/2\"", L"10 ft -6 in"}) {
        double value = 0;
        EXPECT_EQ(Count([&] { formatter.Parse(text, value, 0x2016); }), 0);
        EXPECT_NE(value, 0);
    }
}

TEST_F(Allocations, TheCounterSeesTheLibrarysOwnAllocations) {
    EXPECT_GT(Count([] { units::UnitsFormatter another(L"en-US"); }), 0);
}
