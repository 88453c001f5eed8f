// What is entered outlives the program: it is kept when the officer pauses, goes with the
// observation when that is saved or given up, and is offered at the next start.

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "elements/form/field_editors.h"
#include "mainwindow/draft_keeper.h"
#include "text/reasons.h"
#include "window.h"

namespace {

namespace id = text::id;
using fakes::FakeFiles;
using mainwindow::DraftKeeper;
using platform::FileError;

constexpr const char* kDraft = "C:\\kavrel\\file\\DRAFT1.DAT";
constexpr const char* kSecond = "C:\\kavrel\\file\\DRAFT2.DAT";
constexpr const char* kOld = "C:\\kavrel\\file\\DRAFT1.OLD";
constexpr const char* kBad = "C:\\kavrel\\file\\DRAFT1.BAD";

/// A ship's computer: what lies on it outlives the copies of the program that run there.
struct Computer {
  Computer() {
    files.add_folder("C:\\out");
    files.add_folder("C:\\log");
    files.add_folder("C:\\kavrel\\file");
    folders.reports = "C:\\out\\";
    folders.logbook = "C:\\log\\";
    folders.drafts = "C:\\kavrel\\file";
  }
  FakeFiles files;
  ShipFixedData ship = main_window::sample_ship();
  KeyObservationItems items;
  mainwindow::Folders folders;
};

/// A copy of the program. It ends as a killed one does.
struct Copy {
  explicit Copy(Computer& on) : computer(on), ship(on.ship), items(on.items) {}
  void start() { window.open(); }
  void type(std::string_view name, std::string_view text) {
    ASSERT_TRUE(fakes::enter(window, *window.find(name), text)) << name;
    window.key(ui::Key::kTab);
  }
  /// What a save asks for before all else.
  void type_hour() {
    for (const auto& [name, text] :
         {std::pair{"Year", "2014"}, {"Month", "11"}, {"YY", "15"}, {"GG", "12"}})
      type(name, text);
  }
  [[nodiscard]] std::string state() {
    std::string result = fakes::dump(window) + window.title() + "\n" + window.report() + "\n";
    for (const auto& [name, value] : window.record_fields()) result += name + "=" + value + "\n";
    return result;
  }
  [[nodiscard]] std::string shown(std::string_view name) { return window.find(name)->content; }

  Computer& computer;
  fakes::World world{computer.files};
  ShipFixedData ship;
  KeyObservationItems items;
  CVelmaranDlg window{world.services, {ship, items, computer.folders, {}}};
};

/// What a copy that was killed after these entries left behind.
void leave_behind(Computer& computer) {
  Copy copy(computer);
  copy.start();
  copy.type("YY", "15");
  copy.type("reading", "1010.8");
  copy.window.idle();
}

TEST(KeptEntries, AreWrittenWhenTheOfficerPausesAndOnlyWhenSomethingChanged) {
  Computer computer;
  Copy copy(computer);
  copy.start();
  copy.window.idle();
  EXPECT_EQ(computer.files.content(kDraft), std::nullopt);
  copy.type("VV", "97");
  EXPECT_EQ(computer.files.content(kDraft), std::nullopt) << "nobody waits for a disk while typing";
  copy.window.idle();
  EXPECT_NE(computer.files.content(kDraft).value_or("").find("record.VV=97\n"), std::string::npos);
  computer.files.clear_log();
  copy.window.idle();
  copy.window.key(ui::Key::kTab);
  copy.window.idle();
  EXPECT_EQ(computer.files.log(), std::vector<std::string>());
  copy.type("N", "5");
  copy.window.idle();
  EXPECT_EQ(computer.files.log().size(), 2U) << "staged beside its place, then renamed";
}

TEST(KeptEntries, AreWrittenWhileAMessageOrADialogIsOpenOverTheWindow) {
  Computer computer;
  Copy copy(computer);
  copy.start();
  copy.type_hour();
  ASSERT_TRUE(fakes::enter(copy.window, *copy.window.find("VV"), "97"));
  copy.world.windows.expect_screen("CSaveErrorInfoDlg", [&](ui::Screen& list) {
    copy.window.idle();
    EXPECT_NE(computer.files.content(kDraft).value_or("").find("record.VV=97\n"),
              std::string::npos);
    list.close_box();
  });
  const auto& menu = copy.window.menu();
  const std::function<void(std::span<const ui::MenuItem>)> save =
      [&](std::span<const ui::MenuItem> items) {
        for (const ui::MenuItem& item : items) {
          if (text::resolve(item.text, text::Language::kEnglish) == "Save weather report")
            copy.window.command(item);
          save(item.children);
        }
      };
  save(menu);
  copy.world.windows.verify();
}

TEST(KeptEntries, OfTheNextStartAreOfferedAndTakenOver) {
  Computer computer;
  std::string before;
  {
    Copy copy(computer);
    copy.start();
    copy.type_hour();
    for (const auto& [name, text] : {std::pair{"reading", "1010.8"}, {"N", "5"}, {"VV", "97"}})
      copy.type(name, text);
    copy.window.choose(*copy.window.find("north_south"), 1);
    copy.window.idle();
    before = copy.state();
  }
  Copy next(computer);
  next.world.windows.expect(id::kDraftFound, "yes");
  next.start();
  EXPECT_EQ(next.world.windows.boxes.at(0).text,
            "An observation that was not saved was found.\nDate and hour (UTC): 2014/11/15 12\n"
            "Do you want to go on with it?");
  EXPECT_EQ(next.world.windows.boxes.at(0).buttons.size(), 2U);
  EXPECT_EQ(next.state(), before);
  EXPECT_TRUE(next.window.unsaved());
  next.world.windows.verify();
  // Killed again at once, it is still there.
  EXPECT_NE(computer.files.content(kDraft), std::nullopt);
}

TEST(KeptEntries, AreOfferedWithWhatTheirDateLacks) {
  struct Case {
    std::vector<std::pair<const char*, const char*>> entries;
    const char* english;
    const char* japanese;
  };
  const Case cases[] = {
      {{{"Year", "2014"}, {"Month", "11"}, {"YY", "15"}},
       "Date and hour (UTC): 2014/11/15 --\nNot entered yet: hour",
       "観測日時(UTC)：2014年11月15日--時\n未入力：時"},
      {{{"VV", "97"}},
       "Date and hour (UTC): --/--/-- --\nNot entered yet: year, month, day, hour",
       "観測日時(UTC)：--年--月--日--時\n未入力：年、月、日、時"},
  };
  for (const Case& c : cases) {
    Computer computer;
    {
      Copy copy(computer);
      copy.start();
      for (const auto& [name, text] : c.entries) copy.type(name, text);
      copy.window.idle();
    }
    for (const bool japanese : {false, true}) {
      Copy next(computer);
      if (japanese) next.world.japanese();
      next.world.windows.expect(id::kDraftFound, "yes");
      next.start();
      const std::string& text = next.world.windows.boxes.at(0).text;
      EXPECT_NE(text.find(japanese ? c.japanese : c.english), std::string::npos) << text;
    }
  }
}

TEST(KeptEntries, ThatAreNotWantedArePutAsideOnceAndNothingMoreIsAsked) {
  Computer computer;
  leave_behind(computer);
  const auto draft = computer.files.content(kDraft);
  for (const char* const answer : {"no", "close"}) {
    computer.files.add_file(kDraft, *draft);
    computer.files.add_file(kOld, "an earlier one");
    Copy next(computer);
    next.world.windows.expect(id::kDraftFound, answer);
    next.start();
    EXPECT_FALSE(next.window.unsaved());
    EXPECT_EQ(next.shown("YY"), "");
    EXPECT_EQ(computer.files.content(kDraft), std::nullopt);
    EXPECT_EQ(computer.files.content(kOld), draft);
  }
  Copy after(computer);
  after.start();
}

TEST(KeptEntries, ThatAreNotWantedAndCannotBePutAsideStay) {
  Computer computer;
  leave_behind(computer);
  const auto draft = computer.files.content(kDraft);
  computer.files.fail_path(kOld, FileError::kAccessDenied);
  Copy next(computer);
  next.world.windows.expect(id::kDraftFound, "no");
  next.world.windows.expect(id::kDraftStays);
  next.start();
  next.type("VV", "97");
  next.window.idle();
  EXPECT_EQ(computer.files.content(kDraft), draft) << "never written over";
  EXPECT_NE(computer.files.content(kSecond), std::nullopt);
}

TEST(KeptEntries, GoWhenTheObservationIsSavedOrGivenUp) {
  {
    Computer computer;
    Copy copy(computer);
    copy.start();
    copy.type("VV", "97");
    copy.window.idle();
    copy.world.windows.expect(id::kAskSaveOnExit, "cancel");
    copy.window.close_box();
    EXPECT_NE(computer.files.content(kDraft), std::nullopt);
    copy.world.windows.expect(id::kAskSaveOnExit, "no");
    copy.window.close_box();
    EXPECT_EQ(computer.files.content(kDraft), std::nullopt);
  }
  Computer computer;
  Copy copy(computer);
  copy.start();
  copy.type_hour();
  copy.window.idle();
  copy.world.windows.expect(id::kAskSaveOnExit, "yes");
  copy.world.windows.expect_screen("CSaveErrorInfoDlg", [&](ui::Screen& list) {
    EXPECT_NE(computer.files.content(kDraft), std::nullopt);
    list.press(*list.find("save_as"));
  });
  // Killed while "Save success" is still to be read, the program has saved all the same.
  copy.world.windows.expect(id::kSaved);
  copy.world.windows.while_open = [&] {
    copy.window.idle();
    EXPECT_EQ(copy.world.windows.boxes.back().text_id == id::kSaved,
              !computer.files.content(kDraft).has_value());
  };
  copy.window.close_box();
  EXPECT_EQ(copy.window.result(), ui::kOk);
  EXPECT_NE(computer.files.content("C:\\out\\14111512.tlx"), std::nullopt);
  EXPECT_EQ(computer.files.content(kDraft), std::nullopt);
}

TEST(KeptEntries, KeepARefusedTextAndTheFieldThatIsBeingTyped) {
  for (const char* const typed : {"4", "x"}) {
    const bool refused = typed == std::string("x");
    Computer computer;
    std::string before;
    {
      Copy copy(computer);
      copy.start();
      copy.type("VV", "97");
      ASSERT_TRUE(fakes::enter(copy.window, *copy.window.find("N"), typed));
      if (refused) copy.world.windows.expect(elements::row_of(elements::Field::kN).editor.message);
      if (refused) copy.window.key(ui::Key::kTab);
      copy.window.idle();
      before = copy.state();
    }
    Copy next(computer);
    next.world.windows.expect(id::kDraftFound, "yes");
    next.start();
    EXPECT_EQ(next.state(), before);
    EXPECT_EQ(next.window.focused()->name, "N");
    EXPECT_EQ(next.shown("N"), typed);
    EXPECT_EQ(next.window.find("N")->mark, refused ? "wrong" : "");
    if (refused) next.world.windows.expect(elements::row_of(elements::Field::kN).editor.message);
    next.window.key(ui::Key::kTab);
    EXPECT_EQ(next.window.form().record().N, refused ? "" : "4");
  }
}

TEST(KeptEntries, KeepAGroupThatIsBeingTyped) {
  Computer computer;
  {
    Copy copy(computer);
    copy.start();
    ASSERT_TRUE(fakes::enter(copy.window, *copy.window.find("group_Nddff"), "527"));
    copy.window.idle();
  }
  Copy next(computer);
  next.world.windows.expect(id::kDraftFound, "yes");
  next.start();
  EXPECT_EQ(next.window.focused()->name, "group_Nddff");
  EXPECT_EQ(next.shown("group_Nddff"), "527");
  EXPECT_TRUE(next.window.unsaved());
}

TEST(KeptEntries, AreComputedAnewForAShipThatWasChangedSince) {
  Computer computer;
  std::string pressure;
  {
    Copy copy(computer);
    copy.start();
    copy.type("air_temperature", "10.0");
    copy.type("reading", "1010.8");
    copy.window.idle();
    pressure = copy.shown("PPPP");
    ASSERT_NE(pressure, "");
  }
  {
    Copy same(computer);
    same.world.windows.expect(id::kDraftFound, "yes");
    same.start();
    EXPECT_EQ(same.shown("PPPP"), pressure);
  }
  computer.ship.card.loading_state = LoadingState::kInBallast;
  Copy other(computer);
  other.world.windows.expect(id::kDraftFound, "yes");
  other.start();
  EXPECT_EQ(other.shown("reading"), "1010.8");
  EXPECT_NE(other.shown("PPPP"), pressure) << "the card says more in ballast";
}

TEST(KeptEntries, ThatCannotBeUsedAreNamedAndPutAside) {
  struct Case {
    const char* what;
    text::Id message;
    std::function<void(Computer&)> harm;
  };
  const Case cases[] = {
      {"is damaged", id::kDraftDamaged, [](Computer& c) { c.files.add_file(kDraft, "x"); }},
      {"is damaged", id::kDraftDamaged, [](Computer& c) { c.files.add_file(kDraft, ""); }},
      {"is damaged", id::kDraftDamaged,
       [](Computer& c) {
         const std::string whole = *c.files.content(kDraft);
         c.files.add_file(kDraft, whole.substr(0, whole.size() / 2));
       }},
      {"is damaged", id::kDraftDamaged,
       [](Computer& c) { c.files.add_file(kDraft, std::string(1U << 20U, '\n')); }},
      {"later version", id::kDraftLaterVersion,
       [](Computer& c) { c.files.add_file(kDraft, "draft=4\ncheck=0CBFB5D9\n"); }},
      {"belongs to another ship (JXKV)", id::kDraftOtherShip,
       [](Computer& c) { c.ship.call_sign = "JABC"; }},
  };
  for (const Case& c : cases) {
    for (const bool japanese : {false, true}) {
      SCOPED_TRACE(c.what);
      Computer computer;
      leave_behind(computer);
      c.harm(computer);
      const auto draft = computer.files.content(kDraft);
      Copy next(computer);
      if (japanese) next.world.japanese();
      next.world.windows.expect(c.message);
      next.start();
      const std::string& text = next.world.windows.boxes.at(0).text;
      EXPECT_NE(text.find(kDraft), std::string::npos) << text;
      EXPECT_NE(text.find(kBad), std::string::npos) << text;
      if (!japanese) {
        EXPECT_NE(text.find(c.what), std::string::npos) << text;
      }
      EXPECT_EQ(computer.files.content(kDraft), std::nullopt);
      EXPECT_EQ(computer.files.content(kBad), draft);
      EXPECT_FALSE(next.window.unsaved());
      EXPECT_EQ(next.shown("YY"), "");
    }
  }
}

TEST(KeptEntries, OfACopyThatStillRunsAreNeitherOfferedNorTouched) {
  Computer computer;
  Copy first(computer);
  first.start();
  first.type("VV", "97");
  first.window.idle();
  const auto draft = computer.files.content(kDraft);
  Copy second(computer);
  second.start();  // the fake windows fail on any question
  second.type("N", "5");
  second.window.idle();
  EXPECT_EQ(computer.files.content(kDraft), draft);
  EXPECT_NE(computer.files.content(kSecond).value_or("").find("record.N=5\n"), std::string::npos);
  second.world.windows.expect(id::kAskSaveOnExit, "no");
  second.window.close_box();
  EXPECT_EQ(computer.files.content(kDraft), draft);
  EXPECT_EQ(computer.files.content(kSecond), std::nullopt);
}

TEST(KeptEntries, OfTwoKilledCopiesAreOfferedOneAfterTheOther) {
  Computer computer;
  {
    Copy first(computer);
    Copy second(computer);
    first.start();
    second.start();
    first.type("VV", "97");
    second.type("N", "5");
    first.window.idle();
    second.window.idle();
  }
  Copy third(computer);
  third.world.windows.expect(id::kDraftFound, "no");
  third.world.windows.expect(id::kDraftFound, "yes");
  third.start();
  EXPECT_EQ(third.shown("VV"), "");
  EXPECT_EQ(third.shown("N"), "5");
  third.type("VV", "98");
  third.window.idle();
  EXPECT_EQ(computer.files.content(kDraft), std::nullopt);
  EXPECT_NE(computer.files.content(kSecond).value_or("").find("record.VV=98\n"), std::string::npos);
}

TEST(KeptEntries, ThatCannotBeKeptAreToldOfOnce) {
  const std::function<void(Computer&)> obstacles[] = {
      [](Computer& c) { c.files.set_free_space('C', 100); },
      [](Computer& c) { c.files.set_read_only("C:\\kavrel\\file"); },
      [](Computer& c) { c.folders.drafts = "C:\\nowhere"; },
      [](Computer& c) {
        for (char number = '1'; number <= '9'; ++number)
          c.files.add_folder(std::string("C:\\kavrel\\file\\DRAFT") + number + ".DAT");
      },
  };
  for (const auto& harm : obstacles) {
    SCOPED_TRACE(&harm - obstacles);
    Computer computer;
    harm(computer);
    Copy copy(computer);
    copy.start();
    copy.window.idle();
    copy.type("VV", "97");
    copy.world.windows.expect(id::kDraftNotKept);
    copy.window.idle();
    copy.type("N", "5");
    copy.window.idle();
    copy.window.idle();
    EXPECT_EQ(copy.world.windows.boxes.size(), 1U);
  }
}

TEST(KeptEntries, PassOverANumberThatIsNoFile) {
  const std::function<void(Computer&)> in_the_way[] = {
      [](Computer& c) { c.files.add_folder(kDraft); },
      [](Computer& c) { c.files.add_other(kDraft); },
  };
  for (const auto& put : in_the_way) {
    SCOPED_TRACE(&put - in_the_way);
    Computer computer;
    put(computer);
    const auto before = computer.files.look(kDraft).there;
    {
      Copy copy(computer);
      copy.start();  // the fake windows fail on any message
      copy.type("VV", "97");
      copy.window.idle();
    }
    EXPECT_EQ(computer.files.look(kDraft).there, before);
    EXPECT_EQ(computer.files.look(kBad).there, platform::There::kNo);
    Copy next(computer);
    next.world.windows.expect(id::kDraftFound, "yes");
    next.start();
    EXPECT_EQ(next.shown("VV"), "97");
  }
}

// What cannot be read now is not damaged: a later start may be able to.
TEST(KeptEntries, ThatCannotBeReadAreNamedWithTheReasonAndStayForALaterStart) {
  struct Case {
    const char* what;
    std::function<void(Computer&)> harm;
    FileError reason;
  };
  constexpr const char* kClaim = "C:\\kavrel\\file\\DRAFT1.LCK";
  const Case cases[] = {
      {"read", [](Computer& c) { c.files.fail_path(kDraft, FileError::kOther); },
       FileError::kOther},
      {"rights", [](Computer& c) { c.files.fail_path(kDraft, FileError::kAccessDenied); },
       FileError::kAccessDenied},
      {"look", [](Computer& c) { c.files.fail_look(kDraft, FileError::kBadLink); },
       FileError::kBadLink},
      {"claim", [](Computer& c) { c.files.fail_path(kClaim, FileError::kAccessDenied); },
       FileError::kAccessDenied},
  };
  for (const Case& c : cases) {
    for (const bool japanese : {false, true}) {
      SCOPED_TRACE(c.what);
      Computer computer;
      leave_behind(computer);
      const auto draft = computer.files.content(kDraft);
      c.harm(computer);
      {
        Copy next(computer);
        if (japanese) next.world.japanese();
        next.world.windows.expect(id::kDraftUnreadable);
        next.start();
        const std::string& text = next.world.windows.boxes.at(0).text;
        EXPECT_NE(text.find(kDraft), std::string::npos) << text;
        EXPECT_NE(text.find(next.world.texts.get(text::reason_of(c.reason))), std::string::npos)
            << text;
        EXPECT_EQ(next.shown("YY"), "");
        next.type("VV", "97");
        next.window.idle();
        next.window.idle();
      }
      computer.files.heal();
      EXPECT_EQ(computer.files.content(kDraft), draft) << "neither renamed nor written over";
      EXPECT_EQ(computer.files.content(kBad), std::nullopt);
      EXPECT_NE(computer.files.content(kSecond).value_or("").find("record.VV=97\n"),
                std::string::npos);
      Copy later(computer);
      later.world.windows.expect(id::kDraftFound, "yes");
      later.start();
      EXPECT_EQ(later.shown("reading"), "1010.8");
    }
  }
}

TEST(KeptEntries, OnADriveWithoutLocksAreKeptAndOffered) {
  for (const bool japanese : {false, true}) {
    Computer computer;
    computer.files.set_lockless();
    {
      Copy copy(computer);
      if (japanese) copy.world.japanese();
      copy.start();
      copy.type("VV", "97");
      copy.world.windows.expect(id::kDraftWithoutLock);
      copy.window.idle();
      EXPECT_NE(copy.world.windows.boxes.at(0).text.find(kDraft), std::string::npos);
      copy.type("N", "5");
      copy.window.idle();
      EXPECT_EQ(copy.world.windows.boxes.size(), 1U) << "told once";
    }
    EXPECT_NE(computer.files.content(kDraft), std::nullopt);
    Copy next(computer);
    if (japanese) next.world.japanese();
    next.world.windows.expect(id::kDraftWithoutLock);
    next.world.windows.expect(id::kDraftFound, "yes");
    next.start();
    EXPECT_EQ(next.shown("VV"), "97");
    EXPECT_EQ(next.shown("N"), "5");
    next.type("VV", "98");
    next.window.idle();
    EXPECT_EQ(next.world.windows.boxes.size(), 2U) << "told once";
    EXPECT_NE(computer.files.content(kDraft).value_or("").find("record.VV=98\n"),
              std::string::npos);
  }
}

// While a handler runs, a message may be open already; the news waits for its end.
TEST(KeptEntries, ThatCannotBeKeptAreNotToldOfInTheMiddleOfAnother) {
  Computer computer;
  computer.files.set_free_space('C', 100);
  Copy copy(computer);
  copy.start();
  copy.type("VV", "97");
  copy.world.windows.expect(id::kAskSaveOnExit, "cancel");
  copy.world.windows.while_open = [&] { copy.window.idle(); };
  copy.window.close_box();
  copy.world.windows.while_open = {};
  EXPECT_EQ(copy.world.windows.boxes.size(), 1U);
  copy.world.windows.expect(id::kDraftNotKept);
  copy.window.idle();
}

// Killed between any two steps of the files: the draft is the old one or the new one, whole.
TEST(KeptEntries, SurviveAKillAtAnyMoment) {
  for (int step = 1;; ++step) {
    for (const bool behind : {false, true}) {
      SCOPED_TRACE(step);
      Computer computer;
      leave_behind(computer);
      bool killed = false;
      {
        Copy copy(computer);
        copy.world.windows.expect(id::kDraftFound, "yes");
        copy.start();
        if (behind) {
          computer.files.kill_after(step);
        } else {
          computer.files.kill_before(step);
        }
        try {
          copy.type("VV", "97");
          copy.window.idle();
          copy.type("N", "5");
          copy.window.idle();
        } catch (const FakeFiles::Killed&) {
          killed = true;
        }
      }
      computer.files.heal();
      Copy next(computer);
      next.world.windows.expect(id::kDraftFound, "yes");
      next.start();
      EXPECT_EQ(next.shown("reading"), "1010.8");
      EXPECT_TRUE(next.shown("VV") == "97" ||
                  (next.shown("VV").empty() && next.shown("N").empty()));
      if (!killed && !behind) return;
    }
  }
}

// The program ended in the middle of a save, and the start has finished that: the entries are
// saved.
TEST(KeptEntries, OfASaveThatTheStartHasFinishedAreNotOfferedAgain) {
  Computer computer;
  {
    Copy killed(computer);
    killed.start();
    killed.type_hour();
    killed.window.idle();
  }
  computer.folders.finished_report = "14111512.tlx";
  Copy next(computer);
  next.start();
  next.world.windows.verify();
  EXPECT_EQ(next.shown("YY"), "");
  EXPECT_TRUE(computer.files.content(kOld)) << "put aside, not lost";
}

// ---- The program ended between the save and the removal of the draft

constexpr const char* kReportFile = "C:\\out\\14111512.tlx";
constexpr const char* kLogbookFile = "C:\\log\\immt5.log";

/// Saves with whatever is missing, to leave the program.
void save(Copy& copy, bool told) {
  copy.world.windows.expect(id::kAskSaveOnExit, "yes");
  copy.world.windows.expect_screen("CSaveErrorInfoDlg",
                                   [](ui::Screen& list) { list.press(*list.find("save_as")); });
  if (told) copy.world.windows.expect(id::kSaved);
  copy.window.close_box();
}

/// An observation of 2014-11-15 12 UTC, saved by a copy that was killed before it removed the
/// draft.
void kill_behind_the_save(Computer& computer) {
  int removal = 0;
  for (const bool kill : {false, true}) {
    FakeFiles before = computer.files;
    Copy copy(computer);
    copy.start();
    for (const auto& [name, text] : {std::pair{"Year", "2014"},
                                     {"Month", "11"},
                                     {"YY", "15"},
                                     {"GG", "12"},
                                     {"VV", "97"},
                                     {"relative_humidity", "53"}})
      copy.type(name, text);
    copy.window.idle();
    if (kill) {
      computer.files.kill_before(removal);
      EXPECT_THROW(save(copy, false), FakeFiles::Killed);
      computer.files.heal();
      computer.files.restart();
      return;
    }
    const int done = computer.files.operations();
    save(copy, true);
    const auto& log = computer.files.log();
    for (int n = done; n < computer.files.operations(); ++n)
      if (log[static_cast<std::size_t>(n)] == std::string("remove ") + kDraft)
        removal = n - done + 1;
    EXPECT_GT(removal, 0);
    computer.files = before;
  }
}

TEST(SavedEntries, WhoseDraftAKillLeftAreNotOfferedAsUnsaved) {
  Computer computer;
  kill_behind_the_save(computer);
  ASSERT_TRUE(computer.files.content(kReportFile));
  ASSERT_TRUE(computer.files.content(kDraft));
  const auto report = computer.files.content(kReportFile);
  const auto logbook = computer.files.content(kLogbookFile);
  Copy next(computer);
  next.start();  // the fake windows fail on any question
  EXPECT_FALSE(next.window.unsaved());
  EXPECT_EQ(computer.files.content(kDraft), std::nullopt);
  EXPECT_EQ(computer.files.content(kOld), std::nullopt);
  EXPECT_EQ(computer.files.content(kReportFile), report);
  EXPECT_EQ(computer.files.content(kLogbookFile), logbook);
  next.type("N", "5");
  next.window.idle();
  EXPECT_NE(computer.files.content(kDraft), std::nullopt) << "its number is used again";
}

TEST(SavedEntries, AreOfferedWhenAnythingOfThemIsNotWrittenAsItWouldBeNow) {
  // Changes a draft that is taken over again before the copy is killed once more.
  const auto changed = [](const char* name, const char* text, bool leave) {
    return [=](Computer& c) {
      const auto saved = c.files.content(kReportFile);
      c.files.add_file(kReportFile, "BBXX OTHER");
      {
        Copy copy(c);
        copy.world.windows.expect(id::kDraftFound, "yes");
        copy.start();
        ASSERT_TRUE(fakes::enter(copy.window, *copy.window.find(name), text));
        if (leave) copy.window.key(ui::Key::kTab);
        copy.window.idle();
      }
      c.files.add_file(kReportFile, *saved);
    };
  };
  const struct {
    const char* what;
    std::function<void(Computer&)> change;
  } rows[] = {
      {"no report", [](Computer& c) { (void)c.files.remove(kReportFile); }},
      {"another report", [](Computer& c) { c.files.add_file(kReportFile, "BBXX OTHER"); }},
      {"unreadable report", [](Computer& c) { c.files.fail_path(kReportFile, FileError::kOther); }},
      {"no logbook", [](Computer& c) { (void)c.files.remove(kLogbookFile); }},
      {"another line", [](Computer& c) { c.files.add_file(kLogbookFile, "LINE\n"); }},
      {"a line without its end",
       [](Computer& c) {
         std::string log = *c.files.content(kLogbookFile);
         log.pop_back();
         c.files.add_file(kLogbookFile, log);
       }},
      {"no folder", [](Computer& c) { c.folders.logbook.clear(); }},
      {"an entry of the report", changed("VV", "98", true)},
      {"an entry of the logbook alone", changed("relative_humidity", "60", true)},
      {"an entry that is in neither file yet",
       [](Computer& c) {
         c.files.set_modified(kDraft, {2014, 11, 15, 12, 0, 1});
       }},
      {"an entry that is being typed", changed("N", "5", false)},
      {"another ship's data", [](Computer& c) { c.ship.imo_number = "7654321"; }},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    Computer computer;
    kill_behind_the_save(computer);
    row.change(computer);
    Copy next(computer);
    next.world.windows.expect(id::kDraftFound, "yes");
    next.start();
    next.world.windows.verify();
    EXPECT_TRUE(next.window.unsaved());
    EXPECT_NE(computer.files.content(kDraft), std::nullopt);
  }
}

TEST(SavedEntries, WhoseDraftCannotBeRemovedStayAndStopNothing) {
  Computer computer;
  kill_behind_the_save(computer);
  computer.files.set_read_only(kDraft);
  const auto draft = computer.files.content(kDraft);
  Copy next(computer);
  next.start();
  next.type("N", "5");
  next.window.idle();
  EXPECT_EQ(computer.files.content(kDraft), draft);
  EXPECT_NE(computer.files.content(kSecond), std::nullopt);
}

// A text that was changed by hand cannot give the observation another ship.
TEST(KeptEntries, BearTheCallSignOfTheShip) {
  Computer computer;
  leave_behind(computer);
  auto read = elements::decode_draft(*computer.files.content(kDraft));
  read.draft.form.record.CallSign = "OTHER";
  read.draft.form.record.ShipFixed = "7654321";
  computer.files.add_file(kDraft, elements::encode_draft(read.draft));
  Copy next(computer);
  next.world.windows.expect(id::kDraftFound, "yes");
  next.start();
  EXPECT_TRUE(next.window.report().starts_with("BBXX JXKV ")) << next.window.report();
}

// ---- A report that is being corrected

TEST(DraftOfACorrection, StillNamesItsFileAndTellsWhatFoundNoPlace) {
  constexpr const char* kText =
      "BBXX JXKV 15123 99357 11653 41497 62718 30123 10152 20114 40132 52014 72582 84531 22213 "
      "00178 20604 30000 333 91119 .....";
  Computer computer;
  computer.files.add_file("C:\\out\\14111512.tlx", kText);
  {
    Copy copy(computer);
    copy.start();
    copy.world.windows.expect_screen("CQFModifyDlg", [](ui::Screen& screen) {
      screen.choose(*screen.find("reports"), 0);
      screen.press(*screen.find("ok"));
    });
    copy.world.windows.expect(id::kCorrectNotes);
    copy.window.run({0, 0, mainwindow::Command::kCorrectReports});
    copy.window.idle();
    EXPECT_EQ(computer.files.content(kDraft), std::nullopt) << "the file has it all";
    copy.type("VV", "96");
    copy.window.idle();
    ASSERT_NE(computer.files.content(kDraft), std::nullopt);
  }
  Copy copy(computer);
  copy.world.windows.expect(id::kDraftFound, "yes");
  copy.start();
  EXPECT_EQ(copy.window.title(), "KAVREL for WIN - correcting 14111512.tlx - not saved *");
  std::string errors;
  copy.world.windows.expect_screen("CSaveErrorInfoDlg", [&](ui::Screen& screen) {
    errors = fakes::lines_of(*screen.find("errors"));
    screen.press(*screen.find("save_as"));
  });
  copy.world.windows.expect(id::kAskReplaceReport, "yes");
  copy.world.windows.expect(id::kSaved);
  copy.window.run({0, 0, mainwindow::Command::kSave});
  EXPECT_EQ(errors,
            "Not taken over from 14111512.tlx: 30123 (a group without a field)\r\n"
            "Not taken over from 14111512.tlx: 333 (section 3 or later)\r\n"
            "Not taken over from 14111512.tlx: 91119 (section 3 or later)\r\n");
  EXPECT_EQ(computer.files.content("C:\\out\\14111512.tlx"),
            "BBXX JXKV 15123 99357 11653 41496 62718 10152 20114 40132 52014 72582 84531 22213 "
            "00178 20604 30000 .....");
  EXPECT_EQ(computer.files.content(kDraft), std::nullopt);
}

}  // namespace
