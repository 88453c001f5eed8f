// Ice accretion and the concentration of sea ice.

#include <gtest/gtest.h>

#include <functional>

#include "codetables/CICECiDlg.h"
#include "codetables/CSeaIceDialog.h"
#include "fakes/fake_ports.h"
#include "text/ids.h"
#include "text/texts.h"

namespace {

namespace id = text::id;
using Values = CSeaIceDialog::Values;

// What a record may hold without being one of the codes.
constexpr const char* kOdd[] = {"",   " ", "    ", "x",  "-1", "*",  "\xff",
                                "x9", "+", "99",   "//", "0.", "１", "123456789"};

struct Line {
  const char* code;
  const char* english;
  const char* japanese;
};

// Typed from the manual on codes: tables 1751 and 3551.
const std::vector<Line> kKinds = {
    {"1", "Icing from ocean spray", "海水のしぶきによる着氷"},
    {"2", "Icing from fog", "霧による着氷"},
    {"3", "Icing from spray and fog", "しぶきと霧による着氷"},
    {"4", "Icing from rain", "雨による着氷"},
    {"5", "Icing from spray and rain", "しぶきと雨による着氷"},
};
const std::vector<Line> kRates = {
    {"0", "Ice not building up", "着氷は成長していない"},
    {"1", "Ice building up slowly", "着氷がゆっくり成長している"},
    {"2", "Ice building up rapidly", "着氷が急速に成長している"},
    {"3", "Ice melting or breaking up slowly", "着氷がゆっくり融解または剥離している"},
    {"4", "Ice melting or breaking up rapidly", "着氷が急速に融解または剥離している"},
};
// Table 0639, in the three parts that the questions lead to.
const std::vector<Line> kBeyond = {
    {"0", "No sea ice in sight", "視界内に海氷なし"},
    {"1",
     "Ship in open lead more than 1.0 nautical mile wide, or in fast ice with boundary beyond "
     "limit of visibility",
     "船は幅1.0海里を超える開けた水路の中、または境界が視程外にある定着氷の中"},
    {"/",
     "Unable to report, because of darkness, lack of visibility, or because ship is more than 0.5 "
     "nautical mile away from ice edge",
     "暗闇、視程不良、または船が氷縁から0.5海里を超えて離れているため通報できない"},
};
const std::vector<Line> kUniform = {
    {"2", "Concentration less than 3/10 (3/8), open water or very open pack ice",
     "密接度3/10（3/8）未満、開放水面または分離流氷"},
    {"3", "4/10 to 6/10 (3/8 to less than 6/8), open pack ice",
     "密接度4/10～6/10（3/8以上6/8未満）、疎流氷"},
    {"4", "7/10 to 8/10 (6/8 to less than 7/8), close pack ice",
     "密接度7/10～8/10（6/8以上7/8未満）、密流氷"},
    {"5", "9/10 or more, but not 10/10 (7/8 to less than 8/8), very close pack ice",
     "密接度9/10以上10/10未満（7/8以上8/8未満）、最密流氷"},
};
const std::vector<Line> kNotUniform = {
    {"6", "Strips and patches of pack ice with open water between",
     "帯状または斑状の流氷、その間は開放水面"},
    {"7",
     "Strips and patches of close or very close pack ice with areas of lesser concentration "
     "between",
     "帯状または斑状の密流氷または最密流氷、その間は密接度のより小さい氷域"},
    {"8", "Fast ice with open water, very open or open pack ice to seaward of the ice boundary",
     "定着氷、その境界の沖側は開放水面、分離流氷または疎流氷"},
    {"9", "Fast ice with close or very close pack ice to seaward of the ice boundary",
     "定着氷、その境界の沖側は密流氷または最密流氷"},
};

void expect_lines(const ui::Control& choice, const std::vector<Line>& lines, bool japanese) {
  ASSERT_EQ(choice.items.size(), lines.size());
  ASSERT_EQ(choice.item_codes.size(), lines.size());
  for (std::size_t i = 0; i < lines.size(); ++i) {
    EXPECT_EQ(choice.item_codes[i], lines[i].code);
    EXPECT_EQ(choice.items[i], japanese ? lines[i].japanese : lines[i].english);
  }
}

// ---- Ice accretion

// The dialog on these figures, handed to the officer; what it gives when he ends with OK, nothing
// otherwise.
std::optional<Values> play(fakes::World& world, const Values& record,
                           const std::function<void(CSeaIceDialog&)>& act) {
  CSeaIceDialog dialog(world.services, record);
  dialog.open();
  act(dialog);
  if (dialog.result() != ui::kOk) return std::nullopt;
  return dialog.values();
}

void ok(ui::Screen& dialog) {
  dialog.press(*dialog.find("ok"));
}

bool same(const Values& a, const Values& b) {
  return a.Is == b.Is && a.EsEs == b.EsEs && a.Rs == b.Rs;
}

TEST(IceAccretion, ShowsItsHeadingsAndLinesInBothLanguages) {
  for (const bool japanese : {false, true}) {
    fakes::World world;
    if (japanese) world.japanese();
    CSeaIceDialog dialog(world.services, {});
    dialog.open();
    const auto caption = [&](const ui::Control& c) { return dialog.caption(c); };
    EXPECT_EQ(dialog.title(), japanese ? "船体着氷" : "Ice accretion on ships");
    EXPECT_EQ(caption(dialog.kind_group), japanese ? "着氷の原因" : "Kind of ice accretion");
    EXPECT_EQ(caption(dialog.thickness), japanese ? "着氷の厚さ" : "Thickness of ice accretion");
    EXPECT_EQ(caption(dialog.rate_heading), japanese ? "着氷の変化" : "Speed of ice accretion");
    EXPECT_EQ(caption(dialog.rate_group),
              japanese ? "[着氷の変化（3時間前との比較）]"
                       : "[Speed of ice accretion (Compare with 3 hours before)]");
    expect_lines(dialog.kind, kKinds, japanese);
    expect_lines(dialog.rate, kRates, japanese);
  }
}

TEST(IceAccretion, OffersEachCentimetreInTwoFigures) {
  fakes::World world;
  const CSeaIceDialog dialog(world.services, {});
  ASSERT_EQ(dialog.thickness.items.size(), 100U);
  EXPECT_EQ(dialog.thickness.items[0], "00");
  EXPECT_EQ(dialog.thickness.items[7], "07");
  EXPECT_EQ(dialog.thickness.items[99], "99");
  EXPECT_EQ(dialog.thickness.max_length, 4);
}

TEST(IceAccretion, GivesTheCodeOfEachKindAndOpensOnItAgain) {
  for (std::size_t i = 0; i < kKinds.size(); ++i) {
    fakes::World world;
    const auto given = play(world, {}, [&](CSeaIceDialog& dialog) {
      EXPECT_EQ(dialog.kind.selected, -1);
      dialog.choose(dialog.kind, static_cast<int>(i));
      ok(dialog);
    });
    ASSERT_TRUE(given);
    EXPECT_TRUE(same(*given, {kKinds[i].code, "", ""})) << kKinds[i].code;
    play(world, *given, [&](CSeaIceDialog& dialog) {
      EXPECT_EQ(dialog.kind.selected_text(), kKinds[i].english);
      EXPECT_EQ(dialog.rate.selected, -1);
    });
  }
}

TEST(IceAccretion, GivesTheCodeOfEachSpeedAndOpensOnItAgain) {
  for (std::size_t i = 0; i < kRates.size(); ++i) {
    fakes::World world;
    const auto given = play(world, {}, [&](CSeaIceDialog& dialog) {
      EXPECT_EQ(dialog.rate.selected, -1);
      dialog.choose(dialog.rate, static_cast<int>(i));
      ok(dialog);
    });
    ASSERT_TRUE(given);
    EXPECT_TRUE(same(*given, {"", "", kRates[i].code})) << kRates[i].code;
    play(world, *given, [&](CSeaIceDialog& dialog) {
      EXPECT_EQ(dialog.rate.selected_text(), kRates[i].english);
      EXPECT_EQ(dialog.kind.selected, -1);
    });
  }
}

TEST(IceAccretion, ReopensKind3WithSprayAndFogAndGives4ForRain) {
  fakes::World world;
  const auto given = play(world, {"3", "", ""}, [](CSeaIceDialog& dialog) {
    EXPECT_EQ(dialog.kind.selected_text(), "Icing from spray and fog");
    fakes::choose_text(dialog, dialog.kind, "Icing from rain");
    ok(dialog);
  });
  ASSERT_TRUE(given);
  EXPECT_EQ(given->Is, "4");
}

TEST(IceAccretion, ReopensSpeed0WithIceNotBuildingUp) {
  fakes::World world;
  play(world, {"", "", "0"}, [](CSeaIceDialog& dialog) {
    EXPECT_EQ(dialog.rate.selected_text(), "Ice not building up");
  });
}

TEST(IceAccretion, FindsItsLinesByTheFiguresOfTheirCodes) {
  for (const Line& kind : kKinds) {
    for (const Line& rate : kRates) {
      fakes::World world;
      const auto given = play(world, {}, [&](CSeaIceDialog& dialog) {
        dialog.move_focus(dialog.kind);
        dialog.find_line(kind.code);
        dialog.move_focus(dialog.rate);
        dialog.find_line(rate.code);
        dialog.key(ui::Key::kEnter);
      });
      ASSERT_TRUE(given);
      EXPECT_TRUE(same(*given, {kind.code, "", rate.code}));
    }
  }
}

TEST(IceAccretion, TakesAThicknessAsTwoFigures) {
  struct Row {
    const char* typed;
    const char* stored;
  };
  for (const Row& row : {Row{"00", "00"}, Row{"0", "00"}, Row{"5", "05"}, Row{"05", "05"},
                         Row{"99", "99"}, Row{" 7 ", "07"}, Row{"８", "08"}, Row{"１２", "12"},
                         Row{"//", "//"}, Row{"/", "//"}, Row{"／／", "//"}}) {
    for (const char* const before : {"", "33", "**"}) {
      fakes::World world;
      const auto given = play(world, {"1", before, "2"}, [&](CSeaIceDialog& dialog) {
        ASSERT_TRUE(fakes::enter(dialog, dialog.thickness, row.typed));
        ok(dialog);
      });
      ASSERT_TRUE(given) << row.typed;
      EXPECT_TRUE(same(*given, {"1", row.stored, "2"})) << row.typed << given->EsEs;
    }
  }
}

TEST(IceAccretion, GivesEachThicknessThatIsChosenAndOpensOnItAgain) {
  for (int line = 0; line < 100; ++line) {
    fakes::World world;
    const auto given = play(world, {}, [&](CSeaIceDialog& dialog) {
      dialog.move_focus(dialog.thickness);
      dialog.choose(dialog.thickness, line);
      ok(dialog);
    });
    ASSERT_TRUE(given);
    EXPECT_EQ(given->EsEs.size(), 2U);
    EXPECT_EQ(std::stoi(given->EsEs), line);
    play(world, *given, [&](CSeaIceDialog& dialog) { EXPECT_EQ(dialog.thickness.selected, line); });
  }
}

// What is refused stays in the field with all else that was entered, and OK stores nothing; the
// right figures then pass.
TEST(IceAccretion, RefusesAThicknessThatIsNoneAndLosesNothing) {
  for (const bool japanese : {false, true}) {
    for (const char* const typed : {"100", "005", "0005", "///", "-5", "+5", "5.0", "5 0", "x", "*",
                                    "**", "5c", "1/", "/5", "5cm", ".", "厚い"}) {
      fakes::World world;
      if (japanese) world.japanese();
      const auto given = play(world, {"2", "12", "3"}, [&](CSeaIceDialog& dialog) {
        dialog.choose(dialog.kind, 4);
        dialog.choose(dialog.rate, 0);
        ASSERT_TRUE(fakes::enter(dialog, dialog.thickness, typed));
        const std::string before = fakes::dump(dialog);
        for (int again = 0; again < 2; ++again) {
          world.windows.expect(id::kIcingThicknessRange);
          ok(dialog);
          EXPECT_EQ(fakes::dump(dialog), before) << typed;
          EXPECT_EQ(dialog.focused(), &dialog.thickness);
          EXPECT_FALSE(dialog.result());
          EXPECT_TRUE(same(dialog.values(), {"2", "12", "3"}));
        }
        fakes::enter(dialog, dialog.thickness, "8");
        ok(dialog);
      });
      ASSERT_TRUE(given) << typed;
      EXPECT_TRUE(same(*given, {"5", "08", "0"})) << typed;
    }
  }
}

TEST(IceAccretion, NamesTheFieldAndWhatItTakesInBothLanguages) {
  EXPECT_EQ(text::bilingual(id::kIcingThicknessRange, text::Language::kEnglish),
            "Error: Input data is out of range.\n"
            "It must be \"00<=Thickness of ice accretion<=99,//\"");
  EXPECT_EQ(text::bilingual(id::kIcingThicknessRange, text::Language::kJapanese),
            "エラー：（00<=着氷の厚さ<=99,//）\nの範囲を超えています。");
}

TEST(IceAccretion, LetsNoMoreThanFourCharactersBeTyped) {
  fakes::World world;
  play(world, {}, [&](CSeaIceDialog& dialog) {
    fakes::enter(dialog, dialog.thickness, "12345");
    EXPECT_EQ(dialog.thickness.content, "1234");
    dialog.press(dialog.cancel);
  });
}

TEST(IceAccretion, KeepsARefusedThicknessForHelpAndChecksItForOk) {
  fakes::World world;
  const auto given = play(world, {}, [&](CSeaIceDialog& dialog) {
    fakes::enter(dialog, dialog.thickness, "x");
    dialog.press(dialog.help);
    EXPECT_EQ(dialog.thickness.content, "x");
    world.windows.expect(id::kIcingThicknessRange);
    ok(dialog);
    EXPECT_FALSE(dialog.result());
    fakes::enter(dialog, dialog.thickness, "3");
    dialog.press(dialog.help);
    ok(dialog);
  });
  ASSERT_TRUE(given);
  EXPECT_EQ(given->EsEs, "03");
}

TEST(IceAccretion, EmptiesAThicknessThatIsWipedOut) {
  for (const char* const wiped : {"", " ", "　"}) {
    fakes::World world;
    const auto given = play(world, {"1", "12", "1"}, [&](CSeaIceDialog& dialog) {
      fakes::enter(dialog, dialog.thickness, wiped);
      ok(dialog);
    });
    ASSERT_TRUE(given);
    EXPECT_TRUE(same(*given, {"1", "", "1"})) << given->EsEs;
  }
}

// Also with the focus gone through all of it, and Help between.
TEST(IceAccretion, ConfirmedAsItOpenedChangesNothing) {
  std::vector<std::string> codes(std::begin(kOdd), std::end(kOdd));
  for (const char* const figures : {"0", "1", "3", "5", "6", "9", "/", " 3", "3 ", "03", "3x", "05",
                                    "5", "99", "100", "１２", "12cm"})
    codes.emplace_back(figures);
  for (const std::string& code : codes) {
    for (const Values& record : {Values{code, "", ""}, Values{"", code, ""}, Values{"", "", code},
                                 Values{code, code, code}}) {
      for (const bool walked : {false, true}) {
        fakes::World world;
        const auto given = play(world, record, [&](CSeaIceDialog& dialog) {
          for (int i = 0; walked && i < 8; ++i) dialog.key(ui::Key::kTab);
          if (walked) {
            dialog.move_focus(dialog.thickness);
            dialog.press(dialog.help);
          }
          ok(dialog);
        });
        ASSERT_TRUE(given) << code;
        EXPECT_TRUE(same(*given, record)) << code;
      }
    }
  }
}

TEST(IceAccretion, LeavesASpeedThatItsTableDoesNotHave) {
  fakes::World world;
  const auto given = play(world, {"1", "05", "5"}, [](CSeaIceDialog& dialog) {
    EXPECT_EQ(dialog.rate.selected, -1);
    dialog.choose(dialog.kind, 1);
    ok(dialog);
  });
  ASSERT_TRUE(given);
  EXPECT_TRUE(same(*given, {"2", "05", "5"}));
}

TEST(IceAccretion, ChangesNothingWhenItIsGivenUp) {
  for (int way = 0; way < 3; ++way) {
    fakes::World world;
    const Values record{"2", "12", "3"};
    CSeaIceDialog dialog(world.services, record);
    dialog.open();
    dialog.choose(dialog.kind, 4);
    dialog.choose(dialog.rate, 0);
    fakes::enter(dialog, dialog.thickness, "x");  // not checked for Cancel
    if (way == 0) dialog.press(dialog.cancel);
    if (way == 1) dialog.key(ui::Key::kEscape);
    if (way == 2) dialog.close_box();
    EXPECT_EQ(dialog.result(), ui::kCancel);
    EXPECT_TRUE(same(dialog.values(), record));
  }
}

// ---- Concentration of sea ice

struct Part {
  const std::vector<Line>& lines;
  int place;    // line of the first question
  int uniform;  // of the second, -1 where it is not asked
};
const Part kParts[] = {{kBeyond, 0, -1}, {kUniform, 1, 0}, {kNotUniform, 1, 1}};

std::optional<std::string> play_ci(fakes::World& world, const std::string& ci,
                                   const std::function<void(CICECiDlg&)>& act) {
  CICECiDlg dialog(world.services, ci);
  dialog.open();
  act(dialog);
  if (dialog.result() != ui::kOk) return std::nullopt;
  return dialog.ci();
}

void answer(CICECiDlg& dialog, const Part& part) {
  dialog.choose(dialog.place, part.place);
  if (part.uniform >= 0) dialog.choose(dialog.uniform, part.uniform);
}

TEST(IceConcentration, AsksItsQuestionsInBothLanguages) {
  for (const bool japanese : {false, true}) {
    fakes::World world;
    if (japanese) world.japanese();
    play_ci(world, "", [&](CICECiDlg& dialog) {
      EXPECT_EQ(dialog.title(),
                japanese ? "海氷の密接度または配列" : "Concentration or arrangement of sea ice");
      EXPECT_EQ(
          dialog.place.items,
          japanese
              ? (std::vector<std::string>{"船は氷の中、または氷縁から0.5海里を超えた所にある",
                                          "船は氷の中、または氷縁から0.5海里以内にある"})
              : (std::vector<std::string>{"Ship in ice or beyond 0.5 nautical mile of ice edge",
                                          "Ship in ice or within 0.5 nautical mile of ice edge"}));
      EXPECT_EQ(dialog.uniform.items,
                japanese ? (std::vector<std::string>{"観測域内の海氷の密接度は一様である",
                                                     "観測域内の海氷の密接度は一様でない"})
                         : (std::vector<std::string>{
                               "Sea ice concentration is uniform in the observation area",
                               "Sea ice concentration is not uniform in the observation area"}));
      EXPECT_EQ(dialog.caption(dialog.list_group),
                japanese ? "海氷の密接度または配列の状態"
                         : "The bearing of concentration or arrangement of sea ice");
      dialog.press(dialog.help);
    });
    EXPECT_EQ(world.help_viewer.shown,
              (std::vector<std::string>{
                  japanese ? "C:\\program\\help\\Kavrel_J.CHM::/Capter11-22_J.htm"
                           : "C:\\program\\help\\Kavrel_E.CHM::/Capter11-22_E.htm"}));
  }
}

TEST(IceConcentration, ShowsTheLinesThatTheAnswersLeaveInBothLanguages) {
  for (const bool japanese : {false, true}) {
    for (const Part& part : kParts) {
      fakes::World world;
      if (japanese) world.japanese();
      play_ci(world, "", [&](CICECiDlg& dialog) {
        answer(dialog, part);
        expect_lines(dialog.concentration, part.lines, japanese);
        EXPECT_EQ(dialog.uniform.enabled, part.place != 0);
      });
    }
  }
}

TEST(IceConcentration, GivesTheCodeOfEachLineAndOpensOnItAgain) {
  for (const Part& part : kParts) {
    for (std::size_t i = 0; i < part.lines.size(); ++i) {
      fakes::World world;
      const auto given = play_ci(world, "", [&](CICECiDlg& dialog) {
        answer(dialog, part);
        dialog.choose(dialog.concentration, static_cast<int>(i));
        ok(dialog);
      });
      ASSERT_TRUE(given);
      EXPECT_EQ(*given, part.lines[i].code);
      const auto again = play_ci(world, *given, [&](CICECiDlg& dialog) {
        EXPECT_EQ(dialog.place.selected, part.place);
        EXPECT_EQ(dialog.uniform.selected, part.uniform);
        EXPECT_EQ(dialog.uniform.enabled, part.place != 0);
        expect_lines(dialog.concentration, part.lines, false);
        EXPECT_EQ(dialog.concentration.selected, static_cast<int>(i));
        ok(dialog);
      });
      EXPECT_EQ(again, given);
    }
  }
}

TEST(IceConcentration, FindsItsLinesByTheFiguresOfTheirCodes) {
  for (const Part& part : kParts) {
    for (const Line& line : part.lines) {
      fakes::World world;
      const auto given = play_ci(world, "", [&](CICECiDlg& dialog) {
        answer(dialog, part);
        dialog.move_focus(dialog.concentration);
        dialog.find_line(line.code);
        dialog.key(ui::Key::kEnter);
      });
      EXPECT_EQ(given, line.code);
    }
  }
}

TEST(IceConcentration, AnswersNothingOnItsOwnForACodeThatIsNone) {
  for (const char* const code : kOdd) {
    if (code == std::string("//") || code == std::string("0.")) continue;
    fakes::World world;
    const auto given = play_ci(world, code, [&](CICECiDlg& dialog) {
      EXPECT_EQ(dialog.place.selected, -1) << code;
      EXPECT_EQ(dialog.uniform.selected, -1);
      EXPECT_TRUE(dialog.concentration.items.empty());
      EXPECT_EQ(dialog.concentration.selected, -1);
      ok(dialog);
    });
    EXPECT_EQ(given, code);
  }
}

TEST(IceConcentration, ConfirmedAsItOpenedChangesNothing) {
  std::vector<std::string> codes(std::begin(kOdd), std::end(kOdd));
  for (const char figure : std::string("0123456789/")) {
    for (const char* const form : {"%", " %", "% ", "0%", "%x", "%."}) {
      std::string code = form;
      codes.push_back(code.replace(code.find('%'), 1, 1, figure));
    }
  }
  for (const std::string& code : codes) {
    for (const bool walked : {false, true}) {
      fakes::World world;
      const auto given = play_ci(world, code, [&](CICECiDlg& dialog) {
        for (int i = 0; walked && i < 8; ++i) dialog.key(ui::Key::kTab);
        ok(dialog);
      });
      EXPECT_EQ(given, code);
    }
  }
}

TEST(IceConcentration, OffersThatNothingCanBeReportedBeyondTheEdgeWhereNothingWasChosen) {
  fakes::World world;
  const auto given = play_ci(world, "", [](CICECiDlg& dialog) {
    dialog.choose(dialog.place, 1);
    dialog.choose(dialog.place, 0);
    EXPECT_EQ(dialog.concentration.selected, 2);
    ok(dialog);
  });
  EXPECT_EQ(given, "/");
}

TEST(IceConcentration, OffersNothingBeyondTheEdgeOnceALineWasChosen) {
  for (const char* const code : {"2", "5", "6", "9"}) {
    fakes::World world;
    const auto given = play_ci(world, code, [](CICECiDlg& dialog) {
      dialog.choose(dialog.place, 0);
      EXPECT_EQ(dialog.concentration.selected, -1);
      ok(dialog);
    });
    EXPECT_EQ(given, code) << "no choice leaves the code";
  }
  fakes::World world;
  play_ci(world, "", [](CICECiDlg& dialog) {
    answer(dialog, kParts[1]);
    dialog.choose(dialog.concentration, 3);
    dialog.choose(dialog.place, 0);
    EXPECT_EQ(dialog.concentration.selected, -1);
    dialog.choose(dialog.place, 1);
    EXPECT_EQ(dialog.concentration.selected_text(), kUniform[3].english) << "and back again";
  });
}

TEST(IceConcentration, AsksTheSecondQuestionWithinTheEdgeOnly) {
  fakes::World world;
  play_ci(world, "7", [](CICECiDlg& dialog) {
    EXPECT_TRUE(dialog.uniform.enabled);
    dialog.choose(dialog.place, 0);
    EXPECT_FALSE(dialog.uniform.enabled);
    dialog.choose(dialog.uniform, 0);  // nothing happens
    expect_lines(dialog.concentration, kBeyond, false);
    dialog.choose(dialog.place, 1);
    EXPECT_TRUE(dialog.uniform.enabled);
    expect_lines(dialog.concentration, kNotUniform, false);
    EXPECT_EQ(dialog.concentration.selected, 1);
  });
}

TEST(IceConcentration, ShowsNoLineBeforeBothQuestionsAreAnswered) {
  fakes::World world;
  play_ci(world, "", [](CICECiDlg& dialog) {
    dialog.choose(dialog.place, 1);
    EXPECT_TRUE(dialog.concentration.items.empty());
    dialog.choose(dialog.uniform, 1);
    expect_lines(dialog.concentration, kNotUniform, false);
    EXPECT_EQ(dialog.concentration.selected, -1);
    ok(dialog);
  });
}

TEST(IceConcentration, DrawsTheCodeThatOkWouldLeave) {
  fakes::World world;
  const auto drawn = [](const CICECiDlg& dialog) {
    EXPECT_EQ(dialog.drawing.visible, !dialog.drawing.drawing->shapes.empty());
    std::string last;
    for (const ui::Shape& shape : dialog.drawing.drawing->shapes) {
      if (const auto* const text = std::get_if<ui::ShortText>(&shape)) last = text->text;
    }
    return last;
  };
  play_ci(world, "", [&](CICECiDlg& dialog) {
    EXPECT_EQ(drawn(dialog), "");
    dialog.choose(dialog.place, 0);
    EXPECT_EQ(drawn(dialog), "ci /");
    answer(dialog, kParts[1]);
    EXPECT_EQ(drawn(dialog), "") << "no choice";
    dialog.choose(dialog.concentration, 1);
    EXPECT_EQ(drawn(dialog), "ci 3: 4/10 - 6/10");
  });
  play_ci(world, "6", [&](CICECiDlg& dialog) {
    EXPECT_EQ(drawn(dialog), "ci 6");
    dialog.choose(dialog.place, 0);
    EXPECT_EQ(drawn(dialog), "ci 6") << "no choice";
  });
}

TEST(IceConcentration, ChangesNothingWhenItIsGivenUp) {
  for (int way = 0; way < 3; ++way) {
    fakes::World world;
    CICECiDlg dialog(world.services, "4");
    dialog.open();
    answer(dialog, kParts[2]);
    dialog.choose(dialog.concentration, 0);
    if (way == 0) dialog.press(dialog.cancel);
    if (way == 1) dialog.key(ui::Key::kEscape);
    if (way == 2) dialog.close_box();
    EXPECT_EQ(dialog.result(), ui::kCancel);
    EXPECT_EQ(dialog.ci(), "4");
  }
}

}  // namespace
