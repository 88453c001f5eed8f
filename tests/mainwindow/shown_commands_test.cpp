// The commands that stand beside the report with their keys: the next observation, print, copy, and
// the way from form to report to status line.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "fakes/sample_observation.h"
#include "mainwindow/main_menu.h"
#include "window.h"

namespace {

namespace id = text::id;
using elements::Field;
using main_window::Opened;

void enter_date(Opened& opened) {
  for (const auto& [name, text] :
       {std::pair{"Year", "2014"}, {"Month", "11"}, {"YY", "15"}, {"GG", "12"}})
    opened.type(name, text);
}

// As a front end does with a key.
void press_keys(Opened& opened, std::string_view keys) {
  ui::Control* const pressed = opened.window.pressed_by(keys);
  ASSERT_NE(pressed, nullptr) << keys;
  opened.window.press(*pressed);
}

void save(Opened& opened) {
  opened.world.windows.expect_screen(
      "CSaveErrorInfoDlg", [](ui::Screen& screen) { screen.press(*screen.find("save_as")); });
  opened.world.windows.expect(id::kSaved);
  opened.menu("Save weather report");
}

TEST(ShownCommands, NameTheirKeysInBothLanguages) {
  for (const mainwindow::ShownCommand& command : mainwindow::shown_commands()) {
    for (const text::Language language : {text::Language::kEnglish, text::Language::kJapanese})
      EXPECT_TRUE(text::bilingual(command.label, language).ends_with(command.shortcut))
          << command.name;
  }
}

TEST(ShownCommands, WaitForAFieldThatIsRefused) {
  for (const mainwindow::ShownCommand& command : mainwindow::shown_commands()) {
    if (command.only_shows) continue;  // what is typed is shown as it is
    const auto opened = std::make_unique<Opened>();
    ASSERT_TRUE(fakes::enter(opened->window, opened->control("VV"), "7"));
    opened->world.windows.expect(id::kVisibilityRange);
    press_keys(*opened, command.shortcut);
    opened->world.windows.verify();
    EXPECT_EQ(opened->window.focused()->name, "VV") << command.name;
    EXPECT_EQ(opened->shown("VV"), "7");
    EXPECT_TRUE(opened->world.windows.copied.empty());
    EXPECT_TRUE(opened->world.printer.printed.empty());
  }
}

TEST(CopyReport, IsToldWhereTheClipboardIsHeldByAnotherProgram) {
  const auto opened = std::make_unique<Opened>();
  enter_date(*opened);
  opened->world.windows.clipboard_is_held = true;
  opened->world.windows.expect(id::kReportTextNotCopied);
  const std::string before = opened->shown("status_line");
  press_keys(*opened, "Ctrl+Shift+C");
  opened->world.windows.verify();
  EXPECT_EQ(opened->shown("status_line"), before);
  opened->world.windows.clipboard_is_held = false;
  press_keys(*opened, "Ctrl+Shift+C");
  EXPECT_EQ(opened->world.windows.copied.size(), 1U);
  EXPECT_NE(opened->shown("status_line").find("The report is copied"), std::string::npos);
}

TEST(CopyReport, GivesTheTextThatASaveWrites) {
  const auto opened = std::make_unique<Opened>();
  enter_date(*opened);
  // Typed and not left: it goes out with the rest.
  ASSERT_TRUE(fakes::enter(opened->window, opened->control("VV"), "97"));
  press_keys(*opened, "Ctrl+Shift+C");
  ASSERT_EQ(opened->world.windows.copied.size(), 1U);
  // What an officer must know before he sends it by hand.
  const auto& controls = opened->window.controls();
  const auto yellow = std::count_if(controls.begin(), controls.end(), [](const ui::Control* one) {
    return one->mark == ui::kMissingMark;
  });
  ASSERT_GT(yellow, 1);
  EXPECT_EQ(opened->shown("status_line"),
            "The report is copied as it will be sent. This report has not been saved. Groups that "
            "are not complete: " +
                std::to_string(yellow) + ".");
  save(*opened);
  EXPECT_EQ(opened->world.windows.copied[0], opened->files.content("C:\\out\\14111512.tlx"));
  EXPECT_EQ(opened->shown("status_line"), "Saved: C:\\out\\14111512.tlx, C:\\log\\immt5.log");
  opened->window.key(ui::Key::kTab);
  EXPECT_EQ(opened->shown("status_line").find("Saved"), std::string::npos);
}

std::string printed_text(Opened& opened) {
  press_keys(opened, "Ctrl+P");
  const auto& printed = opened.world.printer.printed;
  if (printed.empty()) return {};
  std::string text;
  for (const std::string& line : printed.back().lines->lines(0, 1000))
    text.append(line).append("\n");
  return text;
}

TEST(PrintReport, PrintsItAsItWouldBeSentAndSaysWhatIsNotSaved) {
  const auto opened = std::make_unique<Opened>();
  opened->type("VV", "97");
  opened->world.windows.answer_all("ok");
  std::string text = printed_text(*opened);
  EXPECT_NE(text.find("(no date and hour)"), std::string::npos) << text;
  EXPECT_NE(text.find("This report has not been saved."), std::string::npos);
  EXPECT_NE(text.find("41/97"), std::string::npos);
  enter_date(*opened);
  text = printed_text(*opened);
  EXPECT_NE(text.find("14111512.tlx"), std::string::npos) << text;
  EXPECT_NE(text.find("This report has not been saved."), std::string::npos);
}

TEST(PrintReport, OfASavedOneIsTheSheetThatThePrintDialogPrints) {
  const auto opened = std::make_unique<Opened>();
  enter_date(*opened);
  opened->type("VV", "97");
  save(*opened);
  opened->world.windows.answer_all("ok", [](ui::Screen& dialog) {
    dialog.choose(*dialog.find("reports"), 0);
    dialog.press(*dialog.find("print"));
    dialog.close_box();
  });
  const std::string text = printed_text(*opened);
  opened->menu("File/Print/Selected weather report");
  const auto& printed = opened->world.printer.printed;
  ASSERT_EQ(printed.size(), 2U);
  EXPECT_EQ(printed[0].lines->lines(0, 1000), printed[1].lines->lines(0, 1000)) << text;
  EXPECT_FALSE(opened->window.unsaved());
}

TEST(Parts, AreGoneThroughByF6AndBackToTheFieldOneCameFrom) {
  const auto opened = std::make_unique<Opened>();
  ui::Screen& window = opened->window;
  ASSERT_TRUE(window.move_focus(opened->control("VV")));
  const auto goes = [&](std::string_view keys) {
    press_keys(*opened, keys);
    return window.focused()->name;
  };
  EXPECT_EQ(goes("F6"), "group_YYGGiw");
  ASSERT_TRUE(window.move_focus(opened->control("group_Nddff")));
  EXPECT_EQ(goes("F6"), "status_line");
  EXPECT_EQ(goes("F6"), "VV");
  EXPECT_EQ(goes("F6"), "group_Nddff");
  EXPECT_EQ(goes("Shift+F6"), "VV");
  EXPECT_EQ(goes("Shift+F6"), "status_line");
  EXPECT_EQ(goes("Shift+F6"), "group_Nddff");
}

TEST(Parts, PassAFieldThatWasLockedMeanwhile) {
  const auto opened = std::make_unique<Opened>();
  ASSERT_TRUE(opened->window.move_focus(opened->control("VV")));
  press_keys(*opened, "F6");
  opened->control("VV").enabled = false;
  press_keys(*opened, "Shift+F6");
  EXPECT_EQ(opened->window.focused()->name, "Year");
}

// ---- The next observation

std::vector<std::pair<std::string, std::string>> kept_of(Opened& opened) {
  std::vector<std::pair<std::string, std::string>> kept;
  for (const auto& [name, value] : opened.window.record_fields()) {
    if (name == "Ds" || name == "Qc") kept.emplace_back(name, value);
  }
  return kept;
}

void enter_observation(Opened& opened) {
  enter_date(opened);
  for (const auto& [name, text] : {std::pair{"LaDeg", "35"},
                                   {"LaMin", "42"},
                                   {"LoDeg", "165"},
                                   {"LoMin", "18"},
                                   {"Ds", "1"},
                                   {"Vs", "3"},
                                   {"VV", "97"},
                                   {"ww", "25"}})
    opened.type(name, text);
  opened.choose("north_south", 0);
  opened.choose("east_west", 0);
}

TEST(NewWatch, BeginsAsAStartDoesButKeepsHowTheShipGoes) {
  const auto opened = std::make_unique<Opened>();
  const auto fresh = std::make_unique<Opened>();
  enter_observation(*opened);
  save(*opened);
  const auto kept = kept_of(*opened);
  ASSERT_EQ(kept.size(), 2U);
  press_keys(*opened, "Ctrl+N");
  EXPECT_EQ(kept_of(*opened), kept);
  EXPECT_EQ(opened->control("north_south").selected, 0);
  EXPECT_EQ(opened->control("east_west").selected, 0);
  EXPECT_EQ(opened->window.focused()->name, "Year");
  EXPECT_EQ(opened->window.title(), "KAVREL for WIN");
  EXPECT_FALSE(opened->window.unsaved());
  fresh->type("Ds", opened->shown("Ds"));
  fresh->choose("north_south", 0);
  fresh->choose("east_west", 0);
  EXPECT_EQ(opened->window.report(), fresh->window.report());
  EXPECT_EQ(opened->window.record_fields(), fresh->window.record_fields());
  // And the saved files are as they were.
  EXPECT_TRUE(opened->files.content("C:\\out\\14111512.tlx").has_value());
}

TEST(NewWatch, KeepsTheCourseOfAShipThatEntersTheApparentWind) {
  ShipFixedData ship = main_window::sample_ship();
  ship.wind_input_method = WindInputMethod::kApparentWind;
  const auto opened = std::make_unique<Opened>(ship);
  for (const auto& [name, text] : {std::pair{"apparent_direction", "30"},
                                   {"apparent_speed", "20"},
                                   {"heading", "90"},
                                   {"course", "95"},
                                   {"ship_speed", "12"}})
    opened->type(name, text);
  ASSERT_NE(opened->shown("dd"), "");
  opened->world.windows.expect(id::kAskSaveBeforeCorrecting, "no");
  press_keys(*opened, "Ctrl+N");
  EXPECT_EQ(opened->shown("course"), "95");
  for (const char* const name :
       {"apparent_direction", "apparent_speed", "heading", "ship_speed", "dd", "ff"})
    EXPECT_EQ(opened->shown(name), "") << name;
}

// What was told of the report that was given up is not said of the next one.
TEST(NewWatch, SaysNothingOfACopyOfTheLastReport) {
  const auto opened = std::make_unique<Opened>();
  opened->type("VV", "97");
  press_keys(*opened, "Ctrl+Shift+C");
  ASSERT_NE(opened->shown("status_line").find("copied"), std::string::npos);
  opened->world.windows.expect(id::kAskSaveBeforeCorrecting, "no");
  press_keys(*opened, "Ctrl+N");
  EXPECT_EQ(opened->shown("status_line").find("copied"), std::string::npos);
}

TEST(NewWatch, AsksWhenSomethingIsUnsaved) {
  for (const std::string answer : {"cancel", "close"}) {
    const auto opened = std::make_unique<Opened>();
    opened->type("VV", "97");
    const std::string before = opened->state();
    opened->world.windows.expect(id::kAskSaveBeforeCorrecting, answer);
    press_keys(*opened, "Ctrl+N");
    EXPECT_EQ(opened->state(), before) << answer;
    EXPECT_TRUE(opened->window.unsaved());
  }
  const auto given_up = std::make_unique<Opened>();
  given_up->type("VV", "97");
  given_up->world.windows.expect(id::kAskSaveBeforeCorrecting, "no");
  press_keys(*given_up, "Ctrl+N");
  EXPECT_EQ(given_up->shown("VV"), "");
  EXPECT_FALSE(given_up->window.unsaved());
  const auto saved = std::make_unique<Opened>();
  enter_date(*saved);
  saved->world.windows.expect(id::kAskSaveBeforeCorrecting, "yes");
  saved->world.windows.expect_screen(
      "CSaveErrorInfoDlg", [](ui::Screen& screen) { screen.press(*screen.find("save_as")); });
  saved->world.windows.expect(id::kSaved);
  press_keys(*saved, "Ctrl+N");
  EXPECT_EQ(saved->shown("Year"), "");
  EXPECT_TRUE(saved->files.content("C:\\out\\14111512.tlx").has_value());
}

TEST(NewWatch, StaysWhereTheSaveThatWasAskedForDidNotHappen) {
  const auto opened = std::make_unique<Opened>();
  opened->type("VV", "97");  // and no date
  const std::string before = opened->state();
  opened->world.windows.expect(id::kAskSaveBeforeCorrecting, "yes");
  opened->world.windows.expect(id::kNoDateEntered);
  press_keys(*opened, "Ctrl+N");
  EXPECT_EQ(opened->state(), before);
}

TEST(NewWatch, GivesUpTheDraftWithTheEntries) {
  const auto opened = std::make_unique<Opened>();
  opened->folders.drafts = "C:\\kavrel\\file";
  const auto with_drafts = std::make_unique<CVelmaranDlg>(
      opened->world.services,
      mainwindow::MainWindowContext{opened->ship, opened->items, opened->folders, {}});
  with_drafts->open();
  ASSERT_TRUE(fakes::enter(*with_drafts, *with_drafts->find("VV"), "97"));
  with_drafts->idle();
  ASSERT_TRUE(opened->files.content("C:\\kavrel\\file\\DRAFT1.DAT").has_value());
  opened->world.windows.expect(id::kAskSaveBeforeCorrecting, "no");
  with_drafts->press(*with_drafts->pressed_by("Ctrl+N"));
  EXPECT_FALSE(opened->files.content("C:\\kavrel\\file\\DRAFT1.DAT").has_value());
  // What is entered next is kept as at any other time.
  ASSERT_TRUE(fakes::enter(*with_drafts, *with_drafts->find("YY"), "15"));
  with_drafts->idle();
  const auto draft = opened->files.content("C:\\kavrel\\file\\DRAFT1.DAT");
  ASSERT_TRUE(draft.has_value());
  EXPECT_EQ(draft->find("97"), std::string::npos) << *draft;
}

}  // namespace
