#include "text/numbers.h"

#include <gtest/gtest.h>

#include "text/strings.h"

namespace {

TEST(Numbers, FixedFormatsAsPrintfDoes) {
  EXPECT_EQ(text::format_fixed(5.2, 1, 4), " 5.2");
  EXPECT_EQ(text::format_fixed(998.7, 1, 6, '0'), "0998.7");
  EXPECT_EQ(text::format_fixed(-1.2, 1, 5, '0'), "-01.2");
  EXPECT_EQ(text::format_fixed(1013.25, 1),
            "1013.2");  // the double is exactly half-way: to even, as printf
  EXPECT_EQ(text::format_fixed(-0.04, 1), "-0.0");
}

TEST(Numbers, DigitsPadBehindTheSign) {
  EXPECT_EQ(text::format_digits(7, 2), "07");
  EXPECT_EQ(text::format_digits(-7, 2), "-07");
  EXPECT_EQ(text::format_int(7, 2), " 7");
  EXPECT_EQ(text::format_int(-7, 4, '0'), "-007");
}

TEST(Numbers, LeadingNumberIgnoresTheRest) {
  EXPECT_EQ(text::leading_number("  +12.5hPa"), 12.5);
  EXPECT_EQ(text::leading_number("-.5"), -0.5);
  EXPECT_EQ(text::leading_number("12,5"), 12.0);
  EXPECT_EQ(text::leading_number("1e2x"), 100.0);
  for (const char* none : {"", "-", "+-1", "inf", "nan", "x1", "."})
    EXPECT_EQ(text::leading_number(none), 0.0) << none;
  EXPECT_EQ(text::leading_number("1e999"), 0.0);
}

TEST(Numbers, LeadingIntClamps) {
  EXPECT_EQ(text::leading_int(" 042x"), 42);
  EXPECT_EQ(text::leading_int("-7.9"), -7);
  EXPECT_EQ(text::leading_int("99999999999999999999"), 2147483647);
  EXPECT_EQ(text::leading_int("/"), 0);
}

TEST(Narrow, FullWidthFormsBecomeSingleWidth) {
  EXPECT_EQ(text::narrow("ＡＢ１２＊．，＋－"), "AB12*.,+-");
  EXPECT_EQ(text::narrow("Ａ　Ｂ"), "A B");
  EXPECT_EQ(text::narrow("Ａ　Ｂ", text::WideSpace::kRemoved), "AB");
  EXPECT_EQ(text::narrow("東京 12\xff\xe3"), "東京 12\xff\xe3");
}

TEST(Strings, CountAndCutCharactersNotBytes) {
  EXPECT_EQ(text::length("東京a"), 3U);
  EXPECT_EQ(text::first("東京a", 2), "東京");
  EXPECT_EQ(text::first("abc", 9), "abc");
}

TEST(Strings, ControlCharactersAreThoseBelowABlankAndTheDeleteCharacter) {
  for (int byte = 0; byte < 256; ++byte) {
    const char c = static_cast<char>(byte);
    const bool control = byte < 32 || byte == 127;
    EXPECT_EQ(text::is_control(c), control) << byte;
    EXPECT_EQ(text::has_control(std::string("a") + c + "b"), control) << byte;
  }
  EXPECT_FALSE(text::has_control(""));
}

TEST(Strings, AByteOrderMarkIsTakenOffInFrontOnly) {
  EXPECT_EQ(text::without_byte_order_mark("\xEF\xBB\xBFx"), "x");
  EXPECT_EQ(text::without_byte_order_mark("\xEF\xBB\xBF\xEF\xBB\xBFx"), "x");
  EXPECT_EQ(text::without_byte_order_mark("x\xEF\xBB\xBF"), "x\xEF\xBB\xBF");
  EXPECT_EQ(text::without_byte_order_mark("\xEF\xBB"), "\xEF\xBB");
  EXPECT_EQ(text::without_byte_order_mark(""), "");
}

}  // namespace
