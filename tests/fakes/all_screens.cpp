#include "fakes/all_screens.h"

#include "archive/CCreateDir.h"
#include "archive/CLogPrintDlg.h"
#include "archive/CPrintAllTLXDlg.h"
#include "archive/CQFModifyDlg.h"
#include "archive/CQFPrintDlg.h"
#include "archive/CShowStatusDlg.h"
#include "archive/CTlxSelectDlg.h"
#include "codetables/CCodeTableDlg.h"
#include "codetables/CICECiDlg.h"
#include "codetables/CNowWeatherDlg.h"
#include "codetables/CPastWeatherDlg1.h"
#include "codetables/CSeaIceDialog.h"
#include "codetables/CSwellWaveDlg.h"
#include "codetables/CWaveLengthDlg.h"
#include "codetables/CWindDlg.h"
#include "elements/CCountDewDlg.h"
#include "elements/CHour3ErrorDlg.h"
#include "elements/CLookWindDlg.h"
#include "elements/CPositionDlg.h"
#include "elements/CPresureTendencyDlg.h"
#include "elements/CSaveErrorInfoDlg.h"
#include "elements/CSeaSurfacePressureDlg.h"
#include "elements/CSea_SurfaceTemperatureDlg.h"
#include "elements/CTemperatureAndDewDlg.h"
#include "elements/CThumidityDlg.h"
#include "elements/CTrueDirWindDlg.h"
#include "elements/CUTCTimeDlg1.h"
#include "explain/CCurvesDlg.h"
#include "explain/CLogbookCheckDlg.h"
#include "explain/CLogbookDlg.h"
#include "explain/CPlainWordsDlg.h"
#include "explain/log/logbook_check.h"
#include "fakes/sample_archive.h"
#include "fakes/sample_days.h"
#include "fakes/sample_logbook.h"
#include "fakes/sample_sea_map.h"
#include "fakes/sample_ship.h"
#include "mainwindow/CAboutDlg.h"
#include "mainwindow/CVelmaranDlg.h"
#include "map/CSeaMapDlg.h"
#include "media/CLogDiskSavePathDlg.h"
#include "ship/CFixDataDlg.h"
#include "ship/CFullEmptySelect.h"
#include "ship/CKataInputDlg.h"
#include "ship/CKataSelectDlg.h"
#include "ship/CKeyObserveDlg.h"
#include "ship/CVosClimDlg.h"

namespace fakes {
namespace {

using Made = std::unique_ptr<ui::Screen>;

// A ship with a text in every field of its fixed data.
ShipFixedData full_ship() {
  ShipFixedData ship = sample_ship();
  ship.card.instrumental_correction = "+0.3";
  ship.vosclim = true;
  ship.aws_fitted = true;
  ship.aws_manufacturer = "SAMPLE MAKER CO., LTD.";
  return ship;
}

// What the application owns, for as long as the main window is there.
struct Owned {
  ShipFixedData ship = full_ship();
  KeyObservationItems items;
  mainwindow::Folders folders{
      "C:\\kavrel\\data\\tlx\\", "C:\\kavrel\\data\\log\\", {}, {}, {}, "C:\\none", "C:\\none"};
  SampleSeaMap sea;
};

class MainWindow : private Owned, public CVelmaranDlg {
 public:
  explicit MainWindow(ui::Services& services)
      : CVelmaranDlg(services, {ship, items, folders, {}, &sea.sea_map}) {}
};

// A dialog on the sample folders, one line of its list chosen and, where they have boxes, ticked.
template <class Dialog>
class OfArchive : private SampleArchive, public Dialog {
 public:
  OfArchive(ui::Services& services, const char* folder, int line)
      : SampleArchive(services), Dialog(archive_services_, folder), line_(line) {}

 protected:
  void on_open() override {
    Dialog::on_open();
    for (ui::Control* const control : this->controls()) {
      if (control->kind != ui::Kind::kList) continue;
      control->selected = line_;
      if (!control->item_ticked.empty())
        control->item_ticked[static_cast<std::size_t>(line_)] = true;
      if (control->on_change) control->on_change();
    }
  }

 private:
  int line_;
};

class SampleLogbook : private SampleLog, public CLogbookDlg {
 public:
  explicit SampleLogbook(ui::Services& services)
      : SampleLog(services), CLogbookDlg(log_services_, kLogFolder, log_ship_, log_items_) {}
};

std::string sample_summary(const ui::Services& services) {
  explain::LogbookCheck check(services.texts.language);
  const std::string log = sample_log();
  for (std::string_view rest = log; !rest.empty(); rest.remove_prefix(rest.find('\n') + 1))
    check.take(rest.substr(0, rest.find('\n')));
  return check.finish().words();
}

class LargerMap : private SampleSeaMap, public CSeaMapDlg {
 public:
  explicit LargerMap(ui::Services& services)
      : CSeaMapDlg(services, sea_map,
                   {map::Place{33.5, 141.5}, 135.0, 14.0, {{36.5, 138.5}, {35.2, 140.3}}}) {}
};

// Every dialog that picks codes, on the last line of each of its tables.
Made make_picker(ui::Services& services, const codetables::CodePicker& picker) {
  Struct_Weather record(sample_ship(), KeyObservationItems());
  for (const codetables::PickedCode& picked : picker.codes)
    record.*find_weather_field(picked.symbol)->member = codetables::lines_of(picked).back().figures;
  return std::make_unique<CCodeTableDlg>(services, picker, record);
}

std::vector<ScreenCase> make_table() {
  std::vector<ScreenCase> table = {
      // archive
      {"CCreateDir",
       [](ui::Services& services) -> Made {
         return std::make_unique<CCreateDir>(services, "C:\\kavrel\\data");
       }},
      {"CLogPrintDlg",
       [](ui::Services& services) -> Made {
         return std::make_unique<OfArchive<CLogPrintDlg>>(services, kSampleLogbook, 0);
       }},
      {"CQFModifyDlg",
       [](ui::Services& services) -> Made {
         return std::make_unique<OfArchive<CQFModifyDlg>>(services, kSampleReports, 1);
       }},
      {"CPrintAllTLXDlg",
       [](ui::Services& services) -> Made {
         return std::make_unique<OfArchive<CPrintAllTLXDlg>>(services, kSampleReports, 1);
       }},
      {"CQFPrintDlg",
       [](ui::Services& services) -> Made {
         return std::make_unique<OfArchive<CQFPrintDlg>>(services, kSampleReports, 1);
       }},
      {"CTlxSelectDlg",
       [](ui::Services& services) -> Made {
         std::vector<archive::ListedReport> listed;
         for (int day = 30; day > 10; --day) {
           const std::string figures = std::to_string(day);
           const std::string name = "1411" + figures + "12.tlx";
           listed.push_back({"C:\\kavrel\\data\\tlx\\" + name,
                             name,
                             observation::ReportDate{"2014", "11", figures, "12"},
                             {},
                             platform::DateTime{2014, 11, day, 21, 5, 0}});
         }
         return std::make_unique<CTlxSelectDlg>(services, std::move(listed));
       }},
      {"CShowStatusDlg",
       [](ui::Services& services) -> Made { return std::make_unique<CShowStatusDlg>(services); }},
      // codetables, and below every picker
      {"CNowWeatherDlg",
       [](ui::Services& services) -> Made {
         return std::make_unique<CNowWeatherDlg>(services, "07");
       }},
      {"CPastWeatherDlg1",
       [](ui::Services& services) -> Made {
         return std::make_unique<CPastWeatherDlg1>(services, 6, 2);
       }},
      {"CSwellWaveDlg",
       [](ui::Services& services) -> Made {
         return std::make_unique<CSwellWaveDlg>(
             services, CSwellWaveDlg::Values{{"27", "08", "2.0"}, {"05", "12", "0.2"}});
       }},
      {"CWaveLengthDlg",
       [](ui::Services& services) -> Made { return std::make_unique<CWaveLengthDlg>(services); }},
      {"CWindDlg",
       [](ui::Services& services) -> Made {
         return std::make_unique<CWindDlg>(services, CWindDlg::Values{"05", "1.5"},
                                           codetables::Knot{18});
       }},
      {"CICECiDlg",
       [](ui::Services& services) -> Made { return std::make_unique<CICECiDlg>(services, "4"); }},
      {"CSeaIceDialog",
       [](ui::Services& services) -> Made {
         return std::make_unique<CSeaIceDialog>(services, CSeaIceDialog::Values{"3", "05", "1"});
       }},
      // elements
      {"CCountDewDlg",
       [](ui::Services& services) -> Made {
         CCountDewDlg::Values values;
         values.dry = "18.3";
         values.wet = "15.1";
         return std::make_unique<CCountDewDlg>(services, values);
       }},
      {"CHour3ErrorDlg",
       [](ui::Services& services) -> Made {
         return std::make_unique<CHour3ErrorDlg>(services, "Waning: Ship's position\r\n");
       }},
      {"CLookWindDlg",
       [](ui::Services& services) -> Made {
         return std::make_unique<CLookWindDlg>(
             services, elements::ApparentWindTexts{"045", " 18.5", "090", "092", "12.5"});
       }},
      {"CPositionDlg",
       [](ui::Services& services) -> Made {
         return std::make_unique<CPositionDlg>(services,
                                               CPositionDlg::Values{"35", "12", "139", "48", "1"},
                                               "1", [](double, double) { return false; });
       }},
      {"CPresureTendencyDlg",
       [](ui::Services& services) -> Made {
         return std::make_unique<CPresureTendencyDlg>(services, "3", "012");
       }},
      {"CAboutDlg",
       [](ui::Services& services) -> Made {
         return std::make_unique<mainwindow::CAboutDlg>(services);
       }},
      {"CSaveErrorInfoDlg",
       [](ui::Services& services) -> Made {
         const text::Texts& texts = services.texts;
         const auto doubt = [&](text::Id id, std::initializer_list<std::string_view> words) {
           return text::fill(texts.get(text::id::kDoubt), {text::fill(texts.get(id), words)});
         };
         std::vector<std::string> lines;
         for (const char* const group : {"Group4PPPP   ", "Group5appp   "})
           lines.push_back(std::string(group).append(texts.get(text::id::kNoValueInput)));
         lines.push_back(
             doubt(text::id::kDoubtTendencyAgainstLast, {"1013.2", "-1.4", "1011.8", "1014.6"}));
         lines.push_back(doubt(text::id::kDoubtFogInGoodVisibility, {"45", "97"}));
         return std::make_unique<CSaveErrorInfoDlg>(services, std::move(lines));
       }},
      {"CSeaSurfacePressureDlg",
       [](ui::Services& services) -> Made {
         CSeaSurfacePressureDlg::Values values;
         values.reading = "1013.2";
         values.air_temperature = "18.3";
         values.card = full_ship().card;
         return std::make_unique<CSeaSurfacePressureDlg>(services, values,
                                                         CSeaSurfacePressureDlg::CardActions{});
       }},
      {"CSea_SurfaceTemperatureDlg",
       [](ui::Services& services) -> Made {
         return std::make_unique<CSea_SurfaceTemperatureDlg>(
             services, CSea_SurfaceTemperatureDlg::Values{"0", "184"},
             SeaTemperatureMethod::kIntake);
       }},
      {"CTemperatureAndDewDlg",
       [](ui::Services& services) -> Made {
         return std::make_unique<CTemperatureAndDewDlg>(
             services, CTemperatureAndDewDlg::Values{"18.3", "12.0"});
       }},
      {"CThumidityDlg",
       [](ui::Services& services) -> Made {
         return std::make_unique<CThumidityDlg>(services, "68", 1.0);
       }},
      {"CTrueDirWindDlg",
       [](ui::Services& services) -> Made {
         return std::make_unique<CTrueDirWindDlg>(services, "18", "12");
       }},
      {"CUTCTimeDlg1",
       [](ui::Services& services) -> Made {
         return std::make_unique<CUTCTimeDlg1>(services,
                                               CUTCTimeDlg1::Values{"2014", "11", "15", "12"});
       }},
      // explain
      {"CCurvesDlg",
       [](ui::Services& services) -> Made {
         return std::make_unique<CCurvesDlg>(services, sample_days(), explain::Curve::kPressure,
                                             "C:\\kavrel\\data\\tlx", "JXKV");
       }},
      {"CLogbookCheckDlg",
       [](ui::Services& services) -> Made {
         return std::make_unique<CLogbookCheckDlg>(services, sample_summary(services));
       }},
      {"CLogbookDlg",
       [](ui::Services& services) -> Made { return std::make_unique<SampleLogbook>(services); }},
      {"CPlainWordsDlg",
       [](ui::Services& services) -> Made {
         return std::make_unique<CPlainWordsDlg>(
             services, "14111512.tlx",
             "BBXX JXKV 15124 99357 11653 41497 62718 10152 20108 40132 52014 72582 84531 22223 "
             "00178 20604 32531 40905 51103 .....",
             explain::YearMonth{2014, 11});
       }},
      // mainwindow
      {"CVelmaranDlg",
       [](ui::Services& services) -> Made { return std::make_unique<MainWindow>(services); }},
      // map
      {"CSeaMapDlg",
       [](ui::Services& services) -> Made { return std::make_unique<LargerMap>(services); }},
      // media
      {"CLogDiskSavePathDlg",
       [](ui::Services& services) -> Made {
         return std::make_unique<CLogDiskSavePathDlg>(
             services, CLogDiskSavePathDlg::Mode::kReport,
             CLogDiskSavePathDlg::Folders{{}, "C:\\kavrel\\data", {}},
             [](std::string_view, std::string_view) {});
       }},
      // ship
      {"CFixDataDlg",
       [](ui::Services& services) -> Made {
         return std::make_unique<CFixDataDlg>(services, "C:\\none", false, "C:\\kavrel\\data\\tlx",
                                              "C:\\kavrel\\data\\log", full_ship());
       }},
      {"CFullEmptySelect",
       [](ui::Services& services) -> Made { return std::make_unique<CFullEmptySelect>(services); }},
      {"CKataInputDlg",
       [](ui::Services& services) -> Made {
         return std::make_unique<CKataInputDlg>(services, full_ship().card);
       }},
      {"CKataSelectDlg",
       [](ui::Services& services) -> Made {
         return std::make_unique<CKataSelectDlg>(services, CardType::kTotalCorrection);
       }},
      {"CKeyObserveDlg",
       [](ui::Services& services) -> Made {
         return std::make_unique<CKeyObserveDlg>(services, "C:\\none", false);
       }},
      {"CVosClimDlg",
       [](ui::Services& services) -> Made {
         return std::make_unique<CVosClimDlg>(services, CVosClimDlg::Values{"07", "-12"});
       }},
  };
  // codetables, by their rows
  for (const codetables::CodePicker* const picker : codetables::code_pickers()) {
    table.push_back({picker->class_name, [picker](ui::Services& services) -> Made {
                       return make_picker(services, *picker);
                     }});
  }
  return table;
}

}  // namespace

const std::vector<ScreenCase>& all_screens() {
  static const std::vector<ScreenCase> kTable = make_table();
  return kTable;
}

}  // namespace fakes
