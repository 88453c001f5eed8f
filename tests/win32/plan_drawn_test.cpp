// A window draws the plan of its screen: what stands where is read back from the controls' places, for
// every screen in both languages.

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <set>
#include <string>
#include <tuple>
#include <vector>

#include "fakes/all_screens.h"
#include "real_world.h"
#include "win32/utf.h"

namespace {

using Type = ui::PlanNode::Type;
using ui::CaptionPlace;

bool is_null(const RECT& rect) {
  return rect.right <= rect.left || rect.bottom <= rect.top;
}

RECT united(const RECT& a, const RECT& b) {
  RECT all{};
  UnionRect(&all, &a, &b);
  return all;
}

bool intersect(const RECT& a, const RECT& b) {
  RECT both{};
  return IntersectRect(&both, &a, &b) != FALSE;
}

bool contains(const RECT& room, const RECT& in) {
  return in.left >= room.left && in.top >= room.top && in.right <= room.right &&
         in.bottom <= room.bottom;
}

std::wstring kind_of(HWND window) {
  wchar_t kind[32]{};
  GetClassNameW(window, kind, 31);
  return kind;
}

class EveryPlanDrawn : public testing::TestWithParam<std::tuple<std::size_t, text::Language>> {
 protected:
  void SetUp() override {
    world.fake.texts.language = std::get<1>(GetParam());
    screen = fakes::all_screens()[std::get<0>(GetParam())].make(world.services);
    shown = std::make_unique<tests::OnDisplay>(*screen);
    part = shown->window.content();
  }

  [[nodiscard]] win32::Widget* widget(const std::string& name) const {
    return shown->window.widget(name);
  }

  [[nodiscard]] RECT place_of(HWND window) const {
    if (window == nullptr || !win32::is_shown(window)) return {};
    EXPECT_EQ(GetParent(window), part) << win32::narrow(win32::text_on(window));
    RECT rect{};
    GetWindowRect(window, &rect);
    MapWindowPoints(HWND_DESKTOP, part, reinterpret_cast<POINT*>(&rect), 2);
    return rect;
  }

  [[nodiscard]] RECT room() const {
    RECT rect{};
    GetClientRect(part, &rect);
    return rect;
  }

  // All of a control; nothing when it is hidden.
  RECT check_control(const ui::PlanNode& node) const {
    const win32::Widget* const found = widget(node.name);
    const RECT value = found->stands();
    const RECT caption = place_of(found->caption_label);
    const RECT unit = place_of(found->unit_label);
    EXPECT_EQ(found->caption_label != nullptr, node.caption != CaptionPlace::kNone) << node.name;
    EXPECT_EQ(found->unit_label != nullptr, node.has_unit) << node.name;
    if (!is_null(value)) {
      EXPECT_TRUE(contains(room(), value)) << node.name;
      if (!is_null(unit)) {
        EXPECT_LE(value.right, unit.left) << node.name;
        EXPECT_TRUE(contains(room(), unit)) << node.name;
      }
      if (node.caption == CaptionPlace::kAbove) {
        EXPECT_LE(caption.bottom, value.top) << node.name;
      } else if (node.caption != CaptionPlace::kNone) {
        EXPECT_LE(caption.right, value.left) << node.name;
      }
    }
    return united(united(value, caption), unit);
  }

  // Each picture stands left of its line's button, row by row; lines without one stand above.
  RECT check_lines(const ui::PlanNode& node) const {
    const win32::Widget* const choice = widget(node.name);
    std::vector<RECT> buttons;
    for (const HWND window : choice->windows())
      if (kind_of(window) == L"Button") buttons.push_back(place_of(window));
    RECT all = choice->stands();
    std::set<int> pictured;
    RECT before{};
    RECT first{};
    int column = 0;
    for (const ui::PlanNode& child : node.children) {
      const RECT drawn = check_control(child);
      all = united(all, drawn);
      if (pictured.empty()) first = drawn;
      const int line = widget(child.name)->control().beside_line;
      pictured.insert(line);
      const RECT button = buttons.at(static_cast<std::size_t>(line));
      const LONG middle = (button.top + button.bottom) / 2;
      EXPECT_LE(drawn.right, button.left) << child.name;
      EXPECT_TRUE(drawn.top <= middle && middle <= drawn.bottom) << child.name;
      if (column > 0) {
        EXPECT_LE(before.right, drawn.left) << child.name;
        EXPECT_EQ(before.top, drawn.top) << child.name;
      } else if (!is_null(before)) {
        EXPECT_LE(before.bottom, drawn.top) << child.name;
      }
      before = united(drawn, button);
      column = (column + 1) % node.columns;
    }
    for (std::size_t line = 0; line < buttons.size(); ++line) {
      if (pictured.contains(static_cast<int>(line))) continue;
      EXPECT_LE(buttons[line].bottom, first.top) << line;
    }
    return all;
  }

  // Where the node is drawn.
  RECT check(const ui::PlanNode& node) const {
    if (node.type == Type::kControl) return check_control(node);
    if (node.type == Type::kLines) return check_lines(node);
    if (node.type == Type::kFlow) return check_flow(node);
    const bool across =
        node.type == Type::kColumns || node.type == Type::kLine || node.type == Type::kButtons;
    RECT all{};
    if (node.type == Type::kGroup && !node.name.empty()) all = widget(node.name)->stands();
    if (!node.beside.empty()) {
      ui::PlanNode beside;
      beside.type = Type::kFlow;
      beside.children = node.beside;
      // Where there is no room they go on below the title.
      for (const ui::PlanNode& each : node.beside)
        EXPECT_FALSE(intersect(all, check(each))) << node.name << " " << each.name;
      all = united(all, check_flow(beside));
    }
    for (const ui::PlanNode& child : node.children) {
      const RECT one = check(child);
      if (!is_null(one) && !is_null(all)) {
        EXPECT_LE(across ? all.right : all.bottom, across ? one.left : one.top)
            << child.name << " in " << screen->class_name();
      }
      all = united(all, one);
    }
    if (node.type == Type::kGrid) check_columns(node);
    return all;
  }

  // Each child stands right of the one before, or at the left below all that stands there already.
  RECT check_flow(const ui::PlanNode& node) const {
    RECT all{};
    RECT before{};
    for (const ui::PlanNode& child : node.children) {
      const RECT one = check(child);
      if (is_null(one)) continue;
      if (!is_null(before) && one.left < before.right) {
        EXPECT_LE(all.bottom, one.top) << child.name;
        EXPECT_LE(one.left, all.left + (one.right - one.left)) << child.name;
      } else if (!is_null(before)) {
        EXPECT_LT(one.top, before.bottom) << child.name;
      }
      before = one;
      all = united(all, one);
    }
    return all;
  }

  // The captions of a grid's column begin at the same place, and so do their values.
  void check_columns(const ui::PlanNode& grid) const {
    std::map<std::size_t, LONG> captions;
    std::map<std::size_t, LONG> values;
    for (const ui::PlanNode& line : grid.children) {
      if (line.type != Type::kLine) continue;
      for (std::size_t i = 0; i < line.children.size(); ++i) {
        if (line.children[i].caption != CaptionPlace::kColumn) continue;
        const win32::Widget* const found = widget(line.children[i].name);
        if (!found->control().visible) continue;
        const LONG caption = place_of(found->caption_label).left;
        const LONG value = found->stands().left;
        EXPECT_EQ(captions.emplace(i, caption).first->second, caption) << line.children[i].name;
        EXPECT_EQ(values.emplace(i, value).first->second, value) << line.children[i].name;
      }
    }
  }

  // What a person sees on this part of the window, each with its place.
  void expect_apart(HWND on) const {
    std::vector<std::pair<HWND, RECT>> seen;
    for (HWND child = GetWindow(on, GW_CHILD); child != nullptr;
         child = GetWindow(child, GW_HWNDNEXT)) {
      if (!win32::is_shown(child)) continue;
      RECT rect{};
      GetWindowRect(child, &rect);
      for (const auto& [other, place] : seen)
        EXPECT_FALSE(intersect(place, rect)) << win32::narrow(win32::text_on(other)) << " and "
                                             << win32::narrow(win32::text_on(child));
      seen.emplace_back(child, rect);
    }
  }

  tests::RealWorld world;
  std::unique_ptr<ui::Screen> screen;
  std::unique_ptr<tests::OnDisplay> shown;
  HWND part = nullptr;  // the content, or the foot below it
};

TEST_P(EveryPlanDrawn, IsWhereThePlanSays) {
  const ui::Plan plan = ui::plan_of(*screen);
  EXPECT_FALSE(is_null(check(plan.body)));
  if (plan.foot.children.empty()) return;
  part = shown->window.foot();
  EXPECT_FALSE(is_null(check(plan.foot)));
  // Below what scrolls.
  RECT foot{};
  GetWindowRect(part, &foot);
  RECT body{};
  GetWindowRect(GetParent(shown->window.content()), &body);
  EXPECT_GE(foot.top, body.bottom);
}

TEST_P(EveryPlanDrawn, LaysNothingOnSomethingElse) {
  expect_apart(shown->window.content());
  if (shown->window.foot() != nullptr) expect_apart(shown->window.foot());
}

INSTANTIATE_TEST_SUITE_P(
    Win32, EveryPlanDrawn,
    testing::Combine(testing::Range(std::size_t{0}, fakes::all_screens().size()),
                     testing::Values(text::Language::kEnglish, text::Language::kJapanese)),
    [](const auto& row) {
      const bool english = std::get<1>(row.param) == text::Language::kEnglish;
      return std::string(fakes::all_screens()[std::get<0>(row.param)].class_name) +
             (english ? "_en" : "_ja");
    });

}  // namespace
