#pragma once
// The test that a field's text has to pass when the field is left. It only tests; storing, derived
// values and the rules that relate fields are the form's (observation_form.h).

#include <optional>
#include <string>
#include <string_view>

#include "elements/form/fields.h"

namespace elements {

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
[[nodiscard]] Checked check_field(const Editor& editor, std::string_view text,
                                  std::optional<Bounds> bounds = {});

}  // namespace elements
