#pragma once
// The main window with fakes around it.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "fakes/fake_files.h"
#include "fakes/fake_ports.h"
#include "fakes/sample_ship.h"
#include "mainwindow/CVelmaranDlg.h"
#include "text/ids.h"

namespace main_window {

inline constexpr const char* kReports = "C:\\out\\";
inline constexpr const char* kFixedData = "C:\\kavrel\\file\\FIXDATA.DAT";
inline constexpr const char* kKeyItems = "C:\\kavrel\\file\\MOKSDATA.DAT";

using fakes::sample_ship;

struct Opened {
  explicit Opened(ShipFixedData with = sample_ship(), KeyObservationItems observed = {},
                  bool japanese_system = false, map::SeaMap* map = nullptr)
      : ship(std::move(with)), items(observed), sea_map(map) {
    files.add_folder(kReports);
    files.add_folder("C:\\log\\");
    files.add_folder("C:\\kavrel\\file\\");
    folders.reports = kReports;
    folders.logbook = "C:\\log\\";
    folders.fixed_data = kFixedData;
    folders.key_items = kKeyItems;
    if (japanese_system) world.locale.id = 0x0411;
    window.open();
  }

  [[nodiscard]] ui::Control& control(std::string_view name) {
    ui::Control* const found = window.find(name);
    if (found == nullptr) {
      ADD_FAILURE() << "no control " << name;
      return *window.controls().front();
    }
    return *found;
  }
  [[nodiscard]] std::string shown(std::string_view name) { return control(name).content; }
  /// Types into a field and leaves it by Tab.
  void type(std::string_view name, std::string_view text) {
    ASSERT_TRUE(fakes::enter(window, control(name), text)) << name;
    window.key(ui::Key::kTab);
  }
  void press(std::string_view name) { window.press(control(name)); }
  void choose(std::string_view name, int index) { window.choose(control(name), index); }
  /// Runs a menu command by its English texts; fails the test when there is none.
  void menu(std::string_view path);
  /// Everything that a refusal or a Cancel must leave as it was.
  [[nodiscard]] std::string state() {
    std::string result = fakes::dump(window) + window.title() + "\n" + window.report() + "\n";
    for (const auto& [name, value] : window.record_fields()) result += name + "=" + value + "\n";
    return result;
  }

  fakes::FakeFiles files;
  fakes::World world{files};
  ShipFixedData ship;
  KeyObservationItems items;
  map::SeaMap* sea_map;  ///< none: no land is known
  mainwindow::Folders folders;
  std::vector<std::string> told;  ///< the callbacks that were called
  CVelmaranDlg window{world.services,
                      {ship, items, folders, [this] { told.emplace_back("fixed data"); }, sea_map}};
};

inline void Opened::menu(std::string_view path) {
  std::span<const ui::MenuItem> items_there = window.menu();
  while (true) {
    const auto cut = path.find('/');
    const std::string_view wanted = path.substr(0, cut);
    const ui::MenuItem* found = nullptr;
    for (const ui::MenuItem& item : items_there) {
      if (text::resolve(item.text, text::Language::kEnglish) == wanted) found = &item;
    }
    if (found == nullptr) {
      ADD_FAILURE() << "no menu item " << wanted;
      return;
    }
    if (cut == std::string_view::npos) {
      window.command(*found);
      return;
    }
    items_there = found->children;
    path.remove_prefix(cut + 1);
  }
}

}  // namespace main_window
