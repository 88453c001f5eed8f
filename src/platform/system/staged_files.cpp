#include "platform/system/staged_files.h"

#include <new>

#include "platform/paths.h"

namespace platform {

namespace {

template <class File>
FileError write_all(File& file, std::string_view content) {
  while (!content.empty()) {
    const auto count = file.write(content);
    if (!count.ok()) return count.error;
    // A write of nothing would be tried for ever.
    if (*count.value == 0) return FileError::kNoSpace;
    content.remove_prefix(*count.value);
  }
  return FileError::kNone;
}

}  // namespace

StagedFiles::StagedFiles(const PathMap& drives)
    : drives_(drives),
      // Where the process was started; the process itself stays there, whatever is set later.
      current_folder_(drives.to_program(".").value_or("C:\\")) {}

FileError StagedFiles::why_no_place(const Look& there) {
  switch (there.there) {
    case There::kCannotTell:
      return there.error;
    case There::kOther:
      return FileError::kNotAFile;
    case There::kFolder:
      return FileError::kAccessDenied;
    case There::kNo:
    case There::kFile:
      break;
  }
  return FileError::kNone;
}

Result<StagedFile> StagedFiles::stage(const std::string& path, std::string_view content) {
  return stage_with(path, [&](Beside& file) { return write_all(file, content); });
}

Result<StagedFile> StagedFiles::stage_pieces(const std::string& path, const NextPiece& next) {
  const auto write = [&](Beside& file) {
    try {
      while (true) {
        const auto piece = next();
        if (!piece.ok() || piece.value->empty()) return piece.error;
        if (const auto error = write_all(file, *piece.value); error != FileError::kNone)
          return error;
      }
    } catch (const std::bad_alloc&) {
      return FileError::kNoMemory;
    }
  };
  auto staged = stage_with(path, write);
  // Read back from memory, a medium that keeps nothing would pass for a good one.
  if (staged.ok()) forget_cached(staged.value->temporary);
  return staged;
}

Result<StagedFile> StagedFiles::stage_with(const std::string& path, const Write& write) {
  auto made = beside(path);
  if (!made.ok()) return made.error;
  const std::string folder(folder_part(path));
  for (int i = 0; i < kTries; ++i) {
    // Never the name of the file: no search for reports or logbooks may find a half-written one.
    const StagedFile staged{path, folder + next_name()};
    FileError error = (*made.value)->make(staged.temporary);
    if (error == FileError::kExists) continue;  // left by an earlier crash
    if (error != FileError::kNone) return error;
    error = write(**made.value);
    if (error == FileError::kNone) error = (*made.value)->finish();
    if (error == FileError::kNone) return staged;
    made.value->reset();
    discard(staged);
    return error;
  }
  return FileError::kOther;
}

FileError StagedFiles::note(const std::string& path, std::string_view content) {
  const auto staged = stage(path, content);
  if (!staged.ok()) return staged.error;
  const FileError error = move_over(*staged.value);
  if (error != FileError::kNone) discard(*staged.value);
  return error;
}

FileError StagedFiles::copy(const std::string& from, const std::string& to) {
  constexpr std::uint64_t kLargest = 1U << 30U;
  const auto content = read(from, kLargest);
  return content.ok() ? replace(to, *content.value) : content.error;
}

void StagedFiles::set_current_folder(const std::string& folder) {
  if (!is_folder(folder)) return;
  // Kept as the person named it: the way back from this computer's path may lead to another drive.
  const bool has_drive = folder.size() >= 2 && folder[1] == ':';
  const auto os_path = to_os(folder);
  if (has_drive)
    current_folder_ = folder;
  else if (os_path.ok())
    current_folder_ = drives_.to_program(*os_path.value).value_or(current_folder_);
}

}  // namespace platform
