#include "codetables/tables/pressure_tendency.h"

#include <gtest/gtest.h>

namespace {

using codetables::TendencyCheck;
using codetables::TendencyKind;

TEST(PressureTendency, OpensOnTheKindOfItsFigures) {
  struct Row {
    const char* a;
    const char* amount;
    TendencyKind kind;
    int line;
  };
  const Row rows[] = {
      {"/", "", TendencyKind::kUnknown, 0},
      {"/", "05.2", TendencyKind::kUnknown, 0},
      {"0", "", TendencyKind::kSame, 0},
      {"", "", TendencyKind::kSame, -1},
      {"1", "", TendencyKind::kRisen, 1},
      {"2", "", TendencyKind::kRisen, 2},
      {"3", "", TendencyKind::kRisen, 3},
      {"", "05.2", TendencyKind::kRisen, -1},
      {"4", "", TendencyKind::kSame, 1},
      {"5", "", TendencyKind::kSame, 2},
      {"6", "", TendencyKind::kDescended, 1},
      {"7", "", TendencyKind::kDescended, 2},
      {"8", "", TendencyKind::kDescended, 3},
      {"0", "05.2", TendencyKind::kRisen, 0},
      {"3", "01.0", TendencyKind::kRisen, 3},
      {"4", "05.2", TendencyKind::kDescended, -1},
      {"5", "01.0", TendencyKind::kDescended, 0},
      {"8", "15.1", TendencyKind::kDescended, 3},
      // Below one hPa the whole number is 0.
      {"2", "00.9", TendencyKind::kSame, -1},
      {"5", "00.0", TendencyKind::kSame, 2},
      {"2", "-1", TendencyKind::kDescended, -1},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(codetables::tendency_kind(row.a, row.amount), row.kind) << row.a << ' ' << row.amount;
    EXPECT_EQ(codetables::characteristic_line(row.kind, row.a), row.line)
        << row.a << ' ' << row.amount;
  }
}

TEST(PressureTendency, LinesGiveTheCharacteristic) {
  struct Row {
    TendencyKind kind;
    const char* codes[5];
  };
  const Row rows[] = {{TendencyKind::kRisen, {"0", "1", "2", "3", nullptr}},
                      {TendencyKind::kSame, {"0", "4", "5", nullptr}},
                      {TendencyKind::kDescended, {"5", "6", "7", "8", nullptr}}};
  for (const Row& row : rows) {
    int line = 0;
    for (; row.codes[line] != nullptr; ++line) {
      EXPECT_EQ(codetables::characteristic(row.kind, line, "x"), row.codes[line]);
      EXPECT_EQ(codetables::characteristic_line(row.kind, row.codes[line]), line);
    }
    EXPECT_EQ(codetables::characteristic(row.kind, line, "x"), "x");
    EXPECT_EQ(codetables::characteristic(row.kind, -1, "x"), "x");
  }
  EXPECT_EQ(codetables::characteristic(TendencyKind::kUnknown, -1, "x"), "/");
  EXPECT_EQ(codetables::characteristic_line(TendencyKind::kSame, "45"), -1);
}

TEST(PressureTendency, AmountsAreDigitsPointsAndHyphens) {
  for (const char* good : {"", "0", "5.2", "05.2", "25.1", "5-2", "1.2.3", "1-"})
    EXPECT_TRUE(codetables::is_tendency_amount(good)) << good;
  for (const char* bad : {"-5", ".5", "5.", "5x", "x5", "/", "+5", "5 2", "５", "\xFF"})
    EXPECT_FALSE(codetables::is_tendency_amount(bad)) << bad;
}

TEST(PressureTendency, AmountIsShownWithZerosForBlanks) {
  struct Row {
    const char* typed;
    const char* shown;
  };
  for (const Row& row : {Row{"5.2", "05.2"}, Row{"0", "00.0"}, Row{"12", "12.0"}, Row{"", ""},
                         Row{"25.16", "25.2"}}) {
    EXPECT_EQ(codetables::tendency_amount_text(row.typed), row.shown) << row.typed;
  }
}

TEST(PressureTendency, ScreenAndRecordConvertBothWays) {
  for (int tenths = 0; tenths <= 250; ++tenths) {
    const std::string stored =
        std::string(3 - std::to_string(tenths).size(), '0') + std::to_string(tenths);
    const std::string shown = stored.substr(0, 2) + "." + stored.substr(2);
    EXPECT_EQ(codetables::tendency_shown(stored), shown);
    EXPECT_EQ(codetables::tendency_stored(shown), stored);
  }
  for (const char* kept : {"", "///", "x"}) {
    EXPECT_EQ(codetables::tendency_shown(kept), kept);
    EXPECT_EQ(codetables::tendency_stored(kept), kept);
  }
  EXPECT_EQ(codetables::tendency_stored("5.2"), "052");
}

TEST(PressureTendency, ChecksEveryCharacteristicWithEveryAmount) {
  struct Amount {
    const char* text;
    TendencyCheck check;
  };
  const Amount amounts[] = {
      {"", TendencyCheck::kAccepted},     {"0", TendencyCheck::kAccepted},
      {"15.0", TendencyCheck::kAccepted}, {"15.1", TendencyCheck::kAsks},
      {"25.0", TendencyCheck::kAsks},     {"25.1", TendencyCheck::kTooLarge},
  };
  for (const char* a : {"0", "1", "2", "3", "4", "5", "6", "7", "8", "/"}) {
    for (const Amount& amount : amounts) {
      const bool steady = std::string(a) == "4" && std::string(amount.text) != "" &&
                          std::string(amount.text) != "0";
      EXPECT_EQ(codetables::check_tendency(a, amount.text),
                steady ? TendencyCheck::kSteadyWithAmount : amount.check)
          << a << ' ' << amount.text;
    }
  }
}

TEST(PressureTendency, ComparesTenthsCutTowardZero) {
  EXPECT_EQ(codetables::check_tendency("2", "25.09"), TendencyCheck::kAsks);
  EXPECT_EQ(codetables::check_tendency("2", "15.09"), TendencyCheck::kAccepted);
  EXPECT_EQ(codetables::check_tendency("4", "0.09"), TendencyCheck::kAccepted);
  EXPECT_EQ(codetables::check_tendency("4", "0.1"), TendencyCheck::kSteadyWithAmount);
  EXPECT_EQ(codetables::check_tendency("2", "9999999999999999999999"), TendencyCheck::kTooLarge);
}

}  // namespace
