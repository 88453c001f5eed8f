// Whatever the form can hold: saved, corrected without a change and saved again it is the same
// report byte for byte and the same line of the logbook.

#include <gtest/gtest.h>

#include <fstream>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "elements/form/random_entries.h"
#include "fakes/rounds.h"
#include "mainwindow/correction.h"
#include "mainwindow/save_flow.h"
#include "observation/logbook_encoder.h"
#include "observation/report_encoder.h"
#include "observation/report_file.h"
#include "observation/report_reader.h"
#include "observation/ship_values.h"
#include "window.h"

namespace {

namespace id = text::id;
using elements::Field;
using form_test::Form;
using form_test::RandomEntries;
using main_window::Opened;

constexpr const char* kReport = "C:\\out\\14111512.tlx";
constexpr const char* kLogbook = "C:\\log\\immt5.log";

/// An officer who enters whatever comes to mind, on a ship of any kind.
class Officer {
 public:
  explicit Officer(unsigned seed) : entries_(seed) {
    entries_.set_up(form);
    ShipFixedData& ship = form.ship;
    ship.wind_speed_method =
        flip() ? WindSpeedMethod::kAnemometer : WindSpeedMethod::kBeaufortScale;
    ship.sea_temperature_method = static_cast<SeaTemperatureMethod>(entries_.pick(4));
    ship.humidity_method = flip() ? HumidityMethod::kComputed : HumidityMethod::kDirect;
    ship.humidity_unit = flip() ? 1.0 : 0.1;
    ship.wave_recorder = flip();
    ship.vosclim = flip();
    ship.vosclim_cargo_height = "07";
    ship.vosclim_load_line_departure = "-05";
    ship.aws_fitted = flip();
    for (bool& off : form.items.not_observed) off = entries_.pick(4) == 0;
    form.rebuild();
  }

  /// A few entries more, and the observation as it is then saved.
  Struct_Weather observe() {
    for (int i = entries_.pick(24); i > 0; --i) {
      if (entries_.pick(10) == 0)
        entries_.step(form);
      else
        (void)form.enter(static_cast<Field>(entries_.pick(elements::kFields)), figures());
    }
    Struct_Weather record = form.record();
    record.Year = "2014";
    record.Month = "11";
    record.YY = "15";
    record.GG = "12";
    // What the fields tell, or what another program may have written into the line.
    if (form.ship.vosclim && flip()) {
      for (auto field :
           {&Struct_Weather::VosClim1, &Struct_Weather::VosClim2, &Struct_Weather::VosClim3,
            &Struct_Weather::VosClim4, &Struct_Weather::VosClim5})
        record.*field = kVosClim[entries_.pick(6)];
    }
    return record;
  }

  Form form;

 private:
  static constexpr const char* kVosClim[] = {"", "7", "12", "085", "12.5", "000"};
  bool flip() { return entries_.pick(2) == 0; }
  std::string figures() {
    std::string text;
    for (int i = 1 + entries_.pick(3); i > 0; --i)
      text.push_back(static_cast<char>('0' + entries_.pick(10)));
    if (entries_.pick(4) == 0)
      text.append(".").append(1, static_cast<char>('0' + entries_.pick(10)));
    if (entries_.pick(8) == 0) text.insert(0, "-");
    return text;
  }
  RandomEntries entries_;
};

std::string report_of(const Struct_Weather& record, const ShipFixedData& ship) {
  return observation::make_report(record, observation::wants_wet_bulb(ship)).text;
}

std::string vosclim_of(const Struct_Weather& r) {
  std::string all;
  for (const std::string& value : {r.VosClim1, r.VosClim2, r.VosClim3, r.VosClim4, r.VosClim5})
    all.append(value).append(";");
  return all;
}

/// The folders of a ship's computer.
struct Computer {
  fakes::FakeFiles files;
  fakes::World world{files};
  mainwindow::Folders folders;
  Computer() {
    folders.reports = "C:\\out\\";
    folders.logbook = "C:\\log\\";
  }
  /// The record as a save leaves it, behind and before lines of other observations.
  void save(const Struct_Weather& record, const ShipFixedData& ship,
            const KeyObservationItems& items) {
    files.add_file(kReport, observation::report_file_content(report_of(record, ship)));
    const std::string line = observation::encode_logbook(record, ship, items);
    Struct_Weather later = record;
    later.GG = "18";
    files.add_file(kLogbook, earlier_ + "\n" + line + "\n" +
                                 observation::encode_logbook(later, ship, items) + "\n");
    earlier_ = line;
  }
  std::optional<mainwindow::OpenedReport> open(ShipFixedData& ship, KeyObservationItems& items) {
    return mainwindow::open_report(world.services, {ship, items, folders, {}}, kReport);
  }

 private:
  std::string earlier_;
};

TEST(CorrectedWithoutAChange, AnyObservationIsTheSameReportAndLine) {
  const auto observations = static_cast<std::size_t>(fakes::rounds(10000));
  constexpr int kOfAnOfficer = 50;
  Computer computer;
  std::set<std::string> different;
  std::unique_ptr<Officer> officer;
  int with_vosclim = 0;
  for (int i = 0; different.size() < observations; ++i) {
    if (i % kOfAnOfficer == 0) officer = std::make_unique<Officer>(static_cast<unsigned>(i + 1));
    const Struct_Weather record = officer->observe();
    Form& form = officer->form;
    const std::string report = report_of(record, form.ship);
    const std::string line = observation::encode_logbook(record, form.ship, form.items);
    if (!different.insert(report + line).second) continue;
    computer.save(record, form.ship, form.items);
    const auto opened = computer.open(form.ship, form.items);
    ASSERT_TRUE(opened) << report;
    ASSERT_TRUE(opened->correction.unplaced.empty())
        << opened->correction.unplaced.front().text << " of " << report;
    ASSERT_TRUE(opened->notes.empty()) << opened->notes.front() << report;
    elements::ObservationForm corrected(form.ship, form.items, form.world.clock);
    corrected.load_record(opened->record);
    ASSERT_EQ(corrected.report().text, report);
    ASSERT_EQ(observation::encode_logbook(corrected.record(), form.ship, form.items), line)
        << report;
    const bool told = vosclim_of(record) == vosclim_of(form.record());
    if (told && vosclim_of(record) != ";;;;;") {
      ++with_vosclim;
      // Each field of the apparent wind entered once more says the same again.
      elements::ObservationForm again(form.ship, form.items, form.world.clock);
      again.load_record(opened->record);
      for (const Field field : {Field::kApparentDirection, Field::kApparentSpeed, Field::kHeading,
                                Field::kShipSpeed, Field::kCourse}) {
        again.type(field, std::string(again.text(field)));
        ASSERT_TRUE(again.leave(field).accepted());
        ASSERT_EQ(vosclim_of(again.record()), vosclim_of(record)) << elements::name_of(field);
      }
    }
    // An OK in the dialogs of ship, card and items changes nothing either.
    corrected.ship_changed();
    corrected.card_changed();
    corrected.items_changed();
    ASSERT_EQ(corrected.report().text, report);
    ASSERT_EQ(observation::encode_logbook(corrected.record(), form.ship, form.items), line)
        << report;
  }
  EXPECT_GT(with_vosclim, fakes::rounds(1000));
}

TEST(CorrectedWithoutAChange, EveryRealReportIsTheSameReportAndLine) {
  std::ifstream in(KAVREL_TEST_DATA "/ship_reports.txt");
  int reports = 0;
  for (std::string text; std::getline(in, text);) {
    if (!text.starts_with("BBXX")) continue;
    ++reports;
    for (const DewPointMethod method : {DewPointMethod::kDirect, DewPointMethod::kComputed}) {
      Computer computer;
      ShipFixedData ship = fakes::sample_ship();
      ship.dew_point_method = method;
      KeyObservationItems items;
      const auto read = observation::read_report(text, Struct_Weather(ship, items));
      ASSERT_TRUE(read) << text;
      if (observation::is_report_call_sign(read->record.CallSign))
        ship.call_sign = read->record.CallSign;
      // As that ship's own program would have saved it here.
      Struct_Weather record = read->record;
      record.Year = "2014";
      record.Month = "11";
      record.YY = "15";
      record.GG = "12";
      record.CallSign = ship.call_sign;
      computer.save(record, ship, items);
      const auto opened = computer.open(ship, items);
      ASSERT_TRUE(opened);
      EXPECT_EQ(report_of(opened->record, ship), report_of(record, ship));
      EXPECT_EQ(observation::encode_logbook(opened->record, ship, items),
                observation::encode_logbook(record, ship, items))
          << text;
    }
  }
  EXPECT_EQ(reports, 29);
}

// The same through the window, as the officer does it.
TEST(CorrectedWithoutAChange, IsSavedAgainThroughTheWindow) {
  for (unsigned seed = 1; seed <= 36; ++seed) {
    SCOPED_TRACE(seed);
    Officer officer(seed);
    for (int i = 0; i < 5; ++i) (void)officer.observe();
    const Struct_Weather record = officer.observe();
    const std::string line =
        observation::encode_logbook(record, officer.form.ship, officer.form.items);
    const auto opened = std::make_unique<Opened>(officer.form.ship, officer.form.items);
    opened->files.add_file(kReport,
                           observation::report_file_content(report_of(record, officer.form.ship)));
    opened->files.add_file(kLogbook, line + "\n");
    const auto before = opened->files.content(kReport);
    opened->world.windows.expect_screen("CQFModifyDlg", [](ui::Screen& screen) {
      screen.choose(*screen.find("reports"), 0);
      screen.press(*screen.find("ok"));
    });
    opened->menu("File/Correct weather reports");
    EXPECT_EQ(opened->window.title(), "KAVREL for WIN - correcting 14111512.tlx");
    EXPECT_FALSE(opened->window.unsaved());
    const elements::ObservationForm& form = opened->window.form();
    const bool listed =
        !form.remarks().empty() || !form.unacceptable().empty() ||
        !mainwindow::save_errors({form.record(), opened->ship, opened->items, opened->folders, {}},
                                 opened->world.texts)
             .empty();
    if (listed)
      opened->world.windows.expect_screen(
          "CSaveErrorInfoDlg", [](ui::Screen& screen) { screen.press(*screen.find("save_as")); });
    opened->world.windows.expect(id::kAskReplaceReport, "yes");
    opened->world.windows.expect(id::kSaved);
    opened->menu("Save weather report");
    EXPECT_EQ(opened->files.content(kReport), before);
    EXPECT_EQ(opened->files.content(kLogbook), line + "\n" + line + "\n");
    EXPECT_EQ(opened->window.title(), "KAVREL for WIN - report saved");
  }
}

}  // namespace
