#include "win32/idle.h"

#include <utility>

#include "ui/front_end.h"
#include "win32/loop.h"

namespace win32 {
namespace {

Idle* the_one = nullptr;

bool is_of_the_person(UINT message) {
  switch (message) {
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
    case WM_CHAR:
    case WM_IME_COMPOSITION:
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
    case WM_LBUTTONDBLCLK:
    case WM_RBUTTONDOWN:
    case WM_MOUSEWHEEL:
    case WM_COMMAND:
      return true;
    default:
      return false;
  }
}

}  // namespace

Idle::Idle(std::function<void()> told) : told_(std::move(told)) {
  the_one = this;
  set_watch([this](const MSG& message) { see(message); });
}

Idle::~Idle() {
  if (timer_ != 0) KillTimer(nullptr, timer_);
  set_watch(nullptr);
  the_one = nullptr;
}

void Idle::see(const MSG& message) {
  if (!is_of_the_person(message.message)) return;
  const ULONGLONG now = GetTickCount64();
  if (since_ == 0) since_ = now;
  const int left = ui::until_pause(static_cast<long long>(now - since_));
  timer_ = SetTimer(nullptr, timer_, static_cast<UINT>(left), over);
}

void CALLBACK Idle::over(HWND /*window*/, UINT /*message*/, UINT_PTR timer, DWORD /*now*/) {
  KillTimer(nullptr, timer);
  Idle* const idle = the_one;
  if (idle == nullptr || idle->timer_ != timer) return;
  idle->timer_ = 0;
  idle->since_ = 0;
  try {
    idle->told_();
  } catch (...) {  // NOLINT(bugprone-empty-catch)
    // Whoever is told deals with what goes wrong; nothing may cross the system's own code.
  }
}

}  // namespace win32
