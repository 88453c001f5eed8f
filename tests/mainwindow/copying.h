#pragma once
// The copy commands with fakes around them.

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "fakes/fake_files.h"
#include "fakes/fake_ports.h"
#include "mainwindow/copy_flow.h"
#include "text/ids.h"

namespace copying {

struct Copying {
  fakes::FakeFiles files;
  fakes::World world{files};
  ShipFixedData ship;
  KeyObservationItems items;
  mainwindow::Folders folders;
  std::vector<std::string> kept;  ///< "KEY=FOLDER", as it goes to the settings
  mainwindow::MainWindowContext context{ship, items, folders, {}};

  Copying() {
    folders.reports = "C:\\tlx\\";
    folders.logbook = "C:\\log\\";
    files.add_folder("C:\\tlx");
    files.add_folder("C:\\log");
    files.add_folder("C:\\copy");
    context.keep_folder = [this](std::string_view key, std::string_view folder) {
      kept.push_back(std::string(key).append("=").append(folder));
    };
  }

  /// A: is a removable drive.
  void with_floppy() {
    world.drives.list.insert(world.drives.list.begin(), {'A', platform::DriveType::kRemovable, 2});
    files.add_folder("A:\\");
  }

  /// Next, the folder dialog opens and this folder is chosen; `before` runs first.
  void choose(const std::string& folder, const std::function<void(ui::Screen&)>& before = {}) {
    world.windows.expect_screen("CLogDiskSavePathDlg", [folder, before](ui::Screen& screen) {
      if (before) before(screen);
      EXPECT_TRUE(screen.reveal(*screen.find("tree"), folder)) << folder;
      screen.press(*screen.find("ok"));
    });
  }
  /// Next, the screen opens and is cancelled.
  void cancel(const char* screen_class) {
    world.windows.expect_screen(screen_class,
                                [](ui::Screen& screen) { screen.press(*screen.find("cancel")); });
  }
  [[nodiscard]] const ui::MessageBox& box(std::size_t at) const {
    return world.windows.boxes.at(at);
  }
};

/// Runs the check in English and in Japanese.
inline void in_both_languages(const std::function<void(Copying&)>& check) {
  for (const text::Language language : {text::Language::kEnglish, text::Language::kJapanese}) {
    Copying world;
    world.world.texts.language = language;
    check(world);
    world.world.windows.verify();
    EXPECT_EQ(world.world.windows.notices.size() % 2, 0U) << "a notice that stayed";
  }
}

}  // namespace copying
