// One word for one thing: tests/text/vocabulary.txt against the string table. The menus and the
// windows have no words but the table's, which is looked at too. The pages of the help are not part
// of this: they are texts in prose of their own.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "text/texts.h"

namespace {

using text::Language;

struct Word {
  Language language;
  std::string not_this, but_this;
  std::vector<std::string> unless_part_of;
};

struct Vocabulary {
  std::vector<Word> words;
  std::map<std::string, std::set<int>> kept;  // by the word that they bear
};

std::string trimmed(const std::string& s) {
  const std::size_t from = s.find_first_not_of(' ');
  return from == std::string::npos ? "" : s.substr(from, s.find_last_not_of(' ') - from + 1);
}

std::vector<std::string> parts_of(const std::string& line, char separator) {
  std::vector<std::string> parts;
  std::istringstream in(line);
  for (std::string part; std::getline(in, part, separator);)
    if (!(part = trimmed(part)).empty() || separator == '|') parts.push_back(part);
  return parts;
}

std::vector<std::string> lines_of(const std::string& path) {
  std::ifstream in(std::string(KAVREL_SOURCE).append(path));
  std::vector<std::string> lines;
  for (std::string line; std::getline(in, line);)
    if (!line.empty() && line[0] != '#') lines.push_back(line);
  return lines;
}

Vocabulary vocabulary() {
  Vocabulary all;
  for (const std::string& line : lines_of("/tests/text/vocabulary.txt")) {
    std::vector<std::string> parts = parts_of(line, '|');
    parts.resize(4);
    if (parts[0] == "kept") {
      std::istringstream ids(parts[2]);
      for (int id = 0; ids >> id;) all.kept[parts[1]].insert(id);
      EXPECT_TRUE(ids.eof()) << line;
      EXPECT_FALSE(parts[3].empty()) << line;
      continue;
    }
    EXPECT_TRUE(parts[0] == "ja" || parts[0] == "en") << line;
    EXPECT_FALSE(parts[1].empty() || parts[2].empty()) << line;
    all.words.push_back({parts[0] == "ja" ? Language::kJapanese : Language::kEnglish, parts[1],
                         parts[2], parts_of(parts[3], ',')});
  }
  return all;
}

// Code points of UTF-8 that is known to be sound.
std::u32string code_points(std::string_view utf8) {
  std::u32string points;
  for (const char c : utf8) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x80)
      points.push_back(byte);
    else if (byte >= 0xC0)
      points.push_back(byte & (byte >= 0xF0 ? 0x07U : byte >= 0xE0 ? 0x0FU : 0x1FU));
    else
      points.back() = points.back() << 6U | (byte & 0x3FU);
  }
  return points;
}

bool in(char32_t c, char32_t first, char32_t last) {
  return first <= c && c <= last;
}

bool is_half_kana(char32_t c) {
  return in(c, 0xFF66, 0xFF9D);
}

// A kana or a character of Chinese.
bool is_japanese(char32_t c) {
  return in(c, 0x3041, 0x30FC) || in(c, 0x4E00, 0x9FFF) || is_half_kana(c);
}

bool holds_japanese(std::string_view words) {
  const std::u32string points = code_points(words);
  return std::any_of(points.begin(), points.end(), is_japanese);
}

struct Text {
  int id;
  Language language;
  std::string words;
};

// Every text of the table once in each language that it has. A text without a second half is that
// of a label with an id for each language, or of both.
std::vector<Text> texts_of_the_table() {
  std::vector<Text> texts;
  for (const std::string& line : lines_of("/resources/strings.txt")) {
    const int number = std::stoi(line);
    const auto id = text::Id(number);
    const std::string english(text::bilingual(id, Language::kEnglish));
    const std::string japanese(text::bilingual(id, Language::kJapanese));
    if (english != japanese || !holds_japanese(english))
      texts.push_back({number, Language::kEnglish, english});
    if (english != japanese || holds_japanese(japanese))
      texts.push_back({number, Language::kJapanese, japanese});
  }
  return texts;
}

std::string without(std::string words, const std::vector<std::string>& parts) {
  for (const std::string& part : parts)
    for (std::size_t at = 0; (at = words.find(part, at)) != std::string::npos;)
      words.replace(at, part.size(), " ");
  return words;
}

bool bears(const Word& word, const Text& a_text) {
  return word.language == a_text.language &&
         without(a_text.words, word.unless_part_of).find(word.not_this) != std::string::npos;
}

TEST(Vocabulary, HasOneWordForOneThing) {
  const Vocabulary all = vocabulary();
  const std::vector<Text> texts = texts_of_the_table();
  ASSERT_GE(all.words.size(), 40U);
  ASSERT_GE(texts.size(), 1500U);
  for (const Word& word : all.words) {
    const auto found = all.kept.find(word.not_this);
    const std::set<int> kept = found == all.kept.end() ? std::set<int>{} : found->second;
    for (const Text& a_text : texts) {
      if (kept.count(a_text.id) != 0) continue;
      EXPECT_FALSE(bears(word, a_text)) << a_text.id << " says " << word.not_this << ", not "
                                        << word.but_this << ": " << a_text.words;
    }
  }
}

TEST(Vocabulary, KeepsNoTextThatNeedsItNot) {
  const Vocabulary all = vocabulary();
  const std::vector<Text> texts = texts_of_the_table();
  ASSERT_FALSE(all.kept.empty());
  for (const auto& [not_this, ids] : all.kept) {
    for (const int id : ids) {
      EXPECT_TRUE(std::any_of(
          texts.begin(), texts.end(),
          [&, word = not_this](const Text& a_text) {
            return a_text.id == id &&
                   std::any_of(all.words.begin(), all.words.end(), [&](const Word& row) {
                     return row.not_this == word && bears(row, a_text);
                   });
          }))
          << id << " does not say " << not_this;
    }
  }
}

// A way of writing that the texts have not, and the historic ones that keep it.
struct Notation {
  const char* what;
  bool (*found)(const std::u32string& words);
  std::set<int> kept;
};

bool wide_letter(const std::u32string& words) {
  return std::any_of(words.begin(), words.end(), [](char32_t c) {
    return c == U'％' || in(c, U'０', U'９') || in(c, U'Ａ', U'Ｚ') || in(c, U'ａ', U'ｚ');
  });
}

bool narrow_kana(const std::u32string& words) {
  return std::any_of(words.begin(), words.end(), is_half_kana);
}

// The letter of a button that Alt chooses, "(&Y)", is written as everywhere.
bool narrow_bracket_beside_japanese(const std::u32string& words) {
  for (std::size_t i = 1; i + 1 < words.size(); ++i)
    if (words[i] == U'(' && words[i + 1] != U'&' && is_japanese(words[i - 1])) return true;
  return false;
}

// "気象電報 3 通": a figure stands beside its word as in print. Around a name there are blanks.
bool blank_before_what_is_counted(const std::u32string& words) {
  for (const std::u32string_view counted :
       {U"%s 通", U"%d 通", U"%s 行", U"%d 行", U"%s 件", U"%d 件", U"%s 時", U"%s 海里", U"%d ペ"})
    if (words.find(counted) != std::u32string::npos) return true;
  return false;
}

TEST(Vocabulary, WritesFiguresLettersAndBracketsInOneWay) {
  const Notation notations[] = {
      {"a letter or figure of full width",
       wide_letter,
       {40011, 40012, 40013, 40107, 40111, 42750, 12201}},
      {"kana of half width", narrow_kana, {40903, 40905, 42502}},
      {"a bracket of half width",
       narrow_bracket_beside_japanese,
       {11000, 13000, 42581, 44071,  // one heading, and what repeats it
        44000, 44001, 44002, 44003, 44004, 44005, 44010, 44011, 44012, 44014, 44015}},
      {"a blank before what is counted", blank_before_what_is_counted, {}},
  };
  const std::vector<Text> texts = texts_of_the_table();
  for (const Notation& notation : notations) {
    std::set<int> found;
    for (const Text& a_text : texts)
      if (a_text.language == Language::kJapanese && notation.found(code_points(a_text.words)))
        found.insert(a_text.id);
    EXPECT_EQ(found, notation.kept) << notation.what;
  }
}

// Else a window could say what no translator and no test above has seen.
TEST(Vocabulary, OfEveryWindowStandsInTheTable) {
  const std::string source(KAVREL_SOURCE);
  std::size_t files = 0;
  for (const char* const folder : {"/src", "/resources/layouts"}) {
    for (const auto& entry : std::filesystem::recursive_directory_iterator(source + folder)) {
      const std::string name = entry.path().filename().string();
      // The two of a pair of characters whose widths are compared.
      if (!entry.is_regular_file() || name == "fixed_pitch.cpp") continue;
      ++files;
      std::ifstream in(entry.path());
      for (std::string line; std::getline(in, line);)
        EXPECT_FALSE(holds_japanese(line.substr(0, line.find("//")))) << name << ": " << line;
    }
  }
  EXPECT_GE(files, 400U);
}

}  // namespace
