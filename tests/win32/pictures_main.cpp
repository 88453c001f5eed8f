// Takes a picture of every screen: pictures FOLDER LANGUAGE writes CLASS-LANGUAGE.bmp, and
// observation-...: the main window with a complete observation.

#include "win32/system.h"

#include <commctrl.h>
#include <objbase.h>

#include <cstdio>
#include <fstream>
#include <string>
#include <vector>

#include "fakes/all_screens.h"
#include "fakes/fake_ports.h"
#include "fakes/sample_observation.h"
#include "fakes/sample_sea_map.h"
#include "win32/picture.h"
#include "win32/screen_window.h"
#include "win32/utf.h"

namespace {

// The display's own pixels, so that what stands on another is seen as a person sees it.
bool write_picture(HWND window, const std::string& name) {
  RECT frame{};
  GetWindowRect(window, &frame);
  const int width = frame.right - frame.left;
  const int height = frame.bottom - frame.top;
  const HDC from = GetDC(nullptr);
  const HDC canvas = CreateCompatibleDC(from);
  const HBITMAP bitmap = CreateCompatibleBitmap(from, width, height);
  const HGDIOBJ before = SelectObject(canvas, bitmap);
  BitBlt(canvas, 0, 0, width, height, from, frame.left, frame.top, SRCCOPY);
  SelectObject(canvas, before);
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof info.bmiHeader;
  info.bmiHeader.biWidth = width;
  info.bmiHeader.biHeight = height;
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  std::vector<char> bits(static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * 4);
  GetDIBits(canvas, bitmap, 0, static_cast<UINT>(height), bits.data(), &info, DIB_RGB_COLORS);
  // The display says nothing of how thin a pixel is; a file that says nothing is seen through.
  for (std::size_t i = 3; i < bits.size(); i += 4) bits[i] = static_cast<char>(0xFF);
  DeleteObject(bitmap);
  DeleteDC(canvas);
  ReleaseDC(nullptr, from);
  BITMAPFILEHEADER header{};
  header.bfType = 0x4D42;
  header.bfOffBits = sizeof header + sizeof info.bmiHeader;
  header.bfSize = header.bfOffBits + static_cast<DWORD>(bits.size());
  std::ofstream file(name, std::ios::binary);
  file.write(reinterpret_cast<const char*>(&header), sizeof header);
  file.write(reinterpret_cast<const char*>(&info.bmiHeader), sizeof info.bmiHeader);
  file.write(bits.data(), static_cast<std::streamsize>(bits.size()));
  return file.good();
}

bool take(ui::Screen& screen, const std::string& name) {
  win32::ScreenWindow window(screen, nullptr);
  window.show_up();
  // A display shows a window a moment after it was asked to.
  for (int i = 0; i < 10; ++i) {
    win32::deal_with_waiting();
    RedrawWindow(window.frame(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    Sleep(20);
  }
  if (write_picture(window.frame(), name)) return true;
  std::fprintf(stderr, "cannot write %s\n", name.c_str());
  return false;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fputs("usage: pictures FOLDER en|ja\n", stderr);
    return 2;
  }
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  INITCOMMONCONTROLSEX all{sizeof all,
                           ICC_STANDARD_CLASSES | ICC_TREEVIEW_CLASSES | ICC_BAR_CLASSES};
  InitCommonControlsEx(&all);
  win32::set_picture_folder(win32::wide(KAVREL_PICTURES));
  fakes::take_tiles_from(KAVREL_SEA_MAP);
  const std::string folder = argv[1];
  const std::string language = argv[2];
  const auto in_language = [&](fakes::World& world) {
    if (language != "ja") return;
    world.japanese();
    world.locale.id = 0x0411;
  };
  for (const fakes::ScreenCase& row : fakes::all_screens()) {
    fakes::World world;
    in_language(world);
    const auto screen = row.make(world.services);
    screen->open();
    if (!take(*screen, folder + "/" + std::string(row.class_name) + "-" + language + ".bmp"))
      return 1;
  }
  fakes::World world;
  in_language(world);
  fakes::SampleMainWindow entered(world.services);
  entered.open();
  if (!fakes::enter_sample(entered)) return 1;
  return take(entered, folder + "/observation-" + language + ".bmp") ? 0 : 1;
}
