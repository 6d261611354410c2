; The installer. It is an ANSI program that itself starts on Windows 95.
; usage: makensis -DFILES=folder -DICON=file -DVERSION=text -DVERSION_NUMBERS=a.b.c.d
;        -DSIZE=kilobytes -DOUTPUT=file vistrel.nsi
Unicode false
!define SETTINGS_KEY "SOFTWARE\Tarnwick\Vistrel"
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Vistrel"
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

Function .onInit
    !insertmacro StopWhileRunning
FunctionEnd

Function un.onInit
    !insertmacro StopWhileRunning
FunctionEnd

Section "Vistrel"
    SectionIn RO
    SetOutPath "$INSTDIR"
    File "${FILES}\vistrel.exe"
    File "${FILES}\vistrl.hlp"
    File "${FILES}\Rotaline.exe"
    File "${FILES}\Shufflet.exe"
    File "${FILES}\Mirrorkin.exe"
    File "${FILES}\readme.txt"
    ; Vistrel copies one of these into the Startup folder when it is told to.
    CreateShortCut "$INSTDIR\Rotaline.lnk" "$INSTDIR\Rotaline.exe"
    CreateShortCut "$INSTDIR\Shufflet.lnk" "$INSTDIR\Shufflet.exe"

    WriteUninstaller "$INSTDIR\uninst.exe"
    WriteRegStr HKLM "${UNINSTALL_KEY}" "DisplayName" "Vistrel ${VERSION}"
    WriteRegStr HKLM "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKLM "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKLM "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninst.exe"'
    WriteRegDWORD HKLM "${UNINSTALL_KEY}" "EstimatedSize" ${SIZE}
SectionEnd

Section "Start menu entries"
    CreateDirectory "$SMPROGRAMS\Vistrel"
    CreateShortCut "$SMPROGRAMS\Vistrel\Vistrel.lnk" "$INSTDIR\vistrel.exe"
    CreateShortCut "$SMPROGRAMS\Vistrel\Vistrel Help.lnk" "$INSTDIR\vistrl.hlp"
    CreateShortCut "$SMPROGRAMS\Vistrel\Read me.lnk" "$INSTDIR\readme.txt"
SectionEnd

Section Uninstall
    ; What changes screens at the next start goes first.
    DeleteRegValue HKLM "${RUN_KEY}" "Mirrorkin"
    Delete "$SMSTARTUP\Rotaline.lnk"
    Delete "$SMSTARTUP\Shufflet.lnk"

    Delete "$INSTDIR\vistrel.exe"
    Delete "$INSTDIR\vistrl.hlp"
    ; The help viewer keeps lists of what it showed.
    Delete "$INSTDIR\vistrl.gid"
    Delete "$INSTDIR\vistrl.fts"
    Delete "$INSTDIR\Rotaline.exe"
    Delete "$INSTDIR\Shufflet.exe"
    Delete "$INSTDIR\Mirrorkin.exe"
    Delete "$INSTDIR\Mirrorkin.ini"
    Delete "$INSTDIR\readme.txt"
    Delete "$INSTDIR\Rotaline.lnk"
    Delete "$INSTDIR\Shufflet.lnk"
    Delete "$INSTDIR\uninst.exe"
    ; Logo sets may lie in the program's folder: it goes only when nothing is left in it.
    RMDir "$INSTDIR"

    Delete "$SMPROGRAMS\Vistrel\Vistrel.lnk"
    Delete "$SMPROGRAMS\Vistrel\Vistrel Help.lnk"
    Delete "$SMPROGRAMS\Vistrel\Read me.lnk"
    RMDir "$SMPROGRAMS\Vistrel"

    DeleteRegKey HKLM "${SETTINGS_KEY}"
    DeleteRegKey /ifempty HKLM "SOFTWARE\Tarnwick"
    DeleteRegKey HKLM "${UNINSTALL_KEY}"
SectionEnd
