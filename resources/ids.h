// The numbers of templates, menus, pictures, controls and commands; one header for the resource
// compiler and for C++. A control's number is named after it; members of an array follow each
// other.
#pragma once

// Templates, menus and bitmaps
#define IDD_Principale 100
#define IDD_Splash 101
#define IDD_FrmView 102
#define IDD_SelPictureForm 103
#define IDD_FrmOptions 104
#define IDD_FrmAboutReg 105
#define IDD_FrmAdjust 106
#define IDD_FrmManySets 107
#define IDD_FrmBootShow 108
#define IDD_FrmAnimate 109
#define IDD_FrmProgress 112
#define IDM_Principale 110
#define IDM_SelPictureForm 111
#define IDB_Toolbar 120
#define IDB_List 121
#define IDB_Browser 122
#define IDB_Drives 123

// Places of the pictures in the strip of the toolbar
#define PICTURE_Rename 0
#define PICTURE_Delete 1
#define PICTURE_SetDefault 2
#define PICTURE_Browser 3
#define PICTURE_Explore 4
#define PICTURE_Refresh 5
#define PICTURE_ShowCurrent 6
#define PICTURE_Random 7
#define PICTURE_Contents 8
#define PICTURE_About 9
#define PICTURE_Preferences 10
#define PICTURE_Tutorial 11
#define PICTURE_Bug 12

// Main window: 1000 to 1199
#define ID_ActiveBar1 1000
#define ID_MyList 1001
#define ID_Imag 1002       // 1002 startup, 1003 wait, 1004 shutdown
#define ID_LblScreen 1005  // 1005 to 1007, in the same order
#define ID_DefaultLogo 1008
#define ID_LogoType 1009
#define ID_NumLogo 1010
#define ID_LblDefaultLogo 1011
#define ID_LblFaults 1012
#define ID_LblFind 1020
#define ID_FindBox 1021
#define ID_LblDoing 1022
#define ID_LblSelected 1023
#define ID_BtnStopLooking 1024
#define ID_LblWork 1025
#define ID_WorkBar 1026
#define ID_DoingFrame 1027
#define ID_SelectedFrame 1028

#define ID_ToolRename 1050
#define ID_ToolDelete 1051
#define ID_ToolSetDefault 1052
#define ID_ToolBrowser 1053
#define ID_ToolExplore 1054
#define ID_ToolRefresh 1055
#define ID_ToolListView 1056
#define ID_ToolReportView 1057
#define ID_ToolShowCurrent 1058
#define ID_ToolRandom 1059
#define ID_ToolPrefer 1060
#define ID_Online 1061
#define ID_ToolContents 1062
#define ID_ToolTutorial 1063
#define ID_ToolAbout 1064
#define ID_ToolBug 1065
#define ID_MnuExit 1066
#define ID_WhatIsThis 1067
#define ID_ToolExport 1075
#define ID_ToolImport 1076
#define ID_ToolUndoInstall 1077
#define ID_ToolDuplicate 1078
#define ID_ToolCopy 1079
#define ID_ToolThumbnailView 1080
#define ID_ToolLargerThumbnails 1081
#define ID_ToolSmallerThumbnails 1082
#define ID_ToolSelectAll 1083
#define ID_ToolDetailsView 1084

#define ID_ItmRename 1100
#define ID_ItmDelete 1101
#define ID_ItmSetDefault 1102
#define ID_ItmExplore 1103
#define ID_ItmRefresh 1104
#define ID_ItmLogoManager 1105
#define ID_ItmViewType 1106  // 1106 list, 1107 report
#define ID_ItmViewDefOrActual 1108
#define ID_ItmRandomSpin 1109
#define ID_ItmPref 1110
#define ID_ItmNetUpdate 1111
#define ID_ItmContents 1112
#define ID_ItmBugReport 1113
#define ID_ItmAbout 1114
#define ID_ItmExit 1115
#define ID_ItmOpenAct 1116  // 1116 actual size, 1117 Paint, 1118 custom program
#define ID_ItmAnimate 1119
#define ID_ItmShowAtStart 1120
#define ID_ItmMend 1121
#define ID_ItmMoveColors 1122
#define ID_ItmDriveList 1130  // 1130 stands for none; 1131 on, one for each fixed drive
#define ID_ItmExport 1160
#define ID_ItmImport 1161
#define ID_ItmUndoInstall 1162
#define ID_ItmDuplicate 1163
#define ID_ItmCopy 1164
#define ID_ItmSelectAll 1165
#define ID_ItmThumbnailView 1170
#define ID_ItmDetailsView 1171

// Splash and actual-size preview: 1180 to 1199
#define ID_LblSplashVersion 1180
#define ID_SplashPicture 1181
#define ID_Preview 1190
#define ID_BootScreen 1191

// Logo browser: 1200 to 1399
#define ID_Drive1 1200
#define ID_CurPath 1201
#define ID_Label1 1202
#define ID_LogoList 1203
#define ID_CurView 1204
#define ID_ImageInfo 1205
#define ID_ImgPreview 1206    // 1206 startup, 1207 wait, 1208 shutdown; so are all arrays of three
#define ID_LblSlot 1209       // 1209 to 1211
#define ID_AddButton 1212     // 1212 to 1214
#define ID_DeleteButton 1215  // 1215 to 1217
#define ID_LblNotAval 1218    // 1218 to 1220
#define ID_Frame1 1221
#define ID_OptCompSet 1222
#define ID_OptDefShut 1223
#define ID_OptOnlyStart 1224
#define ID_Label3 1225
#define ID_NameLogoSet 1226
#define ID_ActButton 1227
#define ID_CloseButton 1228
#define ID_List1 1229
#define ID_Dir1 1230
#define ID_SlotFrame 1231  // 1231 to 1233
#define ID_LblWritten 1234
#define ID_AdjustButton 1235

#define ID_OkButton 1250  // 1250 create, 1251 update
#define ID_EliminaSetBtn 1252
#define ID_ClearAllButton 1253
#define ID_BrowserRename 1260
#define ID_BrowserDelete 1261
#define ID_BrowserRefresh 1262
#define ID_ItmSetLogo 1263  // 1263 to 1265
#define ID_ItmAdjust 1266
#define ID_ItmManySets 1267
#define ID_ItmAdjustSlot 1268  // 1268 to 1270
#define ID_BrowserShowAtStart 1271
#define ID_BrowserMend 1272
#define ID_ItmMoveSelected 1273

// Preferences: 1400 to 1599
#define ID_TabStrip1 1400
#define ID_LblLogoPath 1405
#define ID_TxtLogoPath 1406
#define ID_btnBrwFolder 1407
#define ID_LblDblAction 1408
#define ID_DblAction 1409
#define ID_ChkShowSplash 1410
#define ID_ChkSyncronize 1411
#define ID_ActiveStart 1412
#define ID_LblDriveHost 1413
#define ID_DriveHost 1414
#define ID_ChkConfirmChange 1415
#define ID_ChkDelConfirm 1416
#define ID_ChkDeleteRecycle 1417
#define ID_ChkShowAnim 1418
#define ID_FrameOpen 1419
#define ID_OptOpen 1420  // 1420 actual size, 1421 Paint, 1422 custom program
#define ID_CustomName 1423
#define ID_CustProg 1424
#define ID_BtnBrowse 1425
#define ID_LblStartUp 1426
#define ID_StartUpAction 1427  // 1427 Rotaline, 1428 Shufflet, 1429 nothing
#define ID_LblCustomName 1430
#define ID_LblCustProg 1431
#define ID_MyFrame 1440  // 1440 to 1444, in the order of the tabs
#define ID_LblRotation 1445
#define ID_RotationList 1446
#define ID_BtnAllSets 1447
#define ID_BtnNoSets 1448

// About box: 1600 to 1699
#define ID_Image1 1600
#define ID_LblTitProgram 1601
#define ID_LblVersion 1602
#define ID_LblComments 1603
#define ID_Label4 1604
#define ID_Label5 1605
#define ID_LblInternet 1606  // 1606 and 1608 mail, 1607 and 1609 web
#define ID_Line1 1610

// Adjust picture: 1700 to 1799
#define ID_ScreenBox 1700
#define ID_BtnOriginal 1701
#define ID_LblHint 1702
#define ID_AdjustPages 1703

#define ID_OptFraming 1710  // 1710 stretch, 1711 fill, 1712 fit
#define ID_LblZoom 1713
#define ID_LblZoomValue 1714
#define ID_ZoomBar 1715
#define ID_LblBorder 1716
#define ID_BorderKind 1717
#define ID_BorderSwatch 1718
#define ID_BtnBorderColor 1719
#define ID_BtnTurnLeft 1720
#define ID_BtnTurnRight 1721
#define ID_ChkMirror 1722

#define ID_LblLight 1730       // 1730 brightness, 1731 contrast, 1732 gamma, 1733 saturation
#define ID_LblLightValue 1734  // 1734 to 1737, in the same order
#define ID_LightBar 1738       // 1738 to 1741
#define ID_ChkAuto 1742
#define ID_LblDither 1743
#define ID_DitherKind 1744
#define ID_BtnReset 1745

#define ID_LblLines 1750
#define ID_TextLines 1751
#define ID_BtnAddLine 1752
#define ID_BtnEditLine 1753
#define ID_BtnDeleteLine 1754
#define ID_BtnReadyMade 1755
#define ID_BtnFont 1756
#define ID_BtnTextColor 1757
#define ID_TextSwatch 1758
#define ID_LblEdge 1759
#define ID_EdgeKind 1760
#define ID_LblAlign 1761
#define ID_AlignKind 1762
#define ID_ReadyLine 1770  // 1770 on, one for each ready-made line

// Make sets of these pictures: 1800 to 1899
#define ID_LblMany 1800
#define ID_ManyFrames 1801      // 1801 framing, 1802 kind
#define ID_OptManyFraming 1803  // 1803 fill, 1804 fit
#define ID_OptManyKind 1805     // 1805 one each, 1806 three at a time
#define ID_LblManyDone 1807
#define ID_ManyProgress 1808
#define ID_LblLeftOut 1809
#define ID_LeftOut 1810
#define ID_BtnMakeSets 1811

// Moving colours: 1900 to 1999
#define ID_MovingBox 1900
#define ID_BtnUndo 1901
#define ID_BtnRedo 1902
#define ID_LblMovingHint 1903
#define ID_MovingPages 1904

#define ID_LblLayers 1910
#define ID_Layers 1911
#define ID_BtnAddLayer 1912
#define ID_BtnDeleteLayer 1913
#define ID_LblPattern 1914
#define ID_PatternKind 1915
#define ID_LblSize 1916
#define ID_LblSizeValue 1917
#define ID_SizeBar 1918
#define ID_ChkReversed 1919
#define ID_LblChooseBy 1920
#define ID_ChooseBy 1921
#define ID_LblTolerance 1922
#define ID_ToleranceBar 1923
#define ID_BtnAll 1924
#define ID_BtnInvert 1925

#define ID_LblRun 1930
#define ID_RunKind 1931
#define ID_LblCount 1932
#define ID_LblCountValue 1933
#define ID_CountBar 1934
#define ID_RingBox 1935
#define ID_BtnKey 1936     // 1936 to 1939, one a colour
#define ID_KeySwatch 1940  // 1940 to 1943
#define ID_BtnMoreKeys 1944
#define ID_BtnFewerKeys 1945
#define ID_ChkGround 1946
#define ID_BtnGround 1947
#define ID_GroundSwatch 1948

#define ID_BoardBox 1950
#define ID_LblEntry 1951
#define ID_BtnFirst 1952
#define ID_BtnStill 1953
#define ID_BtnEntryColor 1954
#define ID_BtnExchange 1955
#define ID_LblSort 1956
#define ID_BtnSort 1957   // 1957 brightness, 1958 hue
#define ID_AddLayer 1959  // 1959 to 1962, in the order of the kinds

// Buttons that Enter and Esc press
#define ID_BtnOK 1
#define ID_BtnCancel 2
