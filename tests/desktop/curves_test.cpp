// The curves in real windows: keys, clicks, what is painted, and the page on paper.

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QLineEdit>
#include <QPainter>
#include <QTest>
#include <algorithm>
#include <functional>
#include <vector>

#include "desktop/drawing_painter.h"
#include "desktop/picture_label.h"
#include "desktop/printed_pages.h"
#include "desktop/style.h"
#include "desktop_world.h"
#include "explain/CCurvesDlg.h"
#include "fakes/fake_files.h"
#include "fakes/sample_days.h"
#include "fakes/sample_observation.h"
#include "fakes/sample_ship.h"
#include "mainwindow/CVelmaranDlg.h"
#include "officer.h"
#include "palettes.h"
#include "paper.h"

namespace {

using explain::Curve;
using explain::CurvePoint;
using tests::press;

constexpr int kLast = fakes::kSampleHour;

struct CurvesInAWindow : testing::Test {
  tests::Shown<CCurvesDlg> shown{fakes::sample_days(), Curve::kPressure, "C:\\out", "JXKV"};

  QLineEdit& line() { return *qobject_cast<QLineEdit*>(shown.window->binding("point")->widget()); }
  desktop::PictureLabel& chart(std::string_view name) {
    return *qobject_cast<desktop::PictureLabel*>(shown.window->binding(name)->widget());
  }
  CurvePoint at() { return shown.screen->chosen().value_or(CurvePoint{}); }
};

TEST_F(CurvesInAWindow, AreGoneThroughWithTheKeysOfBothBlocks) {
  EXPECT_EQ(QApplication::focusWidget(), &line());
  struct Row {
    Qt::Key key;
    CurvePoint at;
  };
  for (const Row& row :
       {Row{Qt::Key_Left, {Curve::kPressure, kLast - 3}},
        Row{Qt::Key_Down, {Curve::kAir, kLast - 3}}, Row{Qt::Key_Up, {Curve::kPressure, kLast - 3}},
        Row{Qt::Key_Home, {Curve::kPressure, kLast - 120}},
        Row{Qt::Key_Right, {Curve::kPressure, kLast - 117}},
        Row{Qt::Key_End, {Curve::kPressure, kLast}},
        Row{Qt::Key_PageUp, {Curve::kPressure, kLast - 24}},
        Row{Qt::Key_PageDown, {Curve::kPressure, kLast}}}) {
    for (const Qt::KeyboardModifier with : {Qt::NoModifier, Qt::KeypadModifier}) {
      const CurvePoint before = at();
      press(row.key, with);
      EXPECT_EQ(at(), row.at) << row.key;
      EXPECT_EQ(line().text().toStdString(), shown.screen->point.content);
      EXPECT_EQ(QApplication::focusWidget(), &line());
      // Once more from the same place with the other block's key.
      if (with == Qt::NoModifier && before != row.at) {
        for (const Qt::Key back : {Qt::Key_End, Qt::Key_Home}) press(back);
        while (at().curve != before.curve) press(Qt::Key_Down);
        while (at().hour != before.hour) press(Qt::Key_Right);
      }
    }
  }
}

TEST_F(CurvesInAWindow, ShowTheBeginningOfTheWordsAndTakeNoLetter) {
  EXPECT_FALSE(line().hasSelectedText()) << "it is read, and not typed over";
  press(Qt::Key_Left);
  EXPECT_EQ(line().cursorPosition(), 0);
  press(Qt::Key_Tab);
  press(Qt::Key_Tab, Qt::ShiftModifier);
  EXPECT_EQ(QApplication::focusWidget(), &line());
  EXPECT_FALSE(line().hasSelectedText());
  const QString before = line().text();
  tests::type("12a");
  EXPECT_EQ(line().text(), before);
  EXPECT_EQ(line().accessibleName().toStdString(), "Chosen point");
}

TEST_F(CurvesInAWindow, DrawAnewWithEachPoint) {
  const auto before = chart("wind").drawing();
  press(Qt::Key_Left);
  EXPECT_NE(chart("wind").drawing(), before);
  EXPECT_EQ(chart("wind").drawing(), shown.screen->wind.drawing);
}

TEST_F(CurvesInAWindow, ChooseThePointThatIsClicked) {
  press(Qt::Key_Tab);
  desktop::PictureLabel& waves = chart("waves");
  const ui::DrawingPlace place(*waves.drawing(), waves.width(), waves.height());
  const ui::Point pixel = place.pixel_of({-18.4, 0.5});
  QTest::mouseClick(&waves, Qt::LeftButton, {},
                    {static_cast<int>(pixel.x), static_cast<int>(pixel.y)});
  QApplication::processEvents();
  EXPECT_EQ(at(), (CurvePoint{Curve::kWindWaves, kLast - 18}));
  EXPECT_EQ(QApplication::focusWidget(), &line()) << "the arrows go on from here";
}

TEST_F(CurvesInAWindow, AreClosedByTheirOwnKeyFromEachButton) {
  for (const int tabs : {0, 1, 2, 3, 4}) {
    tests::Shown<CCurvesDlg> again{fakes::sample_days(), Curve::kPressure, "C:\\out", "JXKV"};
    for (int i = 0; i < tabs; ++i) press(Qt::Key_Tab);
    press(Qt::Key_F3);
    EXPECT_TRUE(again.screen->result()) << tabs;
  }
}

// ---- From the main window

struct OwnedByTheProgram {
  tests::DesktopWorld world;
  fakes::FakeFiles files;
  ShipFixedData ship = fakes::sample_ship();
  KeyObservationItems items;
  mainwindow::Folders folders;
  ui::Services services = world.over(files);
};

TEST(CurvesFromTheMainWindow, LeaveAHalfTypedFieldAsItIs) {
  const auto program = std::make_unique<OwnedByTheProgram>();
  program->folders.reports = "C:\\out\\";
  program->files.add_file("C:\\out\\14111509.tlx",
                          "BBXX JXKV 15094 99357 11653 41497 62718 10152 20114 40125 52014 22213");
  const auto screen = std::make_unique<CVelmaranDlg>(
      program->services,
      mainwindow::MainWindowContext{program->ship, program->items, program->folders, {}});
  screen->open();
  desktop::ScreenWindow window(*screen, nullptr);
  tests::show(window);
  for (const char* const text : {"2014", "11", "15", "12"}) {
    tests::type(text);
    press(Qt::Key_Tab);
  }
  while (screen->focused()->name != "PPPP") press(Qt::Key_Tab);
  tests::type("1031.");
  std::vector<std::string> said;
  const auto read = [&said] {
    const auto* const line = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    said.push_back(line == nullptr ? std::string() : line->text().toStdString());
  };
  for (const Qt::Key back : {Qt::Key_Escape, Qt::Key_F3, Qt::Key_Return}) {
    tests::Officer officer({{"CCurvesDlg", [&] {
                               read();
                               press(back);
                             }}});
    officer.begin();
    press(Qt::Key_F3);
    officer.expect_done();
    // No window manager makes the window active again.
    tests::show(window);
    auto* const field = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    ASSERT_NE(field, nullptr);
    EXPECT_TRUE(window.binding("PPPP")->owns(field));
    EXPECT_EQ(screen->focused()->name, "PPPP");
    EXPECT_EQ(field->cursorPosition(), field->text().size()) << "typing goes on where it was";
    EXPECT_FALSE(field->hasSelectedText());
    tests::type("2");
    press(Qt::Key_Backspace);
    EXPECT_EQ(field->text().toStdString(), "1031.");
  }
  ASSERT_EQ(said.size(), 3U);
  EXPECT_EQ(said[0],
            "15 November 12 UTC: air pressure 1031.0 hPa, 18.5 more than 3 hours before (being "
            "entered)");
  EXPECT_EQ(screen->form().entered(elements::Field::kPPPP), "");
}

// ---- Beside the form

TEST(CurveInTheMainWindow, IsPaintedAnewAtEachKeyAndKeepsTheMapLarge) {
  tests::DesktopWorld world;
  fakes::SampleMainWindow screen(world.services);
  screen.open();
  ASSERT_TRUE(fakes::enter_sample(screen));
  desktop::ScreenWindow window(screen, nullptr);
  tests::show(window);
  window.resize(1366, 700);
  QApplication::processEvents();
  window.binding("PPPP")->widget()->setFocus();
  press(Qt::Key_A, Qt::ControlModifier);
  tests::type("1009.");
  const auto* const curve = qobject_cast<desktop::PictureLabel*>(window.binding("curve")->widget());
  ASSERT_NE(curve, nullptr);
  const auto before = curve->drawing();
  tests::type("8");
  EXPECT_NE(curve->drawing(), before);
  EXPECT_EQ(curve->drawing(), screen.find("curve")->drawing);
  EXPECT_EQ(screen.find("PPPP")->content, "1009.8");
  EXPECT_EQ(curve->focusPolicy(), Qt::NoFocus);
  EXPECT_GE(curve->height(), curve->fontMetrics().height() * 5);
  const auto* const map = window.binding("position_map");
  ASSERT_NE(map, nullptr);
  EXPECT_GE(map->widget()->height(), 2 * curve->height());
}

// ---- Painting

QImage painted(const ui::Drawing& drawing, bool dark = false) {
  QImage image(600, 200, QImage::Format_RGB32);
  QPainter painter(&image);
  desktop::paint(painter, QRectF(image.rect()), drawing, tests::palette_of(dark));
  return image;
}

// Where a colour is found, and how often.
struct Found {
  int count = 0;
  QRect around;
};
Found found(const QImage& image, const QColor& colour) {
  Found result;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (image.pixelColor(x, y) == colour) {
        ++result.count;
        result.around = result.around.united(QRect(x, y, 1, 1));
      }
  return result;
}

TEST(CurvesPainted, HaveTheirBarbsAtOneSizeWhateverTheScale) {
  for (const bool dark : {false, true}) {
    const QColor ink = desktop::colour_of(ui::Ink::kMark, tests::palette_of(dark));
    QSize size;
    for (const double range : {1.0, 1000.0}) {
      ui::Drawing drawing;
      drawing.x = {"", 0, range};
      drawing.y = {"", 0, 1};
      ui::WindBarb barb;
      barb.at = {range / 2, 0.5};
      barb.from = 270;
      barb.knots = 65;
      drawing.shapes.emplace_back(barb);
      const Found in = found(painted(drawing, dark), ink);
      ASSERT_GT(in.count, 10);
      EXPECT_LT(in.around.center().y(), 100) << "the feathers of a west wind are in the north";
      EXPECT_LT(in.around.center().x(), 301);
      if (!size.isEmpty()) {
        EXPECT_EQ(in.around.size(), size);
      }
      size = in.around.size();
    }
  }
}

TEST(CurvesPainted, ShowAPointThatIsJoinedToNoOther) {
  ui::Drawing drawing;
  ui::Polyline line{{{0.5, 0.5}}, ui::Ink::kMark};
  drawing.shapes.emplace_back(line);
  const QColor ink = desktop::colour_of(ui::Ink::kMark, tests::palette_of(false));
  EXPECT_EQ(found(painted(drawing), ink).count, 0);
  line.specks = true;
  drawing.shapes = {line};
  EXPECT_GT(found(painted(drawing), ink).count, 0);
}

// ---- On paper

TEST(CurvesOnPaper, StandOnOnePageInBothLanguagesAndSizes) {
  for (const bool japanese : {false, true}) {
    fakes::World world;
    if (japanese) world.japanese();
    world.windows.answer_all("ok");
    CCurvesDlg screen(world.services, fakes::sample_days(), Curve::kPressure, "C:\\out", "JXKV");
    screen.open();
    screen.press(screen.print);
    ASSERT_EQ(world.printer.printed.size(), 1U);
    for (const auto size : {QPageSize::A4, QPageSize::Letter}) {
      const QPageLayout paper = desktop::paper_of(QPageSize(size));
      std::string pdf;
      ASSERT_TRUE(desktop::write_pdf(world.printer.printed[0], paper, [&](std::string_view bytes) {
        pdf.append(bytes);
        return true;
      }));
      const auto pages = tests::pages_of_pdf(pdf);
      ASSERT_EQ(pages.size(), 1U);
      const QRectF room = paper.paintRect(QPageLayout::Point);
      std::string words;
      for (const tests::Word& word : pages[0].words) {
        EXPECT_GE(word.left, room.left() - 0.5) << word.text.toStdString();
        EXPECT_LE(word.right, room.right() + 0.5) << word.text.toStdString();
        EXPECT_LE(word.bottom, room.bottom() + 0.5) << word.text.toStdString();
        words.append(word.text.toStdString()).append(" ");
      }
      std::vector<std::string> wanted = {"JXKV", "1010", "14", "40"};
      if (japanese) {
        wanted.insert(wanted.end(), {"海面気圧（hPa）", "気温・海面水温（°C）", "風（kn）",
                                     "波高（m）", "11月15日", "入力中"});
      } else {
        wanted.insert(wanted.end(), {"Air pressure at sea level, hPa", "Temperature, °C",
                                     "Wind, kn", "Wave height, m", "15 Nov", "12 UTC",
                                     "being entered", "sea temperature", "swell 1"});
      }
      for (const std::string& text : wanted)
        EXPECT_NE(words.find(text), std::string::npos) << text << " in " << words;
    }
  }
}

}  // namespace
