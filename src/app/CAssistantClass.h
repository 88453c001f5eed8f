#pragma once
// Small answers about the computer that several places ask for.

#include <cstdint>
#include <optional>
#include <string>

#include "platform/ports.h"

namespace app {

/// How a floppy drive is recognised: by its medium kind, or by the device kind of older systems.
enum class SystemFamily { kCurrent, kOlder };

class CAssistantClass {
 public:
  CAssistantClass(const platform::Drives& drives, const platform::Files& files)
      : drives_(drives), files_(files) {}

  /// Folder part of the program's path as started, without a final "\"; the current folder when
  /// the path holds no "\".
  [[nodiscard]] std::string program_folder() const;
  /// Bytes free on a drive; nothing without a medium.
  [[nodiscard]] std::optional<std::uint64_t> free_space(char letter) const;
  [[nodiscard]] SystemFamily system_family() const;

 private:
  const platform::Drives& drives_;
  const platform::Files& files_;
};

}  // namespace app
