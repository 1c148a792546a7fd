#include "conversions.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

TEST(NumericPrefix, TakesTheLongestNumberAfterLeadingWhiteSpace) {
    EXPECT_EQ(NumericPrefix(L"1440"), 1440.0);
    EXPECT_EQ(NumericPrefix(L"   -15"), -15.0);
    EXPECT_EQ(NumericPrefix(L"\t 7"), 7.0);
    EXPECT_EQ(NumericPrefix(L"+3"), 3.0);
    EXPECT_EQ(NumericPrefix(L"12abc"), 12.0);
    EXPECT_EQ(NumericPrefix(L"12.5"), 12.5);
    EXPECT_EQ(NumericPrefix(L".5"), 0.5);
    EXPECT_EQ(NumericPrefix(L"5."), 5.0);
    EXPECT_EQ(NumericPrefix(L"1e3"), 1000.0);
    EXPECT_EQ(NumericPrefix(L"2D2"), 200.0);
    EXPECT_EQ(NumericPrefix(L"1e"), 1.0);
    EXPECT_EQ(NumericPrefix(L"1e+x"), 1.0);
    EXPECT_EQ(NumericPrefix(L"1 2"), 1.0);
    EXPECT_EQ(NumericPrefix(L"1,000"), 1.0);
}

TEST(NumericPrefix, TextWithoutANumberIsZero) {
    EXPECT_EQ(NumericPrefix(L""), 0.0);
    EXPECT_EQ(NumericPrefix(L"abc"), 0.0);
    EXPECT_EQ(NumericPrefix(L"--5"), 0.0);
    EXPECT_EQ(NumericPrefix(L"."), 0.0);
    EXPECT_EQ(NumericPrefix(L"- 5"), 0.0);
    EXPECT_EQ(NumericPrefix(L"&Q1"), 0.0);
}

TEST(NumericPrefix, HexadecimalFollowsTheOldLiteralWidths) {
    EXPECT_EQ(NumericPrefix(L"&H10"), 16.0);
    EXPECT_EQ(NumericPrefix(L"&hff"), 255.0);
    EXPECT_EQ(NumericPrefix(L" &H7FFF"), 32767.0);
    EXPECT_EQ(NumericPrefix(L"&HFFFF"), -1.0);     // four digits: a 16-bit pattern
    EXPECT_EQ(NumericPrefix(L"&HFFFF&"), 65535.0);  // marked as 32-bit
    EXPECT_EQ(NumericPrefix(L"&H10000"), 65536.0);
    EXPECT_EQ(NumericPrefix(L"&HFFFFFFFF"), -1.0);
    EXPECT_EQ(NumericPrefix(L"&H"), 0.0);
    EXPECT_EQ(NumericPrefix(L"&HFFG"), 255.0);
    EXPECT_EQ(NumericPrefix(L"&H100000000"), std::nullopt);
}

TEST(NumericPrefix, OverflowGivesNothing) { EXPECT_EQ(NumericPrefix(L"1e400"), std::nullopt); }

TEST(Rounding, HalvesGoToTheEvenNeighbour) {
    EXPECT_EQ(RoundToInt16(12.5), 12);
    EXPECT_EQ(RoundToInt16(13.5), 14);
    EXPECT_EQ(RoundToInt16(-2.5), -2);
    EXPECT_EQ(RoundToInt16(2.6), 3);
    EXPECT_EQ(RoundToInt32(0.5), 0);
    EXPECT_EQ(RoundToInt32(1.5), 2);
}

TEST(Rounding, DetectsOverflowAfterRounding) {
    EXPECT_EQ(RoundToInt16(32767.0), 32767);
    EXPECT_EQ(RoundToInt16(32767.4), 32767);
    EXPECT_EQ(RoundToInt16(32767.5), std::nullopt);
    EXPECT_EQ(RoundToInt16(-32768.5), -32768);
    EXPECT_EQ(RoundToInt16(-32769.0), std::nullopt);
    EXPECT_EQ(RoundToInt32(2147483647.0), 2147483647);
    EXPECT_EQ(RoundToInt32(2147483648.0), std::nullopt);
    EXPECT_EQ(RoundToInt32(-2147483648.0), -2147483647 - 1);
}

TEST(Trimming, RemovesBlanksButNotTabs) {
    EXPECT_EQ(TrimBlanks(L"  a b  "), L"a b");
    EXPECT_EQ(TrimBlanks(L"\ta\t"), L"\ta\t");
    EXPECT_EQ(TrimLeadingBlanks(L"  x "), L"x ");
    EXPECT_EQ(TrimTrailingBlanks(L"  x "), L"  x");
    EXPECT_EQ(TrimBlanks(L"   "), L"");
}

TEST(SplitLines, AcceptsEveryLineEndAndStopsAtTheLimit) {
    EXPECT_EQ(SplitLines(L"a\r\nb\rc\nd", 10), (std::vector<std::wstring_view>{L"a", L"b", L"c", L"d"}));
    EXPECT_EQ(SplitLines(L"a\r\n\r\nb\r\n", 10), (std::vector<std::wstring_view>{L"a", L"", L"b"}));
    EXPECT_EQ(SplitLines(L"a\nb\nc", 2), (std::vector<std::wstring_view>{L"a", L"b"}));
    EXPECT_TRUE(SplitLines(L"", 5).empty());
}

}  // namespace
}  // namespace orvane
