// How the pressure and wind screens hand their values to the main window.

#include "mainwindow/window.h"

namespace {

namespace id = text::id;
using main_window::Opened;

// Types a reading into the pressure screen and presses OK.
void read_barometer(Opened& opened, const char* whole, const char* tenths) {
  opened.world.windows.expect_screen("CSeaSurfacePressureDlg", [=](ui::Screen& screen) {
    fakes::enter(screen, *screen.find("reading_whole"), whole);
    fakes::enter(screen, *screen.find("reading_tenths"), tenths);
    screen.press(*screen.find("ok"));
  });
}

ShipFixedData ship_without_correction() {
  ShipFixedData ship = main_window::sample_ship();
  ship.card.height_full_load = "0";
  ship.card.total_correction_full_load = "+0.0";
  return ship;
}

TEST(PressureDialog, AnUnusualPressureSaidNoToKeepsTheFocusOnItsReading) {
  const auto opened = std::make_unique<Opened>(ship_without_correction());
  opened->type("reading", "998.7");
  ASSERT_EQ("0998.7", opened->shown("reading"));
  read_barometer(*opened, "0920", "5");
  opened->world.windows.expect(id::kPressureQuestion, "no");
  opened->press("label_pressure");
  EXPECT_EQ("920.5", opened->shown("reading"));
  EXPECT_EQ("wrong", opened->control("reading").mark);
  EXPECT_EQ(&opened->control("reading"), opened->window.focused());
  EXPECT_EQ("9987", opened->window.form().record().PPPP);

  read_barometer(*opened, "0920", "5");
  opened->world.windows.expect(id::kPressureQuestion, "yes");
  opened->window.key(ui::Key::kF1);
  EXPECT_EQ("0920.5", opened->shown("reading"));
  EXPECT_EQ("0920.5", opened->shown("PPPP"));
  EXPECT_EQ("", opened->control("reading").mark);
  EXPECT_EQ("a", opened->window.focused()->name);
}

TEST(PressureDialog, TheActualTimeIsTakenOrClearedByItsChoice) {
  const auto opened = std::make_unique<Opened>(ship_without_correction());
  EXPECT_EQ("9////", opened->shown("group_9GGgg"));
  opened->world.windows.expect_screen("CSeaSurfacePressureDlg", [](ui::Screen& screen) {
    EXPECT_EQ(0, screen.find("time_choice")->selected);
    fakes::enter(screen, *screen.find("reading_whole"), "1013");
    screen.choose(*screen.find("time_choice"), 1);
    fakes::enter(screen, *screen.find("hour"), "11");
    fakes::enter(screen, *screen.find("minute"), "45");
    screen.press(*screen.find("ok"));
  });
  opened->press("label_pressure");
  EXPECT_EQ("91145", opened->shown("group_9GGgg"));
  opened->world.windows.expect_screen("CSeaSurfacePressureDlg", [](ui::Screen& screen) {
    EXPECT_EQ(1, screen.find("time_choice")->selected);
    EXPECT_EQ("11", screen.find("hour")->content);
    screen.choose(*screen.find("time_choice"), 0);
    screen.press(*screen.find("ok"));
  });
  opened->press("label_pressure");
  EXPECT_EQ("", opened->window.form().record().GGExact);
  EXPECT_EQ("", opened->window.form().record().gg);
  EXPECT_EQ("9////", opened->shown("group_9GGgg"));
}

TEST(PressureDialog, ClosedWithoutAReadingEmptiesThePressureAndLeavesTheCharacteristic) {
  const auto opened = std::make_unique<Opened>(ship_without_correction());
  opened->type("reading", "1013.2");
  opened->type("a", "2");
  opened->world.windows.expect_screen("CSeaSurfacePressureDlg", [](ui::Screen& screen) {
    fakes::enter(screen, *screen.find("reading_whole"), "");
    screen.press(*screen.find("ok"));
  });
  opened->press("label_pressure");
  EXPECT_EQ("", opened->shown("reading"));
  EXPECT_EQ("", opened->shown("PPPP"));
  EXPECT_EQ("4****", opened->shown("group_4PPPP"));
  EXPECT_EQ("2", opened->window.form().record().a);
}

TEST(LoadingStateChoice, ChangesThePressureThatIsShown) {
  const auto opened = std::make_unique<Opened>();
  opened->type("reading", "1013.2");
  opened->type("a", "2");
  ASSERT_EQ("1015.6", opened->shown("PPPP"));
  opened->world.windows.expect(id::kAskLoadingState, "yes");
  opened->choose("loading_state", 1);
  EXPECT_EQ("1016.8", opened->shown("PPPP"));
  EXPECT_EQ("40168", opened->shown("group_4PPPP"));
  EXPECT_EQ("2", opened->shown("a"));
}

TEST(TrueWindDialog, GivesWholeUnitsToTheReport) {
  const auto opened = std::make_unique<Opened>();
  opened->world.windows.expect_screen("CTrueDirWindDlg", [](ui::Screen& screen) {
    fakes::enter(screen, *screen.find("direction"), "9");
    fakes::enter(screen, *screen.find("speed"), "12.5");
    screen.press(*screen.find("ok"));
  });
  opened->press("label_true_wind");
  EXPECT_EQ("*0913", opened->shown("group_Nddff"));
  EXPECT_EQ("13", opened->shown("ff"));
}

}  // namespace
