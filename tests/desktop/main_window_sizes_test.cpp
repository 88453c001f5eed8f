// The main window at the sizes of real displays: nothing needs sideways scrolling, the report stays
// in view, and the field that has the focus is seen.

#include <gtest/gtest.h>

#include <QApplication>
#include <QScrollArea>
#include <QScrollBar>
#include <memory>
#include <set>
#include <string>

#include "desktop/screen_window.h"
#include "desktop_world.h"
#include "fakes/sample_observation.h"

namespace {

struct Size {
  const char* name;
  int width;
  int height;
  int percent;  // of the usual letters
};

constexpr Size kSizes[] = {
    {"laptop", 1366, 700, 100},        {"small_laptop", 1280, 652, 100},
    {"large_letters", 1366, 700, 150}, {"small_and_large", 1280, 652, 150},
    {"scaled", 911, 466, 100},         {"full_hd", 1920, 1010, 100},
};

class MainWindowSizes : public testing::TestWithParam<std::tuple<Size, text::Language>> {
 protected:
  void SetUp() override {
    const QFont usual = QApplication::font();
    before_ = usual;
    QFont letters = usual;
    letters.setPointSizeF(usual.pointSizeF() * size().percent / 100);
    QApplication::setFont(letters);
    world.fake.texts.language = std::get<1>(GetParam());
    screen = std::make_unique<fakes::SampleMainWindow>(world.services);
    screen->open();
    ASSERT_TRUE(fakes::enter_sample(*screen));
    window = std::make_unique<desktop::ScreenWindow>(*screen, nullptr);
    tests::show(*window);
    window->resize(size().width, size().height);
    QApplication::processEvents();
    area = window->findChild<QScrollArea*>();
  }
  void TearDown() override {
    window.reset();
    QApplication::setFont(before_);
  }
  [[nodiscard]] static Size size() { return std::get<0>(GetParam()); }
  [[nodiscard]] QRect in_window(const QWidget& widget) const {
    return {widget.mapTo(window.get(), QPoint(0, 0)), widget.size()};
  }
  [[nodiscard]] std::set<std::string> names_of_foot() const {
    std::set<std::string> names;
    const ui::Plan plan = ui::plan_of(*screen);
    const auto collect = [&](const auto& self, const ui::PlanNode& node) -> void {
      if (!node.name.empty()) names.insert(node.name);
      for (const ui::PlanNode& each : node.beside) self(self, each);
      for (const ui::PlanNode& child : node.children) self(self, child);
    };
    collect(collect, plan.foot);
    return names;
  }

  tests::DesktopWorld world;
  std::unique_ptr<fakes::SampleMainWindow> screen;
  std::unique_ptr<desktop::ScreenWindow> window;
  QScrollArea* area = nullptr;

 private:
  QFont before_;
};

TEST_P(MainWindowSizes, ScrollUpAndDownOnly) {
  EXPECT_EQ(window->size(), QSize(size().width, size().height));
  EXPECT_FALSE(area->horizontalScrollBar()->isVisible());
  EXPECT_LE(area->widget()->width(), area->viewport()->width());
  for (const auto& bound : window->bindings()) {
    const QWidget& widget = *bound->widget();
    if (!widget.isVisibleTo(window.get())) continue;
    EXPECT_GE(in_window(widget).left(), 0) << bound->control().name;
    EXPECT_LT(in_window(widget).right(), size().width) << bound->control().name;
    // As wide as what it shows needs.
    const int least =
        widget.minimumWidth() > 0 ? widget.minimumWidth() : widget.minimumSizeHint().width();
    EXPECT_GE(widget.width(), least) << bound->control().name;
  }
}

TEST_P(MainWindowSizes, KeepTheReportInView) {
  const std::set<std::string> names = names_of_foot();
  EXPECT_TRUE(names.contains("group_ciSibiDizi"));
  for (QScrollBar* const bar : {area->verticalScrollBar()}) {
    for (const int at : {bar->minimum(), bar->maximum()}) {
      bar->setValue(at);
      QApplication::processEvents();
      for (const std::string& name : names) {
        const QRect place = in_window(*window->binding(name)->widget());
        EXPECT_TRUE(window->rect().contains(place)) << name;
        EXPECT_GT(place.top(), in_window(*area).bottom()) << name;
      }
    }
  }
  // The form keeps at least half of the window.
  EXPECT_GE(area->height() * 2, window->height());
}

TEST_P(MainWindowSizes, ShowTheFieldThatHasTheFocus) {
  for (const Qt::KeyboardModifiers way : {Qt::NoModifier, Qt::ShiftModifier}) {
    for (std::size_t i = 0; i < screen->controls().size(); ++i) {
      tests::press(Qt::Key_Tab, way);
      const ui::Control& focused = *screen->focused();
      const QWidget& widget = *window->binding(focused)->widget();
      const bool flows = area->widget()->isAncestorOf(&widget);
      const QRect seen = flows ? in_window(*area->viewport()) : window->rect();
      const QRect place = in_window(widget);
      EXPECT_TRUE(seen.contains(place))
          << focused.name << " at " << place.left() << " " << place.top() << " to " << place.right()
          << " " << place.bottom() << "; seen are " << seen.left() << " " << seen.top() << " to "
          << seen.right() << " " << seen.bottom();
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Desktop, MainWindowSizes,
                         testing::Combine(testing::ValuesIn(kSizes),
                                          testing::Values(text::Language::kEnglish,
                                                          text::Language::kJapanese)),
                         [](const auto& row) {
                           const bool english = std::get<1>(row.param) == text::Language::kEnglish;
                           return std::string(std::get<0>(row.param).name) +
                                  (english ? "_en" : "_ja");
                         });

}  // namespace
