#include "text/texts.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>
#include <limits>

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

// Numbers of texts lie close together: among the few of one page a search is short.
constexpr int kPage = 16;
constexpr auto kFirstOfPage = [] {
  std::array<std::uint16_t, (std::end(kTable) - 1)->id / kPage + 2> first{};
  std::size_t page = 0;
  for (std::size_t at = 0; at < std::size(kTable); ++at)
    for (; page <= static_cast<std::size_t>(kTable[at].id / kPage); ++page)
      first.at(page) = static_cast<std::uint16_t>(at);
  for (; page < first.size(); ++page) first.at(page) = std::size(kTable);
  return first;
}();
static_assert(std::size(kTable) <= std::numeric_limits<std::uint16_t>::max());

const Entry* find(Id id) {
  if (id.number < 0 || id.number > (std::end(kTable) - 1)->id) return nullptr;
  const auto page = static_cast<std::size_t>(id.number / kPage);
  const Entry* const end = kTable + kFirstOfPage[page + 1];
  const auto* const at = std::lower_bound(kTable + kFirstOfPage[page], end, id.number,
                                          [](const Entry& e, int wanted) { return e.id < wanted; });
  return at != end && at->id == id.number ? at : nullptr;
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

void append_filled(std::string& result, std::string_view format,
                   std::initializer_list<std::string_view> arguments) {
  for (const std::string_view argument : arguments) {
    auto place = format.find('%');
    while (place != std::string_view::npos && !format.substr(place).starts_with("%s") &&
           !format.substr(place).starts_with("%d"))
      place = format.find('%', place + 1);
    if (place == std::string_view::npos) break;
    result.append(format.substr(0, place)).append(argument);
    format.remove_prefix(place + 2);
  }
  // A place without an argument stays as it is, to be seen.
  result.append(format);
}

std::string fill(std::string_view format, std::initializer_list<std::string_view> arguments) {
  std::string result;
  append_filled(result, format, arguments);
  return result;
}

}  // namespace text
