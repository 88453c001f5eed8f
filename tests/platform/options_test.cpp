#include "platform/system/options.h"

#include <gtest/gtest.h>

namespace {

using platform::DateTime;
using platform::parse_date_time;

TEST(Options, TimesOfTheCommandLineAreReadStrictly) {
  EXPECT_EQ(parse_date_time("2014-11-15T11:50"), (DateTime{2014, 11, 15, 11, 50, 0}));
  EXPECT_EQ(parse_date_time("2016-02-29T23:59:58"), (DateTime{2016, 2, 29, 23, 59, 58}));
  for (const char* wrong :
       {"", "2014-11-15", "2014-11-15 11:50", "2014-11-15T11:50Z", "2014-11-15T11:5",
        "2014-13-15T11:50", "2015-02-29T11:50", "2014-11-15T24:00", "2014-11-15T11:60",
        "2014-11-15T11:50:60", "2014-11-15T1a:50", "-014-11-15T11:50", "2014-11-00T11:50"})
    EXPECT_EQ(parse_date_time(wrong), std::nullopt) << wrong;
}

TEST(Options, AClockThatIsNoTimeIsAProblemAndNoneIsNot) {
  std::vector<std::string> problems;
  EXPECT_EQ(platform::given_time("", problems), std::nullopt);
  EXPECT_EQ(platform::given_time("2014-11-15T11:50", problems),
            (DateTime{2014, 11, 15, 11, 50, 0}));
  EXPECT_TRUE(problems.empty());
  EXPECT_EQ(platform::given_time("noon", problems), std::nullopt);
  EXPECT_EQ(problems,
            std::vector<std::string>{"--clock: \"noon\" is no time such as 2014-11-15T11:50"});
}

TEST(Options, OnlyTheLanguageOfTheNameCounts) {
  const struct {
    const char* name;
    unsigned id;
  } rows[] = {{"ja", 0x0411},    {"ja_JP.UTF-8", 0x0411}, {"ja_JP@x", 0x0411}, {"ja.eucJP", 0x0411},
              {"ja-JP", 0x0411}, {"en", 0x0409},          {"", 0x0409},        {"C", 0x0409},
              {"jav", 0x0409},   {"JA", 0x0409},          {"de_JA", 0x0409},   {"C.UTF-8", 0x0409}};
  for (const auto& row : rows) EXPECT_EQ(platform::locale_id_of(row.name), row.id) << row.name;
}

}  // namespace
