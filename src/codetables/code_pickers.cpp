#include "codetables/code_pickers.h"

#include "text/ids.h"

namespace codetables {
namespace {

namespace id = text::id;
using R = Struct_Weather;

// ---- Course and speed made good during the three hours before the observation

constexpr PickerLine kTable0700[] = {
    {"0", id::kDsUnchanged}, {"1", id::kDsNortheast},   {"2", id::kDsEast},
    {"3", id::kDsSoutheast}, {"4", id::kDsSouth},       {"5", id::kDsSouthwest},
    {"6", id::kDsWest},      {"7", id::kDsNorthwest},   {"8", id::kDsNorth},
    {"9", id::kDsUnknown},   {"/", id::kDsNotObserved},
};

// Exactly 40 knots is a 9.
constexpr PickerLine kTable4451[] = {
    {"0", id::kVsUnder1},  {"1", id::kVsUnder6},   {"2", id::kVsUnder11}, {"3", id::kVsUnder16},
    {"4", id::kVsUnder21}, {"5", id::kVsUnder26},  {"6", id::kVsUnder31}, {"7", id::kVsUnder36},
    {"8", id::kVsUnder40}, {"9", id::kVs40OrMore}, {"/", id::kVsUnknown},
};

constexpr PickedCode kMovementCodes[] = {
    {.name = "course", .caption = id::kMovementCourse, .member = &R::Ds, .lines = kTable0700},
    {.name = "speed", .caption = id::kMovementSpeed, .member = &R::Vs, .lines = kTable4451},
};

// ---- Visibility: of code table 4377 the bands that serve at sea

constexpr PickerLine kTable4377[] = {
    {"//", id::kVisibilityUnknown}, {"99", id::kVisibility50km},  {"98", id::kVisibility20km},
    {"97", id::kVisibility10km},    {"96", id::kVisibility4km},   {"95", id::kVisibility2km},
    {"94", id::kVisibility1km},     {"93", id::kVisibility500m},  {"92", id::kVisibility200m},
    {"91", id::kVisibility50m},     {"90", id::kVisibilityBelow},
};

constexpr PickedCode kVisibilityCodes[] = {
    {.name = "choice", .member = &R::VV, .lines = kTable4377},
};

}  // namespace

constexpr CodePicker kMovement = {
    .class_name = "CDvDsDlg",
    .title = id::kMovementTitle,
    .codes = kMovementCodes,
};

constexpr CodePicker kVisibility = {
    .class_name = "CEyeShotDlg",
    .title = id::kVisibilityTitle,
    .heading = id::kVisibilityHeading,
    .group = id::kVisibilityGroup,
    .codes = kVisibilityCodes,
};

std::span<const CodePicker* const> code_pickers() {
  static constexpr const CodePicker* kAll[] = {&kMovement, &kVisibility};
  return kAll;
}

}  // namespace codetables
