#include "archive/print_documents.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using archive::prepared_report;
using Lines = std::vector<std::string>;

constexpr platform::DateTime kNow{2014, 11, 15, 20, 50, 7};
const std::string kTime = "Print Date & Time     2014/11/15  20:50";  // 39 characters

// ---- A report's text

TEST(PreparedReport, BreaksBeforeSection2WhereverTheCallSignPutsIt) {
  // Sections 0 and 1 end where the wind does, the shortest that they can be.
  EXPECT_EQ(prepared_report("BBXX JABC 15124 99345 11395 41/98 40210 22263 00180", 12),
            "BBXX JABC 15124 99345 11395 41/98 40210\r\n             22263 00180");
  EXPECT_EQ(prepared_report("BBXX 7 15124 99345 11395 41/98 40210 22263 00180", 12),
            "BBXX 7 15124 99345 11395 41/98 40210\r\n             22263 00180");
  EXPECT_EQ(prepared_report("BBXX JABCDEFGH 15124 99345 11395 41/98 40210 22263 00180", 12),
            "BBXX JABCDEFGH 15124 99345 11395 41/98 40210\r\n             22263 00180");
}

TEST(PreparedReport, BlankOfTheBreakStaysInFrontOfSection2) {
  EXPECT_EQ(prepared_report("BBXX JABC 15124 99345 11395 41/98 40210 22263 00180", 0),
            "BBXX JABC 15124 99345 11395 41/98 40210\r\n 22263 00180");
}

TEST(PreparedReport, LeavesA222ThatComesTooEarlyWhereItIs) {
  // The second word with its blank has 5 characters, so the search begins at character 38, from 0.
  const std::string head = "BBXX JABC";  // 9 characters
  const std::string early = head + " 12345 12345 12345 123456789";
  ASSERT_EQ(early.size(), 37U);
  EXPECT_EQ(prepared_report(early + " 22263", 12), early + " 22263");
  EXPECT_EQ(prepared_report(early + "0 22263", 12), early + "0\r\n             22263");
  // The visibility of 22 and the position group of a station that moves at 222 degrees.
  EXPECT_EQ(prepared_report("BBXX JABC 15124 99345 11395 41/98 22240", 12),
            "BBXX JABC 15124 99345 11395 41/98 22240");
  // One too early hides none that comes later.
  EXPECT_EQ(prepared_report(head + " 22212 12345 12345 12345 12345 22263", 12),
            head + " 22212 12345 12345 12345 12345\r\n             22263");
}

TEST(PreparedReport, BreaksOnceAndAtTheFirst) {
  EXPECT_EQ(prepared_report("BBXX JABC 15124 99345 11395 41/98 40210 22263 22264", 12),
            "BBXX JABC 15124 99345 11395 41/98 40210\r\n             22263 22264");
}

TEST(PreparedReport, WantsABlankBeforeThe222) {
  const std::string text = "BBXX JABC 15124 99345 11395 41/98 40210 12225 42220";
  EXPECT_EQ(prepared_report(text, 12), text);
}

TEST(PreparedReport, LosesTheWordIceBetweenTwoBlanksOnEachSide) {
  const std::string head = "BBXX JABC 15124 99345 11395 41/98 40210";
  EXPECT_EQ(prepared_report(head + "  ICE  12345", 12), head + " 12345");
  EXPECT_EQ(prepared_report(head + "  ICE  1  ICE  2", 12), head + " 1 2");
  EXPECT_EQ(prepared_report(head + "  ICE    ICE  2", 12), head + "  2");
  // Blanks that two of them would share are the first one's.
  EXPECT_EQ(prepared_report(head + "  ICE  ICE  2", 12), head + " ICE  2");
  for (const char* const stays : {" ICE 12345", "  ICE 12345", " ICE  12345", "  ICE", "  ice  1"})
    EXPECT_EQ(prepared_report(head + stays, 12), head + stays);
}

TEST(PreparedReport, NeedsTwoBlanksForAnyOfIt) {
  for (const char* const as_it_is : {"", "BBXX", "BBXX JABC", "BBXX ", " "})
    EXPECT_EQ(prepared_report(as_it_is, 12), as_it_is);
  // The word goes also where nothing else of a report is there.
  EXPECT_EQ(prepared_report("  ICE  ", 12), " ");
  // The next blank ends the second word, also when that is empty: the search begins at 34.
  EXPECT_EQ(prepared_report("BBXX  " + std::string(28, 'x') + " 222", 0),
            "BBXX  " + std::string(28, 'x') + "\r\n 222");
  EXPECT_EQ(prepared_report("BBXX  " + std::string(27, 'x') + " 222", 0),
            "BBXX  " + std::string(27, 'x') + " 222");
}

TEST(PreparedReport, TakesUnderscoresOfTheFileForBlanks) {
  EXPECT_EQ(prepared_report("BBXX_JABC_15124_99345 11395 41/98 40210_22263 00180", 12),
            "BBXX JABC 15124 99345 11395 41/98 40210\r\n             22263 00180");
  EXPECT_EQ(prepared_report("A_B", 12), "A B");
}

TEST(PreparedReport, KeepsLineEndsOfEveryKindButThoseAtTheEnd) {
  for (const char* const end : {"\n", "\r\n", "\r"}) {
    const std::string e = end;
    EXPECT_EQ(prepared_report("BBXX JABC" + e + "15124" + e + e + "99345", 12),
              "BBXX JABC\r\n15124\r\n\r\n99345");
    EXPECT_EQ(prepared_report("BBXX JABC 15124" + e, 12), "BBXX JABC 15124");
    EXPECT_EQ(prepared_report("BBXX JABC 15124 " + e + e, 12), "BBXX JABC 15124 ");
    EXPECT_EQ(prepared_report(e + e, 12), "");
    // One character each, whichever it is.
    EXPECT_EQ(prepared_report("BBXX JABC 15124" + e + std::string(22, 'x') + " 222", 0),
              "BBXX JABC 15124\r\n" + std::string(22, 'x') + "\r\n 222");
    EXPECT_EQ(prepared_report("BBXX JABC 15124" + e + std::string(21, 'x') + " 222", 0),
              "BBXX JABC 15124\r\n" + std::string(21, 'x') + " 222");
  }
}

TEST(PreparedReport, IsPlainAsciiOfTheSameWidthWhateverTheFileHolds) {
  EXPECT_EQ(prepared_report(std::string("A\0B\tC\x1b"
                                        "D\x7f\x80\xff~ ",
                                        12),
                            0),
            "A?B?C?D???~ ");
  EXPECT_EQ(prepared_report("\xEF\xBB\xBF"
                            "BBXX JABC 15124",
                            0),
            "BBXX JABC 15124");
}

// ---- Times

TEST(Stamp, IsADateAndAMinuteThatAFileNameCanHave) {
  EXPECT_EQ(archive::stamp({2014, 11, 15, 20, 50, 59}), "20141115_2050");
  EXPECT_EQ(archive::stamp({2014, 1, 2, 3, 4, 5}), "20140102_0304");
}

// ---- Lines

TEST(LinesOf, EndAtCarriageReturnAndLineFeedTogetherAndNoneIsLeftEmptyAtTheEnd) {
  EXPECT_EQ(archive::lines_of(""), Lines());
  EXPECT_EQ(archive::lines_of("\r\n\r\n"), Lines());
  EXPECT_EQ(archive::lines_of("a"), Lines({"a"}));
  EXPECT_EQ(archive::lines_of("a\r\n\r\n b \r\n\r\n"), Lines({"a", "", " b "}));
  EXPECT_EQ(archive::lines_of("\r\na\nb\rc"), Lines({"", "a\nb\rc"}));
}

// ---- One report

TEST(SingleReport, HasNameTimeRulerAndTextBelowOneAnother) {
  EXPECT_EQ(
      archive::single_report_text("14111512.tlx",
                                  "BBXX JABC 15124 99345 11395 41/98 40210 22263 00180\n", kNow),
      "File        14111512.tlx\r\n" + std::string(60 - 39, ' ') + kTime +
          "\r\n"
          "\r\n"
          "....*....1....*....2....*....3....*....4....*....5....*....6....*....7....*....8\r\n"
          "\r\n"
          "BBXX JABC 15124 99345 11395 41/98 40210\r\n"
          " 22263 00180");
}

TEST(SingleReport, TimeEndsAtColumn60) {
  const Lines lines = archive::lines_of(archive::single_report_text("x.tlx", "BBXX", kNow));
  ASSERT_EQ(lines.size(), 6U);
  EXPECT_EQ(lines[1].size(), 60U);
  EXPECT_EQ(lines[3].size(), 80U);
}

TEST(SingleReport, NameCannotBreakTheLine) {
  const Lines lines =
      archive::lines_of(archive::single_report_text("a\r\nb\x1b.tlx", "BBXX", kNow));
  ASSERT_EQ(lines.size(), 6U);
  EXPECT_EQ(lines[0], "File        a??b?.tlx");
}

// ---- All reports

TEST(AllReports, BlocksStandUnderOneHeadingAndOneRuler) {
  const std::string first = archive::report_block(
      "14111506.tlx", "BBXX JABC 15064 99345 11395 41/98 40210 10152 22263 00180\n");
  const std::string second = archive::report_block("14111512.tlx", "BBXX JABC 15124 99345");
  const std::string* const both[] = {&first, &second};
  EXPECT_EQ(
      archive::all_reports_text(both, kNow),
      std::string(92 - 39, ' ') + kTime +
          "\r\n"
          "File        "
          "....*....1....*....2....*....3....*....4....*....5....*....6....*....7....*....8\r\n"
          "14111506.tlxBBXX JABC 15064 99345 11395 41/98 40210 10152\r\n"
          "             22263 00180\r\n"
          "\r\n"
          "14111512.tlxBBXX JABC 15124 99345\r\n"
          "\r\n");
  EXPECT_EQ(archive::lines_of(archive::all_reports_text(both, kNow)).front().size(), 92U);
}

TEST(AllReports, AreNothingWithoutABlock) {
  EXPECT_EQ(archive::all_reports_text({}, kNow), "");
}

TEST(AllReports, FileThatCannotBeReadGivesItsNameAlone) {
  EXPECT_EQ(archive::report_block("14111512.tlx", ""), "14111512.tlx\r\n\r\n");
  EXPECT_EQ(archive::report_block("x.tlx", ""), "x.tlx       \r\n\r\n");
}

TEST(AllReports, TextStandsUnderTheRulerBehindShortAndJapaneseNames) {
  EXPECT_EQ(archive::report_block("a.tlx", "BBXX"), "a.tlx       BBXX\r\n\r\n");
  // Each of the two characters has two columns.
  EXPECT_EQ(archive::report_block("気象.tlx", "BBXX"), "気象.tlx    BBXX\r\n\r\n");
  EXPECT_EQ(archive::report_block("14111512 (2).tlx", "BBXX"), "14111512 (2).tlxBBXX\r\n\r\n");
}

// ---- Logbook

TEST(LogbookListing, HeadingHasTheTimeRightAlignedIn74BehindTheName) {
  const Lines heading = archive::logbook_heading(kNow);
  ASSERT_EQ(heading.size(), 2U);
  EXPECT_EQ(heading[0], "File   immt5.log" + std::string(74 - 39, ' ') + kTime);
  EXPECT_EQ(heading[0].size(), 16U + 74U);
  EXPECT_EQ(
      heading[1],
      "Seq      ....*....1....*....2....*....3....*....4....*....5....*....6....*....7....*....8");
}

std::string columns(std::size_t count) {
  std::string result;
  for (std::size_t i = 0; i < count; ++i) result += static_cast<char>('a' + i % 26);
  return result;
}

TEST(LogbookListing, RecordOf172CharactersFillsThreeLinesExactly) {
  const std::string record = columns(172);
  const Lines expected = {"  1       " + record.substr(0, 78), "          " + record.substr(78, 78),
                          "          " + record.substr(156, 16)};
  EXPECT_EQ(archive::logbook_lines(1, record), expected);
  EXPECT_EQ(archive::logbook_lines(1, record + "X"), expected);
  EXPECT_EQ(archive::logbook_lines(1, record + std::string(10000, 'X')), expected);
}

TEST(LogbookListing, ShorterRecordHasThreeLinesToo) {
  const std::string record = columns(108);
  EXPECT_EQ(archive::logbook_lines(12, record),
            Lines({"  12      " + record.substr(0, 78), "          " + record.substr(78, 30),
                   "          "}));
  EXPECT_EQ(archive::logbook_lines(12, columns(157)).back(), "          a");
}

TEST(LogbookListing, NumberIsNeverCut) {
  EXPECT_EQ(archive::logbook_lines(12345678, "x").front(), "  12345678x");
  EXPECT_EQ(archive::logbook_lines(123456789, "x").front(), "  123456789x");
}

TEST(LogbookListing, EveryByteHasOneColumn) {
  std::string record = columns(172);
  record[0] = '\0';
  record[77] = '\r';
  record[78] = '\x80';
  const Lines lines = archive::logbook_lines(1, record);
  EXPECT_EQ(lines[0], "  1       ?" + columns(172).substr(1, 76) + "?");
  EXPECT_EQ(lines[1], "          ?" + columns(172).substr(79, 77));
}

}  // namespace
