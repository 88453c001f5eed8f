#include "explain/plausible_voyage.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <random>

namespace plausible {
namespace {

using observation::PastObservation;
using observation::Values;
using observation::WaveValues;

constexpr double kPi = 3.14159265358979;

// The same numbers with every library.
class Chance {
 public:
  explicit Chance(std::uint64_t seed) : engine_(seed) {}
  double between(double low, double high) {
    constexpr double kSteps = 9007199254740992.0;
    return low + (high - low) * static_cast<double>(engine_() >> 11U) / kSteps;
  }
  bool once_in(double times) { return between(0.0, times) < 1.0; }
  int one_of(int low, int high) { return static_cast<int>(std::floor(between(low, high + 1))); }
  template <std::size_t count>
  int code(const std::array<int, count>& codes) {
    return codes.at(static_cast<std::size_t>(one_of(0, static_cast<int>(count) - 1)));
  }
  double normal(double mean, double spread) {
    const double radius = std::sqrt(-2.0 * std::log(between(1e-12, 1.0)));
    return mean + spread * radius * std::cos(between(0.0, 2.0 * kPi));
  }

 private:
  std::mt19937_64 engine_;
};

// A value that wanders about zero and forgets in so many hours.
class Wander {
 public:
  Wander(Chance& chance, double spread, double memory)
      : chance_(chance), spread_(spread), memory_(memory), at_(chance.normal(0.0, spread)) {}
  double go_on(double hours) {
    const double keeps = std::exp(-hours / memory_);
    at_ = at_ * keeps + chance_.normal(0.0, spread_ * std::sqrt(1.0 - keeps * keeps));
    return at_;
  }

 private:
  Chance& chance_;
  double spread_, memory_, at_;
};

double rounded(double value, double step) {
  return std::round(value / step) * step;
}
double wrapped(double angle, double circle) {
  const double rest = std::fmod(angle, circle);
  return rest < 0.0 ? rest + circle : rest;
}
// Tenths as a report cuts them.
double cut(double position) {
  return std::trunc(position * 10.0) / 10.0;
}

struct Storm {
  double hour, depth, width;
};

// How an officer and the ship's instruments go about it, for the whole voyage.
struct Habits {
  int every = 3;               // hours
  double air_step, sea_step;   // thermometers are read to these
  double barometer;            // off by so much, always
  bool gives_heading;          // Ds and Vs as they are now
  double bulbs;                // the dew point comes out so much too low or high
  bool counts_hidden_as_none;  // CM 0 where it cannot be seen
  double leaves_out;           // an element once in so many times
};

enum class Sky { kClear, kFair, kLayer, kRain, kShowers, kThunder, kFog, kSmoke, kHaze, kMist };

class Voyage {
 public:
  explicit Voyage(std::uint64_t number)
      : chance_(number),
        habits_(habits()),
        air_(chance_, 1.6, 18.0),
        wind_(chance_, 0.55, 14.0),
        dry_(chance_, 1.6, 15.0),
        swell_(chance_, 0.45, 20.0),
        pressure_(chance_, 4.0, 60.0),
        patch_(chance_, 0.7, 12.0) {
    month_ = chance_.one_of(0, 11);
    latitude_ = chance_.between(-62.0, 66.0);
    longitude_ = chance_.between(-180.0, 180.0);
    course_ = chance_.between(0.0, 360.0);
    speed_ = chance_.between(7.0, 22.0);
    direction_ = chance_.between(0.0, 360.0);
    const int storms = std::abs(latitude_) > 25.0 ? chance_.one_of(0, 3) : chance_.one_of(0, 6) / 6;
    for (int i = 0; i < storms; ++i)
      storms_.push_back({chance_.between(0.0, kObservationsOfAVoyage * habits_.every),
                         chance_.between(6.0, 48.0), chance_.between(9.0, 26.0)});
    for (double& p : readings_) p = pressure_at(0.0);
  }

  std::vector<PastObservation> observations() {
    std::vector<PastObservation> all;
    const int first = chance_.one_of(100000, 120000) * 3;
    for (int i = 0; i < kObservationsOfAVoyage; ++i) {
      for (int hour = 0; hour < habits_.every; ++hour) sail_an_hour();
      PastObservation one;
      one.hour = first + i * habits_.every;
      one.values = observe(one.hour);
      all.push_back(one);
    }
    return all;
  }

 private:
  Habits habits() {
    Habits of;
    of.every = chance_.once_in(2) ? 3 : 6;
    of.air_step = chance_.once_in(8) ? (chance_.once_in(2) ? 1.0 : 0.5) : 0.1;
    of.sea_step = chance_.once_in(4) ? (chance_.once_in(2) ? 1.0 : 0.5) : 0.1;
    of.barometer = chance_.normal(0.0, 0.6);
    of.bulbs = chance_.normal(0.0, 0.6);
    of.gives_heading = chance_.once_in(4);
    of.counts_hidden_as_none = chance_.once_in(6);
    of.leaves_out = chance_.between(8.0, 60.0);
    return of;
  }

  void sail_an_hour() {
    hour_ += 1.0;
    if (stopped_ > 0) --stopped_;
    if (chance_.once_in(120)) stopped_ = chance_.one_of(3, 30);
    if (chance_.once_in(9)) course_ = wrapped(course_ + chance_.normal(0.0, 25.0), 360.0);
    if (chance_.once_in(90)) course_ = wrapped(course_ + chance_.normal(0.0, 80.0), 360.0);
    if ((latitude_ > 74.0 && std::cos(course_ * kPi / 180.0) > 0.0) ||
        (latitude_ < -68.0 && std::cos(course_ * kPi / 180.0) < 0.0))
      course_ = wrapped(180.0 - course_, 360.0);
    made_ = stopped_ > 0 ? chance_.between(0.0, 0.6)
                         : std::max(1.0, speed_ + chance_.normal(0.0, 0.8) - lost_to_sea());
    track_.push_back({latitude_, longitude_});
    latitude_ += made_ / 60.0 * std::cos(course_ * kPi / 180.0);
    longitude_ +=
        made_ / 60.0 * std::sin(course_ * kPi / 180.0) / std::cos(latitude_ * kPi / 180.0);
    longitude_ = wrapped(longitude_ + 180.0, 360.0) - 180.0;
    drift_ = pressure_.go_on(1.0);
    readings_[0] = readings_[1];
    readings_[1] = readings_[2];
    readings_[2] = readings_[3];
    readings_[3] = pressure_at(hour_);
    blow();
    warm();
  }

  [[nodiscard]] double lost_to_sea() const { return std::min(speed_ * 0.6, sea_height_ * 0.7); }

  [[nodiscard]] double pressure_at(double hour) {
    const double far = std::abs(latitude_);
    double p = 1011.0 + 8.0 * std::exp(-std::pow((far - 32.0) / 14.0, 2.0)) -
               12.0 * std::max(0.0, (far - 45.0) / 20.0);
    p += drift_ * std::min(2.0, 0.3 + far / 30.0);
    p += 1.3 * std::cos(hour * kPi / 6.0) * std::cos(latitude_ * kPi / 180.0);
    for (const Storm& storm : storms_)
      p -= storm.depth * std::exp(-std::pow((hour - storm.hour) / storm.width, 2.0));
    return std::clamp(p, 925.0, 1055.0);
  }

  // Wind grows with the slope of the pressure, and shifts when a low has passed.
  void blow() {
    const double slope = std::abs(readings_[3] - readings_[0]);
    const double tropic = std::abs(latitude_) < 20.0 ? 11.0 : 13.5;
    const double wanted = tropic * std::exp(wind_.go_on(1.0)) * 0.9 + 4.0 * slope;
    if (lull_ > 0) --lull_;
    if (chance_.once_in(250)) lull_ = chance_.one_of(4, 20);
    knots_ = lull_ > 0 ? knots_ * 0.6 : std::min(70.0, wanted);
    direction_ = wrapped(direction_ + chance_.normal(0.0, 6.0), 360.0);
    for (const Storm& storm : storms_) {
      const double since = hour_ - storm.hour;
      if (since >= 0.0 && since < 1.0) {
        direction_ = wrapped(direction_ + chance_.between(50.0, 120.0), 360.0);
        if (std::abs(latitude_) > 25.0)
          outbreak_ = chance_.between(2.0, winter() && chance_.once_in(3) ? 16.0 : 7.0);
      }
    }
    if (std::abs(latitude_) > 58.0 && winter() && chance_.once_in(60))
      outbreak_ = chance_.between(6.0, 20.0);
    outbreak_ *= 0.95;
    const double metres = knots_ * 0.5144;
    const double in_the_end = 0.21 * metres * metres / 9.81;
    sea_height_ += (in_the_end - sea_height_) * (in_the_end > sea_height_ ? 0.12 : 0.16);
  }

  [[nodiscard]] bool winter() const {
    const bool northern = month_ <= 2 || month_ >= 10;
    const bool southern = month_ >= 4 && month_ <= 8;
    return latitude_ > 0.0 ? northern : southern;
  }

  void warm() {
    if (chance_.once_in(700)) edge_ = chance_.normal(0.0, 5.0);
    edge_ *= 0.985;
    const double far = std::abs(latitude_);
    const double season = (latitude_ > 0.0 ? -1.0 : 1.0) * std::cos((month_ + 0.5) * kPi / 6.0);
    const double mean =
        28.5 * std::pow(std::cos(std::min(85.0, far * 1.05) * kPi / 180.0), 1.4) - 0.5;
    sea_ = std::clamp(mean + 3.0 * season * std::min(1.0, far / 35.0) + edge_ + patch_.go_on(1.0) -
                          std::max(0.0, far - 62.0) * 0.3,
                      -1.8, 33.0);
    // The air follows the sea within some hours.
    const double wanted = sea_ - outbreak_ + air_.go_on(1.0) + 0.8 * std::sin(hour_ * kPi / 12.0);
    air_now_ += first_ ? wanted - air_now_ : (wanted - air_now_) * 0.4;
    first_ = false;
  }

  Values observe(int hour) {
    Values v;
    v.hour = hour;
    v.latitude = cut(latitude_);
    v.longitude = cut(longitude_);
    course_and_speed(v);
    wind(v);
    pressure(v);
    temperatures(v);
    choose_sky();
    sky(v);
    past_weather(v);
    waves(v);
    ice(v);
    if (chance_.once_in(4)) actual_time(v, hour);
    leave_out(v);
    return v;
  }

  void course_and_speed(Values& v) {
    double towards = course_;
    double knots = made_;
    if (!habits_.gives_heading && track_.size() >= 3) {
      const auto [lat, lon] = track_[track_.size() - 3];
      const double north = (latitude_ - lat) * 60.0;
      const double east = (wrapped(longitude_ - lon + 180.0, 360.0) - 180.0) * 60.0 *
                          std::cos(latitude_ * kPi / 180.0);
      knots = std::hypot(north, east) / 3.0;
      towards = wrapped(std::atan2(east, north) * 180.0 / kPi, 360.0);
    }
    const auto code = static_cast<int>(std::floor((knots + 4.0) / 5.0));
    v.speed = knots < 1.0 ? 0 : std::clamp(code, 1, 9);
    const int eighth = static_cast<int>(std::round(towards / 45.0)) % 8;
    v.course = v.speed == 0 ? 0 : (eighth == 0 ? 8 : eighth);
  }

  void wind(Values& v) {
    v.wind_in_knots = true;
    const double seen = std::max(0.0, knots_ + chance_.normal(0.0, 1.0 + knots_ * 0.07));
    const double speed = lull_ > 0 && seen < 1.5 ? 0.0 : std::round(seen);
    v.wind_speed = speed;
    if (speed < 1.0) {
      v.wind_calm = true;
      return;
    }
    if (speed < 4.0 && chance_.once_in(5)) {
      v.wind_variable = true;
      return;
    }
    const auto tens =
        static_cast<int>(std::round(wrapped(direction_ + chance_.normal(0.0, 6.0), 360.0) / 10.0));
    v.wind_direction = tens == 0 ? 360 : tens * 10;
  }

  void pressure(Values& v) {
    v.pressure = rounded(readings_[3] + habits_.barometer + chance_.normal(0.0, 0.15), 0.1);
    const double change = rounded(readings_[3] - readings_[0] + chance_.normal(0.0, 0.2), 0.1);
    const double early = readings_[1] - readings_[0];
    const double late = readings_[3] - readings_[2];
    v.change = change == 0.0 ? 0.0 : change;
    if (change == 0.0)
      // Risen or fallen by less than the figures hold, once in a while.
      v.tendency = chance_.once_in(50)     ? chance_.code(std::array{2, 7})
                   : std::abs(early) < 0.1 ? 4
                                           : (early > 0.0 ? 0 : 5);
    else if (change > 0.0)
      v.tendency = early < -0.1 ? 3 : (late < -0.1 ? 0 : (std::abs(late) < 0.1 ? 1 : 2));
    else
      v.tendency = early > 0.1 ? 8 : (late > 0.1 ? 5 : (std::abs(late) < 0.1 ? 6 : 7));
  }

  void temperatures(Values& v) {
    v.air =
        rounded(std::clamp(air_now_ + chance_.normal(0.0, 0.25), -25.0, 40.0), habits_.air_step);
    v.sea = rounded(sea_ + chance_.normal(0.0, 0.3), habits_.sea_step);
    if (*v.sea < -2.0) v.sea = -1.8;
    depression_ = std::max(0.2, 2.8 + dry_.go_on(habits_.every) + outbreak_ * 0.25);
    // Air off a desert.
    if (chance_.once_in(250)) {
      depression_ = chance_.between(9.0, 22.0);
      v.air = std::min(40.0, rounded(*v.air + chance_.between(0.0, 10.0), habits_.air_step));
    }
  }

  // The dew point is told after the sky: in fog and rain the air is moist.
  void dew_point(Values& v, double most) {
    const double below =
        std::max(0.0, std::min(depression_, most) + habits_.bulbs + chance_.normal(0.0, 0.4));
    v.dew_point = rounded(std::min(*v.air, *v.air - below), 0.1);
  }

  void choose_sky() {
    const double slope = readings_[3] - readings_[0];
    const double warmer = air_now_ - sea_;
    if (warmer < -14.0 && chance_.once_in(2))
      sky_ = Sky::kSmoke;
    else if (warmer > 1.2 && knots_ < 18.0 && chance_.once_in(3))
      sky_ = Sky::kFog;
    else if (slope < -1.5 || (slope < -0.7 && chance_.once_in(2)))
      sky_ = chance_.once_in(4) ? Sky::kLayer : Sky::kRain;
    else if (outbreak_ > 2.5)
      sky_ = chance_.once_in(2) ? Sky::kShowers : Sky::kFair;
    else if (std::abs(latitude_) < 20.0 && chance_.once_in(14))
      sky_ = Sky::kThunder;
    else
      sky_ = static_cast<Sky>(chance_.code(std::array{0, 1, 1, 1, 2, 2, 2, 4, 8, 9}));
    if (depression_ > 8.0 && sky_ != Sky::kSmoke)
      sky_ = chance_.once_in(2) ? Sky::kClear : Sky::kHaze;
  }

  [[nodiscard]] bool snows() { return air_now_ + chance_.normal(0.0, 1.7) < 1.5; }

  void sky(Values& v) {
    constexpr double kAny = 99.0;
    v.low_cloud = v.cloud = 0;
    v.CL = v.CM = v.CH = 0;
    v.cloud_base = 9;
    v.visibility = chance_.code(std::array{97, 97, 98, 98, 98, 99});
    v.weather = chance_.one_of(0, 3);
    switch (sky_) {
      case Sky::kClear:
        v.weather = chance_.one_of(0, 2);
        if (!chance_.once_in(3)) {
          v.cloud = chance_.one_of(1, 2);
          v.CH = chance_.one_of(1, 8);
        }
        dew_point(v, kAny);
        return;
      case Sky::kHaze:
        v.weather = chance_.code(std::array{4, 5, 5, 6});
        v.visibility = chance_.code(std::array{94, 95, 96, 96, 97});
        few_clouds(v);
        dew_point(v, kAny);
        return;
      case Sky::kMist:
        v.weather = chance_.once_in(3) ? chance_.code(std::array{28, 40, 41}) : 10;
        v.visibility = chance_.once_in(40) ? 97 : chance_.code(std::array{94, 95, 96});
        few_clouds(v);
        dew_point(v, 2.5);
        return;
      case Sky::kFair:
        few_clouds(v);
        if (chance_.once_in(12)) v.weather = chance_.code(std::array{13, 15, 16, 21, 25});
        dew_point(v, kAny);
        return;
      case Sky::kLayer:
        layer(v);
        if (chance_.once_in(10))
          v.weather = snows() ? chance_.code(std::array{22, 71, 77})
                              : chance_.code(std::array{20, 21, 51, 60});
        dew_point(v, 7.0);
        return;
      case Sky::kRain:
        rain(v);
        dew_point(v, 7.0);
        return;
      case Sky::kShowers:
        showers(v);
        dew_point(v, 8.0);
        return;
      case Sky::kThunder:
        v.cloud = chance_.one_of(5, 8);
        v.low_cloud = std::min(7, chance_.one_of(3, *v.cloud));
        v.CL = chance_.once_in(2) ? 3 : 9;
        v.CM = hidden(v, chance_.one_of(3, 7));
        v.CH = hidden(v, 3);
        v.cloud_base = chance_.one_of(3, 5);
        v.weather = chance_.code(std::array{13, 17, 29, 91, 92, 95, 95, 97, 80, 81});
        v.visibility = chance_.code(std::array{95, 96, 97, 97});
        dew_point(v, 5.0);
        return;
      case Sky::kFog:
      case Sky::kSmoke:
        fog(v);
        dew_point(v, sky_ == Sky::kFog ? 0.8 : 3.0);
        return;
    }
  }

  // What is above clouds that cover most of the sky is often not seen.
  std::optional<int> hidden(const Values& v, int code) {
    if (v.low_cloud.value_or(0) < 7 && !chance_.once_in(3)) return code;
    // Seen through a gap that has closed again.
    if (chance_.once_in(40)) return code;
    if (habits_.counts_hidden_as_none) return 0;
    return std::nullopt;
  }

  void few_clouds(Values& v) {
    v.cloud = chance_.one_of(1, 6);
    v.low_cloud = chance_.one_of(1, *v.cloud);
    v.CL = chance_.code(std::array{1, 1, 2, 2, 4, 5, 8});
    v.CM = hidden(v, chance_.code(std::array{0, 0, 3, 4, 7}));
    v.CH = hidden(v, chance_.code(std::array{0, 0, 1, 2, 8}));
    v.cloud_base = chance_.code(std::array{3, 4, 4, 5, 5, 6});
  }

  void layer(Values& v) {
    v.cloud = chance_.one_of(6, 8);
    if (chance_.once_in(4)) {
      v.low_cloud = v.cloud;
      v.CM = chance_.code(std::array{1, 3, 4, 7});
      v.CH = chance_.once_in(3) ? std::optional(chance_.one_of(5, 8)) : std::nullopt;
      v.cloud_base = chance_.code(std::array{6, 7, 8, 8, 9});
      return;
    }
    v.low_cloud = chance_.one_of(5, *v.cloud);
    v.CL = chance_.code(std::array{5, 5, 6, 7, 8});
    v.CM = hidden(v, chance_.code(std::array{0, 2, 7}));
    v.CH = hidden(v, 0);
    v.cloud_base = chance_.code(std::array{2, 3, 4, 4, 5, 6});
  }

  void rain(Values& v) {
    layer(v);
    v.cloud = 8;
    if (v.CL == 0) v.CM = 2;
    const bool freezing = air_now_ < 1.5 && air_now_ > -6.0 && chance_.once_in(2);
    const bool snow = !freezing && snows();
    if (snow)
      v.weather = chance_.code(std::array{70, 71, 71, 73, 73, 75, 26, 77, 68});
    else if (freezing || air_now_ < 0.0)
      v.weather = chance_.code(std::array{56, 66, 67});
    else
      v.weather = chance_.code(std::array{50, 51, 53, 60, 61, 61, 63, 65, 20, 21, 58});
    const bool heavy = v.weather == 75 || v.weather == 65;
    v.visibility = heavy ? chance_.code(std::array{91, 92, 93, 94})
                         : (snow ? chance_.code(std::array{93, 94, 95, 96})
                                 : chance_.code(std::array{94, 95, 96, 97}));
    if (v.weather == 20 || v.weather == 21 || v.weather == 26)
      v.visibility = chance_.code(std::array{95, 96, 97, 98});
    if (*v.visibility < 94 && chance_.once_in(2)) {
      v.cloud = v.low_cloud = 9;
      v.CL = v.CM = v.CH = std::nullopt;
      v.cloud_base = std::nullopt;
    }
  }

  void showers(Values& v) {
    few_clouds(v);
    v.cloud = chance_.one_of(*v.cloud, 8);
    // One in so many falls from a layer in which the Cumulus cannot be told.
    v.CL = chance_.once_in(40) ? 5 : chance_.code(std::array{2, 3, 8, 9, 9});
    const bool snow = snows();
    v.weather = snow ? chance_.code(std::array{85, 85, 86, 26, 2})
                     : chance_.code(std::array{80, 80, 81, 25, 2, 15, 16, 18});
    v.visibility = v.weather == 86 ? chance_.code(std::array{92, 93, 94})
                                   : chance_.code(std::array{95, 96, 97, 98});
  }

  void fog(Values& v) {
    const bool thin = chance_.once_in(3);
    v.visibility = chance_.code(std::array{90, 91, 92, 93, 93});
    v.weather =
        (thin ? chance_.code(std::array{42, 44, 46}) : chance_.code(std::array{43, 45, 47}));
    if (sky_ == Sky::kSmoke && chance_.once_in(2)) {
      // Sea smoke in patches, or lower than the bridge.
      v.weather = chance_.code(std::array{12, 41});
      v.visibility = chance_.code(std::array{93, 95, 96, 97});
    }
    if (thin || v.weather == 12 || v.weather == 41) {
      few_clouds(v);
      return;
    }
    v.cloud = v.low_cloud = 9;
    v.CL = v.CM = v.CH = std::nullopt;
    v.cloud_base = chance_.once_in(2) ? std::optional(0) : std::nullopt;
  }

  void past_weather(Values& v) {
    const int now = std::array{0, 1, 2, 6, 8, 9, 4, 4, 1, 1}.at(static_cast<std::size_t>(sky_));
    const int code = now == 6 && v.weather && *v.weather >= 70 ? 7 : now;
    v.past_weather1 = std::max(code, last_weather_);
    v.past_weather2 = std::min(code, last_weather_);
    last_weather_ = code;
  }

  WaveValues waves_of(double height, double length_factor) {
    WaveValues w;
    const double seen = std::max(0.0, height * std::exp(chance_.normal(0.0, 0.2)));
    w.height = rounded(seen, 0.5);
    const double period = length_factor * std::sqrt(std::max(0.2, seen)) + chance_.normal(0.0, 1.0);
    w.period = *w.height == 0.0 ? (chance_.once_in(2) ? 0 : 2)
                                : std::max(2, static_cast<int>(std::round(period)));
    return w;
  }

  void waves(Values& v) {
    v.wind_waves = waves_of(sea_height_, chance_.between(3.3, 4.2));
    if (*v.wind_waves.height > 10.0) v.wind_waves.height = 10.0;
    if (chance_.once_in(6)) return;
    const double swell = 1.7 * std::exp(swell_.go_on(habits_.every)) + 0.3 * sea_height_;
    v.swell1 = waves_of(swell, chance_.between(4.8, 7.5));
    v.swell1.direction = chance_.one_of(1, 36) * 10;
    if (!chance_.once_in(5)) return;
    v.swell2 = waves_of(swell * 0.7, chance_.between(5.0, 8.0));
    v.swell2.direction = chance_.one_of(1, 36) * 10;
  }

  void ice(Values& v) {
    if (sea_ < 0.5 + chance_.normal(0.0, 1.5) && std::abs(latitude_) > 50.0 && chance_.once_in(2)) {
      v.ci = chance_.one_of(0, 6);
      v.Si = chance_.one_of(1, 9);
      v.bi = chance_.once_in(4) ? chance_.one_of(1, 6) : 0;
      if (*v.ci >= 2) {
        v.wind_waves.height = std::min(*v.wind_waves.height, 0.5);
        v.wind_waves.period = 2;
      }
    } else if (sea_ < 14.0 && std::abs(latitude_) > 42.0 && chance_.once_in(60)) {
      v.ci = 0;
      v.bi = 1;
    }
    if (air_now_ < -1.0 && knots_ > 17.0 && chance_.once_in(2)) {
      v.ice_cause = 1;
      v.ice_thickness = chance_.one_of(1, 12);
      v.ice_rate = chance_.one_of(0, 2);
    }
  }

  void actual_time(Values& v, int hour) {
    const int minutes = wrapped_minutes(hour % 24 * 60 + chance_.one_of(-25, 5));
    v.actual_hour = minutes / 60;
    v.actual_minute = minutes % 60;
  }
  static int wrapped_minutes(int minutes) {
    constexpr int kDay = 24 * 60;
    return (minutes + kDay) % kDay;
  }

  void leave_out(Values& v) {
    const auto out = [&] { return chance_.once_in(habits_.leaves_out); };
    if (out()) v.air = v.dew_point = std::nullopt;
    if (out()) v.dew_point = std::nullopt;
    if (out()) v.sea = std::nullopt;
    if (out()) v.pressure = v.change = std::nullopt;
    if (out()) v.weather = v.past_weather1 = v.past_weather2 = std::nullopt;
    if (out()) v.CL = v.CM = v.CH = v.low_cloud = v.cloud_base = std::nullopt;
    if (out()) v.visibility = std::nullopt;
    if (out()) v.wind_waves = v.swell1 = v.swell2 = WaveValues();
  }

  Chance chance_;
  Habits habits_;
  Wander air_, wind_, dry_, swell_, pressure_, patch_;
  std::vector<Storm> storms_;
  std::vector<std::pair<double, double>> track_;
  std::array<double, 4> readings_{};
  int month_ = 0;
  double hour_ = 0.0, latitude_ = 0.0, longitude_ = 0.0, course_ = 0.0, speed_ = 0.0, made_ = 0.0;
  int stopped_ = 0;
  int lull_ = 0;
  double drift_ = 0.0, knots_ = 10.0, direction_ = 0.0, sea_height_ = 1.0, outbreak_ = 0.0;
  double sea_ = 15.0, air_now_ = 15.0, edge_ = 0.0, depression_ = 3.0;
  bool first_ = true;
  Sky sky_ = Sky::kFair;
  int last_weather_ = 1;
};

}  // namespace

std::vector<PastObservation> voyage(std::uint64_t number) {
  Voyage voyage(number);
  return voyage.observations();
}

}  // namespace plausible
