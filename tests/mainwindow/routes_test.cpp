// Every road to every element dialog: F1 by the field's number, the group's label, the captions.

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "mainwindow/element_openers.h"
#include "window.h"

namespace {

namespace id = text::id;
using main_window::Opened;

// Types into the fields of a dialog (a line of a choice by its number behind "#", a box with any
// text) and presses OK.
struct Entry {
  const char* control;
  const char* text;
};

void fill(ui::Screen& screen, const std::vector<Entry>& entries, const char* button) {
  for (const Entry& entry : entries) {
    ui::Control* const control = screen.find(entry.control);
    ASSERT_NE(nullptr, control) << screen.class_name() << " has no " << entry.control;
    const std::string_view text = entry.text;
    if (text.starts_with('#')) {
      screen.move_focus(*control);
      screen.choose(*control, text[1] - '0');
    } else if (control->kind == ui::Kind::kTick) {
      screen.tick(*control, true);
    } else {
      ASSERT_TRUE(fakes::enter(screen, *control, text)) << entry.control;
    }
  }
  screen.press(*screen.find(button));
}

struct Dialog {
  int element;
  const char* class_name;
  const char* field;  ///< one of its fields
  const char* label;  ///< one of its labels
  std::vector<Entry> entries;
  std::vector<std::pair<std::string, std::string>> record;  ///< what OK leaves there
  const char* focus;                                        ///< the field behind the element
};

const std::vector<Dialog>& dialogs() {
  static const std::vector<Dialog> kDialogs = {
      {0,
       "CUTCTimeDlg1",
       "GG",
       "label_time",
       {{"year", "2014"}, {"month", "11"}, {"day", "15"}, {"hour", "12"}},
       {{"Year", "2014"}, {"Month", "11"}, {"YY", "15"}, {"GG", "12"}},
       "LaDeg"},
      {1,
       "CPositionDlg",
       "LaDeg",
       "label_longitude",
       {{"latitude_degrees", "35"},
        {"latitude_minutes", "20"},
        {"latitude_side", "#1"},
        {"longitude_degrees", "140"},
        {"longitude_minutes", "05"},
        {"longitude_side", "#0"}},
       {{"LaDeg", "35"}, {"LaMin", "20"}, {"LoDeg", "140"}, {"LoMin", "05"}, {"Qc", "3"}},
       "Ds"},
      {2,
       "CDvDsDlg",
       "Ds",
       "label_ship_speed",
       {{"course", "#2"}, {"speed", "#3"}},
       {{"Ds", "2"}, {"Vs", "3"}},
       "reading"},
      {3,
       "CSeaSurfacePressureDlg",
       "reading",
       "label_pressure",
       {{"reading_whole", "1013"},
        {"reading_tenths", "2"},
        {"time_choice", "#1"},
        {"hour", "11"},
        {"minute", "45"}},
       {{"PPPP", "0156"}, {"gg", "45"}, {"GGExact", "11"}},
       "a"},
      {4,
       "CPresureTendencyDlg",
       "ppp",
       "label_tendency",
       {{"kind", "#0"}, {"characteristic", "#2"}, {"amount", "1.2"}},
       {{"a", "2"}, {"ppp", "012"}},
       "air_temperature"},
      {6,
       "CTemperatureAndDewDlg",
       "dew_point",
       "label_dew_point",
       {{"air_whole", "20"}, {"air_tenths", "0"}, {"dew_whole", "10"}, {"dew_tenths", "0"}},
       {{"SnT", "0"}, {"TTT", "200"}, {"SnTd", "0"}, {"TdTdTd", "100"}},
       "relative_humidity"},
      {26,
       "CThumidityDlg",
       "relative_humidity",
       "label_humidity",
       {{"value", "53.0"}},
       {{"LogExtra", "0530"}},
       "dd"},
      {25,
       "CTrueDirWindDlg",
       "dd",
       "label_true_wind",
       {{"direction", "18"}, {"speed", "12"}},
       {{"dd", "18"}, {"ff", "12"}},
       "TwTwTw"},
      {7,
       "CSea_SurfaceTemperatureDlg",
       "TwTwTw",
       "label_sea_temperature",
       {{"temperature", "18.5"}},
       {{"Ss", "0"}, {"TwTwTw", "185"}},
       "PwPw"},
      {9,
       "CWindDlg",
       "HwHw",
       "label_wind_wave",
       {{"period", "5"}, {"height", "1.5"}},
       {{"PwPw", "05"}, {"HwHw", "03"}},
       "dw1dw1"},
      {10,
       "CSwellWaveDlg",
       "Pw2Pw2",
       "label_swell2",
       {{"direction1", "27"},
        {"period1", "8"},
        {"height1", "2.0"},
        {"direction2", "5"},
        {"period2", "12"},
        {"height2", "0.5"}},
       {{"dw1dw1", "27"},
        {"Pw1Pw1", "08"},
        {"Hw1Hw1", "04"},
        {"dw2dw2", "05"},
        {"Pw2Pw2", "12"},
        {"Hw2Hw2", "01"}},
       "VV"},
      {11, "CEyeShotDlg", "VV", "label_visibility", {{"choice", "#7"}}, {{"VV", "93"}}, "ww"},
      {12,
       "CNowWeatherDlg",
       "ww",
       "label_present_weather",
       {{"choice", "#0"}, {"group", "#5"}, {"line", "#3"}},
       {{"ww", "63"}},
       "W1"},
      {13,
       "CPastWeatherDlg1",
       "W2",
       "label_past_weather",
       {{"drizzle", "on"}, {"thunder", "on"}},
       {{"W1", "9"}, {"W2", "5"}},
       "N"},
      {14, "CCloudAgeDlg", "N", "label_total_cloud", {{"choice", "#7"}}, {{"N", "7"}}, "Nh"},
      {15,
       "CBottomLayerCloudDlg",
       "Nh",
       "label_lowest_cloud",
       {{"choice", "#4"}},
       {{"Nh", "4"}},
       "CH"},
      {16, "CTopCloudDlg", "CH", "caption_CH", {{"choice", "#1"}}, {{"CH", "/"}}, "CM"},
      {17, "CMidCloudDlg", "CM", "caption_CM", {{"choice", "#8"}}, {{"CM", "7"}}, "CL"},
      {18, "CBottomCloudDlg", "CL", "caption_CL", {{"choice", "#0"}}, {{"CL", "0"}}, "h"},
      {20, "CCloudHeightDlg", "h", "label_cloud_height", {{"choice", "#6"}}, {{"h", "4"}}, "Is"},
      {19,
       "CSeaIceDialog",
       "EsEs",
       "label_ice_accretion",
       {{"kind", "#3"}, {"thickness", "7"}, {"rate", "#0"}},
       {{"Is", "4"}, {"EsEs", "07"}, {"Rs", "0"}},
       "ci"},
      {21,
       "CICECiDlg",
       "ci",
       "caption_ci",
       {{"place", "#1"}, {"uniform", "#1"}, {"concentration", "#2"}},
       {{"ci", "8"}},
       "Si"},
      {22,
       "CICESiBiDlg",
       "Si",
       "caption_bi",
       {{"stage", "#3"}, {"land_origin", "#5"}},
       {{"Si", "3"}, {"bi", "5"}},
       "Di"},
      {23, "CICEDiDlg", "Di", "caption_Di", {{"choice", "#0"}}, {{"Di", "0"}}, "zi"},
      {24, "CNewZiDlg", "zi", "caption_zi", {{"choice", "#9"}}, {{"zi", "9"}}, "group_YYGGiw"},
  };
  return kDialogs;
}

ShipFixedData ship_for(const Dialog& dialog) {
  ShipFixedData ship = main_window::sample_ship();
  if (dialog.element == 5) ship.dew_point_method = DewPointMethod::kComputed;
  if (dialog.element == 8) {
    ship.wind_input_method = WindInputMethod::kApparentWind;
    ship.wind_speed_method = WindSpeedMethod::kAnemometer;
  }
  return ship;
}

std::vector<Dialog> all_dialogs() {
  std::vector<Dialog> all = dialogs();
  all.push_back(
      {5,
       "CCountDewDlg",
       "wet_bulb",
       "label_dry_and_wet",
       {{"dry_whole", "10"}, {"dry_tenths", "0"}, {"wet_whole", "5"}, {"wet_tenths", "0"}},
       {{"SnT", "0"}, {"TTT", "100"}, {"Sw", "0"}, {"TbTbTb", "050"}, {"SnTd", "1"}},
       "relative_humidity"});
  all.push_back({8,
                 "CLookWindDlg",
                 "heading",
                 "label_apparent_wind",
                 {{"heading", "360"},
                  {"course", "360"},
                  {"ship_speed", "10"},
                  {"direction", "90"},
                  {"speed", "10"}},
                 {{"dd", "14"}, {"ff", "14"}},
                 "TwTwTw"});
  return all;
}

using Road = std::function<void(Opened&, const Dialog&)>;
const std::vector<std::pair<const char*, Road>>& roads() {
  static const std::vector<std::pair<const char*, Road>> kRoads = {
      {"F1",
       [](Opened& opened, const Dialog& dialog) {
         ASSERT_TRUE(opened.window.move_focus(opened.control(dialog.field)));
         opened.window.key(ui::Key::kF1);
       }},
      {"label", [](Opened& opened, const Dialog& dialog) { opened.press(dialog.label); }},
      {"number",
       [](Opened& opened, const Dialog& dialog) { opened.window.open_element(dialog.element); }},
  };
  return kRoads;
}

TEST(ElementDialogs, OpenOnEveryRoadAndHandTheirCodesToTheRecord) {
  for (const Dialog& dialog : all_dialogs()) {
    for (const auto& [name, road] : roads()) {
      SCOPED_TRACE(std::string(dialog.class_name) + " by " + name);
      const auto opened = std::make_unique<Opened>(ship_for(dialog));
      opened->world.windows.expect_screen(
          dialog.class_name, [&](ui::Screen& screen) { fill(screen, dialog.entries, "ok"); });
      road(*opened, dialog);
      for (const auto& [field, value] : dialog.record) {
        EXPECT_EQ(value, opened->window.form().record().*find_weather_field(field)->member)
            << field;
      }
      ASSERT_NE(nullptr, opened->window.focused());
      EXPECT_EQ(dialog.focus, opened->window.focused()->name);
      EXPECT_TRUE(opened->window.unsaved());
    }
  }
}

// An element may stand at two places of the form, as the pressure does, which also has the time of
// its reading. Who goes from field to field with F1 must not be led past what stands between them.
TEST(ElementDialogs, OpenedByF1LeadBehindTheFieldsThatTheyWereOpenedFrom) {
  int fields = 0;
  for (const Dialog& dialog : all_dialogs()) {
    for (const mainwindow::FieldRow& row : mainwindow::field_rows()) {
      if (row.element != dialog.element) continue;
      SCOPED_TRACE(std::string(dialog.class_name).append(" from ").append(row.name));
      const auto opened = std::make_unique<Opened>(ship_for(dialog));
      if (!opened->window.move_focus(opened->control(row.name))) continue;
      opened->world.windows.expect_screen(
          dialog.class_name, [&](ui::Screen& screen) { fill(screen, dialog.entries, "ok"); });
      opened->window.key(ui::Key::kF1);
      const bool time_of_reading = row.name == "GGExact" || row.name == "gg";
      ASSERT_NE(opened->window.focused(), nullptr);
      EXPECT_EQ(opened->window.focused()->name, time_of_reading ? "LaDeg" : dialog.focus);
      ++fields;
    }
  }
  EXPECT_GE(fields, 55);
}

// The label of the pressure stands at its reading, wherever the keyboard is.
TEST(ElementDialogs, OpenedByALabelLeadBehindTheWholeElement) {
  for (const Dialog& dialog : all_dialogs()) {
    SCOPED_TRACE(dialog.class_name);
    const auto opened = std::make_unique<Opened>(ship_for(dialog));
    ASSERT_TRUE(opened->window.move_focus(opened->control("GGExact")));
    opened->world.windows.expect_screen(
        dialog.class_name, [&](ui::Screen& screen) { fill(screen, dialog.entries, "ok"); });
    opened->press(dialog.label);
    ASSERT_NE(opened->window.focused(), nullptr);
    EXPECT_EQ(opened->window.focused()->name, dialog.focus);
  }
}

TEST(ElementDialogs, ChangeNothingWhenTheyAreCancelled) {
  for (const Dialog& dialog : all_dialogs()) {
    for (const auto& [name, road] : roads()) {
      SCOPED_TRACE(std::string(dialog.class_name) + " by " + name);
      const auto opened = std::make_unique<Opened>(ship_for(dialog));
      ASSERT_TRUE(opened->window.move_focus(opened->control(dialog.field)));
      const std::string before = opened->state();
      opened->world.windows.expect_screen(
          dialog.class_name, [&](ui::Screen& screen) { fill(screen, dialog.entries, "cancel"); });
      road(*opened, dialog);
      EXPECT_EQ(before, opened->state());
      // From a caption the focus moves on whatever the dialog says.
      const bool moves_on = name == std::string_view("label") &&
                            std::string_view(dialog.label).starts_with("caption_");
      EXPECT_EQ(moves_on ? dialog.focus : dialog.field, opened->window.focused()->name);
      EXPECT_FALSE(opened->window.unsaved());
    }
  }
}

TEST(ElementDialogs, OpenAgainOnWhatTheyGave) {
  for (const Dialog& dialog : all_dialogs()) {
    SCOPED_TRACE(dialog.class_name);
    const auto opened = std::make_unique<Opened>(ship_for(dialog));
    opened->world.windows.expect_screen(
        dialog.class_name, [&](ui::Screen& screen) { fill(screen, dialog.entries, "ok"); });
    opened->window.open_element(dialog.element);
    const auto record = opened->window.record_fields();
    opened->world.windows.expect_screen(
        dialog.class_name, [](ui::Screen& screen) { screen.press(*screen.find("ok")); });
    opened->window.open_element(dialog.element);
    EXPECT_EQ(record, opened->window.record_fields());
  }
}

// ---- Every label and every field

// The dialog that each of them opens; nullptr for a field whose element has none.
struct Opens {
  const char* name;
  const char* dialog;
};
constexpr Opens kLabelOpens[] = {
    {"label_time", "CUTCTimeDlg1"},
    {"label_latitude", "CPositionDlg"},
    {"label_longitude", "CPositionDlg"},
    {"label_ship_direction", "CDvDsDlg"},
    {"label_ship_speed", "CDvDsDlg"},
    {"label_pressure", "CSeaSurfacePressureDlg"},
    {"label_tendency", "CPresureTendencyDlg"},
    {"label_dry_and_wet", "CCountDewDlg"},
    {"label_dew_point", "CTemperatureAndDewDlg"},
    {"label_humidity", "CThumidityDlg"},
    {"label_true_wind", "CTrueDirWindDlg"},
    {"label_apparent_wind", "CLookWindDlg"},
    {"label_sea_temperature", "CSea_SurfaceTemperatureDlg"},
    {"label_wind_wave", "CWindDlg"},
    {"label_swell1", "CSwellWaveDlg"},
    {"label_swell2", "CSwellWaveDlg"},
    {"label_wave_recorder", "CSwellWaveDlg"},
    {"label_visibility", "CEyeShotDlg"},
    {"label_present_weather", "CNowWeatherDlg"},
    {"label_past_weather", "CPastWeatherDlg1"},
    {"label_total_cloud", "CCloudAgeDlg"},
    {"label_lowest_cloud", "CBottomLayerCloudDlg"},
    {"label_cloud_type", "CTopCloudDlg"},
    {"caption_CH", "CTopCloudDlg"},
    {"caption_CM", "CMidCloudDlg"},
    {"caption_CL", "CBottomCloudDlg"},
    {"label_cloud_height", "CCloudHeightDlg"},
    {"label_ice_accretion", "CSeaIceDialog"},
    {"label_sea_ice", "CICECiDlg"},
    {"caption_ci", "CICECiDlg"},
    {"caption_Si", "CICESiBiDlg"},
    {"caption_bi", "CICESiBiDlg"},
    {"caption_Di", "CICEDiDlg"},
    {"caption_zi", "CNewZiDlg"},
};
constexpr Opens kFieldOpens[] = {
    {"Year", "CUTCTimeDlg1"},
    {"Month", "CUTCTimeDlg1"},
    {"YY", "CUTCTimeDlg1"},
    {"GG", "CUTCTimeDlg1"},
    {"GGExact", "CSeaSurfacePressureDlg"},
    {"gg", "CSeaSurfacePressureDlg"},
    {"LaDeg", "CPositionDlg"},
    {"LaMin", "CPositionDlg"},
    {"north_south", "CPositionDlg"},
    {"LoDeg", "CPositionDlg"},
    {"LoMin", "CPositionDlg"},
    {"east_west", "CPositionDlg"},
    {"Ds", "CDvDsDlg"},
    {"Vs", "CDvDsDlg"},
    {"loading_state", "CSeaSurfacePressureDlg"},
    {"reading", "CSeaSurfacePressureDlg"},
    {"PPPP", "CSeaSurfacePressureDlg"},
    {"a", "CPresureTendencyDlg"},
    {"ppp", "CPresureTendencyDlg"},
    {"dry_bulb", "CCountDewDlg"},
    {"wet_bulb", "CCountDewDlg"},
    {"freeze", "CCountDewDlg"},
    {"air_temperature", "CTemperatureAndDewDlg"},
    {"dew_point", "CTemperatureAndDewDlg"},
    {"relative_humidity", "CThumidityDlg"},
    {"dd", "CTrueDirWindDlg"},
    {"ff", "CTrueDirWindDlg"},
    {"apparent_direction", "CLookWindDlg"},
    {"apparent_speed", "CLookWindDlg"},
    {"heading", "CLookWindDlg"},
    {"course", "CLookWindDlg"},
    {"ship_speed", "CLookWindDlg"},
    {"TwTwTw", "CSea_SurfaceTemperatureDlg"},
    {"PwPw", "CWindDlg"},
    {"HwHw", "CWindDlg"},
    {"dw1dw1", "CSwellWaveDlg"},
    {"Pw1Pw1", "CSwellWaveDlg"},
    {"Hw1Hw1", "CSwellWaveDlg"},
    {"dw2dw2", "CSwellWaveDlg"},
    {"Pw2Pw2", "CSwellWaveDlg"},
    {"Hw2Hw2", "CSwellWaveDlg"},
    {"PwaPwa", nullptr},
    {"HwaHwa", nullptr},
    {"VV", "CEyeShotDlg"},
    {"ww", "CNowWeatherDlg"},
    {"W1", "CPastWeatherDlg1"},
    {"W2", "CPastWeatherDlg1"},
    {"N", "CCloudAgeDlg"},
    {"Nh", "CBottomLayerCloudDlg"},
    {"CH", "CTopCloudDlg"},
    {"CM", "CMidCloudDlg"},
    {"CL", "CBottomCloudDlg"},
    {"h", "CCloudHeightDlg"},
    {"Is", "CSeaIceDialog"},
    {"EsEs", "CSeaIceDialog"},
    {"Rs", "CSeaIceDialog"},
    {"ci", "CICECiDlg"},
    {"Si", "CICESiBiDlg"},
    {"bi", "CICESiBiDlg"},
    {"Di", "CICEDiDlg"},
    {"zi", "CNewZiDlg"},
};
// Ships whose methods leave each field open on one of them at least.
std::vector<ShipFixedData> ships_of_both_methods() {
  std::vector<ShipFixedData> ships(2, main_window::sample_ship());
  ships[0].wave_recorder = true;
  ships[1].dew_point_method = DewPointMethod::kComputed;
  ships[1].wind_input_method = WindInputMethod::kApparentWind;
  ships[1].wind_speed_method = WindSpeedMethod::kAnemometer;
  ships[1].card.type = CardType::kHeightAndTemperature;
  return ships;
}

// What the road brought: "modal CLASS" or the text of a message, nothing where it is dead.
std::vector<std::string> brought(Opened& opened, const std::function<void()>& road) {
  opened.world.windows.answer_all("cancel");
  const std::string before = opened.state();
  road();
  EXPECT_EQ(before, opened.state());
  std::vector<std::string> all = opened.world.windows.notices;
  for (const ui::MessageBox& box : opened.world.windows.boxes) all.push_back(box.text);
  return all;
}

std::string message(text::Id id) {
  return std::string(text::bilingual(id, text::Language::kEnglish));
}

std::string expected_of(const char* dialog) {
  return dialog == nullptr ? message(id::kNoSubWindow) : "modal " + std::string(dialog);
}

TEST(EveryLabel, OpensItsDialogWhenItIsClicked) {
  std::set<std::string_view> left;
  for (const mainwindow::LabelRow& row : mainwindow::label_rows()) left.insert(row.name);
  for (const Opens& row : kLabelOpens) {
    SCOPED_TRACE(row.name);
    bool alive = false;
    for (const ShipFixedData& ship : ships_of_both_methods()) {
      const auto opened = std::make_unique<Opened>(ship);
      const auto all = brought(*opened, [&] { opened->press(row.name); });
      if (all.empty()) continue;  // this ship has another method
      alive = true;
      EXPECT_EQ(all, (std::vector<std::string>{expected_of(row.dialog)}));
    }
    EXPECT_TRUE(alive);
    EXPECT_EQ(left.erase(row.name), 1U);
  }
  EXPECT_TRUE(left.empty()) << *left.begin();
}

TEST(EveryField, OpensItsDialogByF1OrSaysThatItHasNone) {
  std::set<std::string_view> left;
  for (const mainwindow::FieldRow& row : mainwindow::field_rows()) left.insert(row.name);
  for (const Opens& row : kFieldOpens) {
    SCOPED_TRACE(row.name);
    bool open = false;
    for (const ShipFixedData& ship : ships_of_both_methods()) {
      const auto opened = std::make_unique<Opened>(ship);
      if (!opened->control(row.name).why_locked.empty()) continue;
      open = true;
      ASSERT_TRUE(opened->window.move_focus(opened->control(row.name)));
      const auto all = brought(*opened, [&] { opened->window.key(ui::Key::kF1); });
      EXPECT_EQ(all, (std::vector<std::string>{expected_of(row.dialog)}));
    }
    EXPECT_TRUE(open);
    EXPECT_EQ(left.erase(row.name), 1U);
  }
  EXPECT_TRUE(left.empty()) << *left.begin();
}

TEST(EveryGroupOfTheReport, SaysByF1ThatItHasNoDialog) {
  for (const mainwindow::ReportGroupRow& row : mainwindow::report_group_rows()) {
    const auto opened = std::make_unique<Opened>();
    ASSERT_TRUE(opened->window.move_focus(opened->control(row.name)));
    EXPECT_EQ(brought(*opened, [&] { opened->window.key(ui::Key::kF1); }),
              (std::vector<std::string>{expected_of(nullptr)}))
        << row.name;
  }
}

// ---- Numbers

TEST(ElementNumbers, AreAllInTheTableOnceAndOthersSayThatThereIsNoDialog) {
  for (int element = 0; element <= 26; ++element) {
    int rows = 0;
    for (const mainwindow::ElementRow& row : mainwindow::element_rows())
      rows += row.element == element && row.open != nullptr ? 1 : 0;
    EXPECT_EQ(1, rows) << element;
  }
  const auto opened = std::make_unique<Opened>();
  for (const int element : {99, -1, 27, 1000}) {
    opened->world.windows.expect(id::kNoSubWindow);
    EXPECT_FALSE(opened->window.open_element(element));
  }
}

TEST(ElementNumbers, OfTheFieldsAndLabelsAreInTheTable) {
  for (const mainwindow::FieldRow& row : mainwindow::field_rows()) {
    EXPECT_TRUE(row.element == mainwindow::kNoElement ||
                mainwindow::find_element(row.element) != nullptr)
        << row.name;
  }
  for (const mainwindow::LabelRow& row : mainwindow::label_rows()) {
    EXPECT_TRUE(row.element() == mainwindow::kNoElement ||
                mainwindow::find_element(row.element()) != nullptr)
        << row.name;
  }
}

// ---- Captions

struct Caption {
  const char* name;
  int element;
  const char* focus;
};
constexpr Caption kCaptions[] = {
    {"caption_CH", 16, "CM"}, {"caption_CM", 17, "CL"},           {"caption_CL", 18, "h"},
    {"caption_ci", 21, "Si"}, {"caption_Si", 22, "bi"},           {"caption_bi", 22, "Di"},
    {"caption_Di", 23, "zi"}, {"caption_zi", 24, "group_YYGGiw"},
};

TEST(Captions, OpenTheirCodesDialogAndMoveTheFocusOn) {
  for (const Caption& row : kCaptions) {
    const auto opened = std::make_unique<Opened>();
    const auto dialog = std::find_if(dialogs().begin(), dialogs().end(),
                                     [&](const Dialog& d) { return d.element == row.element; });
    ASSERT_NE(dialog, dialogs().end()) << row.name;
    opened->world.windows.expect_screen(
        dialog->class_name, [](ui::Screen& screen) { screen.press(*screen.find("cancel")); });
    opened->press(row.name);
    EXPECT_EQ(row.focus, opened->window.focused()->name) << row.name;
    for (const mainwindow::LabelRow& label : mainwindow::label_rows()) {
      if (label.name == row.name) {
        EXPECT_EQ(row.element, label.element()) << row.name;
      }
    }
  }
}

// ---- What is switched off

TEST(SwitchedOffElements, HaveDeadLabels) {
  for (const mainwindow::LabelRow& row : mainwindow::label_rows()) {
    if (!row.item()) continue;
    KeyObservationItems items;
    items.set_observed(*row.item(), false);
    const auto opened = std::make_unique<Opened>(main_window::sample_ship(), items);
    const std::string before = opened->state();
    const ui::Control* const focused = opened->window.focused();
    opened->press(row.name);  // no screen and no message is expected
    EXPECT_EQ(before, opened->state()) << row.name;
    EXPECT_EQ(focused, opened->window.focused()) << row.name;
  }
}

TEST(SwitchedOffElements, AreLockedAndSayWhy) {
  for (std::size_t i = 0; i < kObservationItems; ++i) {
    KeyObservationItems items;
    items.not_observed[i] = true;
    const auto opened = std::make_unique<Opened>(main_window::sample_ship(), items);
    int locked = 0;
    for (const mainwindow::FieldRow& row : mainwindow::field_rows()) {
      if (row.field == nullptr || row.field->item != static_cast<ObservationItem>(i)) continue;
      ++locked;
      ui::Control& control = opened->control(row.name);
      EXPECT_TRUE(control.read_only) << row.name;
      EXPECT_EQ("Not observed on this ship (menu \"Observation item\")", control.why_locked);
      const std::string before = opened->state();
      opened->window.move_focus(control);
      opened->window.type(control, "1");
      opened->window.key(ui::Key::kTab);
      EXPECT_EQ(before, opened->state()) << row.name;
    }
    EXPECT_LT(0, locked) << i;
  }
}

TEST(SwitchedOffElements, FillPresentAndPastWeather) {
  KeyObservationItems items;
  items.set_observed(ObservationItem::ww, false);
  items.set_observed(ObservationItem::W1W2, false);
  const auto opened = std::make_unique<Opened>(main_window::sample_ship(), items);
  EXPECT_EQ("//", opened->shown("ww"));
  EXPECT_EQ("/", opened->shown("W1"));
  EXPECT_EQ("/", opened->shown("W2"));
  EXPECT_EQ("7////", opened->shown("group_7wwW1W2"));
  EXPECT_EQ("43***", opened->shown("group_iRiXhVV"));
  EXPECT_FALSE(opened->window.unsaved());
}

// ---- The ship's methods

TEST(Methods, ChooseTheTemperatureDialogs) {
  struct Row {
    DewPointMethod dew_point;
    HumidityMethod humidity;
    std::vector<int> open;
  };
  for (const Row& row : {Row{DewPointMethod::kDirect, HumidityMethod::kDirect, {6, 26}},
                         Row{DewPointMethod::kDirect, HumidityMethod::kComputed, {6}},
                         Row{DewPointMethod::kComputed, HumidityMethod::kDirect, {5, 26}},
                         Row{DewPointMethod::kComputed, HumidityMethod::kComputed, {5}}}) {
    ShipFixedData ship = main_window::sample_ship();
    ship.dew_point_method = row.dew_point;
    ship.humidity_method = row.humidity;
    const auto opened = std::make_unique<Opened>(ship);
    std::vector<int> open;
    for (const Dialog& dialog : all_dialogs()) {
      if (dialog.element != 5 && dialog.element != 6 && dialog.element != 26) continue;
      bool shown = false;
      ui::Control& label = opened->control(dialog.label);
      const bool in_use = mainwindow::use_of(*mainwindow::find_element(dialog.element),
                                             {opened->ship, opened->items, opened->folders, {}}) ==
                          mainwindow::Use::kInUse;
      if (in_use) {
        opened->world.windows.expect_screen(dialog.class_name, [&](ui::Screen& screen) {
          shown = true;
          screen.press(*screen.find("cancel"));
        });
      }
      opened->window.press(label);
      if (shown) open.push_back(dialog.element);
    }
    std::sort(open.begin(), open.end());
    EXPECT_EQ(row.open, open);
  }
}

TEST(Methods, ChooseTrueOrApparentWind) {
  for (const bool apparent : {false, true}) {
    ShipFixedData ship = main_window::sample_ship();
    if (apparent) {
      ship.wind_input_method = WindInputMethod::kApparentWind;
      ship.wind_speed_method = WindSpeedMethod::kAnemometer;
    }
    const auto opened = std::make_unique<Opened>(ship);
    EXPECT_EQ(apparent, opened->control("dd").read_only);
    EXPECT_EQ(apparent, opened->control("apparent_speed").enabled);
    opened->world.windows.expect_screen(
        apparent ? "CLookWindDlg" : "CTrueDirWindDlg",
        [](ui::Screen& screen) { screen.press(*screen.find("cancel")); });
    opened->press("label_true_wind");
    opened->press("label_apparent_wind");
  }
}

TEST(Methods, DisableWhatTheShipDoesNotUseAndShowItEmpty) {
  const auto opened = std::make_unique<Opened>();
  for (const char* const name :
       {"dry_bulb", "wet_bulb", "freeze", "apparent_direction", "apparent_speed", "heading",
        "course", "ship_speed", "PwaPwa", "HwaHwa"}) {
    EXPECT_FALSE(opened->control(name).enabled) << name;
    EXPECT_EQ("", opened->shown(name)) << name;
    EXPECT_FALSE(opened->control(name).why_locked.empty()) << name;
  }
}

// ---- Details of single dialogs

TEST(PositionDialog, OpensOnTheHemispheresOfTheLastReport) {
  const auto opened = std::make_unique<Opened>();
  opened->files.add_file("C:\\out\\14111512.tlx", "BBXX JXKV 15124 99353 31400 41498 .....");
  ShipFixedData ship = main_window::sample_ship();
  KeyObservationItems items;
  CVelmaranDlg window(opened->world.services, {ship, items, opened->folders, {}});
  window.open();
  EXPECT_EQ(-1, window.find("north_south")->selected);  // on the form nobody has chosen
  opened->world.windows.expect_screen("CPositionDlg", [](ui::Screen& screen) {
    EXPECT_EQ(1, screen.find("latitude_side")->selected);
    EXPECT_EQ(0, screen.find("longitude_side")->selected);
    EXPECT_TRUE(screen.find("last_report_hint")->visible);
    screen.press(*screen.find("cancel"));
  });
  window.press(*window.find("label_latitude"));
}

TEST(PressureDialog, StoresARenewedCardAndReducesWithIt) {
  const auto opened = std::make_unique<Opened>();
  opened->type("reading", "1000.0");
  ASSERT_EQ("0024", opened->window.form().record().PPPP);
  opened->world.windows.expect_screen("CSeaSurfacePressureDlg", [&](ui::Screen& screen) {
    opened->world.windows.expect_screen("CKataInputDlg", [](ui::Screen& card) {
      fakes::enter(card, *card.find("instrumental_correction"), "+1.0");
      card.press(*card.find("ok"));
    });
    screen.press(*screen.find("renew"));
    screen.press(*screen.find("ok"));
  });
  opened->press("label_pressure");
  EXPECT_EQ("+1.0", opened->ship.card.instrumental_correction);
  EXPECT_EQ((std::vector<std::string>{"fixed data"}), opened->told);
}

TEST(F1, TakesWhatWasJustTypedIntoTheDialog) {
  const auto opened = std::make_unique<Opened>();
  ASSERT_TRUE(fakes::enter(opened->window, opened->control("VV"), "95"));
  opened->world.windows.expect_screen("CEyeShotDlg", [](ui::Screen& screen) {
    EXPECT_EQ(5, screen.find("choice")->selected);
    screen.press(*screen.find("cancel"));
  });
  opened->window.key(ui::Key::kF1);
  EXPECT_EQ("95", opened->window.form().record().VV);
}

TEST(F1, ChecksATextThatIsNoValueOnceAndOpensTheDialogAllTheSame) {
  const auto opened = std::make_unique<Opened>();
  ASSERT_TRUE(fakes::enter(opened->window, opened->control("VV"), "7"));
  const auto cancel = [](ui::Screen& screen) { screen.press(*screen.find("cancel")); };
  opened->world.windows.expect(id::kVisibilityRange);
  opened->world.windows.expect_screen("CEyeShotDlg", cancel);
  opened->window.key(ui::Key::kF1);
  opened->world.windows.expect_screen("CEyeShotDlg", cancel);
  opened->window.key(ui::Key::kF1);
  EXPECT_EQ("7", opened->shown("VV"));
  EXPECT_EQ("", opened->window.form().record().VV);
}

TEST(F1, DoesNotTakeAValueThatTheOfficerSaidNoTo) {
  const auto opened = std::make_unique<Opened>();
  opened->world.windows.expect(id::kPressureQuestion, "no");
  opened->type("PPPP", "925.0");
  opened->world.windows.expect_screen(
      "CSeaSurfacePressureDlg", [](ui::Screen& screen) { screen.press(*screen.find("cancel")); });
  opened->window.key(ui::Key::kF1);
  EXPECT_EQ("", opened->window.form().record().PPPP);
  EXPECT_EQ("925.0", opened->shown("PPPP"));
}

}  // namespace
