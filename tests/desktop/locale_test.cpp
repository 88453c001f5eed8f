// Numbers keep their points whatever the desktop's locale does to the process.

#include <gtest/gtest.h>

#include <clocale>
#include <string>

#include "desktop/desktop_windows.h"
#include "text/numbers.h"

namespace {

// Takes over the first of these locales that this computer has.
std::string use_comma_locale() {
  for (const char* const name : {"de_DE.UTF-8", "de_DE.utf8", "fr_FR.UTF-8", "ru_RU.UTF-8"})
    if (std::setlocale(LC_ALL, name) != nullptr) return name;
  return {};
}

TEST(NumberLocale, IsPutBackAfterTheDesktopTookTheSessionsOver) {
  const std::string before = std::setlocale(LC_ALL, nullptr);
  const std::string comma = use_comma_locale();
  if (comma.empty()) GTEST_SKIP() << "no locale with a decimal comma is installed";
  ASSERT_STREQ(",", std::localeconv()->decimal_point);
  desktop::prepare_application();
  EXPECT_STREQ(".", std::localeconv()->decimal_point);
  EXPECT_STREQ(comma.c_str(), std::setlocale(LC_CTYPE, nullptr)) << "letters are left alone";
  std::setlocale(LC_ALL, before.c_str());
}

TEST(NumberLocale, IsThePlainOneAfterPreparing) {
  const std::string before = std::setlocale(LC_ALL, nullptr);
  if (std::setlocale(LC_ALL, "C.UTF-8") == nullptr) GTEST_SKIP() << "C.UTF-8 is not installed";
  desktop::prepare_application();
  EXPECT_STREQ("C", std::setlocale(LC_NUMERIC, nullptr));
  std::setlocale(LC_ALL, before.c_str());
}

TEST(NumberLocale, DoesNotReachTheProgramsOwnNumbers) {
  const std::string before = std::setlocale(LC_ALL, nullptr);
  if (use_comma_locale().empty()) GTEST_SKIP() << "no locale with a decimal comma is installed";
  EXPECT_EQ("1013.2", text::format_fixed(1013.2, 1));
  std::setlocale(LC_ALL, before.c_str());
}

}  // namespace
