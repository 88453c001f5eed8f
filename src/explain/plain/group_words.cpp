#include "explain/plain/group_words.h"

#include <array>
#include <cmath>

#include "codetables/tables/minutes.h"
#include "codetables/tables/pressure_figures.h"
#include "codetables/tables/pressure_tendency.h"
#include "codetables/tables/quadrant.h"
#include "codetables/tables/sea_temperature_figures.h"
#include "codetables/tables/sea_waves.h"
#include "codetables/tables/temperature_figures.h"
#include "platform/calendar.h"
#include "text/ids.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace explain {
namespace {

namespace id = text::id;
using observation::Group;
using observation::Values;
using observation::WaveValues;

// What is rarely right, beside what the tables of the elements hold themselves.
constexpr int kStrongWind = 50;                  // knots
constexpr int kHighWaves = 10;                   // metres
constexpr double kLargestAirSea = 15.0;          // degrees between air and sea
constexpr std::string_view kSpeedInNext = "99";  // ff of a wind whose speed is in 00fff
constexpr std::string_view kNone = "00";

std::string tenths(double value) {
  return text::format_fixed(value, 1);
}

// ---- Time and position

void say_date(Sentence& s, const Heard& heard) {
  const auto& [record, values, when] = heard;
  const auto day = text::whole_number(record.YY, 1, 31);
  const auto hour = text::whole_number(record.GG, 0, 23);
  if (is_not_reported(record.YY)) s.not_reported(id::kPlainNameDay);
  if (is_not_reported(record.GG)) s.not_reported(id::kPlainNameHour);
  const auto says_wrong = [&s](text::Id name, const std::string& figures) {
    if (is_not_reported(figures)) return;
    if (text::is_all_digits(figures))
      s.impossible(name, figures);
    else
      s.unreadable(name, figures);
  };
  const bool known = when.year > 0 && when.month > 0;
  const bool exists = day && (!known || *day <= platform::days_in_month(when.year, when.month));
  if (!exists) says_wrong(id::kPlainNameDay, record.YY);
  if (!hour) says_wrong(id::kPlainNameHour, record.GG);
  if (!exists || !hour) {
    if (exists) s.say(id::kPlainColon, {s.get(id::kPlainNameDay), text::format_int(*day)});
    if (hour) s.say(id::kPlainColon, {s.get(id::kPlainNameHour), record.GG});
    return;
  }
  const std::string d = text::format_int(*day);
  if (!known) {
    s.say(id::kPlainDayHour, {d, record.GG});
    return;
  }
  const std::string y = text::format_int(when.year);
  const std::string_view m = s.get(id::kMonthJanuary + (when.month - 1));
  if (s.language() == text::Language::kEnglish)
    s.say(id::kPlainDate, {d, m, y, record.GG});
  else
    s.say(id::kPlainDate, {y, m, d, record.GG});
}

void say_time(Sentence& s, const Heard& heard) {
  say_date(s, heard);
  s.meaning(id::kPlainNameUnit, "iw", heard.record.iw);
}

// Whole degrees and tenths; minutes are the first that give the tenth, none where it is a solidus.
void say_arc(Sentence& s, text::Id name, const std::string& degrees, const std::string& minutes,
             int highest, text::Id hemisphere) {
  if (is_not_reported(degrees) && minutes.empty()) {
    s.not_reported(name);
    return;
  }
  std::string arc = degrees;
  arc.push_back('.');
  if (minutes.empty())
    arc.push_back('/');
  else
    arc.append(text::format_int(codetables::tenths_of_minutes(text::leading_int(minutes))));
  if (!text::is_all_digits(degrees) || minutes.empty()) {
    s.unreadable(name, arc);
    return;
  }
  const int whole = text::leading_int(degrees);
  arc = text::format_int(whole).append(arc.substr(degrees.size()));
  if (whole > highest || (whole == highest && !arc.ends_with(".0"))) {
    s.impossible(name, arc.append("°"));
  } else if (hemisphere) {
    s.say(hemisphere, {arc});
  } else {
    s.say(id::kPlainArc, {s.get(name), arc});
    s.not_reported(id::kPlainHemisphere);
  }
}

void say_latitude(Sentence& s, const Heard& heard) {
  const Struct_Weather& record = heard.record;
  const int south = codetables::north_south_of(record.Qc);
  const text::Id hemisphere = south < 0    ? text::Id()
                              : south == 0 ? id::kPlainNorthLatitude
                                           : id::kPlainSouthLatitude;
  constexpr int kPole = 90;
  say_arc(s, id::kPlainNameLatitude, record.LaDeg, record.LaMin, kPole, hemisphere);
}

void say_longitude(Sentence& s, const Heard& heard) {
  const Struct_Weather& record = heard.record;
  const int west = codetables::east_west_of(record.Qc);
  const text::Id hemisphere = west < 0    ? text::Id()
                              : west == 0 ? id::kPlainEastLongitude
                                          : id::kPlainWestLongitude;
  constexpr int kDateLine = 180;
  say_arc(s, id::kPlainNameLongitude, record.LoDeg, record.LoMin, kDateLine, hemisphere);
}

// ---- Indicators, clouds and visibility

void say_visibility(Sentence& s, const Heard& heard) {
  const Struct_Weather& record = heard.record;
  s.code(id::kPlainNameCloudBase, "h", record.h);
  s.code(id::kPlainNameVisibility, "VV", record.VV);
  s.meaning(id::kPlainNamePrecipitation, "iR", record.iR);
  s.meaning(id::kPlainNameWeatherData, "iX", record.iX);
}

void say_clouds(Sentence& s, const Heard& heard) {
  const Struct_Weather& record = heard.record;
  s.code(id::kPlainNameLowest, "Nh", record.Nh);
  s.code(id::kPlainNameCL, "CL", record.CL);
  s.code(id::kPlainNameCM, "CM", record.CM);
  s.code(id::kPlainNameCH, "CH", record.CH);
}

// ---- Wind

void doubt_strong_wind(Sentence& s, const Heard& heard) {
  if (!s.meaning_of("iw", heard.record.iw)) return;
  const auto knots = observation::knots_of(heard.values);
  if (knots && *knots > kStrongWind)
    s.unusual(id::kPlainOverKnots, {text::format_int(kStrongWind)});
}

// How fast, as the group itself says it; a speed in 00fff is said there.
std::string speed_of_nddff(Sentence& s, const Heard& heard) {
  const Struct_Weather& record = heard.record;
  if (!record.fff.empty())
    return is_not_reported(record.ff) ? std::string() : std::string(s.get(id::kPlainSpeedNext));
  return heard.values.wind_speed ? speed_words(s, heard, *heard.values.wind_speed) : std::string();
}

void say_wind_from(Sentence& s, int direction, const std::string& speed) {
  const std::string_view point = s.point(direction);
  const std::string degrees = Sentence::degrees(direction);
  if (speed.empty())
    s.say(id::kPlainWindFrom, {point, degrees});
  else
    s.say(id::kPlainWindBoth, {point, degrees, speed});
}

void say_wind(Sentence& s, const Heard& heard) {
  const auto& [record, values, when] = heard;
  s.code(id::kPlainNameCloud, "N", record.N);
  const std::string speed = speed_of_nddff(s, heard);
  if (values.wind_direction) {
    say_wind_from(s, *values.wind_direction, speed);
    if (record.fff.empty() && record.ff == kNone) s.unusual(id::kPlainDirectionOfCalm);
  } else if (values.wind_variable) {
    if (speed.empty())
      s.say(id::kPlainWindVariable);
    else
      s.say(id::kPlainWindVariableAt, {speed});
  } else if (record.dd == kNone) {
    const bool calm = values.wind_calm && record.fff.empty();
    if (calm || speed.empty()) {
      s.say(id::kPlainCalm);
    } else {
      if (record.fff.empty())
        s.say(id::kPlainWindSpeedOf, {speed});
      else
        s.say(speed);
      s.unusual(id::kPlainSpeedOfCalm);
    }
  } else {
    if (is_not_reported(record.dd))
      s.not_reported(id::kPlainNameDirection);
    else if (text::is_all_digits(record.dd))
      s.impossible(id::kPlainNameDirection, record.dd);
    else
      s.unreadable(id::kPlainNameDirection, record.dd);
    if (!speed.empty() && record.fff.empty())
      s.say(id::kPlainWindSpeedOf, {speed});
    else if (!speed.empty())
      s.say(speed);
  }
  if (is_not_reported(record.ff)) {
    s.not_reported(id::kPlainNameSpeed);
    return;
  }
  if (!record.fff.empty()) {
    if (record.ff != kSpeedInNext) s.unusual(id::kPlainNot99);
    return;
  }
  if (!values.wind_speed) s.unreadable(id::kPlainNameSpeed, record.ff);
  doubt_strong_wind(s, heard);
}

void say_high_wind(Sentence& s, const Heard& heard) {
  const std::string& fff = heard.record.fff;
  if (is_not_reported(fff)) {
    s.not_reported(id::kPlainNameSpeed);
  } else if (!heard.values.wind_speed) {
    s.unreadable(id::kPlainNameSpeed, fff);
  } else {
    s.say(id::kPlainWindSpeedOf, {speed_words(s, heard, *heard.values.wind_speed)});
    doubt_strong_wind(s, heard);
  }
}

// ---- Temperatures

// The sign and the figures of a temperature as they stand: what cannot be read of them.
std::string as_they_stand(const std::string& sign, const std::string& figures) {
  return std::string(sign).append(figures);
}

bool say_temperature(Sentence& s, text::Id name, const std::string& sign,
                     const std::string& figures, std::optional<double> value) {
  if (is_not_reported(figures)) {
    s.not_reported(name);
    return false;
  }
  const bool has_sign =
      sign.size() == 1 && codetables::kTemperatureSigns.find(sign) != std::string_view::npos;
  if (!value || !has_sign) {
    s.unreadable(name, as_they_stand(sign, figures));
    return false;
  }
  s.say(id::kPlainDegrees, {s.get(name), tenths(*value)});
  return true;
}

void say_air(Sentence& s, const Heard& heard) {
  const auto& [record, values, when] = heard;
  if (!say_temperature(s, id::kPlainNameAir, record.SnT, record.TTT, values.air)) return;
  if (codetables::temperature_range(tenths(*values.air)) != codetables::TemperatureRange::kUsual)
    s.unusual(id::kPlainOutsidePressures);
}

bool is_readable(const std::string& sign) {
  return sign == "0" || sign == "1";
}

void say_dew_point(Sentence& s, const Heard& heard) {
  const auto& [record, values, when] = heard;
  if (!say_temperature(s, id::kPlainNameDew, record.SnTd, record.TdTdTd, values.dew_point)) return;
  if (values.air && is_readable(record.SnT) && *values.dew_point > *values.air)
    s.unusual(id::kPlainDewAboveAir);
}

void say_sea(Sentence& s, const Heard& heard) {
  const auto& [record, values, when] = heard;
  if (is_not_reported(record.TwTwTw)) {
    s.not_reported(id::kPlainNameSea);
    return;
  }
  if (!values.sea) {
    s.unreadable(id::kPlainNameSea, as_they_stand(record.Ss, record.TwTwTw));
    return;
  }
  constexpr std::array kMethods{id::kFixIntake, id::kFixBucket, id::kFixHullSensor, id::kFixOther};
  s.say(id::kPlainDegreesBy, {s.get(id::kPlainNameSea), tenths(*values.sea),
                              Sentence::within(std::string(s.get(
                                  kMethods.at(static_cast<std::size_t>(*values.sea_method)))))});
  if (!codetables::sea_temperature(tenths(*values.sea))) s.unusual(id::kPlainOutsidePressures);
  if (!values.air || !is_readable(record.SnT)) return;
  const double difference = std::abs(*values.sea - *values.air);
  if (difference > kLargestAirSea) s.unusual(id::kPlainFarFromAir, {tenths(difference)});
}

void say_wet_bulb(Sentence& s, const Heard& heard) {
  const auto& [record, values, when] = heard;
  if (is_not_reported(record.TbTbTb)) {
    s.not_reported(id::kPlainNameWetBulb);
    return;
  }
  const auto state = s.meaning_of("Sw", record.Sw);
  if (!values.wet_bulb || !state) {
    s.unreadable(id::kPlainNameWetBulb, as_they_stand(record.Sw, record.TbTbTb));
    return;
  }
  // The sign is in the number; of the table's words the way of measuring is left, and the ice.
  constexpr int kFirstComputed = 5;
  const bool computed = text::leading_int(record.Sw) >= kFirstComputed;
  const std::string how =
      values.wet_bulb_iced ? *state
                           : std::string(s.get(computed ? id::kPlainComputed : id::kPlainMeasured));
  s.say(id::kPlainDegreesBy, {s.get(id::kPlainNameWetBulb), tenths(*values.wet_bulb), how});
}

// ---- Pressure

void say_pressure(Sentence& s, const Heard& heard) {
  const auto& [record, values, when] = heard;
  if (is_not_reported(record.PPPP)) {
    s.not_reported(id::kPlainNamePressure);
  } else if (!values.pressure) {
    s.unreadable(id::kPlainNamePressure, record.PPPP);
  } else {
    s.say(id::kPlainHectopascals, {s.get(id::kPlainNamePressure), tenths(*values.pressure)});
    if (codetables::pressure_range({*values.pressure}) != codetables::PressureRange::kAccepted)
      s.unusual(id::kPlainOutsidePressures);
  }
}

void say_tendency(Sentence& s, const Heard& heard) {
  const auto& [record, values, when] = heard;
  const bool has_amount = text::is_all_digits(record.ppp);
  const auto characteristic =
      is_not_reported(record.a) ? std::nullopt : s.meaning_of("a", record.a);
  if (has_amount && characteristic) {
    const double change = *values.change;
    const std::string amount = tenths(std::abs(change));
    using codetables::TendencyCheck;
    const TendencyCheck check = codetables::check_tendency(record.a, amount);
    // "Steady" tells no direction of a change that should not be there.
    const text::Id compared = change == 0.0                               ? id::kPlainSame
                              : check == TendencyCheck::kSteadyWithAmount ? id::kPlainChangeAlone
                              : change > 0                                ? id::kPlainHigher
                                                                          : id::kPlainLower;
    s.say(id::kPlainColon, {s.filled(compared, {amount}), *characteristic});
    if (check == TendencyCheck::kSteadyWithAmount) s.unusual(id::kPlainSteadyWithChange);
    const std::string_view unchanged = codetables::characteristics(codetables::TendencyKind::kSame);
    if (change == 0.0 && unchanged.find(record.a) == std::string_view::npos)
      s.unusual(id::kPlainNoChange);
    if (check == TendencyCheck::kAsks || check == TendencyCheck::kTooLarge)
      s.unusual(id::kPlainLargeChange);
    return;
  }
  if (has_amount) {
    const int amount = text::leading_int(record.ppp);
    s.say(amount == 0 ? id::kPlainSame : id::kPlainChangeAlone, {tenths(amount / 10.0)});
  }
  s.code(id::kPlainNameTendency, "a", record.a);
  if (has_amount) return;
  if (is_not_reported(record.ppp))
    s.not_reported(id::kPlainNameChange);
  else
    s.unreadable(id::kPlainNameChange, record.ppp);
}

// ---- Weather

void say_weather(Sentence& s, const Heard& heard) {
  const Struct_Weather& record = heard.record;
  // An automatic station's codes are those of other tables.
  constexpr std::string_view kOtherTables = "7";
  const bool all_missing =
      is_not_reported(record.ww) && is_not_reported(record.W1) && is_not_reported(record.W2);
  if (record.iX == kOtherTables && !all_missing) {
    s.say(id::kPlainWeatherOther, {record.ww, record.W1, record.W2});
    return;
  }
  s.code(id::kPlainNameWeather, "ww", record.ww);
  if (record.W1 == record.W2) {
    s.code(id::kPlainNamePast, "W1", record.W1);
    return;
  }
  s.code(id::kPlainNamePast1, "W1", record.W1);
  s.code(id::kPlainNamePast2, "W2", record.W2);
}

void say_actual_time(Sentence& s, const Heard& heard) {
  const Struct_Weather& record = heard.record;
  if (is_not_reported(record.GGExact) && is_not_reported(record.gg)) {
    s.not_reported(id::kPlainNameActual);
  } else if (text::whole_number(record.GGExact, 0, 23) && text::whole_number(record.gg, 0, 59)) {
    s.say(id::kPlainObservedAt, {record.GGExact, record.gg});
  } else {
    const std::string figures = as_they_stand(record.GGExact, record.gg);
    if (text::is_all_digits(figures) && figures.size() == 4)
      s.impossible(id::kPlainNameActual, figures);
    else
      s.unreadable(id::kPlainNameActual, figures);
  }
}

void say_movement(Sentence& s, const Heard& heard) {
  s.code(id::kPlainNameCourse, "Ds", heard.record.Ds);
  s.code(id::kPlainNameShipSpeed, "Vs", heard.record.Vs);
}

// ---- Waves

struct WaveGroup {
  text::Id name;
  text::Id missing;  ///< the name where the group is all solidi
  const std::string& period;
  const std::string& height;
  const WaveValues& values;
};

std::string height_words(const Sentence& s, double height) {
  // Half metres: none of them is less than a quarter of a metre, not a flat sea.
  return height == 0.0 ? std::string(s.get(id::kPlainHeightUnder))
                       : s.filled(id::kPlainHeight, {tenths(height)});
}

void say_waves(Sentence& s, const WaveGroup& waves) {
  constexpr std::string_view kConfused = "99";
  if (is_not_reported(waves.period) && is_not_reported(waves.height)) {
    s.not_reported(waves.missing);
    return;
  }
  if (waves.period == kNone && (waves.height == kNone || is_not_reported(waves.height))) {
    s.say(id::kPlainColon, {s.get(waves.name), s.get(id::kWordsNoWaves)});
    if (waves.height != kNone) s.not_reported(id::kPlainNameHeight);
    return;
  }
  std::string piece;
  if (waves.period == kConfused)
    piece = s.get(id::kWordsConfusedSea);
  else if (waves.values.period)
    piece = s.filled(*waves.values.period == 1 ? id::kPlainPeriodOfOne : id::kPlainPeriod,
                     {text::format_int(*waves.values.period)});
  if (waves.values.height) {
    if (!piece.empty()) piece.append(s.get(id::kSpokenBetween));
    piece.append(height_words(s, *waves.values.height));
  }
  if (!piece.empty()) s.say(id::kPlainColon, {s.get(waves.name), piece});
  if (is_not_reported(waves.period))
    s.not_reported(id::kPlainNamePeriod);
  else if (!text::is_all_digits(waves.period))
    s.unreadable(id::kPlainNamePeriod, waves.period);
  if (is_not_reported(waves.height))
    s.not_reported(id::kPlainNameHeight);
  else if (!waves.values.height)
    s.unreadable(id::kPlainNameHeight, waves.height);
  if (waves.values.period == 0) s.unusual(id::kPlainNoPeriod);
  if (waves.values.period > codetables::kLongestWavePeriodOffered)
    s.unusual(id::kPlainOverSeconds, {text::format_int(codetables::kLongestWavePeriodOffered)});
  if (waves.values.height && *waves.values.height > kHighWaves)
    s.unusual(id::kPlainOverMetres, {text::format_int(kHighWaves)});
}

void say_instrument_waves(Sentence& s, const Heard& heard) {
  const Struct_Weather& record = heard.record;
  say_waves(s, {id::kPlainNameInstrumentWaves, id::kPlainNameInstrumentWaves, record.PwaPwa,
                record.HwaHwa, heard.values.measured_waves});
}

void say_wind_waves(Sentence& s, const Heard& heard) {
  const Struct_Weather& record = heard.record;
  say_waves(s, {id::kPlainNameWindWaves, id::kPlainNameWindWaves, record.PwPw, record.HwHw,
                heard.values.wind_waves});
}

void say_swell_from(Sentence& s, text::Id name, text::Id direction_name, std::string_view symbol,
                    const std::string& figures, const WaveValues& values) {
  if (values.direction)
    s.say(id::kPlainFrom,
          {s.get(name), s.point(*values.direction), Sentence::degrees(*values.direction)});
  else if (is_not_reported(figures))
    s.not_reported(direction_name);
  else
    s.code(name, symbol, figures);
}

void say_swell_directions(Sentence& s, const Heard& heard) {
  const auto& [record, values, when] = heard;
  if (is_not_reported(record.dw1dw1) && is_not_reported(record.dw2dw2)) {
    s.not_reported(id::kPlainNameSwell);
    return;
  }
  const bool has_second = !is_not_reported(record.Pw2Pw2) || !is_not_reported(record.Hw2Hw2);
  const bool open = is_not_reported(record.dw2dw2) && !has_second;
  if (record.dw1dw1 == kNone && (record.dw2dw2 == kNone || open)) {
    s.meaning(id::kPlainNameSwell, "dw1dw1", record.dw1dw1);
    return;
  }
  say_swell_from(s, id::kPlainNameSwell1, id::kPlainNameDirectionOf1, "dw1dw1", record.dw1dw1,
                 values.swell1);
  // Solidi stand for the direction both where there is one swell and where nobody looked for more.
  if (open)
    s.say(id::kPlainSecondSwellOpen);
  else if (record.dw2dw2 == kNone)
    s.say(id::kPlainNoSecondSwell);
  else
    say_swell_from(s, id::kPlainNameSwell2, id::kPlainNameDirectionOf2, "dw2dw2", record.dw2dw2,
                   values.swell2);
  if (record.dw1dw1 == kNone && values.swell2.direction) s.unusual(id::kPlainSecondAlone);
}

void say_swell1(Sentence& s, const Heard& heard) {
  const Struct_Weather& record = heard.record;
  say_waves(s, {id::kPlainNameSwell1, id::kPlainNameWavesOf1, record.Pw1Pw1, record.Hw1Hw1,
                heard.values.swell1});
}

void say_swell2(Sentence& s, const Heard& heard) {
  const Struct_Weather& record = heard.record;
  say_waves(s, {id::kPlainNameSwell2, id::kPlainNameWavesOf2, record.Pw2Pw2, record.Hw2Hw2,
                heard.values.swell2});
}

// ---- Ice

void say_icing(Sentence& s, const Heard& heard) {
  const Struct_Weather& record = heard.record;
  s.code(id::kPlainNameIcingCause, "Is", record.Is);
  if (is_not_reported(record.EsEs))
    s.not_reported(id::kPlainNameIcingThickness);
  else if (heard.values.ice_thickness)
    s.say(id::kPlainCentimetres,
          {s.get(id::kPlainNameIcingThickness), text::format_int(*heard.values.ice_thickness)});
  else
    s.unreadable(id::kPlainNameIcingThickness, record.EsEs);
  s.code(id::kPlainNameIcingRate, "Rs", record.Rs);
}

void say_sea_ice(Sentence& s, const Heard& heard) {
  const Struct_Weather& record = heard.record;
  s.code(id::kPlainNameIce1, "ci", record.ci);
  s.code(id::kPlainNameIce2, "Si", record.Si);
  s.code(id::kPlainNameIce3, "bi", record.bi);
  s.code(id::kPlainNameIce4, "Di", record.Di);
  s.code(id::kPlainNameIce5, "zi", record.zi);
}

// ---- The groups

bool always(const Heard& /*heard*/) {
  return true;
}

bool never(const Heard& /*heard*/) {
  return false;
}

// iX says that the weather is in the report; without it nobody knows.
bool weather_is_due(const Heard& heard) {
  const std::string& iX = heard.record.iX;
  return iX == "1" || iX == "4" || iX == "7" || is_not_reported(iX);
}

// Without a cloud, or behind fog, the group is not sent; nor where clouds are not observed.
bool clouds_are_due(const Heard& heard) {
  const std::string& N = heard.record.N;
  return !is_not_reported(N) && N != "0" && N != "9";
}

bool swell_is_there(const Heard& heard) {
  return heard.values.swell1.direction.has_value();
}

bool second_swell_is_there(const Heard& heard) {
  return heard.values.swell2.direction.has_value();
}

struct GroupSays {
  Group group;
  void (*say)(Sentence&, const Heard&);
  text::Id name;
  bool (*usual)(const Heard&);
};

constexpr GroupSays kSays[] = {
    {Group::kYYGGiw, say_time, id::kPlainNameTime, always},
    {Group::k99LaLaLa, say_latitude, id::kPlainNameLatitude, always},
    {Group::kQcLoLoLoLo, say_longitude, id::kPlainNameLongitude, always},
    {Group::kiRiXhVV, say_visibility, id::kPlainNameIndicators, always},
    {Group::kNddff, say_wind, id::kPlainNameCloudWind, always},
    {Group::k00fff, say_high_wind, id::kPlainNameSpeed, never},
    {Group::k1SnTTT, say_air, id::kPlainNameAir, always},
    {Group::k2SnTdTdTd, say_dew_point, id::kPlainNameDew, always},
    {Group::k4PPPP, say_pressure, id::kPlainNamePressure, always},
    {Group::k5appp, say_tendency, id::kPlainNameTendencyGroup, always},
    {Group::k7wwW1W2, say_weather, id::kPlainNameWeathers, weather_is_due},
    {Group::k8NhCLCMCH, say_clouds, id::kPlainNameClouds, clouds_are_due},
    {Group::k9GGgg, say_actual_time, id::kPlainNameActual, never},
    {Group::k222DsVs, say_movement, id::kPlainNameMovement, always},
    {Group::k0SsTwTwTw, say_sea, id::kPlainNameSea, always},
    {Group::k1PwaPwaHwaHwa, say_instrument_waves, id::kPlainNameInstrumentWaves, never},
    {Group::k2PwPwHwHw, say_wind_waves, id::kPlainNameWindWaves, always},
    {Group::k3dw1dw1dw2dw2, say_swell_directions, id::kPlainNameSwell, always},
    {Group::k4Pw1Pw1Hw1Hw1, say_swell1, id::kPlainNameWavesOf1, swell_is_there},
    {Group::k5Pw2Pw2Hw2Hw2, say_swell2, id::kPlainNameWavesOf2, second_swell_is_there},
    {Group::k6IsEsEsRs, say_icing, id::kPlainNameIcingCause, never},
    {Group::k8SwTbTbTb, say_wet_bulb, id::kPlainNameWetBulb, never},
    {Group::kICE, say_sea_ice, id::kPlainNameIce, never},
};

constexpr bool rows_are_in_order() {
  for (std::size_t i = 0; i < std::size(kSays); ++i)
    if (kSays[i].group != static_cast<Group>(i)) return false;
  return std::size(kSays) == observation::kGroups;
}
static_assert(rows_are_in_order());

const GroupSays& says_of(Group group) {
  return kSays[static_cast<std::size_t>(group)];
}

}  // namespace

void say_group(Sentence& sentence, const Heard& heard, Group group) {
  says_of(group).say(sentence, heard);
}

text::Id name_of_missing(Group group) {
  return says_of(group).name;
}

bool is_usual(const Heard& heard, Group group) {
  return says_of(group).usual(heard);
}

}  // namespace explain
