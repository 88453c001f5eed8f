#pragma once
// The rules of the barometer correction card: which values a card of each type has and which of
// them are accepted. Both the card's own screen and the ship fixed data screen check with these.

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "platform/ports.h"
#include "ship/data/ShipFixedData.h"
#include "text/id.h"

/// Bytes of code page 932 that the port of the check has in the file.
inline constexpr std::size_t kCheckPortWidth = 24;

/// The values of a card, for messages and for the focus after a refusal.
enum class CardField {
  kCheckDate,
  kCheckPort,
  kType,
  kTotalCorrection,
  kInstrumentalCorrection,
  kLoadingState,
  kHeightFullLoad,
  kTotalCorrectionFullLoad,
  kHeightBallast,
  kTotalCorrectionBallast,
};

/// What is wrong with a field: the text id of the message, its argument where it has one.
struct CardFault {
  CardField field = CardField::kCheckDate;
  text::Id message;
  std::string argument;
};

/// Checks one field; empty counts as missing, and so does the
/// placeholder of a date. A field that the card's type does not use has no
/// fault. The port must be one that the file can keep.
///
/// Heights and total corrections in ballast must not be less than those at full load;
/// `compare_states` off leaves that comparison out, for a field that is left while its partner has
/// not been filled in yet.
[[nodiscard]] std::optional<CardFault> card_field_fault(const BarometerCard& card, CardField field,
                                                        const platform::DateTime& today,
                                                        const platform::CodePage& code_page,
                                                        bool compare_states = true);

/// The first fault in the given order of fields.
[[nodiscard]] std::optional<CardFault> first_card_fault(const BarometerCard& card,
                                                        const platform::DateTime& today,
                                                        const platform::CodePage& code_page,
                                                        std::span<const CardField> order);

/// The field that `field` is compared with, or nothing.
[[nodiscard]] std::optional<CardField> compared_field(CardField field);

/// Text of a height or correction field, null for the others.
[[nodiscard]] std::string BarometerCard::*card_text(CardField field);

/// What a height or correction is when nothing was entered: "0" and "+0.0".
[[nodiscard]] std::string_view card_default(CardField field);

/// Changes the card's type and puts the values that the new type has no use for back to their
/// defaults. The same type changes nothing.
void change_card_type(BarometerCard& card, CardType type);
