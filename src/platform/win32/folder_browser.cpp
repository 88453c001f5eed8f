#include "platform/win32/folder_browser.h"

#include <windows.h>

#include <shobjidl.h>

#include "platform/win32/wide.h"

namespace platform::win32 {

namespace {

/// A component that is given back.
template <class Interface>
class Component {
 public:
  Component() = default;
  ~Component() {
    if (pointer_ != nullptr) pointer_->Release();
  }
  Component(const Component&) = delete;
  Component& operator=(const Component&) = delete;
  Interface* operator->() const { return pointer_; }
  [[nodiscard]] Interface* get() const { return pointer_; }
  [[nodiscard]] Interface** place() { return &pointer_; }

 private:
  Interface* pointer_ = nullptr;
};

bool done(HRESULT result) {
  return SUCCEEDED(result);
}

std::optional<std::string> path_of(IShellItem& item) {
  PWSTR path = nullptr;
  if (!done(item.GetDisplayName(SIGDN_FILESYSPATH, &path))) return std::nullopt;
  auto result = to_utf8(path);
  ::CoTaskMemFree(path);
  return result;
}

}  // namespace

std::optional<std::string> browse_for_folder(void* owner, const std::string& caption,
                                             const std::string& initial) {
  Component<IFileOpenDialog> dialog;
  if (!done(::CoCreateInstance(CLSID_FileOpenDialog, nullptr, CLSCTX_INPROC_SERVER,
                               IID_PPV_ARGS(dialog.place()))))
    return std::nullopt;
  FILEOPENDIALOGOPTIONS options = 0;
  (void)dialog->GetOptions(&options);
  (void)dialog->SetOptions(options | FOS_PICKFOLDERS | FOS_FORCEFILESYSTEM | FOS_PATHMUSTEXIST);
  if (const auto title = to_wide(caption)) (void)dialog->SetTitle(title->c_str());
  Component<IShellItem> first;
  const auto start = to_wide(initial);
  if (start &&
      done(::SHCreateItemFromParsingName(start->c_str(), nullptr, IID_PPV_ARGS(first.place()))))
    (void)dialog->SetFolder(first.get());
  if (!done(dialog->Show(static_cast<HWND>(owner)))) return std::nullopt;
  Component<IShellItem> chosen;
  if (!done(dialog->GetResult(chosen.place()))) return std::nullopt;
  return path_of(*chosen.get());
}

}  // namespace platform::win32
