#pragma once
// The font of what lines up in columns: reports, listings, lists of files.

#include <QString>

namespace desktop {

/// An installed family of fixed pitch that has Japanese characters, two columns wide; without one
/// the system's fixed font, whose Japanese comes from another family and may not line up.
[[nodiscard]] const QString& fixed_pitch_family();

}  // namespace desktop
