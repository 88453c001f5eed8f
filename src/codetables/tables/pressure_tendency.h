#pragma once
// The pressure tendency: characteristic a (code table 0200) and amount ppp. The screen shows the
// amount in hPa ("05.2"), the record holds three figures in tenths ("052").

#include <string>
#include <string_view>

namespace codetables {

/// What the pressure did over the preceding three hours: the lines of the first list, in order.
enum class TendencyKind { kRisen = 0, kSame = 1, kDescended = 2, kUnknown = 3 };

/// Line of the first list for the current figures; `amount` is in hPa. Its whole hPa count, so an
/// amount below 1.0 counts as "the same"; where it is missing (empty, "///") the characteristic
/// alone decides.
[[nodiscard]] TendencyKind tendency_kind(std::string_view a, std::string_view amount);

/// The characteristics that the second list offers for a line of the first, in order: "0123",
/// "045", "5678", or "/".
[[nodiscard]] std::string_view characteristics(TendencyKind kind);

/// Line of the second list that holds the characteristic, -1 when none does. One that is not
/// entered yet has no line, though the first list then stands on "the same": what nobody chose is
/// not stored.
[[nodiscard]] int characteristic_line(TendencyKind kind, std::string_view a);

/// Characteristic of the two lists' lines. `otherwise` is what comes back when no line of the
/// second list is chosen; an unknown tendency needs none and is "/".
[[nodiscard]] std::string characteristic(TendencyKind kind, int line, std::string_view otherwise);

/// The amount's number test, blanks already removed: empty, or a digit first, no point last, and
/// nothing but digits, "." and "-".
[[nodiscard]] bool is_tendency_amount(std::string_view amount);

/// "%4.1f" with blanks turned to "0" ("5.2" becomes "05.2"). Empty stays empty.
[[nodiscard]] std::string tendency_amount_text(std::string_view amount);

enum class TendencyCheck {
  kAccepted,
  kSteadyWithAmount,  ///< refused: a is 4 (steady) and the amount is not 0
  kTooLarge,          ///< refused: above 25.0 hPa
  kAsks,              ///< unusual: above 15.0 hPa, accepted on Yes
};

/// Amount in hPa against the characteristic, compared in tenths cut toward zero. An empty amount is
/// always accepted. A characteristic of "/" leaves the rule for a = 4 out.
[[nodiscard]] TendencyCheck check_tendency(std::string_view a, std::string_view amount);

/// "052" of the record as "05.2"; texts that are no figures ("///") stay.
[[nodiscard]] std::string tendency_shown(std::string_view ppp);
/// "05.2" as "052"; texts that are no amount ("///") stay.
[[nodiscard]] std::string tendency_stored(std::string_view amount);

}  // namespace codetables
