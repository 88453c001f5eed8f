// A map, a curve or a picture in a script: `show` tells what is drawn, `click` with a place clicks
// there, and what a handler draws anew is a change.

#include <gtest/gtest.h>

#include "headless/test_form.h"

namespace {

class CMapDlg : public ui::Screen {
 public:
  explicit CMapDlg(ui::Services& services) : Screen(services, "CMapDlg", {text::id::kHelpLabel}) {
    draw({135, 35});
    map.on_point = [this](ui::Point at) { draw(at); };
    picture.content = "waves.png";
    picture.on_press = [this] { note.content = "pressed"; };
    picture.shortcut = "F7";
  }
  ui::Edit note{*this, "note"};
  ui::Picture map{*this, "map"};
  ui::Picture picture{*this, "picture"};
  ui::Picture still{*this, "still"};

 private:
  void draw(ui::Point ship) {
    ui::Drawing drawing;
    drawing.x = {"longitude", 130, 140};
    drawing.y = {"latitude", 30, 40};
    drawing.shapes = {ui::Marker{ship}};
    map.drawing = std::make_shared<const ui::Drawing>(std::move(drawing));
  }
};

test_form::Played play(std::string_view script) {
  std::istringstream source{std::string(script)};
  std::ostringstream transcript;
  std::ostringstream error;
  const auto status =
      headless::run_session(source, transcript, error, [](const headless::Doors& doors) {
        fakes::World world;
        ui::Messages messages(world.texts, doors.windows);
        text::HelpLauncher help(world.texts, doors.help, "C:\\program");
        ui::Services services{world.clock,     world.locale,  world.drives,  world.no_files,
                              world.code_page, doors.printer, doors.windows, world.texts,
                              messages,        help};
        CMapDlg map(services);
        doors.windows.run_modal(map);
      });
  return {static_cast<int>(status), transcript.str(), error.str()};
}

TEST(ScriptedPicture, IsToldByShow) {
  const auto played = play("start\nshow map\nshow picture\nclose\n");
  EXPECT_EQ(played.status, 0) << played.error;
  EXPECT_NE(played.transcript.find("map picture of longitude 130 to 140, latitude 30 to 40\n"),
            std::string::npos)
      << played.transcript;
  EXPECT_NE(played.transcript.find("    dot mark (135 35)\n"), std::string::npos)
      << played.transcript;
  EXPECT_NE(played.transcript.find("picture picture = \"waves.png\" [key F7]\n"),
            std::string::npos);
}

TEST(ScriptedPicture, IsClickedAtAPlaceAndTellsWhatIsDrawnThen) {
  const auto played = play("start\nclick map 131.5 32\nclose\n");
  EXPECT_EQ(played.status, 0) << played.error;
  const auto at = played.transcript.find("map drawing:\n");
  ASSERT_NE(at, std::string::npos) << played.transcript;
  EXPECT_NE(played.transcript.find("longitude 130 to 140, latitude 30 to 40\n", at),
            std::string::npos);
  EXPECT_NE(played.transcript.find("dot mark (131.5 32)\n", at), std::string::npos)
      << played.transcript;
}

TEST(ScriptedPicture, IsClickedWithoutAPlaceAsALabelIs) {
  const auto played = play("start\nclick picture\nexpect note pressed\nclose\n");
  EXPECT_EQ(played.status, 0) << played.error;
}

TEST(ScriptedPicture, IsPressedByItsKeys) {
  const auto played = play("start\nkey f7\nexpect note pressed\nclose\n");
  EXPECT_EQ(played.status, 0) << played.error;
  EXPECT_EQ(play("start\nkey F8\nclose\n").status, 2);
}

TEST(ScriptedPicture, CannotBeClickedWhereThereIsNoPlace) {
  struct Row {
    const char* command;
    const char* reason;
  };
  for (const Row& row : {
           Row{"click map", "map wants a place: click map ACROSS UP"},
           Row{"click map 131", "map wants a place: click map ACROSS UP"},
           Row{"click map 131 x", "map wants a place: click map ACROSS UP"},
           Row{"click map 131 32 7", "map wants a place: click map ACROSS UP"},
           Row{"click map 129 32", "map has no place 129 32"},
           Row{"click map 131 41", "map has no place 131 41"},
           Row{"click picture 0.5 0.5", "picture is a picture that has no places"},
           Row{"click still", "still is a picture that cannot be pressed"},
       }) {
    const auto played = play("start\n" + std::string(row.command) + "\nclose\n");
    EXPECT_EQ(played.status, 2) << row.command;
    EXPECT_NE(played.transcript.find(row.reason), std::string::npos) << played.transcript;
  }
}

}  // namespace
