// The longest-prefix dictionary under the key patterns parsing produces.
#include <gtest/gtest.h>

#include <string>

#include "KxUnitsStringDict.h"

namespace units = kxnorth::platform::core::units;

namespace {

using Dict = units::UnitsStringDict<int const>;

struct Probe {
    wchar_t const* text;
    int expectedValue;  // 0: no match
    std::size_t expectedLength;
};

void ExpectMatches(Dict const& dict, std::initializer_list<Probe> probes) {
    for (Probe const& p : probes) {
        SCOPED_TRACE(std::string(p.text, p.text + wcslen(p.text)));
        Dict::Match const m = dict.Find(p.text);
        if (p.expectedValue == 0) {
            EXPECT_TRUE(m.value == nullptr || m.length == 0);
        } else {
            ASSERT_NE(m.value, nullptr);
            EXPECT_EQ(*m.value, p.expectedValue);
            EXPECT_EQ(m.length, p.expectedLength);
        }
    }
}

int const kOne = 1, kTwo = 2, kThree = 3, kFour = 4, kFive = 5;

}  // namespace

// Keys parting after a common prefix, the longest key that is a prefix of the text,
// and a key ending inside an existing run (which splits it), in insertion order.
TEST(StringDict, LongestKeyThatIsAPrefixWins) {
    int const values[] = {1, 2, 3, 4};
    struct Row {
        std::initializer_list<wchar_t const*> keys;  // valued 1, 2, ...
        std::initializer_list<Probe> probes;
    } const rows[] = {
        {{L"ab", L"ac"}, {{L"abz", 1, 2}, {L"acz", 2, 2}, {L"adz", 0, 0}, {L"a", 0, 0}, {L"", 0, 0}}},
        {{L"m", L"mm", L"mm\u00B2", L"mil"},
         {{L"mmx", 2, 2}, {L"mx", 1, 1}, {L"mm\u00B2 ", 3, 3}, {L"mi", 1, 1}, {L"mile", 4, 3}, {L"M", 0, 0}}},
        {{L"kilometer", L"kilo", L"kilogram", L"k"},
         {{L"kilometers", 1, 9}, {L"kilom", 2, 4}, {L"kilogram", 3, 8}, {L"kil", 4, 1}, {L"kg", 4, 1}}},
    };
    for (Row const& r : rows) {
        Dict d;
        int i = 0;
        for (wchar_t const* key : r.keys) ASSERT_EQ(d.Add(key, &values[i++], false, false), 0);
        ExpectMatches(d, r.probes);
    }
}

TEST(StringDict, ExistingKeyIsKeptUnlessReplaceIsAsked) {
    Dict d;
    EXPECT_EQ(d.Add(L"ft", &kOne, false, false), 0);
    EXPECT_EQ(d.Add(L"ft", &kTwo, false, false), 1);
    ExpectMatches(d, {{L"ft", 1, 2}});
    EXPECT_EQ(d.Add(L"ft", &kTwo, false, true), 0);
    ExpectMatches(d, {{L"ft", 2, 2}});
    EXPECT_EQ(d.Add(nullptr, &kTwo, false, true), 1);
}

TEST(StringDict, OwnedValuesAreDeletedWhenReplacedErasedOrDestroyed) {
    struct Counted {
        int* alive;
        explicit Counted(int* a) : alive(a) { ++*alive; }
        ~Counted() { --*alive; }
    };
    int alive = 0;
    {
        units::UnitsStringDict<Counted> d;
        d.Add(L"a", new Counted(&alive), true, false);
        d.Add(L"a", new Counted(&alive), true, true);  // replaces: the first is deleted
        EXPECT_EQ(alive, 1);
        d.Add(L"b", new Counted(&alive), true, false);
        EXPECT_EQ(d.Erase(L"b"), 0);
        EXPECT_EQ(alive, 1);
        Counted notOwned(&alive);
        d.Add(L"c", &notOwned, false, false);
        EXPECT_EQ(d.Erase(L"c"), 0);
        EXPECT_EQ(alive, 2);
    }
    EXPECT_EQ(alive, 0);
}

TEST(StringDict, EraseLeavesTheOtherKeysFindable) {
    Dict d;
    d.Add(L"ab", &kOne, false, false);
    d.Add(L"ac", &kTwo, false, false);
    d.Add(L"abc", &kThree, false, false);
    EXPECT_EQ(d.Erase(L"ac"), 0);
    ExpectMatches(d, {{L"abz", 1, 2}, {L"acz", 0, 0}, {L"abcd", 3, 3}});
    EXPECT_EQ(d.Erase(L"ac"), 1) << "erasing twice";
    EXPECT_EQ(d.Erase(L"a"), 1) << "a prefix of a key is not a key";
    EXPECT_EQ(d.Erase(L"abcd"), 1) << "longer than any key";
    EXPECT_EQ(d.Erase(nullptr), 1);
    EXPECT_EQ(d.Erase(L"ab"), 0);
    ExpectMatches(d, {{L"abc", 3, 3}, {L"ab", 0, 0}});
    EXPECT_EQ(d.Erase(L"abc"), 0);
    ExpectMatches(d, {{L"abc", 0, 0}});
}

TEST(StringDict, EraseAndReAddInAnyOrderKeepsLookupsRight) {
    wchar_t const* const keys[] = {L"m", L"mm", L"min", L"mi", L"mile", L"m\u00B2", L"ms", L"mph"};
    int const values[] = {1, 2, 3, 4, 5, 6, 7, 8};
    Dict d;
    for (int i = 0; i < 8; ++i) d.Add(keys[i], &values[i], false, false);
    for (int round = 0; round < 8; ++round) {
        ASSERT_EQ(d.Erase(keys[round]), 0);
        for (int i = 0; i < 8; ++i) {
            Dict::Match const m = d.Find(keys[i]);
            if (i == round) {
                EXPECT_TRUE(m.value == nullptr || m.length < wcslen(keys[i])) << round;
            } else {
                ASSERT_NE(m.value, nullptr) << round << " " << i;
                EXPECT_EQ(*m.value, values[i]) << round << " " << i;
            }
        }
        ASSERT_EQ(d.Add(keys[round], &values[round], false, false), 0);
    }
}

TEST(StringDict, EmptyKeyMatchesEverythingWithLengthZero) {
    Dict d;
    d.Add(L"", &kFive, false, false);
    d.Add(L"-", &kOne, false, false);
    ExpectMatches(d, {{L"-5", 1, 1}});
    Dict::Match const m = d.Find(L"x");
    ASSERT_NE(m.value, nullptr);
    EXPECT_EQ(*m.value, 5);
    EXPECT_EQ(m.length, 0u) << "a match of length 0 is no progress";
    EXPECT_EQ(d.Erase(L""), 0);
    EXPECT_EQ(d.Find(L"x").value, nullptr);
}
