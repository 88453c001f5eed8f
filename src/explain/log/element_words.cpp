#include "explain/log/element_words.h"

#include <algorithm>

#include "codetables/tables/code_tables.h"
#include "elements/form/field_codes.h"
#include "elements/form/field_words.h"
#include "elements/form/fields.h"
#include "text/ids.h"
#include "text/strings.h"

namespace explain {
namespace {

namespace id = text::id;
using W = Struct_Weather;
using Member = std::string W::*;

struct Name {
  Member member;
  text::Id name;
  text::Id part = {};  ///< which part of it
};
constexpr Name kNames[] = {
    {&W::CallSign, id::kPlainNameCallSign},
    {&W::ShipFixed, id::kFixImoNumber},
    {&W::YY, id::kPlainNameDay},
    {&W::GG, id::kPlainNameHour},
    {&W::GGExact, id::kPlainNameActual},
    {&W::gg, id::kPlainNameActual},
    {&W::Qc, id::kPlainHemisphere},
    {&W::LaDeg, id::kPlainNameLatitude},
    {&W::LaMin, id::kPlainNameLatitude},
    {&W::LoDeg, id::kPlainNameLongitude},
    {&W::LoMin, id::kPlainNameLongitude},
    {&W::iw, id::kPlainNameUnit},
    {&W::iX, id::kPlainNameWeatherData},
    {&W::h, id::kPlainNameCloudBase},
    {&W::VV, id::kPlainNameVisibility},
    {&W::N, id::kPlainNameCloud},
    {&W::dd, id::kPlainNameDirection},
    {&W::ff, id::kPlainNameSpeed},
    {&W::SnT, id::kPlainNameAir},
    {&W::TTT, id::kPlainNameAir},
    {&W::SnTd, id::kPlainNameDew},
    {&W::TdTdTd, id::kPlainNameDew},
    {&W::Sw, id::kPlainNameWetBulb},
    {&W::TbTbTb, id::kPlainNameWetBulb},
    {&W::LogExtra, id::kPlainNameHumidity},
    {&W::PPPP, id::kPlainNamePressure},
    {&W::a, id::kPlainNameTendency},
    {&W::ppp, id::kPlainNameChange},
    {&W::ww, id::kPlainNameWeather},
    {&W::W1, id::kPlainNamePast1},
    {&W::W2, id::kPlainNamePast2},
    {&W::Nh, id::kPlainNameLowest},
    {&W::CL, id::kPlainNameCL},
    {&W::CM, id::kPlainNameCM},
    {&W::CH, id::kPlainNameCH},
    {&W::Ds, id::kPlainNameCourse},
    {&W::Vs, id::kPlainNameShipSpeed},
    {&W::Ss, id::kPlainNameSea},
    {&W::TwTwTw, id::kPlainNameSea},
    {&W::PwaPwa, id::kPlainNameInstrumentWaves, id::kPlainNamePeriod},
    {&W::HwaHwa, id::kPlainNameInstrumentWaves, id::kPlainNameHeight},
    {&W::PwPw, id::kPlainNameWindWaves, id::kPlainNamePeriod},
    {&W::HwHw, id::kPlainNameWindWaves, id::kPlainNameHeight},
    {&W::dw1dw1, id::kPlainNameDirectionOf1},
    {&W::Pw1Pw1, id::kPlainNameSwell1, id::kPlainNamePeriod},
    {&W::Hw1Hw1, id::kPlainNameSwell1, id::kPlainNameHeight},
    {&W::dw2dw2, id::kPlainNameDirectionOf2},
    {&W::Pw2Pw2, id::kPlainNameSwell2, id::kPlainNamePeriod},
    {&W::Hw2Hw2, id::kPlainNameSwell2, id::kPlainNameHeight},
    {&W::Is, id::kPlainNameIcingCause},
    {&W::EsEs, id::kPlainNameIcingThickness},
    {&W::Rs, id::kPlainNameIcingRate},
    {&W::ci, id::kPlainNameIce1},
    {&W::Si, id::kPlainNameIce2},
    {&W::bi, id::kPlainNameIce3},
    {&W::Di, id::kPlainNameIce4},
    {&W::zi, id::kPlainNameIce5},
    {&W::VosClim1, id::kLogApparentDirection},
    {&W::VosClim2, id::kLogApparentSpeed},
    {&W::VosClim3, id::kLogHeading},
    {&W::VosClim4, id::kLogShipSpeed},
    {&W::VosClim5, id::kLogShipCourse},
};

// What is no element of an observation has no symbol that anybody knows.
bool has_symbol(Member member) {
  return member != &W::CallSign && member != &W::ShipFixed && member != &W::LogExtra &&
         !symbol_of(member).starts_with("VosClim");
}

// "past weather (W1)": some names bear it already.
bool bears(std::string_view name, std::string_view symbol) {
  std::string end(symbol);
  return name.ends_with(end + ")") || name.ends_with(end.append("\uFF09"));
}

const elements::FieldRow* row_of(Member member) {
  const auto rows = elements::field_rows();
  const auto at = std::ranges::find(rows, member, &elements::FieldRow::member);
  return at == rows.end() ? nullptr : &*at;
}

}  // namespace

std::string named(Member member, text::Language language) {
  const std::string_view symbol = symbol_of(member);
  const auto* const row = std::ranges::find(kNames, member, &Name::member);
  if (row == std::end(kNames)) return std::string(symbol);
  std::string name(text::bilingual(row->name, language));
  if (row->part)
    name = text::fill(text::bilingual(id::kLogPartOfElement, language),
                      {name, text::bilingual(row->part, language)});
  if (!has_symbol(member) || bears(name, symbol)) return name;
  return text::fill(text::bilingual(id::kLogElement, language), {name, symbol});
}

std::string value_of(Member member, const W& record, text::Language language) {
  const std::string& figures = record.*member;
  const elements::FieldRow* const row = row_of(member);
  // A speed is of the unit that iw tells.
  if (row == nullptr || row->codec == elements::Codec::kSpeed ||
      codetables::table_of(symbol_of(member)) != nullptr)
    return figures;
  return elements::words_of(row->field, elements::shown_from_record(row->field, record), language);
}

LimitWords limit_words(const ElementFinding& found, const W& record, text::Language language) {
  const elements::FieldRow& row = *found.field;
  // What stands in the logbook only is judged as a field that no record holds.
  const std::string shown = row.member == found.member
                                ? elements::shown_from_record(row.field, record)
                                : std::string(found.figures);
  return {elements::words_of(row.field, shown, language),
          elements::accepted_texts(row.field, {row.editor.low, row.editor.high}, language)};
}

}  // namespace explain
