#include "codetables/code_pickers.h"

#include <algorithm>

#include "codetables/ice_drawings.h"
#include "text/ids.h"

namespace codetables {

namespace id = text::id;

// ---- Course and speed made good during the three hours before the observation

constexpr PickedCode kMovementCodes[] = {
    {.symbol = "Ds", .control = "course", .caption = id::kMovementCourse},
    {.symbol = "Vs", .control = "speed", .caption = id::kMovementSpeed},
};
constexpr CodePicker kMovement = {
    .class_name = "CDvDsDlg",
    .title = id::kMovementTitle,
    .codes = kMovementCodes,
};

// ---- Visibility: the bands that serve at sea, the farthest first

constexpr std::string_view kVisibilityOrder[] = {"//", "99", "98", "97", "96", "95",
                                                 "94", "93", "92", "91", "90"};
constexpr PickedCode kVisibilityCodes[] = {
    {.symbol = "VV", .control = "choice", .order = kVisibilityOrder},
};
constexpr CodePicker kVisibility = {
    .class_name = "CEyeShotDlg",
    .title = id::kVisibilityTitle,
    .heading = id::kVisibilityHeading,
    .group = id::kVisibilityGroup,
    .codes = kVisibilityCodes,
};

// ---- Clouds

constexpr PickedCode kTotalCloudCodes[] = {{.symbol = "N", .control = "choice"}};
constexpr CodePicker kTotalCloud = {
    .class_name = "CCloudAgeDlg",
    .title = id::kTotalCloudTitle,
    .heading = id::kTotalCloudHeading,
    .group = id::kTotalCloudGroup,
    .codes = kTotalCloudCodes,
};

constexpr PickedCode kLowestCloudCodes[] = {{.symbol = "Nh", .control = "choice"}};
constexpr CodePicker kLowestCloud = {
    .class_name = "CBottomLayerCloudDlg",
    .title = id::kLowestCloudTitle,
    .heading = id::kLowestCloudHeading,
    .codes = kLowestCloudCodes,
};

// The highest first.
constexpr std::string_view kCloudBaseOrder[] = {"/", "9", "8", "7", "6", "5",
                                                "4", "3", "2", "1", "0"};
constexpr PickedCode kCloudBaseCodes[] = {
    {.symbol = "h", .control = "choice", .order = kCloudBaseOrder},
};
constexpr CodePicker kCloudBase = {
    .class_name = "CCloudHeightDlg",
    .title = id::kCloudBaseTitle,
    .heading = id::kCloudBaseHeading,
    .group = id::kCloudBaseGroup,
    .codes = kCloudBaseCodes,
};

// None and unknown stand before the types. The long title is cut in a title bar, so it stands above
// the pictures as well.
constexpr std::string_view kCloudTypeOrder[] = {"0", "/", "1", "2", "3", "4",
                                                "5", "6", "7", "8", "9"};

constexpr LinePicture kLowCloudPictures[] = {{"1", "CL1.jpg"}, {"2", "CL2.jpg"}, {"3", "CL3.jpg"},
                                             {"4", "CL4.jpg"}, {"5", "CL5.jpg"}, {"6", "CL6.jpg"},
                                             {"7", "CL7.jpg"}, {"8", "CL8.jpg"}, {"9", "CL9.jpg"}};
constexpr PickedCode kLowCloudCodes[] = {
    {.symbol = "CL",
     .control = "choice",
     .order = kCloudTypeOrder,
     .pictures = kLowCloudPictures,
     .reads = Reads::kFirstFigure},
};
constexpr CodePicker kLowCloud = {
    .class_name = "CBottomCloudDlg",
    .title = id::kLowCloudTitle,
    .heading = id::kLowCloudTitle,
    .codes = kLowCloudCodes,
};

constexpr LinePicture kMiddleCloudPictures[] = {
    {"1", "CM1.jpg"}, {"2", "CM2.jpg"}, {"3", "CM3.jpg"}, {"4", "CM4.jpg"}, {"5", "CM5.jpg"},
    {"6", "CM6.jpg"}, {"7", "CM7.jpg"}, {"8", "CM8.jpg"}, {"9", "CM9.jpg"}};
constexpr PickedCode kMiddleCloudCodes[] = {
    {.symbol = "CM",
     .control = "choice",
     .order = kCloudTypeOrder,
     .pictures = kMiddleCloudPictures,
     .reads = Reads::kFirstFigure},
};
constexpr CodePicker kMiddleCloud = {
    .class_name = "CMidCloudDlg",
    .title = id::kMiddleCloudTitle,
    .heading = id::kMiddleCloudTitle,
    .codes = kMiddleCloudCodes,
};

constexpr LinePicture kHighCloudPictures[] = {{"1", "CH1.jpg"}, {"2", "CH2.jpg"}, {"3", "CH3.jpg"},
                                              {"4", "CH4.jpg"}, {"5", "CH5.jpg"}, {"6", "CH6.jpg"},
                                              {"7", "CH7.jpg"}, {"8", "CH8.jpg"}, {"9", "CH9.jpg"}};
constexpr PickedCode kHighCloudCodes[] = {
    {.symbol = "CH",
     .control = "choice",
     .order = kCloudTypeOrder,
     .pictures = kHighCloudPictures,
     .reads = Reads::kFirstFigure},
};
constexpr CodePicker kHighCloud = {
    .class_name = "CTopCloudDlg",
    .title = id::kHighCloudTitle,
    .heading = id::kHighCloudTitle,
    .codes = kHighCloudCodes,
};

// ---- Sea ice

constexpr PickedCode kIceStageCodes[] = {
    {.symbol = "Si", .control = "stage", .caption = id::kIceStageList, .line_length = 44},
    {.symbol = "bi", .control = "land_origin", .caption = id::kLandIceList, .line_length = 44},
};
constexpr CodePicker kIceStage = {
    .class_name = "CICESiBiDlg",
    .title = id::kIceStageTitle,
    .codes = kIceStageCodes,
};

constexpr PickedCode kIceEdgeCodes[] = {
    {.symbol = "Di", .control = "choice", .line_length = 44, .drawing = ice_edge},
};
constexpr CodePicker kIceEdge = {
    .class_name = "CICEDiDlg",
    .title = id::kIceEdgeTitle,
    .codes = kIceEdgeCodes,
};

constexpr PickedCode kIceTrendCodes[] = {{.symbol = "zi", .control = "choice"}};
constexpr CodePicker kIceTrend = {
    .class_name = "CNewZiDlg",
    .title = id::kIceTrendTitle,
    .codes = kIceTrendCodes,
};

// ---- All of them

std::span<const CodePicker* const> code_pickers() {
  static constexpr const CodePicker* kAll[] = {
      &kMovement,    &kVisibility, &kTotalCloud, &kLowestCloud, &kCloudBase, &kLowCloud,
      &kMiddleCloud, &kHighCloud,  &kIceStage,   &kIceEdge,     &kIceTrend,
  };
  return kAll;
}

std::vector<CodeRow> lines_of(const PickedCode& picked) {
  const std::span<const CodeRow> rows = table_of(picked.symbol)->rows;
  if (picked.order.empty()) return {rows.begin(), rows.end()};
  std::vector<CodeRow> lines;
  for (const std::string_view code : picked.order) {
    lines.push_back(*std::find_if(rows.begin(), rows.end(),
                                  [&](const CodeRow& row) { return row.figures == code; }));
  }
  return lines;
}

}  // namespace codetables
