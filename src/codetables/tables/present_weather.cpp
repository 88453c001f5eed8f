#include "codetables/tables/present_weather.h"

#include <algorithm>

#include "text/ids.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace codetables {
namespace {

namespace id = text::id;

constexpr std::string_view kSolidi = "//";

constexpr PresentWeatherGroup kWithPrecipitation[] = {
    {95, 99, id::kPresentWeatherGroup95}, {91, 94, id::kPresentWeatherGroup91},
    {85, 90, id::kPresentWeatherGroup85}, {80, 84, id::kPresentWeatherGroup80},
    {70, 79, id::kPresentWeatherGroup70}, {60, 69, id::kPresentWeatherGroup60},
    {50, 59, id::kPresentWeatherGroup50},
};

constexpr PresentWeatherGroup kWithoutPrecipitation[] = {
    {40, 49, id::kPresentWeatherGroup40}, {30, 39, id::kPresentWeatherGroup30},
    {20, 29, id::kPresentWeatherGroup20}, {18, 19, id::kPresentWeatherGroup18},
    {17, 17, id::kPresentWeatherGroup17}, {13, 16, id::kPresentWeatherGroup13},
    {10, 12, id::kPresentWeatherGroup10}, {4, 9, id::kPresentWeatherGroup04},
    {0, 3, id::kPresentWeatherGroup00},
};

constexpr int kFirstOfPrecipitation = 50;
constexpr int kFirstOfTheHourBefore = 20;

const PresentWeatherGroup* group_at(int choice, int group) {
  const auto groups = present_weather_groups(choice);
  const auto at = static_cast<std::size_t>(group);
  return group < 0 || at >= groups.size() ? nullptr : &groups[at];
}

}  // namespace

std::span<const PresentWeatherGroup> present_weather_groups(int choice) {
  if (choice == 0) return kWithPrecipitation;
  if (choice == 1) return kWithoutPrecipitation;
  return {};
}

std::span<const CodeRow> present_weather_lines(int choice, int group) {
  const PresentWeatherGroup* const chosen = group_at(choice, group);
  if (chosen == nullptr) return {};
  // One row a code, in the order of the codes.
  const int count = chosen->last - chosen->first + 1;
  return table_of("ww")->rows.subspan(static_cast<std::size_t>(chosen->first),
                                      static_cast<std::size_t>(count));
}

PresentWeatherPlace present_weather_place(std::string_view ww) {
  if (text::trim(ww) == kSolidi) return {.choice = kWeatherNotObserved};
  const auto code = text::whole_number(ww, 0, 99);
  if (!code) return {};
  PresentWeatherPlace place{.choice = *code < kFirstOfPrecipitation ? 1 : 0};
  const auto groups = present_weather_groups(place.choice);
  const auto holds_it = [&](const PresentWeatherGroup& group) {
    return *code >= group.first && *code <= group.last;
  };
  const auto group = std::find_if(groups.begin(), groups.end(), holds_it);
  place.group = static_cast<int>(group - groups.begin());
  if (group->first != kFirstOfTheHourBefore) place.line = *code - group->first;
  return place;
}

std::optional<std::string> present_weather_code(const PresentWeatherPlace& place) {
  if (place.choice == kWeatherNotObserved) return std::string(kSolidi);
  const PresentWeatherGroup* const group = group_at(place.choice, place.group);
  if (group == nullptr) return std::nullopt;
  if (group->first == group->last) return text::format_int(group->first, 2, '0');
  if (place.line < 0 || place.line > group->last - group->first) return std::nullopt;
  return text::format_int(group->first + place.line, 2, '0');
}

}  // namespace codetables
