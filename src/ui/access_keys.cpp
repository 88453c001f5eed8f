#include "ui/access_keys.h"

#include <algorithm>
#include <optional>

#include "ui/dump.h"

namespace ui {
namespace {

char capital(char c) {
  return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

bool is_letter(char c) {
  return capital(c) >= 'A' && capital(c) <= 'Z';
}

// A letter alone in brackets is a unit, and with "&" in front of it would look like the key behind a
// Japanese text.
bool is_unit(std::string_view text, std::size_t at) {
  return at > 0 && at + 1 < text.size() && text[at - 1] == '(' && text[at + 1] == ')';
}

bool begins_word(std::string_view text, std::size_t at) {
  return at == 0 || !is_letter(text[at - 1]);
}

// The letters of the text in the order in which they come to mind: those that begin a word first.
std::string letters_of(std::string_view text) {
  std::string letters;
  for (const bool beginning : {true, false}) {
    for (std::size_t at = 0; at < text.size(); ++at) {
      if (is_letter(text[at]) && !is_unit(text, at) && begins_word(text, at) == beginning)
        letters.push_back(capital(text[at]));
    }
  }
  return letters;
}

// The buttons that end a dialog have keys of their own.
bool wants_key(const Control& control, CaptionPlace caption) {
  switch (control.kind) {
    case Kind::kButton:
      return control.role == Role::kNone;
    case Kind::kTick:
      return true;
    case Kind::kEdit:
    case Kind::kCombo:
    case Kind::kDropDown:
    case Kind::kList:
    case Kind::kChoice:
    case Kind::kMemo:
    case Kind::kTree:
      return caption != CaptionPlace::kNone;
    case Kind::kLabel:
    case Kind::kReadOnly:
    case Kind::kPicture:
      break;
  }
  return false;
}

void collect(const Screen& screen, const PlanNode& node, std::vector<const Control*>& wanting) {
  const Control* const control =
      node.type == PlanNode::Type::kControl ? screen.find(node.name) : nullptr;
  if (control != nullptr && wants_key(*control, node.caption)) wanting.push_back(control);
  for (const PlanNode& child : node.children) collect(screen, child, wanting);
}

}  // namespace

std::vector<char> access_keys(std::span<const std::string> english) {
  std::vector<char> keys(english.size(), '\0');
  std::string taken;
  const auto take = [&](std::size_t at, char key) {
    if (keys[at] != '\0' || key == '\0' || taken.find(key) != std::string::npos) return;
    keys[at] = key;
    taken.push_back(key);
  };
  for (std::size_t at = 0; at < english.size(); ++at) take(at, access_key(english[at]));
  for (std::size_t at = 0; at < english.size(); ++at) {
    for (const char letter : letters_of(english[at])) take(at, letter);
  }
  for (std::size_t at = 0; at < english.size(); ++at) {
    for (char letter = 'A'; letter <= 'Z'; ++letter) take(at, letter);
  }
  return keys;
}

std::string with_access_key(std::string_view text, char key) {
  std::string result(text);
  if (key == '\0' || text.empty() || access_key(text) != '\0') return result;
  std::optional<std::size_t> place;
  for (const bool beginning : {true, false}) {
    for (std::size_t at = 0; at < text.size() && !place; ++at) {
      if (capital(text[at]) == key && !is_unit(text, at) && begins_word(text, at) == beginning)
        place = at;
    }
  }
  if (place) return result.insert(*place, 1, '&');
  return result.append("(&").append(1, key).append(")");
}

std::map<const Control*, char> access_keys_of(const Screen& screen, const Plan& plan) {
  std::map<const Control*, char> keys;
  if (plan.has_menu) return keys;
  std::vector<const Control*> wanting;
  collect(screen, plan.body, wanting);
  collect(screen, plan.foot, wanting);
  // Buttons first: a field is reached by Tab as well.
  std::stable_partition(wanting.begin(), wanting.end(),
                        [](const Control* control) { return control->kind == Kind::kButton; });
  std::vector<std::string> english;
  for (const Control* const control : wanting) english.push_back(screen.english_caption(*control));
  const std::vector<char> letters = access_keys(english);
  for (std::size_t at = 0; at < wanting.size(); ++at) {
    if (letters[at] != '\0') keys[wanting[at]] = letters[at];
  }
  return keys;
}

std::vector<char> access_keys_of(const MessageBox& box) {
  if (box.buttons.size() < 2) return std::vector<char>(box.buttons.size(), '\0');
  std::vector<std::string> english;
  for (const BoxButton& button : box.buttons)
    english.push_back(access_key(button.label) == '\0' ? button.name : button.label);
  return access_keys(english);
}

}  // namespace ui
