// Free, locked, disabled, incomplete and wrong fields are told apart, read, and seen by their
// frames, in a light and in a dark palette, also when the system changes from one to the other.

#include <gtest/gtest.h>

#include <QImage>
#include <QLineEdit>
#include <QStyle>
#include <algorithm>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "desktop/style.h"
#include "desktop_world.h"
#include "palettes.h"
#include "text/ids.h"

namespace {

// Every kind that is read, in every state that it can have.
class States : public ui::Screen {
 public:
  explicit States(ui::Services& services)
      : Screen(services, "CStatesDlg", {text::id::kNoValueInput}) {
    for (ui::Control* const c : fields()) c->set("1013.2");
    for (ui::Combo* const c : {&combo, &combo_locked, &combo_disabled}) {
      c->items = {"1013.2"};
      c->set("1013.2");
    }
    list.items = {"One line", "Another line"};
    list.selected = 0;
    memo.set("Text of several lines");
    choice.items = choice_disabled.items = {"North", "South"};
    choice.selected = choice_disabled.selected = 0;
    locked.read_only = combo_locked.read_only = true;
    for (ui::Control* const c : std::vector<ui::Control*>{
             &disabled, &combo_disabled, &button_disabled, &tick_disabled, &choice_disabled})
      c->enabled = false;
    missing.mark = ui::kMissingMark;
    wrong.mark = ui::kWrongMark;
    link.on_press = [] {};
  }
  std::vector<ui::Control*> fields() {
    return {&free, &locked, &disabled, &missing, &wrong, &value};
  }
  ui::Edit away{*this, "away"};
  ui::Edit free{*this, "free"};
  ui::Edit locked{*this, "locked"};
  ui::Edit disabled{*this, "disabled"};
  ui::Edit missing{*this, "missing"};
  ui::Edit wrong{*this, "wrong"};
  ui::ReadOnly value{*this, "value"};
  ui::Combo combo{*this, "combo"};
  ui::Combo combo_locked{*this, "combo_locked"};
  ui::Combo combo_disabled{*this, "combo_disabled"};
  ui::List list{*this, "list"};
  ui::Memo memo{*this, "memo"};
  ui::Choice choice{*this, "choice", {}, {}};
  ui::Choice choice_disabled{*this, "choice_disabled", {}, {}};
  ui::Tick tick{*this, "tick", {text::id::kHelpLabel}};
  ui::Tick tick_disabled{*this, "tick_disabled", {text::id::kHelpLabel}};
  ui::Button button{*this, "button", {text::id::kOkLabel}};
  ui::Button button_disabled{*this, "button_disabled", {text::id::kOkLabel}};
  ui::Label label{*this, "label", {text::id::kHelpLabel}};
  ui::Label link{*this, "link", {text::id::kHelpLabel}};
};

class StatesLook : public testing::TestWithParam<bool> {
 protected:
  void SetUp() override {
    before_ = QApplication::palette();
    QApplication::setPalette(tests::palette_of(GetParam()));
    screen = std::make_unique<States>(world.services);
    screen->open();
    window = std::make_unique<desktop::ScreenWindow>(*screen, nullptr);
    tests::show(*window);
  }
  void TearDown() override {
    window.reset();
    QApplication::setPalette(before_);
  }
  [[nodiscard]] QRect place_of(const char* name) const {
    const QWidget* const widget = window->binding(name)->widget();
    return {widget->mapTo(window.get(), QPoint(0, 0)), widget->size()};
  }
  [[nodiscard]] QImage picture_of(const char* name) const {
    return window->grab().toImage().copy(place_of(name));
  }
  [[nodiscard]] QColor window_colour() const { return window->palette().color(QPalette::Window); }

  tests::DesktopWorld world;
  std::unique_ptr<States> screen;
  std::unique_ptr<desktop::ScreenWindow> window;

 private:
  QPalette before_;
};

QColor commonest(const QImage& picture) {
  std::map<QRgb, int> times;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) ++times[picture.pixel(x, y)];
  }
  const auto most = std::max_element(times.begin(), times.end(),
                                     [](auto& a, auto& b) { return a.second < b.second; });
  return most == times.end() ? QColor() : QColor(most->first);
}

QColor paper_of(const QImage& field) {
  return commonest(field.copy(field.rect().adjusted(4, 4, -4, -4)));
}

// Of the letters with the paper around them; the frame does not count.
double readability(const QImage& all) {
  constexpr int kFrame = 4;
  const QImage picture = all.copy(all.rect().adjusted(kFrame, kFrame, -kFrame, -kFrame));
  const QColor paper = commonest(picture);
  double best = 1;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x)
      best = std::max(best, desktop::contrast(picture.pixelColor(x, y), paper));
  }
  return best;
}

constexpr const char* kFields[] = {"free",  "locked", "disabled",     "missing",       "wrong",
                                   "value", "combo",  "combo_locked", "combo_disabled"};

TEST_P(StatesLook, EveryTextCanBeReadInEveryState) {
  for (const char* const name : kFields)
    EXPECT_GE(readability(picture_of(name)), desktop::kReadable) << name;
  for (const char* const name : {"list", "memo", "choice", "choice_disabled", "tick",
                                 "tick_disabled", "button", "button_disabled", "label", "link"})
    EXPECT_GE(readability(picture_of(name)), desktop::kReadable) << name;
}

// How much of the left edge stands out from the window, 0 to 1.
double framed(const QImage& field, const QColor& around) {
  int seen = 0;
  for (int y = 3; y < field.height() - 3; ++y) {
    double best = 1;
    for (int x = 0; x < 2; ++x)
      best = std::max(best, desktop::contrast(field.pixelColor(x, y), around));
    if (best >= desktop::kSeen) ++seen;
  }
  return static_cast<double>(seen) / (field.height() - 6);
}

TEST_P(StatesLook, EveryFieldHasAFrameThatIsSeen) {
  for (const char* const name : {"free", "locked", "missing", "wrong", "value", "combo",
                                 "combo_locked", "list", "memo", "button"})
    EXPECT_GE(framed(picture_of(name), window_colour()), 0.9) << name;
}

TEST_P(StatesLook, TheFrameOfADisabledFieldIsDotted) {
  for (const char* const name : {"disabled", "combo_disabled", "button_disabled"}) {
    const double part = framed(picture_of(name), window_colour());
    EXPECT_GE(part, 0.3) << name;
    EXPECT_LE(part, 0.7) << name;
  }
}

TEST_P(StatesLook, FreeLockedDisabledIncompleteAndWrongFieldsAreToldApart) {
  constexpr double kTold = 1.25;  // of papers side by side
  const QColor free = paper_of(picture_of("free"));
  EXPECT_GE(desktop::contrast(free, paper_of(picture_of("locked"))), kTold);
  EXPECT_EQ(paper_of(picture_of("locked")), paper_of(picture_of("value")));
  EXPECT_EQ(paper_of(picture_of("disabled")), window_colour());
  EXPECT_NE(paper_of(picture_of("disabled")), paper_of(picture_of("locked")));
  std::vector<QRgb> papers;
  for (const char* const name : {"free", "locked", "disabled", "missing", "wrong"})
    papers.push_back(paper_of(picture_of(name)).rgb());
  std::sort(papers.begin(), papers.end());
  EXPECT_EQ(papers.end(), std::adjacent_find(papers.begin(), papers.end()));
}

TEST_P(StatesLook, FollowsTheSystemFromLightToDarkAndBackWhileItRuns) {
  const QImage before = window->grab().toImage();
  QApplication::setPalette(tests::palette_of(!GetParam()));
  QApplication::processEvents();
  for (const char* const name : kFields) {
    EXPECT_GE(readability(picture_of(name)), desktop::kReadable) << name;
    if (!screen->find(name)->enabled) continue;
    EXPECT_GE(framed(picture_of(name), window_colour()), 0.9) << name;
  }
  EXPECT_GE(readability(picture_of("link")), desktop::kReadable);
  EXPECT_GE(readability(picture_of("button_disabled")), desktop::kReadable);
  QApplication::setPalette(tests::palette_of(GetParam()));
  QApplication::processEvents();
  EXPECT_EQ(before, window->grab().toImage());
}

INSTANTIATE_TEST_SUITE_P(Palettes, StatesLook, testing::Bool(),
                         [](const testing::TestParamInfo<bool>& dark) {
                           return dark.param ? "Dark" : "Light";
                         });

TEST(ProgramIcon, IsThatOfEveryWindowInTheSizesThatAreAskedFor) {
  const QIcon icon = QApplication::windowIcon();
  for (const int size : {16, 24, 32, 48, 64})
    EXPECT_EQ(QSize(size, size), icon.actualSize(QSize(size, size)));
  // Drawn, not empty: sky, sea and barb.
  const QImage drawn = icon.pixmap(QSize(64, 64)).toImage();
  std::map<QRgb, int> colours;
  for (int y = 0; y < drawn.height(); ++y) {
    for (int x = 0; x < drawn.width(); ++x) ++colours[drawn.pixel(x, y)];
  }
  EXPECT_GT(colours.size(), 50U);
}

}  // namespace
