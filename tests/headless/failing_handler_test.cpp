// A handler that throws is told like a message, and the session goes on with what was entered; the
// end of the script still unwinds the program.

#include <gtest/gtest.h>

#include <new>
#include <sstream>
#include <stdexcept>

#include "cli/last_catch.h"
#include "fakes/fake_ports.h"
#include "headless/session.h"
#include "text/ids.h"

namespace {

struct Thrown {
  void (*raise)();
  const char* english;
  const char* japanese;
};

const Thrown kThrown[] = {
    {[] { throw std::runtime_error("disk on fire"); }, "disk on fire", "disk on fire"},
    {[] { throw std::runtime_error(""); }, "unknown cause", "原因不明"},
    {[] { throw std::bad_alloc(); }, "out of memory", "メモリが不足しています"},
    {[] { throw 7; }, "unknown cause", "原因不明"},
};

class CFailingDlg : public ui::Screen {
 public:
  CFailingDlg(ui::Services& services, const Thrown& thrown)
      : Screen(services, "CFailingDlg", {text::id::kHelpLabel}) {
    fail.on_press = [thrown] { thrown.raise(); };
    ask.on_press = [this] {
      (void)this->services().messages.question(text::id::kNoValueInput, ui::QuestionMode::kYesNo);
    };
  }
  ui::Edit entry{*this, "entry", {}, 20};
  ui::Button fail{*this, "fail", {}};
  ui::Button ask{*this, "ask", {}};
};

struct Played {
  headless::Status status;
  std::string transcript;
  std::string error;
};

Played play(const std::string& script, const Thrown& thrown, bool japanese, bool at_start = false) {
  std::istringstream source(script);
  std::ostringstream transcript;
  std::ostringstream error;
  const auto program = [&](const headless::Doors& doors) {
    if (at_start) thrown.raise();
    fakes::World world;
    if (japanese) world.japanese();
    ui::Messages messages(world.texts, doors.windows);
    text::HelpLauncher help(world.texts, doors.help, "C:\\program");
    ui::Services services{world.clock,     world.locale,  world.drives,  world.no_files,
                          world.code_page, doors.printer, doors.windows, world.texts,
                          messages,        help};
    CFailingDlg screen(services, thrown);
    doors.windows.run_modal(screen);
  };
  const headless::Status status = headless::run_session(source, transcript, error, program);
  return {status, transcript.str(), error.str()};
}

TEST(FailingHandlerInASession, IsToldInBothLanguagesAndTheEntryIsStillThere) {
  for (const Thrown& thrown : kThrown) {
    for (const bool japanese : {false, true}) {
      const Played played = play(
          "start\nset entry JABC\npress fail\nanswer ok\nexpect entry JABC\nset entry JXYZ\n"
          "expect entry JXYZ\nclose\n",
          thrown, japanese);
      const std::string told =
          japanese ? "処理を完了できませんでした（" + std::string(thrown.japanese) +
                         "）。入力済みの内容は残っています。"
                   : "The operation was not completed (" + std::string(thrown.english) +
                         "). What has been entered is kept.";
      EXPECT_EQ(played.status, headless::Status::kDone) << played.transcript;
      EXPECT_NE(played.transcript.find("> press fail\n  message \"KAVREL for WIN\": \"" + told),
                std::string::npos)
          << played.transcript;
      EXPECT_TRUE(played.transcript.ends_with("the program has ended\n")) << played.transcript;
    }
  }
}

TEST(FailingHandlerInASession, EndOfTheScriptIsNotTakenForAFailure) {
  for (const char* const script : {"start\npress ask\n", "start\npress fail\n", "start\n"}) {
    const Played played = play(script, kThrown[0], false);
    EXPECT_EQ(played.status, headless::Status::kDone) << played.transcript;
    EXPECT_EQ(played.error, "");
    EXPECT_EQ(played.transcript.find("End"), std::string::npos);
    EXPECT_EQ(played.transcript.find("the program has ended"), std::string::npos);
  }
}

TEST(FailingHandlerInASession, ProgramThatThrowsOutsideAnyEventFailsTheSessionWithTheReason) {
  for (const Thrown& thrown : kThrown) {
    const Played played = play("start\nclose\n", thrown, false, true);
    EXPECT_EQ(played.status, headless::Status::kCannot);
    EXPECT_EQ(played.error, "line 1: the program failed: " + std::string(thrown.english) + "\n");
  }
}

TEST(LastCatch, CommandThatThrowsGivesStatusTwoAndTheReason) {
  for (const Thrown& thrown : kThrown) {
    std::ostringstream error;
    EXPECT_EQ(cli::with_last_catch(
                  [&]() -> int {
                    thrown.raise();
                    return 0;
                  },
                  error),
              2);
    EXPECT_EQ(error.str(), "kavrel-cli: " + std::string(thrown.english) + "\n");
  }
  std::ostringstream error;
  EXPECT_EQ(cli::with_last_catch([] { return 1; }, error), 1);
  EXPECT_EQ(error.str(), "");
}

}  // namespace
