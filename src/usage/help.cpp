#include "usage/help.h"

#include <algorithm>
#include <utility>

#include "text/ids.h"
#include "version.inc"

namespace id = text::id;

namespace usage {
namespace {

// "usage: NAME WORDS", the ways to call it below each other.
std::string ways_to_call(const Command& command) {
  const std::string first = "usage: ";
  std::string out;
  for (const std::string_view usage : command.usages) {
    const std::string name = command.full_name();
    out.append(out.empty() ? first : std::string(first.size(), ' ')).append(name);
    if (!usage.empty()) out.append(" ");
    for (const char c : usage) {
      out.push_back(c);
      if (c == '\n') out.append(first.size() + name.size() + 1, ' ');
    }
    out.append("\n");
  }
  return out;
}

/// Words and what is said of them, in two columns.
class Columns {
 public:
  explicit Columns(text::Language language) : language_(language) {}

  void add(std::string left, text::Id says) {
    width_ = std::max(width_, left.size());
    rows_.emplace_back(std::move(left), text::bilingual(says, language_));
  }

  void add(const Option& option) {
    std::string left(option.name);
    if (!option.value.empty()) left.append(" ").append(option.value);
    add(std::move(left), option.says);
  }

  [[nodiscard]] std::string text() const {
    std::string out;
    for (const auto& [left, says] : rows_)
      out.append("  ").append(left).append(width_ - left.size() + 2, ' ').append(says).append("\n");
    return out;
  }

 private:
  text::Language language_;
  std::vector<std::pair<std::string, std::string_view>> rows_;
  std::size_t width_ = 0;
};

}  // namespace

std::string_view version() {
  return kVersion;
}

std::string version_line(const Command& command) {
  std::string line(command.program);
  line.append(" ").append(kVersion).append("\n");
  return line;
}

std::string help(const Command& command, text::Language language,
                 std::span<const Command> commands) {
  const auto heading = [&](text::Id heading_id) {
    std::string line("\n");
    line.append(text::bilingual(heading_id, language)).append("\n");
    return line;
  };
  std::string out = ways_to_call(command);
  out.append("\n").append(text::bilingual(command.does, language)).append("\n");

  if (!commands.empty()) {
    Columns names(language);
    for (const Command& each : commands) names.add(std::string(each.name), each.does);
    out.append(heading(id::kUsageCommands)).append(names.text());
  }

  Columns words(language);
  if (!command.argument.empty()) words.add(std::string(command.argument), command.argument_says);
  for (const Option& option : command.options) words.add(option);
  for (const Option& option : common_options()) words.add(option);
  if (command.option("--language") == nullptr && command.option("--locale") == nullptr)
    words.add(language_of_help());
  out.append(heading(id::kUsageOptions)).append(words.text());

  Columns statuses(language);
  for (const Status& status : command.statuses)
    statuses.add(std::to_string(status.number), status.says);
  out.append(heading(id::kUsageStatuses)).append(statuses.text());

  if (!commands.empty())
    out.append("\n").append(text::bilingual(id::kUsageMoreOfACommand, language)).append("\n");
  return out;
}

std::string refusal(const Command& command, std::string_view reason) {
  std::string out(command.program);
  out.append(": ").append(reason).append("\n").append(ways_to_call(command));
  out.append(command.full_name()).append(" --help tells more\n");
  return out;
}

std::string answer_of(const Words& words, std::span<const Command> commands) {
  if (words.wants_help()) return help(words.command(), words.language(), commands);
  if (words.wants_version()) return version_line(words.command());
  return {};
}

}  // namespace usage
