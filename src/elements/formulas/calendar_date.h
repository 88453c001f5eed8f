#pragma once
// Which days exist, and which years observations are made in.

namespace elements {

/// Days of a month 1-12 of the Gregorian calendar (February 2100 has 28); 0 for any other month.
[[nodiscard]] int days_in_month(int year, int month);

/// True for a day of the Gregorian calendar, year 1 to 9999.
[[nodiscard]] bool is_calendar_date(int year, int month, int day);

/// Years that an observation may bear, both included: those of the report's form, up to the next
/// one, since a ship's clock may run ahead at new year. `this_year` is the clock's, UTC.
struct Years {
  int first = 0;
  int last = 0;
};
[[nodiscard]] Years observation_years(int this_year);

}  // namespace elements
