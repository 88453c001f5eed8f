#include "elements/CUTCTimeDlg1.h"

#include <utility>

#include "platform/calendar.h"
#include "text/ids.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace id = text::id;

namespace {

constexpr int kHoursBetweenReports = 3;

std::string or_clock(const std::string& value, int clock) {
  return text::trim(value).empty() ? text::format_int(clock) : value;
}

}  // namespace

CUTCTimeDlg1::CUTCTimeDlg1(ui::Services& services, Values values)
    : OkCancelHelpDialog(services, "CUTCTimeDlg1", {id::kUtcTimeTitle}),
      hint(*this, "hint", {id::kUtcTimeHint}),
      year(*this, "year", {id::kUtcYear}, 4),
      month(*this, "month", {id::kUtcMonth}, 2),
      day(*this, "day", {id::kUtcDay}, 2),
      hour(*this, "hour", {id::kUtcHour}, 2),
      values_(std::move(values)),
      years_(elements::observation_years(services.clock.utc().year)),
      year_(services, year, years_.first, years_.last, 1, id::kInvalidYear),
      month_(services, month, 1, 12, 2, id::kInvalidMonth),
      day_(services, day, 1, 31, 2, id::kInvalidDay),
      hour_(services, hour, 0, 23, 2, id::kInvalidHour) {
  for (ui::Control* const field : std::initializer_list<ui::Control*>{&year, &month, &day, &hour})
    field->figures = true;
  month.moves_on_when_full = day.moves_on_when_full = hour.moves_on_when_full = true;
  month.items = text::numbered_lines(1, 12, 2);
  day.items = text::numbered_lines(1, 31, 2);
  hour.items = text::numbered_lines(0, 23, 2);
}

void CUTCTimeDlg1::on_open() {
  const platform::DateTime now = services().clock.utc();
  year_.open(or_clock(values_.Year, now.year));
  month_.open(or_clock(values_.Month, now.month));
  day_.open(or_clock(values_.YY, now.day));
  hour_.open(or_clock(values_.GG, now.hour));
  // The clock's hour is seldom a synoptic one, and then it is what is to be chosen.
  if (hour_fault()) focus(hour);
}

// The clock's hour is only an offer: a report belongs to a main or intermediate synoptic hour.
text::Id CUTCTimeDlg1::hour_fault() const {
  if (text::trim(hour.content).empty()) return {};
  if (!hour_.number()) return id::kInvalidHour;
  return *hour_.number() % kHoursBetweenReports == 0 ? text::Id() : id::kNotSynopticHour;
}

bool CUTCTimeDlg1::complete() {
  // Figures are a year, if a wrong one; anything else is no date at all.
  if (!year_.number())
    return refuse(
        year, text::is_all_digits(text::trim(year.content)) ? id::kInvalidYear : id::kInvalidDay);
  if (!month_.number()) return refuse(month, id::kInvalidDay);
  if (!day_.number() ||
      !platform::is_calendar_date(*year_.number(), *month_.number(), *day_.number()))
    return refuse(day, id::kInvalidDay);
  const text::Id fault = hour_fault();
  return !fault || refuse(hour, fault);
}

void CUTCTimeDlg1::on_ok() {
  if (!complete()) return;
  values_ = {year_.figures(), month_.figures(), day_.figures(), hour_.figures()};
  close(ui::kOk);
}
