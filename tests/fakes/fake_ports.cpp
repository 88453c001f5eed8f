#include "fakes/fake_ports.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "text/ids.h"

namespace fakes {

ui::PrintResult FakePrinter::print(const ui::Sheets& sheets) {
  if (answer == ui::PrintResult::kSuccess) printed.push_back(sheets);
  return answer;
}

std::optional<std::string> FakePrinter::pdf(const ui::Sheets& sheets) const {
  if (!makes_pdf) return std::nullopt;
  std::string text;
  if (sheets.lines != nullptr)
    for (const std::string& line : sheets.lines->lines(0, sheets.lines->size()))
      text.append(line).append("\n");
  return text;
}

FakeWindows::~FakeWindows() {
  verify();
}

void FakeWindows::expect(text::Id text_id, std::string answer) {
  expected_.push_back({text_id, {}, std::move(answer), {}, {}});
}

void FakeWindows::expect_text(std::string text, std::string answer) {
  expected_.push_back({0, std::move(text), std::move(answer), {}, {}});
}

void FakeWindows::expect_screen(std::string class_name, std::function<void(ui::Screen&)> act) {
  expected_.push_back({0, {}, {}, std::move(class_name), std::move(act)});
}

void FakeWindows::answer_all(std::string answer, std::function<void(ui::Screen&)> act) {
  act_in_all_ = std::move(act);
  answer_to_all_ = std::move(answer);
}

void FakeWindows::verify() {
  for (const Expected& left : expected_) {
    ADD_FAILURE() << "expected and never came: " << left.text_id << " " << left.text << left.screen;
  }
  expected_.clear();
}

// What tells that something went well. Every other notice is a warning, so whoever adds one that is
// not says so here.
ui::Sign sign_of(const ui::MessageBox& box) {
  if (box.buttons.size() > 1) return ui::Sign::kQuestion;
  constexpr text::Id kGood[] = {
      text::id::kSaved,         text::id::kSaveFinished,  text::id::kReportCopied,
      text::id::kLogbookCopied, text::id::kReportsCopied, text::id::kPrintSuccess,
      text::id::kPdfSaved,
  };
  const bool good = std::find(std::begin(kGood), std::end(kGood), box.text_id) != std::end(kGood);
  return good ? ui::Sign::kInformation : ui::Sign::kWarning;
}

int FakeWindows::show_message(const ui::MessageBox& box) {
  EXPECT_EQ(sign_of(box), box.sign) << box.text;
  boxes.push_back(box);
  if (while_open) while_open();
  if (answer_to_all_) {
    const auto all =
        std::find_if(box.buttons.begin(), box.buttons.end(),
                     [&](const ui::BoxButton& b) { return b.name == *answer_to_all_; });
    return all == box.buttons.end() ? box.close_result : all->result;
  }
  if (expected_.empty()) {
    ADD_FAILURE() << "unexpected message " << box.text_id << ": " << box.text;
    return box.close_result;
  }
  const Expected next = std::move(expected_.front());
  expected_.pop_front();
  EXPECT_TRUE(next.screen.empty())
      << "expected the screen " << next.screen << ", got: " << box.text;
  if (next.text.empty()) {
    EXPECT_EQ(next.text_id, box.text_id) << box.text;
  } else {
    EXPECT_EQ(next.text, box.text);
  }
  if (next.answer == "close") return box.close_result;
  const auto button = std::find_if(box.buttons.begin(), box.buttons.end(),
                                   [&](const ui::BoxButton& b) { return b.name == next.answer; });
  if (button == box.buttons.end()) {
    ADD_FAILURE() << "no button " << next.answer << " in: " << box.text;
    return box.close_result;
  }
  return button->result;
}

int FakeWindows::run_modal(ui::Screen& screen) {
  screen.open();
  if (screen.result()) return *screen.result();
  if (answer_to_all_) {
    notices.push_back("modal " + screen.class_name());
    if (act_in_all_) act_in_all_(screen);
    if (!screen.result()) screen.close_box();
    return screen.result().value_or(ui::kCancel);
  }
  if (expected_.empty() || expected_.front().screen != screen.class_name()) {
    ADD_FAILURE() << "unexpected screen " << screen.class_name();
    return ui::kCancel;
  }
  const Expected next = std::move(expected_.front());
  expected_.pop_front();
  if (next.act) next.act(screen);
  if (!screen.result()) {
    ADD_FAILURE() << screen.class_name() << " was left open";
    return ui::kCancel;
  }
  return *screen.result();
}

void FakeWindows::show_notice(ui::Screen& screen) {
  screen.open();
  notices.push_back("show " + screen.class_name());
}

void FakeWindows::hide_notice(ui::Screen& screen) {
  notices.push_back("hide " + screen.class_name());
}

void FakeWindows::pause(int milliseconds) {
  notices.push_back("pause " + std::to_string(milliseconds));
}

std::optional<std::string> FakeWindows::browse_for_folder(const std::string& /*caption*/,
                                                          const std::string& /*initial*/) {
  return browse_answer;
}

bool enter(ui::Screen& screen, ui::Control& control, std::string_view text) {
  if (!screen.move_focus(control)) return false;
  screen.type(control, text);
  return true;
}

void choose_text(ui::Screen& screen, ui::Control& control, std::string_view line) {
  const auto at = std::find(control.items.begin(), control.items.end(), line);
  if (at == control.items.end()) {
    ADD_FAILURE() << control.name << " has no line " << line;
    return;
  }
  if (control.can_focus() && !screen.move_focus(control)) return;
  screen.choose(control, static_cast<int>(at - control.items.begin()));
}

std::string dump(const ui::Screen& screen) {
  std::string result;
  for (const ui::Control* const c : screen.controls()) {
    // A text that only says in words what stands elsewhere, of the field that has the focus.
    if (c->repeats && c->kind != ui::Kind::kPicture) continue;
    result += c->name + "=" + c->content + "/" + std::to_string(c->selected) + "/" +
              (c->checked ? "on" : "off") + "/" + (c->enabled ? "enabled" : "disabled") + "/" +
              (c->visible ? "visible" : "hidden") + "\n";
  }
  return result;
}

std::string lines_of(const ui::Control& list) {
  std::string lines;
  for (const std::string& line : list.items) lines.append(line).append("\r\n");
  return lines;
}

}  // namespace fakes
