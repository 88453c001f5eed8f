// What must hold for every dialog that picks codes from code tables.

#include <gtest/gtest.h>

#include <set>

#include "codetables/CCodeTableDlg.h"
#include "expected_pickers.h"
#include "fakes/fake_ports.h"
#include "text/ids.h"
#include "text/texts.h"
#include "ui/dump.h"

namespace {

using expected::Code;
using expected::Line;
using expected::Picker;

Struct_Weather empty_record() {
  return {ShipFixedData(), KeyObservationItems()};
}

std::string& field(Struct_Weather& record, std::string_view name) {
  return record.*find_weather_field(name)->member;
}

struct EveryPicker : testing::TestWithParam<Picker> {
  fakes::World world;
  Struct_Weather record = empty_record();

  // The dialog on the record's codes, shown and handed to the officer. True when it closed with OK;
  // the record then has what it gave.
  template <class Act>
  bool play(Act act) {
    CCodeTableDlg dialog(world.services, *GetParam().row, record);
    dialog.open();
    act(dialog);
    if (dialog.result() == ui::kOk) dialog.put_into(record);
    return dialog.result() == ui::kOk;
  }
  static void ok(ui::Screen& dialog) { dialog.press(*dialog.find("ok")); }
};

TEST_P(EveryPicker, ShowsEachLineWithItsCodeInBothLanguages) {
  for (const bool japanese : {false, true}) {
    if (japanese) world.japanese();
    play([&](ui::Screen& dialog) {
      EXPECT_EQ(dialog.class_name(), GetParam().class_name);
      EXPECT_EQ(dialog.title(), japanese ? GetParam().japanese : GetParam().english);
      for (const Line& label : GetParam().labels) {
        const ui::Control* const control = dialog.find(label.code);
        ASSERT_NE(control, nullptr) << label.code;
        EXPECT_EQ(dialog.caption(*control), japanese ? label.japanese : label.english);
      }
      for (const Code& code : GetParam().codes) {
        const ui::Control* const control = dialog.find(code.control);
        ASSERT_NE(control, nullptr) << code.control;
        EXPECT_EQ(dialog.caption(*control), japanese ? code.japanese : code.english);
        ASSERT_EQ(control->items.size(), code.lines.size());
        for (std::size_t i = 0; i < code.lines.size(); ++i) {
          EXPECT_EQ(control->items[i], japanese ? code.lines[i].japanese : code.lines[i].english);
          EXPECT_EQ(control->item_codes[i], code.lines[i].code);
        }
      }
      // And nothing else but the buttons, the pictures and the drawings.
      std::size_t pictures = 0;
      std::size_t drawings = 0;
      for (const Code& code : GetParam().codes) {
        pictures += std::string(code.pictures).size();
        drawings += code.drawn ? 1 : 0;
        const ui::Control* const drawing = dialog.find(std::string(code.control) + "_drawing");
        EXPECT_EQ(drawing != nullptr && drawing->drawing != nullptr, code.drawn);
      }
      EXPECT_EQ(dialog.controls().size(),
                GetParam().labels.size() + GetParam().codes.size() + pictures + drawings + 3);
    });
  }
}

TEST_P(EveryPicker, GivesTheCodeOfEachLineAndOpensOnItAgain) {
  for (const Code& code : GetParam().codes) {
    for (std::size_t i = 0; i < code.lines.size(); ++i) {
      record = empty_record();
      const auto before = record;
      EXPECT_TRUE(play([&](ui::Screen& dialog) {
        dialog.choose(*dialog.find(code.control), static_cast<int>(i));
        EXPECT_FALSE(dialog.result());
        dialog.key(ui::Key::kEnter);
      }));
      auto wanted = before;
      field(wanted, code.field) = code.lines[i].code;
      EXPECT_TRUE(record == wanted) << code.field << " " << field(record, code.field);
      EXPECT_TRUE(play([&](ui::Screen& dialog) {
        EXPECT_EQ(dialog.find(code.control)->selected, static_cast<int>(i)) << code.lines[i].code;
        ok(dialog);
      }));
      EXPECT_TRUE(record == wanted) << code.field << " " << field(record, code.field);
    }
  }
}

TEST_P(EveryPicker, ShowsThePicturesOfItsCodesAndTakesAClickOnOneForItsLine) {
  for (const Code& code : GetParam().codes) {
    for (const char figure : std::string(code.pictures)) {
      record = empty_record();
      EXPECT_TRUE(play([&](ui::Screen& dialog) {
        const std::string name = std::string(code.control) + "_" + figure;
        ui::Control* const picture = dialog.find(name);
        ASSERT_NE(picture, nullptr) << name;
        EXPECT_EQ(picture->kind, ui::Kind::kPicture);
        EXPECT_EQ(dialog.caption(*picture), std::string(code.field) + " " + figure);
        EXPECT_EQ(picture->content, std::string(code.field) + figure + ".jpg");
        const ui::Control& choice = *dialog.find(code.control);
        ASSERT_GE(picture->beside_line, 0) << name;
        EXPECT_EQ(choice.item_codes[static_cast<std::size_t>(picture->beside_line)],
                  std::string(1, figure));
        dialog.press(*picture);
        EXPECT_EQ(dialog.focused(), &choice);
        EXPECT_FALSE(dialog.result());
        dialog.key(ui::Key::kEnter);
      }));
      EXPECT_EQ(field(record, code.field), std::string(1, figure));
    }
  }
}

TEST_P(EveryPicker, FindsTheLineByTheKeysOfItsCode) {
  for (const Code& code : GetParam().codes) {
    for (const Line& line : code.lines) {
      record = empty_record();
      play([&](ui::Screen& dialog) {
        dialog.move_focus(*dialog.find(code.control));
        for (const char key : std::string(line.code)) dialog.find_line(std::string(1, key));
        ok(dialog);
      });
      EXPECT_EQ(field(record, code.field), line.code) << code.field;
    }
  }
}

TEST_P(EveryPicker, ChoosesNothingWhereTheRecordHasNoCodeOfItsAndOkKeepsThat) {
  for (const Code& code : GetParam().codes) {
    for (const char* const strange : {"", "     ", "x", "-1", "x9", "*", "\xff"}) {
      record = empty_record();
      field(record, code.field) = strange;
      const auto before = record;
      EXPECT_TRUE(play([&](ui::Screen& dialog) {
        EXPECT_EQ(dialog.find(code.control)->selected, -1) << strange;
        ok(dialog);
      }));
      EXPECT_TRUE(record == before) << strange;
    }
  }
}

// Confirmed as it opened, also where the record's text is a code in a form of its own.
TEST_P(EveryPicker, LeavesTheRecordToTheLetterWhenItIsConfirmedAsItOpened) {
  for (const Code& code : GetParam().codes) {
    for (const Line& line : code.lines) {
      const std::string figures = line.code;
      for (const std::string& odd :
           {figures, " " + figures, figures + " ", "0" + figures, figures + "x", figures + "."}) {
        record = empty_record();
        field(record, code.field) = odd;
        const auto before = record;
        EXPECT_TRUE(play(ok));
        EXPECT_TRUE(record == before) << odd << " became " << field(record, code.field);
      }
    }
  }
}

TEST_P(EveryPicker, ChangesNothingUnlessItIsConfirmed) {
  for (int way = 0; way < 3; ++way) {
    record = empty_record();
    for (const Code& code : GetParam().codes) field(record, code.field) = code.lines.back().code;
    const auto before = record;
    CCodeTableDlg dialog(world.services, *GetParam().row, record);
    dialog.open();
    for (const Code& code : GetParam().codes) dialog.choose(*dialog.find(code.control), 0);
    if (way == 0) dialog.press(*dialog.find("cancel"));
    if (way == 1) dialog.key(ui::Key::kEscape);
    if (way == 2) dialog.close_box();
    EXPECT_EQ(dialog.result(), ui::kCancel);
    dialog.put_into(record);
    EXPECT_TRUE(record == before) << way;
  }
}

TEST_P(EveryPicker, OpensItsHelpTopic) {
  for (const bool japanese : {false, true}) {
    if (japanese) world.japanese();
    play([](ui::Screen& dialog) { dialog.press(*dialog.find("help")); });
  }
  const std::string topic = GetParam().topic;
  EXPECT_EQ(
      world.help_viewer.shown,
      (std::vector<std::string>{"C:\\program\\help\\Kavrel_E.CHM::/Capter" + topic + "_E.htm",
                                "C:\\program\\help\\Kavrel_J.CHM::/Capter" + topic + "_J.htm"}));
}

TEST_P(EveryPicker, WrittenOutAsTextHasTheCodeAtEachLine) {
  play([](const ui::Screen& dialog) {
    for (const Code& code : GetParam().codes) {
      const ui::Control& choice = *dialog.find(code.control);
      const std::string shown = ui::describe(ui::view_of(dialog, choice));
      for (const Line& line : code.lines) {
        const std::string wanted = std::string(line.code) + " \"" + line.english + "\"";
        EXPECT_NE(shown.find(wanted), std::string::npos) << wanted << " in " << shown;
      }
    }
  });
}

INSTANTIATE_TEST_SUITE_P(CodeTables, EveryPicker, testing::ValuesIn(expected::pickers()),
                         [](const auto& row) { return std::string(row.param.class_name); });

TEST(CodePickers, AreAllExpected) {
  std::set<const codetables::CodePicker*> known;
  for (const Picker& picker : expected::pickers()) known.insert(picker.row);
  EXPECT_EQ(known.size(), expected::pickers().size());
  for (const codetables::CodePicker* const row : codetables::code_pickers())
    EXPECT_EQ(known.erase(row), 1U) << row->class_name;
  EXPECT_TRUE(known.empty()) << (*known.begin())->class_name;
}

// ---- What single dialogs do

// The first line of the dialog's first code that is chosen when the record holds this text.
std::string chosen(const codetables::CodePicker& picker, std::string_view code) {
  fakes::World world;
  Struct_Weather record = empty_record();
  field(record, picker.codes[0].symbol) = code;
  CCodeTableDlg dialog(world.services, picker, record);
  dialog.open();
  return dialog.find(picker.codes[0].control)->selected_text();
}

TEST(Visibility, IsReadAsANumber) {
  for (const char* const vv : {" 95", "95 ", "095", "95.4"})
    EXPECT_EQ(chosen(codetables::kVisibility, vv), "2km<=VV<4km") << vv;
}

TEST(Visibility, OutsideTheSeaScaleChoosesNoBand) {
  for (const char* const vv : {"50", "89", "00", "100", "/", "9", "-95"})
    EXPECT_EQ(chosen(codetables::kVisibility, vv), "") << vv;
}

TEST(Clouds, OfAllTypesAreReadByTheFirstCharacter) {
  for (const codetables::CodePicker* const picker :
       {&codetables::kLowCloud, &codetables::kMiddleCloud, &codetables::kHighCloud}) {
    EXPECT_EQ(chosen(*picker, "5x"), chosen(*picker, "5")) << picker->class_name;
    EXPECT_EQ(chosen(*picker, "12"), chosen(*picker, "1")) << picker->class_name;
    EXPECT_EQ(chosen(*picker, "//"), chosen(*picker, "/")) << picker->class_name;
    EXPECT_NE(chosen(*picker, "12"), "") << picker->class_name;
  }
}

TEST(Clouds, AmountsTellWhatHidesTheSky) {
  EXPECT_EQ(chosen(codetables::kTotalCloud, "/"),
            "Unknown (indiscernible for reasons other than meteorological phenomena)");
  EXPECT_EQ(chosen(codetables::kTotalCloud, "9"),
            "Unknown (sky obscured by meteorological phenomena)");
  EXPECT_EQ(chosen(codetables::kTotalCloud, "10"), "");
  EXPECT_EQ(chosen(codetables::kCloudBase, "5"), "600m<=h<1000m");
}

TEST(Movement, GivesBothCodesAndEachAlone) {
  fakes::World world;
  for (const char* const ds : {"", "0", "8", "/"}) {
    for (const char* const vs : {"", "0", "9", "/"}) {
      Struct_Weather record = empty_record();
      record.Ds = ds;
      record.Vs = vs;
      CCodeTableDlg dialog(world.services, codetables::kMovement, record);
      dialog.open();
      dialog.choose(*dialog.find("speed"), 4);
      dialog.press(*dialog.find("ok"));
      dialog.put_into(record);
      EXPECT_EQ(record.Ds, ds);
      EXPECT_EQ(record.Vs, "4");
    }
  }
}

// ---- Pictures

constexpr text::Id kSomeText = text::id::kOkLabel;
constexpr codetables::LinePicture kTwoPictures[] = {{"1", "one.png"}, {"2", "two.png"}};
constexpr codetables::PickedCode kPictureCodes[] = {
    {.symbol = "CL",
     .control = "low",
     .pictures = kTwoPictures,
     .reads = codetables::Reads::kFirstFigure},
    {.symbol = "CM", .control = "middle", .pictures = kTwoPictures},
};
constexpr codetables::CodePicker kPictures = {
    .class_name = "CPicturesDlg", .title = kSomeText, .codes = kPictureCodes};

TEST(Pictures, AreThereForTheLinesThatHaveOneAndNamedForTheirCode) {
  fakes::World world;
  CCodeTableDlg dialog(world.services, kPictures, empty_record());
  dialog.open();
  struct Row {
    const char* name;
    const char* caption;
    const char* file;
  };
  int pictures = 0;
  for (const ui::Control* const control : dialog.controls())
    pictures += control->kind == ui::Kind::kPicture ? 1 : 0;
  EXPECT_EQ(pictures, 4);
  for (const Row& row : {Row{"low_1", "CL 1", "one.png"}, Row{"low_2", "CL 2", "two.png"},
                         Row{"middle_1", "CM 1", "one.png"}, Row{"middle_2", "CM 2", "two.png"}}) {
    const ui::Control* const picture = dialog.find(row.name);
    ASSERT_NE(picture, nullptr) << row.name;
    EXPECT_EQ(dialog.caption(*picture), row.caption);
    EXPECT_EQ(picture->content, row.file);
  }
}

TEST(Pictures, ChooseTheirLineAndGiveItTheFocus) {
  fakes::World world;
  Struct_Weather record = empty_record();
  CCodeTableDlg dialog(world.services, kPictures, record);
  dialog.open();
  dialog.press(*dialog.find("middle_2"));
  EXPECT_EQ(dialog.find("middle")->selected, 2);
  EXPECT_EQ(dialog.find("low")->selected, -1);
  EXPECT_EQ(dialog.focused(), dialog.find("middle"));
  dialog.press(*dialog.find("low_1"));
  dialog.press(*dialog.find("ok"));
  dialog.put_into(record);
  EXPECT_EQ(record.CL, "1");
  EXPECT_EQ(record.CM, "2");
}

TEST(FirstFigure, AloneFindsTheLineWhereTheRowSaysSo) {
  for (const char* const code : {"1", "12", " 1", "1x"}) {
    fakes::World world;
    Struct_Weather record = empty_record();
    record.CL = record.CM = code;
    CCodeTableDlg dialog(world.services, kPictures, record);
    dialog.open();
    EXPECT_EQ(dialog.find("low")->selected, 1) << code;
    EXPECT_EQ(dialog.find("middle")->selected, std::string(code) == "12" ? -1 : 1) << code;
  }
}

}  // namespace
