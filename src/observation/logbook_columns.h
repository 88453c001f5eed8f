#pragma once
// The columns of a logbook line as rows: what stands in each, who writes it, and whether it comes
// from what a ship report carries as well. The encoder and the reader both work from this one table.

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "observation/Struct_Weather.h"

namespace observation {

inline constexpr std::size_t kLogbookColumns = 172;

struct LogbookRecord;

/// What a line is made from.
struct LogbookSource {
  const Struct_Weather& record;
  const ShipFixedData& ship;
  const KeyObservationItems& items;
};

enum class Writer : std::uint8_t {
  kText,       ///< fixed text
  kLeft,       ///< left writer, spaces to "/"
  kLeftPlain,  ///< left writer, spaces kept
  kZero,       ///< zero writer, spaces to "/"
  kInteger,    ///< integer writer, spaces to "0"
  kSpecial,    ///< a rule of its own
};

/// What a column tells of its observation.
enum class ColumnTells : std::uint8_t {
  kReport,   ///< what its report tells, or the name of the report's file
  kMore,     ///< a field of the record that no report carries
  kShip,     ///< of the ship alone
  kNothing,  ///< it is the same in every line
};

struct LogbookColumn {
  std::uint8_t first;  ///< counted from 1
  std::uint8_t last;
  Writer writer;
  ColumnTells tells;
  std::string Struct_Weather::*field = nullptr;  ///< none for a fixed text and a rule of its own
  std::string_view text;
  void (*special)(std::string& line, const LogbookSource& source) = nullptr;
  /// The way back of a rule of its own: takes what the text tells, and leaves what it does not.
  void (*take)(LogbookRecord& into, std::string_view text) = nullptr;

  [[nodiscard]] constexpr std::size_t width() const { return last - first + 1U; }
};

/// In the order of the line, without a gap.
[[nodiscard]] std::span<const LogbookColumn> logbook_columns();
/// The two that may be missing, every column behind then standing one to the left.
inline constexpr std::uint8_t kTemperatureUnitColumn = 1;
inline constexpr std::uint8_t kSeaMethodColumn = 54;
/// The columns of the second swell: blank when there was none, which a report tells by solidi, as
/// it does of one that was not observed.
inline constexpr std::uint8_t kSecondSwellColumn = 99;

/// Appends what stands in the column: as many characters as it is wide, but for two that may write
/// nothing (see encode_logbook()).
void write_column(std::string& line, const LogbookColumn& column, const LogbookSource& source);

/// Takes what the text of the column tells, solidi and blanks as nothing. A rule of its own may ask
/// what was taken before: the ship's columns and the plain fields come first.
void take_column(LogbookRecord& into, const LogbookColumn& column, std::string_view text);

}  // namespace observation
