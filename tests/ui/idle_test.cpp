// Time for what nobody waits for: told to every open screen, whatever runs.

#include <gtest/gtest.h>

#include <functional>
#include <vector>

#include "fakes/fake_ports.h"
#include "ui/screen.h"

namespace {

class Form : public ui::Screen {
 public:
  explicit Form(ui::Services& services) : Screen(services, "Form", {}) {}
  ui::Button work{*this, "work", {}};
  std::vector<bool> told;
  std::function<void()> in_idle;

 protected:
  void on_idle(bool undisturbed) override {
    told.push_back(undisturbed);
    if (in_idle) in_idle();
  }
};

TEST(Idle, IsToldToAScreenForAsLongAsItIsOpen) {
  fakes::World world;
  Form form(world.services);
  form.idle();
  EXPECT_TRUE(form.told.empty());
  form.open();
  form.idle();
  EXPECT_EQ(form.told, std::vector<bool>{true});
  form.close_box();
  form.idle();
  EXPECT_EQ(form.told.size(), 1U);
}

TEST(Idle, IsToldInTheMiddleOfAHandlerWithoutDisturbingIt) {
  fakes::World world;
  Form form(world.services);
  int pressed = 0;
  form.work.on_press = [&] {
    ++pressed;
    form.idle();
    form.press(form.work);
  };
  form.open();
  form.press(form.work);
  EXPECT_EQ(form.told, std::vector<bool>{false});
  EXPECT_EQ(pressed, 1) << "the handler is still the one that runs";
  form.press(form.work);
  EXPECT_EQ(pressed, 2);
}

// A message that is shown then makes a windowing system send events of its own.
TEST(Idle, DropsWhatThePersonDoesWhileItRuns) {
  fakes::World world;
  Form form(world.services);
  bool pressed = false;
  form.work.on_press = [&] { pressed = true; };
  form.in_idle = [&] { form.press(form.work); };
  form.open();
  form.idle();
  EXPECT_FALSE(pressed);
  form.press(form.work);
  EXPECT_TRUE(pressed);
}

}  // namespace
