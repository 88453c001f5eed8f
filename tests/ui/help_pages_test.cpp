// Each screen's help is about that screen: the page it opens bears its title, in both languages.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "fakes/all_screens.h"
#include "fakes/fake_ports.h"

namespace {

// The dialogs of the barometer card are a part of the fixed data and open its page.
constexpr std::string_view kPartsOfFixedData[] = {"CKataSelectDlg", "CKataInputDlg",
                                                  "CFullEmptySelect"};
constexpr std::string_view kFixedData = "CFixDataDlg";

// F1 in the main window opens the dialog of an element, not a page.
constexpr std::string_view kMainWindow = "CVelmaranDlg";

bool is_part_of_fixed_data(std::string_view class_name) {
  return std::find(std::begin(kPartsOfFixedData), std::end(kPartsOfFixedData), class_name) !=
         std::end(kPartsOfFixedData);
}

const fakes::ScreenCase* find_screen(std::string_view class_name) {
  for (const fakes::ScreenCase& row : fakes::all_screens()) {
    if (row.class_name == class_name) return &row;
  }
  return nullptr;
}

std::string topics_file() {
  const std::ifstream file(std::string(KAVREL_SOURCE) + "/resources/help/topics.txt");
  std::ostringstream text;
  text << file.rdbuf();
  return text.str();
}

// "C:\program\help\Kavrel_E.CHM::/Capter11-1_E.htm" is the English half of the page Capter11-1.
std::string heading_of(const std::string& path, char language) {
  const std::string start = std::string("C:\\program\\help\\Kavrel_") + language + ".CHM::/";
  const std::string end = std::string("_") + language + ".htm";
  if (!path.starts_with(start) || !path.ends_with(end)) return "not a page of the manual: " + path;
  const std::string page = path.substr(start.size(), path.size() - start.size() - end.size());
  static const std::string kTopics = topics_file();
  const auto block = kTopics.find("\n== " + page + "\n");
  if (block == std::string::npos) return "no page " + page;
  const std::string half = std::string("\n") + language + " ";
  const auto heading = kTopics.find(half, block) + half.size();
  if (heading > kTopics.find("\n== ", block + 1)) return "not told in this language";
  return kTopics.substr(heading, kTopics.find('\n', heading) - heading);
}

std::vector<fakes::ScreenCase> dialogs() {
  std::vector<fakes::ScreenCase> result = fakes::all_screens();
  std::erase_if(result, [](const auto& row) { return row.class_name == kMainWindow; });
  return result;
}

class EveryHelp : public testing::TestWithParam<fakes::ScreenCase> {};

TEST_P(EveryHelp, OpensThePageThatBearsTheTitleOfItsScreen) {
  for (const auto language : {text::Language::kEnglish, text::Language::kJapanese}) {
    fakes::World world;
    world.texts.language = language;
    const auto screen = GetParam().make(world.services);
    screen->open();
    screen->key(ui::Key::kF1);
    const std::vector<std::string>& shown = world.help_viewer.shown;
    const bool part = is_part_of_fixed_data(GetParam().class_name);
    const bool has_page = part || !text::dialog_topic(GetParam().class_name).base.empty();
    ASSERT_EQ(has_page ? 1U : 0U, shown.size());
    for (ui::Control* const control : screen->controls()) {
      if (control->role != ui::Role::kHelp) continue;
      EXPECT_TRUE(has_page) << "a Help button without a page";
      screen->press(*control);
      ASSERT_EQ(2U, shown.size());
      EXPECT_EQ(shown[0], shown[1]) << "F1 and the Help button differ";
    }
    if (!has_page) continue;
    const auto owner = part ? find_screen(kFixedData)->make(world.services) : nullptr;
    const char letter = language == text::Language::kEnglish ? 'E' : 'J';
    EXPECT_EQ(part ? owner->title() : screen->title(), heading_of(shown[0], letter));
  }
}

INSTANTIATE_TEST_SUITE_P(Dialogs, EveryHelp, testing::ValuesIn(dialogs()),
                         [](const auto& row) { return std::string(row.param.class_name); });

// A dialog that came without a row in the table would not be looked at above.
TEST(HelpPages, AreHeldAgainstEveryDialogThatIsThere) {
  int there = 0;
  for (const text::DialogTopic& row : text::dialog_topics()) {
    const std::string header = std::string(row.class_name) + ".h";
    for (const auto& entry :
         std::filesystem::recursive_directory_iterator(std::string(KAVREL_SOURCE) + "/src")) {
      if (entry.path().filename() != header) continue;
      ++there;
      EXPECT_NE(nullptr, find_screen(row.class_name))
          << row.class_name << " has no row in tests/fakes/all_screens.cpp";
    }
  }
  EXPECT_LT(0, there);
}

// Two dialogs with one heading could not be told apart in the manual's list.
TEST(HelpPages, HaveHeadingsOfTheirOwn) {
  for (const char language : {'E', 'J'}) {
    std::vector<std::string> headings;
    for (const text::DialogTopic& row : text::dialog_topics()) {
      const std::string_view page = language == 'E' ? row.topic.english : row.topic.japanese;
      headings.push_back(heading_of(
          std::string("C:\\program\\help\\Kavrel_") + language + ".CHM::/" + std::string(page),
          language));
    }
    std::sort(headings.begin(), headings.end());
    EXPECT_EQ(headings.end(), std::adjacent_find(headings.begin(), headings.end()));
  }
}

}  // namespace
