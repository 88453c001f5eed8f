#include "win32/loop.h"

#include <utility>

namespace win32 {
namespace {

constexpr const wchar_t* kFilter = L"KavrelFilter";

std::function<void(const MSG&)>& watch() {
  static std::function<void(const MSG&)> told;
  return told;
}

}  // namespace

void set_filter(HWND window, Filter* filter) {
  if (filter == nullptr) {
    RemovePropW(window, kFilter);
  } else {
    SetPropW(window, kFilter, filter);
  }
}

void set_watch(std::function<void(const MSG&)> told) {
  watch() = std::move(told);
}

void deal_with(const MSG& message) {
  if (watch()) watch()(message);
  const HWND top = message.hwnd == nullptr ? nullptr : GetAncestor(message.hwnd, GA_ROOT);
  auto* const filter = top == nullptr ? nullptr : static_cast<Filter*>(GetPropW(top, kFilter));
  // Keys to a window that waits for another are nobody's.
  if (filter != nullptr && IsWindowEnabled(top) != FALSE && filter->filter(message)) return;
  TranslateMessage(&message);
  DispatchMessageW(&message);
}

bool run_until(const std::function<bool()>& done) {
  MSG message{};
  while (!done()) {
    if (GetMessageW(&message, nullptr, 0, 0) <= 0) {
      // The loops around this one are to end as well.
      PostQuitMessage(static_cast<int>(message.wParam));
      return false;
    }
    deal_with(message);
  }
  return true;
}

void deal_with_waiting() {
  MSG message{};
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) deal_with(message);
}

}  // namespace win32
