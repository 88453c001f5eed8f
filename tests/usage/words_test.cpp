// The words behind a command's name, read by its row.

#include <gtest/gtest.h>

#include <sstream>

#include "usage/command.h"
#include "usage/help.h"
#include "usage/programs.h"

namespace {

using usage::Command;
using usage::Words;

Words words_of(const char* command, const std::vector<std::string>& words) {
  return {*usage::cli_command(command), words};
}

TEST(Words, AnOptionAndItsValueAreTwoWordsOrOne) {
  for (const auto& given : {std::vector<std::string>{"--language", "ja", "a.obs"},
                            {"--language=ja", "a.obs"},
                            {"a.obs", "--language", "ja"}}) {
    const Words words = words_of("encode", given);
    EXPECT_EQ(words.wrong(), "");
    EXPECT_EQ(words.value("--language"), "ja");
    EXPECT_EQ(words.language(), text::Language::kJapanese);
    EXPECT_EQ(words.file(), "a.obs");
  }
}

TEST(Words, WithoutWordsEverythingIsAsUsual) {
  const Words words = words_of("encode", {});
  EXPECT_EQ(words.wrong(), "");
  EXPECT_FALSE(words.has("--language"));
  EXPECT_EQ(words.value("--language"), "");
  EXPECT_EQ(words.language(), text::Language::kEnglish);
  EXPECT_EQ(words.file(), "");
}

TEST(Words, OfTwoValuesTheLastHolds) {
  EXPECT_EQ(words_of("encode", {"--language", "ja", "--language", "en"}).value("--language"), "en");
}

TEST(Words, ADashIsStandardInputAndTwoEndTheOptions) {
  EXPECT_EQ(words_of("read", {"-"}).file(), "-");
  EXPECT_EQ(words_of("read", {"--", "--odd"}).file(), "--odd");
  EXPECT_EQ(words_of("read", {"--", "--odd"}).wrong(), "");
}

TEST(Words, TheReasonNamesTheWord) {
  struct Row {
    const char* command;
    std::vector<std::string> words;
    const char* wrong;
  };
  const Row rows[] = {
      {"encode", {"--language"}, "--language wants a value, en|ja"},
      {"encode", {"--language", "fr"}, "--language is en or ja, not \"fr\""},
      {"encode", {"--language="}, "--language is en or ja, not \"\""},
      {"logbook", {"--format", "xml"}, "--format is json or csv or names, not \"xml\""},
      {"logbook", {"--json=yes"}, "--json takes no value"},
      {"logbook", {"--list", ""}, "--list wants a value, FILE"},
      {"explain", {"--date", "2014-13"}, "--date is a year and a month, YYYY-MM, not \"2014-13\""},
      {"explain", {"--date=2014"}, "--date is a year and a month, YYYY-MM, not \"2014\""},
      {"read", {"--quick"}, "unknown option --quick"},
      {"read", {"-q"}, "unknown option -q"},
      {"read", {"--quick=3"}, "unknown option --quick"},
      {"read", {"a", "b"}, "unknown argument b"},
      {"read", {"--language", "ja"}, "--language goes with --help"},
      // The first fault is told.
      {"save", {"--x", "--reports"}, "unknown option --x"},
  };
  for (const Row& row : rows) EXPECT_EQ(words_of(row.command, row.words).wrong(), row.wrong);
}

TEST(Words, AYearAndAMonthAreFourAndTwoFigures) {
  for (const char* right : {"2014-01", "2014-12", "0001-10"})
    EXPECT_TRUE(usage::is_year_and_month(right)) << right;
  for (const char* wrong :
       {"", "2014", "2014-00", "2014-13", "0000-01", "2014/01", "14-01", "2014-1", "2014-011"})
    EXPECT_FALSE(usage::is_year_and_month(wrong)) << wrong;
}

TEST(Words, HelpAndVersionAreAskedForAmongOtherWords) {
  EXPECT_TRUE(words_of("save", {"--x", "--help"}).wants_help());
  EXPECT_TRUE(words_of("save", {"--version"}).wants_version());
  // What stands for a value or behind "--" is no option.
  EXPECT_FALSE(words_of("save", {"--reports", "--help"}).wants_help());
  EXPECT_FALSE(words_of("save", {"--", "--help"}).wants_help());
  EXPECT_EQ(words_of("read", {"--help", "--language", "ja"}).wrong(), "");
  EXPECT_EQ(words_of("session", {"--locale", "ja_JP", "--help"}).language(),
            text::Language::kJapanese);
}

TEST(Help, TellsTheWholeRow) {
  EXPECT_EQ(usage::help(*usage::cli_command("logbook"), text::Language::kEnglish),
            "usage: kavrel-cli logbook [--format json|csv|names] [FILE]\n"
            "       kavrel-cli logbook --check [--language en|ja] [--list FILE | --json] [FILE]\n"
            "\n"
            "lines of the logbook back to observations; or checks them\n"
            "\n"
            "Arguments and options:\n"
            "  FILE                     lines of the logbook (IMMT-5); none or -: standard input\n"
            "  --format json|csv|names  what an observation is written as (json)\n"
            "  --check                  tells what is wrong in the lines and between them\n"
            "  --language en|ja         the language of what --check tells (en)\n"
            "  --list FILE              with --check: a line of JSON for each finding, into FILE\n"
            "  --json                   with --check: these lines in place of the summary\n"
            "  --help                   tells this and ends\n"
            "  --version                tells the version and ends\n"
            "\n"
            "Exit status:\n"
            "  0  done\n"
            "  1  --check found something, or the logbook has no line\n"
            "  2  wrong words, or a file that cannot be used: standard error says why\n");
  const std::string japanese = usage::help(*usage::cli_command("read"), text::Language::kJapanese);
  EXPECT_EQ(japanese,
            "usage: kavrel-cli read [FILE]\n"
            "\n"
            "気象電報を観測値に戻す\n"
            "\n"
            "引数とオプション：\n"
            "  FILE              気象電報（FM 13）、省略または-は標準入力\n"
            "  --help            この説明を表示して終了します\n"
            "  --version         バージョンを表示して終了します\n"
            "  --language en|ja  --helpとともに：説明の言語（指定なしはen）\n"
            "\n"
            "終了ステータス：\n"
            "  0  正常終了\n"
            "  2  指定の誤り、または使用できないファイル（理由は標準エラー出力）\n");
}

TEST(Help, TheReasonIsFollowedByTheWaysToCallAndByWhatTellsMore) {
  EXPECT_EQ(usage::refusal(*usage::cli_command("bufr"), "unknown option --x"),
            "kavrel-cli: unknown option --x\n"
            "usage: kavrel-cli bufr [--wigos 0-22000-0-XXXXXXX] [--date YYYY-MM]\n"
            "                       [--output FILE|-] [FILE]\n"
            "kavrel-cli bufr --help tells more\n");
}

std::vector<const Command*> all_rows() {
  std::vector<const Command*> rows{&usage::desktop_program(), &usage::cli_program()};
  for (const Command& command : usage::cli_commands()) rows.push_back(&command);
  return rows;
}

/// Columns of a terminal: all letters but the Latin ones take two.
std::size_t columns(std::string_view line) {
  std::size_t count = 0;
  for (const char c : line) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x80)
      ++count;
    else if (byte >= 0xC0)
      count += 2;
  }
  return count;
}

TEST(Rows, EveryLineOfTheHelpIsShortAndSaysSomethingInBothLanguages) {
  for (const Command* row : all_rows()) {
    std::string english;
    for (const auto language : {text::Language::kEnglish, text::Language::kJapanese}) {
      const std::string help = usage::help(*row, language, usage::cli_commands());
      std::istringstream lines(help);
      for (std::string line; std::getline(lines, line);) {
        EXPECT_LE(columns(line), 90U) << line;
        EXPECT_FALSE(line.ends_with(' ')) << line << "|";
      }
      EXPECT_NE(help, english);
      english = help;
    }
  }
}

// What stands in the lines of usage is the table's and nothing else.
TEST(Rows, TheWaysToCallNameEveryOptionWithItsValue) {
  for (const Command* row : all_rows()) {
    std::string ways;
    for (const std::string_view usage : row->usages) ways.append(usage).append(" ");
    for (char& c : ways)
      if (c == '\n') c = ' ';
    for (const usage::Option& option : row->options) {
      std::string words(option.name);
      if (!option.value.empty()) words.append(" ").append(option.value);
      EXPECT_NE(ways.find(words), std::string::npos) << row->full_name() << " " << words;
    }
    for (std::size_t at = ways.find("--"); at != std::string::npos; at = ways.find("--", at + 2)) {
      const std::string name = ways.substr(at, ways.find_first_of(" ]", at) - at);
      EXPECT_TRUE(row->option(name) != nullptr || name == usage::language_of_help().name) << name;
    }
    EXPECT_EQ(ways.find(std::string("[").append(row->argument).append("]")) != std::string::npos,
              !row->argument.empty());
  }
}

TEST(Rows, AnOptionHasAValueWhenItsKindSaysSo) {
  for (const Command* row : all_rows())
    for (const usage::Option& option : row->options)
      EXPECT_EQ(option.kind == usage::Value::kNone, option.value.empty()) << option.name;
}

}  // namespace
