#include "platform/calendar.h"

namespace platform {

int days_in_month(int year, int month) {
  constexpr int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  if (month < 1 || month > 12) return 0;
  const bool leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
  return kDays[month - 1] + (month == 2 && leap ? 1 : 0);
}

bool is_calendar_date(int year, int month, int day) {
  return year >= 1 && year <= 9999 && day >= 1 && day <= days_in_month(year, month);
}

int day_number(int year, int month, int day) {
  constexpr int kFirstYear = 2000;
  constexpr int kMonths = 12;
  int days = day - 1;
  for (int before = kFirstYear; before <= year; ++before) {
    for (int each = 1; each <= (before < year ? kMonths : month - 1); ++each)
      days += days_in_month(before, each);
  }
  return days;
}

}  // namespace platform
