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
inline constexpr int kHelpPageMissing = 40908;

// Start-up, settings, files
inline constexpr int kSettingsNotSaved = 41000;
inline constexpr int kAskUseFolder = 42620;
inline constexpr int kEventFailed = 42622;
inline constexpr int kProgramFailed = 42623;

// Why a file could not be used, or an operation not be ended
inline constexpr int kReasonNotFound = 42600;
inline constexpr int kReasonNotPermitted = 42601;
inline constexpr int kReasonNoSpace = 42602;
inline constexpr int kReasonNoMedium = 42603;
inline constexpr int kReasonNotAFile = 42604;
inline constexpr int kReasonBadLink = 42605;
inline constexpr int kReasonTooManyOpen = 42606;
inline constexpr int kReasonBadName = 42607;
inline constexpr int kReasonLocked = 42608;
inline constexpr int kReasonExists = 42609;
inline constexpr int kReasonNoMemory = 42610;
inline constexpr int kReasonInputOutput = 42611;
inline constexpr int kReasonUnknown = 42612;

// Archive and media: folder dialog
inline constexpr int kReportFolderTitle = 12500;
inline constexpr int kLogbookFolderTitle = 12501;
inline constexpr int kReportCopyTitle = 12502;
inline constexpr int kLogbookCopyTitle = 12503;
inline constexpr int kReportFolderPrompt = 12504;
inline constexpr int kLogbookFolderPrompt = 12505;
inline constexpr int kReportCopyPrompt = 12506;
inline constexpr int kLogbookCopyPrompt = 12507;
inline constexpr int kReportFolderCurrent = 12508;
inline constexpr int kLogbookFolderCurrent = 12509;
inline constexpr int kReportCopyCurrent = 12510;
inline constexpr int kLogbookCopyCurrent = 12511;
inline constexpr int kDriveList = 12512;
inline constexpr int kFolderTree = 12513;
inline constexpr int kChosenFolder = 12514;
inline constexpr int kCreateFolder = 12515;
inline constexpr int kMyComputer = 12516;
inline constexpr int kCreateFolderTitle = 12517;
inline constexpr int kNewFolderName = 12518;
inline constexpr int kInCalculating = 12519;
inline constexpr int kProgramTitleForNotice = 12520;
inline constexpr int kChooseAnotherFolder = 40300;
inline constexpr int kNoFolderChosen = 40301;
inline constexpr int kFolderGone = 40302;
inline constexpr int kFolderNotReadable = 40303;
inline constexpr int kFolderNotCreated = 40304;
inline constexpr int kFolderUncertain = 42621;
inline constexpr int kBadFolderName = 40305;

// CFixDataDlg
inline constexpr int kFixTitle = 12000;
inline constexpr int kFixShip = 12001;
inline constexpr int kFixCallSign = 12002;
inline constexpr int kFixImoNumber = 12003;
inline constexpr int kFixCard = 12004;
inline constexpr int kFixCardText = 12005;
inline constexpr int kFixCardButton = 12006;
inline constexpr int kFixCardType = 12007;
inline constexpr int kFixWind = 12008;
inline constexpr int kFixWindInput = 12009;
inline constexpr int kFixTrueWind = 12010;
inline constexpr int kFixApparentWind = 12011;
inline constexpr int kFixWindSpeed = 12012;
inline constexpr int kFixBeaufort = 12013;
inline constexpr int kFixAnemometer = 12014;
inline constexpr int kFixTemperature = 12015;
inline constexpr int kFixTemperatureUnit = 12016;
inline constexpr int kFixUnitTenth = 12017;
inline constexpr int kFixUnitHalf = 12018;
inline constexpr int kFixUnitWhole = 12019;
inline constexpr int kFixSeaTemperature = 12020;
inline constexpr int kFixIntake = 12021;
inline constexpr int kFixBucket = 12022;
inline constexpr int kFixHullSensor = 12023;
inline constexpr int kFixOther = 12024;
inline constexpr int kFixDewPoint = 12025;
inline constexpr int kFixDewPointDirect = 12026;
inline constexpr int kFixDewPointComputed = 12027;
inline constexpr int kFixHumidityMethod = 12029;
inline constexpr int kFixHumidityDirect = 12030;
inline constexpr int kFixHumidityComputed = 12031;
inline constexpr int kFixHumidityUnit = 12032;
inline constexpr int kFixHumidityTenth = 12033;
inline constexpr int kFixHumidityWhole = 12034;
inline constexpr int kFixEquipment = 12035;
inline constexpr int kFixWaveRecorder = 12036;
inline constexpr int kFixYes = 12037;
inline constexpr int kFixNo = 12038;
inline constexpr int kFixVosClim = 12039;
inline constexpr int kFixVosClimRegistered = 12040;
inline constexpr int kFixVosClimUnregistered = 12041;
inline constexpr int kFixVosClimInputting = 12042;
inline constexpr int kFixAws = 12043;
inline constexpr int kFixManufacturer = 12044;
inline constexpr int kFixFolders = 12045;
inline constexpr int kFixReportFolder = 12046;
inline constexpr int kFixLogbookFolder = 12047;
inline constexpr int kFixLockedLoading = 12048;
inline constexpr int kFixLockedVosClim = 12049;
inline constexpr int kFixLockedManufacturer = 12050;
inline constexpr int kShipFileUnreadable = 40000;
inline constexpr int kShipFileUnreadableInForce = 42102;
inline constexpr int kFileNotSaved = 40001;
inline constexpr int kCallSignMissing = 40010;
inline constexpr int kCallSignForm = 40011;
inline constexpr int kImoNumberForm = 40012;
inline constexpr int kManufacturerForm = 40013;
inline constexpr int kApparentWithBeaufort = 40014;
inline constexpr int kVosClimNotAvailable = 40099;

// CKeyObserveDlg
inline constexpr int kItemsTitle = 11900;
inline constexpr int kItemsPrompt = 11901;
inline constexpr int kItemsObserved = 11902;
inline constexpr int kItemsNotObserved = 11903;
inline constexpr int kItemH = 11904;
inline constexpr int kItemVV = 11905;
inline constexpr int kItemN = 11906;
inline constexpr int kItemNh = 11907;
inline constexpr int kItemCLCMCH = 11908;
inline constexpr int kItemww = 11909;
inline constexpr int kItemW1W2 = 11910;
inline constexpr int kItemPwHw = 11911;
inline constexpr int kItemSwell1 = 11912;
inline constexpr int kItemSwell2 = 11913;
inline constexpr int kItemIsEsEsRs = 11914;
inline constexpr int kItemSeaIce = 11915;

// Barometer card: CKataSelectDlg, CKataInputDlg, CFullEmptySelect
inline constexpr int kCardSelectTitle = 12200;
inline constexpr int kCardSelectPrompt = 12201;
inline constexpr int kCardTypeOne = 12202;
inline constexpr int kCardTypeTwo = 12203;
inline constexpr int kCardTitle = 12204;
inline constexpr int kCardPrompt = 12205;
inline constexpr int kCardDate = 12206;
inline constexpr int kCardPort = 12207;
inline constexpr int kCardType = 12208;
inline constexpr int kCardChangeType = 12209;
inline constexpr int kCardTotal = 12210;
inline constexpr int kCardInstrumental = 12211;
inline constexpr int kCardFullLoad = 12212;
inline constexpr int kCardBallast = 12213;
inline constexpr int kCardHeight = 12214;
inline constexpr int kCardLoading = 12215;
inline constexpr int kCardUnitPressure = 12216;
inline constexpr int kCardUnitHeight = 12217;
inline constexpr int kLoadingTitle = 12218;
inline constexpr int kLoadingPrompt = 12219;
inline constexpr int kCardTypeMissing = 40100;
inline constexpr int kCheckDateMissing = 40101;
inline constexpr int kCheckDateRange = 40102;
inline constexpr int kCheckPortMissing = 40103;
inline constexpr int kInstrumentalMissing = 40104;
inline constexpr int kInstrumentalNotNumeric = 40105;
inline constexpr int kInstrumentalRange = 40106;
inline constexpr int kOneDecimalOnly = 40107;
inline constexpr int kHeightFullLoadMissing = 40108;
inline constexpr int kHeightBallastMissing = 40109;
inline constexpr int kHeightNotInteger = 40110;
inline constexpr int kHeightRange = 40111;
inline constexpr int kTotalFullLoadMissing = 40112;
inline constexpr int kTotalBallastMissing = 40113;
inline constexpr int kTotalCorrectionMissing = 40114;
inline constexpr int kTotalCorrectionNotNumeric = 40115;
inline constexpr int kTotalFullLoadRange = 40116;
inline constexpr int kTotalBallastRange = 40117;
inline constexpr int kTotalCorrectionRange = 40118;
inline constexpr int kLoadingStateMissing = 40119;
inline constexpr int kCheckPortCharacter = 42100;
inline constexpr int kCheckPortTooLong = 42101;

// Main window: labels
inline constexpr int kLabelObservationTime = 11000;
inline constexpr int kLabelYear = 11001;
inline constexpr int kLabelMonth = 11002;
inline constexpr int kLabelDay = 11003;
inline constexpr int kLabelHour = 11004;
inline constexpr int kLabelLatitude = 11005;
inline constexpr int kLabelLongitude = 11006;
inline constexpr int kLabelNorth = 11007;
inline constexpr int kLabelSouth = 11008;
inline constexpr int kLabelEast = 11009;
inline constexpr int kLabelWest = 11010;
inline constexpr int kLabelShipDirection = 11011;
inline constexpr int kLabelShipSpeed = 11012;
inline constexpr int kLabelAirPressure = 11013;
inline constexpr int kLabelReading = 11014;
inline constexpr int kLabelTendencyType = 11015;
inline constexpr int kLabelTendencyAmount = 11016;
inline constexpr int kLabelDuringThreeHours = 11017;
inline constexpr int kLabelSeaLevel = 11018;
inline constexpr int kLabelFullLoad = 11019;
inline constexpr int kLabelInBallast = 11020;
inline constexpr int kLabelDryAndWet = 11021;
inline constexpr int kLabelDry = 11022;
inline constexpr int kLabelWet = 11023;
inline constexpr int kLabelFreeze = 11024;
inline constexpr int kLabelTempByDewPoint = 11025;
inline constexpr int kLabelTemp = 11026;
inline constexpr int kLabelDew = 11027;
inline constexpr int kLabelHumidity = 11028;
inline constexpr int kLabelTrueWind = 11029;
inline constexpr int kLabelWindDirection = 11030;
inline constexpr int kLabelWindSpeed = 11031;
inline constexpr int kLabelApparentWind = 11032;
inline constexpr int kLabelShipHeading = 11033;
inline constexpr int kLabelApparentShipSpeed = 11034;
inline constexpr int kLabelSeaTemperature = 11035;
inline constexpr int kLabelWindWave = 11036;
inline constexpr int kLabelSwell1 = 11037;
inline constexpr int kLabelSwell2 = 11038;
inline constexpr int kLabelWaveRecorder = 11039;
inline constexpr int kLabelWaveDirection = 11040;
inline constexpr int kLabelWavePeriod = 11041;
inline constexpr int kLabelWaveHeight = 11042;
inline constexpr int kLabelVisibility = 11043;
inline constexpr int kLabelPresentWeather = 11044;
inline constexpr int kLabelPastWeather = 11045;
inline constexpr int kLabelTotalCloud = 11046;
inline constexpr int kLabelLowestCloud = 11047;
inline constexpr int kLabelCloudType = 11048;
inline constexpr int kLabelUpperCloud = 11049;
inline constexpr int kLabelMiddleCloud = 11050;
inline constexpr int kLabelLowerCloud = 11051;
inline constexpr int kLabelCloudHeight = 11052;
inline constexpr int kLabelIceAccretion = 11053;
inline constexpr int kLabelIceCauses = 11054;
inline constexpr int kLabelIceThickness = 11055;
inline constexpr int kLabelIceRate = 11056;
inline constexpr int kLabelSeaIce = 11057;
inline constexpr int kLabelIceConcentration = 11058;
inline constexpr int kLabelIceStage = 11059;
inline constexpr int kLabelIceLandOrigin = 11060;
inline constexpr int kLabelIceBearing = 11061;
inline constexpr int kLabelIceTrend = 11062;
inline constexpr int kLabelWeatherMessage = 11063;
inline constexpr int kLabelActualTime = 11064;
inline constexpr int kLabelShipCourse = 11065;
inline constexpr int kLabelDegrees = 11066;
inline constexpr int kLabelMinutes = 11067;
inline constexpr int kLabelPercent = 11068;
inline constexpr int kLabelTensOfDegrees = 11069;
inline constexpr int kLabelKnots = 11070;
inline constexpr int kLabelSeconds = 11071;
inline constexpr int kLabelMap = 11072;
inline constexpr int kLabelLoadingState = 11073;

// Main window: menus
inline constexpr int kMenuFile = 15000;
inline constexpr int kMenuCorrectReports = 15001;
inline constexpr int kMenuPrint = 15002;
inline constexpr int kMenuPrintSelected = 15003;
inline constexpr int kMenuPrintAll = 15004;
inline constexpr int kMenuPrintLogbook = 15005;
inline constexpr int kMenuCopyReport = 15006;
inline constexpr int kMenuCopyLogbook = 15007;
inline constexpr int kMenuExit = 15008;
inline constexpr int kMenuSave = 15009;
inline constexpr int kMenuFixedData = 15010;
inline constexpr int kMenuObservationItem = 15011;
inline constexpr int kMenuVosClim = 15012;
inline constexpr int kMenuLanguage = 15013;
inline constexpr int kMenuJapanese = 15014;
inline constexpr int kMenuEnglish = 15015;
inline constexpr int kMenuEnglishInJapanese = 15016;
inline constexpr int kMenuHelp = 15017;
inline constexpr int kMenuManual = 15018;
inline constexpr int kMenuGuide = 15019;
inline constexpr int kMenuGuideCodes = 15020;
inline constexpr int kMenuGuideClouds = 15021;
inline constexpr int kMenuGuideBeaufort = 15022;
inline constexpr int kMenuOther = 15023;
inline constexpr int kMenuOtherPmo = 15024;
inline constexpr int kMenuOtherCorrection = 15025;
inline constexpr int kMenuOtherInmarsat = 15026;
inline constexpr int kMenuOtherVosClim = 15027;
inline constexpr int kMenuVersion = 15028;

// Main window: messages
inline constexpr int kAskLoadingState = 38009;
inline constexpr int kAskSaveOnExit = 40500;
inline constexpr int kAskExit = 40501;
inline constexpr int kAskSaveBeforeCorrecting = 40502;
inline constexpr int kNoSubWindow = 40503;
inline constexpr int kNotInThisVersion = 40504;
inline constexpr int kExitQuestionTitle = 40505;
inline constexpr int kMainTitle = 40506;
inline constexpr int kMainTitleNotSaved = 40507;
inline constexpr int kMainTitleSaved = 40508;
inline constexpr int kVersionInformation = 40509;
inline constexpr int kWhyNotObserved = 40510;
inline constexpr int kWhyOtherMethod = 40511;
inline constexpr int kWhyNoLoadingState = 40512;
inline constexpr int kWhyComputed = 42402;
inline constexpr int kWhyNoWaveRecorder = 40513;
inline constexpr int kFormHectopascal = 40520;
inline constexpr int kFormCelsius = 40521;
inline constexpr int kFormMetres = 40522;
inline constexpr int kFormCentimetres = 40523;

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
inline constexpr int kInvalidMonth = 35003;
inline constexpr int kInvalidYear = 35004;
inline constexpr int kInvalidDay = 35005;
inline constexpr int kSeaTemperatureRange = 35017;
inline constexpr int kLatitudeDegreesRange = 35018;
inline constexpr int kLatitudeMinutesRange = 35019;
inline constexpr int kLongitudeDegreesRange = 35020;
inline constexpr int kLongitudeMinutesRange = 35021;
inline constexpr int kOnLandQuestion = 37011;
inline constexpr int kEarlierReportUnreadable = 42624;
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
inline constexpr int kDateInvalid = 35006;
inline constexpr int kSignRange = 35009;
inline constexpr int kYearRange = 35013;
inline constexpr int kMonthRange = 35014;
inline constexpr int kHourRange = 35015;
inline constexpr int kDayRange = 35016;
inline constexpr int kDsRange = 35022;
inline constexpr int kVsRange = 35023;
inline constexpr int kTendencyTypeRange = 35026;
inline constexpr int kHalfAnExactTime = 42400;
inline constexpr int kLargeSpeedRange = 42401;
inline constexpr int kDoubledPressure = 42403;
inline constexpr int kDewPointOfEarlierBulbs = 42404;
inline constexpr int kPeriodNeedsHeight = 35028;
inline constexpr int kAirTemperatureRange = 35029;
inline constexpr int kDewPointRange = 35030;
inline constexpr int kWetBulbRange = 35031;
inline constexpr int kWetBulbAboveAir = 35033;
inline constexpr int kTrueDirectionRange = 35140;
inline constexpr int kApparentSpeedRange = 35142;
inline constexpr int kTrueSpeedRange = 35145;
inline constexpr int kShipSpeedRange = 35152;
inline constexpr int kWindWavePeriodRange = 35154;
inline constexpr int kSwell1DirectionRange = 35156;
inline constexpr int kSwellPeriodRange = 35157;
inline constexpr int kPresentWeatherRange = 35164;
inline constexpr int kLowerCloudRange = 35167;
inline constexpr int kMiddleCloudRange = 35168;
inline constexpr int kUpperCloudRange = 35169;
inline constexpr int kLowestCloudRange = 35170;
inline constexpr int kTotalCloudRange = 35171;
inline constexpr int kCloudHeightRange = 35172;
inline constexpr int kPastWeatherRange = 35173;
inline constexpr int kCloudTypesAllZero = 35174;
inline constexpr int kNoLowestCloudWithTypes = 35175;
inline constexpr int kLowestCloudWithoutTypes = 35177;
inline constexpr int kVisibilityRange = 35200;
inline constexpr int kIceConcentrationRange = 35203;
inline constexpr int kIceStageRange = 35204;
inline constexpr int kIceBearingRange = 35205;
inline constexpr int kIceLandOriginRange = 35206;
inline constexpr int kIceTrendRange = 35207;
inline constexpr int kIceThicknessRange = 35208;
inline constexpr int kIceCauseRange = 35209;
inline constexpr int kIceRateRange = 35210;
inline constexpr int kLowestAboveTotal = 35211;
inline constexpr int kMinuteRange = 35300;
inline constexpr int kLatitudeChangeWarning = 36001;
inline constexpr int kLongitudeChangeWarning = 36002;
inline constexpr int kWindSpeedQuestion = 36003;
inline constexpr int kExactTimeQuestion = 36008;
inline constexpr int kWindWavePeriodQuestion = 36009;
inline constexpr int kSwellPeriodQuestion = 36010;
inline constexpr int kSwell2DirectionRange = 39025;
inline constexpr int kCheckHour = 40600;
inline constexpr int kCheckDirection = 40601;
inline constexpr int kCheckNotNumber = 40602;
inline constexpr int kCheckApparentDirection = 40603;
inline constexpr int kCheckOneDecimal = 40604;
inline constexpr int kCheckPressure = 40605;
inline constexpr int kCheckTendency = 40606;
inline constexpr int kCheckPresentWeather = 40607;
inline constexpr int kCheckWavePeriod = 40608;
inline constexpr int kCheckSwell = 40609;
inline constexpr int kCheckWaveHeight = 40610;
inline constexpr int kCheckLowestCloud = 40611;
inline constexpr int kCheckDateTime = 40612;

// CUTCTimeDlg1
inline constexpr int kUtcTimeTitle = 13000;
inline constexpr int kUtcTimeHint = 13001;
inline constexpr int kUtcYear = 13002;
inline constexpr int kUtcMonth = 13003;
inline constexpr int kUtcDay = 13004;
inline constexpr int kUtcHour = 13005;
inline constexpr int kInvalidHour = 13006;
inline constexpr int kNotSynopticHour = 13007;

// CPositionDlg
inline constexpr int kPositionTitle = 13100;
inline constexpr int kPositionLatitude = 13101;
inline constexpr int kPositionLongitude = 13102;
inline constexpr int kPositionDegrees = 13103;
inline constexpr int kPositionMinutes = 13104;
inline constexpr int kNorth = 13105;
inline constexpr int kSouth = 13106;
inline constexpr int kEast = 13107;
inline constexpr int kWest = 13108;
inline constexpr int kLastReportHint = 13109;
inline constexpr int kLastLatitudeSideHint = 42302;
inline constexpr int kLastLongitudeSideHint = 42303;
inline constexpr int kNoLatitudeSide = 13110;
inline constexpr int kNoLongitudeSide = 13111;
inline constexpr int kBeyondThePole = 13112;
inline constexpr int kBeyondTheDateLine = 13113;

// CDvDsDlg
inline constexpr int kMovementTitle = 13300;
inline constexpr int kMovementCourse = 13301;
inline constexpr int kMovementSpeed = 13302;
inline constexpr int kDsUnchanged = 13310;
inline constexpr int kDsNortheast = 13311;
inline constexpr int kDsEast = 13312;
inline constexpr int kDsSoutheast = 13313;
inline constexpr int kDsSouth = 13314;
inline constexpr int kDsSouthwest = 13315;
inline constexpr int kDsWest = 13316;
inline constexpr int kDsNorthwest = 13317;
inline constexpr int kDsNorth = 13318;
inline constexpr int kDsUnknown = 13319;
inline constexpr int kDsNotObserved = 13320;
inline constexpr int kVsUnder1 = 13330;
inline constexpr int kVsUnder6 = 13331;
inline constexpr int kVsUnder11 = 13332;
inline constexpr int kVsUnder16 = 13333;
inline constexpr int kVsUnder21 = 13334;
inline constexpr int kVsUnder26 = 13335;
inline constexpr int kVsUnder31 = 13336;
inline constexpr int kVsUnder36 = 13337;
inline constexpr int kVsUnder40 = 13338;
inline constexpr int kVs40OrMore = 13339;
inline constexpr int kVsUnknown = 13340;

// CSea_SurfaceTemperatureDlg
inline constexpr int kSeaTemperatureTitle = 13200;
inline constexpr int kSeaTemperatureField = 13201;
inline constexpr int kSeaTemperatureUnit = 13202;
inline constexpr int kSeaTemperatureMethod = 13203;
inline constexpr int kSeaIntake = 13204;
inline constexpr int kSeaBucket = 13205;
inline constexpr int kSeaHullSensor = 13206;
inline constexpr int kSeaOther = 13207;

// CEyeShotDlg
inline constexpr int kVisibilityTitle = 13400;
inline constexpr int kVisibilityHeading = 13401;
inline constexpr int kVisibilityGroup = 13402;
inline constexpr int kVisibilityUnknown = 13410;
inline constexpr int kVisibility50km = 13411;
inline constexpr int kVisibility20km = 13412;
inline constexpr int kVisibility10km = 13413;
inline constexpr int kVisibility4km = 13414;
inline constexpr int kVisibility2km = 13415;
inline constexpr int kVisibility1km = 13416;
inline constexpr int kVisibility500m = 13417;
inline constexpr int kVisibility200m = 13418;
inline constexpr int kVisibility50m = 13419;
inline constexpr int kVisibilityBelow = 13420;

// Code table 4677, ww: present weather. The lines of the dialog, each with its figures.
inline constexpr int kPresentWeather00 = 43000;
inline constexpr int kPresentWeather01 = 43001;
inline constexpr int kPresentWeather02 = 43002;
inline constexpr int kPresentWeather03 = 43003;
inline constexpr int kPresentWeather04 = 43004;
inline constexpr int kPresentWeather05 = 43005;
inline constexpr int kPresentWeather06 = 43006;
inline constexpr int kPresentWeather07 = 43007;
inline constexpr int kPresentWeather08 = 43008;
inline constexpr int kPresentWeather09 = 43009;
inline constexpr int kPresentWeather10 = 43010;
inline constexpr int kPresentWeather11 = 43011;
inline constexpr int kPresentWeather12 = 43012;
inline constexpr int kPresentWeather13 = 43013;
inline constexpr int kPresentWeather14 = 43014;
inline constexpr int kPresentWeather15 = 43015;
inline constexpr int kPresentWeather16 = 43016;
inline constexpr int kPresentWeather17 = 43017;
inline constexpr int kPresentWeather18 = 43018;
inline constexpr int kPresentWeather19 = 43019;
inline constexpr int kPresentWeather20 = 43020;
inline constexpr int kPresentWeather21 = 43021;
inline constexpr int kPresentWeather22 = 43022;
inline constexpr int kPresentWeather23 = 43023;
inline constexpr int kPresentWeather24 = 43024;
inline constexpr int kPresentWeather25 = 43025;
inline constexpr int kPresentWeather26 = 43026;
inline constexpr int kPresentWeather27 = 43027;
inline constexpr int kPresentWeather28 = 43028;
inline constexpr int kPresentWeather29 = 43029;
inline constexpr int kPresentWeather30 = 43030;
inline constexpr int kPresentWeather31 = 43031;
inline constexpr int kPresentWeather32 = 43032;
inline constexpr int kPresentWeather33 = 43033;
inline constexpr int kPresentWeather34 = 43034;
inline constexpr int kPresentWeather35 = 43035;
inline constexpr int kPresentWeather36 = 43036;
inline constexpr int kPresentWeather37 = 43037;
inline constexpr int kPresentWeather38 = 43038;
inline constexpr int kPresentWeather39 = 43039;
inline constexpr int kPresentWeather40 = 43040;
inline constexpr int kPresentWeather41 = 43041;
inline constexpr int kPresentWeather42 = 43042;
inline constexpr int kPresentWeather43 = 43043;
inline constexpr int kPresentWeather44 = 43044;
inline constexpr int kPresentWeather45 = 43045;
inline constexpr int kPresentWeather46 = 43046;
inline constexpr int kPresentWeather47 = 43047;
inline constexpr int kPresentWeather48 = 43048;
inline constexpr int kPresentWeather49 = 43049;
inline constexpr int kPresentWeather50 = 43050;
inline constexpr int kPresentWeather51 = 43051;
inline constexpr int kPresentWeather52 = 43052;
inline constexpr int kPresentWeather53 = 43053;
inline constexpr int kPresentWeather54 = 43054;
inline constexpr int kPresentWeather55 = 43055;
inline constexpr int kPresentWeather56 = 43056;
inline constexpr int kPresentWeather57 = 43057;
inline constexpr int kPresentWeather58 = 43058;
inline constexpr int kPresentWeather59 = 43059;
inline constexpr int kPresentWeather60 = 43060;
inline constexpr int kPresentWeather61 = 43061;
inline constexpr int kPresentWeather62 = 43062;
inline constexpr int kPresentWeather63 = 43063;
inline constexpr int kPresentWeather64 = 43064;
inline constexpr int kPresentWeather65 = 43065;
inline constexpr int kPresentWeather66 = 43066;
inline constexpr int kPresentWeather67 = 43067;
inline constexpr int kPresentWeather68 = 43068;
inline constexpr int kPresentWeather69 = 43069;
inline constexpr int kPresentWeather70 = 43070;
inline constexpr int kPresentWeather71 = 43071;
inline constexpr int kPresentWeather72 = 43072;
inline constexpr int kPresentWeather73 = 43073;
inline constexpr int kPresentWeather74 = 43074;
inline constexpr int kPresentWeather75 = 43075;
inline constexpr int kPresentWeather76 = 43076;
inline constexpr int kPresentWeather77 = 43077;
inline constexpr int kPresentWeather78 = 43078;
inline constexpr int kPresentWeather79 = 43079;
inline constexpr int kPresentWeather80 = 43080;
inline constexpr int kPresentWeather81 = 43081;
inline constexpr int kPresentWeather82 = 43082;
inline constexpr int kPresentWeather83 = 43083;
inline constexpr int kPresentWeather84 = 43084;
inline constexpr int kPresentWeather85 = 43085;
inline constexpr int kPresentWeather86 = 43086;
inline constexpr int kPresentWeather87 = 43087;
inline constexpr int kPresentWeather88 = 43088;
inline constexpr int kPresentWeather89 = 43089;
inline constexpr int kPresentWeather90 = 43090;
inline constexpr int kPresentWeather91 = 43091;
inline constexpr int kPresentWeather92 = 43092;
inline constexpr int kPresentWeather93 = 43093;
inline constexpr int kPresentWeather94 = 43094;
inline constexpr int kPresentWeather95 = 43095;
inline constexpr int kPresentWeather96 = 43096;
inline constexpr int kPresentWeather97 = 43097;
inline constexpr int kPresentWeather98 = 43098;
inline constexpr int kPresentWeather99 = 43099;

// Code table 4561, W1W2: past weather
inline constexpr int kPastWeather0 = 43110;
inline constexpr int kPastWeather1 = 43111;
inline constexpr int kPastWeather2 = 43112;
inline constexpr int kPastWeather3 = 43113;
inline constexpr int kPastWeather4 = 43114;
inline constexpr int kPastWeather5 = 43115;
inline constexpr int kPastWeather6 = 43116;
inline constexpr int kPastWeather7 = 43117;
inline constexpr int kPastWeather8 = 43118;
inline constexpr int kPastWeather9 = 43119;
inline constexpr int kPastWeatherNotObserved = 43120;

// Code table 2700, N and Nh: cloud amount
inline constexpr int kCloudAmount0 = 43130;
inline constexpr int kCloudAmount1 = 43131;
inline constexpr int kCloudAmount2 = 43132;
inline constexpr int kCloudAmount3 = 43133;
inline constexpr int kCloudAmount4 = 43134;
inline constexpr int kCloudAmount5 = 43135;
inline constexpr int kCloudAmount6 = 43136;
inline constexpr int kCloudAmount7 = 43137;
inline constexpr int kCloudAmount8 = 43138;
inline constexpr int kCloudAmount9 = 43139;
inline constexpr int kCloudAmountUnknown = 43140;
inline constexpr int kLowestCloudAmount2 = 43142;
inline constexpr int kLowestCloudAmount6 = 43146;

// Code table 1600, h: height of the base of the lowest cloud
inline constexpr int kCloudBase0 = 43150;
inline constexpr int kCloudBase1 = 43151;
inline constexpr int kCloudBase2 = 43152;
inline constexpr int kCloudBase3 = 43153;
inline constexpr int kCloudBase4 = 43154;
inline constexpr int kCloudBase5 = 43155;
inline constexpr int kCloudBase6 = 43156;
inline constexpr int kCloudBase7 = 43157;
inline constexpr int kCloudBase8 = 43158;
inline constexpr int kCloudBase9 = 43159;
inline constexpr int kCloudBaseUnknown = 43160;

// Code table 0513, CL: low clouds
inline constexpr int kLowCloud0 = 43170;
inline constexpr int kLowCloud1 = 43171;
inline constexpr int kLowCloud2 = 43172;
inline constexpr int kLowCloud3 = 43173;
inline constexpr int kLowCloud4 = 43174;
inline constexpr int kLowCloud5 = 43175;
inline constexpr int kLowCloud6 = 43176;
inline constexpr int kLowCloud7 = 43177;
inline constexpr int kLowCloud8 = 43178;
inline constexpr int kLowCloud9 = 43179;
inline constexpr int kLowCloudUnknown = 43180;

// Code table 0515, CM: medium clouds
inline constexpr int kMiddleCloud0 = 43190;
inline constexpr int kMiddleCloud1 = 43191;
inline constexpr int kMiddleCloud2 = 43192;
inline constexpr int kMiddleCloud3 = 43193;
inline constexpr int kMiddleCloud4 = 43194;
inline constexpr int kMiddleCloud5 = 43195;
inline constexpr int kMiddleCloud6 = 43196;
inline constexpr int kMiddleCloud7 = 43197;
inline constexpr int kMiddleCloud8 = 43198;
inline constexpr int kMiddleCloud9 = 43199;
inline constexpr int kMiddleCloudUnknown = 43200;

// Code table 0509, CH: high clouds
inline constexpr int kHighCloud0 = 43210;
inline constexpr int kHighCloud1 = 43211;
inline constexpr int kHighCloud2 = 43212;
inline constexpr int kHighCloud3 = 43213;
inline constexpr int kHighCloud4 = 43214;
inline constexpr int kHighCloud5 = 43215;
inline constexpr int kHighCloud6 = 43216;
inline constexpr int kHighCloud7 = 43217;
inline constexpr int kHighCloud8 = 43218;
inline constexpr int kHighCloud9 = 43219;
inline constexpr int kHighCloudUnknown = 43220;

// Code table 1751, Is: cause of ice accretion
inline constexpr int kIcingCause1 = 43231;
inline constexpr int kIcingCause2 = 43232;
inline constexpr int kIcingCause3 = 43233;
inline constexpr int kIcingCause4 = 43234;
inline constexpr int kIcingCause5 = 43235;

// Code table 3551, Rs: rate of ice accretion
inline constexpr int kIcingRate0 = 43240;
inline constexpr int kIcingRate1 = 43241;
inline constexpr int kIcingRate2 = 43242;
inline constexpr int kIcingRate3 = 43243;
inline constexpr int kIcingRate4 = 43244;

// Code table 0639, ci: concentration or arrangement of sea ice
inline constexpr int kIceConcentration0 = 43250;
inline constexpr int kIceConcentration1 = 43251;
inline constexpr int kIceConcentration2 = 43252;
inline constexpr int kIceConcentration3 = 43253;
inline constexpr int kIceConcentration4 = 43254;
inline constexpr int kIceConcentration5 = 43255;
inline constexpr int kIceConcentration6 = 43256;
inline constexpr int kIceConcentration7 = 43257;
inline constexpr int kIceConcentration8 = 43258;
inline constexpr int kIceConcentration9 = 43259;
inline constexpr int kIceConcentrationNotReported = 43260;

// Code table 3739, Si: stage of development of sea ice
inline constexpr int kIceStage0 = 43270;
inline constexpr int kIceStage1 = 43271;
inline constexpr int kIceStage2 = 43272;
inline constexpr int kIceStage3 = 43273;
inline constexpr int kIceStage4 = 43274;
inline constexpr int kIceStage5 = 43275;
inline constexpr int kIceStage6 = 43276;
inline constexpr int kIceStage7 = 43277;
inline constexpr int kIceStage8 = 43278;
inline constexpr int kIceStage9 = 43279;
inline constexpr int kIceStageNotReported = 43280;

// Code table 0439, bi: ice of land origin
inline constexpr int kLandIce0 = 43290;
inline constexpr int kLandIce1 = 43291;
inline constexpr int kLandIce2 = 43292;
inline constexpr int kLandIce3 = 43293;
inline constexpr int kLandIce4 = 43294;
inline constexpr int kLandIce5 = 43295;
inline constexpr int kLandIce6 = 43296;
inline constexpr int kLandIce7 = 43297;
inline constexpr int kLandIce8 = 43298;
inline constexpr int kLandIce9 = 43299;
inline constexpr int kLandIceNotReported = 43300;

// Code table 0739, Di: bearing of the principal ice edge
inline constexpr int kIceEdge0 = 43310;
inline constexpr int kIceEdge1 = 43311;
inline constexpr int kIceEdge2 = 43312;
inline constexpr int kIceEdge3 = 43313;
inline constexpr int kIceEdge4 = 43314;
inline constexpr int kIceEdge5 = 43315;
inline constexpr int kIceEdge6 = 43316;
inline constexpr int kIceEdge7 = 43317;
inline constexpr int kIceEdge8 = 43318;
inline constexpr int kIceEdge9 = 43319;
inline constexpr int kIceEdgeNotReported = 43320;

// Code table 5239, zi: ice situation and trend
inline constexpr int kIceTrend0 = 43330;
inline constexpr int kIceTrend1 = 43331;
inline constexpr int kIceTrend2 = 43332;
inline constexpr int kIceTrend3 = 43333;
inline constexpr int kIceTrend4 = 43334;
inline constexpr int kIceTrend5 = 43335;
inline constexpr int kIceTrend6 = 43336;
inline constexpr int kIceTrend7 = 43337;
inline constexpr int kIceTrend8 = 43338;
inline constexpr int kIceTrend9 = 43339;
inline constexpr int kIceTrendNotReported = 43340;

// Code table 1855, iw: source and unit of the wind speed
inline constexpr int kWindSource0 = 43350;
inline constexpr int kWindSource1 = 43351;
inline constexpr int kWindSource3 = 43353;
inline constexpr int kWindSource4 = 43354;

// Code table 3333, Qc: quadrant of the globe
inline constexpr int kQuadrant1 = 43361;
inline constexpr int kQuadrant3 = 43363;
inline constexpr int kQuadrant5 = 43365;
inline constexpr int kQuadrant7 = 43367;

// Code table 3845, sn: sign of the air temperature and the dew point
inline constexpr int kTemperatureSign0 = 43370;
inline constexpr int kTemperatureSign1 = 43371;
inline constexpr int kTemperatureSign9 = 43379;

// Code table 3850, ss: sign and type of measurement of the sea temperature
inline constexpr int kSeaTemperatureSign0 = 43380;
inline constexpr int kSeaTemperatureSign1 = 43381;
inline constexpr int kSeaTemperatureSign2 = 43382;
inline constexpr int kSeaTemperatureSign3 = 43383;
inline constexpr int kSeaTemperatureSign4 = 43384;
inline constexpr int kSeaTemperatureSign5 = 43385;
inline constexpr int kSeaTemperatureSign6 = 43386;
inline constexpr int kSeaTemperatureSign7 = 43387;

// Code table 3855, sw: sign and type of the wet-bulb temperature
inline constexpr int kWetBulbSign0 = 43390;
inline constexpr int kWetBulbSign1 = 43391;
inline constexpr int kWetBulbSign2 = 43392;
inline constexpr int kWetBulbSign5 = 43395;
inline constexpr int kWetBulbSign6 = 43396;
inline constexpr int kWetBulbSign7 = 43397;

// Code table 0877, dd, dw1dw1 and dw2dw2: directions in tens of degrees
inline constexpr int kDirectionCalm = 43400;
inline constexpr int kDirectionDegrees = 43401;
inline constexpr int kDirectionVariable = 43402;
inline constexpr int kSwellDirectionNotObserved = 43403;

// Code table 4377, VV: the visibilities that the dialog does not offer
inline constexpr int kVisibilityUnder100m = 43410;
inline constexpr int kVisibilityKilometres = 43411;
inline constexpr int kVisibilityOver70km = 43412;

// Code table 1819, iR: where the amount of precipitation is
inline constexpr int kPrecipitationData0 = 43420;
inline constexpr int kPrecipitationData1 = 43421;
inline constexpr int kPrecipitationData2 = 43422;
inline constexpr int kPrecipitationData3 = 43423;
inline constexpr int kPrecipitationData4 = 43424;

// Code table 1860, iX: kind of station, and whether present and past weather are reported
inline constexpr int kWeatherData1 = 43430;
inline constexpr int kWeatherData2 = 43431;
inline constexpr int kWeatherData3 = 43432;
inline constexpr int kWeatherData4 = 43433;
inline constexpr int kWeatherData5 = 43434;
inline constexpr int kWeatherData6 = 43435;
inline constexpr int kWeatherData7 = 43436;

// CNowWeatherDlg
inline constexpr int kPresentWeatherTitle = 43500;
inline constexpr int kPrecipitationNow = 43501;
inline constexpr int kNoPrecipitationNow = 43502;
inline constexpr int kPresentWeatherNotObserved = 43503;
inline constexpr int kPresentWeatherGroup95 = 43510;
inline constexpr int kPresentWeatherGroup91 = 43511;
inline constexpr int kPresentWeatherGroup85 = 43512;
inline constexpr int kPresentWeatherGroup80 = 43513;
inline constexpr int kPresentWeatherGroup70 = 43514;
inline constexpr int kPresentWeatherGroup60 = 43515;
inline constexpr int kPresentWeatherGroup50 = 43516;
inline constexpr int kPresentWeatherGroup40 = 43517;
inline constexpr int kPresentWeatherGroup30 = 43518;
inline constexpr int kPresentWeatherGroup20 = 43519;
inline constexpr int kPresentWeatherGroup18 = 43520;
inline constexpr int kPresentWeatherGroup17 = 43521;
inline constexpr int kPresentWeatherGroup13 = 43522;
inline constexpr int kPresentWeatherGroup10 = 43523;
inline constexpr int kPresentWeatherGroup04 = 43524;
inline constexpr int kPresentWeatherGroup00 = 43525;

// CPastWeatherDlg1
inline constexpr int kPastWeatherTitle = 43530;
inline constexpr int kPastWeatherHint = 43531;
inline constexpr int kPastWeatherHeading = 43532;
inline constexpr int kPastWeatherGroup = 43533;

// CCloudAgeDlg
inline constexpr int kTotalCloudTitle = 43540;
inline constexpr int kTotalCloudHeading = 43541;
inline constexpr int kTotalCloudGroup = 43542;

// CBottomLayerCloudDlg
inline constexpr int kLowestCloudTitle = 43545;
inline constexpr int kLowestCloudHeading = 43546;

// CCloudHeightDlg
inline constexpr int kCloudBaseTitle = 43550;
inline constexpr int kCloudBaseHeading = 43551;
inline constexpr int kCloudBaseGroup = 43552;

// CBottomCloudDlg, CMidCloudDlg, CTopCloudDlg
inline constexpr int kLowCloudTitle = 43555;
inline constexpr int kMiddleCloudTitle = 43556;
inline constexpr int kHighCloudTitle = 43557;

// CWindDlg (wind waves)
inline constexpr int kWindWaveTitle = 43560;
inline constexpr int kWindWaveObservation = 43561;
inline constexpr int kNoWindWave = 43562;
inline constexpr int kWavesNotObserved = 43563;
inline constexpr int kWindWave = 43564;
inline constexpr int kWavePeriod = 43565;
inline constexpr int kWindWaveHeight = 43566;
inline constexpr int kReferenceWave = 43567;
inline constexpr int kReferenceWaveHeight = 43568;
inline constexpr int kWavePeriodUnknown = 43569;
inline constexpr int kWavePeriodConfused = 43570;
inline constexpr int kWindWaveHeightUnknown = 43571;
inline constexpr int kWindWaveHeightSmallest = 43572;
inline constexpr int kWaveNumberCaption = 43573;

// CSwellWaveDlg
inline constexpr int kSwellTitle = 43580;
inline constexpr int kTwoSwells = 43581;
inline constexpr int kOneSwell = 43582;
inline constexpr int kNoSwell = 43583;
inline constexpr int kSwellObservation = 43584;
inline constexpr int kSwell1 = 43585;
inline constexpr int kSwell2 = 43586;
inline constexpr int kSwellDirection = 43587;
inline constexpr int kSwellHeight = 43588;
inline constexpr int kSwellDirectionIsUnknown = 43589;
inline constexpr int kSwellHeightUnknown = 43590;
inline constexpr int kSwellDirectionGroup = 43591;
inline constexpr int kSwellPeriodFromLength = 43592;
inline constexpr int kSwellHeightSmallest = 43593;
inline constexpr int kSwellNumberNeededCaption = 43594;
inline constexpr int kSwellRangeCaption = 43595;
inline constexpr int kSwellPairCaption = 43596;
inline constexpr int kSwell2DirectionMustBeUnknown = 43597;

// CSeaIceDialog (ice accretion)
inline constexpr int kIcingTitle = 43600;
inline constexpr int kIcingCauseGroup = 43601;
inline constexpr int kIcingThickness = 43602;
inline constexpr int kIcingRateHeading = 43603;
inline constexpr int kIcingRateGroup = 43604;

// CICECiDlg, CICESiBiDlg, CICEDiDlg, CNewZiDlg (sea ice)
inline constexpr int kIceConcentrationTitle = 43610;
inline constexpr int kIceBeyondHalfMile = 43611;
inline constexpr int kIceWithinHalfMile = 43612;
inline constexpr int kIceUniform = 43613;
inline constexpr int kIceNotUniform = 43614;
inline constexpr int kIceConcentrationList = 43615;
inline constexpr int kIceStageTitle = 43620;
inline constexpr int kIceStageList = 42720;
inline constexpr int kLandIceList = 42721;
inline constexpr int kIceEdgeTitle = 43621;
inline constexpr int kIceTrendTitle = 43622;

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

// Fields that are typed into
inline constexpr int kTextTooLong = 42300;
inline constexpr int kTenthsAlone = 42301;

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
inline constexpr int kSaveErrorTitle = 14200;
inline constexpr int kSaveErrorNoSave = 14201;
inline constexpr int kSaveErrorSaveAs = 14202;
inline constexpr int kSaveErrorCorrect = 14203;
inline constexpr int kPositionWarningTitle = 14210;
inline constexpr int kControlCharacter = 42550;
inline constexpr int kSaved = 33008;
inline constexpr int kNoDateEntered = 33009;
inline constexpr int kNowSaving = 33014;
inline constexpr int kSaveFailed = 33207;
inline constexpr int kAskReplaceReport = 33344;
inline constexpr int kInsertDisk = 37007;
inline constexpr int kInsertDiskAgain = 37013;
inline constexpr int kSaveCancelled = 37032;
inline constexpr int kDiskFull = 37034;
inline constexpr int kLogbookLocked = 42500;
inline constexpr int kButtonRetry = 42501;
inline constexpr int kButtonGiveUp = 42502;
inline constexpr int kLogbookWithoutLock = 42503;
inline constexpr int kSaveFinished = 42504;
inline constexpr int kSaveTakenBack = 42505;
inline constexpr int kSaveLineWithoutReport = 42506;
inline constexpr int kSaveNoteDamaged = 42507;
inline constexpr int kSaveLineLeft = 42508;
inline constexpr int kLogbookLineClosed = 42509;

// Entries that outlive the program
inline constexpr int kDraftFound = 42580;
inline constexpr int kDraftDate = 42581;
inline constexpr int kDraftMissing = 42582;
inline constexpr int kDraftYear = 42583;
inline constexpr int kDraftMonth = 42584;
inline constexpr int kDraftDay = 42585;
inline constexpr int kDraftHour = 42586;
inline constexpr int kDraftComma = 42587;
inline constexpr int kDraftDamaged = 42588;
inline constexpr int kDraftLaterVersion = 42589;
inline constexpr int kDraftOtherShip = 42590;
inline constexpr int kDraftAside = 42591;
inline constexpr int kDraftStays = 42592;
inline constexpr int kDraftNotKept = 42593;

}  // namespace text::id
