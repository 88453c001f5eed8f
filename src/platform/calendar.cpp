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

// Counted in years that begin in March, so that the leap day is a year's last.
int day_number(int year, int month, int day) {
  constexpr int kDaysOf400Years = 146097;
  constexpr int kFirstOf2000 = 730425;  // from 1 March of the year 0
  const int from_march = (month + 9) % 12;
  const int years = year - (month <= 2 ? 1 : 0);
  const int of_400 = years % 400;
  const int days = of_400 * 365 + of_400 / 4 - of_400 / 100 + (153 * from_march + 2) / 5 + day - 1;
  return years / 400 * kDaysOf400Years + days - kFirstOf2000;
}

}  // namespace platform
