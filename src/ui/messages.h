#pragma once
// Message services: every notice and question of the program goes through here.

#include <initializer_list>
#include <set>
#include <string>
#include <string_view>

#include "platform/ports.h"
#include "text/texts.h"
#include "ui/windows.h"

namespace ui {

/// Which buttons a question has.
enum class QuestionMode { kOkCancel = 1, kYesNoCancel = 3, kYesNo = 4 };

/// Two buttons in the order Yes, No: kYes, or kNo for No and for closing.
class CMessageBox1 {
 public:
  /// Empty labels mean "&YES" and "&NO"; an empty title the program's.
  explicit CMessageBox1(std::string text, std::string yes = {}, std::string no = {},
                        std::string title = {});
  [[nodiscard]] const MessageBox& box() const { return box_; }
  [[nodiscard]] MessageBox& box() { return box_; }

 private:
  MessageBox box_;
};

/// Three buttons with the caller's labels: kOk for Yes, kNo, or kCancel for Cancel and for closing.
class CMessageBox2 {
 public:
  CMessageBox2(std::string text, std::string yes, std::string no, std::string cancel,
               std::string title = {});
  [[nodiscard]] const MessageBox& box() const { return box_; }
  [[nodiscard]] MessageBox& box() { return box_; }

 private:
  MessageBox box_;
};

/// CMessageBox1 with the buttons in the order No, Yes. Its title is capitalised differently, on
/// purpose.
class CMessageBox3 {
 public:
  explicit CMessageBox3(std::string text, std::string yes = {}, std::string no = {},
                        std::string title = {});
  [[nodiscard]] const MessageBox& box() const { return box_; }
  [[nodiscard]] MessageBox& box() { return box_; }

 private:
  MessageBox box_;
};

class Messages {
 public:
  Messages(text::Texts& texts, Windows& windows) : texts_(texts), windows_(windows) {}

  bool quiet = false;             ///< while set, error notices are not shown
  bool question_open = false;     ///< a question is on the screen
  bool message_box_open = false;  ///< a CMessageBox1 is on the screen

  /// How many messages and questions the person has been shown so far.
  [[nodiscard]] unsigned told() const { return told_; }

  /// Error notice: the bilingual text of the id when it is at least 1, else the literal, else
  /// "Check Error".
  void error(text::Id id, std::string_view literal = {});
  /// Error notice of a text of the table under a title of its own instead of the program's.
  void error_titled(text::Id id, text::Id title);
  /// Error notice of a text whose "%s" and "%d" are filled in; `below`, when there is one, stands
  /// on a line of its own below it.
  void error_filled(text::Id id, std::initializer_list<std::string_view> arguments,
                    std::string_view below = {});

  /// error() and error_filled() for what went well, or is only told: with another sign, and nothing
  /// else.
  void information(text::Id id, std::string_view literal = {});
  void information_filled(text::Id id, std::initializer_list<std::string_view> arguments,
                          std::string_view below = {});

  /// error_filled(), but the first time of the run only.
  void error_filled_once(text::Id id, std::initializer_list<std::string_view> arguments);
  /// Error notice of a text with two places: the path of a file or folder, and why it could not be
  /// used, in the language of the moment.
  void file_error(text::Id id, std::string_view path, platform::FileError why);

  /// A question; the result is one of the four codes above (mode kOkCancel gives kOk or kCancel).
  /// Any other mode shows nothing and returns 0. An empty title means the program's. `text_id` only
  /// tells tests which text it is.
  int question(std::string_view text, std::string_view title, QuestionMode mode,
               text::Id text_id = {});
  /// The same for a text of the table.
  int question(text::Id id, QuestionMode mode, std::string_view title = {}) {
    return question(texts_.get(id), title, mode, id);
  }

  /// Shows one of the three message boxes; message_box_open is set while a CMessageBox1 is shown.
  int show(const CMessageBox1& box);
  int show(const CMessageBox2& box);
  int show(const CMessageBox3& box);

 private:
  int show_box(const MessageBox& box);
  void notice(std::string title, std::string shown, text::Id id, Sign sign);
  [[nodiscard]] std::string filled(text::Id id, std::initializer_list<std::string_view> arguments,
                                   std::string_view below) const;
  [[nodiscard]] std::string words_of(text::Id id, std::string_view literal) const;

  text::Texts& texts_;
  Windows& windows_;
  std::set<text::Id> told_once_;
  unsigned told_ = 0;
};

}  // namespace ui
