// Ice accretion and sea ice by real keys on real widgets.

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QMessageBox>
#include <QRadioButton>
#include <QScrollArea>
#include <QTimer>
#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "codetables/CCodeTableDlg.h"
#include "codetables/CICECiDlg.h"
#include "codetables/CSeaIceDialog.h"
#include "desktop_world.h"
#include "fakes/all_screens.h"
#include "text/ids.h"
#include "widget_views.h"

namespace {

using tests::press;
using tests::Shown;
using tests::type;

template <class S>
void expect_widgets_show_the_controls(const Shown<S>& s) {
  EXPECT_TRUE(tests::widget_views(*s.window) == tests::control_views(*s.screen));
}

// Without a window manager the window is not given the keyboard back by itself.
std::vector<std::string> boxes_of(desktop::ScreenWindow& window, const std::function<void()>& act) {
  std::vector<std::string> seen = tests::messages_of(act);
  if (window.isVisible()) window.activateWindow();
  QApplication::processEvents();
  return seen;
}

Struct_Weather empty_record() {
  return {ShipFixedData(), KeyObservationItems()};
}

std::string without_blanks(const QString& text) {
  std::string kept;
  for (const char c : text.toStdString())
    if (c != ' ' && c != '\n') kept += c;
  return kept;
}

// ---- Ice accretion

QComboBox& combo(const desktop::ScreenWindow& window) {
  return *qobject_cast<QComboBox*>(window.binding("thickness")->widget());
}

TEST(IceAccretionKeys, FiguresChooseTheLinesAndTypeTheThickness) {
  for (const char kind : std::string("12345")) {
    for (const char rate : std::string("01234")) {
      Shown<CSeaIceDialog> s(CSeaIceDialog::Values{});
      type(std::string(1, kind));
      press(Qt::Key_Tab);
      type("7");
      press(Qt::Key_Tab);
      EXPECT_EQ(combo(*s.window).currentText(), "07");
      type(std::string(1, rate));
      EXPECT_EQ(s.line("kind"), kind - '1');
      EXPECT_EQ(s.line("rate"), rate - '0');
      press(Qt::Key_Return);
      ASSERT_EQ(s.screen->result(), ui::kOk);
      EXPECT_EQ(s.screen->values().Is, std::string(1, kind));
      EXPECT_EQ(s.screen->values().EsEs, "07");
      EXPECT_EQ(s.screen->values().Rs, std::string(1, rate));
    }
  }
}

TEST(IceAccretionKeys, OtherFiguresChooseNothing) {
  Shown<CSeaIceDialog> s(CSeaIceDialog::Values{});
  type("0");
  type("6");
  type("/");
  EXPECT_EQ(s.line("kind"), -1);
  s.tab_to("rate");
  type("5");
  type("/");
  EXPECT_EQ(s.line("rate"), -1);
}

TEST(IceAccretionKeys, ArrowsGoThroughTheThicknesses) {
  Shown<CSeaIceDialog> s(CSeaIceDialog::Values{"", "08", ""});
  s.tab_to("thickness");
  press(Qt::Key_Down);
  EXPECT_EQ(combo(*s.window).currentText(), "09");
  press(Qt::Key_Down);
  press(Qt::Key_Return);
  EXPECT_EQ(s.screen->values().EsEs, "10");
}

TEST(IceAccretionKeys, TypedThicknessTakesThePlaceOfTheOneThereAndStopsAtFourCharacters) {
  Shown<CSeaIceDialog> s(CSeaIceDialog::Values{"", "08", ""});
  s.tab_to("thickness");
  type("123456");
  EXPECT_EQ(combo(*s.window).currentText(), "1234");
  EXPECT_EQ(s.screen->thickness.content, "1234");
}

TEST(IceAccretionKeys, ARefusedThicknessKeepsTheFocusAndItsTextAndIsThenPutRight) {
  for (const bool japanese : {false, true}) {
    Shown<CSeaIceDialog> s(CSeaIceDialog::Values{"2", "", ""});
    if (japanese) s.world.fake.japanese();
    s.tab_to("thickness");
    type("5x");
    const auto seen = boxes_of(*s.window, [] { press(Qt::Key_Tab); });
    ASSERT_EQ(seen.size(), 1U);
    EXPECT_EQ(seen[0],
              text::bilingual(text::id::kIcingThicknessRange, s.world.fake.texts.language));
    EXPECT_EQ(s.screen->focused(), &s.screen->thickness);
    EXPECT_TRUE(s.window->binding("thickness")->owns(QApplication::focusWidget()));
    EXPECT_EQ(combo(*s.window).currentText(), "5x");
    EXPECT_EQ(s.line("kind"), 1);
    type("6");  // the refused text was selected
    EXPECT_TRUE(boxes_of(*s.window, [] { press(Qt::Key_Tab); }).empty());
    EXPECT_EQ(combo(*s.window).currentText(), "06");
    press(Qt::Key_Return);
    EXPECT_EQ(s.screen->result(), ui::kOk);
    EXPECT_EQ(s.screen->values().EsEs, "06");
  }
}

TEST(IceAccretionKeys, OkRefusesWhatHelpLetPass) {
  Shown<CSeaIceDialog> s(CSeaIceDialog::Values{});
  s.tab_to("thickness");
  type("100");
  EXPECT_TRUE(boxes_of(*s.window, [&] {
                QTest::mouseClick(s.window->binding("help")->widget(), Qt::LeftButton);
              }).empty());
  EXPECT_EQ(s.world.fake.help_viewer.shown.size(), 1U);
  const auto seen = boxes_of(
      *s.window, [&] { QTest::mouseClick(s.window->binding("ok")->widget(), Qt::LeftButton); });
  EXPECT_EQ(seen.size(), 1U);
  EXPECT_FALSE(s.screen->result());
  EXPECT_EQ(combo(*s.window).currentText(), "100");
  EXPECT_TRUE(s.window->binding("thickness")->owns(QApplication::focusWidget()));
  type("10");
  press(Qt::Key_F1);
  EXPECT_EQ(s.world.fake.help_viewer.shown.size(), 2U);
  press(Qt::Key_Return);
  EXPECT_EQ(s.screen->result(), ui::kOk);
  EXPECT_EQ(s.screen->values().EsEs, "10");
}

TEST(IceAccretionKeys, EscapeWithAWrongThicknessAsksNothingAndChangesNothing) {
  Shown<CSeaIceDialog> s(CSeaIceDialog::Values{"1", "05", "1"});
  s.tab_to("thickness");
  type("x");
  EXPECT_TRUE(boxes_of(*s.window, [] { press(Qt::Key_Escape); }).empty());
  EXPECT_EQ(s.screen->result(), ui::kCancel);
  EXPECT_EQ(s.screen->values().EsEs, "05");
}

// ---- Concentration of sea ice

// The codes as they stand in front of the lines, from the top down.
std::vector<std::string> codes_shown(const desktop::ScreenWindow& window) {
  auto labels = window.binding("concentration")->widget()->findChildren<QLabel*>();
  std::sort(labels.begin(), labels.end(),
            [](const QLabel* a, const QLabel* b) { return a->y() < b->y(); });
  std::vector<std::string> codes;
  for (const QLabel* const label : labels) codes.push_back(label->text().toStdString());
  return codes;
}

std::vector<std::string> lines_shown(const desktop::ScreenWindow& window) {
  auto buttons = window.binding("concentration")->widget()->findChildren<QRadioButton*>();
  std::sort(buttons.begin(), buttons.end(),
            [](const QRadioButton* a, const QRadioButton* b) { return a->y() < b->y(); });
  std::vector<std::string> lines;
  for (const QRadioButton* const button : buttons) lines.push_back(without_blanks(button->text()));
  return lines;
}

TEST(IceConcentrationKeys, AnswerBothQuestionsAndChooseTheLine) {
  struct Row {
    std::vector<Qt::Key> keys;
    char figure;
  };
  using enum Qt::Key;
  std::vector<Row> rows;
  for (const char figure : std::string("01/")) rows.push_back({{Key_Down, Key_Tab}, figure});
  for (const char figure : std::string("2345"))
    rows.push_back({{Key_Up, Key_Tab, Key_Down, Key_Tab}, figure});
  for (const char figure : std::string("6789"))
    rows.push_back({{Key_Up, Key_Tab, Key_Up, Key_Tab}, figure});
  for (const Row& row : rows) {
    Shown<CICECiDlg> s(std::string{});
    for (const Qt::Key key : row.keys) {
      press(key);
      expect_widgets_show_the_controls(s);
    }
    EXPECT_EQ(s.screen->focused(), &s.screen->concentration) << row.figure;
    type(std::string(1, row.figure));
    expect_widgets_show_the_controls(s);
    press(Key_Return);
    EXPECT_EQ(s.screen->result(), ui::kOk);
    EXPECT_EQ(s.screen->ci(), std::string(1, row.figure));
  }
}

// Four lines give way to four others: texts and codes alike.
TEST(IceConcentrationKeys, ShowTheCodesOfTheLinesThatTheAnswersLeave) {
  Shown<CICECiDlg> s(std::string("3"));
  EXPECT_EQ(codes_shown(*s.window), (std::vector<std::string>{"2", "3", "4", "5"}));
  s.tab_to("uniform");
  press(Qt::Key_Down);
  EXPECT_EQ(codes_shown(*s.window), (std::vector<std::string>{"6", "7", "8", "9"}));
  ASSERT_EQ(lines_shown(*s.window).size(), 4U);
  for (std::size_t i = 0; i < 4; ++i) {
    EXPECT_EQ(lines_shown(*s.window)[i],
              without_blanks(QString::fromStdString(s.screen->concentration.items[i])));
  }
  EXPECT_EQ(s.line("concentration"), -1);
  for (const auto& button :
       s.window->binding("concentration")->widget()->findChildren<QRadioButton*>())
    EXPECT_FALSE(button->isChecked());
  press(Qt::Key_Up);
  EXPECT_EQ(codes_shown(*s.window), (std::vector<std::string>{"2", "3", "4", "5"}));
  EXPECT_EQ(s.line("concentration"), 1);
}

TEST(IceConcentrationKeys, ShiftTabGoesBackThroughWhatIsOpen) {
  Shown<CICECiDlg> s(std::string("/"));
  s.tab_to("concentration");
  press(Qt::Key_Tab, Qt::ShiftModifier);
  EXPECT_EQ(s.screen->focused(), &s.screen->place);  // the second question does not apply
}

TEST(IceConcentrationKeys, HelpThenOkTakesTheChoice) {
  Shown<CICECiDlg> s(std::string("4"));
  s.tab_to("concentration");
  type("5");
  press(Qt::Key_F1);
  EXPECT_EQ(s.world.fake.help_viewer.shown.size(), 1U);
  press(Qt::Key_Return);
  EXPECT_EQ(s.screen->ci(), "5");
}

// ---- The pickers of sea ice

TEST(SeaIceKeys, FiguresAndTheSolidusChooseEveryLine) {
  struct Row {
    const codetables::CodePicker* picker;
    const char* control;
    const char* field;
  };
  for (const Row& row :
       {Row{&codetables::kIceStage, "stage", "Si"},
        Row{&codetables::kIceStage, "land_origin", "bi"},
        Row{&codetables::kIceEdge, "choice", "Di"}, Row{&codetables::kIceTrend, "choice", "zi"}}) {
    for (const char figure : std::string("0123456789/")) {
      Shown<CCodeTableDlg> s(*row.picker, empty_record());
      s.tab_to(row.control);
      type(std::string(1, figure));
      expect_widgets_show_the_controls(s);
      press(Qt::Key_Return);
      ASSERT_EQ(s.screen->result(), ui::kOk);
      Struct_Weather record = empty_record();
      s.screen->put_into(record);
      EXPECT_EQ(record.*find_weather_field(row.field)->member, std::string(1, figure));
    }
  }
}

TEST(SeaIceKeys, ArrowsChooseABearingAndTheRoseFollows) {
  Shown<CCodeTableDlg> s(codetables::kIceEdge, empty_record());
  // Held, so that no other drawing can come to lie at its place.
  const auto none = s.screen->find("choice_drawing")->drawing;
  press(Qt::Key_Down);
  press(Qt::Key_Down);
  EXPECT_EQ(s.line("choice"), 1);
  EXPECT_NE(s.screen->find("choice_drawing")->drawing, none);
  expect_widgets_show_the_controls(s);
}

// ---- Their lines are whole, on a screen of 1366 by 768, also with letters half as large again

TEST(SeaIceDialogs, FitAndShowEveryLineWholeAlsoInLargeLetters) {
  constexpr int kWidth = 1366;
  constexpr int kHeight = 768 - 32;  // the title bar
  const QFont usual = QApplication::font();
  for (const double size : {1.0, 1.5}) {
    QFont font = usual;
    font.setPointSizeF(usual.pointSizeF() * size);
    QApplication::setFont(font);
    for (const bool japanese : {false, true}) {
      for (const fakes::ScreenCase& row : fakes::all_screens()) {
        static const std::vector<std::string_view> kIce = {"CSeaIceDialog", "CICECiDlg",
                                                           "CICESiBiDlg", "CICEDiDlg", "CNewZiDlg"};
        if (std::find(kIce.begin(), kIce.end(), row.class_name) == kIce.end()) continue;
        SCOPED_TRACE(std::string(row.class_name) + " " + std::to_string(size));
        fakes::World world;
        if (japanese) world.japanese();
        const auto screen = row.make(world.services);
        screen->open();
        desktop::ScreenWindow window(*screen, nullptr);
        tests::show(window);
        const QSize content = window.findChild<QScrollArea*>()->widget()->sizeHint();
        EXPECT_LE(content.width(), kWidth);
        EXPECT_LE(content.height(), kHeight);
        for (const auto& binding : window.bindings()) {
          if (binding->control().kind != ui::Kind::kChoice) continue;
          const auto buttons = binding->widget()->findChildren<QRadioButton*>();
          ASSERT_EQ(static_cast<std::size_t>(buttons.size()), binding->control().items.size());
          for (const QRadioButton* const button : buttons) {
            EXPECT_GE(button->width(), button->sizeHint().width());
            EXPECT_GE(button->height(), button->sizeHint().height());
            const auto& items = binding->control().items;
            EXPECT_TRUE(std::any_of(items.begin(), items.end(), [&](const std::string& item) {
              return without_blanks(QString::fromStdString(item)) == without_blanks(button->text());
            })) << button->text().toStdString();
          }
        }
      }
    }
  }
  QApplication::setFont(usual);
}

}  // namespace
