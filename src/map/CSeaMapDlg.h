#pragma once
// The larger map: step by step nearer to the ship and away from her.

#include "map/map_view.h"
#include "map/tiles/SeaMap.h"
#include "ui/dialog.h"

class CSeaMapDlg : public ui::OkDialog {
 public:
  /// `ship.at` has a value; `sea_map` outlives the dialog.
  CSeaMapDlg(ui::Services& services, map::SeaMap& sea_map, map::ShipOnMap ship);

  ui::Picture picture;
  ui::Choice shown;  ///< the steps (map::Step)
  ui::Label position;
  ui::Label legend;  ///< what a length on the map is
  ui::Button closer;
  ui::Button wider;
  ui::Button help;

 protected:
  void on_open() override;

 private:
  void go(int steps);
  void draw();

  map::SeaMap& sea_map_;
  map::ShipOnMap ship_;
};
