#include "headless/box_commands.h"

#include "headless/script_windows.h"
#include "text/strings.h"

namespace headless {
namespace {

std::string buttons_of(const ui::MessageBox& box) {
  std::string result;
  for (const ui::BoxButton& button : box.buttons) result += " [" + button.label + "]";
  return result;
}

const ui::BoxButton* button_named(const ui::MessageBox& box, std::string_view answer) {
  for (const ui::BoxButton& button : box.buttons) {
    if (same_word(answer, button.name) || answer == button.label ||
        same_word(answer, ui::without_access_key(button.label)))
      return &button;
  }
  return nullptr;
}

}  // namespace

std::string describe(const ui::MessageBox& box) {
  return ui::quoted(box.title) + ": " + ui::quoted(box.text) + buttons_of(box);
}

std::optional<int> answer_box(ScriptWindows& windows, const ui::MessageBox& box, const Line& line) {
  const std::string_view verb = line.verb();
  if (verb == "answer") {
    const std::string answer = plain_text(text::trim(line.rest()));
    const ui::BoxButton* const button = button_named(box, answer);
    if (button == nullptr) {
      windows.stop(line, Status::kCannot,
                   "no button " + ui::quoted(answer) + "; there are" + buttons_of(box));
    }
    return button->result;
  }
  if (verb == "close") return box.close_result;
  if (verb == "expect-message") {
    // Nothing stands in every text, so expecting it would always come true.
    if (const std::string part = plain_text(line.rest());
        part.empty() || box.text.find(part) == std::string::npos) {
      windows.stop(
          line, Status::kExpectFailed,
          "expected a message with " + ui::quoted(part) + ", it is " + ui::quoted(box.text));
    }
    return std::nullopt;
  }
  if (verb == "show" && text::trim(line.rest()).empty()) {
    windows.say(describe(box));
    return std::nullopt;
  }
  windows.stop(line, Status::kCannot, "a question is waiting: " + describe(box));
}

}  // namespace headless
