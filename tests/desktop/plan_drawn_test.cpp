// A window draws the plan of its screen: what stands where is read back from the widgets' places,
// for every screen in both languages.

#include <gtest/gtest.h>

#include <QApplication>
#include <QRadioButton>
#include <QScrollArea>
#include <map>
#include <set>

#include "desktop/screen_window.h"
#include "desktop_world.h"
#include "fakes/all_screens.h"

namespace {

using Type = ui::PlanNode::Type;
using ui::CaptionPlace;

class EveryPlanDrawn : public testing::TestWithParam<std::tuple<std::size_t, text::Language>> {
 protected:
  void SetUp() override {
    world.fake.texts.language = std::get<1>(GetParam());
    screen = fakes::all_screens()[std::get<0>(GetParam())].make(world.services);
    screen->open();
    window = std::make_unique<desktop::ScreenWindow>(*screen, nullptr);
    tests::show(*window);
    content = window->findChild<QScrollArea*>()->widget();
    place_in = content;
  }

  [[nodiscard]] QRect place_of(const QWidget* widget) const {
    if (widget == nullptr || widget->isHidden()) return {};
    EXPECT_TRUE(place_in->isAncestorOf(widget)) << widget->accessibleName().toStdString();
    return {widget->mapTo(place_in, QPoint(0, 0)), widget->size()};
  }

  // All of a control; nothing when it is hidden.
  QRect check_control(const ui::PlanNode& node) const {
    const desktop::Binding* const bound = window->binding(node.name);
    const QRect value = place_of(bound->widget());
    const QRect caption = place_of(bound->caption_label);
    const QRect unit = place_of(bound->unit_label);
    EXPECT_EQ(bound->caption_label != nullptr, node.caption != CaptionPlace::kNone) << node.name;
    EXPECT_EQ(bound->unit_label != nullptr, node.has_unit) << node.name;
    if (!value.isNull()) {
      EXPECT_TRUE(QRect(QPoint(0, 0), place_in->size()).contains(value)) << node.name;
      if (!unit.isNull()) {
        EXPECT_LT(value.right(), unit.left()) << node.name;
      }
      if (node.caption == CaptionPlace::kAbove) {
        EXPECT_LT(caption.bottom(), value.top()) << node.name;
      } else if (node.caption != CaptionPlace::kNone) {
        EXPECT_LT(caption.right(), value.left()) << node.name;
      }
    }
    return value.united(caption).united(unit);
  }

  // Each picture stands left of its line's button, row by row; lines without one stand above.
  QRect check_lines(const ui::PlanNode& node) const {
    const QWidget* const choice = window->binding(node.name)->widget();
    const QRect all = place_of(choice);
    const auto buttons = choice->findChildren<QRadioButton*>();
    std::set<int> pictured;
    QRect before;
    int column = 0;
    for (const ui::PlanNode& child : node.children) {
      const desktop::Binding* const picture = window->binding(child.name);
      const QRect drawn = check_control(child);
      EXPECT_TRUE(all.contains(drawn)) << child.name;
      const int line = picture->control().beside_line;
      pictured.insert(line);
      const QRect button = place_of(buttons.value(line));
      EXPECT_LT(drawn.right(), button.left()) << child.name;
      EXPECT_TRUE(drawn.top() <= button.center().y() && button.center().y() <= drawn.bottom())
          << child.name;
      if (column > 0) {
        EXPECT_LT(before.right(), drawn.left()) << child.name;
        EXPECT_EQ(before.top(), drawn.top()) << child.name;
      } else if (!before.isNull()) {
        EXPECT_LT(before.bottom(), drawn.top()) << child.name;
      }
      before = drawn.united(button);
      column = (column + 1) % node.columns;
    }
    const QRect first = place_of(window->binding(node.children.front().name)->widget());
    for (int line = 0; line < buttons.size(); ++line) {
      if (pictured.contains(line)) continue;
      EXPECT_LT(place_of(buttons[line]).bottom(), first.top()) << line;
    }
    return all;
  }

  // Where the node is drawn.
  QRect check(const ui::PlanNode& node) const {
    if (node.type == Type::kControl) return check_control(node);
    if (node.type == Type::kLines) return check_lines(node);
    if (node.type == Type::kFlow) return check_flow(node);
    const bool across =
        node.type == Type::kColumns || node.type == Type::kLine || node.type == Type::kButtons;
    QRect all;
    if (node.type == Type::kGroup && !node.name.empty())
      all = place_of(window->binding(node.name)->widget());
    if (!node.beside.empty()) {
      ui::PlanNode beside;
      beside.type = Type::kFlow;
      beside.children = node.beside;
      // Where there is no room they go on below the title.
      for (const ui::PlanNode& each : node.beside)
        EXPECT_FALSE(all.intersects(check(each))) << node.name << " " << each.name;
      all = all.united(check_flow(beside));
    }
    for (const ui::PlanNode& child : node.children) {
      const QRect one = check(child);
      if (!one.isNull() && !all.isNull()) {
        EXPECT_LT(across ? all.right() : all.bottom(), across ? one.left() : one.top())
            << child.name << " in " << screen->class_name();
      }
      all = all.united(one);
    }
    if (node.type == Type::kGrid) check_columns(node);
    return all;
  }

  // Each child stands right of the one before, or at the left below all that stands there already.
  QRect check_flow(const ui::PlanNode& node) const {
    QRect all;
    QRect before;
    for (const ui::PlanNode& child : node.children) {
      const QRect one = check(child);
      if (one.isNull()) continue;
      if (!before.isNull() && one.left() <= before.right()) {
        EXPECT_LT(all.bottom(), one.top()) << child.name;
        EXPECT_LE(one.left(), all.left() + one.width()) << child.name;
      } else if (!before.isNull()) {
        EXPECT_LT(one.top(), before.bottom()) << child.name;
      }
      before = one;
      all = all.united(one);
    }
    return all;
  }

  // The captions of a grid's column begin at the same place, and so do their values.
  void check_columns(const ui::PlanNode& grid) const {
    std::map<std::size_t, int> captions;
    std::map<std::size_t, int> values;
    for (const ui::PlanNode& line : grid.children) {
      if (line.type != Type::kLine) continue;
      for (std::size_t i = 0; i < line.children.size(); ++i) {
        if (line.children[i].caption != CaptionPlace::kColumn) continue;
        const desktop::Binding* const bound = window->binding(line.children[i].name);
        if (bound->widget()->isHidden()) continue;
        const int caption = place_of(bound->caption_label).left();
        const int value = place_of(bound->widget()).left();
        EXPECT_EQ(captions.emplace(i, caption).first->second, caption) << line.children[i].name;
        EXPECT_EQ(values.emplace(i, value).first->second, value) << line.children[i].name;
      }
    }
  }

  tests::DesktopWorld world;
  std::unique_ptr<ui::Screen> screen;
  std::unique_ptr<desktop::ScreenWindow> window;
  QWidget* content = nullptr;
  const QWidget* place_in = nullptr;  // the content, or the foot below it
};

TEST_P(EveryPlanDrawn, IsWhereThePlanSays) {
  const ui::Plan plan = ui::plan_of(*screen);
  const QRect all = check(plan.body);
  EXPECT_FALSE(all.isNull());
  if (plan.foot.children.empty()) return;
  const QScrollArea* const area = window->findChild<QScrollArea*>();
  place_in = window.get();
  const QRect foot = check(plan.foot);
  EXPECT_FALSE(foot.isNull());
  // In the window itself, below what scrolls.
  EXPECT_GT(foot.top(), area->geometry().bottom());
}

INSTANTIATE_TEST_SUITE_P(
    Desktop, EveryPlanDrawn,
    testing::Combine(testing::Range(std::size_t{0}, fakes::all_screens().size()),
                     testing::Values(text::Language::kEnglish, text::Language::kJapanese)),
    [](const auto& row) {
      const bool english = std::get<1>(row.param) == text::Language::kEnglish;
      return std::string(fakes::all_screens()[std::get<0>(row.param)].class_name) +
             (english ? "_en" : "_ja");
    });

}  // namespace
