#include "map/CPictureStatic.h"

#include <utility>

#include "map/CSeaMapDlg.h"
#include "map/map_drawing.h"
#include "text/ids.h"

namespace {

// The room that it has in the smallest window, and the height to which it is drawn finely.
constexpr int kCharacters = 28;
constexpr int kLines = 8;
constexpr int kPixels = 400;

std::shared_ptr<const ui::Drawing> with_room(ui::Drawing drawing) {
  drawing.characters = kCharacters;
  drawing.lines = kLines;
  drawing.grows = true;
  return std::make_shared<const ui::Drawing>(std::move(drawing));
}

}  // namespace

CPictureStatic::CPictureStatic(ui::Screen& owner, std::string_view control_name, text::Ref text,
                               ui::Services& services, map::SeaMap& sea_map)
    : ui::Picture(owner, control_name, text), services_(services), sea_map_(sea_map) {
  drawing = with_room({});
  repeats = true;
  shortcut = "F7";
  on_press = [this] { open_larger(); };
}

void CPictureStatic::show(map::ShipOnMap ship) {
  ship = map::on_globe(std::move(ship));
  const text::Language language = services_.texts.language;
  if (ship == ship_ && language == language_) return;
  if (ship.at) {
    const map::MapView view = map::view_around(*ship.at, map::Step::kTile);
    drawing = with_room(map::map_drawing(ship, view, kPixels, sea_map_, services_.texts));
  } else {
    drawing = with_room({});
  }
  ship_ = std::move(ship);
  language_ = language;
}

void CPictureStatic::open_larger() {
  if (!ship_.at) {
    services_.messages.error(text::id::kMapNoPosition);
    return;
  }
  CSeaMapDlg larger(services_, sea_map_, ship_);
  services_.windows.run_modal(larger);
}
