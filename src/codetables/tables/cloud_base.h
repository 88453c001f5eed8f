#pragma once
// Height of the base of the lowest cloud h (code table 1600).

#include <string>
#include <string_view>

namespace codetables {

/// The code as the upper bound of its class in metres ("4" is "599"; "9", which has none, is
/// "2500"). "/" and any other text give an empty text.
[[nodiscard]] std::string cloud_base_metres(std::string_view h);

/// The class whose lower limit a height in metres reaches. What is no height ("/") stays.
[[nodiscard]] std::string cloud_base_code(std::string_view metres);

}  // namespace codetables
