// Printing: on no printer at all, and on one whose paper is a file.
#include "win32/printer.h"

#include <gtest/gtest.h>
#include <winspool.h>

#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "win32/letters.h"

namespace {

using ui::PrintResult;

ui::Sheets lines(std::size_t count) {
  std::vector<std::string> all(count, "BBXX 7JWX 15124 99352 71398 東京湾");
  return {"Print", ui::document_of(all), {}, {}, {}};
}

// The emulator's own driver, which is there alone, prints to a file.
bool is_emulated() {
  return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
}

constexpr wchar_t kName[] = L"Kavrel test paper";
constexpr char kPaperDescription[] =
    "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*FileVersion: \"1.0\"\n"
    "*LanguageVersion: English\n*LanguageEncoding: ISOLatin1\n*PCFileName: \"PAPER.PPD\"\n"
    "*Manufacturer: \"Paper\"\n*Product: \"(Paper)\"\n*PSVersion: \"(3010.000) 0\"\n"
    "*ModelName: \"Paper\"\n*ShortNickName: \"Paper\"\n*NickName: \"Paper\"\n"
    "*LanguageLevel: \"3\"\n*ColorDevice: True\n*DefaultColorSpace: RGB\n"
    "*DefaultResolution: 600dpi\n"
    "*OpenUI *PageSize: PickOne\n*DefaultPageSize: A4\n"
    "*PageSize A4/A4: \"<</PageSize[595 842]>>setpagedevice\"\n*CloseUI: *PageSize\n"
    "*OpenUI *PageRegion: PickOne\n*DefaultPageRegion: A4\n"
    "*PageRegion A4/A4: \"<</PageSize[595 842]>>setpagedevice\"\n*CloseUI: *PageRegion\n"
    "*DefaultImageableArea: A4\n*ImageableArea A4/A4: \"12 12 583 782\"\n"
    "*DefaultPaperDimension: A4\n*PaperDimension A4/A4: \"595 842\"\n"
    "*DefaultFont: Courier\n*Font Courier: Standard \"(002.004S)\" Standard ROM\n";

// The default printer of this computer while it lives; what is printed is a file.
class TestPrinter {
 public:
  TestPrinter() {
    wchar_t temp[MAX_PATH] = {};
    GetTempPathW(MAX_PATH, temp);
    paper_ = std::wstring(temp) + L"kavrel-paper-" + std::to_wstring(GetCurrentProcessId());
    DWORD size = MAX_PATH;
    before_.resize(size);
    if (GetDefaultPrinterW(before_.data(), &size) == FALSE) before_.clear();
    wchar_t folder[MAX_PATH] = {};
    DWORD needed = 0;
    GetPrinterDriverDirectoryW(nullptr, nullptr, 1, reinterpret_cast<BYTE*>(folder), sizeof folder,
                               &needed);
    std::wstring description(folder);
    description.append(L"\\3\\paper.ppd");
    const HANDLE file = CreateFileW(description.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    DWORD written = 0;
    WriteFile(file, kPaperDescription, sizeof kPaperDescription - 1, &written, nullptr);
    CloseHandle(file);
    wchar_t driver_name[] = L"Kavrel test driver";
    wchar_t system[] = L"Windows x64";
    wchar_t program[] = L"wineps.drv";
    wchar_t type[] = L"RAW";
    DRIVER_INFO_3W driver{};
    driver.cVersion = 3;
    driver.pName = driver_name;
    driver.pEnvironment = system;
    driver.pDriverPath = driver.pConfigFile = program;
    driver.pDataFile = description.data();
    driver.pDefaultDataType = type;
    AddPrinterDriverExW(nullptr, 3, reinterpret_cast<BYTE*>(&driver),
                        APD_COPY_NEW_FILES | APD_COPY_FROM_DIRECTORY);
    wchar_t name[] = L"Kavrel test paper";
    wchar_t processor[] = L"winprint";
    wchar_t nothing[] = L"";
    PRINTER_INFO_2W printer{};
    printer.pPrinterName = name;
    printer.pDriverName = driver_name;
    printer.pPortName = paper_.data();
    printer.pPrintProcessor = processor;
    printer.pDatatype = type;
    printer.pLocation = printer.pComment = printer.pShareName = nothing;
    printer.pSepFile = printer.pParameters = nothing;
    printer_ = AddPrinterW(nullptr, 2, reinterpret_cast<BYTE*>(&printer));
    SetDefaultPrinterW(kName);
  }
  ~TestPrinter() {
    DeletePrinter(printer_);
    ClosePrinter(printer_);
    if (!before_.empty()) SetDefaultPrinterW(before_.c_str());
    DeleteFileW(paper_.c_str());
  }
  TestPrinter(const TestPrinter&) = delete;
  TestPrinter& operator=(const TestPrinter&) = delete;

  [[nodiscard]] const std::wstring& paper() const { return paper_; }
  /// What came out of it since the last time, page by page as its language has it.
  [[nodiscard]] std::string printed() const {
    const HANDLE file = CreateFileW(paper_.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) return {};
    std::string bytes(GetFileSize(file, nullptr), '\0');
    DWORD read = 0;
    ReadFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr);
    CloseHandle(file);
    DeleteFileW(paper_.c_str());
    return bytes;
  }

 private:
  std::wstring paper_;
  std::wstring before_;
  HANDLE printer_ = nullptr;
};

int pages_of(const std::string& printed) {
  int pages = 0;
  for (std::size_t at = printed.find("%%Page: "); at != std::string::npos;
       at = printed.find("%%Page: ", at + 1))
    ++pages;
  return pages;
}

// ---- Without a printer

TEST(PaperLetters, StandInColumns) {
  const win32::PaperLetters& letters = win32::paper_letters();
  ASSERT_FALSE(letters.faces.empty());
  EXPECT_TRUE(paper::keeps_columns(*letters.faces[0]))
      << "no fixed font with Japanese letters is installed";
  EXPECT_FALSE(letters.family.empty());
}

TEST(Pdf, HasItsPagesWithoutAPrinter) {
  const win32::Printer printer;
  const std::size_t per_page = printer.page_room(lines(1)).lines;
  EXPECT_GT(per_page, 30U);
  const auto pdf = printer.pdf(lines(per_page + 1));
  ASSERT_TRUE(pdf);
  EXPECT_TRUE(pdf->starts_with("%PDF-"));
  EXPECT_NE(pdf->find("/Count 2"), std::string::npos);
}

TEST(Sheet, OfWhatIsNoPrinterIsWhatItReaches) {
  const HDC dc = GetDC(nullptr);
  const paper::SheetSize size = win32::sheet_of(dc);
  EXPECT_NEAR(size.width, GetDeviceCaps(dc, HORZRES) * 72.0 / GetDeviceCaps(dc, LOGPIXELSX), 0.1);
  EXPECT_NEAR(size.margins.left, 10 * 72 / 25.4, 0.01);
  // Nothing is printed on a window.
  EXPECT_EQ(win32::print_on(dc, lines(1)), PrintResult::kFailed);
  ReleaseDC(nullptr, dc);
}

// ---- With one

class Printing : public testing::Test {
 protected:
  void SetUp() override {
    if (!is_emulated()) GTEST_SKIP() << "a printer that prints to a file is the emulator's";
    printer.emplace();
  }
  std::optional<TestPrinter> printer;
};

TEST_F(Printing, KnowsThePaperOfTheDefaultPrinter) {
  const win32::Printer port;
  EXPECT_TRUE(port.has_default_printer());
  const HDC dc = CreateICW(L"WINSPOOL", kName, nullptr, nullptr);
  const paper::SheetSize size = win32::sheet_of(dc);
  DeleteDC(dc);
  EXPECT_NEAR(size.width, 595, 1);
  EXPECT_NEAR(size.height, 842, 1);
  EXPECT_NEAR(size.margins.left, 10 * 72 / 25.4, 0.1);  // more than the 12 of the printer
  EXPECT_NEAR(size.margins.top, 60, 0.5);               // which does not reach these
  // The same letters, fewer of them down the page than on paper that is reached whole.
  const ui::PageRoom room = port.page_room(lines(1));
  const auto whole = paper::measure_page(lines(1), paper::sheet_of(595, 842),
                                         paper::proportions_of(*win32::paper_letters().faces[0]));
  EXPECT_LT(room.lines, whole.room.lines);
  EXPECT_EQ(room.columns, whole.room.columns);
}

TEST_F(Printing, PutsAllPagesIntoOneJob) {
  const std::size_t per_page = win32::Printer().page_room(lines(1)).lines;
  for (const std::size_t count : {std::size_t{1}, per_page, per_page + 1}) {
    const HDC dc = CreateDCW(L"WINSPOOL", kName, nullptr, nullptr);
    EXPECT_EQ(win32::print_on(dc, lines(count)), PrintResult::kSuccess);
    DeleteDC(dc);
    const std::string printed = printer->printed();
    EXPECT_TRUE(printed.starts_with("%!PS")) << printed.substr(0, 20);
    EXPECT_EQ(pages_of(printed), static_cast<int>((count + per_page - 1) / per_page));
  }
}

TEST_F(Printing, PrintsDrawings) {
  ui::Drawing drawing;
  drawing.same_scale = true;
  drawing.shapes = {ui::Area{{{0, 0}, {1, 0}, {1, 1}}, ui::Ink::kWater},
                    ui::Polyline{{{-1e9, 0}, {1e9, 1}}, ui::Ink::kMark, true, true},
                    ui::WindBarb{{0.5, 0.5}, 270, 65}, ui::ShortText{{0.5, 0.2}, "東京"}};
  const HDC dc = CreateDCW(L"WINSPOOL", kName, nullptr, nullptr);
  EXPECT_EQ(win32::print_on(dc, {"Maps", {}, {drawing, drawing}}), PrintResult::kSuccess);
  DeleteDC(dc);
  EXPECT_EQ(pages_of(printer->printed()), 2);
}

// Presses a button of the system's print dialog as soon as it is there.
int pressed_button = 0;
int dialogs_seen = 0;
void CALLBACK press(HWND /*window*/, UINT /*message*/, UINT_PTR timer, DWORD /*time*/) {
  const auto find = [](HWND window, LPARAM found) -> BOOL {
    wchar_t kind[16] = {};
    GetClassNameW(window, kind, 16);
    if (std::wstring(kind) != L"#32770" || IsWindowVisible(window) == FALSE) return TRUE;
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
  };
  HWND dialog = nullptr;
  EnumThreadWindows(GetCurrentThreadId(), find, reinterpret_cast<LPARAM>(&dialog));
  if (dialog == nullptr) return;
  KillTimer(nullptr, timer);
  ++dialogs_seen;
  PostMessageW(dialog, WM_COMMAND, static_cast<WPARAM>(pressed_button), 0);
}

TEST_F(Printing, AsksInTheSystemsDialog) {
  win32::Printer port([] { return static_cast<HWND>(nullptr); });
  const auto answer = [&](int button) {
    pressed_button = button;
    dialogs_seen = 0;
    SetTimer(nullptr, 0, 20, &press);
    const PrintResult result = port.print(lines(3));
    EXPECT_EQ(dialogs_seen, 1);
    return result;
  };
  EXPECT_EQ(answer(IDCANCEL), PrintResult::kCancelled);
  EXPECT_EQ(printer->printed(), "");
  EXPECT_EQ(answer(IDOK), PrintResult::kSuccess);
  EXPECT_EQ(pages_of(printer->printed()), 1);
}

}  // namespace
