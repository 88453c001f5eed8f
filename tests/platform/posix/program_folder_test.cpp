// Where an installed program finds what belongs to it, and one that lies where it was built.

#include "platform/posix/program_folder.h"

#include <gtest/gtest.h>

#include "fakes/temp_folder.h"

namespace {

using platform::posix::program_path;

TEST(ProgramFolder, AnInstalledProgramFindsItsFilesInShare) {
  const fakes::TempFolder room;
  std::filesystem::create_directories(room.path() + "/usr/share/kavrel");
  EXPECT_EQ(program_path(room.path() + "/usr/bin/kavrel"),
            room.path() + "/usr/share/kavrel/kavrel");
  EXPECT_EQ(program_path(room.path() + "/usr/bin/kavrel-cli"),
            room.path() + "/usr/share/kavrel/kavrel-cli");
}

TEST(ProgramFolder, WhereItIsBuiltItsFilesLieBesideIt) {
  const fakes::TempFolder room;
  std::filesystem::create_directories(room.path() + "/share/kavrel");
  // A folder of another name, and a "bin" without such a neighbour.
  EXPECT_EQ(program_path(room.path() + "/src/kavrel"), room.path() + "/src/kavrel");
  EXPECT_EQ(program_path(room.path() + "/other/bin/kavrel"), room.path() + "/other/bin/kavrel");
  EXPECT_EQ(program_path("kavrel"), "kavrel");
  EXPECT_EQ(program_path(""), "");
}

}  // namespace
