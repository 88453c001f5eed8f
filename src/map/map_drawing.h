#pragma once
// The map of a view as a drawing: land and sea, the lines of the graticule, the ship and her track.

#include <memory>
#include <string>

#include "map/map_view.h"
#include "map/tiles/SeaMap.h"
#include "text/texts.h"
#include "ui/drawing.h"

namespace map {

/// The map for a picture of about so many pixels from south to north: what is smaller than these is
/// left out, but an island stays as a speck. Where a tile cannot be used the words "no map" stand
/// instead of land and sea. `ship.at` has a value.
[[nodiscard]] ui::Drawing map_drawing(const ShipOnMap& ship, const MapView& view, int pixels,
                                      SeaMap& sea_map, const text::Texts& texts);

/// "35°N", "139°45′E", "0°", "180°"; minutes of arc, north and east positive, a longitude also
/// beyond the date line.
[[nodiscard]] std::string latitude_text(int minutes, const text::Texts& texts);
[[nodiscard]] std::string longitude_text(int minutes, const text::Texts& texts);

}  // namespace map
