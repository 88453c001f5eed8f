#include "ship/data/ship_identity.h"

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(CallSign, IsNarrowedAndLosesEverySpace) {
  EXPECT_EQ(tidy_identifier("ＪＣ　Ｃ Ｘ１"), "JCCX1");
  EXPECT_EQ(tidy_identifier("＊．，"), "*.,");
  EXPECT_EQ(tidy_identifier("  "), "");
}

TEST(CallSign, HasAtMostSevenCapitalsAndFigures) {
  for (const char* good : {"", "A", "JCCX", "7JKL123", "1234567"})
    EXPECT_TRUE(is_call_sign(good)) << good;
  for (const char* bad : {"JCCXJCCX", "jccx", "JC-X", "JC.X", "*******", "ＪＣ", "J C"})
    EXPECT_FALSE(is_call_sign(bad)) << bad;
}

TEST(ImoNumber, IsEmptyOrSevenFigures) {
  for (const char* good : {"", "9074729", "0000000"}) EXPECT_TRUE(is_imo_number(good)) << good;
  for (const char* bad : {"907472", "90747290", "907472A", "-074729", "９０７４７２９"})
    EXPECT_FALSE(is_imo_number(bad)) << bad;
}

TEST(Manufacturer, KeepsInnerSpacesAndLosesUnderscores) {
  EXPECT_EQ(tidy_manufacturer("　ＡＷＳ　ＣＯ．，_ＬＴＤ "), "AWS CO.,LTD");
  EXPECT_EQ(tidy_manufacturer("___"), "");
}

TEST(Manufacturer, HasAtMostSixtyCapitalsFiguresSpacesPointsAndCommas) {
  EXPECT_TRUE(is_manufacturer(""));
  EXPECT_TRUE(is_manufacturer("AWS CO., LTD 2"));
  EXPECT_TRUE(is_manufacturer(std::string(60, 'A')));
  EXPECT_FALSE(is_manufacturer(std::string(61, 'A')));
  for (const char* bad : {"aws", "A-B", "A_B", "気象", "A/B"})
    EXPECT_FALSE(is_manufacturer(bad)) << bad;
}

}  // namespace
