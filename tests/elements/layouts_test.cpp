#include <gtest/gtest.h>

#include "elements/CCountDewDlg.h"
#include "elements/CLookWindDlg.h"
#include "elements/CPresureTendencyDlg.h"
#include "elements/CSeaSurfacePressureDlg.h"
#include "elements/CTemperatureAndDewDlg.h"
#include "elements/CThumidityDlg.h"
#include "elements/CTrueDirWindDlg.h"
#include "fakes/fake_ports.h"
#include "ui/layout.h"

namespace {

// Each control is placed once, and reading order is the order of the tab key.
void expect_placed(const ui::Screen& screen) {
  const ui::LayoutResult layout = ui::parse_layout(ui::layout_source(screen.class_name()));
  EXPECT_EQ(layout.error, "") << screen.class_name();
  std::vector<std::string> controls;
  for (const ui::Control* const control : screen.controls()) controls.push_back(control->name);
  EXPECT_EQ(ui::placed_names(layout.root), controls) << screen.class_name();
}

TEST(MeasuredElementLayouts, PlaceEveryControlInTabOrder) {
  fakes::World world;
  expect_placed(CSeaSurfacePressureDlg(world.services, {}, {}));
  expect_placed(CPresureTendencyDlg(world.services, "", ""));
  expect_placed(CCountDewDlg(world.services, {}));
  expect_placed(CTemperatureAndDewDlg(world.services, {}));
  expect_placed(CThumidityDlg(world.services, "", 1.0));
  expect_placed(CLookWindDlg(world.services, {}));
  expect_placed(CTrueDirWindDlg(world.services, "", ""));
}

}  // namespace
