#pragma once
// A line of the logbook back to an observation: the way back of the table of columns.
//
// What a line does not keep, and why; everything else comes back as it was written:
//
//   fff                      a speed of 99 and more has no column: "99" alone
//   GGExact, gg              the layout has the hour of the observation only
//   LaMin, LoMin             the position stands in tenths of a degree: the first minute of each
//   LaDeg, LoDeg             without their minutes (the longitude without Qc too) there is none
//   SnTd                     computed: of a dew point that is not zero or above, "1"; of none, none
//   Ss                       the sign alone; the method is the ship's; of no temperature below zero,
//                            none
//   PwPw, HwHw or            one pair stands for both: whether wind waves are observed tells which,
//     PwaPwa, HwaHwa         and that is told only of an automatic station alone
//   dw2dw2, periods, heights nothing of them beside a first swell "00", which is read as no second
//                            one either; period and height are not kept beside a second swell "00"
//   VosClim2, VosClim5       whole units; leading zeros are written to these, 1, 3 and 4
//   LogText1 to LogText3     written nowhere
//   iR                       "4" always
//   "/", "//", ...           a value that was not observed, and one that was not entered: solidi
//                            both, read as not entered (but for Qc beside a longitude)
//   blanks inside a field    solidi
//   a text too long          blanks
//
// Of the ship: units and methods of temperature, humidity, sea temperature and (where it shows) dew
// point, loading, IMO number, call sign, whether there is an automatic station; of the items,
// whether such a station observes alone.

#include <optional>
#include <string_view>
#include <vector>

#include "observation/Struct_Weather.h"
#include "observation/logbook_columns.h"

namespace observation {

/// What one line tells.
struct LogbookRecord {
  LogbookRecord(const ShipFixedData& given_ship, const KeyObservationItems& given_items);

  Struct_Weather record;
  ShipFixedData ship;
  KeyObservationItems items;
  /// Columns that hold what no record gives there: fixed texts that are others, letters for
  /// figures, blanks of a text that was too long. What they stand for is not entered.
  std::vector<const LogbookColumn*> unread;
};

/// A line cut into its columns.
class LogbookLine {
 public:
  /// The line without its end, which must outlive this. Nothing when its length is none of the
  /// layout: 172, or one or two fewer where a temperature unit or a sea-temperature method was
  /// unknown (encode_logbook()).
  [[nodiscard]] static std::optional<LogbookLine> of(std::string_view line);

  /// What stands in the column; empty for one that was not written.
  [[nodiscard]] std::string_view text_of(const LogbookColumn& column) const;
  /// True when a column was not written and those behind it stand one further to the left.
  [[nodiscard]] bool lacks(std::uint8_t first) const;
  /// True when every fixed text of the layout stands in its place, so that the columns between them
  /// can be believed.
  [[nodiscard]] bool is_in_place() const;
  /// Hours since the beginning of 2000; nothing where no date and hour of the calendar from then on
  /// stand.
  [[nodiscard]] std::optional<int> hour() const;
  /// Without the blanks that pad it.
  [[nodiscard]] std::string_view call_sign() const;

 private:
  LogbookLine(std::string_view line, bool unit_lacks, bool method_lacks)
      : line_(line), unit_lacks_(unit_lacks), method_lacks_(method_lacks) {}

  std::string_view line_;
  bool unit_lacks_;
  bool method_lacks_;
};

/// The observation of a line; any bytes are survived. `ship` and `items` are those of the reader:
/// what the line tells replaces theirs, and where wind waves or those of an instrument may be meant
/// the items say which. Nothing when the length is wrong (LogbookLine::of()), and for a line that was
/// shifted or overwritten: where two fixed texts are wrong, what stands between is not to be believed.
[[nodiscard]] std::optional<LogbookRecord> record_of_line(std::string_view line,
                                                          const ShipFixedData& ship,
                                                          const KeyObservationItems& items);

}  // namespace observation
