#pragma once
// One editor for every field of the form: what it accepts, how it is filled with zeros, and which
// message refuses it. The editor only tests; storing, derived values and the rules that relate
// fields are the form's (observation_form.h).

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "elements/form/fields.h"
#include "text/id.h"

namespace elements {

enum class Accepts : std::uint8_t {
  kFigures,  ///< whole figures, at most as many as the row's width, in the range
  kNumber,   ///< a decimal number in the range, sign and one point allowed
};

struct EditorRow {
  Field field;
  Accepts accepts;
  double low;
  double high;
  std::string_view also;  ///< further accepted texts, separated by a blank: "99 //"
  std::size_t width;      ///< figures are filled with zeros to this width; 0 leaves them
  int decimals;           ///< of a number, as it is rewritten
  text::Id message;       ///< text id of the refusal; 0 shows the check text
  text::Id check_text;    ///< text id, 0 for none
  double warn_from = 0;   ///< a value from here up (above, for a number) asks …
  text::Id warning = {};  ///< … this question; 0 never asks
  /// The refusal shows the check text below the message: the message's range is wider than what is
  /// accepted.
  bool shows_check = false;
};

/// All rows in the order of Field.
[[nodiscard]] std::span<const EditorRow> editor_rows();
[[nodiscard]] const EditorRow& editor_of(Field field);

/// Bounds that depend on the day: they replace the row's and are named in its message.
struct Bounds {
  double low = 0;
  double high = 0;
};

enum class Verdict : std::uint8_t { kAccepted, kAsks, kRefused };

struct Checked {
  Verdict verdict = Verdict::kRefused;
  std::string text;  ///< the value as the field is to show it, when not refused
};

/// Tests a trimmed, non-empty text; a blank inside it refuses it. Any bytes are survived.
[[nodiscard]] Checked check_field(const EditorRow& row, std::string_view text,
                                  std::optional<Bounds> bounds = {});

}  // namespace elements
