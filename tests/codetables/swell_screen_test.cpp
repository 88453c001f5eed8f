// The dialog of the swell, and the one that finds a period for a wave length.

#include <gtest/gtest.h>

#include <algorithm>

#include "codetables/CSwellWaveDlg.h"
#include "codetables/CWaveLengthDlg.h"
#include "text/ids.h"
#include "wave_checks.h"

namespace {

namespace id = text::id;
using wave_checks::kBothLanguages;
using wave_checks::Notice;
using Values = CSwellWaveDlg::Values;

enum Count { kTwoOrMore, kOne, kNone, kNotObserved };

const Values kTwoSwells{{"27", "08", "2.0"}, {"05", "12", "0.5"}};

struct Swell {
  explicit Swell(Values values, CSwellWaveDlg::Observed observed = {true, true},
                 text::Language language = text::Language::kEnglish)
      : screen(world.services, std::move(values), observed) {
    world.texts.language = language;
    screen.open();
  }
  fakes::World world;
  CSwellWaveDlg screen;

  void ok() { screen.press(screen.ok); }
  void choose(Count count) { screen.choose(screen.count, count); }
  void tick(ui::Control& box, bool on = true) { screen.tick(box, on); }
  [[nodiscard]] std::vector<const CWaveField*> fields() const {
    return {&screen.direction1, &screen.period1, &screen.height1,
            &screen.direction2, &screen.period2, &screen.height2};
  }
  [[nodiscard]] std::string shown() const {
    std::string all;
    for (const CWaveField* const field : fields()) all += field->content + "|";
    return all;
  }
  /// "o" for each field that is open, "-" for one that is locked.
  [[nodiscard]] std::string open() const {
    std::string all;
    for (const CWaveField* const field : fields()) all += field->enabled ? 'o' : '-';
    return all;
  }
  /// Each box: x ticked, o not ticked, in brackets when locked.
  [[nodiscard]] std::string boxes() const {
    std::string all;
    for (const ui::Control* const control : screen.controls()) {
      if (control->kind != ui::Kind::kTick) continue;
      const std::string mark = control->checked ? "x" : "o";
      all += control->enabled ? mark : "(" + mark + ")";
    }
    return all;
  }
  [[nodiscard]] std::string result() const {
    const auto& [a, b] = screen.values();
    return a.direction + "|" + a.period + "|" + a.height + "|" + b.direction + "|" + b.period +
           "|" + b.height + "|";
  }
};

// ---- Opening

TEST(Swell, OpensOnTwoOrMoreAndShowsItsValuesWhateverTheyAre) {
  struct Row {
    Values values;
    const char* shown;
    const char* open;
    const char* boxes;
  };
  for (const Row& row :
       {Row{kTwoSwells, "27|08|2.0|05|12|0.5|", "oooooo", "oooooo"},
        Row{{{"99", "//", "//"}, {"//", "//", "//"}}, "99|//|//|//|//|//|", "------", "xxxxxx"},
        Row{{{"99", "08", "2.0"}, {"05", "", ""}}, "99|08|2.0|05|||", "-ooooo", "xooooo"},
        Row{{{"00", "", ""}, {"00", "", ""}}, "00|||00|||", "oooooo", "oooooo"},
        Row{{{"27", "08", "2.0"}, {"00", "", ""}}, "27|08|2.0|00|||", "oooooo", "oooooo"},
        Row{{{"//", "/", "*"}, {"99", "**", "/"}}, "//|/|*|99|**|/|", "oooooo", "oooooo"},
        Row{{{"", "", ""}, {"", "", ""}}, "||||||", "oooooo", "oooooo"}}) {
    Swell s(row.values);
    EXPECT_EQ(s.screen.count.selected, kTwoOrMore);
    EXPECT_EQ(s.screen.focused(), &s.screen.count);
    EXPECT_EQ(s.shown(), row.shown);
    EXPECT_EQ(s.open(), row.open) << row.shown;
    EXPECT_EQ(s.boxes(), row.boxes) << row.shown;
  }
}

TEST(Swell, AStoredSmallestHeightReopensAsLessThanAQuarterOfAMetre) {
  for (const text::Language language : kBothLanguages) {
    Swell s({{"27", "08", "0.2"}, {"05", "12", "0.0"}}, {true, true}, language);
    EXPECT_EQ(s.shown(), "27|08|<0.25|05|12|<0.25|");
    EXPECT_EQ(s.screen.height1.selected, 0);
    s.ok();
    EXPECT_EQ(s.result(), "27|08|0.2|05|12|0.0|");
    Swell chosen(kTwoSwells, {true, true}, language);
    chosen.screen.choose(chosen.screen.height2, 0);
    chosen.ok();
    EXPECT_EQ(chosen.result(), "27|08|2.0|05|12|0.2|");
  }
}

TEST(Swell, OffersItsLines) {
  Swell s(kTwoSwells);
  const auto ends = [](const ui::Control& list) {
    return list.items.front() + " " + *(list.items.end() - 3) + " " + *(list.items.end() - 2) +
           " " + list.items.back();
  };
  EXPECT_EQ(ends(s.screen.direction1), "01 99 // 00");
  EXPECT_EQ(ends(s.screen.direction2), "01 36 // 00");
  EXPECT_EQ(s.screen.direction1.items.size(), 39U);
  EXPECT_EQ(s.screen.direction2.items.size(), 38U);
  for (const CWaveField* const period : {&s.screen.period1, &s.screen.period2}) {
    EXPECT_EQ(ends(*period), "01 24 25 //");
    EXPECT_EQ(period->items.size(), 26U);
  }
  for (const CWaveField* const height : {&s.screen.height1, &s.screen.height2}) {
    EXPECT_EQ(ends(*height), "<0.25 14.0 14.5 //");
    EXPECT_EQ(height->items.size(), 31U);
  }
}

TEST(Swell, ConfirmedAsItOpenedHandsBackWhatItWasGiven) {
  const char* const figures[] = {"",  "00", "01",  "36",  "37",  "98",   "//",     "/",    "*",
                                 "x", "26", "0.0", "0.2", "1.3", "14.5", "1013.2", "\xff", " 1"};
  for (const text::Language language : kBothLanguages) {
    for (const char* const a : figures) {
      for (const char* const b : figures) {
        const Values values{{a, b, a}, {b, a, b}};
        for (const bool enter : {false, true}) {
          Swell s(values, {true, true}, language);
          if (enter) {
            s.screen.key(ui::Key::kEnter);
          } else {
            s.ok();
          }
          ASSERT_EQ(s.screen.result(), ui::kOk) << a << "|" << b;
          EXPECT_TRUE(s.screen.values() == values) << s.result();
        }
      }
    }
  }
}

// ---- How many

TEST(Swell, NoSwellGivesZeroForBothDirectionsAndNothingElse) {
  Swell s({{"27", "//", "2.0"}, {"//", "12", "//"}});
  s.choose(kNone);
  EXPECT_EQ(s.shown(), "00|||00|||");
  EXPECT_EQ(s.open(), "------");
  EXPECT_EQ(s.boxes(), "(o)(o)(o)(o)(o)(o)");
  EXPECT_FALSE(s.screen.length1.enabled || s.screen.length2.enabled);
  s.ok();
  EXPECT_EQ(s.screen.result(), ui::kOk);
  EXPECT_EQ(s.result(), "00|||00|||");
}

TEST(Swell, OneSwellHasNoSecondOne) {
  Swell s(kTwoSwells);
  s.choose(kOne);
  EXPECT_EQ(s.shown(), "27|08|2.0|00|||");
  EXPECT_EQ(s.open(), "ooo---");
  EXPECT_EQ(s.boxes(), "ooo(o)(o)(o)");
  EXPECT_TRUE(s.screen.length1.enabled);
  EXPECT_FALSE(s.screen.length2.enabled);
  s.ok();
  EXPECT_EQ(s.result(), "27|08|2.0|00|||");
}

TEST(Swell, NotObservedEmptiesAndLocksEverything) {
  Swell s({{"27", "//", "2.0"}, {"//", "12", "//"}});
  s.choose(kNotObserved);
  EXPECT_EQ(s.shown(), "||||||");
  EXPECT_EQ(s.open(), "------");
  EXPECT_EQ(s.boxes(), "(o)(o)(o)(o)(o)(o)");
  s.ok();
  EXPECT_EQ(s.result(), "||||||");
}

TEST(Swell, GoingBackOpensTheFieldsWithWhatWasThere) {
  for (const Count first : {kOne, kNone, kNotObserved}) {
    for (const Count second : {kOne, kNone, kNotObserved}) {
      Swell s({{"27", "//", "2.0"}, {"//", "12", "//"}});
      const std::string shown = s.shown();
      const std::string boxes = s.boxes();
      const std::string open = s.open();
      s.choose(first);
      s.choose(second);
      s.choose(kTwoOrMore);
      EXPECT_EQ(s.shown(), shown) << first << second;
      EXPECT_EQ(s.boxes(), boxes);
      EXPECT_EQ(s.open(), open);
      EXPECT_TRUE(s.screen.length1.enabled && s.screen.length2.enabled);
    }
  }
}

TEST(Swell, OneSwellAfterNoneHasItsFirstOneBack) {
  Swell s(kTwoSwells);
  s.choose(kNone);
  s.choose(kOne);
  EXPECT_EQ(s.shown(), "27|08|2.0|00|||");
  s.screen.type(s.screen.period1, "09");
  s.choose(kNotObserved);
  s.choose(kTwoOrMore);
  EXPECT_EQ(s.shown(), "27|09|2.0|05|12|0.5|");
}

// ---- The boxes

TEST(Swell, ABoxSaysItsFigureLocksTheListAndGivesTheTextBack) {
  struct Row {
    CWaveBox CSwellWaveDlg::*box;
    const char* shown;
    const char* open;
  };
  for (const Row& row : {Row{&CSwellWaveDlg::period1_unknown, "27|//|2.0|05|12|0.5|", "o-oooo"},
                         Row{&CSwellWaveDlg::height1_unknown, "27|08|//|05|12|0.5|", "oo-ooo"},
                         Row{&CSwellWaveDlg::direction2_unknown, "27|08|2.0|//|12|0.5|", "ooo-oo"},
                         Row{&CSwellWaveDlg::period2_unknown, "27|08|2.0|05|//|0.5|", "oooo-o"},
                         Row{&CSwellWaveDlg::height2_unknown, "27|08|2.0|05|12|//|", "ooooo-"}}) {
    Swell s(kTwoSwells);
    s.tick(s.screen.*row.box);
    EXPECT_EQ(s.shown(), row.shown);
    EXPECT_EQ(s.open(), row.open);
    s.tick(s.screen.*row.box, false);
    EXPECT_EQ(s.shown(), "27|08|2.0|05|12|0.5|");
    EXPECT_EQ(s.open(), "oooooo");
    s.tick(s.screen.*row.box);
    s.ok();
    EXPECT_EQ(s.result(), row.shown);
  }
}

TEST(Swell, ABoxThatWasTickedOnOpeningLeavesAnEmptyList) {
  Swell s({{"27", "//", "2.0"}, {"//", "12", "//"}});
  s.tick(s.screen.period1_unknown, false);
  s.tick(s.screen.direction2_unknown, false);
  s.tick(s.screen.height2_unknown, false);
  EXPECT_EQ(s.shown(), "27||2.0||12||");
  EXPECT_EQ(s.open(), "oooooo");
}

TEST(Swell, AnUnknownFirstDirectionLeavesNothingElseToEnter) {
  Swell s({{"27", "//", "2.0"}, {"05", "12", "//"}});
  s.tick(s.screen.direction1_unknown);
  EXPECT_EQ(s.shown(), "99|||//|||");
  EXPECT_EQ(s.open(), "------");
  // Its own box stays open; that of the second direction says what stands there.
  EXPECT_EQ(s.boxes(), "x(o)(o)(x)(o)(o)");
  EXPECT_FALSE(s.screen.length1.enabled || s.screen.length2.enabled);
  s.ok();
  EXPECT_EQ(s.result(), "99|||//|||");
}

TEST(Swell, TakingTheTickAwayClearsTheFirstDirectionAndNothingElse) {
  Swell s({{"27", "//", "2.0"}, {"05", "12", "//"}});
  s.tick(s.screen.direction1_unknown);
  s.tick(s.screen.direction1_unknown, false);
  EXPECT_EQ(s.shown(), "|//|2.0|05|12|//|");
  EXPECT_EQ(s.boxes(), "oxooox");
  EXPECT_EQ(s.open(), "o-ooo-");
  // Also one that was ticked on opening.
  Swell opened({{"99", "08", "2.0"}, {"//", "", ""}});
  opened.tick(opened.screen.direction1_unknown, false);
  EXPECT_EQ(opened.shown(), "|08|2.0|//|||");
  EXPECT_EQ(opened.open(), "ooo-oo");
}

TEST(Swell, AnUnknownFirstDirectionOutlastsAnotherChoice) {
  Swell s(kTwoSwells);
  s.tick(s.screen.direction1_unknown);
  s.choose(kNone);
  EXPECT_EQ(s.shown(), "00|||00|||");
  EXPECT_EQ(s.boxes(), "(o)(o)(o)(o)(o)(o)");
  s.choose(kTwoOrMore);
  EXPECT_EQ(s.shown(), "99|||//|||");
  EXPECT_EQ(s.boxes(), "x(o)(o)(x)(o)(o)");
  s.choose(kOne);
  EXPECT_EQ(s.shown(), "99|||//|||");
  s.ok();
  EXPECT_EQ(s.result(), "99|||//|||");
}

// "00" would say that there is no second swell, which a first one from nowhere does not go with.
TEST(Swell, OneSwellOfUnknownDirectionHasTheSecondOneUnknownToo) {
  Swell s({{"99", "08", "2.0"}, {"05", "12", "0.5"}});
  s.choose(kOne);
  EXPECT_EQ(s.shown(), "99|08|2.0|//|||");
  s.ok();
  EXPECT_EQ(s.result(), "99|08|2.0|//|||");
  Swell typed(kTwoSwells);
  typed.choose(kOne);
  ASSERT_TRUE(fakes::enter(typed.screen, typed.screen.direction1, "99"));
  EXPECT_EQ(typed.shown(), "99|08|2.0|//|||");
  typed.screen.type(typed.screen.direction1, "18");
  EXPECT_EQ(typed.shown(), "18|08|2.0|00|||");
}

// ---- Checks

const Notice kNumber[] = {{id::kNotANumber, "Number needed!", "No digital string"},
                          {id::kNotANumber, "数字が必要です", "数字を入力して下さい"}};
const Notice kRange1[] = {
    {id::kSwell1DirectionRange, "Number Impossable",
     "Error: Input data is out of range.\nIt must be \"01<=Swell dir<=36,99,//,00\""},
    {id::kSwell1DirectionRange, "入力できない値です",
     "エラー：（01<=うねりの方向<=36,99,//,00）\nの範囲を超えています。"}};
const Notice kRange2[] = {
    {id::kSwell2DirectionRange, "Number Impossable",
     "Error: Input data is out of range.\nIt must be \"01<=Swell dir<=36,//,00\""},
    {id::kSwell2DirectionRange, "入力できない値です",
     "エラー：（01<=うねりの方向<=36,//,00）\nの範囲を超えています。"}};
const Notice kPair[] = {{id::kSwell2DirectionMustBeUnknown, "Number Impossable2",
                         "Error: Input data is wrong. It must be \"Shell 2 Dir = //\""},
                        {id::kSwell2DirectionMustBeUnknown, "入力できない値です",
                         "エラー：うねり2の方向は「//」でなければなりません。"}};
const Notice kPeriods[] = {
    {id::kSwellPeriodRange, "Number Impossable",
     "Error: Input data is out of range.\nIt must be \"00<=Swell period<30,//\""},
    {id::kSwellPeriodRange, "入力できない値です",
     "エラー：（00<=うねりの周期<30,//）\nの範囲を超えています。"}};
const Notice kHeights[] = {
    {id::kWaveHeightRange, "Number Impossable",
     "Error: Input data is out of range.\nIt must be \"0.0<=Wave height<=14.5,//\""},
    {id::kWaveHeightRange, "入力できない値です",
     "エラー：（0.0<=波高<=14.5,//）\nの範囲を超えています。"}};

struct Refusal {
  CWaveField CSwellWaveDlg::*field;
  const char* typed;
  const Notice* notice;  ///< English, Japanese
};
const Refusal kRefusals[] = {
    {&CSwellWaveDlg::direction1, "", kNumber},     {&CSwellWaveDlg::direction1, "x", kNumber},
    {&CSwellWaveDlg::direction1, "/", kNumber},    {&CSwellWaveDlg::direction1, "37", kRange1},
    {&CSwellWaveDlg::direction1, "98", kRange1},   {&CSwellWaveDlg::direction1, "-1", kRange1},
    {&CSwellWaveDlg::period1, "", kNumber},        {&CSwellWaveDlg::period1, "*", kNumber},
    {&CSwellWaveDlg::period1, "30", kPeriods},     {&CSwellWaveDlg::period1, "99", kPeriods},
    {&CSwellWaveDlg::height1, "", kNumber},        {&CSwellWaveDlg::height1, "1,5", kNumber},
    {&CSwellWaveDlg::height1, "14.6", kHeights},   {&CSwellWaveDlg::direction2, "", kNumber},
    {&CSwellWaveDlg::direction2, "\xff", kNumber}, {&CSwellWaveDlg::direction2, "99", kRange2},
    {&CSwellWaveDlg::direction2, "37", kRange2},   {&CSwellWaveDlg::period2, "", kNumber},
    {&CSwellWaveDlg::period2, "30", kPeriods},     {&CSwellWaveDlg::height2, "", kNumber},
    {&CSwellWaveDlg::height2, "-1", kHeights}};

// The field before or behind it.
CWaveField& another(CSwellWaveDlg& screen, CWaveField CSwellWaveDlg::*field) {
  return field == &CSwellWaveDlg::direction1 ? screen.period1 : screen.direction1;
}

TEST(Swell, RefusesAnEmptyOrWrongFieldThatIsLeft) {
  for (int japanese = 0; japanese < 2; ++japanese) {
    for (const Refusal& row : kRefusals) {
      SCOPED_TRACE(std::string(row.typed) + " in " + std::to_string(&row - kRefusals));
      Swell s(kTwoSwells, {true, true}, kBothLanguages[japanese]);
      CWaveField& field = s.screen.*row.field;
      ASSERT_TRUE(fakes::enter(s.screen, field, row.typed));
      const Notice& notice = row.notice[japanese];
      wave_checks::refused(s.world, s.screen, field, notice,
                           [&] { s.screen.move_focus(another(s.screen, row.field)); });
      wave_checks::refused(s.world, s.screen, field, notice, [&] { s.ok(); });
      wave_checks::refused(s.world, s.screen, field, notice,
                           [&] { s.screen.key(ui::Key::kEnter); });
      s.screen.key(ui::Key::kEscape);
      EXPECT_EQ(s.screen.result(), ui::kCancel);
      EXPECT_TRUE(s.screen.values() == kTwoSwells);
    }
  }
}

TEST(Swell, HelpSkipsTheCheckAndOkMakesUpForIt) {
  for (const Refusal& row : kRefusals) {
    Swell s(kTwoSwells);
    ASSERT_TRUE(fakes::enter(s.screen, s.screen.*row.field, row.typed));
    s.screen.press(s.screen.help);
    EXPECT_EQ(s.world.help_viewer.shown,
              std::vector<std::string>{"C:\\program\\help\\Kavrel_E.CHM::/Capter11-11_E.htm"});
    wave_checks::refused(s.world, s.screen, s.screen.*row.field, row.notice[0], [&] { s.ok(); });
  }
}

// A wrong figure is refused before the focus goes anywhere; an empty field may still be answered by
// something else than what is typed.
TEST(Swell, AnEmptyFieldMayBeLeftForWhatCanAnswerForIt) {
  for (const char* const name : {"count", "period1_unknown", "height2_unknown", "length1"}) {
    Swell s(kTwoSwells);
    ui::Control& to = *s.screen.find(name);
    ASSERT_TRUE(fakes::enter(s.screen, s.screen.period1, ""));
    EXPECT_TRUE(s.screen.move_focus(to)) << name;
    // It was not answered.
    s.world.windows.expect(id::kNotANumber);
    s.ok();
    EXPECT_EQ(s.screen.focused(), &s.screen.period1);
    EXPECT_FALSE(s.screen.result());
    s.screen.type(s.screen.period1, "x");
    wave_checks::refused(s.world, s.screen, s.screen.period1, kNumber[0],
                         [&] { s.screen.move_focus(to); });
  }
  Swell answered(kTwoSwells);
  ASSERT_TRUE(fakes::enter(answered.screen, answered.screen.period1, ""));
  answered.screen.move_focus(answered.screen.period1_unknown);
  answered.tick(answered.screen.period1_unknown);
  answered.ok();
  EXPECT_EQ(answered.result(), "27|//|2.0|05|12|0.5|");
}

TEST(Swell, DoesNotCheckWhatAChoiceOrABoxClearedOrLocked) {
  const auto refused_text = [](Swell& s) {
    ASSERT_TRUE(fakes::enter(s.screen, s.screen.direction2, "99"));
    s.screen.press(s.screen.help);  // the check waits
  };
  for (const Count count : {kOne, kNone, kNotObserved}) {
    Swell s(kTwoSwells);
    refused_text(s);
    s.choose(count);
    s.ok();
    EXPECT_EQ(s.screen.result(), ui::kOk) << count;
  }
  for (CWaveBox CSwellWaveDlg::*const box :
       {&CSwellWaveDlg::direction1_unknown, &CSwellWaveDlg::direction2_unknown}) {
    Swell s(kTwoSwells);
    refused_text(s);
    s.tick(s.screen.*box);
    s.ok();
    EXPECT_EQ(s.screen.result(), ui::kOk);
  }
}

// Setting a figure aside and taking it up again is no check of it.
TEST(Swell, ChecksByOkWhatComesBackUnchecked) {
  for (const Refusal& row : kRefusals) {
    const auto typed = [&](Swell& s) {
      ASSERT_TRUE(fakes::enter(s.screen, s.screen.*row.field, row.typed));
      s.screen.press(s.screen.help);  // the check waits
    };
    for (const Count count : {kOne, kNone, kNotObserved}) {
      Swell s(kTwoSwells);
      typed(s);
      s.choose(count);
      s.choose(kTwoOrMore);
      wave_checks::refused(s.world, s.screen, s.screen.*row.field, row.notice[0], [&] { s.ok(); });
    }
    // Unticked, the box of the first direction empties it.
    if (row.field == &CSwellWaveDlg::direction1) continue;
    Swell s(kTwoSwells);
    typed(s);
    ui::Control& box = *s.screen.find((s.screen.*row.field).name + "_unknown");
    s.tick(box);
    s.tick(box, false);
    wave_checks::refused(s.world, s.screen, s.screen.*row.field, row.notice[0], [&] { s.ok(); });
  }
}

TEST(Swell, WhatIsTypedIsKeptInItsForm) {
  struct Row {
    CWaveField CSwellWaveDlg::*field;
    const char* typed;
    const char* result;
  };
  for (const Row& row : {Row{&CSwellWaveDlg::direction1, "5", "05|08|2.0|05|12|0.5|"},
                         Row{&CSwellWaveDlg::direction1, "３６", "36|08|2.0|05|12|0.5|"},
                         Row{&CSwellWaveDlg::direction1, "00", "00|08|2.0|05|12|0.5|"},
                         Row{&CSwellWaveDlg::direction1, "//", "//|08|2.0|05|12|0.5|"},
                         Row{&CSwellWaveDlg::period1, "9", "27|09|2.0|05|12|0.5|"},
                         Row{&CSwellWaveDlg::period2, "//", "27|08|2.0|05|//|0.5|"},
                         Row{&CSwellWaveDlg::height1, "3", "27|08|3.0|05|12|0.5|"},
                         Row{&CSwellWaveDlg::height1, ".5", "27|08|0.5|05|12|0.5|"},
                         Row{&CSwellWaveDlg::height2, "< 0.25", "27|08|2.0|05|12|0.2|"},
                         Row{&CSwellWaveDlg::height2, "//", "27|08|2.0|05|12|//|"},
                         Row{&CSwellWaveDlg::direction2, "//", "27|08|2.0|//|12|0.5|"},
                         Row{&CSwellWaveDlg::direction2, "0", "27|08|2.0|00|12|0.5|"}}) {
    Swell s(kTwoSwells);
    ASSERT_TRUE(fakes::enter(s.screen, s.screen.*row.field, row.typed));
    s.ok();
    EXPECT_EQ(s.screen.result(), ui::kOk) << row.result;
    EXPECT_EQ(s.result(), row.result);
  }
}

TEST(Swell, APeriodBeyondTheLinesIsAskedAboutOnce) {
  Swell s(kTwoSwells);
  ASSERT_TRUE(fakes::enter(s.screen, s.screen.period2, "26"));
  s.world.windows.expect(id::kSwellPeriodQuestion, "no");
  s.ok();
  EXPECT_FALSE(s.screen.result());
  EXPECT_EQ(s.screen.focused(), &s.screen.period2);
  s.world.windows.expect(id::kSwellPeriodQuestion, "yes");
  s.screen.move_focus(s.screen.height2);
  s.screen.move_focus(s.screen.period2);
  s.ok();
  EXPECT_EQ(s.result(), "27|08|2.0|05|26|0.5|");
}

TEST(Swell, AFirstDirectionUnknownBesideASecondOneIsRefusedByOk) {
  for (int japanese = 0; japanese < 2; ++japanese) {
    Swell opened({{"99", "", ""}, {"05", "", ""}}, {true, true}, kBothLanguages[japanese]);
    wave_checks::refused(opened.world, opened.screen, opened.screen.direction2, kPair[japanese],
                         [&] { opened.ok(); });
    opened.screen.type(opened.screen.direction2, "//");
    opened.ok();
    EXPECT_EQ(opened.result(), "99|||//|||");

    Swell typed(kTwoSwells, {true, true}, kBothLanguages[japanese]);
    ASSERT_TRUE(fakes::enter(typed.screen, typed.screen.direction1, "99"));
    typed.screen.move_focus(typed.screen.direction2);
    wave_checks::refused(typed.world, typed.screen, typed.screen.direction2, kPair[japanese],
                         [&] { typed.ok(); });
    typed.tick(typed.screen.direction2_unknown);
    typed.ok();
    EXPECT_EQ(typed.result(), "99|08|2.0|//|12|0.5|");
  }
  for (const char* const second : {"", "00", "36"}) {
    Swell s({{"99", "", ""}, {second, "", ""}});
    wave_checks::refused(s.world, s.screen, s.screen.direction2, kPair[0], [&] { s.ok(); });
  }
}

// ---- One of both not observed on this ship

TEST(Swell, WhatTheShipDoesNotObserveIsLockedWhateverIsChosen) {
  for (const Count count : {kTwoOrMore, kOne, kNone, kNotObserved}) {
    Swell s({{"27", "08", "2.0"}, {"", "", ""}}, {true, false});
    s.choose(count);
    EXPECT_EQ(s.open().substr(3), "---");
    EXPECT_EQ(s.boxes().substr(s.boxes().size() - 9), "(o)(o)(o)");
    EXPECT_FALSE(s.screen.length2.enabled);
    EXPECT_EQ(s.screen.direction2.why_locked,
              "Not observed on this ship (menu \"Observation item\")");
    s.ok();
    EXPECT_EQ(s.screen.result(), ui::kOk);
    EXPECT_EQ(s.screen.values().second, (CSwellWaveDlg::Swell{"", "", ""}));
  }
  Swell first({{"", "", ""}, {"05", "12", "0.5"}}, {false, true});
  EXPECT_EQ(first.open(), "---ooo");
  EXPECT_EQ(first.boxes().substr(0, 9), "(o)(o)(o)");
  EXPECT_FALSE(first.screen.length1.enabled);
}

TEST(Swell, AFirstDirectionUnknownNeedsNoSecondOneThatTheShipDoesNotObserve) {
  Swell s({{"99", "", ""}, {"", "", ""}}, {true, false});
  s.ok();
  EXPECT_EQ(s.screen.result(), ui::kOk);
  EXPECT_EQ(s.result(), "99||||||");
}

// A field that is locked could not be put right.
TEST(Swell, AFirstDirectionThatTheShipDoesNotObserveSaysNothingOfTheSecondOne) {
  for (const Count count : {kTwoOrMore, kOne, kNone, kNotObserved}) {
    Swell s({{"99", "", ""}, {"05", "12", "0.5"}}, {false, true});
    s.choose(count);
    s.ok();
    EXPECT_EQ(s.screen.result(), ui::kOk) << count;
    EXPECT_EQ(s.screen.values().first, (CSwellWaveDlg::Swell{"99", "", ""}));
  }
}

// ---- The period from the wave length

// Presses the button and enters a length.
void by_length(Swell& s, ui::Button& button, const std::string& metres, const char* close) {
  s.world.windows.expect_screen("CWaveLengthDlg", [=](ui::Screen& screen) {
    fakes::enter(screen, *screen.find("length"), metres);
    screen.press(*screen.find(close));
  });
  s.screen.press(button);
}

TEST(Swell, TakesThePeriodOfAWaveLengthIntoTheSwellItWasAskedFor) {
  Swell s(kTwoSwells);
  by_length(s, s.screen.length1, "156", "ok");
  EXPECT_EQ(s.shown(), "27|10|2.0|05|12|0.5|");
  by_length(s, s.screen.length2, "39", "ok");
  EXPECT_EQ(s.shown(), "27|10|2.0|05|05|0.5|");
  by_length(s, s.screen.length2, "351", "cancel");
  EXPECT_EQ(s.shown(), "27|10|2.0|05|05|0.5|");
  s.ok();
  EXPECT_EQ(s.result(), "27|10|2.0|05|05|0.5|");
}

TEST(Swell, APeriodOfAWaveLengthIsNoUnknownOne) {
  Swell s({{"27", "//", "2.0"}, {"05", "", ""}});
  by_length(s, s.screen.length1, "156", "ok");
  EXPECT_EQ(s.shown(), "27|10|2.0|05|||");
  EXPECT_EQ(s.boxes(), "oooooo");
  EXPECT_EQ(s.open(), "oooooo");
  // From an empty period too, which is what the button is for.
  s.screen.move_focus(s.screen.period2);
  by_length(s, s.screen.length2, "39", "ok");
  EXPECT_EQ(s.shown(), "27|10|2.0|05|05||");
}

struct Length {
  explicit Length(text::Language language = text::Language::kEnglish) : screen(world.services) {
    world.texts.language = language;
    screen.open();
  }
  fakes::World world;
  CWaveLengthDlg screen;
};

TEST(WaveLength, ShowsThePeriodWhileItIsTypedAndHandsItBack) {
  struct Row {
    const char* metres;
    const char* period;
  };
  for (const Row& row : {Row{"39", "05"},
                         {"156", "10"},
                         {"351", "15"},
                         {"624.3", "20"},
                         {"975", "25"},
                         {"1.6", "01"},
                         {"１５６", "10"},
                         {"100", "08"}}) {
    Length l;
    l.screen.type(l.screen.length, row.metres);
    EXPECT_EQ(l.screen.period_shown.content, row.period) << row.metres;
    l.screen.key(ui::Key::kEnter);
    EXPECT_EQ(l.screen.result(), ui::kOk);
    EXPECT_EQ(l.screen.period(), row.period);
  }
}

TEST(WaveLength, RefusesWhatGivesNoPeriodThatIsReported) {
  struct Row {
    const char* metres;
    text::Id message;
    const char* english;
    const char* japanese;
  };
  const Row rows[] = {
      {"", id::kWaveLengthNoNumber, "The wave length must be a number in metres.",
       "波長はメートル単位の数字で入力してください。"},
      {"x", id::kWaveLengthNoNumber, "The wave length must be a number in metres.",
       "波長はメートル単位の数字で入力してください。"},
      {"0", id::kWaveLengthNoNumber, "The wave length must be a number in metres.",
       "波長はメートル単位の数字で入力してください。"},
      {"-5", id::kWaveLengthNoNumber, "The wave length must be a number in metres.",
       "波長はメートル単位の数字で入力してください。"},
      {"1.5", id::kWaveLengthTooShort, "A wave of this length has a period under 1 second.",
       "この波長の波の周期は1秒未満です。"},
      {"976", id::kWaveLengthTooLong, "A wave of this length has a period over 25 seconds.",
       "この波長の波の周期は25秒を超えます。"},
      {"999999", id::kWaveLengthTooLong, "A wave of this length has a period over 25 seconds.",
       "この波長の波の周期は25秒を超えます。"}};
  for (int japanese = 0; japanese < 2; ++japanese) {
    for (const Row& row : rows) {
      Length l(kBothLanguages[japanese]);
      l.screen.type(l.screen.length, row.metres);
      EXPECT_EQ(l.screen.period_shown.content, "") << row.metres;
      wave_checks::refused(
          l.world, l.screen, l.screen.length,
          {row.message, "KAVREL for WIN", japanese == 1 ? row.japanese : row.english},
          [&] { l.screen.key(ui::Key::kEnter); });
      EXPECT_EQ(l.screen.period(), "");
      l.screen.key(ui::Key::kEscape);
      EXPECT_EQ(l.screen.result(), ui::kCancel);
    }
  }
}

// ---- Drawings

bool draws(const ui::Picture& picture, const std::string& line) {
  const auto lines = ui::describe(*picture.drawing);
  return std::find(lines.begin(), lines.end(), line) != lines.end();
}

int arrows(const ui::Picture& rose) {
  const auto lines = ui::describe(*rose.drawing);
  return static_cast<int>(std::count_if(lines.begin(), lines.end(), [](const std::string& line) {
    return line.starts_with("thick line mark");
  }));
}

TEST(Swell, DrawsWhatIsEntered) {
  Swell s({{"09", "08", "2.0"}, {"18", "12", "0.2"}});
  // From the east and from the south.
  EXPECT_TRUE(draws(s.screen.rose, "thick line mark (0.9 0) (0.2 0)"));
  EXPECT_TRUE(draws(s.screen.rose, "thick line mark (0 -0.9) (0 -0.2)"));
  EXPECT_TRUE(draws(s.screen.side, "text text \"1: 2.0 m\" above (56 2)"));
  EXPECT_TRUE(draws(s.screen.side, "text text \"2: <0.25 m\" above (85.3333 2)"));
  s.screen.type(s.screen.direction1, "36");
  EXPECT_TRUE(draws(s.screen.rose, "thick line mark (0 0.9) (0 0.2)"));
  s.choose(kOne);
  EXPECT_EQ(arrows(s.screen.rose), 1);
  s.choose(kNone);
  EXPECT_EQ(arrows(s.screen.rose), 0);
  for (const char* const nowhere : {"", "//", "99", "00", "37", "x"}) {
    Swell none({{nowhere, "", ""}, {nowhere, "", ""}});
    EXPECT_EQ(arrows(none.screen.rose), 0) << nowhere;
  }
}

TEST(Swell, ReadsAsItShould) {
  Swell s(kTwoSwells);
  EXPECT_EQ(s.screen.title(), "Swell wave");
  const std::pair<const ui::Control*, const char*> captions[] = {
      {&s.screen.observation_group, "Swell wave observation"},
      {&s.screen.rose_group, "Swell wave direction"},
      {&s.screen.swell1_group, "Swell wave 1"},
      {&s.screen.swell2_group, "Swell wave 2"},
      {&s.screen.direction1, "Direction"},
      {&s.screen.period2, "Period (s)"},
      {&s.screen.height1, "Height (m)"},
      {&s.screen.direction2_unknown, "Direction is unknown"},
      {&s.screen.period1_unknown, "Period is unknown"},
      {&s.screen.height2_unknown, "Height is unknown"},
      {&s.screen.length1, "Period is calculated from wave length"},
      {&s.screen.rose, "Swell wave direction"}};
  for (const auto& [control, caption] : captions) EXPECT_EQ(s.screen.caption(*control), caption);
  EXPECT_EQ(s.screen.count.items, (std::vector<std::string>{"Two or more swell", "One swell wave",
                                                            "No swell wave", "Not observed"}));
  s.world.japanese();
  for (const auto& [control, caption] : captions) EXPECT_NE(s.screen.caption(*control), caption);
}

}  // namespace
