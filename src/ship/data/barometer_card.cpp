#include "ship/data/barometer_card.h"

#include <algorithm>
#include <array>

#include "ship/data/barometer_date.h"
#include "ship/data/ship_text.h"
#include "text/ids.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace {

enum class Form { kText, kHeight, kCorrection };

constexpr CardField kNone = CardField::kType;  // in the table below: compared with nothing

// A value that is typed: what is accepted and the messages when it is not.
struct Row {
  CardField field;
  Form form;
  std::string BarometerCard::*value;
  double lowest;
  double highest;
  CardType only_for;    // kNotChosen: for every card
  CardField not_above;  // the value in ballast that bounds this one at full load, or kNone
  CardField not_below;  // the other way round
  text::Id missing;
  text::Id malformed;
  text::Id out_of_range;
};

namespace id = text::id;
constexpr CardType kOne = CardType::kHeightAndTemperature;
constexpr CardType kTwo = CardType::kTotalCorrection;

// In ballast the ship floats higher, and the barometer with it: neither its height above the water
// nor the correction can be less than at full load.
constexpr Row kRows[] = {
    {CardField::kCheckPort, Form::kText, &BarometerCard::check_port, 0, 0, CardType::kNotChosen,
     kNone, kNone, id::kCheckPortMissing, id::kCheckPortCharacter, id::kCheckPortTooLong},
    {CardField::kTotalCorrection, Form::kCorrection, &BarometerCard::total_correction, -50, 80,
     kTwo, kNone, kNone, id::kTotalCorrectionMissing, id::kTotalCorrectionNotNumeric,
     id::kTotalCorrectionRange},
    {CardField::kInstrumentalCorrection, Form::kCorrection, &BarometerCard::instrumental_correction,
     -50, 50, kOne, kNone, kNone, id::kInstrumentalMissing, id::kInstrumentalNotNumeric,
     id::kInstrumentalRange},
    {CardField::kHeightFullLoad, Form::kHeight, &BarometerCard::height_full_load, 0, 200, kOne,
     CardField::kHeightBallast, kNone, id::kHeightFullLoadMissing, id::kHeightNotInteger,
     id::kHeightRange},
    {CardField::kTotalCorrectionFullLoad, Form::kCorrection,
     &BarometerCard::total_correction_full_load, -50, 80, kOne, CardField::kTotalCorrectionBallast,
     kNone, id::kTotalFullLoadMissing, id::kTotalCorrectionNotNumeric, id::kTotalFullLoadRange},
    {CardField::kHeightBallast, Form::kHeight, &BarometerCard::height_ballast, 0, 200, kOne, kNone,
     CardField::kHeightFullLoad, id::kHeightBallastMissing, id::kHeightNotInteger,
     id::kHeightRange},
    {CardField::kTotalCorrectionBallast, Form::kCorrection,
     &BarometerCard::total_correction_ballast, -50, 80, kOne, kNone,
     CardField::kTotalCorrectionFullLoad, id::kTotalBallastMissing, id::kTotalCorrectionNotNumeric,
     id::kTotalBallastRange},
};

const Row* row_of(CardField field) {
  const auto* const at = std::find_if(std::begin(kRows), std::end(kRows),
                                      [&](const Row& r) { return r.field == field; });
  return at == std::end(kRows) ? nullptr : at;
}

std::size_t decimals(std::string_view value) {
  const auto point = value.find('.');
  return point == std::string_view::npos ? 0 : value.size() - point - 1;
}

// Too many decimals are another matter.
bool is_well_formed(const std::string& value, Form form) {
  return form == Form::kHeight ? text::is_all_digits(value)
                               : text::is_number(value, text::kCorrection);
}

// A partner that is missing or no number bounds nothing: it gets a message of its own.
bool in_range(const BarometerCard& card, const Row& row, bool compare_states) {
  const double value = text::leading_number(card.*row.value);
  if (value < row.lowest || value > row.highest) return false;
  const CardField partner = row.not_above != kNone ? row.not_above : row.not_below;
  if (!compare_states || partner == kNone) return true;
  const std::string& bound = card.*row_of(partner)->value;
  if (!is_well_formed(bound, row.form)) return true;
  return row.not_above != kNone ? value <= text::leading_number(bound)
                                : value >= text::leading_number(bound);
}

// A text must come back from the file as it was entered.
std::optional<CardFault> text_fault(const std::string& value, const Row& row,
                                    const platform::CodePage& code_page) {
  if (value.empty()) return CardFault{row.field, row.missing, {}};
  if (auto unknown = first_unknown(value, code_page))
    return CardFault{row.field, row.malformed, *std::move(unknown)};
  if (ship_bytes(value, code_page) > kCheckPortWidth)
    return CardFault{row.field, row.out_of_range, {}};
  return std::nullopt;
}

// The message, none when the number is accepted.
text::Id value_fault(const BarometerCard& card, const Row& row, bool compare_states) {
  const std::string& value = card.*row.value;
  if (value.empty()) return row.missing;
  if (!is_well_formed(value, row.form)) return row.malformed;
  if (!in_range(card, row, compare_states)) return row.out_of_range;
  return decimals(value) > 1 ? id::kOneDecimalOnly : text::Id();
}

}  // namespace

std::optional<CardFault> card_field_fault(const BarometerCard& card, CardField field,
                                          const platform::DateTime& today,
                                          const platform::CodePage& code_page,
                                          bool compare_states) {
  if (field == CardField::kCheckDate) {
    if (is_check_date_missing(card.check_date)) return CardFault{field, id::kCheckDateMissing, {}};
    if (is_check_date(card.check_date, today)) return std::nullopt;
    return CardFault{field, id::kCheckDateRange, slashed_date(today)};
  }
  if (field == CardField::kType) {
    if (card.type != CardType::kNotChosen) return std::nullopt;
    return CardFault{field, id::kCardTypeMissing, {}};
  }
  if (field == CardField::kLoadingState) {
    if (card.type != kOne || card.loading_state != LoadingState::kNotChosen) return std::nullopt;
    return CardFault{field, id::kLoadingStateMissing, {}};
  }
  const Row& row = *row_of(field);
  if (row.only_for != CardType::kNotChosen && row.only_for != card.type) return std::nullopt;
  if (row.form == Form::kText) return text_fault(card.*row.value, row, code_page);
  const text::Id message = value_fault(card, row, compare_states);
  if (!message) return std::nullopt;
  return CardFault{field, message, {}};
}

std::optional<CardFault> first_card_fault(const BarometerCard& card,
                                          const platform::DateTime& today,
                                          const platform::CodePage& code_page,
                                          std::span<const CardField> order) {
  for (const CardField field : order) {
    if (auto fault = card_field_fault(card, field, today, code_page)) return fault;
  }
  return std::nullopt;
}

std::optional<CardField> compared_field(CardField field) {
  const Row* const row = row_of(field);
  if (row == nullptr) return std::nullopt;
  if (row->not_above != kNone) return row->not_above;
  if (row->not_below != kNone) return row->not_below;
  return std::nullopt;
}

std::string BarometerCard::*card_text(CardField field) {
  const Row* const row = row_of(field);
  return row == nullptr ? nullptr : row->value;
}

std::string_view card_default(CardField field) {
  const Row* const row = row_of(field);
  if (row == nullptr || row->form == Form::kText) return {};
  return row->form == Form::kHeight ? "0" : "+0.0";
}

void change_card_type(BarometerCard& card, CardType type) {
  if (card.type == type) return;
  card.type = type;
  for (const Row& row : kRows) {
    if (row.only_for != CardType::kNotChosen && row.only_for != type)
      card.*row.value = card_default(row.field);
  }
  if (type != kOne) card.loading_state = LoadingState::kNotChosen;
}
