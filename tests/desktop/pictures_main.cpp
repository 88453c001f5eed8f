// Takes a picture of every screen: pictures FOLDER LANGUAGE PERCENT writes
// CLASS-LANGUAGE[-PERCENT].png.

#include <QApplication>
#include <QFont>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "desktop/desktop_windows.h"
#include "desktop/screen_window.h"
#include "fakes/all_screens.h"
#include "fakes/fake_ports.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  desktop::prepare_application();
  if (argc != 4) {
    std::fputs("usage: pictures FOLDER en|ja PERCENT\n", stderr);
    return 2;
  }
  const std::string folder = argv[1];
  const std::string language = argv[2];
  const int percent = std::atoi(argv[3]);
  QFont font = QApplication::font();
  font.setPointSizeF(font.pointSizeF() * percent / 100);
  QApplication::setFont(font);
  for (const fakes::ScreenCase& row : fakes::all_screens()) {
    fakes::World world;
    if (language == "ja") {
      world.japanese();
      world.locale.id = 0x0411;
    }
    const auto screen = row.make(world.services);
    screen->open();
    desktop::ScreenWindow window(*screen, nullptr);
    window.show();
    QApplication::processEvents();
    std::string name = folder + "/" + std::string(row.class_name) + "-" + language;
    if (percent != 100) name += "-" + std::to_string(percent);
    name += ".png";
    if (!window.grab().save(QString::fromStdString(name))) {
      std::fprintf(stderr, "cannot write %s\n", name.c_str());
      return 1;
    }
    std::printf("%s %dx%d\n", name.c_str(), window.width(), window.height());
  }
  return 0;
}
