// The looks of the ship's screens: everything has one place, in the order of the Tab key.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "fakes/fake_files.h"
#include "fakes/fake_ports.h"
#include "ship/CFixDataDlg.h"
#include "ship/CFullEmptySelect.h"
#include "ship/CKataInputDlg.h"
#include "ship/CKataSelectDlg.h"
#include "ship/CKeyObserveDlg.h"
#include "ship/CVosClimDlg.h"
#include "ui/layout.h"

namespace {

void expect_placed_in_order(const ui::Screen& screen) {
  const ui::LayoutResult layout = ui::parse_layout(ui::layout_source(screen.class_name()));
  EXPECT_EQ(layout.error, "") << screen.class_name();
  std::vector<std::string> wanted;
  for (const ui::Control* const control : screen.controls()) wanted.push_back(control->name);
  EXPECT_EQ(ui::placed_names(layout.root), wanted) << screen.class_name();
}

TEST(ShipLayouts, PlaceEachControlOnceInTabOrder) {
  fakes::FakeFiles files;
  fakes::World world(files);
  expect_placed_in_order(CFixDataDlg(world.services, "C:\\F", false));
  expect_placed_in_order(CKeyObserveDlg(world.services, "C:\\M", false));
  expect_placed_in_order(CKataSelectDlg(world.services, CardType::kNotChosen));
  expect_placed_in_order(CKataInputDlg(world.services, {}));
  expect_placed_in_order(CFullEmptySelect(world.services));
  expect_placed_in_order(CVosClimDlg(world.services, {}));
}

}  // namespace
