// The two items on the loading of a VOSClim ship: what is taken, and how it is kept.

#include "ship/data/vosclim_loading.h"

#include <gtest/gtest.h>

#include "fakes/fake_ports.h"
#include "observation/logbook_encoder.h"
#include "ship/data/ship_files.h"

namespace {

struct Row {
  const char* typed;
  const char* kept;  ///< nullptr: refused
};

constexpr Row kHeights[] = {{"", ""},        {" ", ""},        {"0", "00"},      {"7", "07"},
                            {"07", "07"},    {"12", "12"},     {"99", "99"},     {" 5", "05"},
                            {"5 ", "05"},    {"1 2", "12"},    {"A1", nullptr},  {"1x", nullptr},
                            {"-1", nullptr}, {"+1", nullptr},  {"123", nullptr}, {"*", nullptr},
                            {"**", nullptr}, {"/", nullptr},   {"//", nullptr},  {"1.", nullptr},
                            {"１", nullptr}, {"\xff", nullptr}};

constexpr Row kDepartures[] = {
    {"", ""},         {"   ", ""},      {"4", "+04"},     {"12", "+12"},     {"-12", "-12"},
    {"-3", "-03"},    {"+4", "+04"},    {"+04", "+04"},   {"00", "+00"},     {"-0", "-00"},
    {" 5", "+05"},    {"- 5", "-05"},   {"5 ", "+05"},    {"+99", "+99"},    {"-", nullptr},
    {"+", nullptr},   {"- ", nullptr},  {"123", nullptr}, {"+1x", nullptr},  {"1x", nullptr},
    {"--1", nullptr}, {"+-1", nullptr}, {"1-", nullptr},  {"+123", nullptr}, {"5.5", nullptr},
    {"*", nullptr},   {"***", nullptr}, {"/", nullptr},   {"///", nullptr},  {"－3", nullptr},
    {"\xff", nullptr}};

template <class Keep>
void check(std::span<const Row> rows, Keep keep) {
  for (const Row& row : rows) {
    const auto kept = keep(row.typed);
    ASSERT_EQ(kept.has_value(), row.kept != nullptr) << row.typed;
    if (!kept) continue;
    EXPECT_EQ(*kept, row.kept) << row.typed;
    EXPECT_EQ(keep(*kept), kept) << "what is kept is taken again as it is";
  }
}

TEST(VosClimLoading, KeepsAHeightInTwoFigures) {
  check(kHeights, kept_cargo_height);
}

TEST(VosClimLoading, KeepsADepartureAsSignAndTwoFigures) {
  check(kDepartures, kept_departure);
}

// Offsets 80 to 84 of the file, and columns 141 to 145 of the logbook.
TEST(VosClimLoading, ReachesTheFileAndTheLogbook) {
  const struct {
    const char* height;
    const char* departure;
    const char* in_file;
    const char* in_logbook;
  } rows[] = {{"7", "4", "07004", "07004"},
              {"12", "-12", "12112", "12112"},
              {"", "", "     ", "     "},
              {"0", "-0", "00100", "00100"},
              {"99", "", "99   ", "99   "}};
  fakes::World world;
  for (const auto& row : rows) {
    ShipFixedData ship;
    ship.vosclim = true;
    ship.vosclim_cargo_height = *kept_cargo_height(row.height);
    ship.vosclim_load_line_departure = *kept_departure(row.departure);
    const std::string file = encode_fixed_data(ship, world.clock.local_time, world.code_page);
    EXPECT_EQ(file.substr(80, 5), row.in_file);
    const auto read = decode_fixed_data(file, world.clock.utc_time, world.code_page);
    ASSERT_TRUE(read);
    EXPECT_EQ(read->vosclim_cargo_height, ship.vosclim_cargo_height);
    EXPECT_EQ(read->vosclim_load_line_departure, ship.vosclim_load_line_departure);
    const std::string line =
        observation::encode_logbook(Struct_Weather(ship, {}), ship, KeyObservationItems());
    EXPECT_EQ(line.substr(140, 5), row.in_logbook);
  }
}

}  // namespace
