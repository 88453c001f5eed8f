// FIXDATA.DAT field by field, and what its form loses.

#include <gtest/gtest.h>

#include <functional>
#include <random>
#include <string>

#include "fakes/fake_files.h"
#include "fakes/fake_ports.h"
#include "fakes/rounds.h"
#include "ship/data/ship_files.h"
#include "ship/ship_data.h"

namespace {

constexpr platform::DateTime kWritten{2014, 11, 5, 20, 50, 0};
constexpr platform::DateTime kUtc{2014, 3, 7, 11, 50, 0};
const fakes::FakeCodePage kCodePage;
const std::string kPath = "C:\\kavrel\\file\\FIXDATA.DAT";

std::string encoded(const ShipFixedData& data) {
  return encode_fixed_data(data, kWritten, kCodePage);
}

ShipFixedData decoded(const std::string& line) {
  const auto data = decode_fixed_data(line, kUtc, kCodePage);
  EXPECT_TRUE(data.has_value());
  return data.value_or(ShipFixedData{});
}

std::string with(std::size_t offset, const std::string& characters) {
  std::string line(kFixedDataSize, ' ');
  line.replace(offset, characters.size(), characters);
  return line;
}

std::string control_characters() {
  std::string all;
  for (int c = 0; c < 0x20; ++c) all += static_cast<char>(c);
  return all + '\x7f';
}

char any_byte_but_controls(std::mt19937& random) {
  constexpr std::mt19937::result_type kPrintable = 0x7f - 0x20;
  const auto byte = 0x20 + random() % (0x100 - 0x20 - 1);
  return static_cast<char>(byte < 0x20 + kPrintable ? byte : byte + 1);  // 0x7F is left out
}

// A ship with a card of type "1" and something in every field.
ShipFixedData full_ship() {
  ShipFixedData data = ship_test::valid_ship();
  data.card.height_full_load = "12";
  data.card.total_correction_full_load = "+1.5";
  data.card.height_ballast = "105";
  data.card.total_correction_ballast = "+12.4";
  data.wind_input_method = WindInputMethod::kApparentWind;
  data.sea_temperature_method = SeaTemperatureMethod::kHullContactSensor;
  data.dew_point_method = DewPointMethod::kComputed;
  data.wave_recorder = true;
  data.vosclim = true;
  data.temperature_unit = 0.5;
  data.humidity_method = HumidityMethod::kComputed;
  data.humidity_unit = 1.0;
  data.aws_manufacturer = "AWS CO., 2";
  return data;
}

struct WrittenRow {
  const char* rule;
  std::size_t offset;
  std::string characters;
  std::function<void(ShipFixedData&)> set;
};

TEST(FixedDataLine, IsOneLineOf155CharactersWithEachFieldInItsPlace) {
  EXPECT_EQ(encoded(full_ship()),
            "141105"                    // date written
            "JCCX   "                   // call sign
            "20140809"                  // check date
            "YOKOHAMA                "  // port
            "0"                         // card type "1"
            "+0.0 "
            "-0.3 "
            "1"
            "12 "
            "+1.5 "
            "105"
            "+12.4"
            "1"    // apparent wind
            "4"    // anemometer
            "4"    // hull contact sensor
            "1"    // dew point computed
            "1"    // wave recorder
            "1"    // registered
            "4"    // 0.5 degree
            "07"   // deck cargo
            "112"  // departure
            "9074729"
            "1"
            "1"
            "1"
            "AWS CO., 2" +
                std::string(50, '_'));
}

TEST(FixedDataLine, WritesEachValueAtItsOffset) {
  using Data = ShipFixedData;
  const WrittenRow rows[] = {
      {"call sign padded", 6, "AB12   ", [](Data& d) { d.call_sign = "AB12"; }},
      {"placeholder call sign", 6, "*******", [](Data&) {}},
      {"date without strokes", 13, "20001231", [](Data& d) { d.card.check_date = "2000/12/31"; }},
      {"placeholder date", 13, "yyyymmdd", [](Data&) {}},
      {"port keeps inner spaces", 21, "PORT A                  ",
       [](Data& d) { d.card.check_port = "PORT A"; }},
      {"card type 1", 45, "0", [](Data& d) { d.card.type = CardType::kHeightAndTemperature; }},
      {"card type 2", 45, "1", [](Data& d) { d.card.type = CardType::kTotalCorrection; }},
      {"card not chosen", 45, "0", [](Data&) {}},
      {"total correction", 46, "-50.0", [](Data& d) { d.card.total_correction = "-50.0"; }},
      {"instrumental", 51, "+0.4 ", [](Data& d) { d.card.instrumental_correction = "+0.4"; }},
      {"full load", 56, "0",
       [](Data& d) {
         d.card.type = CardType::kHeightAndTemperature;
         d.card.loading_state = LoadingState::kFullLoad;
       }},
      {"no loading state", 56, " ", [](Data& d) { d.card.type = CardType::kHeightAndTemperature; }},
      {"type 2 has no loading state", 56, " ",
       [](Data& d) {
         d.card.type = CardType::kTotalCorrection;
         d.card.loading_state = LoadingState::kInBallast;
       }},
      {"height full load", 57, "8  ", [](Data& d) { d.card.height_full_load = "8"; }},
      {"total full load", 60, "+80.0",
       [](Data& d) { d.card.total_correction_full_load = "+80.0"; }},
      {"height ballast", 65, "200", [](Data& d) { d.card.height_ballast = "200"; }},
      {"total ballast", 68, "+3.1 ", [](Data& d) { d.card.total_correction_ballast = "+3.1"; }},
      {"true wind", 73, "0", [](Data&) {}},
      {"Beaufort", 74, "3", [](Data&) {}},
      {"intake", 75, "0", [](Data&) {}},
      {"bucket", 75, "2",
       [](Data& d) { d.sea_temperature_method = SeaTemperatureMethod::kBucket; }},
      {"other", 75, "6", [](Data& d) { d.sea_temperature_method = SeaTemperatureMethod::kOther; }},
      {"dew point direct", 76, "0", [](Data&) {}},
      {"no wave recorder", 77, "0", [](Data&) {}},
      {"unregistered", 78, "0", [](Data&) {}},
      {"0.1 degree", 79, "3", [](Data&) {}},
      {"0.5 degree", 79, "4", [](Data& d) { d.temperature_unit = 0.5; }},
      {"1 degree", 79, "5", [](Data& d) { d.temperature_unit = 1.0; }},
      {"another unit", 79, "0", [](Data& d) { d.temperature_unit = 2.0; }},
      {"no cargo, no departure", 80, "     ", [](Data&) {}},
      {"departure +04", 82, "004", [](Data& d) { d.vosclim_load_line_departure = "+04"; }},
      {"departure without a sign", 82, "004",
       [](Data& d) { d.vosclim_load_line_departure = "04"; }},
      {"no IMO number", 85, "       ", [](Data&) {}},
      {"humidity direct", 92, "0", [](Data&) {}},
      {"0.1 percent", 93, "0", [](Data&) {}},
      {"1 percent", 93, "1", [](Data& d) { d.humidity_unit = 1.0; }},
      {"no station", 94, "0", [](Data&) {}},
      {"manufacturer of 8", 95, "VAISALAX" + std::string(52, '_'),
       [](Data& d) { d.aws_manufacturer = "VAISALAX"; }},
      {"no manufacturer", 95, std::string(60, '_'), [](Data&) {}},
  };
  for (const WrittenRow& row : rows) {
    ShipFixedData data;
    row.set(data);
    const std::string line = encoded(data);
    EXPECT_EQ(line.size(), kFixedDataSize) << row.rule;
    EXPECT_EQ(line.substr(row.offset, row.characters.size()), row.characters) << row.rule;
  }
}

TEST(FixedDataLine, CutsWhatDoesNotFitAndMovesNothing) {
  ShipFixedData data = full_ship();
  const std::string before = encoded(data);
  const std::string wide(100, 'X');
  data.call_sign = data.card.check_port = data.imo_number = data.aws_manufacturer = wide;
  data.card.total_correction = data.card.height_ballast = wide;
  const std::string line = encoded(data);
  ASSERT_EQ(line.size(), kFixedDataSize);
  for (const auto& [offset, width] :
       {std::pair<std::size_t, std::size_t>{6, 7}, {21, 24}, {46, 5}, {65, 3}, {85, 7}, {95, 60}})
    EXPECT_EQ(line.substr(offset, width), std::string(width, 'X')) << offset;
  EXPECT_EQ(line.substr(13, 8), before.substr(13, 8));
  EXPECT_EQ(line.substr(68, 17), before.substr(68, 17));
}

TEST(FixedDataLine, CutsAPortAtAWholeCharacter) {
  ShipFixedData data;
  const std::string osaka = "\x91\xE5\x8D\xE3\x8D\x60";
  data.card.check_port = "大阪港大阪港大阪港大阪港大";  // 26 bytes
  const std::string line = encoded(data);
  EXPECT_EQ(line.size(), kFixedDataSize);
  EXPECT_EQ(line.substr(21, 24), osaka + osaka + osaka + osaka);
  data.card.check_port = "X大阪港大阪港大阪港大阪港";
  EXPECT_EQ(encoded(data).substr(21, 24), "X" + osaka + osaka + osaka + osaka.substr(0, 4) + " ");
}

struct ReadRow {
  const char* rule;
  std::size_t offset;
  std::string characters;
  std::function<std::string(const ShipFixedData&)> get;
  std::string value;
};

TEST(FixedDataLine, ReadsEachFieldFromItsOffset) {
  using Data = const ShipFixedData&;
  const auto type = [](Data d) { return std::to_string(static_cast<int>(d.card.type)); };
  const auto loading = [](Data d) {
    return std::to_string(static_cast<int>(d.card.loading_state));
  };
  const auto sea = [](Data d) {
    return std::to_string(static_cast<int>(d.sea_temperature_method));
  };
  const auto unit = [](Data d) { return std::to_string(d.temperature_unit).substr(0, 3); };
  const auto percent = [](Data d) { return std::to_string(d.humidity_unit).substr(0, 3); };
  const auto departure = [](Data d) { return d.vosclim_load_line_departure; };
  const auto speed = [](Data d) { return std::to_string(static_cast<int>(d.wind_speed_method)); };
  const auto total = [](Data d) { return d.card.total_correction; };
  const auto recorder = [](Data d) { return std::string(d.wave_recorder ? "yes" : "no"); };
  const auto registered = [](Data d) { return std::string(d.vosclim ? "yes" : "no"); };
  const auto maker = [](Data d) { return d.aws_manufacturer; };
  const ReadRow rows[] = {
      {"blanks dropped", 6, " AB 12 ", [](Data d) { return d.call_sign; }, "AB12"},
      {"strokes put in", 13, "20140809", [](Data d) { return d.card.check_date; }, "2014/08/09"},
      {"blanks of a date dropped", 13, "2014 8 9", [](Data d) { return d.card.check_date; },
       "2014/8/9"},
      {"blank date is today in UTC without zeros", 13, "        ",
       [](Data d) { return d.card.check_date; }, "2014/3/7"},
      {"inner spaces of a port are lost", 21, "PORT A", [](Data d) { return d.card.check_port; },
       "PORTA"},
      {"card type 1", 45, "0", type, "0"},
      {"card type 2", 45, "1", type, "1"},
      {"no card type", 45, " ", type, "-1"},
      {"wild card type", 45, "2", type, "-1"},
      {"total", 46, "-1.2 ", total, "-1.2"},
      {"zero with two figures", 46, "+00.0", total, "+0.0"},
      {"only exactly that", 46, "-00.0", total, "-00.0"},
      {"zero instrumental", 51, "+00.0", [](Data d) { return d.card.instrumental_correction; },
       "+0.0"},
      {"zero full load", 60, "+00.0", [](Data d) { return d.card.total_correction_full_load; },
       "+0.0"},
      {"zero ballast", 68, "+00.0", [](Data d) { return d.card.total_correction_ballast; }, "+0.0"},
      {"full load", 56, "0", loading, "0"},
      {"ballast", 56, "1", loading, "1"},
      {"no state", 56, " ", loading, "-1"},
      {"height full load", 57, "12 ", [](Data d) { return d.card.height_full_load; }, "12"},
      {"height ballast", 65, "105", [](Data d) { return d.card.height_ballast; }, "105"},
      {"Beaufort", 74, "3", speed, "0"},
      {"anemometer", 74, "4", speed, "1"},
      {"wild speed", 74, "\xff", speed, "0"},
      {"intake", 75, "0", sea, "0"},
      {"bucket", 75, "2", sea, "1"},
      {"hull", 75, "4", sea, "2"},
      {"other", 75, "6", sea, "3"},
      {"wild sea", 75, "5", sea, "0"},
      {"recorder", 77, "1", recorder, "yes"},
      {"no recorder", 77, "0", recorder, "no"},
      {"registered", 78, "1", registered, "yes"},
      {"not registered", 78, "0", registered, "no"},
      {"0.1", 79, "3", unit, "0.1"},
      {"0.5", 79, "4", unit, "0.5"},
      {"1.0", 79, "5", unit, "1.0"},
      {"wild unit", 79, "0", unit, "0.1"},
      {"cargo", 80, " 7", [](Data d) { return d.vosclim_cargo_height; }, "7"},
      {"plus", 82, "004", departure, "+04"},
      {"minus", 82, "112", departure, "-12"},
      {"any other sign is minus", 82, "x12", departure, "-12"},
      {"no departure", 82, "   ", departure, ""},
      {"IMO", 85, "9074729", [](Data d) { return d.imo_number; }, "9074729"},
      {"tenths of a percent", 92, "00", percent, "0.1"},
      {"whole percent", 92, "01", percent, "1.0"},
      {"anything but 0 is whole", 92, "0 ", percent, "1.0"},
      {"computed forces whole", 92, "10", percent, "1.0"},
      {"manufacturer", 94, "1VAISALA X" + std::string(51, '_'), maker, "VAISALA X"},
      {"underscores inside go too", 94, "1A_B" + std::string(57, '_'), maker, "AB"},
      {"no station, no manufacturer", 94, "0VAISALA" + std::string(53, '_'), maker, ""},
  };
  for (const ReadRow& row : rows) {
    EXPECT_EQ(row.get(decoded(with(row.offset, row.characters))), row.value) << row.rule;
  }
}

TEST(FixedDataLine, IsUsedOnlyAtExactly155Bytes) {
  for (const std::size_t size : {0U, 1U, 154U, 156U, 157U, 4096U})
    EXPECT_FALSE(decode_fixed_data(std::string(size, '0'), kUtc, kCodePage)) << size;
  EXPECT_TRUE(decode_fixed_data(std::string(155, '0'), kUtc, kCodePage));
}

TEST(FixedDataLine, ComesBackAsItWasSaved) {
  EXPECT_EQ(decoded(encoded(full_ship())), full_ship());
  ShipFixedData two = full_ship();
  two.card.type = CardType::kTotalCorrection;
  two.card.loading_state = LoadingState::kNotChosen;
  two.card.total_correction = "-0.4";
  two.aws_fitted = two.wave_recorder = two.vosclim = false;
  two.aws_manufacturer.clear();
  two.humidity_method = HumidityMethod::kDirect;
  two.humidity_unit = 0.1;
  two.vosclim_load_line_departure.clear();
  EXPECT_EQ(decoded(encoded(two)), two);
}

// A line end in the call sign would go on into the report and tear the logbook's line.
TEST(FixedDataLine, IsNotUsedWithAControlCharacterAnywhere) {
  const std::string sound = encoded(full_ship());
  ASSERT_TRUE(decode_fixed_data(sound, kUtc, kCodePage));
  for (const char control : control_characters()) {
    for (std::size_t at = 0; at < kFixedDataSize; ++at) {
      std::string line = sound;
      line[at] = control;
      ASSERT_FALSE(decode_fixed_data(line, kUtc, kCodePage))
          << at << ": " << static_cast<int>(control);
    }
  }
}

TEST(FixedDataLine, HoldsNoControlCharacterWhateverWasTyped) {
  for (const char control : control_characters()) {
    ShipFixedData data = full_ship();
    data.card.check_port = std::string("YOKO") + control + "HAMA";
    const std::string line = encoded(data);
    EXPECT_EQ(line.substr(21, 9), "YOKO HAMA");
    EXPECT_TRUE(decode_fixed_data(line, kUtc, kCodePage));
    for (std::string ShipFixedData::*const member :
         {&ShipFixedData::call_sign, &ShipFixedData::imo_number, &ShipFixedData::aws_manufacturer,
          &ShipFixedData::vosclim_cargo_height, &ShipFixedData::vosclim_load_line_departure}) {
      ShipFixedData wild;
      wild.*member = control;
      EXPECT_TRUE(decode_fixed_data(encoded(wild), kUtc, kCodePage));
    }
  }
}

// What was read once is written, read and written again without a further change, whatever bytes
// were there at first.
TEST(FixedDataLine, IsStableAfterTheFirstReadingOfAnyBytes) {
  std::mt19937 random(155);
  const std::string likely = "0123456789 +-./_AZ*";
  const int rounds = fakes::rounds(20000);
  for (int round = 0; round < rounds; ++round) {
    std::string line(kFixedDataSize, ' ');
    for (char& c : line) {
      c = round % 2 == 0 ? any_byte_but_controls(random) : likely[random() % likely.size()];
    }
    const std::string once = encoded(decoded(line));
    ASSERT_EQ(once.size(), kFixedDataSize);
    const std::string twice = encoded(decoded(once));
    ASSERT_EQ(encoded(decoded(twice)), twice);
    ASSERT_EQ(once.substr(21), twice.substr(21));
  }
}

TEST(FixedDataFile, IsReplacedAsAWhole) {
  for (int step = 1; step <= 2; ++step) {
    fakes::FakeFiles files;
    fakes::FakeClock clock;
    files.add_file(kPath, "old");
    files.fail_at(step, platform::FileError::kNoSpace);
    EXPECT_EQ(save_fixed_data(files, kPath, full_ship(), clock, kCodePage),
              platform::FileError::kNoSpace);
    EXPECT_EQ(files.content(kPath), "old") << step;
    EXPECT_EQ(files.snapshot().size(), 1U) << step;
  }
}

TEST(FixedDataFile, CarriesTheLocalDateOfTheSave) {
  fakes::FakeFiles files;
  fakes::FakeClock clock;
  clock.local_time = {2009, 1, 2, 0, 30, 0};
  clock.utc_time = {2009, 1, 1, 15, 30, 0};
  files.add_folder("C:\\kavrel\\file");
  EXPECT_EQ(save_fixed_data(files, kPath, full_ship(), clock, kCodePage),
            platform::FileError::kNone);
  EXPECT_EQ(files.content(kPath).value_or("").substr(0, 6), "090102");
  const auto loaded = load_fixed_data(files, kPath, clock, kCodePage);
  EXPECT_EQ(loaded.outcome, FileRead::kRead);
  EXPECT_EQ(loaded.values, full_ship());
}

TEST(FixedDataFile, IsMissingOnlyWhereThereIsNothing) {
  using platform::FileError;
  fakes::FakeClock clock;
  for (const bool exists : {true, false}) {
    fakes::FakeFiles files;
    if (exists) files.add_file(kPath, std::string(kFixedDataSize, '0'));
    files.fail_look(kPath, FileError::kTooManyOpen);
    const auto loaded = load_fixed_data(files, kPath, clock, kCodePage);
    EXPECT_EQ(loaded.outcome, FileRead::kUnreadable);
    EXPECT_EQ(loaded.error, FileError::kTooManyOpen);
    EXPECT_EQ(load_key_items(files, kPath).outcome, FileRead::kUnreadable);
  }
  fakes::FakeFiles files;
  files.add_folder(kPath);
  EXPECT_EQ(load_fixed_data(files, kPath, clock, kCodePage).error, FileError::kNotAFile);
  files.add_other("C:\\pipe");
  EXPECT_EQ(load_key_items(files, "C:\\pipe").error, FileError::kNotAFile);
}

TEST(FixedDataFile, TellsMissingWrongSizeAndUnreadableApart) {
  fakes::FakeFiles files;
  fakes::FakeClock clock;
  EXPECT_EQ(load_fixed_data(files, kPath, clock, kCodePage).outcome, FileRead::kMissing);
  for (const std::size_t size : {0U, 154U, 156U}) {
    files.add_file(kPath, std::string(size, '0'));
    const auto loaded = load_fixed_data(files, kPath, clock, kCodePage);
    EXPECT_EQ(loaded.outcome, FileRead::kWrongSize) << size;
    EXPECT_EQ(loaded.values, ShipFixedData{}) << size;
    EXPECT_EQ(files.content(kPath), std::string(size, '0')) << size;
  }
  std::string damaged = encoded(full_ship());
  damaged[8] = '\n';
  files.add_file(kPath, damaged);
  const auto refused = load_fixed_data(files, kPath, clock, kCodePage);
  EXPECT_EQ(refused.outcome, FileRead::kWrongSize) << "a line end in the call sign";
  EXPECT_EQ(refused.values, ShipFixedData{});
  EXPECT_EQ(files.content(kPath), damaged);
  files.add_file(kPath, encoded(full_ship()));
  files.fail_next(fakes::FakeFiles::Operation::kRead, platform::FileError::kAccessDenied);
  EXPECT_EQ(load_fixed_data(files, kPath, clock, kCodePage).outcome, FileRead::kUnreadable);
}

TEST(KeyItemsFile, HoldsTwelveDigitsInTheOrderOfTheSwitches) {
  KeyObservationItems items;
  EXPECT_EQ(encode_key_items(items), "000000000000");
  for (std::size_t i = 0; i < kObservationItems; ++i) {
    items = {};
    items.not_observed[i] = true;
    std::string digits(12, '0');
    digits[i] = '1';
    EXPECT_EQ(encode_key_items(items), digits);
    EXPECT_EQ(decode_key_items(digits), items);
  }
  items = {};
  items.set_observed(ObservationItem::VV, false);
  EXPECT_EQ(encode_key_items(items), "010000000000");
}

TEST(KeyItemsFile, IsUsedOnlyAtExactly12Bytes) {
  for (const std::size_t size : {0U, 11U, 13U, 14U})
    EXPECT_FALSE(decode_key_items(std::string(size, '1'))) << size;
  fakes::FakeFiles files;
  files.add_file("C:\\M.DAT", "1111111111111");
  EXPECT_EQ(load_key_items(files, "C:\\M.DAT").outcome, FileRead::kWrongSize);
  EXPECT_EQ(load_key_items(files, "C:\\M.DAT").values, KeyObservationItems{});
  EXPECT_EQ(load_key_items(files, "C:\\NONE.DAT").outcome, FileRead::kMissing);
}

// Eleven digits and a line end are a file of the wrong size too.
TEST(KeyItemsFile, IsNotUsedWithAControlCharacterAnywhere) {
  for (const char control : control_characters()) {
    for (std::size_t at = 0; at < kKeyItemsSize; ++at) {
      std::string digits(kKeyItemsSize, '0');
      digits[at] = control;
      EXPECT_FALSE(decode_key_items(digits)) << at << ": " << static_cast<int>(control);
    }
  }
}

TEST(KeyItemsFile, SurvivesAnyTwelveBytes) {
  std::mt19937 random(12);
  for (int round = 0; round < 5000; ++round) {
    std::string digits(kKeyItemsSize, '0');
    for (char& c : digits) c = any_byte_but_controls(random);
    const auto items = decode_key_items(digits);
    ASSERT_TRUE(items);
    ASSERT_EQ(decode_key_items(encode_key_items(*items)), items);
  }
}

}  // namespace
