#include "codetables/tables/cloud_base.h"
#include "codetables/tables/visibility.h"
#include "codetables/tables/wave_height.h"

#include <gtest/gtest.h>

#include <string>

namespace {

struct Row {
  const char* from;
  const char* to;
};

TEST(CodeMetres, VisibilityIsTheUpperBoundOfItsClass) {
  for (const Row& row :
       {Row{"90", "49"}, Row{"91", "199"}, Row{"92", "499"}, Row{"93", "999"}, Row{"94", "1999"},
        Row{"95", "3999"}, Row{"96", "9999"}, Row{"97", "19999"}, Row{"98", "49999"},
        Row{"99", "59999"}, Row{"//", ""}, Row{"89", "89"}, Row{"", ""}, Row{"9", "9"},
        Row{"9/", "9/"}, Row{"990", "990"}}) {
    EXPECT_EQ(codetables::visibility_metres(row.from), row.to) << row.from;
  }
}

TEST(CodeMetres, CloudBaseIsTheUpperBoundOfItsClass) {
  for (const Row& row :
       {Row{"0", "49"}, Row{"1", "99"}, Row{"2", "199"}, Row{"3", "299"}, Row{"4", "599"},
        Row{"5", "999"}, Row{"6", "1499"}, Row{"7", "1999"}, Row{"8", "2499"}, Row{"9", "2500"},
        Row{"/", ""}, Row{"", ""}, Row{"10", ""}, Row{"x", ""}}) {
    EXPECT_EQ(codetables::cloud_base_metres(row.from), row.to) << row.from;
  }
}

TEST(CodeMetres, WaveHeightIsHalfMetresRounded) {
  for (const Row& row : {Row{"0.2", "00"}, Row{"0.3", "01"}, Row{"1.5", "03"}, Row{"14.5", "29"},
                         Row{"0.0", "00"}, Row{"//", "//"}, Row{"", ""}, Row{"0.25", "01"}}) {
    EXPECT_EQ(codetables::half_metre_figures(row.from), row.to) << row.from;
  }
}

TEST(CodeMetres, WaveFiguresGoToMetresAndBack) {
  EXPECT_EQ(codetables::metres_of_figures("03"), "1.5");
  for (int figures = 0; figures <= 99; ++figures) {
    const std::string text = (figures < 10 ? "0" : "") + std::to_string(figures);
    EXPECT_EQ(codetables::half_metre_figures(codetables::metres_of_figures(text)), text);
  }
  for (const char* kept : {"", "//", "x"}) EXPECT_EQ(codetables::metres_of_figures(kept), kept);
}

}  // namespace
