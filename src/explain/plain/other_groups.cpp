#include "explain/plain/other_groups.h"

#include <algorithm>
#include <iterator>

#include "codetables/tables/pressure_figures.h"
#include "text/ids.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace explain {
namespace {

namespace id = text::id;

std::optional<int> number(std::string_view figures) {
  return text::whole_number(figures, 0, 99999);
}

// The element is not reported, or its figures are no number of it; false when they may be one.
bool says_nothing(Sentence& s, text::Id name, std::string_view figures) {
  if (is_not_reported(figures)) {
    s.not_reported(name);
    return true;
  }
  if (text::is_all_digits(figures)) return false;
  s.unreadable(name, figures);
  return true;
}

// ---- Amounts of precipitation

// RRR (code table 3590): whole millimetres, and from 990 on traces and tenths.
std::string amount_words(const Sentence& s, std::string_view name, int figures) {
  constexpr int kMost = 989;
  constexpr int kTrace = 990;
  if (figures == 0) return s.filled(id::kPlainNone, {name});
  if (figures < kMost) return s.filled(id::kPlainMillimetres, {name, text::format_int(figures)});
  if (figures == kMost)
    return s.filled(id::kPlainMillimetresOrMore, {name, text::format_int(figures)});
  if (figures == kTrace) return s.filled(id::kPlainTrace, {name});
  return s.filled(id::kPlainMillimetres, {name, text::format_fixed((figures - kTrace) / 10.0, 1)});
}

// 6RRRtR
void say_precipitation(Sentence& s, std::string_view figures) {
  // tR (code table 4019): hours up to the observation; 0 and a solidus tell none.
  constexpr int kHours[] = {0, 6, 12, 18, 24, 1, 2, 3, 9, 15};
  const std::string_view amount = figures.substr(1, 3);
  if (says_nothing(s, id::kPlainNameRain, amount)) return;
  const std::string words = amount_words(s, s.get(id::kPlainNameRain), *number(amount));
  const auto time = number(figures.substr(4, 1));
  const int hours = time ? kHours[*time] : 0;
  if (hours == 0) {
    s.say(words);
    s.not_reported(id::kPlainNameRainTime);
  } else if (hours == 1) {
    s.say(id::kPlainPastHour, {words});
  } else {
    s.say(id::kPlainPastHours, {words, text::format_int(hours)});
  }
}

// 7R24R24R24R24: tenths of a millimetre.
void say_precipitation_24(Sentence& s, std::string_view figures) {
  constexpr int kMost = 9998;
  constexpr int kTrace = 9999;
  const std::string_view amount = figures.substr(1);
  if (says_nothing(s, id::kPlainRain24, amount)) return;
  const int value = *number(amount);
  const std::string_view name = s.get(id::kPlainRain24);
  const std::string tenths = text::format_fixed(value / 10.0, 1);
  if (value == kTrace)
    s.say(id::kPlainTrace, {name});
  else if (value == kMost)
    s.say(id::kPlainMillimetresOrMore, {name, tenths});
  else
    s.say(id::kPlainMillimetres, {name, tenths});
}

// ---- Sections 1 and 2

// 29UUU
void say_humidity(Sentence& s, std::string_view figures) {
  constexpr int kSaturated = 100;
  const std::string_view percent = figures.substr(2);
  if (says_nothing(s, id::kPlainNameHumidity, percent)) return;
  if (const int value = *number(percent); value <= kSaturated)
    s.say(id::kPlainHumidity, {text::format_int(value)});
  else
    s.impossible(id::kPlainNameHumidity, percent);
}

// 70HwaHwaHwa: tenths of a metre.
void say_fine_waves(Sentence& s, std::string_view figures) {
  const std::string_view height = figures.substr(2);
  if (says_nothing(s, id::kPlainFineWaves, height)) return;
  s.say(id::kPlainMetres,
        {s.get(id::kPlainNameInstrumentWaves), text::format_fixed(*number(height) / 10.0, 1)});
}

// ---- Section 3

// 1snTxTxTx and 2snTnTnTn
void say_extreme(Sentence& s, text::Id name, std::string_view figures) {
  const std::string_view tenths = figures.substr(2);
  if (says_nothing(s, name, tenths)) return;
  const char sign = figures[1];
  if (sign != '0' && sign != '1') {
    s.unreadable(name, figures.substr(1));
    return;
  }
  const double value = *number(tenths) / 10.0;
  s.say(id::kPlainDegrees, {s.get(name), text::format_fixed(sign == '1' ? -value : value, 1)});
}

// 4E'sss; 997 and above are no centimetres (code table 3889).
void say_snow(Sentence& s, std::string_view figures) {
  constexpr int kDeepest = 996;
  if (is_not_reported(figures.substr(1))) {
    s.not_reported(id::kPlainGround);
    return;
  }
  const std::string_view depth = figures.substr(2);
  const auto value = number(depth);
  if (value && *value > 0 && *value <= kDeepest)
    s.say(id::kPlainCentimetres, {s.get(id::kPlainSnow), text::format_int(*value)});
  else
    s.say(id::kPlainGround);
}

// 58p24p24p24 for a rise and 59p24p24p24 for a fall; the others of this figure are named together.
void say_change_or_sunshine(Sentence& s, std::string_view figures) {
  const char kind = figures[1];
  const auto change = number(figures.substr(2));
  if ((kind != '8' && kind != '9') || !change) {
    s.say(id::kPlainSunshine);
    return;
  }
  const double value = *change / 10.0;
  std::string amount = text::format_fixed(kind == '9' ? -value : value, 1);
  if (kind == '8') amount.insert(0, 1, '+');
  s.say(id::kPlainHectopascals, {s.get(id::kPlainChange24), amount});
}

// Height of a base (code table 1677): steps of 30 m, of 300 m from 56 and of 1500 m from 81; the
// classes of table 1600 from 90. Nothing for the figures that are not used.
std::string base_words(const Sentence& s, std::string_view figures) {
  const auto value = number(figures);
  if (!value) return std::string(s.get(id::kPlainBaseUnknown));
  const auto metres = [&s](int height) {
    return s.filled(id::kPlainMetresAlone, {text::format_int(height)});
  };
  constexpr int kLowStep = 30;
  constexpr int kStep = 300;
  constexpr int kHighStep = 1500;
  constexpr int kHighest = 21000;
  if (*value == 0) return s.filled(id::kPlainUnder, {metres(kLowStep)});
  if (*value <= 50) return metres(*value * kLowStep);
  if (*value < 56) return {};
  if (*value <= 80) return metres((*value - 50) * kStep);
  if (*value <= 88) return metres(9000 + (*value - 80) * kHighStep);
  if (*value == 89) return s.filled(id::kPlainOverMetresAlone, {text::format_int(kHighest)});
  return s.meaning_of("h", figures.substr(1)).value_or(std::string());
}

// 8NsChshs
void say_layer(Sentence& s, std::string_view figures) {
  constexpr std::string_view kTypes[] = {"Ci", "Cc", "Cs", "Ac", "As",
                                         "Ns", "Sc", "St", "Cu", "Cb"};
  const std::string_view layer = figures.substr(1);
  if (is_not_reported(layer)) {
    s.not_reported(id::kPlainNameLayer);
    return;
  }
  const auto type = number(layer.substr(1, 1));
  const std::string base = base_words(s, layer.substr(2));
  if (base.empty()) {
    s.unreadable(id::kPlainNameLayer, layer);
    return;
  }
  const std::string_view amount = layer.substr(0, 1);
  s.say(id::kPlainLayer,
        {amount == "/" ? std::string(s.get(id::kPlainBaseUnknown)) : *s.meaning_of("N", amount),
         type ? kTypes[*type] : s.get(id::kPlainCloudUnseen), base});
}

void say_speed(Sentence& s, const Heard& heard, text::Id name, std::string_view figures) {
  if (says_nothing(s, name, figures)) return;
  constexpr std::string_view kInNext = "99";
  s.say(id::kPlainColon,
        {s.get(name), figures == kInNext ? std::string(s.get(id::kPlainSpeedNext))
                                         : speed_words(s, heard, *number(figures))});
}

void say_direction(Sentence& s, text::Id name, std::string_view figures) {
  if (says_nothing(s, name, figures)) return;
  const auto tens = text::whole_number(figures, 1, 36);
  if (tens)
    s.say(id::kPlainColon, {s.get(name), s.compass(*tens * 10)});
  else
    s.code(name, "dd", figures);
}

// 907tt: in steps of six minutes up to six hours; longer ones have figures of their own.
void say_period(Sentence& s, std::string_view figures) {
  constexpr int kLongest = 60;
  constexpr int kStep = 6;
  const auto value = text::whole_number(figures, 1, kLongest);
  if (value)
    s.say(id::kPlainPeriodOf, {text::format_int(*value * kStep)});
  else
    s.say(s.get(id::kPlainNamePeriodOf));
}

/// An amount or a diameter of two figures, 930 to 937.
struct Amount {
  int kind;
  text::Id name;
  text::Id unit;  ///< of one in the figures
  int step;       ///< that unit in tenths of a millimetre
};

constexpr int kMillimetre = 10;
constexpr int kCentimetre = 100;

// RR (code table 3570) in millimetres and ss (3870) in centimetres: single units up to 55, tens of
// them up to 90, then tenths of one.
constexpr Amount kAmounts[] = {{30, id::kPlainNameRain, id::kPlainMillimetresAlone, kMillimetre},
                               {31, id::kPlainFreshSnow, id::kPlainCentimetresAlone, kCentimetre},
                               {32, id::kPlainHail, id::kPlainMillimetresAlone, kMillimetre},
                               {33, id::kPlainSolidWater, id::kPlainMillimetresAlone, kMillimetre},
                               {34, id::kPlainGlaze, id::kPlainMillimetresAlone, kMillimetre},
                               {35, id::kPlainRime, id::kPlainMillimetresAlone, kMillimetre},
                               {36, id::kPlainCompound, id::kPlainMillimetresAlone, kMillimetre},
                               {37, id::kPlainWetSnow, id::kPlainMillimetresAlone, kMillimetre}};

std::string amount_words(const Sentence& s, const Amount& amount, int figures) {
  constexpr int kLastSingle = 55;
  constexpr int kFirstTens = 50;  // beyond kLastSingle each one above this is ten units
  constexpr int kMost = 90;
  constexpr int kLittle = 97;
  constexpr int kMore = 98;
  constexpr int kNotMeasured = 99;
  const auto whole = [&](int units) { return s.filled(amount.unit, {text::format_int(units)}); };
  // Parts of a unit are millimetres of snow and tenths of a millimetre of anything else.
  const auto part = [&](int tenths_of_a_unit) {
    const int tenths = tenths_of_a_unit * amount.step / 10;
    return s.filled(
        id::kPlainMillimetresAlone,
        {tenths % 10 == 0 ? text::format_int(tenths / 10) : text::format_fixed(tenths / 10.0, 1)});
  };
  if (figures <= kLastSingle) return whole(figures);
  if (figures <= kMost) return whole((figures - kFirstTens) * 10);
  if (figures < kLittle) return part(figures - kMost);
  if (figures == kMore) return s.filled(id::kPlainOver, {whole((kMost - kFirstTens) * 10)});
  if (figures == kNotMeasured) return std::string(s.get(id::kPlainNotMeasured));
  return s.filled(id::kPlainUnder, {part(1)});
}

void say_amount(Sentence& s, const Amount& amount, std::string_view figures) {
  if (says_nothing(s, amount.name, figures)) return;
  s.say(id::kPlainColon, {s.get(amount.name), amount_words(s, amount, *number(figures))});
}

// 9SpSpspsp, of which winds and amounts are said and the others named by their tens.
void say_special(Sentence& s, const Heard& heard, std::string_view figures) {
  struct Row {
    int first, last;
    text::Id name;
  };
  constexpr Row kRows[] = {{0, 9, id::kPlainTimes},        {16, 19, id::kPlainWindOrSquall},
                           {20, 29, id::kPlainSeaState},   {30, 39, id::kPlainAmounts},
                           {40, 49, id::kPlainCloudsMore}, {80, 89, id::kPlainVisibilityMore},
                           {90, 99, id::kPlainOptical}};
  struct Speed {
    int kind;
    text::Id name;
  };
  constexpr Speed kSpeeds[] = {{10, id::kPlainGust10},
                               {11, id::kPlainGust},
                               {12, id::kPlainHighestMean},
                               {13, id::kPlainMean},
                               {14, id::kPlainLowestMean}};
  constexpr int kDirection = 15;
  constexpr int kPeriod = 7;
  const auto kind = number(figures.substr(1, 2));
  const std::string_view rest = figures.substr(3);
  if (!kind) {
    s.say(id::kPlainSpecial);
    return;
  }
  const auto* const speed = std::find_if(std::begin(kSpeeds), std::end(kSpeeds),
                                         [&](const Speed& each) { return each.kind == *kind; });
  const auto* const amount = std::find_if(std::begin(kAmounts), std::end(kAmounts),
                                          [&](const Amount& each) { return each.kind == *kind; });
  if (speed != std::end(kSpeeds)) {
    say_speed(s, heard, speed->name, rest);
  } else if (amount != std::end(kAmounts)) {
    say_amount(s, *amount, rest);
  } else if (*kind == kDirection) {
    say_direction(s, id::kPlainDirectionOfThat, rest);
  } else if (*kind == kPeriod) {
    say_period(s, rest);
  } else {
    const auto* const row = std::find_if(std::begin(kRows), std::end(kRows), [&](const Row& each) {
      return *kind >= each.first && *kind <= each.last;
    });
    s.say(row == std::end(kRows) ? id::kPlainSpecial : row->name);
  }
}

// A wind of 99 units or more: 00fff behind the group that says so.
bool is_high_wind(std::string_view figures, std::string_view before) {
  return figures.starts_with("00") && before.starts_with("91") && before.ends_with("99");
}

void say_section_3(Sentence& s, const Heard& heard, std::string_view figures,
                   std::string_view before) {
  switch (figures.front()) {
    case '0':
      if (is_high_wind(figures, before) && number(figures.substr(2)))
        s.say(id::kPlainWindSpeedOf, {speed_words(s, heard, *number(figures.substr(2)))});
      else
        s.say(id::kPlainRegional);
      break;
    case '1':
      say_extreme(s, id::kPlainHighest, figures);
      break;
    case '2':
      say_extreme(s, id::kPlainLowest, figures);
      break;
    case '4':
      say_snow(s, figures);
      break;
    case '5':
      say_change_or_sunshine(s, figures);
      break;
    case '6':
      say_precipitation(s, figures);
      break;
    case '7':
      say_precipitation_24(s, figures);
      break;
    case '8':
      say_layer(s, figures);
      break;
    case '9':
      say_special(s, heard, figures);
      break;
    default:  // 3Ejjj and solidi
      s.say(id::kPlainRegional);
      break;
  }
}

}  // namespace

void say_station_pressure(Sentence& s, std::string_view figures) {
  const std::string_view pppp = figures.substr(1);
  if (says_nothing(s, id::kPlainStationPressure, pppp)) return;
  s.say(id::kPlainHectopascals,
        {s.get(id::kPlainStationPressure),
         text::format_fixed(text::leading_number(codetables::pressure_shown(pppp)), 1)});
}

void say_other_group(Sentence& s, const Heard& heard, Section section, std::string_view figures,
                     std::string_view before) {
  if (section == Section::kOne) {
    if (figures.starts_with("29"))
      say_humidity(s, figures);
    else if (figures.front() == '3')
      say_station_pressure(s, figures);
    else if (figures.front() == '6')
      say_precipitation(s, figures);
    else
      s.say(id::kPlainOtherOf1);
  } else if (section == Section::kTwo) {
    if (figures.starts_with("70"))
      say_fine_waves(s, figures);
    else
      s.say(id::kPlainOtherOf2);
  } else if (section == Section::kThree) {
    say_section_3(s, heard, figures, before);
  } else {
    s.say(section == Section::kFour ? id::kPlainSection4 : id::kPlainSection5);
  }
}

}  // namespace explain
