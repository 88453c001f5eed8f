// Where a message, a kept window and one that grows come to stand on a display.

#include "ui/placing.h"

#include <gtest/gtest.h>

namespace {

constexpr ui::Place kDisplay{0, 0, 1000, 700};

std::optional<ui::Corner> beside(const ui::Place& field) {
  return ui::place_beside(field, {300, 100}, kDisplay, 10);
}

TEST(Placing, StandsRightOfTheFieldThenBelowThenAboveThenLeft) {
  EXPECT_EQ(beside({100, 200, 100, 20}), (ui::Corner{210, 200}));
  EXPECT_EQ(beside({600, 200, 300, 20}), (ui::Corner{600, 230}));
  EXPECT_EQ(beside({600, 650, 300, 20}), (ui::Corner{600, 540}));
  EXPECT_EQ(beside({600, 20, 300, 660}), (ui::Corner{290, 20}));
  EXPECT_FALSE(beside({10, 10, 980, 680}).has_value());
}

TEST(Placing, UsesTheDisplayToItsLastPoint) {
  EXPECT_EQ(beside({590, 200, 100, 20}), (ui::Corner{700, 200}));
  EXPECT_EQ(beside({591, 200, 100, 20}), (ui::Corner{591, 230}));
  // Right of a field at the lower edge the box is drawn up.
  EXPECT_EQ(beside({100, 680, 100, 20}), (ui::Corner{210, 600}));
  EXPECT_EQ(ui::place_beside({0, 0, 10, 10}, {1001, 100}, kDisplay, 10), std::nullopt);
  EXPECT_EQ(ui::place_beside({0, 0, 10, 10}, {100, 701}, kDisplay, 10), std::nullopt);
}

TEST(Placing, StaysOnADisplayLeftOfTheFirst) {
  constexpr ui::Place kLeft{-1920, -200, 1920, 1080};
  EXPECT_EQ(ui::place_beside({-400, -190, 390, 20}, {300, 100}, kLeft, 10),
            (ui::Corner{-400, -160}));
}

TEST(Placing, AKeptWindowBelongsWhereItsTitleBarCanBeReached) {
  EXPECT_EQ(ui::title_of({900, 50, 400, 300}), (ui::Corner{1100, 50}));
}

TEST(Placing, AKeptWindowStaysWhereItWasWhenItFits) {
  EXPECT_EQ(ui::fitted({100, 50, 600, 400}, kDisplay), (ui::Place{100, 50, 600, 400}));
  EXPECT_EQ(ui::fitted({400, 300, 600, 400}, kDisplay), (ui::Place{400, 300, 600, 400}));
}

TEST(Placing, AKeptWindowIsMovedAndMadeSmallerForASmallerDisplay) {
  EXPECT_EQ(ui::fitted({900, 650, 600, 400}, kDisplay), (ui::Place{400, 300, 600, 400}));
  EXPECT_EQ(ui::fitted({-50, -20, 600, 400}, kDisplay), (ui::Place{0, 0, 600, 400}));
  EXPECT_EQ(ui::fitted({100, 50, 1200, 800}, kDisplay), (ui::Place{0, 0, 1000, 700}));
}

TEST(Placing, AKeptWindowIsNeverSmallerThanItCanBe) {
  // Its upper left corner, where the title bar begins, is on the display then.
  EXPECT_EQ(ui::fitted({100, 50, 600, 400}, kDisplay, {1100, 750}), (ui::Place{0, 0, 1100, 750}));
}

TEST(Placing, WhatGrewIsDrawnBackOntoTheDisplay) {
  EXPECT_EQ(ui::drawn_back({100, 50, 600, 400}, kDisplay), (ui::Corner{100, 50}));
  EXPECT_EQ(ui::drawn_back({500, 400, 600, 400}, kDisplay), (ui::Corner{400, 300}));
  EXPECT_EQ(ui::drawn_back({500, 400, 1200, 800}, kDisplay), (ui::Corner{0, 0}));
  EXPECT_EQ(ui::drawn_back({-50, 400, 600, 400}, kDisplay), (ui::Corner{-50, 300}));
}

}  // namespace
