// Code page 932: what every implementation does, the one of the tests and the real one alike; then
// the edges of the real one.

#include <gtest/gtest.h>

#include <clocale>
#include <map>
#include <memory>
#include <set>
#include <string>

#include "fakes/fake_code_page.h"
#include "platform/system/system.h"
#include "text/strings.h"

namespace {

using platform::kNoCharacter;

std::string byte(unsigned value) {
  return std::string(1, static_cast<char>(value));
}

std::string none(int count) {
  std::string result;
  for (; count > 0; --count) result += kNoCharacter;
  return result;
}

// Bytes of a text of which the code page has every character.
std::string encoded(const platform::CodePage& code_page, std::string_view text) {
  std::string bytes;
  while (!text.empty()) {
    const auto one = text::first(text, 1);
    bytes += code_page.encode(one).value_or("<" + std::string(one) + ">");
    text.remove_prefix(one.size());
  }
  return bytes;
}

/// This computer's.
class RealCodePage : public platform::CodePage {
 public:
  [[nodiscard]] std::string decode(std::string_view bytes) const override {
    return made_->decode(bytes);
  }
  [[nodiscard]] std::optional<std::string> encode(std::string_view character) const override {
    return made_->encode(character);
  }

 private:
  std::unique_ptr<platform::CodePage> made_ = platform::make_code_page();
};

template <class Kind>
class CodePageSuite : public ::testing::Test {
 protected:
  Kind code_page;
};

using Kinds = ::testing::Types<fakes::FakeCodePage, RealCodePage>;
TYPED_TEST_SUITE(CodePageSuite, Kinds);

TYPED_TEST(CodePageSuite, KeepsAsciiAsItIs) {
  for (unsigned value = 0; value < 0x80; ++value) {
    EXPECT_EQ(this->code_page.decode(byte(value)), byte(value)) << value;
    EXPECT_EQ(this->code_page.encode(byte(value)), byte(value)) << value;
  }
}

TYPED_TEST(CodePageSuite, HasTheBytesOfTheStandard) {
  const struct {
    const char* text;
    const char* bytes;
  } rows[] = {
      {"横浜", "\x89\xA1\x95\x6C"},
      {"神戸港", "\x90\x5F\x8C\xCB\x8D\x60"},
      {"能代", "\x94\x5C\x91\xE3"},
      {"ダーナ", "\x83\x5F\x81\x5B\x83\x69"},
      {"ミムヴ", "\x83\x7E\x83\x80\x83\x94"},
      {"ぁん", "\x82\x9F\x82\xF1"},
      {"ﾖｺﾊﾏ", "\xD6\xBA\xCA\xCF"},
      {"｡ﾟ", "\xA1\xDF"},
      {"　", "\x81\x40"},
      {"Ｋ", "\x82\x6A"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(encoded(this->code_page, row.text), row.bytes) << row.text;
    EXPECT_EQ(this->code_page.decode(row.bytes), row.text);
  }
}

TYPED_TEST(CodePageSuite, MakesEachByteThatIsNoCharacterOneMark) {
  const struct {
    const char* rule;
    std::string bytes;
    std::string text;
  } rows[] = {
      {"no character at all", "\x80\xA0\xFD\xFE\xFF", none(5)},
      {"a lead byte at the end", "\x89\xA1\x95", "横" + none(1)},
      {"a lead byte before a space", "\x89 X", none(1) + " X"},
      {"a lead byte before a figure",
       "\x89"
       "7",
       none(1) + "7"},
      {"a lead byte before NUL", std::string("\x89\0A", 3), none(1) + std::string("\0A", 2)},
      {"a lead byte before 0x7F", "\x89\x7F", none(1) + "\x7F"},
      {"a second byte that never is one", "\x89\xFD\x89\xA1", none(2) + "横"},
      {"NUL", std::string("\0\0", 2), std::string("\0\0", 2)},
      {"nothing", "", ""},
  };
  for (const auto& row : rows) EXPECT_EQ(this->code_page.decode(row.bytes), row.text) << row.rule;
}

TYPED_TEST(CodePageSuite, HasNothingForOtherCharactersAndForWhatIsNotOne) {
  for (const std::string text : {"é",    "测",     "😀",        "한",           "¥",
                                 "‾",    "\u00A0", "\uFFFD",   "\u200B",       "",
                                 "AB",   "横浜",   "横A",      "A\x80",        "\xE6\xA8",
                                 "\xA8", "\xFF",   "\xC0\x80", "\xED\xA0\x80", "\xE6\xA8\xAA\xA8"})
    EXPECT_EQ(this->code_page.encode(text), std::nullopt) << text;
}

TYPED_TEST(CodePageSuite, KeepsTheWaveDashAsItsTwin) {
  EXPECT_EQ(this->code_page.encode("〜"), "\x81\x60");
  EXPECT_EQ(this->code_page.encode("～"), "\x81\x60");
  EXPECT_EQ(this->code_page.decode("\x81\x60"), "～");
}

// ---- The real one

bool is_lead(unsigned value) {
  return (value >= 0x81 && value <= 0x9F) || (value >= 0xE0 && value <= 0xFC);
}

// Characters that have two or three codes: the code they are written with. The rows of one maker's
// signs and of another's kanji repeat what stands elsewhere.
bool is_double(unsigned lead) {
  return lead == 0x87 || lead == 0xED || lead == 0xEE || lead == 0xFA;
}

TEST(CodePageOfTheComputer, GivesEveryCharacterItsBytesBack) {
  const RealCodePage code_page;
  int characters = 0;
  int doubles = 0;
  for (unsigned lead = 0x80; lead <= 0xFF; ++lead) {
    for (unsigned second = 0; second <= 0xFF; ++second) {
      const std::string bytes = byte(lead) + byte(second);
      const std::string text = code_page.decode(bytes);
      if (!is_lead(lead) || text::length(text) != 1 || text == kNoCharacter) continue;
      ++characters;
      const auto back = code_page.encode(text);
      ASSERT_TRUE(back) << std::hex << lead << " " << second;
      if (*back == bytes) continue;
      ++doubles;
      EXPECT_TRUE(is_double(lead)) << std::hex << lead << " " << second << " " << text;
      EXPECT_EQ(code_page.decode(*back), text) << "the same character by its other code";
    }
  }
  // 6879 of the standard, 83 and 374 and 388 of the makers' rows, 1880 free ones; 398 of them
  // twice.
  EXPECT_EQ(characters, 6879 + 83 + 374 + 388 + 1880);
  EXPECT_EQ(doubles, 398);
}

// What is not kept as it was typed comes back as its twin, and these are all.
TEST(CodePageOfTheComputer, ChangesOnlyTheKnownTwins) {
  const std::map<std::string, std::string> twins = {
      {"〜", "～"}, {"−", "－"}, {"‖", "∥"}, {"—", "―"}, {"¢", "￠"}, {"£", "￡"}, {"¬", "￢"},
  };
  const RealCodePage code_page;
  std::map<std::string, std::string> changed;
  for (unsigned code = 0x80; code <= 0xFFFF; ++code) {
    if (code >= 0xD800 && code <= 0xDFFF) continue;
    std::string text;
    if (code < 0x800) {
      text = byte(0xC0U | (code >> 6U)) + byte(0x80U | (code & 0x3FU));
    } else {
      text = byte(0xE0U | (code >> 12U)) + byte(0x80U | ((code >> 6U) & 0x3FU)) +
             byte(0x80U | (code & 0x3FU));
    }
    const auto bytes = code_page.encode(text);
    if (!bytes) continue;
    if (std::string back = code_page.decode(*bytes); back != text) changed[text] = back;
  }
  EXPECT_EQ(changed, twins);
}

TEST(CodePageOfTheComputer, TakesBackslashAndTildeForThemselvesOnly) {
  const RealCodePage code_page;
  EXPECT_EQ(code_page.decode("\x5C\x7E"), "\\~");
  EXPECT_EQ(code_page.encode("\\"), "\\");
  EXPECT_EQ(code_page.encode("~"), "~");
  EXPECT_EQ(code_page.encode("￥"), "\x81\x8F");
  EXPECT_EQ(code_page.encode("￣"), "\x81\x50");
}

// Whatever locale the process is in; "C" and another one are always there.
TEST(CodePageOfTheComputer, AsksNoLocale) {
  const std::string before = std::setlocale(LC_ALL, nullptr);
  int tried = 0;
  for (const char* name :
       {"C", "C.UTF-8", "ja_JP.UTF-8", "ja_JP.eucJP", "de_DE.UTF-8", "Japanese", "German"}) {
    if (std::setlocale(LC_ALL, name) == nullptr) continue;
    ++tried;
    const RealCodePage code_page;
    EXPECT_EQ(code_page.decode("\x89\xA1\x95\x6C\xD6"), "横浜ﾖ") << name;
    EXPECT_EQ(code_page.encode("能"), "\x94\x5C") << name;
    EXPECT_EQ(code_page.encode("é"), std::nullopt) << name;
  }
  std::setlocale(LC_ALL, before.c_str());
  EXPECT_GE(tried, 2);
}

}  // namespace
