#pragma once
// One fake per port. FakeWindows holds a script of what will be asked and how the officer answers;
// an unexpected question, a wrong answer and an answer left over are failures.

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "fakes/fake_code_page.h"
#include "platform/ports.h"
#include "ui/screen.h"
#include "ui/services.h"

namespace text {
/// Ids in the words of a failed test.
inline std::ostream& operator<<(std::ostream& out, Id id) {
  return out << id.number;
}
}  // namespace text

namespace fakes {

class FakeClock : public platform::Clock {
 public:
  platform::DateTime local_time{2014, 11, 15, 20, 50, 0};
  platform::DateTime utc_time{2014, 11, 15, 11, 50, 0};
  [[nodiscard]] platform::DateTime local() const override { return local_time; }
  [[nodiscard]] platform::DateTime utc() const override { return utc_time; }
};

class FakeLocale : public platform::Locale {
 public:
  unsigned id = 0x0409;
  [[nodiscard]] unsigned locale_id() const override { return id; }
};

class FakeDrives : public platform::Drives {
 public:
  std::vector<platform::Drive> list{{'C', platform::DriveType::kFixed, 12}};
  std::map<int, int> older;  ///< drive number to device type, for an older system
  std::map<char, bool> medium;
  std::string system = "C:\\system";
  std::string program = "C:\\program\\kavrel.exe";

  [[nodiscard]] std::vector<platform::Drive> drives() const override { return list; }
  [[nodiscard]] std::optional<int> older_device_type(int drive_number) const override {
    const auto at = older.find(drive_number);
    return at == older.end() ? std::nullopt : std::optional<int>(at->second);
  }
  [[nodiscard]] bool medium_present(char letter) const override {
    const auto at = medium.find(letter);
    return at == medium.end() || at->second;
  }
  [[nodiscard]] std::string system_folder() const override { return system; }
  [[nodiscard]] std::string program_path() const override { return program; }
};

class FakePrinter : public ui::Printer {
 public:
  bool installed = true;
  ui::PrintResult answer = ui::PrintResult::kSuccess;
  ui::PageRoom room{60, 160};
  bool makes_pdf = true;
  std::vector<ui::Sheets> printed;

  [[nodiscard]] bool has_default_printer() const override { return installed; }
  [[nodiscard]] ui::PageRoom page_room(const ui::Sheets& /*sheets*/) const override { return room; }
  [[nodiscard]] ui::PrintResult print(const ui::Sheets& sheets) override;
  /// The lines, each with a line end.
  [[nodiscard]] std::optional<std::string> pdf(const ui::Sheets& sheets) const override;
};

class FakeHelp : public platform::HelpViewer {
 public:
  bool opens = true;
  std::vector<std::string> shown;
  bool show(const std::string& path) override {
    shown.push_back(path);
    return opens;
  }
};

/// The sign that a message or question of the program is to have, by its id and buttons.
[[nodiscard]] ui::Sign sign_of(const ui::MessageBox& box);

/// Each box that is shown is held to its sign.
class FakeWindows : public ui::Windows {
 public:
  ~FakeWindows() override;

  /// Next, a message or question of this id comes and is answered with the button of this name
  /// ("ok", "yes", "no", "cancel", or "close" for the close box).
  void expect(text::Id text_id, std::string answer = "ok");
  /// The same for a text that is not in the table.
  void expect_text(std::string text, std::string answer = "ok");
  /// Next, a screen of this class opens; `act` is the officer and must close it.
  void expect_screen(std::string class_name, std::function<void(ui::Screen&)> act);
  /// From now on nothing is a surprise: a message is answered with this button, or by its close box
  /// where it has no such button, and a screen that opens is closed by its close box, or by `act`.
  void answer_all(std::string answer, std::function<void(ui::Screen&)> act = {});
  /// Nothing expected may be left; also checked by the destructor.
  void verify();

  /// Every box that was shown, in order.
  std::vector<ui::MessageBox> boxes;
  /// "show CLASS", "hide CLASS", "pause 1000", and "modal CLASS" under answer_all(), in order.
  std::vector<std::string> notices;
  std::optional<std::string> browse_answer;
  std::vector<std::string> copied;  ///< to the clipboard, in order
  bool clipboard_is_held = false;   ///< another program does not let go of it
  /// Called with each box that is open, before it is answered.
  std::function<void()> while_open;

  int show_message(const ui::MessageBox& box) override;
  int run_modal(ui::Screen& screen) override;
  void show_notice(ui::Screen& screen) override;
  void hide_notice(ui::Screen& screen) override;
  void pause(int milliseconds) override;
  bool copy_text(const std::string& text) override {
    if (!clipboard_is_held) copied.push_back(text);
    return !clipboard_is_held;
  }
  std::optional<std::string> browse_for_folder(const std::string& caption,
                                               const std::string& initial) override;

 private:
  struct Expected {
    text::Id text_id;
    std::string text;
    std::string answer;
    std::string screen;
    std::function<void(ui::Screen&)> act;
  };
  std::deque<Expected> expected_;
  std::optional<std::string> answer_to_all_;
  std::function<void(ui::Screen&)> act_in_all_;
};

/// A Files where nothing exists and nothing can be written; for screens that touch no file.
class NoFiles : public platform::Files {
 public:
  [[nodiscard]] platform::Result<std::string> read(const std::string&,
                                                   std::uint64_t) const override {
    return platform::FileError::kNotFound;
  }
  [[nodiscard]] platform::Result<std::string> read_part(const std::string&, std::uint64_t,
                                                        std::uint64_t) const override {
    return platform::FileError::kNotFound;
  }
  [[nodiscard]] platform::Result<platform::StagedFile> stage(const std::string&,
                                                             std::string_view) override {
    return platform::FileError::kAccessDenied;
  }
  [[nodiscard]] platform::Result<platform::StagedFile> stage_pieces(
      const std::string&, const platform::NextPiece&) override {
    return platform::FileError::kAccessDenied;
  }
  [[nodiscard]] platform::FileError commit(const platform::StagedFile&, platform::Over) override {
    return platform::FileError::kAccessDenied;
  }
  void discard(const platform::StagedFile&) override {}
  [[nodiscard]] platform::FileError note(const std::string&, std::string_view) override {
    return platform::FileError::kAccessDenied;
  }
  [[nodiscard]] platform::Result<std::unique_ptr<platform::LockedLog>> lock_log(
      const std::string&) override {
    return platform::FileError::kAccessDenied;
  }
  [[nodiscard]] platform::Result<std::unique_ptr<platform::Claim>> claim(
      const std::string&) override {
    return platform::FileError::kAccessDenied;
  }
  [[nodiscard]] bool is_running(std::uint64_t) const override { return true; }
  [[nodiscard]] platform::Look look(const std::string&) const override { return {}; }
  [[nodiscard]] std::optional<platform::DateTime> modified(const std::string&) const override {
    return std::nullopt;
  }
  [[nodiscard]] platform::Result<std::vector<platform::FolderEntry>> list(
      const std::string&) const override {
    return platform::FileError::kNotFound;
  }
  [[nodiscard]] platform::FileError create_folder(const std::string&) override {
    return platform::FileError::kAccessDenied;
  }
  [[nodiscard]] platform::FileError copy(const std::string&, const std::string&) override {
    return platform::FileError::kNotFound;
  }
  [[nodiscard]] platform::FileError remove(const std::string&) override {
    return platform::FileError::kNotFound;
  }
  [[nodiscard]] platform::FileError clear_read_only(const std::string&) override {
    return platform::FileError::kNotFound;
  }
  [[nodiscard]] std::optional<std::uint64_t> free_space(const std::string&) const override {
    return std::nullopt;
  }
  [[nodiscard]] bool same(const std::string& a, const std::string& b) const override {
    return a == b;
  }
  [[nodiscard]] std::string current_folder() const override { return "C:\\"; }
  void set_current_folder(const std::string&) override {}
};

/// All fakes and the services made of them. A test with files hands its own Files in.
class World {
 public:
  World() : World(nullptr) {}
  explicit World(platform::Files& with) : World(&with) {}

  FakeClock clock;
  FakeLocale locale;
  FakeDrives drives;
  NoFiles no_files;
  FakeCodePage code_page;
  FakePrinter printer;
  FakeHelp help_viewer;
  FakeWindows windows;
  text::Texts texts;
  ui::Messages messages;
  text::HelpLauncher help;
  ui::Services services;

  void japanese() { texts.language = text::Language::kJapanese; }

 private:
  explicit World(platform::Files* with)
      : messages(texts, windows),
        help(texts, help_viewer, "C:\\program"),
        services{clock,     locale,
                 drives,    with == nullptr ? static_cast<platform::Files&>(no_files) : *with,
                 code_page, printer,
                 windows,   texts,
                 messages,  help} {}
};

/// Puts the focus on the control and types, as a script's `set` does. False when the focus was
/// refused.
bool enter(ui::Screen& screen, ui::Control& control, std::string_view text);
/// Picks the line that reads so; fails the test when there is none.
void choose_text(ui::Screen& screen, ui::Control& control, std::string_view line);
/// The lines of a list, each ended by CR LF.
[[nodiscard]] std::string lines_of(const ui::Control& list);
/// name=content/selected/checked/enabled/visible of every control: what a refusal must leave as it
/// was.
[[nodiscard]] std::string dump(const ui::Screen& screen);

}  // namespace fakes
