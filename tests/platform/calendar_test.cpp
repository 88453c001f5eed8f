#include "platform/calendar.h"

#include <gtest/gtest.h>

namespace {

TEST(Calendar, CountsDaysFromTheFirstOf2000) {
  // 2000 is a leap year.
  EXPECT_EQ(platform::day_number(2000, 1, 1), 0);
  EXPECT_EQ(platform::day_number(2000, 2, 29), 59);
  EXPECT_EQ(platform::day_number(2000, 3, 1), 60);
  EXPECT_EQ(platform::day_number(2001, 1, 1), 366);
  EXPECT_EQ(platform::day_number(2014, 11, 15), 5432);
  EXPECT_EQ(platform::day_number(2015, 1, 1) - platform::day_number(2014, 12, 31), 1);
}

TEST(Calendar, CountsOnDayByDayToTheLastYearOfAReportsName) {
  int expected = 0;
  for (int year = 2000; year <= 2099; ++year) {
    for (int month = 1; month <= 12; ++month) {
      for (int day = 1; day <= platform::days_in_month(year, month); ++day)
        ASSERT_EQ(platform::day_number(year, month, day), expected++)
            << year << " " << month << " " << day;
    }
  }
}

}  // namespace
