// What the dialogs of wind waves and swell take from the form and leave there.

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "elements/form/draft.h"
#include "mainwindow/element_openers.h"
#include "window.h"

namespace {

namespace id = text::id;
using main_window::Opened;

void ok(ui::Screen& screen) {
  screen.press(*screen.find("ok"));
}

constexpr const char* kWaveFields[] = {"PwPw",   "HwHw",   "dw1dw1", "Pw1Pw1",
                                       "Hw1Hw1", "dw2dw2", "Pw2Pw2", "Hw2Hw2"};

struct Dialog {
  int element;
  const char* class_name;
};
constexpr Dialog kDialogs[] = {{9, "CWindDlg"}, {10, "CSwellWaveDlg"}};

TEST(WaveDialogs, NoWindWaveAndNoSwellAreReportedAsZeros) {
  const auto opened = std::make_unique<Opened>();
  opened->world.windows.expect_screen("CWindDlg", [](ui::Screen& screen) {
    screen.tick(*screen.find("no_wind_wave"), true);
    ok(screen);
  });
  opened->press("label_wind_wave");
  EXPECT_EQ(opened->shown("group_2PwPwHwHw"), "20000");
  opened->world.windows.expect_screen("CSwellWaveDlg", [](ui::Screen& screen) {
    screen.choose(*screen.find("count"), 2);
    ok(screen);
  });
  opened->press("label_swell1");
  EXPECT_EQ(opened->shown("group_3dw1dw1dw2dw2"), "30000");
  EXPECT_NE(opened->window.report().find(" 20000 30000 "), std::string::npos)
      << opened->window.report();
  EXPECT_EQ(opened->window.form().record().Pw1Pw1, "");
}

TEST(WaveDialogs, OneSwellIsReportedWithoutASecondOne) {
  const auto opened = std::make_unique<Opened>();
  opened->world.windows.expect_screen("CSwellWaveDlg", [](ui::Screen& screen) {
    screen.choose(*screen.find("count"), 1);
    for (const auto& [name, text] :
         {std::pair{"direction1", "27"}, {"period1", "08"}, {"height1", "2.0"}})
      ASSERT_TRUE(fakes::enter(screen, *screen.find(name), text));
    ok(screen);
  });
  opened->press("label_swell1");
  EXPECT_NE(opened->window.report().find(" 327// 40804 "), std::string::npos)
      << opened->window.report();
  EXPECT_EQ(opened->window.report().find(" 5//// "), std::string::npos);
}

TEST(WaveDialogs, TheSmallestHeightIsZeroInTheReportAndStaysOnTheForm) {
  const auto opened = std::make_unique<Opened>();
  opened->type("PwPw", "05");
  opened->type("Pw1Pw1", "08");
  opened->world.windows.expect_screen("CWindDlg", [](ui::Screen& screen) {
    screen.choose(*screen.find("height"), 0);
    ok(screen);
  });
  opened->press("label_wind_wave");
  opened->world.windows.expect_screen("CSwellWaveDlg", [](ui::Screen& screen) {
    screen.choose(*screen.find("height1"), 0);
    ok(screen);
  });
  opened->press("label_swell1");
  EXPECT_EQ(opened->shown("HwHw"), "0.2");
  EXPECT_EQ(opened->shown("Hw1Hw1"), "0.2");
  EXPECT_EQ(opened->shown("group_2PwPwHwHw"), "20500");
  EXPECT_EQ(opened->shown("group_4Pw1Pw1Hw1Hw1"), "40800");
  opened->world.windows.expect_screen("CWindDlg", [](ui::Screen& screen) {
    EXPECT_EQ(screen.find("height")->content, "< 0.25");
    ok(screen);
  });
  opened->press("label_wind_wave");
  EXPECT_EQ(opened->shown("HwHw"), "0.2");
}

TEST(WaveDialogs, AHeightOfZeroFromAReportIsTheSmallestBesideItsPeriod) {
  const auto opened = std::make_unique<Opened>();
  opened->type("group_2PwPwHwHw", "20500");
  opened->type("group_4Pw1Pw1Hw1Hw1", "40800");
  const std::string before = opened->window.report();
  opened->world.windows.expect_screen("CWindDlg", [](ui::Screen& screen) {
    EXPECT_EQ(screen.find("height")->content, "< 0.25");
    EXPECT_FALSE(screen.find("no_wind_wave")->checked);
    ok(screen);
  });
  opened->press("label_wind_wave");
  opened->world.windows.expect_screen("CSwellWaveDlg", [](ui::Screen& screen) {
    EXPECT_EQ(screen.find("height1")->content, "<0.25");
    ok(screen);
  });
  opened->press("label_swell1");
  EXPECT_EQ(opened->window.report(), before);
  EXPECT_EQ(opened->shown("HwHw"), "0.0");
  EXPECT_EQ(opened->shown("Hw1Hw1"), "0.0");
}

// What the dialogs leave on the form is kept by the draft, and comes back when the element is
// switched off and on again.
TEST(WaveDialogs, WhatTheyGiveSurvivesTheDraftAndTheItems) {
  struct Row {
    const char* box;      ///< ticked, when there is one
    const char* height;   ///< else chosen
    const char* form;     ///< what the form shows
    const char* figures;  ///< of the record
  };
  for (const Row& row : {Row{"no_wind_wave", "", "00", "00"}, Row{nullptr, "< 0.25", "0.2", "00"},
                         Row{nullptr, "1.5", "1.5", "03"}, Row{"height_unknown", "", "//", "//"}}) {
    const auto opened = std::make_unique<Opened>();
    opened->world.windows.expect_screen("CWindDlg", [&](ui::Screen& screen) {
      if (row.box != nullptr) {
        screen.tick(*screen.find(row.box), true);
      } else {
        fakes::choose_text(screen, *screen.find("height"), row.height);
      }
      ok(screen);
    });
    opened->press("label_wind_wave");
    EXPECT_EQ(opened->shown("HwHw"), row.form);
    elements::Draft draft;
    draft.form = opened->window.form().entries();
    const elements::DraftRead read = elements::decode_draft(elements::encode_draft(draft));
    ASSERT_EQ(read.fault, elements::DraftFault::kNone) << row.form;
    EXPECT_EQ(read.draft.form[elements::Field::kHwHw].text, row.form);
    EXPECT_EQ(read.draft.form.record.HwHw, row.figures);
    for (const int line : {1, 0}) {
      opened->world.windows.expect_screen("CKeyObserveDlg", [&](ui::Screen& screen) {
        screen.choose(*screen.find("PwHw"), line);
        ok(screen);
      });
      opened->menu("Observation item");
    }
    EXPECT_EQ(opened->shown("HwHw"), row.form);
    EXPECT_EQ(opened->window.form().record().HwHw, row.figures);
  }
}

// What Cancel or an OK that says nothing new must leave: values, texts, marks, the saved state.
std::string state_without_focus(Opened& opened) {
  return opened.state() + (opened.window.unsaved() ? "unsaved" : "saved");
}

TEST(WaveDialogs, ConfirmedAsTheyOpenedChangeNothing) {
  using Typed = std::vector<std::pair<const char*, const char*>>;
  const Typed cases[] = {
      {},
      {{"PwPw", "05"}, {"HwHw", "1.3"}, {"dw1dw1", "5"}, {"Pw1Pw1", "8"}, {"Hw1Hw1", "0"}},
      {{"PwPw", "99"}, {"HwHw", "//"}, {"dw1dw1", "99"}, {"dw2dw2", "//"}},
      {{"PwPw", "//"}, {"HwHw", "0.2"}, {"dw1dw1", "//"}, {"Pw1Pw1", "//"}, {"Hw1Hw1", "//"}},
      {{"PwPw", "00"}, {"HwHw", "0"}, {"dw1dw1", "00"}, {"dw2dw2", "00"}},
      {{"dw1dw1", "27"}, {"dw2dw2", "00"}, {"Pw1Pw1", "24"}, {"Hw1Hw1", "14.5"}},
      {{"group_2PwPwHwHw", "2//03"}, {"group_4Pw1Pw1Hw1Hw1", "4////"}},
      {{"group_2PwPwHwHw", "2////"}, {"group_3dw1dw1dw2dw2", "399//"}},
      {{"group_3dw1dw1dw2dw2", "327//"}, {"group_5Pw2Pw2Hw2Hw2", "5//01"}},
  };
  for (const Typed& typed : cases) {
    for (const Dialog& dialog : kDialogs) {
      const auto opened = std::make_unique<Opened>();
      for (const auto& [name, text] : typed) opened->type(name, text);
      const std::string before = state_without_focus(*opened);
      opened->world.windows.expect_screen(dialog.class_name, ok);
      EXPECT_TRUE(opened->window.open_element(dialog.element));
      EXPECT_EQ(state_without_focus(*opened), before) << dialog.class_name;
    }
  }
}

// The dialog of the other fields was opened and confirmed: the refused text still waits there, the
// record keeps what it had.
TEST(WaveDialogs, LeaveARefusedTextThatTheyWereNotAskedAbout) {
  struct Row {
    const char* field;
    const char* refused;
    text::Id message;
    const char* dialog;
    const char* label;
  };
  for (const Row& row :
       {Row{"HwHw", "15", id::kCheckWaveHeight, "CWindDlg", "label_wind_wave"},
        Row{"dw2dw2", "99", id::kSwell2DirectionRange, "CSwellWaveDlg", "label_swell1"},
        Row{"Pw1Pw1", "30", id::kSwellPeriodRange, "CSwellWaveDlg", "label_swell1"}}) {
    const auto opened = std::make_unique<Opened>();
    ASSERT_TRUE(fakes::enter(opened->window, opened->control(row.field), row.refused));
    opened->world.windows.expect(row.message);
    opened->window.key(ui::Key::kTab);
    const auto record = opened->window.record_fields();
    opened->world.windows.expect_screen(row.dialog, ok);
    opened->window.key(ui::Key::kF1);
    EXPECT_EQ(opened->shown(row.field), row.refused);
    EXPECT_EQ(opened->control(row.field).mark, "wrong");
    EXPECT_EQ(opened->window.record_fields(), record);
  }
}

TEST(WaveDialogs, LeaveASwellThatTheShipDoesNotObserve) {
  KeyObservationItems items;
  items.set_observed(ObservationItem::dw2Pw2Hw2, false);
  for (int count = 0; count < 4; ++count) {
    const auto opened = std::make_unique<Opened>(main_window::sample_ship(), items);
    const auto second = [&] {
      return opened->shown("dw2dw2") + "|" + opened->shown("Pw2Pw2") + "|" +
             opened->shown("Hw2Hw2") + "|" + opened->window.form().record().dw2dw2;
    };
    const std::string before = second();
    opened->world.windows.expect_screen("CSwellWaveDlg", [&](ui::Screen& screen) {
      EXPECT_FALSE(screen.find("direction2")->enabled);
      EXPECT_TRUE(screen.find("direction1")->enabled);
      screen.choose(*screen.find("count"), count);
      ok(screen);
    });
    opened->press("label_swell1");
    EXPECT_EQ(second(), before) << count;
  }
}

TEST(WaveDialogs, KeepAHeightBetweenTheLinesThatWasTypedOnTheForm) {
  const auto opened = std::make_unique<Opened>();
  opened->type("HwHw", "1.3");
  opened->world.windows.expect_screen("CWindDlg", [](ui::Screen& screen) {
    EXPECT_EQ(screen.find("height")->content, "1.3");
    ASSERT_TRUE(fakes::enter(screen, *screen.find("period"), "6"));
    ok(screen);
  });
  opened->press("label_wind_wave");
  EXPECT_EQ(opened->shown("HwHw"), "1.3");
  EXPECT_EQ(opened->shown("group_2PwPwHwHw"), "20603");
}

// The height to compare with follows the true wind as it was accepted, in knots.
TEST(WaveDialogs, TheReferenceHeightIsThatOfTheTrueWind) {
  struct Row {
    const char* iw;
    const char* ff;
    const char* fff;
    const char* height;
  };
  for (const Row& row : {Row{"4", "18", "", "2.0"},
                         {"3", "18", "", "2.0"},
                         {"1", "18", "", "5.5"},  // 35 knots
                         {"0", "18", "", "5.5"},
                         {"4", "99", "105", "14.0"},
                         {"4", "00", "", " -"},
                         {"4", "", "", " -"},
                         {"4", "//", "", " -"}}) {
    const auto opened = std::make_unique<Opened>();
    elements::ObservationForm form(opened->ship, opened->items, opened->world.clock);
    Struct_Weather record = form.record();
    record.iw = row.iw;
    record.ff = row.ff;
    record.fff = row.fff;
    form.load_record(record);
    mainwindow::MainWindowContext context{opened->ship, opened->items, opened->folders, {}};
    mainwindow::Opening opening{opened->world.services, context, form, {}};
    opened->world.windows.expect_screen("CWindDlg", [&](ui::Screen& screen) {
      EXPECT_EQ(screen.find("reference_height")->content, row.height) << row.iw << row.ff;
      screen.press(*screen.find("cancel"));
    });
    EXPECT_FALSE(mainwindow::find_element(9)->open(opening));
  }
}

// A record that was read back may hold what the fields of the form refuse.
TEST(WaveDialogs, ConfirmedAsTheyOpenedChangeNothingOfARecordThatWasRead) {
  for (const char* const period : {"", "//", "/", "*", "00", "05", "26", "45", "99"}) {
    for (const char* const height : {"", "//", "00", "01", "29", "60", "99", "*"}) {
      for (const Dialog& dialog : kDialogs) {
        const auto opened = std::make_unique<Opened>();
        elements::ObservationForm form(opened->ship, opened->items, opened->world.clock);
        Struct_Weather record = form.record();
        record.PwPw = record.Pw1Pw1 = record.Pw2Pw2 = period;
        record.HwHw = record.Hw1Hw1 = record.Hw2Hw2 = height;
        record.dw1dw1 = "27";
        record.dw2dw2 = "00";
        form.load_record(record);
        const Struct_Weather before = form.record();
        std::vector<std::string> texts;
        for (const char* const name : kWaveFields)
          texts.push_back(form.text(*elements::field_named(name)));
        mainwindow::MainWindowContext context{opened->ship, opened->items, opened->folders, {}};
        mainwindow::Opening opening{opened->world.services, context, form, {}};
        opened->world.windows.expect_screen(dialog.class_name, ok);
        EXPECT_TRUE(mainwindow::find_element(dialog.element)->open(opening));
        EXPECT_TRUE(form.record() == before) << period << "|" << height;
        for (std::size_t i = 0; i < texts.size(); ++i)
          EXPECT_EQ(form.text(*elements::field_named(kWaveFields[i])), texts[i]);
        EXPECT_FALSE(form.modified());
      }
    }
  }
}

}  // namespace
