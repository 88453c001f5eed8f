#pragma once
// Which drive takes floppy disks.

#include <optional>

#include "platform/ports.h"

namespace media {

/// True when a medium kind is a floppy form: anything but unknown (0), removable other than floppy
/// (11) and fixed (12).
[[nodiscard]] bool is_floppy_medium(int media_type);

/// True when a device kind, as older systems tell it, is a floppy drive (2 or 7).
[[nodiscard]] bool is_floppy_device(int device_type);

/// Letter of the first drive, in their order, whose type is removable and whose medium is of a
/// floppy kind. The medium need not be in it.
[[nodiscard]] std::optional<char> find_floppy_drive(const platform::Drives& drives);

}  // namespace media
