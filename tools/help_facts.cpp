// What the help pages repeat of the program, from the program itself: code tables with their
// pictures and drawings, the groups of the report, the Beaufort scale, and the worked examples,
// which are entered into the form here. tools/make_help.py runs it when the pages are made.
//
//   kavrel-help-facts < EXAMPLES > FACTS.json
//
// An example is a line: its name, then what is entered, in this order, as NAME=VALUE. A name is a
// field's of the form, "ship.X" an item of the ship, "item.X" an observation item, "hemispheres"
// one of NE, NW, SE, SW, "freeze" the button beside the wet bulb. A name behind "!" is an entry that
// the form must refuse. An entry that goes otherwise ends the program: no page tells what is untrue.

#include <algorithm>
#include <iostream>
#include <nlohmann/json.hpp>
#include <sstream>
#include <stdexcept>
#include <string>

#include "codetables/code_pickers.h"
#include "codetables/ice_drawings.h"
#include "codetables/tables/sea_waves.h"
#include "codetables/tables/temperature_figures.h"
#include "codetables/tables/wind_figures.h"
#include "codetables/wave_drawings.h"
#include "elements/form/observation_form.h"
#include "elements/formulas/wave_period.h"
#include "elements/tendency_curves.h"
#include "observation/ship_values.h"
#include "text/numbers.h"
#include "text/texts.h"

namespace {

using Json = nlohmann::ordered_json;
using elements::Answer;
using text::Language;

// ---- Code tables

Json points_of(const std::vector<ui::Point>& points) {
  Json json = Json::array();
  for (const ui::Point point : points) json.push_back({point.x, point.y});
  return json;
}

/// Areas and lines alone: what is written on a drawing the row beside it says.
Json drawing_json(const ui::Drawing& drawing) {
  Json shapes = Json::array();
  for (const ui::Shape& shape : drawing.shapes) {
    if (const auto* area = std::get_if<ui::Area>(&shape)) {
      shapes.push_back({{"area", points_of(area->outline)}, {"ink", ui::name_of(area->ink)}});
    } else if (const auto* line = std::get_if<ui::Polyline>(&shape)) {
      shapes.push_back({{"line", points_of(line->points)},
                        {"ink", ui::name_of(line->ink)},
                        {"thick", line->thick},
                        {"arrow", line->arrow}});
    }
  }
  return {{"x", {drawing.x.first, drawing.x.last}},
          {"y", {drawing.y.first, drawing.y.last}},
          {"same_scale", drawing.same_scale},
          {"shapes", std::move(shapes)}};
}

/// The curve of a characteristic alone in its cell.
ui::Drawing curve(char characteristic) {
  ui::Drawing drawing;
  drawing.x = {"time", -0.1, 1.1};
  drawing.y = {"pressure", -0.1, 1.1};
  const auto points = elements::tendency_curve(characteristic);
  if (!points.empty())
    drawing.shapes.emplace_back(ui::Polyline{{points.begin(), points.end()}, ui::Ink::kMark, true});
  return drawing;
}

/// From where a swell comes, on the compass card of its dialog.
ui::Drawing swell_from(std::string_view tens) {
  return *codetables::drawn_directions({text::strict_number(tens)});
}

Json drawn(std::string_view symbol, std::string_view figures) {
  if (figures == "/" || figures == "//") return {};
  if (symbol == "a") return drawing_json(curve(figures.front()));
  const bool is_direction = text::whole_number(figures, 1, codetables::kNorthInTens).has_value();
  if (symbol == "dw1dw1" && is_direction) return drawing_json(swell_from(figures));
  if (symbol == "Di") return drawing_json(codetables::ice_edge(figures, Language::kEnglish));
  if (symbol == "ci") return drawing_json(codetables::ice_field(figures));
  return {};
}

/// The figures that a page shows: those of the rows, and of directions every third one.
std::vector<std::string> figures_shown(const codetables::CodeTable& table) {
  std::vector<std::string> shown;
  for (const codetables::CodeRow& row : table.rows) {
    shown.emplace_back(row.figures);
    if (table.number != "0877" || row.figures != codetables::kNoWaves) continue;
    for (int tens = 3; tens <= codetables::kNorthInTens; tens += 3)
      shown.push_back(text::format_digits(tens, 2));
  }
  return shown;
}

std::string_view picture_of(std::string_view symbol, std::string_view figures) {
  for (const codetables::CodePicker* picker : codetables::code_pickers())
    for (const codetables::PickedCode& picked : picker->codes)
      for (const codetables::LinePicture& picture : picked.pictures)
        if (picked.symbol == symbol && picture.code == figures) return picture.file;
  return {};
}

Json code_table(const codetables::CodeTable& table, std::string_view symbol) {
  Json rows = Json::array();
  for (const std::string& figures : figures_shown(table)) {
    Json told{{"figures", figures},
              {"text",
               {*codetables::meaning(table, figures, Language::kEnglish),
                *codetables::meaning(table, figures, Language::kJapanese)}}};
    Json drawing = drawn(symbol, figures);
    if (!drawing.is_null() && !drawing["shapes"].empty()) told["drawing"] = std::move(drawing);
    if (const auto picture = picture_of(symbol, figures); !picture.empty())
      told["picture"] = picture;
    rows.push_back(std::move(told));
  }
  return {{"number", table.number}, {"rows", std::move(rows)}};
}

Json code_tables() {
  Json tables = Json::object();
  for (const codetables::CodeTable& table : codetables::code_tables())
    for (const std::string_view symbol : table.symbols)
      if (!symbol.empty()) tables[std::string(symbol)] = code_table(table, symbol);
  return tables;
}

// ---- Groups

/// A symbol as the code writes it: the record keeps apart what groups spell alike.
std::string spelt(std::string_view name) {
  constexpr std::pair<std::string_view, std::string_view> kOtherwise[] = {
      {"LaDeg", "LaLa"}, {"LaMin", "La"}, {"LoDeg", "LoLoLo"}, {"LoMin", "Lo"},
      {"SnT", "Sn"},     {"SnTd", "Sn"},  {"GGExact", "GG"}};
  for (const auto& [of_record, of_code] : kOtherwise)
    if (name == of_record) return std::string(of_code);
  return std::string(name);
}

std::string name_of(const observation::GroupRow& row) {
  std::string name(row.indicator);
  for (const observation::Symbol& symbol : row.used())
    for (const WeatherField& field : weather_fields())
      if (field.member == symbol.field) name.append(spelt(field.name));
  return name;
}

Json groups() {
  Json all = Json::array();
  for (const observation::GroupRow& row : observation::group_rows()) {
    Json widths = Json::array();
    for (const observation::Symbol& symbol : row.used()) widths.push_back(symbol.width);
    all.push_back({{"name", name_of(row)},
                   {"indicator", row.indicator},
                   {"widths", std::move(widths)},
                   {"always", row.written == observation::Written::kAlways}});
  }
  return all;
}

// ---- Waves and wind

Json beaufort() {
  Json forces = Json::array();
  for (int force = 0, knots = 0; force <= 12; ++force) {
    const int first = knots;
    while (force < 12 &&
           codetables::beaufort_force(codetables::Knot{static_cast<double>(knots)}) == force)
      ++knots;
    std::string height(codetables::probable_wave_height(force));
    std::erase(height, ' ');
    forces.push_back({{"force", force},
                      {"from", first},
                      {"to", force < 12 ? Json(knots - 1) : Json()},
                      {"height", std::move(height)}});
  }
  return forces;
}

Json wave_periods() {
  Json periods = Json::object();
  for (int metres = 1; metres <= 975; ++metres) {
    const double seconds =
        elements::deep_water_period(elements::Metre{static_cast<double>(metres)}).value;
    periods[std::to_string(metres)] = text::format_fixed(seconds, 0);
  }
  return periods;
}

// ---- Examples

class NoClock : public platform::Clock {
 public:
  [[nodiscard]] platform::DateTime local() const override { return utc(); }
  [[nodiscard]] platform::DateTime utc() const override { return {2026, 11, 15, 3, 0, 0}; }
};

class Example {
 public:
  void enter(std::string name, const std::string& value) {
    const bool refused = name.starts_with('!');
    if (refused) name.erase(0, 1);
    if (name.starts_with("ship.")) {
      want(observation::store_ship_value(ship_, name.substr(5), value) ==
               observation::Stored::kStored,
           name);
      form_.ship_changed();
    } else if (name.starts_with("item.")) {
      want(observation::store_item_value(items_, name.substr(5), value) ==
               observation::Stored::kStored,
           name);
      form_.items_changed();
    } else if (name == "hemispheres") {
      form_.choose_hemispheres(value[0] == 'N' ? 0 : 1, value[1] == 'E' ? 0 : 1);
    } else if (name == "freeze") {
      form_.toggle_freeze();
    } else {
      const auto field = elements::field_named(name);
      want(field.has_value(), name);
      form_.type(*field, value);
      const Answer answer = form_.leave(*field, elements::kEveryQuestion);
      want(answer.accepted() != refused, name);
    }
  }

  [[nodiscard]] Json result() const {
    Json json = Json::object();
    for (const elements::FieldRow& row : elements::field_rows())
      json[std::string(row.name)] = form_.text(row.field);
    const observation::Report report = form_.report();
    json["report"] = report.text;
    if (const auto tenths = codetables::signed_tenths(form_.record().SnTd, form_.record().TdTdTd))
      json["dew"] = text::format_fixed(*tenths / 10.0, 1);
    for (const observation::GroupRow& row : observation::group_rows()) {
      std::string group = observation::group_text(form_.record(), row.group);
      std::replace(group.begin(), group.end(), '*', '/');
      json[name_of(row)] = std::move(group);
    }
    return json;
  }

 private:
  static void want(bool held, const std::string& name) {
    if (!held) throw std::runtime_error(name);
  }

  ShipFixedData ship_;
  KeyObservationItems items_;
  NoClock clock_;
  elements::ObservationForm form_{ship_, items_, clock_};
};

Json examples(std::istream& in) {
  Json all = Json::object();
  for (std::string line; std::getline(in, line);) {
    std::istringstream words(line);
    std::string name;
    words >> name;
    if (name.empty()) continue;
    Example example;
    for (std::string word; words >> word;) {
      const std::size_t equals = word.find('=');
      if (equals == std::string::npos) throw std::runtime_error(line);
      try {
        example.enter(word.substr(0, equals), word.substr(equals + 1));
      } catch (const std::runtime_error&) {
        std::string reason("example ");
        reason.append(name).append(": the form does not take it as told: ").append(word);
        throw std::runtime_error(reason);
      }
    }
    all[name] = example.result();
  }
  return all;
}

}  // namespace

int main() {
  try {
    std::cout << Json{{"tables", code_tables()},
                      {"groups", groups()},
                      {"beaufort", beaufort()},
                      {"wave_periods", wave_periods()},
                      {"examples", examples(std::cin)}}
                     .dump()
              << "\n";
  } catch (const std::exception& error) {
    std::cerr << "kavrel-help-facts: " << error.what() << "\n";
    return 2;
  }
  return 0;
}
