// A dialog opens at a size that shows all of it, and its widgets show what its controls hold.

#include <gtest/gtest.h>

#include <QApplication>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <functional>
#include <memory>
#include <vector>

#include "archive/CCreateDir.h"
#include "codetables/code_pickers.h"
#include "desktop/screen_window.h"
#include "desktop/widget_views.h"
#include "elements/CPositionDlg.h"
#include "elements/CSea_SurfaceTemperatureDlg.h"
#include "elements/CUTCTimeDlg1.h"
#include "fakes/all_screens.h"
#include "fakes/fake_files.h"
#include "fakes/fake_ports.h"
#include "media/CLogDiskSavePathDlg.h"
#include "ui/dump.h"

namespace {

using Make = std::function<std::unique_ptr<ui::Screen>(ui::Services&)>;

const Make kDialogs[] = {
    [](ui::Services& s) { return std::make_unique<CUTCTimeDlg1>(s, CUTCTimeDlg1::Values{}); },
    [](ui::Services& s) {
      return std::make_unique<CPositionDlg>(s, CPositionDlg::Values{}, "1",
                                            CPositionDlg::LandTest{});
    },
    [](ui::Services& s) {
      return std::make_unique<CSea_SurfaceTemperatureDlg>(s, CSea_SurfaceTemperatureDlg::Values{},
                                                          SeaTemperatureMethod::kBucket);
    },
    [](ui::Services& s) {
      return std::make_unique<CLogDiskSavePathDlg>(
          s, CLogDiskSavePathDlg::Mode::kReport,
          CLogDiskSavePathDlg::Folders{"C:\\reports\\", "C:\\kavrel\\data", ""},
          CLogDiskSavePathDlg::Write{});
    },
    [](ui::Services& s) { return std::make_unique<CCreateDir>(s, "C:\\"); },
};

// Those above, every dialog that picks codes, and those that fill the display.
std::vector<Make> dialogs() {
  std::vector<Make> all(std::begin(kDialogs), std::end(kDialogs));
  for (const codetables::CodePicker* const picker : codetables::code_pickers()) {
    for (const fakes::ScreenCase& screen : fakes::all_screens()) {
      if (screen.class_name == picker->class_name) all.push_back(screen.make);
    }
  }
  for (const fakes::ScreenCase& screen : fakes::all_screens()) {
    if (screen.class_name == "CNowWeatherDlg" || screen.class_name == "CPastWeatherDlg1")
      all.push_back(screen.make);
  }
  return all;
}

TEST(DialogSizes, NothingIsCutOffInEitherLanguage) {
  for (const text::Language language : {text::Language::kEnglish, text::Language::kJapanese}) {
    for (const Make& make : dialogs()) {
      fakes::FakeFiles files;
      files.add_folder("C:\\kavrel\\data");
      fakes::World world(files);
      world.texts.language = language;
      const std::unique_ptr<ui::Screen> screen = make(world.services);
      screen->open();
      desktop::ScreenWindow window(*screen, nullptr);
      window.show();
      QApplication::processEvents();
      const auto* const area = window.findChild<QScrollArea*>();
      ASSERT_NE(area, nullptr);
      EXPECT_TRUE(tests::widget_views(window) == tests::control_views(*screen))
          << screen->class_name();
      EXPECT_FALSE(area->verticalScrollBar()->isVisible()) << screen->class_name();
      // Lines that are wider than the screen itself are scrolled.
      const int widest = window.screen()->availableGeometry().width();
      EXPECT_EQ(area->horizontalScrollBar()->isVisible(),
                area->widget()->sizeHint().width() > widest)
          << screen->class_name();
    }
  }
}

}  // namespace
