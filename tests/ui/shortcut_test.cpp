// Keys of a control's own: what they press, whatever field has the focus.

#include <gtest/gtest.h>

#include <string>

#include "fakes/fake_ports.h"
#include "text/ids.h"
#include "ui/dump.h"

namespace {

class CKeysDlg : public ui::Screen {
 public:
  explicit CKeysDlg(ui::Services& services) : Screen(services, "CKeysDlg", {text::id::kHelpLabel}) {
    list.items = {"north", "south"};
    picture.shortcut = "F7";
    more.shortcut = "+";
    picture.on_press = [this] { ++opened; };
    more.on_press = [this] { ++pressed; };
  }
  ui::Edit field{*this, "field"};
  ui::Combo combo{*this, "combo"};
  ui::List list{*this, "list"};
  ui::Picture picture{*this, "picture"};
  ui::Button more{*this, "more", {text::id::kHelpLabel}};
  int opened = 0;
  int pressed = 0;
};

class Shortcut : public testing::Test {
 protected:
  Shortcut() { screen.open(); }
  fakes::World world;
  CKeysDlg screen{world.services};
};

TEST_F(Shortcut, PressesItsControlFromEveryField) {
  for (ui::Control* const from :
       {static_cast<ui::Control*>(&screen.field), static_cast<ui::Control*>(&screen.combo),
        static_cast<ui::Control*>(&screen.list)}) {
    ASSERT_TRUE(screen.move_focus(*from));
    EXPECT_EQ(screen.pressed_by("F7"), &screen.picture);
    EXPECT_EQ(screen.pressed_by("f7"), &screen.picture);
  }
}

TEST_F(Shortcut, ThatIsACharacterIsTypedWhereOneCanType) {
  EXPECT_EQ(screen.pressed_by("+"), nullptr);
  ASSERT_TRUE(screen.move_focus(screen.combo));
  EXPECT_EQ(screen.pressed_by("+"), nullptr);
  screen.combo.read_only = true;
  EXPECT_EQ(screen.pressed_by("+"), &screen.more);
  ASSERT_TRUE(screen.move_focus(screen.list));
  EXPECT_EQ(screen.pressed_by("+"), &screen.more);
}

TEST_F(Shortcut, OfAControlThatIsOffOrHiddenPressesNothing) {
  screen.picture.enabled = false;
  EXPECT_EQ(screen.pressed_by("F7"), nullptr);
  screen.picture.enabled = true;
  screen.picture.visible = false;
  EXPECT_EQ(screen.pressed_by("F7"), nullptr);
}

TEST_F(Shortcut, IsNotFoundForKeysThatAreNoOnes) {
  for (const char* const keys : {"", "F", "F77", "7", "Ctrl+F7", "\xff"})
    EXPECT_EQ(screen.pressed_by(keys), nullptr) << keys;
}

TEST_F(Shortcut, IsTold) {
  const std::string dump = ui::dump(screen);
  EXPECT_NE(dump.find("picture picture = \"\" [key F7]"), std::string::npos) << dump;
  EXPECT_NE(dump.find("more button \"Help\" [key +]"), std::string::npos) << dump;
}

}  // namespace
