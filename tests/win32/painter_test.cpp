// Drawings in the system's pictures. What a drawing looks like is tested where it is painted on any
// canvas; here is what the system adds.
#include "win32/painter.h"

#include <gtest/gtest.h>

#include <cstddef>

#include "painted.h"
#include "win32/letters.h"

namespace {

using tests::kUntouched;
using ui::Ink;

constexpr std::uint32_t kPaper = 0xFAF0E0;

paper::Inks inks() {
  paper::Inks all;
  all.ink.fill({1, 2, 3});
  all.ink[static_cast<std::size_t>(Ink::kWater)] = {0x10, 0x20, 0xC0};
  all.ink[static_cast<std::size_t>(Ink::kText)] = paper::kBlack;
  all.paper = {0xFA, 0xF0, 0xE0};
  return all;
}

ui::Drawing unit_drawing() {
  ui::Drawing drawing;
  drawing.x = {"x", 0, 10};
  drawing.y = {"y", 0, 10};
  return drawing;
}

TEST(Painter, PaintsInItsRoomInTheColoursGiven) {
  const tests::Font font(16);
  ui::Drawing drawing = unit_drawing();
  drawing.shapes = {ui::Area{{{0, 0}, {5, 0}, {5, 5}, {0, 5}}, Ink::kWater}};
  const tests::Painted image(300, 200, [&](HDC dc) {
    win32::paint(dc, drawing, {50, 40, 250, 140}, font.get(), 1, inks());
  });
  EXPECT_EQ(image.across(kUntouched), std::pair(50, 249));
  EXPECT_EQ(image.at(50, 40), kPaper);
  EXPECT_EQ(image.at(51, 139), 0x1020C0U);
  EXPECT_EQ(image.at(149, 90), 0x1020C0U);
  EXPECT_EQ(image.at(150, 90), kPaper);
  EXPECT_EQ(image.at(100, 140), kUntouched);
  EXPECT_EQ(image.count(0x1020C0), 100 * 50);
}

TEST(Painter, WritesTextsInTheFontWithJapanese) {
  // What the usual fonts of windows lack comes from others, not everywhere.
  const tests::Font font(16, win32::paper_letters().family.c_str());
  const auto painted = [&font](const char* text, ui::ShortText::Side side) {
    ui::Drawing drawing = unit_drawing();
    drawing.shapes = {ui::ShortText{{5, 5}, text, side}};
    return tests::Painted(300, 100,
                          [&](HDC dc) {
                            win32::paint(dc, drawing, {0, 0, 300, 100}, font.get(), 1, inks());
                          })
        .across(kPaper);
  };
  using Side = ui::ShortText::Side;
  const auto latin = painted("HHHH", Side::kCentre);
  EXPECT_NEAR((latin.first + latin.second) / 2.0, 150, 2);
  EXPECT_NEAR(latin.second - latin.first, 4 * 8, 5);
  EXPECT_LT(painted("HHHH", Side::kLeft).second, 150);
  EXPECT_GT(painted("HHHH", Side::kRight).first, 150);
  // Four letters as wide as they are high.
  const auto japanese = painted("東京湾口", Side::kCentre);
  EXPECT_NEAR(japanese.second - japanese.first, 4 * 16, 8);
}

TEST(Painter, CutsTextsOffAtTheEdgeOfTheDrawing) {
  const tests::Font font(16);
  ui::Drawing drawing = unit_drawing();
  drawing.same_scale = true;
  drawing.shapes = {ui::ShortText{{0, 5}, "HHHHHHHHHHHH"}};
  const tests::Painted image(300, 100, [&](HDC dc) {
    win32::paint(dc, drawing, {0, 0, 300, 100}, font.get(), 1, inks());
  });
  // A square of 100 in the middle; the left half of the text is beyond it.
  EXPECT_GE(image.across(kPaper).first, 100);
  EXPECT_GT(image.across(kPaper).second, 120);
}

TEST(Painter, PaintsNothingWhereThereIsNoRoom) {
  const tests::Font font(16);
  const tests::Painted image(20, 20, [&](HDC dc) {
    win32::paint(dc, unit_drawing(), {5, 5, 5, 15}, font.get(), 1, inks());
    win32::paint(dc, unit_drawing(), {5, 5, 15, 2}, font.get(), 1, inks());
  });
  EXPECT_EQ(image.count(kUntouched), 20 * 20);
}

TEST(Painter, AsksForRoomForCharactersAndLines) {
  const tests::Font font(16);
  const tests::Font twice(32);
  ui::Drawing drawing = unit_drawing();
  drawing.characters = 30;
  drawing.lines = 10;
  const HDC dc = CreateCompatibleDC(nullptr);
  const SIZE room = win32::room_of(drawing, dc, font.get());
  EXPECT_NEAR(room.cy, 10 * 16 * 1.2, 25);
  EXPECT_EQ(room.cx % 30, 0);
  const SIZE large = win32::room_of(drawing, dc, twice.get());
  EXPECT_NEAR(large.cx, 2 * room.cx, 31);
  EXPECT_NEAR(large.cy, 2 * room.cy, 21);
  DeleteDC(dc);
}

}  // namespace
