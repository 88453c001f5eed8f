#pragma once
// The windows, the help viewer and the print dialog of a scripted session.

#include <ostream>
#include <string>
#include <vector>

#include "headless/screen_watch.h"
#include "headless/script.h"
#include "headless/session.h"

namespace headless {

/// Ends the run from wherever it stands; thrown and caught in this room only.
struct EndOfRun {
  Status status = Status::kDone;
};

class ScriptWindows : public ui::Windows, public platform::HelpViewer, public ui::Printer {
 public:
  ScriptWindows(std::istream& script, std::ostream& transcript, std::ostream& error,
                const Options& options)
      : reader_(script), out_(transcript), error_(error), options_(options) {}

  /// The next command, already repeated in the transcript; comments and blank lines are passed
  /// over. Throws EndOfRun at the end of the script.
  [[nodiscard]] Line next_command();
  /// A line of what happened.
  void say(std::string_view what);
  void say_changes(ScreenWatch& watch, bool with_focus);
  /// Ends the run: the command of this line failed or cannot be carried out.
  [[noreturn]] void stop(const Line& line, Status status, const std::string& reason);

  int show_message(const ui::MessageBox& box) override;
  int run_modal(ui::Screen& screen) override;
  void show_notice(ui::Screen& screen) override;
  void hide_notice(ui::Screen& screen) override;
  void pause(int milliseconds) override;
  bool copy_text(const std::string& text) override;
  std::optional<std::string> browse_for_folder(const std::string& caption,
                                               const std::string& initial) override;

  bool show(const std::string& path) override;

  [[nodiscard]] bool has_default_printer() const override {
    return options_.paper != Paper::kNoPrinter;
  }
  [[nodiscard]] ui::PageRoom page_room(const ui::Sheets& sheets) const override;
  [[nodiscard]] ui::PrintResult print(const ui::Sheets& sheets) override;
  /// A session has no pages to draw: a line that says so, and the lines as they would be printed.
  [[nodiscard]] std::optional<std::string> pdf(const ui::Sheets& sheets) const override;

  /// The open screens, the one on top last.
  [[nodiscard]] const std::vector<ui::Screen*>& screens() const { return screens_; }

 private:
  class Opened;

  void say_changes_so_far();
  /// A box with buttons: reads commands until it is answered.
  int ask(const ui::MessageBox& box, std::string_view what);
  [[noreturn]] void end(Status status);

  ScriptReader reader_;
  std::ostream& out_;
  std::ostream& error_;
  Options options_;
  std::vector<ui::Screen*> screens_;
  std::vector<ScreenWatch*> watches_;
  bool ended_ = false;  ///< being unwound: nothing more is shown or read
};

}  // namespace headless
