#pragma once
// A ship's folders with what a voyage has left in them: reports and a logbook.

#include "fakes/fake_files.h"
#include "ui/services.h"

namespace fakes {

inline constexpr const char* kSampleReports = "C:\\kavrel\\data\\tlx\\";
inline constexpr const char* kSampleLogbook = "C:\\kavrel\\data\\log\\";

/// The services given, but with these files.
class SampleArchive {
 public:
  explicit SampleArchive(ui::Services& others);

 protected:
  FakeFiles archive_files_;
  ui::Services archive_services_;
};

}  // namespace fakes
