#include "usage/command.h"

#include <algorithm>

#include "text/ids.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace id = text::id;

namespace usage {
namespace {

constexpr Option kCommon[] = {
    {"--help", Value::kNone, "", id::kUsageHelp},
    {"--version", Value::kNone, "", id::kUsageVersion},
};
constexpr Option kLanguageOfHelp = {"--language", Value::kChoice, "en|ja",
                                    id::kUsageLanguageOfHelp};

const Option* find(std::span<const Option> options, std::string_view name) {
  const auto found = std::ranges::find(options, name, &Option::name);
  return found == options.end() ? nullptr : &*found;
}

bool is_choice(std::string_view choices, std::string_view value) {
  while (!choices.empty()) {
    const auto bar = choices.find('|');
    if (choices.substr(0, bar) == value) return true;
    choices.remove_prefix(bar == std::string_view::npos ? choices.size() : bar + 1);
  }
  return false;
}

}  // namespace

std::string Command::full_name() const {
  std::string whole(program);
  if (!name.empty()) whole.append(" ").append(name);
  return whole;
}

const Option* Command::option(std::string_view wanted) const {
  const Option* own = find(options, wanted);
  return own != nullptr ? own : find(kCommon, wanted);
}

std::span<const Option> common_options() {
  return kCommon;
}

const Option& language_of_help() {
  return kLanguageOfHelp;
}

bool is_year_and_month(std::string_view text) {
  constexpr std::size_t kYear = 4;
  return text.size() == 7 && text[kYear] == '-' && text::is_all_digits(text.substr(0, kYear)) &&
         text::is_all_digits(text.substr(kYear + 1)) && text.substr(kYear + 1) >= "01" &&
         text.substr(kYear + 1) <= "12" && !text.starts_with("0000");
}

Words::Words(const Command& command, const std::vector<std::string>& words) : command_(&command) {
  bool options_ended = false;
  for (std::size_t i = 0; i < words.size(); ++i) {
    const std::string& word = words[i];
    if (!options_ended && word == "--") {
      options_ended = true;
    } else if (!options_ended && word.size() > 1 && word.front() == '-') {
      take_option(words, i);
    } else if (command.argument.empty() || has_file_) {
      refuse("unknown argument " + word);
    } else {
      file_ = word;
      has_file_ = true;
    }
  }
  if (has(kLanguageOfHelp.name) && command.option(kLanguageOfHelp.name) == nullptr && !wants_help())
    refuse(std::string(kLanguageOfHelp.name) + " goes with --help");
}

void Words::take_option(const std::vector<std::string>& words, std::size_t& i) {
  const std::string& word = words[i];
  const auto equals = word.find('=');
  const std::string name = word.substr(0, equals);
  const Option* option = command_->option(name);
  if (option == nullptr && name == kLanguageOfHelp.name) option = &kLanguageOfHelp;
  if (option == nullptr) return refuse("unknown option " + name);
  const bool has_value = equals != std::string::npos;
  if (option->kind == Value::kNone) {
    if (has_value) return refuse(name + " takes no value");
    values_[name];
  } else if (has_value) {
    take_value(*option, word.substr(equals + 1));
  } else if (++i < words.size()) {
    take_value(*option, words[i]);
  } else {
    refuse(name + " wants a value, " + std::string(option->value));
  }
}

void Words::take_value(const Option& option, const std::string& value) {
  const std::string name(option.name);
  if (option.kind == Value::kFile && value.empty())
    return refuse(name + " wants a value, " + std::string(option.value));
  if (option.kind == Value::kChoice && !is_choice(option.value, value))
    return refuse(name + " is " + text::replace_all(option.value, "|", " or ") + ", not \"" +
                  value + "\"");
  if (option.kind == Value::kMonth && !is_year_and_month(value))
    return refuse(name + " is a year and a month, YYYY-MM, not \"" + value + "\"");
  values_[name] = value;
}

void Words::refuse(const std::string& why) {
  if (wrong_.empty()) wrong_ = why;
}

const std::string& Words::value(std::string_view option) const {
  static const std::string none;
  const auto found = values_.find(option);
  return found == values_.end() ? none : found->second;
}

text::Language Words::language() const {
  for (const std::string_view option : {"--language", "--locale"})
    if (value(option).starts_with("ja")) return text::Language::kJapanese;
  return text::Language::kEnglish;
}

}  // namespace usage
