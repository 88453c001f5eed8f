#include "text/help.h"

#include <iterator>

#include "platform/paths.h"

namespace text {
namespace {

constexpr DialogTopic kTopics[] = {
    {"CUTCTimeDlg1", {"Kavrel", "Capter11-1_J.htm", "Capter11-1_E.htm"}},
    {"CPositionDlg", {"Kavrel", "Capter11-2_J.htm", "Capter11-2_E.htm"}},
    {"CDvDsDlg", {"Kavrel", "Capter11-3_J.htm", "Capter11-3_E.htm"}},
    {"CSeaSurfacePressureDlg", {"Kavrel", "Capter11-4_J.htm", "Capter11-4_E.htm"}},
    {"CPresureTendencyDlg", {"Kavrel", "Capter11-5_J.htm", "Capter11-5_E.htm"}},
    {"CCountDewDlg", {"Kavrel", "Capter11-6_J.htm", "Capter11-6_E.htm"}},
    {"CTemperatureAndDewDlg", {"Kavrel", "Capter11-7_J.htm", "Capter11-7_E.htm"}},
    {"CSea_SurfaceTemperatureDlg", {"Kavrel", "Capter11-8_J.htm", "Capter11-8_E.htm"}},
    {"CLookWindDlg", {"Kavrel", "Capter11-9_J.htm", "Capter11-9_E.htm"}},
    {"CWindDlg", {"Kavrel", "Capter11-10_J.htm", "Capter11-10_E.htm"}},
    {"CSwellWaveDlg", {"Kavrel", "Capter11-11_J.htm", "Capter11-11_E.htm"}},
    {"CWaveLengthDlg", {"Kavrel", "Capter11-11-1_J.htm", "Capter11-11-1_E.htm"}},
    {"CEyeShotDlg", {"Kavrel", "Capter11-12_J.htm", "Capter11-12_E.htm"}},
    {"CNowWeatherDlg", {"Kavrel", "Capter11-13_J.htm", "Capter11-13_E.htm"}},
    {"CPastWeatherDlg1", {"Kavrel", "Capter11-14_J.htm", "Capter11-14_E.htm"}},
    {"CCloudAgeDlg", {"Kavrel", "Capter11-15_J.htm", "Capter11-15_E.htm"}},
    {"CBottomLayerCloudDlg", {"Kavrel", "Capter11-16_J.htm", "Capter11-16_E.htm"}},
    {"CTopCloudDlg", {"Kavrel", "Capter11-17_J.htm", "Capter11-17_E.htm"}},
    {"CMidCloudDlg", {"Kavrel", "Capter11-18_J.htm", "Capter11-18_E.htm"}},
    {"CBottomCloudDlg", {"Kavrel", "Capter11-19_J.htm", "Capter11-19_E.htm"}},
    {"CCloudHeightDlg", {"Kavrel", "Capter11-20_J.htm", "Capter11-20_E.htm"}},
    {"CSeaIceDialog", {"Kavrel", "Capter11-21_J.htm", "Capter11-21_E.htm"}},
    {"CICECiDlg", {"Kavrel", "Capter11-22_J.htm", "Capter11-22_E.htm"}},
    {"CICESiBiDlg", {"Kavrel", "Capter11-23_J.htm", "Capter11-23_E.htm"}},
    {"CICEDiDlg", {"Kavrel", "Capter11-24_J.htm", "Capter11-24_E.htm"}},
    {"CNewZiDlg", {"Kavrel", "Capter11-25_J.htm", "Capter11-25_E.htm"}},
    {"CTrueDirWindDlg", {"Kavrel", "Capter11-26_J.htm", "Capter11-26_E.htm"}},
    {"CThumidityDlg", {"Kavrel", "Capter11-27_J.htm", "Capter11-27_E.htm"}},
    {"CFixDataDlg", {"Kavrel", "Capter4-1_J.htm", "Capter4-1_E.htm"}},
    {"CKeyObserveDlg", {"Kavrel", "Capter4-2_J.htm", "Capter4-2_E.htm"}},
    {"CVosClimDlg", {"Kavrel", "Capter7_J.htm", "Capter7_E.htm"}},
    {"CSeaMapDlg", {"Kavrel", "Capter11-28_J.htm", "Capter11-28_E.htm"}},
    {"CLogbookDlg", {"Kavrel", "Capter33_J.htm", "Capter33_E.htm"}},
    {"CLogbookCheckDlg", {"Kavrel", "Capter33_J.htm", "Capter33_E.htm"}},
    {"CPlainWordsDlg", {"Kavrel", "Capter31_J.htm", "Capter31_E.htm"}},
    {"CSaveErrorInfoDlg", {"Kavrel", "Capter32_J.htm", "Capter32_E.htm"}},
    {"CCurvesDlg", {"Kavrel", "Capter34_J.htm", "Capter34_E.htm"}},
    {"CTlxSelectDlg", {"Kavrel", "Capter8_J.htm", "Capter8_E.htm"}},
};

}  // namespace

std::span<const DialogTopic> dialog_topics() {
  return kTopics;
}

HelpTopic dialog_topic(std::string_view class_name) {
  for (const DialogTopic& row : kTopics) {
    if (row.class_name == class_name) return row.topic;
  }
  return {};
}

std::string HelpLauncher::path(const HelpTopic& topic) const {
  const bool english = texts_.language == Language::kEnglish;
  const std::string_view page = english ? topic.english : topic.japanese;
  std::string result = platform::join(platform::join(program_folder_, "help"), topic.base);
  result.append(english ? "_E.CHM" : "_J.CHM");
  if (!page.empty()) result.append("::/").append(page);
  return result;
}

}  // namespace text
