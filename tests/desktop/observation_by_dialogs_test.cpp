// Whole observations entered into the real main window by keys, field by field: through the
// dialogs alone, and for comparison by the codes. They are those of the sessions of the same names.

#include <gtest/gtest.h>

#include <QMessageBox>
#include <QTimer>
#include <algorithm>
#include <fstream>
#include <iterator>
#include <memory>
#include <span>
#include <sstream>
#include <string>
#include <vector>

#include "desktop_world.h"
#include "mainwindow/CVelmaranDlg.h"
#include "observation/logbook_encoder.h"
#include "ship/data/ship_files.h"
#include "widget_views.h"

namespace {

// What is done where the keyboard is. The keys are names of keys and texts to type, with a blank
// between them; where a dialog is named, F1 opens it and they go there.
struct Step {
  const char* field;   ///< of the main window; it must have the focus
  const char* dialog;  ///< nullptr: none
  const char* keys;
};

struct Observation {
  const char* name;
  const char* session;  ///< that plays it
  const char* ship;     ///< folder with FIXDATA.DAT
  const char* items;    ///< folder with MOKSDATA.DAT
  platform::DateTime utc;
  std::span<const Step> steps;
  const char* report;
  const char* logbook_line;
};

// ---- A gale

constexpr Step kGaleByDialogs[] = {
    {"Year", "CUTCTimeDlg1", "18 Return"},
    // The time of the reading, before the position, with the reading itself.
    {"GGExact", "CSeaSurfacePressureDlg", "978.4 Tab Down Tab 17 Tab 45 Return"},
    {"LaDeg", "CPositionDlg", "42 Tab 38 Tab Down Tab 158 Tab 12 Tab Down Return"},
    {"Ds", "CDvDsDlg", "2 Tab 2 Return"},
    {"reading", nullptr, "Tab"},  // the pressure that it gave is passed by
    {"a", "CPresureTendencyDlg", "Down Tab 8 Tab 6.8 Return"},
    {"dry_bulb", "CCountDewDlg", "6.2 Tab 5.4 Tab Home Return"},
    // Computed, as dd and ff are on a ship that reads the apparent wind.
    {"apparent_direction", "CLookWindDlg", "90 Tab 90 Tab 8 Tab 225 Tab 40 Return"},
    {"TwTwTw", "CSea_SurfaceTemperatureDlg", "8.4 Return"},
    {"PwPw", "CWindDlg", "11 Tab 7.5 Return"},
    {"dw1dw1", "CSwellWaveDlg", "Tab 29 Tab 13 Tab 5 Tab 20 Tab 10 Tab 2.5 Return"},
    {"VV", "CEyeShotDlg", "95 Return"},
    {"ww", "CNowWeatherDlg", "Home Tab 80 Tab 81 Return"},
    {"W1", "CPastWeatherDlg1", "Tab Space Tab Tab Space Return"},
    {"N", "CCloudAgeDlg", "8 Return"},
    {"Nh", "CBottomLayerCloudDlg", "6 Return"},
    {"CH", "CTopCloudDlg", "/ Return"},
    {"CM", "CMidCloudDlg", "2 Return"},
    {"CL", "CBottomCloudDlg", "9 Return"},
    {"h", "CCloudHeightDlg", "4 Return"},
};

constexpr Step kGaleByCodes[] = {
    {"Year", nullptr, "2014 Tab"},
    {"Month", nullptr, "12 Tab"},
    {"YY", nullptr, "17 Tab"},
    {"GG", nullptr, "18 Tab"},
    {"GGExact", nullptr, "17 Tab"},
    {"gg", nullptr, "45 Tab"},
    {"LaDeg", nullptr, "42 Tab"},
    {"LaMin", nullptr, "38 Tab"},
    {"north_south", nullptr, "Down Tab"},
    {"LoDeg", nullptr, "158 Tab"},
    {"LoMin", nullptr, "12 Tab"},
    {"east_west", nullptr, "Down Tab"},
    {"Ds", nullptr, "2 Tab"},
    {"Vs", nullptr, "2 Tab"},
    {"loading_state", nullptr, "Tab"},
    {"reading", nullptr, "978.4 Tab"},
    {"PPPP", nullptr, "Tab"},
    {"a", nullptr, "8 Tab"},
    {"ppp", nullptr, "6.8 Tab"},
    {"dry_bulb", nullptr, "6.2 Tab"},
    {"wet_bulb", nullptr, "5.4 Tab"},
    {"freeze", nullptr, "Tab"},
    {"relative_humidity", nullptr, "Tab"},
    {"dd", nullptr, "Tab"},
    {"ff", nullptr, "Tab"},
    {"apparent_direction", nullptr, "225 Tab"},
    {"apparent_speed", nullptr, "40 Tab"},
    {"heading", nullptr, "90 Tab"},
    {"course", nullptr, "90 Tab"},
    {"ship_speed", nullptr, "8 Tab"},
    {"TwTwTw", nullptr, "8.4 Tab"},
    {"PwPw", nullptr, "11 Tab"},
    {"HwHw", nullptr, "7.5 Tab"},
    {"dw1dw1", nullptr, "29 Tab"},
    {"Pw1Pw1", nullptr, "13 Tab"},
    {"Hw1Hw1", nullptr, "5 Tab"},
    {"dw2dw2", nullptr, "20 Tab"},
    {"Pw2Pw2", nullptr, "10 Tab"},
    {"Hw2Hw2", nullptr, "2.5 Tab"},
    {"VV", nullptr, "95 Tab"},
    {"ww", nullptr, "81 Tab"},
    {"W1", nullptr, "8 Tab"},
    {"W2", nullptr, "6 Tab"},
    {"N", nullptr, "8 Tab"},
    {"Nh", nullptr, "6 Tab"},
    {"CH", nullptr, "/ Tab"},
    {"CM", nullptr, "2 Tab"},
    {"CL", nullptr, "9 Tab"},
    {"h", nullptr, "300 Tab"},
};

constexpr const char* kGaleReport =
    "BBXX JABC 17184 99426 11582 41495 83146 10062 20045 49809 58068 78186 8692/ 91745 22222 00084 "
    "21115 32920 41310 51005 80054 .....";
constexpr const char* kGaleLine =
    "320141217181426158204958314460062504598098186692/0084101115291310////4 JABC   JP3014    "
    "0054806822201005/////8500000000000000000000                    0000 0000890409074729";

// ---- A ship in ice

constexpr Step kIceByDialogs[] = {
    {"Year", "CUTCTimeDlg1", "3 Return"},
    {"GGExact", nullptr, "Tab Tab"},
    {"LaDeg", "CPositionDlg", "45 Tab 12 Tab Home Tab 144 Tab 33 Tab Home Return"},
    {"Ds", "CDvDsDlg", "7 Tab 1 Return"},
    {"loading_state", nullptr, "Tab"},
    {"reading", "CSeaSurfacePressureDlg", "1021.6 Return"},
    {"a", "CPresureTendencyDlg", "Home Tab 1 Tab 0.9 Return"},
    {"air_temperature", "CTemperatureAndDewDlg", "-12.4 Tab -15.0 Return"},
    {"relative_humidity", "CThumidityDlg", "80.5 Return"},
    {"dd", "CTrueDirWindDlg", "34 Tab 22 Return"},
    {"TwTwTw", "CSea_SurfaceTemperatureDlg", "-1.7 Return"},
    {"PwPw", "CWindDlg", "Tab Tab Tab Tab Tab Space Return"},
    {"dw1dw1", "CSwellWaveDlg", "Down Down Return"},
    {"VV", "CEyeShotDlg", "93 Return"},
    {"ww", "CNowWeatherDlg", "Home Tab 70 Tab 73 Return"},
    {"W1", "CPastWeatherDlg1", "Tab Tab Space Tab Tab Tab Space Return"},
    {"N", "CCloudAgeDlg", "8 Return"},
    {"Nh", "CBottomLayerCloudDlg", "8 Return"},
    {"CH", "CTopCloudDlg", "/ Return"},
    {"CM", "CMidCloudDlg", "/ Return"},
    {"CL", "CBottomCloudDlg", "7 Return"},
    {"h", "CCloudHeightDlg", "2 Return"},
    {"Is", "CSeaIceDialog", "2 Tab 3 Tab 1 Return"},
    {"ci", "CICECiDlg", "End Tab Home Tab 4 Return"},
    {"Si", "CICESiBiDlg", "3 Tab 0 Return"},
    {"Di", "CICEDiDlg", "3 Return"},
    {"zi", "CNewZiDlg", "2 Return"},
};

constexpr const char* kIceReport =
    "BBXX JABC 03033 99452 11445 41293 83422 11124 21150 40243 51009 77374 887// 22271 01017 20000 "
    "30000 62031 ICE 43032 .....";
constexpr const char* kIceLine =
    "32015020303145214450293834322112411500243737487//101710000000000020314 JABC   JP3014    "
    "////100971000000430328500000000000000000000                    0000 0000805009074729";

const Observation kObservations[] = {
    {.name = "GaleByDialogs",
     .session = "gale_by_dialogs",
     .ship = "ship_voyage",
     .items = "items_no_ice",
     .utc = {2014, 12, 17, 17, 55, 0},
     .steps = kGaleByDialogs,
     .report = kGaleReport,
     .logbook_line = kGaleLine},
    {.name = "GaleByCodes",
     .session = "gale_by_dialogs",
     .ship = "ship_voyage",
     .items = "items_no_ice",
     .utc = {2014, 12, 17, 17, 55, 0},
     .steps = kGaleByCodes,
     .report = kGaleReport,
     .logbook_line = kGaleLine},
    {.name = "IceByDialogs",
     .session = "ice_by_dialogs",
     .ship = "ship",
     .items = "all_observed",
     .utc = {2015, 2, 3, 2, 55, 0},
     .steps = kIceByDialogs,
     .report = kIceReport,
     .logbook_line = kIceLine},
};

// ---- The person at the keyboard

std::string content_of(const std::string& below_sessions) {
  std::ifstream file(std::string(KAVREL_SOURCE) + "/tests/sessions/" + below_sessions,
                     std::ios::binary);
  EXPECT_TRUE(file.is_open()) << below_sessions;
  return {std::istreambuf_iterator<char>(file), {}};
}

std::string ship_file(const std::string& folder, const std::string& name) {
  return content_of("roots/" + folder + "/kavrel/file/" + name);
}

struct NamedKey {
  std::string_view name;
  Qt::Key key;
};
constexpr NamedKey kNamedKeys[] = {
    {"Tab", Qt::Key_Tab},       {"Space", Qt::Key_Space}, {"Up", Qt::Key_Up},
    {"Down", Qt::Key_Down},     {"Home", Qt::Key_Home},   {"End", Qt::Key_End},
    {"Return", Qt::Key_Return},
};

class Officer {
 public:
  Officer(const Observation& observation, text::Language language) {
    world_.fake.texts.language = language;
    world_.fake.clock.utc_time = observation.utc;
    ship_ = decode_fixed_data(ship_file(observation.ship, "FIXDATA.DAT"), observation.utc,
                              world_.fake.code_page)
                .value();
    items_ = decode_key_items(ship_file(observation.items, "MOKSDATA.DAT")).value();
    screen_ = std::make_unique<CVelmaranDlg>(
        world_.services, mainwindow::MainWindowContext{ship_, items_, folders_, {}, {}});
    screen_->open();
    window_ = std::make_unique<desktop::ScreenWindow>(*screen_, nullptr);
    tests::show(*window_);
    // Nothing is asked and nothing refused: a box that comes all the same is closed and told.
    QObject::connect(&boxes_, &QTimer::timeout, [] {
      auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (box == nullptr) return;
      ADD_FAILURE() << box->text().toStdString();
      QTest::keyClick(box, Qt::Key_Escape);
    });
    boxes_.start(1);
  }

  void take(const Step& step) {
    ASSERT_NE(screen_->focused(), nullptr);
    const ui::Control& field = *screen_->find(step.field);
    const bool passed_by = field.passed_over || field.read_only;
    if (passed_by && step.dialog == nullptr && std::string_view(step.keys).starts_with("Tab"))
      return;
    // What Tab passed by is reached backwards.
    for (int i = 0; i < 3 && passed_by && screen_->focused() != &field; ++i)
      tests::press(Qt::Key_Tab, Qt::ShiftModifier);
    ASSERT_EQ(screen_->focused()->name, step.field);
    ASSERT_TRUE(window_->binding(step.field)->owns(QApplication::focusWidget()));
    if (step.dialog == nullptr) {
      type(step.keys);
    } else {
      std::string opened;
      world_.windows.on_shown = [&](desktop::ScreenWindow& dialog) {
        opened = dialog.objectName().toStdString();
        dialog.activateWindow();
        QApplication::processEvents();
        type(step.keys);
        if (!dialog.isVisible()) return;
        ADD_FAILURE() << "the keys leave it open";
        QTest::keyClick(&dialog, Qt::Key_Escape);
      };
      press(Qt::Key_F1);
      EXPECT_EQ(opened, step.dialog);
      // No window manager gives the focus back to the main window here.
      window_->activateWindow();
      QApplication::processEvents();
    }
    EXPECT_EQ(tests::widget_views(*window_), tests::control_views(*screen_));
  }

  [[nodiscard]] std::string report() const { return screen_->report(); }
  [[nodiscard]] std::string logbook_line() const {
    return observation::encode_logbook(screen_->form().record(), ship_, items_);
  }
  [[nodiscard]] int keys() const { return keys_; }

 private:
  template <class Key>
  void press(Key key) {
    ++keys_;
    ASSERT_NE(QApplication::focusWidget(), nullptr) << "nothing has the keyboard";
    QTest::keyClick(QApplication::focusWidget(), key);
    QApplication::processEvents();
  }
  void type(const std::string& keys) {
    std::istringstream words(keys);
    for (std::string word; words >> word;) {
      const auto* const named = std::find_if(std::begin(kNamedKeys), std::end(kNamedKeys),
                                             [&](const NamedKey& k) { return k.name == word; });
      if (named != std::end(kNamedKeys)) {
        press(named->key);
        continue;
      }
      for (const char c : word) press(c);
    }
  }

  tests::DesktopWorld world_;
  ShipFixedData ship_;
  KeyObservationItems items_;
  mainwindow::Folders folders_;
  std::unique_ptr<CVelmaranDlg> screen_;
  std::unique_ptr<desktop::ScreenWindow> window_;
  QTimer boxes_;
  int keys_ = 0;
};

class EnteredByKeys
    : public testing::TestWithParam<std::tuple<const Observation*, text::Language>> {};

TEST_P(EnteredByKeys, GivesTheReportAndTheLogbookLineOfTheSession) {
  const auto& [observation, language] = GetParam();
  Officer officer(*observation, language);
  for (const Step& step : observation->steps) {
    SCOPED_TRACE(step.field);
    officer.take(step);
    if (HasFatalFailure()) return;
  }
  EXPECT_EQ(officer.report(), observation->report);
  EXPECT_EQ(officer.logbook_line(), observation->logbook_line);
  // How many keys it takes is worth knowing, and no rule.
  RecordProperty("keys", officer.keys());

  const char* const ending =
      language == text::Language::kEnglish ? ".en.transcript" : ".ja.transcript";
  const std::string played =
      content_of(std::string("observation/").append(observation->session).append(ending));
  for (const char* const written : {observation->report, observation->logbook_line})
    EXPECT_NE(played.find(std::string("\n\"").append(written)), std::string::npos) << written;
}

std::string name_of_case(const testing::TestParamInfo<EnteredByKeys::ParamType>& entered) {
  const auto& [observation, language] = entered.param;
  return std::string(observation->name)
      .append(language == text::Language::kEnglish ? "English" : "Japanese");
}

INSTANTIATE_TEST_SUITE_P(
    Observations, EnteredByKeys,
    testing::Combine(testing::Values(&kObservations[0], &kObservations[1], &kObservations[2]),
                     testing::Values(text::Language::kEnglish, text::Language::kJapanese)),
    name_of_case);

}  // namespace
