#include <gtest/gtest.h>

#include <algorithm>

#include "archive/CTlxSelectDlg.h"
#include "mainwindow/copying.h"

namespace {

namespace id = text::id;
using copying::Copying;
using copying::in_both_languages;
using fakes::FakeFiles;
using platform::FileError;
using Names = std::vector<std::string>;
using Snapshot = std::map<std::string, std::string>;

// In the order of the list: the newest first.
const Names kThree = {"14111518.tlx", "14111512.tlx", "14111506.tlx"};

std::string content_of(const std::string& name) {
  return "BBXX " + name;
}
std::string from(const std::string& name) {
  return "C:\\tlx\\" + name;
}
std::string to(const std::string& name) {
  return "C:\\copy\\" + name;
}

Names names(int count) {
  Names result;
  for (int day = count; day > 0; --day)
    result.push_back(std::string("1411") + (day < 10 ? "0" : "") + std::to_string(day) + "00.tlx");
  return result;
}

void put(Copying& c, const Names& reports) {
  for (const std::string& name : reports) c.files.add_file(from(name), content_of(name));
}

bool japanese(const Copying& c) {
  return c.world.texts.language == text::Language::kJapanese;
}

void copy(Copying& c) {
  mainwindow::copy_reports(c.world.services, c.context);
}

/// Next, the reports are chosen: all but those lines.
void select(Copying& c, const std::vector<int>& without = {}) {
  c.world.windows.expect_screen("CTlxSelectDlg", [without](ui::Screen& screen) {
    for (const int line : without) screen.tick_line(*screen.find("reports"), line, false);
    screen.press(*screen.find("ok"));
  });
}
void select_and_choose(Copying& c) {
  select(c);
  c.choose("C:\\copy");
}

/// Which of them lie whole at the destination.
Names copied(const Copying& c, const Names& reports) {
  Names result;
  for (const std::string& name : reports)
    if (c.files.content(to(name)) == content_of(name)) result.push_back(name);
  return result;
}
Names left(const Copying& c, const Names& reports) {
  Names result;
  for (const std::string& name : reports)
    if (c.files.content(from(name)) == content_of(name)) result.push_back(name);
  return result;
}

TEST(CopyReports, CopiesOneAfterAnotherAndAsksForEachWhetherToDeleteIt) {
  in_both_languages([](Copying& c) {
    put(c, kThree);
    select_and_choose(c);
    for (const char* const answer : {"no", "yes", "close"}) {
      c.world.windows.expect(id::kReportCopied);
      c.world.windows.expect(id::kAskDeleteReport, answer);
    }
    copy(c);
    EXPECT_EQ(copied(c, kThree), kThree);
    EXPECT_EQ(left(c, kThree), (Names{kThree[0], kThree[2]}));
    EXPECT_EQ(c.kept, Names{"TLXC=C:\\copy\\"});
    EXPECT_EQ(c.folders.report_copies, "C:\\copy\\");
    EXPECT_EQ(c.box(0).title, "KAVREL for WIN");
    EXPECT_EQ(c.box(0).text, japanese(c)
                                 ? "気象電報(14111518.tlx)のコピーが終了しました。\n"
                                   "気象電報をインマルサット経由でOstrelへ送信してください。"
                                 : "Copy of the weather report (14111518.tlx) succeeded.\n"
                                   "Please send the weather report to Ostrel via INMARSAT.");
    EXPECT_EQ(c.box(1).title, "Brenmoor");
    EXPECT_EQ(c.box(1).text, japanese(c)
                                 ? "コピー元フォルダの気象電報(14111518.tlx)を\n削除しますか？"
                                 : "Do you wish to delete the weather report (14111518.tlx) \n"
                                   "in the source folder?");
  });
}

TEST(CopyReports, ClearsWhatAKilledCopyLeftInTheFolder) {
  Copying c;
  put(c, {kThree[0]});
  c.files.add_file("C:\\copy\\.kavrel-999999999-7.part", "half");
  select_and_choose(c);
  c.world.windows.expect(id::kReportCopied);
  c.world.windows.expect(id::kAskDeleteReport, "no");
  copy(c);
  EXPECT_EQ(c.files.snapshot().size(), 2U);
}

TEST(CopyReports, OnlyThoseChosenAreCopied) {
  Copying c;
  put(c, kThree);
  select(c, {0, 2});
  c.choose("C:\\copy");
  c.world.windows.expect(id::kReportCopied);
  c.world.windows.expect(id::kAskDeleteReport, "no");
  copy(c);
  EXPECT_EQ(copied(c, kThree), Names{kThree[1]});
}

TEST(CopyReports, WithoutAReportThereIsNothingToCopy) {
  const std::pair<const char*, std::function<void(Copying&)>> rows[] = {
      {"no folder chosen", [](Copying& c) { c.folders.reports.clear(); }},
      {"no such folder", [](Copying& c) { c.folders.reports = "C:\\none\\"; }},
      {"an empty folder", [](Copying&) {}},
      {"other files and a folder",
       [](Copying& c) {
         c.files.add_file(from("x.tlx.bak"), "x");
         c.files.add_file(from("A.TLX"), "x");
         c.files.add_file(from("immt5.log"), "x");
         c.files.add_file(from("sub\\a.tlx"), "x");
         c.files.add_folder(from("y.tlx"));
         c.files.add_other(from("z.tlx"));
       }},
  };
  for (const auto& [what, make] : rows) {
    in_both_languages([&](Copying& c) {
      make(c);
      c.world.windows.expect_text(japanese(c) ? "気象電報(*.tlx)がありません。"
                                              : "Not exist the weather report (*.tlx)");
      copy(c);
      EXPECT_TRUE(c.kept.empty()) << what;
    });
  }
}

TEST(CopyReports, AFolderThatCannotBeReadIsNotCalledEmpty) {
  in_both_languages([](Copying& c) {
    put(c, kThree);
    c.files.fail_path("C:\\tlx\\", FileError::kAccessDenied);
    c.world.windows.expect(id::kFolderNotReadable);
    copy(c);
    EXPECT_NE(c.box(0).text.find("C:\\tlx\\"), std::string::npos);
  });
}

TEST(CopyReports, CancelInEitherDialogEndsItSilently) {
  for (const bool first : {true, false}) {
    Copying c;
    put(c, kThree);
    if (first) {
      c.cancel("CTlxSelectDlg");
    } else {
      select(c);
      c.cancel("CLogDiskSavePathDlg");
    }
    copy(c);
    EXPECT_TRUE(copied(c, kThree).empty());
    EXPECT_TRUE(c.kept.empty());
  }
}

TEST(CopyReports, TheReportFolderIsRefusedAndTheDialogStaysOpen) {
  in_both_languages([](Copying& c) {
    put(c, kThree);
    select(c);
    c.world.windows.expect_screen("CLogDiskSavePathDlg", [&](ui::Screen& screen) {
      EXPECT_EQ(screen.title(), japanese(c) ? "気象電報のコピー" : "Copy weather reports");
      EXPECT_TRUE(screen.reveal(*screen.find("tree"), "C:\\tlx"));
      c.world.windows.expect(id::kChooseAnotherFolder);
      screen.press(*screen.find("ok"));
      EXPECT_FALSE(screen.result());
      screen.press(*screen.find("cancel"));
    });
    copy(c);
    EXPECT_TRUE(c.kept.empty());
    EXPECT_EQ(left(c, kThree), kThree);
  });
}

TEST(CopyReports, NoForOneGoesOnWithTheNext) {
  in_both_languages([](Copying& c) {
    put(c, kThree);
    for (const std::string& name : kThree) c.files.add_file(to(name), "old");
    select_and_choose(c);
    c.world.windows.expect(id::kAskOverwriteReport, "no");
    c.world.windows.expect(id::kReportCopyCancelled);
    c.world.windows.expect(id::kAskOverwriteReport, "yes");
    c.world.windows.expect(id::kReportCopied);
    c.world.windows.expect(id::kAskDeleteReport, "no");
    c.world.windows.expect(id::kAskOverwriteReport, "no");
    c.world.windows.expect(id::kReportCopyCancelled);
    copy(c);
    EXPECT_EQ(copied(c, kThree), Names{kThree[1]});
    EXPECT_EQ(c.files.content(to(kThree[0])), "old");
    EXPECT_EQ(c.box(0).title, "Brenmoor");
    EXPECT_EQ(c.box(0).text,
              japanese(c) ? "コピー先に気象電報(14111518.tlx)が既にあります。\n上書きしますか？"
                          : "The weather report (14111518.tlx) already exists in destination. \n"
                            "Do you wish to overwrite (Yes/No)?");
    EXPECT_EQ(c.box(0).buttons.size(), 3U) << "a way out of the others";
    EXPECT_EQ(c.box(5).buttons.size(), 2U) << "the last one";
    EXPECT_EQ(c.box(1).text, japanese(c) ? "気象電報(14111518.tlx)のコピーを中止しました。"
                                         : "Copy of the weather report (14111518.tlx) canceled.");
  });
}

TEST(CopyReports, CancelEndsTheCommandAndTellsWhatWasCopied) {
  for (const char* const answer : {"cancel", "close"}) {
    in_both_languages([&](Copying& c) {
      put(c, kThree);
      c.files.add_file(to(kThree[1]), "old");
      select_and_choose(c);
      c.world.windows.expect(id::kReportCopied);
      c.world.windows.expect(id::kAskDeleteReport, "no");
      c.world.windows.expect(id::kAskOverwriteReport, answer);
      c.world.windows.expect(id::kReportCopyCancelled);
      c.world.windows.expect_text(
          japanese(c) ? "コピーを終了しました。気象電報1通（全3通）をコピーしました。"
                      : "Copying has ended: 1 of 3 weather reports were copied.");
      copy(c);
      EXPECT_EQ(copied(c, kThree), Names{kThree[0]});
      EXPECT_EQ(left(c, kThree), kThree);
    });
  }
}

TEST(CopyReports, TheQuestionWhetherToDeleteIsAWayOutToo) {
  for (const char* const answer : {"cancel", "close"}) {
    in_both_languages([&](Copying& c) {
      put(c, kThree);
      select_and_choose(c);
      c.world.windows.expect(id::kReportCopied);
      c.world.windows.expect(id::kAskDeleteReport, "yes");
      c.world.windows.expect(id::kReportCopied);
      c.world.windows.expect(id::kAskDeleteReport, answer);
      c.world.windows.expect_text(
          japanese(c) ? "コピーを終了しました。気象電報2通（全3通）をコピーしました。"
                      : "Copying has ended: 2 of 3 weather reports were copied.");
      copy(c);
      EXPECT_EQ(copied(c, kThree), (Names{kThree[0], kThree[1]}));
      EXPECT_EQ(left(c, kThree), (Names{kThree[1], kThree[2]}));
      EXPECT_EQ(c.box(1).buttons.size(), 3U);
    });
  }
}

TEST(CopyReports, ASingleOneIsAskedAboutWithYesOrNo) {
  Copying c;
  put(c, {kThree[0]});
  c.files.add_file(to(kThree[0]), "old");
  select_and_choose(c);
  c.world.windows.expect(id::kAskOverwriteReport, "no");
  c.world.windows.expect(id::kReportCopyCancelled);
  copy(c);
  EXPECT_EQ(c.box(0).buttons.size(), 2U);
  EXPECT_EQ(c.files.content(to(kThree[0])), "old");
}

TEST(CopyReports, WhatAppearsBehindTheQuestionIsAskedAboutAgain) {
  Copying c;
  put(c, {kThree[0]});
  c.files.add_file(to(kThree[0]), "old");
  select_and_choose(c);
  c.world.windows.expect(id::kAskOverwriteReport, "yes");
  c.world.windows.expect(id::kAskOverwriteReport, "no");
  c.world.windows.expect(id::kReportCopyCancelled);
  c.world.windows.while_open = [&] {
    if (c.world.windows.boxes.size() == 1) c.files.add_file(to(kThree[0]), "theirs");
  };
  copy(c);
  EXPECT_EQ(c.files.content(to(kThree[0])), "theirs");
}

TEST(CopyReports, AFailureIsNamedAndTheOthersAreOffered) {
  for (const bool goes_on : {true, false}) {
    in_both_languages([&](Copying& c) {
      put(c, kThree);
      c.files.add_folder(to(kThree[0]));
      select_and_choose(c);
      c.world.windows.expect(id::kReportCopyFailed);
      c.world.windows.expect(id::kAskCopyOn, goes_on ? "yes" : "no");
      if (goes_on) {
        for (int i = 0; i < 2; ++i) {
          c.world.windows.expect(id::kReportCopied);
          c.world.windows.expect(id::kAskDeleteReport, "no");
        }
      } else {
        c.world.windows.expect(id::kCopyEnded);
      }
      copy(c);
      EXPECT_EQ(copied(c, kThree).size(), goes_on ? 2U : 0U);
      EXPECT_TRUE(c.box(0).text.starts_with(japanese(c) ? "気象電報のコピーに失敗しました。\n"
                                                        : "Copy of the weather report failed.\n"))
          << c.box(0).text;
      EXPECT_NE(c.box(0).text.find(to(kThree[0])), std::string::npos);
      EXPECT_NE(c.box(1).text.find(japanese(c) ? "が2通" : ": 2."), std::string::npos)
          << c.box(1).text;
    });
  }
}

TEST(CopyReports, AReportThatVanishedIsToldByName) {
  Copying c;
  put(c, {kThree[0]});
  select(c);
  c.choose("C:\\copy", [&](ui::Screen&) { (void)c.files.remove(from(kThree[0])); });
  c.world.windows.expect_text(
      "Copy of the weather report failed.\nC:\\tlx\\14111518.tlx (no such file or folder)");
  copy(c);
}

TEST(CopyReports, WhatCannotBeDeletedIsNamedWithTheCause) {
  in_both_languages([](Copying& c) {
    put(c, {kThree[0]});
    c.files.set_read_only(from(kThree[0]));
    select_and_choose(c);
    c.world.windows.expect(id::kReportCopied);
    c.world.windows.expect(id::kAskDeleteReport, "yes");
    c.world.windows.expect_text(
        japanese(c) ? "ファイル C:\\tlx\\14111518.tlx は削除していません（許可されていません）。"
                    : "The file C:\\tlx\\14111518.tlx was not deleted (not permitted).");
    copy(c);
    EXPECT_EQ(left(c, kThree).size(), 1U);
  });
}

TEST(CopyReports, AReportThatWasSavedAnewSinceIsNotDeleted) {
  Copying c;
  put(c, {kThree[0]});
  select_and_choose(c);
  c.world.windows.expect(id::kReportCopied);
  c.world.windows.expect(id::kAskDeleteReport, "yes");
  c.world.windows.expect(id::kSourceNotDeleted);
  c.world.windows.while_open = [&] {
    if (c.world.windows.boxes.size() == 2) c.files.add_file(from(kThree[0]), "BBXX corrected");
  };
  copy(c);
  EXPECT_EQ(c.files.content(from(kThree[0])), "BBXX corrected");
}

TEST(CopyReports, NoneIsDeletedWhileAnotherProgramSaves) {
  Copying c;
  put(c, {kThree[0]});
  c.files.add_file("C:\\log\\immt5.log", "LINE1\n");
  c.files.set_held("C:\\log\\immt5.log");
  select_and_choose(c);
  c.world.windows.expect(id::kReportCopied);
  c.world.windows.expect(id::kAskDeleteReport, "yes");
  c.world.windows.expect_text(
      "The file C:\\tlx\\14111518.tlx was not deleted (C:\\log\\immt5.log: another program is "
      "using it).");
  copy(c);
  EXPECT_EQ(left(c, kThree).size(), 1U);
}

TEST(CopyReports, AsksForAnotherDiskWhenOneIsFull) {
  Copying c;
  put(c, kThree);
  c.with_floppy();
  select(c);
  c.choose("A:\\");
  c.world.windows.expect(id::kReportCopied);
  c.world.windows.expect(id::kAskDeleteReport, "no");
  c.world.windows.expect(id::kDiskFull, "cancel");
  c.world.windows.expect(id::kReportCopyCancelled);
  c.world.windows.expect(id::kCopyEnded);
  c.world.windows.while_open = [&] {
    if (c.world.windows.boxes.size() == 2) c.files.set_free_space('A', 1);
  };
  copy(c);
  EXPECT_EQ(c.files.content("A:\\14111518.tlx"), content_of("14111518.tlx"));
  EXPECT_EQ(c.files.content("A:\\14111512.tlx"), std::nullopt);
}

// ---- Many

constexpr int kMany = 20;

TEST(CopyReports, ManyAreToldInOneMessageAndDeletedAfterOneQuestion) {
  for (const char* const answer : {"all", "none"}) {
    in_both_languages([&](Copying& c) {
      const Names all = names(kMany);
      put(c, all);
      select_and_choose(c);
      c.world.windows.expect(id::kReportsCopied);
      c.world.windows.expect(id::kAskDeleteReports, answer);
      copy(c);
      EXPECT_EQ(copied(c, all), all);
      EXPECT_EQ(left(c, all).size(), answer == std::string("all") ? 0U : all.size());
      EXPECT_TRUE(c.box(0).text.starts_with(japanese(c) ? "気象電報20通（全20通）のコピーが終了"
                                                        : "20 of 20 weather reports were copied."));
      EXPECT_EQ(c.box(1).title, "Brenmoor");
    });
  }
}

TEST(CopyReports, EachOfManyIsAskedAboutWithAWayOut) {
  Copying c;
  const Names all = names(kMany);
  put(c, all);
  for (const std::string& name : all) c.files.add_file(to(name), "old");
  select_and_choose(c);
  c.world.windows.expect(id::kAskOverwriteReports, "each");
  c.world.windows.expect(id::kAskOverwriteReport, "yes");
  c.world.windows.expect(id::kAskOverwriteReport, "no");
  c.world.windows.expect(id::kReportCopyCancelled);
  c.world.windows.expect(id::kAskOverwriteReport, "cancel");
  c.world.windows.expect(id::kReportCopyCancelled);
  c.world.windows.expect(id::kCopyEnded);
  copy(c);
  EXPECT_EQ(copied(c, all), Names{all[0]});
}

TEST(CopyReports, OneQuestionOverwritesOrKeepsAllThatExist) {
  for (const char* const answer : {"all", "none"}) {
    in_both_languages([&](Copying& c) {
      const Names all = names(kMany);
      put(c, all);
      for (int i = 0; i < 3; ++i) c.files.add_file(to(all[static_cast<std::size_t>(i)]), "old");
      select_and_choose(c);
      c.world.windows.expect(id::kAskOverwriteReports, answer);
      c.world.windows.expect(id::kReportsCopied);
      c.world.windows.expect(id::kAskDeleteReports, "each");
      c.world.windows.expect(id::kAskDeleteReport, "cancel");
      copy(c);
      const bool overwritten = answer == std::string("all");
      EXPECT_EQ(copied(c, all).size(), overwritten ? all.size() : all.size() - 3);
      EXPECT_EQ(c.files.content(to(all[0])), overwritten ? content_of(all[0]) : "old");
      EXPECT_TRUE(c.box(0).text.starts_with(
          japanese(c) ? "コピー先に同じ名前の気象電報が3通あります（選択した気象電報20通）。"
                      : "3 of the 20 chosen weather reports already exist in destination."))
          << c.box(0).text;
    });
  }
}

TEST(CopyReports, TheYesForAllIsForThoseThatWereThere) {
  Copying c;
  const Names all = names(kMany);
  put(c, all);
  c.files.add_file(to(all[0]), "old");
  c.files.add_file(to(all[1]), "old");
  select_and_choose(c);
  c.world.windows.expect(id::kAskOverwriteReports, "all");
  c.world.windows.expect(id::kAskOverwriteReport, "no");
  c.world.windows.expect(id::kReportCopyCancelled);
  c.world.windows.expect(id::kAskOverwriteReport, "no");
  c.world.windows.expect(id::kReportCopyCancelled);
  c.world.windows.expect(id::kReportsCopied);
  c.world.windows.expect(id::kAskDeleteReports, "none");
  c.world.windows.while_open = [&] {
    if (c.world.windows.boxes.size() != 1) return;
    c.files.add_file(to(all[1]), "changed meanwhile");
    c.files.add_file(to(all[5]), "appeared meanwhile");
  };
  copy(c);
  EXPECT_EQ(copied(c, all).size(), all.size() - 2);
  EXPECT_EQ(c.files.content(to(all[1])), "changed meanwhile");
  EXPECT_EQ(c.files.content(to(all[5])), "appeared meanwhile");
}

TEST(CopyReports, ManyThatCannotBeDeletedNeedNotAllBeTold) {
  Copying c;
  const Names all = names(kMany);
  put(c, all);
  for (const std::string& name : all) c.files.set_read_only(from(name));
  select_and_choose(c);
  c.world.windows.expect(id::kReportsCopied);
  c.world.windows.expect(id::kAskDeleteReports, "all");
  c.world.windows.expect(id::kSourceNotDeleted);
  c.world.windows.expect(id::kAskDeleteOn, "yes");
  c.world.windows.expect(id::kSourceNotDeleted);
  c.world.windows.expect(id::kAskDeleteOn, "no");
  copy(c);
  EXPECT_EQ(left(c, all), all);
}

TEST(CopyReports, FewAreAsManyAsTheirOwnMessagesServe) {
  for (const std::size_t count : {mainwindow::kFewReports, mainwindow::kFewReports + 1}) {
    Copying c;
    put(c, names(static_cast<int>(count)));
    const bool few = count == mainwindow::kFewReports;
    c.world.windows.answer_all(few ? "no" : "none", [](ui::Screen& screen) {
      if (ui::Control* const tree = screen.find("tree")) screen.reveal(*tree, "C:\\copy");
      screen.press(*screen.find("ok"));
    });
    copy(c);
    EXPECT_EQ(c.world.windows.boxes.size(), few ? 2 * count : 2U);
  }
}

// ---- Every operation fails, every operation is the last

TEST(CopyReports, AnyOperationMayFailOrBeTheLast) {
  for (const int way : {0, 1, 2, 3}) {
    int n = 1;
    for (bool through = false; !through; ++n) {
      Copying c;
      put(c, kThree);
      c.files.add_file(to(kThree[1]), "old");
      if (way == 0) c.files.fail_at(n, FileError::kOther);
      if (way == 1) c.files.fail_at(n, FileError::kNoSpace);
      if (way == 2) c.files.kill_before(n);
      if (way == 3) c.files.kill_after(n);
      c.world.windows.answer_all("yes", [](ui::Screen& screen) {
        ui::Control* const tree = screen.find("tree");
        if (tree == nullptr || screen.reveal(*tree, "C:\\copy")) screen.press(*screen.find("ok"));
      });
      bool killed = false;
      try {
        copy(c);
      } catch (const FakeFiles::Killed&) {
        killed = true;
      }
      for (const std::string& name : kThree) {
        const std::string where = name + " " + std::to_string(way) + " " + std::to_string(n);
        const auto source = c.files.content(from(name));
        const auto target = c.files.content(to(name));
        EXPECT_TRUE(source == content_of(name) || (!source && target == content_of(name))) << where;
        EXPECT_TRUE(!target || target == content_of(name) || target == "old") << where;
      }
      through = !killed && c.files.operations() < n;
    }
    EXPECT_GT(n, 30) << "that is no whole copy";
  }
}

}  // namespace
