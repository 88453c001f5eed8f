// What front ends do around the events that they tell a screen of.

#include "ui/front_end.h"

#include <gtest/gtest.h>

#include <new>
#include <utility>

#include "fakes/fake_ports.h"
#include "text/ids.h"

namespace {

class Form : public ui::Screen {
 public:
  explicit Form(ui::Services& services) : Screen(services, "Form", {}) { open(); }
  int paused = 0;
  bool fails = false;

 protected:
  void on_idle(bool /*undisturbed*/) override {
    ++paused;
    if (fails) throw std::bad_alloc();
  }
};

struct AroundEvents : testing::Test {
  fakes::World world;
  Form form{world.services};
};

void run_out_of_memory() {
  throw std::bad_alloc();
}

TEST_F(AroundEvents, ACallThatGoesWellIsMadeOnceAndTellsNothing) {
  int made = 0;
  ui::watched(
      form, [&] { ++made; }, [] { ADD_FAILURE() << "nothing failed"; });
  EXPECT_EQ(made, 1);
}

TEST_F(AroundEvents, WhatACallThrowsIsToldToThePersonOnceTheFrontEndKnows) {
  bool known = false;
  world.windows.while_open = [&] { EXPECT_TRUE(known); };
  world.windows.expect(text::id::kEventFailed);
  ui::watched(form, run_out_of_memory, [&] { known = true; });
  EXPECT_TRUE(known);
}

TEST_F(AroundEvents, WhatCannotEvenBeToldGoesNoFurther) {
  world.windows.while_open = run_out_of_memory;
  world.windows.answer_all("ok");
  EXPECT_NO_THROW(ui::watched(form, run_out_of_memory));
  EXPECT_NO_THROW(ui::watched(form, run_out_of_memory, run_out_of_memory));
}

TEST_F(AroundEvents, APauseIsToldToAllScreensAlsoBehindOneThatFails) {
  Form behind{world.services};
  behind.fails = true;
  world.windows.expect(text::id::kEventFailed);
  ui::tell_idle({&behind, &form});
  EXPECT_EQ(behind.paused, 1);
  EXPECT_EQ(form.paused, 1);
}

TEST(UntilPause, IsHalfASecondButNoneIsFurtherThanASecondAndAHalfFromTheFirstKey) {
  const std::pair<long long, int> kRows[] = {{0, 500},    {700, 500}, {1000, 500}, {1001, 499},
                                             {1400, 100}, {1500, 0},  {9000, 0}};
  for (const auto& [since_first, wait] : kRows)
    EXPECT_EQ(ui::until_pause(since_first), wait) << since_first;
}

}  // namespace
