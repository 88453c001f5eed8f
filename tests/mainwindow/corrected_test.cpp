// A field refused first and corrected by its dialog; what F1 says where no dialog opens; what a
// save leaves and lists.

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "window.h"

namespace {

namespace id = text::id;
using main_window::Opened;
using Act = std::function<void(ui::Screen&)>;

void ok(ui::Screen& screen) {
  screen.press(*screen.find("ok"));
}

// Types into fields of the dialog, then OK.
Act types(std::vector<std::pair<const char*, const char*>> texts) {
  return [texts](ui::Screen& screen) {
    for (const auto& [name, text] : texts) fakes::enter(screen, *screen.find(name), text);
    ok(screen);
  };
}

struct Corrected {
  const char* field;
  const char* entered;  // first, accepted
  const char* refused;
  text::Id message;
  const char* dialog;
  Act act;
  const char* shown;  // when the dialog was confirmed
};

// Every field whose element has a dialog. Where the dialog can be confirmed as it opens, it is, so
// that the record holds the value already.
const Corrected kCorrected[] = {
    {"Year", "2014", "1999", id::kYearRange, "CUTCTimeDlg1", ok, "2014"},
    {"Month", "11", "13", id::kMonthRange, "CUTCTimeDlg1", ok, "11"},
    {"YY", "15", "99", id::kDayRange, "CUTCTimeDlg1", ok, "15"},
    {"GG", "12", "13", id::kHourRange, "CUTCTimeDlg1", ok, "12"},
    {"GGExact", "12", "24", id::kHourRange, "CSeaSurfacePressureDlg",
     types({{"reading_whole", "1013"}}), "12"},
    {"gg", "10", "60", id::kMinuteRange, "CSeaSurfacePressureDlg",
     types({{"reading_whole", "1013"}}), "10"},
    {"LaDeg", "35", "91", id::kLatitudeDegreesRange, "CPositionDlg", ok, "35"},
    {"LaMin", "30", "60", id::kLatitudeMinutesRange, "CPositionDlg", ok, "30"},
    {"LoDeg", "140", "181", id::kLongitudeDegreesRange, "CPositionDlg", ok, "140"},
    {"LoMin", "12", "60", id::kLongitudeMinutesRange, "CPositionDlg", ok, "12"},
    {"Ds", "4", "x", id::kDsRange, "CDvDsDlg", ok, "4"},
    {"Vs", "3", "x", id::kVsRange, "CDvDsDlg", ok, "3"},
    {"reading", "1013.2", "x", id::kBarometerReadingRange, "CSeaSurfacePressureDlg", ok, "1013.2"},
    {"a", "2", "9", id::kTendencyTypeRange, "CPresureTendencyDlg", ok, "2"},
    {"ppp", "1.4", "25.1", id::kTendencyAmountRange, "CPresureTendencyDlg", ok, "01.4"},
    {"dry_bulb", "20.0", "41", id::kAirTemperatureRange, "CCountDewDlg",
     types({{"dry_whole", "20"}, {"dry_tenths", "0"}}), "20.0"},
    {"wet_bulb", "15.0", "41", id::kWetBulbRange, "CCountDewDlg",
     types({{"wet_whole", "15"}, {"wet_tenths", "0"}}), "15.0"},
    {"air_temperature", "20.0", "41", id::kAirTemperatureRange, "CTemperatureAndDewDlg",
     types({{"air_whole", "20"}, {"air_tenths", "0"}}), "20.0"},
    {"dew_point", "10.0", "41", id::kDewPointRange, "CTemperatureAndDewDlg",
     types({{"dew_whole", "10"}, {"dew_tenths", "0"}}), "10.0"},
    {"relative_humidity", "53", "101", id::kHumidityRange, "CThumidityDlg",
     types({{"value", "53"}}), "53"},
    {"dd", "27", "37", id::kTrueDirectionRange, "CTrueDirWindDlg", types({{"direction", "27"}}),
     "27"},
    {"ff", "12", "x", id::kTrueSpeedRange, "CTrueDirWindDlg", types({{"speed", "12"}}), "12"},
    {"apparent_direction", "90", "361", id::kApparentDirectionRange, "CLookWindDlg",
     types({{"direction", "90"}}), "90"},
    {"apparent_speed", "10", "x", id::kApparentSpeedRange, "CLookWindDlg",
     types({{"speed", "10.0"}}), "10.0"},
    {"heading", "90", "361", id::kHeadingRange, "CLookWindDlg", types({{"heading", "90"}}), "90"},
    {"course", "90", "361", id::kCourseRange, "CLookWindDlg", types({{"course", "90"}}), "90"},
    {"ship_speed", "10", "x", id::kShipSpeedRange, "CLookWindDlg", types({{"ship_speed", "10.0"}}),
     "10.0"},
    {"TwTwTw", "21.5", "38", id::kSeaTemperatureRange, "CSea_SurfaceTemperatureDlg", ok, "21.5"},
    {"PwPw", "05", "30", id::kWindWavePeriodRange, "CWindDlg", types({{"period", "5"}}), "05"},
    {"HwHw", "1.5", "15", id::kCheckWaveHeight, "CWindDlg", types({{"height", "1.5"}}), "1.5"},
    {"dw1dw1", "27", "37", id::kSwell1DirectionRange, "CSwellWaveDlg",
     types({{"direction1", "27"}}), "27"},
    {"Pw1Pw1", "08", "30", id::kSwellPeriodRange, "CSwellWaveDlg", types({{"period1", "8"}}), "08"},
    {"Hw1Hw1", "2.0", "15", id::kCheckWaveHeight, "CSwellWaveDlg", types({{"height1", "2"}}),
     "2.0"},
    {"dw2dw2", "05", "99", id::kSwell2DirectionRange, "CSwellWaveDlg",
     types({{"direction2", "05"}}), "05"},
    {"Pw2Pw2", "12", "30", id::kSwellPeriodRange, "CSwellWaveDlg", types({{"period2", "12"}}),
     "12"},
    {"Hw2Hw2", "0.5", "15", id::kCheckWaveHeight, "CSwellWaveDlg", types({{"height2", ".5"}}),
     "0.5"},
    {"VV", "97", "80", id::kVisibilityRange, "CEyeShotDlg", ok, "97"},
    {"ww", "63", "x", id::kPresentWeatherRange, "CNowWeatherDlg", ok, "63"},
    {"ww", "25", "x", id::kPresentWeatherRange, "CNowWeatherDlg", ok, "25"},
    {"W1", "6", "x", id::kPastWeatherRange, "CPastWeatherDlg1", ok, "6"},
    {"W2", "2", "x", id::kPastWeatherRange, "CPastWeatherDlg1", ok, "2"},
    {"Is", "2", "6", id::kIceCauseRange, "CSeaIceDialog", ok, "2"},
    {"EsEs", "12", "x", id::kIceThicknessRange, "CSeaIceDialog", ok, "12"},
    {"Rs", "5", "6", id::kIceRateRange, "CSeaIceDialog", ok, "5"},
    {"ci", "4", "0", id::kIceConcentrationRange, "CICECiDlg", ok, "4"},
    {"Si", "4", "0", id::kIceStageRange, "CICESiBiDlg", ok, "4"},
    {"bi", "4", "0", id::kIceLandOriginRange, "CICESiBiDlg", ok, "4"},
    {"Di", "4", "0", id::kIceBearingRange, "CICEDiDlg", ok, "4"},
    {"zi", "4", "0", id::kIceTrendRange, "CNewZiDlg", ok, "4"},
};

ShipFixedData ship_for(const std::string& field) {
  ShipFixedData ship = main_window::sample_ship();
  const auto is = [&](std::initializer_list<const char*> names) {
    return std::find(names.begin(), names.end(), field) != names.end();
  };
  if (is({"dry_bulb", "wet_bulb"})) ship.dew_point_method = DewPointMethod::kComputed;
  if (is({"apparent_direction", "apparent_speed", "heading", "course", "ship_speed"}))
    ship.wind_input_method = WindInputMethod::kApparentWind;
  ship.wind_speed_method = WindSpeedMethod::kAnemometer;
  return ship;
}

// What the dialogs want to be whole before they can be confirmed.
void enter_whole(Opened& opened) {
  for (const auto& [name, text] : {std::pair{"Year", "2014"},
                                   {"Month", "11"},
                                   {"YY", "15"},
                                   {"GG", "12"},
                                   {"GGExact", "12"},
                                   {"gg", "10"},
                                   {"LaDeg", "35"},
                                   {"LaMin", "30"},
                                   {"LoDeg", "140"},
                                   {"LoMin", "12"},
                                   {"a", "2"}})
    opened.type(name, text);
  opened.choose("north_south", 0);
  opened.choose("east_west", 0);
}

TEST(RefusedField, ShowsWhatItsDialogSaidAlsoWhereTheRecordHeldIt) {
  for (const Corrected& row : kCorrected) {
    SCOPED_TRACE(row.field);
    const auto opened = std::make_unique<Opened>(ship_for(row.field));
    enter_whole(*opened);
    opened->type(row.field, row.entered);
    const std::string before = opened->window.report();
    ASSERT_TRUE(fakes::enter(opened->window, opened->control(row.field), row.refused));
    opened->world.windows.expect(row.message);
    opened->window.key(ui::Key::kTab);
    ASSERT_EQ(opened->control(row.field).mark, "wrong");
    opened->world.windows.expect_screen(row.dialog, row.act);
    opened->window.key(ui::Key::kF1);
    EXPECT_EQ(opened->control(row.field).mark, "");
    EXPECT_EQ(std::stod("0" + opened->shown(row.field)), std::stod(std::string("0") + row.shown));
    for (const elements::FieldRow& field : elements::field_rows())
      EXPECT_FALSE(opened->window.form().in_error(field.field)) << field.name;
    EXPECT_NE(opened->window.focused()->name, row.field);
    if (opened->shown("reading").empty()) {
      EXPECT_EQ(opened->window.report(), before);
    }
  }
}

TEST(RefusedField, KeepsItsTextWhenTheDialogIsGivenUp) {
  for (const Corrected& row : kCorrected) {
    SCOPED_TRACE(row.field);
    const auto opened = std::make_unique<Opened>(ship_for(row.field));
    enter_whole(*opened);
    opened->type(row.field, row.entered);
    ASSERT_TRUE(fakes::enter(opened->window, opened->control(row.field), row.refused));
    opened->world.windows.expect(row.message);
    opened->window.key(ui::Key::kTab);
    const std::string before = opened->state();
    opened->world.windows.expect_screen(row.dialog,
                                        [](ui::Screen& s) { s.press(*s.find("cancel")); });
    opened->window.key(ui::Key::kF1);
    EXPECT_EQ(opened->state(), before);
  }
}

TEST(PressureTypedByHand, SurvivesTheDialogWithoutAReading) {
  const auto opened = std::make_unique<Opened>();
  opened->type("PPPP", "1010.0");
  opened->type("a", "2");
  opened->world.windows.expect_screen("CSeaSurfacePressureDlg", ok);
  opened->press("label_pressure");
  EXPECT_EQ(opened->window.form().record().PPPP, "0100");
  EXPECT_EQ(opened->window.form().record().a, "2");
  EXPECT_EQ(opened->shown("PPPP"), "1010.0");
  // With a reading there, closing without one empties the pressure as ever.
  opened->type("reading", "1013.2");
  opened->world.windows.expect_screen("CSeaSurfacePressureDlg", types({{"reading_whole", ""}}));
  opened->press("label_pressure");
  EXPECT_EQ(opened->window.form().record().PPPP, "");
}

// Refused and never a reading: the text gives way, the pressure typed by hand stays.
TEST(PressureTypedByHand, SurvivesARefusedReadingThatTheDialogTakesBack) {
  const auto opened = std::make_unique<Opened>();
  opened->type("PPPP", "1010.0");
  ASSERT_TRUE(fakes::enter(opened->window, opened->control("reading"), "x"));
  opened->world.windows.expect(id::kBarometerReadingRange);
  opened->window.key(ui::Key::kShiftTab);
  opened->world.windows.expect_screen("CSeaSurfacePressureDlg", [](ui::Screen& screen) {
    EXPECT_EQ(screen.find("reading_whole")->content, "");
    ok(screen);
  });
  opened->window.key(ui::Key::kF1);
  EXPECT_EQ(opened->shown("reading"), "");
  EXPECT_EQ(opened->control("reading").mark, "");
  EXPECT_EQ(opened->window.form().record().PPPP, "0100");
}

struct Silent {
  const char* field;
  text::Id why;
  std::function<void(ShipFixedData&, KeyObservationItems&)> set;
};

TEST(F1, SaysWhyWhereNoDialogOpensForThisShip) {
  const auto off = [](ObservationItem item) {
    return [item](ShipFixedData&, KeyObservationItems& items) { items.set_observed(item, false); };
  };
  const auto apparent = [](ShipFixedData& ship, KeyObservationItems&) {
    ship.wind_input_method = WindInputMethod::kApparentWind;
    ship.wind_speed_method = WindSpeedMethod::kAnemometer;
  };
  const auto computed = [](ShipFixedData& ship, KeyObservationItems&) {
    ship.humidity_method = HumidityMethod::kComputed;
    ship.humidity_unit = 1.0;
  };
  for (const Silent& row : {Silent{"dd", id::kWhyComputed, apparent},
                            {"ff", id::kWhyComputed, apparent},
                            {"relative_humidity", id::kWhyComputed, computed},
                            {"VV", id::kWhyNotObserved, off(ObservationItem::VV)},
                            {"ww", id::kWhyNotObserved, off(ObservationItem::ww)},
                            {"h", id::kWhyNotObserved, off(ObservationItem::h)},
                            {"CM", id::kWhyNotObserved, off(ObservationItem::CLCMCH)},
                            {"zi", id::kWhyNotObserved, off(ObservationItem::ciSibiDizi)}}) {
    SCOPED_TRACE(row.field);
    for (const bool japanese : {false, true}) {
      ShipFixedData ship = main_window::sample_ship();
      KeyObservationItems items;
      row.set(ship, items);
      const auto opened = std::make_unique<Opened>(ship, items);
      if (japanese) opened->world.japanese();
      ASSERT_TRUE(opened->window.move_focus(opened->control(row.field)));
      const std::string before = opened->state();
      opened->world.windows.expect(row.why);
      opened->window.key(ui::Key::kF1);
      EXPECT_EQ(opened->state(), before);
      EXPECT_EQ(opened->window.focused(), &opened->control(row.field));
    }
  }
}

void expect_saved_as(Opened& opened, std::string& errors) {
  opened.world.windows.expect_screen("CSaveErrorInfoDlg", [&](ui::Screen& screen) {
    errors = fakes::lines_of(*screen.find("errors"));
    screen.press(*screen.find("save_as"));
  });
  opened.world.windows.expect(id::kSaved);
}

TEST(Save, CountsWhateverWasRefusedBeforeIt) {
  const auto opened = std::make_unique<Opened>();
  enter_whole(*opened);
  ASSERT_TRUE(fakes::enter(opened->window, opened->control("VV"), "80"));
  opened->world.windows.expect(id::kVisibilityRange);
  opened->window.key(ui::Key::kTab);
  opened->world.windows.expect_screen("CEyeShotDlg", [](ui::Screen& screen) {
    screen.choose(*screen.find("choice"), 4);
    ok(screen);
  });
  opened->window.key(ui::Key::kF1);
  std::string errors;
  expect_saved_as(*opened, errors);
  opened->menu("Save weather report");
  EXPECT_EQ(opened->window.title(), "KAVREL for WIN - report saved");
  opened->world.windows.expect(id::kAskExit, "yes");
  opened->menu("File/Exit");
}

// A reading that the card has made impossible still stands in its field when the report is saved.
TEST(Save, CountsWithARefusedEntryThatTheListNamed) {
  const auto opened = std::make_unique<Opened>();
  enter_whole(*opened);
  opened->world.windows.expect(id::kPressureQuestion, "yes");
  opened->type("reading", "1049.0");
  opened->ship.card.total_correction_ballast = "+25.0";
  opened->world.windows.expect(id::kAskLoadingState, "yes");
  opened->choose("loading_state", 1);
  ASSERT_EQ(opened->control("reading").mark, "wrong");
  std::string errors;
  expect_saved_as(*opened, errors);
  opened->menu("Save weather report");
  EXPECT_NE(errors.find("870.0 <= Air pressure at sea level <= 1069.9"), std::string::npos);
  EXPECT_EQ(opened->window.title(), "KAVREL for WIN - report saved");
}

TEST(Save, ListsAnIncompleteExactTimeFromEitherSideInBothLanguages) {
  for (const bool japanese : {false, true}) {
    for (const char* const emptied : {"GGExact", "gg"}) {
      const auto opened = std::make_unique<Opened>();
      if (japanese) opened->world.japanese();
      enter_whole(*opened);
      opened->type(emptied, "");
      EXPECT_EQ(opened->control("group_9GGgg").mark, "missing");
      std::string errors;
      expect_saved_as(*opened, errors);
      opened->window.run({0, 0, mainwindow::Command::kSave});
      const std::string line =
          "\n" + std::string(opened->world.texts.get(id::kHalfAnExactTime)) + "\r\n";
      EXPECT_NE(errors.find(line), std::string::npos) << errors;
    }
  }
}

// Each line of the list is one message: none holds two, and none is cut.
TEST(Save, ListNeverRunsTwoMessagesIntoOneLine) {
  const auto opened = std::make_unique<Opened>();
  enter_whole(*opened);
  opened->type("gg", "");
  opened->type("a", "4");
  opened->type("dd", "00");
  std::string errors;
  expect_saved_as(*opened, errors);
  opened->menu("Save weather report");
  std::vector<std::string> lines;
  for (std::size_t at = 0; at < errors.size();) {
    const auto end = errors.find("\r\n", at);
    ASSERT_NE(end, std::string::npos) << "the last line ends too";
    lines.push_back(errors.substr(at, end - at));
    at = end + 2;
  }
  for (const std::string& line : lines) {
    EXPECT_EQ(line.find_first_of("\r\n"), std::string::npos);
    const bool missing = line.starts_with("Group") && line.ends_with("No value input");
    const bool error = line.starts_with("Error: ") && line.find("Error: ", 1) == std::string::npos;
    EXPECT_TRUE(missing || error) << line;
    EXPECT_EQ(line.find("GroupG"), std::string::npos);
  }
  EXPECT_EQ(std::count_if(lines.begin(), lines.end(),
                          [](const std::string& l) { return l.starts_with("Error"); }),
            1);
}

TEST(DoubledPressure, IsToldByTheWindowWithTheWayToTheCardAndListedByTheSave) {
  for (const bool japanese : {false, true}) {
    ShipFixedData ship = main_window::sample_ship();
    ship.dew_point_method = DewPointMethod::kComputed;
    ship.card = {};
    const auto opened = std::make_unique<Opened>(ship);
    if (japanese) opened->world.japanese();
    enter_whole(*opened);
    opened->type("dry_bulb", "20.0");
    ASSERT_TRUE(fakes::enter(opened->window, opened->control("wet_bulb"), "15.0"));
    opened->world.windows.expect(id::kDoubledPressure);
    opened->window.key(ui::Key::kTab);
    EXPECT_EQ(opened->window.form().record().TdTdTd, "075");
    // The dialog's OK with the same bulbs says nothing new, with others it does.
    opened->world.windows.expect_screen("CCountDewDlg", ok);
    opened->press("label_dry_and_wet");
    opened->world.windows.expect_screen("CCountDewDlg", types({{"wet_whole", "16"}}));
    opened->world.windows.expect(id::kDoubledPressure);
    opened->press("label_dry_and_wet");
    std::string errors;
    expect_saved_as(*opened, errors);
    opened->window.run({0, 0, mainwindow::Command::kSave});
    std::string line(opened->world.texts.get(id::kDoubledPressure));
    line.replace(line.find('\n'), 1, " ");
    EXPECT_NE(errors.find(line + "\r\n"), std::string::npos) << errors;
  }
}

TEST(UntouchedForm, IsNotUnsavedByItemsOrShipData) {
  const auto opened = std::make_unique<Opened>();
  opened->world.windows.expect_screen("CKeyObserveDlg", [](ui::Screen& screen) {
    for (const char* const item : {"ww", "W1W2", "VV"}) screen.choose(*screen.find(item), 1);
    ok(screen);
  });
  opened->menu("Observation item");
  EXPECT_EQ(opened->window.title(), "KAVREL for WIN");
  opened->world.windows.expect_screen("CFixDataDlg", [](ui::Screen& screen) {
    fakes::enter(screen, *screen.find("call_sign"), "OTHER");
    ok(screen);
  });
  opened->menu("Fixed data");
  EXPECT_EQ(opened->window.title(), "KAVREL for WIN");
  opened->world.windows.expect(id::kAskExit, "yes");
  opened->menu("File/Exit");
}

TEST(PressureTypedByHand, SurvivesAReadingThatWasBegunAndTakenBack) {
  const auto opened = std::make_unique<Opened>();
  opened->type("PPPP", "1010.0");
  ASSERT_TRUE(fakes::enter(opened->window, opened->control("reading"), "10"));
  opened->type("reading", "");
  EXPECT_EQ(opened->window.form().record().PPPP, "0100");
  EXPECT_EQ(opened->shown("PPPP"), "1010.0");
}

// What is coded as not observed is not shown by a dialog, and is as it was after its OK; a value
// that is entered takes its place and leaves the other one.
TEST(NotObserved, SurvivesTheOkOfItsDialog) {
  struct Row {
    DewPointMethod method;
    const char* group;
    const char* coded;
    const char* field;
    const char* dialog;
  };
  for (const Row& row :
       {Row{DewPointMethod::kDirect, "group_1SnTTT", "1////", "air_temperature",
            "CTemperatureAndDewDlg"},
        Row{DewPointMethod::kDirect, "group_2SnTdTdTd", "2////", "dew_point",
            "CTemperatureAndDewDlg"},
        Row{DewPointMethod::kComputed, "group_1SnTTT", "1////", "dry_bulb", "CCountDewDlg"},
        Row{DewPointMethod::kComputed, "group_8SwTbTbTb", "8////", "wet_bulb", "CCountDewDlg"},
        Row{DewPointMethod::kDirect, "group_0SsTwTwTw", "0////", "TwTwTw",
            "CSea_SurfaceTemperatureDlg"}}) {
    SCOPED_TRACE(row.group);
    ShipFixedData ship = main_window::sample_ship();
    ship.dew_point_method = row.method;
    const auto opened = std::make_unique<Opened>(ship);
    opened->type(row.group, row.coded);
    const auto before = opened->window.record_fields();
    ASSERT_TRUE(opened->window.move_focus(opened->control(row.field)));
    opened->world.windows.expect_screen(row.dialog, ok);
    opened->window.key(ui::Key::kF1);
    EXPECT_EQ(opened->window.record_fields(), before);
    EXPECT_EQ(opened->shown(row.group), row.coded);
  }
}

TEST(NotObserved, GivesWayToAValueOfTheDialogAndLeavesTheOtherOne) {
  const auto opened = std::make_unique<Opened>();
  opened->type("group_1SnTTT", "1////");
  opened->type("group_2SnTdTdTd", "2////");
  opened->world.windows.expect_screen("CTemperatureAndDewDlg", types({{"air_whole", "20"}}));
  opened->press("label_dew_point");
  EXPECT_EQ(opened->shown("group_1SnTTT"), "10200");
  EXPECT_EQ(opened->shown("group_2SnTdTdTd"), "2////");
}

TEST(DoubledPressure, IsToldWhenIceOnTheBulbBringsAnotherDewPoint) {
  ShipFixedData ship = main_window::sample_ship();
  ship.dew_point_method = DewPointMethod::kComputed;
  ship.card = {};
  const auto opened = std::make_unique<Opened>(ship);
  opened->type("dry_bulb", "-5.0");
  ASSERT_TRUE(fakes::enter(opened->window, opened->control("wet_bulb"), "-5.5"));
  opened->world.windows.expect(id::kDoubledPressure);
  opened->window.key(ui::Key::kTab);
  opened->world.windows.expect(id::kDoubledPressure);
  opened->window.tick(opened->control("freeze"), true);
  opened->world.windows.verify();
}

}  // namespace
