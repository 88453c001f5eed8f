#include "win32/system.h"

#include <initguid.h>
// The names of what is told of a window are defined here alone.
#include <oleacc.h>

#include <iterator>

#include "win32/spoken_words.h"

namespace win32 {
namespace {

IAccPropServices* services() {
  static IAccPropServices* const made = [] {
    IAccPropServices* got = nullptr;
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    CoCreateInstance(CLSID_AccPropServices, nullptr, CLSCTX_INPROC_SERVER, IID_IAccPropServices,
                     reinterpret_cast<void**>(&got));
    return got;
  }();
  return made;
}

}  // namespace

void say_of(HWND window, const std::wstring& name, const std::wstring& state) {
  IAccPropServices* const told = services();
  if (told == nullptr) return;
  const auto object = static_cast<DWORD>(OBJID_CLIENT);
  told->SetHwndPropStr(window, object, CHILDID_SELF, PROPID_ACC_NAME, name.c_str());
  told->SetHwndPropStr(window, object, CHILDID_SELF, PROPID_ACC_DESCRIPTION, state.c_str());
}

void say_no_more(HWND window) {
  IAccPropServices* const told = services();
  if (told == nullptr) return;
  static constexpr MSAAPROPID kSaid[] = {PROPID_ACC_NAME, PROPID_ACC_DESCRIPTION};
  told->ClearHwndProps(window, static_cast<DWORD>(OBJID_CLIENT), CHILDID_SELF, kSaid,
                       static_cast<int>(std::size(kSaid)));
}

}  // namespace win32
