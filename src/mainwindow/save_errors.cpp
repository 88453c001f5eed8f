#include "mainwindow/save_errors.h"

#include <algorithm>
#include <utility>

#include "elements/form/cross_rules.h"
#include "elements/form/fields.h"
#include "explain/doubts/doubts.h"
#include "mainwindow/form_rows.h"
#include "observation/report_encoder.h"
#include "observation/report_groups.h"
#include "observation/values.h"
#include "text/ids.h"

namespace mainwindow {
namespace {

using elements::Field;
using W = Struct_Weather;

// Where figures come from that have no field of their own, or one that the program fills.
struct Source {
  std::string W::*figures;
  std::string_view control;
};
constexpr Source kSources[] = {
    {&W::Qc, "north_south"}, {&W::Qc, "east_west"},
    {&W::PPPP, "reading"},   {&W::TdTdTd, "wet_bulb"},
    {&W::dd, "heading"},     {&W::dd, "course"},
    {&W::dd, "ship_speed"},  {&W::dd, "apparent_direction"},
    {&W::ff, "ship_speed"},  {&W::ff, "apparent_speed"},
};

std::vector<std::string_view> fields_of(std::string W::*figures) {
  std::vector<std::string_view> names;
  for (const elements::FieldRow& row : elements::field_rows())
    if (row.member == figures) names.push_back(row.name);
  for (const Source& source : kSources)
    if (source.figures == figures) names.push_back(source.control);
  return names;
}

// A quadrant is two choices; a doubt about one of them leads to that one, not to the degrees beside.
struct HalfOfQuadrant {
  std::string_view doubt;
  std::string_view control;
};
constexpr HalfOfQuadrant kHalvesOfQuadrant[] = {{"north_for_south", "north_south"},
                                                {"east_for_west", "east_west"}};

std::vector<std::string_view> fields_of(const explain::DoubtRow& row) {
  for (const HalfOfQuadrant& half : kHalvesOfQuadrant)
    if (half.doubt == row.name) return {half.control};
  std::vector<std::string_view> names;
  for (std::string W::*const figures : row.about) {
    if (figures == nullptr) break;
    const auto more = fields_of(figures);
    names.insert(names.end(), more.begin(), more.end());
  }
  return names;
}

std::vector<std::string_view> fields_lacking(const W& record, observation::Group group) {
  std::vector<std::string_view> names;
  for (const observation::Symbol& symbol : observation::row_of(group).used()) {
    if (!(record.*symbol.field).empty()) continue;
    const auto more = fields_of(symbol.field);
    names.insert(names.end(), more.begin(), more.end());
  }
  // Where every one of these is locked, the group itself can be typed.
  for (const ReportGroupRow& row : report_group_rows())
    if (row.group == group) names.push_back(row.name);
  return names;
}

std::vector<std::string_view> fields_of(const elements::CrossRule& rule) {
  std::vector<std::string_view> names;
  for (const elements::FieldRow& row : elements::field_rows())
    if (rule.raised_by.contains(row.field) || rule.also_about.contains(row.field))
      names.push_back(row.name);
  return names;
}

}  // namespace

std::vector<SaveError> errors_of(const Struct_Weather& record, const ShipFixedData& ship,
                                 const text::Texts& texts) {
  std::vector<SaveError> errors;
  const auto report = observation::make_report(record, observation::wants_wet_bulb(ship));
  for (const observation::Group group : report.missing.in_order())
    errors.push_back(
        {observation::missing_line(group, texts.language), fields_lacking(record, group)});
  for (const elements::CrossRule* rule : elements::broken_rules(record))
    errors.push_back({std::string(texts.get(rule->message)), fields_of(*rule)});
  return errors;
}

std::vector<SaveError> doubts_about(const Struct_Weather& record,
                                    std::span<const observation::PastObservation> past,
                                    const text::Texts& texts) {
  std::vector<SaveError> errors;
  for (const explain::Doubt& doubt :
       explain::doubts_of(observation::values_of(record), past, texts.language)) {
    errors.push_back(
        {text::fill(texts.get(text::id::kDoubt), {doubt.text}), fields_of(*doubt.row), true});
  }
  return errors;
}

}  // namespace mainwindow
