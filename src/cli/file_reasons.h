#pragma once
// What the commands say of a file that could not be read or written.

#include <string_view>

#include "platform/ports.h"

namespace cli {

/// "no space left": the words behind "FILE cannot be written: "; empty for kNone.
[[nodiscard]] std::string_view reason_of(platform::FileError error);

}  // namespace cli
