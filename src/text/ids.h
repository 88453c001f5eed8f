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
inline constexpr int kSettingsNotSaved = 41000;

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
inline constexpr int kFixHumidity = 12028;
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
inline constexpr int kShipFileNotSaved = 40001;
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
inline constexpr int kUtcTimeTitle = 13000;
inline constexpr int kUtcTimeHint = 13001;
inline constexpr int kUtcYear = 13002;
inline constexpr int kUtcMonth = 13003;
inline constexpr int kUtcDay = 13004;
inline constexpr int kUtcHour = 13005;
inline constexpr int kInvalidHour = 13006;

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
