#pragma once
// A settings file: opened, read and changed in memory, saved as a whole.

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/ini_text.h"
#include "platform/ports.h"

namespace app {

class CIniEx {
 public:
  struct Options {
    bool auto_save = false;         ///< save when the object is destroyed
    bool create = false;            ///< create the file when it is missing
    bool case_insensitive = false;  ///< of section and key names, ASCII letters only
    bool keep_backup = false;       ///< copy the file to a numbered backup before each save
  };

  explicit CIniEx(platform::Files& files) : files_(files) {}
  ~CIniEx();
  CIniEx(const CIniEx&) = delete;
  CIniEx& operator=(const CIniEx&) = delete;

  /// Reads the file, its read-only attribute cleared first. A file that was open before is saved
  /// and cleared; when that save fails, it stays open and its error comes back. After any other
  /// error nothing is open.
  [[nodiscard]] platform::FileError open(const std::string& path, Options options);

  /// Value without its trailing comment, or `otherwise` when there is no such section or key. Of
  /// equal keys the last one counts; sections of one name count as one.
  [[nodiscard]] std::string value(std::string_view section, std::string_view key,
                                  std::string_view otherwise = {}) const;

  /// Creates section and key when they are missing. A value equal to the one that value() gives
  /// changes nothing, and so keeps the comment behind it. False, and nothing is changed, for a text
  /// that would not come back as it is: a line break, "=" in a key.
  bool set_value(std::string_view section, std::string_view key, std::string_view value);

  /// Replaces the file when something was changed; on an error the old file is there as before and
  /// the changes are still waiting. Backups are "NAME.001", one more than the largest number there
  /// is; without its backup a file is not replaced.
  [[nodiscard]] platform::FileError save();

  /// Forgets the file and all changes.
  void clear();

  [[nodiscard]] bool modified() const { return modified_; }
  [[nodiscard]] const std::string& path() const { return path_; }

 private:
  [[nodiscard]] bool equal(std::string_view a, std::string_view b) const;
  [[nodiscard]] const IniEntry* find(std::string_view section, std::string_view key) const;
  [[nodiscard]] IniSection& section_named(std::string_view name);
  [[nodiscard]] platform::FileError back_up() const;

  platform::Files& files_;
  std::string path_;
  Options options_;
  std::vector<IniSection> sections_;
  bool modified_ = false;
};

}  // namespace app
