#include "ui/printer.h"

#include <gtest/gtest.h>

namespace {

using Lines = std::vector<std::string>;

TEST(Columns, AreTwoForAJapaneseCharacterAndOneForAnyOther) {
  struct Row {
    std::string_view text;
    std::size_t columns;
  };
  const Row rows[] = {{"", 0},
                      {"BBXX 01234", 10},
                      {"東京", 4},
                      {"ＡＢ", 4},
                      {"ｷｬﾝｾﾙ", 5},
                      {"a気b", 4},
                      {"é", 1},
                      {"\xE6\x9D", 2},
                      {"\xFF\xFE", 2},
                      {"\xE6 东", 4},
                      {"\xF0\x9F\x98\x80", 1},
                      {"　", 2}};
  for (const Row& row : rows) EXPECT_EQ(ui::columns_of(row.text), row.columns) << row.text;
}

TEST(ADocument, HandsOutTheLinesThatThereAre) {
  const auto document = ui::document_of({"one", "two", "東京湾"});
  EXPECT_EQ(document->size(), 3U);
  EXPECT_EQ(document->widest(), 6U);
  EXPECT_EQ(document->lines(0, 2), (Lines{"one", "two"}));
  EXPECT_EQ(document->lines(2, 5), Lines{"東京湾"});
  EXPECT_EQ(document->lines(3, 1), Lines{});
  EXPECT_EQ(document->lines(9, static_cast<std::size_t>(-1)), Lines{});
}

TEST(AFoldedDocument, CutsNoCharacterInTwoAndLosesNone) {
  const auto document = ui::document_of({"", "abcdef", "ab東京c", "abc"});
  const auto narrow = ui::folded(document, 3);
  EXPECT_EQ(narrow->lines(0, 99), (Lines{"", "abc", "def", "ab", "東", "京c", "abc"}));
  EXPECT_EQ(narrow->widest(), 3U);
  // Nothing to fold: nothing is copied.
  EXPECT_EQ(ui::folded(document, 7), document);
  EXPECT_EQ(ui::folded(nullptr, 7), nullptr);
}

}  // namespace
