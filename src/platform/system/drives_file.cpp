#include "platform/system/drives_file.h"

#include <algorithm>
#include <optional>

#include "text/numbers.h"
#include "text/reasons.h"
#include "text/strings.h"
#include "text/texts.h"

namespace platform {

namespace {

struct TypeName {
  std::string_view name;
  DriveType type;
};
constexpr TypeName kTypes[] = {
    {"removable", DriveType::kRemovable}, {"fixed", DriveType::kFixed},
    {"remote", DriveType::kRemote},       {"cdrom", DriveType::kCdRom},
    {"ramdisk", DriveType::kRamDisk},
};

struct MediumName {
  std::string_view name;
  int media_type;
};
constexpr MediumName kMedia[] = {{"unknown", 0}, {"floppy", 2}, {"other", 11}, {"fixed", 12}};

std::string_view next_word(std::string_view& line) {
  line = text::trim(line);
  const auto end = std::min(line.find_first_of(" \t"), line.size());
  const auto word = line.substr(0, end);
  line = text::trim(line.substr(end));
  return word;
}

std::optional<DriveType> type_of(std::string_view name) {
  for (const TypeName& each : kTypes)
    if (each.name == name) return each.type;
  return std::nullopt;
}

std::optional<int> media_type_of(std::string_view name) {
  for (const MediumName& each : kMedia)
    if (each.name == name) return each.media_type;
  if (!text::is_all_digits(name)) return std::nullopt;
  return text::leading_int(name);
}

/// The drive of a line, or what is wrong with it.
std::optional<Medium> read_line(std::string_view line, const std::string& root,
                                const ComputerPaths& paths, std::string& problem) {
  const auto letter = next_word(line);
  const auto type_name = next_word(line);
  const auto medium_name = next_word(line);
  Medium medium;
  medium.letter = letter.size() == 1 ? drive_letter(letter[0]) : '\0';
  const auto type = type_of(type_name);
  const auto media_type = media_type_of(medium_name);
  if (medium.letter == 0 || medium.letter == 'C' || medium.letter == 'Z')
    problem = "\"" + std::string(letter) + "\" is no letter for a drive (A, B, D to Y)";
  else if (!type)
    problem = "\"" + std::string(type_name) + "\" is no drive type";
  else if (!media_type)
    problem = "\"" + std::string(medium_name) + "\" is no medium kind";
  else if (line.empty())
    problem = "no folder";
  if (!problem.empty()) return std::nullopt;
  medium.device = std::string("given ") + medium.letter;
  medium.type = *type;
  medium.media_type = *media_type;
  if (line != "absent")
    medium.folder =
        paths.is_absolute(line) ? std::string(line) : root + paths.separator + std::string(line);
  return medium;
}

}  // namespace

GivenDrives read_drives(std::string_view text, const std::string& root,
                        const ComputerPaths& paths) {
  GivenDrives result;
  text = text::without_byte_order_mark(text);
  for (int number = 1; !text.empty(); ++number) {
    const auto end = std::min(text.find('\n'), text.size());
    const auto line = text::trim(text.substr(0, end));
    text.remove_prefix(std::min(text.size(), end + 1));
    if (line.empty() || line.front() == '#') continue;
    std::string problem;
    if (auto medium = read_line(line, root, paths, problem))
      result.media.push_back(std::move(*medium));
    else
      result.problems.push_back("line " + std::to_string(number) + ": " + problem);
  }
  return result;
}

std::vector<std::string> problems_of_drives(const Result<std::string>& text,
                                            const std::string& root, const ComputerPaths& paths) {
  constexpr const char* kFile = "drives.txt: ";
  std::vector<std::string> problems;
  if (text.ok()) {
    for (const std::string& problem : read_drives(*text.value, root, paths).problems)
      problems.push_back(kFile + problem);
  } else if (text.error != FileError::kNotFound) {
    const auto why = text::resolve({text::reason_of(text.error)}, text::Language::kEnglish);
    problems.push_back(std::string(kFile).append("cannot be read: ").append(why));
  }
  return problems;
}

}  // namespace platform
