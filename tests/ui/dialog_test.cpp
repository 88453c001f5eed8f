// The buttons that close a dialog, and how what it holds is refused.

#include "ui/dialog.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "fakes/fake_ports.h"
#include "text/ids.h"

namespace {

namespace id = text::id;

std::vector<std::string> names_of(const ui::Screen& screen) {
  std::vector<std::string> names;
  for (const ui::Control* const control : screen.controls()) names.push_back(control->name);
  return names;
}

// The buttons of the base class are made before the fields.
template <class Base>
class With : public Base {
 public:
  explicit With(ui::Services& services) : Base(services, "CWithDlg", {id::kHelpLabel}) {}
  ui::Edit first{*this, "first"};
  ui::Edit second{*this, "second"};

  using Base::refuse;
};

TEST(ClosingButtons, StandBehindTheControlsOfTheDialog) {
  fakes::World world;
  EXPECT_EQ(names_of(With<ui::OkDialog>(world.services)),
            (std::vector<std::string>{"first", "second", "ok"}));
  EXPECT_EQ(names_of(With<ui::OkCancelDialog>(world.services)),
            (std::vector<std::string>{"first", "second", "ok", "cancel"}));
  EXPECT_EQ(names_of(With<ui::OkCancelHelpDialog>(world.services)),
            (std::vector<std::string>{"first", "second", "ok", "cancel", "help"}));
}

TEST(ClosingButtons, AreReachedByTabAfterTheFields) {
  fakes::World world;
  With<ui::OkCancelHelpDialog> dialog(world.services);
  dialog.open();
  std::vector<std::string> reached{dialog.focused()->name};
  for (int i = 0; i < 5; ++i) {
    dialog.key(ui::Key::kTab);
    reached.push_back(dialog.focused()->name);
  }
  EXPECT_EQ(reached,
            (std::vector<std::string>{"first", "second", "ok", "cancel", "help", "first"}));
}

TEST(ClosingButtons, CloseTheDialogByTheirRole) {
  fakes::World world;
  With<ui::OkCancelHelpDialog> kept(world.services);
  kept.open();
  kept.press(kept.ok);
  EXPECT_EQ(kept.result(), ui::kOk);
  With<ui::OkCancelHelpDialog> left(world.services);
  left.open();
  left.press(left.help);
  EXPECT_FALSE(left.result());
  left.press(left.cancel);
  EXPECT_EQ(left.result(), ui::kCancel);
}

TEST(Refusal, ShowsItsMessageThenGivesTheFocusWithAllSelected) {
  fakes::World world;
  With<ui::OkCancelDialog> dialog(world.services);
  dialog.open();
  dialog.second.set("12");
  const unsigned serial = dialog.focus_serial();
  world.windows.expect(id::kNoValueInput);
  EXPECT_FALSE(dialog.refuse(dialog.second, id::kNoValueInput));
  EXPECT_EQ(dialog.focused(), &dialog.second);
  EXPECT_NE(dialog.focus_serial(), serial);
  EXPECT_EQ(dialog.selection_length(), -1);
  EXPECT_EQ(dialog.second.content, "12");
  EXPECT_FALSE(dialog.result());
}

TEST(Refusal, FillsInWhatTheMessageNames) {
  fakes::World world;
  With<ui::OkCancelDialog> dialog(world.services);
  dialog.open();
  world.windows.expect(id::kTextTooLong);
  EXPECT_FALSE(dialog.refuse(dialog.first, id::kTextTooLong, "7"));
  ASSERT_EQ(world.windows.boxes.size(), 1U);
  EXPECT_EQ(world.windows.boxes[0].text, text::fill(world.texts.get(id::kTextTooLong), {"7"}));
  EXPECT_EQ(world.windows.boxes[0].text.find('%'), std::string::npos);
}

}  // namespace
