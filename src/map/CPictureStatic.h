#pragma once
// The map on the main window: where the ship is.

#include <memory>
#include <optional>
#include <string_view>

#include "map/map_view.h"
#include "map/tiles/SeaMap.h"
#include "text/texts.h"
#include "ui/control.h"
#include "ui/services.h"

/// A click, or F7, opens the larger view.
class CPictureStatic : public ui::Picture {
 public:
  /// `services` and `sea_map` outlive it. Empty until a ship is shown.
  CPictureStatic(ui::Screen& owner, std::string_view control_name, text::Ref text,
                 ui::Services& services, map::SeaMap& sea_map);

  /// Draws anew only when something differs from what is shown, the language included.
  void show(map::ShipOnMap ship);

 private:
  void open_larger();

  ui::Services& services_;
  map::SeaMap& sea_map_;
  map::ShipOnMap ship_;
  text::Language language_ = text::Language::kEnglish;
};
