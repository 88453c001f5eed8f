#include "expected_pickers.h"

namespace expected {
namespace {

const std::vector<Line> kVisibility = {
    {"//", "Unknown", "不明"},
    {"99", "50km<=VV", "50km以上"},
    {"98", "20km<=VV<50km", "20km≦VV<50km"},
    {"97", "10km<=VV<20km", "10km≦VV<20km"},
    {"96", "4km<=VV<10km", "4km≦VV<10km"},
    {"95", "2km<=VV<4km", "2km≦VV<4km"},
    {"94", "1km<=VV<2km", "1km≦VV<2km"},
    {"93", "500m<=VV<1000m", "500m≦VV<1km"},
    {"92", "200m<=VV<500m", "200m≦VV<500m"},
    {"91", "50m<=VV<200m", "50m≦VV<200m"},
    {"90", "VV<50m", "50m未満"},
};

const std::vector<Line> kCourse = {
    {"0", "Position unchanged (stationary)", "位置に変化なし（停船）"},
    {"1", "Northeast (NE)", "北東（NE）"},
    {"2", "East (E)", "東（E）"},
    {"3", "Southeast (SE)", "南東（SE）"},
    {"4", "South (S)", "南（S）"},
    {"5", "Southwest (SW)", "南西（SW）"},
    {"6", "West (W)", "西（W）"},
    {"7", "Northwest (NW)", "北西（NW）"},
    {"8", "North (N)", "北（N）"},
    {"9", "Unknown", "不明"},
    {"/", "Not observed", "観測せず"},
};

const std::vector<Line> kSpeed = {
    {"0", "Under 1 knot", "1ノット未満"},
    {"1", "1 to under 6 knots", "1ノット以上6ノット未満"},
    {"2", "6 to under 11 knots", "6ノット以上11ノット未満"},
    {"3", "11 to under 16 knots", "11ノット以上16ノット未満"},
    {"4", "16 to under 21 knots", "16ノット以上21ノット未満"},
    {"5", "21 to under 26 knots", "21ノット以上26ノット未満"},
    {"6", "26 to under 31 knots", "26ノット以上31ノット未満"},
    {"7", "31 to under 36 knots", "31ノット以上36ノット未満"},
    {"8", "36 to under 40 knots", "36ノット以上40ノット未満"},
    // Exactly 40 knots belongs here.
    {"9", "40 knots or more", "40ノット以上"},
    {"/", "Unknown", "不明"},
};

}  // namespace

const std::vector<Picker>& pickers() {
  static const std::vector<Picker> kPickers = {
      {&codetables::kMovement,
       "CDvDsDlg",
       "11-3",
       "Ship's course and speed",
       "船の針路と速度補助入力",
       {{"course", "Ship's course during the past 3 hours (Ds)", "過去3時間の船の針路(Ds)", "Ds",
         kCourse},
        {"speed", "Ship's average speed during the past 3 hours (Vs)",
         "過去3時間の船の平均速度(Vs)", "Vs", kSpeed}},
       {}},
      {&codetables::kVisibility,
       "CEyeShotDlg",
       "11-12",
       "Horizontal visibility",
       "水平視程",
       {{"choice", "", "", "VV", kVisibility}},
       {{"heading", "Horizontal visibility (VV)", "水平視程(VV)"},
        {"group", "[Visibility (Horizontal visibility)]", "[視程（水平視程）]"}}},
  };
  return kPickers;
}

}  // namespace expected
