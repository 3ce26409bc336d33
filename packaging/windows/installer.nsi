; SPDX-FileCopyrightText: 2026 The Zelvan POS developers
; SPDX-License-Identifier: GPL-3.0-only
;
; The installer: for the user who starts it, without an administrator's rights. scripts/package-windows
; names the program's folder, its lists of files, the version and the file to write.
;
; Silent: "setup.exe /S", into another folder "setup.exe /S /D=C:\folder" (the last argument, no quotes).
; It ends with 0, with 3 where the program runs, and with 1 or 2 where a file could not be written.

Target amd64-unicode
Unicode true
SetCompressor /SOLID lzma
RequestExecutionLevel user
ManifestDPIAware true

!include MUI2.nsh
!include FileFunc.nsh

!define NAME "Zelvan POS"
!define KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\ZelvanPOS"
!define PROGRAM "ZelvanPOS.exe"

Name "${NAME}"
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\ZelvanPOS"
InstallDirRegKey HKCU "${KEY}" "InstallLocation"
ShowInstDetails nevershow
ShowUninstDetails nevershow

VIProductVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "${NAME}"
VIAddVersionKey "CompanyName" "Zelvan"
VIAddVersionKey "FileDescription" "${NAME} ${VERSION}"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "LegalCopyright" "2026 The Zelvan POS developers"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_FINISHPAGE_RUN "$INSTDIR\${PROGRAM}"
!insertmacro MUI_PAGE_LICENSE "${FOLDER}\LICENSE.txt"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"
!insertmacro MUI_LANGUAGE "SimpChinese"

LangString RUNNING ${LANG_ENGLISH} "Zelvan POS is running. Close it and try again."
LangString RUNNING ${LANG_SIMPCHINESE} "Zelvan POS 正在运行。请先关闭它，然后重试。"

!macro REFUSE_WHILE_RUNNING
    ; Windows lets nobody write a program that runs.
    ${If} ${FileExists} "$INSTDIR\${PROGRAM}"
        ClearErrors
        FileOpen $0 "$INSTDIR\${PROGRAM}" a
        ${If} ${Errors}
            MessageBox MB_OK|MB_ICONEXCLAMATION "$(RUNNING)" /SD IDOK
            SetErrorLevel 3
            Quit
        ${EndIf}
        FileClose $0
    ${EndIf}
!macroend

Section
    !insertmacro REFUSE_WHILE_RUNNING
    ClearErrors
    !include "${INSTALLED}"
    WriteUninstaller "$INSTDIR\uninstall.exe"
    ${If} ${Errors}
        SetErrorLevel 1
        Abort
    ${EndIf}
    SetOutPath "$INSTDIR"
    CreateShortCut "$SMPROGRAMS\${NAME}.lnk" "$INSTDIR\${PROGRAM}"
    CreateShortCut "$DESKTOP\${NAME}.lnk" "$INSTDIR\${PROGRAM}"

    WriteRegStr HKCU "${KEY}" "DisplayName" "${NAME}"
    WriteRegStr HKCU "${KEY}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKCU "${KEY}" "Publisher" "Zelvan"
    WriteRegStr HKCU "${KEY}" "DisplayIcon" "$INSTDIR\${PROGRAM}"
    WriteRegStr HKCU "${KEY}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKCU "${KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
    WriteRegStr HKCU "${KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
    WriteRegDWORD HKCU "${KEY}" "NoModify" 1
    WriteRegDWORD HKCU "${KEY}" "NoRepair" 1
    ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
    IntFmt $0 "0x%08X" $0
    WriteRegDWORD HKCU "${KEY}" "EstimatedSize" "$0"
SectionEnd

; What it brought goes, name by name; a store's database, its backups, the settings and the logs stay,
; wherever they lie.
Section Uninstall
    !insertmacro REFUSE_WHILE_RUNNING
    !include "${REMOVED}"
    Delete "$INSTDIR\uninstall.exe"
    RMDir "$INSTDIR"
    Delete "$SMPROGRAMS\${NAME}.lnk"
    Delete "$DESKTOP\${NAME}.lnk"
    DeleteRegKey HKCU "${KEY}"
SectionEnd
