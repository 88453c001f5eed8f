// The three screens of the barometer card.

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "fakes/fake_ports.h"
#include "ship/CFullEmptySelect.h"
#include "ship/CKataInputDlg.h"
#include "ship/CKataSelectDlg.h"
#include "ship/ship_data.h"
#include "text/ids.h"

namespace {

namespace id = text::id;
using fakes::dump;
using fakes::enter;
using ship_test::card_one;
using ship_test::press;
using text::Language;

// The officer in the card type screen.
std::function<void(ui::Screen&)> selects_type(int line) {
  return [line](ui::Screen& screen) {
    screen.choose(*screen.find("card_type"), line);
    press(screen, "ok");
  };
}

// ---- Card type

TEST(CardTypeScreen, ShowsTheCurrentType) {
  for (const CardType type :
       {CardType::kNotChosen, CardType::kHeightAndTemperature, CardType::kTotalCorrection}) {
    fakes::World world;
    CKataSelectDlg screen(world.services, type);
    screen.open();
    EXPECT_EQ(screen.card_type.selected, static_cast<int>(type));
    EXPECT_EQ(screen.card_type.items, (std::vector<std::string>{"1", "2"}));
  }
}

TEST(CardTypeScreen, RefusesOkWithoutAChoice) {
  for (const Language language : {Language::kEnglish, Language::kJapanese}) {
    fakes::World world;
    world.texts.language = language;
    CKataSelectDlg screen(world.services, CardType::kNotChosen);
    screen.open();
    const std::string before = dump(screen);
    world.windows.expect(id::kCardTypeMissing);
    press(screen, "ok");
    EXPECT_FALSE(screen.result());
    EXPECT_EQ(dump(screen), before);
    EXPECT_EQ(screen.focused(), &screen.card_type);
    screen.choose(screen.card_type, 1);
    press(screen, "ok");
    EXPECT_EQ(screen.result(), ui::kOk);
    EXPECT_EQ(screen.type(), CardType::kTotalCorrection);
  }
}

TEST(CardTypeScreen, HasItsTitleAndPromptInBothLanguages) {
  fakes::World world;
  CKataSelectDlg screen(world.services, CardType::kNotChosen);
  EXPECT_EQ(screen.title(), "Select a type of barometer correction card");
  EXPECT_EQ(screen.caption(screen.prompt),
            "Please select a type of your barometer correction card.");
  world.japanese();
  EXPECT_EQ(screen.title(), "気圧計点検の型式の選択");
  EXPECT_EQ(screen.caption(screen.prompt),
            "気圧計点検の型式を選択してください。\r\n（気圧計点検結果に満載時と空船時の補正値がある"
            "場合は左を"
            "、\r\n１つだけの場合は右を選択してください。）");
}

// ---- Loading state

TEST(LoadingStateScreen, RefusesOkWithoutAChoice) {
  for (const Language language : {Language::kEnglish, Language::kJapanese}) {
    fakes::World world;
    world.texts.language = language;
    CFullEmptySelect screen(world.services);
    screen.open();
    EXPECT_EQ(screen.loading_state.selected, -1);
    const std::string before = dump(screen);
    world.windows.expect(id::kLoadingStateMissing);
    press(screen, "ok");
    EXPECT_FALSE(screen.result());
    EXPECT_EQ(dump(screen), before);
    screen.choose(screen.loading_state, 1);
    press(screen, "ok");
    EXPECT_EQ(screen.result(), ui::kOk);
    EXPECT_EQ(screen.state(), LoadingState::kInBallast);
  }
}

TEST(LoadingStateScreen, HasItsTextsInBothLanguages) {
  fakes::World world;
  CFullEmptySelect screen(world.services);
  screen.open();
  EXPECT_EQ(screen.caption(screen.prompt), "Please select at full load or in ballast.");
  EXPECT_EQ(screen.loading_state.items, (std::vector<std::string>{"At full load", "In ballast"}));
}

// ---- Card input: what is shown

TEST(CardScreen, ShowsOnlyWhatTheTypeHas) {
  struct {
    CardType type;
    bool one;
    bool two;
    const char* shown;
  } const rows[] = {{CardType::kHeightAndTemperature, true, false, "1"},
                    {CardType::kTotalCorrection, false, true, "2"},
                    {CardType::kNotChosen, false, false, ""}};
  for (const auto& row : rows) {
    fakes::World world;
    BarometerCard card = card_one();
    card.type = row.type;
    CKataInputDlg screen(world.services, card);
    screen.open();
    EXPECT_EQ(screen.total_correction.visible, row.two) << row.shown;
    for (const char* name :
         {"instrumental_correction", "full_load", "height_full_load", "total_correction_full_load",
          "ballast", "height_ballast", "total_correction_ballast", "loading_state"})
      EXPECT_EQ(screen.find(name)->visible, row.one) << row.shown << name;
    EXPECT_EQ(screen.card_type.content, row.shown);
  }
}

TEST(CardScreen, HasItsTextsInBothLanguages) {
  fakes::World world;
  CKataInputDlg screen(world.services, card_one());
  screen.open();
  EXPECT_EQ(screen.title(), "Inputting of barometer check result");
  const auto caption = [&](const char* name) { return screen.caption(*screen.find(name)); };
  EXPECT_EQ(caption("prompt"),
            "Please input the following items based on barometer correction card.");
  EXPECT_EQ(caption("barometer_check_date"), "Date of barometer check(yyyy/mm/dd)");
  EXPECT_EQ(caption("barometer_check_port"), "Port of barometer check");
  EXPECT_EQ(caption("total_correction"), "Total correction");
  EXPECT_EQ(caption("instrumental_correction"), "Correction for instrumental error");
  EXPECT_EQ(caption("full_load"), "At full load");
  EXPECT_EQ(caption("ballast"), "In ballast");
  EXPECT_EQ(caption("height_ballast"), "Height of barometer\nabove draft (integer)");
  world.japanese();
  EXPECT_EQ(screen.title(), "気圧計点検結果の入力");
  EXPECT_EQ(caption("change_type"), "気圧計点検の形式の変更");
}

TEST(CardScreen, LimitsThePortAndTheHeights) {
  fakes::World world;
  CKataInputDlg screen(world.services, card_one());
  screen.open();
  screen.type(screen.barometer_check_port, "ABCDEFGHIJKLMN");
  EXPECT_EQ(screen.barometer_check_port.content, "ABCDEFGHIJKL");
  screen.type(screen.height_ballast, "1234");
  EXPECT_EQ(screen.height_ballast.content, "123");
}

// ---- Card input: leaving a field

struct LeaveRow {
  const char* field;
  const char* typed;
  text::Id message;
  const char* argument;  // of the message
};

void expect_refused(const LeaveRow& row, Language language, const BarometerCard& card) {
  fakes::World world;
  world.texts.language = language;
  CKataInputDlg screen(world.services, card);
  screen.open();
  ui::Control& field = *screen.find(row.field);
  ASSERT_TRUE(enter(screen, field, row.typed)) << row.field;
  const std::string before = dump(screen);
  world.windows.expect(row.message);
  EXPECT_FALSE(screen.move_focus(screen.ok)) << row.field << " " << row.typed;
  ASSERT_EQ(world.windows.boxes.size(), 1U) << row.field << " " << row.typed;
  EXPECT_EQ(world.windows.boxes[0].text, text::fill(world.texts.get(row.message), {row.argument}));
  EXPECT_EQ(dump(screen), before) << row.field << " " << row.typed;
  EXPECT_EQ(screen.focused(), &field);
  EXPECT_EQ(screen.selection_length(), -1);
  EXPECT_EQ(screen.card(), card);
  // Cancel and Help are not held up.
  EXPECT_TRUE(screen.move_focus(screen.help));
  EXPECT_TRUE(screen.move_focus(field));
  screen.press(screen.cancel);
  EXPECT_EQ(screen.result(), ui::kCancel);
  EXPECT_EQ(screen.card(), card);
}

TEST(CardScreen, RefusesAFieldWhenItIsLeft) {
  const LeaveRow one[] = {
      {"barometer_check_date", "2014/11/16", id::kCheckDateRange, "2014/11/15"},
      {"barometer_check_date", "1999/12/31", id::kCheckDateRange, "2014/11/15"},
      {"barometer_check_date", "2014/02/30", id::kCheckDateRange, "2014/11/15"},
      {"barometer_check_date", "20140809", id::kCheckDateRange, "2014/11/15"},
      {"barometer_check_port", "Málaga", id::kCheckPortCharacter, "á"},
      {"barometer_check_port", "横浜😀", id::kCheckPortCharacter, "😀"},
      {"barometer_check_port", "宁波", id::kCheckPortCharacter, "宁"},
      {"barometer_check_port", "¥", id::kCheckPortCharacter, "¥"},
      {"barometer_check_port", "港\xE6", id::kCheckPortCharacter, "\uFFFD"},
      {"instrumental_correction", "x", id::kInstrumentalNotNumeric, ""},
      {"instrumental_correction", "50.1", id::kInstrumentalRange, ""},
      {"instrumental_correction", "+1.25", id::kOneDecimalOnly, ""},
      {"height_full_load", "1.5", id::kHeightNotInteger, ""},
      {"height_full_load", "201", id::kHeightRange, ""},
      {"height_full_load", "21", id::kHeightRange, ""},
      {"height_ballast", "-9", id::kHeightNotInteger, ""},
      {"height_ballast", "9", id::kHeightRange, ""},
      {"total_correction_full_load", "one", id::kTotalCorrectionNotNumeric, ""},
      {"total_correction_full_load", "2.1", id::kTotalFullLoadRange, ""},
      {"total_correction_full_load", "-50.1", id::kTotalFullLoadRange, ""},
      {"total_correction_full_load", "+1.25", id::kOneDecimalOnly, ""},
      {"total_correction_ballast", "two", id::kTotalCorrectionNotNumeric, ""},
      {"total_correction_ballast", "80.1", id::kTotalBallastRange, ""},
      {"total_correction_ballast", "0.9", id::kTotalBallastRange, ""},
      {"total_correction_ballast", "+1.25", id::kOneDecimalOnly, ""},
  };
  const LeaveRow two[] = {
      {"total_correction", "1,2", id::kTotalCorrectionNotNumeric, ""},
      {"total_correction", "80.1", id::kTotalCorrectionRange, ""},
      {"total_correction", "-50.1", id::kTotalCorrectionRange, ""},
      {"total_correction", "+1.25", id::kOneDecimalOnly, ""},
  };
  for (const Language language : {Language::kEnglish, Language::kJapanese}) {
    for (const LeaveRow& row : one) expect_refused(row, language, card_one());
    for (const LeaveRow& row : two) expect_refused(row, language, fakes::total_card("+0.5"));
  }
}

TEST(CardScreen, NormalisesTheDateWhenItIsLeft) {
  fakes::World world;
  CKataInputDlg screen(world.services, fakes::total_card("+0.5"));
  screen.open();
  ASSERT_TRUE(enter(screen, screen.barometer_check_date, "２０１４ ／ 8 / 9"));
  EXPECT_TRUE(screen.move_focus(screen.ok));
  EXPECT_EQ(screen.barometer_check_date.content, "2014/08/09");
}

TEST(CardScreen, NarrowsFullWidthNumbers) {
  fakes::World world;
  CKataInputDlg screen(world.services, card_one());
  screen.open();
  ASSERT_TRUE(enter(screen, screen.instrumental_correction, "－１．５"));
  ASSERT_TRUE(enter(screen, screen.height_ballast, "２５"));
  EXPECT_TRUE(screen.move_focus(screen.ok));
  EXPECT_EQ(screen.instrumental_correction.content, "-1.5");
  EXPECT_EQ(screen.height_ballast.content, "25");
}

TEST(CardScreen, LetsAnEmptyFieldGoUntilOk) {
  fakes::World world;
  CKataInputDlg screen(world.services, card_one());
  screen.open();
  for (const char* name : {"barometer_check_date", "barometer_check_port", "height_full_load",
                           "total_correction_ballast"}) {
    ASSERT_TRUE(enter(screen, *screen.find(name), "")) << name;
  }
  EXPECT_TRUE(screen.move_focus(screen.ok));
}

TEST(CardScreen, LetsTheDatesPlaceholderGoUntilOkAsksForTheDate) {
  for (const char* const shown : {"yyyy/mm/dd", " yyyy/mm/dd", "ｙｙｙｙ／ｍｍ／ｄｄ"}) {
    fakes::World world;
    BarometerCard card = card_one();
    card.check_date = shown;
    CKataInputDlg screen(world.services, card);
    screen.open();
    ASSERT_TRUE(screen.move_focus(screen.barometer_check_date)) << shown;
    EXPECT_TRUE(screen.move_focus(screen.barometer_check_port)) << shown;
    world.windows.expect(id::kCheckDateMissing);
    screen.press(screen.ok);
    EXPECT_EQ(screen.focused(), &screen.barometer_check_date) << shown;
    EXPECT_FALSE(screen.result()) << shown;
    EXPECT_EQ(screen.card(), card) << shown;
  }
}

// A new card has zeros everywhere: its first height would be above the other's zero.
TEST(CardScreen, TakesANewCardInReadingOrder) {
  fakes::World world;
  BarometerCard card;
  card.type = CardType::kHeightAndTemperature;
  CKataInputDlg screen(world.services, card);
  screen.open();
  for (const auto& [name, value] :
       {std::pair<const char*, const char*>{"barometer_check_date", "2014/1/5"},
        {"barometer_check_port", "KOBE"},
        {"instrumental_correction", "-0.2"},
        {"height_full_load", "15"},
        {"total_correction_full_load", "+1.5"},
        {"height_ballast", "25"},
        {"total_correction_ballast", "+2.7"}})
    ASSERT_TRUE(enter(screen, *screen.find(name), value)) << name;
  screen.choose(screen.loading_state, 0);
  press(screen, "ok");
  EXPECT_EQ(screen.result(), ui::kOk);
  const BarometerCard wanted{"2014/01/05", "KOBE", CardType::kHeightAndTemperature,
                             "+0.0",       "-0.2", LoadingState::kFullLoad,
                             "15",         "+1.5", "25",
                             "+2.7"};
  EXPECT_EQ(screen.card(), wanted);
}

TEST(CardScreen, ComparesWithAPartnerThatWasTyped) {
  fakes::World world;
  BarometerCard card;
  card.type = CardType::kHeightAndTemperature;
  card.check_date = "2014/08/09";
  CKataInputDlg screen(world.services, card);
  screen.open();
  ASSERT_TRUE(enter(screen, screen.height_ballast, "0"));
  ASSERT_TRUE(enter(screen, screen.height_full_load, "15"));
  world.windows.expect(id::kHeightRange);
  EXPECT_FALSE(screen.move_focus(screen.ok));
}

// ---- Card input: OK

struct OkRow {
  const char* rule;
  std::function<void(BarometerCard&)> spoil;
  text::Id message;
  const char* focus;
};

void expect_ok_refused(const OkRow& row, Language language, BarometerCard card) {
  fakes::World world;
  world.texts.language = language;
  row.spoil(card);
  CKataInputDlg screen(world.services, card);
  screen.open();
  // Help lets every field go, so OK has them all to check.
  ASSERT_TRUE(screen.move_focus(screen.help)) << row.rule;
  const std::string before = dump(screen);
  world.windows.expect(row.message);
  press(screen, "ok");
  EXPECT_FALSE(screen.result()) << row.rule;
  EXPECT_EQ(dump(screen), before) << row.rule;
  EXPECT_EQ(screen.card(), card) << row.rule;
  ASSERT_NE(screen.focused(), nullptr);
  EXPECT_EQ(screen.focused()->name, row.focus) << row.rule;
}

// Each row also spoils everything that is checked after it, so the order is checked as well.
TEST(CardScreen, ChecksACardOfType1InOrderAtOk) {
  using Card = BarometerCard;
  const auto wrong_from = [](int n) {
    return [n](Card& card) {
      if (n <= 0) card.total_correction_ballast = "+1.25";
      if (n <= -1) card.total_correction_ballast = "80.1";
      if (n <= -2) card.total_correction_ballast = "x";
      if (n <= -3) card.total_correction_ballast.clear();
      if (n <= -4) card.height_ballast = "9";
      if (n <= -5) card.height_ballast = "x";
      if (n <= -6) card.height_ballast.clear();
      if (n <= -7) card.total_correction_full_load = "+1.25";
      if (n <= -8) card.total_correction_full_load = "-50.1";
      if (n <= -9) card.total_correction_full_load = "x";
      if (n <= -10) card.total_correction_full_load.clear();
      if (n <= -11) card.height_full_load = "201";
      if (n <= -12) card.height_full_load = "x";
      if (n <= -13) card.height_full_load.clear();
      if (n <= -14) card.instrumental_correction = "+1.25";
      if (n <= -15) card.instrumental_correction = "51.25";
      if (n <= -16) card.instrumental_correction = "x";
      if (n <= -17) card.instrumental_correction.clear();
      if (n <= -18) card.type = CardType::kNotChosen;
      if (n <= -19) card.check_port = "";
      if (n <= -20) card.check_date = "2014/11/16";
      if (n <= -21) card.check_date = "";
    };
  };
  const OkRow rows[] = {
      {"two decimals in ballast", wrong_from(0), id::kOneDecimalOnly, "total_correction_ballast"},
      {"range in ballast", wrong_from(-1), id::kTotalBallastRange, "total_correction_ballast"},
      {"no number in ballast", wrong_from(-2), id::kTotalCorrectionNotNumeric,
       "total_correction_ballast"},
      {"nothing in ballast", wrong_from(-3), id::kTotalBallastMissing, "total_correction_ballast"},
      {"height order", wrong_from(-4), id::kHeightRange, "height_full_load"},
      {"height in ballast no number", wrong_from(-5), id::kHeightNotInteger, "height_ballast"},
      {"no height in ballast", wrong_from(-6), id::kHeightBallastMissing, "height_ballast"},
      {"two decimals", wrong_from(-7), id::kOneDecimalOnly, "total_correction_full_load"},
      {"range", wrong_from(-8), id::kTotalFullLoadRange, "total_correction_full_load"},
      {"no number", wrong_from(-9), id::kTotalCorrectionNotNumeric, "total_correction_full_load"},
      {"nothing", wrong_from(-10), id::kTotalFullLoadMissing, "total_correction_full_load"},
      {"height", wrong_from(-11), id::kHeightRange, "height_full_load"},
      {"height no number", wrong_from(-12), id::kHeightNotInteger, "height_full_load"},
      {"no height", wrong_from(-13), id::kHeightFullLoadMissing, "height_full_load"},
      {"instrumental two decimals", wrong_from(-14), id::kOneDecimalOnly,
       "instrumental_correction"},
      {"instrumental range before decimals", wrong_from(-15), id::kInstrumentalRange,
       "instrumental_correction"},
      {"instrumental no number", wrong_from(-16), id::kInstrumentalNotNumeric,
       "instrumental_correction"},
      {"no instrumental", wrong_from(-17), id::kInstrumentalMissing, "instrumental_correction"},
      {"no type", wrong_from(-18), id::kCardTypeMissing, "change_type"},
      {"no port", wrong_from(-19), id::kCheckPortMissing, "barometer_check_port"},
      {"date", wrong_from(-20), id::kCheckDateRange, "barometer_check_date"},
      {"no date", wrong_from(-21), id::kCheckDateMissing, "barometer_check_date"},
  };
  for (const Language language : {Language::kEnglish, Language::kJapanese}) {
    for (const OkRow& row : rows) expect_ok_refused(row, language, card_one());
  }
}

TEST(CardScreen, ChecksACardOfType2AtOk) {
  using Card = BarometerCard;
  const OkRow rows[] = {
      {"nothing", [](Card& c) { c.total_correction.clear(); }, id::kTotalCorrectionMissing,
       "total_correction"},
      {"no number", [](Card& c) { c.total_correction = "x"; }, id::kTotalCorrectionNotNumeric,
       "total_correction"},
      {"range", [](Card& c) { c.total_correction = "80.1"; }, id::kTotalCorrectionRange,
       "total_correction"},
      {"decimals", [](Card& c) { c.total_correction = "+1.25"; }, id::kOneDecimalOnly,
       "total_correction"},
  };
  for (const Language language : {Language::kEnglish, Language::kJapanese}) {
    for (const OkRow& row : rows) expect_ok_refused(row, language, fakes::total_card("+0.5"));
  }
}

TEST(CardScreen, AcceptsTheLimits) {
  fakes::World world;
  BarometerCard card = card_one();
  card.instrumental_correction = "-50.0";
  card.height_full_load = "0";
  card.height_ballast = "200";
  card.total_correction_full_load = "-50";
  card.total_correction_ballast = "80.0";
  card.check_date = "2000/01/01";
  CKataInputDlg screen(world.services, card);
  screen.open();
  press(screen, "ok");
  EXPECT_EQ(screen.result(), ui::kOk);
  EXPECT_EQ(screen.card(), card);
}

// What was typed and let go through Help is still checked.
TEST(CardScreen, ChecksAtOkWhatHelpLetGo) {
  fakes::World world;
  CKataInputDlg screen(world.services, card_one());
  screen.open();
  ASSERT_TRUE(enter(screen, screen.instrumental_correction, "９９"));
  press(screen, "help");
  EXPECT_EQ(world.help_viewer.shown.size(), 1U);
  world.windows.expect(id::kInstrumentalRange);
  press(screen, "ok");
  EXPECT_FALSE(screen.result());
  EXPECT_EQ(screen.focused(), &screen.instrumental_correction);
}

TEST(CardScreen, AsksForTheLoadingStateLast) {
  fakes::World world;
  BarometerCard card = card_one();
  card.loading_state = LoadingState::kNotChosen;
  CKataInputDlg screen(world.services, card);
  screen.open();
  const std::string before = dump(screen);
  world.windows.expect_screen("CFullEmptySelect", [](ui::Screen& s) { press(s, "cancel"); });
  press(screen, "ok");
  EXPECT_FALSE(screen.result());
  EXPECT_EQ(dump(screen), before);
  EXPECT_EQ(screen.card(), card);
  world.windows.expect_screen("CFullEmptySelect", [](ui::Screen& s) {
    s.choose(*s.find("loading_state"), 1);
    press(s, "ok");
  });
  press(screen, "ok");
  EXPECT_EQ(screen.result(), ui::kOk);
  card.loading_state = LoadingState::kInBallast;
  EXPECT_EQ(screen.card(), card);
}

TEST(CardScreen, DoesNotAskForTheLoadingStateOfACardOfType2) {
  fakes::World world;
  CKataInputDlg screen(world.services, fakes::total_card("+0.5"));
  screen.open();
  press(screen, "ok");
  EXPECT_EQ(screen.result(), ui::kOk);
}

// ---- Card input: another type

TEST(CardScreen, ChangingTheTypeResetsWhatTheNewOneHasNoUseFor) {
  fakes::World world;
  CKataInputDlg screen(world.services, card_one());
  screen.open();
  world.windows.expect_screen("CKataSelectDlg", [](ui::Screen& s) {
    EXPECT_EQ(s.find("card_type")->selected, 0);
    selects_type(1)(s);
  });
  press(screen, "change_type");
  EXPECT_TRUE(screen.total_correction.visible);
  EXPECT_FALSE(screen.height_ballast.visible);
  world.windows.expect_screen("CKataSelectDlg", selects_type(0));
  press(screen, "change_type");
  EXPECT_EQ(screen.instrumental_correction.content, "+0.0");
  EXPECT_EQ(screen.height_full_load.content, "0");
  EXPECT_EQ(screen.height_ballast.content, "0");
  EXPECT_EQ(screen.total_correction_full_load.content, "+0.0");
  EXPECT_EQ(screen.total_correction_ballast.content, "+0.0");
  EXPECT_EQ(screen.loading_state.selected, -1);
  EXPECT_EQ(screen.barometer_check_port.content, "YOKOHAMA");
}

TEST(CardScreen, KeepsWhatWasTypedWhenTheTypeStays) {
  for (const bool cancelled : {true, false}) {
    fakes::World world;
    CKataInputDlg screen(world.services, card_one());
    screen.open();
    ASSERT_TRUE(enter(screen, screen.height_ballast, "33"));
    ASSERT_TRUE(screen.move_focus(screen.change_type));
    const std::string before = dump(screen);
    world.windows.expect_screen("CKataSelectDlg", [&](ui::Screen& s) {
      if (cancelled) {
        s.choose(*s.find("card_type"), 1);
        press(s, "cancel");
      } else {
        press(s, "ok");
      }
    });
    press(screen, "change_type");
    EXPECT_EQ(dump(screen), before);
  }
}

// ---- Card input: the port

TEST(CardScreen, TakesAPortOfTwelveJapaneseCharacters) {
  for (const char* port :
       {"横浜神戸大阪東京名古屋函", "ヨコハマコウベオオサカミ", "ﾖｺﾊﾏ", "能代ダーソ", "PORT A"}) {
    fakes::World world;
    CKataInputDlg screen(world.services, fakes::total_card("+0.5"));
    screen.open();
    ASSERT_TRUE(enter(screen, screen.barometer_check_port, port));
    EXPECT_EQ(screen.barometer_check_port.content, port) << "not cut";
    press(screen, "ok");
    EXPECT_EQ(screen.result(), ui::kOk) << port;
    EXPECT_EQ(screen.card().check_port, port);
  }
}

TEST(CardScreen, ShowsAPortAsTheFileWillKeepIt) {
  fakes::World world;
  CKataInputDlg screen(world.services, fakes::total_card("+0.5"));
  screen.open();
  ASSERT_TRUE(enter(screen, screen.barometer_check_port, "横浜〜神戸　ＡＢ"));
  ASSERT_TRUE(screen.move_focus(screen.ok));
  // The wave dash becomes its full-width twin, and that is narrowed like every sign.
  EXPECT_EQ(screen.barometer_check_port.content, "横浜~神戸 AB");
  ASSERT_TRUE(screen.move_focus(screen.barometer_check_port));
  ASSERT_TRUE(screen.move_focus(screen.ok));
  EXPECT_EQ(screen.barometer_check_port.content, "横浜~神戸 AB") << "once and for all";
}

// A port that nobody typed here is checked by OK: one of a damaged file, or one that is too long.
TEST(CardScreen, RefusesAtOkAPortThatTheFileCanNotKeep) {
  const struct {
    std::string port;
    text::Id message;
    const char* argument;
  } rows[] = {
      {"横浜\uFFFD", id::kCheckPortCharacter, "\uFFFD"},
      {"é", id::kCheckPortCharacter, "é"},
      {"横浜神戸大阪東京名古屋函館", id::kCheckPortTooLong, ""},
      {"YOKOHAMAYOKOHAMAYOKOHAMAY", id::kCheckPortTooLong, ""},
  };
  for (const Language language : {Language::kEnglish, Language::kJapanese}) {
    for (const auto& row : rows) {
      fakes::World world;
      world.texts.language = language;
      BarometerCard card = fakes::total_card("+0.5");
      card.check_port = row.port;
      CKataInputDlg screen(world.services, card);
      screen.open();
      ASSERT_TRUE(screen.move_focus(screen.total_correction));
      const std::string before = dump(screen);
      world.windows.expect(row.message);
      press(screen, "ok");
      EXPECT_FALSE(screen.result()) << row.port;
      ASSERT_EQ(world.windows.boxes.size(), 1U);
      EXPECT_EQ(world.windows.boxes[0].text,
                text::fill(world.texts.get(row.message), {row.argument}));
      EXPECT_EQ(dump(screen), before) << row.port;
      EXPECT_EQ(screen.focused(), &screen.barometer_check_port);
      EXPECT_EQ(screen.card(), card);
    }
  }
}

TEST(CardScreen, TakesTheLongestPortThatFits) {
  for (const char* port : {"横浜神戸大阪東京名古屋函", "YOKOHAMAYOKOHAMAYOKOHAMA"}) {
    fakes::World world;
    BarometerCard card = fakes::total_card("+0.5");
    card.check_port = port;
    CKataInputDlg screen(world.services, card);
    screen.open();
    press(screen, "ok");
    EXPECT_EQ(screen.result(), ui::kOk) << port;
  }
}

// ---- Renewing

TEST(RenewCard, ReplacesTheCardOnlyOnOk) {
  fakes::World world;
  BarometerCard card = fakes::total_card("+0.5");
  world.windows.expect_screen("CKataInputDlg", [](ui::Screen& s) {
    EXPECT_TRUE(enter(s, *s.find("total_correction"), "-1.5"));
    press(s, "cancel");
  });
  EXPECT_FALSE(renew_card(world.services, card));
  EXPECT_EQ(card, fakes::total_card("+0.5"));
  world.windows.expect_screen("CKataInputDlg", [](ui::Screen& s) {
    EXPECT_TRUE(enter(s, *s.find("total_correction"), "-1.5"));
    press(s, "ok");
  });
  EXPECT_TRUE(renew_card(world.services, card));
  EXPECT_EQ(card.total_correction, "-1.5");
}

}  // namespace
