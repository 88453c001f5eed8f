// Lines on paper, read back from the PDF by another program.
#include "paper/pdf.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <string>
#include <vector>

#include "papers.h"

namespace {

using tests::sheets_of;

const paper::SheetSize kA4 = paper::sheet_of(paper::kA4Width, paper::kA4Height);
const paper::SheetSize kLetter = paper::sheet_of(612, 792);

paper::PageMeasures measure(const ui::Sheets& sheets, const paper::SheetSize& size) {
  return paper::measure_page(sheets, size, paper::proportions_of(*tests::faces()[0]));
}

std::string without_end(std::string line) {
  while (line.ends_with(' ')) line.pop_back();
  return line;
}

std::vector<std::string> full(const std::vector<std::string>& lines) {
  std::vector<std::string> result;
  for (const std::string& line : lines)
    if (!without_end(line).empty()) result.push_back(without_end(line));
  return result;
}

struct Printed {
  std::vector<std::string> lines;    ///< without blanks at their ends and without blank lines
  std::vector<std::string> footers;  ///< of each page that has one
  std::size_t pages = 0;
};

// Prints the sheets and reads them back: each word within the margins, each footer below the lines.
Printed print(const ui::Sheets& sheets, const paper::SheetSize& size) {
  const paper::PageMeasures measures = measure(sheets, size);
  const double dot = 72.0 / sheets.size.dots_per_inch;
  const double foot =
      size.margins.top + static_cast<double>(measures.room.lines) * measures.line_height * dot;
  const auto pdf = paper::pdf_of(sheets, size, tests::faces());
  EXPECT_TRUE(pdf);
  Printed printed;
  for (const tests::PrintedPage& page : tests::pages_of_pdf(*pdf)) {
    ++printed.pages;
    EXPECT_NEAR(page.width, size.width, 0.1);
    EXPECT_NEAR(page.height, size.height, 0.1);
    tests::PrintedPage body = page;
    std::string footer;
    std::erase_if(body.words, [&](const tests::Word& word) {
      EXPECT_GE(word.left, size.margins.left - 0.5) << word.text;
      EXPECT_GE(word.top, size.margins.top - 0.5) << word.text;
      EXPECT_LE(word.right, size.width - size.margins.right + 0.5) << word.text;
      EXPECT_LE(word.bottom, size.height - size.margins.bottom + 0.5) << word.text;
      if (word.top < foot) return false;
      footer.append(footer.empty() ? "" : " ").append(word.text);
      return true;
    });
    if (!footer.empty()) printed.footers.push_back(footer);
    double last = 0;
    for (const tests::PrintedLine& line :
         tests::lines_of(body, size.margins.left, measures.column * dot)) {
      // Letters of another face are higher.
      EXPECT_GE((line.top + line.bottom) / 2, last - 0.5)
          << line.text << " over the line before it";
      last = line.bottom;
      printed.lines.push_back(line.text);
    }
    EXPECT_LE(last, foot + 0.5);
  }
  return printed;
}

// As many lines as wanted, each as wide as the rulers of the print documents.
std::vector<std::string> listing(std::size_t count, std::size_t columns) {
  std::vector<std::string> lines;
  for (std::size_t i = 0; i < count; ++i) {
    std::string line = std::to_string(i + 1);
    while (line.size() < columns)
      line.append("....*....").push_back(static_cast<char>('1' + i % 9));
    line.resize(columns);
    lines.push_back(line);
  }
  return lines;
}

}  // namespace

TEST(Sheet, HasMarginsOfTenMillimetresAndOfWhatThePrinterCannotReach) {
  constexpr double kMillimetre = 72 / 25.4;
  EXPECT_NEAR(kA4.margins.left, 10 * kMillimetre, 0.001);
  EXPECT_EQ(kA4.margins.left, kA4.margins.bottom);
  const paper::SheetSize narrow =
      paper::sheet_of(612, 792, {3, 20 * kMillimetre, 0, 12.5 * kMillimetre});
  EXPECT_NEAR(narrow.margins.left, 10 * kMillimetre, 0.001);
  EXPECT_NEAR(narrow.margins.top, 20 * kMillimetre, 0.001);
  EXPECT_NEAR(narrow.margins.right, 10 * kMillimetre, 0.001);
  EXPECT_NEAR(narrow.margins.bottom, 12.5 * kMillimetre, 0.001);
}

TEST(Pages, HoldEachLineInOrderAndInItsColumns) {
  for (const paper::SheetSize& size : {kA4, kLetter}) {
    for (const std::size_t columns : {5U, 20U, 74U, 80U, 88U, 92U, 108U, 172U}) {
      for (const std::size_t count : {1U, 3U, 200U}) {
        const ui::Sheets sheets = sheets_of(listing(count, columns));
        const Printed printed = print(sheets, size);
        EXPECT_EQ(printed.lines, listing(count, columns)) << columns << " columns";
        const std::size_t per_page = measure(sheets, size).room.lines;
        EXPECT_EQ(printed.pages, (count + per_page - 1) / per_page);
        EXPECT_EQ(printed.footers.size(), printed.pages > 1 ? printed.pages : 0);
      }
    }
  }
}

// The largest letters that the widest line leaves room for, between five and sixteen points.
TEST(Pages, HaveTheLargestLettersThatTheWidestLineLeavesRoomFor) {
  for (const paper::SheetSize& size : {kA4, kLetter}) {
    const double width = size.room_across() / 72 * 600;
    const double height = size.room_down() / 72 * 600;
    for (std::size_t columns = 1; columns < 400; ++columns) {
      const paper::PageMeasures measures = measure(sheets_of({std::string(columns, 'x')}), size);
      const double points = measures.letter_height * 72.0 / 600;
      EXPECT_LE(points, 16.0);
      EXPECT_GE(points, 5.0);
      const auto wide = static_cast<double>(columns);
      const double column_of_a_dot_more =
          measures.column / measures.letter_height * (measures.letter_height + 1);
      if (points < 15.9) {
        EXPECT_GT(column_of_a_dot_more * wide, width) << columns;
      }
      if (points > 5.1) {
        EXPECT_LE(measures.column * wide, width) << columns;
        EXPECT_GE(measures.room.columns, columns);
      }
      EXPECT_LE(static_cast<double>(measures.room.columns) * measures.column, width);
      EXPECT_LE(static_cast<double>(measures.room.lines + 2) * measures.line_height, height);
      EXPECT_GT(static_cast<double>(measures.room.lines + 3) * measures.line_height, height);
    }
  }
}

TEST(Pages, GoOnInTheNextLineWhereALineHasNoRoomInTheSmallestLetters) {
  std::string line;
  while (line.size() < 5000) line.append(std::to_string(line.size())).push_back('.');
  const ui::Sheets sheets = sheets_of({"first", line, "last"});
  const std::size_t columns = measure(sheets, kA4).room.columns;
  EXPECT_GT(columns, 200U);
  std::vector<std::string> expected = {"first"};
  for (std::size_t at = 0; at < line.size(); at += columns)
    expected.push_back(line.substr(at, columns));
  expected.emplace_back("last");
  EXPECT_EQ(print(sheets, kA4).lines, expected);
}

TEST(Pages, LineUpLatinAndJapanese) {
  const std::vector<std::string> lines = {
      "....*....1....*....2....*....3....*....4", "東京湾.* 13 北太平洋  気象電報 14111512.tlx",
      "ｱｲｳ       x 東  京 y １２３ abc", "保存データの印刷    end",
      "  あいう  漢字かな混じり文   99"};
  for (const paper::SheetSize& size : {kA4, kLetter})
    EXPECT_EQ(print(sheets_of(lines), size).lines, full(lines));
}

TEST(Pages, SurviveAnyBytesAndKeepTheColumnsBehindThem) {
  std::string all;
  for (int byte = 0; byte < 256; ++byte) all.push_back(static_cast<char>(byte));
  EXPECT_EQ(print(sheets_of({"before", all, "behind"}), kA4).lines.back(), "behind");
  const std::vector<std::string> odd = {std::string("a\tb\0c\x1b[1m\rd", 12),  // one column each
                                        "\xF0\x9F\x9A\xA2 ship",
                                        "a\xC3\xA9"
                                        "b e",
                                        "\xE2\x80\xAEleft to right"};
  const std::vector<std::string> printed = print(sheets_of(odd), kA4).lines;
  ASSERT_EQ(printed.size(), odd.size());
  EXPECT_EQ(printed[0], "a b c [1m d");
  EXPECT_TRUE(printed[1].ends_with(" ship")) << printed[1];
  EXPECT_EQ(printed[2], odd[2]);
  EXPECT_EQ(printed[3], " left to right");
}

TEST(Pages, TakeALetterThatTheFirstFaceLacksFromTheNext) {
  ASSERT_EQ(tests::faces()[0]->glyph_of(U'ŵ'), paper::TrueType::kNoGlyph);
  ASSERT_NE(tests::faces()[1]->glyph_of(U'ŵ'), paper::TrueType::kNoGlyph);
  EXPECT_EQ(print(sheets_of({"cŵmwl", "ŵ ŵ 9"}), kA4).lines,
            (std::vector<std::string>{"cŵmwl", "ŵ ŵ 9"}));
}

TEST(Pages, TellTheirNumberBelowTheLinesWhereThereAreSeveral) {
  ui::Sheets sheets = sheets_of(listing(1, 80));
  const std::size_t per_page = measure(sheets, kA4).room.lines;
  sheets.lines = ui::document_of(listing(per_page, 80));
  EXPECT_EQ(print(sheets, kA4).footers, (std::vector<std::string>{}));
  sheets.lines = ui::document_of(listing(per_page + 1, 80));
  EXPECT_EQ(print(sheets, kA4).footers, (std::vector<std::string>{"Page 1 of 2", "Page 2 of 2"}));
  sheets.language = text::Language::kJapanese;
  sheets.lines = ui::document_of(listing(2 * per_page + 1, 80));
  EXPECT_EQ(print(sheets, kA4).footers,
            (std::vector<std::string>{"1／3ページ", "2／3ページ", "3／3ページ"}));
}

TEST(Pages, OfNothingAreOneBlankPage) {
  for (const ui::Sheets& sheets : {ui::Sheets{}, sheets_of({}), sheets_of({"", "  "})}) {
    const Printed printed = print(sheets, kA4);
    EXPECT_EQ(printed.pages, 1U);
    EXPECT_TRUE(printed.lines.empty());
  }
}

TEST(Pages, HaveADrawingWholeBelowTheLinesWhereThePageHasRoomForIt) {
  ui::Drawing drawing;
  drawing.x = {"x", 0, 10};
  drawing.y = {"y", 0, 10};
  drawing.shapes = {ui::Polyline{{{0, 0}, {10, 10}}}, ui::ShortText{{5, 5}, "東京"}};
  const auto pages_of = [](const ui::Sheets& sheets) {
    return tests::pages_of_pdf(paper::pdf_of(sheets, kA4, tests::faces()).value()).size();
  };
  const auto few = ui::document_of(std::vector<std::string>(3, "BBXX"));
  const std::size_t room = measure({"Pressure", few}, kA4).room.lines;
  const auto page = ui::document_of(std::vector<std::string>(room, "BBXX"));
  for (const bool same_scale : {false, true}) {
    drawing.same_scale = same_scale;
    EXPECT_EQ(pages_of({"Pressure", {}, {drawing}}), 1U);
    EXPECT_EQ(pages_of({"Pressure", few, {drawing}}), 1U);
    EXPECT_EQ(pages_of({"Pressure", page, {drawing}}), 2U);
  }
  // Three squares as wide as the page: never two on one.
  EXPECT_EQ(pages_of({"Maps", few, {drawing, drawing, drawing}}), 3U);
  drawing.y.last = drawing.y.first + 100 * (drawing.y.last - drawing.y.first);
  EXPECT_EQ(pages_of({"A tower", {}, {drawing}}), 1U);
}

// The text of a drawing stands at its point: in the middle of a square as wide as the page.
TEST(Pages, HaveTheTextsOfADrawingAtTheirPoints) {
  ui::Drawing drawing;
  drawing.same_scale = true;
  drawing.shapes = {ui::ShortText{{0.5, 0.5}, "東京"}};
  const auto pages =
      tests::pages_of_pdf(paper::pdf_of({"Map", {}, {drawing}}, kA4, tests::faces()).value());
  ASSERT_EQ(pages.size(), 1U);
  ASSERT_EQ(pages[0].words.size(), 1U);
  const tests::Word& word = pages[0].words[0];
  EXPECT_EQ(word.text, "東京");
  EXPECT_NEAR((word.left + word.right) / 2, kA4.width / 2, 0.5);
  // The square is 190 mm high and begins 10 mm below the edge.
  EXPECT_NEAR((word.top + word.bottom) / 2, 105 * 72 / 25.4, 1);
  EXPECT_NEAR(word.right - word.left, 16, 0.5);  // two letters of eight points
}

TEST(Pdf, BearsItsNameAndIsSoundForAnotherReader) {
  ui::Sheets sheets = sheets_of({"BBXX", "東京湾"});
  sheets.name = "気象電報 (1)";
  const auto pdf = paper::pdf_of(sheets, kA4, tests::faces());
  ASSERT_TRUE(pdf);
  // A whole font of ten thousand letters would be millions of bytes.
  EXPECT_LT(pdf->size(), 20'000U);
  EXPECT_EQ(paper::pdf_of(sheets, kA4, {}), std::nullopt);
}

TEST(Pdf, OfALongLogbookIsNotLarge) {
  const auto pdf = paper::pdf_of(sheets_of(listing(20'000, 88)), kA4, tests::faces());
  ASSERT_TRUE(pdf);
  EXPECT_LT(pdf->size(), 20'000U * 88U);
}
