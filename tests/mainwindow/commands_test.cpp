// Menu commands, the exit procedure, the language switch and the loading state.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "window.h"

namespace {

namespace id = text::id;
using main_window::Opened;

ShipFixedData vosclim_ship() {
  ShipFixedData ship = main_window::sample_ship();
  ship.vosclim = true;
  return ship;
}

TEST(MainWindowMenu, TakesVosClimDataIntoTheShipAndKeepsThemAtOnce) {
  const auto opened = std::make_unique<Opened>(vosclim_ship());
  opened->type("YY", "15");
  const std::string before = opened->state();
  opened->world.windows.expect_screen("CVosClimDlg", [](ui::Screen& screen) {
    EXPECT_EQ("", screen.find("cargo_height")->content + screen.find("departure")->content);
    EXPECT_TRUE(fakes::enter(screen, *screen.find("cargo_height"), "7"));
    EXPECT_TRUE(fakes::enter(screen, *screen.find("departure"), "-12"));
    screen.press(*screen.find("ok"));
  });
  opened->menu(" VOSClim");
  ShipFixedData wanted = vosclim_ship();
  wanted.vosclim_cargo_height = "07";
  wanted.vosclim_load_line_departure = "-12";
  EXPECT_EQ(wanted, opened->ship);
  EXPECT_EQ((std::vector<std::string>{"fixed data"}), opened->told);
  EXPECT_EQ(before, opened->state()) << "nothing of it stands in the form";
  EXPECT_FALSE(opened->window.command_in_progress());
  // Confirmed as it opens it is the same again.
  opened->world.windows.expect_screen("CVosClimDlg",
                                      [](ui::Screen& screen) { screen.press(*screen.find("ok")); });
  opened->menu(" VOSClim");
  EXPECT_EQ(wanted, opened->ship);
}

TEST(MainWindowMenu, LeavesTheShipWhenVosClimDataAreCancelled) {
  const auto opened = std::make_unique<Opened>(vosclim_ship());
  const std::string before = opened->state();
  opened->world.windows.expect_screen("CVosClimDlg", [](ui::Screen& screen) {
    EXPECT_TRUE(fakes::enter(screen, *screen.find("cargo_height"), "7"));
    screen.close_box();
  });
  opened->menu(" VOSClim");
  EXPECT_EQ(vosclim_ship(), opened->ship);
  EXPECT_TRUE(opened->told.empty());
  EXPECT_EQ(before, opened->state());
}

TEST(MainWindowMenu, DoesNotOpenVosClimForAnUnregisteredShip) {
  const auto opened = std::make_unique<Opened>();
  opened->menu(" VOSClim");
  EXPECT_TRUE(opened->world.windows.boxes.empty());
}

struct HelpRow {
  const char* path;
  const char* file;
};
constexpr HelpRow kHelp[] = {
    {"Help/Software user's manual", "Kavrel"},
    {"Help/Guide to ship's weather report/Explanations of code of ship's weather report",
     "WeatherCode"},
    {"Help/Guide to ship's weather report/Ostrel cloud plate", "Cloud"},
    {"Help/Guide to ship's weather report/Beaufort scale of wind force", "BeaufortScale"},
    {"Help/Other infomation/Service of PMO (Port Meteorological Officer)", "ServicesofPMO"},
    {"Help/Other infomation/Correction of air pressure", "Correction"},
    {"Help/Other infomation/Transmission of weather message by INMARSAT", "Inmarsat"},
    {"Help/Other infomation/VOSClim", "VOSClim"},
};

TEST(MainWindowMenu, OpensEveryHelpFileAtItsStartPage) {
  for (const bool japanese : {false, true}) {
    const auto opened =
        std::make_unique<Opened>(main_window::sample_ship(), KeyObservationItems{}, true);
    if (japanese) opened->menu("Language/日本語（Japanese）");
    std::vector<std::string> expected;
    for (const HelpRow& row : kHelp) {
      opened->menu(row.path);
      expected.push_back("C:\\program\\help\\" + std::string(row.file) +
                         (japanese ? "_J.CHM" : "_E.CHM"));
    }
    EXPECT_EQ(expected, opened->world.help_viewer.shown);
  }
}

TEST(MainWindowMenu, KeepsTheHelpCommandThatHasNoItem) {
  const auto opened = std::make_unique<Opened>();
  opened->window.run(mainwindow::kFaxHelp);
  EXPECT_EQ((std::vector<std::string>{"C:\\program\\help\\fax_E.CHM"}),
            opened->world.help_viewer.shown);
}

TEST(MainWindowMenu, ShowsTheVersion) {
  const auto opened = std::make_unique<Opened>();
  for (const bool japanese : {false, true}) {
    if (japanese) opened->world.japanese();
    opened->world.windows.expect_screen("CAboutDlg", [&](ui::Screen& screen) {
      EXPECT_EQ(screen.caption(*screen.find("program")),
                japanese ? "KAVREL for WIN\nバージョン 1.0.0" : "KAVREL for WIN\nVersion 1.0.0");
      const std::string& sources = screen.find("sources")->content;
      for (const char* const named :
           {"FM 13", "IMMT-5", "Goff-Gratch", "Natural Earth", "Qt", "CUPS"})
        EXPECT_NE(sources.find(named), std::string::npos) << named;
      EXPECT_EQ(screen.focused(), screen.find("ok"));
      screen.key(ui::Key::kEnter);
    });
    opened->menu("Help/Version information");
  }
}

// A second command that comes while the first one's question is open, as a menu of the system's
// own window may send it.
class Nosy : public platform::HelpViewer {
 public:
  CVelmaranDlg* window = nullptr;
  bool in_progress = false;
  bool show(const std::string&) override {
    in_progress = window->command_in_progress();
    window->run({0, 0, mainwindow::Command::kVersion, {}});
    return true;
  }
};

TEST(MainWindowMenu, RunsNoCommandInsideAnother) {
  fakes::World world;
  Nosy viewer;
  text::HelpLauncher help(world.texts, viewer, "C:\\program");
  ui::Services services{world.clock,   world.locale,  world.drives, world.no_files, world.code_page,
                        world.printer, world.windows, world.texts,  world.messages, help};
  ShipFixedData ship = main_window::sample_ship();
  KeyObservationItems items;
  mainwindow::Folders folders;
  CVelmaranDlg window(services, {ship, items, folders, {}});
  window.open();
  viewer.window = &window;
  window.run(mainwindow::kFaxHelp);
  EXPECT_TRUE(viewer.in_progress);
  EXPECT_FALSE(window.command_in_progress());
  EXPECT_TRUE(world.windows.boxes.empty());
}

TEST(MainWindowMenu, TakesOverTheFixedDataAndRefreshesMenuAndForm) {
  const auto opened = std::make_unique<Opened>();
  const auto vosclim_enabled = [&] {
    for (const ui::MenuItem& item : opened->window.menu())
      if (item.text.id == id::kMenuVosClim) return item.enabled;
    return false;
  };
  EXPECT_FALSE(vosclim_enabled());
  opened->world.windows.expect_screen("CFixDataDlg", [](ui::Screen& screen) {
    screen.move_focus(*screen.find("call_sign"));
    screen.type(*screen.find("call_sign"), "XYZ1");
    screen.choose(*screen.find("vosclim"), 0);
    screen.press(*screen.find("ok"));
  });
  opened->menu("Fixed data");
  EXPECT_EQ("XYZ1", opened->ship.call_sign);
  EXPECT_TRUE(opened->ship.vosclim);
  EXPECT_EQ("XYZ1", opened->shown("call_sign"));
  EXPECT_TRUE(vosclim_enabled());
  EXPECT_EQ((std::vector<std::string>{"fixed data"}), opened->told);
  EXPECT_EQ(0U, opened->window.report().find("BBXX XYZ1 "));
}

TEST(MainWindowMenu, LeavesEverythingWhenTheFixedDataAreCancelled) {
  const auto opened = std::make_unique<Opened>();
  const std::string before = opened->state();
  const ShipFixedData ship = opened->ship;
  opened->world.windows.expect_screen("CFixDataDlg", [](ui::Screen& screen) {
    screen.move_focus(*screen.find("call_sign"));
    screen.type(*screen.find("call_sign"), "XYZ1");
    screen.press(*screen.find("cancel"));
  });
  opened->menu("Fixed data");
  EXPECT_EQ(before, opened->state());
  EXPECT_TRUE(ship == opened->ship);
  EXPECT_TRUE(opened->told.empty());
}

TEST(MainWindowMenu, SwitchesFieldsOffByTheObservationItems) {
  const auto opened = std::make_unique<Opened>();
  EXPECT_TRUE(opened->control("VV").enabled);
  opened->world.windows.expect_screen("CKeyObserveDlg", [](ui::Screen& screen) {
    int choices = 0;
    for (ui::Control* const control : screen.controls()) {
      // The second switch is that of the visibility.
      if (control->kind == ui::Kind::kChoice && ++choices == 2) screen.choose(*control, 1);
    }
    screen.press(*screen.find("ok"));
  });
  opened->menu("Observation item");
  EXPECT_FALSE(opened->items.observed(ObservationItem::VV));
  EXPECT_FALSE(opened->control("VV").enabled && !opened->control("VV").read_only);
  EXPECT_FALSE(opened->control("VV").why_locked.empty());
}

// ---- Language

TEST(MainWindowLanguage, ChangesMenuLabelsAndTitleThereAndBack) {
  const auto opened =
      std::make_unique<Opened>(main_window::sample_ship(), KeyObservationItems{}, true);
  const unsigned menu_before = opened->window.menu_serial();
  const auto label = [&](const char* name) {
    return opened->window.caption(opened->control(name));
  };
  EXPECT_EQ("Observation date and time (UTC)", label("label_time"));
  opened->menu("Language/日本語（Japanese）");
  EXPECT_NE(menu_before, opened->window.menu_serial());
  EXPECT_EQ("観測日時(UTC)", label("label_time"));
  EXPECT_EQ("満載", opened->control("loading_state").items[0]);
  EXPECT_EQ("4 P P P P", label("group_4PPPP"));
  opened->menu("Language/English（英語）");
  EXPECT_EQ("Observation date and time (UTC)", label("label_time"));
  EXPECT_EQ("At full load", opened->control("loading_state").items[0]);
  EXPECT_TRUE(opened->told.empty());
}

TEST(MainWindowLanguage, EveryLabelHasATextInBothLanguages) {
  for (const mainwindow::LabelRow& row : mainwindow::label_rows()) {
    EXPECT_FALSE(text::resolve(mainwindow::label_ref(row.label), text::Language::kEnglish).empty())
        << row.name;
    EXPECT_FALSE(text::resolve(mainwindow::label_ref(row.label), text::Language::kJapanese).empty())
        << row.name;
  }
  for (int number = 11000; number <= 11073; ++number) {
    const text::Id label{number};
    EXPECT_TRUE(text::has_entry(label)) << label;
    EXPECT_TRUE(text::has_entry(label + elements::kLabelsToEnglish)) << label;
  }
}

// ---- Loading state

TEST(LoadingStateChoice, AsksAndRewritesTheFixedDataOnYes) {
  const auto opened = std::make_unique<Opened>();
  EXPECT_EQ(0, opened->control("loading_state").selected);
  opened->world.windows.expect(id::kAskLoadingState, "yes");
  opened->choose("loading_state", 1);
  EXPECT_EQ(LoadingState::kInBallast, opened->ship.card.loading_state);
  EXPECT_EQ(1, opened->control("loading_state").selected);
  EXPECT_EQ((std::vector<std::string>{"fixed data"}), opened->told);
  EXPECT_EQ("Do you change the status of loading?", opened->world.windows.boxes[0].text);
}

TEST(LoadingStateChoice, IsPutBackOnNo) {
  for (const char* const answer : {"no", "close"}) {
    const auto opened = std::make_unique<Opened>();
    const std::string before = opened->state();
    opened->world.windows.expect(id::kAskLoadingState, answer);
    opened->choose("loading_state", 1);
    EXPECT_EQ(LoadingState::kFullLoad, opened->ship.card.loading_state);
    EXPECT_EQ(before, opened->state());
    EXPECT_TRUE(opened->told.empty());
  }
}

TEST(LoadingStateChoice, AsksNothingWhenTheSameIsChosen) {
  const auto opened = std::make_unique<Opened>();
  opened->choose("loading_state", 0);
  EXPECT_TRUE(opened->world.windows.boxes.empty());
}

TEST(LoadingStateChoice, IsThereForCardType1Only) {
  for (const CardType type :
       {CardType::kNotChosen, CardType::kHeightAndTemperature, CardType::kTotalCorrection}) {
    ShipFixedData ship = main_window::sample_ship();
    ship.card.type = type;
    const auto opened = std::make_unique<Opened>(ship);
    EXPECT_EQ(type == CardType::kHeightAndTemperature, opened->control("loading_state").enabled);
    EXPECT_EQ(type == CardType::kHeightAndTemperature,
              opened->control("loading_state").why_locked.empty());
  }
}

}  // namespace
