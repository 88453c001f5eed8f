// The curves of the pressure tendency: each goes as the words of its characteristic say, and the
// dialog draws those that it offers.

#include "elements/tendency_curves.h"

#include <gtest/gtest.h>

#include <string>
#include <variant>
#include <vector>

#include "elements/CPresureTendencyDlg.h"
#include "fakes/fake_ports.h"
#include "ui/dump.h"

namespace {

// One stretch of a curve: "+" up, "-" down, "=" steady.
char way(double from, double to) {
  return to > from ? '+' : to < from ? '-' : '=';
}

struct Words {
  char characteristic;
  const char* ways;     ///< the stretches that the words name
  const char* results;  ///< what the pressure may be compared with three hours before
};
constexpr Words kWords[] = {
    {'0', "+-", "+="}, {'1', "+=", "+"}, {'2', "+", "+"}, {'3', "-+", "+"}, {'4', "=", "="},
    {'5', "-+", "-="}, {'6', "-=", "-"}, {'7', "-", "-"}, {'8', "+-", "-"},
};

TEST(TendencyCurves, GoAsTheWordsOfTheirCharacteristicSay) {
  for (const Words& words : kWords) {
    SCOPED_TRACE(words.characteristic);
    const auto curve = elements::tendency_curve(words.characteristic);
    ASSERT_GE(curve.size(), 2U);
    EXPECT_EQ(curve.front().x, 0);
    EXPECT_EQ(curve.back().x, 1);
    std::string ways;
    for (std::size_t i = 1; i < curve.size(); ++i) {
      EXPECT_GT(curve[i].x, curve[i - 1].x);
      const char next = way(curve[i - 1].y, curve[i].y);
      if (ways.empty() || ways.back() != next) ways += next;
    }
    for (const ui::Point point : curve) {
      EXPECT_GT(point.y, 0);
      EXPECT_LT(point.y, 1);
    }
    EXPECT_EQ(ways, words.ways);
    EXPECT_NE(std::string(words.results).find(way(curve.front().y, curve.back().y)),
              std::string::npos);
  }
}

TEST(TendencyCurves, AreThereForTheNineCharacteristicsAlone) {
  for (int c = 0; c < 256; ++c) {
    const bool is_one = c >= '0' && c <= '8';
    EXPECT_EQ(elements::tendency_curve(static_cast<char>(c)).empty(), !is_one) << c;
  }
}

struct Drawn {
  std::string figures;  ///< in order
  std::string thick;    ///< the figures of those that stand out
};

// What is on the picture, cell by cell: a figure and below it the curve of that figure.
Drawn drawn_on(const ui::Picture& picture) {
  Drawn drawn;
  const ui::Drawing& drawing = *picture.drawing;
  for (std::size_t i = 0; i + 1 < drawing.shapes.size(); i += 2) {
    const auto& figure = std::get<ui::ShortText>(drawing.shapes[i]);
    const auto& line = std::get<ui::Polyline>(drawing.shapes[i + 1]);
    const auto curve = elements::tendency_curve(figure.text.front());
    drawn.figures += figure.text;
    if (line.thick) drawn.thick += figure.text;
    EXPECT_EQ(line.thick, line.ink == ui::Ink::kMark);
    EXPECT_EQ(line.ink, figure.ink);
    const double left = static_cast<double>(i / 2);
    EXPECT_EQ(line.points.size(), curve.size());
    for (std::size_t p = 0; p < line.points.size() && p < curve.size(); ++p) {
      EXPECT_EQ(line.points[p].y, curve[p].y);
      EXPECT_GT(line.points[p].x, left);
      EXPECT_LT(line.points[p].x, left + 1);
      EXPECT_LT(line.points[p].y, figure.at.y);
    }
    EXPECT_TRUE(ui::is_inside(drawing, figure.at));
    EXPECT_EQ(elements::tendency_cell(figure.at), static_cast<int>(i / 2));
  }
  return drawn;
}

struct Dialog {
  explicit Dialog(const char* a = "") : screen(world.services, a, "") { screen.open(); }
  fakes::World world;
  CPresureTendencyDlg screen;
};

TEST(TendencyCurves, OfTheLinesThatAreOfferedAreDrawnAndTheChosenOneStandsOut) {
  const std::vector<std::string> offered = {"0123", "045", "5678", ""};
  for (int kind = 0; kind < 4; ++kind) {
    const std::string& figures = offered[static_cast<std::size_t>(kind)];
    Dialog dialog;
    dialog.screen.choose(dialog.screen.kind, kind);
    for (int line = 0; line < static_cast<int>(figures.size()); ++line) {
      dialog.screen.choose(dialog.screen.characteristic, line);
      const Drawn drawn = drawn_on(dialog.screen.curves);
      EXPECT_EQ(drawn.figures, figures);
      EXPECT_EQ(drawn.thick, figures.substr(static_cast<std::size_t>(line), 1));
      EXPECT_EQ(drawn.thick, dialog.screen.code.content);
    }
    EXPECT_EQ(drawn_on(dialog.screen.curves).figures, figures);
  }
}

TEST(TendencyCurves, StandOutFromTheBeginningAndFollowTheKeys) {
  Dialog opened("7");
  EXPECT_EQ(drawn_on(opened.screen.curves).thick, "7");
  opened.screen.move_focus(opened.screen.characteristic);
  opened.screen.find_line("6");
  EXPECT_EQ(drawn_on(opened.screen.curves).thick, "6");
  opened.screen.key(ui::Key::kDown);
  opened.screen.key(ui::Key::kDown);
  EXPECT_EQ(drawn_on(opened.screen.curves).thick, "8");
  // Not entered yet: nothing is chosen, nothing stands out.
  EXPECT_EQ(drawn_on(Dialog("").screen.curves).thick, "");
}

TEST(TendencyCurves, ChooseTheirLineByAClick) {
  Dialog dialog("2");
  for (int cell = 0; cell < 4; ++cell) {
    dialog.screen.move_focus(dialog.screen.kind);
    dialog.screen.press_at(dialog.screen.curves, {cell + 0.5, 0.2});
    EXPECT_EQ(dialog.screen.characteristic.selected, cell);
    EXPECT_EQ(dialog.screen.focused(), &dialog.screen.characteristic);
    EXPECT_EQ(dialog.screen.code.content, std::string(1, static_cast<char>('0' + cell)));
    EXPECT_EQ(drawn_on(dialog.screen.curves).thick, dialog.screen.code.content);
  }
  // Beside the curves of a kind that has three, and on the edge.
  dialog.screen.choose(dialog.screen.kind, 1);
  dialog.screen.choose(dialog.screen.characteristic, 2);
  for (const double x : {3.5, 4.0}) {
    dialog.screen.press_at(dialog.screen.curves, {x, 0.5});
    EXPECT_EQ(dialog.screen.code.content, "5");
  }
  // An unknown tendency has its line and no curve.
  dialog.screen.choose(dialog.screen.kind, 3);
  dialog.screen.press_at(dialog.screen.curves, {0.5, 0.5});
  dialog.screen.press(dialog.screen.ok);
  EXPECT_EQ(dialog.screen.a(), "/");
}

TEST(TendencyCurves, AreToldToAScript) {
  Dialog dialog("4");
  const auto view = ui::view_of(dialog.screen, dialog.screen.curves);
  EXPECT_EQ(view.caption, "Curves of the air pressure");
  EXPECT_EQ(view.drawing.front(), "curve 0 to 4, pressure 0 to 1.5");
  EXPECT_EQ(view.drawing[4], "thick line mark (1.15 0.5) (1.5 0.5) (1.85 0.5)");
  EXPECT_EQ(view.drawing.size(), 7U);
}

}  // namespace
