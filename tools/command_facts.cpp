// Tells the rows of the programs and commands as JSON, for the pages of the manual and the
// completion of shells, which are made of them when the program is built.

#include <iostream>
#include <nlohmann/json.hpp>

#include "usage/help.h"
#include "usage/programs.h"

namespace {

using nlohmann::ordered_json;

ordered_json both(text::Id id) {
  if (!id) return nullptr;
  return {{"en", text::bilingual(id, text::Language::kEnglish)},
          {"ja", text::bilingual(id, text::Language::kJapanese)}};
}

const char* name_of(usage::Value kind) {
  switch (kind) {
    case usage::Value::kNone:
      return "none";
    case usage::Value::kText:
      return "text";
    case usage::Value::kChoice:
      return "choice";
    case usage::Value::kMonth:
      return "month";
    case usage::Value::kFolder:
      return "folder";
    case usage::Value::kFile:
      return "file";
  }
  return "";
}

ordered_json json_of(const usage::Option& option) {
  return {{"name", option.name},
          {"kind", name_of(option.kind)},
          {"value", option.value},
          {"says", both(option.says)}};
}

ordered_json json_of(std::span<const usage::Option> options) {
  ordered_json list = ordered_json::array();
  for (const usage::Option& option : options) list.push_back(json_of(option));
  return list;
}

ordered_json json_of(const usage::Command& command) {
  ordered_json row;
  row["program"] = command.program;
  row["name"] = command.name;
  row["usages"] = ordered_json::array();
  for (const std::string_view usage : command.usages) row["usages"].push_back(usage);
  row["does"] = both(command.does);
  row["argument"] = command.argument;
  row["argument_says"] = both(command.argument_says);
  row["options"] = json_of(command.options);
  row["statuses"] = ordered_json::array();
  for (const usage::Status& status : command.statuses)
    row["statuses"].push_back({{"number", status.number}, {"says", both(status.says)}});
  return row;
}

}  // namespace

int main() {
  ordered_json facts;
  facts["version"] = usage::version();
  facts["programs"] = {json_of(usage::desktop_program()), json_of(usage::cli_program())};
  facts["commands"] = ordered_json::array();
  for (const usage::Command& command : usage::cli_commands())
    facts["commands"].push_back(json_of(command));
  facts["common_options"] = json_of(usage::common_options());
  facts["language_of_help"] = json_of(usage::language_of_help());
  std::cout << facts.dump(1) << "\n";
  return std::cout.flush() ? 0 : 1;
}
