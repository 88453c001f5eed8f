#pragma once
// Tells when the person pauses: half a second after the last key or click, and in a long row of them
// at least every second and a half, so that nothing waits longer for its turn.

#include "win32/system.h"

#include <functional>

namespace win32 {

class Idle {
 public:
  /// `told` is called outside of any event of the person, also while a message is open. There is one
  /// at a time.
  explicit Idle(std::function<void()> told);
  ~Idle();
  Idle(const Idle&) = delete;
  Idle& operator=(const Idle&) = delete;

 private:
  void see(const MSG& message);
  static void CALLBACK over(HWND window, UINT message, UINT_PTR timer, DWORD now);

  std::function<void()> told_;
  UINT_PTR timer_ = 0;
  ULONGLONG since_ = 0;  ///< the first event that nobody was told of; 0: none
};

}  // namespace win32
