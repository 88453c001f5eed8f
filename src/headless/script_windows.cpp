#include "headless/script_windows.h"

#include <algorithm>

#include "headless/box_commands.h"
#include "headless/screen_commands.h"
#include "text/strings.h"

namespace headless {
namespace {

std::string result_name(int result) {
  switch (result) {
    case ui::kOk:
      return "ok";
    case ui::kCancel:
      return "cancel";
    case ui::kYes:
      return "yes";
    case ui::kNo:
      return "no";
    default:
      return std::to_string(result);
  }
}

std::string headline(const ui::Screen& screen) {
  return screen.class_name() + " " + ui::quoted(screen.title());
}

// What stands in the script, repeated in a transcript or in a reason: as it is, but what would
// upset a terminal is escaped.
std::string printable(std::string_view line) {
  std::string result;
  while (!line.empty()) {
    const auto end = std::min(line.find_first_of("\"\\"), line.size());
    const std::string part = ui::quoted(line.substr(0, end));
    result += part.substr(1, part.size() - 2);
    if (end < line.size()) result += line[end];
    line.remove_prefix(std::min(end + 1, line.size()));
  }
  return result;
}

// A sheet of A4 in letters of a usual size.
constexpr std::size_t kPageLines = 60;
constexpr std::size_t kPageColumns = 160;

std::vector<std::string> printed_lines(const ui::Sheets& sheets) {
  const auto document = ui::folded(sheets.lines, kPageColumns);
  return document == nullptr ? std::vector<std::string>() : document->lines(0, document->size());
}

}  // namespace

// A screen on the stack for as long as it is open.
class ScriptWindows::Opened {
 public:
  Opened(ScriptWindows& windows, ui::Screen& screen) : windows_(windows), watch_(screen) {
    windows_.screens_.push_back(&screen);
    windows_.watches_.push_back(&watch_);
  }
  ~Opened() {
    windows_.screens_.pop_back();
    windows_.watches_.pop_back();
  }
  Opened(const Opened&) = delete;
  Opened& operator=(const Opened&) = delete;
  [[nodiscard]] ScreenWatch& watch() { return watch_; }

 private:
  ScriptWindows& windows_;
  ScreenWatch watch_;
};

Line ScriptWindows::next_command() {
  // The person is thinking about the next command: the time that windows use as well.
  for (ui::Screen* const screen : screens_) screen->idle();
  for (;;) {
    // Going on unseen would save what nobody is told of.
    if (!out_.flush()) {
      error_ << "the transcript cannot be written\n";
      end(Status::kCannot);
    }
    const std::optional<Line> line = reader_.next();
    if (!line) end(Status::kDone);
    if (!line->unusable.empty()) {
      out_ << "> " << printable(text::first(line->text, 60)) << "…\n";
      stop(*line, Status::kCannot, line->unusable);
    }
    const std::string_view verb = line->verb();
    if (verb.empty()) {
      out_ << '\n';
    } else if (verb == "#") {
      out_ << printable(line->text) << '\n';
    } else {
      out_ << "> " << printable(line->text) << '\n';
      return *line;
    }
  }
}

void ScriptWindows::say(std::string_view what) {
  if (!ended_) out_ << "  " << what << '\n';
}

void ScriptWindows::say_changes(ScreenWatch& watch, bool with_focus) {
  for (const std::string& change : watch.changes(with_focus)) say("  " + change);
}

// What the handlers did up to now is on the screens behind a window that opens.
void ScriptWindows::say_changes_so_far() {
  for (ScreenWatch* const watch : watches_) say_changes(*watch, false);
}

void ScriptWindows::end(Status status) {
  ended_ = true;
  throw EndOfRun{status};
}

void ScriptWindows::stop(const Line& line, Status status, const std::string& reason) {
  const std::string where = "line " + std::to_string(line.number) + ": " + printable(reason);
  out_ << "! " << where << '\n';
  error_ << where << '\n';
  end(status);
}

int ScriptWindows::show_message(const ui::MessageBox& box) {
  // The program is being unwound; what it still asks gets the answer of a closed box.
  if (ended_) return box.close_result;
  say_changes_so_far();
  return ask(box, box.buttons.size() > 1 ? "question" : "message");
}

int ScriptWindows::ask(const ui::MessageBox& box, std::string_view what) {
  say(std::string(what) + " " + describe(box));
  for (;;) {
    if (const std::optional<int> answer = answer_box(*this, box, next_command())) return *answer;
  }
}

int ScriptWindows::run_modal(ui::Screen& screen) {
  if (ended_) return ui::kCancel;
  say_changes_so_far();
  screen.open();
  // A screen may accept itself while it opens and is then never seen.
  if (screen.result()) return *screen.result();
  say("screen " + headline(screen) + " opened");
  {
    Opened opened(*this, screen);
    ScreenCommands commands(*this, screen, opened.watch());
    while (!screen.result()) commands.carry_out(next_command());
  }
  say("screen " + headline(screen) + " closed (" + result_name(*screen.result()) + ")");
  return *screen.result();
}

void ScriptWindows::show_notice(ui::Screen& screen) {
  if (ended_) return;
  say_changes_so_far();
  screen.open();
  // It takes no commands, so it is not among the open screens.
  say("notice " + headline(screen));
  for (const ui::ControlView& view : ui::views_of(screen)) {
    if (view.visible) say("  " + ui::describe(view));
  }
}

void ScriptWindows::hide_notice(ui::Screen& screen) {
  say("notice " + screen.class_name() + " gone");
}

void ScriptWindows::pause(int milliseconds) {
  if (ended_) return;
  say_changes_so_far();
  say("pause " + std::to_string(milliseconds) + " ms");
}

bool ScriptWindows::copy_text(const std::string& text) {
  say("copied " + ui::quoted(text));
  return true;
}

std::optional<std::string> ScriptWindows::browse_for_folder(const std::string& caption,
                                                            const std::string& initial) {
  if (ended_) return std::nullopt;
  say_changes_so_far();
  say("folder browser " + ui::quoted(caption) + " at " + ui::quoted(initial));
  for (;;) {
    const Line line = next_command();
    const std::string_view verb = line.verb();
    if (verb == "close") return std::nullopt;
    if (verb == "answer") {
      if (same_word(text::trim(line.rest()), "cancel")) return std::nullopt;
      return plain_text(line.rest());
    }
    stop(line, Status::kCannot,
         "the folder browser is open: answer FOLDER, answer cancel or close");
  }
}

bool ScriptWindows::show(const std::string& path) {
  say("help " + ui::quoted(path));
  return true;
}

ui::PageRoom ScriptWindows::page_room(const ui::Sheets& /*sheets*/) const {
  return {kPageLines, kPageColumns};
}

ui::PrintResult ScriptWindows::print(const ui::Sheets& sheets) {
  if (ended_) return ui::PrintResult::kCancelled;
  say_changes_so_far();
  const ui::MessageBox dialog{"print",
                              sheets.name,
                              {{"Print", "print", ui::kOk}, {"Cancel", "cancel", ui::kCancel}},
                              ui::kCancel,
                              text::Id{}};
  if (ask(dialog, "printing") != ui::kOk) return ui::PrintResult::kCancelled;
  if (options_.paper == Paper::kFails) {
    say("printing failed");
    return ui::PrintResult::kFailed;
  }
  for (const std::string& line : printed_lines(sheets)) say("printed " + ui::quoted(line));
  for (const ui::Drawing& drawing : sheets.drawings) {
    for (const std::string& line : ui::describe(drawing)) say("printed drawing " + line);
  }
  return ui::PrintResult::kSuccess;
}

std::optional<std::string> ScriptWindows::pdf(const ui::Sheets& sheets) const {
  std::string text = "(a session draws no pages: the lines alone)\n";
  for (const std::string& line : printed_lines(sheets)) text.append(line).append("\n");
  return text;
}

}  // namespace headless
