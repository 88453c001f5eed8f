// The floor of a start-up: an empty window of the main window's size; ends once it is painted.

#include "first_paint.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  const bench::FirstPaint watch(QStringLiteral("bare"));
  QWidget window;
  window.setObjectName(QStringLiteral("bare"));
  constexpr int kWidth = 1354;
  constexpr int kHeight = 540;
  window.resize(kWidth, kHeight);
  window.show();
  return QApplication::exec();
}
