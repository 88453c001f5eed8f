#include <gtest/gtest.h>

#include <string_view>

#include "text/id.h"
#include "text/ids.h"
#include "text/strings.h"
#include "text/texts.h"

namespace id = text::id;

namespace {

struct Line {
  text::Id text;
  std::string_view english;
};

// Titles, headings and captions of the dialogs of weather, clouds, waves and ice, blanks and all.
constexpr Line kLines[] = {
    {id::kPresentWeatherTitle, "Present weather"},
    {id::kPrecipitationNow, "Precipitation at the time of observation"},
    {id::kNoPrecipitationNow, "No precipitation at the time of observation"},
    {id::kPresentWeatherNotObserved, "Present weather can't be observed"},
    {id::kPresentWeatherGroup95, "  95-99  Thunderstorm at the time of observation"},
    {id::kPresentWeatherGroup91,
     "  91-94  Thunderstorm during the preceding hour but not at the time of observation"},
    {id::kPresentWeatherGroup85,
     "  85-90  Showery snow, snow pellets, or hail at the time of observation"},
    {id::kPresentWeatherGroup80, "  80-84  Showery precipitation at the time of observation"},
    {id::kPresentWeatherGroup70,
     "  70-79  Snow, diamond dust, snow grains or ice pellets at the time of observation"},
    {id::kPresentWeatherGroup60, "  60-69  Rain at the time of observation"},
    {id::kPresentWeatherGroup50, "  50-59  Drizzle at the time of observation"},
    {id::kPresentWeatherGroup40, "  40-49  Fog, ice fog or rime at the time of observation"},
    {id::kPresentWeatherGroup30,
     "  30-39  Duststorm, sandstorm, drifting, or blowing snow at the time of observation"},
    {id::kPresentWeatherGroup20,
     "  20-29  Precipitation, fog, ice fog or thunderstorm during the preceding hour but not at "
     "the time of observation"},
    {id::kPresentWeatherGroup18,
     "  18-19  Squalls, or funnel cloud(s) at or within sight of the station"},
    {id::kPresentWeatherGroup17, "    17     Thunder at ship at the time of observation"},
    {id::kPresentWeatherGroup13,
     "  13-16  Lightning, or precipitation within sight of the station"},
    {id::kPresentWeatherGroup10, "  10-12  Haze, mist of the height less than 10m, or an ice mist"},
    {id::kPresentWeatherGroup04,
     "  04-09  Well-developed  whirlwind, spray, dust, yellow sand, a smoke mist, or smoke"},
    {id::kPresentWeatherGroup00, "  00-03  Characteristic change of the state of sky"},
    {id::kPastWeatherTitle, "Past weather"},
    {id::kPastWeatherHint,
     "Select past weathers which have occurred since the last synoptic hour (00,06,12,18 UTC)"},
    {id::kPastWeatherHeading, "Past weather (W1W2)"},
    {id::kPastWeatherGroup, "[W1,W2] [Past weather (More than one choice is possible)]"},
    {id::kTotalCloudTitle, "Total cloud cover"},
    {id::kTotalCloudHeading, "Total cloud cover (N)"},
    {id::kTotalCloudGroup, "[Amount of cloud (in tenth)]"},
    {id::kLowestCloudTitle, "Amount of the lowest cloud"},
    {id::kLowestCloudHeading, "Nh (Amount of CL(or CM if no CL cloud is present) cloud present)"},
    {id::kCloudBaseTitle, "Height of the base of the lowest cloud"},
    {id::kCloudBaseHeading, "Height of the base of the lowest cloud (h)"},
    {id::kCloudBaseGroup, "[Height above surface of base of the lowest cloud observed]"},
    {id::kLowCloudTitle,
     "Type of CL clouds (Sc: Stratocumulus, St: Stratus, Cu: Cumulus, Cb: Cumulonimbus)"},
    {id::kMiddleCloudTitle,
     "Type of CM clouds (Ac: Altocumulus, As: Altostratus, Ns: Nimbostratus)"},
    {id::kHighCloudTitle, "Type of CH clouds (Ci: Cirrus, Cc: Cirrocumulus, Cs: Cirrostratus)"},
    {id::kWindWaveTitle, "Wind wave"},
    {id::kWindWaveObservation, "Observation of wind wave"},
    {id::kNoWindWave, "No wind wave"},
    {id::kWavesNotObserved, "Not observed"},
    {id::kWindWave, "Wind wave"},
    {id::kWavePeriod, "Period (s)"},
    {id::kWindWaveHeight, "Wave height (m)"},
    {id::kReferenceWave, "Reference wave"},
    {id::kReferenceWaveHeight, "Reference wave height"},
    {id::kWavePeriodUnknown, "Period is unknown"},
    {id::kWavePeriodConfused, "Period couldn't decided because of confused sea surface"},
    {id::kWindWaveHeightUnknown, "Wave height is unknown"},
    {id::kWindWaveHeightSmallest, "< 0.25"},
    {id::kWaveNumberCaption, "Please input number"},
    {id::kSwellTitle, "Swell wave"},
    {id::kTwoSwells, "Two or more swell"},
    {id::kOneSwell, "One swell wave"},
    {id::kNoSwell, "No swell wave"},
    {id::kSwellObservation, "Swell wave observation"},
    {id::kSwell1, "Swell wave 1"},
    {id::kSwell2, "Swell wave 2"},
    {id::kSwellDirection, "Direction"},
    {id::kSwellHeight, "Height (m)"},
    {id::kSwellDirectionIsUnknown, "Direction is unknown"},
    {id::kSwellHeightUnknown, "Height is unknown"},
    {id::kSwellDirectionGroup, "Swell wave direction"},
    {id::kSwellPeriodFromLength, "Period is calculated from wave length"},
    {id::kSwellHeightSmallest, "<0.25"},
    {id::kSwellNumberNeededCaption, "Number needed!"},
    {id::kSwellRangeCaption, "Number Impossable"},
    {id::kSwellPairCaption, "Number Impossable2"},
    {id::kSwell2DirectionMustBeUnknown,
     "Error: Input data is wrong. It must be \"Shell 2 Dir = //\""},
    {id::kIcingTitle, "Ice accretion on ships"},
    {id::kIcingCauseGroup, "Kind of ice accretion"},
    {id::kIcingThickness, "Thickness of ice accretion"},
    {id::kIcingRateHeading, "Speed of ice accretion"},
    {id::kIcingRateGroup, "[Speed of ice accretion (Compare with 3 hours before)]"},
    {id::kIceConcentrationTitle, "Concentration or arrangement of sea ice"},
    {id::kIceBeyondHalfMile, "Ship in ice or beyond 0.5 nautical mile of ice edge"},
    {id::kIceWithinHalfMile, "Ship in ice or within 0.5 nautical mile of ice edge"},
    {id::kIceUniform, "Sea ice concentration is uniform in the observation area"},
    {id::kIceNotUniform, "Sea ice concentration is not uniform in the observation area"},
    {id::kIceConcentrationList, "The bearing of concentration or arrangement of sea ice"},
    {id::kIceStageTitle, "Development of sea ice / Sea ice of land origin"},
    {id::kIceEdgeTitle, "Bearing of ice edge"},
    {id::kIceTrendTitle, "Ice situation and trend over preceding 3 hours"},
};

// The heights below a quarter of a metre are figures and signs in both languages.
bool has_words(std::string_view text) {
  return text.find("0.25") == std::string_view::npos;
}

TEST(CodeDialogTexts, StandToTheLetterAndInBothLanguages) {
  for (const Line& line : kLines) {
    EXPECT_EQ(text::bilingual(line.text, text::Language::kEnglish), line.english);
    const std::string_view japanese = text::bilingual(line.text, text::Language::kJapanese);
    EXPECT_EQ(japanese != line.english, has_words(line.english)) << line.english;
    EXPECT_FALSE(japanese.empty()) << line.english;
  }
}

}  // namespace
