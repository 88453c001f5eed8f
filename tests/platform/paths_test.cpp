#include "platform/paths.h"

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(Paths, APathIsItsFolderAndItsName) {
  const struct {
    const char* folder;
    const char* name;
  } kRows[] = {
      {"C:\\kavrel\\data\\", "14111512.tlx"},
      {"C:\\", "kavrel.ini"},
      {"C:", "kavrel.ini"},  // the folder that the drive is in
      {"/mnt/c/", "kavrel.ini"},
      {"C:\\kavrel/data\\", "log"},
      {"", "kavrel.ini"},
      {"C:\\kavrel\\", ""},
      {"", ""},
  };
  for (const auto& row : kRows) {
    const std::string path = std::string(row.folder).append(row.name);
    EXPECT_EQ(platform::folder_part(path), row.folder) << path;
    EXPECT_EQ(platform::name_part(path), row.name) << path;
  }
}

}  // namespace
