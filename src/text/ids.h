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
