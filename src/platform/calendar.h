#pragma once
// Which days exist.

namespace platform {

/// Days of a month 1-12 of the Gregorian calendar (February 2100 has 28); 0 for any other month.
[[nodiscard]] int days_in_month(int year, int month);

/// True for a day of the Gregorian calendar, year 1 to 9999.
[[nodiscard]] bool is_calendar_date(int year, int month, int day);

/// Days since 1 January 2000 of a day from then on.
[[nodiscard]] int day_number(int year, int month, int day);

}  // namespace platform
