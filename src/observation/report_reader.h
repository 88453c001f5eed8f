#pragma once
// A ship report back to a record. Nothing is dropped in silence: every word of the text either
// fills fields or is named in the result.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "observation/Struct_Weather.h"
#include "observation/report_groups.h"
#include "text/id.h"

namespace observation {

enum class Unplaced : std::uint8_t {
  kOutsideReport,  ///< before "BBXX" or behind the end of the report
  kCallSign,       ///< no call sign, or a word too many beside it
  kNotAGroup,      ///< not five figures and solidi: a typing mistake, a word of plain language
  kOutOfRange,     ///< five figures that cannot be the group expected at this place
  kNoField,        ///< a group that the record has no field for: 3P0P0P0P0, 6RRRtR, 29UUU, 70HHH
  kRepeated,       ///< a group that was already there
  kOtherSection,   ///< section 3 and later sections
  kIcePlainText,   ///< ice in plain language, or not five figures behind ICE
  // What read_report() places and who corrects the report does not.
  kOtherCallSign,  ///< not the ship's that corrects it
  kWetBulb,        ///< the wet-bulb group, on a ship that does not send it
};
inline constexpr int kUnplacedReasons = 10;

/// The words for it ("not a group of five figures").
[[nodiscard]] text::Id words_of(Unplaced why);

struct UnplacedText {
  std::string text;
  Unplaced why = Unplaced::kNotAGroup;
  bool operator==(const UnplacedText&) const = default;
};

/// A word of the report and what became of it. The call sign has neither group nor reason.
struct ReadWord {
  std::string text;            ///< ICE and its figures are one word; so is ice in plain language
  std::optional<Group> group;  ///< whose fields it filled; with `why` the one expected at its place
  std::optional<Unplaced> why;  ///< why it filled none
  bool in_section_2 = false;    ///< it stands behind the beginning of section 2
  bool operator==(const ReadWord&) const = default;
};

struct ReadReport {
  // NOLINTNEXTLINE(modernize-pass-by-value): one copy of a large record, not a copy and a move
  explicit ReadReport(const Struct_Weather& start) : record(start) {}

  Struct_Weather record;
  std::vector<UnplacedText> unplaced;  ///< in the order of the text
  bool has_wet_bulb = false;           ///< the report holds the wet-bulb group
};

/// The first report of the text. Fields that the report carries replace those of `start`, the call
/// sign even when the report has none, the indicators iR, iX and iw too; all other fields stay.
/// Figures are taken as they stand, solidi too; tenths of a degree become the first minute that
/// gives them ("7" is 42'), a solidus there an empty field. Nothing when the text holds no report.
/// Encoding the record again gives the groups that the report had, but for groups of nothing but
/// solidi, which the encoder may leave out. `words`, when given, takes every word of the text but
/// "BBXX" and the end mark, in order; what stands around the report is one word before and one behind.
[[nodiscard]] std::optional<ReadReport> read_report(std::string_view text,
                                                    const Struct_Weather& start,
                                                    std::vector<ReadWord>* words = nullptr);

/// Quadrant and position of a report, or nothing when the text is no report or a figure of its
/// groups 99LaLaLa and QcLoLoLoLo is missing.
[[nodiscard]] std::optional<TenthsPosition> read_report_position(std::string_view text);

}  // namespace observation
