#include "codetables/tables/code_tables.h"

#include <algorithm>
#include <vector>

#include "text/ids.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace codetables {
namespace {

namespace id = text::id;

constexpr CodeRow kTable0200[] = {{"0", id::kCharacteristic0}, {"1", id::kCharacteristic1},
                                  {"2", id::kCharacteristic2}, {"3", id::kCharacteristic3},
                                  {"4", id::kCharacteristic4}, {"5", id::kCharacteristic5},
                                  {"6", id::kCharacteristic6}, {"7", id::kCharacteristic7},
                                  {"8", id::kCharacteristic8}, {"/", id::kCharacteristicUnknown}};

constexpr CodeRow kTable0439[] = {
    {"0", id::kLandIce0}, {"1", id::kLandIce1}, {"2", id::kLandIce2},          {"3", id::kLandIce3},
    {"4", id::kLandIce4}, {"5", id::kLandIce5}, {"6", id::kLandIce6},          {"7", id::kLandIce7},
    {"8", id::kLandIce8}, {"9", id::kLandIce9}, {"/", id::kLandIceNotReported}};

constexpr CodeRow kTable0509[] = {
    {"0", id::kHighCloud0}, {"1", id::kHighCloud1},      {"2", id::kHighCloud2},
    {"3", id::kHighCloud3}, {"4", id::kHighCloud4},      {"5", id::kHighCloud5},
    {"6", id::kHighCloud6}, {"7", id::kHighCloud7},      {"8", id::kHighCloud8},
    {"9", id::kHighCloud9}, {"/", id::kHighCloudUnknown}};

constexpr CodeRow kTable0513[] = {
    {"0", id::kLowCloud0}, {"1", id::kLowCloud1}, {"2", id::kLowCloud2},      {"3", id::kLowCloud3},
    {"4", id::kLowCloud4}, {"5", id::kLowCloud5}, {"6", id::kLowCloud6},      {"7", id::kLowCloud7},
    {"8", id::kLowCloud8}, {"9", id::kLowCloud9}, {"/", id::kLowCloudUnknown}};

constexpr CodeRow kTable0515[] = {
    {"0", id::kMiddleCloud0}, {"1", id::kMiddleCloud1},      {"2", id::kMiddleCloud2},
    {"3", id::kMiddleCloud3}, {"4", id::kMiddleCloud4},      {"5", id::kMiddleCloud5},
    {"6", id::kMiddleCloud6}, {"7", id::kMiddleCloud7},      {"8", id::kMiddleCloud8},
    {"9", id::kMiddleCloud9}, {"/", id::kMiddleCloudUnknown}};

constexpr CodeRow kTable0639[] = {
    {"0", id::kIceConcentration0},          {"1", id::kIceConcentration1},
    {"2", id::kIceConcentration2},          {"3", id::kIceConcentration3},
    {"4", id::kIceConcentration4},          {"5", id::kIceConcentration5},
    {"6", id::kIceConcentration6},          {"7", id::kIceConcentration7},
    {"8", id::kIceConcentration8},          {"9", id::kIceConcentration9},
    {"/", id::kIceConcentrationNotReported}};

constexpr CodeRow kTable0700[] = {
    {"0", id::kDsUnchanged}, {"1", id::kDsNortheast},  {"2", id::kDsEast},
    {"3", id::kDsSoutheast}, {"4", id::kDsSouth},      {"5", id::kDsSouthwest},
    {"6", id::kDsWest},      {"7", id::kDsNorthwest},  {"8", id::kDsNorth},
    {"9", id::kDsUnknown},   {"/", id::kDsNotObserved}};

constexpr CodeRow kTable0739[] = {
    {"0", id::kIceEdge0}, {"1", id::kIceEdge1}, {"2", id::kIceEdge2},          {"3", id::kIceEdge3},
    {"4", id::kIceEdge4}, {"5", id::kIceEdge5}, {"6", id::kIceEdge6},          {"7", id::kIceEdge7},
    {"8", id::kIceEdge8}, {"9", id::kIceEdge9}, {"/", id::kIceEdgeNotReported}};

constexpr CodeRow kTable0877[] = {
    {"00", id::kDirectionCalm}, {"99", id::kDirectionVariable}, {"//", id::kTrueDirectionUnknown}};

// Of swell, calm is no swell, and 99 a direction that the observer cannot make out.
constexpr CodeRow kTable0877OfSwell[] = {{"00", id::kNoSwell},
                                         {"99", id::kSwellDirectionIsUnknown},
                                         {"//", id::kSwellDirectionNotObserved}};

constexpr FigureRange kTensOfDegrees[] = {
    {.first = 1, .last = 36, .text = id::kDirectionDegrees, .start = 10, .step = 10}};

constexpr CodeRow kTable1600[] = {
    {"0", id::kCloudBase0}, {"1", id::kCloudBase1},      {"2", id::kCloudBase2},
    {"3", id::kCloudBase3}, {"4", id::kCloudBase4},      {"5", id::kCloudBase5},
    {"6", id::kCloudBase6}, {"7", id::kCloudBase7},      {"8", id::kCloudBase8},
    {"9", id::kCloudBase9}, {"/", id::kCloudBaseUnknown}};

constexpr CodeRow kTable1751[] = {{"1", id::kIcingCause1},
                                  {"2", id::kIcingCause2},
                                  {"3", id::kIcingCause3},
                                  {"4", id::kIcingCause4},
                                  {"5", id::kIcingCause5}};

constexpr CodeRow kTable1819[] = {{"0", id::kPrecipitationData0},
                                  {"1", id::kPrecipitationData1},
                                  {"2", id::kPrecipitationData2},
                                  {"3", id::kPrecipitationData3},
                                  {"4", id::kPrecipitationData4}};

constexpr CodeRow kTable1855[] = {{"0", id::kWindSource0},
                                  {"1", id::kWindSource1},
                                  {"3", id::kWindSource3},
                                  {"4", id::kWindSource4}};

constexpr CodeRow kTable1860[] = {{"1", id::kWeatherData1}, {"2", id::kWeatherData2},
                                  {"3", id::kWeatherData3}, {"4", id::kWeatherData4},
                                  {"5", id::kWeatherData5}, {"6", id::kWeatherData6},
                                  {"7", id::kWeatherData7}};

constexpr CodeRow kTable2700[] = {
    {"0", id::kCloudAmount0}, {"1", id::kCloudAmount1},      {"2", id::kCloudAmount2},
    {"3", id::kCloudAmount3}, {"4", id::kCloudAmount4},      {"5", id::kCloudAmount5},
    {"6", id::kCloudAmount6}, {"7", id::kCloudAmount7},      {"8", id::kCloudAmount8},
    {"9", id::kCloudAmount9}, {"/", id::kCloudAmountUnknown}};

// The same amounts; two of the lines are spaced otherwise.
constexpr CodeRow kTable2700OfLowest[] = {
    {"0", id::kCloudAmount0},       {"1", id::kCloudAmount1},      {"2", id::kLowestCloudAmount2},
    {"3", id::kCloudAmount3},       {"4", id::kCloudAmount4},      {"5", id::kCloudAmount5},
    {"6", id::kLowestCloudAmount6}, {"7", id::kCloudAmount7},      {"8", id::kCloudAmount8},
    {"9", id::kCloudAmount9},       {"/", id::kCloudAmountUnknown}};

constexpr CodeRow kTable3333[] = {
    {"1", id::kQuadrant1}, {"3", id::kQuadrant3}, {"5", id::kQuadrant5}, {"7", id::kQuadrant7}};

constexpr CodeRow kTable3551[] = {{"0", id::kIcingRate0},
                                  {"1", id::kIcingRate1},
                                  {"2", id::kIcingRate2},
                                  {"3", id::kIcingRate3},
                                  {"4", id::kIcingRate4}};

constexpr CodeRow kTable3739[] = {
    {"0", id::kIceStage0}, {"1", id::kIceStage1},          {"2", id::kIceStage2},
    {"3", id::kIceStage3}, {"4", id::kIceStage4},          {"5", id::kIceStage5},
    {"6", id::kIceStage6}, {"7", id::kIceStage7},          {"8", id::kIceStage8},
    {"9", id::kIceStage9}, {"/", id::kIceStageNotReported}};

constexpr CodeRow kTable3845[] = {
    {"0", id::kTemperatureSign0}, {"1", id::kTemperatureSign1}, {"9", id::kTemperatureSign9}};

constexpr CodeRow kTable3850[] = {{"0", id::kSeaTemperatureSign0}, {"1", id::kSeaTemperatureSign1},
                                  {"2", id::kSeaTemperatureSign2}, {"3", id::kSeaTemperatureSign3},
                                  {"4", id::kSeaTemperatureSign4}, {"5", id::kSeaTemperatureSign5},
                                  {"6", id::kSeaTemperatureSign6}, {"7", id::kSeaTemperatureSign7}};

constexpr CodeRow kTable3855[] = {{"0", id::kWetBulbSign0}, {"1", id::kWetBulbSign1},
                                  {"2", id::kWetBulbSign2}, {"5", id::kWetBulbSign5},
                                  {"6", id::kWetBulbSign6}, {"7", id::kWetBulbSign7}};

// Ships use 90-99. The finer figures come in reports from elsewhere; 51-55 are not used.
constexpr CodeRow kTable4377[] = {
    {"00", id::kVisibilityUnder100m}, {"89", id::kVisibilityOver70km}, {"90", id::kVisibilityBelow},
    {"91", id::kVisibility50m},       {"92", id::kVisibility200m},     {"93", id::kVisibility500m},
    {"94", id::kVisibility1km},       {"95", id::kVisibility2km},      {"96", id::kVisibility4km},
    {"97", id::kVisibility10km},      {"98", id::kVisibility20km},     {"99", id::kVisibility50km},
    {"//", id::kVisibilityUnknown}};

constexpr FigureRange kKilometres[] = {
    {.first = 1,
     .last = 50,
     .text = id::kVisibilityKilometres,
     .start = 1,
     .step = 1,
     .decimals = 1},
    {.first = 56, .last = 80, .text = id::kVisibilityKilometres, .start = 6, .step = 1},
    {.first = 81, .last = 88, .text = id::kVisibilityKilometres, .start = 35, .step = 5},
};

// Exactly 40 knots is a 9 here.
constexpr CodeRow kTable4451[] = {
    {"0", id::kVsUnder1},  {"1", id::kVsUnder6},   {"2", id::kVsUnder11}, {"3", id::kVsUnder16},
    {"4", id::kVsUnder21}, {"5", id::kVsUnder26},  {"6", id::kVsUnder31}, {"7", id::kVsUnder36},
    {"8", id::kVsUnder40}, {"9", id::kVs40OrMore}, {"/", id::kVsUnknown}};

constexpr CodeRow kTable4561[] = {
    {"0", id::kPastWeather0}, {"1", id::kPastWeather1},          {"2", id::kPastWeather2},
    {"3", id::kPastWeather3}, {"4", id::kPastWeather4},          {"5", id::kPastWeather5},
    {"6", id::kPastWeather6}, {"7", id::kPastWeather7},          {"8", id::kPastWeather8},
    {"9", id::kPastWeather9}, {"/", id::kPastWeatherNotObserved}};

constexpr CodeRow kTable4677[] = {
    {"00", id::kPresentWeather00},         {"01", id::kPresentWeather01},
    {"02", id::kPresentWeather02},         {"03", id::kPresentWeather03},
    {"04", id::kPresentWeather04},         {"05", id::kPresentWeather05},
    {"06", id::kPresentWeather06},         {"07", id::kPresentWeather07},
    {"08", id::kPresentWeather08},         {"09", id::kPresentWeather09},
    {"10", id::kPresentWeather10},         {"11", id::kPresentWeather11},
    {"12", id::kPresentWeather12},         {"13", id::kPresentWeather13},
    {"14", id::kPresentWeather14},         {"15", id::kPresentWeather15},
    {"16", id::kPresentWeather16},         {"17", id::kPresentWeather17},
    {"18", id::kPresentWeather18},         {"19", id::kPresentWeather19},
    {"20", id::kPresentWeather20},         {"21", id::kPresentWeather21},
    {"22", id::kPresentWeather22},         {"23", id::kPresentWeather23},
    {"24", id::kPresentWeather24},         {"25", id::kPresentWeather25},
    {"26", id::kPresentWeather26},         {"27", id::kPresentWeather27},
    {"28", id::kPresentWeather28},         {"29", id::kPresentWeather29},
    {"30", id::kPresentWeather30},         {"31", id::kPresentWeather31},
    {"32", id::kPresentWeather32},         {"33", id::kPresentWeather33},
    {"34", id::kPresentWeather34},         {"35", id::kPresentWeather35},
    {"36", id::kPresentWeather36},         {"37", id::kPresentWeather37},
    {"38", id::kPresentWeather38},         {"39", id::kPresentWeather39},
    {"40", id::kPresentWeather40},         {"41", id::kPresentWeather41},
    {"42", id::kPresentWeather42},         {"43", id::kPresentWeather43},
    {"44", id::kPresentWeather44},         {"45", id::kPresentWeather45},
    {"46", id::kPresentWeather46},         {"47", id::kPresentWeather47},
    {"48", id::kPresentWeather48},         {"49", id::kPresentWeather49},
    {"50", id::kPresentWeather50},         {"51", id::kPresentWeather51},
    {"52", id::kPresentWeather52},         {"53", id::kPresentWeather53},
    {"54", id::kPresentWeather54},         {"55", id::kPresentWeather55},
    {"56", id::kPresentWeather56},         {"57", id::kPresentWeather57},
    {"58", id::kPresentWeather58},         {"59", id::kPresentWeather59},
    {"60", id::kPresentWeather60},         {"61", id::kPresentWeather61},
    {"62", id::kPresentWeather62},         {"63", id::kPresentWeather63},
    {"64", id::kPresentWeather64},         {"65", id::kPresentWeather65},
    {"66", id::kPresentWeather66},         {"67", id::kPresentWeather67},
    {"68", id::kPresentWeather68},         {"69", id::kPresentWeather69},
    {"70", id::kPresentWeather70},         {"71", id::kPresentWeather71},
    {"72", id::kPresentWeather72},         {"73", id::kPresentWeather73},
    {"74", id::kPresentWeather74},         {"75", id::kPresentWeather75},
    {"76", id::kPresentWeather76},         {"77", id::kPresentWeather77},
    {"78", id::kPresentWeather78},         {"79", id::kPresentWeather79},
    {"80", id::kPresentWeather80},         {"81", id::kPresentWeather81},
    {"82", id::kPresentWeather82},         {"83", id::kPresentWeather83},
    {"84", id::kPresentWeather84},         {"85", id::kPresentWeather85},
    {"86", id::kPresentWeather86},         {"87", id::kPresentWeather87},
    {"88", id::kPresentWeather88},         {"89", id::kPresentWeather89},
    {"90", id::kPresentWeather90},         {"91", id::kPresentWeather91},
    {"92", id::kPresentWeather92},         {"93", id::kPresentWeather93},
    {"94", id::kPresentWeather94},         {"95", id::kPresentWeather95},
    {"96", id::kPresentWeather96},         {"97", id::kPresentWeather97},
    {"98", id::kPresentWeather98},         {"99", id::kPresentWeather99},
    {"//", id::kPresentWeatherNotObserved}};

constexpr CodeRow kTable5239[] = {
    {"0", id::kIceTrend0}, {"1", id::kIceTrend1},          {"2", id::kIceTrend2},
    {"3", id::kIceTrend3}, {"4", id::kIceTrend4},          {"5", id::kIceTrend5},
    {"6", id::kIceTrend6}, {"7", id::kIceTrend7},          {"8", id::kIceTrend8},
    {"9", id::kIceTrend9}, {"/", id::kIceTrendNotReported}};

constexpr CodeTable kTables[] = {
    {.number = "0200", .symbols = {"a"}, .rows = kTable0200, .lines_begin_with_figures = true},
    {.number = "0439", .symbols = {"bi"}, .rows = kTable0439},
    {.number = "0509", .symbols = {"CH"}, .rows = kTable0509},
    {.number = "0513", .symbols = {"CL"}, .rows = kTable0513},
    {.number = "0515", .symbols = {"CM"}, .rows = kTable0515},
    {.number = "0639", .symbols = {"ci"}, .rows = kTable0639},
    {.number = "0700", .symbols = {"Ds"}, .rows = kTable0700},
    {.number = "0739", .symbols = {"Di"}, .rows = kTable0739},
    {.number = "0877", .symbols = {"dd"}, .rows = kTable0877, .ranges = kTensOfDegrees},
    {.number = "0877",
     .symbols = {"dw1dw1", "dw2dw2"},
     .rows = kTable0877OfSwell,
     .ranges = kTensOfDegrees},
    {.number = "1600", .symbols = {"h"}, .rows = kTable1600},
    {.number = "1751", .symbols = {"Is"}, .rows = kTable1751},
    {.number = "1819", .symbols = {"iR"}, .rows = kTable1819},
    {.number = "1855", .symbols = {"iw"}, .rows = kTable1855},
    {.number = "1860", .symbols = {"iX"}, .rows = kTable1860},
    {.number = "2700", .symbols = {"N"}, .rows = kTable2700},
    {.number = "2700", .symbols = {"Nh"}, .rows = kTable2700OfLowest},
    {.number = "3333", .symbols = {"Qc"}, .rows = kTable3333},
    {.number = "3551", .symbols = {"Rs"}, .rows = kTable3551},
    {.number = "3739", .symbols = {"Si"}, .rows = kTable3739},
    {.number = "3845", .symbols = {"SnT", "SnTd"}, .rows = kTable3845},
    {.number = "3850", .symbols = {"Ss"}, .rows = kTable3850},
    {.number = "3855", .symbols = {"Sw"}, .rows = kTable3855},
    {.number = "4377", .symbols = {"VV"}, .rows = kTable4377, .ranges = kKilometres},
    {.number = "4451", .symbols = {"Vs"}, .rows = kTable4451},
    {.number = "4561", .symbols = {"W1", "W2"}, .rows = kTable4561},
    {.number = "4677", .symbols = {"ww"}, .rows = kTable4677, .lines_begin_with_figures = true},
    {.number = "5239", .symbols = {"zi"}, .rows = kTable5239},
};

/// "Steady" of "    4    Steady".
std::string_view without_figures(std::string_view line, std::string_view figures) {
  const auto skip_blanks = [&line] {
    line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
  };
  const std::string_view whole = line;
  skip_blanks();
  if (!line.starts_with(figures)) return whole;
  line.remove_prefix(figures.size());
  skip_blanks();
  return line;
}

std::string number_of(const FigureRange& range, int figures) {
  double value = range.start + (figures - range.first) * range.step;
  for (int place = 0; place < range.decimals; ++place) value /= 10;
  return text::format_fixed(value, range.decimals);
}

const CodeRow* row_of(const CodeTable& table, std::string_view figures) {
  const auto at = std::find_if(table.rows.begin(), table.rows.end(),
                               [&](const CodeRow& row) { return row.figures == figures; });
  return at == table.rows.end() ? nullptr : &*at;
}

const FigureRange* range_of(const CodeTable& table, std::string_view figures) {
  if (figures.size() != 2 || !text::is_all_digits(figures)) return nullptr;
  const int number = text::leading_int(figures);
  for (const FigureRange& range : table.ranges) {
    if (number >= range.first && number <= range.last) return &range;
  }
  return nullptr;
}

}  // namespace

std::span<const CodeTable> code_tables() {
  return kTables;
}

const CodeTable* table_of(std::string_view symbol) {
  struct Row {
    std::string_view symbol;
    const CodeTable* table;
  };
  static const std::vector<Row> kBySymbol = [] {
    std::vector<Row> rows;
    for (const CodeTable& table : kTables)
      for (const std::string_view each : table.symbols)
        if (!each.empty()) rows.push_back({each, &table});
    std::stable_sort(rows.begin(), rows.end(),
                     [](const Row& a, const Row& b) { return a.symbol < b.symbol; });
    return rows;
  }();
  const auto at =
      std::lower_bound(kBySymbol.begin(), kBySymbol.end(), symbol,
                       [](const Row& row, std::string_view wanted) { return row.symbol < wanted; });
  return at != kBySymbol.end() && at->symbol == symbol ? at->table : nullptr;
}

const CodeTable* table_numbered(std::string_view number) {
  for (const CodeTable& table : kTables) {
    if (table.number == number) return &table;
  }
  return nullptr;
}

bool holds(const CodeTable& table, std::string_view figures) {
  return row_of(table, figures) != nullptr || range_of(table, figures) != nullptr;
}

std::optional<std::string> meaning(const CodeTable& table, std::string_view figures,
                                   text::Language language) {
  if (const CodeRow* const row = row_of(table, figures)) {
    const std::string_view line = text::bilingual(row->text, language);
    return std::string(table.lines_begin_with_figures ? without_figures(line, figures) : line);
  }
  if (const FigureRange* const range = range_of(table, figures)) {
    return text::fill(text::bilingual(range->text, language),
                      {number_of(*range, text::leading_int(figures))});
  }
  return std::nullopt;
}

}  // namespace codetables
