// Whole figures and tenths in a real window: a point typed or pasted goes on to the tenths.

#include <gtest/gtest.h>

#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>

#include "desktop_world.h"
#include "elements/CCountDewDlg.h"
#include "elements/CSeaSurfacePressureDlg.h"
#include "text/ids.h"

namespace {

using tests::DesktopWorld;

QString focused_text() {
  QWidget* const focus = QApplication::focusWidget();
  if (auto* const box = qobject_cast<QComboBox*>(focus)) return box->currentText();
  auto* const line = qobject_cast<QLineEdit*>(focus);
  return line == nullptr ? QString() : line->text();
}

struct Pressure {
  DesktopWorld world;
  CSeaSurfacePressureDlg screen;
  desktop::ScreenWindow window;

  Pressure() : screen(world.services, values(), {}), window((screen.open(), screen), nullptr) {
    tests::show(window);
  }
  static CSeaSurfacePressureDlg::Values values() {
    CSeaSurfacePressureDlg::Values v;
    v.reading = "1013.7";
    v.card.type = CardType::kTotalCorrection;
    return v;
  }
  [[nodiscard]] std::string shown() const {
    return screen.reading_whole.content + "|" + screen.reading_tenths.content;
  }
};

void type_keys(const char* keys) {
  for (const char* key = keys; *key != '\0'; ++key) {
    QTest::keyClick(QApplication::focusWidget(), *key);
    QApplication::processEvents();
  }
}

TEST(SplitFieldsInAWindow, GoOnAtThePointKeyByKey) {
  for (const char* const keys : {"1009.3", "1009,3"}) {
    Pressure p;
    type_keys(keys);
    EXPECT_EQ(p.shown(), "1009|3") << keys;
    EXPECT_EQ(p.screen.focused(), &p.screen.reading_tenths);
    EXPECT_EQ(focused_text(), "3");
  }
}

TEST(SplitFieldsInAWindow, GoOnAtThePointOfAPastedText) {
  Pressure p;
  QApplication::clipboard()->setText("1009.3");
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_V, Qt::ControlModifier);
  QApplication::processEvents();
  EXPECT_EQ(p.shown(), "1009|3");
  EXPECT_EQ(focused_text(), "3");
}

TEST(SplitFieldsInAWindow, ShowAPastedTextWithTwoDecimalsWhole) {
  Pressure p;
  QApplication::clipboard()->setText("1009.34");
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_V, Qt::ControlModifier);
  QApplication::processEvents();
  EXPECT_EQ(p.shown(), "1009.34|7");
  EXPECT_EQ(focused_text(), "1009.34");
}

TEST(SplitFieldsInAWindow, GoOnInTheLineOfATemperatureToo) {
  DesktopWorld world;
  CCountDewDlg screen(world.services, {});
  screen.open();
  desktop::ScreenWindow window(screen, nullptr);
  tests::show(window);
  type_keys("-10.5");
  EXPECT_EQ(screen.dry.whole.content + "|" + screen.dry.tenths.content, "-10|5");
  EXPECT_EQ(screen.focused(), &screen.dry.tenths);
}

}  // namespace
