#include "win32/help.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

struct Viewer {
  std::optional<std::string> file = "Z:/kavrel/help/Kavrel_E/A_E.htm";
  bool opens = true;
  std::vector<std::string> opened;
  std::vector<std::string> told;
  win32::Help help{[this](const std::string& /*path*/) { return file; },
                   [this](const std::string& title, const std::string& words) {
                     told.push_back(title);
                     told.push_back(words);
                   },
                   [this](const std::string& page) {
                     opened.push_back(page);
                     return opens;
                   }};
};

TEST(Help, OpensThePage) {
  Viewer viewer;
  EXPECT_TRUE(viewer.help.show("C:\\p\\help\\Kavrel_E.CHM::/A_E.htm"));
  EXPECT_EQ(viewer.opened, std::vector<std::string>{"Z:/kavrel/help/Kavrel_E/A_E.htm"});
  EXPECT_TRUE(viewer.told.empty());
}

TEST(Help, SaysInTheLanguageOfThePathThatThereIsNoPage) {
  Viewer viewer;
  viewer.file.reset();
  EXPECT_FALSE(viewer.help.show("C:\\p\\help\\Kavrel_E.CHM::/none.htm"));
  EXPECT_FALSE(viewer.help.show("C:\\p\\help\\Kavrel_J.CHM"));
  ASSERT_EQ(viewer.told.size(), 4U);
  EXPECT_EQ(viewer.told[0], "Help");
  EXPECT_EQ(viewer.told[1], "The help page was not found.\nC:\\p\\help\\Kavrel_E.CHM::/none.htm");
  EXPECT_EQ(viewer.told[3], "ヘルプのページが見つかりません。\nC:\\p\\help\\Kavrel_J.CHM");
  EXPECT_TRUE(viewer.opened.empty());
}

TEST(Help, SaysSoWhereNothingOpensPages) {
  Viewer viewer;
  viewer.opens = false;
  EXPECT_FALSE(viewer.help.show("C:\\p\\help\\Kavrel_E.CHM::/A_E.htm"));
  EXPECT_EQ(viewer.told.size(), 2U);
}

TEST(Help, TellsThatAFileIsNotThere) {
  EXPECT_FALSE(win32::open_page("C:/no/such/page.htm"));
}

}  // namespace
