#pragma once
// Is the ship where it can be? Asked after the observation's time or position was changed.

#include <functional>
#include <optional>
#include <string>

#include "observation/Struct_Weather.h"
#include "platform/ports.h"
#include "text/texts.h"

namespace elements {

/// True when a position lies on land or in a coastal region; degrees, north and east positive.
using LandTest = std::function<bool(double latitude, double longitude)>;

/// Position of the record in degrees and minutes, north and east positive; nothing while a part is
/// missing.
struct SignedPosition {
  double latitude = 0.0;
  double longitude = 0.0;
};
[[nodiscard]] std::optional<SignedPosition> signed_position(const Struct_Weather& record);

/// Where the ship was three hours earlier.
struct EarlierPosition {
  /// Nothing when the date is not complete, the report does not exist or cannot be read, or a
  /// figure of its position groups is missing.
  std::optional<codetables::TenthsPosition> position;
  std::string report = {};  ///< path of the report; empty when the date is not complete
  /// Why a report cannot be read of which one cannot say that it does not exist.
  platform::FileError unreadable = platform::FileError::kNone;
};
/// Reads the report of three hours earlier. The folder is as the settings have it.
[[nodiscard]] EarlierPosition earlier_position(const Struct_Weather& record,
                                               const platform::Files& files,
                                               const std::string& report_folder);

/// The warnings about the record's position, in the language of the moment: on land, and at most
/// one about the movement since three hours earlier, or that the report of then cannot be read and
/// so nothing was compared. Each without its line breaks, ended by CR LF;
/// empty when there is nothing to warn of. Warnings only: nothing is refused. Without a land test
/// the sea is everywhere. That the ship is on land is no news where the officer has confirmed it
/// (`land_confirmed`): it is told beside other warnings then, never alone.
[[nodiscard]] std::string review_position(const Struct_Weather& record,
                                          const platform::Files& files,
                                          const std::string& report_folder,
                                          const LandTest& is_on_land, const text::Texts& texts,
                                          bool land_confirmed = false);

}  // namespace elements
