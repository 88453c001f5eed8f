#pragma once
// A small program for scripts: a form with one control of each behaviour, a dialog behind it, and a
// window that holds an observation.

#include <sstream>
#include <string>

#include "fakes/fake_ports.h"
#include "headless/session.h"
#include "text/ids.h"
#include "ui/observation_view.h"

namespace test_form {

inline constexpr text::Ref kYes{text::id::kButtonYes, 0};
inline constexpr text::Ref kNo{text::id::kButtonNo, 0};

/// Two digits are wanted in `code`; anything else is refused with a message.
class CFormDlg : public ui::Screen, public ui::ObservationView {
 public:
  explicit CFormDlg(ui::Services& services);

  ui::Label heading{*this, "heading", {text::id::kHelpLabel, 0}};
  ui::Edit code{*this, "code", {text::id::kNoValueInput, 0}, 4};
  ui::Edit note{*this, "note"};
  ui::Edit locked{*this, "locked"};
  ui::Edit hidden{*this, "hidden"};
  ui::ReadOnly doubled{*this, "doubled"};
  ui::Combo hour{*this, "hour", {}, 2};
  ui::List lines{*this, "lines"};
  ui::List boxes{*this, "boxes"};
  ui::Choice answer{*this, "answer", {}, {kYes, kNo}};
  ui::Tick tick{*this, "tick"};
  ui::Tree tree{*this, "tree"};
  ui::Button ask{*this, "ask", {}};
  ui::Button dead{*this, "dead", {}};
  ui::Label link{*this, "link"};
  ui::Button japanese{*this, "japanese", {}};
  ui::Button ok{*this, "ok", {text::id::kOkLabel, 0}, ui::Role::kAccept};
  ui::Button cancel{*this, "cancel", {text::id::kCancelLabel, 0}, ui::Role::kDismiss};
  ui::Button help{*this, "help", {text::id::kHelpLabel, 0}, ui::Role::kHelp};

  [[nodiscard]] std::vector<std::pair<std::string, std::string>> record_fields() const override {
    return {{"YY", code.content}, {"note", note.content}};
  }
  [[nodiscard]] std::string report() const override { return "BBXX " + code.content + "\r\n"; }

 protected:
  void on_help() override;

 private:
  void set_up_lines();
  void set_up_handlers();
  void set_up_menu();
};

/// Status, transcript and error output of a script.
struct Played {
  int status = 0;
  std::string transcript;
  std::string error;
};

/// Plays the script on a program that shows the form once.
Played play(std::string_view script, const headless::Options& options = {});

}  // namespace test_form
