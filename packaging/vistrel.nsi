; The installer. It is an ANSI program that itself starts on Windows 95.
; usage: makensis -DFILES=folder -DICON=file -DVERSION=text -DVERSION_NUMBERS=a.b.c.d
;        -DSIZE=kilobytes -DOUTPUT=file vistrel.nsi
Unicode false
!include LogicLib.nsh
!include Sections.nsh
!define SETTINGS_KEY "SOFTWARE\Tarnwick\Vistrel"
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Vistrel"
!define CONVERTER "logo-convert.exe"
!define RUN_KEY "SOFTWARE\Microsoft\Windows\CurrentVersion\Run"

SetCompressor /SOLID lzma
Name "Vistrel"
OutFile "${OUTPUT}"
Icon "${ICON}"
UninstallIcon "${ICON}"
InstallDir "$PROGRAMFILES\Vistrel"
; A second installation goes where the first one went.
InstallDirRegKey HKLM "${UNINSTALL_KEY}" "InstallLocation"
RequestExecutionLevel admin
; A file that cannot be written ends a run without windows, with a status that is not 0.
AllowSkipFiles off
BrandingText "Vistrel ${VERSION}"
ShowInstDetails nevershow
ShowUninstDetails nevershow

VIProductVersion "${VERSION_NUMBERS}"
VIAddVersionKey "CompanyName" "The Vistrel team"
VIAddVersionKey "FileDescription" "Installs Vistrel"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "LegalCopyright" "The Vistrel team"
VIAddVersionKey "ProductName" "Vistrel"
VIAddVersionKey "ProductVersion" "${VERSION}"

Page components
Page directory
Page instfiles
UninstPage uninstConfirm
UninstPage instfiles

; Files of a running program cannot be replaced or removed. The main window's class tells.
!macro StopWhileRunning
    again:
    FindWindow $0 "Principale"
    IntCmp $0 0 go_on
        MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION \
            "Vistrel is running. Close it and try again." /SD IDCANCEL IDRETRY again
        Abort
    go_on:
!macroend

; Nothing is changed while one of the files to be replaced or removed is in use: half a program would
; be left. A run without windows ends with status 2.
!macro StopIfInUse FILE
    ${Do}
        ${IfNot} ${FileExists} "$INSTDIR\${FILE}"
            ${ExitDo}
        ${EndIf}
        SetFileAttributes "$INSTDIR\${FILE}" NORMAL
        ClearErrors
        FileOpen $0 "$INSTDIR\${FILE}" a
        ${IfNot} ${Errors}
            FileClose $0
            ${ExitDo}
        ${EndIf}
        ${If} ${Cmd} `MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION \
            "$INSTDIR\${FILE} is in use. Close the program that uses it and try again." \
            /SD IDCANCEL IDCANCEL`
            SetErrorLevel 2
            Abort
        ${EndIf}
    ${Loop}
!macroend

!macro StopIfAnyInUse
    !insertmacro StopIfInUse "vistrel.exe"
    !insertmacro StopIfInUse "vistrl.hlp"
    !insertmacro StopIfInUse "Rotaline.exe"
    !insertmacro StopIfInUse "Shufflet.exe"
    !insertmacro StopIfInUse "Mirrorkin.exe"
    !insertmacro StopIfInUse "${CONVERTER}"
!macroend

; $9 becomes the first line of FOLDER's readme.txt; that of ours where there is none. The folder may
; be one that other programs share.
!define FIRST_LINE "Vistrel$\r$\n"
!macro ReadFirstLine FOLDER
    StrCpy $9 "${FIRST_LINE}"
    ${If} ${FileExists} "${FOLDER}\readme.txt"
        StrCpy $9 ""
        FileOpen $0 "${FOLDER}\readme.txt" r
        FileRead $0 $9
        FileClose $0
    ${EndIf}
!macroend

; Takes our files out of a folder, and the folder itself when nothing is left in it: logo sets may
; lie there.
!macro RemoveFilesOf FOLDER
    Delete "${FOLDER}\vistrel.exe"
    Delete "${FOLDER}\vistrl.hlp"
    ; The help viewer keeps lists of what it showed.
    Delete "${FOLDER}\vistrl.gid"
    Delete "${FOLDER}\vistrl.fts"
    Delete "${FOLDER}\Rotaline.exe"
    Delete "${FOLDER}\Shufflet.exe"
    Delete "${FOLDER}\Mirrorkin.exe"
    Delete "${FOLDER}\${CONVERTER}"
    Delete "${FOLDER}\Mirrorkin.ini"
    Delete "${FOLDER}\thumbnails.dat"
    Delete "${FOLDER}\Rotaline.lnk"
    Delete "${FOLDER}\Shufflet.lnk"
    !insertmacro ReadFirstLine "${FOLDER}"
    ${If} $9 == "${FIRST_LINE}"
        Delete "${FOLDER}\readme.txt"
    ${EndIf}
    Delete "${FOLDER}\uninst.exe"
    RMDir "${FOLDER}"
!macroend

!macro RemoveStartMenuEntries
    Delete "$SMPROGRAMS\Vistrel\Vistrel.lnk"
    Delete "$SMPROGRAMS\Vistrel\Vistrel Help.lnk"
    Delete "$SMPROGRAMS\Vistrel\Read me.lnk"
    RMDir "$SMPROGRAMS\Vistrel"
!macroend

Function .onInit
    ${IfNot} ${FileExists} "$SYSDIR\msvcrt.dll"
        MessageBox MB_OK|MB_ICONEXCLAMATION "Vistrel needs the file MSVCRT.DLL, which this \
            Windows does not have. It comes with Windows 95 OSR2, with Windows 98 and with \
            Internet Explorer 4.$\n$\nNothing has been installed." /SD IDOK
        Abort
    ${EndIf}
    !insertmacro StopWhileRunning
    Call ChooseWhatIsInstalled
FunctionEnd

Function un.onInit
    !insertmacro StopWhileRunning
FunctionEnd

; What started from the former folder $1 starts from this one, and the former one is cleared.
Function LeaveFormerFolder
    ReadRegStr $2 HKLM "${RUN_KEY}" "Mirrorkin"
    ${If} $2 != ""
        Delete "$INSTDIR\Mirrorkin.ini"
        Rename "$1\Mirrorkin.ini" "$INSTDIR\Mirrorkin.ini"
        WriteRegStr HKLM "${RUN_KEY}" "Mirrorkin" "$INSTDIR\Mirrorkin.exe /auto"
    ${EndIf}
    ${If} ${FileExists} "$SMSTARTUP\Rotaline.lnk"
        CreateShortCut "$SMSTARTUP\Rotaline.lnk" "$INSTDIR\Rotaline.exe"
    ${EndIf}
    ${If} ${FileExists} "$SMSTARTUP\Shufflet.lnk"
        CreateShortCut "$SMSTARTUP\Shufflet.lnk" "$INSTDIR\Shufflet.exe"
    ${EndIf}
    !insertmacro RemoveStartMenuEntries
    !insertmacro RemoveFilesOf "$1"
FunctionEnd

Section "Vistrel"
    SectionIn RO
    !insertmacro StopIfAnyInUse
    SetOutPath "$INSTDIR"
    File "${FILES}\vistrel.exe"
    File "${FILES}\vistrl.hlp"
    File "${FILES}\Rotaline.exe"
    File "${FILES}\Shufflet.exe"
    File "${FILES}\Mirrorkin.exe"
    ; Who does not choose it any more does not want it.
    Delete "$INSTDIR\${CONVERTER}"
    !insertmacro ReadFirstLine "$INSTDIR"
    ${If} $9 == "${FIRST_LINE}"
        File "${FILES}\readme.txt"
    ${EndIf}
    ; Vistrel copies one of these into the Startup folder when it is told to.
    CreateShortCut "$INSTDIR\Rotaline.lnk" "$INSTDIR\Rotaline.exe"
    CreateShortCut "$INSTDIR\Shufflet.lnk" "$INSTDIR\Shufflet.exe"

    ReadRegStr $1 HKLM "${UNINSTALL_KEY}" "InstallLocation"
    GetFullPathName /SHORT $2 "$1"
    GetFullPathName /SHORT $3 "$INSTDIR"
    ${If} ${FileExists} "$1\uninst.exe"
    ${AndIf} $2 != $3
        Call LeaveFormerFolder
    ${EndIf}

    WriteUninstaller "$INSTDIR\uninst.exe"
    WriteRegStr HKLM "${UNINSTALL_KEY}" "DisplayName" "Vistrel ${VERSION}"
    WriteRegStr HKLM "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKLM "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKLM "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninst.exe"'
    WriteRegStr HKLM "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\vistrel.exe"
    WriteRegDWORD HKLM "${UNINSTALL_KEY}" "EstimatedSize" ${SIZE}
    WriteRegDWORD HKLM "${UNINSTALL_KEY}" "NoModify" 1
    WriteRegDWORD HKLM "${UNINSTALL_KEY}" "NoRepair" 1
SectionEnd

Section "Start menu entries"
    CreateDirectory "$SMPROGRAMS\Vistrel"
    CreateShortCut "$SMPROGRAMS\Vistrel\Vistrel.lnk" "$INSTDIR\vistrel.exe"
    CreateShortCut "$SMPROGRAMS\Vistrel\Vistrel Help.lnk" "$INSTDIR\vistrl.hlp"
    !insertmacro ReadFirstLine "$INSTDIR"
    ${If} $9 == "${FIRST_LINE}"
        CreateShortCut "$SMPROGRAMS\Vistrel\Read me.lnk" "$INSTDIR\readme.txt"
    ${EndIf}
SectionEnd

; For scripts, and for people who like the command prompt: off, unless it was chosen before.
Section /o "Command-line converter" SectionConverter
    SetOutPath "$INSTDIR"
    File "${FILES}\${CONVERTER}"
SectionEnd

; A newer version is installed with the parts that the older one has.
Function ChooseWhatIsInstalled
    ReadRegStr $1 HKLM "${UNINSTALL_KEY}" "InstallLocation"
    ${If} ${FileExists} "$1\${CONVERTER}"
        !insertmacro SelectSection ${SectionConverter}
    ${EndIf}
FunctionEnd

!macro RemoveStartupLinksOf FOLDER
    Delete "${FOLDER}\Rotaline.lnk"
    Delete "${FOLDER}\Shufflet.lnk"
!macroend

; The companions' links go from the Startup folders of all users: this one's, that of everybody, and
; where users have profiles those under Profiles. They have the names that this user's has.
Function un.RemoveStartupLinks
    !insertmacro RemoveStartupLinksOf "$SMSTARTUP"
    ; The last three names of the path, such as Start Menu\Programs\StartUp.
    StrCpy $1 0
    StrCpy $2 0
    ${DoUntil} $1 < -260
        IntOp $1 $1 - 1
        StrCpy $3 $SMSTARTUP 1 $1
        ${If} $3 == "\"
            IntOp $2 $2 + 1
            ${If} $2 = 3
                ${ExitDo}
            ${EndIf}
        ${EndIf}
    ${Loop}
    StrCpy $4 $SMSTARTUP "" $1

    SetShellVarContext all
    !insertmacro RemoveStartupLinksOf "$SMSTARTUP"
    SetShellVarContext current
    !insertmacro RemoveStartupLinksOf "$WINDIR$4"
    !insertmacro RemoveStartupLinksOf "$WINDIR\All Users$4"
    FindFirst $0 $1 "$WINDIR\Profiles\*"
    ${DoWhile} $1 != ""
        !insertmacro RemoveStartupLinksOf "$WINDIR\Profiles\$1$4"
        FindNext $0 $1
    ${Loop}
    FindClose $0
FunctionEnd

Section Uninstall
    !insertmacro StopIfAnyInUse
    ; What changes screens at the next start goes first.
    DeleteRegValue HKLM "${RUN_KEY}" "Mirrorkin"
    Call un.RemoveStartupLinks

    !insertmacro RemoveFilesOf "$INSTDIR"
    !insertmacro RemoveStartMenuEntries

    DeleteRegKey HKLM "${SETTINGS_KEY}"
    DeleteRegKey /ifempty HKLM "SOFTWARE\Tarnwick"
    DeleteRegKey HKLM "${UNINSTALL_KEY}"
SectionEnd
