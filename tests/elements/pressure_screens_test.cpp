#include <gtest/gtest.h>

#include "elements/CPresureTendencyDlg.h"
#include "elements/CSeaSurfacePressureDlg.h"
#include "elements/dialog_checks.h"
#include "fakes/sample_ship.h"
#include "text/ids.h"

namespace {

namespace id = text::id;
using TimeChoice = CSeaSurfacePressureDlg::TimeChoice;

using fakes::height_card;

// A pressure screen with its world; `stored` is what it saved.
struct Pressure {
  explicit Pressure(CSeaSurfacePressureDlg::Values values,
                    text::Language language = text::Language::kEnglish)
      : screen(world.services, std::move(values),
               {[this](BarometerCard& card) {
                  ++renewals;
                  if (!renewed) return false;
                  card = *renewed;
                  return true;
                },
                [this](const BarometerCard& card) { stored.push_back(card); }}) {
    world.texts.language = language;
    screen.open();
  }

  fakes::World world;
  std::optional<BarometerCard> renewed;
  int renewals = 0;
  std::vector<BarometerCard> stored;
  CSeaSurfacePressureDlg screen;

  void type(ui::Control& field, const char* text) {
    EXPECT_TRUE(fakes::enter(screen, field, text));
  }
  void press_ok() { screen.press(screen.ok); }
};

CSeaSurfacePressureDlg::Values with(const char* reading, BarometerCard card = height_card()) {
  return {reading, "15.0", "", "", TimeChoice::kUnder10Minutes, std::move(card)};
}

TEST(PressureScreen, OpensOnTheLastReadingWithItsReduction) {
  Pressure p(with("1013.2"));
  EXPECT_EQ(p.screen.reading_whole.content, "1013");
  EXPECT_EQ(p.screen.reading_whole.selected_text(), "1013");
  EXPECT_EQ(p.screen.reading_tenths.selected_text(), "2");
  EXPECT_EQ(p.screen.reading.content, "1013.2");
  EXPECT_EQ(p.screen.total_correction.content, "+ 2.4");
  EXPECT_EQ(p.screen.sea_level_pressure.content, "1015.6");
  EXPECT_EQ(p.screen.air_temperature.content, "15.0");
  EXPECT_EQ(p.screen.check_date.content, "2014/10/01");
  EXPECT_EQ(p.screen.check_place.content, "YOKOHAMA");
  EXPECT_EQ(p.screen.focused(), &p.screen.reading_whole);
  Pressure low(with("998.7"));
  EXPECT_EQ(low.screen.reading_whole.content, "998");
  EXPECT_EQ(low.screen.reading_whole.selected_text(), "0998");
}

TEST(PressureScreen, ListsHoldTheirLines) {
  Pressure p(with(""));
  const auto ends = [](const ui::Control& c) { return c.items.front() + ".." + c.items.back(); };
  EXPECT_EQ(p.screen.reading_whole.items.size(), 200U);
  EXPECT_EQ(ends(p.screen.reading_whole), "0870..1069");
  EXPECT_EQ(p.screen.reading_whole.items[129], "0999");
  EXPECT_EQ(p.screen.reading_whole.items[130], "1000");
  EXPECT_EQ(ends(p.screen.reading_tenths), "0..9");
  EXPECT_EQ(ends(p.screen.hour), "00..23");
  EXPECT_EQ(ends(p.screen.minute), "00..59");
}

TEST(PressureScreen, RecomputesWhileTypingAndChoosing) {
  Pressure p(with(""));
  EXPECT_EQ(p.screen.sea_level_pressure.content, "");
  p.type(p.screen.reading_whole, "1013");
  EXPECT_EQ(p.screen.sea_level_pressure.content, "");
  p.type(p.screen.reading_tenths, "2");
  EXPECT_EQ(p.screen.sea_level_pressure.content, "1015.6");
  fakes::choose_text(p.screen, p.screen.reading_whole, "0990");
  EXPECT_EQ(p.screen.reading.content, "0990.2");
  EXPECT_EQ(p.screen.sea_level_pressure.content, "992.6");
}

TEST(PressureScreen, KeepsWhatItShowsWhileAPartIsNoNumber) {
  Pressure p(with("1013.2"));
  p.type(p.screen.reading_tenths, "x");
  EXPECT_EQ(p.screen.reading.content, "1013.2");
  EXPECT_EQ(p.screen.sea_level_pressure.content, "1015.6");
}

TEST(PressureScreen, FullWidthDigitsAreNarrowed) {
  Pressure p(with(""));
  p.type(p.screen.reading_whole, "１０１３");
  p.type(p.screen.reading_tenths, "２");
  p.press_ok();
  EXPECT_EQ(p.screen.result(), ui::kOk);
  EXPECT_EQ(p.screen.values().reading, "1013.2");
}

TEST(PressureScreen, RefusesWrongCharactersWhenAFieldIsLeft) {
  for (const text::Language language : checks::kBothLanguages) {
    for (const char* wild : {"10x3", "-5", " 99", "\xFF\xFE", "////"}) {
      Pressure p(with("1013.2"), language);
      p.type(p.screen.reading_whole, wild);
      checks::refused(
          p.world, p.screen, [&] { p.screen.move_focus(p.screen.reading_tenths); },
          id::kBarometerReadingRange, p.screen.reading_whole);
    }
    Pressure p(with("1013.2"), language);
    p.type(p.screen.reading_tenths, "x");
    checks::refused(
        p.world, p.screen, [&] { p.press_ok(); }, id::kInvalidValue, p.screen.reading_tenths);
    EXPECT_TRUE(p.stored.empty());  // OK was never pressed
    p.screen.press(p.screen.cancel);
    EXPECT_EQ(p.screen.result(), ui::kCancel);
    EXPECT_EQ(p.screen.values().reading, "1013.2");
  }
}

TEST(PressureScreen, ClosesWithoutAReadingAndStillStoresTheCard) {
  Pressure p(with("1013.2"));
  p.type(p.screen.reading_whole, "");
  p.press_ok();
  EXPECT_EQ(p.screen.result(), ui::kOk);
  EXPECT_EQ(p.screen.values().reading, "");
  ASSERT_EQ(p.stored.size(), 1U);
  EXPECT_EQ(p.stored[0], height_card());
}

TEST(PressureScreen, StaysSilentlyOpenWhileTheActualTimeIsIncomplete) {
  Pressure p(with("1013.2"));
  p.screen.choose(p.screen.time_choice, 1);
  p.type(p.screen.hour, "11");
  const std::string before = fakes::dump(p.screen);
  p.press_ok();
  EXPECT_FALSE(p.screen.result());
  EXPECT_EQ(fakes::dump(p.screen), before);
  EXPECT_TRUE(p.world.windows.boxes.empty());
  EXPECT_EQ(p.stored.size(), 1U);
}

TEST(PressureScreen, NeedsAReadingWhenATimeIsGiven) {
  for (const text::Language language : checks::kBothLanguages) {
    Pressure p(with(""), language);
    p.screen.choose(p.screen.time_choice, 1);
    p.type(p.screen.hour, "11");
    p.type(p.screen.minute, "45");
    checks::refused(
        p.world, p.screen, [&] { p.press_ok(); }, id::kSeaLevelPressureMissing,
        p.screen.reading_whole);
  }
}

TEST(PressureScreen, ABlankHourOrMinuteIsMissing) {
  for (const text::Language language : checks::kBothLanguages) {
    auto values = with("1013.2");
    values.time_choice = TimeChoice::kMoreThan10Minutes;
    values.hour = " ";
    values.minute = "45";
    Pressure hour(values, language);
    checks::refused(
        hour.world, hour.screen, [&] { hour.press_ok(); }, id::kUtcHourMissing, hour.screen.hour);
    values.hour = "11";
    values.minute = " ";
    Pressure minute(values, language);
    checks::refused(
        minute.world, minute.screen, [&] { minute.press_ok(); }, id::kUtcMinuteMissing,
        minute.screen.minute);
  }
}

TEST(PressureScreen, ATypedBlankHourIsAskedForByOk) {
  Pressure p(with("1013.2"));
  p.screen.choose(p.screen.time_choice, 1);
  p.type(p.screen.hour, " ");
  p.type(p.screen.minute, "45");
  checks::refused(
      p.world, p.screen, [&] { p.press_ok(); }, id::kUtcHourMissing, p.screen.hour);
}

TEST(PressureScreen, RefusesAPressureOutsideTheRangeOfWhatItShows) {
  struct Row {
    const char* reading;
    const char* correction;
    bool accepted;
  };
  for (const text::Language language : checks::kBothLanguages) {
    for (const Row& row :
         {Row{"869.9", "+0.0", false}, Row{"870.0", "+0.0", true}, Row{"1069.9", "+0.0", true},
          Row{"1069.9", "+0.1", false}, Row{"1069.9", "+0.06", false}, Row{"1000.0", "-80.0", true},
          Row{"0.0", "+900.0", true}}) {
      BarometerCard card;
      card.type = CardType::kTotalCorrection;
      card.total_correction = row.correction;
      Pressure p(with(row.reading, card), language);
      if (row.accepted) {
        p.press_ok();
        EXPECT_EQ(p.screen.result(), ui::kOk) << row.reading;
      } else {
        checks::refused(
            p.world, p.screen, [&] { p.press_ok(); }, id::kBarometerReadingRange,
            p.screen.reading_whole);
      }
    }
  }
}

TEST(PressureScreen, WithoutACardThePressureIsDoubledAndRefused) {
  Pressure p(with("1013.2", BarometerCard{}));
  EXPECT_EQ(p.screen.sea_level_pressure.content, "2026.4");
  checks::refused(
      p.world, p.screen, [&] { p.press_ok(); }, id::kBarometerReadingRange, p.screen.reading_whole);
}

TEST(PressureScreen, EmptyTenthsCountAsZero) {
  Pressure p(with(""));
  p.type(p.screen.reading_whole, "1013");
  p.press_ok();
  EXPECT_EQ(p.screen.result(), ui::kOk);
  EXPECT_EQ(p.screen.values().reading, "1013.0");
  EXPECT_EQ(p.screen.sea_level_pressure.content, "1015.4");
}

TEST(PressureScreen, RenewsTheCardFromInside) {
  Pressure p(with("1013.2", BarometerCard{}));
  const std::string before = fakes::dump(p.screen);
  p.screen.press(p.screen.renew);
  EXPECT_EQ(p.renewals, 1);
  EXPECT_EQ(fakes::dump(p.screen), before);  // cancelled

  p.renewed = height_card();
  p.screen.press(p.screen.renew);
  EXPECT_EQ(p.screen.check_date.content, "2014/10/01");
  EXPECT_EQ(p.screen.check_place.content, "YOKOHAMA");
  EXPECT_EQ(p.screen.sea_level_pressure.content, "1015.6");
  EXPECT_TRUE(p.stored.empty());
  p.press_ok();
  ASSERT_EQ(p.stored.size(), 1U);
  EXPECT_EQ(p.stored[0], height_card());
  EXPECT_EQ(p.screen.values().card, height_card());
}

TEST(PressureScreen, CancelStoresNoCard) {
  Pressure p(with("1013.2", BarometerCard{}));
  p.renewed = height_card();
  p.screen.press(p.screen.renew);
  p.screen.key(ui::Key::kEscape);
  EXPECT_EQ(p.screen.result(), ui::kCancel);
  EXPECT_TRUE(p.stored.empty());
  EXPECT_EQ(p.screen.values().card, BarometerCard{});
}

TEST(PressureScreen, LoadingStateChangesThePressure) {
  BarometerCard ballast = height_card();
  ballast.loading_state = LoadingState::kInBallast;
  Pressure full(with("1013.2"));
  Pressure empty(with("1013.2", ballast));
  EXPECT_EQ(full.screen.sea_level_pressure.content, "1015.6");
  EXPECT_EQ(empty.screen.sea_level_pressure.content, "1016.8");
}

TEST(PressureScreen, ActualTimeIsOpenOnlyWhenItIsFar) {
  auto values = with("1013.2");
  values.time_choice = TimeChoice::kMoreThan10Minutes;
  values.hour = "11";
  values.minute = "45";
  Pressure p(values);
  EXPECT_EQ(p.screen.hour.selected_text(), "11");
  EXPECT_EQ(p.screen.minute.selected_text(), "45");
  p.screen.choose(p.screen.time_choice, 0);
  EXPECT_FALSE(p.screen.hour.enabled);
  EXPECT_FALSE(p.screen.minute.why_locked.empty());
  EXPECT_EQ(p.screen.hour.content, "");
  p.screen.choose(p.screen.time_choice, 1);
  EXPECT_EQ(p.screen.hour.content, "11");
  EXPECT_EQ(p.screen.minute.content, "45");
  p.type(p.screen.hour, "9");
  p.press_ok();
  EXPECT_EQ(p.screen.values().hour, "09");
  EXPECT_EQ(p.screen.values().time_choice, TimeChoice::kMoreThan10Minutes);
}

TEST(PressureScreen, RefusesATimeThatIsNone) {
  for (const text::Language language : checks::kBothLanguages) {
    auto values = with("1013.2");
    values.time_choice = TimeChoice::kMoreThan10Minutes;
    for (const char* wild : {"24", "x", "-1", "/"}) {
      Pressure p(values, language);
      p.type(p.screen.hour, wild);
      checks::refused(
          p.world, p.screen, [&] { p.screen.move_focus(p.screen.minute); }, id::kInvalidValue,
          p.screen.hour);
    }
    Pressure p(values, language);
    p.type(p.screen.minute, "60");
    checks::refused(
        p.world, p.screen, [&] { p.press_ok(); }, id::kInvalidValue, p.screen.minute);
  }
}

TEST(PressureScreen, HasTextsAndHelp) {
  Pressure p(with("1013.2"));
  EXPECT_EQ(p.screen.title(), "Air pressure");
  checks::has_texts_and_help(p.world, p.screen, p.screen.help, "11-4");
}

TEST(PressureScreen, MessagesReadAsTheyAlwaysDid) {
  checks::english_is(id::kSeaLevelPressureMissing, "Sea surface pressure no value");
  EXPECT_NE(
      text::bilingual(id::kSeaLevelPressureMissing, text::Language::kJapanese).find("海面水温"),
      std::string_view::npos);
  checks::english_is(id::kUtcHourMissing, "UTC hour no value");
  checks::english_is(id::kUtcMinuteMissing, "UTC minute no value");
  checks::english_is(id::kInvalidValue, "Invalid value");
  const std::string range = "Error: Input data is out of range.\nIt must be ";
  checks::english_is(id::kBarometerReadingRange,
                     range + "\"870.0 <= Air pressure at sea level <= 1069.9\"");
  checks::english_is(id::kSeaLevelPressureRange,
                     range + "\"870 <= Air pressure at sea level <= 1070\"");
  checks::english_is(id::kTendencyAmountRange, range + "\"00.0<=Amount of tendency<=25.0\"");
  const std::string unusual =
      "Warning: Input data is out of standard range.\nIt takes normally the value of ";
  checks::english_is(id::kPressureQuestion,
                     unusual + "\"930 <= Air pressure at sea level <= 1050\".\nIs it correct ");
  checks::english_is(id::kTendencyAmountQuestion,
                     unusual + "\"Amount of tendency<=15\".\nIs it correct ");
  checks::english_is(id::kSteadyWithAmount,
                     "Error: If Element(Type of tendency) equal 4\nElement(Amount of change) equal "
                     "000 ");
}

// --- tendency

struct Tendency {
  Tendency(const char* a, const char* ppp, text::Language language = text::Language::kEnglish)
      : screen(world.services, a, ppp) {
    world.texts.language = language;
    screen.open();
  }
  fakes::World world;
  CPresureTendencyDlg screen;
  void press_ok() { screen.press(screen.ok); }
  [[nodiscard]] std::string stored() const { return screen.a() + "|" + screen.ppp(); }
};

TEST(TendencyScreen, OpensOnTheCurrentFigures) {
  Tendency t("7", "052");
  EXPECT_EQ(t.screen.kind.selected, 2);
  EXPECT_EQ(t.screen.characteristic.selected, 2);
  EXPECT_EQ(t.screen.characteristic.items.size(), 4U);
  EXPECT_EQ(t.screen.characteristic.selected_text(),
            "    7    Decreasing (steadily or unsteadily)");
  EXPECT_EQ(t.screen.amount.content, "05.2");
  EXPECT_EQ(t.screen.code.content, "7");
  EXPECT_EQ(t.screen.choice.literal_caption,
            "  5-8   Air pressure had descended over preceding 3 hours");
  t.press_ok();
  EXPECT_EQ(t.stored(), "7|052");
}

TEST(TendencyScreen, ListsReadAsTheyAlwaysDid) {
  Tendency t("0", "");
  EXPECT_EQ(t.screen.kind.items,
            (std::vector<std::string>{"  0-3   Air pressure had risen over preceding 3 hours",
                                      "  0,4,5  Air pressure is the same as 3 hours before",
                                      "  5-8   Air pressure had descended over preceding 3 hours",
                                      "    /    Unknown"}));
  t.screen.choose(t.screen.kind, 0);
  EXPECT_EQ(t.screen.characteristic.items[0], "    0    Increasing, then decreasing");
  Tendency japanese("0", "", text::Language::kJapanese);
  EXPECT_EQ(japanese.screen.kind.items[3], "    /    不明");
  japanese.screen.choose(japanese.screen.kind, 0);
  EXPECT_EQ(japanese.screen.characteristic.items[0], "    0    上昇後下降");
}

TEST(TendencyScreen, EachLineStoresItsCharacteristic) {
  const std::vector<std::vector<std::string>> codes = {
      {"0", "1", "2", "3"}, {"0", "4", "5"}, {"5", "6", "7", "8"}, {"/"}};
  for (int kind = 0; kind < 4; ++kind) {
    const auto& lines = codes[static_cast<std::size_t>(kind)];
    for (std::size_t line = 0; line < lines.size(); ++line) {
      Tendency t("", "");
      t.screen.choose(t.screen.kind, kind);
      ASSERT_EQ(t.screen.characteristic.items.size(), lines.size());
      t.screen.choose(t.screen.characteristic, static_cast<int>(line));
      EXPECT_EQ(t.screen.code.content, lines[line]);
      EXPECT_EQ(t.screen.choice.literal_caption, t.screen.kind.selected_text());
      t.press_ok();
      EXPECT_EQ(t.stored(), lines[line] + "|");
    }
  }
}

TEST(TendencyScreen, AnotherKindKeepsTheCharacteristicWhereItBelongs) {
  Tendency t("5", "");
  EXPECT_EQ(t.screen.kind.selected, 1);
  t.screen.choose(t.screen.kind, 2);
  EXPECT_EQ(t.screen.code.content, "5");
  t.screen.choose(t.screen.kind, 0);
  EXPECT_EQ(t.screen.code.content, "0");
}

TEST(TendencyScreen, WithoutAChosenLineTheCharacteristicStays) {
  Tendency t("2", "000");  // 0 hPa opens "the same", which has no 2
  EXPECT_EQ(t.screen.kind.selected, 1);
  EXPECT_EQ(t.screen.characteristic.selected, -1);
  t.press_ok();
  EXPECT_EQ(t.stored(), "2|000");
}

// Every characteristic with every amount, typed and confirmed with OK while the focus is on the
// amount.
TEST(TendencyScreen, EveryCharacteristicWithEveryAmount) {
  struct Amount {
    const char* typed;
    const char* stored;
    text::Id question;  // asked once, answered Yes
    text::Id refusal;
  };
  const Amount amounts[] = {{"", "", 0, 0},
                            {"0", "000", 0, 0},
                            {"15.0", "150", 0, 0},
                            {"15.1", "151", id::kTendencyAmountQuestion, 0},
                            {"25.0", "250", id::kTendencyAmountQuestion, 0},
                            {"25.1", "", 0, id::kTendencyAmountRange}};
  struct Code {
    const char* a;
    int kind;
    int line;
  };
  const Code codes[] = {{"0", 0, 0}, {"1", 0, 1}, {"2", 0, 2}, {"3", 0, 3},
                        {"0", 1, 0}, {"4", 1, 1}, {"5", 1, 2}, {"5", 2, 0},
                        {"6", 2, 1}, {"7", 2, 2}, {"8", 2, 3}, {"/", 3, 0}};
  for (const text::Language language : checks::kBothLanguages) {
    for (const Code& code : codes) {
      for (const Amount& amount : amounts) {
        SCOPED_TRACE(std::string(code.a) + " " + amount.typed);
        Tendency t("", "", language);
        t.screen.choose(t.screen.kind, code.kind);
        t.screen.choose(t.screen.characteristic, code.line);
        ASSERT_TRUE(fakes::enter(t.screen, t.screen.amount, amount.typed));
        if (amount.refusal != 0) {
          checks::refused(
              t.world, t.screen, [&] { t.press_ok(); }, amount.refusal, t.screen.amount);
          continue;
        }
        if (amount.question) {
          checks::refused(
              t.world, t.screen, [&] { t.press_ok(); }, amount.question, t.screen.amount, "no");
        }
        const auto leave = [&] { EXPECT_TRUE(t.screen.move_focus(t.screen.ok)); };
        if (amount.question) {
          checks::asked_and_kept(t.world, leave, amount.question);
        } else {
          leave();
        }
        const bool steady =
            std::string(code.a) == "4" && *amount.typed != '\0' && std::string(amount.typed) != "0";
        if (steady) {
          checks::refused(
              t.world, t.screen, [&] { t.press_ok(); }, id::kSteadyWithAmount, t.screen.amount);
        } else {
          t.press_ok();
          EXPECT_EQ(t.screen.result(), ui::kOk);
          EXPECT_EQ(t.stored(), std::string(code.a) + "|" + amount.stored);
        }
      }
    }
  }
}

TEST(TendencyScreen, AmountIsRewrittenWhenLeft) {
  Tendency t("2", "");
  ASSERT_TRUE(fakes::enter(t.screen, t.screen.amount, " 5 .2 "));
  ASSERT_TRUE(t.screen.move_focus(t.screen.kind));
  EXPECT_EQ(t.screen.amount.content, "05.2");
}

TEST(TendencyScreen, RefusesAnAmountThatIsNoNumber) {
  for (const text::Language language : checks::kBothLanguages) {
    for (const char* wild : {"x", "-1", ".5", "5.", "5,2", "\xFF", "///"}) {
      Tendency t("2", "012", language);
      ASSERT_TRUE(fakes::enter(t.screen, t.screen.amount, wild));
      checks::refused(
          t.world, t.screen, [&] { t.screen.move_focus(t.screen.kind); }, id::kTendencyAmountRange,
          t.screen.amount);
      EXPECT_EQ(t.stored(), "2|012");
      t.screen.close_box();
      EXPECT_EQ(t.screen.result(), ui::kCancel);
    }
  }
}

TEST(TendencyScreen, HasTextsAndHelp) {
  Tendency t("2", "012");
  EXPECT_EQ(t.screen.title(), "Air pressure tendency");
  checks::has_texts_and_help(t.world, t.screen, t.screen.help, "11-5");
}

}  // namespace
