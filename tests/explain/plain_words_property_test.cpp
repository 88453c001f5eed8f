// Whatever the report: every word of it is in exactly one line, no figure is told that it does not
// hold, and every code says what its table says.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <fstream>
#include <optional>
#include <string>
#include <vector>

#include "codetables/tables/code_tables.h"
#include "explain/plain/plain_words.h"
#include "fakes/rounds.h"
#include "observation/random_records.h"
#include "observation/records.h"
#include "observation/report_encoder.h"
#include "text/strings.h"

namespace {

using explain::plain_words;
using explain::PlainLine;
using explain::Told;
using observation::Group;
using text::Language;

constexpr Language kLanguages[] = {Language::kEnglish, Language::kJapanese};

std::string without_blanks(std::string_view text) {
  std::string rest;
  for (const char c : text)
    if (c != ' ' && (c < '\t' || c > '\r')) rest.push_back(c);
  return rest;
}

/// The groups of all lines, one behind the other.
std::string words_told(const std::vector<PlainLine>& lines) {
  std::string words;
  for (const PlainLine& line : lines) words.append(without_blanks(line.group));
  return words;
}

std::vector<std::string> real_reports() {
  std::ifstream in(std::string(KAVREL_TEST_DATA) + "/ship_reports.txt");
  std::vector<std::string> reports;
  for (std::string line; std::getline(in, line);)
    if (line.starts_with("BBXX")) reports.push_back(line);
  return reports;
}

void expect_well_formed(const std::vector<PlainLine>& lines, const std::string& report) {
  ASSERT_FALSE(lines.empty()) << report;
  for (const PlainLine& line : lines) {
    ASSERT_FALSE(line.sentence.empty()) << report << ": " << line.group;
    ASSERT_EQ(line.sentence.find("%s"), std::string::npos) << report << ": " << line.sentence;
    ASSERT_FALSE(text::has_control(line.sentence)) << report;
    ASSERT_FALSE(text::has_control(line.group)) << report;
  }
}

// ---- What a measured group tells, reckoned from its figures anew

/// The number behind the words in an English sentence.
std::optional<double> told_behind(const std::string& sentence, const std::string& words) {
  const auto at = sentence.find(words);
  if (at == std::string::npos) return std::nullopt;
  return std::stod(sentence.substr(at + words.size()));
}

std::optional<int> figures(const std::string& group, std::size_t at, std::size_t length) {
  const std::string part = group.substr(at, length);
  if (!std::all_of(part.begin(), part.end(), [](unsigned char c) { return std::isdigit(c); }))
    return std::nullopt;
  return std::stoi(part);
}

std::optional<double> temperature(const std::string& group) {
  const auto value = figures(group, 2, 3);
  if (!value || (group[1] != '0' && group[1] != '1')) return std::nullopt;
  return (group[1] == '1' ? -*value : *value) / 10.0;
}

std::optional<double> sea_temperature(const std::string& group) {
  const auto value = figures(group, 2, 3);
  if (!value || group[1] < '0' || group[1] > '7') return std::nullopt;
  return ((group[1] - '0') % 2 == 1 ? -*value : *value) / 10.0;
}

std::optional<double> wet_bulb(const std::string& group) {
  const auto value = figures(group, 2, 3);
  constexpr std::string_view kBelowZero = "1267";
  if (!value || group[1] == '/' || std::string("34").find(group[1]) != std::string::npos ||
      group[1] > '7')
    return std::nullopt;
  const bool below = kBelowZero.find(group[1]) != std::string_view::npos;
  return (below ? -*value : *value) / 10.0;
}

std::optional<double> pressure(const std::string& group) {
  const auto value = figures(group, 1, 4);
  if (!value) return std::nullopt;
  return *value / 10.0 + (*value < 5000 ? 1000 : 0);
}

std::optional<double> change(const std::string& group) {
  const auto value = figures(group, 2, 3);
  if (!value || *value == 0) return std::nullopt;  // then no number is told
  return *value / 10.0;
}

std::optional<double> period(const std::string& group) {
  const auto value = figures(group, 1, 2);
  const std::string both = group.substr(1);
  if (!value || *value == 99 || both == "0000" || both == "00//") return std::nullopt;
  return *value;
}

std::optional<double> height(const std::string& group) {
  const auto value = figures(group, 3, 2);
  if (!value || *value == 0) return std::nullopt;
  return *value / 2.0;
}

std::optional<double> latitude(const std::string& group) {
  const auto value = figures(group, 2, 3);
  if (!value || *value > 900) return std::nullopt;
  return *value / 10.0;
}

std::optional<double> longitude(const std::string& group) {
  const auto value = figures(group, 1, 4);
  if (!value || *value > 1800) return std::nullopt;
  return *value / 10.0;
}

std::optional<double> thickness(const std::string& group) {
  const auto value = figures(group, 2, 2);
  if (!value) return std::nullopt;
  return *value;
}

struct Measured {
  Group group;
  const char* words;  ///< in front of the number
  std::optional<double> (*of)(const std::string& group);
};

constexpr Measured kMeasured[] = {
    {Group::k99LaLaLa, "Latitude ", latitude},
    {Group::kQcLoLoLoLo, "Longitude ", longitude},
    {Group::k1SnTTT, "Air temperature ", temperature},
    {Group::k2SnTdTdTd, "Dew point ", temperature},
    {Group::k4PPPP, "Pressure ", pressure},
    {Group::k5appp, "Pressure ", change},
    {Group::k0SsTwTwTw, "Sea surface temperature ", sea_temperature},
    {Group::k1PwaPwaHwaHwa, "period ", period},
    {Group::k1PwaPwaHwaHwa, "height ", height},
    {Group::k2PwPwHwHw, "period ", period},
    {Group::k2PwPwHwHw, "height ", height},
    {Group::k4Pw1Pw1Hw1Hw1, "period ", period},
    {Group::k4Pw1Pw1Hw1Hw1, "height ", height},
    {Group::k5Pw2Pw2Hw2Hw2, "period ", period},
    {Group::k5Pw2Pw2Hw2Hw2, "height ", height},
    {Group::k6IsEsEsRs, "Thickness of ice accretion ", thickness},
    {Group::k8SwTbTbTb, "Wet-bulb temperature ", wet_bulb},
};

/// "(270°)" where the words tell a direction.
std::vector<int> directions_told(const std::string& sentence) {
  std::vector<int> all;
  for (auto at = sentence.find("°)"); at != std::string::npos; at = sentence.find("°)", at + 1))
    all.push_back(std::stoi(sentence.substr(at - 3, 3)));
  return all;
}

void expect_figures_of_group(const PlainLine& line, Group group) {
  for (const Measured& row : kMeasured) {
    if (row.group != group) continue;
    const auto wanted = row.of(line.group);
    std::string words = row.words;
    // "height under 0.25 m" tells the figures 00.
    if (words == "height " && line.group.ends_with("00")) continue;
    if (!wanted) {
      const auto at = line.sentence.find(words);
      const char next = at == std::string::npos || at + words.size() >= line.sentence.size()
                            ? ' '
                            : line.sentence[at + words.size()];
      EXPECT_FALSE(std::isdigit(static_cast<unsigned char>(next)))
          << line.group << ": " << line.sentence;
      continue;
    }
    const auto told = told_behind(line.sentence, words);
    ASSERT_TRUE(told) << line.group << ": " << line.sentence;
    EXPECT_NEAR(*told, *wanted, 1e-9) << line.group << ": " << line.sentence;
  }
  if (group != Group::kNddff && group != Group::k3dw1dw1dw2dw2) return;
  std::vector<int> wanted;
  for (const std::size_t at : {1U, 3U}) {
    if (group == Group::kNddff && at == 3) continue;
    const auto tens = figures(line.group, at, 2);
    if (tens && *tens >= 1 && *tens <= 36) wanted.push_back(*tens * 10);
  }
  EXPECT_EQ(directions_told(line.sentence), wanted) << line.group << ": " << line.sentence;
}

std::optional<Group> only_group(const PlainLine& line) {
  const auto groups = line.of.in_order();
  if (groups.size() != 1 || line.group.empty()) return std::nullopt;
  return groups.front();
}

TEST(PlainWordsProperty, EveryWordIsInOneLineAndEveryFigureIsTheReports) {
  const int reports = fakes::rounds(10000);
  records::Random random(16);
  for (int i = 0; i < reports; ++i) {
    const Struct_Weather record = records::random_record(random);
    const bool wet_bulb_wanted = random.one_in(2);
    const observation::Report report = observation::make_report(record, wet_bulb_wanted);
    const std::string wanted = without_blanks(report.text.substr(0, report.text.size() - 5));
    for (const Language language : kLanguages) {
      const auto lines = plain_words(report.text, {}, language);
      expect_well_formed(lines, report.text);
      ASSERT_EQ(words_told(lines), wanted) << report.text;
      for (const PlainLine& line : lines) {
        const auto group = only_group(line);
        if (!group) continue;
        ASSERT_TRUE(report.written.contains(*group)) << report.text << ": " << line.group;
        if (observation::is_all_missing(line.group, observation::row_of(*group))) {
          EXPECT_EQ(line.told, Told::kNotReported) << line.group << ": " << line.sentence;
        }
        if (language == Language::kEnglish) expect_figures_of_group(line, *group);
      }
      if (HasFatalFailure()) return;
    }
  }
}

TEST(PlainWordsProperty, GroupsThatAreThereAndThoseThatAreMissingAreAllOfThem) {
  records::Random random(3);
  for (int i = 0; i < 2000; ++i) {
    const Struct_Weather record = records::random_record(random);
    const observation::Report report = observation::make_report(record, true);
    observation::GroupSet told;
    for (const PlainLine& line : plain_words(report.text, {}, Language::kEnglish)) {
      for (const Group group : line.of.in_order()) {
        EXPECT_FALSE(told.contains(group)) << report.text << ": twice";
        told.insert(group);
        EXPECT_EQ(line.group.empty(), !report.written.contains(group)) << report.text;
        if (line.group.empty()) {
          EXPECT_EQ(line.told, Told::kNotReported);
        }
      }
    }
    for (const Group group : {Group::k1SnTTT, Group::k4PPPP, Group::k0SsTwTwTw, Group::kNddff})
      EXPECT_TRUE(told.contains(group)) << report.text;
  }
}

TEST(PlainWordsProperty, RealReportsAreExplainedWordForWord) {
  const auto reports = real_reports();
  ASSERT_GT(reports.size(), 25U);
  for (const std::string& report : reports) {
    for (const Language language : kLanguages) {
      const auto lines = plain_words(report, {2014, 11}, language);
      expect_well_formed(lines, report);
      EXPECT_EQ(words_told(lines), without_blanks(report));
      for (const PlainLine& line : lines) {
        const auto group = only_group(line);
        if (group && language == Language::kEnglish) expect_figures_of_group(line, *group);
      }
    }
  }
}

// Typing mistakes: a figure for another, letters, words lost, torn or twice. None of these
// characters can end a report.
TEST(PlainWordsProperty, DamagedReportsAreExplainedWordForWord) {
  constexpr std::string_view kAny = "0123456789/xBI \n\r\t2233344455599ICE";
  records::Random random(99);
  const auto reports = real_reports();
  for (int i = 0; i < 4000; ++i) {
    std::string report =
        reports[static_cast<std::size_t>(random.below(static_cast<int>(reports.size())))];
    for (int changes = 1 + random.below(6); changes > 0; --changes) {
      const auto at =
          5 + static_cast<std::size_t>(random.below(static_cast<int>(report.size()) - 5));
      const char c = kAny[static_cast<std::size_t>(random.below(static_cast<int>(kAny.size())))];
      switch (random.below(3)) {
        case 0:
          report[at] = c;
          break;
        case 1:
          report.insert(at, 1, c);
          break;
        default:
          report.erase(at, 1);
          break;
      }
    }
    if (report.find("BBXX", 4) != std::string::npos) continue;
    for (const Language language : kLanguages) {
      const auto lines = plain_words(report, {}, language);
      if (lines.empty()) {
        EXPECT_FALSE(report.starts_with("BBXX ")) << report;  // the word itself was damaged
        continue;
      }
      expect_well_formed(lines, report);
      ASSERT_EQ(words_told(lines), without_blanks(report)) << report;
    }
  }
}

TEST(PlainWordsProperty, AnyBytesAreSurvived) {
  records::Random random(1);
  for (int i = 0; i < 4000; ++i) {
    std::string report = random.one_in(3) ? "" : "BBXX ";
    for (int length = random.below(60); length > 0; --length)
      report.push_back(static_cast<char>(random.one_in(3) ? ' ' : random.below(256)));
    for (const Language language : kLanguages) {
      const auto lines = plain_words(report, {}, language);
      if (!lines.empty()) expect_well_formed(lines, report);
      if (HasFatalFailure()) return;
    }
  }
  EXPECT_TRUE(plain_words("", {}, Language::kEnglish).empty());
  EXPECT_TRUE(plain_words("no report", {}, Language::kEnglish).empty());
}

// ---- Codes

TEST(PlainWordsProperty, EveryCodeSaysWhatItsTableSays) {
  int said = 0;
  for (const observation::GroupRow& row : observation::group_rows()) {
    for (const observation::Symbol& symbol : row.used()) {
      const auto fields = weather_fields();
      const auto at = std::find_if(fields.begin(), fields.end(), [&](const WeatherField& each) {
        return each.member == symbol.field;
      });
      const codetables::CodeTable* const table = codetables::table_of(at->name);
      // Signs and quadrants are said in the number, directions by the compass.
      constexpr std::array<std::string_view, 8> kInNumbers{"Qc", "dd",  "dw1dw1", "dw2dw2",
                                                           "Ss", "SnT", "SnTd",   "Sw"};
      if (table == nullptr ||
          std::find(kInNumbers.begin(), kInNumbers.end(), at->name) != kInNumbers.end())
        continue;
      for (const codetables::CodeRow& code : table->rows) {
        if (code.figures.front() == '/') continue;
        Struct_Weather record = records::full();
        record.*symbol.field = code.figures;
        const std::string report = observation::make_report(record, true).text;
        for (const Language language : kLanguages) {
          const auto lines = plain_words(report, {}, language);
          const auto line = std::find_if(lines.begin(), lines.end(), [&](const PlainLine& each) {
            return each.of.contains(row.group);
          });
          ASSERT_NE(line, lines.end()) << at->name;
          std::string meaning = *codetables::meaning(*table, code.figures, language);
          std::replace(meaning.begin(), meaning.end(), '\n', ' ');
          meaning = text::trim(meaning);
          // Brackets that only a list needs.
          if (at->name == "ww" && code.figures <= "03")
            meaning.erase(meaning.find(language == Language::kEnglish ? " (" : "（"));
          else if (const auto comma = meaning.find("(, "); comma != std::string::npos)
            meaning.erase(comma + 1, 2);
          // The limits of these stand in other words; their numbers are the same.
          if (at->name == "VV" || at->name == "h")
            meaning = meaning.substr(0, meaning.find_first_not_of("0123456789"));
          else
            meaning.erase(0, 1);  // a small letter for a capital one
          EXPECT_NE(line->sentence.find(meaning), std::string::npos)
              << at->name << " " << code.figures << ": " << line->sentence;
          EXPECT_NE(line->told, Told::kNotUnderstood) << at->name << " " << code.figures;
          ++said;
        }
      }
    }
  }
  EXPECT_GT(said, 500);
}

TEST(PlainWordsProperty, AWeatherOfOtherTablesIsNotReadByThese) {
  for (const Language language : kLanguages) {
    const auto lines = plain_words("BBXX JXKV 15124 99357 11653 47497 62718 76161", {}, language);
    EXPECT_NE(lines.back().sentence, "");
    const auto line = std::find_if(lines.begin(), lines.end(),
                                   [](const PlainLine& each) { return each.group == "76161"; });
    ASSERT_NE(line, lines.end());
    EXPECT_NE(line->sentence.find("4680"), std::string::npos) << line->sentence;
    const auto rain = codetables::meaning(*codetables::table_of("ww"), "61", language);
    EXPECT_EQ(line->sentence.find(rain->substr(1)), std::string::npos) << line->sentence;
  }
}

}  // namespace
