// The position map in real windows: keys, clicks, and what is painted at the size of a small screen.

#include <gtest/gtest.h>

#include <QApplication>
#include <QFontDatabase>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <cmath>
#include <functional>
#include <vector>

#include "desktop/drawing_painter.h"
#include "desktop/picture_label.h"
#include "desktop/style.h"
#include "desktop_world.h"
#include "fakes/sample_sea_map.h"
#include "map/CPictureStatic.h"
#include "map/CSeaMapDlg.h"
#include "map/map_drawing.h"
#include "palettes.h"
#include "text/ids.h"

namespace {

using map::Place;
using map::ShipOnMap;
using map::Step;
using tests::press;

const ShipOnMap kShip{Place{33, 141}, 90, 15, {{32, 138}}};

class CMapOwnerDlg : public ui::Screen {
 public:
  CMapOwnerDlg(ui::Services& services, map::SeaMap& sea_map)
      : Screen(services, "CMapOwnerDlg", {text::id::kMapTitle}),
        picture(*this, "map", {text::id::kMapTitle}, services, sea_map) {
    combo.items = {"00", "06"};
  }
  ui::Edit field{*this, "field"};
  ui::Combo combo{*this, "combo"};
  ui::DropDown drop{*this, "drop"};
  CPictureStatic picture;
};

// Looks for the larger map when it opens, and lets the officer act.
int opened_by(const std::function<void()>& act,
              const std::function<void(desktop::ScreenWindow&)>& officer) {
  int opened = 0;
  QTimer looks;
  QObject::connect(&looks, &QTimer::timeout, [&] {
    auto* const window = qobject_cast<desktop::ScreenWindow*>(QApplication::activeModalWidget());
    if (window == nullptr || window->objectName() != QStringLiteral("CSeaMapDlg")) return;
    looks.stop();
    ++opened;
    officer(*window);
  });
  looks.start(1);
  act();
  return opened;
}

void escape(desktop::ScreenWindow& window) {
  QTest::keyClick(&window, Qt::Key_Escape);
}

class MapInAWindow : public testing::Test {
 protected:
  MapInAWindow() : shown(sample.sea_map) { shown.screen->picture.show(kShip); }
  void SetUp() override { shown.window->refresh(); }
  desktop::PictureLabel& label() {
    return *qobject_cast<desktop::PictureLabel*>(shown.window->binding("map")->widget());
  }
  fakes::SampleSeaMap sample;
  tests::Shown<CMapOwnerDlg> shown;
};

TEST_F(MapInAWindow, OpensTheLargerMapByF7FromEveryField) {
  for (const char* const name : {"field", "combo", "drop"}) {
    shown.tab_to(name);
    EXPECT_EQ(opened_by([] { press(Qt::Key_F7); }, escape), 1) << name;
    EXPECT_EQ(shown.screen->focused()->name, name);
    // No window manager makes the window active again.
    tests::show(*shown.window);
    EXPECT_TRUE(shown.window->binding(name)->owns(QApplication::focusWidget())) << name;
  }
}

TEST_F(MapInAWindow, OpensTheLargerMapByAClickAndNotByOtherKeys) {
  const auto click = [this] { QTest::mouseClick(&label(), Qt::LeftButton); };
  EXPECT_EQ(opened_by(click, escape), 1);
  tests::show(*shown.window);
  for (const Qt::KeyboardModifier with : {Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier})
    EXPECT_EQ(opened_by([with] { press(Qt::Key_F7, with); }, escape), 0);
}

TEST_F(MapInAWindow, IsNoStationOfTheTabKey) {
  press(Qt::Key_Tab);
  press(Qt::Key_Tab);
  press(Qt::Key_Tab);
  EXPECT_EQ(shown.screen->focused(), &shown.screen->field);
  EXPECT_EQ(label().focusPolicy(), Qt::NoFocus);
}

TEST_F(MapInAWindow, TellsItsKeyWhereTheMouseRests) {
  EXPECT_EQ(label().toolTip().toStdString(), "Position map (F7)");
  EXPECT_EQ(label().accessibleName().toStdString(), "Position map");
}

TEST_F(MapInAWindow, TellsThatThereIsNoPosition) {
  shown.screen->picture.show({});
  shown.window->refresh();
  const auto seen = tests::messages_of([] { press(Qt::Key_F7); });
  ASSERT_EQ(seen.size(), 1U);
  EXPECT_NE(seen[0].find("no position"), std::string::npos) << seen[0];
}

class LargerMapInAWindow : public testing::Test {
 protected:
  double height() {
    return shown.screen->picture.drawing->y.last - shown.screen->picture.drawing->y.first;
  }
  fakes::SampleSeaMap sample;
  tests::Shown<CSeaMapDlg> shown{sample.sea_map, kShip};
};

TEST_F(LargerMapInAWindow, GoesInAndOutByPlusAndMinusOfBothBlocks) {
  constexpr struct {
    Qt::Key key;
    Qt::KeyboardModifier with;
    double height;
  } kRows[] = {{Qt::Key_Plus, Qt::NoModifier, 5},     {Qt::Key_Plus, Qt::ShiftModifier, 1},
               {Qt::Key_Minus, Qt::NoModifier, 5},    {Qt::Key_Minus, Qt::KeypadModifier, 10},
               {Qt::Key_Minus, Qt::NoModifier, 50},   {Qt::Key_Minus, Qt::NoModifier, 50},
               {Qt::Key_Plus, Qt::KeypadModifier, 10}};
  for (const auto& row : kRows) {
    press(row.key, row.with);
    EXPECT_NEAR(height(), row.height, 1e-9);
    EXPECT_TRUE(shown.window->binding("shown")->owns(QApplication::focusWidget()));
  }
  EXPECT_EQ(shown.line("shown"), 1);
}

TEST_F(LargerMapInAWindow, GoesInAndOutByArrowsFiguresAndButtons) {
  press(Qt::Key_Right);
  EXPECT_NEAR(height(), 5, 1e-9);
  press(Qt::Key_End);
  EXPECT_NEAR(height(), 1, 1e-9);
  press(Qt::Key_Up);
  EXPECT_NEAR(height(), 5, 1e-9);
  shown.tab_to("closer");
  press(Qt::Key_Space);
  EXPECT_NEAR(height(), 1, 1e-9);
  shown.tab_to("wider");
  press(Qt::Key_Return);
  EXPECT_NEAR(height(), 5, 1e-9);
}

TEST_F(LargerMapInAWindow, ClosesByEscape) {
  press(Qt::Key_Escape);
  EXPECT_TRUE(shown.screen->result());
}

TEST_F(LargerMapInAWindow, GrowsWithItsWindow) {
  QWidget* const picture = shown.window->binding("picture")->widget();
  const QSize before = picture->size();
  shown.window->resize(shown.window->size() + QSize(200, 150));
  QApplication::processEvents();
  EXPECT_GE(picture->width(), before.width() + 180);
  EXPECT_GE(picture->height(), before.height() + 130);
}

// ---- What is painted

class Painted : public testing::TestWithParam<bool> {
 protected:
  QImage of(const ui::Drawing& drawing, QSize size) {
    QImage image(size, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setFont(QApplication::font());
    desktop::paint(painter, QRectF(QPointF(0, 0), size), drawing, palette);
    return image;
  }
  QRgb ink(ui::Ink which) { return desktop::colour_of(which, palette).rgb(); }

  QPalette palette = tests::palette_of(GetParam());
  fakes::SampleSeaMap sample;
  text::Texts texts;
};

TEST_P(Painted, LandSeaAndShipAreWhereTheyAreInAnyRoom) {
  for (const QSize size : {QSize(250, 140), QSize(500, 200), QSize(140, 250), QSize(900, 600)}) {
    const Place at{33, 136.3};
    const map::MapView view = map::view_around(at, Step::kTenDegrees);
    const ui::Drawing drawing = map::map_drawing({at, {}, {}}, view, 400, sample.sea_map, texts);
    const QImage image = of(drawing, size);
    const ui::DrawingPlace place(drawing, size.width(), size.height());
    const auto at_place = [&](double longitude, double latitude) {
      const ui::Point pixel = place.pixel_of({longitude, latitude});
      return image.pixel(static_cast<int>(pixel.x), static_cast<int>(pixel.y));
    };
    EXPECT_EQ(at_place(136.3, 33), ink(ui::Ink::kMark));
    EXPECT_EQ(at_place(134.5, 33.3), ink(ui::Ink::kWater));
    EXPECT_EQ(at_place(137.3, 34.7), ink(ui::Ink::kLand));
    EXPECT_EQ(at_place(137.3, 29), ink(ui::Ink::kWater));
    // As high as the room, and as wide up to the shape of the map.
    EXPECT_DOUBLE_EQ(place.height(), size.height());
    if (size.width() < 2 * size.height()) {
      EXPECT_DOUBLE_EQ(place.width(), size.width());
    }
  }
}

TEST_P(Painted, NoSeamShowsBetweenTwoTiles) {
  const Place at{33, 140.0};
  const ui::Drawing drawing = map::map_drawing(
      {at, {}, {}}, map::view_around(at, Step::kFiveDegrees), 400, sample.sea_map, texts);
  for (int width = 300; width < 330; ++width) {
    const QSize size(width, 181);
    const QImage image = of(drawing, size);
    const ui::DrawingPlace place(drawing, size.width(), size.height());
    // Off the graticule and its names, from the ship's tile into the neighbour.
    const int y = static_cast<int>(place.pixel_of({140, 33.5}).y);
    const int from = static_cast<int>(place.pixel_of({139.6, 33}).x);
    const int to = static_cast<int>(place.pixel_of({140.4, 33}).x);
    const int line = static_cast<int>(place.pixel_of({140, 33}).x);
    for (int x = from; x <= to; ++x) {
      if (std::abs(x - line) <= 2) continue;  // the meridian
      EXPECT_EQ(image.pixel(x, y), ink(ui::Ink::kLand)) << width << " " << x;
    }
  }
}

// With the graticule taken away, also on the limit itself.
TEST_P(Painted, NoSeamShowsOnTheLimitItself) {
  const Place at{33, 140.0};
  ui::Drawing drawing = map::map_drawing({at, {}, {}}, map::view_around(at, Step::kFiveDegrees),
                                         400, sample.sea_map, texts);
  std::erase_if(drawing.ground,
                [](const ui::Shape& shape) { return !std::holds_alternative<ui::Area>(shape); });
  drawing.shapes.clear();
  for (int width = 300; width < 340; ++width) {
    const QImage image = of(drawing, {width, 181});
    for (int x = 60; x < width / 2 + 40; ++x)
      EXPECT_EQ(image.pixel(x, 90), ink(ui::Ink::kLand)) << width << " " << x;
  }
}

// Texts in one colour on nothing: no two of them overlap when together they cover as many pixels as
// each alone.
TEST_P(Painted, NamesOfLinesNeitherCoverOneAnotherNorTheShip) {
  const QFont usual = QApplication::font();
  for (const int percent : {100, 150}) {
    QFont font = usual;
    font.setPointSizeF(usual.pointSizeF() * percent / 100);
    for (const double latitude : {-89.9, 0.0, 35.0, 66.0}) {
      for (const double longitude : {-20.0, 179.9}) {
        for (const Step step : {Step::kTile, Step::kTenDegrees, Step::kOneDegree}) {
          const Place at{latitude, longitude};
          ui::Drawing drawing = map::map_drawing({at, {}, {}}, map::view_around(at, step), 400,
                                                 sample.sea_map, texts);
          const ui::Shape ship = drawing.shapes.back();
          std::vector<ui::Shape> names;
          for (const ui::Shape& shape : drawing.ground)
            if (std::holds_alternative<ui::ShortText>(shape)) names.push_back(shape);
          const auto inked = [&](std::vector<ui::Shape> ground) {
            drawing.ground = std::move(ground);
            drawing.shapes = {ship};
            QImage image(250, 140, QImage::Format_RGB32);
            QPainter painter(&image);
            painter.setFont(font);
            desktop::paint(painter, QRectF(0, 0, 250, 140), drawing, palette);
            const QRgb paper = palette.color(QPalette::Base).rgb();
            std::ptrdiff_t blank = 0;
            for (int y = 0; y < image.height(); ++y) {
              const auto* const line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
              blank += std::count(line, line + image.width(), paper);
            }
            return std::ptrdiff_t{image.width()} * image.height() - blank;
          };
          // Painted together, each in the order of the map; then those that were shown, one by one.
          const std::ptrdiff_t marker = inked({});
          std::vector<ui::Shape> so_far;
          std::ptrdiff_t before = marker;
          int shown = 0;
          for (const ui::Shape& name : names) {
            so_far.push_back(name);
            const std::ptrdiff_t now = inked(so_far);
            if (now > before) {
              ++shown;
              EXPECT_EQ(now - before, inked({name}) - marker)
                  << std::get<ui::ShortText>(name).text << " at " << latitude << " " << longitude;
            }
            before = now;
          }
          EXPECT_GE(shown, 4) << latitude << " " << longitude;
        }
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Map, Painted, testing::Values(false, true),
                         [](const auto& row) { return row.param ? "dark" : "light"; });

}  // namespace
