#pragma once
// Observations as WMO BUFR messages, edition 4, one of them in each. The only file that ecCodes is
// called from is message.cpp.

#include <optional>
#include <string>

#include "bufr/elements.h"
#include "bufr/wigos.h"

namespace bufr {

/// Throws std::runtime_error, with the reason in English, when ecCodes or its tables cannot do
/// what is asked of them.
[[nodiscard]] std::string encode(const Contents& contents,
                                 const std::optional<WigosIdentifier>& wigos);

}  // namespace bufr
