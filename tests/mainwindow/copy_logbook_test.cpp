#include <gtest/gtest.h>

#include "fakes/sample_logbook.h"
#include "mainwindow/copying.h"
#include "observation/report_file.h"
#include "observation/save_journal.h"

namespace {

namespace id = text::id;
using copying::Copying;
using copying::in_both_languages;
using fakes::FakeFiles;
using platform::FileError;
using Names = std::vector<std::string>;

constexpr const char* kFrom = "C:\\log\\immt5.log";
constexpr const char* kTo = "C:\\copy\\immt5.log";
// Sound ones, so that nothing is asked about them.
const std::string kOld = fakes::logbook_line(14, 0) + "\n";
const std::string kSecond = fakes::logbook_line(14, 3);
const std::string kThird = fakes::logbook_line(14, 6);
const std::string kLines = kOld + kSecond + "\n";

void copy(Copying& c) {
  mainwindow::copy_logbook(c.world.services, c.context);
}

void with_logbook(Copying& c) {
  c.files.add_file(kFrom, kLines);
}

bool japanese(const Copying& c) {
  return c.world.texts.language == text::Language::kJapanese;
}

TEST(CopyLogbook, CopiesAndKeepsTheSourceAndTheFolder) {
  in_both_languages([](Copying& c) {
    with_logbook(c);
    c.choose("C:\\copy", [&](ui::Screen& screen) {
      EXPECT_EQ(screen.title(),
                japanese(c) ? "船舶気象観測表のコピー" : "Copy marine meteorological logbook");
    });
    c.world.windows.expect(id::kLogbookCopied);
    c.world.windows.expect(id::kAskDeleteLogbook, "no");
    copy(c);
    EXPECT_EQ(c.files.content(kTo), kLines);
    EXPECT_EQ(c.files.content(kFrom), kLines);
    EXPECT_EQ(c.kept, Names{"LOGC=C:\\copy\\"});
    EXPECT_EQ(c.folders.logbook_copies, "C:\\copy\\");
    EXPECT_EQ(c.box(0).title, "KAVREL for WIN");
    EXPECT_EQ(c.box(0).text,
              japanese(c) ? "船舶気象観測表(immt5.log)のコピーが終了しました。\n"
                            "寄港時に船舶気象観測表をOstrelへ提出してください。"
                          : "Copy of the marine meteorological logbook (immt5.log) succeeded.\n"
                            "Please send the marine meteorological logbook to Ostrel at your port "
                            "call.");
    EXPECT_EQ(c.box(1).title, "Brenmoor");
    EXPECT_EQ(c.box(1).text,
              japanese(c) ? "コピー元フォルダの船舶気象観測表(immt5.log)を\n削除しますか？"
                          : "Do you wish to delete the marine meteorological logbook (immt5.log) \n"
                            "in the source folder?");
    EXPECT_EQ(c.box(1).buttons.size(), 2U);
  });
}

TEST(CopyLogbook, ClearsWhatAKilledCopyLeftInTheFolder) {
  Copying c;
  with_logbook(c);
  c.files.add_file("C:\\copy\\.kavrel-999999999-7.part", "half");
  c.choose("C:\\copy");
  c.world.windows.expect(id::kLogbookCopied);
  c.world.windows.expect(id::kAskDeleteLogbook, "no");
  copy(c);
  EXPECT_EQ(c.files.snapshot(),
            (std::map<std::string, std::string>{{kFrom, kLines}, {kTo, kLines}}));
}

TEST(CopyLogbook, YesDeletesTheSource) {
  in_both_languages([](Copying& c) {
    with_logbook(c);
    c.choose("C:\\copy");
    c.world.windows.expect(id::kLogbookCopied);
    c.world.windows.expect(id::kAskDeleteLogbook, "yes");
    copy(c);
    EXPECT_EQ(c.files.snapshot(), (std::map<std::string, std::string>{{kTo, kLines}}));
  });
}

TEST(CopyLogbook, ClosingTheQuestionKeepsTheSource) {
  Copying c;
  with_logbook(c);
  c.choose("C:\\copy");
  c.world.windows.expect(id::kLogbookCopied);
  c.world.windows.expect(id::kAskDeleteLogbook, "close");
  copy(c);
  EXPECT_EQ(c.files.content(kFrom), kLines);
}

TEST(CopyLogbook, ProposesTheFolderOfTheLastCopyElseTheRemovableDrive) {
  for (const bool chosen_before : {true, false}) {
    Copying c;
    with_logbook(c);
    c.with_floppy();
    c.folders.removable_root = "A:\\";
    if (chosen_before) c.folders.logbook_copies = "C:\\copy\\";
    c.world.windows.expect_screen("CLogDiskSavePathDlg", [&](ui::Screen& screen) {
      EXPECT_EQ(screen.find("current")->content, chosen_before ? "C:\\copy\\" : "");
      EXPECT_EQ(screen.find("chosen")->content, chosen_before ? "C:\\copy\\" : "A:\\");
      screen.press(*screen.find("cancel"));
    });
    copy(c);
    EXPECT_TRUE(c.kept.empty());
  }
}

TEST(CopyLogbook, WithoutALogbookThereIsNothingToCopy) {
  const struct {
    const char* what;
    std::function<void(Copying&)> make;
    const char* below;
  } rows[] = {
      {"no folder chosen", [](Copying& c) { c.folders.logbook.clear(); }, ""},
      {"no such folder", [](Copying& c) { c.folders.logbook = "C:\\none\\"; }, ""},
      {"an empty folder", [](Copying&) {}, ""},
      {"a folder of the name", [](Copying& c) { c.files.add_folder(kFrom); }, kFrom},
      {"a pipe of the name", [](Copying& c) { c.files.add_other(kFrom); }, kFrom},
  };
  for (const auto& row : rows) {
    in_both_languages([&](Copying& c) {
      row.make(c);
      c.world.windows.expect(id::kNoLogbook);
      copy(c);
      const std::string first = japanese(c)
                                    ? "船舶気象観測表(immt5.log)がありません。"
                                    : "Not exist the marine meteorological logbook (immt5.log)";
      EXPECT_TRUE(c.box(0).text.starts_with(first)) << row.what;
      EXPECT_EQ(c.box(0).text == first, *row.below == '\0') << row.what;
      EXPECT_NE(c.box(0).text.find(row.below), std::string::npos) << row.what;
      EXPECT_TRUE(c.kept.empty());
    });
  }
}

TEST(CopyLogbook, ALogbookOfWhichOneCannotTellIsNotCalledMissing) {
  in_both_languages([](Copying& c) {
    with_logbook(c);
    c.files.fail_look(kFrom, FileError::kAccessDenied);
    c.world.windows.expect(id::kLogbookCopyFailed);
    copy(c);
    EXPECT_EQ(c.box(0).text, japanese(c)
                                 ? "船舶気象観測表(immt5.log)のコピーに失敗しました。\nC:"
                                   "\\log\\immt5.log（許可されていません）"
                                 : "Copy of the marine meteorological logbook (immt5.log) failed.\n"
                                   "C:\\log\\immt5.log (not permitted)");
  });
}

TEST(CopyLogbook, CancelInTheFolderDialogEndsItSilently) {
  Copying c;
  with_logbook(c);
  c.cancel("CLogDiskSavePathDlg");
  copy(c);
  EXPECT_EQ(c.files.snapshot(), (std::map<std::string, std::string>{{kFrom, kLines}}));
  EXPECT_TRUE(c.kept.empty());
  EXPECT_EQ(c.folders.logbook_copies, "");
}

TEST(CopyLogbook, TheLogbookFolderIsRefusedAndTheDialogStaysOpen) {
  in_both_languages([](Copying& c) {
    with_logbook(c);
    c.world.windows.expect_screen("CLogDiskSavePathDlg", [&](ui::Screen& screen) {
      EXPECT_TRUE(screen.reveal(*screen.find("tree"), "C:\\log"));
      c.world.windows.expect(id::kChooseAnotherFolder);
      screen.press(*screen.find("ok"));
      EXPECT_FALSE(screen.result());
      EXPECT_TRUE(c.kept.empty());
      screen.press(*screen.find("cancel"));
    });
    copy(c);
    EXPECT_EQ(c.box(0).text, japanese(c)
                                 ? "保存フォルダとは別のフォルダをコピー先に指定してください。"
                                 : "Please specify another folder to copy. ");
    EXPECT_EQ(c.files.content(kFrom), kLines);
  });
}

TEST(CopyLogbook, AnExistingCopyIsReplacedOnlyAfterYes) {
  for (const char* const answer : {"yes", "no", "close"}) {
    in_both_languages([&](Copying& c) {
      with_logbook(c);
      c.files.add_file(kTo, kOld);
      c.choose("C:\\copy");
      c.world.windows.expect(id::kAskOverwriteLogbook, answer);
      const bool yes = std::string(answer) == "yes";
      if (yes) {
        c.world.windows.expect(id::kLogbookCopied);
        c.world.windows.expect(id::kAskDeleteLogbook, "no");
      } else {
        c.world.windows.expect(id::kLogbookCopyCancelled);
      }
      copy(c);
      EXPECT_EQ(c.files.content(kTo), yes ? kLines : kOld);
      EXPECT_EQ(c.files.content(kFrom), kLines);
      EXPECT_EQ(c.box(0).title, "Brenmoor");
      EXPECT_EQ(
          c.box(0).text,
          japanese(c)
              ? "コピー先に船舶気象観測表(immt5.log)が既にあります。\n上書きしますか？"
              : "The marine meteorological logbook (immt5.log) already exists in destination. "
                "\nDo you wish to overwrite (Yes/No)? ");
      if (!yes) {
        EXPECT_EQ(c.box(1).text,
                  japanese(c) ? "船舶気象観測表(immt5.log)のコピーを中止しました。"
                              : "Copy of the marine meteorological logbook (immt5.log) canceled.");
      }
    });
  }
}

TEST(CopyLogbook, WhatChangesBehindTheQuestionIsAskedAboutAgain) {
  Copying c;
  with_logbook(c);
  c.files.add_file(kTo, kOld);
  c.choose("C:\\copy");
  c.world.windows.expect(id::kAskOverwriteLogbook, "yes");
  c.world.windows.expect(id::kAskOverwriteLogbook, "no");
  c.world.windows.expect(id::kLogbookCopyCancelled);
  c.world.windows.while_open = [&] {
    if (c.world.windows.boxes.size() == 1) c.files.add_file(kTo, "theirs\n");
  };
  copy(c);
  EXPECT_EQ(c.files.content(kTo), "theirs\n");
}

TEST(CopyLogbook, AFailureNamesTheFileAndTheCause) {
  in_both_languages([](Copying& c) {
    with_logbook(c);
    c.choose("C:\\copy");
    c.files.set_free_space('C', 3);
    c.world.windows.expect(id::kLogbookCopyFailed);
    copy(c);
    EXPECT_EQ(c.box(0).text, japanese(c)
                                 ? "船舶気象観測表(immt5.log)のコピーに失敗しました。\n"
                                   "C:\\copy\\immt5.log（空き容量がありません）"
                                 : "Copy of the marine meteorological logbook (immt5.log) failed.\n"
                                   "C:\\copy\\immt5.log (no space left)");
    EXPECT_EQ(c.files.snapshot(), (std::map<std::string, std::string>{{kFrom, kLines}}));
  });
}

TEST(CopyLogbook, IsNotTakenWhileAnotherProgramHoldsIt) {
  Copying c;
  with_logbook(c);
  c.files.set_held(kFrom);
  c.choose("C:\\copy");
  c.world.windows.expect_text(
      "Copy of the marine meteorological logbook (immt5.log) failed.\n"
      "C:\\log\\immt5.log (another program is using it)");
  copy(c);
  EXPECT_EQ(c.files.content(kTo), std::nullopt);
}

TEST(CopyLogbook, IsCopiedThoughItMayNotBeWrittenButNotDeleted) {
  Copying c;
  with_logbook(c);
  c.files.set_read_only(kFrom);
  c.choose("C:\\copy");
  c.world.windows.expect(id::kLogbookCopied);
  c.world.windows.expect(id::kAskDeleteLogbook, "yes");
  c.world.windows.expect_text("The file C:\\log\\immt5.log was not deleted (not permitted).");
  copy(c);
  EXPECT_EQ(c.files.content(kTo), kLines);
  EXPECT_EQ(c.files.content(kFrom), kLines);
}

TEST(CopyLogbook, ALineThatCameSinceTheCopyIsNotDeleted) {
  in_both_languages([](Copying& c) {
    with_logbook(c);
    c.choose("C:\\copy");
    c.world.windows.expect(id::kLogbookCopied);
    c.world.windows.expect(id::kAskDeleteLogbook, "yes");
    c.world.windows.expect(id::kSourceNotDeleted);
    c.world.windows.while_open = [&] {
      if (c.world.windows.boxes.size() == 2) c.files.add_file(kFrom, kLines + kThird + "\n");
    };
    copy(c);
    EXPECT_EQ(c.files.content(kFrom), kLines + kThird + "\n");
    EXPECT_EQ(c.files.content(kTo), kLines);
    EXPECT_EQ(
        c.box(2).text,
        japanese(c)
            ? "ファイル C:\\log\\immt5.log は削除していません（コピーした内容と一致しません）。"
            : "The file C:\\log\\immt5.log was not deleted (it is not, or no longer, equal to "
              "its copy).");
  });
}

TEST(CopyLogbook, ACopyThatWentIsToldAndTheSourceStays) {
  Copying c;
  with_logbook(c);
  c.choose("C:\\copy");
  c.world.windows.expect(id::kLogbookCopied);
  c.world.windows.expect(id::kAskDeleteLogbook, "yes");
  c.world.windows.expect_text(
      "The file C:\\log\\immt5.log was not deleted (C:\\copy\\immt5.log: no such file or folder).");
  c.world.windows.while_open = [&] {
    if (c.world.windows.boxes.size() == 2) (void)c.files.remove(kTo);
  };
  copy(c);
  EXPECT_EQ(c.files.content(kFrom), kLines);
}

TEST(CopyLogbook, WithoutLocksTheOfficerIsWarnedBeforeItIsDeleted) {
  Copying c;
  with_logbook(c);
  c.files.set_lockless();
  c.choose("C:\\copy");
  c.world.windows.expect(id::kLogbookCopied);
  c.world.windows.expect(id::kAskDeleteLogbook, "yes");
  c.world.windows.expect(id::kLogbookWithoutLock);
  copy(c);
  EXPECT_EQ(c.files.content(kFrom), std::nullopt);
}

// ---- Removable disks

TEST(CopyLogbook, AsksForTheDiskAndForRoomOnIt) {
  in_both_languages([](Copying& c) {
    with_logbook(c);
    c.with_floppy();
    c.world.drives.medium['A'] = false;
    c.choose("A:\\");
    c.world.windows.expect(id::kInsertDisk);
    c.world.windows.expect(id::kInsertDiskAgain);
    c.world.windows.expect(id::kDiskFull);
    c.world.windows.expect(id::kLogbookCopied);
    c.world.windows.expect(id::kAskDeleteLogbook, "no");
    c.files.set_free_space('A', 3);
    c.world.windows.while_open = [&] {
      if (c.world.windows.boxes.size() == 2) c.world.drives.medium['A'] = true;
      if (c.world.windows.boxes.size() == 3) c.files.set_free_space('A', 1U << 20U);
    };
    copy(c);
    EXPECT_EQ(c.files.content("A:\\immt5.log"), kLines);
  });
}

TEST(CopyLogbook, WithoutADiskItIsCancelled) {
  for (const bool source : {true, false}) {
    in_both_languages([&](Copying& c) {
      with_logbook(c);
      c.with_floppy();
      c.world.drives.medium['A'] = false;
      if (source) {
        c.folders.logbook = "A:\\";
      } else {
        c.choose("A:\\");
      }
      c.world.windows.expect(id::kInsertDisk, "cancel");
      c.world.windows.expect(id::kLogbookCopyCancelled);
      copy(c);
      EXPECT_EQ(c.files.content("A:\\immt5.log"), std::nullopt);
    });
  }
}

// ---- Interrupted saves

observation::SaveRequest request() {
  return {"C:\\tlx\\14111512.tlx", kFrom, "BBXX NEW.....", kThird, false};
}

/// A save that was killed before its n-th operation; false when it went through.
bool killed_save(Copying& c, int n) {
  c.files.kill_before(n);
  bool killed = false;
  try {
    (void)observation::save(c.files, request());
  } catch (const FakeFiles::Killed&) {
    killed = true;
  }
  c.files.heal();
  c.files.restart();
  return killed;
}

/// The officer says Yes to everything.
void copy_all_yes(Copying& c) {
  c.world.windows.answer_all("yes", [](ui::Screen& screen) {
    ui::Control* const tree = screen.find("tree");
    // A folder that cannot be read cannot be chosen.
    if (tree != nullptr && screen.reveal(*tree, "C:\\copy")) screen.press(*screen.find("ok"));
  });
  copy(c);
}

TEST(CopyLogbook, AnInterruptedSaveIsPutInOrderFirst) {
  int told = 0;
  for (int n = 1;; ++n) {
    Copying c;
    with_logbook(c);
    if (!killed_save(c, n)) break;
    copy_all_yes(c);
    const std::string copied = c.files.content(kTo).value_or("none");
    const bool with_report = c.files.content("C:\\tlx\\14111512.tlx").has_value();
    EXPECT_EQ(copied, with_report ? kLines + kThird + "\n" : kLines) << n;
    EXPECT_EQ(c.files.content(kFrom), std::nullopt) << n;
    EXPECT_EQ(c.files.content("C:\\log\\.kavrel-save"), std::nullopt) << n;
    const text::Id first = c.box(0).text_id;
    if (first == id::kSaveFinished || first == id::kSaveTakenBack) ++told;
  }
  EXPECT_GT(told, 1);
}

TEST(CopyLogbook, WhatCannotBePutInOrderIsToldAndNotCopied) {
  in_both_languages([](Copying& c) {
    with_logbook(c);
    c.files.add_file("C:\\log\\.kavrel-save", "x");
    c.files.fail_path("C:\\log\\.kavrel-save", FileError::kAccessDenied);
    c.world.windows.expect(id::kSaveNotRecovered);
    c.world.windows.expect(id::kLogbookCopyFailed);
    copy(c);
    EXPECT_EQ(c.files.content(kTo), std::nullopt);
    EXPECT_NE(
        c.box(1).text.find(japanese(c) ? "中断された保存の後処理が終わっていません"
                                       : "an interrupted saving has not been put in order yet"),
        std::string::npos);
  });
}

TEST(CopyLogbook, ALogbookWhoseReportIsAwayIsCopiedAndNotDeleted) {
  Copying c;
  with_logbook(c);
  c.files.add_file("D:\\tlx\\x", "");
  observation::Journal journal;
  journal.folder = "D:\\away\\";
  journal.report = "14111512.tlx";
  journal.staged = ".kavrel-999999999-0.part";
  journal.log_size = kOld.size();
  journal.appended = kSecond + "\n";
  journal.content = {3, 3};
  c.files.add_file("C:\\log\\.kavrel-save", observation::write_journal(journal));
  c.files.set_medium_missing('D');
  c.world.windows.expect(id::kSaveUnreachable);
  c.choose("C:\\copy");
  c.world.windows.expect(id::kLogbookCopied);
  c.world.windows.expect(id::kAskDeleteLogbook, "yes");
  c.world.windows.expect(id::kSourceNotDeleted);
  copy(c);
  EXPECT_EQ(c.files.content(kTo), kLines);
  EXPECT_EQ(c.files.content(kFrom), kLines);
}

// ---- Every operation fails, every operation is the last

void expect_whole(const Copying& c, const std::string& where) {
  const auto from = c.files.content(kFrom);
  const std::string to = c.files.content(kTo).value_or("none");
  EXPECT_TRUE(from == kLines || (!from && to == kLines)) << where;
  EXPECT_TRUE(to == kLines || to == kOld) << where << to;
}

TEST(CopyLogbook, AnyOperationMayFailOrBeTheLast) {
  for (const int way : {0, 1, 2, 3}) {
    int n = 1;
    for (bool through = false; !through; ++n) {
      Copying c;
      with_logbook(c);
      c.files.add_file(kTo, kOld);
      if (way == 0) c.files.fail_at(n, FileError::kOther);
      if (way == 1) c.files.fail_at(n, FileError::kNoSpace);
      if (way == 2) c.files.kill_before(n);
      if (way == 3) c.files.kill_after(n);
      bool killed = false;
      try {
        copy_all_yes(c);
      } catch (const FakeFiles::Killed&) {
        killed = true;
      }
      const std::string where = std::to_string(way) + " " + std::to_string(n);
      expect_whole(c, where);
      through = !killed && c.files.operations() < n;
    }
    EXPECT_GT(n, 15) << "that is no whole copy";
  }
}

// ---- What is wrong in it is told before

const std::string kFaulty = kOld + fakes::logbook_line(14, 3, {{"VV", "50"}}) + "\n";

TEST(CopyLogbook, ShowsWhatIsWrongAndCopiesOnlyWhenAsked) {
  in_both_languages([](Copying& c) {
    c.files.add_file(kFrom, kFaulty);
    c.world.windows.expect(id::kAskCopyFaulty, "show");
    c.world.windows.expect_screen("CLogbookCheckDlg", [&](ui::Screen& screen) {
      const std::string& words = screen.find("summary")->content;
      EXPECT_NE(
          words.find(japanese(c) ? "50は符号表4377にありません" : "50 is not in code table 4377"),
          std::string::npos)
          << words;
      screen.press(*screen.find("ok"));
    });
    c.world.windows.expect(id::kAskCopyFaulty, "copy");
    c.choose("C:\\copy");
    c.world.windows.expect(id::kLogbookCopied);
    c.world.windows.expect(id::kAskDeleteLogbook, "no");
    copy(c);
    EXPECT_EQ(c.files.content(kTo), kFaulty) << "as it is: nothing is mended behind the officer";
    EXPECT_EQ(c.box(0).text,
              japanese(c)
                  ? "船舶気象観測表に、誤りのある行が1行、要確認の行が0行あります（全2行）。\n"
                    "コピーの前に内容を表示しますか？"
                  : "The logbook has 1 lines with errors and 0 with doubts, of 2.\n"
                    "Show them before it is copied?");
  });
}

TEST(CopyLogbook, IsNotCopiedWhenTheOfficerWantsToMendItFirst) {
  for (const char* const answer : {"cancel", "close"}) {
    Copying c;
    c.files.add_file(kFrom, kFaulty);
    c.world.windows.expect(id::kAskCopyFaulty, answer);
    c.world.windows.expect(id::kLogbookCopyCancelled);
    copy(c);
    EXPECT_EQ(c.files.snapshot(), (std::map<std::string, std::string>{{kFrom, kFaulty}}));
  }
}

// A correction leaves two lines of one hour, which is as it should be.
TEST(CopyLogbook, AsksNothingAboutACorrection) {
  Copying c;
  c.files.add_file(kFrom, kOld + fakes::logbook_line(14, 0, {{"TTT", "149"}}) + "\n");
  c.cancel("CLogDiskSavePathDlg");
  copy(c);
}

}  // namespace
