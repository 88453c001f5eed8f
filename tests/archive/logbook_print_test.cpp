// The dialog that prints a logbook, and what it shares with the others: pages, printing, PDF.

#include <gtest/gtest.h>

#include <algorithm>

#include "archive/CLogPrintDlg.h"
#include "archive/print_documents.h"
#include "fakes/fake_files.h"
#include "fakes/fake_ports.h"
#include "text/ids.h"

namespace {

namespace id = text::id;
using Lines = std::vector<std::string>;
using platform::FileError;
using Operation = fakes::FakeFiles::Operation;

constexpr const char* kLog = "C:\\log\\immt5.log";
constexpr const char* kPdf = "C:\\usb\\immt5_20141115_2050.pdf";

std::string records(std::size_t count) {
  std::string content;
  for (std::size_t i = 1; i <= count; ++i) {
    std::string line = std::to_string(i);
    line.resize(172, '.');
    content += line + "\n";
  }
  return content;
}

// The lines of an open dialog's page.
Lines page_of(const archive::PageView& pages) {
  std::string text = pages.page.content;
  Lines lines;
  for (std::size_t at = text.find('\n'); at != std::string::npos; at = text.find('\n')) {
    lines.push_back(text.substr(0, at));
    text.erase(0, at + 1);
  }
  lines.push_back(text);
  return lines;
}

class LogbookPrinting : public testing::Test {
 protected:
  LogbookPrinting() {
    files.add_file(kLog, records(50));
    files.add_folder("C:\\usb\\");
  }
  // Opens the dialog; with a number, chooses that line.
  CLogPrintDlg& open(int chosen = -1, std::string folder = "C:\\log\\") {
    screen_ = std::make_unique<CLogPrintDlg>(world.services, std::move(folder));
    screen_->open();
    if (chosen >= 0) screen_->choose(screen_->logbooks, chosen);
    return *screen_;
  }

  fakes::FakeFiles files;
  fakes::World world{files};

 private:
  std::unique_ptr<CLogPrintDlg> screen_;
};

// ---- Which logbooks

TEST_F(LogbookPrinting, ListsEveryLogbookOfTheFolderByItsPathAndChoosesNone) {
  files.add_file("C:\\log\\old immt5.log.1", records(1));
  files.add_file("C:\\log\\notes.txt", "");
  files.add_file("C:\\log\\sub\\immt5.log", records(1));
  const CLogPrintDlg& screen = open();
  EXPECT_EQ(screen.logbooks.items, Lines({kLog, "C:\\log\\old immt5.log.1"}));
  EXPECT_EQ(screen.logbooks.selected, -1);
  EXPECT_EQ(screen.pages.page.content, "");
  EXPECT_EQ(screen.pages.position.literal_caption, "");
  EXPECT_EQ(screen.pages.remark.content, "");
}

TEST_F(LogbookPrinting, FolderNeedsNoBackslash) {
  EXPECT_EQ(open(-1, "C:\\log").logbooks.items, Lines({kLog}));
}

TEST_F(LogbookPrinting, ListsNothingWithoutAFolderAndTellsOfOneThatCannotBeRead) {
  EXPECT_EQ(open(-1, "").logbooks.items, Lines());
  EXPECT_EQ(open(-1, "").pages.remark.content,
            "No folder is set for the marine meteorological logbook.");
  const CLogPrintDlg& away = open(-1, "C:\\away\\");
  EXPECT_EQ(away.logbooks.items, Lines());
  EXPECT_EQ(away.pages.remark.content, "C:\\away\\ cannot be read (no such file or folder).");
}

TEST_F(LogbookPrinting, NothingChosenIsTold) {
  for (const char* const folder : {"C:\\log\\", "", "C:\\away"}) {
    CLogPrintDlg& screen = open(-1, folder);
    const std::string before = fakes::dump(screen);
    for (ui::Button* const button : {&screen.pages.print, &screen.pages.save_pdf}) {
      world.windows.expect(id::kNoFileSelected);
      screen.press(*button);
    }
    EXPECT_EQ(fakes::dump(screen), before);
  }
  EXPECT_EQ(world.windows.boxes.front().text, "No file selected");
  world.japanese();
  world.windows.expect(id::kNoFileSelected);
  CLogPrintDlg& screen = open();
  screen.press(screen.pages.print);
  EXPECT_EQ(world.windows.boxes.back().text, "ファイルが選択されていません。");
  EXPECT_TRUE(world.printer.printed.empty());
}

// ---- Pages

TEST_F(LogbookPrinting, PagesBreakWhereThePaperDoes) {
  world.printer.room = {58, 90};
  CLogPrintDlg& screen = open(0);
  // 2 + 3 * 50 lines
  EXPECT_EQ(screen.pages.position.literal_caption, "Page 1 of 3");
  const Lines first = page_of(screen.pages);
  EXPECT_EQ(first.size(), 58U);
  EXPECT_EQ(first.front().substr(0, 16), "File   immt5.log");
  EXPECT_EQ(first[2].substr(0, 12), "  1       1.");
  screen.press(screen.pages.next_page);
  EXPECT_EQ(page_of(screen.pages).front().substr(0, 12), "          ..");
  EXPECT_EQ(screen.pages.position.literal_caption, "Page 2 of 3");
  screen.press(screen.pages.next_page);
  EXPECT_EQ(page_of(screen.pages).size(), 152U - 116U);
  screen.press(screen.pages.next_page);
  EXPECT_EQ(screen.pages.position.literal_caption, "Page 3 of 3");
  screen.press(screen.pages.previous_page);
  EXPECT_EQ(screen.pages.position.literal_caption, "Page 2 of 3");
  screen.press(screen.pages.first_page);
  EXPECT_EQ(page_of(screen.pages), first);
  screen.press(screen.pages.previous_page);
  EXPECT_EQ(screen.pages.position.literal_caption, "Page 1 of 3");
  screen.press(screen.pages.last_page);
  EXPECT_EQ(screen.pages.position.literal_caption, "Page 3 of 3");
}

TEST_F(LogbookPrinting, PageIsToldInJapanese) {
  world.japanese();
  EXPECT_EQ(open(0).pages.position.literal_caption, "1／3ページ");
}

TEST_F(LogbookPrinting, PagesOfNarrowPaperAreFoldedAsThePaperFoldsThem) {
  world.printer.room = {400, 40};
  CLogPrintDlg& screen = open(0);
  for (const std::string& line : page_of(screen.pages)) EXPECT_LE(line.size(), 40U);
  // Heading 3 lines, ruler 3, each record 3 + 3 + 1.
  EXPECT_EQ(page_of(screen.pages).size(), 3U + 3U + 50U * 7U);
}

TEST_F(LogbookPrinting, PaperWithoutRoomShowsALineAPage) {
  world.printer.room = {0, 90};
  EXPECT_EQ(open(0).pages.position.literal_caption, "Page 1 of 152");
}

// ---- Printing

TEST_F(LogbookPrinting, PrintsTheListingUnderTheTimeOfPrinting) {
  CLogPrintDlg& screen = open(0);
  screen.press(screen.pages.last_page);
  world.clock.local_time.minute = 58;
  files.add_file(kLog, records(51));
  world.windows.expect(id::kPrintSuccess);
  screen.press(screen.pages.print);
  ASSERT_EQ(world.printer.printed.size(), 1U);
  const ui::Sheets& sheets = world.printer.printed.front();
  EXPECT_EQ(sheets.name, "Print");
  EXPECT_EQ(sheets.language, text::Language::kEnglish);
  EXPECT_EQ(sheets.size.most_points, 16);
  EXPECT_EQ(sheets.size.least_points, 5);
  EXPECT_EQ(sheets.size.dots_per_inch, 600);
  EXPECT_EQ(sheets.lines->size(), 2U + 3U * 51U);
  EXPECT_EQ(sheets.lines->lines(0, 1).front(),
            archive::logbook_heading({2014, 11, 15, 20, 58, 0})[0]);
  // The page that was open stays open.
  EXPECT_EQ(screen.pages.position.literal_caption, "Page 3 of 3");
  EXPECT_FALSE(screen.result());
}

TEST_F(LogbookPrinting, TellsHowItEnded) {
  struct Row {
    ui::PrintResult result;
    text::Id told;
    const char* english;
    const char* japanese;
  };
  const Row rows[] = {
      {ui::PrintResult::kSuccess, id::kPrintSuccess, "PRINT SUCCESS", "印刷が終了しました"},
      {ui::PrintResult::kCancelled, id::kPrintCancelled, "PRINT CANCEL", "印刷を取消しました"},
      {ui::PrintResult::kFailed, id::kPrintFailed, "Print failed", "印刷に失敗しました"}};
  for (const Row& row : rows) {
    for (const auto language : {text::Language::kEnglish, text::Language::kJapanese}) {
      world.texts.language = language;
      world.printer.answer = row.result;
      CLogPrintDlg& screen = open(0);
      const std::string before = fakes::dump(screen);
      world.windows.expect(row.told);
      screen.press(screen.pages.print);
      const bool english = language == text::Language::kEnglish;
      EXPECT_EQ(world.windows.boxes.back().text, english ? row.english : row.japanese);
      EXPECT_EQ(world.windows.boxes.back().title, "KAVREL for WIN");
      EXPECT_EQ(fakes::dump(screen), before);
    }
  }
}

TEST_F(LogbookPrinting, WithoutAPrinterSaysWhatToDoAndPrintsNothing) {
  world.printer.installed = false;
  CLogPrintDlg& screen = open(0);
  world.windows.expect(id::kNoPrinter);
  world.windows.expect(id::kPrintFailed);
  screen.press(screen.pages.print);
  EXPECT_EQ(world.windows.boxes.front().text,
            "NO printer in your computer\r\nPlease install printer first");
  EXPECT_TRUE(world.printer.printed.empty());
  world.japanese();
  world.windows.expect(id::kNoPrinter);
  world.windows.expect(id::kPrintFailed);
  screen.press(screen.pages.print);
  EXPECT_EQ(world.windows.boxes[2].text, "プリンタをインストールして下さい");
}

TEST_F(LogbookPrinting, EnterPrintsButPressesAButtonThatHasTheFocus) {
  CLogPrintDlg& screen = open(0);
  for (ui::Control* const control : {static_cast<ui::Control*>(&screen.logbooks),
                                     static_cast<ui::Control*>(&screen.pages.page)}) {
    ASSERT_TRUE(screen.move_focus(*control));
    world.windows.expect(id::kPrintSuccess);
    screen.key(ui::Key::kEnter);
  }
  EXPECT_EQ(world.printer.printed.size(), 2U);
  ASSERT_TRUE(screen.move_focus(screen.pages.next_page));
  screen.key(ui::Key::kEnter);
  EXPECT_EQ(screen.pages.position.literal_caption, "Page 2 of 3");
  screen.key(ui::Key::kEscape);
  EXPECT_EQ(screen.result(), ui::kCancel);
}

TEST_F(LogbookPrinting, LogbookThatCannotBeReadIsNamedAndNotPrinted) {
  CLogPrintDlg& screen = open();
  files.fail_path(kLog, FileError::kAccessDenied);
  screen.choose(screen.logbooks, 0);
  EXPECT_EQ(screen.pages.remark.content, std::string(kLog) + " cannot be read (not permitted).");
  world.windows.expect(id::kUnreadable);
  world.windows.expect(id::kPrintFailed);
  screen.press(screen.pages.print);
  world.windows.expect(id::kUnreadable);
  screen.press(screen.pages.save_pdf);
  EXPECT_TRUE(world.printer.printed.empty());
  // The medium is back.
  files.heal();
  world.windows.expect(id::kPrintSuccess);
  screen.press(screen.pages.print);
  EXPECT_EQ(screen.pages.remark.content, "");
}

// Somebody takes the disk out while the lines go to the printer.
class TakesTheFile : public fakes::FakePrinter {
 public:
  explicit TakesTheFile(fakes::FakeFiles& files) : files_(files) {}
  [[nodiscard]] ui::PrintResult print(const ui::Sheets& sheets) override {
    EXPECT_EQ(files_.remove(kLog), FileError::kNone);
    static_cast<void>(sheets.lines->lines(0, sheets.lines->size()));
    return FakePrinter::print(sheets);
  }
  [[nodiscard]] std::optional<std::string> pdf(const ui::Sheets& sheets) const override {
    EXPECT_EQ(files_.remove(kLog), FileError::kNone);
    return FakePrinter::pdf(sheets);
  }

 private:
  fakes::FakeFiles& files_;
};

TEST_F(LogbookPrinting, LogbookThatGoesAwayMeanwhileIsNoSuccess) {
  TakesTheFile printer(files);
  ui::Services& all = world.services;
  ui::Services services{all.clock, all.locale,  all.drives, all.files,    all.code_page,
                        printer,   all.windows, all.texts,  all.messages, all.help};
  for (const bool as_pdf : {false, true}) {
    files.add_file(kLog, records(10000));
    CLogPrintDlg screen(services, "C:\\log\\");
    screen.open();
    screen.choose(screen.logbooks, 0);
    world.windows.expect(id::kUnreadable);
    if (!as_pdf) world.windows.expect(id::kPrintFailed);
    world.windows.browse_answer = "C:\\usb";
    screen.press(as_pdf ? screen.pages.save_pdf : screen.pages.print);
    EXPECT_FALSE(files.is_file(kPdf));
  }
}

// ---- PDF

TEST_F(LogbookPrinting, SavesThePagesInTheChosenFolder) {
  world.windows.browse_answer = "C:\\usb\\";
  CLogPrintDlg& screen = open(0);
  world.windows.expect(id::kPdfSaved);
  screen.press(screen.pages.save_pdf);
  EXPECT_EQ(world.windows.boxes.back().text, std::string("Saved as ") + kPdf);
  const std::string saved = files.content(kPdf).value_or("");
  EXPECT_EQ(saved.substr(0, 16), "File   immt5.log");
  EXPECT_EQ(std::count(saved.begin(), saved.end(), '\n'), 152);
  EXPECT_TRUE(world.printer.printed.empty());
}

TEST_F(LogbookPrinting, NoFolderChosenSavesNothing) {
  CLogPrintDlg& screen = open(0);
  const auto before = files.snapshot();
  screen.press(screen.pages.save_pdf);
  EXPECT_EQ(files.snapshot(), before);
}

TEST_F(LogbookPrinting, ReplacesAPdfFileOnlyAfterYes) {
  files.add_file(kPdf, "old");
  world.windows.browse_answer = "C:\\usb";
  CLogPrintDlg& screen = open(0);
  for (const char* const no : {"no", "close"}) {
    world.windows.expect(id::kAskReplacePdf, no);
    screen.press(screen.pages.save_pdf);
    EXPECT_EQ(files.content(kPdf), "old");
  }
  EXPECT_EQ(world.windows.boxes.back().text, std::string(kPdf) + " exists already. Replace it?");
  world.windows.expect(id::kAskReplacePdf, "yes");
  world.windows.expect(id::kPdfSaved);
  screen.press(screen.pages.save_pdf);
  EXPECT_NE(files.content(kPdf), "old");
}

TEST_F(LogbookPrinting, PdfFileThatCannotBeWrittenIsNamedWithTheReasonAndLeavesWhatWasThere) {
  world.windows.browse_answer = "C:\\usb";
  CLogPrintDlg& screen = open(0);
  for (const Operation operation : {Operation::kStage, Operation::kCommit}) {
    for (const bool there : {false, true}) {
      if (there) files.add_file(kPdf, "old");
      const auto before = files.snapshot();
      files.fail_next(operation, FileError::kNoSpace);
      if (there) world.windows.expect(id::kAskReplacePdf, "yes");
      world.windows.expect(id::kPdfNotSaved);
      screen.press(screen.pages.save_pdf);
      EXPECT_EQ(world.windows.boxes.back().text,
                std::string(kPdf) + " could not be saved (no space left).");
      EXPECT_EQ(files.snapshot(), before);
      if (there) {
        ASSERT_EQ(files.remove(kPdf), FileError::kNone);
      }
    }
  }
}

TEST_F(LogbookPrinting, PdfFileReplacesNothingElse) {
  files.add_folder(std::string(kPdf) + "\\");
  world.windows.browse_answer = "C:\\usb";
  CLogPrintDlg& screen = open(0);
  world.windows.expect(id::kPdfNotSaved);
  screen.press(screen.pages.save_pdf);
  EXPECT_TRUE(files.is_folder(kPdf));
}

// Another program writes a file of that name while the pages are made.
class WritesThere : public fakes::FakePrinter {
 public:
  explicit WritesThere(fakes::FakeFiles& files) : files_(files) {}
  [[nodiscard]] std::optional<std::string> pdf(const ui::Sheets& sheets) const override {
    files_.add_file(kPdf, "theirs");
    return FakePrinter::pdf(sheets);
  }

 private:
  fakes::FakeFiles& files_;
};

TEST_F(LogbookPrinting, PdfFileThatCameMeanwhileIsNotReplaced) {
  WritesThere printer(files);
  ui::Services& all = world.services;
  ui::Services services{all.clock, all.locale,  all.drives, all.files,    all.code_page,
                        printer,   all.windows, all.texts,  all.messages, all.help};
  CLogPrintDlg screen(services, "C:\\log\\");
  screen.open();
  screen.choose(screen.logbooks, 0);
  world.windows.browse_answer = "C:\\usb";
  world.windows.expect(id::kPdfNotSaved);
  screen.press(screen.pages.save_pdf);
  EXPECT_EQ(files.content(kPdf), "theirs");
}

TEST_F(LogbookPrinting, PdfFileThatCannotBeMadeIsTold) {
  world.printer.makes_pdf = false;
  world.windows.browse_answer = "C:\\usb";
  CLogPrintDlg& screen = open(0);
  world.windows.expect(id::kPdfNotMade);
  screen.press(screen.pages.save_pdf);
  EXPECT_FALSE(files.is_file(kPdf));
}

}  // namespace
