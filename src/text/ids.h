#pragma once
// Names of the string table's ids, grouped as the table is. A name without a text stops the build.
// Numbers from 33000 to 39999 and the label blocks of the main form and the observation items are
// the program's historic ones; other blocks: 12xxx-14xxx labels by dialog, 15xxx menus, 40xxx-41xxx
// messages.

namespace text::id {

// Shared
inline constexpr int kLanguageMarker = 33208;
inline constexpr int kNoValueInput = 33213;
inline constexpr int kCheckError = 40900;
inline constexpr int kButtonYes = 40901;
inline constexpr int kButtonNo = 40902;
inline constexpr int kButtonCancel = 40903;
inline constexpr int kOkLabel = 40904;
inline constexpr int kCancelLabel = 40905;
inline constexpr int kHelpLabel = 40906;
inline constexpr int kNoDigitalString = 40907;

// Start-up, settings, files

// Archive and media: folder dialog

// CFixDataDlg

// CKeyObserveDlg

// Barometer card: CKataSelectDlg, CKataInputDlg, CFullEmptySelect

// Main window: labels

// Main window: menus

// Main window: messages

// Report: missing groups
inline constexpr int kMissingYYGGiw = 41500;
inline constexpr int kMissing99LaLaLa = 41501;
inline constexpr int kMissingQcLoLoLoLo = 41502;
inline constexpr int kMissingiRiXhVV = 41503;
inline constexpr int kMissingNddff = 41504;
inline constexpr int kMissing1SnTTT = 41505;
inline constexpr int kMissing2SnTdTdTd = 41506;
inline constexpr int kMissing4PPPP = 41507;
inline constexpr int kMissing5appp = 41508;
inline constexpr int kMissing8NhCLCMCH = 41509;
inline constexpr int kMissing222DsVs = 41510;
inline constexpr int kMissing0SsTwTwTw = 41511;
inline constexpr int kMissing3dw1dw1dw2dw2 = 41512;
inline constexpr int kMissing4Pw1Pw1Hw1Hw1 = 41513;
inline constexpr int kMissing8SwTbTbTb = 41514;

// Group editors: messages
inline constexpr int kSeaLevelPressureMissing = 33200;
inline constexpr int kUtcHourMissing = 33204;
inline constexpr int kInvalidValue = 33205;
inline constexpr int kUtcMinuteMissing = 33209;
inline constexpr int kWetBulbAboveDryBulb = 33362;
inline constexpr int kNotANumber = 35001;
inline constexpr int kInputError = 35002;
inline constexpr int kIcedWetBulbTooWarm = 35012;
inline constexpr int kBarometerReadingRange = 35024;
inline constexpr int kSeaLevelPressureRange = 35025;
inline constexpr int kTendencyAmountRange = 35027;
inline constexpr int kDewPointAboveAir = 35032;
inline constexpr int kApparentDirectionRange = 35141;
inline constexpr int kCalmDirectionWithSpeed = 35143;
inline constexpr int kDirectionWithoutSpeed = 35144;
inline constexpr int kDirectionBelowOneKnot = 35146;
inline constexpr int kHeadingRange = 35151;
inline constexpr int kCourseRange = 35153;
inline constexpr int kSteadyWithAmount = 35212;
inline constexpr int kPressureQuestion = 36004;
inline constexpr int kTendencyAmountQuestion = 36005;
inline constexpr int kAirTemperatureHighQuestion = 36006;
inline constexpr int kAirTemperatureLowQuestion = 36007;
inline constexpr int kDewPointHighQuestion = 36013;
inline constexpr int kDewPointLowQuestion = 36014;
inline constexpr int kWetBulbHighQuestion = 36015;
inline constexpr int kWetBulbLowQuestion = 36016;
inline constexpr int kHumidityRange = 39026;

// CUTCTimeDlg1

// CPositionDlg

// CDvDsDlg

// CSea_SurfaceTemperatureDlg

// CEyeShotDlg

// CSeaSurfacePressureDlg
inline constexpr int kPressureTitle = 13500;
inline constexpr int kPressureReadingGroup = 13501;
inline constexpr int kPressureWhole = 13502;
inline constexpr int kPressureTenths = 13503;
inline constexpr int kPressureReading = 13504;
inline constexpr int kPressureCorrection = 13505;
inline constexpr int kPressureSeaLevel = 13506;
inline constexpr int kPressureAirTemperature = 13507;
inline constexpr int kPressureTimeGroup = 13508;
inline constexpr int kPressureTimeNear = 13509;
inline constexpr int kPressureTimeFar = 13510;
inline constexpr int kPressureHour = 13511;
inline constexpr int kPressureMinute = 13512;
inline constexpr int kPressureCardGroup = 13513;
inline constexpr int kPressureCheckDate = 13514;
inline constexpr int kPressureCheckPlace = 13515;
inline constexpr int kPressureRenew = 13516;
inline constexpr int kPressureTimeLocked = 13517;
inline constexpr int kUnitHectopascal = 13540;
inline constexpr int kUnitCelsius = 13541;
inline constexpr int kUnitPercent = 13542;
inline constexpr int kUnitKnots = 13543;
inline constexpr int kUnitTensOfDegrees = 13544;

// CPresureTendencyDlg
inline constexpr int kTendencyTitle = 13600;
inline constexpr int kTendencyKindGroup = 13601;
inline constexpr int kTendencyCharacteristicGroup = 13602;
inline constexpr int kTendencyCode = 13603;
inline constexpr int kTendencyAmount = 13604;
inline constexpr int kTendencyRisen = 13610;
inline constexpr int kTendencySame = 13611;
inline constexpr int kTendencyDescended = 13612;
inline constexpr int kTendencyUnknown = 13613;
inline constexpr int kCharacteristic0 = 13620;
inline constexpr int kCharacteristic1 = 13621;
inline constexpr int kCharacteristic2 = 13622;
inline constexpr int kCharacteristic3 = 13623;
inline constexpr int kCharacteristic4 = 13624;
inline constexpr int kCharacteristic5 = 13625;
inline constexpr int kCharacteristic6 = 13626;
inline constexpr int kCharacteristic7 = 13627;
inline constexpr int kCharacteristic8 = 13628;
inline constexpr int kCharacteristicUnknown = 13629;

// CCountDewDlg
inline constexpr int kPsychrometerTitle = 13700;
inline constexpr int kDryBulbGroup = 13701;
inline constexpr int kWetBulbGroup = 13702;
inline constexpr int kDryBulbWhole = 13703;
inline constexpr int kWetBulbWhole = 13704;
inline constexpr int kTemperatureTenths = 13705;
inline constexpr int kWetBulbState = 13706;
inline constexpr int kWetBulbNotIced = 13707;
inline constexpr int kWetBulbIced = 13708;
inline constexpr int kWetBulbUnknown = 13709;
inline constexpr int kComputedDewPoint = 13710;
inline constexpr int kComputedHumidity = 13711;
inline constexpr int kComputedGroup = 13712;

// CTemperatureAndDewDlg
inline constexpr int kAirAndDewTitle = 13800;
inline constexpr int kAirGroup = 13801;
inline constexpr int kDewPointGroup = 13802;
inline constexpr int kAirWhole = 13803;
inline constexpr int kDewPointWhole = 13804;

// CThumidityDlg
inline constexpr int kHumidityTitle = 13900;
inline constexpr int kHumidityValue = 13901;

// CLookWindDlg
inline constexpr int kApparentWindTitle = 14000;
inline constexpr int kShipMovementGroup = 14001;
inline constexpr int kHeading = 14002;
inline constexpr int kCourse = 14003;
inline constexpr int kShipSpeed = 14004;
inline constexpr int kApparentWindGroup = 14005;
inline constexpr int kApparentDirection = 14006;
inline constexpr int kApparentSpeed = 14007;
inline constexpr int kApparentWindHint = 14008;
inline constexpr int kTrueWindGroup = 14009;
inline constexpr int kComputedDirection = 14010;
inline constexpr int kComputedSpeed = 14011;

// CTrueDirWindDlg
inline constexpr int kTrueWindTitle = 14100;
inline constexpr int kTrueDirection = 14101;
inline constexpr int kTrueSpeed = 14102;
inline constexpr int kTrueDirectionUnknown = 14103;
inline constexpr int kTrueSpeedUnknown = 14104;

// Saving: CSaveErrorInfoDlg, CHour3ErrorDlg

}  // namespace text::id
