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

// CUTCTimeDlg1

// CPositionDlg

// CDvDsDlg

// CSea_SurfaceTemperatureDlg

// CEyeShotDlg

// CSeaSurfacePressureDlg

// CPresureTendencyDlg

// CCountDewDlg

// CTemperatureAndDewDlg

// CThumidityDlg

// CLookWindDlg

// CTrueDirWindDlg

// Saving: CSaveErrorInfoDlg, CHour3ErrorDlg

}  // namespace text::id
