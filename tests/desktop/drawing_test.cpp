// Drawings and pictures on the screen and on paper.

#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>
#include <QTest>
#include <cmath>
#include <memory>
#include <vector>

#include "desktop/drawing_painter.h"
#include "desktop/picture_label.h"
#include "desktop/printed_pages.h"
#include "desktop/screen_window.h"
#include "desktop/style.h"
#include "desktop_world.h"
#include "palettes.h"
#include "text/ids.h"

namespace {

using ui::Ink;

ui::Drawing unit_drawing() {
  ui::Drawing drawing;
  drawing.x = {"x", 0, 10};
  drawing.y = {"y", 0, 10};
  return drawing;
}

QImage painted(const ui::Drawing& drawing, const QPalette& palette, int size = 200) {
  QImage image(size, size, QImage::Format_RGB32);
  image.fill(Qt::magenta);
  QPainter painter(&image);
  desktop::paint(painter, QRectF(0, 0, size, size), drawing, palette);
  return image;
}

class Drawn : public testing::TestWithParam<bool> {
 protected:
  QPalette palette = tests::palette_of(GetParam());
};

TEST_P(Drawn, AreasFillTheirPlaceInTheColourOfTheirInk) {
  for (const Ink ink : {Ink::kLand, Ink::kWater, Ink::kIce}) {
    ui::Drawing drawing = unit_drawing();
    drawing.shapes = {ui::Area{{{0, 0}, {5, 0}, {5, 5}, {0, 5}}, ink}};
    const QImage image = painted(drawing, palette);
    const QRgb area = desktop::colour_of(ink, palette).rgb();
    const QRgb paper = palette.color(QPalette::Base).rgb();
    EXPECT_NE(area, paper);
    EXPECT_EQ(image.pixel(50, 150), area);  // the lower left quarter
    EXPECT_EQ(image.pixel(150, 150), paper);
    EXPECT_EQ(image.pixel(50, 50), paper);
    EXPECT_EQ(image.pixel(150, 50), paper);
  }
}

TEST_P(Drawn, LaterShapesLieOnEarlierOnes) {
  ui::Drawing drawing = unit_drawing();
  const std::vector<ui::Point> all = {{0, 0}, {10, 0}, {10, 10}, {0, 10}};
  drawing.shapes = {ui::Area{all, Ink::kWater}, ui::Area{all, Ink::kLand}};
  EXPECT_EQ(painted(drawing, palette).pixel(100, 100),
            desktop::colour_of(Ink::kLand, palette).rgb());
}

TEST_P(Drawn, LinesAndMarkersAreWhereTheirPointsAre) {
  const QRgb ink = desktop::colour_of(Ink::kMark, palette).rgb();
  const QRgb paper = palette.color(QPalette::Base).rgb();
  ui::Drawing line = unit_drawing();
  line.shapes = {ui::Polyline{{{0, 5}, {10, 5}}, Ink::kMark, true}};
  const QImage across = painted(line, palette);
  for (const int x : {5, 100, 195}) EXPECT_EQ(across.pixel(x, 100), ink) << x;
  EXPECT_EQ(across.pixel(100, 60), paper);
  ui::Drawing dot = unit_drawing();
  dot.shapes = {ui::Marker{{2.5, 7.5}, ui::Marker::Sign::kDot}};
  EXPECT_EQ(painted(dot, palette).pixel(50, 50), ink);
  EXPECT_EQ(painted(dot, palette).pixel(150, 150), paper);
  ui::Drawing ring = unit_drawing();
  ring.shapes = {ui::Marker{{2.5, 7.5}, ui::Marker::Sign::kRing}};
  EXPECT_EQ(painted(ring, palette).pixel(50, 50), paper);
  EXPECT_NE(painted(ring, palette), painted(unit_drawing(), palette));
}

// Columns that hold anything but paper, first and last.
std::pair<int, int> extent_across(const QImage& image, QRgb paper) {
  std::pair<int, int> found{image.width(), -1};
  for (int x = 0; x < image.width(); ++x) {
    for (int y = 0; y < image.height(); ++y) {
      if (image.pixel(x, y) == paper) continue;
      found = {std::min(found.first, x), std::max(found.second, x)};
    }
  }
  return found;
}

TEST_P(Drawn, TextsStandOnTheirSideOfThePoint) {
  using Side = ui::ShortText::Side;
  const QRgb paper = palette.color(QPalette::Base).rgb();
  const auto of = [&](Side side) {
    ui::Drawing drawing = unit_drawing();
    drawing.shapes = {ui::ShortText{{5, 5}, "MMM", side}};
    return extent_across(painted(drawing, palette), paper);
  };
  EXPECT_LT(of(Side::kLeft).second, 100);
  EXPECT_GT(of(Side::kRight).first, 100);
  EXPECT_LT(of(Side::kCentre).first, 100);
  EXPECT_GT(of(Side::kCentre).second, 100);
}

TEST_P(Drawn, NothingIsPaintedOutsideItsRange) {
  ui::Drawing drawing = unit_drawing();
  drawing.y.last = 5;
  drawing.same_scale = true;  // twice as wide as high: a band in the middle
  drawing.shapes = {ui::Area{{{-50, -50}, {50, -50}, {50, 50}, {-50, 50}}, Ink::kWater}};
  const QImage image = painted(drawing, palette);
  const QRgb paper = palette.color(QPalette::Base).rgb();
  EXPECT_EQ(image.pixel(100, 40), paper);
  EXPECT_EQ(image.pixel(100, 160), paper);
  EXPECT_EQ(image.pixel(100, 100), desktop::colour_of(Ink::kWater, palette).rgb());
}

TEST_P(Drawn, PointsThatAreNoNumbersDoNoHarm) {
  const double nan = std::nan("");
  ui::Drawing drawing = unit_drawing();
  drawing.shapes = {ui::Area{{{nan, 0}, {1, nan}, {5, 5}}},
                    ui::Polyline{{{nan, nan}, {1, 1}}},
                    ui::Marker{{nan, 1}},
                    ui::ShortText{{nan, nan}, "x"},
                    ui::Area{},
                    ui::Polyline{}};
  EXPECT_EQ(painted(drawing, palette).size(), QSize(200, 200));
}

// What is drawn as a line or a sign, and every text, is read on paper, land, water and ice.
TEST_P(Drawn, EveryInkIsReadOnEveryPaper) {
  for (const Ink ink : {Ink::kText, Ink::kMark, Ink::kCaution, Ink::kAlarm}) {
    const QColor colour = desktop::colour_of(ink, palette);
    for (const QColor& paper :
         {palette.color(QPalette::Base), desktop::colour_of(Ink::kLand, palette),
          desktop::colour_of(Ink::kWater, palette), desktop::colour_of(Ink::kIce, palette)}) {
      EXPECT_GE(desktop::contrast(colour, paper), desktop::kReadable)
          << ui::name_of(ink) << " " << colour.name().toStdString() << " on "
          << paper.name().toStdString();
    }
  }
}

// Some desktops write on dark paper in light windows.
TEST(DrawnOnPaperOfItsOwn, InksAreReadOnThePaperWhateverTheWindowIs) {
  for (const bool dark : {false, true}) {
    QPalette palette = tests::palette_of(dark);
    palette.setColor(QPalette::Base, dark ? Qt::white : Qt::black);
    for (const Ink ink : {Ink::kMark, Ink::kCaution, Ink::kAlarm})
      EXPECT_GE(desktop::contrast(desktop::colour_of(ink, palette), palette.color(QPalette::Base)),
                desktop::kReadable)
          << ui::name_of(ink) << " in a " << (dark ? "dark" : "light") << " window";
  }
}

INSTANTIATE_TEST_SUITE_P(Desktop, Drawn, testing::Values(false, true),
                         [](const auto& row) { return row.param ? "dark" : "light"; });

// ---- In a window

class CPicturesDlg : public ui::Screen {
 public:
  explicit CPicturesDlg(ui::Services& services)
      : Screen(services, "CPicturesDlg", {text::id::kHelpLabel}) {
    ui::Drawing drawing = unit_drawing();
    drawing.shapes = {ui::Area{{{0, 0}, {10, 0}, {10, 5}, {0, 5}}, Ink::kWater}};
    map.drawing = std::make_shared<const ui::Drawing>(drawing);
    file.content = "quarters.png";
    missing.content = "nowhere.png";
    for (ui::Picture* const picture : {&map, &file, &missing})
      picture->on_point = [this](ui::Point at) { clicked.push_back(at); };
    link.content = "nowhere.png";
    link.on_press = [this] { ++pressed; };
  }
  ui::Edit note{*this, "note"};
  ui::Picture map{*this, "map", {text::id::kHelpLabel}};
  ui::Picture file{*this, "file", {text::id::kHelpLabel}};
  ui::Picture missing{*this, "missing", {text::id::kCancelLabel}};
  ui::Picture link{*this, "link", {text::id::kCancelLabel}};
  std::vector<ui::Point> clicked;
  int pressed = 0;
};

class Pictures : public testing::Test {
 protected:
  void SetUp() override {
    // Red, green, blue and white quarters, row by row.
    QImage quarters(40, 20, QImage::Format_RGB32);
    const QRgb colours[] = {0xffff0000, 0xff00ff00, 0xff0000ff, 0xffffffff};
    for (int y = 0; y < 20; ++y) {
      for (int x = 0; x < 40; ++x) quarters.setPixel(x, y, colours[y / 10 * 2 + x / 20]);
    }
    ASSERT_TRUE(quarters.save(folder.filePath("quarters.png")));
    QFile broken(folder.filePath("broken.png"));
    ASSERT_TRUE(broken.open(QIODevice::WriteOnly));
    broken.write("no picture");
    broken.close();
    desktop::set_picture_folder(folder.path());
    screen.open();
    window = std::make_unique<desktop::ScreenWindow>(screen, nullptr);
    tests::show(*window);
  }
  void TearDown() override {
    window.reset();
    desktop::set_picture_folder({});
  }
  desktop::PictureLabel& label(const ui::Control& control) const {
    return *qobject_cast<desktop::PictureLabel*>(window->binding(control)->widget());
  }

  QTemporaryDir folder;
  tests::DesktopWorld world;
  CPicturesDlg screen{world.services};
  std::unique_ptr<desktop::ScreenWindow> window;
};

TEST_F(Pictures, OfAFileAreReallyShown) {
  const QImage shown = label(screen.file).grab().toImage();
  std::vector<QRgb> seen;
  for (int y = 0; y < shown.height(); ++y) {
    for (int x = 0; x < shown.width(); ++x) {
      const QRgb colour = shown.pixel(x, y);
      if (std::find(seen.begin(), seen.end(), colour) == seen.end()) seen.push_back(colour);
    }
  }
  for (const QRgb colour : {0xffff0000U, 0xff00ff00U, 0xff0000ffU})
    EXPECT_NE(std::find(seen.begin(), seen.end(), colour), seen.end()) << std::hex << colour;
  EXPECT_EQ(label(screen.file).text(), "");
}

TEST_F(Pictures, ThatAreMissingAreTheirCaption) {
  for (const char* const name :
       {"nowhere.png", "broken.png", "", "/etc/passwd", "../quarters.png"}) {
    screen.missing.content = name;
    window->refresh();
    EXPECT_EQ(label(screen.missing).text(), "Cancel") << name;
    EXPECT_TRUE(label(screen.missing).pixmap(Qt::ReturnByValue).isNull()) << name;
  }
  world.fake.texts.language = text::Language::kJapanese;
  window->refresh();
  EXPECT_EQ(label(screen.missing).text().toStdString(), screen.caption(screen.missing));
  screen.missing.content = "quarters.png";
  window->refresh();
  EXPECT_EQ(label(screen.missing).text(), "");
  EXPECT_FALSE(label(screen.missing).pixmap(Qt::ReturnByValue).isNull());
}

TEST_F(Pictures, AreNamedByTheirCaption) {
  for (const ui::Picture* const picture : {&screen.map, &screen.file, &screen.missing})
    EXPECT_EQ(label(*picture).accessibleName().toStdString(), screen.caption(*picture));
}

TEST_F(Pictures, OfADrawingAreDrawnAnewWhenItIsAnother) {
  desktop::PictureLabel& map = label(screen.map);
  const QRgb water = desktop::colour_of(Ink::kWater, map.palette()).rgb();
  const auto at = [&map](double across, double down) {
    return map.grab().toImage().pixel(static_cast<int>(map.width() * across),
                                      static_cast<int>(map.height() * down));
  };
  EXPECT_EQ(at(0.5, 0.75), water);
  EXPECT_NE(at(0.5, 0.25), water);
  ui::Drawing other = *screen.map.drawing;
  other.shapes = {ui::Area{{{0, 5}, {10, 5}, {10, 10}, {0, 10}}, Ink::kWater}};
  screen.map.drawing = std::make_shared<const ui::Drawing>(other);
  window->refresh();
  EXPECT_NE(at(0.5, 0.75), water);
  EXPECT_EQ(at(0.5, 0.25), water);
}

TEST_F(Pictures, OfADrawingKeepTheirInksWhereTheyCanBeClicked) {
  ui::Drawing inks = *screen.map.drawing;
  inks.shapes = {ui::Area{{{0, 0}, {10, 0}, {10, 10}, {0, 10}}, Ink::kText}};
  screen.map.drawing = std::make_shared<const ui::Drawing>(inks);
  window->refresh();
  desktop::PictureLabel& map = label(screen.map);
  EXPECT_EQ(map.grab().toImage().pixel(map.width() / 2, map.height() / 2),
            QApplication::palette().color(QPalette::Text).rgb());
}

TEST_F(Pictures, OfADrawingHaveRoomForItsCharactersAndLines) {
  const desktop::PictureLabel& map = label(screen.map);
  EXPECT_GE(map.width(),
            map.fontMetrics().horizontalAdvance(QLatin1Char('0')) * screen.map.drawing->characters);
  EXPECT_GE(map.height(), map.fontMetrics().lineSpacing() * screen.map.drawing->lines);
}

TEST_F(Pictures, TellTheScreenWhereTheyAreClicked) {
  desktop::PictureLabel& map = label(screen.map);
  QTest::mouseClick(&map, Qt::LeftButton, {}, QPoint(map.width() / 4, map.height() / 2));
  ASSERT_EQ(screen.clicked.size(), 1U);
  EXPECT_NEAR(screen.clicked[0].x, 2.5, 0.1);
  EXPECT_NEAR(screen.clicked[0].y, 5, 0.1);
  screen.clicked.clear();
  // The file's picture stands at the left of its room, half way up.
  desktop::PictureLabel& file = label(screen.file);
  QTest::mouseClick(&file, Qt::LeftButton, {}, QPoint(30, file.height() / 2 - 5));
  ASSERT_EQ(screen.clicked.size(), 1U);
  EXPECT_NEAR(screen.clicked[0].x, 0.75, 0.01);
  EXPECT_NEAR(screen.clicked[0].y, 0.75, 0.06);
  screen.clicked.clear();
  QTest::mouseClick(&file, Qt::RightButton, {}, QPoint(30, file.height() / 2));
  QTest::mouseClick(&label(screen.missing), Qt::LeftButton, {}, QPoint(2, 2));
  EXPECT_TRUE(screen.clicked.empty());
}

TEST_F(Pictures, ThatOpenSomethingDoSoAlsoAsTheirCaption) {
  QTest::mouseClick(&label(screen.link), Qt::LeftButton);
  EXPECT_EQ(screen.pressed, 1);
}

// ---- On paper

// The pages of a document printed to a PDF; 0 when it could not be.
int pages_of(const ui::Sheets& sheets, bool disk_has_room = true) {
  std::string pdf;
  const auto take = [&](std::string_view bytes) {
    pdf.append(bytes);
    return disk_has_room;
  };
  const QPageLayout paper = desktop::paper_of(QPageSize(QPageSize::A4));
  if (!desktop::write_pdf(sheets, paper, take)) return 0;
  return static_cast<int>(QByteArray::fromStdString(pdf).count("/Type /Page\n"));
}

TEST(Printed, ADrawingStandsWholeBelowTheLinesWhereThePageHasRoomForIt) {
  ui::Drawing drawing = unit_drawing();
  drawing.shapes = {ui::Polyline{{{0, 0}, {10, 10}}}, ui::ShortText{{5, 5}, "東京"}};
  const auto few = ui::document_of(std::vector<std::string>(3, "BBXX"));
  const QPageLayout a4 = desktop::paper_of(QPageSize(QPageSize::A4));
  const std::size_t room = desktop::measure_page({"Pressure", few}, a4).room.lines;
  const auto page = ui::document_of(std::vector<std::string>(room, "BBXX"));
  for (const bool same_scale : {false, true}) {
    drawing.same_scale = same_scale;
    EXPECT_EQ(pages_of({"Pressure", {}, {drawing}}), 1);
    EXPECT_EQ(pages_of({"Pressure", few, {drawing}}), 1);
    EXPECT_EQ(pages_of({"Pressure", page, {drawing}}), 2);
  }
  // Three squares as wide as the page: never two on one.
  EXPECT_EQ(pages_of({"Maps", few, {drawing, drawing, drawing}}), 3);
  drawing.y.last = drawing.y.first + 100 * (drawing.y.last - drawing.y.first);
  EXPECT_EQ(pages_of({"A tower", {}, {drawing}}), 1);
  EXPECT_EQ(pages_of({"Nothing", {}, {}}), 1);
  EXPECT_EQ(pages_of({"Nowhere", few, {drawing}}, false), 0);
}

}  // namespace
