// Takes a picture of every screen: pictures FOLDER LANGUAGE PERCENT [dark] writes
// CLASS-LANGUAGE[-PERCENT][-dark].png, observation-...: the main window with a complete
// observation, and plain_words-...: the same with the report in plain words.

#include <QApplication>
#include <QFont>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "desktop/desktop_windows.h"
#include "desktop/picture_label.h"
#include "desktop/screen_window.h"
#include "fakes/all_screens.h"
#include "fakes/fake_ports.h"
#include "fakes/sample_observation.h"
#include "fakes/sample_sea_map.h"
#include "palettes.h"

namespace {

struct World : fakes::World {
  explicit World(const std::string& language_name) {
    if (language_name != "ja") return;
    japanese();
    locale.id = 0x0411;
  }
};

bool take(ui::Screen& screen, const std::string& name) {
  desktop::ScreenWindow window(screen, nullptr);
  window.show();
  // No window manager gives the focus on a picture's screen.
  QApplication::setActiveWindow(&window);
  QApplication::processEvents();
  std::printf("%s %dx%d\n", name.c_str(), window.width(), window.height());
  if (window.grab().save(QString::fromStdString(name))) return true;
  std::fprintf(stderr, "cannot write %s\n", name.c_str());
  return false;
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  const bool dark = argc == 5 && std::string_view(argv[4]) == "dark";
  QApplication::setPalette(dark ? tests::palette_of(true) : QApplication::palette());
  desktop::prepare_application();
  desktop::set_picture_folder(QStringLiteral(KAVREL_PICTURES));
  fakes::take_tiles_from(KAVREL_SEA_MAP);
  if (argc != 4 && !dark) {
    std::fputs("usage: pictures FOLDER en|ja PERCENT [dark]\n", stderr);
    return 2;
  }
  const std::string folder = argv[1];
  const std::string language = argv[2];
  const int percent = std::atoi(argv[3]);
  QFont font = QApplication::font();
  font.setPointSizeF(font.pointSizeF() * percent / 100);
  QApplication::setFont(font);
  const std::string ending = "-" + language +
                             (percent == 100 ? "" : "-" + std::to_string(percent)) +
                             (dark ? "-dark" : "") + ".png";
  for (const fakes::ScreenCase& row : fakes::all_screens()) {
    World world(language);
    const auto screen = row.make(world.services);
    screen->open();
    if (!take(*screen, folder + "/" + std::string(row.class_name) + ending)) return 1;
  }
  World world(language);
  fakes::SampleMainWindow entered(world.services);
  entered.open();
  const bool complete = fakes::enter_sample(entered);
  if (!complete || !take(entered, folder + "/observation" + ending)) return 1;
  entered.press(*entered.find("command_plain_words"));
  return take(entered, folder + "/plain_words" + ending) ? 0 : 1;
}
