#include "win32/windows_port.h"

#include "win32/system.h"

#include <shobjidl.h>

#include <algorithm>
#include <cstring>
#include <utility>

#include "ui/front_end.h"
#include "win32/message_window.h"
#include "win32/screen_window.h"
#include "win32/utf.h"
#include "win32/widgets.h"

namespace win32 {
namespace {

// A COM object that is let go of.
template <class Interface>
class Held {
 public:
  Held() = default;
  ~Held() {
    if (held_ != nullptr) held_->Release();
  }
  Held(const Held&) = delete;
  Held& operator=(const Held&) = delete;
  [[nodiscard]] Interface** into() { return &held_; }
  [[nodiscard]] void** into_any() { return reinterpret_cast<void**>(&held_); }
  [[nodiscard]] Interface* get() const { return held_; }
  Interface* operator->() const { return held_; }

 private:
  Interface* held_ = nullptr;
};

std::optional<std::wstring> chosen_folder(HWND owner, const std::wstring& caption,
                                          const std::wstring& initial) {
  Held<IFileOpenDialog> dialog;
  if (FAILED(CoCreateInstance(CLSID_FileOpenDialog, nullptr, CLSCTX_INPROC_SERVER,
                              IID_IFileOpenDialog, dialog.into_any())))
    return std::nullopt;
  FILEOPENDIALOGOPTIONS options = 0;
  dialog->GetOptions(&options);
  dialog->SetOptions(options | FOS_PICKFOLDERS | FOS_FORCEFILESYSTEM | FOS_PATHMUSTEXIST |
                     FOS_NOCHANGEDIR);
  dialog->SetTitle(caption.c_str());
  Held<IShellItem> begin;
  if (!initial.empty() && SUCCEEDED(SHCreateItemFromParsingName(initial.c_str(), nullptr,
                                                                IID_IShellItem, begin.into_any())))
    dialog->SetFolder(begin.get());
  if (FAILED(dialog->Show(owner))) return std::nullopt;
  Held<IShellItem> result;
  if (FAILED(dialog->GetResult(result.into()))) return std::nullopt;
  PWSTR path = nullptr;
  if (FAILED(result->GetDisplayName(SIGDN_FILESYSPATH, &path))) return std::nullopt;
  std::wstring chosen = path;
  CoTaskMemFree(path);
  return chosen;
}

// What is painted only: what is typed meanwhile waits for the window that comes.
void paint_waiting() {
  MSG message{};
  constexpr UINT kPaintOnly = PM_REMOVE | PM_QS_PAINT | PM_QS_SENDMESSAGE;
  while (PeekMessageW(&message, nullptr, 0, 0, kPaintOnly) != FALSE) DispatchMessageW(&message);
}

}  // namespace

WindowsPort::WindowsPort(platform::Paths paths)
    : paths_(std::move(paths)), idle_([this] { tell_idle(); }) {
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE);
}

WindowsPort::~WindowsPort() = default;

void WindowsPort::tell_idle() {
  std::vector<ui::Screen*> screens;
  for (const ScreenWindow* const window : open_) screens.push_back(&window->shown_screen());
  ui::tell_idle(std::move(screens));
}

HWND WindowsPort::owner() const {
  return top() == nullptr ? nullptr : top()->frame();
}

int WindowsPort::show_message(const ui::MessageBox& box) {
  // Behind a question about an entry stands what was entered, not what stood there before the key.
  ScreenWindow* const behind = top();
  if (behind != nullptr) behind->show_controls();
  const text::Language language = behind != nullptr ? behind->shown_screen().language()
                                  : language_       ? language_()
                                                    : text::Language::kEnglish;
  MessageWindow window(box, owner(), language,
                       behind == nullptr ? std::nullopt : behind->spoken_of());
  if (on_asked) on_asked(window);
  return window.ask();
}

void WindowsPort::tell(const std::string& title, const std::string& words) {
  ui::MessageBox box;
  box.title = title;
  box.text = words;
  box.buttons = {{"OK", "ok", ui::kOk}};
  box.close_result = ui::kOk;
  show_message(box);
}

int WindowsPort::run_modal(ui::Screen& screen) {
  screen.open();
  if (screen.result()) return *screen.result();
  if (ScreenWindow* const behind = top()) behind->show_controls();
  const HWND before = owner();
  int result = ui::kCancel;
  {
    ScreenWindow window(screen, before);
    const bool was_enabled = before != nullptr && IsWindowEnabled(before) != FALSE;
    if (was_enabled) EnableWindow(before, FALSE);
    open_.push_back(&window);
    window.show_up();
    if (on_shown) on_shown(window);
    run_until([&window] { return window.finished(); });
    open_.pop_back();
    // Before this one goes: else the system gives the keyboard to another program's window.
    if (was_enabled) {
      EnableWindow(before, TRUE);
      SetActiveWindow(before);
    }
    result = screen.result().value_or(ui::kCancel);
  }
  return result;
}

void WindowsPort::show_notice(ui::Screen& screen) {
  screen.open();
  auto window = std::make_unique<ScreenWindow>(screen, owner());
  ShowWindow(window->frame(), SW_SHOWNOACTIVATE);
  // Painted now, for the work that it speaks of lets no event through.
  RedrawWindow(window->frame(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
  paint_waiting();
  notices_[&screen] = std::move(window);
}

void WindowsPort::hide_notice(ui::Screen& screen) {
  notices_.erase(&screen);
}

void WindowsPort::pause(int milliseconds) {
  const ULONGLONG end = GetTickCount64() + static_cast<ULONGLONG>(std::max(milliseconds, 0));
  for (;;) {
    paint_waiting();
    const ULONGLONG now = GetTickCount64();
    if (now >= end) return;
    MsgWaitForMultipleObjects(0, nullptr, FALSE, static_cast<DWORD>(end - now),
                              QS_PAINT | QS_SENDMESSAGE);
  }
}

bool WindowsPort::copy_text(const std::string& text) {
  const std::wstring copied = wide(text);
  // Programs that keep what was copied look into it for a moment each time.
  constexpr int kTries = 25;
  constexpr DWORD kPause = 20;
  int tries = 1;
  while (OpenClipboard(owner()) == FALSE) {
    if (tries++ == kTries) return false;
    Sleep(kPause);
  }
  EmptyClipboard();
  bool taken = false;
  const std::size_t bytes = (copied.size() + 1) * sizeof(wchar_t);
  if (const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, bytes)) {
    std::memcpy(GlobalLock(block), copied.c_str(), bytes);
    GlobalUnlock(block);
    // The system owns what it took.
    taken = SetClipboardData(CF_UNICODETEXT, block) != nullptr;
    if (!taken) GlobalFree(block);
  }
  CloseClipboard();
  return taken;
}

std::optional<std::string> WindowsPort::browse_for_folder(const std::string& caption,
                                                          const std::string& initial) {
  const auto chosen = chosen_folder(owner(), wide(caption), wide(paths_.to_system(initial)));
  if (!chosen) return std::nullopt;
  return paths_.from_system(narrow(*chosen));
}

}  // namespace win32
