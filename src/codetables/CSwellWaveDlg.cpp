#include "codetables/CSwellWaveDlg.h"

#include <algorithm>
#include <utility>

#include "codetables/CWaveLengthDlg.h"
#include "codetables/wave_drawings.h"
#include "text/ids.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace id = text::id;
using codetables::kNoWaves;
using codetables::kWaveIndeterminate;
using codetables::kWaveUnknown;

namespace {

// The lines of `count`.
enum Count { kTwoOrMore, kOne, kNone, kNotObserved };

template <bool first>
constexpr WaveFigure direction_figure(text::Id out_of_range) {
  return {
      .lines = [](std::string_view) { return codetables::swell_direction_lines(first); },
      .check =
          [](std::string_view typed) { return codetables::check_swell_direction(typed, first); },
      .out_of_range = out_of_range};
}
constexpr WaveFigure kDirection1 = direction_figure<true>(id::kSwell1DirectionRange);
constexpr WaveFigure kDirection2 = direction_figure<false>(id::kSwell2DirectionRange);
constexpr WaveFigure kPeriod = {
    .lines = [](std::string_view) { return codetables::swell_period_lines(); },
    .check = [](std::string_view typed) { return codetables::check_wave_period(typed, false); },
    .out_of_range = id::kSwellPeriodRange,
    .doubt = id::kSwellPeriodQuestion};
constexpr WaveFigure kHeight = {.lines = codetables::wave_height_lines,
                                .check = codetables::check_wave_height,
                                .out_of_range = id::kWaveHeightRange,
                                .smallest = id::kSwellHeightSmallest,
                                .largest = 6};

}  // namespace

CSwellWaveDlg::CSwellWaveDlg(ui::Services& services, Values values, Observed observed)
    : OkCancelHelpDialog(services, "CSwellWaveDlg", {id::kSwellTitle}),
      observation_group(*this, "observation_group", {id::kSwellObservation}),
      count(*this, "count", {},
            {{id::kTwoSwells}, {id::kOneSwell}, {id::kNoSwell}, {id::kWavesNotObserved}}),
      rose_group(*this, "rose_group", {id::kSwellDirectionGroup}),
      rose(*this, "rose", {id::kSwellDirectionGroup}),
      side(*this, "side", {id::kDrawnWaveHeight}),
      swell1_group(*this, "swell1_group", {id::kSwell1}),
      direction1(*this, "direction1", {id::kSwellDirection}, kDirection1),
      period1(*this, "period1", {id::kWavePeriod}, kPeriod),
      height1(*this, "height1", {id::kSwellHeight}, kHeight),
      swell2_group(*this, "swell2_group", {id::kSwell2}),
      direction2(*this, "direction2", {id::kSwellDirection}, kDirection2),
      period2(*this, "period2", {id::kWavePeriod}, kPeriod),
      height2(*this, "height2", {id::kSwellHeight}, kHeight),
      else1_group(*this, "else1_group", {id::kSwell1Else}),
      direction1_unknown(*this, "direction1_unknown", {id::kSwellDirectionIsUnknown},
                         kWaveIndeterminate),
      period1_unknown(*this, "period1_unknown", {id::kWavePeriodUnknown}, kWaveUnknown),
      height1_unknown(*this, "height1_unknown", {id::kSwellHeightUnknown}, kWaveUnknown),
      length1(*this, "length1", {id::kSwellPeriodFromLength}),
      else2_group(*this, "else2_group", {id::kSwell2Else}),
      direction2_unknown(*this, "direction2_unknown", {id::kSwellDirectionIsUnknown}, kWaveUnknown),
      period2_unknown(*this, "period2_unknown", {id::kWavePeriodUnknown}, kWaveUnknown),
      height2_unknown(*this, "height2_unknown", {id::kSwellHeightUnknown}, kWaveUnknown),
      length2(*this, "length2", {id::kSwellPeriodFromLength}),
      values_(std::move(values)),
      observed_(observed),
      figures_{{{0, What::kDirection, direction1, direction1_unknown, &Swell::direction},
                {0, What::kPeriod, period1, period1_unknown, &Swell::period},
                {0, What::kHeight, height1, height1_unknown, &Swell::height},
                {1, What::kDirection, direction2, direction2_unknown, &Swell::direction},
                {1, What::kPeriod, period2, period2_unknown, &Swell::period},
                {1, What::kHeight, height2, height2_unknown, &Swell::height}}} {
  count.on_change = [this] { apply(); };
  for (Figure& figure : figures_) {
    figure.field.on_change = [this] { apply(); };
    figure.field.on_leave = [this, &figure] { return leave(figure.field); };
    figure.box.on_change = [this, &figure] { box_changed(figure); };
  }
  length1.on_press = [this] { take_period_of_length(figures_[1]); };
  length2.on_press = [this] { take_period_of_length(figures_[4]); };
}

CSwellWaveDlg::Swell& CSwellWaveDlg::swell(int number) {
  return number == 0 ? values_.first : values_.second;
}

bool CSwellWaveDlg::is_observed(int number) const {
  return number == 0 ? observed_.first : observed_.second;
}

void CSwellWaveDlg::on_open() {
  count.selected = kTwoOrMore;
  for (const Figure& figure : figures_) {
    const Swell& given = swell(figure.swell);
    std::string shown = given.*figure.member;
    if (figure.what == What::kHeight)
      shown = codetables::wave_height_shown(shown, given.period, figure.field.smallest());
    figure.field.open(given.*figure.member, shown);
    figure.box.set_own(given.*figure.member == figure.box.instead);
    // What a box says when the screen opens is nobody's text.
    if (figure.box.own()) {
      figure.field.say(figure.box.instead);
      figure.field.set_own({});
    }
    if (!is_observed(figure.swell))
      figure.field.why_locked = services().texts.get(id::kWhyNotObserved);
  }
  apply();
}

// What the choice of how many swells there are says.
std::optional<std::string> CSwellWaveDlg::said_by_count(const Figure& figure) const {
  const bool direction = figure.what == What::kDirection;
  switch (count.selected) {
    case kOne:
      if (figure.swell == 0) return std::nullopt;
      // "00" says that there is no second one; beside a first one from nowhere that is "//".
      if (!direction) return std::string();
      return std::string(direction1.content == kWaveIndeterminate ? kWaveUnknown : kNoWaves);
    case kNone:
      return std::string(direction ? kNoWaves : std::string_view());
    case kNotObserved:
      return std::string();
    default:
      return std::nullopt;
  }
}

// What something else than the person or the figure's own box says.
std::optional<std::string> CSwellWaveDlg::said(const Figure& figure) const {
  if (!is_observed(figure.swell))
    return figure.swell == 0 ? values_.first.*figure.member : values_.second.*figure.member;
  if (auto by_count = said_by_count(figure)) return by_count;
  if (!confused_) return std::nullopt;
  if (figure.what != What::kDirection) return std::string();
  return std::string(figure.swell == 0 ? kWaveIndeterminate : kWaveUnknown);
}

void CSwellWaveDlg::box_changed(Figure& figure) {
  figure.box.set_own(figure.box.checked);
  if (&figure.field == &direction1) {
    confused_ = direction1_unknown.checked;
    // The direction that was there is not brought back; the other figures are.
    if (!confused_) direction1.set_own({});
  }
  apply();
}

// From first to last: what is said of the second swell follows from the first one's direction.
void CSwellWaveDlg::apply() {
  for (const Figure& figure : figures_) {
    const auto by_others = said(figure);
    // The box that says that the direction is unknown stays open to be taken back.
    const bool own_doing =
        confused_ && &figure.box == &direction1_unknown && is_observed(0) && !said_by_count(figure);
    if (by_others && !own_doing) {
      figure.box.say(*by_others == figure.box.instead);
    } else {
      figure.box.say(std::nullopt);
    }
    if (by_others) {
      figure.field.say(by_others);
    } else {
      figure.field.say(figure.box.own() ? std::optional(figure.box.instead) : std::nullopt);
    }
  }
  length1.enabled = !said(figures_[1]);
  length2.enabled = !said(figures_[4]);
  draw();
}

void CSwellWaveDlg::draw() {
  rose.drawing = codetables::drawn_directions({direction1.number(), direction2.number()});
  side.drawing = codetables::drawn_heights({{height1.number(), "1: " + height1.content + " m"},
                                            {height2.number(), "2: " + height2.content + " m"}});
}

bool CSwellWaveDlg::leave(CWaveField& field) {
  const bool taken = field.check(services().messages, id::kSwellNumberNeededCaption);
  apply();
  return taken;
}

// An empty field may be left for what can answer for it: a box, the choice, the wave length.
bool CSwellWaveDlg::check_can_wait(const ui::Control& from, const ui::Control& to) const {
  return from.kind == ui::Kind::kCombo && text::trim(from.content).empty() &&
         to.kind != ui::Kind::kCombo && to.role == ui::Role::kNone;
}

void CSwellWaveDlg::take_period_of_length(Figure& figure) {
  CWaveLengthDlg dialog(services());
  if (services().windows.run_modal(dialog) != ui::kOk) return;
  figure.box.set_own(false);
  figure.field.set_own(dialog.period());
  apply();
}

void CSwellWaveDlg::on_ok() {
  // A sea of swells from everywhere has no second one with a direction.
  if (is_observed(0) && is_observed(1) && direction1.value() == kWaveIndeterminate &&
      direction2.value() != kWaveUnknown) {
    const Speaking of(*this, direction2);
    services().messages.error_titled(id::kSwell2DirectionMustBeUnknown, id::kSwellPairCaption);
    focus(direction2);
    return;
  }
  for (const Figure& figure : figures_) swell(figure.swell).*figure.member = figure.field.value();
  close(ui::kOk);
}
