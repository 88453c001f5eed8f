// The desktop's waits, as the officer meets them: a dialog opens, a key is answered. Runs on the
// offscreen platform; the floor of a key is a bare field that takes it.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QBuffer>
#include <QLineEdit>
#include <QPainter>
#include <QPdfWriter>
#include <QPixmapCache>
#include <QTest>
#include <algorithm>
#include <memory>

#include "desktop/desktop_windows.h"
#include "desktop/fixed_pitch.h"
#include "desktop/picture_label.h"
#include "desktop/printed_pages.h"
#include "desktop/screen_window.h"
#include "explain/CLogbookDlg.h"
#include "fakes/all_screens.h"
#include "fakes/fake_ports.h"
#include "fakes/sample_logbook.h"
#include "fakes/sample_observation.h"
#include "fakes/sample_ship.h"
#include "text/numbers.h"

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

const std::string kRecordLine =
    "  1       520141115121352213980419682513015201014015220090211512345JXKV  6789012345678901234";

// The length of the PDF; its bytes go nowhere.
std::size_t bytes_of(const ui::Sheets& sheets) {
  std::size_t bytes = 0;
  const auto take = [&bytes](std::string_view more) {
    bytes += more.size();
    return true;
  };
  if (!desktop::write_pdf(sheets, desktop::paper_of(QPageSize(QPageSize::A4)), take)) return 0;
  return bytes;
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

void type_keys(benchmark::State& state, Filled& filled) {
  filled.go_to("HwHw");
  for ([[maybe_unused]] auto round : state) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backspace);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_5);
    QApplication::processEvents();
  }
  state.SetItemsProcessed(2 * state.iterations());
}

void key_in_main_window(benchmark::State& state) {
  Filled filled;
  type_keys(state, filled);
}
BENCHMARK(key_in_main_window)->Unit(benchmark::kMillisecond);

// The same with the plain words and the small curve open, which follow each key.
void key_with_words_and_curve(benchmark::State& state) {
  Filled filled;
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_F2);
  if (!filled.screen.find("plain_words")->visible) std::abort();
  type_keys(state, filled);
}
BENCHMARK(key_with_words_and_curve)->Unit(benchmark::kMillisecond);

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

// A report on paper, before the printer has it.
void report_on_paper(benchmark::State& state) {
  const ui::Sheets sheets{"Print", ui::document_of(std::vector<std::string>(7, kRecordLine))};
  for ([[maybe_unused]] auto round : state) benchmark::DoNotOptimize(bytes_of(sheets));
}
BENCHMARK(report_on_paper)->Unit(benchmark::kMillisecond);

// A logbook of 100,000 records, three lines each.
class Logbook : public ui::Document {
 public:
  [[nodiscard]] std::size_t size() const override { return 300'000; }
  [[nodiscard]] std::size_t widest() const override { return kRecordLine.size(); }
  [[nodiscard]] std::vector<std::string> lines(std::size_t first,
                                               std::size_t count) const override {
    return std::vector<std::string>(std::min(count, size() - first), kRecordLine);
  }
};
void logbook_on_paper(benchmark::State& state) {
  const ui::Sheets sheets{"Print", std::make_shared<Logbook>()};
  for ([[maybe_unused]] auto round : state) benchmark::DoNotOptimize(bytes_of(sheets));
}
BENCHMARK(logbook_on_paper)->Unit(benchmark::kMillisecond)->Iterations(1);

// The same lines drawn one below the other, without columns, folding and numbers of pages.
void floor_of_the_logbook_on_paper(benchmark::State& state) {
  const ui::Sheets sheets{"Print", std::make_shared<Logbook>()};
  const QPageLayout paper = desktop::paper_of(QPageSize(QPageSize::A4));
  const desktop::PageMeasures measures = desktop::measure_page(sheets, paper);
  QFont font(desktop::fixed_pitch_family());
  font.setPixelSize(measures.letter_height);
  const QString line = QString::fromStdString(kRecordLine);
  for ([[maybe_unused]] auto round : state) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setPageLayout(paper);
    writer.setResolution(sheets.size.dots_per_inch);
    QPainter painter(&writer);
    painter.setFont(font);
    for (std::size_t i = 0; i < sheets.lines->size(); ++i) {
      const std::size_t below = i % measures.room.lines;
      if (i > 0 && below == 0) writer.newPage();
      painter.drawText(QPointF(0, static_cast<double>(below + 1) * measures.line_height), line);
    }
  }
}
BENCHMARK(floor_of_the_logbook_on_paper)->Unit(benchmark::kMillisecond)->Iterations(1);

// A logbook of 100,000 lines as a table: from the key that opens it to the painted window, in
// another order, and its check.
struct LongLogbook {
  static constexpr int kLines = 100'000;
  fakes::FakeFiles files;
  fakes::World world{files};
  ShipFixedData ship = fakes::sample_ship();
  KeyObservationItems items;

  LongLogbook() {
    std::string lines;
    for (int n = 0; n < kLines; ++n)
      lines
          .append(fakes::logbook_line(1 + n / 8 % 28, n % 8 * 3,
                                      {{"PPPP", text::format_int(100 + n % 100, 4, '0')}}))
          .append("\n");
    files.add_file("C:\\log\\immt5.log", lines);
  }
  std::unique_ptr<CLogbookDlg> open() {
    auto screen = std::make_unique<CLogbookDlg>(world.services, "C:\\log\\", ship, items);
    screen->open();
    return screen;
  }
};

void long_logbook_opened(benchmark::State& state) {
  LongLogbook logbook;
  for ([[maybe_unused]] auto round : state) {
    const auto screen = logbook.open();
    desktop::ScreenWindow window(*screen, nullptr);
    show(window);
  }
}
BENCHMARK(long_logbook_opened)->Unit(benchmark::kMillisecond);

void long_logbook_sorted(benchmark::State& state) {
  LongLogbook logbook;
  const auto screen = logbook.open();
  desktop::ScreenWindow window(*screen, nullptr);
  show(window);
  for ([[maybe_unused]] auto round : state) {
    screen->order.selected = screen->order.selected == 0 ? 5 : 0;
    screen->order.on_change();
    window.refresh();
    QApplication::processEvents();
  }
}
BENCHMARK(long_logbook_sorted)->Unit(benchmark::kMillisecond);

void long_logbook_checked(benchmark::State& state) {
  LongLogbook logbook;
  const auto screen = logbook.open();
  for ([[maybe_unused]] auto round : state) {
    logbook.world.windows.expect_screen("CLogbookCheckDlg",
                                        [](ui::Screen& shown) { shown.key(ui::Key::kEscape); });
    screen->check.on_press();
  }
}
BENCHMARK(long_logbook_checked)->Unit(benchmark::kMillisecond);

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
