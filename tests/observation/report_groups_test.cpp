#include "observation/report_groups.h"

#include <gtest/gtest.h>

#include "records.h"

namespace {

using observation::Group;
using observation::group_text;
using records::with;

struct Row {
  Group group;
  const char* full;   ///< of records::full()
  const char* empty;  ///< of a record with nothing entered
};

// One line per group of the message, in its order.
constexpr Row kRows[] = {
    {Group::kYYGGiw, "15124", "****4"},
    {Group::k99LaLaLa, "99357", "99***"},
    {Group::kQcLoLoLoLo, "11653", "*****"},
    {Group::kiRiXhVV, "41497", "41***"},
    {Group::kNddff, "62799", "*****"},
    {Group::k00fff, "00105", "00"},
    {Group::k1SnTTT, "10152", "1****"},
    {Group::k2SnTdTdTd, "20108", "2****"},
    {Group::k4PPPP, "40132", "4****"},
    {Group::k5appp, "52014", "5****"},
    {Group::k7wwW1W2, "71582", "7****"},
    {Group::k8NhCLCMCH, "84531", "8****"},
    {Group::k9GGgg, "91150", "9"},
    {Group::k222DsVs, "22223", "222**"},
    {Group::k0SsTwTwTw, "00178", "0****"},
    {Group::k1PwaPwaHwaHwa, "10706", "1****"},
    {Group::k2PwPwHwHw, "20604", "2****"},
    {Group::k3dw1dw1dw2dw2, "32531", "3****"},
    {Group::k4Pw1Pw1Hw1Hw1, "40905", "4****"},
    {Group::k5Pw2Pw2Hw2Hw2, "51103", "5****"},
    {Group::k6IsEsEsRs, "61023", "6****"},
    {Group::k8SwTbTbTb, "80130", "8****"},
    {Group::kICE, "ICE 12345", "ICE *****"},
};

TEST(ReportGroups, EveryRowBuildsItsGroupFullAndEmpty) {
  ASSERT_EQ(std::size(kRows), observation::kGroups);
  for (const Row& row : kRows) {
    EXPECT_EQ(group_text(records::full(), row.group), row.full);
    EXPECT_EQ(group_text(records::fresh(), row.group), row.empty) << row.full;
  }
}

TEST(ReportGroups, EmptySymbolsAreMaskedOneByOne) {
  EXPECT_EQ(group_text(with({{"dd", "27"}}), Group::kNddff), "*27**");
  EXPECT_EQ(group_text(with({{"W1", "8"}}), Group::k7wwW1W2), "7**8*");
  EXPECT_EQ(group_text(with({{"bi", "/"}}), Group::kICE), "ICE **/**");
}

TEST(ReportGroups, FieldsAreNeitherCutNorFilled) {
  EXPECT_EQ(group_text(with({{"SnT", "0"}, {"TTT", "1234"}}), Group::k1SnTTT), "101234");
  EXPECT_EQ(group_text(with({{"SnT", "0"}, {"TTT", "5"}}), Group::k1SnTTT), "105");
  EXPECT_EQ(group_text(with({{"SnT", "0"}, {"TTT", "1 2"}}), Group::k1SnTTT), "1012");
}

TEST(ReportGroups, KeptFieldsKeepTheirSpaces) {
  EXPECT_EQ(group_text(with({{"fff", "1 5"}}), Group::k00fff), "001 5");
  EXPECT_EQ(group_text(with({{"GGExact", ""}, {"gg", "50"}}), Group::k9GGgg), "950");
}

TEST(ReportGroups, MinutesBecomeTenthsTruncated) {
  struct Minutes {
    const char *minutes, *latitude;
  };
  for (const Minutes& row : {Minutes{"59", "99359"},
                             {"5", "99350"},
                             {"05", "99350"},
                             {"6", "99351"},
                             {"0", "99350"},
                             {"54", "99359"},
                             {"", "9935*"}}) {
    const auto record = with({{"Qc", "1"},
                              {"LaDeg", "35"},
                              {"LaMin", row.minutes},
                              {"LoDeg", "165"},
                              {"LoMin", row.minutes}});
    EXPECT_EQ(group_text(record, Group::k99LaLaLa), row.latitude) << row.minutes;
    EXPECT_EQ(group_text(record, Group::kQcLoLoLoLo), std::string("1165") + row.latitude[4])
        << row.minutes;
  }
}

TEST(ReportGroups, NoSecondSwellMasksItsDirection) {
  struct Swell {
    const char *first, *second, *text;
  };
  for (const Swell& row : {Swell{"27", "00", "327**"},
                           {"00", "00", "30000"},
                           {"27", "//", "327//"},
                           {"", "//", "3**//"},
                           {"", "00", "3****"},
                           {"00", "05", "30005"},
                           {"//", "00", "3//**"}})
    EXPECT_EQ(
        group_text(with({{"dw1dw1", row.first}, {"dw2dw2", row.second}}), Group::k3dw1dw1dw2dw2),
        row.text);
}

TEST(ReportGroups, AllMissingNeedsTheGroupsExactForm) {
  const auto& row = observation::row_of(Group::k1SnTTT);
  EXPECT_TRUE(observation::is_all_missing("1////", row));
  EXPECT_TRUE(observation::is_all_missing("1*/*/", row));
  EXPECT_FALSE(observation::is_all_missing("1///", row));
  EXPECT_FALSE(observation::is_all_missing("1/////", row));
  EXPECT_FALSE(observation::is_all_missing("10///", row));
  EXPECT_FALSE(observation::is_all_missing("2////", row));
}

}  // namespace
