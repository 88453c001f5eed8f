#include "ui/layout.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "text/numbers.h"
#include "text/strings.h"

namespace ui {
namespace {

struct Embedded {
  std::string_view name;
  std::string_view source;
};

constexpr Embedded kLayouts[] = {
#include "layouts.inc"
};

std::vector<std::string_view> words_of(std::string_view line) {
  std::vector<std::string_view> words;
  while (!(line = text::trim(line)).empty()) {
    const auto end = line.find_first_of(" \t");
    words.push_back(line.substr(0, end));
    line.remove_prefix(words.back().size());
  }
  return words;
}

LayoutNode control_node(std::string_view word) {
  LayoutNode node;
  node.type = LayoutNode::Type::kControl;
  if (word.ends_with('^')) {
    node.caption = LayoutNode::Caption::kAbove;
    word.remove_suffix(1);
  } else if (word.ends_with('-')) {
    node.caption = LayoutNode::Caption::kNone;
    word.remove_suffix(1);
  }
  node.name = word;
  return node;
}

LayoutNode row_of(const std::vector<std::string_view>& names) {
  LayoutNode node;
  node.type = LayoutNode::Type::kRow;
  for (const std::string_view name : names) node.children.push_back(control_node(name));
  return node;
}

bool is_verb(std::string_view word) {
  static constexpr std::string_view kVerbs[] = {"rows",    "columns", "flow",  "foot",
                                                "group",   "grid",    "lines", "row",
                                                "buttons", "space",   "end"};
  return std::find(std::begin(kVerbs), std::end(kVerbs), word) != std::end(kVerbs);
}

// Letters, digits and "_", and the mark of where the caption stands.
bool is_name(std::string_view word) {
  if (word.ends_with('^') || word.ends_with('-')) word.remove_suffix(1);
  return !word.empty() && std::all_of(word.begin(), word.end(), [](char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
  });
}

// One line into the open containers; the reason when it is wrong.
std::string take_line(const std::vector<std::string_view>& words, std::vector<LayoutNode>& open) {
  const std::string_view verb = words.front();
  LayoutNode node;
  if (verb == "end") {
    if (open.size() < 2) return "end without a beginning";
    node = std::move(open.back());
    open.pop_back();
    open.back().children.push_back(std::move(node));
    return {};
  }
  if (verb == "row" || verb == "buttons") {
    if (words.size() < 2) return std::string(verb) + " without a control";
    node = row_of({words.begin() + 1, words.end()});
    if (verb == "buttons") node.type = LayoutNode::Type::kButtons;
    open.back().children.push_back(std::move(node));
    return {};
  }
  if (verb == "space") {
    node.type = LayoutNode::Type::kSpace;
    open.back().children.push_back(std::move(node));
    return {};
  }
  if (verb == "rows") {
    node.type = LayoutNode::Type::kRows;
  } else if (verb == "columns") {
    node.type = LayoutNode::Type::kColumns;
  } else if (verb == "flow" && words.size() == 1) {
    node.type = LayoutNode::Type::kFlow;
  } else if (verb == "foot" && words.size() == 1) {
    if (open.size() != 1) return "foot within something else";
    node.type = LayoutNode::Type::kFoot;
  } else if (verb == "group" && words.size() >= 2) {
    node.type = LayoutNode::Type::kGroup;
    node.name = words[1];
    node.beside = row_of({words.begin() + 2, words.end()}).children;
  } else if (verb == "grid" && words.size() == 2 && text::leading_int(words[1]) > 0) {
    node.type = LayoutNode::Type::kGrid;
    node.grid_columns = text::leading_int(words[1]);
  } else if (verb == "lines" && words.size() == 3 && text::leading_int(words[2]) > 0) {
    node.type = LayoutNode::Type::kLines;
    node.name = words[1];
    node.grid_columns = text::leading_int(words[2]);
  } else if (!is_verb(verb) && std::all_of(words.begin(), words.end(), is_name)) {
    open.back().children.push_back(row_of(words));
    return {};
  } else {
    return "unknown: " + std::string(verb);
  }
  open.push_back(std::move(node));
  return {};
}

void collect(const LayoutNode& node, std::vector<std::string>& names) {
  if (!node.name.empty()) names.push_back(node.name);
  for (const LayoutNode& each : node.beside) collect(each, names);
  for (const LayoutNode& child : node.children) collect(child, names);
}

}  // namespace

LayoutResult parse_layout(std::string_view source) {
  LayoutResult result;
  std::vector<LayoutNode> open(1);
  int number = 0;
  while (!source.empty()) {
    const auto end = source.find('\n');
    const std::string_view line = text::trim(source.substr(0, end));
    source.remove_prefix(end == std::string_view::npos ? source.size() : end + 1);
    ++number;
    if (line.empty() || line.front() == '#') continue;
    // What came behind it would be drawn above it.
    if (open.size() == 1 && !open.front().children.empty() &&
        open.front().children.back().type == LayoutNode::Type::kFoot) {
      result.error = "line " + text::format_int(number) + ": something behind the foot";
      return result;
    }
    if (std::string reason = take_line(words_of(line), open); !reason.empty()) {
      result.error = "line " + text::format_int(number) + ": " + reason;
      return result;
    }
  }
  if (open.size() != 1) result.error = "an end is missing";
  result.root = std::move(open.front());
  return result;
}

std::string_view layout_source(std::string_view class_name) {
  for (const Embedded& layout : kLayouts) {
    if (layout.name == class_name) return layout.source;
  }
  return {};
}

std::vector<std::string_view> layout_names() {
  std::vector<std::string_view> names;
  for (const Embedded& layout : kLayouts) {
    if (!layout.name.empty()) names.push_back(layout.name);
  }
  return names;
}

std::vector<std::string> placed_names(const LayoutNode& root) {
  std::vector<std::string> names;
  collect(root, names);
  return names;
}

}  // namespace ui
