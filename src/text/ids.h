#pragma once
// Names of the string table's ids, grouped as the table is. A name without a text stops the build.
// Numbers from 33000 to 39999 and the label blocks of the main form and the observation items are
// the program's historic ones; other blocks: 12xxx-14xxx labels by dialog, 15xxx menus, 40xxx-41xxx
// messages, 43xxx code tables and the dialogs that show them.

#include "text/id.h"

namespace text::id {

// Shared
inline constexpr Id kLanguageMarker{33208};
inline constexpr Id kNoValueInput{33213};
inline constexpr Id kCheckError{40900};
inline constexpr Id kButtonYes{40901};
inline constexpr Id kButtonNo{40902};
inline constexpr Id kButtonCancel{40903};
inline constexpr Id kOkLabel{40904};
inline constexpr Id kCancelLabel{40905};
inline constexpr Id kHelpLabel{40906};
inline constexpr Id kNoDigitalString{40907};
inline constexpr Id kHelpPageMissing{40908};

// Start-up, settings, files
inline constexpr Id kSettingsNotSaved{41000};
inline constexpr Id kAskUseFolder{42620};
inline constexpr Id kEventFailed{42622};
inline constexpr Id kProgramFailed{42623};

// Why a file could not be used, or an operation not be ended
inline constexpr Id kReasonNotFound{42600};
inline constexpr Id kReasonNotPermitted{42601};
inline constexpr Id kReasonNoSpace{42602};
inline constexpr Id kReasonNoMedium{42603};
inline constexpr Id kReasonNotAFile{42604};
inline constexpr Id kReasonBadLink{42605};
inline constexpr Id kReasonTooManyOpen{42606};
inline constexpr Id kReasonBadName{42607};
inline constexpr Id kReasonLocked{42608};
inline constexpr Id kReasonExists{42609};
inline constexpr Id kReasonNoMemory{42610};
inline constexpr Id kReasonInputOutput{42611};
inline constexpr Id kReasonUnknown{42612};

// Archive and media: folder dialog
inline constexpr Id kReportFolderTitle{12500};
inline constexpr Id kLogbookFolderTitle{12501};
inline constexpr Id kReportCopyTitle{12502};
inline constexpr Id kLogbookCopyTitle{12503};
inline constexpr Id kReportFolderPrompt{12504};
inline constexpr Id kLogbookFolderPrompt{12505};
inline constexpr Id kReportCopyPrompt{12506};
inline constexpr Id kLogbookCopyPrompt{12507};
inline constexpr Id kReportFolderCurrent{12508};
inline constexpr Id kLogbookFolderCurrent{12509};
inline constexpr Id kReportCopyCurrent{12510};
inline constexpr Id kLogbookCopyCurrent{12511};
inline constexpr Id kDriveList{12512};
inline constexpr Id kFolderTree{12513};
inline constexpr Id kChosenFolder{12514};
inline constexpr Id kCreateFolder{12515};
inline constexpr Id kMyComputer{12516};
inline constexpr Id kCreateFolderTitle{12517};
inline constexpr Id kNewFolderName{12518};
inline constexpr Id kInCalculating{12519};
inline constexpr Id kProgramTitleForNotice{12520};
inline constexpr Id kChooseAnotherFolder{40300};
inline constexpr Id kNoFolderChosen{40301};
inline constexpr Id kFolderGone{40302};
inline constexpr Id kFolderNotReadable{40303};
inline constexpr Id kFolderNotCreated{40304};
inline constexpr Id kFolderUncertain{42621};
inline constexpr Id kBadFolderName{40305};

// CFixDataDlg
inline constexpr Id kFixTitle{12000};
inline constexpr Id kFixShip{12001};
inline constexpr Id kFixCallSign{12002};
inline constexpr Id kFixImoNumber{12003};
inline constexpr Id kFixCard{12004};
inline constexpr Id kFixCardText{12005};
inline constexpr Id kFixCardButton{12006};
inline constexpr Id kFixCardType{12007};
inline constexpr Id kFixWind{12008};
inline constexpr Id kFixWindInput{12009};
inline constexpr Id kFixTrueWind{12010};
inline constexpr Id kFixApparentWind{12011};
inline constexpr Id kFixWindSpeed{12012};
inline constexpr Id kFixBeaufort{12013};
inline constexpr Id kFixAnemometer{12014};
inline constexpr Id kFixTemperature{12015};
inline constexpr Id kFixTemperatureUnit{12016};
inline constexpr Id kFixUnitTenth{12017};
inline constexpr Id kFixUnitHalf{12018};
inline constexpr Id kFixUnitWhole{12019};
inline constexpr Id kFixSeaTemperature{12020};
inline constexpr Id kFixIntake{12021};
inline constexpr Id kFixBucket{12022};
inline constexpr Id kFixHullSensor{12023};
inline constexpr Id kFixOther{12024};
inline constexpr Id kFixDewPoint{12025};
inline constexpr Id kFixDewPointDirect{12026};
inline constexpr Id kFixDewPointComputed{12027};
inline constexpr Id kFixHumidityMethod{12029};
inline constexpr Id kFixHumidityDirect{12030};
inline constexpr Id kFixHumidityComputed{12031};
inline constexpr Id kFixHumidityUnit{12032};
inline constexpr Id kFixHumidityTenth{12033};
inline constexpr Id kFixHumidityWhole{12034};
inline constexpr Id kFixEquipment{12035};
inline constexpr Id kFixWaveRecorder{12036};
inline constexpr Id kFixYes{12037};
inline constexpr Id kFixNo{12038};
inline constexpr Id kFixVosClim{12039};
inline constexpr Id kFixVosClimRegistered{12040};
inline constexpr Id kFixVosClimUnregistered{12041};
inline constexpr Id kFixVosClimInputting{12042};
inline constexpr Id kFixAws{12043};
inline constexpr Id kFixManufacturer{12044};
inline constexpr Id kFixFolders{12045};
inline constexpr Id kFixReportFolder{12046};
inline constexpr Id kFixLogbookFolder{12047};
inline constexpr Id kFixLockedLoading{12048};
inline constexpr Id kFixLockedVosClim{12049};
inline constexpr Id kFixLockedManufacturer{12050};
inline constexpr Id kShipFileUnreadable{40000};
inline constexpr Id kShipFileUnreadableInForce{42102};
inline constexpr Id kFileNotSaved{40001};
inline constexpr Id kCallSignMissing{40010};
inline constexpr Id kCallSignForm{40011};
inline constexpr Id kImoNumberForm{40012};
inline constexpr Id kManufacturerForm{40013};
inline constexpr Id kApparentWithBeaufort{40014};

// CVosClimDlg
inline constexpr Id kVosClimTitle{42750};
inline constexpr Id kVosClimShip{42751};
inline constexpr Id kVosClimCargoHeight{42752};
inline constexpr Id kVosClimDeparture{42753};
inline constexpr Id kVosClimUnit{42754};

// CKeyObserveDlg
inline constexpr Id kItemsTitle{11900};
inline constexpr Id kItemsPrompt{11901};
inline constexpr Id kItemsObserved{11902};
inline constexpr Id kItemsNotObserved{11903};
inline constexpr Id kItemH{11904};
inline constexpr Id kItemVV{11905};
inline constexpr Id kItemN{11906};
inline constexpr Id kItemNh{11907};
inline constexpr Id kItemCLCMCH{11908};
inline constexpr Id kItemww{11909};
inline constexpr Id kItemW1W2{11910};
inline constexpr Id kItemPwHw{11911};
inline constexpr Id kItemSwell1{11912};
inline constexpr Id kItemSwell2{11913};
inline constexpr Id kItemIsEsEsRs{11914};
inline constexpr Id kItemSeaIce{11915};

// Barometer card: CKataSelectDlg, CKataInputDlg, CFullEmptySelect
inline constexpr Id kCardSelectTitle{12200};
inline constexpr Id kCardSelectPrompt{12201};
inline constexpr Id kCardTypeOne{12202};
inline constexpr Id kCardTypeTwo{12203};
inline constexpr Id kCardTitle{12204};
inline constexpr Id kCardPrompt{12205};
inline constexpr Id kCardDate{12206};
inline constexpr Id kCardPort{12207};
inline constexpr Id kCardType{12208};
inline constexpr Id kCardChangeType{12209};
inline constexpr Id kCardTotal{12210};
inline constexpr Id kCardInstrumental{12211};
inline constexpr Id kCardFullLoad{12212};
inline constexpr Id kCardBallast{12213};
inline constexpr Id kCardHeight{12214};
inline constexpr Id kCardLoading{12215};
inline constexpr Id kCardUnitPressure{12216};
inline constexpr Id kCardUnitHeight{12217};
inline constexpr Id kLoadingTitle{12218};
inline constexpr Id kLoadingPrompt{12219};
inline constexpr Id kCardTypeMissing{40100};
inline constexpr Id kCheckDateMissing{40101};
inline constexpr Id kCheckDateRange{40102};
inline constexpr Id kCheckPortMissing{40103};
inline constexpr Id kInstrumentalMissing{40104};
inline constexpr Id kInstrumentalNotNumeric{40105};
inline constexpr Id kInstrumentalRange{40106};
inline constexpr Id kOneDecimalOnly{40107};
inline constexpr Id kHeightFullLoadMissing{40108};
inline constexpr Id kHeightBallastMissing{40109};
inline constexpr Id kHeightNotInteger{40110};
inline constexpr Id kHeightRange{40111};
inline constexpr Id kTotalFullLoadMissing{40112};
inline constexpr Id kTotalBallastMissing{40113};
inline constexpr Id kTotalCorrectionMissing{40114};
inline constexpr Id kTotalCorrectionNotNumeric{40115};
inline constexpr Id kTotalFullLoadRange{40116};
inline constexpr Id kTotalBallastRange{40117};
inline constexpr Id kTotalCorrectionRange{40118};
inline constexpr Id kLoadingStateMissing{40119};
inline constexpr Id kCheckPortCharacter{42100};
inline constexpr Id kCheckPortTooLong{42101};

// Main window: labels
inline constexpr Id kLabelObservationTime{11000};
inline constexpr Id kLabelYear{11001};
inline constexpr Id kLabelMonth{11002};
inline constexpr Id kLabelDay{11003};
inline constexpr Id kLabelHour{11004};
inline constexpr Id kLabelLatitude{11005};
inline constexpr Id kLabelLongitude{11006};
inline constexpr Id kLabelNorth{11007};
inline constexpr Id kLabelSouth{11008};
inline constexpr Id kLabelEast{11009};
inline constexpr Id kLabelWest{11010};
inline constexpr Id kLabelShipDirection{11011};
inline constexpr Id kLabelShipSpeed{11012};
inline constexpr Id kLabelAirPressure{11013};
inline constexpr Id kLabelReading{11014};
inline constexpr Id kLabelTendencyType{11015};
inline constexpr Id kLabelTendencyAmount{11016};
inline constexpr Id kLabelDuringThreeHours{11017};
inline constexpr Id kLabelSeaLevel{11018};
inline constexpr Id kLabelFullLoad{11019};
inline constexpr Id kLabelInBallast{11020};
inline constexpr Id kLabelDryAndWet{11021};
inline constexpr Id kLabelDry{11022};
inline constexpr Id kLabelWet{11023};
inline constexpr Id kLabelFreeze{11024};
inline constexpr Id kLabelTempByDewPoint{11025};
inline constexpr Id kLabelTemp{11026};
inline constexpr Id kLabelDew{11027};
inline constexpr Id kLabelHumidity{11028};
inline constexpr Id kLabelTrueWind{11029};
inline constexpr Id kLabelWindDirection{11030};
inline constexpr Id kLabelWindSpeed{11031};
inline constexpr Id kLabelApparentWind{11032};
inline constexpr Id kLabelShipHeading{11033};
inline constexpr Id kLabelApparentShipSpeed{11034};
inline constexpr Id kLabelSeaTemperature{11035};
inline constexpr Id kLabelWindWave{11036};
inline constexpr Id kLabelSwell1{11037};
inline constexpr Id kLabelSwell2{11038};
inline constexpr Id kLabelWaveRecorder{11039};
inline constexpr Id kLabelWaveDirection{11040};
inline constexpr Id kLabelWavePeriod{11041};
inline constexpr Id kLabelWaveHeight{11042};
inline constexpr Id kLabelVisibility{11043};
inline constexpr Id kLabelPresentWeather{11044};
inline constexpr Id kLabelPastWeather{11045};
inline constexpr Id kLabelTotalCloud{11046};
inline constexpr Id kLabelLowestCloud{11047};
inline constexpr Id kLabelCloudType{11048};
inline constexpr Id kLabelUpperCloud{11049};
inline constexpr Id kLabelMiddleCloud{11050};
inline constexpr Id kLabelLowerCloud{11051};
inline constexpr Id kLabelCloudHeight{11052};
inline constexpr Id kLabelIceAccretion{11053};
inline constexpr Id kLabelIceCauses{11054};
inline constexpr Id kLabelIceThickness{11055};
inline constexpr Id kLabelIceRate{11056};
inline constexpr Id kLabelSeaIce{11057};
inline constexpr Id kLabelIceConcentration{11058};
inline constexpr Id kLabelIceStage{11059};
inline constexpr Id kLabelIceLandOrigin{11060};
inline constexpr Id kLabelIceBearing{11061};
inline constexpr Id kLabelIceTrend{11062};
inline constexpr Id kLabelWeatherMessage{11063};
inline constexpr Id kLabelActualTime{11064};
inline constexpr Id kLabelShipCourse{11065};
inline constexpr Id kLabelDegrees{11066};
inline constexpr Id kLabelMinutes{11067};
inline constexpr Id kLabelPercent{11068};
inline constexpr Id kLabelTensOfDegrees{11069};
inline constexpr Id kLabelKnots{11070};
inline constexpr Id kLabelSeconds{11071};
inline constexpr Id kLabelMap{11072};
inline constexpr Id kLabelLoadingState{11073};

// Main window: menus
inline constexpr Id kMenuFile{15000};
inline constexpr Id kMenuCorrectReports{15001};
inline constexpr Id kMenuPrint{15002};
inline constexpr Id kMenuPrintSelected{15003};
inline constexpr Id kMenuPrintAll{15004};
inline constexpr Id kMenuPrintLogbook{15005};
inline constexpr Id kMenuCopyReport{15006};
inline constexpr Id kMenuCopyLogbook{15007};
inline constexpr Id kMenuExit{15008};
inline constexpr Id kMenuSave{15009};
inline constexpr Id kMenuFixedData{15010};
inline constexpr Id kMenuObservationItem{15011};
inline constexpr Id kMenuVosClim{15012};
inline constexpr Id kMenuLanguage{15013};
inline constexpr Id kMenuJapanese{15014};
inline constexpr Id kMenuEnglish{15015};
inline constexpr Id kMenuEnglishInJapanese{15016};
inline constexpr Id kMenuHelp{15017};
inline constexpr Id kMenuManual{15018};
inline constexpr Id kMenuGuide{15019};
inline constexpr Id kMenuGuideCodes{15020};
inline constexpr Id kMenuGuideClouds{15021};
inline constexpr Id kMenuGuideBeaufort{15022};
inline constexpr Id kMenuOther{15023};
inline constexpr Id kMenuOtherPmo{15024};
inline constexpr Id kMenuOtherCorrection{15025};
inline constexpr Id kMenuOtherInmarsat{15026};
inline constexpr Id kMenuOtherVosClim{15027};
inline constexpr Id kMenuVersion{15028};

// Main window: messages
inline constexpr Id kAskLoadingState{38009};
inline constexpr Id kAskSaveOnExit{40500};
inline constexpr Id kAskExit{40501};
inline constexpr Id kAskSaveBeforeCorrecting{40502};
inline constexpr Id kNoSubWindow{40503};
inline constexpr Id kExitQuestionTitle{40505};
inline constexpr Id kMainTitle{40506};
inline constexpr Id kMainTitleNotSaved{40507};
inline constexpr Id kMainTitleSaved{40508};
inline constexpr Id kVersionInformation{40509};
inline constexpr Id kWhyNotObserved{40510};
inline constexpr Id kWhyOtherMethod{40511};
inline constexpr Id kWhyNoLoadingState{40512};
inline constexpr Id kWhyComputed{42402};
inline constexpr Id kWhyNoWaveRecorder{40513};
inline constexpr Id kFormHectopascal{40520};
inline constexpr Id kFormCelsius{40521};
inline constexpr Id kFormMetres{40522};
inline constexpr Id kFormCentimetres{40523};

// Report: missing groups
inline constexpr Id kMissingYYGGiw{41500};
inline constexpr Id kMissing99LaLaLa{41501};
inline constexpr Id kMissingQcLoLoLoLo{41502};
inline constexpr Id kMissingiRiXhVV{41503};
inline constexpr Id kMissingNddff{41504};
inline constexpr Id kMissing1SnTTT{41505};
inline constexpr Id kMissing2SnTdTdTd{41506};
inline constexpr Id kMissing4PPPP{41507};
inline constexpr Id kMissing5appp{41508};
inline constexpr Id kMissing8NhCLCMCH{41509};
inline constexpr Id kMissing222DsVs{41510};
inline constexpr Id kMissing0SsTwTwTw{41511};
inline constexpr Id kMissing3dw1dw1dw2dw2{41512};
inline constexpr Id kMissing4Pw1Pw1Hw1Hw1{41513};
inline constexpr Id kMissing8SwTbTbTb{41514};

// Group editors: messages
inline constexpr Id kInvalidMonth{35003};
inline constexpr Id kInvalidYear{35004};
inline constexpr Id kInvalidDay{35005};
inline constexpr Id kSeaTemperatureRange{35017};
inline constexpr Id kLatitudeDegreesRange{35018};
inline constexpr Id kLatitudeMinutesRange{35019};
inline constexpr Id kLongitudeDegreesRange{35020};
inline constexpr Id kLongitudeMinutesRange{35021};
inline constexpr Id kOnLandQuestion{37011};
inline constexpr Id kEarlierReportUnreadable{42624};
inline constexpr Id kSeaLevelPressureMissing{33200};
inline constexpr Id kUtcHourMissing{33204};
inline constexpr Id kInvalidValue{33205};
inline constexpr Id kUtcMinuteMissing{33209};
inline constexpr Id kWetBulbAboveDryBulb{33362};
inline constexpr Id kNotANumber{35001};
inline constexpr Id kInputError{35002};
inline constexpr Id kIcedWetBulbTooWarm{35012};
inline constexpr Id kBarometerReadingRange{35024};
inline constexpr Id kSeaLevelPressureRange{35025};
inline constexpr Id kTendencyAmountRange{35027};
inline constexpr Id kDewPointAboveAir{35032};
inline constexpr Id kApparentDirectionRange{35141};
inline constexpr Id kCalmDirectionWithSpeed{35143};
inline constexpr Id kDirectionWithoutSpeed{35144};
inline constexpr Id kDirectionBelowOneKnot{35146};
inline constexpr Id kHeadingRange{35151};
inline constexpr Id kCourseRange{35153};
inline constexpr Id kSteadyWithAmount{35212};
inline constexpr Id kPressureQuestion{36004};
inline constexpr Id kTendencyAmountQuestion{36005};
inline constexpr Id kAirTemperatureHighQuestion{36006};
inline constexpr Id kAirTemperatureLowQuestion{36007};
inline constexpr Id kDewPointHighQuestion{36013};
inline constexpr Id kDewPointLowQuestion{36014};
inline constexpr Id kWetBulbHighQuestion{36015};
inline constexpr Id kWetBulbLowQuestion{36016};
inline constexpr Id kHumidityRange{39026};
inline constexpr Id kDateInvalid{35006};
inline constexpr Id kSignRange{35009};
inline constexpr Id kYearRange{35013};
inline constexpr Id kMonthRange{35014};
inline constexpr Id kHourRange{35015};
inline constexpr Id kDayRange{35016};
inline constexpr Id kDsRange{35022};
inline constexpr Id kVsRange{35023};
inline constexpr Id kTendencyTypeRange{35026};
inline constexpr Id kHalfAnExactTime{42400};
inline constexpr Id kLargeSpeedRange{42401};
inline constexpr Id kDoubledPressure{42403};
inline constexpr Id kDewPointOfEarlierBulbs{42404};
inline constexpr Id kPeriodNeedsHeight{35028};
inline constexpr Id kAirTemperatureRange{35029};
inline constexpr Id kDewPointRange{35030};
inline constexpr Id kWetBulbRange{35031};
inline constexpr Id kWetBulbAboveAir{35033};
inline constexpr Id kTrueDirectionRange{35140};
inline constexpr Id kApparentSpeedRange{35142};
inline constexpr Id kTrueSpeedRange{35145};
inline constexpr Id kShipSpeedRange{35152};
inline constexpr Id kWindWavePeriodRange{35154};
inline constexpr Id kSwell1DirectionRange{35156};
inline constexpr Id kSwellPeriodRange{35157};
inline constexpr Id kPresentWeatherRange{35164};
inline constexpr Id kLowerCloudRange{35167};
inline constexpr Id kMiddleCloudRange{35168};
inline constexpr Id kUpperCloudRange{35169};
inline constexpr Id kLowestCloudRange{35170};
inline constexpr Id kTotalCloudRange{35171};
inline constexpr Id kCloudHeightRange{35172};
inline constexpr Id kPastWeatherRange{35173};
inline constexpr Id kCloudTypesAllZero{35174};
inline constexpr Id kNoLowestCloudWithTypes{35175};
inline constexpr Id kLowestCloudWithoutTypes{35177};
inline constexpr Id kVisibilityRange{35200};
inline constexpr Id kIceConcentrationRange{35203};
inline constexpr Id kIceStageRange{35204};
inline constexpr Id kIceBearingRange{35205};
inline constexpr Id kIceLandOriginRange{35206};
inline constexpr Id kIceTrendRange{35207};
inline constexpr Id kIceThicknessRange{35208};
inline constexpr Id kIceCauseRange{35209};
inline constexpr Id kIceRateRange{35210};
inline constexpr Id kLowestAboveTotal{35211};
inline constexpr Id kMinuteRange{35300};
inline constexpr Id kLatitudeChangeWarning{36001};
inline constexpr Id kLongitudeChangeWarning{36002};
inline constexpr Id kWindSpeedQuestion{36003};
inline constexpr Id kExactTimeQuestion{36008};
inline constexpr Id kWindWavePeriodQuestion{36009};
inline constexpr Id kSwellPeriodQuestion{36010};
inline constexpr Id kSwell2DirectionRange{39025};
inline constexpr Id kCheckHour{40600};
inline constexpr Id kCheckDirection{40601};
inline constexpr Id kCheckNotNumber{40602};
inline constexpr Id kCheckApparentDirection{40603};
inline constexpr Id kCheckOneDecimal{40604};
inline constexpr Id kCheckPressure{40605};
inline constexpr Id kCheckTendency{40606};
inline constexpr Id kCheckPresentWeather{40607};
inline constexpr Id kCheckWavePeriod{40608};
inline constexpr Id kCheckSwell{40609};
inline constexpr Id kCheckWaveHeight{40610};
inline constexpr Id kCheckLowestCloud{40611};
inline constexpr Id kCheckDateTime{40612};

// CUTCTimeDlg1
inline constexpr Id kUtcTimeTitle{13000};
inline constexpr Id kUtcTimeHint{13001};
inline constexpr Id kUtcYear{13002};
inline constexpr Id kUtcMonth{13003};
inline constexpr Id kUtcDay{13004};
inline constexpr Id kUtcHour{13005};
inline constexpr Id kInvalidHour{13006};
inline constexpr Id kNotSynopticHour{13007};

// CPositionDlg
inline constexpr Id kPositionTitle{13100};
inline constexpr Id kPositionLatitude{13101};
inline constexpr Id kPositionLongitude{13102};
inline constexpr Id kPositionDegrees{13103};
inline constexpr Id kPositionMinutes{13104};
inline constexpr Id kNorth{13105};
inline constexpr Id kSouth{13106};
inline constexpr Id kEast{13107};
inline constexpr Id kWest{13108};
inline constexpr Id kLastReportHint{13109};
inline constexpr Id kLastLatitudeSideHint{42302};
inline constexpr Id kLastLongitudeSideHint{42303};
inline constexpr Id kNoLatitudeSide{13110};
inline constexpr Id kNoLongitudeSide{13111};
inline constexpr Id kBeyondThePole{13112};
inline constexpr Id kBeyondTheDateLine{13113};

// CDvDsDlg
inline constexpr Id kMovementTitle{13300};
inline constexpr Id kMovementCourse{13301};
inline constexpr Id kMovementSpeed{13302};
inline constexpr Id kDsUnchanged{13310};
inline constexpr Id kDsNortheast{13311};
inline constexpr Id kDsEast{13312};
inline constexpr Id kDsSoutheast{13313};
inline constexpr Id kDsSouth{13314};
inline constexpr Id kDsSouthwest{13315};
inline constexpr Id kDsWest{13316};
inline constexpr Id kDsNorthwest{13317};
inline constexpr Id kDsNorth{13318};
inline constexpr Id kDsUnknown{13319};
inline constexpr Id kDsNotObserved{13320};
inline constexpr Id kVsUnder1{13330};
inline constexpr Id kVsUnder6{13331};
inline constexpr Id kVsUnder11{13332};
inline constexpr Id kVsUnder16{13333};
inline constexpr Id kVsUnder21{13334};
inline constexpr Id kVsUnder26{13335};
inline constexpr Id kVsUnder31{13336};
inline constexpr Id kVsUnder36{13337};
inline constexpr Id kVsUnder40{13338};
inline constexpr Id kVs40OrMore{13339};
inline constexpr Id kVsUnknown{13340};

// CSea_SurfaceTemperatureDlg
inline constexpr Id kSeaTemperatureTitle{13200};
inline constexpr Id kSeaTemperatureField{13201};
inline constexpr Id kSeaTemperatureUnit{13202};
inline constexpr Id kSeaTemperatureMethod{13203};
inline constexpr Id kSeaIntake{13204};
inline constexpr Id kSeaBucket{13205};
inline constexpr Id kSeaHullSensor{13206};
inline constexpr Id kSeaOther{13207};

// CEyeShotDlg
inline constexpr Id kVisibilityTitle{13400};
inline constexpr Id kVisibilityHeading{13401};
inline constexpr Id kVisibilityGroup{13402};
inline constexpr Id kVisibilityUnknown{13410};
inline constexpr Id kVisibility50km{13411};
inline constexpr Id kVisibility20km{13412};
inline constexpr Id kVisibility10km{13413};
inline constexpr Id kVisibility4km{13414};
inline constexpr Id kVisibility2km{13415};
inline constexpr Id kVisibility1km{13416};
inline constexpr Id kVisibility500m{13417};
inline constexpr Id kVisibility200m{13418};
inline constexpr Id kVisibility50m{13419};
inline constexpr Id kVisibilityBelow{13420};

// Code table 4677, ww: present weather. The lines of the dialog, each with its figures.
inline constexpr Id kPresentWeather00{43000};
inline constexpr Id kPresentWeather01{43001};
inline constexpr Id kPresentWeather02{43002};
inline constexpr Id kPresentWeather03{43003};
inline constexpr Id kPresentWeather04{43004};
inline constexpr Id kPresentWeather05{43005};
inline constexpr Id kPresentWeather06{43006};
inline constexpr Id kPresentWeather07{43007};
inline constexpr Id kPresentWeather08{43008};
inline constexpr Id kPresentWeather09{43009};
inline constexpr Id kPresentWeather10{43010};
inline constexpr Id kPresentWeather11{43011};
inline constexpr Id kPresentWeather12{43012};
inline constexpr Id kPresentWeather13{43013};
inline constexpr Id kPresentWeather14{43014};
inline constexpr Id kPresentWeather15{43015};
inline constexpr Id kPresentWeather16{43016};
inline constexpr Id kPresentWeather17{43017};
inline constexpr Id kPresentWeather18{43018};
inline constexpr Id kPresentWeather19{43019};
inline constexpr Id kPresentWeather20{43020};
inline constexpr Id kPresentWeather21{43021};
inline constexpr Id kPresentWeather22{43022};
inline constexpr Id kPresentWeather23{43023};
inline constexpr Id kPresentWeather24{43024};
inline constexpr Id kPresentWeather25{43025};
inline constexpr Id kPresentWeather26{43026};
inline constexpr Id kPresentWeather27{43027};
inline constexpr Id kPresentWeather28{43028};
inline constexpr Id kPresentWeather29{43029};
inline constexpr Id kPresentWeather30{43030};
inline constexpr Id kPresentWeather31{43031};
inline constexpr Id kPresentWeather32{43032};
inline constexpr Id kPresentWeather33{43033};
inline constexpr Id kPresentWeather34{43034};
inline constexpr Id kPresentWeather35{43035};
inline constexpr Id kPresentWeather36{43036};
inline constexpr Id kPresentWeather37{43037};
inline constexpr Id kPresentWeather38{43038};
inline constexpr Id kPresentWeather39{43039};
inline constexpr Id kPresentWeather40{43040};
inline constexpr Id kPresentWeather41{43041};
inline constexpr Id kPresentWeather42{43042};
inline constexpr Id kPresentWeather43{43043};
inline constexpr Id kPresentWeather44{43044};
inline constexpr Id kPresentWeather45{43045};
inline constexpr Id kPresentWeather46{43046};
inline constexpr Id kPresentWeather47{43047};
inline constexpr Id kPresentWeather48{43048};
inline constexpr Id kPresentWeather49{43049};
inline constexpr Id kPresentWeather50{43050};
inline constexpr Id kPresentWeather51{43051};
inline constexpr Id kPresentWeather52{43052};
inline constexpr Id kPresentWeather53{43053};
inline constexpr Id kPresentWeather54{43054};
inline constexpr Id kPresentWeather55{43055};
inline constexpr Id kPresentWeather56{43056};
inline constexpr Id kPresentWeather57{43057};
inline constexpr Id kPresentWeather58{43058};
inline constexpr Id kPresentWeather59{43059};
inline constexpr Id kPresentWeather60{43060};
inline constexpr Id kPresentWeather61{43061};
inline constexpr Id kPresentWeather62{43062};
inline constexpr Id kPresentWeather63{43063};
inline constexpr Id kPresentWeather64{43064};
inline constexpr Id kPresentWeather65{43065};
inline constexpr Id kPresentWeather66{43066};
inline constexpr Id kPresentWeather67{43067};
inline constexpr Id kPresentWeather68{43068};
inline constexpr Id kPresentWeather69{43069};
inline constexpr Id kPresentWeather70{43070};
inline constexpr Id kPresentWeather71{43071};
inline constexpr Id kPresentWeather72{43072};
inline constexpr Id kPresentWeather73{43073};
inline constexpr Id kPresentWeather74{43074};
inline constexpr Id kPresentWeather75{43075};
inline constexpr Id kPresentWeather76{43076};
inline constexpr Id kPresentWeather77{43077};
inline constexpr Id kPresentWeather78{43078};
inline constexpr Id kPresentWeather79{43079};
inline constexpr Id kPresentWeather80{43080};
inline constexpr Id kPresentWeather81{43081};
inline constexpr Id kPresentWeather82{43082};
inline constexpr Id kPresentWeather83{43083};
inline constexpr Id kPresentWeather84{43084};
inline constexpr Id kPresentWeather85{43085};
inline constexpr Id kPresentWeather86{43086};
inline constexpr Id kPresentWeather87{43087};
inline constexpr Id kPresentWeather88{43088};
inline constexpr Id kPresentWeather89{43089};
inline constexpr Id kPresentWeather90{43090};
inline constexpr Id kPresentWeather91{43091};
inline constexpr Id kPresentWeather92{43092};
inline constexpr Id kPresentWeather93{43093};
inline constexpr Id kPresentWeather94{43094};
inline constexpr Id kPresentWeather95{43095};
inline constexpr Id kPresentWeather96{43096};
inline constexpr Id kPresentWeather97{43097};
inline constexpr Id kPresentWeather98{43098};
inline constexpr Id kPresentWeather99{43099};

// Code table 4561, W1W2: past weather
inline constexpr Id kPastWeather0{43110};
inline constexpr Id kPastWeather1{43111};
inline constexpr Id kPastWeather2{43112};
inline constexpr Id kPastWeather3{43113};
inline constexpr Id kPastWeather4{43114};
inline constexpr Id kPastWeather5{43115};
inline constexpr Id kPastWeather6{43116};
inline constexpr Id kPastWeather7{43117};
inline constexpr Id kPastWeather8{43118};
inline constexpr Id kPastWeather9{43119};
inline constexpr Id kPastWeatherNotObserved{43120};

// Code table 2700, N and Nh: cloud amount
inline constexpr Id kCloudAmount0{43130};
inline constexpr Id kCloudAmount1{43131};
inline constexpr Id kCloudAmount2{43132};
inline constexpr Id kCloudAmount3{43133};
inline constexpr Id kCloudAmount4{43134};
inline constexpr Id kCloudAmount5{43135};
inline constexpr Id kCloudAmount6{43136};
inline constexpr Id kCloudAmount7{43137};
inline constexpr Id kCloudAmount8{43138};
inline constexpr Id kCloudAmount9{43139};
inline constexpr Id kCloudAmountUnknown{43140};
inline constexpr Id kLowestCloudAmount2{43142};
inline constexpr Id kLowestCloudAmount6{43146};

// Code table 1600, h: height of the base of the lowest cloud
inline constexpr Id kCloudBase0{43150};
inline constexpr Id kCloudBase1{43151};
inline constexpr Id kCloudBase2{43152};
inline constexpr Id kCloudBase3{43153};
inline constexpr Id kCloudBase4{43154};
inline constexpr Id kCloudBase5{43155};
inline constexpr Id kCloudBase6{43156};
inline constexpr Id kCloudBase7{43157};
inline constexpr Id kCloudBase8{43158};
inline constexpr Id kCloudBase9{43159};
inline constexpr Id kCloudBaseUnknown{43160};

// Code table 0513, CL: low clouds
inline constexpr Id kLowCloud0{43170};
inline constexpr Id kLowCloud1{43171};
inline constexpr Id kLowCloud2{43172};
inline constexpr Id kLowCloud3{43173};
inline constexpr Id kLowCloud4{43174};
inline constexpr Id kLowCloud5{43175};
inline constexpr Id kLowCloud6{43176};
inline constexpr Id kLowCloud7{43177};
inline constexpr Id kLowCloud8{43178};
inline constexpr Id kLowCloud9{43179};
inline constexpr Id kLowCloudUnknown{43180};

// Code table 0515, CM: medium clouds
inline constexpr Id kMiddleCloud0{43190};
inline constexpr Id kMiddleCloud1{43191};
inline constexpr Id kMiddleCloud2{43192};
inline constexpr Id kMiddleCloud3{43193};
inline constexpr Id kMiddleCloud4{43194};
inline constexpr Id kMiddleCloud5{43195};
inline constexpr Id kMiddleCloud6{43196};
inline constexpr Id kMiddleCloud7{43197};
inline constexpr Id kMiddleCloud8{43198};
inline constexpr Id kMiddleCloud9{43199};
inline constexpr Id kMiddleCloudUnknown{43200};

// Code table 0509, CH: high clouds
inline constexpr Id kHighCloud0{43210};
inline constexpr Id kHighCloud1{43211};
inline constexpr Id kHighCloud2{43212};
inline constexpr Id kHighCloud3{43213};
inline constexpr Id kHighCloud4{43214};
inline constexpr Id kHighCloud5{43215};
inline constexpr Id kHighCloud6{43216};
inline constexpr Id kHighCloud7{43217};
inline constexpr Id kHighCloud8{43218};
inline constexpr Id kHighCloud9{43219};
inline constexpr Id kHighCloudUnknown{43220};

// Code table 1751, Is: cause of ice accretion
inline constexpr Id kIcingCause1{43231};
inline constexpr Id kIcingCause2{43232};
inline constexpr Id kIcingCause3{43233};
inline constexpr Id kIcingCause4{43234};
inline constexpr Id kIcingCause5{43235};

// Code table 3551, Rs: rate of ice accretion
inline constexpr Id kIcingRate0{43240};
inline constexpr Id kIcingRate1{43241};
inline constexpr Id kIcingRate2{43242};
inline constexpr Id kIcingRate3{43243};
inline constexpr Id kIcingRate4{43244};

// Code table 0639, ci: concentration or arrangement of sea ice
inline constexpr Id kIceConcentration0{43250};
inline constexpr Id kIceConcentration1{43251};
inline constexpr Id kIceConcentration2{43252};
inline constexpr Id kIceConcentration3{43253};
inline constexpr Id kIceConcentration4{43254};
inline constexpr Id kIceConcentration5{43255};
inline constexpr Id kIceConcentration6{43256};
inline constexpr Id kIceConcentration7{43257};
inline constexpr Id kIceConcentration8{43258};
inline constexpr Id kIceConcentration9{43259};
inline constexpr Id kIceConcentrationNotReported{43260};

// Code table 3739, Si: stage of development of sea ice
inline constexpr Id kIceStage0{43270};
inline constexpr Id kIceStage1{43271};
inline constexpr Id kIceStage2{43272};
inline constexpr Id kIceStage3{43273};
inline constexpr Id kIceStage4{43274};
inline constexpr Id kIceStage5{43275};
inline constexpr Id kIceStage6{43276};
inline constexpr Id kIceStage7{43277};
inline constexpr Id kIceStage8{43278};
inline constexpr Id kIceStage9{43279};
inline constexpr Id kIceStageNotReported{43280};

// Code table 0439, bi: ice of land origin
inline constexpr Id kLandIce0{43290};
inline constexpr Id kLandIce1{43291};
inline constexpr Id kLandIce2{43292};
inline constexpr Id kLandIce3{43293};
inline constexpr Id kLandIce4{43294};
inline constexpr Id kLandIce5{43295};
inline constexpr Id kLandIce6{43296};
inline constexpr Id kLandIce7{43297};
inline constexpr Id kLandIce8{43298};
inline constexpr Id kLandIce9{43299};
inline constexpr Id kLandIceNotReported{43300};

// Code table 0739, Di: bearing of the principal ice edge
inline constexpr Id kIceEdge0{43310};
inline constexpr Id kIceEdge1{43311};
inline constexpr Id kIceEdge2{43312};
inline constexpr Id kIceEdge3{43313};
inline constexpr Id kIceEdge4{43314};
inline constexpr Id kIceEdge5{43315};
inline constexpr Id kIceEdge6{43316};
inline constexpr Id kIceEdge7{43317};
inline constexpr Id kIceEdge8{43318};
inline constexpr Id kIceEdge9{43319};
inline constexpr Id kIceEdgeNotReported{43320};

// Code table 5239, zi: ice situation and trend
inline constexpr Id kIceTrend0{43330};
inline constexpr Id kIceTrend1{43331};
inline constexpr Id kIceTrend2{43332};
inline constexpr Id kIceTrend3{43333};
inline constexpr Id kIceTrend4{43334};
inline constexpr Id kIceTrend5{43335};
inline constexpr Id kIceTrend6{43336};
inline constexpr Id kIceTrend7{43337};
inline constexpr Id kIceTrend8{43338};
inline constexpr Id kIceTrend9{43339};
inline constexpr Id kIceTrendNotReported{43340};

// Code table 1855, iw: source and unit of the wind speed
inline constexpr Id kWindSource0{43350};
inline constexpr Id kWindSource1{43351};
inline constexpr Id kWindSource3{43353};
inline constexpr Id kWindSource4{43354};

// Code table 3333, Qc: quadrant of the globe
inline constexpr Id kQuadrant1{43361};
inline constexpr Id kQuadrant3{43363};
inline constexpr Id kQuadrant5{43365};
inline constexpr Id kQuadrant7{43367};

// Code table 3845, sn: sign of the air temperature and the dew point
inline constexpr Id kTemperatureSign0{43370};
inline constexpr Id kTemperatureSign1{43371};
inline constexpr Id kTemperatureSign9{43379};

// Code table 3850, ss: sign and type of measurement of the sea temperature
inline constexpr Id kSeaTemperatureSign0{43380};
inline constexpr Id kSeaTemperatureSign1{43381};
inline constexpr Id kSeaTemperatureSign2{43382};
inline constexpr Id kSeaTemperatureSign3{43383};
inline constexpr Id kSeaTemperatureSign4{43384};
inline constexpr Id kSeaTemperatureSign5{43385};
inline constexpr Id kSeaTemperatureSign6{43386};
inline constexpr Id kSeaTemperatureSign7{43387};

// Code table 3855, sw: sign and type of the wet-bulb temperature
inline constexpr Id kWetBulbSign0{43390};
inline constexpr Id kWetBulbSign1{43391};
inline constexpr Id kWetBulbSign2{43392};
inline constexpr Id kWetBulbSign5{43395};
inline constexpr Id kWetBulbSign6{43396};
inline constexpr Id kWetBulbSign7{43397};

// Code table 0877, dd, dw1dw1 and dw2dw2: directions in tens of degrees
inline constexpr Id kDirectionCalm{43400};
inline constexpr Id kDirectionDegrees{43401};
inline constexpr Id kDirectionVariable{43402};
inline constexpr Id kSwellDirectionNotObserved{43403};

// Code table 4377, VV: the visibilities that the dialog does not offer
inline constexpr Id kVisibilityUnder100m{43410};
inline constexpr Id kVisibilityKilometres{43411};
inline constexpr Id kVisibilityOver70km{43412};

// Code table 1819, iR: where the amount of precipitation is
inline constexpr Id kPrecipitationData0{43420};
inline constexpr Id kPrecipitationData1{43421};
inline constexpr Id kPrecipitationData2{43422};
inline constexpr Id kPrecipitationData3{43423};
inline constexpr Id kPrecipitationData4{43424};

// Code table 1860, iX: kind of station, and whether present and past weather are reported
inline constexpr Id kWeatherData1{43430};
inline constexpr Id kWeatherData2{43431};
inline constexpr Id kWeatherData3{43432};
inline constexpr Id kWeatherData4{43433};
inline constexpr Id kWeatherData5{43434};
inline constexpr Id kWeatherData6{43435};
inline constexpr Id kWeatherData7{43436};

// CNowWeatherDlg
inline constexpr Id kPresentWeatherTitle{43500};
inline constexpr Id kPrecipitationNow{43501};
inline constexpr Id kNoPrecipitationNow{43502};
inline constexpr Id kPresentWeatherNotObserved{43503};
inline constexpr Id kPresentWeatherGroup95{43510};
inline constexpr Id kPresentWeatherGroup91{43511};
inline constexpr Id kPresentWeatherGroup85{43512};
inline constexpr Id kPresentWeatherGroup80{43513};
inline constexpr Id kPresentWeatherGroup70{43514};
inline constexpr Id kPresentWeatherGroup60{43515};
inline constexpr Id kPresentWeatherGroup50{43516};
inline constexpr Id kPresentWeatherGroup40{43517};
inline constexpr Id kPresentWeatherGroup30{43518};
inline constexpr Id kPresentWeatherGroup20{43519};
inline constexpr Id kPresentWeatherGroup18{43520};
inline constexpr Id kPresentWeatherGroup17{43521};
inline constexpr Id kPresentWeatherGroup13{43522};
inline constexpr Id kPresentWeatherGroup10{43523};
inline constexpr Id kPresentWeatherGroup04{43524};
inline constexpr Id kPresentWeatherGroup00{43525};
inline constexpr Id kPresentWeatherGroups{43641};
inline constexpr Id kPresentWeatherLines{43642};
inline constexpr Id kPresentWeatherCode{43643};
inline constexpr Id kPresentWeatherNoLine{43644};

// CPastWeatherDlg1
inline constexpr Id kPastWeatherTitle{43530};
inline constexpr Id kPastWeatherHint{43531};
inline constexpr Id kPastWeatherHeading{43532};
inline constexpr Id kPastWeatherGroup{43533};
inline constexpr Id kPastWeatherCode{43645};

// CCloudAgeDlg
inline constexpr Id kTotalCloudTitle{43540};
inline constexpr Id kTotalCloudHeading{43541};
inline constexpr Id kTotalCloudGroup{43542};

// CBottomLayerCloudDlg
inline constexpr Id kLowestCloudTitle{43545};
inline constexpr Id kLowestCloudHeading{43546};

// CCloudHeightDlg
inline constexpr Id kCloudBaseTitle{43550};
inline constexpr Id kCloudBaseHeading{43551};
inline constexpr Id kCloudBaseGroup{43552};

// CBottomCloudDlg, CMidCloudDlg, CTopCloudDlg
inline constexpr Id kLowCloudTitle{43555};
inline constexpr Id kMiddleCloudTitle{43556};
inline constexpr Id kHighCloudTitle{43557};

// CWindDlg (wind waves)
inline constexpr Id kWindWaveTitle{43560};
inline constexpr Id kWindWaveObservation{43561};
inline constexpr Id kNoWindWave{43562};
inline constexpr Id kWavesNotObserved{43563};
inline constexpr Id kWindWave{43564};
inline constexpr Id kWavePeriod{43565};
inline constexpr Id kWindWaveHeight{43566};
inline constexpr Id kReferenceWave{43567};
inline constexpr Id kReferenceWaveHeight{43568};
inline constexpr Id kWavePeriodUnknown{43569};
inline constexpr Id kWavePeriodConfused{43570};
inline constexpr Id kWindWaveHeightUnknown{43571};
inline constexpr Id kWindWaveHeightSmallest{43572};
inline constexpr Id kWaveNumberCaption{43573};

// CSwellWaveDlg
inline constexpr Id kSwellTitle{43580};
inline constexpr Id kTwoSwells{43581};
inline constexpr Id kOneSwell{43582};
inline constexpr Id kNoSwell{43583};
inline constexpr Id kSwellObservation{43584};
inline constexpr Id kSwell1{43585};
inline constexpr Id kSwell2{43586};
inline constexpr Id kSwellDirection{43587};
inline constexpr Id kSwellHeight{43588};
inline constexpr Id kSwellDirectionIsUnknown{43589};
inline constexpr Id kSwellHeightUnknown{43590};
inline constexpr Id kSwellDirectionGroup{43591};
inline constexpr Id kSwellPeriodFromLength{43592};
inline constexpr Id kSwellHeightSmallest{43593};
inline constexpr Id kSwellNumberNeededCaption{43594};
inline constexpr Id kSwellRangeCaption{43595};
inline constexpr Id kSwellPairCaption{43596};
inline constexpr Id kSwell2DirectionMustBeUnknown{43597};

inline constexpr Id kSwell1Else{43700};
inline constexpr Id kSwell2Else{43701};
inline constexpr Id kWaveHeightRange{43702};

// CWaveLengthDlg
inline constexpr Id kWaveLengthTitle{43710};
inline constexpr Id kWaveLength{43711};
inline constexpr Id kWaveLengthPeriod{43712};
inline constexpr Id kWaveLengthNoNumber{43713};
inline constexpr Id kWaveLengthTooShort{43714};
inline constexpr Id kWaveLengthTooLong{43715};

// Waves: a unit and a drawing
inline constexpr Id kUnitSeconds{43721};
inline constexpr Id kDrawnWaveHeight{43720};

// CSeaIceDialog (ice accretion)
inline constexpr Id kIcingTitle{43600};
inline constexpr Id kIcingCauseGroup{43601};
inline constexpr Id kIcingThickness{43602};
inline constexpr Id kIcingRateHeading{43603};
inline constexpr Id kIcingRateGroup{43604};
inline constexpr Id kIcingThicknessRange{43780};

// CICECiDlg, CICESiBiDlg, CICEDiDlg, CNewZiDlg (sea ice)
inline constexpr Id kIceConcentrationTitle{43610};
inline constexpr Id kIceBeyondHalfMile{43611};
inline constexpr Id kIceWithinHalfMile{43612};
inline constexpr Id kIceUniform{43613};
inline constexpr Id kIceNotUniform{43614};
inline constexpr Id kIceConcentrationList{43615};
inline constexpr Id kIceStageTitle{43620};
inline constexpr Id kIceStageList{42720};
inline constexpr Id kLandIceList{42721};
inline constexpr Id kIceEdgeTitle{43621};
inline constexpr Id kIceTrendTitle{43622};
inline constexpr Id kIceOnDrawing{43789};

// Points of the compass on drawings, clockwise from the northeast
inline constexpr Id kCompassNortheast{43781};
inline constexpr Id kCompassEast{43782};
inline constexpr Id kCompassSoutheast{43783};
inline constexpr Id kCompassSouth{43784};
inline constexpr Id kCompassSouthwest{43785};
inline constexpr Id kCompassWest{43786};
inline constexpr Id kCompassNorthwest{43787};
inline constexpr Id kCompassNorth{43788};

// CSeaSurfacePressureDlg
inline constexpr Id kPressureTitle{13500};
inline constexpr Id kPressureReadingGroup{13501};
inline constexpr Id kPressureWhole{13502};
inline constexpr Id kPressureTenths{13503};
inline constexpr Id kPressureReading{13504};
inline constexpr Id kPressureCorrection{13505};
inline constexpr Id kPressureSeaLevel{13506};
inline constexpr Id kPressureAirTemperature{13507};
inline constexpr Id kPressureTimeGroup{13508};
inline constexpr Id kPressureTimeNear{13509};
inline constexpr Id kPressureTimeFar{13510};
inline constexpr Id kPressureHour{13511};
inline constexpr Id kPressureMinute{13512};
inline constexpr Id kPressureCardGroup{13513};
inline constexpr Id kPressureCheckDate{13514};
inline constexpr Id kPressureCheckPlace{13515};
inline constexpr Id kPressureRenew{13516};
inline constexpr Id kPressureTimeLocked{13517};
inline constexpr Id kUnitHectopascal{13540};
inline constexpr Id kUnitCelsius{13541};
inline constexpr Id kUnitPercent{13542};
inline constexpr Id kUnitKnots{13543};
inline constexpr Id kUnitTensOfDegrees{13544};

// CPresureTendencyDlg
inline constexpr Id kTendencyTitle{13600};
inline constexpr Id kTendencyKindGroup{13601};
inline constexpr Id kTendencyCharacteristicGroup{13602};
inline constexpr Id kTendencyCode{13603};
inline constexpr Id kTendencyAmount{13604};
inline constexpr Id kTendencyCurves{43646};
inline constexpr Id kTendencyRisen{13610};
inline constexpr Id kTendencySame{13611};
inline constexpr Id kTendencyDescended{13612};
inline constexpr Id kTendencyUnknown{13613};
inline constexpr Id kCharacteristic0{13620};
inline constexpr Id kCharacteristic1{13621};
inline constexpr Id kCharacteristic2{13622};
inline constexpr Id kCharacteristic3{13623};
inline constexpr Id kCharacteristic4{13624};
inline constexpr Id kCharacteristic5{13625};
inline constexpr Id kCharacteristic6{13626};
inline constexpr Id kCharacteristic7{13627};
inline constexpr Id kCharacteristic8{13628};
inline constexpr Id kCharacteristicUnknown{13629};

// Fields that are typed into
inline constexpr Id kTextTooLong{42300};
inline constexpr Id kTenthsAlone{42301};

// CCountDewDlg
inline constexpr Id kPsychrometerTitle{13700};
inline constexpr Id kDryBulbGroup{13701};
inline constexpr Id kWetBulbGroup{13702};
inline constexpr Id kDryBulbWhole{13703};
inline constexpr Id kWetBulbWhole{13704};
inline constexpr Id kTemperatureTenths{13705};
inline constexpr Id kWetBulbState{13706};
inline constexpr Id kWetBulbNotIced{13707};
inline constexpr Id kWetBulbIced{13708};
inline constexpr Id kWetBulbUnknown{13709};
inline constexpr Id kComputedDewPoint{13710};
inline constexpr Id kComputedHumidity{13711};
inline constexpr Id kComputedGroup{13712};

// CTemperatureAndDewDlg
inline constexpr Id kAirAndDewTitle{13800};
inline constexpr Id kAirGroup{13801};
inline constexpr Id kDewPointGroup{13802};
inline constexpr Id kAirWhole{13803};
inline constexpr Id kDewPointWhole{13804};

// CThumidityDlg
inline constexpr Id kHumidityTitle{13900};
inline constexpr Id kHumidityValue{13901};

// CLookWindDlg
inline constexpr Id kApparentWindTitle{14000};
inline constexpr Id kShipMovementGroup{14001};
inline constexpr Id kHeading{14002};
inline constexpr Id kCourse{14003};
inline constexpr Id kShipSpeed{14004};
inline constexpr Id kApparentWindGroup{14005};
inline constexpr Id kApparentDirection{14006};
inline constexpr Id kApparentSpeed{14007};
inline constexpr Id kApparentWindHint{14008};
inline constexpr Id kTrueWindGroup{14009};
inline constexpr Id kComputedDirection{14010};
inline constexpr Id kComputedSpeed{14011};

// CTrueDirWindDlg
inline constexpr Id kTrueWindTitle{14100};
inline constexpr Id kTrueDirection{14101};
inline constexpr Id kTrueSpeed{14102};
inline constexpr Id kTrueDirectionUnknown{14103};
inline constexpr Id kTrueSpeedUnknown{14104};

// Saving: CSaveErrorInfoDlg, CHour3ErrorDlg
inline constexpr Id kSaveErrorTitle{14200};
inline constexpr Id kSaveErrorNoSave{14201};
inline constexpr Id kSaveErrorSaveAs{14202};
inline constexpr Id kSaveErrorCorrect{14203};
inline constexpr Id kPositionWarningTitle{14210};
inline constexpr Id kControlCharacter{42550};
inline constexpr Id kSaved{33008};
inline constexpr Id kNoDateEntered{33009};
inline constexpr Id kNowSaving{33014};
inline constexpr Id kSaveFailed{33207};
inline constexpr Id kAskReplaceReport{33344};
inline constexpr Id kInsertDisk{37007};
inline constexpr Id kInsertDiskAgain{37013};
inline constexpr Id kSaveCancelled{37032};
inline constexpr Id kDiskFull{37034};
inline constexpr Id kLogbookLocked{42500};
inline constexpr Id kButtonRetry{42501};
inline constexpr Id kButtonGiveUp{42502};
inline constexpr Id kLogbookWithoutLock{42503};
inline constexpr Id kSaveFinished{42504};
inline constexpr Id kSaveTakenBack{42505};
inline constexpr Id kSaveLineWithoutReport{42506};
inline constexpr Id kSaveNoteDamaged{42507};
inline constexpr Id kSaveLineLeft{42508};
inline constexpr Id kLogbookLineClosed{42509};
inline constexpr Id kSaveNotRecovered{42635};
inline constexpr Id kSaveUnreachable{42636};
inline constexpr Id kAskLeaveUnreachable{42637};

// Entries that outlive the program
inline constexpr Id kDraftFound{42580};
inline constexpr Id kDraftDate{42581};
inline constexpr Id kDraftMissing{42582};
inline constexpr Id kDraftYear{42583};
inline constexpr Id kDraftMonth{42584};
inline constexpr Id kDraftDay{42585};
inline constexpr Id kDraftHour{42586};
inline constexpr Id kDraftComma{42587};
inline constexpr Id kDraftDamaged{42588};
inline constexpr Id kDraftLaterVersion{42589};
inline constexpr Id kDraftOtherShip{42590};
inline constexpr Id kDraftAside{42591};
inline constexpr Id kDraftStays{42592};
inline constexpr Id kDraftNotKept{42593};
inline constexpr Id kDraftUnreadable{42630};
inline constexpr Id kDraftWithoutLock{42631};
inline constexpr Id kReportListName{44070};
inline constexpr Id kReportListDate{44071};
inline constexpr Id kReportListPosition{44072};
inline constexpr Id kReportListTime{44073};

// Printing: CQFPrintDlg, CPrintAllTLXDlg, CLogPrintDlg
inline constexpr Id kPrintReportTitle{43950};
inline constexpr Id kPrintAllTitle{43951};
inline constexpr Id kPrintLogbookTitle{43952};
inline constexpr Id kPrintSuccess{43953};
inline constexpr Id kPrintCancelled{43954};
inline constexpr Id kPrintFailed{43955};
inline constexpr Id kNoPrinter{43956};
inline constexpr Id kNoReportToPrint{43957};
inline constexpr Id kNoReportExists{43958};
inline constexpr Id kNoFileSelected{43959};
inline constexpr Id kPrint{43960};
inline constexpr Id kSaveAsPdf{43961};
inline constexpr Id kReportsChosen{43962};
inline constexpr Id kFirstPage{43963};
inline constexpr Id kPreviousPage{43964};
inline constexpr Id kNextPage{43965};
inline constexpr Id kLastPage{43966};
inline constexpr Id kPageOf{43967};
inline constexpr Id kReportsToPrint{43968};
inline constexpr Id kLogbooksToPrint{43969};
inline constexpr Id kAsPrinted{43970};
inline constexpr Id kSelectAll{43971};
inline constexpr Id kSelectNone{43972};
inline constexpr Id kUnreadable{43973};
inline constexpr Id kSomeUnreadable{43974};
inline constexpr Id kPdfFolder{43975};
inline constexpr Id kAskReplacePdf{43976};
inline constexpr Id kPdfSaved{43977};
inline constexpr Id kPdfNotSaved{43978};
inline constexpr Id kPdfNotMade{43979};
inline constexpr Id kNoReportFolder{43980};
inline constexpr Id kNoLogbookFolder{43981};
inline constexpr Id kReportTooLong{43982};

// Correcting a report
inline constexpr Id kCorrectingTitle{43900};
inline constexpr Id kCorrectingTitleNotSaved{43901};
inline constexpr Id kModifyTitle{43902};
inline constexpr Id kModifyNothingChosen{43903};
inline constexpr Id kModifyFolderUnreadable{43904};
inline constexpr Id kCorrectUnreadable{43905};
inline constexpr Id kCorrectNoReport{43906};
inline constexpr Id kCorrectEmpty{43907};
inline constexpr Id kCorrectTooLarge{43908};
inline constexpr Id kCorrectNotes{43909};
inline constexpr Id kUnplacedOutside{43910};
inline constexpr Id kUnplacedCallSign{43911};
inline constexpr Id kUnplacedNotAGroup{43912};
inline constexpr Id kUnplacedOutOfRange{43913};
inline constexpr Id kUnplacedNoField{43914};
inline constexpr Id kUnplacedRepeated{43915};
inline constexpr Id kUnplacedOtherSection{43916};
inline constexpr Id kUnplacedIcePlainText{43917};
inline constexpr Id kUnplacedOtherCallSign{43918};
inline constexpr Id kUnplacedWetBulb{43919};
inline constexpr Id kUnplaced{43920};
inline constexpr Id kUnplacedMore{43921};
inline constexpr Id kCorrectOtherDate{43922};
inline constexpr Id kCorrectNoDate{43923};
inline constexpr Id kCorrectNoLine{43924};
inline constexpr Id kCorrectLogbookUnreadable{43925};
inline constexpr Id kCorrectMetresPerSecond{43926};
// Copying reports and the logbook
inline constexpr Id kNoLogbook{44000};
inline constexpr Id kAskOverwriteLogbook{44001};
inline constexpr Id kLogbookCopyCancelled{44002};
inline constexpr Id kLogbookCopyFailed{44003};
inline constexpr Id kLogbookCopied{44004};
inline constexpr Id kAskDeleteLogbook{44005};
inline constexpr Id kNoReports{44010};
inline constexpr Id kAskOverwriteReport{44011};
inline constexpr Id kReportCopyCancelled{44012};
inline constexpr Id kReportCopyFailed{44013};
inline constexpr Id kReportCopied{44014};
inline constexpr Id kAskDeleteReport{44015};
inline constexpr Id kFileAndReason{44020};
inline constexpr Id kReasonReadBackDiffers{44021};
inline constexpr Id kReasonSaveInterrupted{44022};
inline constexpr Id kSourceNotDeleted{44023};
inline constexpr Id kReasonNotTheCopy{44024};
inline constexpr Id kAskCopyOn{44025};
inline constexpr Id kCopyEnded{44026};
inline constexpr Id kAskOverwriteReports{44027};
inline constexpr Id kButtonOverwriteAll{44028};
inline constexpr Id kButtonKeepAll{44029};
inline constexpr Id kButtonAskEach{44030};
inline constexpr Id kReportsCopied{44031};
inline constexpr Id kAskDeleteReports{44032};
inline constexpr Id kButtonDeleteAll{44033};
inline constexpr Id kNowCopying{44034};
inline constexpr Id kAskDeleteOn{44037};
inline constexpr Id kSelectReportsTitle{44035};
inline constexpr Id kReportsToCopy{44036};

// Position map
inline constexpr Id kMapTitle{44101};
inline constexpr Id kMapMissing{44102};
inline constexpr Id kMapDegrees{44103};
inline constexpr Id kMapMinutes{44104};
inline constexpr Id kMapShown{44105};
inline constexpr Id kMapWholeTile{44106};
inline constexpr Id kMapTenDegrees{44107};
inline constexpr Id kMapFiveDegrees{44108};
inline constexpr Id kMapOneDegree{44109};
inline constexpr Id kMapCloser{44110};
inline constexpr Id kMapWider{44111};
inline constexpr Id kMapPosition{44112};
inline constexpr Id kMapHeight{44113};
inline constexpr Id kMapArrowHours{44114};
inline constexpr Id kMapArrow{44115};
inline constexpr Id kMapNoPosition{44116};

// Sea map
inline constexpr Id kSeaMapUnusable{44140};
inline constexpr Id kReasonDamaged{44141};

// Main window: commands with a key
inline constexpr Id kCommandPlainWords{46150};
inline constexpr Id kCommandCurves{46151};
inline constexpr Id kCommandLog{46152};
inline constexpr Id kCommandNewWatch{42830};
inline constexpr Id kCommandPrint{42831};
inline constexpr Id kCommandCopy{42832};
inline constexpr Id kCommandNextPart{42833};
inline constexpr Id kCommandPreviousPart{42834};
inline constexpr Id kPrintedNotSaved{42835};
inline constexpr Id kPrintedNoDate{42836};
inline constexpr Id kReportTextCopied{42837};
inline constexpr Id kStatusCaption{42838};
inline constexpr Id kGroupsLacking{42839};

// Main window: status line
inline constexpr Id kWordsRange{44200};
inline constexpr Id kStatusAllowed{44201};
inline constexpr Id kStatusHelp{44202};
inline constexpr Id kStatusNoValue{44203};
inline constexpr Id kStatusSaved{44204};
inline constexpr Id kStatusOfGroup{44205};

// Words of values
inline constexpr Id kWordsNotObserved{44210};
inline constexpr Id kWordsNoWaves{44211};
inline constexpr Id kWordsConfusedSea{44212};
inline constexpr Id kWordsBeaufort{44213};
inline constexpr Id kWordsNoCode{44214};
// What a screen reader says
inline constexpr Id kSpokenBetween{42900};  ///< between group, caption and unit
inline constexpr Id kSpokenMissing{42901};
inline constexpr Id kSpokenWrong{42902};
inline constexpr Id kSpokenDrawing{42903};
inline constexpr Id kSpokenRemark{42908};
inline constexpr Id kSpokenChosen{42909};
inline constexpr Id kSpokenNorthSouth{42910};
inline constexpr Id kSpokenEastWest{42911};
inline constexpr Id kSpokenLatitudeMinutes{42912};
inline constexpr Id kSpokenLongitudeMinutes{42913};
inline constexpr Id kSpokenWetBulbState{42914};
inline constexpr Id kSpokenHeightFullLoad{42915};
inline constexpr Id kSpokenCorrectionFullLoad{42916};
inline constexpr Id kSpokenHeightBallast{42917};
inline constexpr Id kSpokenCorrectionBallast{42918};
inline constexpr Id kSpokenActualHour{42919};
inline constexpr Id kSpokenActualMinute{42920};
inline constexpr Id kSpokenW1{42921};
inline constexpr Id kSpokenW2{42922};
inline constexpr Id kSpokenUniform{42923};

// About box
inline constexpr Id kAboutTitle{42905};
inline constexpr Id kAboutSourcesLabel{42906};
inline constexpr Id kAboutSources{42907};

// Doubts before sending
inline constexpr Id kDoubt{45600};  ///< in front of each
inline constexpr Id kDoubtShipTooFast{45601};
inline constexpr Id kDoubtSpeedAgainstPositions{45602};
inline constexpr Id kDoubtCourseAgainstPositions{45603};
inline constexpr Id kDoubtTendencyAgainstLast{45604};
inline constexpr Id kDoubtPressureJump{45605};
inline constexpr Id kDoubtAirSignBesideLast{45606};
inline constexpr Id kDoubtAirJump{45607};
inline constexpr Id kDoubtSeaJump{45608};
inline constexpr Id kDoubtWindJump{45609};
inline constexpr Id kDoubtSameAsLast{45610};
inline constexpr Id kDoubtActualTimeFarFromHour{45611};
inline constexpr Id kDoubtAirSignBesideSea{45612};
inline constexpr Id kDoubtAirFarFromSea{45613};
inline constexpr Id kDoubtDewPointSign{45614};
inline constexpr Id kDoubtDewPointFarBelowAir{45615};
inline constexpr Id kDoubtAllWhole{45616};
inline constexpr Id kDoubtTendencyWithoutAmount{45617};
inline constexpr Id kDoubtFogInGoodVisibility{45618};
inline constexpr Id kDoubtPoorVisibilityWithoutCause{45619};
inline constexpr Id kDoubtMistInGoodVisibility{45620};
inline constexpr Id kDoubtHeavySnowInGoodVisibility{45621};
inline constexpr Id kDoubtFogInDryAir{45622};
inline constexpr Id kDoubtRainInDryAir{45623};
inline constexpr Id kDoubtHiddenSkyWithoutCause{45624};
inline constexpr Id kDoubtHiddenSkyWithAmount{45625};
inline constexpr Id kDoubtClearSkyWithCL{45626};
inline constexpr Id kDoubtClearSkyWithCM{45627};
inline constexpr Id kDoubtClearSkyWithCH{45628};
inline constexpr Id kDoubtWeatherWithoutCloud{45629};
inline constexpr Id kDoubtShowerWithoutCumulus{45630};
inline constexpr Id kDoubtThunderWithoutCumulonimbus{45631};
inline constexpr Id kDoubtCMAboveOvercast{45632};
inline constexpr Id kDoubtCHAboveOvercast{45633};
inline constexpr Id kDoubtLowBaseOfCH{45634};
inline constexpr Id kDoubtLowBaseOfCM{45635};
inline constexpr Id kDoubtHighBaseOfCL{45636};
inline constexpr Id kDoubtSnowInWarmAir{45637};
inline constexpr Id kDoubtFreezingRainInWarmAir{45638};
inline constexpr Id kDoubtRainInFrost{45639};
inline constexpr Id kDoubtSnowInTropics{45640};
inline constexpr Id kDoubtPastWeatherInWrongOrder{45641};
inline constexpr Id kDoubtWavesWithoutWind{45642};
inline constexpr Id kDoubtWindWithoutWaves{45643};
inline constexpr Id kDoubtWindWavesTooSteep{45644};
inline constexpr Id kDoubtSwell1TooSteep{45645};
inline constexpr Id kDoubtSwell2TooSteep{45646};
inline constexpr Id kDoubtMeasuredWavesTooSteep{45647};
inline constexpr Id kDoubtSecondSwellIsTheFirst{45648};
inline constexpr Id kDoubtIcingInWarmAir{45649};
inline constexpr Id kDoubtSeaIceInWarmWater{45650};
inline constexpr Id kDoubtIcebergsInWarmWater{45651};
inline constexpr Id kDoubtSeaIceFarFromThePoles{45652};
// CCurvesDlg
inline constexpr Id kCurvesTitle{46000};
inline constexpr Id kChartPressure{46001};
inline constexpr Id kChartTemperature{46002};
inline constexpr Id kChartWindKnots{46003};
inline constexpr Id kChartWindMetres{46004};
inline constexpr Id kChartWaves{46005};
inline constexpr Id kCurvePressure{46010};
inline constexpr Id kCurveAir{46011};
inline constexpr Id kCurveSea{46012};
inline constexpr Id kCurveWind{46013};
inline constexpr Id kCurveMeasuredWaves{46014};
inline constexpr Id kCurveWindWaves{46015};
inline constexpr Id kCurveSwell1{46016};
inline constexpr Id kCurveSwell2{46017};
inline constexpr Id kCurvePoint{46020};
inline constexpr Id kCurveMore{46021};
inline constexpr Id kCurveLess{46022};
inline constexpr Id kCurveSame{46023};
inline constexpr Id kCurveMissing{46024};
inline constexpr Id kCurveEntered{46025};
inline constexpr Id kCurveBeyond{46026};
inline constexpr Id kCurveWindFrom{46027};
inline constexpr Id kCurveWindVariable{46028};
inline constexpr Id kCurveWindCalm{46029};
inline constexpr Id kCurveWindNoSpeed{46030};
inline constexpr Id kCurveWindNoDirection{46031};
inline constexpr Id kCurveLegendEntered{46032};
inline constexpr Id kCurvesNothing{46033};
inline constexpr Id kCurvesNoHour{46034};
inline constexpr Id kCurvesKeys{46035};
inline constexpr Id kCurvesChosen{46036};
inline constexpr Id kCurvesDays{46037};
inline constexpr Id kMonthJanuary{46040};  ///< the others follow it
inline constexpr Id kMonthFebruary{46041};
inline constexpr Id kMonthMarch{46042};
inline constexpr Id kMonthApril{46043};
inline constexpr Id kMonthMay{46044};
inline constexpr Id kMonthJune{46045};
inline constexpr Id kMonthJuly{46046};
inline constexpr Id kMonthAugust{46047};
inline constexpr Id kMonthSeptember{46048};
inline constexpr Id kMonthOctober{46049};
inline constexpr Id kMonthNovember{46050};
inline constexpr Id kMonthDecember{46051};
inline constexpr Id kCurveDay{46052};
inline constexpr Id kSpokenChartPressure{46053};
inline constexpr Id kSpokenChartTemperature{46054};
inline constexpr Id kSpokenChartWind{46055};
inline constexpr Id kSpokenChartWaves{46056};
inline constexpr Id kCurveDate{46057};

}  // namespace text::id
