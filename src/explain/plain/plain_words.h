#pragma once
// A ship report read back as sentences, as a colleague would read it to the officer: a line for each
// group, and one wherever a group is missing that a ship usually sends.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "observation/report_encoder.h"
#include "text/texts.h"

namespace explain {

enum class Told : std::uint8_t {
  kSaid,
  kNotReported,    ///< solidi throughout, or a group that is not there
  kUnusual,        ///< said, and a value of it is one that is rarely right
  kNoPlace,        ///< said or named; the form has no field for it
  kNotUnderstood,  ///< something of it is no figure of its table, or no number
};

struct PlainLine {
  std::string
      group;  ///< as it stands, its line breaks as blanks; empty for groups that are missing
  std::string sentence;
  Told told = Told::kSaid;
  observation::GroupSet of;  ///< the groups of the form that the line speaks of
  bool operator==(const PlainLine&) const = default;
};

/// Year and month of a report, which it does not hold itself; zeros where nobody knows them.
struct YearMonth {
  int year = 0;
  int month = 0;
};

/// The first report of the text, in its order: each word is in exactly one line. Nothing when the
/// text holds no report. Any bytes are survived; nothing is said that the report does not say.
[[nodiscard]] std::vector<PlainLine> plain_words(std::string_view report, YearMonth when,
                                                 text::Language language);

/// Year and month of a report's file name or path; zeros for another name.
[[nodiscard]] YearMonth year_month_of(std::string_view file_name);

/// The lines as one text, the groups in a column of their own, each line ended by "\n".
[[nodiscard]] std::string aligned(const std::vector<PlainLine>& lines);

}  // namespace explain
