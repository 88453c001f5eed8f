#include "observation/logbook_encoder.h"

#include <gtest/gtest.h>

#include "observation/logbook_fields.h"
#include "records.h"

namespace {

using records::fresh;
using records::full;
using records::ship;
using records::with;

std::string encode(const Struct_Weather& record, const ShipFixedData& fixed = ship(),
                   const KeyObservationItems& items = {}) {
  return observation::encode_logbook(record, fixed, items);
}

/// Columns first to last, counted from 1 as the format does.
std::string columns(const std::string& line, std::size_t first, std::size_t last) {
  return line.substr(first - 1, last - first + 1);
}

/// What a writer makes of a text, without and with its flag, behind a line begun.
struct WriterRow {
  const char* text;
  std::size_t width;
  const char *plain, *flagged;
};

void expect_written(void (*write)(std::string&, std::string_view, std::size_t, bool),
                    std::initializer_list<WriterRow> rows) {
  for (const WriterRow& row : rows) {
    std::string plain = "|";
    std::string flagged = "|";
    write(plain, row.text, row.width, false);
    write(flagged, row.text, row.width, true);
    EXPECT_EQ(plain, "|" + std::string(row.plain)) << row.text;
    EXPECT_EQ(flagged, "|" + std::string(row.flagged)) << row.text;
  }
}

TEST(LogbookWriters, LeftPadsOnTheRightAndBlanksWhatIsTooLong) {
  expect_written(observation::write_left, {{"", 3, "   ", "///"},
                                           {"5", 2, "5 ", "5/"},
                                           {"152", 3, "152", "152"},
                                           {"1 2", 4, "1 2 ", "1/2/"},
                                           {"1234", 3, "   ", "   "}});
}

TEST(LogbookWriters, ZeroPadsOnTheLeftAndBlanksEmptyAndTooLong) {
  expect_written(observation::write_zero, {{"", 3, "   ", "   "},
                                           {"7", 2, "07", "07"},
                                           {"1234", 3, "   ", "   "},
                                           {"1 2", 4, "01 2", "01/2"},
                                           {"085", 3, "085", "085"}});
}

TEST(LogbookWriters, IntegerTakesTheTextUpToItsFirstPoint) {
  expect_written(observation::write_integer, {{"12.5", 3, "012", "012"},
                                              {"12", 3, "012", "012"},
                                              {"1.2.3", 3, "001", "001"},
                                              {"", 3, "   ", "   "},
                                              {".5", 3, "   ", "   "},
                                              {"1234.5", 3, "   ", "   "},
                                              {"1 2.5", 4, "01 2", "0102"}});
}

// One line per column of the format: what a fresh record, the full record and a record whose field
// is one figure too long write there.
struct ColumnRow {
  std::size_t first, last;
  const char* field;  ///< field behind the columns, or nullptr
  const char* empty;
  const char* full;
};

constexpr ColumnRow kColumns[] = {
    {1, 1, nullptr, "3", "3"},
    {2, 5, "Year", "    ", "2014"},
    {6, 7, "Month", "  ", "11"},
    {8, 9, "YY", "//", "15"},
    {10, 11, "GG", "//", "12"},
    {12, 12, "Qc", "/", "1"},
    {13, 15, nullptr, "///", "357"},
    {16, 19, nullptr, "////", "1653"},
    {20, 20, nullptr, "0", "0"},
    {21, 21, "h", "/", "4"},
    {22, 23, "VV", "//", "97"},
    {24, 24, "N", "/", "6"},
    {25, 26, "dd", "//", "27"},
    {27, 27, "iw", "4", "4"},
    {28, 29, "ff", "//", "99"},
    {30, 30, "SnT", "/", "0"},
    {31, 33, "TTT", "///", "152"},
    {34, 34, "SnTd", "/", "0"},
    {35, 37, "TdTdTd", "///", "108"},
    {38, 41, "PPPP", "////", "0132"},
    {42, 43, "ww", "//", "15"},
    {44, 44, "W1", "/", "8"},
    {45, 45, "W2", "/", "2"},
    {46, 46, "Nh", "/", "4"},
    {47, 47, "CL", "/", "5"},
    {48, 48, "CM", "/", "3"},
    {49, 49, "CH", "/", "1"},
    {50, 50, nullptr, "1", "0"},
    {51, 53, "TwTwTw", "///", "178"},
    {54, 54, nullptr, "1", "1"},
    {55, 55, nullptr, "0", "0"},
    {56, 57, "PwPw", "//", "06"},
    {58, 59, "HwHw", "//", "04"},
    {60, 61, "dw1dw1", "//", "25"},
    {62, 63, "Pw1Pw1", "//", "09"},
    {64, 65, "Hw1Hw1", "//", "05"},
    {66, 66, "Is", "/", "1"},
    {67, 68, "EsEs", "//", "02"},
    {69, 69, "Rs", "/", "3"},
    {70, 70, nullptr, "4", "4"},
    {71, 71, nullptr, " ", " "},
    {72, 78, nullptr, "JXKV   ", "JXKV   "},
    {79, 82, nullptr, "JP30", "JP30"},
    {83, 83, "iX", "1", "1"},
    {84, 84, nullptr, "4", "4"},
    {85, 88, nullptr, "    ", "    "},
    {89, 89, "Sw", "/", "0"},
    {90, 92, "TbTbTb", "///", "130"},
    {93, 93, "a", "/", "2"},
    {94, 96, "ppp", "///", "014"},
    {97, 97, "Ds", "/", "2"},
    {98, 98, "Vs", "/", "3"},
    {99, 100, "dw2dw2", "//", "31"},
    {101, 102, "Pw2Pw2", "//", "11"},
    {103, 104, "Hw2Hw2", "//", "03"},
    {105, 105, "ci", "/", "1"},
    {106, 106, "Si", "/", "2"},
    {107, 107, "bi", "/", "3"},
    {108, 108, "Di", "/", "4"},
    {109, 109, "zi", "/", "5"},
    {110, 132, nullptr, "8500000000000000000000 ", "8500000000000000000000 "},
    {133, 135, "VosClim3", "   ", "016"},
    {136, 138, "VosClim5", "   ", "230"},
    {139, 140, "VosClim4", "  ", "07"},
    {141, 142, nullptr, "  ", "  "},
    {143, 145, nullptr, "   ", "   "},
    {146, 148, "VosClim1", "   ", "085"},
    {149, 151, "VosClim2", "   ", "012"},
    {152, 159, nullptr, "0000 000", "0000 000"},
    {160, 163, "LogExtra", "////", "0530"},
    {164, 164, nullptr, "0", "0"},
    {165, 165, nullptr, "0", "0"},
    {166, 172, nullptr, "9074729", "9074729"},
};

TEST(LogbookLine, TheRowsOfThisTestCoverEveryColumn) {
  std::size_t next = 1;
  for (const ColumnRow& row : kColumns) {
    EXPECT_EQ(row.first, next);
    next = row.last + 1;
  }
  EXPECT_EQ(next, observation::kLogbookColumns + 1);
}

TEST(LogbookLine, EveryColumnOfAFreshAndOfAFullRecord) {
  const std::string empty = encode(fresh());
  const std::string whole = encode(full());
  ASSERT_EQ(empty.size(), 172U);
  ASSERT_EQ(whole.size(), 172U);
  for (const ColumnRow& row : kColumns) {
    EXPECT_EQ(columns(empty, row.first, row.last), row.empty) << row.first << "-" << row.last;
    EXPECT_EQ(columns(whole, row.first, row.last), row.full) << row.first << "-" << row.last;
  }
}

TEST(LogbookLine, AFieldOneFigureTooLongBlanksItsOwnColumnsOnly) {
  const std::string whole = encode(full());
  for (const ColumnRow& row : kColumns) {
    if (row.field == nullptr) continue;
    const std::size_t width = row.last - row.first + 1;
    Struct_Weather record = full();
    records::set(record, {{row.field, std::string(width + 1, '9')}});
    std::string expected = whole;
    expected.replace(row.first - 1, width, width, ' ');
    EXPECT_EQ(encode(record), expected) << row.field;
  }
}

TEST(LogbookLine, EveryFieldStandsInItsOwnColumnsOnly) {
  const std::string whole = encode(full());
  for (const ColumnRow& row : kColumns) {
    if (row.field == nullptr) continue;
    const std::size_t width = row.last - row.first + 1;
    Struct_Weather record = full();
    const std::string other(width, '7');
    records::set(record, {{row.field, other}});
    std::string expected = whole;
    expected.replace(row.first - 1, width, other);
    EXPECT_EQ(encode(record), expected) << row.field;
  }
}

TEST(LogbookLine, FourFigureTemperatureGivesThreeSpaces) {
  EXPECT_EQ(columns(encode(with({{"TTT", "1234"}})), 31, 33), "   ");
}

TEST(LogbookLine, StoredTextDoesNotPassTheNormaliser) {
  EXPECT_EQ(columns(encode(with({{"TTT", "1 2"}})), 31, 33), "1/2");
  EXPECT_EQ(columns(encode(with({{"TTT", "5"}})), 31, 33), "5//");
  EXPECT_EQ(columns(encode(with({{"Year", "14"}})), 2, 5), "14  ");
}

TEST(LogbookLine, TemperatureUnitOfTheShipStandsInColumn1) {
  struct Row {
    double unit;
    const char* expected;
  };
  for (const Row& row : {Row{0.1, "32014"}, Row{0.5, "42014"}, Row{1.0, "52014"}}) {
    ShipFixedData fixed = ship();
    fixed.temperature_unit = row.unit;
    EXPECT_EQ(columns(encode(full(), fixed), 1, 5), row.expected) << row.unit;
  }
}

TEST(LogbookLine, UnknownTemperatureUnitMovesEveryLaterColumnToTheLeft) {
  const std::string whole = encode(full());
  for (const double unit : {0.0, 0.2, 2.0, -1.0, 0.14}) {
    ShipFixedData fixed = ship();
    fixed.temperature_unit = unit;
    EXPECT_EQ(encode(full(), fixed), whole.substr(1)) << unit;
  }
}

TEST(LogbookLine, PositionNeedsEveryPart) {
  struct Row {
    const char *lacking, *latitude, *longitude;
  };
  for (const Row& row :
       {Row{"LaDeg", "///", "1653"}, Row{"LaMin", "///", "1653"}, Row{"LoDeg", "357", "////"},
        Row{"LoMin", "357", "////"}, Row{"Qc", "357", "////"}}) {
    Struct_Weather record = full();
    records::set(record, {{row.lacking, ""}});
    const std::string line = encode(record);
    EXPECT_EQ(columns(line, 13, 15), row.latitude) << row.lacking;
    EXPECT_EQ(columns(line, 16, 19), row.longitude) << row.lacking;
    EXPECT_EQ(line.size(), 172U);
  }
}

TEST(LogbookLine, PositionIsThatOfTheReport) {
  const auto line = encode(
      with({{"Qc", "3"}, {"LaDeg", "0 5"}, {"LaMin", "59"}, {"LoDeg", " 009"}, {"LoMin", "5"}}));
  EXPECT_EQ(columns(line, 13, 15), "059") << "the normaliser takes the spaces out";
  EXPECT_EQ(columns(line, 16, 19), "0090");
}

TEST(LogbookLine, PositionKeepsItsColumnsWithTooFewOrTooManyFigures) {
  struct Row {
    const char *latitude_degrees, *longitude_degrees;
    const char* expected;
  };
  for (const Row& row : {Row{"35", "165", "3571653"}, Row{"5", "65", "9571653"},
                         Row{"5", "5", "957153/"}, Row{"135", "1165", "3571653"}}) {
    Struct_Weather record = full();
    record.LaDeg = row.latitude_degrees;
    record.LoDeg = row.longitude_degrees;
    const std::string line = encode(record);
    EXPECT_EQ(columns(line, 13, 19), row.expected) << row.longitude_degrees;
    EXPECT_EQ(columns(line, 20, 24), "04976") << row.longitude_degrees;
    EXPECT_EQ(line.size(), 172U) << row.longitude_degrees;
  }
}

TEST(LogbookLine, DewPointSignTellsHowItWasObserved) {
  struct Row {
    DewPointMethod method;
    const char *sign, *wet_bulb, *expected;
  };
  constexpr auto kDirect = DewPointMethod::kDirect;
  constexpr auto kComputed = DewPointMethod::kComputed;
  for (const Row& row :
       {Row{kDirect, "0", "2", "0"}, Row{kDirect, "1", "2", "1"}, Row{kDirect, "", "2", "/"},
        Row{kComputed, "0", "0", "5"}, Row{kComputed, "0", "2", "5"}, Row{kComputed, "1", "2", "7"},
        Row{kComputed, "1", "1", "6"}, Row{kComputed, "", "2", "7"}, Row{kComputed, "", "", "6"},
        Row{kComputed, "/", "0", "6"}}) {
    ShipFixedData fixed = ship();
    fixed.dew_point_method = row.method;
    EXPECT_EQ(columns(encode(with({{"SnTd", row.sign}, {"Sw", row.wet_bulb}}), fixed), 34, 34),
              row.expected)
        << row.sign << row.wet_bulb;
  }
}

TEST(LogbookLine, SeaTemperatureSignIsZeroForTheEvenKinds) {
  for (const char* positive : {"0", "2", "4", "6"})
    EXPECT_EQ(columns(encode(with({{"Ss", positive}})), 50, 50), "0") << positive;
  for (const char* other : {"1", "3", "5", "7", "8", "9", "/", "", "02"})
    EXPECT_EQ(columns(encode(with({{"Ss", other}})), 50, 50), "1") << other;
}

TEST(LogbookLine, SeaTemperatureMethodOfTheShipStandsInColumn54) {
  struct Row {
    SeaTemperatureMethod method;
    const char* expected;
  };
  for (const Row& row :
       {Row{SeaTemperatureMethod::kIntake, "10"}, Row{SeaTemperatureMethod::kBucket, "00"},
        Row{SeaTemperatureMethod::kHullContactSensor, "30"},
        Row{SeaTemperatureMethod::kOther, "70"}}) {
    ShipFixedData fixed = ship();
    fixed.sea_temperature_method = row.method;
    EXPECT_EQ(columns(encode(full(), fixed), 54, 55), row.expected);
  }
}

TEST(LogbookLine, UnknownSeaTemperatureMethodMovesEveryLaterColumnToTheLeft) {
  ShipFixedData fixed = ship();
  fixed.sea_temperature_method = static_cast<SeaTemperatureMethod>(-1);
  std::string expected = encode(full());
  expected.erase(53, 1);
  EXPECT_EQ(encode(full(), fixed), expected);
}

TEST(LogbookLine, MeasuredWavesStandInWhereWindWavesAreNotObserved) {
  KeyObservationItems items;
  items.set_observed(ObservationItem::PwHw, false);
  EXPECT_EQ(columns(encode(full(), ship(), items), 56, 59), "0706");
  EXPECT_EQ(columns(encode(full(), ship()), 56, 59), "0604");
}

TEST(LogbookLine, NoSwellWritesZerosWhateverTheOtherFieldsHold) {
  Struct_Weather record = full();
  record.dw1dw1 = "00";
  std::string line = encode(record);
  EXPECT_EQ(columns(line, 60, 65), "000000");
  EXPECT_EQ(columns(line, 99, 104), "000000");
  record.dw2dw2 = "00";
  record.Pw1Pw1 = "123";
  line = encode(record);
  EXPECT_EQ(columns(line, 62, 65), "0000");
  EXPECT_EQ(columns(line, 99, 104), "000000");
}

TEST(LogbookLine, NoSecondSwellWritesSpaces) {
  Struct_Weather record = full();
  record.dw2dw2 = "00";
  EXPECT_EQ(columns(encode(record), 99, 104), "      ");
  EXPECT_EQ(columns(encode(record), 62, 65), "0905");
}

TEST(LogbookLine, CallSignOfMoreThanSevenIsBlankedNotCut) {
  EXPECT_EQ(columns(encode(with({{"CallSign", "ABCDEFG"}})), 72, 78), "ABCDEFG");
  EXPECT_EQ(columns(encode(with({{"CallSign", "ABCDEFGH"}})), 72, 78), "       ");
  EXPECT_EQ(columns(encode(with({{"CallSign", ""}})), 72, 78), "       ");
  EXPECT_EQ(columns(encode(with({{"CallSign", "A B"}})), 72, 78), "A B    ");
}

TEST(LogbookLine, VosClimColumnsKeepSpacesForEmptyAndFillOthers) {
  EXPECT_EQ(columns(encode(with({{"VosClim3", "1 "}})), 133, 135), "01/");
  EXPECT_EQ(columns(encode(with({{"VosClim5", "1 .9"}})), 136, 138), "010");
  EXPECT_EQ(columns(encode(with({{"VosClim5", "2304.1"}})), 136, 138), "   ");
  EXPECT_EQ(columns(encode(with({{"VosClim2", "7.5"}})), 149, 151), "007");
}

TEST(LogbookLine, CargoHeightAndLoadLineDepartureOfTheShip) {
  struct Row {
    const char *height, *departure, *expected;
  };
  for (const Row& row : {Row{"12", "+05", "12005"}, Row{"7", "-05", "07105"}, Row{"", "", "     "},
                         Row{"123", "+0005", "     "}, Row{"1", "5", "01005"},
                         Row{"1 ", "-1", "1 011"}, Row{"01", "- 1", "011 1"}}) {
    ShipFixedData fixed = ship();
    fixed.vosclim_cargo_height = row.height;
    fixed.vosclim_load_line_departure = row.departure;
    EXPECT_EQ(columns(encode(full(), fixed), 141, 145), row.expected) << row.departure;
  }
}

TEST(LogbookLine, HumidityIndicatorTellsMethodAndUnit) {
  struct Row {
    HumidityMethod method;
    double unit;
    const char* expected;
  };
  for (const Row& row :
       {Row{HumidityMethod::kDirect, 0.1, "0"}, Row{HumidityMethod::kDirect, 1.0, "1"},
        Row{HumidityMethod::kComputed, 0.1, "3"}, Row{HumidityMethod::kComputed, 1.0, "4"}}) {
    ShipFixedData fixed = ship();
    fixed.humidity_method = row.method;
    fixed.humidity_unit = row.unit;
    EXPECT_EQ(columns(encode(full(), fixed), 164, 164), row.expected);
  }
}

TEST(LogbookLine, StationIndicatorTellsWhatIsObservedBesideIt) {
  ShipFixedData fixed = ship();
  KeyObservationItems none;
  none.not_observed.fill(true);
  KeyObservationItems one = none;
  one.set_observed(ObservationItem::ciSibiDizi, true);
  EXPECT_EQ(columns(encode(full(), fixed, none), 165, 165), "0");
  fixed.aws_fitted = true;
  EXPECT_EQ(columns(encode(full(), fixed, none), 165, 165), "1");
  EXPECT_EQ(columns(encode(full(), fixed, one), 165, 165), "2");
  EXPECT_EQ(columns(encode(full(), fixed), 165, 165), "2");
}

TEST(LogbookLine, ImoNumberIsPaddedOnTheRight) {
  ShipFixedData fixed = ship();
  fixed.imo_number = "123";
  EXPECT_EQ(columns(encode(full(), fixed), 166, 172), "123    ");
  fixed.imo_number = "";
  EXPECT_EQ(columns(encode(full(), fixed), 166, 172), "       ");
}

}  // namespace
