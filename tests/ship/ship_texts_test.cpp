// The messages of the ship's screens, to the letter.

#include <gtest/gtest.h>

#include "text/ids.h"
#include "text/texts.h"

namespace {

namespace id = text::id;
using text::Language;

TEST(ShipTexts, SayExactlyThis) {
  struct {
    text::Id text_id;
    const char* english;
    const char* japanese;
  } const rows[] = {
      {id::kCardTypeMissing, "Please select a type of your barometer correction card.",
       "気圧計点検の型式を選択して下さい。"},
      {id::kHeightNotInteger, "Please input the height of the barometer in an integer.",
       "気圧計の高さは半角数字の整数値で入力して下さい。"},
      {id::kHeightRange,
       "Input error (the Height of the barometer)：\nThe Height of the barometer should be input "
       "in the range of “0ｍ <= Height <= 200ｍ”\nand “At full load <= In ballast”.",
       "気圧計の高さエラー：0ｍ≦気圧計の高さ≦200ｍ、かつ、満載時≦空船時で入力して下さい。"},
      {id::kTotalCorrectionNotNumeric, "Please input the total correction in numeric characters.",
       "総合補正値は半角数字で入力して下さい。"},
      {id::kTotalFullLoadRange,
       "Input error (the Total correction)：The Total correction should be input in the range of "
       "“-50hPa <= Correction value <= 80hPa” and “At full load <= In ballast”.",
       "総合補正値エラー：-"
       "50hPa≦総合補正値（満載時）≦80hPa、かつ、満載時≦空船時で入力して下さい。"},
      {id::kTotalBallastRange,
       "Input error (the Total correction)：The Total correction should be input in the range of "
       "“-50hPa <= Correction value <= 80hPa” and “At full load <= In ballast”.",
       "総合補正値（空船時）エラー：-"
       "50hPa≦総合補正値（空船時）≦80hPa、かつ、満載時≦空船時で入力して下さい。"},
      {id::kTotalCorrectionRange,
       "Input error (the Total correction)：The Total correction should be input in the range of "
       "“-50hPa <= Correction value <= 80hPa”",
       "総合補正値エラー：-50hPa≦総合補正値≦80hPaで入力して下さい。"},
      {id::kInstrumentalNotNumeric,
       "Please input the Correction value for instrumental error in numeric characters.",
       "器差補正値は半角数字で入力して下さい。"},
      {id::kInstrumentalRange,
       "Input error (the Correction value for instrumental error)：Out of the range (-50hPa <= "
       "Correction value <= 50hPa).",
       "器差補正値エラー：（±50hPa）の範囲を超えています。"},
      {id::kOneDecimalOnly, "Please input the number with one decimal place.",
       "小数点以下１桁以内で入力してください。"},
      {id::kCheckDateMissing, "Please input the date of barometer check.",
       "気圧計の点検日を入力して下さい。"},
      {id::kCheckPortMissing, "Please input the latest port where the barometer was checked.",
       "気圧計の点検場所を入力して下さい。"},
      {id::kInstrumentalMissing, "Please input the Correction value for instrumental error.",
       "器差補正値を入力して下さい。"},
      {id::kHeightFullLoadMissing, "Please input the Height of the barometer (At full load).",
       "気圧計の高さ（満載時）を入力して下さい。"},
      {id::kTotalFullLoadMissing, "Please input the total correction at full load.",
       "総合補正値（満載時）を入力して下さい。"},
      {id::kHeightBallastMissing, "Please input the Height of the barometer (In ballast).",
       "気圧計の高さ（空船時）を入力して下さい。"},
      {id::kTotalBallastMissing, "Please input the total correction in ballast.",
       "総合補正値（空船時）を入力して下さい。"},
      {id::kTotalCorrectionMissing, "Please input the total correction.",
       "総合補正値を入力して下さい。"},
      {id::kLoadingStateMissing, "Please select at full load or in ballast.",
       "積荷の状態を選択してください。"},
      {id::kCallSignForm, "Please input your callsign (max. 7 characters) in capital alphanumeric.",
       "コールサインは、半角の大文字アルファベットおよび数字７文字以内で入力して下さい。"},
      {id::kImoNumberForm, "Please input a 7-digit number for your IMO Number.",
       "ＩＭＯ番号は、半角数字７文字で入力して下さい。"},
      {id::kManufacturerForm,
       "Please input your Automatic Weather Station Manufacturer (max. 60 characters) in capital "
       "alphanumeric, period and comma.",
       "自動気象観測装置メーカー名は、半角アルファベットおよび数字、ピリオド、カンマ、半角スペース"
       "６０文字以内で入力して下さい。"},
      {id::kCallSignMissing, "Please input your callsign.", "コールサインを入力して下さい。"},
      {id::kCheckDateRange,
       "Input error (the date of barometer check)：Out of the range (2000/01/01 <= YYYY/MM/DD <= "
       "%s).",
       "点検日の入力にエラーがあります：（2000/01/01≦YYYY/MM/DD≦%s）の範囲を超えています。"},
      {id::kApparentWithBeaufort,
       " \"Apparent wind\" and \"By Beaufort scale\" can't be selected at the same time",
       "「視風向風速を入力する」と「目測による観測」の組合せは指定不可です。"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(text::bilingual(row.text_id, Language::kEnglish), row.english);
    EXPECT_EQ(text::bilingual(row.text_id, Language::kJapanese), row.japanese);
  }
}

}  // namespace
