#pragma once
// Horizontal visibility VV (code table 4377, the codes 90 to 99 that serve at sea).

#include <string>
#include <string_view>

namespace codetables {

/// The code as the upper bound of its class in metres ("94" is "1999"). "//" gives an empty text,
/// any other text comes back unchanged.
[[nodiscard]] std::string visibility_metres(std::string_view vv);

/// The class whose lower limit a distance in metres reaches ("1999" is "94"). What is no distance
/// stays.
[[nodiscard]] std::string visibility_code(std::string_view metres);

}  // namespace codetables
