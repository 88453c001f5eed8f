#include "paper/deflate.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "fakes/temp_folder.h"
#include "papers.h"

namespace {

// What another program unpacks, of each.
std::vector<std::string> unpacked(const std::vector<std::string>& packed) {
  const fakes::TempFolder folder;
  for (std::size_t i = 0; i < packed.size(); ++i) folder.write(std::to_string(i), packed[i]);
  const std::string printed = tests::output_of(
      "python3 -c 'import sys, zlib\n"
      "for i in range(int(sys.argv[2])):\n"
      "    name = sys.argv[1] + \"/\" + str(i)\n"
      "    whole = zlib.decompress(open(name, \"rb\").read())\n"
      "    open(name, \"wb\").write(whole)' '" +
      folder.path() + "' " + std::to_string(packed.size()));
  EXPECT_EQ(printed, "");
  std::vector<std::string> whole;
  for (std::size_t i = 0; i < packed.size(); ++i)
    whole.push_back(folder.content(std::to_string(i)));
  return whole;
}

TEST(Deflate, GivesBackWhatWasPacked) {
  std::string all;
  for (int byte = 0; byte < 256; ++byte) all.push_back(static_cast<char>(byte));
  std::string noise;
  unsigned seed = 1;
  for (int i = 0; i < 70'000; ++i) {
    seed = seed * 1103515245U + 12345U;
    noise.push_back(static_cast<char>(seed >> 16U));
  }
  std::string far = "a repetition";  // just within and just beyond what can be told
  far.append(noise.substr(0, 32768 - 12)).append("a repetition");
  far.append(noise.substr(0, 32768 - 11)).append("a repetition");
  std::vector<std::string> texts = {"",
                                    "a",
                                    "ab",
                                    "aaa",
                                    std::string(100'000, 'x'),
                                    std::string(258, 'y'),
                                    std::string(259, 'z'),
                                    all + all,
                                    noise,
                                    noise + noise,
                                    far};
  // Every class of lengths of a repetition, and many distances.
  for (std::size_t length = 1; length < 300; length += 7)
    texts.push_back(noise.substr(0, 300 + length * 37) + noise.substr(7, length) + "!");
  std::vector<std::string> packed;
  for (const std::string& text : texts) packed.push_back(paper::deflate(text));
  const std::vector<std::string> whole = unpacked(packed);
  for (std::size_t i = 0; i < texts.size(); ++i)
    EXPECT_TRUE(whole[i] == texts[i]) << i << ": " << texts[i].size();
}

TEST(Deflate, MakesWhatRepeatsShort) {
  std::string lines;
  for (int i = 0; i < 1000; ++i) lines.append("BBXX 7JWX 15124 99352 71398\n");
  EXPECT_LT(paper::deflate(lines).size(), lines.size() / 50);
}

}  // namespace
