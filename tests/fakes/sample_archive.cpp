#include "fakes/sample_archive.h"

#include <string>

#include "fakes/sample_observation.h"
#include "text/numbers.h"

namespace fakes {

SampleArchive::SampleArchive(ui::Services& others)
    : archive_services_{others.clock,     others.locale,  others.drives,  archive_files_,
                        others.code_page, others.printer, others.windows, others.texts,
                        others.messages,  others.help} {
  constexpr const char* kRecord =
      "32014111512135716530497627418015251080132258245310178100604250905////4 JXKV   JP3014    "
      "0130201413311103/////8500000000000000000000                    0000 0000750409074729\n";
  std::string logbook;
  for (int day = 1; day <= 15; ++day) {
    for (int hour = 0; hour < 24; hour += 6) {
      const std::string date =
          "1411" + text::format_int(day, 2, '0') + text::format_int(hour, 2, '0');
      const std::string path = kSampleReports + date + ".tlx";
      archive_files_.add_file(path, kSampleReport);
      archive_files_.set_modified(path, {2014, 11, day, hour, 20, 0});
      logbook += kRecord;
    }
  }
  archive_files_.add_file(std::string(kSampleLogbook) + "immt5.log", logbook);
}

}  // namespace fakes
