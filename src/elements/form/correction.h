#pragma once
// What is known of the file of a report while that report is being corrected.

#include <string>
#include <vector>

#include "observation/report_reader.h"

namespace elements {

struct Correction {
  std::string file;  ///< its name without a folder; empty: no report is being corrected
  /// The name of the file that the report goes to by its date and hour as they were opened. Usually
  /// the same.
  std::string goes_to;
  /// What of the file is not in the form: it is gone when the file is replaced.
  std::vector<observation::UnplacedText> unplaced;
  bool operator==(const Correction&) const = default;
};

}  // namespace elements
