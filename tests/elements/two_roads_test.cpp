// An element has two roads to the record: its dialog and its field on the form. Both give the same
// figures, and a dialog that is opened and confirmed as it stands changes nothing.

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>
#include <numeric>
#include <random>
#include <string>
#include <vector>

#include "elements/form/form_under_test.h"
#include "elements/form/random_entries.h"
#include "fakes/rounds.h"
#include "mainwindow/element_openers.h"
#include "mainwindow/form_rows.h"
#include "text/numbers.h"

namespace {

using elements::Field;
using form_test::Form;

// An officer who answers every question with Yes and does one thing in the dialog that opens.
class Officer : public ui::Windows {
 public:
  std::function<void(ui::Screen&)> act;
  std::string class_name;  ///< of the dialog that opened

  int show_message(const ui::MessageBox& box) override { return box.buttons.front().result; }
  int run_modal(ui::Screen& screen) override {
    class_name = screen.class_name();
    screen.open();
    act(screen);
    if (!screen.result()) screen.close_box();
    return *screen.result();
  }
  void show_notice(ui::Screen& /*screen*/) override {}
  void hide_notice(ui::Screen& /*screen*/) override {}
  void pause(int /*milliseconds*/) override {}
  bool copy_text(const std::string& /*text*/) override { return true; }
  std::optional<std::string> browse_for_folder(const std::string& /*caption*/,
                                               const std::string& /*initial*/) override {
    return std::nullopt;
  }
};

// A form with its element dialogs.
struct Roads : Form {
  Officer officer;
  ui::Messages dialog_messages{world.texts, officer};
  ui::Services services{world.clock,   world.locale, world.drives, world.no_files,  world.code_page,
                        world.printer, officer,      world.texts,  dialog_messages, world.help};
  mainwindow::Folders folders;
  mainwindow::MainWindowContext context{ship, items, folders, {}, {}};

  Roads() { world.windows.answer_all("yes"); }

  /// Opens the element's dialog and lets the officer act; true when it was confirmed.
  bool open(const mainwindow::ElementRow& row, std::function<void(ui::Screen&)> act) {
    officer.act = std::move(act);
    mainwindow::Opening opening{services, context, *form, {}};
    return row.open(opening);
  }
};

std::string differences(const Struct_Weather& before, const Struct_Weather& after) {
  std::string result;
  for (const WeatherField& row : weather_fields()) {
    const std::string& was = before.*row.member;
    const std::string& is = after.*row.member;
    if (was != is) result += std::string(row.name) + " \"" + was + "\" \"" + is + "\" ";
  }
  return result;
}

// Every ship that enters an element in another way.
std::vector<ShipFixedData> ships() {
  std::vector<ShipFixedData> result;
  for (const DewPointMethod dew : {DewPointMethod::kDirect, DewPointMethod::kComputed}) {
    for (const WindInputMethod wind :
         {WindInputMethod::kTrueWind, WindInputMethod::kApparentWind}) {
      for (const CardType card :
           {CardType::kNotChosen, CardType::kHeightAndTemperature, CardType::kTotalCorrection}) {
        for (const double unit : {0.1, 1.0}) {
          for (const HumidityMethod humidity :
               {HumidityMethod::kDirect, HumidityMethod::kComputed}) {
            ShipFixedData ship;
            ship.call_sign = "JABC";
            ship.dew_point_method = dew;
            ship.wind_input_method = wind;
            ship.card.type = card;
            ship.card.loading_state = LoadingState::kFullLoad;
            ship.card.height_full_load = "20";
            ship.card.total_correction_full_load = "+2.4";
            ship.card.total_correction = "+0.5";
            ship.humidity_method = humidity;
            ship.humidity_unit = humidity == HumidityMethod::kComputed ? 1.0 : unit;
            ship.sea_temperature_method =
                unit == 1.0 ? SeaTemperatureMethod::kOther : SeaTemperatureMethod::kIntake;
            result.push_back(ship);
          }
        }
      }
    }
  }
  return result;
}

// Where OK itself is an entry: the time dialog offers the clock's date and hour, and the pressure
// dialog asks whether there is an actual time; half a time is none, and goes with "under 10
// minutes".
bool ok_is_an_entry(const mainwindow::ElementRow& row, const Struct_Weather& record) {
  if (row.element == mainwindow::kObservationTime)
    return record.Year.empty() || record.Month.empty() || record.YY.empty() || record.GG.empty();
  return row.element == mainwindow::kPressure && record.gg.empty() != record.GGExact.empty();
}

// Opens and confirms each dialog of the ship; counts those that took the OK.
void confirm_all(Roads& roads, std::map<std::string, int>& confirmed) {
  for (const mainwindow::ElementRow& row : mainwindow::element_rows()) {
    if (mainwindow::use_of(row, roads.context) != mainwindow::Use::kInUse) continue;
    const Struct_Weather before = roads.record();
    if (ok_is_an_entry(row, before)) continue;
    if (!roads.open(row, [](ui::Screen& screen) { screen.press(*screen.find("ok")); })) continue;
    ++confirmed[roads.officer.class_name];
    EXPECT_EQ(differences(before, roads.record()), "") << roads.officer.class_name;
    EXPECT_FALSE(roads.form->modified()) << roads.officer.class_name;
  }
}

void fill(Roads& roads) {
  const std::pair<Field, const char*> entries[] = {
      {Field::kYear, "2014"}, {Field::kMonth, "11"}, {Field::kYY, "15"},
      {Field::kGG, "12"},     {Field::kLaDeg, "35"}, {Field::kLaMin, "42"},
      {Field::kLoDeg, "165"}, {Field::kLoMin, "18"}, {Field::kReading, "1010.7"},
      {Field::ka, "2"},       {Field::kppp, "1.4"}};
  for (const auto& [field, text] : entries) EXPECT_TRUE(roads.enter(field, text)) << text;
  roads.form->choose_hemispheres(0, 0);
}

TEST(TwoRoads, ADialogConfirmedAsItOpensLeavesTheRecord) {
  std::map<std::string, int> confirmed;
  unsigned seed = 0;
  for (const ShipFixedData& ship : ships()) {
    for (int round = 0; round < fakes::rounds(4) && !HasFailure(); ++round) {
      SCOPED_TRACE("seed " + std::to_string(seed));
      Roads roads;
      form_test::RandomEntries entries(seed++);
      roads.ship = ship;
      roads.rebuild();
      roads.suppressed = true;
      if (round % 2 == 0 && ship.card.type != CardType::kNotChosen) fill(roads);
      for (int step = 0; step < 120; ++step) {
        const elements::Entries before = roads.form->entries();
        entries.step(roads);
        // A refused text that still stands is shown by the dialog, for the officer to confirm.
        if (roads.any_error()) roads.form->load(before);
        if (step % 20 != 0) continue;
        roads.form->saved();
        confirm_all(roads, confirmed);
      }
    }
  }
  for (const mainwindow::ElementRow& row : mainwindow::element_rows()) {
    Roads roads;
    roads.open(row, [](ui::Screen&) {});
    EXPECT_GT(confirmed[roads.officer.class_name], 20) << roads.officer.class_name;
  }
}

// ---- The same values by both roads

// What is typed for one field of the form; a position's hemispheres are chosen ("S", "W").
using Values = std::vector<std::string>;

// An element as both roads enter it: in the dialog control by control, on the form field by field.
struct Element {
  const char* name;
  int element;
  std::vector<Values> values;  ///< one list for each part; every combination is tried
  std::function<void(ui::Screen&, const Values&)> in_dialog;
  std::function<bool(Form&, const Values&)> on_form;
};

void choose_code(ui::Screen& screen, const char* control, const std::string& code) {
  ui::Control& list = *screen.find(control);
  for (std::size_t line = 0; line < list.item_codes.size(); ++line) {
    if (list.item_codes[line] == code) screen.choose(list, static_cast<int>(line));
  }
}

// Whole part and tenths go to two controls; what has no point has no tenths.
void enter_split(ui::Screen& screen, const char* whole, const char* tenths,
                 const std::string& text) {
  const auto point = text.find('.');
  fakes::enter(screen, *screen.find(whole), text.substr(0, point));
  fakes::enter(screen, *screen.find(tenths),
               point == std::string::npos ? "" : text.substr(point + 1));
}

// Fields one behind the other; those that take no text of this value stop the rest.
std::function<bool(Form&, const Values&)> typed(std::vector<Field> fields) {
  return [fields](Form& form, const Values& values) {
    for (std::size_t i = 0; i < fields.size(); ++i) {
      if (!form.enter(fields[i], values[i])) return false;
    }
    return true;
  };
}

std::function<void(ui::Screen&, const Values&)> entered(std::vector<const char*> controls) {
  return [controls](ui::Screen& screen, const Values& values) {
    for (std::size_t i = 0; i < controls.size(); ++i)
      fakes::enter(screen, *screen.find(controls[i]), values[i]);
  };
}

Values codes(const char* figures) {
  Values result;
  for (; *figures != '\0'; ++figures) result.emplace_back(1, *figures);
  return result;
}

Values present_weather_codes() {
  Values result = text::numbered_lines(0, 99, 2);
  result.emplace_back("//");
  return result;
}

const Values kBulbs = {"",    "0",    "-0",   "-0.0",  "-0.1", "0.1",   "5",    "10.0",  "27.5",
                       "9.9", "-1.8", "-9.9", "-25.0", "40.0", "-25.5", "40.9", "-26.0", "41.0"};
const Values kSpeeds = {"",     "0",    "-0",   "0.3",   "0.49",  "0.5", "1",   "12",   "12.34",
                        "98.4", "98.5", "99",   "99.9",  "99.94", "120", "999", "x",    "999.4",
                        "5.",   ".5",   "-1.0", "999.9", "1000",  "1e1", "+12", "1.2.3"};

std::vector<Element> elements_of_both_roads() {
  return {
      {"time",
       mainwindow::kObservationTime,
       {{"", "1999", "2000", "2014", "2015", "2016", "x"},
        {"", "0", "1", "02", "4", "12", "13"},
        {"", "0", "1", "28", "29", "30", "31", "32"},
        {"", "0", "03", "12", "21", "24", "7"}},
       entered({"year", "month", "day", "hour"}),
       typed({Field::kYear, Field::kMonth, Field::kYY, Field::kGG})},
      {"position",
       mainwindow::kPosition,
       {{"", "0", "05", "89", "90", "91"},
        {"", "0", "5", "59", "60"},
        {"0", "7", "099", "180", "181", "x"},
        {"0", "5", "59", "60"},
        {"N", "S"},
        {"E", "W"}},
       [](ui::Screen& screen, const Values& v) {
         entered({"latitude_degrees", "latitude_minutes", "longitude_degrees",
                  "longitude_minutes"})(screen, v);
         screen.choose(*screen.find("latitude_side"), v[4] == "S" ? 1 : 0);
         screen.choose(*screen.find("longitude_side"), v[5] == "W" ? 1 : 0);
       },
       [](Form& form, const Values& v) {
         form.form->choose_hemispheres(v[4] == "S" ? 1 : 0, v[5] == "W" ? 1 : 0);
         return typed({Field::kLaDeg, Field::kLaMin, Field::kLoDeg, Field::kLoMin})(form, v);
       }},
      {"movement",
       mainwindow::kCourseAndSpeed,
       {codes("0123456789/"), codes("0123456789/")},
       [](ui::Screen& screen, const Values& v) {
         choose_code(screen, "course", v[0]);
         choose_code(screen, "speed", v[1]);
       },
       typed({Field::kDs, Field::kVs})},
      {"pressure",
       mainwindow::kPressure,
       {{"", "870.0", "0870.0", "929.9", "0930.0", "998.7", "1013", "1013.2", "1050.0", "1050.1",
         "1069.9", "1070.0", "869.9", "0", "9999.9", "x"}},
       [](ui::Screen& screen, const Values& v) {
         enter_split(screen, "reading_whole", "reading_tenths", v[0]);
       },
       typed({Field::kReading})},
      {"tendency",
       mainwindow::kPressureTendency,
       {codes("012345678/"),
        {"",     "0",     "0.04",  "0.05", "0.9", "5.2", "05.2", "15.0", "15.04", "15.1", "25",
         "25.0", "25.04", "25.06", "25.1", "-1",  "5.",  ".5",   "x",    "1-2",   "+5"}},
       [](ui::Screen& screen, const Values& v) {
         const std::size_t kind = v[0] == "/" ? 3 : v[0] == "4" ? 1 : v[0] > "4" ? 2 : 0;
         screen.choose(*screen.find("kind"), static_cast<int>(kind));
         ui::Control& lines = *screen.find("characteristic");
         for (std::size_t line = 0; line < lines.items.size(); ++line) {
           if (lines.items[line].starts_with("    " + v[0]))
             screen.choose(lines, static_cast<int>(line));
         }
         fakes::enter(screen, *screen.find("amount"), v[1]);
       },
       typed({Field::ka, Field::kppp})},
      {"present weather",
       mainwindow::kPresentWeather,
       {present_weather_codes()},
       [](ui::Screen& screen, const Values& v) {
         // Whichever group has the line.
         for (const int choice : {2, 1, 0}) {
           screen.choose(*screen.find("choice"), choice);
           const std::size_t groups = screen.find("group")->items.size();
           for (std::size_t group = 0; group < groups; ++group) {
             screen.choose(*screen.find("group"), static_cast<int>(group));
             choose_code(screen, "line", v[0]);
             if (screen.find("code")->content == v[0]) return;
           }
           if (v[0] == "//") return;
         }
       },
       typed({Field::kww})},
      {"past weather",
       mainwindow::kPastWeather,
       {{"00", "11", "22", "33", "44", "55", "66", "77", "88", "99",
         "//", "95", "62", "43", "87", "97", "60", "0/", "6/", "9/"}},
       [](ui::Screen& screen, const Values& v) {
         constexpr const char* kBoxes[] = {"cloud_half_or_less",
                                           "cloud_changing",
                                           "cloud_more_than_half",
                                           "sandstorm",
                                           "fog",
                                           "drizzle",
                                           "rain",
                                           "snow",
                                           "shower",
                                           "thunder"};
         for (const char figure : v[0]) {
           const char* const box = figure == '/' ? "not_observed" : kBoxes[figure - '0'];
           screen.tick(*screen.find(box), true);
         }
       },
       [](Form& form, const Values& v) {
         return form.enter(Field::kW1, v[0].substr(0, 1)) &&
                form.enter(Field::kW2, v[0].substr(1, 1));
       }},
      {"psychrometer",
       mainwindow::kPsychrometer,
       {kBulbs, kBulbs, {"not set", "iced"}},
       [](ui::Screen& screen, const Values& v) {
         enter_split(screen, "dry_whole", "dry_tenths", v[0]);
         enter_split(screen, "wet_whole", "wet_tenths", v[1]);
         screen.choose(*screen.find("wet_bulb_state"), v[2] == "iced" ? 1 : 2);
       },
       [](Form& form, const Values& v) {
         if (!typed({Field::kDryBulb, Field::kWetBulb})(form, v)) return false;
         if (v[2] == "iced") form.form->toggle_freeze();
         return true;
       }},
      {"dew point",
       mainwindow::kTemperatureAndDewPoint,
       {kBulbs, kBulbs},
       [](ui::Screen& screen, const Values& v) {
         enter_split(screen, "air_whole", "air_tenths", v[0]);
         enter_split(screen, "dew_whole", "dew_tenths", v[1]);
       },
       typed({Field::kAirTemperature, Field::kDewPoint})},
      {"humidity",
       mainwindow::kRelativeHumidity,
       {{"",      "0",     "5",   "05", "53", "53.0", "53.00", "5.5", "0.04", "99.96", "100",
         "100.0", "100.1", "101", "-0", "-1", "+5",   "5.",    ".5",  "x",    "1e1"}},
       entered({"value"}),
       typed({Field::kHumidity})},
      {"sea temperature",
       mainwindow::kSeaTemperature,
       {{"",      "-2",    "-2.0", "-2.04", "-2.1", "-0",  "-0.0",  "-0.04", "-.0",
         "-0.05", "0",     "0.05", ".5",    "5.",   "5",   "12.34", "36.95", "37",
         "37.0",  "37.04", "37.1", "+5",    "x",    "1e1", "1.2.3"}},
       entered({"temperature"}),
       typed({Field::kTwTwTw})},
      {"apparent wind",
       mainwindow::kApparentWind,
       {{"", "0", "1", "045", "360", "361", "x"},
        {"", "0", "090", "360", "361"},
        kSpeeds,
        {"", "0", "30", "359", "360", "361"},
        kSpeeds},
       entered({"heading", "course", "ship_speed", "direction", "speed"}),
       typed({Field::kHeading, Field::kCourse, Field::kShipSpeed, Field::kApparentDirection,
              Field::kApparentSpeed})},
      {"true wind",
       mainwindow::kTrueWind,
       {{"", "0", "00", "5", "05", "18", "36", "37", "98", "99", "//", "/", "x"},
        [] {
          Values values = kSpeeds;
          values.emplace_back("//");
          return values;
        }()},
       entered({"direction", "speed"}),
       typed({Field::kdd, Field::kff})},
      {"visibility",
       mainwindow::kVisibility,
       {{"//", "90", "91", "92", "93", "94", "95", "96", "97", "98", "99"}},
       [](ui::Screen& screen, const Values& v) { choose_code(screen, "choice", v[0]); },
       typed({Field::kVV})},
  };
}

std::string joined(const Values& values) {
  std::string result;
  for (const std::string& value : values) result += "[" + value + "]";
  return result;
}

// Every combination, or some of them where there are very many; the same ones for the same seed. They are numbered, as the
// figures of a number are: to make all of them first took longer than to try the few.
std::vector<Values> combinations(const Element& element, unsigned seed) {
  std::size_t all = 1;
  for (const Values& part : element.values) all *= part.size();
  std::vector<std::size_t> numbers(all);
  std::iota(numbers.begin(), numbers.end(), std::size_t{0});
  const auto most = static_cast<std::size_t>(fakes::rounds(150));
  if (all > most) {
    std::mt19937 random(seed);
    std::shuffle(numbers.begin(), numbers.end(), random);
    numbers.resize(most);
  }
  std::vector<Values> result;
  for (std::size_t number : numbers) {
    Values& values = result.emplace_back();
    for (const Values& part : element.values) {
      values.push_back(part[number % part.size()]);
      number /= part.size();
    }
  }
  return result;
}

bool is_beyond(const std::string& text, double low, double high) {
  const auto number = text::strict_number(text);
  return number && (*number < low || *number > high);
}

bool has_sign(const std::string& text) {
  return text.starts_with('+') || text.starts_with('-');
}

// What only one of the roads takes, each with its reason.
struct Difference {
  const char* element;
  bool in_dialog;  ///< only the dialog takes it; else only the form does
  bool (*holds)(const Values& values);
  const char* reason;
};
constexpr Difference kDifferences[] = {
    {"psychrometer", true,
     [](const Values& v) { return is_beyond(v[0], -25, 40) || is_beyond(v[1], -25, 40); },
     "the dialog asks where the form's field refuses"},
    {"dew point", true,
     [](const Values& v) { return is_beyond(v[0], -25, 40) || is_beyond(v[1], -25, 40); },
     "the dialog asks where the form's field refuses"},
    {"apparent wind", true, [](const Values& v) { return is_beyond(v[4], 0, 999); },
     "an anemometer's tenths go to 999.9, the form's field ends at 999"},
    {"true wind", true, [](const Values& v) { return v[1] == "//"; },
     "an unknown speed has a box of its own in the dialog"},
    {"true wind", false, [](const Values& v) { return has_sign(v[1]); },
     "the form's number fields take a sign"},
    {"true wind", false, [](const Values& v) { return v[0].empty(); },
     "the form judges direction and speed when both are there"},
    {"tendency", true, [](const Values& v) { return v[1] == "25.04"; },
     "the dialog compares whole tenths, and stores them"},
    {"tendency", true, [](const Values& v) { return v[1] == "1-2"; },
     "the dialog's number test lets hyphens pass"},
    {"tendency", false,
     [](const Values& v) { return has_sign(v[1]) || v[1].starts_with('.') || v[1].ends_with('.'); },
     "the form's number fields take a sign and a point at either end"},
    {"time", false, [](const Values& v) { return v[0].empty() || v[1].empty() || v[2].empty(); },
     "the dialog takes whole dates only"},
    {"position", false, [](const Values& v) { return v[0].empty() || v[1].empty(); },
     "the dialog takes whole positions only"},
};

TEST(TwoRoads, WhatTheDialogTakesIsWhatTheFormTakes) {
  std::vector<int> seen(std::size(kDifferences));
  std::map<std::string, int> taken;
  unsigned seed = 0;
  for (const ShipFixedData& ship : ships()) {
    ++seed;
    for (const Element& element : elements_of_both_roads()) {
      const mainwindow::ElementRow& row = *mainwindow::find_element(element.element);
      for (const Values& values : combinations(element, seed)) {
        Roads by_dialog;
        by_dialog.ship = ship;
        by_dialog.rebuild();
        if (mainwindow::use_of(row, by_dialog.context) != mainwindow::Use::kInUse) break;
        Roads by_form;
        by_form.ship = ship;
        by_form.rebuild();
        // What the pressure dialog hands on may still be refused by the form.
        const bool in_dialog = by_dialog.open(row, [&](ui::Screen& screen) {
          element.in_dialog(screen, values);
          screen.press(*screen.find("ok"));
        }) && !by_dialog.any_error();
        const bool on_form = element.on_form(by_form, values);
        if (in_dialog && on_form) {
          ++taken[element.name];
          EXPECT_EQ(differences(by_dialog.record(), by_form.record()), "")
              << element.name << joined(values);
        }
        if (in_dialog == on_form) continue;
        const auto* const known = std::find_if(
            std::begin(kDifferences), std::end(kDifferences), [&](const Difference& d) {
              return std::string_view(d.element) == element.name && d.in_dialog == in_dialog &&
                     d.holds(values);
            });
        if (known == std::end(kDifferences)) {
          ADD_FAILURE() << "only " << (in_dialog ? "in the dialog: " : "on the form: ")
                        << element.name << joined(values);
        } else {
          ++seen[static_cast<std::size_t>(known - std::begin(kDifferences))];
        }
      }
    }
  }
  // Some combinations do not show every difference.
  if (fakes::soon()) return;
  for (const Element& element : elements_of_both_roads())
    EXPECT_GT(taken[element.name], 100) << element.name;
  for (std::size_t i = 0; i < seen.size(); ++i)
    EXPECT_GT(seen[i], 0) << kDifferences[i].element << ": " << kDifferences[i].reason;
}

}  // namespace
