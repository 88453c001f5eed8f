// What a person sees: the focus is a frame that moves and fills nothing, and every text can be
// read, in a light and in a dark palette.

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QComboBox>
#include <QImage>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOptionComboBox>
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

// Every kind that takes the focus, with and without something chosen, and every mark.
class LookScreen : public ui::Screen {
 public:
  explicit LookScreen(ui::Services& services)
      : Screen(services, "CLookDlg", {text::id::kNoValueInput}) {
    for (ui::Control* const c : combos()) {
      c->items = {"Full load", "満載", "35", "36"};
      c->set("満載");
    }
    for (ui::Control* const c : std::vector<ui::Control*>{&none, &chosen, &list})
      c->items = {"Full load", "満載"};
    chosen.selected = 0;
    on.checked = true;
    locked.read_only = true;
    wrong.mark = "wrong";
    missing.mark = "missing";
  }
  std::vector<ui::Control*> combos() { return {&fixed, &editable, &locked, &wrong, &missing}; }
  ui::Edit away{*this, "away"};
  ui::Choice none{*this, "none", {}, {}};
  ui::Choice chosen{*this, "chosen", {}, {}};
  ui::Tick off{*this, "off", {text::id::kHelpLabel}};
  ui::Tick on{*this, "on", {text::id::kHelpLabel}};
  ui::DropDown fixed{*this, "fixed"};
  ui::Combo editable{*this, "editable"};
  ui::Combo locked{*this, "locked"};
  ui::Combo wrong{*this, "wrong"};
  ui::Combo missing{*this, "missing"};
  ui::List list{*this, "list"};
  ui::Button button{*this, "button", {text::id::kOkLabel}};
};

class Look : public testing::TestWithParam<bool> {
 protected:
  void SetUp() override {
    before_ = QApplication::palette();
    QApplication::setPalette(tests::palette_of(GetParam()));
    desktop::prepare_application();
    screen = std::make_unique<LookScreen>(world.services);
    screen->open();
    window = std::make_unique<desktop::ScreenWindow>(*screen, nullptr);
    tests::show(*window);
  }
  void TearDown() override {
    window.reset();
    QApplication::setPalette(before_);
    desktop::prepare_application();
  }
  void tab_to(const std::string& name) {
    for (std::size_t i = 0; i <= screen->controls().size() && screen->focused()->name != name; ++i)
      // Backwards: forwards it passes by what is locked.
      tests::press(Qt::Key_Tab, Qt::ShiftModifier);
    ASSERT_EQ(name, screen->focused()->name);
  }
  [[nodiscard]] QRect place_of(const QWidget* widget) const {
    return {widget->mapTo(window.get(), QPoint(0, 0)), widget->size()};
  }
  [[nodiscard]] QImage picture() const { return window->grab().toImage(); }
  [[nodiscard]] std::vector<QRect> places() const {
    std::vector<QRect> result;
    for (const auto& binding : window->bindings()) result.push_back(place_of(binding->widget()));
    return result;
  }

  tests::DesktopWorld world;
  std::unique_ptr<LookScreen> screen;
  std::unique_ptr<desktop::ScreenWindow> window;

 private:
  QPalette before_;
};

// Contrast of the letters with their paper: the colour that is most often there, and the one that
// stands out from it most.
double readability(const QImage& picture) {
  std::map<QRgb, int> colours;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) ++colours[picture.pixel(x, y)];
  }
  const auto paper = std::max_element(colours.begin(), colours.end(),
                                      [](auto& a, auto& b) { return a.second < b.second; });
  double best = 1;
  for (const auto& [colour, times] : colours)
    best = std::max(best, desktop::contrast(QColor(colour), QColor(paper->first)));
  return best;
}

TEST_P(Look, TheFocusIsAFrameThatMovesNothing) {
  for (const char* const name : {"none", "chosen", "off", "on", "fixed", "editable", "locked",
                                 "wrong", "missing", "list", "button"}) {
    tab_to("away");
    const std::vector<QRect> before = places();
    const QImage without = picture();
    tab_to(name);
    EXPECT_EQ(before, places()) << name;
    const QImage with = picture();
    const QRect place = place_of(QApplication::focusWidget());
    const QRect frame = place.adjusted(-1, -1, 1, 1);
    for (const QPoint corner :
         {frame.topLeft(), frame.topRight(), frame.bottomLeft(), frame.bottomRight(),
          QPoint(frame.center().x(), frame.top()), QPoint(frame.left(), frame.center().y())}) {
      EXPECT_GE(desktop::contrast(with.pixelColor(corner), without.pixelColor(corner)),
                desktop::kSeen)
          << name << " " << corner.x() << "," << corner.y();
    }
  }
}

TEST_P(Look, ALineThatHasOnlyTheFocusIsNotFilled) {
  for (const char* const name : {"none", "chosen", "off", "on"}) {
    tab_to("away");
    const QImage without = picture();
    tab_to(name);
    const QRect place = place_of(QApplication::focusWidget());
    EXPECT_EQ(without.copy(place), picture().copy(place)) << name;
  }
}

TEST_P(Look, TheFrameGoesWithWhatHasTheFocus) {
  tab_to("off");
  const QWidget* const off = window->binding("off")->widget();
  const auto* const frame = window->findChild<desktop::FocusFrame*>();
  ASSERT_NE(nullptr, frame);
  EXPECT_TRUE(place_of(frame).contains(place_of(off)));
  screen->none.items = {"Full load", "満載", "a third line that makes the choice higher, one below",
                        "another"};
  window->refresh();
  window->resize(window->size() * 2);
  QApplication::processEvents();
  EXPECT_TRUE(frame->isVisible());
  EXPECT_TRUE(place_of(frame).contains(place_of(off)));
  screen->off.visible = false;
  window->refresh();
  QApplication::processEvents();
  ASSERT_NE(off, QApplication::focusWidget());
  EXPECT_TRUE(place_of(frame).contains(place_of(QApplication::focusWidget())));
}

TEST_P(Look, DropDownsCanBeReadInEveryState) {
  for (const ui::Control* const control : screen->combos()) {
    for (const bool focused : {false, true}) {
      tab_to(focused ? control->name : "away");
      const auto* const box = qobject_cast<QComboBox*>(window->binding(*control)->widget());
      QStyleOptionComboBox option;
      option.initFrom(box);
      option.editable = box->isEditable();
      QRect text = box->style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                QStyle::SC_ComboBoxEditField, box);
      text.translate(place_of(box).topLeft());
      EXPECT_GE(readability(picture().copy(text.adjusted(3, 3, -3, -3))), desktop::kReadable)
          << control->name << (focused ? " with the focus" : "");
    }
  }
}

TEST_P(Look, LinesOfDropDownsAndListsCanBeReadChosenOrNot) {
  tab_to("list");
  tests::press(Qt::Key_Down);
  for (const char* const name : {"fixed", "editable", "locked", "wrong", "missing", "list"}) {
    QAbstractItemView* view = qobject_cast<QAbstractItemView*>(window->binding(name)->widget());
    auto* const box = qobject_cast<QComboBox*>(window->binding(name)->widget());
    if (box != nullptr) {
      tab_to(name);
      box->showPopup();
      QApplication::processEvents();
      view = box->view();
    }
    ASSERT_NE(nullptr, view) << name;
    const QImage lines = view->viewport()->grab().toImage();
    for (int row = 0; row < 2; ++row) {
      const QRect line = view->visualRect(view->model()->index(row, 0)).adjusted(2, 2, -2, -2);
      EXPECT_GE(readability(lines.copy(line)), desktop::kReadable) << name << " line " << row;
    }
    if (box != nullptr) box->hidePopup();
  }
}

// The field looks locked: not on the paper of one that is typed into.
TEST_P(Look, ALockedDropDownIsNotOnPaper) {
  const auto paper = [this](const char* name) {
    // The commonest colour of what lies left of the arrow; where the letters stand depends on the
    // fonts that are installed.
    const QImage field =
        picture().copy(place_of(window->binding(name)->widget()).adjusted(5, 5, -30, -5));
    std::map<QRgb, int> seen;
    for (int y = 0; y < field.height(); ++y) {
      for (int x = 0; x < field.width(); ++x) ++seen[field.pixel(x, y)];
    }
    const auto most = std::max_element(seen.begin(), seen.end(),
                                       [](auto& a, auto& b) { return a.second < b.second; });
    return most == seen.end() ? QColor() : QColor(most->first);
  };
  const QPalette palette = window->palette();
  EXPECT_EQ(palette.color(QPalette::Base), paper("editable"));
  constexpr double kTold = 1.25;  // contrast of two papers side by side that are told apart
  EXPECT_GE(desktop::contrast(paper("editable"), paper("locked")), kTold);
}

INSTANTIATE_TEST_SUITE_P(Palettes, Look, testing::Bool(),
                         [](const testing::TestParamInfo<bool>& dark) {
                           return dark.param ? "Dark" : "Light";
                         });

TEST(Palette, KeepsSelectedTextsThatCanBeReadAndMendsOthers) {
  QPalette good;
  good.setColor(QPalette::Highlight, Qt::black);
  good.setColor(QPalette::HighlightedText, Qt::white);
  EXPECT_EQ(good, desktop::readable(good));
  QPalette bad;
  bad.setColor(QPalette::Highlight, QColor(120, 190, 250));
  bad.setColor(QPalette::HighlightedText, Qt::white);
  const QPalette mended = desktop::readable(bad);
  EXPECT_GE(
      desktop::contrast(mended.color(QPalette::Highlight), mended.color(QPalette::HighlightedText)),
      desktop::kReadable);
  EXPECT_NEAR(21, desktop::contrast(Qt::black, Qt::white), 0.01);
  EXPECT_NEAR(1, desktop::contrast(Qt::red, Qt::red), 0.01);
}

}  // namespace
