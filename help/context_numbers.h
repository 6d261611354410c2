// The numbers by which the windows ask for the help on a control: one pop-up topic each.
#pragma once

namespace vistrel::help_number {

// Ordinary topics: the tutorial, and what F1 shows in windows without controls to ask about.
inline constexpr unsigned long Tutorial = 30;
inline constexpr unsigned long AboutBox = 90;
inline constexpr unsigned long ActualSize = 91;

// The preferences dialog. Boxes and buttons that belong together share a number.
inline constexpr unsigned long ActiveStart = 32;
inline constexpr unsigned long ChkShowSplash = 33;
inline constexpr unsigned long ChkSyncronize = 34;
inline constexpr unsigned long DriveHost = 35;
inline constexpr unsigned long TxtLogoPath = 36;
inline constexpr unsigned long btnBrwFolder = 36;
inline constexpr unsigned long DblAction = 37;
inline constexpr unsigned long ChkDeleteRecycle = 38;
inline constexpr unsigned long ChkDelConfirm = 39;
inline constexpr unsigned long ChkConfirmChange = 40;
inline constexpr unsigned long OptOpen[] = {41, 42, 43};
inline constexpr unsigned long CustomName = 43;
inline constexpr unsigned long CustProg = 44;
inline constexpr unsigned long BtnBrowse = 44;
inline constexpr unsigned long StartUpAction[] = {54, 55};
inline constexpr unsigned long RotationList = 95;
inline constexpr unsigned long BtnAllSets = 96;

// The Logo browser.
inline constexpr unsigned long LogoList = 60;
inline constexpr unsigned long Drive1 = 61;
inline constexpr unsigned long CurPath = 62;
inline constexpr unsigned long CurView = 63;
inline constexpr unsigned long ImageInfo = 64;
inline constexpr unsigned long ImgPreview[] = {65, 66, 67};
inline constexpr unsigned long AddButton = 68;
inline constexpr unsigned long DeleteButton = 69;
inline constexpr unsigned long OptCompSet = 70;
inline constexpr unsigned long OptDefShut = 71;
inline constexpr unsigned long OptOnlyStart = 72;
inline constexpr unsigned long NameLogoSet = 73;
inline constexpr unsigned long ActButton = 74;
inline constexpr unsigned long CloseButton = 75;
inline constexpr unsigned long LblWritten = 76;
inline constexpr unsigned long AdjustButton = 77;

// Adjust picture. Buttons that belong together share a number.
inline constexpr unsigned long ScreenBox = 100;
inline constexpr unsigned long BtnOriginal = 101;
inline constexpr unsigned long OptFraming[] = {102, 103, 104};
inline constexpr unsigned long ZoomBar = 105;
inline constexpr unsigned long BorderKind = 106;
inline constexpr unsigned long BtnTurn = 107;
inline constexpr unsigned long ChkMirror = 108;
inline constexpr unsigned long LightBar[] = {109, 110, 111, 112};
inline constexpr unsigned long ChkAuto = 113;
inline constexpr unsigned long DitherKind = 114;
inline constexpr unsigned long BtnReset = 115;
inline constexpr unsigned long TextLines = 116;
inline constexpr unsigned long BtnsOfLines = 117;
inline constexpr unsigned long BtnReadyMade = 118;
inline constexpr unsigned long BtnFont = 119;
inline constexpr unsigned long BtnTextColor = 120;
inline constexpr unsigned long EdgeKind = 121;
inline constexpr unsigned long AlignKind = 122;
inline constexpr unsigned long AdjustOk = 123;
inline constexpr unsigned long AdjustCancel = 124;

// Make sets of these pictures.
inline constexpr unsigned long ManyFraming = 130;
inline constexpr unsigned long ManyKind = 131;
inline constexpr unsigned long ManyProgress = 132;
inline constexpr unsigned long ManyLeftOut = 133;
inline constexpr unsigned long ManyMake = 134;
inline constexpr unsigned long ManyClose = 135;

// Moving colours. Buttons that belong together share a number.
inline constexpr unsigned long MovingBox = 140;
inline constexpr unsigned long BtnUndo = 141;
inline constexpr unsigned long Layers = 142;
inline constexpr unsigned long BtnsOfLayers = 143;
inline constexpr unsigned long PatternKind = 144;
inline constexpr unsigned long SizeBar = 145;
inline constexpr unsigned long ChkReversed = 146;
inline constexpr unsigned long ChooseBy = 147;
inline constexpr unsigned long ToleranceBar = 148;
inline constexpr unsigned long BtnsOfArea = 149;
inline constexpr unsigned long RunKind = 150;
inline constexpr unsigned long CountBar = 151;
inline constexpr unsigned long RingBox = 152;
inline constexpr unsigned long BtnKey = 153;
inline constexpr unsigned long ChkGround = 154;
inline constexpr unsigned long BoardBox = 155;
inline constexpr unsigned long BtnFirst = 156;
inline constexpr unsigned long BtnEntryColor = 157;
inline constexpr unsigned long BtnExchange = 158;
inline constexpr unsigned long BtnSort = 159;
inline constexpr unsigned long MovingOk = 160;
inline constexpr unsigned long MovingCancel = 161;

// The main window. Its list, pictures and toolbar ask for none: a click with the right mouse button
// has another meaning there.
inline constexpr unsigned long DefaultLogo = 84;
inline constexpr unsigned long LogoType = 85;
inline constexpr unsigned long NumLogo = 86;
inline constexpr unsigned long LblFaults = 87;
inline constexpr unsigned long StatusLine = 88;
inline constexpr unsigned long BtnStopLooking = 92;
inline constexpr unsigned long WorkBar = 93;
inline constexpr unsigned long WorkCancel = 94;
inline constexpr unsigned long FindBox = 89;

}  // namespace vistrel::help_number
