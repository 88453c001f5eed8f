// The ship fixed data screen: start, checks, what depends on what, OK.

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "fakes/fake_files.h"
#include "fakes/fake_ports.h"
#include "ship/CFixDataDlg.h"
#include "ship/data/ship_files.h"
#include "ship/ship_data.h"
#include "text/ids.h"

namespace {

namespace id = text::id;
using fakes::dump;
using fakes::enter;
using ship_test::press;
using ship_test::valid_ship;
using text::Language;

const std::string kPath = "C:\\kavrel\\file\\FIXDATA.DAT";

// A world with a file of these data, and the screen on it.
struct Bench {
  fakes::FakeFiles files;
  fakes::World world{files};

  explicit Bench(Language language = Language::kEnglish) { world.texts.language = language; }
  void put(const ShipFixedData& data) {
    files.add_file(kPath, encode_fixed_data(data, world.clock.local_time, world.code_page));
  }
};

// ---- Start

TEST(FixedDataScreen, AcceptsItselfWhenTheFileIsThere) {
  Bench bench;
  ShipFixedData data = valid_ship();
  data.card.check_date = "9999/99/99";  // taken as it stands
  bench.put(data);
  CFixDataDlg screen(bench.world.services, kPath, true);
  EXPECT_EQ(bench.world.windows.run_modal(screen), ui::kOk);
  EXPECT_EQ(screen.values(), data);
  EXPECT_EQ(screen.file_read(), FileRead::kRead);
}

TEST(FixedDataScreen, AcceptsItselfWhenItWasToldOfAFileThatIsMissing) {
  Bench bench;
  CFixDataDlg screen(bench.world.services, kPath, true);
  EXPECT_EQ(bench.world.windows.run_modal(screen), ui::kOk);
  EXPECT_EQ(screen.values(), ShipFixedData{});
}

TEST(FixedDataScreen, ShowsDefaultsAndStaysOpenForAFileOfAWrongSize) {
  for (const std::size_t size : {0U, 154U, 156U}) {
    Bench bench;
    bench.files.add_file(kPath, std::string(size, '1'));
    CFixDataDlg screen(bench.world.services, kPath, true);
    screen.open();
    EXPECT_FALSE(screen.result()) << size;
    EXPECT_EQ(screen.call_sign.content, "*******");
    EXPECT_EQ(screen.barometer_check_date.content, "yyyy/mm/dd");
    EXPECT_EQ(screen.total_correction.content, "+0.0");
    EXPECT_EQ(screen.instrumental_correction.content, "+0.0");
    EXPECT_EQ(screen.loading_state.selected, -1);
    EXPECT_EQ(bench.files.content(kPath), std::string(size, '1'));
    screen.press(screen.cancel);
    EXPECT_EQ(screen.values(), ShipFixedData{});
    EXPECT_EQ(bench.files.content(kPath), std::string(size, '1'));
  }
}

TEST(FixedDataScreen, KeepsWhatTheProgramKnowsWhenTheFileCannotBeUsed) {
  Bench bench;
  bench.files.add_file(kPath, "short");
  CFixDataDlg screen(bench.world.services, kPath, false, {}, {}, valid_ship());
  screen.open();
  EXPECT_EQ(screen.call_sign.content, "JCCX");
  press(screen, "ok");
  EXPECT_EQ(screen.values(), valid_ship());
}

// A file that could not be written, or was changed meanwhile, says nothing about what is in force.
TEST(FixedDataScreen, ShowsWhatIsInForceWhenTheFileHoldsSomethingElse) {
  using Data = ShipFixedData;
  const std::function<void(Data&)> changes[] = {
      [](Data& d) { d.call_sign = "OLDCALL"; },
      [](Data& d) { d.imo_number = ""; },
      [](Data& d) { d.card.check_port = "KOBE"; },
      [](Data& d) { d.card.check_date = "2013/01/01"; },
      [](Data& d) { d.card.type = CardType::kTotalCorrection; },
      [](Data& d) { d.card.loading_state = LoadingState::kFullLoad; },
      [](Data& d) { d.card.total_correction = "+0.5"; },
      [](Data& d) { d.card.instrumental_correction = "+0.5"; },
      [](Data& d) { d.card.height_full_load = "9"; },
      [](Data& d) { d.card.total_correction_full_load = "+0.9"; },
      [](Data& d) { d.card.height_ballast = "21"; },
      [](Data& d) { d.card.total_correction_ballast = "+2.1"; },
      [](Data& d) { d.wind_input_method = WindInputMethod::kApparentWind; },
      [](Data& d) { d.wind_speed_method = WindSpeedMethod::kBeaufortScale; },
      [](Data& d) { d.sea_temperature_method = SeaTemperatureMethod::kBucket; },
      [](Data& d) { d.dew_point_method = DewPointMethod::kComputed; },
      [](Data& d) { d.wave_recorder = true; },
      [](Data& d) { d.vosclim = true; },
      [](Data& d) { d.temperature_unit = 0.5; },
      [](Data& d) { d.vosclim_cargo_height = "08"; },
      [](Data& d) { d.vosclim_load_line_departure = "+12"; },
      [](Data& d) {
        d.humidity_method = HumidityMethod::kComputed;
        d.humidity_unit = 1.0;
      },
      [](Data& d) { d.humidity_unit = 1.0; },
      [](Data& d) {
        d.aws_fitted = false;
        d.aws_manufacturer.clear();
      },
      [](Data& d) { d.aws_manufacturer = "OTHER"; },
  };
  for (const auto& change : changes) {
    Bench bench;
    ShipFixedData old = valid_ship();
    change(old);
    bench.put(old);
    const auto before = bench.files.snapshot();
    CFixDataDlg screen(bench.world.services, kPath, false, {}, {}, valid_ship());
    screen.open();
    CFixDataDlg wanted(bench.world.services, "C:\\none", false, {}, {}, valid_ship());
    wanted.open();
    EXPECT_EQ(dump(screen), dump(wanted)) << dump(screen);
    EXPECT_EQ(screen.values(), valid_ship());
    press(screen, "ok");
    EXPECT_EQ(screen.values(), valid_ship());
    EXPECT_EQ(bench.files.snapshot(), before);
  }
}

// What the form loses, such as the blanks of a port, is no difference: the file shows.
TEST(FixedDataScreen, ShowsTheFileWhenItIsTheOneThatWasWritten) {
  Bench bench;
  ShipFixedData in_force = valid_ship();
  in_force.card.check_port = "PORT A";
  bench.put(in_force);
  bench.world.clock.local_time.day += 3;  // the date of the save is no value
  CFixDataDlg screen(bench.world.services, kPath, false, {}, {}, in_force);
  screen.open();
  EXPECT_EQ(screen.barometer_check_port.content, "PORTA");
  EXPECT_EQ(screen.file_read(), FileRead::kRead);
}

TEST(FixedDataScreen, SaysWhichValuesAreShownInsteadOfAFileThatCannotBeRead) {
  for (const Language language : {Language::kEnglish, Language::kJapanese}) {
    Bench bench(language);
    bench.put(valid_ship());
    bench.files.fail_path(kPath, platform::FileError::kAccessDenied);
    bench.world.windows.expect(id::kShipFileUnreadableInForce);
    CFixDataDlg screen(bench.world.services, kPath, false, {}, {}, valid_ship());
    screen.open();
    EXPECT_EQ(screen.call_sign.content, "JCCX");
    ASSERT_EQ(bench.world.windows.boxes.size(), 1U);
    EXPECT_NE(bench.world.windows.boxes[0].text.find(kPath), std::string::npos);
  }
}

TEST(FixedDataScreen, TellsTheOfficerOfAFileThatCannotBeRead) {
  for (const Language language : {Language::kEnglish, Language::kJapanese}) {
    Bench bench(language);
    bench.put(valid_ship());
    bench.files.fail_path(kPath, platform::FileError::kAccessDenied);
    bench.world.windows.expect(id::kShipFileUnreadable);
    CFixDataDlg screen(bench.world.services, kPath, true);
    screen.open();
    EXPECT_FALSE(screen.result());
    EXPECT_EQ(screen.file_read(), FileRead::kUnreadable);
    ASSERT_EQ(bench.world.windows.boxes.size(), 1U);
    EXPECT_NE(bench.world.windows.boxes[0].text.find(kPath), std::string::npos);
  }
}

TEST(FixedDataScreen, ShowsEveryValueOfTheFile) {
  Bench bench;
  ShipFixedData data = valid_ship();
  data.wind_input_method = WindInputMethod::kApparentWind;
  data.sea_temperature_method = SeaTemperatureMethod::kOther;
  data.dew_point_method = DewPointMethod::kComputed;
  data.wave_recorder = data.vosclim = true;
  data.temperature_unit = 0.5;
  data.humidity_unit = 1.0;
  bench.put(data);
  CFixDataDlg screen(bench.world.services, kPath, false, "C:\\TLX", "C:\\LOG");
  screen.open();
  struct {
    const char* name;
    const char* content;
    int selected;
  } const rows[] = {
      {"call_sign", "JCCX", -1},
      {"imo_number", "9074729", -1},
      {"card_type", "1", -1},
      {"barometer_check_date", "2014/08/09", -1},
      {"barometer_check_port", "YOKOHAMA", -1},
      {"total_correction", "+0.0", -1},
      {"instrumental_correction", "-0.3", -1},
      {"loading_state", "", 1},
      {"height_full_load", "10", -1},
      {"total_correction_full_load", "+1.0", -1},
      {"height_ballast", "20", -1},
      {"total_correction_ballast", "+2.0", -1},
      {"wind_input_method", "", 1},
      {"wind_speed_method", "", 1},
      {"temperature_unit", "", 1},
      {"dew_point_method", "", 1},
      {"sea_temperature_method", "", 3},
      {"humidity_method", "", 0},
      {"humidity_unit", "", 1},
      {"wave_recorder", "", 0},
      {"aws_fitted", "", 1},
      {"aws_manufacturer", "AWS CO.", -1},
      {"vosclim", "", 0},
      {"report_folder", "C:\\TLX", -1},
      {"logbook_folder", "C:\\LOG", -1},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(screen.find(row.name)->content, row.content) << row.name;
    EXPECT_EQ(screen.find(row.name)->selected, row.selected) << row.name;
  }
  press(screen, "ok");
  EXPECT_EQ(screen.values(), data);
  EXPECT_EQ(bench.files.log().size(), 1U) << "the screen only reads";
}

TEST(FixedDataScreen, LocksTheCardTheLoadingStateAndTheFolders) {
  Bench bench;
  CFixDataDlg screen(bench.world.services, kPath, false);
  screen.open();
  for (const char* name :
       {"card_type", "barometer_check_date", "barometer_check_port", "total_correction",
        "instrumental_correction", "height_full_load", "total_correction_full_load",
        "height_ballast", "total_correction_ballast", "report_folder", "logbook_folder"}) {
    ui::Control& control = *screen.find(name);
    const std::string before = control.content;
    EXPECT_FALSE(control.can_focus()) << name;
    screen.type(control, "7");
    EXPECT_EQ(control.content, before) << name;
  }
  screen.choose(screen.loading_state, 1);
  EXPECT_EQ(screen.loading_state.selected, -1);
  EXPECT_FALSE(screen.loading_state.enabled);
}

TEST(FixedDataScreen, HasItsTextsInBothLanguages) {
  Bench bench;
  CFixDataDlg screen(bench.world.services, kPath, false);
  screen.open();
  const auto caption = [&](const char* name) { return screen.caption(*screen.find(name)); };
  EXPECT_EQ(screen.title(), "Inputting/correction of fixed data");
  struct {
    const char* name;
    const char* english;
  } const rows[] = {
      {"total_correction", "Total correction"},
      {"instrumental_correction", "Correction for instrumental error"},
      {"full_load", "At full load"},
      {"ballast", "In ballast"},
      {"folders", "The folders to save weather reports/marine meteorological logbook"},
      {"report_folder", "Weather reports"},
      {"logbook_folder", "marine meteorological logbook"},
      {"card_text", "Please click here and select a type of your barometer correction card."},
      {"humidity_unit", "Relative Humidity observation unit"},
      {"humidity_method", "Observation method of humidity"},
      {"imo_number", "IMO number"},
      {"aws_fitted", "Automatic Weather Station"},
      {"aws_manufacturer", "Manufacturer"},
      {"vosclim_inputting", "VOSClim inputting"},
  };
  for (const auto& row : rows) EXPECT_EQ(caption(row.name), row.english);
  using Lines = std::vector<std::string>;
  EXPECT_EQ(screen.humidity_unit.items,
            (Lines{"Observation by 0.1 percent unit", "Observation by 1 percent unit"}));
  EXPECT_EQ(screen.humidity_method.items,
            (Lines{"Relative Humidity is direct obtained by hygrometer",
                   "Relative Humidity is computed from dry and dew-point temperature"}));
  EXPECT_EQ(screen.aws_fitted.items, (Lines{"No", "Yes"}));
  EXPECT_EQ(screen.wave_recorder.items, (Lines{"Yes", "No"}));
  EXPECT_EQ(screen.vosclim.items, (Lines{"Registered as a VOSClim ship of WMO", "Unregistered"}));
  EXPECT_EQ(screen.wind_input_method.items, (Lines{"True wind", "Apparent wind"}));
  EXPECT_EQ(screen.wind_speed_method.items, (Lines{"By Beaufort scale", "By anemometer"}));
  bench.world.japanese();
  for (const auto& row : rows) {
    EXPECT_FALSE(caption(row.name).empty()) << row.name;
    EXPECT_NE(caption(row.name), row.english);
  }
}

TEST(FixedDataScreen, OpensItsHelpTopic) {
  Bench bench;
  CFixDataDlg screen(bench.world.services, kPath, false);
  screen.open();
  press(screen, "help");
  bench.world.japanese();
  press(screen, "help");
  EXPECT_EQ(bench.world.help_viewer.shown,
            (std::vector<std::string>{"C:\\program\\help\\Kavrel_E.CHM::/Capter4-1_E.htm",
                                      "C:\\program\\help\\Kavrel_J.CHM::/Capter4-1_J.htm"}));
}

// ---- Leaving a field

struct FieldRow {
  const char* name;
  std::string typed;
  std::string left;  // what the field holds after it was left
  text::Id message;  // 0 when it is accepted
};

TEST(FixedDataScreen, TidiesAndChecksAFieldWhenItIsLeft) {
  const FieldRow rows[] = {
      {"call_sign", "AB12", "AB12", 0},
      {"call_sign", " ＡＢ　１ ２", "AB12", 0},
      {"call_sign", "", "", 0},
      {"call_sign", "*******", "*******", 0},
      {"call_sign", "1234567", "1234567", 0},
      {"call_sign", "12345678", "12345678", id::kCallSignForm},
      {"call_sign", "ab12", "ab12", id::kCallSignForm},
      {"call_sign", "AB-1", "AB-1", id::kCallSignForm},
      {"call_sign", "**", "**", id::kCallSignForm},
      {"call_sign", "日本", "日本", id::kCallSignForm},
      {"imo_number", "", "", 0},
      {"imo_number", "９０７ ４７２９", "9074729", 0},
      {"imo_number", "907472", "907472", id::kImoNumberForm},
      {"imo_number", "90747290", "90747290", id::kImoNumberForm},
      {"imo_number", "907472A", "907472A", id::kImoNumberForm},
      {"aws_manufacturer", "", "", 0},
      {"aws_manufacturer", "　ＡＷＳ　_ＣＯ．， ", "AWS CO.,", 0},
      {"aws_manufacturer", std::string(60, 'A'), std::string(60, 'A'), 0},
      {"aws_manufacturer", std::string(61, 'A'), std::string(61, 'A'), id::kManufacturerForm},
      {"aws_manufacturer", "aws", "aws", id::kManufacturerForm},
      {"aws_manufacturer", "A-B", "A-B", id::kManufacturerForm},
  };
  for (const Language language : {Language::kEnglish, Language::kJapanese}) {
    for (const FieldRow& row : rows) {
      Bench bench(language);
      bench.put(valid_ship());
      CFixDataDlg screen(bench.world.services, kPath, false);
      screen.open();
      ui::Control& field = *screen.find(row.name);
      ASSERT_TRUE(enter(screen, field, row.typed)) << row.name;
      const std::string before = dump(screen);
      if (row.message) bench.world.windows.expect(row.message);
      EXPECT_EQ(screen.move_focus(screen.wave_recorder), !row.message) << row.typed;
      EXPECT_EQ(field.content, row.left) << row.typed;
      if (!row.message) continue;
      EXPECT_EQ(dump(screen), before) << row.typed;
      EXPECT_EQ(screen.focused(), &field);
      EXPECT_EQ(screen.selection_length(), -1);
      EXPECT_EQ(screen.values(), valid_ship());
      press(screen, "help");  // neither Help nor Cancel checks
      EXPECT_TRUE(screen.move_focus(field));
      press(screen, "cancel");
      EXPECT_EQ(screen.result(), ui::kCancel);
      EXPECT_EQ(screen.values(), valid_ship());
    }
  }
}

// ---- What depends on what

TEST(FixedDataScreen, RefusesApparentWindByBeaufortScale) {
  for (const Language language : {Language::kEnglish, Language::kJapanese}) {
    for (const bool wind_first : {true, false}) {
      Bench bench(language);
      ShipFixedData data = valid_ship();
      data.wind_input_method =
          wind_first ? WindInputMethod::kTrueWind : WindInputMethod::kApparentWind;
      data.wind_speed_method =
          wind_first ? WindSpeedMethod::kBeaufortScale : WindSpeedMethod::kAnemometer;
      bench.put(data);
      CFixDataDlg screen(bench.world.services, kPath, false);
      screen.open();
      const std::string before = dump(screen);
      bench.world.windows.expect(id::kApparentWithBeaufort);
      if (wind_first) {
        screen.choose(screen.wind_input_method, 1);
      } else {
        screen.choose(screen.wind_speed_method, 0);
      }
      EXPECT_EQ(dump(screen), before) << wind_first;
      ASSERT_EQ(bench.world.windows.boxes.size(), 1U);
      EXPECT_EQ(bench.world.windows.boxes[0].text,
                language == Language::kEnglish
                    ? " \"Apparent wind\" and \"By Beaufort scale\" can't be selected at the same "
                      "time"
                    : "「視風向風速を入力する」と「目測による観測」の組合せは指定不可です。");
    }
  }
}

TEST(FixedDataScreen, AllowsEveryOtherPairOfWindMethods) {
  Bench bench;
  bench.put(valid_ship());
  CFixDataDlg screen(bench.world.services, kPath, false);
  screen.open();
  screen.choose(screen.wind_input_method, 1);  // apparent, anemometer
  screen.choose(screen.wind_input_method, 0);  // true, anemometer
  screen.choose(screen.wind_speed_method, 0);  // true, Beaufort
  press(screen, "ok");
  EXPECT_EQ(screen.values().wind_input_method, WindInputMethod::kTrueWind);
  EXPECT_EQ(screen.values().wind_speed_method, WindSpeedMethod::kBeaufortScale);
}

TEST(FixedDataScreen, NoStationClearsAndLocksTheManufacturer) {
  Bench bench;
  bench.put(valid_ship());
  CFixDataDlg screen(bench.world.services, kPath, false);
  screen.open();
  EXPECT_TRUE(screen.aws_manufacturer.enabled);
  screen.choose(screen.aws_fitted, 0);
  EXPECT_FALSE(screen.aws_manufacturer.enabled);
  EXPECT_EQ(screen.aws_manufacturer.content, "");
  screen.choose(screen.aws_fitted, 1);
  EXPECT_TRUE(screen.aws_manufacturer.enabled);
  EXPECT_EQ(screen.aws_manufacturer.content, "");
  screen.choose(screen.aws_fitted, 0);
  press(screen, "ok");
  EXPECT_FALSE(screen.values().aws_fitted);
  EXPECT_EQ(screen.values().aws_manufacturer, "");
}

TEST(FixedDataScreen, ComputedHumidityForcesWholePercent) {
  Bench bench;
  bench.put(valid_ship());
  CFixDataDlg screen(bench.world.services, kPath, false);
  screen.open();
  EXPECT_EQ(screen.humidity_unit.selected, 0);
  screen.choose(screen.humidity_method, 1);
  EXPECT_EQ(screen.humidity_unit.selected, 1);
  screen.choose(screen.humidity_unit, 0);
  EXPECT_EQ(screen.humidity_unit.selected, 1) << "the finer unit is locked";
  screen.choose(screen.humidity_method, 0);
  EXPECT_EQ(screen.humidity_unit.selected, 1);
  screen.choose(screen.humidity_unit, 0);
  EXPECT_EQ(screen.humidity_unit.selected, 0);
  screen.choose(screen.humidity_method, 1);
  press(screen, "ok");
  EXPECT_EQ(screen.values().humidity_unit, 1.0);
}

TEST(FixedDataScreen, LocksTheFinerUnitOfAFileWithComputedHumidity) {
  Bench bench;
  ShipFixedData data = valid_ship();
  data.humidity_method = HumidityMethod::kComputed;
  data.humidity_unit = 1.0;
  bench.put(data);
  CFixDataDlg screen(bench.world.services, kPath, false);
  screen.open();
  screen.choose(screen.humidity_unit, 0);
  EXPECT_EQ(screen.humidity_unit.selected, 1);
}

TEST(FixedDataScreen, OffersVosClimDataToRegisteredShipsOnly) {
  for (const Language language : {Language::kEnglish, Language::kJapanese}) {
    Bench bench(language);
    bench.put(valid_ship());
    CFixDataDlg screen(bench.world.services, kPath, false);
    screen.open();
    EXPECT_FALSE(screen.vosclim_inputting.enabled);
    press(screen, "vosclim_inputting");
    EXPECT_TRUE(bench.world.windows.boxes.empty());
    screen.choose(screen.vosclim, 0);
    EXPECT_TRUE(screen.vosclim_inputting.enabled);
    bench.world.windows.expect_screen("CVosClimDlg", [](ui::Screen& s) { press(s, "cancel"); });
    press(screen, "vosclim_inputting");
    screen.choose(screen.vosclim, 1);
    EXPECT_FALSE(screen.vosclim_inputting.enabled);
  }
}

TEST(FixedDataScreen, TakesVosClimDataIntoWhatItsOkHandsBack) {
  const auto enters = [](ui::Screen& s) {
    EXPECT_EQ(s.find("cargo_height")->content, "07");
    EXPECT_EQ(s.find("departure")->content, "-12");
    EXPECT_TRUE(enter(s, *s.find("cargo_height"), "9"));
    EXPECT_TRUE(enter(s, *s.find("departure"), "4"));
    press(s, "ok");
  };
  ShipFixedData registered = valid_ship();
  registered.vosclim = true;
  ShipFixedData entered = registered;
  entered.vosclim_cargo_height = "09";
  entered.vosclim_load_line_departure = "+04";
  for (const char* const end : {"ok", "cancel"}) {
    Bench bench;
    bench.put(registered);
    const auto files = bench.files.snapshot();
    CFixDataDlg screen(bench.world.services, kPath, false);
    screen.open();
    bench.world.windows.expect_screen("CVosClimDlg", enters);
    press(screen, "vosclim_inputting");
    EXPECT_NE(screen.focused()->kind, ui::Kind::kButton) << "Enter would open a dialog again";
    EXPECT_EQ(screen.values(), registered) << "before OK";
    // Opened again it shows what was entered, not the file.
    bench.world.windows.expect_screen("CVosClimDlg", [](ui::Screen& s) {
      EXPECT_EQ(s.find("cargo_height")->content + s.find("departure")->content, "09+04");
      EXPECT_TRUE(enter(s, *s.find("departure"), "-1"));
      press(s, "cancel");
    });
    press(screen, "vosclim_inputting");
    press(screen, end);
    EXPECT_EQ(screen.values(), std::string(end) == "ok" ? entered : registered) << end;
    EXPECT_EQ(bench.files.snapshot(), files) << "the screen never writes";
  }
}

TEST(FixedDataScreen, KeepsVosClimDataOfAnotherChoiceUntilOk) {
  Bench bench;
  ShipFixedData data = valid_ship();
  data.vosclim = true;
  bench.put(data);
  CFixDataDlg screen(bench.world.services, kPath, false);
  screen.open();
  screen.choose(screen.vosclim, 1);
  screen.choose(screen.vosclim, 0);
  press(screen, "ok");
  EXPECT_EQ(screen.values(), data);
}

// ---- The card

TEST(FixedDataScreen, LeadsThroughTheCardByClickAndByKey) {
  for (const char* way : {"card_text", "card_button"}) {
    Bench bench;
    bench.put(valid_ship());
    CFixDataDlg screen(bench.world.services, kPath, false);
    screen.open();
    bench.world.windows.expect_screen("CKataSelectDlg", [](ui::Screen& s) {
      EXPECT_EQ(s.find("card_type")->selected, 0);
      s.choose(*s.find("card_type"), 1);
      press(s, "ok");
    });
    bench.world.windows.expect_screen("CKataInputDlg", [](ui::Screen& s) {
      EXPECT_EQ(s.find("card_type")->content, "2");
      EXPECT_EQ(s.find("barometer_check_date")->content, "2014/08/09");
      EXPECT_EQ(s.find("barometer_check_port")->content, "YOKOHAMA");
      EXPECT_TRUE(enter(s, *s.find("barometer_check_port"), "KOBE"));
      EXPECT_TRUE(enter(s, *s.find("total_correction"), "-0.7"));
      press(s, "ok");
    });
    press(screen, way);
    EXPECT_EQ(screen.card_type.content, "2");
    EXPECT_EQ(screen.barometer_check_port.content, "KOBE");
    EXPECT_EQ(screen.total_correction.content, "-0.7");
    press(screen, "ok");
    ShipFixedData wanted = valid_ship();
    wanted.card.type = CardType::kTotalCorrection;
    wanted.card.check_port = "KOBE";
    wanted.card.total_correction = "-0.7";
    EXPECT_EQ(screen.values(), wanted);
  }
}

TEST(FixedDataScreen, LeavesTheCardAloneWhenEitherScreenIsCancelled) {
  for (const bool at_type : {true, false}) {
    Bench bench;
    bench.put(valid_ship());
    CFixDataDlg screen(bench.world.services, kPath, false);
    screen.open();
    const std::string before = dump(screen);
    bench.world.windows.expect_screen("CKataSelectDlg", [&](ui::Screen& s) {
      s.choose(*s.find("card_type"), 1);
      press(s, at_type ? "cancel" : "ok");
    });
    if (!at_type) {
      bench.world.windows.expect_screen("CKataInputDlg", [](ui::Screen& s) {
        EXPECT_TRUE(enter(s, *s.find("barometer_check_port"), "KOBE"));
        press(s, "cancel");
      });
    }
    press(screen, "card_text");
    EXPECT_EQ(dump(screen), before);
    press(screen, "ok");
    EXPECT_EQ(screen.values(), valid_ship());
  }
}

// ---- OK

struct OkRow {
  const char* rule;
  std::function<void(ShipFixedData&)> spoil;
  text::Id message;
  const char* argument;
};

// Applies every spoiling of the rows behind as well, so that the order is checked too.
TEST(FixedDataScreen, ChecksInOrderAtOk) {
  using Data = ShipFixedData;
  const OkRow rows[] = {
      {"call sign empty", [](Data& d) { d.call_sign = ""; }, id::kCallSignMissing, ""},
      {"call sign placeholder", [](Data& d) { d.call_sign = "*******"; }, id::kCallSignMissing, ""},
      {"call sign of a file", [](Data& d) { d.call_sign = "JC-X"; }, id::kCallSignForm, ""},
      // A card type that was never chosen is only there without a file: see below.
      {"date never entered", [](Data& d) { d.card.check_date = "yyyy/mm/dd"; },
       id::kCheckDateMissing, ""},
      {"date of a file", [](Data& d) { d.card.check_date = "2014/11/16"; }, id::kCheckDateRange,
       "2014/11/15"},
      {"port", [](Data& d) { d.card.check_port = ""; }, id::kCheckPortMissing, ""},
      {"instrumental", [](Data& d) { d.card.instrumental_correction = ""; },
       id::kInstrumentalMissing, ""},
      {"instrumental range", [](Data& d) { d.card.instrumental_correction = "50.1"; },
       id::kInstrumentalRange, ""},
      {"loading state", [](Data& d) { d.card.loading_state = LoadingState::kNotChosen; },
       id::kLoadingStateMissing, ""},
      {"height", [](Data& d) { d.card.height_full_load = ""; }, id::kHeightFullLoadMissing, ""},
      {"heights", [](Data& d) { d.card.height_full_load = "201"; }, id::kHeightRange, ""},
      {"total", [](Data& d) { d.card.total_correction_full_load = "x"; },
       id::kTotalCorrectionNotNumeric, ""},
      {"height in ballast", [](Data& d) { d.card.height_ballast = ""; }, id::kHeightBallastMissing,
       ""},
      {"total in ballast", [](Data& d) { d.card.total_correction_ballast = "80.1"; },
       id::kTotalBallastRange, ""},
      {"IMO number of a file", [](Data& d) { d.imo_number = "123"; }, id::kImoNumberForm, ""},
      {"manufacturer of a file", [](Data& d) { d.aws_manufacturer = "a"; }, id::kManufacturerForm,
       ""},
      {"wind of a file",
       [](Data& d) {
         d.wind_input_method = WindInputMethod::kApparentWind;
         d.wind_speed_method = WindSpeedMethod::kBeaufortScale;
       },
       id::kApparentWithBeaufort, ""},
  };
  for (const Language language : {Language::kEnglish, Language::kJapanese}) {
    for (std::size_t i = 0; i < std::size(rows); ++i) {
      ShipFixedData data = valid_ship();
      for (std::size_t later = std::size(rows); later-- > i;) rows[later].spoil(data);
      Bench bench(language);
      bench.put(data);
      CFixDataDlg screen(bench.world.services, kPath, false);
      screen.open();
      ASSERT_TRUE(screen.move_focus(screen.help));
      const std::string before = dump(screen);
      const ShipFixedData values = screen.values();
      bench.world.windows.expect(rows[i].message);
      press(screen, "ok");
      EXPECT_FALSE(screen.result()) << rows[i].rule;
      ASSERT_EQ(bench.world.windows.boxes.size(), 1U) << rows[i].rule;
      EXPECT_EQ(bench.world.windows.boxes[0].text,
                text::fill(bench.world.texts.get(rows[i].message), {rows[i].argument}));
      EXPECT_EQ(dump(screen), before) << rows[i].rule;
      EXPECT_EQ(screen.values(), values) << rows[i].rule;
    }
  }
}

TEST(FixedDataScreen, RefusesAtOkAPortThatIsDamagedInTheFile) {
  for (const Language language : {Language::kEnglish, Language::kJapanese}) {
    Bench bench(language);
    bench.put(valid_ship());
    std::string line = *bench.files.content(kPath);
    line.replace(21, 3, "\x89\xA1\xFF");
    bench.files.add_file(kPath, line);
    CFixDataDlg screen(bench.world.services, kPath, false);
    screen.open();
    EXPECT_EQ(screen.barometer_check_port.content, "横\uFFFDOHAMA");
    bench.world.windows.expect(id::kCheckPortCharacter);
    press(screen, "ok");
    EXPECT_FALSE(screen.result());
    EXPECT_EQ(screen.focused(), &screen.card_button);
    EXPECT_EQ(bench.files.content(kPath), line);
  }
}

TEST(FixedDataScreen, ChecksASingleTotalCorrectionAtOk) {
  struct {
    const char* value;
    text::Id message;
  } const rows[] = {{"", id::kTotalCorrectionMissing},
                    {"x", id::kTotalCorrectionNotNumeric},
                    {"80.1", id::kTotalCorrectionRange},
                    {"+1.25", id::kOneDecimalOnly}};
  for (const auto& row : rows) {
    Bench bench;
    ShipFixedData data = valid_ship();
    data.card.type = CardType::kTotalCorrection;
    data.card.total_correction = row.value;
    bench.put(data);
    CFixDataDlg screen(bench.world.services, kPath, false);
    screen.open();
    bench.world.windows.expect(row.message);
    press(screen, "ok");
    EXPECT_FALSE(screen.result()) << row.value;
  }
}

TEST(FixedDataScreen, AsksAFirstTimeOfficerForTheCallSignThenTheCard) {
  Bench bench;
  CFixDataDlg screen(bench.world.services, kPath, false);
  screen.open();
  bench.world.windows.expect(id::kCallSignMissing);
  press(screen, "ok");
  EXPECT_EQ(screen.focused(), &screen.call_sign);
  ASSERT_TRUE(enter(screen, screen.call_sign, "JCCX"));
  bench.world.windows.expect(id::kCardTypeMissing);
  press(screen, "ok");
  EXPECT_EQ(screen.focused(), &screen.card_button);
  bench.world.windows.expect_screen("CKataSelectDlg", [](ui::Screen& s) {
    s.choose(*s.find("card_type"), 1);
    press(s, "ok");
  });
  bench.world.windows.expect_screen("CKataInputDlg", [](ui::Screen& s) {
    EXPECT_TRUE(enter(s, *s.find("barometer_check_date"), "2014/1/5"));
    EXPECT_TRUE(enter(s, *s.find("barometer_check_port"), "KOBE"));
    s.key(ui::Key::kEnter);
  });
  press(screen, "card_button");
  screen.key(ui::Key::kEnter);  // the focus went on, so Enter is OK and not the card again
  EXPECT_EQ(screen.result(), ui::kOk);
  EXPECT_EQ(screen.values().call_sign, "JCCX");
  EXPECT_EQ(screen.values().card.check_date, "2014/01/05");
}

TEST(FixedDataScreen, ChecksAtOkWhatHelpLetGo) {
  Bench bench;
  bench.put(valid_ship());
  CFixDataDlg screen(bench.world.services, kPath, false);
  screen.open();
  ASSERT_TRUE(enter(screen, screen.imo_number, "１２"));
  press(screen, "help");
  bench.world.windows.expect(id::kImoNumberForm);
  press(screen, "ok");
  EXPECT_FALSE(screen.result());
  EXPECT_EQ(screen.focused(), &screen.imo_number);
}

TEST(FixedDataScreen, GivesBackTheFileAfterCancel) {
  Bench bench;
  bench.put(valid_ship());
  CFixDataDlg screen(bench.world.services, kPath, false);
  screen.open();
  ASSERT_TRUE(enter(screen, screen.call_sign, "OTHER"));
  screen.choose(screen.vosclim, 0);
  screen.close_box();
  EXPECT_EQ(screen.result(), ui::kCancel);
  EXPECT_EQ(screen.values(), valid_ship());
}

}  // namespace
