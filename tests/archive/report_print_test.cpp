// The dialogs that show and print reports: one of them, and all of them. What they share with the
// logbook's (pages, results, PDF) is held by logbook_print_test.cpp.

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

#include "archive/CPrintAllTLXDlg.h"
#include "archive/CQFPrintDlg.h"
#include "fakes/fake_files.h"
#include "fakes/fake_ports.h"
#include "observation/report_file.h"
#include "text/ids.h"
#include "text/strings.h"

namespace {

namespace id = text::id;
using Lines = std::vector<std::string>;
using platform::FileError;

const std::string kTime = "Print Date & Time     2014/11/15  20:50";  // 39 characters
const std::string kRuler =
    "....*....1....*....2....*....3....*....4....*....5....*....6....*....7....*....8";
const std::string kNewest = "BBXX JABC 15184 99345 11395 41/98 40210 10152";
const std::string kMiddle = "BBXX JABC 15124 99345 11395 41/98 40210 10152 22263 00180  ICE  1";
const std::string kOldest = "BBXX JABC 15064 99345 11395 41/98 40210 10152";

Lines lines_in(const std::string& page) {
  Lines lines;
  std::string_view rest = page;
  while (!rest.empty()) {
    const auto end = std::min(rest.find('\n'), rest.size());
    lines.emplace_back(rest.substr(0, end));
    rest.remove_prefix(std::min(end + 1, rest.size()));
  }
  return lines;
}

class ReportPrinting : public testing::Test {
 protected:
  ReportPrinting() {
    files.add_file("C:\\out\\14111506.tlx", kOldest);
    files.add_file("C:\\out\\14111512.tlx", kMiddle + "\r\n");
    files.add_file("C:\\out\\14111518.tlx", kNewest + "\n");
    files.add_file("C:\\out\\A.TLX", "BBXX");
    files.add_file("C:\\out\\x.tlx.bak", "BBXX");
    files.add_file("C:\\out\\old\\13111518.tlx", "BBXX");
    files.add_folder("C:\\out\\folder.tlx\\");
    files.add_folder("C:\\usb\\");
    files.add_folder("C:\\empty\\");
  }
  template <class Dialog>
  std::unique_ptr<Dialog> open(std::string folder = "C:\\out\\") {
    auto screen = std::make_unique<Dialog>(world.services, std::move(folder));
    screen->open();
    return screen;
  }
  std::unique_ptr<CQFPrintDlg> single(std::string folder = "C:\\out\\") {
    return open<CQFPrintDlg>(std::move(folder));
  }
  std::unique_ptr<CPrintAllTLXDlg> all(std::string folder = "C:\\out\\") {
    return open<CPrintAllTLXDlg>(std::move(folder));
  }
  // What goes to the printer when Print is pressed.
  template <class Dialog>
  Lines printed(Dialog& screen) {
    const std::size_t before = world.printer.printed.size();
    world.windows.expect(id::kPrintSuccess);
    screen.press(screen.pages.print);
    if (world.printer.printed.size() != before + 1) {
      ADD_FAILURE() << "nothing was printed";
      return {};
    }
    const ui::Document& document = *world.printer.printed.back().lines;
    return document.lines(0, document.size());
  }

  fakes::FakeFiles files;
  fakes::World world{files};
};

// ---- One report

TEST_F(ReportPrinting, SingleListsTheReportsNewestFirstAndChoosesNone) {
  const auto screen = single();
  ASSERT_EQ(screen->reports.items.size(), 3U);
  EXPECT_EQ(screen->reports.items[0].substr(0, 12), "14111518.tlx");
  EXPECT_EQ(screen->reports.items[1].substr(0, 12), "14111512.tlx");
  EXPECT_EQ(screen->reports.items[2].substr(0, 12), "14111506.tlx");
  EXPECT_EQ(screen->reports.selected, -1);
  EXPECT_EQ(screen->focused(), &screen->reports);
  EXPECT_EQ(screen->pages.page.content, "");
  EXPECT_EQ(screen->pages.remark.content, "");
  EXPECT_EQ(screen->title(), "The indication, printing of ship's weather reports");
  world.japanese();
  EXPECT_EQ(screen->title(), "船舶気象報の表示・印刷");
}

TEST_F(ReportPrinting, SingleShowsTheChosenReportAsItIsPrinted) {
  const auto screen = single();
  screen->key(ui::Key::kDown);
  screen->key(ui::Key::kDown);
  const Lines expected = {"File        14111512.tlx",
                          std::string(60 - 39, ' ') + kTime,
                          "",
                          kRuler,
                          "",
                          "BBXX JABC 15124 99345 11395 41/98 40210 10152",
                          " 22263 00180 1"};
  EXPECT_EQ(lines_in(screen->pages.page.content), expected);
  EXPECT_EQ(screen->pages.position.literal_caption, "Page 1 of 1");
  EXPECT_EQ(printed(*screen), expected);
  EXPECT_EQ(world.printer.printed.back().name, "Print");
  ASSERT_TRUE(screen->move_focus(screen->reports));
  screen->key(ui::Key::kUp);
  EXPECT_EQ(lines_in(screen->pages.page.content).front(), "File        14111518.tlx");
}

TEST_F(ReportPrinting, SingleTellsThatNothingIsChosen) {
  for (const char* const folder : {"C:\\out\\", "C:\\empty", "C:\\away\\"}) {
    const auto screen = single(folder);
    const std::string before = fakes::dump(*screen);
    for (ui::Button* const button : {&screen->pages.print, &screen->pages.save_pdf}) {
      world.texts.language = text::Language::kEnglish;
      world.windows.expect(id::kNoReportToPrint);
      screen->press(*button);
      EXPECT_EQ(world.windows.boxes.back().text, "NO FILE SELECT");
      world.japanese();
      world.windows.expect(id::kNoReportToPrint);
      screen->press(*button);
      EXPECT_EQ(world.windows.boxes.back().text, "ファイルが選択されていません");
    }
    EXPECT_EQ(fakes::dump(*screen), before);
  }
  EXPECT_TRUE(world.printer.printed.empty());
}

template <class Dialog>
void does_nothing_without_a_folder(fakes::World& world) {
  Dialog screen(world.services, "");
  screen.open();
  EXPECT_EQ(screen.reports.items, Lines());
  EXPECT_EQ(screen.pages.remark.content, "No folder is set for the weather reports.");
  const std::string before = fakes::dump(screen);
  // The fake windows allow no message.
  screen.press(screen.pages.print);
  screen.press(screen.pages.save_pdf);
  screen.key(ui::Key::kEnter);
  EXPECT_EQ(fakes::dump(screen), before);
  EXPECT_TRUE(world.printer.printed.empty());
  screen.key(ui::Key::kEscape);
  EXPECT_EQ(screen.result(), ui::kCancel);
}

TEST_F(ReportPrinting, WithoutAFolderTheListIsEmptyAndNothingIsDone) {
  does_nothing_without_a_folder<CQFPrintDlg>(world);
  does_nothing_without_a_folder<CPrintAllTLXDlg>(world);
}

TEST_F(ReportPrinting, FolderNeedsNoBackslash) {
  EXPECT_EQ(single("C:\\out")->reports.items.size(), 3U);
  EXPECT_EQ(all("C:\\out")->reports.items.size(), 3U);
}

TEST_F(ReportPrinting, FolderThatCannotBeReadIsNamed) {
  const std::string told = "C:\\away\\ cannot be read (no such file or folder).";
  EXPECT_EQ(single("C:\\away\\")->pages.remark.content, told);
  EXPECT_EQ(all("C:\\away\\")->pages.remark.content, told);
}

TEST_F(ReportPrinting, SingleReportThatCannotBeReadHasNoText) {
  const auto screen = single();
  files.fail_path("C:\\out\\14111518.tlx", FileError::kAccessDenied);
  screen->choose(screen->reports, 0);
  const Lines expected = {"File        14111518.tlx", std::string(60 - 39, ' ') + kTime, "",
                          kRuler};
  EXPECT_EQ(lines_in(screen->pages.page.content), expected);
  EXPECT_EQ(screen->pages.remark.content, "14111518.tlx cannot be read (not permitted).");
  EXPECT_EQ(printed(*screen), expected);
  files.heal();
  ASSERT_EQ(files.remove("C:\\out\\14111506.tlx"), FileError::kNone);
  screen->choose(screen->reports, 2);
  EXPECT_EQ(screen->pages.remark.content, "14111506.tlx cannot be read (no such file or folder).");
  screen->choose(screen->reports, 1);
  EXPECT_EQ(screen->pages.remark.content, "");
}

TEST_F(ReportPrinting, FileThatIsLongerThanAnyReportIsNotRead) {
  const auto longest = static_cast<std::size_t>(observation::kLargestReport);
  files.add_file("C:\\out\\14111521.tlx", std::string(longest, 'x'));
  files.add_file("C:\\out\\14111600.tlx", std::string(longest + 1, 'x'));
  const auto screen = single();
  screen->choose(screen->reports, 0);
  EXPECT_EQ(screen->pages.remark.content, "14111600.tlx is too long for a weather report.");
  EXPECT_EQ(lines_in(screen->pages.page.content).size(), 4U);
  screen->choose(screen->reports, 1);
  EXPECT_EQ(screen->pages.remark.content, "");
  EXPECT_EQ(lines_in(screen->pages.page.content)[5].substr(0, 3), "xxx");
}

TEST_F(ReportPrinting, AnyBytesAreShownOnLinesOfTheirOwn) {
  world.printer.room = {60, 300};  // nothing is folded
  std::string bytes;
  for (int i = 0; i < 256; ++i) bytes += static_cast<char>(i);
  files.add_file("C:\\out\\14111521.tlx", bytes);
  const auto one = single();
  one->choose(one->reports, 0);
  for (const std::string& line : lines_in(one->pages.page.content))
    EXPECT_FALSE(text::has_control(line)) << line;
  EXPECT_EQ(lines_in(one->pages.page.content), printed(*one));
  const auto both = all();
  for (const std::string& line : printed(*both)) EXPECT_FALSE(text::has_control(line)) << line;
}

TEST_F(ReportPrinting, PdfOfAReportHasItsName) {
  world.windows.browse_answer = "C:\\usb\\";
  const auto screen = single();
  screen->choose(screen->reports, 1);
  world.windows.expect(id::kPdfSaved);
  screen->press(screen->pages.save_pdf);
  EXPECT_EQ(files.content("C:\\usb\\14111512.pdf").value_or("").substr(0, 24),
            "File        14111512.tlx");
}

// ---- All reports

Lines all_lines(const std::vector<Lines>& blocks) {
  Lines lines = {std::string(92 - 39, ' ') + kTime, "File        " + kRuler};
  for (const Lines& block : blocks) {
    lines.insert(lines.end(), block.begin(), block.end());
    lines.emplace_back();
  }
  lines.pop_back();
  return lines;
}

const Lines kNewestBlock = {"14111518.tlx" + kNewest};
const Lines kMiddleBlock = {"14111512.tlxBBXX JABC 15124 99345 11395 41/98 40210 10152",
                            "             22263 00180 1"};
const Lines kOldestBlock = {"14111506.tlx" + kOldest};

TEST_F(ReportPrinting, AllArePrintedInListOrderWhenNoneIsTicked) {
  const auto screen = all();
  EXPECT_EQ(screen->title(), "Printing of all the ship's weather reports");
  EXPECT_EQ(screen->reports.item_ticked, std::vector<bool>(3, false));
  const Lines expected = all_lines({kNewestBlock, kMiddleBlock, kOldestBlock});
  EXPECT_EQ(lines_in(screen->pages.page.content), expected);
  EXPECT_EQ(screen->chosen.literal_caption, "Weather reports to print: 3 of 3");
  EXPECT_EQ(printed(*screen), expected);
  world.japanese();
  EXPECT_EQ(screen->title(), "全ての船舶気象報の印刷");
}

TEST_F(ReportPrinting, AllPrintsOnlyTheTickedOnesWhenThereAreSuch) {
  const auto screen = all();
  screen->tick_line(screen->reports, 2, true);
  EXPECT_EQ(lines_in(screen->pages.page.content), all_lines({kOldestBlock}));
  EXPECT_EQ(screen->chosen.literal_caption, "Weather reports to print: 1 of 3");
  screen->tick_line(screen->reports, 0, true);
  EXPECT_EQ(printed(*screen), all_lines({kNewestBlock, kOldestBlock}));
  screen->press(screen->select_all);
  EXPECT_EQ(screen->reports.item_ticked, std::vector<bool>(3, true));
  EXPECT_EQ(printed(*screen), all_lines({kNewestBlock, kMiddleBlock, kOldestBlock}));
  screen->tick_line(screen->reports, 1, false);
  EXPECT_EQ(printed(*screen), all_lines({kNewestBlock, kOldestBlock}));
  screen->press(screen->select_none);
  EXPECT_EQ(screen->reports.item_ticked, std::vector<bool>(3, false));
  EXPECT_EQ(printed(*screen), all_lines({kNewestBlock, kMiddleBlock, kOldestBlock}));
}

TEST_F(ReportPrinting, AllKeepsItsPageWhileTheListIsGoneThrough) {
  world.printer.room = {4, 92};
  const auto screen = all();
  EXPECT_EQ(screen->pages.position.literal_caption, "Page 1 of 2");
  screen->press(screen->pages.next_page);
  screen->choose(screen->reports, 1);
  EXPECT_EQ(screen->pages.position.literal_caption, "Page 2 of 2");
}

TEST_F(ReportPrinting, AllTellsThatThereIsNone) {
  for (const char* const folder : {"C:\\empty\\", "C:\\away\\"}) {
    for (const auto language : {text::Language::kEnglish, text::Language::kJapanese}) {
      world.texts.language = language;
      const auto screen = all(folder);
      const std::string before = fakes::dump(*screen);
      for (ui::Button* const button : {&screen->pages.print, &screen->pages.save_pdf}) {
        world.windows.expect(id::kNoReportExists);
        screen->press(*button);
        EXPECT_EQ(world.windows.boxes.back().text, language == text::Language::kEnglish
                                                       ? "NO FILE EXIST"
                                                       : "ファイルが存在していません");
      }
      EXPECT_EQ(fakes::dump(*screen), before);
    }
  }
  EXPECT_TRUE(world.printer.printed.empty());
}

TEST_F(ReportPrinting, AllPrintsTheNameAloneOfWhatCannotBeRead) {
  files.fail_path("C:\\out\\14111512.tlx", FileError::kAccessDenied);
  const auto screen = all();
  EXPECT_EQ(screen->pages.remark.content,
            "Weather reports that cannot be read: 1. Only their names are printed. "
            "14111512.tlx cannot be read (not permitted).");
  EXPECT_EQ(printed(*screen), all_lines({kNewestBlock, {"14111512.tlx"}, kOldestBlock}));
}

TEST_F(ReportPrinting, AllPrintsTheFilesAsTheyAreNow) {
  const auto screen = all();
  files.add_file("C:\\out\\14111518.tlx", kOldest);
  ASSERT_EQ(files.remove("C:\\out\\14111506.tlx"), FileError::kNone);
  world.clock.local_time.hour = 21;
  Lines expected = all_lines({{"14111518.tlx" + kOldest}, kMiddleBlock, {"14111506.tlx"}});
  expected[0].replace(expected[0].size() - 5, 2, "21");
  EXPECT_EQ(printed(*screen), expected);
  EXPECT_NE(screen->pages.remark.content, "");
}

TEST_F(ReportPrinting, PdfOfAllHasTheTimeInItsName) {
  world.windows.browse_answer = "C:\\usb\\";
  const auto screen = all();
  world.windows.expect(id::kPdfSaved);
  screen->press(screen->pages.save_pdf);
  EXPECT_TRUE(files.is_file("C:\\usb\\reports_20141115_2050.pdf"));
}

}  // namespace
