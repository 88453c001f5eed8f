#include "map/CSeaMapDlg.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <string>
#include <utility>

#include "map/map_drawing.h"
#include "text/ids.h"
#include "text/numbers.h"

namespace id = text::id;

namespace {

constexpr int kCharacters = 90;
constexpr int kLines = 24;
constexpr int kPixels = 1000;  // the height to which it is drawn finely
constexpr double kMinutes = 60.0;

int minutes_of(double degrees) {
  return static_cast<int>(std::lround(degrees * kMinutes));
}

}  // namespace

CSeaMapDlg::CSeaMapDlg(ui::Services& services, map::SeaMap& sea_map, map::ShipOnMap ship)
    : OkDialog(services, "CSeaMapDlg", {id::kMapTitle}),
      picture(*this, "picture"),
      shown(
          *this, "shown", {id::kMapShown},
          {{id::kMapWholeTile}, {id::kMapTenDegrees}, {id::kMapFiveDegrees}, {id::kMapOneDegree}}),
      position(*this, "position"),
      legend(*this, "legend"),
      closer(*this, "closer", {id::kMapCloser}),
      wider(*this, "wider", {id::kMapWider}),
      help(*this, "help", {id::kHelpLabel}, ui::Role::kHelp),
      sea_map_(sea_map),
      ship_(std::move(ship)) {
  closer.shortcut = "+";
  wider.shortcut = "-";
  shown.on_change = [this] { draw(); };
  closer.on_press = [this] { go(1); };
  wider.on_press = [this] { go(-1); };
}

void CSeaMapDlg::on_open() {
  shown.selected = static_cast<int>(map::Step::kTenDegrees);
  std::string told =
      text::fill(services().texts.get(id::kMapPosition),
                 {map::latitude_text(minutes_of(ship_.at->latitude), services().texts),
                  map::longitude_text(minutes_of(ship_.at->longitude), services().texts)});
  position.literal_caption = std::move(told);
  draw();
}

void CSeaMapDlg::go(int steps) {
  const int step = std::clamp(shown.selected + steps, 0, map::kSteps - 1);
  // The focus stays where the next arrow goes on from here.
  focus(shown);
  if (step == shown.selected) return;
  shown.selected = step;
  draw();
}

void CSeaMapDlg::draw() {
  const auto step = static_cast<map::Step>(std::clamp(shown.selected, 0, map::kSteps - 1));
  const map::MapView view = map::view_around(*ship_.at, step);
  ui::Drawing drawing = map::map_drawing(ship_, view, kPixels, sea_map_, services().texts);
  drawing.characters = kCharacters;
  drawing.lines = kLines;
  drawing.grows = true;
  picture.drawing = std::make_shared<const ui::Drawing>(std::move(drawing));
  const text::Texts& texts = services().texts;
  legend.literal_caption =
      text::fill(texts.get(id::kMapHeight), {text::format_int(minutes_of(view.height()))});
  const auto arrow = map::arrow_of(ship_, view);
  if (arrow && arrow->is_run)
    legend.literal_caption.append(
        text::fill(texts.get(id::kMapArrowHours), {text::format_int(view.arrow_hours)}));
  else if (arrow)
    legend.literal_caption.append(texts.get(id::kMapArrow));
}
