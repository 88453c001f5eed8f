#include "archive/report_list.h"

#include <gtest/gtest.h>

#include "fakes/fake_files.h"
#include "fakes/fake_ports.h"

namespace {

using archive::ReportNames;

// What a report of the time and place looks like.
constexpr std::string_view kReport =
    "BBXX JABC 15124 99357 11653 41396 72818 10153 20102 40132 52014 70211 85230 22253 0////;";

using Lines = std::vector<std::string>;

constexpr std::string_view kFolder = "C:\\tlx";

class AReportList : public testing::Test {
 protected:
  void put(const std::string& name, std::string_view text = kReport,
           platform::DateTime when = {2014, 11, 15, 9, 5, 0}) {
    const std::string path = std::string(kFolder) + "\\" + name;
    files.add_file(path, std::string(text));
    files.set_modified(path, when);
  }
  Lines names() {
    Lines result;
    for (const auto& report : archive::list_reports(files, std::string(kFolder)).reports)
      result.push_back(report.name);
    return result;
  }
  Lines lines(ReportNames names = ReportNames::kWhole, std::optional<bool> ticked = {}) {
    archive::show_reports(heading, list, archive::list_reports(files, std::string(kFolder)).reports,
                          names, world.texts, ticked);
    return list.items;
  }

  fakes::FakeFiles files;
  fakes::World world;
  ui::Screen screen{world.services, "CReportListTestDlg", {}};
  ui::Label heading{screen, "heading"};
  ui::List list{screen, "reports"};
};

TEST_F(AReportList, ShowsNameDatePositionAndTimeOfTheFile) {
  put("14111512.tlx");
  EXPECT_EQ(lines(), Lines{"14111512.tlx   2014/11/15 12   35.7N  165.3E   2014/11/15  09:05"});
  EXPECT_EQ(lines(ReportNames::kWithoutExtension),
            Lines{"14111512       2014/11/15 12   35.7N  165.3E   2014/11/15  09:05"});
  EXPECT_EQ(list.selected, -1);
  EXPECT_EQ(list.font, ui::kFixedPitch);
  const auto found = archive::list_reports(files, std::string(kFolder));
  EXPECT_EQ(found.reports.at(0).path, "C:\\tlx\\14111512.tlx");
}

TEST_F(AReportList, SignsAPositionByItsQuadrant) {
  struct Row {
    std::string_view groups, shown;
  };
  const Row rows[] = {{"99357 11653", "35.7N  165.3E"},
                      {"99004 31653", " 0.4S  165.3E"},
                      {"99357 50009", "35.7S    0.9W"},
                      {"99900 71800", "90.0N  180.0W"},
                      {"99357 1////", ""},
                      {"99/// 11653", ""}};
  for (const Row& row : rows) {
    put("14111512.tlx", "BBXX JABC 15124 " + std::string(row.groups) + " 41396 72818 222// ;");
    std::string expected = "14111512.tlx   2014/11/15 12   ";
    std::string position(row.shown);
    position.resize(13, ' ');
    expected.append(position).append("   2014/11/15  09:05");
    EXPECT_EQ(lines(), Lines{expected}) << row.groups;
  }
}

TEST_F(AReportList, HasTheNewestFirstAndWhatTellsNoDateBehind) {
  put("14111512.tlx");
  put("00010100.tlx");
  put("14111600.tlx");
  put("copy of 14111512.tlx", "", {2014, 11, 15, 9, 6, 0});
  put("a.tlx");
  put("b.tlx", "", {2014, 11, 15, 9, 5, 1});
  EXPECT_EQ(names(), (Lines{"14111600.tlx", "14111512.tlx", "00010100.tlx", "copy of 14111512.tlx",
                            "b.tlx", "a.tlx"}));
}

TEST_F(AReportList, HoldsFilesWhoseNamesEndInTheExtensionOnly) {
  put("14111512.tlx");
  put("14111513.TLX");
  put("x.tlx.bak");
  put("tlx");
  put(".tlx");
  files.add_folder("C:\\tlx\\14111514.tlx");
  files.add_file("C:\\tlx\\sub\\14111515.tlx", "");
  EXPECT_EQ(names(), (Lines{"14111512.tlx", ".tlx"}));
  EXPECT_EQ(lines(ReportNames::kWithoutExtension).at(1),
            "                               35.7N  165.3E   2014/11/15  09:05");
}

TEST_F(AReportList, KeepsItsColumnsWhateverTheFilesHold) {
  put("14111512.tlx", std::string(observation::kLargestReport + 1, 'x'));
  put("東京湾の気象.tlx", "no report");
  put("a very long name that somebody gave to a copy.tlx", "\xFF\xFE\0\n");
  EXPECT_EQ(
      lines(),
      (Lines{"14111512.tlx                   2014/11/15 12                   2014/11/15  09:05",
             "a very long name that somebody gave to a copy.tlx"
             "                                   2014/11/15  09:05",
             "東京湾の気象.tlx                                               2014/11/15  09:05"}));
}

TEST_F(AReportList, TellsWhyAFolderCannotBeRead) {
  files.fail_next(fakes::FakeFiles::Operation::kList, platform::FileError::kAccessDenied);
  const auto found = archive::list_reports(files, std::string(kFolder));
  EXPECT_EQ(found.error, platform::FileError::kAccessDenied);
  EXPECT_TRUE(found.reports.empty());
  const auto none = archive::list_reports(files, "");
  EXPECT_EQ(none.error, platform::FileError::kNone);
  EXPECT_TRUE(none.reports.empty());
}

TEST_F(AReportList, ShowsAFileThatVanishesWhileItIsReadByItsName) {
  put("14111512.tlx");
  files.fail_next(fakes::FakeFiles::Operation::kRead, platform::FileError::kNotFound);
  EXPECT_EQ(lines(), Lines{"14111512.tlx   2014/11/15 12                   2014/11/15  09:05"});
}

TEST_F(AReportList, HasAHeadingOverItsColumnsInBothLanguages) {
  put("14111512.tlx");
  lines();
  EXPECT_EQ(heading.literal_caption,
            "Report         Date/hour UTC   Position        Time of the file");
  EXPECT_EQ(heading.font, ui::kFixedPitch);
  EXPECT_TRUE(list.item_ticked.empty());
  world.texts.language = text::Language::kJapanese;
  lines();
  EXPECT_EQ(heading.literal_caption,
            "気象電報       観測日時(UTC)   位置            ファイルの日時");
}

TEST_F(AReportList, HasABoxBesideEachLineWhereReportsAreTicked) {
  put("14111512.tlx");
  put("14111515.tlx");
  lines(ReportNames::kWhole, true);
  EXPECT_EQ(list.item_ticked, (std::vector{true, true}));
  EXPECT_EQ(heading.literal_caption,
            "   Report         Date/hour UTC   Position        Time of the file");
  lines(ReportNames::kWhole, false);
  EXPECT_EQ(list.item_ticked, (std::vector{false, false}));
}

}  // namespace
