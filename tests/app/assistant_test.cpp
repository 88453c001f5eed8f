#include "app/CAssistantClass.h"

#include <gtest/gtest.h>

#include "fakes/fake_files.h"
#include "fakes/fake_ports.h"

namespace {

TEST(Assistant, ProgramFolderIsTheFolderPartOfTheProgramsPath) {
  fakes::FakeFiles files;
  fakes::FakeDrives drives;
  const struct {
    const char* program;
    const char* current;
    const char* folder;
  } rows[] = {
      {"C:\\program\\kavrel.exe", "C:\\x", "C:\\program"},
      {"C:\\kavrel.exe", "C:\\x", "C:"},
      {"kavrel.exe", "C:\\x", "C:\\x"},
      {"kavrel.exe", "C:\\", "C:"},
  };
  for (const auto& row : rows) {
    drives.program = row.program;
    files.set_current_folder(row.current);
    EXPECT_EQ(app::CAssistantClass(drives, files).program_folder(), row.folder) << row.program;
  }
}

TEST(Assistant, FreeSpaceIsToldOnlyWithAMedium) {
  fakes::FakeFiles files;
  fakes::FakeDrives drives;
  files.set_free_space('A', 1457664);
  const app::CAssistantClass assistant(drives, files);
  EXPECT_EQ(assistant.free_space('A'), 1457664U);
  drives.medium['A'] = false;
  EXPECT_EQ(assistant.free_space('A'), std::nullopt);
}

TEST(Assistant, SystemThatTellsDeviceKindsIsAnOlderOne) {
  const fakes::FakeFiles files;
  fakes::FakeDrives drives;
  EXPECT_EQ(app::CAssistantClass(drives, files).system_family(), app::SystemFamily::kCurrent);
  drives.older = {{1, 2}};
  EXPECT_EQ(app::CAssistantClass(drives, files).system_family(), app::SystemFamily::kOlder);
}

}  // namespace
