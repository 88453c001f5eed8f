// What must hold for every screen of the program, in both languages.

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

#include "fakes/all_screens.h"
#include "fakes/fake_ports.h"
#include "text/ids.h"
#include "ui/dump.h"
#include "ui/layout.h"

namespace {

// Access keys that given texts make clash: class, language, key. Nobody may add a line for a text
// of our own.
struct GivenClash {
  std::string_view class_name;
  text::Language language;
  char key;
};
constexpr GivenClash kGivenClashes[] = {
    {"", text::Language::kEnglish, 0},
};

// The main window asks before it goes.
constexpr text::Id kExitQuestion{40501};

bool is_given(std::string_view class_name, text::Language language, char key) {
  return std::any_of(std::begin(kGivenClashes), std::end(kGivenClashes), [&](const GivenClash& c) {
    return c.class_name == class_name && c.language == language && c.key == key;
  });
}

std::vector<std::string> focusable_in_tab_order(const ui::Screen& screen) {
  std::vector<std::string> names;
  for (const ui::Control* const control : screen.controls()) {
    const auto kind = control->kind;
    if (kind != ui::Kind::kLabel && kind != ui::Kind::kReadOnly && kind != ui::Kind::kPicture)
      names.push_back(control->name);
  }
  return names;
}

class EveryScreen : public testing::TestWithParam<fakes::ScreenCase> {
 protected:
  void in(text::Language language) {
    world_.texts.language = language;
    screen_ = GetParam().make(world_.services);
    screen_->open();
    ASSERT_FALSE(screen_->result()) << "the sample closes itself while it opens";
  }
  fakes::World world_;
  std::unique_ptr<ui::Screen> screen_;
};

TEST_P(EveryScreen, HasTheNameOfItsClassAndATitleInBothLanguages) {
  for (const auto language : {text::Language::kEnglish, text::Language::kJapanese}) {
    in(language);
    EXPECT_EQ(screen_->class_name(), GetParam().class_name);
    EXPECT_NE(screen_->title(), "");
  }
}

TEST_P(EveryScreen, GivesEachControlANameOfItsOwn) {
  in(text::Language::kEnglish);
  std::set<std::string> names;
  for (const ui::Control* const control : screen_->controls())
    EXPECT_TRUE(names.insert(control->name).second) << control->name;
}

TEST_P(EveryScreen, HasALayoutThatPlacesEachControlExactlyOnce) {
  in(text::Language::kEnglish);
  const auto layout = ui::parse_layout(ui::layout_source(screen_->class_name()));
  ASSERT_EQ(layout.error, "");
  std::map<std::string, int> placed;
  for (const std::string& name : ui::placed_names(layout.root)) ++placed[name];
  for (const ui::Control* const control : screen_->controls()) {
    EXPECT_EQ(placed[control->name], 1) << control->name;
    placed.erase(control->name);
  }
  for (const auto& [name, times] : placed)
    ADD_FAILURE() << "the layout places a stranger: " << name;
}

TEST_P(EveryScreen, IsTabbedInReadingOrder) {
  in(text::Language::kEnglish);
  const auto wanted = focusable_in_tab_order(*screen_);
  const auto layout = ui::parse_layout(ui::layout_source(screen_->class_name()));
  std::vector<std::string> read;
  for (const std::string& name : ui::placed_names(layout.root)) {
    if (std::find(wanted.begin(), wanted.end(), name) != wanted.end()) read.push_back(name);
  }
  ASSERT_EQ(wanted.size(), read.size());
  for (std::size_t i = 0; i < wanted.size(); ++i) {
    ASSERT_EQ(wanted[i], read[i]) << "control " << i
                                  << " in tab order; on the left the declaration, "
                                  << "on the right the layout";
  }
}

// Figures that are typed while a tick box has the focus go nowhere, so Tab must not stop at one on
// the way from field to field. The main window's one, "Freeze", stands behind the bulb that it
// belongs to.
TEST_P(EveryScreen, HasNoTickBoxBetweenFieldsThatAreTypedInto) {
  in(text::Language::kEnglish);
  std::string tick_before;
  for (const ui::Control* const control : screen_->controls()) {
    const bool typed = control->kind == ui::Kind::kEdit || control->kind == ui::Kind::kCombo;
    if (typed) {
      EXPECT_EQ(tick_before, "") << control->name;
    }
    if (control->kind == ui::Kind::kTick && control->name != "freeze") tick_before = control->name;
  }
}

TEST_P(EveryScreen, GivesNoAccessKeyTwice) {
  for (const auto language : {text::Language::kEnglish, text::Language::kJapanese}) {
    in(language);
    std::map<char, std::string> taken;
    const auto take = [&](const std::string& who, std::string_view caption) {
      const char key = ui::access_key(caption);
      if (key == 0) return;
      const auto [at, is_new] = taken.emplace(key, who);
      if (!is_new && !is_given(GetParam().class_name, language, key)) {
        ADD_FAILURE() << who << " and " << at->second << " both want " << key
                      << (language == text::Language::kEnglish ? " in English" : " in Japanese");
      }
    };
    for (const ui::Control* const control : screen_->controls()) {
      take(control->name, screen_->caption(*control));
      if (control->kind == ui::Kind::kChoice) {
        for (const std::string& line : control->items) take(control->name + " " + line, line);
      }
    }
    for (const ui::MenuItem& item : screen_->menu()) {
      const auto caption = text::resolve(item.text, language);
      take("menu " + std::string(caption), caption);
    }
  }
}

// A person finds OK, Cancel and Help at the same place, with the same words, in all of them.
TEST_P(EveryScreen, ClosesWithTheButtonsThatAllScreensShare) {
  struct Row {
    std::string_view name;
    ui::Role role;
    text::Ref caption;
  };
  static const Row kRows[] = {{"ok", ui::Role::kAccept, {text::id::kOkLabel}},
                              {"cancel", ui::Role::kDismiss, {text::id::kCancelLabel}},
                              {"help", ui::Role::kHelp, {text::id::kHelpLabel}}};
  in(text::Language::kEnglish);
  const auto role_before = [](const ui::Control* a, const ui::Control* b) {
    return (a->role == ui::Role::kNone && b->role != ui::Role::kNone) ||
           (a->role != ui::Role::kNone && b->role > a->role);
  };
  const auto controls = screen_->controls();
  for (std::size_t i = 1; i < controls.size(); ++i) {
    if (controls[i - 1]->role != ui::Role::kNone || controls[i]->role != ui::Role::kNone) {
      EXPECT_TRUE(role_before(controls[i - 1], controls[i])) << controls[i]->name;
    }
  }
  for (const ui::Control* const control : controls) {
    const auto* const row = std::find_if(std::begin(kRows), std::end(kRows), [&](const Row& r) {
      return r.role == control->role || r.name == control->name;
    });
    if (row == std::end(kRows)) continue;
    EXPECT_EQ(control->name, row->name);
    EXPECT_EQ(control->role, row->role) << control->name;
    EXPECT_EQ(control->caption.id, row->caption.id) << control->name;
  }
}

TEST_P(EveryScreen, HasTextsInTheLanguageOfTheMoment) {
  in(text::Language::kJapanese);
  const std::string japanese = ui::dump(*screen_);
  in(text::Language::kEnglish);
  EXPECT_NE(japanese, ui::dump(*screen_));
  EXPECT_EQ(japanese.find("/*E*/"), std::string::npos) << japanese;
}

TEST_P(EveryScreen, CanBeLeftByItsCloseBox) {
  in(text::Language::kEnglish);
  if (GetParam().class_name == "CVelmaranDlg") world_.windows.expect(kExitQuestion, "yes");
  screen_->close_box();
  EXPECT_TRUE(screen_->result().has_value());
}

INSTANTIATE_TEST_SUITE_P(Screens, EveryScreen, testing::ValuesIn(fakes::all_screens()),
                         [](const auto& row) { return std::string(row.param.class_name); });

TEST(Layouts, BelongToAScreenThatIsChecked) {
  std::set<std::string_view> screens;
  for (const fakes::ScreenCase& row : fakes::all_screens()) screens.insert(row.class_name);
  for (const std::string_view name : ui::layout_names())
    EXPECT_TRUE(screens.contains(name)) << name << " has no row in tests/fakes/all_screens.cpp";
}

}  // namespace
