#pragma once
// A ship's logbook as a list: a line of text for each line of the file, in an order of one's choice.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "observation/logbook_record.h"
#include "platform/ports.h"
#include "text/texts.h"

namespace explain {

/// By what the list is sorted, in the order of the choice on the screen. Lines of which it is not
/// known stand behind the others, and equal ones as in the file.
enum class LogOrder : std::uint8_t {
  kNewest,
  kOldest,
  kNorth,     ///< the northernmost first
  kEast,      ///< from 180 degrees west to 180 degrees east
  kWind,      ///< the strongest first
  kPressure,  ///< the lowest first
  kWaves,     ///< the highest first, of waves and swell
  kDamaged,   ///< lines that cannot be read whole first
  kInFile,
};

/// The lines of a logbook, held in memory: seventeen megabytes for a hundred thousand.
class LogbookList {
 public:
  /// What of the folder's logbook can be read. Empty where no folder is set.
  LogbookList(platform::Files& files, const std::string& folder, const ShipFixedData& ship,
              const KeyObservationItems& items);

  [[nodiscard]] std::size_t size() const { return lines_.size(); }
  /// Why not all of it was read; kNotFound where there is no logbook.
  [[nodiscard]] platform::FileError error() const { return error_; }
  [[nodiscard]] const std::string& path() const { return path_; }

  /// Puts the lines in this order.
  void sort(LogOrder order);

  /// The line in that place of the order, as it stands in the file.
  [[nodiscard]] const std::string& line(std::size_t place) const;
  /// Its number in the file, from 1.
  [[nodiscard]] std::uint64_t number(std::size_t place) const;
  /// Its observation; nothing where the line has another length.
  [[nodiscard]] std::optional<observation::LogbookRecord> record(std::size_t place) const;
  /// Its text in the list: date and hour, position, wind, visibility, weather, pressure,
  /// temperatures, waves, and what is to be remarked.
  [[nodiscard]] std::string text(std::size_t place, const text::Texts& texts) const;
  /// Of the columns of text().
  [[nodiscard]] static std::string heading(const text::Texts& texts);
  /// All lines, in the order of the file.
  [[nodiscard]] const std::vector<std::string>& lines() const { return lines_; }

 private:
  [[nodiscard]] double key(std::uint32_t at, LogOrder order) const;

  const ShipFixedData& ship_;
  const KeyObservationItems& items_;
  std::string path_;
  platform::FileError error_ = platform::FileError::kNone;
  std::vector<std::string> lines_;
  std::vector<std::uint32_t> order_;
};

}  // namespace explain
