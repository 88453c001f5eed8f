// Groups typed whole: a value with its sign or not at all, the wind's rules, speeds of 99 and more.

#include <gtest/gtest.h>

#include <string>

#include "elements/form/form_under_test.h"
#include "text/ids.h"

namespace {

namespace id = text::id;
using elements::Field;
using form_test::Form;
using observation::Group;

// Every group with a value in two parts, in each mixture of known, not observed and not entered.
struct Mixed {
  Group group;
  const char* typed;
  bool taken;
};

TEST(TypedGroup, AValueIsKnownWithItsSignAndDegreesOrNotAtAll) {
  for (const Mixed& row : {
           Mixed{Group::k1SnTTT, "1/050", false},
           {Group::k1SnTTT, "1/0//", false},
           {Group::k1SnTTT, "1/***", false},
           {Group::k1SnTTT, "1*050", false},
           {Group::k1SnTTT, "1////", true},
           {Group::k1SnTTT, "1****", true},
           {Group::k1SnTTT, "10***", true},
           {Group::k1SnTTT, "10///", true},
           {Group::k2SnTdTdTd, "2/050", false},
           {Group::k2SnTdTdTd, "2/***", false},
           {Group::k2SnTdTdTd, "2*050", false},
           {Group::k2SnTdTdTd, "2////", true},
           {Group::k8SwTbTbTb, "8/050", false},
           {Group::k8SwTbTbTb, "8/*//", false},
           {Group::k8SwTbTbTb, "8*050", false},
           {Group::k8SwTbTbTb, "8////", true},
           {Group::k0SsTwTwTw, "0/150", false},
           {Group::k0SsTwTwTw, "0*150", false},
           {Group::k0SsTwTwTw, "0////", true},
           {Group::kQcLoLoLoLo, "/1405", false},
           {Group::kQcLoLoLoLo, "1///5", false},
           {Group::kQcLoLoLoLo, "/////", true},
           {Group::kQcLoLoLoLo, "1////", true},
           {Group::kQcLoLoLoLo, "*1405", true},  // the hemisphere is chosen beside it
           {Group::k99LaLaLa, "99//5", false},
           {Group::k99LaLaLa, "99///", true},
           {Group::k99LaLaLa, "9935/", true},
           {Group::k99LaLaLa, "99355", true},
       }) {
    SCOPED_TRACE(row.typed);
    Form f;
    ASSERT_TRUE(f.enter(Field::kww, "61"));
    const std::string before = f.state(Field::kww);
    if (!row.taken) f.world.windows.expect(id::kInputError);
    EXPECT_EQ(f.enter(row.group, row.typed), row.taken);
    if (!row.taken) {
      EXPECT_EQ(f.state(Field::kww), before);
    }
  }
}

// Only one figure of the wind is typed anew; the rule is asked all the same.
TEST(TypedGroup, TheWindIsRefusedAsItsFieldsAre) {
  struct Row {
    const char* typed;
    text::Id message;  // 0: taken
  };
  for (const Row& row : {Row{"/0012", id::kCalmDirectionWithSpeed},
                         {"/5012", id::kTrueDirectionRange},
                         {"/2700", id::kDirectionWithoutSpeed},
                         {"/0000", 0},
                         {"/00//", 0},
                         {"///12", 0},
                         {"/9912", 0}}) {
    SCOPED_TRACE(row.typed);
    for (const bool there : {true, false}) {
      Form f;
      if (there) {
        ASSERT_TRUE(f.enter(Group::kNddff, "/2712"));
      }
      const std::string before = f.state(Field::kww);
      if (row.message) f.world.windows.expect(row.message);
      EXPECT_EQ(f.enter(Group::kNddff, row.typed), !row.message);
      if (row.message) {
        EXPECT_EQ(f.state(Field::kww), before);
      }
    }
  }
}

// A rule that was broken before this group was typed does not hold it up.
TEST(TypedGroup, IsNotRefusedForARuleThatItDoesNotTouch) {
  Form f;
  f.form->change([](Struct_Weather& r) {
    r.N = "3";
    r.Nh = "5";
  });
  EXPECT_TRUE(f.enter(Group::kNddff, "32712"));
  EXPECT_EQ(f.record().dd, "27");
}

TEST(TypedGroup, ASpeedOf99AndMoreSaysItsRangeAndAsks) {
  for (const text::Language language : {text::Language::kEnglish, text::Language::kJapanese}) {
    Form f;
    f.world.texts.language = language;
    for (const char* const typed : {"00098", "00012", "00000", "001/5", "0010/"}) {
      f.world.windows.expect(id::kLargeSpeedRange);
      EXPECT_FALSE(f.enter(Group::k00fff, typed)) << typed;
    }
    f.world.windows.expect(id::kWindSpeedQuestion, "no");
    EXPECT_FALSE(f.enter(Group::k00fff, "00105"));
    EXPECT_EQ(f.record().ff + f.record().fff, "");
    f.world.windows.expect(id::kWindSpeedQuestion, "yes");
    EXPECT_TRUE(f.enter(Group::k00fff, "00105"));
    EXPECT_EQ(f.record().ff + f.record().fff, "99105");
  }
  EXPECT_EQ(text::bilingual(id::kLargeSpeedRange, text::Language::kEnglish),
            "Error: Input data is out of range.\nIt must be \"099<=Wind speed (fff)<=999,///\"");
}

// Nobody confirms a value that is then refused.
TEST(TypedGroup, AsksOnlyWhatNothingRefuses) {
  Form f;
  f.world.windows.expect(id::kCalmDirectionWithSpeed);
  EXPECT_FALSE(f.enter(Group::kNddff, "/0090"));
  ASSERT_TRUE(f.enter(Group::kNddff, "/0000"));
  f.world.windows.expect(id::kCalmDirectionWithSpeed);
  EXPECT_FALSE(f.enter(Group::k00fff, "00120"));
  f.world.windows.expect(id::kPeriodNeedsHeight);
  EXPECT_FALSE(f.enter(Group::k2PwPwHwHw, "20005"));
}

TEST(TypedGroup, EmptiedKeepsTheSolidiOfElementsThatAreNotObserved) {
  Form f;
  f.items.set_observed(ObservationItem::ww, false);
  f.form->items_changed();
  ASSERT_TRUE(f.enter(Group::k7wwW1W2, "7//21"));
  ASSERT_TRUE(f.enter(Group::k7wwW1W2, ""));
  EXPECT_EQ(f.record().ww + f.record().W1 + f.record().W2, "//");
}

// The period 00 asks for the height 00 in every group of waves, in either order of its fields.
TEST(TypedGroup, WavesOfPeriodZeroHaveNoHeight) {
  struct Waves {
    Group group;
    const char* typed;
    Field period;
    Field height;
  };
  for (const Waves& row : {Waves{Group::k1PwaPwaHwaHwa, "10005", Field::kPwaPwa, Field::kHwaHwa},
                           {Group::k2PwPwHwHw, "20005", Field::kPwPw, Field::kHwHw},
                           {Group::k4Pw1Pw1Hw1Hw1, "40005", Field::kPw1Pw1, Field::kHw1Hw1},
                           {Group::k5Pw2Pw2Hw2Hw2, "50005", Field::kPw2Pw2, Field::kHw2Hw2}}) {
    SCOPED_TRACE(row.typed);
    for (const auto& [first, figures, second, refused] :
         {std::tuple{row.period, "00", row.height, "2.5"}, {row.height, "2.5", row.period, "00"}}) {
      Form f;
      f.ship.wave_recorder = true;
      f.rebuild();
      ASSERT_TRUE(f.enter(first, figures));
      const std::string before = f.state(second);
      f.world.windows.expect(id::kPeriodNeedsHeight);
      EXPECT_FALSE(f.enter(second, refused));
      EXPECT_EQ(f.state(second), before);
    }
    Form f;
    f.world.windows.expect(id::kPeriodNeedsHeight);
    EXPECT_FALSE(f.enter(row.group, row.typed));
  }
}

// 99 alone would be sent as a speed that nobody observed.
TEST(TypedGroup, ASpeedOf99HasItsFiguresOrIsNotKnown) {
  for (const char* const taken_away : {"00///", "00***", ""}) {
    Form f;
    f.world.windows.expect(id::kWindSpeedQuestion, "yes");
    ASSERT_TRUE(f.enter(Group::kNddff, "52799"));
    EXPECT_EQ(f.record().ff + f.record().fff, "99099") << "as in the field";
    f.world.windows.expect(id::kWindSpeedQuestion, "yes");
    ASSERT_TRUE(f.enter(Group::k00fff, "00120"));
    EXPECT_EQ(f.record().ff + f.record().fff, "99120");
    ASSERT_TRUE(f.enter(Group::k00fff, taken_away));
    EXPECT_EQ(f.record().ff + f.record().fff, "") << taken_away;
    EXPECT_TRUE(f.form->report().missing.contains(Group::kNddff));
  }
  Form calm;
  ASSERT_TRUE(calm.enter(Group::kNddff, "52712"));
  EXPECT_EQ(calm.record().fff, "");
}

// What the ship and the program put into a group is no entry: asterisks over it take nothing away,
// and a group that is emptied keeps it, also where it is not there.
TEST(TypedGroup, KeepsTheIndicatorsOfTheShipUnderAsterisks) {
  for (const char* const typed : {"1512*", "*****", ""}) {
    Form f;
    const std::string iw = f.record().iw;
    ASSERT_NE(iw, "");
    ASSERT_TRUE(f.enter(Group::kYYGGiw, "1512" + iw));
    EXPECT_TRUE(f.enter(Group::kYYGGiw, typed)) << typed;
    EXPECT_EQ(f.record().iw, iw) << typed;
  }
  for (const char* const typed : {"**///", "****97", "**", "*****"}) {
    Form f;
    const std::string given = f.record().iR + f.record().iX;
    if (std::string_view(typed).size() != 5) f.world.windows.expect(id::kInputError);
    (void)f.enter(Group::kiRiXhVV, typed);
    EXPECT_EQ(f.record().iR + f.record().iX, given) << typed;
  }
  Form bare;
  bare.form->change([](Struct_Weather& r) { r.iw.clear(); });
  ASSERT_TRUE(bare.enter(Field::kYY, "15"));
  EXPECT_TRUE(bare.enter(Group::kYYGGiw, ""));
  EXPECT_EQ(bare.record().YY, "");
}

}  // namespace
