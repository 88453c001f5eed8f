#pragma once
// The map from drive letters to the computer's folders, the only place that joins names to paths of
// this computer. Which letters there are is said by who makes one: those that are always there, and
// a function that finds media (see drives_file.h). A medium keeps its letter for as long as the
// program runs.

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/ports.h"
#include "platform/system/system.h"

namespace platform {

/// A drive with or without its medium.
struct Medium {
  std::string device;  ///< what it is known by from one look to the next
  char letter = 0;     ///< 0: the next free one
  DriveType type = DriveType::kRemovable;
  int media_type = 11;                ///< as Drive::media_type
  std::optional<std::string> folder;  ///< where the medium lies; nothing when there is none
};
/// Drive::media_type of a fixed disk.
inline constexpr int kFixedMedium = 12;

/// What paths are like on a computer, and what is asked of it about them.
struct ComputerPaths {
  char separator = '/';
  /// Names that differ in the case of ASCII letters only are one name.
  bool ignores_case = false;
  /// True for a path that starts at the top of something.
  bool (*is_absolute)(std::string_view path) = nullptr;
  /// The path without ".", ".." and a final separator, absolute; nothing when it cannot be had.
  std::optional<std::string> (*normal)(const std::string& path) = nullptr;
  /// kNone for a folder that is there. kMediumMissing only where it is not: a refusal or an input
  /// error says nothing about that.
  FileError (*why_no_medium)(const std::string& folder) = nullptr;
  /// True for a path that names a share of another computer, which has no drive letter and is the
  /// same to the program and to this computer. None where there are no such paths.
  bool (*is_share)(std::string_view path) = nullptr;
};

/// A folder at the top of a drive that lies elsewhere on this computer.
struct Elsewhere {
  char letter = 'C';
  std::string name;    ///< of the folder
  std::string folder;  ///< of this computer, without a final separator
};

class DriveMap : public PathMap {
 public:
  /// `always` are drives that are there whatever is found, on absolute folders of this computer.
  DriveMap(const ComputerPaths& paths, std::vector<Medium> always,
           std::function<std::vector<Medium>()> find_media = {});

  /// For a folder of the program's that cannot lie where it belongs.
  void set_elsewhere(Elsewhere elsewhere) { elsewhere_ = std::move(elsewhere); }

  /// All drives in letter order; looks anew for media.
  [[nodiscard]] std::vector<Drive> drives() const;
  [[nodiscard]] bool medium_present(char letter) const;

  [[nodiscard]] Result<std::string> to_os(
      const std::string& path, const std::string& current_folder = "C:\\") const override;
  /// Nothing for a name that holds a "\" where that is a character like others.
  [[nodiscard]] std::optional<std::string> to_program(const std::string& os_path) const override;

 private:
  void look() const;
  [[nodiscard]] const Medium* find(char letter) const;
  [[nodiscard]] char free_letter(const std::vector<Medium>& taken) const;
  [[nodiscard]] std::string top(const std::string& folder) const;
  [[nodiscard]] std::string without_final_separator(std::string folder) const;
  [[nodiscard]] bool same_name(std::string_view a, std::string_view b) const;
  [[nodiscard]] std::optional<std::string_view> below(std::string_view path,
                                                      std::string_view folder) const;

  ComputerPaths paths_;
  std::vector<Medium> always_;
  std::optional<Elsewhere> elsewhere_;
  std::function<std::vector<Medium>()> find_media_;
  mutable std::vector<Medium> media_;  ///< in letter order, those that are always there among them
  mutable std::map<std::string, char> letters_;
};

/// The upper-case letter, or 0 for a character that names no drive.
[[nodiscard]] char drive_letter(char c);

}  // namespace platform
