#pragma once

// The objectName of every control, by what the control is for: screens give it and tests find
// controls by it. Each screen numbers its own controls, so that two may have the same name. A
// heading "Screen: meaning" begins what stands on one screen; the table's own test reads it.

#include <array>

namespace tarn::Controls {

// Window: what every screen stands in.
inline constexpr const char* window = "Window";
inline constexpr const char* body = "Body";
inline constexpr const char* productTitle = "PTitle";
inline constexpr const char* formTitle = "FTitle";
inline constexpr const char* titleWarning = "FWarning";
inline constexpr const char* showGuide = "ShowGuide";
inline constexpr const char* printingNote = "PrintingNote";
inline constexpr const char* helpMenu = "HelpMenu";
inline constexpr const char* helpGuide = "HelpGuide";
inline constexpr const char* helpAbout = "HelpAbout";

// Guide: the guide, which any screen opens.
inline constexpr const char* guideWindow = "Guide";
inline constexpr const char* guideText = "GuideText";
inline constexpr const char* guideSearchCaption = "GuideSearchCaption";
inline constexpr const char* guideSearch = "GuideSearch";
inline constexpr const char* findInGuide = "FindInGuide";
inline constexpr const char* guideNote = "GuideNote";
inline constexpr const char* closeGuide = "CloseGuide";
inline constexpr const char* aboutFromGuide = "AboutFromGuide";

// About: what the program is, opened from the guide and from the menu "Help".
inline constexpr const char* aboutWindow = "About";
inline constexpr const char* aboutText = "AboutText";
inline constexpr const char* closeAbout = "CloseAbout";

// Projects: the projects and their directories.
inline constexpr const char* projectScreen = "ProjectForm";
inline constexpr const char* settingsPanel = "Frame1";
inline constexpr const char* currentSetting = "Frame3";
inline constexpr const char* currentDirectory = "Label1(0)";
inline constexpr const char* currentProject = "Label1(1)";
inline constexpr const char* selectProject = "Command3";
inline constexpr const char* besideSelectProject = "Command4";
inline constexpr const char* exitProgram = "Command2";
inline constexpr const char* selectionPanel = "Frame5";
inline constexpr const char* months = "List1(0)";
inline constexpr const char* directories = "List1(1)";
inline constexpr const char* projects = "List2";
inline constexpr const char* monthsCaption = "Label2(0)";
inline constexpr const char* directoriesCaption = "Label2(1)";
inline constexpr const char* projectsCaption = "Label2(2)";
inline constexpr const char* projectBox = "Text1";
inline constexpr const char* newProject = "Command1";
inline constexpr const char* newDirectory = "Command7";
inline constexpr const char* acceptProject = "Command5";
inline constexpr const char* closeSelection = "Command6";

// Menu: the menu of an open project.
inline constexpr const char* menuScreen = "MenuForm";
inline constexpr const char* menuPanel = "Frame1";
inline constexpr const char* menuHeading = "Label1";
inline constexpr const char* notSaved = "NotSaved";
inline constexpr const char* notKept = "NotKept";
inline constexpr const char* tilesOnly = "TilesOnly";
inline constexpr const char* metric = "Check1";
inline constexpr const char* enteredInMetric = "EnteredMetric";
inline constexpr const char* takeBack = "TakeBack";
inline constexpr const char* earlierRooms = "EarlierRooms";
inline constexpr const char* earlierRoomsMenu = "EarlierRoomsMenu";
inline constexpr const char* enterRooms = "Command1(0)";
inline constexpr const char* backToProjects = "Command1(1)";
inline constexpr const char* estimateFromMenu = "Command1(2)";
inline constexpr const char* exitFromMenu = "EXmnu";
inline constexpr const char* languageMenu = "LanguageMenu";

// Rooms: the rooms of a project, and the report of them.
inline constexpr const char* roomScreen = "TarnForm";
inline constexpr const char* fileMenu = "FMnu";
inline constexpr const char* fileSave = "FileMnu(1)";
inline constexpr const char* fileSeparator = "FileMnu(90)";
inline constexpr const char* fileClose = "FileMnu(99)";
inline constexpr const char* editMenu = "EditMenu";
inline constexpr const char* undoRooms = "UndoRooms";
inline constexpr const char* redoRooms = "RedoRooms";
inline constexpr const char* pasteRooms = "PasteRooms";
inline constexpr const char* roomPanel = "Frame1";
inline constexpr const char* roomSizes = "Frame2";
inline constexpr const char* roomWidthMajor = "Text1(0)";
inline constexpr const char* roomWidthMinor = "Text1(1)";
inline constexpr const char* roomLengthMajor = "Text1(2)";
inline constexpr const char* roomLengthMinor = "Text1(3)";
inline constexpr const char* roomWidthCaption = "Label1(0)";
inline constexpr const char* roomWidthMajorUnit = "Label1(1)";
inline constexpr const char* roomWidthMinorUnit = "Label1(2)";
inline constexpr const char* roomLengthCaption = "Label1(3)";
inline constexpr const char* roomLengthMajorUnit = "Label1(4)";
inline constexpr const char* roomLengthMinorUnit = "Label1(5)";
inline constexpr const char* roomNote = "RoomNote";
inline constexpr const char* roomItem = "Frame3";
inline constexpr const char* covering = "Combo1";
inline constexpr const char* wallBase = "Text1(4)";
inline constexpr const char* roomNumber = "Text1(5)";
inline constexpr const char* remark = "Text1(6)";
inline constexpr const char* coveringCaption = "Label1(6)";
inline constexpr const char* wallBaseCaption = "Label1(7)";
inline constexpr const char* roomNumberCaption = "Label1(8)";
inline constexpr const char* remarkCaption = "Label1(9)";
inline constexpr const char* itemNumberCaption = "Label1(10)";
inline constexpr const char* itemNumber = "Label1(11)";
inline constexpr const char* nextRoom = "Command1(0)";
inline constexpr const char* previousRoom = "Command1(1)";
inline constexpr const char* deleteRoom = "Command1(2)";
inline constexpr const char* estimateFromRooms = "Command3";
inline constexpr const char* showReport = "RepMnu";
inline constexpr const char* leaveRooms = "Back";
inline constexpr const char* saveRooms = "Command1(3)";
inline constexpr const char* showRoomList = "ShowRoomList";
inline constexpr const char* roomList = "RoomList";
inline constexpr const char* roomTable = "RoomTable";
inline constexpr const char* roomTotals = "RoomTotals";
inline constexpr const char* roomListMenu = "RoomListMenu";
inline constexpr const char* pasteIntoList = "PasteIntoList";
inline constexpr const char* roomListAsXlsx = "RoomListXlsx";
inline constexpr const char* roomListAsCsv = "RoomListCsv";
inline constexpr const char* reportPanel = "Frame4";
inline constexpr const char* reportText = "Text2";
inline constexpr const char* printReport = "Command2(0)";
inline constexpr const char* closeReport = "Command2(1)";
inline constexpr const char* reportAsPdf = "SaveAsPdf";
inline constexpr const char* reportAsSvg = "SaveAsSvg";
inline constexpr const char* reportAsXlsx = "SaveAsXlsx";
inline constexpr const char* reportAsCsv = "SaveAsCsv";

// Estimate: the estimate, what is chosen for it, and the improving search.
inline constexpr const char* estimateScreen = "ESCarpForm";
inline constexpr const char* layoutPicture = "Picture1";
inline constexpr const char* pictureAsPdf = "SavePdf";
inline constexpr const char* pictureAsSvg = "SaveSvg";
inline constexpr const char* rollAsDxf = "SaveDxf";
inline constexpr const char* estimatedProject = "Label2";
inline constexpr const char* zoomHint = "Label5";
inline constexpr const char* openChoices = "Command3";
inline constexpr const char* improveFills = "Command8";
inline constexpr const char* undoImprovement = "UndoImprovement";
inline constexpr const char* openOrder = "OpenOrder";
inline constexpr const char* pasteCuts = "Command4";
inline constexpr const char* redrawLayout = "Command7";
inline constexpr const char* printEstimate = "Command5";
inline constexpr const char* saveFromEstimate = "Command6";
inline constexpr const char* switchView = "SwitchView";
inline constexpr const char* leaveEstimate = "Command2";
inline constexpr const char* choicePanel = "Frame7";
inline constexpr std::array<const char*, 8> carpets{"Option1(0)", "Option1(1)", "Option1(2)",
                                                    "Option1(3)", "Option1(4)", "Option1(5)",
                                                    "Option1(6)", "Option1(7)"};
inline constexpr std::array<const char*, 4> standardWidths{"Option1(11)", "Option1(12)",
                                                           "Option1(13)", "Option1(14)"};
inline constexpr const char* otherWidth = "Option1(15)";
inline constexpr const char* otherWidthBoxes = "OtherWidth";
inline constexpr const char* otherWidthMajor = "Text1(0)";
inline constexpr const char* otherWidthMinor = "Text1(1)";
inline constexpr const char* otherWidthMajorUnit = "Label1(0)";
inline constexpr const char* otherWidthMinorUnit = "Label1(1)";
inline constexpr const char* otherWidthHint = "Label4";
inline constexpr const char* downLay = "Option2(0)";
inline constexpr const char* crossLay = "Option2(1)";
inline constexpr const char* matchPattern = "Check1";
inline constexpr const char* repeatWidth = "Text2(0)";
inline constexpr const char* repeatWidthCaption = "Label3(0)";
inline constexpr const char* repeatWidthUnit = "Label1(2)";
inline constexpr const char* repeatLength = "Text2(1)";
inline constexpr const char* repeatLengthCaption = "Label3(1)";
inline constexpr const char* repeatLengthUnit = "Label1(3)";
inline constexpr const char* acceptChoices = "Command1(0)";
inline constexpr const char* cancelChoices = "Command1(1)";
inline constexpr const char* lastChoices = "LastChoices";
inline constexpr const char* improvePanel = "Frame8";
inline constexpr const char* improvedSoFar = "Label6(0)";
inline constexpr const char* improveBound = "Label6(1)";
inline constexpr const char* improveGap = "Label6(2)";
inline constexpr const char* improveTime = "ProgressBar1";
inline constexpr const char* stopImproving = "Command1(2)";
inline constexpr const char* takeKept = "TakeKept";
inline constexpr const char* leaveKept = "LeaveKept";

// Roll: the whole view of a roll and its list, on the screens that have one.
inline constexpr const char* rollView = "RollView";
inline constexpr const char* rollList = "RollList";

// Options: how the fills are to be laid out.
inline constexpr const char* optionsScreen = "ESTFORM";
inline constexpr const char* optionsPanel = "Frame10";
inline constexpr const char* optionsHeading = "Label5";
inline constexpr const char* minCutGroup = "Frame2";
inline constexpr const char* minCutHeading = "Label1";
inline constexpr const char* minCutSelect = "Label4";
inline constexpr std::array<const char*, 3> minCuts{"Option2(0)", "Option2(1)", "Option2(2)"};
inline constexpr const char* piecesGroup = "Frame1";
inline constexpr const char* piecesHeading = "Label2";
inline constexpr const char* piecesSelect = "Label3";
inline constexpr std::array<const char*, 6> piecesPerFill{"Option1(0)", "Option1(1)", "Option1(2)",
                                                          "Option1(3)", "Option1(4)", "Option1(5)"};
inline constexpr const char* searchProgress = "ProgressBar1";
inline constexpr const char* searchPercentage = "Label6";
inline constexpr const char* layOutFills = "Command1";

// Order: what is asked for of an order, its comparison of rolls and lays, and what is done with it.
inline constexpr const char* orderScreen = "OrderForm";
inline constexpr const char* orderParts = "OrderParts";
inline constexpr const char* orderChoices = "OrderChoices";
inline constexpr const char* orderCarpet = "OrderCarpet";
inline constexpr const char* orderCarpetCaption = "OrderCarpetCaption";
inline constexpr const char* orderNote = "OrderNote";
inline constexpr const char* orderRolls = "OrderRolls";
inline constexpr const char* orderRollsCaption = "OrderRollsCaption";
inline constexpr const char* removeRoll = "RemoveRoll";
inline constexpr const char* orderDownLay = "OrderDownLay";
inline constexpr const char* orderCrossLay = "OrderCrossLay";
inline constexpr const char* orderSelvage = "Selvage";
inline constexpr const char* orderSelvageCaption = "SelvageCaption";
inline constexpr const char* orderTrimAlong = "TrimAlong";
inline constexpr const char* orderTrimAlongCaption = "TrimAlongCaption";
inline constexpr const char* orderTrimAcross = "TrimAcross";
inline constexpr const char* orderTrimAcrossCaption = "TrimAcrossCaption";
inline constexpr const char* orderParting = "MostParts";
inline constexpr const char* orderPartingCaption = "MostPartsCaption";
inline constexpr const char* orderShortestPart = "ShortestPart";
inline constexpr const char* orderShortestPartCaption = "ShortestPartCaption";
inline constexpr const char* orderJoinRooms = "JoinRooms";
inline constexpr const char* orderPatternAcross = "PatternAcross";
inline constexpr const char* orderPatternAcrossCaption = "PatternAcrossCaption";
inline constexpr const char* orderPatternAlong = "PatternAlong";
inline constexpr const char* orderPatternAlongCaption = "PatternAlongCaption";
inline constexpr const char* orderHalfDrop = "HalfDrop";
inline constexpr const char* orderPatternHint = "PatternHint";
inline constexpr const char* orderPatternDrift = "PatternDrift";
inline constexpr const char* orderPatternDriftCaption = "PatternDriftCaption";
inline constexpr const char* orderStep = "Step";
inline constexpr const char* orderStepCaption = "StepCaption";
inline constexpr const char* orderSeconds = "Seconds";
inline constexpr const char* orderSecondsCaption = "SecondsCaption";
inline constexpr const char* orderRefusal = "OrderRefusal";
inline constexpr const char* comparisonPanel = "ComparisonPanel";
inline constexpr const char* comparisonState = "ComparisonState";
inline constexpr const char* comparisonTaken = "ComparisonTaken";
inline constexpr const char* comparisonRule = "ComparisonRule";
inline constexpr const char* comparison = "Comparison";
inline constexpr const char* comparisonLeftOut = "ComparisonLeftOut";
inline constexpr const char* comparisonRemarks = "ComparisonRemarks";
inline constexpr const char* compare = "Compare";
inline constexpr const char* stopComparing = "StopComparing";
inline constexpr const char* printOrder = "PrintOrder";
inline constexpr const char* saveOrderAs = "SaveOrderAs";
inline constexpr const char* orderFiles = "OrderFiles";
inline constexpr std::array<const char*, 7> orderFileActions{
    "OrderPdf", "OrderSvg", "OrderXlsx", "OrderCsv", "OrderText", "OrderJson", "OrderDxf"};
inline constexpr const char* leaveOrder = "LeaveOrder";

} // namespace tarn::Controls
