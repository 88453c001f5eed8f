#pragma once
// Back from the logbook: the line of a report that is at hand, and what that line holds beyond it.

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "observation/logbook_columns.h"
#include "platform/ports.h"

namespace observation {

/// Knows the lines of one report among all others.
class LogbookLines {
 public:
  /// Of the record as the report and its file's name tell it. Which method of the dew point and
  /// which item for wind waves held when the line was written makes no difference.
  LogbookLines(const Struct_Weather& report, const ShipFixedData& ship,
               const KeyObservationItems& items);

  /// True when the line, without its end, agrees with the report in every column that both have;
  /// one figure of either that is another makes it another report's. Any bytes are survived.
  [[nodiscard]] bool holds(std::string_view line) const;
  /// From a line that holds() takes into the report's record what no report carries: relative
  /// humidity and VOSClim data, and that there was no second swell. What no field can hold is left.
  void complete(Struct_Weather& record, std::string_view line) const;

 private:
  struct Place {
    const LogbookColumn* column;
    ColumnTells tells;
    std::size_t at;                  ///< counted from 0
    std::vector<std::string> texts;  ///< what may stand there
  };
  [[nodiscard]] static std::string_view text_of(const Place& place, std::string_view line) {
    return line.substr(place.at, place.texts.front().size());
  }
  std::vector<Place> places_;
  std::size_t size_ = 0;
};

/// Hands over the lines of the logbook one by one, without their ends and an editor's byte order
/// mark. A last line without an end is one, nothing behind the last end is none. Of a line longer
/// than any of the layout only a beginning comes, which is longer as well. Why the file could not
/// be read to its end, or kNone. The file is read once from its beginning, in pieces.
[[nodiscard]] platform::FileError for_each_line(
    const platform::Files& files, const std::string& path,
    const std::function<void(std::string_view line)>& use);

/// The last line of the logbook that `lines` holds, empty when there is none, or why one cannot
/// tell.
[[nodiscard]] platform::Result<std::string> find_last_line(const platform::Files& files,
                                                           const std::string& path,
                                                           const LogbookLines& lines);

}  // namespace observation
