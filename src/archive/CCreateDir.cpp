#include "archive/CCreateDir.h"

#include <algorithm>
#include <utility>

#include "platform/paths.h"
#include "text/ids.h"
#include "text/strings.h"

namespace id = text::id;
using platform::FileError;

bool archive::is_folder_name(std::string_view name) {
  const bool has_bad = std::any_of(name.begin(), name.end(), [](char c) {
    return static_cast<unsigned char>(c) < ' ' || c == '\x7f' ||
           // What no name of the officer's system has; a ";" would begin a comment in the settings.
           std::string_view("\\/:*?\"<>|;").find(c) != std::string_view::npos;
  });
  return !has_bad && !name.empty() && name.find_first_not_of('.') != std::string_view::npos;
}

CCreateDir::CCreateDir(ui::Services& services, std::string parent)
    : OkCancelDialog(services, "CCreateDir", {id::kCreateFolderTitle}),
      folder_name(*this, "folder_name", {id::kNewFolderName}),
      parent_(std::move(parent)) {}

void CCreateDir::on_open() {
  folder_name.content.clear();
}

void CCreateDir::on_ok() {
  const std::string_view name = text::trim(folder_name.content);
  if (name.empty() || !archive::is_folder_name(name)) {
    refuse(folder_name, name.empty() ? id::kNoValueInput : id::kBadFolderName);
    return;
  }
  std::string path = platform::join(parent_, name);
  platform::Files& files = services().files;
  // A folder of that name serves as well.
  const FileError error = files.is_folder(path) ? FileError::kNone : files.create_folder(path);
  if (error != FileError::kNone) {
    const Speaking of(*this, folder_name);
    services().messages.file_error(id::kFolderNotCreated, path, error);
    focus(folder_name);
    return;
  }
  path_ = std::move(path);
  close(ui::kOk);
}
