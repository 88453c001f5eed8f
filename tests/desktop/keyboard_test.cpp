// Choices, lists, drop-downs and trees by real keys on real widgets.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOptionViewItem>
#include <QTreeWidget>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "codetables/CCodeTableDlg.h"
#include "desktop_world.h"
#include "elements/CPresureTendencyDlg.h"
#include "fakes/all_screens.h"
#include "mainwindow/CVelmaranDlg.h"
#include "text/ids.h"
#include "widget_views.h"

namespace {

using tests::press;
using tests::Shown;
using tests::type;

Struct_Weather empty_record() {
  return {ShipFixedData(), KeyObservationItems()};
}

// One control of each kind with lines, none chosen; every change is counted.
class LinesScreen : public ui::Screen {
 public:
  explicit LinesScreen(ui::Services& services)
      : Screen(services, "CLinesDlg", {text::id::kNoValueInput}) {
    for (ui::Control* const c : lines()) {
      c->items = {"    0    falling", "    1    steady", "    2    rising", "    3    unknown"};
      if (c->kind == ui::Kind::kTree) {
        for (const std::string& text : c->items) c->rows.push_back({text, text, 0, false, false});
        c->items.clear();
      }
      c->on_change = [this] { ++changes; };
    }
  }
  std::vector<ui::Control*> lines() { return {&choice, &list, &drop_down, &combo, &tree}; }
  ui::Edit before{*this, "before"};
  ui::Choice choice{*this, "choice", {}, {}};
  ui::List list{*this, "list"};
  ui::DropDown drop_down{*this, "drop_down"};
  ui::Combo combo{*this, "combo"};
  ui::Tree tree{*this, "tree"};
  ui::Edit after{*this, "after"};
  ui::Button ok{*this, "ok", {text::id::kOkLabel}, ui::Role::kAccept};
  int changes = 0;
};

struct KeyRow {
  const char* what;
  std::vector<Qt::Key> keys;
  int line;
  int changes;
};

class Lines : public testing::TestWithParam<const char*> {
 protected:
  void expect(const std::vector<KeyRow>& rows) {
    for (const KeyRow& row : rows) {
      Shown<LinesScreen> s;
      s.tab_to(GetParam());
      EXPECT_EQ(-1, s.screen->find(GetParam())->selected);
      for (const Qt::Key key : row.keys) press(key);
      EXPECT_EQ(row.line, s.screen->find(GetParam())->selected) << row.what;
      EXPECT_EQ(row.line, s.line(GetParam())) << row.what;
      EXPECT_EQ(row.changes, s.screen->changes) << row.what;
      ASSERT_NE(nullptr, s.screen->focused());
      EXPECT_EQ(GetParam(), s.screen->focused()->name) << row.what;
      EXPECT_TRUE(s.window->binding(GetParam())->owns(QApplication::focusWidget())) << row.what;
    }
  }
  [[nodiscard]] bool is(std::string_view name) const { return name == GetParam(); }
};

TEST_P(Lines, AreChosenWithUpAndDownAndStopAtTheEnds) {
  expect({{"the first Down", {Qt::Key_Down}, 0, 1},
          {"the first Up", {Qt::Key_Up}, 3, 1},
          {"Down three times", {Qt::Key_Down, Qt::Key_Down, Qt::Key_Down}, 2, 3},
          {"Down past the end", {Qt::Key_Up, Qt::Key_Down, Qt::Key_Down}, 3, 1},
          {"Up past the beginning", {Qt::Key_Down, Qt::Key_Up, Qt::Key_Up}, 0, 1},
          {"there and back", {Qt::Key_Down, Qt::Key_Down, Qt::Key_Up}, 0, 3}});
}

// In a combo they move in the text.
TEST_P(Lines, AreChosenWithHomeAndEnd) {
  if (is("combo")) {
    expect({{"Home", {Qt::Key_Home}, -1, 0}, {"End", {Qt::Key_End}, -1, 0}});
    return;
  }
  expect({{"Home", {Qt::Key_Home}, 0, 1},
          {"End", {Qt::Key_End}, 3, 1},
          {"End and Home", {Qt::Key_End, Qt::Key_Home}, 0, 2},
          {"Home twice", {Qt::Key_Home, Qt::Key_Home}, 0, 1}});
}

// In a tree they open and close rows, in a combo they move in the text.
TEST_P(Lines, AreChosenWithLeftAndRightWhereThereAreOnlyLines) {
  if (is("combo") || is("tree")) {
    expect({{"Right", {Qt::Key_Down, Qt::Key_Right}, 0, 1},
            {"Left", {Qt::Key_Up, Qt::Key_Left}, 3, 1}});
    return;
  }
  expect({{"the first Right", {Qt::Key_Right}, 0, 1},
          {"the first Left", {Qt::Key_Left}, 3, 1},
          {"Right and on", {Qt::Key_Right, Qt::Key_Right}, 1, 2},
          {"Left and on", {Qt::Key_Left, Qt::Key_Left}, 2, 2},
          {"Right past the end", {Qt::Key_Left, Qt::Key_Right}, 3, 1}});
}

TEST_P(Lines, AreChosenByTheFirstFigureOfTheirTextWhateverBlanksStandBeforeIt) {
  if (is("combo") || is("tree")) return;
  expect({{"0", {Qt::Key_0}, 0, 1},
          {"2", {Qt::Key_2}, 2, 1},
          {"2, then 1", {Qt::Key_2, Qt::Key_1}, 1, 2},
          {"2 twice", {Qt::Key_2, Qt::Key_2}, 2, 1},
          {"3 and Up", {Qt::Key_3, Qt::Key_Up}, 2, 2},
          {"a figure of no line", {Qt::Key_1, Qt::Key_7}, 1, 1}});
}

TEST_P(Lines, AreNotChosenByPassing) {
  Shown<LinesScreen> s;
  s.tab_to("after");
  for (int i = 0; i < 6; ++i)
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab, Qt::ShiftModifier);
  QApplication::processEvents();
  EXPECT_EQ(0, s.screen->changes);
  EXPECT_EQ(-1, s.screen->find(GetParam())->selected);
  EXPECT_EQ(-1, s.line(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Kinds, Lines,
                         testing::Values("choice", "list", "drop_down", "combo", "tree"),
                         [](const testing::TestParamInfo<const char*>& kind) {
                           return std::string(kind.param);
                         });

TEST(LineKeys, StepOverDisabledLines) {
  struct Row {
    std::vector<Qt::Key> keys;
    int line;
  };
  for (const Row& row :
       {Row{{Qt::Key_Down}, 1}, Row{{Qt::Key_Up}, 2}, Row{{Qt::Key_Home}, 1}, Row{{Qt::Key_End}, 2},
        Row{{Qt::Key_Down, Qt::Key_Up}, 1}, Row{{Qt::Key_0}, -1}, Row{{Qt::Key_Space}, 1}}) {
    Shown<LinesScreen> s;
    s.screen->choice.item_disabled = {true, false, false, true};
    s.window->refresh();
    s.tab_to("choice");
    for (const Qt::Key key : row.keys) press(key);
    EXPECT_EQ(row.line, s.screen->choice.selected) << row.keys.front();
    EXPECT_EQ(row.line, s.line("choice"));
  }
  Shown<LinesScreen> s;
  s.screen->choice.item_disabled = {false, true, true, false};
  s.window->refresh();
  s.tab_to("choice");
  press(Qt::Key_Down);
  press(Qt::Key_Down);
  EXPECT_EQ(3, s.screen->choice.selected);
}

TEST(LineKeys, TickTheChosenLineOfAListWithBoxes) {
  Shown<LinesScreen> s;
  s.screen->list.item_ticked = {true, true, true, true};
  s.window->refresh();
  s.tab_to("list");
  const auto ticked = [&s] { return s.window->binding("list")->shown().ticked; };
  const std::vector<bool> all(4, true);
  EXPECT_EQ(all, ticked());
  press(Qt::Key_Space);  // no line is chosen
  EXPECT_EQ(all, ticked());
  press(Qt::Key_Down);
  press(Qt::Key_Down);
  press(Qt::Key_Space);
  EXPECT_EQ((std::vector{true, false, true, true}), s.screen->list.item_ticked);
  EXPECT_EQ(s.screen->list.item_ticked, ticked());
  EXPECT_EQ(1, s.line("list"));
  press(Qt::Key_Space);
  EXPECT_EQ(all, ticked());
  s.screen->list.item_ticked.assign(4, false);
  s.window->refresh();
  EXPECT_EQ(std::vector<bool>(4, false), ticked());
}

TEST(LineKeys, LeaveABoxToTheMouse) {
  Shown<LinesScreen> s;
  s.screen->list.item_ticked = {true, true, true, true};
  s.window->refresh();
  auto* const list = qobject_cast<QListWidget*>(s.window->binding("list")->widget());
  QStyleOptionViewItem line;
  line.initFrom(list);
  line.rect = list->visualItemRect(list->item(2));
  line.features = QStyleOptionViewItem::HasCheckIndicator;
  const QRect box =
      list->style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &line, list);
  s.screen->changes = 0;
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, box.center());
  EXPECT_EQ((std::vector{true, true, false, true}), s.screen->list.item_ticked);
  EXPECT_EQ(s.screen->list.item_ticked, s.window->binding("list")->shown().ticked);
}

TEST(LineKeys, GoThroughAListByPages) {
  Shown<LinesScreen> s;
  s.screen->list.items.clear();
  for (int i = 0; i < 10000; ++i) s.screen->list.items.push_back(std::to_string(10000 + i));
  s.window->refresh();
  s.tab_to("list");
  press(Qt::Key_Down);
  press(Qt::Key_PageDown);
  press(Qt::Key_PageDown);
  EXPECT_EQ(20, s.line("list"));
  press(Qt::Key_PageUp);
  EXPECT_EQ(10, s.line("list"));
  press(Qt::Key_End);
  EXPECT_EQ(9999, s.line("list"));
  type("150");
  EXPECT_EQ(5000, s.line("list"));
}

TEST(LineKeys, TurnThePagesOfAMemo) {
  class CPagesDlg : public ui::Screen {
   public:
    explicit CPagesDlg(ui::Services& services) : Screen(services, "CPagesDlg", {}) {
      page.content = "first page";
      page.on_page = [this](bool forward) { page.content = forward ? "next" : "before"; };
    }
    ui::Memo page{*this, "page"};
    ui::Button ok{*this, "ok", {text::id::kOkLabel}, ui::Role::kAccept};
  };
  Shown<CPagesDlg> s;
  const auto* const memo = qobject_cast<QPlainTextEdit*>(s.window->binding("page")->widget());
  press(Qt::Key_PageDown);
  EXPECT_EQ("next", memo->toPlainText());
  press(Qt::Key_PageUp);
  EXPECT_EQ("before", memo->toPlainText());
}

TEST(LineKeys, TakeNothingFromAFieldThatIsTypedInto) {
  Shown<LinesScreen> s;
  type("12");
  press(Qt::Key_Home);
  type("0");
  press(Qt::Key_End);
  press(Qt::Key_Left);
  type("/");
  EXPECT_EQ("01/2", s.screen->before.content);
  s.tab_to("combo");
  type("31");
  press(Qt::Key_Left);
  type("0");
  EXPECT_EQ("301", s.screen->combo.content);
}

TEST(LineKeys, AreTheWidgetsWithControlOrAlt) {
  Shown<LinesScreen> s;
  s.tab_to("choice");
  press(Qt::Key_Down, Qt::ControlModifier);
  press(Qt::Key_1, Qt::ControlModifier);
  press(Qt::Key_1, Qt::AltModifier);
  EXPECT_EQ(-1, s.screen->choice.selected);
}

// The officer's way: from an empty visibility to a code without looking at the mouse.
struct VisibilityRow {
  std::vector<Qt::Key> keys;
  const char* code;
};

TEST(Visibility, IsChosenByKeysAndTakenByEnter) {
  using enum Qt::Key;
  for (const VisibilityRow& row : {
           VisibilityRow{{Key_Down, Key_Down, Key_Down}, "98"}, VisibilityRow{{Key_Up}, "90"},
           VisibilityRow{{Key_End, Key_Home}, "//"}, VisibilityRow{{Key_9, Key_7}, "97"},
           VisibilityRow{{Key_9, Key_0}, "90"}, VisibilityRow{{Key_Slash}, "//"},
           VisibilityRow{{Key_Slash, Key_Slash}, "//"},
           VisibilityRow{{Key_Slash, Key_9, Key_5}, "95"},
           VisibilityRow{{Key_9, Key_7, Key_9, Key_3}, "93"}, VisibilityRow{{Key_9, Key_9}, "99"},
           VisibilityRow{{Key_9, Key_9, Key_8}, "99"},  // "8" begins no code
           VisibilityRow{{Key_9}, ""},                  // half a code is no code
           VisibilityRow{{Key_7}, ""}, VisibilityRow{{Key_9, Key_5, Key_9}, "95"},
           VisibilityRow{{Key_9, Key_5, Key_Up}, "96"},
           VisibilityRow{{Key_9, Key_Down, Key_7}, "//"},            // another key: forgotten
           VisibilityRow{{Key_9, Key_Tab, Key_Backtab, Key_7}, ""},  // another field: forgotten
       }) {
    Shown<CCodeTableDlg> s(codetables::kVisibility, empty_record());
    std::string keys;
    for (const Qt::Key key : row.keys) {
      if (key == Key_Backtab) {
        press(Key_Tab, Qt::ShiftModifier);
      } else {
        press(key);
      }
      keys += std::to_string(key) + " ";
    }
    press(Qt::Key_Return);
    EXPECT_EQ(ui::kOk, s.screen->result()) << keys;
    Struct_Weather record = empty_record();
    s.screen->put_into(record);
    EXPECT_EQ(row.code, record.VV) << keys;
  }
}

TEST(Visibility, ShowsWhatIsChosenAndTheFocusOnIt) {
  Shown<CCodeTableDlg> s(codetables::kVisibility, empty_record());
  type("97");
  const auto* const line = qobject_cast<QRadioButton*>(QApplication::focusWidget());
  ASSERT_NE(nullptr, line);
  EXPECT_TRUE(line->isChecked());
  EXPECT_EQ(s.screen->find("choice")->items[3], line->text().toStdString());
  press(Qt::Key_Down);
  EXPECT_EQ(4, s.line("choice"));
}

TEST(Movement, IsChosenByTheCodesFigure) {
  Shown<CCodeTableDlg> s(codetables::kMovement, empty_record());
  s.tab_to("course");
  type("7");
  s.tab_to("speed");
  type("/");
  EXPECT_EQ(7, s.line("course"));
  EXPECT_EQ(10, s.line("speed"));
}

TEST(Tendency, IsChosenByTheFigureInFrontOfTheLine) {
  Shown<CPresureTendencyDlg> s("", "");
  s.tab_to("kind");
  press(Qt::Key_Home);
  s.tab_to("characteristic");
  type("3");
  EXPECT_EQ("3", s.screen->code.content);
  type("1");
  EXPECT_EQ("1", s.screen->code.content);
}

}  // namespace
