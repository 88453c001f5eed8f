// No report and no line of the logbook holds a control character: every field that could bring one
// is found before anything is encoded.

#include "observation/control_characters.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "observation/logbook_encoder.h"
#include "observation/observation_file.h"
#include "observation/report_encoder.h"
#include "records.h"

namespace {

using observation::control_character_field;

std::string control_characters() {
  std::string all;
  for (int c = 0; c < 0x20; ++c) all += static_cast<char>(c);
  return all + '\x7f';
}

bool is_control(char c) {
  return control_characters().find(c) != std::string::npos;
}

/// Report and logbook line of the record, one behind the other.
std::string products(const Struct_Weather& record, const ShipFixedData& ship) {
  std::string message;
  std::string missing;
  observation::encode_report(record, message, missing, true, text::Language::kEnglish);
  return message + observation::encode_logbook(record, ship, KeyObservationItems());
}

bool reaches(const Struct_Weather& record, const ShipFixedData& ship) {
  const std::string all = products(record, ship);
  return std::any_of(all.begin(), all.end(), is_control);
}

/// Every text field of the ship.
struct ShipText {
  const char* name;  ///< as control_character_field() is to name it, when it names it
  std::string& (*of)(ShipFixedData& ship);
};
constexpr ShipText kShipTexts[] = {
    {"ship.call_sign", [](ShipFixedData& s) -> std::string& { return s.call_sign; }},
    {"check_date", [](ShipFixedData& s) -> std::string& { return s.card.check_date; }},
    {"check_port", [](ShipFixedData& s) -> std::string& { return s.card.check_port; }},
    {"total", [](ShipFixedData& s) -> std::string& { return s.card.total_correction; }},
    {"instrument", [](ShipFixedData& s) -> std::string& { return s.card.instrumental_correction; }},
    {"height", [](ShipFixedData& s) -> std::string& { return s.card.height_full_load; }},
    {"full", [](ShipFixedData& s) -> std::string& { return s.card.total_correction_full_load; }},
    {"ballast", [](ShipFixedData& s) -> std::string& { return s.card.height_ballast; }},
    {"total b", [](ShipFixedData& s) -> std::string& { return s.card.total_correction_ballast; }},
    {"ship.vosclim_cargo_height",
     [](ShipFixedData& s) -> std::string& { return s.vosclim_cargo_height; }},
    {"ship.vosclim_load_line_departure",
     [](ShipFixedData& s) -> std::string& { return s.vosclim_load_line_departure; }},
    {"ship.imo_number", [](ShipFixedData& s) -> std::string& { return s.imo_number; }},
    {"aws_manufacturer", [](ShipFixedData& s) -> std::string& { return s.aws_manufacturer; }},
};

/// The control character alone, behind, before and between the figures.
std::vector<std::string> texts_with(char control) {
  const std::string one(1, control);
  return {one, "1" + one, one + "1", "1" + one + "1"};
}

TEST(ControlCharacters, AreFoundInEveryFieldOfTheRecord) {
  int reaching = 0;
  for (const WeatherField& field : weather_fields()) {
    bool reached = false;
    for (const char control : control_characters()) {
      for (const std::string& text : texts_with(control)) {
        Struct_Weather record = records::full();
        record.*field.member = text;
        reached = reached || reaches(record, records::ship());
        EXPECT_EQ(control_character_field(record, records::ship()), field.name)
            << static_cast<int>(control);
      }
    }
    if (reached) ++reaching;
  }
  EXPECT_GT(reaching, 60) << "the test's own look at report and line is blind";
}

TEST(ControlCharacters, AreFoundInEveryFieldOfTheShipThatTheLogbookCopies) {
  int reaching = 0;
  for (const ShipText& field : kShipTexts) {
    bool reached = false;
    for (const char control : control_characters()) {
      for (const std::string& text : texts_with(control)) {
        ShipFixedData ship = records::ship();
        field.of(ship) = text;
        if (!reaches(records::full(), ship)) continue;
        reached = true;
        EXPECT_EQ(control_character_field(records::full(), ship), field.name)
            << static_cast<int>(control);
      }
    }
    if (reached) ++reaching;
  }
  EXPECT_EQ(reaching, 3);
}

TEST(ControlCharacters, OfAShipsCallSignAreFoundInItsRecords) {
  ShipFixedData ship = records::ship();
  ship.call_sign = "JX\nKV";
  EXPECT_EQ(control_character_field(Struct_Weather(ship, {}), ship), "CallSign");
}

TEST(ControlCharacters, AreNotSeenInSoundRecords) {
  EXPECT_EQ(control_character_field(records::full(), records::ship()), std::nullopt);
  EXPECT_EQ(control_character_field(records::fresh(), records::ship()), std::nullopt);
  Struct_Weather record = records::full();
  record.LogText1 = "~ \x80\xff 東";
  EXPECT_EQ(control_character_field(record, ShipFixedData()), std::nullopt);
}

// Blanks at the ends are taken off, and a tab or a line end there is one; elsewhere, and any other
// control character, refuses the line.
TEST(ControlCharacters, AreRefusedByTheReaderOfObservationFiles) {
  using Step = observation::ObservationReader::Step;
  const std::vector<std::string> ships = {"ship.call_sign",
                                          "ship.barometer_check_date",
                                          "ship.barometer_check_port",
                                          "ship.total_correction",
                                          "ship.height_full_load",
                                          "ship.vosclim_cargo_height",
                                          "ship.vosclim_load_line_departure",
                                          "ship.imo_number",
                                          "ship.aws_manufacturer"};
  std::vector<std::string> names = ships;
  for (const WeatherField& field : weather_fields()) names.emplace_back(field.name);
  for (const std::string& name : names) {
    for (const char control : control_characters()) {
      if (control == '\n') continue;  // ends the line
      observation::ObservationReader reader;
      ASSERT_EQ(reader.take("YY=15"), Step::kMore);
      ASSERT_EQ(reader.take(name + "=1" + control + "1"), Step::kError) << name;
      EXPECT_EQ(reader.error().line, 2U);
      EXPECT_EQ(reader.error().name, name);
      const bool is_blank = control >= '\t' && control <= '\r';
      observation::ObservationReader other;
      ASSERT_EQ(other.take("LogText1=1" + std::string(1, control)),
                is_blank ? Step::kMore : Step::kError);
    }
  }
}

}  // namespace
