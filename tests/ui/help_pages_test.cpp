// Each screen's help is about that screen: the page it opens bears its title, in both languages.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "fakes/all_screens.h"
#include "fakes/fake_ports.h"

namespace {

// Dialogs that open the page of the one that they are a part of.
struct PartOf {
  std::string_view part, whole;
};
constexpr PartOf kParts[] = {{"CKataSelectDlg", "CFixDataDlg"},
                             {"CKataInputDlg", "CFixDataDlg"},
                             {"CFullEmptySelect", "CFixDataDlg"},
                             {"CLogbookCheckDlg", "CLogbookDlg"}};
// Its title is a given one; its page tells of what it lists, not of the dialog.
constexpr std::string_view kWithTitleOfItsOwn = "CSaveErrorInfoDlg";

// F1 in the main window opens the dialog of an element, not a page.
constexpr std::string_view kMainWindow = "CVelmaranDlg";

// The dialog whose title its page bears.
std::string_view owner_of(std::string_view class_name) {
  for (const PartOf& each : kParts)
    if (each.part == class_name) return each.whole;
  return class_name;
}

const fakes::ScreenCase* find_screen(std::string_view class_name) {
  for (const fakes::ScreenCase& row : fakes::all_screens()) {
    if (row.class_name == class_name) return &row;
  }
  return nullptr;
}

std::string topics_file() {
  const std::ifstream file(KAVREL_SOURCE "/resources/help/topics.txt");
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
    const std::string_view owner = owner_of(GetParam().class_name);
    const bool has_page = !text::dialog_topic(owner).base.empty();
    ASSERT_EQ(has_page ? 1U : 0U, shown.size());
    for (ui::Control* const control : screen->controls()) {
      if (control->role != ui::Role::kHelp) continue;
      EXPECT_TRUE(has_page) << "a Help button without a page";
      screen->press(*control);
      ASSERT_EQ(2U, shown.size());
      EXPECT_EQ(shown[0], shown[1]) << "F1 and the Help button differ";
    }
    if (!has_page) continue;
    const auto titled = find_screen(owner)->make(world.services);
    const char letter = language == text::Language::kEnglish ? 'E' : 'J';
    const std::string heading = heading_of(shown[0], letter);
    if (owner == kWithTitleOfItsOwn)
      EXPECT_TRUE(heading.starts_with("Doubts") || heading.starts_with("送信前")) << heading;
    else
      EXPECT_EQ(titled->title(), heading);
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
      if (owner_of(row.class_name) != row.class_name) continue;
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
