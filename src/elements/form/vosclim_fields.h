#pragma once
// The five VOSClim values of an observation: the wind observed on board and the ship's movement, as
// the officer enters them for the true wind anyway. The logbook has a column for each:
//
//   VosClim1  wind direction from the bow   apparent_direction   three figures
//   VosClim2  wind speed on board, knots    apparent_speed       three
//   VosClim3  heading                       heading              three
//   VosClim4  speed over ground, knots      ship_speed           two
//   VosClim5  course over ground            course               three
//
// IMMT-5 counts directions from 001 to 360: north, and a wind from right ahead, are 360. 000 says
// that there is none, a calm or a ship that does not move, so it stands beside a speed of 0 whatever
// direction was entered; beside a speed that is missing nobody knows what an entered 0 means. A ship
// that lies has a heading all the same, by which its wind from the bow is read: it stays as it is,
// also where 000 for "no movement" would be allowed.
//
// Speeds are whole knots, rounded as for the true wind, which so comes out the same from what the
// logbook holds. A value that is missing, or does not fit into its column, is empty.

#include "elements/form/entries.h"

namespace elements {

/// Where the fields of the apparent wind tell the VOSClim values: on a registered ship that observes
/// the apparent wind. Not for a record in metres a second, whose wind on board is in that unit too.
[[nodiscard]] bool tells_vosclim(const ShipFixedData& ship, const Struct_Weather& record);

/// The record's five values as the fields tell them; where they do not, all are empty.
void set_vosclim(Entries& entries, const ShipFixedData& ship);

/// The other way round: fields that are empty show what the record has. Nothing is computed.
void show_vosclim(Entries& entries, const ShipFixedData& ship);

[[nodiscard]] bool has_any_vosclim(const Struct_Weather& record);

}  // namespace elements
