// What is doubted, and what is not.

#include "explain/doubts/doubts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "fakes/doubt_examples.h"
#include "observation/values.h"
#include "text/strings.h"

namespace {

using doubt_examples::Example;
using doubt_examples::examples;
using doubt_examples::past_of;
using doubt_examples::record_of;
using explain::DoubtRow;
using observation::Values;
using text::Language;

std::vector<std::string> names_of(const std::vector<explain::Doubt>& doubts) {
  std::vector<std::string> names;
  for (const explain::Doubt& doubt : doubts) names.emplace_back(doubt.row->name);
  return names;
}

std::vector<std::string> raised_by(const Struct_Weather& record, const Example& example) {
  return names_of(
      explain::doubts_of(observation::values_of(record), past_of(example), Language::kEnglish));
}

const DoubtRow& row_of(std::string_view name) {
  const auto rows = explain::doubt_rows();
  const auto found =
      std::find_if(rows.begin(), rows.end(), [&](const DoubtRow& row) { return row.name == name; });
  if (found == rows.end()) ADD_FAILURE() << name << " is no doubt";
  return found == rows.end() ? rows.front() : *found;
}

TEST(Doubts, EachHasAnExampleThatRaisesItAloneAndANearOneThatDoesNot) {
  std::set<std::string_view> with_example;
  for (const Example& example : examples()) {
    SCOPED_TRACE(std::string(example.raises));
    with_example.insert(example.doubt);
    EXPECT_EQ(raised_by(record_of(example.raises), example),
              std::vector{std::string(example.doubt)});
    const auto quiet = raised_by(record_of(example.does_not), example);
    EXPECT_EQ(quiet, std::vector<std::string>()) << example.does_not;
  }
  for (const DoubtRow& row : explain::doubt_rows())
    EXPECT_TRUE(with_example.contains(row.name)) << row.name << " has no example";
}

// Whatever one of its elements lacks, in whatever form, a doubt has nothing to speak of.
TEST(Doubts, SpeakOnlyOfElementsThatAreReported) {
  for (const Example& example : examples()) {
    for (std::string Struct_Weather::*const figures : row_of(example.doubt).about) {
      if (figures == nullptr) break;
      EXPECT_NE(record_of(example.raises).*figures, "") << example.raises;
      for (const char* const missing : {"", "/", "//", "///", "////", "*", "*/", "x"}) {
        Struct_Weather record = record_of(example.raises);
        record.*figures = missing;
        const auto names = raised_by(record, example);
        EXPECT_EQ(std::count(names.begin(), names.end(), example.doubt), 0)
            << example.doubt << " with \"" << missing << "\" in " << example.raises;
      }
    }
  }
}

TEST(Doubts, OfThePastAreNotRaisedWithoutIt) {
  for (const Example& example : examples()) {
    const DoubtRow& row = row_of(example.doubt);
    EXPECT_EQ(row.kind == explain::DoubtKind::kAgainstThePast, !example.before.empty())
        << example.doubt;
    if (example.before.empty()) continue;
    Example without = example;
    without.before = {};
    EXPECT_EQ(raised_by(record_of(example.raises), without), std::vector<std::string>())
        << example.doubt;
    // An observation before of which nothing is known.
    without.before = "Year=2014";
    EXPECT_EQ(raised_by(record_of(example.raises), without), std::vector<std::string>())
        << example.doubt;
    // And one that lies too long back.
    Example old = example;
    old.hours = explain::kLongestPast + 1;
    EXPECT_EQ(raised_by(record_of(example.raises), old), std::vector<std::string>())
        << example.doubt;
  }
}

TEST(Doubts, AnObservationOfNothingRaisesNothing) {
  EXPECT_TRUE(explain::doubts_of(Values(), explain::Before(), Language::kEnglish).empty());
  Example everything{"", "", "", examples().front().before};
  for (const char* const missing : {"", "/", "*"}) {
    Struct_Weather record = record_of("");
    for (const WeatherField& field : weather_fields())
      if (field.name != "Year" && field.name != "Month" && field.name != "YY" && field.name != "GG")
        record.*field.member = missing;
    for (const Example& example : examples()) {
      everything.before = example.before;
      EXPECT_EQ(raised_by(record, everything), std::vector<std::string>()) << missing;
    }
  }
}

TEST(Doubts, AreWordedInBothLanguagesWithEveryPlaceFilled) {
  std::set<std::string> texts;
  for (const Example& example : examples()) {
    const Values values = observation::values_of(record_of(example.raises));
    for (const Language language : {Language::kEnglish, Language::kJapanese}) {
      for (const auto& doubt : explain::doubts_of(values, past_of(example), language)) {
        EXPECT_EQ(doubt.text.find("%s"), std::string::npos) << doubt.text;
        EXPECT_FALSE(text::has_control(doubt.text)) << doubt.text;
        const auto words = doubt.row->words(values, explain::before_of(values, past_of(example)));
        for (const std::string& word : words)
          EXPECT_NE(doubt.text.find(word), std::string::npos) << doubt.text << " lacks " << word;
        texts.insert(doubt.text);
      }
    }
  }
  EXPECT_GE(texts.size(), 2 * explain::doubt_rows().size()) << "both halves say the same";
}

TEST(Doubts, SayWhatWasEnteredAndWhatItIsHeldAgainst) {
  const auto said = [](std::string_view fields, std::string_view before, Language language) {
    const Example example{"", "", "", before};
    const auto doubts =
        explain::doubts_of(observation::values_of(record_of(fields)), past_of(example), language);
    return doubts.size() == 1 ? doubts.front().text : std::string("not one doubt");
  };
  EXPECT_EQ(said("PPPP=0146 a=7 ppp=014", "PPPP=0132", Language::kEnglish),
            "The pressure was 1013.2 hPa three hours ago. With a change of -1.4 hPa it would be "
            "1011.8 hPa now, not 1014.6 hPa.");
  EXPECT_EQ(said("PPPP=0146 a=7 ppp=014", "PPPP=0132", Language::kJapanese),
            "3時間前の気圧は1013.2 hPaです。変化量が-1.4 hPaなら1011.8 hPaになりますが、入力は"
            "1014.6 hPaです。");
  EXPECT_EQ(said("ww=45 VV=97", "", Language::kEnglish),
            "Fog (ww 45), but the visibility is 1 km or more (VV 97).");
  EXPECT_EQ(
      said("dw1dw1=27 Pw1Pw1=08 Hw1Hw1=04 dw2dw2=27 Pw2Pw2=08 Hw2Hw2=04", "", Language::kEnglish),
      "Both swells are the same: from 270°, 8 seconds, 2.0 m.");
  EXPECT_EQ(said("dd=27 ff=61", "dd=27 ff=20", Language::kEnglish),
            "The wind was 20 knots 3 hours ago and is 61 knots now.");
}

// Only where the other hemisphere gives a run that a ship makes: 1.3 degrees are 78 miles, 26 knots,
// of which 8.5 miles are unsure; 1.4 degrees are 84.
TEST(Doubts, AskForAnExchangedHemisphereOnlyWhereTheOtherOneFits) {
  constexpr std::string_view kBefore = "Qc=1 LaDeg=35 LaMin=00 LoDeg=165 LoMin=00";
  struct Row {
    std::string_view place;
    std::string_view doubt;
  };
  constexpr Row kRows[] = {
      {"Qc=3 LaDeg=36 LaMin=18 LoDeg=165 LoMin=00", "north_for_south"},
      {"Qc=3 LaDeg=36 LaMin=24 LoDeg=165 LoMin=00", "ship_too_fast"},
      {"Qc=5 LaDeg=35 LaMin=30 LoDeg=165 LoMin=00", "ship_too_fast"},
      {"Qc=7 LaDeg=35 LaMin=00 LoDeg=166 LoMin=00", "east_for_west"},
      {"Qc=7 LaDeg=36 LaMin=24 LoDeg=165 LoMin=00", "ship_too_fast"},
  };
  for (const Row& row : kRows)
    EXPECT_EQ(raised_by(record_of(row.place), {"", "", "", kBefore}),
              std::vector{std::string(row.doubt)})
        << row.place;
}

// A habit of reading whole degrees is no slip.
TEST(Doubts, TakeWholeDegreesForAHabitWhereTheLastObservationHadThem) {
  const std::string_view whole = "PPPP=0130 SnT=0 TTT=150 Ss=0 TwTwTw=160";
  EXPECT_EQ(raised_by(record_of(whole), {"", "", "", "SnT=0 TTT=140 Ss=0 TwTwTw=150"}),
            std::vector<std::string>());
  EXPECT_EQ(raised_by(record_of(whole), {"", "", "", "SnT=0 TTT=142 Ss=0 TwTwTw=150"}),
            std::vector<std::string>{"all_whole"});
}

// Metres a second are compared as knots: 10 m/s and 20 knots are the same wind.
TEST(Doubts, CompareWindsOfBothUnits) {
  EXPECT_EQ(raised_by(record_of("dd=27 ff=20"), {"", "", "", "iw=1 dd=27 ff=10"}),
            std::vector<std::string>());
  EXPECT_EQ(raised_by(record_of("dd=27 ff=61"), {"", "", "", "iw=1 dd=27 ff=15"}),
            std::vector<std::string>());
  EXPECT_EQ(raised_by(record_of("dd=27 ff=61"), {"", "", "", "iw=1 dd=27 ff=10"}),
            std::vector<std::string>{"wind_jump"});
}

// The sea of a storm that has passed goes down more slowly than the wind.
TEST(Doubts, KnowTheWindThatRaisedTheWaves) {
  const std::string_view after = "dd=27 ff=15 PwPw=09 HwHw=13";
  EXPECT_EQ(raised_by(record_of(after), {"", "", "", "dd=27 ff=40"}), std::vector<std::string>());
  EXPECT_EQ(raised_by(record_of(after), {"", "", "", "dd=27 ff=16"}),
            std::vector<std::string>{"waves_without_wind"});
  EXPECT_EQ(raised_by(record_of(after), {}), std::vector<std::string>{"waves_without_wind"});
}

TEST(Doubts, AreHeldAgainstTheLastObservationBeforeTheHour) {
  const Values now = observation::values_of(record_of("PPPP=0132"));
  const int hour = now.hour.value();
  std::vector<observation::PastObservation> past;
  for (const int hours : {80, 72, 6, 3, 0, -3}) {
    past.push_back({hour - hours, now});
    past.back().values.hour = hour - hours;
  }
  const explain::Before all = explain::before_of(now, past);
  EXPECT_EQ(all.hours, 3);
  EXPECT_EQ(all.last, &past[3].values);
  EXPECT_EQ(all.three_hours_ago, &past[3].values);
  past.erase(past.begin() + 3);
  const explain::Before six = explain::before_of(now, past);
  EXPECT_EQ(six.hours, 6);
  EXPECT_EQ(six.last, &past[2].values);
  EXPECT_EQ(six.three_hours_ago, nullptr);
  past.erase(past.begin() + 2);
  EXPECT_EQ(explain::before_of(now, past).hours, 72);
  past.erase(past.begin() + 1);
  EXPECT_EQ(explain::before_of(now, past).last, nullptr);
  EXPECT_EQ(explain::before_of(Values(), past).last, nullptr) << "without an hour nothing is past";
}

TEST(DoubtTable, NamesEachRowOnceWithItsSourceAndItsElements) {
  std::set<std::string_view> names;
  for (const DoubtRow& row : explain::doubt_rows()) {
    EXPECT_TRUE(names.insert(row.name).second) << row.name;
    EXPECT_NE(row.about.front(), nullptr) << row.name;
    const bool has_source = row.source.starts_with("MQCS-7") ||
                            row.source.starts_with("WMO-No. ") ||
                            row.source.starts_with("Own choice: ");
    EXPECT_TRUE(has_source) << row.name << ": " << row.source;
  }
}

}  // namespace
