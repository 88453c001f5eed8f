#include "ui/access_keys.h"

#include <gtest/gtest.h>

#include <set>

#include "fakes/all_screens.h"
#include "fakes/fake_ports.h"
#include "ui/dump.h"

namespace {

using Texts = std::vector<std::string>;

std::string keys_of(const Texts& texts) {
  std::string keys;
  for (const char key : ui::access_keys(texts)) keys.push_back(key == '\0' ? '-' : key);
  return keys;
}

TEST(AccessKeys, AreTheFirstLettersThatAreFree) {
  EXPECT_EQ(keys_of({"File", "Save weather report", "Fixed data", "Observation item", "VOSClim",
                     "Language", "Help"}),
            "FSDOVLH");
  EXPECT_EQ(keys_of({}), "");
  EXPECT_EQ(keys_of({"Period (s)", "(s)"}), "PA");
  EXPECT_EQ(keys_of({"aa", "aa", "aa"}), "ABC");
  // Behind a first word's letter come those of the other words, then any of the text.
  EXPECT_EQ(keys_of({"Print", "Print all", "Print"}), "PAR");
}

TEST(AccessKeys, LeaveTheirLetterToTextsThatNameOne) {
  EXPECT_EQ(keys_of({"Print", "Pre&vious page", "&Print"}), "RVP");
  EXPECT_EQ(keys_of({"&Yes", "&Yellow"}), "YE");
}

TEST(AccessKeys, RunOutBehindTheAlphabet) {
  const std::string keys = keys_of(Texts(27, "x"));
  EXPECT_EQ(keys.find('-'), 26U);
  EXPECT_EQ(std::set<char>(keys.begin(), keys.end()).size(), 27U);
}

TEST(AccessKeys, StandInTheTextOrBehindIt) {
  EXPECT_EQ(ui::with_access_key("File", 'F'), "&File");
  EXPECT_EQ(ui::with_access_key("Fixed data", 'D'), "Fixed &data");
  EXPECT_EQ(ui::with_access_key("Item", 'M'), "Ite&m");
  EXPECT_EQ(ui::with_access_key("File", 'X'), "File(&X)");
  EXPECT_EQ(ui::with_access_key("Period (s)", 'S'), "Period (s)(&S)");
  EXPECT_EQ(ui::with_access_key("ファイル", 'F'), "ファイル(&F)");
  EXPECT_EQ(ui::with_access_key("はい(&Y)", 'N'), "はい(&Y)");
  EXPECT_EQ(ui::with_access_key("File", '\0'), "File");
  EXPECT_EQ(ui::with_access_key("", 'F'), "");
}

// Every dialog, in both languages: what is pressed, ticked or typed into has a letter of its own,
// the same in both, and without it the caption is the one of the table.
// By its name where the label, which may be Japanese, names no letter.
TEST(AccessKeys, OfAMessageAreThoseOfItsButtonsWhereItHasSeveral) {
  ui::MessageBox box;
  box.buttons = {{"はい(&Y)", "yes", ui::kYes}, {"キャンセル", "cancel", ui::kCancel}};
  EXPECT_EQ(ui::access_keys_of(box), (std::vector<char>{'Y', 'C'}));
  box.buttons = {{"OK", "ok", ui::kOk}};
  EXPECT_EQ(ui::access_keys_of(box), std::vector<char>{'\0'});
}

TEST(AccessKeys, OfEveryDialogAreUniqueAndTheSameInBothLanguages) {
  std::size_t dialogs = 0;
  for (const fakes::ScreenCase& row : fakes::all_screens()) {
    fakes::World english;
    fakes::World japanese;
    japanese.japanese();
    const auto in_english = row.make(english.services);
    const auto in_japanese = row.make(japanese.services);
    in_english->open();
    in_japanese->open();
    const ui::Plan plan = ui::plan_of(*in_english);
    const auto keys = ui::access_keys_of(*in_english, plan);
    if (plan.has_menu) {
      EXPECT_TRUE(keys.empty());
      continue;
    }
    const auto japanese_keys = ui::access_keys_of(*in_japanese, ui::plan_of(*in_japanese));
    std::set<char> seen;
    for (const auto& [control, key] : keys) {
      EXPECT_TRUE(seen.insert(key).second) << row.class_name << " " << control->name;
      EXPECT_EQ(japanese_keys.at(in_japanese->find(control->name)), key);
      for (const ui::Screen* const screen : {in_english.get(), in_japanese.get()}) {
        const std::string caption = screen->caption(*screen->find(control->name));
        const std::string shown = ui::with_access_key(caption, key);
        EXPECT_EQ(ui::access_key(shown), key) << shown;
        EXPECT_EQ(ui::without_access_key(shown), ui::without_access_key(caption));
      }
    }
    EXPECT_EQ(keys.size(), japanese_keys.size());
    for (const ui::Control* const control : in_english->controls()) {
      const bool pressed = control->kind == ui::Kind::kTick ||
                           (control->kind == ui::Kind::kButton && control->role == ui::Role::kNone);
      EXPECT_TRUE(!pressed || keys.contains(control)) << row.class_name << " " << control->name;
    }
    ++dialogs;
  }
  EXPECT_GT(dialogs, 40U);
}

}  // namespace
