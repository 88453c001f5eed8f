#pragma once
// What a script can do on the screen on top.

#include <string>

#include "headless/screen_watch.h"
#include "headless/script.h"
#include "ui/screen.h"

namespace headless {

class ScriptWindows;

class ScreenCommands {
 public:
  ScreenCommands(ScriptWindows& windows, ui::Screen& screen, ScreenWatch& watch)
      : windows_(windows), screen_(screen), watch_(watch) {}

  /// One command, then what changed unless it closed the screen. Ends the run when it cannot be
  /// carried out or an expectation fails.
  void carry_out(const Line& line);

 private:
  struct Row;
  static const Row kRows[];

  // Each carries out one command; the line being carried out is line_.
  void start();
  void show();
  void set();
  void type();
  void focus();
  void choose();
  void tick();
  void tick_line(ui::Control& list, std::string_view line_and_state);
  void press();
  void click();
  void menu();
  void key();
  void close();
  void answer();
  void expect();
  void expect_message();
  void record();
  void report();

  [[noreturn]] void cannot(const std::string& reason);
  /// The command's NAME and TEXT.
  NameAndText arguments();
  ui::Control& control_named(const NameAndText& name);
  ui::Control& control_labelled(const std::string& label);
  /// Visible and enabled, so that the person can act on it; else the run ends.
  ui::Control& usable(const NameAndText& name);
  /// Moves the focus as a person does; false when it was refused.
  bool take_focus(ui::Control& control);
  void pick(ui::Control& control, int index);
  struct Caret;
  void type_character(std::string_view character, Caret& caret);
  void choose_in_tree(ui::Control& tree, const std::string& wanted);

  ScriptWindows& windows_;
  ui::Screen& screen_;
  ScreenWatch& watch_;
  Line line_;
};

}  // namespace headless
