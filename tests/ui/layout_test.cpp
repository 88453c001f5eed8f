#include "ui/layout.h"

#include <gtest/gtest.h>

namespace {

using Type = ui::LayoutNode::Type;
using Caption = ui::LayoutNode::Caption;

TEST(Layout, NestsRowsColumnsGroupsAndGrids) {
  const auto layout = ui::parse_layout(
      "# a comment\n"
      "rows\n"
      "  columns\n"
      "    group frame\n"
      "      row a b^ c-\n"
      "    end\n"
      "    grid 2\n"
      "      row d\n"
      "    end\n"
      "  end\n"
      "  space\n"
      "end\n"
      "buttons ok cancel\n");
  ASSERT_EQ(layout.error, "");
  ASSERT_EQ(layout.root.children.size(), 2U);
  const ui::LayoutNode& rows = layout.root.children[0];
  EXPECT_EQ(rows.type, Type::kRows);
  ASSERT_EQ(rows.children.size(), 2U);
  EXPECT_EQ(rows.children[1].type, Type::kSpace);
  const ui::LayoutNode& columns = rows.children[0];
  EXPECT_EQ(columns.type, Type::kColumns);
  ASSERT_EQ(columns.children.size(), 2U);
  EXPECT_EQ(columns.children[0].type, Type::kGroup);
  EXPECT_EQ(columns.children[0].name, "frame");
  EXPECT_EQ(columns.children[1].grid_columns, 2);
  const auto& row = columns.children[0].children[0].children;
  ASSERT_EQ(row.size(), 3U);
  EXPECT_EQ(row[0].caption, Caption::kLeft);
  EXPECT_EQ(row[1].caption, Caption::kAbove);
  EXPECT_EQ(row[1].name, "b");
  EXPECT_EQ(row[2].caption, Caption::kNone);
  EXPECT_EQ(row[2].name, "c");
  EXPECT_EQ(layout.root.children[1].type, Type::kButtons);
}

TEST(Layout, HasFlowsAndAFootAtItsEnd) {
  const auto layout = ui::parse_layout(
      "flow\n  rows\n    a\n  end\n  b\nend\n# below\nfoot\n  flow\n    c\n  end\nend\n\n");
  ASSERT_EQ(layout.error, "");
  ASSERT_EQ(layout.root.children.size(), 2U);
  EXPECT_EQ(layout.root.children[0].type, Type::kFlow);
  EXPECT_EQ(layout.root.children[1].type, Type::kFoot);
  EXPECT_EQ(layout.root.children[1].children[0].type, Type::kFlow);
  EXPECT_EQ(ui::placed_names(layout.root), (std::vector<std::string>{"a", "b", "c"}));
}

TEST(Layout, PutsFurtherNamesBesideTheTitleOfAGroup) {
  const auto layout = ui::parse_layout("group frame a b-\n  c\nend\n");
  ASSERT_EQ(layout.error, "");
  const ui::LayoutNode& group = layout.root.children[0];
  EXPECT_EQ(group.name, "frame");
  ASSERT_EQ(group.beside.size(), 2U);
  EXPECT_EQ(group.beside[1].name, "b");
  EXPECT_EQ(group.beside[1].caption, Caption::kNone);
  EXPECT_EQ(ui::placed_names(layout.root), (std::vector<std::string>{"frame", "a", "b", "c"}));
}

TEST(Layout, TakesALineOfNamesForARow) {
  const auto layout = ui::parse_layout("grid 2\n  a b^\n  c-\nend\n");
  ASSERT_EQ(layout.error, "");
  const auto& lines = layout.root.children[0].children;
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_EQ(lines[0].type, Type::kRow);
  EXPECT_EQ(lines[0].children[1].caption, Caption::kAbove);
  EXPECT_EQ(ui::placed_names(layout.root), (std::vector<std::string>{"a", "b", "c"}));
}

TEST(Layout, TakesLinesBesideTheirPictures) {
  const auto layout = ui::parse_layout("lines choice 3\n  a b c\n  d\nend\nbuttons ok\n");
  ASSERT_EQ(layout.error, "");
  const auto& lines = layout.root.children[0];
  EXPECT_EQ(lines.type, Type::kLines);
  EXPECT_EQ(lines.name, "choice");
  EXPECT_EQ(lines.grid_columns, 3);
  EXPECT_EQ(ui::placed_names(layout.root),
            (std::vector<std::string>{"choice", "a", "b", "c", "d", "ok"}));
}

TEST(Layout, NamesWhatItPlacesInReadingOrder) {
  const auto layout =
      ui::parse_layout("group frame\nrow a b\nend\ncolumns\nrow c\nrow d\nend\nbuttons ok\n");
  EXPECT_EQ(ui::placed_names(layout.root),
            (std::vector<std::string>{"frame", "a", "b", "c", "d", "ok"}));
}

TEST(Layout, SaysLineAndReasonOfAMistake) {
  const struct {
    std::string_view source;
    std::string_view error;
  } rows[] = {
      {"row a\nend\n", "line 2: end without a beginning"},
      {"rows\nrow a\n", "an end is missing"},
      {"row\n", "line 1: row without a control"},
      {"\n# x\nbuttons\n", "line 3: buttons without a control"},
      {"group\nend\n", "line 1: unknown: group"},
      {"grid\nend\n", "line 1: unknown: grid"},
      {"grid 0\nend\n", "line 1: unknown: grid"},
      {"grid -1\nend\n", "line 1: unknown: grid"},
      {"lines\nend\n", "line 1: unknown: lines"},
      {"lines a\nend\n", "line 1: unknown: lines"},
      {"lines a 0\nend\n", "line 1: unknown: lines"},
      {"lines a 2 b\nend\n", "line 1: unknown: lines"},
      {"lines a 2\nrow b\n", "an end is missing"},
      {"row a\nta/ble 3\n", "line 2: unknown: ta/ble"},
      {"a b^^\n", "line 1: unknown: a"},
      {"flow 2\nend\n", "line 1: unknown: flow"},
      {"flow\na\n", "an end is missing"},
      {"foot a\nend\n", "line 1: unknown: foot"},
      {"rows\nfoot\na\nend\nend\n", "line 2: foot within something else"},
      {"foot\nfoot\nend\nend\n", "line 2: foot within something else"},
      {"foot\na\nend\n\nb\n", "line 5: something behind the foot"},
  };
  for (const auto& row : rows) EXPECT_EQ(ui::parse_layout(row.source).error, row.error);
}

TEST(Layout, OfNothingIsEmptyAndWithoutError) {
  for (const char* const source : {"", "\n\n", "# only a comment", "   \r\n"}) {
    const auto layout = ui::parse_layout(source);
    EXPECT_EQ(layout.error, "");
    EXPECT_TRUE(layout.root.children.empty());
  }
}

TEST(Layout, SurvivesEveryByte) {
  for (int byte = 0; byte < 256; ++byte) {
    const std::string source = std::string("row a") + static_cast<char>(byte) + "b\n";
    const auto layout = ui::parse_layout(source);
    EXPECT_LE(ui::placed_names(layout.root).size(), 2U) << byte << layout.error;
  }
}

TEST(Layout, IsNotThereForAnUnknownClass) {
  EXPECT_EQ(ui::layout_source("CNobodyDlg"), "");
  EXPECT_EQ(ui::layout_source(""), "");
}

}  // namespace
