#include "text/texts.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "text/ids.h"

namespace text {
namespace {

struct Entry {
  int id;
  std::string_view text;
};

// Sorted by id when the program is built.
constexpr Entry kTable[] = {
#include "string_table.inc"
};

const Entry* find(Id id) {
  const auto* const at = std::lower_bound(std::begin(kTable), std::end(kTable), id.number,
                                          [](const Entry& e, int wanted) { return e.id < wanted; });
  return at != std::end(kTable) && at->id == id.number ? at : nullptr;
}

}  // namespace

std::string_view entry(Id id) {
  const Entry* const found = find(id);
  return found == nullptr ? std::string_view() : found->text;
}

bool has_entry(Id id) {
  return find(id) != nullptr;
}

std::string_view half(std::string_view combined, Language language) {
  static const std::string_view marker = entry(id::kLanguageMarker);
  const auto at = combined.find(marker);
  if (at == std::string_view::npos) return combined;
  return language == Language::kEnglish ? combined.substr(0, at)
                                        : combined.substr(at + marker.size());
}

std::string_view bilingual(Id id, Language language) {
  // The marker's own entry is nothing but the marker, and is the one text that must not be split.
  return id == id::kLanguageMarker ? entry(id) : half(entry(id), language);
}

std::string_view resolve(Ref ref, Language language) {
  if (!ref.id) return {};
  if (ref.english_offset == 0) return bilingual(ref.id, language);
  return entry(language == Language::kJapanese ? ref.id : ref.id + ref.english_offset);
}

std::string fill(std::string_view format, std::initializer_list<std::string_view> arguments) {
  std::string result;
  const auto* next = arguments.begin();
  while (!format.empty()) {
    // A place without an argument stays as it is, to be seen.
    const bool place = format.starts_with("%s") || format.starts_with("%d");
    if (place && next != arguments.end()) {
      result.append(*next++);
      format.remove_prefix(2);
    } else {
      result.push_back(format.front());
      format.remove_prefix(1);
    }
  }
  return result;
}

}  // namespace text
