// Printing against the real thing: a scheduler, its queues, and Qt's print dialog answered by keys.
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTest>
#include <QTimer>
#include <csignal>
#include <functional>
#include <string>
#include <vector>

#include "desktop/desktop_printer.h"
#include "desktop/printed_pages.h"
#include "paper.h"
#include "print_scheduler.h"

namespace {

using desktop::DesktopPrinter;
using ui::PrintResult;

// What a scheduler that answers at all takes, on the busiest machine.
constexpr desktop::Patience kPatience = std::chrono::minutes(5);
constexpr desktop::Patience kShort = std::chrono::milliseconds(300);

std::vector<std::string> report_lines() {
  return {"                                             Print Date & Time     2014/11/15  12:00",
          "File        "
          "....*....1....*....2....*....3....*....4....*....5....*....6....*....7....*....8",
          "14111512.tlxBBXX 7JWX 15124 99352 71398 41596 82513 10152 20101 40152 52009 70211 85///",
          "            22232 00176 20502 324// 40706 5//// 80110=",
          "",
          "14111518.tlx日本語の行  東京湾 ｱｲｳ end",
          "",
          ""};
}

ui::Sheets report() {
  return {"Print", ui::document_of(report_lines()), {}, {}, {}};
}

std::vector<std::string> logbook_lines(int records) {
  std::vector<std::string> lines;
  for (int i = 1; i <= records; ++i) {
    std::string first = "  " + std::to_string(i);
    first.resize(10, ' ');
    lines.push_back(first + "52014111512" + std::string(67, '7'));
    lines.push_back(std::string(10, ' ') + std::string(78, '8'));
    lines.push_back(std::string(10, ' ') + std::string(16, '9'));
  }
  return lines;
}

// The lines of all papers in order, without footers and blank lines.
std::vector<std::string> lines_on(const std::string& pdf, const ui::Sheets& sheets,
                                  const QPageLayout& paper) {
  const desktop::PageMeasures measures = desktop::measure_page(sheets, paper);
  const double dot = 72.0 / sheets.size.dots_per_inch;
  const QRectF room = paper.paintRect(QPageLayout::Point);
  std::vector<std::string> lines;
  for (tests::PrintedPage page : tests::pages_of_pdf(pdf)) {
    const double foot =
        room.top() + static_cast<double>(measures.room.lines) * measures.line_height * dot;
    std::erase_if(page.words, [&](const tests::Word& word) {
      EXPECT_LE(word.right, room.right() + 0.5) << word.text.toStdString();
      EXPECT_GE(word.left, room.left() - 0.5) << word.text.toStdString();
      return word.top >= foot;
    });
    for (const auto& line : tests::lines_of(page, room.left(), measures.column * dot))
      lines.push_back(line.text);
  }
  return lines;
}

std::vector<std::string> full(const std::vector<std::string>& lines) {
  std::vector<std::string> result;
  for (std::string line : lines) {
    while (line.ends_with(' ')) line.pop_back();
    if (!line.empty()) result.push_back(line);
  }
  return result;
}

using Act = std::function<void(QPrintDialog&)>;

void press_return(QPrintDialog& dialog) {
  QTest::keyClick(dialog.focusWidget() != nullptr ? dialog.focusWidget() : &dialog, Qt::Key_Return);
}
void press_escape(QPrintDialog& dialog) {
  QTest::keyClick(dialog.focusWidget() != nullptr ? dialog.focusWidget() : &dialog, Qt::Key_Escape);
}

// What printing comes to when the person acts like this in the print dialog.
struct Outcome {
  PrintResult result = PrintResult::kFailed;
  int dialogs = 0;
};
Outcome print(DesktopPrinter& printer, const ui::Sheets& sheets, const Act& act) {
  Outcome outcome;
  QTimer person;
  QObject::connect(&person, &QTimer::timeout, [&] {
    auto* const dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr || !dialog->isVisible()) return;
    person.stop();
    ++outcome.dialogs;
    act(*dialog);
  });
  person.start(1);
  outcome.result = printer.print(sheets);
  return outcome;
}

struct Printing : testing::Test {
  tests::PrintScheduler scheduler;
  DesktopPrinter printer{kPatience};
  DesktopPrinter hasty{kShort};

  QString jobs() { return scheduler.run("lpstat", {"-o"}); }
};

}  // namespace

TEST_F(Printing, PutsEachLineOnThePaperOfThePrinter) {
  for (const auto& [name, size] :
       {std::pair{"A4", QPageSize::A4}, std::pair{"Letter", QPageSize::Letter}}) {
    scheduler.add_queue(name, name);
    scheduler.make_default(name);
    ASSERT_TRUE(printer.has_default_printer());
    const QPageLayout paper = desktop::paper_of(QPageSize(size));
    for (const std::vector<std::string>& lines : {report_lines(), logbook_lines(70)}) {
      const ui::Sheets sheets{"Print", ui::document_of(lines), {}, {}, {}};
      const Outcome outcome = print(printer, sheets, press_return);
      EXPECT_EQ(outcome.result, PrintResult::kSuccess);
      EXPECT_EQ(outcome.dialogs, 1);
      const std::string pdf = scheduler.next_paper();
      EXPECT_EQ(lines_on(pdf, sheets, paper), full(lines)) << name;
      EXPECT_TRUE(scheduler.options().startsWith("title=Print copies=1 "));
      EXPECT_TRUE(scheduler.options().contains(QString("media=") + name))
          << scheduler.options().toStdString();

      const std::vector<tests::PrintedPage> pages = tests::pages_of_pdf(pdf);
      const QSizeF points = QPageSize(size).size(QPageSize::Point);
      EXPECT_NEAR(pages.front().width, points.width(), 1);
      EXPECT_NEAR(pages.front().height, points.height(), 1);
      // The view on the screen breaks where the paper does, and a file is what would be printed.
      const ui::PageRoom room = printer.page_room(sheets);
      EXPECT_EQ(pages.size(), (lines.size() + room.lines - 1) / room.lines);
      const auto file = printer.pdf(sheets);
      ASSERT_TRUE(file);
      EXPECT_EQ(tests::pages_of_pdf(*file).size(), pages.size());
      EXPECT_EQ(lines_on(*file, sheets, paper), full(lines));
    }
  }
}

TEST_F(Printing, ShowsNoDialogWithoutAPrinterAndBreaksPagesAsOnA4) {
  EXPECT_FALSE(printer.has_default_printer());
  const ui::PageRoom a4 =
      desktop::measure_page(report(), desktop::paper_of(QPageSize(QPageSize::A4))).room;
  EXPECT_EQ(printer.page_room(report()).lines, a4.lines);
  EXPECT_EQ(printer.page_room(report()).columns, a4.columns);
  scheduler.end();
  EXPECT_FALSE(printer.has_default_printer());
  EXPECT_EQ(printer.page_room(report()).lines, a4.lines);
  const Outcome outcome = print(printer, report(), press_return);
  EXPECT_EQ(outcome.result, PrintResult::kFailed);
  EXPECT_EQ(outcome.dialogs, 0);
  ASSERT_TRUE(printer.pdf(report()));
}

TEST_F(Printing, PrintsNothingWhenTheDialogIsCancelled) {
  scheduler.add_queue("A4", "A4");
  scheduler.make_default("A4");
  const Outcome outcome = print(printer, report(), press_escape);
  EXPECT_EQ(outcome.result, PrintResult::kCancelled);
  EXPECT_EQ(outcome.dialogs, 1);
  EXPECT_EQ(scheduler.run("lpstat", {"-W", "all", "-o"}), "");
}

// Visible to the person, also behind "Options".
std::vector<std::string> texts_of(QPrintDialog& dialog) {
  for (QPushButton* const button : dialog.findChildren<QPushButton*>())
    if (button->text().contains(">>")) button->click();
  std::vector<std::string> texts;
  for (QWidget* const widget : dialog.findChildren<QWidget*>()) {
    if (!widget->isVisible()) continue;
    for (const char* const property : {"text", "title"})
      if (const QString text = widget->property(property).toString(); !text.isEmpty())
        texts.push_back(text.toStdString());
  }
  return texts;
}

TEST_F(Printing, HidesPageNumbersSelectionAndPrintToFile) {
  scheduler.add_queue("A4", "A4");
  scheduler.make_default("A4");
  int looked = 0;
  const Outcome outcome = print(printer, report(), [&](QPrintDialog& dialog) {
    ++looked;
    for (const auto option :
         {QAbstractPrintDialog::PrintPageRange, QAbstractPrintDialog::PrintSelection,
          QAbstractPrintDialog::PrintToFile, QAbstractPrintDialog::PrintCurrentPage})
      EXPECT_FALSE(dialog.testOption(option)) << option;
    const std::vector<std::string> texts = texts_of(dialog);
    EXPECT_EQ(std::count(texts.begin(), texts.end(), "Copies:"), 1) << "nothing was looked at";
    for (QRadioButton* const choice : dialog.findChildren<QRadioButton*>()) {
      if (choice->isVisible()) {
        ADD_FAILURE() << choice->text().toStdString();
      }
    }
    for (QLineEdit* const field : dialog.findChildren<QLineEdit*>()) {
      const bool number = qobject_cast<QSpinBox*>(field->parentWidget()) != nullptr;
      EXPECT_TRUE(number || !field->isVisible()) << field->objectName().toStdString();
    }
    for (const std::string& text : texts) {
      EXPECT_EQ(text.find("ange"), std::string::npos) << text;
      EXPECT_EQ(text.find("Pages from"), std::string::npos) << text;
      EXPECT_EQ(text.find("Page Set"), std::string::npos) << text;
      EXPECT_EQ(text.find("file"), std::string::npos) << text;
    }
    for (QComboBox* const printers : dialog.findChildren<QComboBox*>("printers"))
      EXPECT_EQ(printers->findText("PDF", Qt::MatchContains), -1);
    press_escape(dialog);
  });
  EXPECT_EQ(looked, 1);
  EXPECT_EQ(outcome.result, PrintResult::kCancelled);
}

TEST_F(Printing, AsksInTheLanguageOfTheProgram) {
  scheduler.add_queue("A4", "A4");
  scheduler.make_default("A4");
  ui::Sheets sheets = report();
  for (const auto language : {text::Language::kJapanese, text::Language::kEnglish}) {
    sheets.language = language;
    print(printer, sheets, [&](QPrintDialog& dialog) {
      const std::vector<std::string> texts = texts_of(dialog);
      const bool japanese = language == text::Language::kJapanese;
      EXPECT_EQ(std::count(texts.begin(), texts.end(), "印刷(&P)"), japanese ? 1 : 0);
      EXPECT_EQ(std::count(texts.begin(), texts.end(), "&Print"), japanese ? 0 : 1);
      press_escape(dialog);
    });
  }
}

TEST_F(Printing, TakesPrinterAndCopiesFromTheDialog) {
  scheduler.add_queue("A4", "A4");
  scheduler.add_queue("Letter", "Letter");
  scheduler.make_default("A4");
  const Outcome outcome = print(printer, report(), [&](QPrintDialog& dialog) {
    auto* const printers = dialog.findChild<QComboBox*>("printers");
    auto* const copies = dialog.findChild<QSpinBox*>("copies");
    ASSERT_TRUE(printers != nullptr && copies != nullptr);
    (void)texts_of(dialog);
    printers->setFocus();
    QTest::keyClick(printers, Qt::Key_Down);
    EXPECT_EQ(printers->currentText(), "Letter");
    copies->setFocus();
    QTest::keyClick(copies, Qt::Key_Up);
    QTest::keyClick(copies, Qt::Key_Up);
    press_return(dialog);
  });
  EXPECT_EQ(outcome.result, PrintResult::kSuccess);
  const std::string pdf = scheduler.next_paper();
  EXPECT_TRUE(scheduler.options().startsWith("title=Print copies=3 "))
      << scheduler.options().toStdString();
  EXPECT_TRUE(scheduler.options().contains("media=Letter"));
  EXPECT_EQ(lines_on(pdf, report(), desktop::paper_of(QPageSize(QPageSize::Letter))),
            full(report_lines()));
}

// The job is in the queue and comes when the queue goes on: printing it again would print it twice.
TEST_F(Printing, IsDoneWhenAStoppedQueueHasTakenThePages) {
  scheduler.add_queue("A4", "A4");
  scheduler.make_default("A4");
  scheduler.run("/usr/sbin/cupsdisable", {"A4"});
  EXPECT_TRUE(printer.has_default_printer());
  EXPECT_EQ(print(printer, report(), press_return).result, PrintResult::kSuccess);
  EXPECT_EQ(jobs().count("A4-"), 1);
  scheduler.run("/usr/sbin/cupsenable", {"A4"});
  EXPECT_EQ(lines_on(scheduler.next_paper(), report(), desktop::paper_of(QPageSize(QPageSize::A4))),
            full(report_lines()));
}

TEST_F(Printing, FailsWhereTheQueueRejectsJobs) {
  scheduler.add_queue("A4", "A4");
  scheduler.make_default("A4");
  scheduler.run("/usr/sbin/cupsreject", {"A4"});
  const Outcome outcome = print(printer, report(), press_return);
  EXPECT_EQ(outcome.result, PrintResult::kFailed);
  EXPECT_EQ(outcome.dialogs, 1);
  EXPECT_EQ(scheduler.run("lpstat", {"-W", "all", "-o"}), "");
  // The queue takes jobs again: so does the program.
  scheduler.run("/usr/sbin/cupsaccept", {"A4"});
  EXPECT_EQ(print(printer, report(), press_return).result, PrintResult::kSuccess);
}

TEST_F(Printing, FailsWhereTheQueueOrTheSchedulerIsGoneBehindTheDialog) {
  scheduler.add_queue("A4", "A4");
  scheduler.make_default("A4");
  const Outcome without_queue = print(printer, report(), [&](QPrintDialog& dialog) {
    scheduler.run("/usr/sbin/lpadmin", {"-x", "A4"});
    press_return(dialog);
  });
  EXPECT_EQ(without_queue.result, PrintResult::kFailed);
  scheduler.add_queue("A4", "A4");
  scheduler.make_default("A4");
  const Outcome without_scheduler = print(printer, report(), [&](QPrintDialog& dialog) {
    scheduler.end();
    press_return(dialog);
  });
  EXPECT_EQ(without_scheduler.result, PrintResult::kFailed);
}

TEST_F(Printing, WaitsForASilentSchedulerNoLongerThanItIsToldTo) {
  scheduler.add_queue("A4", "A4");
  scheduler.make_default("A4");
  scheduler.stop_answering();
  // It cannot tell, and the window does not stand still.
  EXPECT_TRUE(hasty.has_default_printer());
  EXPECT_GT(hasty.page_room(report()).lines, 10U);
  const Outcome before = print(hasty, report(), press_return);
  EXPECT_EQ(before.result, PrintResult::kFailed);
  EXPECT_EQ(before.dialogs, 0);
  scheduler.go_on();
  EXPECT_EQ(print(printer, report(), press_return).result, PrintResult::kSuccess);
}

TEST_F(Printing, WaitsNoLongerForASchedulerThatFallsSilentBehindTheDialog) {
  scheduler.add_queue("A4", "A4");
  scheduler.make_default("A4");
  DesktopPrinter brisk(kShort * 5);
  Outcome outcome;
  // On a busy machine a scheduler may seem silent that is not.
  while (outcome.dialogs == 0) {
    outcome = print(brisk, report(), [&](QPrintDialog& dialog) {
      scheduler.stop_answering();
      press_return(dialog);
    });
  }
  EXPECT_EQ(outcome.result, PrintResult::kFailed);
  EXPECT_EQ(outcome.dialogs, 1);
  scheduler.go_on();
  EXPECT_EQ(print(printer, report(), press_return).result, PrintResult::kSuccess);
}

TEST_F(Printing, FailsWhereTheDiskHasNoRoomForThePages) {
  scheduler.add_queue("A4", "A4");
  scheduler.make_default("A4");
  rlimit before{};
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
  const auto was = std::signal(SIGXFSZ, SIG_IGN);
  rlimit small = before;
  small.rlim_cur = 3000;
  const Outcome outcome = print(printer, report(), [&](QPrintDialog& dialog) {
    EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
    press_return(dialog);
  });
  EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &before), 0);
  std::signal(SIGXFSZ, was);
  EXPECT_EQ(outcome.result, PrintResult::kFailed);
  EXPECT_EQ(scheduler.run("lpstat", {"-W", "all", "-o"}), "");
}
