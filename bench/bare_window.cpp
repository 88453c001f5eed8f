// The floors of a start-up: a window of the main window's size that ends once it is painted, empty,
// or with a label and a field, for which the toolkit reads its fonts: bare_window [text].

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>

#include "first_paint.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  const bench::FirstPaint watch(QStringLiteral("bare"));
  QWidget window;
  window.setObjectName(QStringLiteral("bare"));
  constexpr int kWidth = 1354;
  constexpr int kHeight = 540;
  window.resize(kWidth, kHeight);
  if (argc == 2) {
    auto* const line = new QHBoxLayout(&window);
    line->addWidget(new QLabel(QStringLiteral("Visibility"), &window));
    line->addWidget(new QLineEdit(QStringLiteral("97"), &window));
  }
  window.show();
  return QApplication::exec();
}
