#include "elements/form/fields.h"

#include <algorithm>
#include <array>

namespace elements {
namespace {

constexpr std::array<std::string_view, kFields> kNames = {
    "Year",
    "Month",
    "YY",
    "GG",
    "GGExact",
    "gg",
    "LaDeg",
    "LaMin",
    "LoDeg",
    "LoMin",
    "Ds",
    "Vs",
    "reading",
    "PPPP",
    "a",
    "ppp",
    "dry_bulb",
    "wet_bulb",
    "air_temperature",
    "dew_point",
    "relative_humidity",
    "dd",
    "ff",
    "apparent_direction",
    "apparent_speed",
    "heading",
    "course",
    "ship_speed",
    "TwTwTw",
    "PwPw",
    "HwHw",
    "dw1dw1",
    "Pw1Pw1",
    "Hw1Hw1",
    "dw2dw2",
    "Pw2Pw2",
    "Hw2Hw2",
    "PwaPwa",
    "HwaHwa",
    "VV",
    "ww",
    "W1",
    "W2",
    "N",
    "Nh",
    "CH",
    "CM",
    "CL",
    "h",
    "Is",
    "EsEs",
    "Rs",
    "ci",
    "Si",
    "bi",
    "Di",
    "zi",
};

struct ItemRow {
  Field first;
  Field last;
  ObservationItem item;
};

constexpr ItemRow kItems[] = {
    {Field::kh, Field::kh, ObservationItem::h},
    {Field::kVV, Field::kVV, ObservationItem::VV},
    {Field::kN, Field::kN, ObservationItem::N},
    {Field::kNh, Field::kNh, ObservationItem::Nh},
    {Field::kCH, Field::kCL, ObservationItem::CLCMCH},
    {Field::kww, Field::kww, ObservationItem::ww},
    {Field::kW1, Field::kW2, ObservationItem::W1W2},
    {Field::kPwPw, Field::kHwHw, ObservationItem::PwHw},
    {Field::kdw1dw1, Field::kHw1Hw1, ObservationItem::dw1Pw1Hw1},
    {Field::kdw2dw2, Field::kHw2Hw2, ObservationItem::dw2Pw2Hw2},
    {Field::kIs, Field::kRs, ObservationItem::IsEsEsRs},
    {Field::kci, Field::kzi, ObservationItem::ciSibiDizi},
};

}  // namespace

std::string_view name_of(Field field) {
  return kNames[static_cast<std::size_t>(field)];
}

std::optional<Field> field_named(std::string_view name) {
  const auto* const at = std::find(kNames.begin(), kNames.end(), name);
  if (at == kNames.end()) return std::nullopt;
  return static_cast<Field>(at - kNames.begin());
}

std::optional<ObservationItem> item_of(Field field) {
  for (const ItemRow& row : kItems) {
    if (field >= row.first && field <= row.last) return row.item;
  }
  return std::nullopt;
}

bool needs_wave_recorder(Field field) {
  return field == Field::kPwaPwa || field == Field::kHwaHwa;
}

}  // namespace elements
