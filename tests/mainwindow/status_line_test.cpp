// The status line says what stands in the current field, in words, as it is typed.

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

#include "codetables/tables/code_tables.h"
#include "elements/form/field_codes.h"
#include "elements/form/field_words.h"
#include "fakes/fake_files.h"
#include "fakes/fake_ports.h"
#include "fakes/sample_observation.h"
#include "text/ids.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace {

namespace id = text::id;
using elements::Field;
using text::Language;

constexpr Language kLanguages[] = {Language::kEnglish, Language::kJapanese};

// ---- Words of every field and every code

// Every text of up to two figures, and the solidi, that the field may show.
std::vector<std::string> texts_of(const elements::FieldRow& row) {
  std::vector<std::string> texts{"/", "//"};
  for (int number = 0; number < 100; ++number) {
    texts.push_back(text::format_int(number));
    texts.push_back(text::format_int(number, 2, '0'));
    texts.push_back(text::format_fixed(number / 2.0, 1));
  }
  for (const int metres : {0, 30, 49, 50, 99, 100, 300, 599, 600, 2499, 2500, 9999})
    if (row.codec == elements::Codec::kCloudBase) texts.push_back(text::format_int(metres));
  return texts;
}

TEST(FieldWords, SayWhatTheCodeTableSaysOfEveryCodeOfEveryField) {
  std::set<std::string_view> seen;
  for (const elements::FieldRow& row : elements::field_rows()) {
    const codetables::CodeTable* const table = codetables::table_of(row.name);
    if (table == nullptr) continue;
    seen.insert(table->number);
    for (const Language language : kLanguages) {
      for (const std::string& shown : texts_of(row)) {
        const auto meaning =
            codetables::meaning(*table, elements::figures_of(row.field, shown), language);
        const std::string words = elements::words_of(row.field, shown, language);
        EXPECT_NE(words, "") << row.name << " " << shown;
        const bool has_none =
            words.find(text::bilingual(id::kWordsNoCode, language)) != std::string::npos;
        EXPECT_EQ(has_none, !meaning.has_value()) << row.name << " " << shown << ": " << words;
        EXPECT_EQ(words.find_first_of("\n\r\t"), std::string::npos) << words;
        if (meaning) {
          std::string on_one_line(text::trim(*meaning));
          std::replace(on_one_line.begin(), on_one_line.end(), '\n', ' ');
          EXPECT_NE(words.find(on_one_line), std::string::npos)
              << row.name << " " << shown << ": " << words;
        }
      }
    }
  }
  for (const char* const number :
       {"0200", "0439", "0509", "0513", "0515", "0639", "0700", "0739", "0877", "1600", "1751",
        "2700", "3551", "3739", "4377", "4451", "4561", "4677", "5239"})
    EXPECT_TRUE(seen.contains(number)) << number;
}

TEST(FieldWords, SayTheUnitOfWhatIsMeasured) {
  const struct {
    Field field;
    const char* shown;
    const char* english;
    const char* japanese;
  } rows[] = {
      {Field::kDryBulb, "15.2", "15.2 °C", "15.2 °C"},
      {Field::kTwTwTw, "-1.8", "-1.8 °C", "-1.8 °C"},
      {Field::kff, "18", "18 kn (Beaufort 5)", nullptr},
      {Field::kff, "00", "00 kn (Beaufort 0)", nullptr},
      {Field::kPwPw, "06", "06 s", nullptr},
      {Field::kPwPw, "99", "confused sea, no single period", "海面が乱れ、周期を決められない"},
      {Field::kPwPw, "00", "no waves", "波なし"},
      {Field::kPw1Pw1, "00", "No swell wave", "うねりなし"},
      {Field::kHwHw, "2.5", "2.5 m", nullptr},
      {Field::kHwHw, "//", "not observed", "観測せず"},
      {Field::kh, "300", "300 m (300m<=h<600m)", nullptr},
      {Field::kVV, "97", "10km<=VV<20km", "10km≦VV<20km"},
      {Field::kdd, "27", "270 degrees", "270度"},
      {Field::kRs, "5", "not in the code table", "符号表にない値"},
      {Field::kYear, "2014", "2014", "2014"},
      {Field::kVV, "", "", ""},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(elements::words_of(row.field, row.shown, Language::kEnglish), row.english);
    if (row.japanese != nullptr) {
      EXPECT_EQ(elements::words_of(row.field, row.shown, Language::kJapanese), row.japanese);
    }
  }
}

TEST(FieldWords, SurviveEveryByte) {
  for (const elements::FieldRow& row : elements::field_rows()) {
    for (int byte = 0; byte < 256; ++byte) {
      const std::string shown(2, static_cast<char>(byte));
      EXPECT_NE(elements::words_of(row.field, shown, Language::kEnglish), "") << row.name;
    }
  }
}

TEST(FieldWords, NameWhatEachFieldAccepts) {
  fakes::World world;
  const Struct_Weather record{ShipFixedData(), KeyObservationItems()};
  const auto accepted = [&](Field field) {
    return elements::accepted_texts(field, record, world.clock, Language::kEnglish);
  };
  EXPECT_EQ(accepted(Field::kVV), "90 to 99, //");
  EXPECT_EQ(accepted(Field::kGG), "00, 03, 06, 09, 12, 15, 18, 21");
  EXPECT_EQ(accepted(Field::kTwTwTw), "-2.0 to 37.0 °C");
  EXPECT_EQ(accepted(Field::kPPPP), "870.0 to 1069.9 hPa");
  EXPECT_EQ(accepted(Field::kHwHw), "0.0 to 14.5 m, //");
  EXPECT_EQ(accepted(Field::kdd), "00 to 36 ×10°, 99, //");
  EXPECT_EQ(accepted(Field::kIs), "1 to 5");
  for (const elements::FieldRow& row : elements::field_rows())
    EXPECT_NE(accepted(row.field), "") << row.name;
}

// ---- In the window

class StatusLine : public testing::Test {
 protected:
  StatusLine() {
    screen.open();
    EXPECT_TRUE(fakes::enter_sample(screen));
  }
  std::string at(std::string_view name) {
    EXPECT_TRUE(screen.move_focus(*screen.find(name))) << name;
    return line();
  }
  [[nodiscard]] std::string line() const { return screen.find("status_line")->content; }

  fakes::World world;
  fakes::SampleMainWindow screen{world.services};
};

TEST_F(StatusLine, SaysWhatStandsInTheField) {
  EXPECT_EQ(at("VV"), "97: 10km<=VV<20km | Allowed: 90 to 99, // | F1: Visibility");
  EXPECT_EQ(at("dry_bulb"),
            "15.2 °C: 10152 | Allowed: -25.0 to 40.0 °C | F1: Temp by dry and wet bulb");
  world.texts.language = Language::kJapanese;
  screen.move_focus(*screen.find("ww"));
  EXPECT_EQ(at("VV"), "97: 10km≦VV<20km | 入力できる値：90～99, // | F1：視程");
}

TEST_F(StatusLine, NamesTheDialogThatF1Opens) {
  EXPECT_TRUE(at("LaMin").ends_with(" | F1: Latitude")) << line();
  EXPECT_TRUE(at("LoDeg").ends_with(" | F1: Longitude")) << line();
  // Those of one element are told apart, also where no field of its own says which it is.
  EXPECT_TRUE(at("north_south").ends_with("F1: Latitude")) << line();
  EXPECT_TRUE(at("east_west").ends_with("F1: Longitude")) << line();
  EXPECT_TRUE(at("HwHw").ends_with(" | F1: Wind wave")) << line();
  EXPECT_TRUE(at("dw1dw1").ends_with(" | F1: Swell 1")) << line();
  EXPECT_TRUE(at("Hw1Hw1").ends_with(" | F1: Swell 1")) << line();
  EXPECT_TRUE(at("Pw2Pw2").ends_with(" | F1: Swell 2")) << line();
  EXPECT_TRUE(at("GGExact").ends_with(" | F1: Air pressure")) << line();
  EXPECT_TRUE(at("W2").ends_with(" | F1: Past weather")) << line();
  EXPECT_EQ(at("freeze"), "F1: Temp by dry and wet bulb");
}

TEST_F(StatusLine, SaysHowALineIsChosen) {
  EXPECT_EQ(at("north_south"), "Choose with N, S or the arrows | F1: Latitude");
  EXPECT_EQ(at("east_west"), "Choose with E, W or the arrows | F1: Longitude");
  // As with a barometer card for each loading state.
  screen.find("loading_state")->enabled = true;
  EXPECT_TRUE(at("loading_state").starts_with("Choose with the arrows")) << line();
  world.texts.language = Language::kJapanese;
  EXPECT_EQ(at("north_south"), "N、S または矢印キーで選択 | F1：緯度");
  EXPECT_EQ(at("east_west"), "E、W または矢印キーで選択 | F1：経度");
  EXPECT_TRUE(at("loading_state").starts_with("矢印キーで選択")) << line();
  // And it is so, in both languages.
  for (const Language language : kLanguages) {
    world.texts.language = language;
    for (const auto& [name, second] : {std::pair{"north_south", "S"}, {"east_west", "w"}}) {
      at(name);
      screen.key(ui::Key::kHome);
      ASSERT_EQ(screen.find(name)->selected, 0);
      screen.find_line(second);
      EXPECT_EQ(screen.find(name)->selected, 1) << name;
      screen.key(ui::Key::kUp);
      EXPECT_EQ(screen.find(name)->selected, 0) << name;
    }
  }
}

TEST_F(StatusLine, FollowsTheTyping) {
  at("VV");
  ui::Control& field = *screen.find("VV");
  screen.type(field, "9");
  EXPECT_TRUE(line().starts_with("Not possible here: 9 | Allowed: ")) << line();
  screen.type(field, "98");
  EXPECT_TRUE(line().starts_with("98: 20km<=VV<50km | ")) << line();
  screen.type(field, "９４");
  EXPECT_TRUE(line().starts_with("94: 1km<=VV<2km | ")) << line();
  screen.type(field, "//");
  EXPECT_TRUE(line().starts_with("//: ")) << line();
  screen.type(field, "");
  EXPECT_TRUE(line().starts_with("Allowed: ")) << line();
  // Nothing of it was taken.
  EXPECT_EQ(screen.form().record().VV, "97");
}

TEST_F(StatusLine, SaysWhyAFieldIsLocked) {
  for (const ui::Control* const control : screen.controls()) {
    if (control->why_locked.empty() || !control->can_focus()) continue;
    const std::string says = at(control->name);
    EXPECT_TRUE(says.ends_with(control->why_locked)) << control->name << ": " << says;
    EXPECT_EQ(says.find("Allowed"), std::string::npos) << says;
  }
}

TEST_F(StatusLine, SpeaksOfEveryFieldAndGroupInBothLanguages) {
  for (const Language language : kLanguages) {
    world.texts.language = language;
    for (ui::Control* const control : screen.controls()) {
      if (!control->can_focus() || control->name == "status_line") continue;
      if (screen.focused() != control) {
        ASSERT_TRUE(screen.move_focus(*control)) << control->name;
      }
      const bool is_field = elements::field_named(control->name).has_value();
      const bool is_group = control->name.starts_with("group_");
      if (is_field || is_group) {
        EXPECT_NE(line(), "") << control->name;
      }
      if (is_field && !control->content.empty()) {
        EXPECT_EQ(line().find(text::bilingual(id::kStatusNoValue, language).substr(0, 12)),
                  std::string::npos)
            << control->name << ": " << line();
        EXPECT_NE(line().find(control->content), std::string::npos) << line();
      }
    }
  }
}

TEST_F(StatusLine, ReadsAGroupInWords) {
  EXPECT_EQ(at("group_Nddff"),
            "N: 7/10-8/10; dd: 270 degrees; ff: 18 kn (Beaufort 5) | "
            "Figures; / where nothing was observed");
  screen.type(*screen.find("group_Nddff"), "83620");
  EXPECT_TRUE(line().find("dd: 360 degrees; ff: 20 kn (Beaufort 5)") != std::string::npos)
      << line();
  screen.type(*screen.find("group_Nddff"), "8362");
  EXPECT_TRUE(line().starts_with("Not possible here: 8362 | ")) << line();
  EXPECT_EQ(screen.form().record().dd, "27");
}

TEST_F(StatusLine, GoesOnSpeakingOfTheFieldThatOneCameFrom) {
  const std::string of_field = at("VV");
  EXPECT_EQ(at("status_line"), of_field);
  EXPECT_TRUE(screen.find("status_line")->read_only);
  EXPECT_TRUE(screen.find("status_line")->repeats);
}

}  // namespace
