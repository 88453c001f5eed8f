// The desktop's waits, as the officer meets them: a dialog opens, a key is answered. Runs on the
// offscreen platform; the floor of a key is a bare field that takes it.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QLineEdit>
#include <QPixmapCache>
#include <QTest>
#include <memory>

#include "desktop/desktop_windows.h"
#include "desktop/picture_label.h"
#include "desktop/screen_window.h"
#include "fakes/all_screens.h"
#include "fakes/fake_ports.h"
#include "fakes/sample_observation.h"

namespace {

void show(QWidget& window) {
  window.show();
  window.activateWindow();
  QApplication::processEvents();
}

// From the choice to the painted window, closing included.
void open_dialog(benchmark::State& state, const fakes::ScreenCase& screen_case) {
  for ([[maybe_unused]] auto round : state) {
    fakes::World world;
    const auto screen = screen_case.make(world.services);
    screen->open();
    desktop::ScreenWindow window(*screen, nullptr);
    show(window);
  }
}

// The same with the pictures of its lines: read anew in each round as when the program has just
// started, or still in memory. What it takes beside "open/" is what the pictures cost.
void open_pictures(benchmark::State& state, const fakes::ScreenCase& screen_case, bool anew) {
  desktop::set_picture_folder(QStringLiteral(KAVREL_PICTURES));
  for ([[maybe_unused]] auto round : state) {
    if (anew) QPixmapCache::clear();
    fakes::World world;
    const auto screen = screen_case.make(world.services);
    screen->open();
    desktop::ScreenWindow window(*screen, nullptr);
    show(window);
  }
  desktop::set_picture_folder({});
}

bool has_pictures(const fakes::ScreenCase& screen_case) {
  fakes::World world;
  const auto screen = screen_case.make(world.services);
  for (const ui::Control* const control : screen->controls()) {
    if (control->beside_line >= 0) return true;
  }
  return false;
}

// The main window with a complete observation, shown once for all rounds.
struct Filled {
  fakes::World world;
  fakes::SampleMainWindow screen{world.services};
  std::unique_ptr<desktop::ScreenWindow> window;

  Filled() {
    screen.open();
    if (!fakes::enter_sample(screen)) std::abort();
    window = std::make_unique<desktop::ScreenWindow>(screen, nullptr);
    show(*window);
  }
  void go_to(const char* field) {
    if (!screen.move_focus(*screen.find(field))) std::abort();
    window->refresh();
    QApplication::processEvents();
  }
};

void key_in_main_window(benchmark::State& state) {
  Filled filled;
  filled.go_to("HwHw");
  for ([[maybe_unused]] auto round : state) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backspace);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_5);
    QApplication::processEvents();
  }
  state.SetItemsProcessed(2 * state.iterations());
}
BENCHMARK(key_in_main_window)->Unit(benchmark::kMillisecond);

// A figure typed and left by Tab: check, record, report groups; and back with Shift.
void entry_in_main_window(benchmark::State& state) {
  Filled filled;
  filled.go_to("PwPw");
  bool odd = false;
  for ([[maybe_unused]] auto round : state) {
    odd = !odd;
    QTest::keyClick(QApplication::focusWidget(), odd ? Qt::Key_5 : Qt::Key_6);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
    QApplication::processEvents();
  }
  state.SetItemsProcessed(3 * state.iterations());
}
BENCHMARK(entry_in_main_window)->Unit(benchmark::kMillisecond);

void key_in_bare_field(benchmark::State& state) {
  QLineEdit field;
  show(field);
  field.setFocus();
  for ([[maybe_unused]] auto round : state) {
    QTest::keyClick(&field, Qt::Key_5);
    QTest::keyClick(&field, Qt::Key_Backspace);
    QApplication::processEvents();
  }
  state.SetItemsProcessed(2 * state.iterations());
}
BENCHMARK(key_in_bare_field)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  desktop::prepare_application();
  for (const fakes::ScreenCase& row : fakes::all_screens()) {
    benchmark::RegisterBenchmark(("open/" + std::string(row.class_name)).c_str(),
                                 [&row](benchmark::State& state) { open_dialog(state, row); })
        ->Unit(benchmark::kMillisecond);
    if (!has_pictures(row)) continue;
    for (const bool anew : {true, false}) {
      const std::string name = std::string("open_pictures/").append(row.class_name);
      benchmark::RegisterBenchmark(
          std::string(name).append(anew ? "/anew" : "/again").c_str(),
          [&row, anew](benchmark::State& state) { open_pictures(state, row, anew); })
          ->Unit(benchmark::kMillisecond);
    }
  }
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
