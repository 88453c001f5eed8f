// What the figures of an observation become, by hand.

#include "bufr/elements.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <map>
#include <random>
#include <set>
#include <sstream>

#include "bufr/message.h"
#include "fakes/rounds.h"
#include "observation/records.h"
#include "observation/report_reader.h"

namespace {

using bufr::Contents;
using bufr::Element;

Struct_Weather observed(std::initializer_list<records::Setting> settings) {
  Struct_Weather record = records::with(
      {{"Year", "2014"}, {"Month", "11"}, {"YY", "15"}, {"GG", "12"}, {"iX", ""}, {"iw", ""}});
  records::set(record, settings);
  return record;
}

Contents contents(std::initializer_list<records::Setting> settings) {
  return bufr::contents_of(observed(settings), ShipFixedData());
}

/// By key; what is not in it is missing.
std::map<std::string, double> values(const Contents& contents) {
  std::map<std::string, double> result;
  for (const auto& each : contents.values) result[std::string(each.element->key)] = each.value;
  return result;
}

std::map<std::string, double> values(std::initializer_list<records::Setting> settings) {
  return values(contents(settings));
}

/// The value of an element, or -1 for a missing one, which no element of these tests has.
double value(const std::string& key, std::initializer_list<records::Setting> settings) {
  const auto found = values(settings);
  const auto at = found.find("#1#" + key);
  return at == found.end() ? -1 : at->second;
}

TEST(BufrElements, HaveKeysOfTheirOwnAndFieldsOfTheRecord) {
  std::set<std::string_view> keys;
  for (const Element& element : bufr::elements()) {
    EXPECT_TRUE(keys.insert(element.key).second) << element.key;
    EXPECT_LE(element.lowest, element.highest) << element.key;
    std::istringstream fields{std::string(element.fields)};
    for (std::string name; fields >> name;)
      EXPECT_NE(find_weather_field(name), nullptr) << element.key << " " << name;
  }
}

TEST(BufrElements, StandInTheDocumentAsTheyAre) {
  std::vector<std::string> expected{"001011 #1#shipOrMobileLandStationIdentifier CallSign"};
  for (const Element& element : bufr::elements()) {
    std::ostringstream line;
    line << element.descriptor << " " << element.key << " " << element.fields;
    expected.push_back(line.str());
  }
  std::vector<std::string> documented;
  std::ifstream document(KAVREL_SOURCE "/docs/bufr.md");
  for (std::string line; std::getline(document, line);) {
    if (!line.starts_with("| 0")) continue;
    std::istringstream columns(line);
    std::string cell;
    std::getline(columns, cell, '|');
    std::string row;
    for (int column = 0; column < 3 && std::getline(columns, cell, '|'); ++column) {
      cell.erase(std::remove(cell.begin(), cell.end(), '`'), cell.end());
      const auto first = cell.find_first_not_of(' ');
      const auto last = cell.find_last_not_of(' ');
      if (column > 0) row.push_back(' ');
      if (first != std::string::npos) row.append(cell, first, last - first + 1);
    }
    documented.push_back(row);
  }
  EXPECT_EQ(documented, expected);
}

TEST(BufrElements, OfADateAloneAreTheDateAlone) {
  const auto found = values({});
  const std::map<std::string, double> expected{
      {"#1#year", 2014}, {"#1#month", 11}, {"#1#day", 15}, {"#1#hour", 12}, {"#1#minute", 0}};
  EXPECT_EQ(found, expected);
  EXPECT_EQ(contents({}).odd, std::vector<std::string>());
}

TEST(BufrElements, AreMissingForEveryMissingForm) {
  const auto bare = values({});
  for (const char* missing : {"", "/", "//", "*"}) {
    Struct_Weather record = observed({});
    for (const WeatherField& field : weather_fields()) {
      if (field.name == "Year" || field.name == "Month" || field.name == "YY" || field.name == "GG")
        continue;
      record.*field.member = missing;
    }
    // A call sign of solidi is one all the same.
    record.CallSign = "*******";
    const Contents found = bufr::contents_of(record, ShipFixedData());
    EXPECT_EQ(values(found), bare) << missing;
    EXPECT_EQ(found.call_sign, "") << missing;
    EXPECT_EQ(found.odd, std::vector<std::string>()) << missing;
  }
}

// "7" may be 0.7 or 7.0 degrees; the report would be torn as well.
TEST(BufrElements, OfTooFewOrTooManyFiguresAreMissingAndNamed) {
  const auto bare = values({{"SnT", "0"}});
  for (const auto& [name, text] : std::initializer_list<records::Setting>{{"TTT", "7"},
                                                                          {"TTT", "0152"},
                                                                          {"TTT", "15.2"},
                                                                          {"PPPP", "132"},
                                                                          {"PPPP", "10132"},
                                                                          {"dd", "9"},
                                                                          {"VV", "9"},
                                                                          {"N", "06"},
                                                                          {"h", "x"},
                                                                          {"Di", "-1"},
                                                                          {"dw1dw1", "5"},
                                                                          {"LogExtra", "75"}}) {
    const Contents found = contents({{"SnT", "0"}, {name, text}});
    EXPECT_EQ(values(found), bare) << name;
    EXPECT_EQ(found.odd, std::vector<std::string>{std::string(name) + "=" + std::string(text)});
  }
}

TEST(BufrElements, OfTheWind) {
  const auto calm = values({{"iw", "4"}, {"dd", "00"}, {"ff", "00"}});
  EXPECT_EQ(calm.at("#1#windDirection"), 0);
  EXPECT_EQ(calm.at("#1#windSpeed"), 0);
  EXPECT_EQ(calm.at("#1#instrumentationForWindMeasurement"), 12);
  EXPECT_EQ(calm.at("#8#timePeriod"), -10);
  EXPECT_EQ(calm.at("#1#timeSignificance"), 2);

  const auto variable = values({{"iw", "3"}, {"dd", "99"}, {"ff", "02"}});
  EXPECT_EQ(variable.count("#1#windDirection"), 0U);
  EXPECT_EQ(variable.at("#1#windSpeed"), 1.0);
  EXPECT_EQ(variable.at("#1#instrumentationForWindMeasurement"), 4);

  EXPECT_EQ(value("windDirection", {{"dd", "36"}}), 360);
  // 18 knots are 9.26 m/s, 45 knots 23.15, 105 knots 54.02.
  EXPECT_DOUBLE_EQ(value("windSpeed", {{"iw", "4"}, {"ff", "18"}}), 9.3);
  EXPECT_DOUBLE_EQ(value("windSpeed", {{"iw", "4"}, {"ff", "45"}}), 23.2);
  EXPECT_DOUBLE_EQ(value("windSpeed", {{"iw", "4"}, {"ff", "99"}, {"fff", "105"}}), 54.0);
  EXPECT_DOUBLE_EQ(value("windSpeed", {{"iw", "1"}, {"ff", "18"}}), 18.0);
  EXPECT_EQ(value("instrumentationForWindMeasurement", {{"iw", "0"}, {"ff", "18"}}), 0);
  EXPECT_EQ(value("instrumentationForWindMeasurement", {{"iw", "4"}}), -1);
}

TEST(BufrElements, OfAWindThatContradictsItselfAreMissingAndNamed) {
  for (const auto& settings : std::initializer_list<std::initializer_list<records::Setting>>{
           {{"iw", "4"}, {"ff", "05"}, {"fff", "146"}},
           {{"iw", "4"}, {"ff", "99"}},
           {{"iw", "4"}, {"ff", "99"}, {"fff", "050"}},
           {{"iw", "2"}, {"ff", "18"}}}) {
    EXPECT_EQ(value("windSpeed", settings), -1);
    EXPECT_NE(contents(settings).odd, std::vector<std::string>());
  }
  const std::vector<std::string> odd{"dd=45"};
  EXPECT_EQ(contents({{"dd", "45"}}).odd, odd);
  EXPECT_EQ(value("windDirection", {{"dd", "00"}, {"iw", "4"}, {"ff", "05"}}), -1);
  // A calm whose speed nobody entered says nothing of a speed, nor then of a direction.
  EXPECT_EQ(values({{"iw", "4"}, {"dd", "00"}}).size(), 5U);
  EXPECT_EQ(values({{"iw", "/"}, {"dd", "00"}, {"ff", "00"}}).size(), 5U);
}

TEST(BufrElements, OfPressureAndTemperature) {
  EXPECT_EQ(value("pressureReducedToMeanSeaLevel", {{"PPPP", "8700"}}), 87000);
  EXPECT_EQ(value("pressureReducedToMeanSeaLevel", {{"PPPP", "9999"}}), 99990);
  EXPECT_EQ(value("pressureReducedToMeanSeaLevel", {{"PPPP", "0000"}}), 100000);
  EXPECT_EQ(value("pressureReducedToMeanSeaLevel", {{"PPPP", "0699"}}), 106990);
  EXPECT_EQ(values({{"a", "7"}, {"ppp", "014"}}).at("#1#3HourPressureChange"), -140);
  EXPECT_EQ(value("3HourPressureChange", {{"a", "2"}, {"ppp", "522"}}), 5220);
  EXPECT_EQ(value("3HourPressureChange", {{"a", "2"}, {"ppp", "523"}}), -1);
  EXPECT_EQ(value("3HourPressureChange", {{"ppp", "014"}}), -1);
  EXPECT_DOUBLE_EQ(value("airTemperature", {{"SnT", "1"}, {"TTT", "020"}}), 271.15);
  EXPECT_DOUBLE_EQ(value("airTemperature", {{"SnT", "0"}, {"TTT", "000"}}), 273.15);
  EXPECT_EQ(value("airTemperature", {{"SnT", ""}, {"TTT", "152"}}), -1);
  // Behind a 9 stands a humidity.
  EXPECT_EQ(value("dewpointTemperature", {{"SnTd", "9"}, {"TdTdTd", "075"}}), -1);
  EXPECT_DOUBLE_EQ(value("wetBulbTemperature", {{"Sw", "2"}, {"TbTbTb", "013"}}), 271.85);
  EXPECT_DOUBLE_EQ(value("wetBulbTemperature", {{"Sw", "6"}, {"TbTbTb", "013"}}), 271.85);
  EXPECT_DOUBLE_EQ(value("wetBulbTemperature", {{"Sw", "5"}, {"TbTbTb", "013"}}), 274.45);
  EXPECT_EQ(value("methodOfWetBulbTemperatureMeasurement", {{"Sw", "7"}, {"TbTbTb", "013"}}), 3);
  EXPECT_EQ(value("methodOfWetBulbTemperatureMeasurement", {{"Sw", "2"}, {"TbTbTb", "///"}}), -1);
  EXPECT_DOUBLE_EQ(value("oceanographicWaterTemperature", {{"Ss", "3"}, {"TwTwTw", "018"}}),
                   271.35);
  EXPECT_EQ(
      value("methodOfWaterTemperatureAndOrOrSalinityMeasurement", {{"Ss", "6"}, {"TwTwTw", "178"}}),
      14);
  EXPECT_EQ(value("relativeHumidity", {{"LogExtra", "0535"}}), 54);
  EXPECT_EQ(value("relativeHumidity", {{"LogExtra", "1000"}}), 100);
}

TEST(BufrElements, OfThePosition) {
  const auto at = [](const char* Qc, const char* LaDeg, const char* LaMin, const char* LoDeg,
                     const char* LoMin) {
    const auto found = values(
        {{"Qc", Qc}, {"LaDeg", LaDeg}, {"LaMin", LaMin}, {"LoDeg", LoDeg}, {"LoMin", LoMin}});
    if (found.count("#1#latitude") == 0) return std::pair(-999.0, -999.0);
    return std::pair(found.at("#1#latitude"), found.at("#1#longitude"));
  };
  const std::pair missing(-999.0, -999.0);
  EXPECT_EQ(at("1", "35", "42", "165", "18"), std::pair(35.7, 165.3));
  EXPECT_EQ(at("5", "35", "43", "165", "01"), std::pair(-35.72, -165.02));
  EXPECT_EQ(at("7", "90", "00", "180", "00"), std::pair(90.0, -180.0));
  EXPECT_EQ(at("3", "90", "0", "180", "0"), std::pair(-90.0, 180.0));
  EXPECT_FALSE(std::signbit(at("5", "00", "00", "000", "00").first));
  EXPECT_EQ(at("1", "90", "01", "000", "00"), missing);
  EXPECT_EQ(at("1", "00", "00", "180", "01"), missing);
  EXPECT_EQ(at("1", "35", "60", "165", "18"), missing);
  EXPECT_EQ(at("2", "35", "42", "165", "18"), missing);
  EXPECT_EQ(at("1", "35", "", "165", "18"), missing);
}

TEST(BufrElements, OfTheActualTimeAreOfTheDayNearest) {
  const auto at = [](const char* Year, const char* Month, const char* YY, const char* GG,
                     const char* GGExact, const char* gg) {
    const auto found = values({{"Year", Year},
                               {"Month", Month},
                               {"YY", YY},
                               {"GG", GG},
                               {"GGExact", GGExact},
                               {"gg", gg}});
    std::vector<double> date;
    for (const char* key : {"#1#year", "#1#month", "#1#day", "#1#hour", "#1#minute"})
      date.push_back(found.at(key));
    return date;
  };
  using Date = std::vector<double>;
  EXPECT_EQ(at("2014", "11", "15", "12", "11", "50"), (Date{2014, 11, 15, 11, 50}));
  EXPECT_EQ(at("2015", "01", "01", "00", "23", "50"), (Date{2014, 12, 31, 23, 50}));
  EXPECT_EQ(at("2016", "03", "01", "00", "23", "50"), (Date{2016, 2, 29, 23, 50}));
  EXPECT_EQ(at("2014", "12", "31", "23", "00", "10"), (Date{2015, 1, 1, 0, 10}));
  EXPECT_EQ(at("2014", "11", "15", "12", "24", "10"), (Date{2014, 11, 15, 12, 0}));
  // The message is filed under the standard hour.
  const Contents filed =
      contents({{"Year", "2015"}, {"Month", "01"}, {"YY", "01"}, {"GG", "00"}, {"GGExact", "23"}});
  EXPECT_EQ(std::tuple(filed.year, filed.month, filed.day, filed.hour), std::tuple(2015, 1, 1, 0));
}

TEST(BufrElements, OfVisibilityAndCloud) {
  for (const auto& [VV, metres] : std::map<const char*, double>{{"00", 0},
                                                                {"01", 100},
                                                                {"50", 5000},
                                                                {"51", -1},
                                                                {"56", 6000},
                                                                {"80", 30000},
                                                                {"81", 35000},
                                                                {"88", 70000},
                                                                {"89", 70000},
                                                                {"90", 0},
                                                                {"91", 50},
                                                                {"94", 1000},
                                                                {"97", 10000},
                                                                {"99", 50000}})
    EXPECT_EQ(value("horizontalVisibility", {{"VV", VV}}), metres) << VV;
  EXPECT_EQ(value("cloudCoverTotal", {{"N", "1"}}), 13);
  EXPECT_EQ(value("cloudCoverTotal", {{"N", "9"}}), 113);

  const auto clear = values({{"N", "0"}, {"h", "9"}});
  EXPECT_EQ(clear.at("#1#cloudCoverTotal"), 0);
  EXPECT_EQ(clear.at("#1#verticalSignificanceSurfaceObservations"), 62);
  EXPECT_EQ(clear.at("#1#cloudAmount"), 0);
  EXPECT_EQ(clear.count("#1#heightOfBaseOfCloud"), 0U);
  EXPECT_EQ(clear.at("#1#cloudType"), 30);
  EXPECT_EQ(clear.at("#2#cloudType"), 20);
  EXPECT_EQ(clear.at("#3#cloudType"), 10);

  const auto obscured = values({{"N", "9"}, {"h", "0"}});
  EXPECT_EQ(obscured.at("#1#verticalSignificanceSurfaceObservations"), 5);
  EXPECT_EQ(obscured.at("#1#cloudAmount"), 9);
  EXPECT_EQ(obscured.at("#1#heightOfBaseOfCloud"), 0);
  EXPECT_EQ(obscured.at("#1#cloudType"), 62);

  const auto low =
      values({{"N", "8"}, {"Nh", "8"}, {"h", "4"}, {"CL", "5"}, {"CM", "/"}, {"CH", "/"}});
  EXPECT_EQ(low.at("#1#verticalSignificanceSurfaceObservations"), 7);
  EXPECT_EQ(low.at("#1#heightOfBaseOfCloud"), 300);
  EXPECT_EQ(low.at("#1#cloudType"), 35);
  EXPECT_EQ(low.at("#2#cloudType"), 61);
  EXPECT_EQ(low.at("#3#cloudType"), 60);
  EXPECT_EQ(
      value("verticalSignificanceSurfaceObservations", {{"N", "4"}, {"CL", "0"}, {"CM", "3"}}), 8);
  EXPECT_EQ(value("verticalSignificanceSurfaceObservations",
                  {{"N", "4"}, {"CL", "0"}, {"CM", "0"}, {"CH", "1"}}),
            0);
  // Nobody looked.
  EXPECT_EQ(values({{"N", "/"}, {"Nh", "/"}, {"CL", "/"}, {"CM", "/"}, {"CH", "/"}}).size(), 5U);
}

TEST(BufrElements, OfTheWeather) {
  const auto weather = [](const char* iX, const char* ww) {
    return value("presentWeather", {{"iX", iX}, {"ww", ww}});
  };
  EXPECT_EQ(weather("1", "00"), 0);
  EXPECT_EQ(weather("1", "95"), 95);
  EXPECT_EQ(weather("7", "95"), 195);
  EXPECT_EQ(weather("1", ""), -1);
  EXPECT_EQ(weather("2", ""), 508);
  EXPECT_EQ(weather("3", ""), 509);
  EXPECT_EQ(weather("5", "//"), 508);
  EXPECT_EQ(weather("6", ""), 509);
  const auto hours = [](const char* GG) {
    const auto found = values({{"GG", GG}, {"W1", "8"}});
    return found.count("#1#timePeriod") == 0 ? 0.0 : found.at("#1#timePeriod");
  };
  EXPECT_EQ(hours("18"), -6);
  EXPECT_EQ(hours("21"), -3);
  EXPECT_EQ(hours("22"), 0);
  EXPECT_EQ(value("stationType", {{"iX", "3"}}), 1);
  EXPECT_EQ(value("stationType", {{"iX", "4"}}), 0);
}

TEST(BufrElements, OfSeaAndIce) {
  const auto none = values({{"dw1dw1", "00"}, {"dw2dw2", "00"}});
  EXPECT_EQ(none.at("#1#swellWavesDirection"), 0);
  EXPECT_EQ(none.at("#1#periodOfSwellWaves"), 0);
  EXPECT_EQ(none.at("#1#heightOfSwellWaves"), 0);
  EXPECT_EQ(none.count("#2#swellWavesDirection"), 0U);
  EXPECT_EQ(value("swellWavesDirection", {{"dw1dw1", "99"}}), -1);
  EXPECT_EQ(value("swellWavesDirection", {{"dw1dw1", "36"}}), 360);
  EXPECT_EQ(value("periodOfWindWaves", {{"PwPw", "99"}}), -1);
  EXPECT_EQ(value("periodOfWindWaves", {{"PwPw", "00"}}), 0);
  EXPECT_EQ(value("heightOfWindWaves", {{"HwHw", "03"}}), 1.5);
  // All ones are missing: 63 cannot be said.
  EXPECT_EQ(value("periodOfWaves", {{"PwaPwa", "62"}}), 62);
  EXPECT_EQ(value("periodOfWaves", {{"PwaPwa", "63"}}), -1);
  EXPECT_EQ(contents({{"PwaPwa", "63"}}).odd, std::vector<std::string>{"PwaPwa=63"});

  EXPECT_EQ(value("directionOfMotionOfMovingObservingPlatform", {{"Ds", "0"}}), 0);
  EXPECT_EQ(value("directionOfMotionOfMovingObservingPlatform", {{"Ds", "8"}}), 360);
  EXPECT_EQ(value("directionOfMotionOfMovingObservingPlatform", {{"Ds", "9"}}), -1);
  EXPECT_EQ(value("movingObservingPlatformSpeed", {{"Vs", "3"}}), 7);
  EXPECT_EQ(value("movingObservingPlatformSpeed", {{"Vs", "9"}}), 21);

  EXPECT_EQ(value("causeOfIceAccretion", {{"Is", "5"}}), 10);
  EXPECT_EQ(value("causeOfIceAccretion", {{"Is", "0"}}), -1);
  EXPECT_DOUBLE_EQ(value("iceDepositThickness", {{"EsEs", "02"}}), 0.02);
  EXPECT_EQ(value("rateOfIceAccretionEstimated", {{"Rs", "5"}}), -1);
  const auto ice = values({{"ci", "2"}, {"Si", "/"}, {"bi", "/"}, {"Di", "8"}, {"zi", "/"}});
  EXPECT_EQ(ice.at("#1#seaIceConcentration"), 2);
  EXPECT_EQ(ice.at("#1#iceDevelopment"), 30);
  EXPECT_EQ(ice.at("#1#amountAndTypeOfIce"), 14);
  EXPECT_EQ(ice.at("#1#iceEdgeBearing"), 360);
  EXPECT_EQ(ice.at("#1#iceSituation"), 30);
  EXPECT_EQ(value("iceEdgeBearing", {{"Di", "0"}}), -1);
  EXPECT_EQ(value("iceEdgeBearing", {{"Di", "9"}}), -1);
}

TEST(BufrElements, OfTheShip) {
  ShipFixedData ship;
  ship.card.type = CardType::kHeightAndTemperature;
  ship.card.loading_state = LoadingState::kInBallast;
  ship.card.height_full_load = "18";
  ship.card.height_ballast = "24";
  const auto height = [&] {
    const auto found = values(bufr::contents_of(observed({}), ship));
    const auto at = found.find("#1#heightOfBarometerAboveMeanSeaLevel");
    return at == found.end() ? -1 : at->second;
  };
  EXPECT_EQ(height(), 24);
  ship.card.loading_state = LoadingState::kFullLoad;
  EXPECT_EQ(height(), 18);
  ship.card.height_full_load = "0";
  EXPECT_EQ(height(), -1);
  ship.card.height_full_load = "18";
  ship.card.type = CardType::kTotalCorrection;
  EXPECT_EQ(height(), -1);

  EXPECT_EQ(contents({{"CallSign", "ABCDEFGHI"}}).call_sign, "ABCDEFGHI");
  // Cut short it would be another ship's.
  EXPECT_EQ(contents({{"CallSign", "ABCDEFGHIJ"}}).call_sign, "");
  EXPECT_EQ(contents({{"CallSign", "ABCDEFGHIJ"}}).odd,
            std::vector<std::string>{"CallSign=ABCDEFGHIJ"});
}

std::map<std::string, double> values_of_report(const char* text) {
  auto report = observation::read_report(text, Struct_Weather({}, {}));
  report->record.Year = "2014";
  report->record.Month = "01";
  return values(bufr::contents_of(report->record, ShipFixedData()));
}

// Real reports, worked out by hand from their groups.
TEST(BufrElements, OfRealReports) {
  const std::map<std::string, double> off_canada{
      {"#1#directionOfMotionOfMovingObservingPlatform", 135},
      {"#1#movingObservingPlatformSpeed", 9},
      {"#1#stationType", 1},
      {"#1#year", 2014},
      {"#1#month", 1},
      {"#1#day", 26},
      {"#1#hour", 13},
      {"#1#minute", 0},
      {"#1#latitude", 52.5},
      {"#1#longitude", -129.8},
      {"#1#pressureReducedToMeanSeaLevel", 101320},
      {"#1#3HourPressureChange", 10},
      {"#1#characteristicOfPressureTendency", 3},
      {"#1#airTemperature", 284.15},
      {"#1#methodOfWetBulbTemperatureMeasurement", 0},
      {"#1#wetBulbTemperature", 283.65},
      {"#1#dewpointTemperature", 283.15},
      {"#1#horizontalVisibility", 20000},
      {"#1#cloudCoverTotal", 100},
      {"#1#verticalSignificanceSurfaceObservations", 7},
      {"#1#heightOfBaseOfCloud", 100},
      {"#1#cloudType", 37},
      {"#2#cloudType", 61},
      {"#3#cloudType", 60},
      {"#1#methodOfWaterTemperatureAndOrOrSalinityMeasurement", 0},
      {"#1#oceanographicWaterTemperature", 285.15},
      {"#1#periodOfWindWaves", 4},
      {"#1#heightOfWindWaves", 1},
      {"#1#pastWeather1", 2},
      {"#1#pastWeather2", 2},
      {"#1#instrumentationForWindMeasurement", 12},
      {"#1#timeSignificance", 2},
      {"#8#timePeriod", -10},
      {"#1#windDirection", 160},
      {"#1#windSpeed", 8.7}};
  EXPECT_EQ(
      values_of_report("BBXX PCHM 26134 99525 71298 41298 81617 10110 20100 40132 53001 7//22 "
                       "8/7// 22234 00120 20402 80105="),
      off_canada);
  // Its clouds are torn, and the groups behind 222 hold one that has no place.
  const std::map<std::string, double> off_norway{
      {"#1#directionOfMotionOfMovingObservingPlatform", 0},
      {"#1#movingObservingPlatformSpeed", 0},
      {"#1#stationType", 1},
      {"#1#year", 2014},
      {"#1#month", 1},
      {"#1#day", 1},
      {"#1#hour", 0},
      {"#1#minute", 0},
      {"#1#latitude", 71.3},
      {"#1#longitude", 22.3},
      {"#1#pressureReducedToMeanSeaLevel", 102100},
      {"#1#3HourPressureChange", 570},
      {"#1#characteristicOfPressureTendency", 2},
      {"#1#airTemperature", 267.25},
      {"#1#dewpointTemperature", 266.25},
      {"#1#horizontalVisibility", 20000},
      {"#1#cloudCoverTotal", 88},
      {"#1#heightOfBaseOfCloud", 600},
      {"#1#methodOfWaterTemperatureAndOrOrSalinityMeasurement", 0},
      {"#1#oceanographicWaterTemperature", 279.85},
      {"#1#periodOfWaves", 7},
      {"#1#heightOfWaves", 3.5},
      {"#1#presentWeather", 26},
      {"#1#timePeriod", -6},
      {"#1#pastWeather1", 8},
      {"#1#pastWeather2", 2},
      {"#1#instrumentationForWindMeasurement", 12},
      {"#1#timeSignificance", 2},
      {"#8#timePeriod", -10},
      {"#1#windDirection", 20},
      {"#1#windSpeed", 6.2}};
  EXPECT_EQ(
      values_of_report("BBXX XXXX 01004 99713 10223 41598 70212 11059 21069 40210 52057 72682 "
                       "872xx 22200 00067 10707 70033 333 91131="),
      off_norway);
}

// Whatever bytes a record holds, its message is made, and every number fits its element.
TEST(BufrElements, OfAnyBytesFit) {
  std::mt19937 dice(16);
  const auto below = [&](int n) { return std::uniform_int_distribution<int>(0, n - 1)(dice); };
  const int kRecords = fakes::rounds(2000);
  for (int i = 0; i < kRecords; ++i) {
    Struct_Weather record = observed({});
    for (const WeatherField& field : weather_fields()) {
      if (field.name == "Year" || field.name == "Month" || field.name == "YY" || field.name == "GG")
        continue;
      std::string& text = record.*field.member;
      text.clear();
      for (int length = below(7); length > 0; --length)
        text.push_back(below(8) == 0 ? static_cast<char>(below(256))
                                     : static_cast<char>('0' + below(10)));
    }
    const Contents found = bufr::contents_of(record, ShipFixedData());
    for (const auto& each : found.values) {
      EXPECT_GE(each.value, each.element->lowest) << each.element->key;
      EXPECT_LE(each.value, each.element->highest) << each.element->key;
    }
    const std::string message = bufr::encode(found, std::nullopt);
    EXPECT_TRUE(message.starts_with("BUFR"));
    EXPECT_TRUE(message.ends_with("7777"));
  }
}

TEST(BufrElements, OfTheFirstAndTheLastYearAreEncoded) {
  for (const char* year : {"0000", "1999", "4094"}) {
    const std::string message =
        bufr::encode(contents({{"Year", year}}), bufr::WigosIdentifier{0, 22000, 0, "A"});
    EXPECT_TRUE(message.ends_with("7777")) << year;
  }
}

}  // namespace
