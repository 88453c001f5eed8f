// Pictures of files and of drawings in a window.
#include "win32/picture.h"

#include <gtest/gtest.h>

#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "painted.h"

namespace {

using tests::kUntouched;

constexpr std::uint32_t kRed = 0xFF0000, kGreen = 0x00FF00, kBlue = 0x0000FF, kWhite = 0xFFFFFF;
constexpr std::uint32_t kWindow = 0x203040;

void add(std::string& to, std::uint32_t number, int bytes) {
  for (int i = 0; i < bytes; ++i) to.push_back(static_cast<char>((number >> (8 * i)) & 0xFFU));
}

// A file of red, green, blue and white quarters, row by row, of this size.
std::string quarters(int width, int height) {
  std::string file = "BM";
  add(file, static_cast<std::uint32_t>(54 + width * height * 4), 4);
  add(file, 0, 4);
  add(file, 54, 4);
  add(file, 40, 4);
  add(file, static_cast<std::uint32_t>(width), 4);
  add(file, static_cast<std::uint32_t>(height), 4);
  add(file, 1, 2);
  add(file, 32, 2);
  for (int i = 0; i < 6; ++i) add(file, 0, 4);
  for (int y = height - 1; y >= 0; --y) {  // from the bottom up
    for (int x = 0; x < width; ++x) {
      const bool right = x >= width / 2;
      add(file, y < height / 2 ? (right ? kGreen : kRed) : (right ? kWhite : kBlue), 4);
    }
  }
  return file;
}

LRESULT CALLBACK parent_proc(HWND window, UINT message, WPARAM wide, LPARAM narrow) {
  if (message != WM_CTLCOLORSTATIC) return DefWindowProcW(window, message, wide, narrow);
  static const HBRUSH kBrush = CreateSolidBrush(RGB(0x20, 0x30, 0x40));
  SetTextColor(reinterpret_cast<HDC>(wide), RGB(255, 255, 0));
  SetBkColor(reinterpret_cast<HDC>(wide), RGB(0x20, 0x30, 0x40));
  return reinterpret_cast<LRESULT>(kBrush);
}

class PictureOnAWindow : public testing::Test {
 protected:
  void SetUp() override {
    wchar_t temp[MAX_PATH] = {};
    GetTempPathW(MAX_PATH, temp);
    folder = std::wstring(temp) + L"pictures-絵-" + std::to_wstring(GetCurrentProcessId());
    CreateDirectoryW(folder.c_str(), nullptr);
    write(L"quarters.bmp", quarters(40, 20));
    write(L"broken.png", "no picture");
    win32::set_picture_folder(folder);
    WNDCLASSW kind{};
    kind.lpfnWndProc = &parent_proc;
    kind.hInstance = GetModuleHandleW(nullptr);
    kind.lpszClassName = L"TestParent";
    RegisterClassW(&kind);
    parent = CreateWindowW(L"TestParent", L"", WS_OVERLAPPEDWINDOW, 0, 0, 500, 400, nullptr,
                           nullptr, GetModuleHandleW(nullptr), nullptr);
    picture = std::make_unique<win32::Picture>(
        parent, [this](ui::Point at) { clicked.push_back(at); }, [this] { ++pressed; });
    paper::Inks inks;
    inks.paper = {0xFA, 0xF0, 0xE0};
    inks.ink[static_cast<std::size_t>(ui::Ink::kWater)] = {0x10, 0x20, 0xC0};
    picture->set_look(font.get(), 1, inks);
    room(200, 100);
  }
  void TearDown() override {
    picture.reset();
    if (parent != nullptr) DestroyWindow(parent);
    win32::set_picture_folder({});
    for (const wchar_t* const name : {L"quarters.bmp", L"broken.png", L"large.bmp"})
      DeleteFileW((folder + L"\\" + name).c_str());
    RemoveDirectoryW(folder.c_str());
  }

  void write(const wchar_t* name, const std::string& content) const {
    const HANDLE file = CreateFileW((folder + L"\\" + name).c_str(), GENERIC_WRITE, 0, nullptr,
                                    CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    DWORD written = 0;
    WriteFile(file, content.data(), static_cast<DWORD>(content.size()), &written, nullptr);
    CloseHandle(file);
  }
  void room(int width, int height) const {
    MoveWindow(picture->window(), 0, 0, width, height, FALSE);
  }
  [[nodiscard]] std::unique_ptr<tests::Painted> shown() const {
    RECT all{};
    GetClientRect(picture->window(), &all);
    return std::make_unique<tests::Painted>(all.right, all.bottom, [this](HDC dc) {
      SendMessageW(picture->window(), WM_PRINTCLIENT, reinterpret_cast<WPARAM>(dc), PRF_CLIENT);
    });
  }
  void click(int x, int y, UINT down = WM_LBUTTONDOWN, UINT up = WM_LBUTTONUP) const {
    SendMessageW(picture->window(), down, MK_LBUTTON, MAKELPARAM(x, y));
    SendMessageW(picture->window(), up, 0, MAKELPARAM(x, y));
  }
  [[nodiscard]] static std::shared_ptr<const ui::Drawing> sea() {
    ui::Drawing drawing;
    drawing.x = {"x", 0, 10};
    drawing.y = {"y", 0, 10};
    drawing.shapes = {ui::Area{{{0, 0}, {10, 0}, {10, 5}, {0, 5}}, ui::Ink::kWater}};
    return std::make_shared<const ui::Drawing>(drawing);
  }

  std::wstring folder;
  tests::Font font{16};
  HWND parent = nullptr;
  std::unique_ptr<win32::Picture> picture;
  std::vector<ui::Point> clicked;
  int pressed = 0;
};

TEST_F(PictureOnAWindow, OfAFileStandsAtTheLeftHalfWayUpInItsOwnSize) {
  ASSERT_TRUE(picture->show_file(L"quarters.bmp", false));
  const auto image = shown();
  EXPECT_EQ(image->at(5, 45), kRed);
  EXPECT_EQ(image->at(35, 45), kGreen);
  EXPECT_EQ(image->at(5, 55), kBlue);
  EXPECT_EQ(image->at(39, 59), kWhite);
  EXPECT_EQ(image->at(40, 59), kWindow);
  EXPECT_EQ(image->at(5, 39), kWindow);
  EXPECT_EQ(image->at(5, 60), kWindow);
  const SIZE wanted = picture->wanted(font.get());
  EXPECT_EQ(wanted.cx, 40);
  EXPECT_EQ(wanted.cy, 20);
}

TEST_F(PictureOnAWindow, OfAFileIsLargerOnAFineDisplay) {
  picture->set_look(font.get(), 1.5, {});
  ASSERT_TRUE(picture->show_file(L"quarters.bmp", false));
  EXPECT_EQ(picture->wanted(font.get()).cx, 60);
  EXPECT_EQ(shown()->at(58, 64), kWhite);
  EXPECT_EQ(shown()->at(61, 64), kWindow);
}

TEST_F(PictureOnAWindow, FittedIsHalfAsLargeAndGivesWay) {
  write(L"large.bmp", quarters(400, 200));
  ASSERT_TRUE(picture->show_file(L"large.bmp", true));
  EXPECT_EQ(picture->wanted(font.get()).cx, 200);
  EXPECT_EQ(picture->wanted(font.get()).cy, 100);
  EXPECT_EQ(shown()->at(0, 0), kRed);
  EXPECT_EQ(shown()->at(199, 99), kWhite);
  room(100, 100);  // half as wide, and so half as high
  EXPECT_EQ(shown()->at(99, 49), kWhite);
  EXPECT_EQ(shown()->at(99, 51), kWindow);
  room(300, 300);
  EXPECT_EQ(shown()->at(199, 99), kWhite);
  EXPECT_EQ(shown()->at(201, 99), kWindow);
}

TEST_F(PictureOnAWindow, ThatIsMissingIsItsText) {
  for (const wchar_t* const name :
       {L"nowhere.png", L"broken.png", L"", L"..\\quarters.bmp", L"a/quarters.bmp", L"C:x.bmp"}) {
    EXPECT_FALSE(picture->show_file(name, false)) << std::string(name, name + wcslen(name));
    picture->show_text(L"Cancel");
    EXPECT_GT(shown()->count(0xFFFF00), 20);
    EXPECT_GT(shown()->count(kWindow), 150 * 100);
  }
  const SIZE wanted = picture->wanted(font.get());
  EXPECT_NEAR(wanted.cx, 46, 15);
  EXPECT_NEAR(wanted.cy, 19, 4);
  ASSERT_TRUE(picture->show_file(L"quarters.bmp", false));
  EXPECT_EQ(shown()->count(0xFFFF00), 0);
}

TEST_F(PictureOnAWindow, OfADrawingFillsItsRoomAndIsDrawnAnewWhenItIsAnother) {
  picture->show_drawing(sea());
  EXPECT_EQ(shown()->at(100, 75), 0x1020C0U);
  EXPECT_EQ(shown()->at(100, 25), 0xFAF0E0U);
  ui::Drawing other = *sea();
  other.shapes = {ui::Area{{{0, 5}, {10, 5}, {10, 10}, {0, 10}}, ui::Ink::kWater}};
  picture->show_drawing(std::make_shared<const ui::Drawing>(other));
  EXPECT_EQ(shown()->at(100, 75), 0xFAF0E0U);
  EXPECT_EQ(shown()->at(100, 25), 0x1020C0U);
}

TEST_F(PictureOnAWindow, TellsWhereItIsClicked) {
  picture->show_drawing(sea());
  click(50, 50);
  EXPECT_TRUE(clicked.empty()) << "not clickable";
  picture->set_clickable(true);
  click(50, 50);
  ASSERT_EQ(clicked.size(), 1U);
  EXPECT_NEAR(clicked[0].x, 2.5, 0.05);
  EXPECT_NEAR(clicked[0].y, 5, 0.1);
  picture->show_drawing(nullptr);
  ASSERT_TRUE(picture->show_file(L"quarters.bmp", false));
  click(29, 44);  // three quarters to the right, three quarters up
  ASSERT_EQ(clicked.size(), 2U);
  EXPECT_NEAR(clicked[1].x, 0.75, 0.02);
  EXPECT_NEAR(clicked[1].y, 0.75, 0.03);
  click(100, 50);  // beside it
  click(29, 44, WM_RBUTTONDOWN, WM_RBUTTONUP);
  SendMessageW(picture->window(), WM_LBUTTONDOWN, 0, MAKELPARAM(29, 44));
  SendMessageW(picture->window(), WM_LBUTTONUP, 0, MAKELPARAM(29, 144));  // let go outside
  EXPECT_EQ(clicked.size(), 2U);
  EXPECT_EQ(pressed, 0);
}

TEST_F(PictureOnAWindow, ThatOpensSomethingDoesSoAlsoAsItsText) {
  picture->set_clickable(true);
  picture->show_text(L"Help");
  click(2, 2);
  EXPECT_EQ(pressed, 1);
  EXPECT_TRUE(clicked.empty());
}

TEST_F(PictureOnAWindow, MayGoWithItsParent) {
  DestroyWindow(parent);
  parent = nullptr;
  EXPECT_EQ(picture->window(), nullptr);
  picture->show_text(L"nobody sees it");
  picture->show_drawing(sea());
  EXPECT_EQ(picture->point_at({5, 5}), std::nullopt);
}

}  // namespace
