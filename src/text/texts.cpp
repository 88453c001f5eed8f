#include "text/texts.h"

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

// Where the text of each number stands in the table, counted from 1.
constexpr auto kPlaceOf = [] {
  std::array<std::uint16_t, (std::end(kTable) - 1)->id + 1> place{};
  for (std::size_t at = 0; at < std::size(kTable); ++at)
    place.at(static_cast<std::size_t>(kTable[at].id)) = static_cast<std::uint16_t>(at + 1);
  return place;
}();
static_assert(std::size(kTable) < std::numeric_limits<std::uint16_t>::max());

constexpr const Entry* find(Id id) {
  if (id.number < 0 || static_cast<std::size_t>(id.number) >= kPlaceOf.size()) return nullptr;
  const std::size_t place = kPlaceOf[static_cast<std::size_t>(id.number)];
  return place == 0 ? nullptr : &kTable[place - 1];
}

constexpr std::string_view kMarker = find(id::kLanguageMarker)->text;

// How long the English half of each text is; npos where there is no other.
constexpr auto kEnglishOf = [] {
  std::array<std::size_t, std::size(kTable)> length{};
  for (std::size_t at = 0; at < std::size(kTable); ++at) {
    const bool is_marker = kTable[at].id == id::kLanguageMarker.number;
    // The marker's own entry is nothing but the marker, and is the one text that must not be split.
    length.at(at) = is_marker ? std::string_view::npos : kTable[at].text.find(kMarker);
  }
  return length;
}();

std::string_view half_at(std::string_view combined, std::size_t english, Language language) {
  if (english == std::string_view::npos) return combined;
  return language == Language::kEnglish ? combined.substr(0, english)
                                        : combined.substr(english + kMarker.size());
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
  return half_at(combined, combined.find(kMarker), language);
}

std::string_view bilingual(Id id, Language language) {
  const Entry* const found = find(id);
  if (found == nullptr) return {};
  return half_at(found->text, kEnglishOf[static_cast<std::size_t>(found - kTable)], language);
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
