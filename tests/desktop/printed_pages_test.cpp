// Lines on paper, read back from the PDF by another program.
#include "desktop/printed_pages.h"
#include "desktop/fixed_pitch.h"

#include <gtest/gtest.h>

#include <QFontDatabase>
#include <algorithm>
#include <cmath>
#include <functional>
#include <string>
#include <vector>

#include "paper.h"
#include "text/strings.h"

namespace {

constexpr double kMillimetre = 72 / 25.4;
const QPageSize::PageSizeId kPapers[] = {QPageSize::A4, QPageSize::Letter};

std::string pdf_of(const ui::Sheets& sheets, const QPageLayout& paper) {
  std::string pdf;
  EXPECT_TRUE(desktop::write_pdf(sheets, paper, [&](std::string_view bytes) {
    pdf.append(bytes);
    return true;
  }));
  return pdf;
}

std::string without_end(std::string line) {
  while (line.ends_with(' ')) line.pop_back();
  return line;
}

struct Printed {
  std::vector<std::string> lines;    ///< without blanks at their ends and without blank lines
  std::vector<std::string> footers;  ///< of each page that has one
  std::size_t pages = 0;
};

// Prints the sheets and reads them back: each word within the margins, each footer below the lines.
Printed print(const ui::Sheets& sheets, const QPageLayout& paper) {
  const desktop::PageMeasures measures = desktop::measure_page(sheets, paper);
  const double points_of_dot = 72.0 / sheets.size.dots_per_inch;
  const QRectF room = paper.paintRect(QPageLayout::Point);
  Printed printed;
  for (const tests::PrintedPage& page : tests::pages_of_pdf(pdf_of(sheets, paper))) {
    ++printed.pages;
    EXPECT_NEAR(page.width, paper.fullRect(QPageLayout::Point).width(), 1);
    EXPECT_NEAR(page.height, paper.fullRect(QPageLayout::Point).height(), 1);
    tests::PrintedPage body = page;
    const double foot = room.top() + static_cast<double>(measures.room.lines) *
                                         measures.line_height * points_of_dot;
    std::string footer;
    std::erase_if(body.words, [&](const tests::Word& word) {
      EXPECT_GE(word.left, room.left() - 0.5) << word.text.toStdString();
      EXPECT_GE(word.top, room.top() - 0.5) << word.text.toStdString();
      EXPECT_LE(word.right, room.right() + 0.5) << word.text.toStdString();
      EXPECT_LE(word.bottom, room.bottom() + 0.5) << word.text.toStdString();
      if (word.top < foot) return false;
      footer.append(footer.empty() ? "" : " ").append(word.text.toStdString());
      return true;
    });
    if (!footer.empty()) printed.footers.push_back(footer);
    double last = 0;
    for (const tests::PrintedLine& line :
         tests::lines_of(body, room.left(), measures.column * points_of_dot)) {
      EXPECT_GE(line.top, last - 0.5) << line.text << " over the line before it";
      last = line.bottom;
      printed.lines.push_back(line.text);
    }
    EXPECT_LE(last, foot + 0.5);
  }
  return printed;
}

std::vector<std::string> full(const std::vector<std::string>& lines) {
  std::vector<std::string> result;
  for (const std::string& line : lines)
    if (!without_end(line).empty()) result.push_back(without_end(line));
  return result;
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

ui::Sheets sheets_of(std::vector<std::string> lines) {
  return {"Print", ui::document_of(std::move(lines)), {}, {}, {}};
}

}  // namespace

TEST(PrintedPages, StandInLettersThatKeepColumnsAndHaveJapanese) {
  EXPECT_TRUE(desktop::keeps_columns(desktop::fixed_pitch_family()))
      << "no fixed font with Japanese letters is installed; the program asks for "
      << desktop::fixed_pitch_family().toStdString();
  // A proportional one and one without Japanese are no such fonts.
  EXPECT_FALSE(desktop::keeps_columns("DejaVu Sans"));
  EXPECT_FALSE(desktop::keeps_columns("DejaVu Sans Mono"));
  EXPECT_FALSE(desktop::keeps_columns("IPAPGothic"));
}

TEST(FixedPitch, HasFiguresAsLargeAsThoseOfTheFontBesideIt) {
  const auto room = [](const QFont& font) {
    const QFontMetricsF metrics(font);
    return metrics.tightBoundingRect("0").height() * metrics.horizontalAdvance('0');
  };
  QFont usual("DejaVu Sans");
  for (const double points : {20.0, 60.0}) {
    usual.setPointSizeF(points);
    const QFont fixed = desktop::fixed_pitch_font(usual);
    EXPECT_EQ(fixed.family(), desktop::fixed_pitch_family());
    EXPECT_GT(fixed.pointSizeF(), 1.05 * points);  // IPAGothic is narrow
    EXPECT_NEAR(room(fixed) / room(usual), 1, 0.1) << points;
  }
  usual.setPixelSize(100);
  EXPECT_NEAR(room(desktop::fixed_pitch_font(usual)) / room(usual), 1, 0.05);
}

TEST(PrintedPages, HaveMarginsOfTenMillimetresAndOfWhatThePrinterCannotReach) {
  for (const QPageSize::PageSizeId size : kPapers) {
    const QPageLayout plain = desktop::paper_of(QPageSize(size));
    EXPECT_EQ(plain.orientation(), QPageLayout::Portrait);
    EXPECT_EQ(plain.margins(QPageLayout::Millimeter), QMarginsF(10, 10, 10, 10));
    const QPageLayout narrow =
        desktop::paper_of(QPageSize(size), {3, 20 * kMillimetre, 0, 12.5 * kMillimetre});
    const QMarginsF margins = narrow.margins(QPageLayout::Millimeter);
    EXPECT_NEAR(margins.left(), 10, 0.01);
    EXPECT_NEAR(margins.top(), 20, 0.01);
    EXPECT_NEAR(margins.right(), 10, 0.01);
    EXPECT_NEAR(margins.bottom(), 12.5, 0.01);
  }
}

TEST(PrintedPages, HoldEachLineInOrderAndInItsColumns) {
  for (const QPageSize::PageSizeId size : kPapers) {
    const QPageLayout paper = desktop::paper_of(QPageSize(size));
    for (const std::size_t columns : {5U, 20U, 74U, 80U, 88U, 92U, 108U, 172U}) {
      for (const std::size_t count : {1U, 3U, 200U}) {
        const ui::Sheets sheets = sheets_of(listing(count, columns));
        const Printed printed = print(sheets, paper);
        EXPECT_EQ(printed.lines, listing(count, columns)) << columns << " columns";
        const std::size_t per_page = desktop::measure_page(sheets, paper).room.lines;
        EXPECT_EQ(printed.pages, (count + per_page - 1) / per_page);
        EXPECT_EQ(printed.footers.size(), printed.pages > 1 ? printed.pages : 0);
      }
    }
  }
}

// The largest letters that the widest line leaves room for, between five and sixteen points.
TEST(PrintedPages, HaveTheLargestLettersThatTheWidestLineLeavesRoomFor) {
  for (const QPageSize::PageSizeId size : kPapers) {
    const QPageLayout paper = desktop::paper_of(QPageSize(size));
    const double width = paper.paintRectPixels(600).width();
    for (std::size_t columns = 1; columns < 400; ++columns) {
      const desktop::PageMeasures measures =
          desktop::measure_page(sheets_of({std::string(columns, 'x')}), paper);
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
      EXPECT_LE(static_cast<double>(measures.room.lines + 2) * measures.line_height,
                paper.paintRectPixels(600).height());
      EXPECT_GT(static_cast<double>(measures.room.lines + 3) * measures.line_height,
                paper.paintRectPixels(600).height());
    }
    // A report under its ruler, and a logbook: letters of a book, not of its footnotes.
    EXPECT_GT(desktop::measure_page(sheets_of(listing(1, 92)), paper).letter_height * 72 / 600, 10);
  }
}

TEST(PrintedPages, GoOnInTheNextLineWhereALineHasNoRoomInTheSmallestLetters) {
  const QPageLayout paper = desktop::paper_of(QPageSize(QPageSize::A4));
  std::string line;
  while (line.size() < 5000) line.append(std::to_string(line.size())).push_back('.');
  const ui::Sheets sheets = sheets_of({"first", line, "last"});
  const std::size_t columns = desktop::measure_page(sheets, paper).room.columns;
  EXPECT_GT(columns, 200U);
  std::vector<std::string> expected = {"first"};
  for (std::size_t at = 0; at < line.size(); at += columns)
    expected.push_back(line.substr(at, columns));
  expected.emplace_back("last");
  EXPECT_EQ(print(sheets, paper).lines, expected);
}

TEST(PrintedPages, LineUpLatinAndJapanese) {
  const std::vector<std::string> lines = {
      "....*....1....*....2....*....3....*....4", "東京湾.* 13 北太平洋  気象電報 14111512.tlx",
      "ｱｲｳ       x 東  京 y １２３ abc", "保存データの印刷    end",
      "  あいう  漢字かな混じり文   99"};
  for (const QPageSize::PageSizeId size : kPapers)
    EXPECT_EQ(print(sheets_of(lines), desktop::paper_of(QPageSize(size))).lines, full(lines));
}

TEST(PrintedPages, SurviveAnyBytesAndKeepTheColumnsBehindThem) {
  const QPageLayout paper = desktop::paper_of(QPageSize(QPageSize::A4));
  std::string all;
  for (int byte = 0; byte < 256; ++byte) all.push_back(static_cast<char>(byte));
  EXPECT_EQ(print(sheets_of({"before", all, "behind"}), paper).lines.back(), "behind");
  const std::vector<std::string> odd = {std::string("a\tb\0c\x1b[1m\rd", 12),  // one column each
                                        "\xF0\x9F\x9A\xA2 ship",
                                        "a\xC3\xA9"
                                        "b e",
                                        "\xE2\x80\xAE right to left"};
  const std::vector<std::string> printed = print(sheets_of(odd), paper).lines;
  ASSERT_EQ(printed.size(), odd.size());
  EXPECT_EQ(printed[0], "a b c [1m d");
  EXPECT_TRUE(printed[1].ends_with(" ship")) << printed[1];
  EXPECT_EQ(printed[2], odd[2]);
  EXPECT_TRUE(printed[3].ends_with(" right to left")) << printed[3];
}

TEST(PrintedPages, TellTheirNumberBelowTheLinesWhereThereAreSeveral) {
  const QPageLayout paper = desktop::paper_of(QPageSize(QPageSize::A4));
  ui::Sheets sheets = sheets_of(listing(1, 80));
  const std::size_t per_page = desktop::measure_page(sheets, paper).room.lines;
  sheets.lines = ui::document_of(listing(per_page, 80));
  EXPECT_EQ(print(sheets, paper).footers, (std::vector<std::string>{}));
  sheets.lines = ui::document_of(listing(per_page + 1, 80));
  EXPECT_EQ(print(sheets, paper).footers, (std::vector<std::string>{"Page 1 of 2", "Page 2 of 2"}));
  sheets.language = text::Language::kJapanese;
  sheets.lines = ui::document_of(listing(2 * per_page + 1, 80));
  EXPECT_EQ(print(sheets, paper).footers,
            (std::vector<std::string>{"1／3ページ", "2／3ページ", "3／3ページ"}));
}

// Counts the lines that are asked for at once, and how often each is.
class LongDocument : public ui::Document {
 public:
  explicit LongDocument(std::size_t size) : size_(size) {}
  [[nodiscard]] std::size_t size() const override { return size_; }
  [[nodiscard]] std::size_t widest() const override { return 88; }
  [[nodiscard]] std::vector<std::string> lines(std::size_t first,
                                               std::size_t count) const override {
    most_ = std::max(most_, count);
    std::vector<std::string> result;
    for (std::size_t i = first; i < std::min(first + count, size_); ++i) {
      ++asked_;
      result.push_back("  " + std::to_string(i / 3 + 1) +
                       std::string(70, static_cast<char>('0' + i % 10)));
    }
    return result;
  }
  [[nodiscard]] std::size_t most() const { return most_; }
  [[nodiscard]] std::size_t asked() const { return asked_; }

 private:
  std::size_t size_;
  mutable std::size_t most_ = 0;
  mutable std::size_t asked_ = 0;
};

TEST(PrintedPages, ReadALongDocumentOnePageAfterTheOther) {
  const QPageLayout paper = desktop::paper_of(QPageSize(QPageSize::A4));
  const auto document = std::make_shared<LongDocument>(20'000);
  const ui::Sheets sheets{"Print", document, {}, {}, {}};
  std::size_t largest_piece = 0;
  EXPECT_TRUE(desktop::write_pdf(sheets, paper, [&](std::string_view bytes) {
    largest_piece = std::max(largest_piece, bytes.size());
    return true;
  }));
  EXPECT_EQ(document->asked(), document->size());
  EXPECT_LE(document->most(), desktop::measure_page(sheets, paper).room.lines);
}

// A document that has become shorter since it was opened hands out fewer lines than it said.
TEST(PrintedPages, SurviveADocumentThatHasFewerLinesThanItSaid) {
  class Shrunk : public ui::Document {
    [[nodiscard]] std::size_t size() const override { return 500; }
    [[nodiscard]] std::size_t widest() const override { return 80; }
    [[nodiscard]] std::vector<std::string> lines(std::size_t first,
                                                 std::size_t /*count*/) const override {
      return first == 0 ? listing(2, 80) : std::vector<std::string>{};
    }
  };
  const ui::Sheets sheets{"Print", std::make_shared<Shrunk>(), {}, {}, {}};
  EXPECT_EQ(print(sheets, desktop::paper_of(QPageSize(QPageSize::A4))).lines, listing(2, 80));
}

TEST(PrintedPages, EndAtTheFirstPageThatHasNoRoomOnTheDisk) {
  const auto document = std::make_shared<LongDocument>(20'000);
  const ui::Sheets sheets{"Print", document, {}, {}, {}};
  std::size_t taken = 0;
  EXPECT_FALSE(desktop::write_pdf(sheets, desktop::paper_of(QPageSize(QPageSize::A4)),
                                  [&](std::string_view bytes) {
                                    taken += bytes.size();
                                    return taken < 10'000;
                                  }));
  EXPECT_LT(document->asked(), document->size() / 10);
}

TEST(PrintedPages, OfNothingAreOneBlankPage) {
  const QPageLayout paper = desktop::paper_of(QPageSize(QPageSize::A4));
  for (const ui::Sheets& sheets : {ui::Sheets{}, sheets_of({}), sheets_of({"", "  "})}) {
    const Printed printed = print(sheets, paper);
    EXPECT_EQ(printed.pages, 1U);
    EXPECT_TRUE(printed.lines.empty());
  }
}
