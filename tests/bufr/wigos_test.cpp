// The parts of a WIGOS identifier.

#include "bufr/wigos.h"

#include <gtest/gtest.h>

#include <utility>

namespace {

using bufr::WigosIdentifier;

std::string wrong(std::string_view text) {
  const auto result = bufr::wigos_identifier(text);
  return std::holds_alternative<std::string>(result) ? std::get<std::string>(result) : "";
}

TEST(Wigos, IdentifierIsFourParts) {
  EXPECT_EQ(std::get<WigosIdentifier>(bufr::wigos_identifier("0-22000-0-ABC1234")),
            (WigosIdentifier{0, 22000, 0, "ABC1234"}));
  EXPECT_EQ(std::get<WigosIdentifier>(bufr::wigos_identifier("14-65534-65534-A1b2C3d4E5f6G7h8")),
            (WigosIdentifier{14, 65534, 65534, "A1b2C3d4E5f6G7h8"}));
}

TEST(Wigos, EachPartIsNamedWhenItIsWrong) {
  const std::string series = "the series is a number from 0 to 14";
  const std::string issuer = "the issuer is a number from 0 to 65534";
  const std::string issue = "the issue number is a number from 0 to 65534";
  const std::string local = "the local identifier is 1 to 16 letters and figures";
  const std::string parts = "it has four parts, series-issuer-issue-local";
  const std::pair<const char*, std::string> kCases[] = {
      {"", parts},
      {"0", parts},
      {"0-22000-0", parts},
      {"15-22000-0-A", series},
      {"-22000-0-A", series},
      {"x-22000-0-A", series},
      {" 0-22000-0-A", series},
      {"99999999999999999999-22000-0-A", series},
      {"0-65535-0-A", issuer},
      {"0--0-A", issuer},
      {"0-22000-65535-A", issue},
      {"0-22000--1-A", issue},
      {"0-22000-0-", local},
      {"0-22000-0-A1b2C3d4E5f6G7h8i", local},
      {"0-22000-0-A-B", local},
      {"0-22000-0-A B", local},
      {"0-22000-0-\xc3\xa9", local},
  };
  for (const auto& [text, reason] : kCases) EXPECT_EQ(wrong(text), reason) << text;
}

}  // namespace
