#pragma once
// A WIGOS station identifier, "0-22000-0-XXXXXXX": series, issuer, issue number, local identifier.

#include <string>
#include <string_view>
#include <variant>

namespace bufr {

struct WigosIdentifier {
  int series = 0;     ///< 0 to 14
  int issuer = 0;     ///< 0 to 65534
  int issue = 0;      ///< 0 to 65534
  std::string local;  ///< 1 to 16 letters and figures
  bool operator==(const WigosIdentifier&) const = default;
};

/// The identifier, or what is wrong with the text ("the issuer is a number from 0 to 65534").
[[nodiscard]] std::variant<WigosIdentifier, std::string> wigos_identifier(std::string_view text);

}  // namespace bufr
