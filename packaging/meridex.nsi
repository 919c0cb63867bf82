; The installer: for one user, without an administrator. scripts/package.sh calls makensis with
;   RELEASE, MAJOR, MINOR  the version
;   ARCHITECTURE           x64 or x86
;   CONTENTS               the folder that the portable zip holds
;   REMOVAL                a file of lines that delete what lies in the folders of guide and packs, by name
;   OUTPUT                 the installer to write
;
; /S installs in silence, /D=FOLDER (last, without quotes) into that folder, /MODERN=1 with the mode for today's desktops,
; /MODERN=0 without it; an upgrade leaves the mode as it is unless told. The uninstaller keeps calendar.dat and the settings; in
; silence too, unless it is given /FORGET=1. Where the program can't be closed or its file can't be written, nothing has changed
; and both end with status 2. The uninstaller works in a copy of itself and its own process ends with 0 at once; it is the one
; that works, and that ends with the status, when it is given _?=FOLDER, its own folder, last and without quotes.

!if ${ARCHITECTURE} == x64
  Target amd64-unicode
!else
  Target x86-ansi  ; runs on the first systems too
!endif
SetCompressor /SOLID lzma
SetDateSave off  ; the same bytes whenever it is built
RequestExecutionLevel user
AllowSkipFiles off

!include MUI2.nsh
!include LogicLib.nsh
!include WinVer.nsh
!include FileFunc.nsh

!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Meridex"
!define RUN_KEY "Software\Microsoft\Windows\CurrentVersion\Run"
!define DESKTOP_KEY "Software\Meridex\Desktop"
!define SET_WALLPAPER 20
!define STORE_AND_TELL 3
!define START_MENU "$SMPROGRAMS\Meridex"

Name "Meridex ${RELEASE}"
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\Meridex"
InstallDirRegKey HKCU "${UNINSTALL_KEY}" "InstallLocation"
BrandingText "Meridex ${RELEASE}"

VIProductVersion "${MAJOR}.${MINOR}.0.0"
VIFileVersion "${MAJOR}.${MINOR}.0.0"
VIAddVersionKey "ProductName" "Meridex"
VIAddVersionKey "FileDescription" "Meridex desktop calendar, setup"
VIAddVersionKey "FileVersion" "${RELEASE}"
VIAddVersionKey "ProductVersion" "${RELEASE}"
VIAddVersionKey "LegalCopyright" ""

!define MUI_ICON "resources/meridex.ico"
!define MUI_UNICON "resources/meridex.ico"
!define MUI_WELCOMEFINISHPAGE_BITMAP "resources/setup.bmp"
!define MUI_COMPONENTSPAGE_SMALLDESC
!define MUI_FINISHPAGE_RUN "$INSTDIR\meridex.exe"
!define MUI_FINISHPAGE_RUN_TEXT "Start the calendar"
!define MUI_DIRECTORYPAGE_TEXT_TOP "The calendar keeps its events in this folder, so it must be one that you may write to. In \
  another folder than before it begins without events; those that you have stay where they are."

!insertmacro MUI_PAGE_COMPONENTS
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

; A running calendar is asked to close by the window by which its instances know each other. It gets five seconds until its file
; can be written. A program that shows a failure or a question has that window no more, and goes only when the user answers.
!macro CLOSE_CALENDAR
  SetFileAttributes "$INSTDIR\meridex.exe" NORMAL
  StrCpy $R1 50
  ${Do}
    FindWindow $R0 "Meridex_Instance"
    ${If} $R0 != 0
      System::Call "user32::PostMessageA(p R0, i ${WM_CLOSE}, p 0, p 0)"
    ${ElseIf} ${FileExists} "$INSTDIR\meridex.exe"
      ClearErrors
      FileOpen $R2 "$INSTDIR\meridex.exe" a
      ${IfNot} ${Errors}
        FileClose $R2
        ${ExitDo}
      ${EndIf}
    ${Else}
      ${ExitDo}
    ${EndIf}
    ${If} $R1 == 0
      MessageBox MB_OK|MB_ICONSTOP \
        "The calendar is still open, or its file can't be written. Please close it and its messages, then try again." /SD IDOK
      SetErrorLevel 2
      Abort "The calendar is still open, or its file can't be written."
    ${EndIf}
    Sleep 100
    IntOp $R1 $R1 - 1
  ${Loop}
!macroend

Section "Meridex" SECTION_PROGRAM
  SectionIn RO
  !insertmacro CLOSE_CALENDAR
  SetOutPath "$INSTDIR"
  File "${CONTENTS}\meridex.exe"
  SetOutPath "$INSTDIR\guide"
  File /r "${CONTENTS}\guide\*.*"
  SetOutPath "$INSTDIR"
  CreateDirectory "${START_MENU}"
  CreateShortCut "${START_MENU}\Meridex.lnk" "$INSTDIR\meridex.exe"
  CreateShortCut "${START_MENU}\Guide.lnk" "$INSTDIR\guide\guide.html"
  CreateShortCut "${START_MENU}\Uninstall Meridex.lnk" "$INSTDIR\uninstall.exe"
  WriteUninstaller "$INSTDIR\uninstall.exe"
SectionEnd

; What the user has made of a pack is the user's: an upgrade only adds what is missing.
Section "Sample wallpaper packs" SECTION_PACKS
  SetOverwrite off
  SetOutPath "$INSTDIR\Default"
  File "${CONTENTS}\Default\*.*"
  SetOutPath "$INSTDIR\Seasons"
  File "${CONTENTS}\Seasons\*.*"
  SetOverwrite on
SectionEnd

Section /o "Mode for today's desktops" SECTION_MODERN
  WriteRegStr HKCU "${DESKTOP_KEY}" "Modern" "1"
SectionEnd

; The entry among the programs that can be removed, of the size of what was installed; and the mode that isn't wanted any more.
Section "-Entry"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "Meridex"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "${RELEASE}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\meridex.exe"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoRepair" 1
  SectionGetSize ${SECTION_PROGRAM} $R0
  ${If} ${SectionIsSelected} ${SECTION_PACKS}
    SectionGetSize ${SECTION_PACKS} $R1
    IntOp $R0 $R0 + $R1
  ${EndIf}
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "EstimatedSize" $R0
  ${If} ${AtLeastWin7}
  ${AndIfNot} ${SectionIsSelected} ${SECTION_MODERN}
    DeleteRegValue HKCU "${DESKTOP_KEY}" "Modern"
  ${EndIf}
SectionEnd

!insertmacro MUI_FUNCTION_DESCRIPTION_BEGIN
  !insertmacro MUI_DESCRIPTION_TEXT ${SECTION_PROGRAM} "The calendar and its guide."
  !insertmacro MUI_DESCRIPTION_TEXT ${SECTION_PACKS} "Pictures for the desktop that change with the month."
  !insertmacro MUI_DESCRIPTION_TEXT ${SECTION_MODERN} "For screens wider than 2184 pixels, shells that start again, and a \
    calendar that outlives a power cut."
!insertmacro MUI_FUNCTION_DESCRIPTION_END

; The first systems have no folder for a user's own programs. The mode is offered where the system is new enough for it, and
; chosen where it is on.
Function .onInit
  ${If} $LOCALAPPDATA == ""
  ${AndIf} $INSTDIR == "\Programs\Meridex"
    StrCpy $INSTDIR "$DOCUMENTS\Meridex"
  ${EndIf}
  ${IfNot} ${AtLeastWin7}
    SectionSetText ${SECTION_MODERN} ""  ; hides it
    Return
  ${EndIf}
  ReadRegStr $R0 HKCU "${DESKTOP_KEY}" "Modern"
  ${GetParameters} $R1
  ClearErrors
  ${GetOptions} $R1 "/MODERN=" $R2
  ${IfNot} ${Errors}
    StrCpy $R0 $R2
  ${EndIf}
  ${If} $R0 == 1
    SectionSetFlags ${SECTION_MODERN} ${SF_SELECTED}
  ${EndIf}
FunctionEnd

Section "Uninstall"
  ${GetParameters} $R0
  ${GetOptions} $R0 "/FORGET=" $R9
  ${IfNot} ${Silent}
    StrCpy $R9 ""
    MessageBox MB_YESNO|MB_ICONQUESTION|MB_DEFBUTTON2 "Do you want to delete your events and settings too?" IDNO keep
    StrCpy $R9 1
    keep:
  ${EndIf}
  !insertmacro CLOSE_CALENDAR
  ; The value by which the calendar starts with the system may lead to another copy. Both paths as short ones, in which the
  ; calendar stores names that its code page lacks.
  ReadRegStr $R0 HKCU "${RUN_KEY}" "Meridex"
  GetFullPathName /SHORT $R0 $R0
  GetFullPathName /SHORT $R1 "$INSTDIR\meridex.exe"
  ${If} $R0 == $R1
    DeleteRegValue HKCU "${RUN_KEY}" "Meridex"
  ${EndIf}
  ReadRegStr $R3 HKCU "Control Panel\Desktop" "Wallpaper"
  ${IfNot} ${FileExists} $R3
    StrCpy $R3 ""
  ${EndIf}
  Delete "$INSTDIR\meridex.exe"
  ; The guide, the pictures that were installed, and the bitmaps that the calendar makes of them. What else lies there stays.
  !include "${REMOVAL}"
  RMDir "$INSTDIR\guide"
  RMDir "$INSTDIR\Default"
  RMDir "$INSTDIR\Seasons"
  ; A picture that is gone isn't the desktop's any more.
  ${If} $R3 != ""
  ${AndIfNot} ${FileExists} $R3
    System::Call "user32::SystemParametersInfoA(i ${SET_WALLPAPER}, i 0, m '', i ${STORE_AND_TELL})"
  ${EndIf}
  Delete "${START_MENU}\Meridex.lnk"
  Delete "${START_MENU}\Guide.lnk"
  Delete "${START_MENU}\Uninstall Meridex.lnk"
  RMDir "${START_MENU}"
  DeleteRegKey HKCU "${UNINSTALL_KEY}"
  ${If} $R9 == 1
    ; With what a power cut has left of a save.
    Delete "$INSTDIR\calendar.dat"
    Delete "$INSTDIR\calendar.dat.~new"
    Delete "$INSTDIR\calendar.dat.~whole"
    Delete "$INSTDIR\calendar.dat.~bak"
    Delete "$INSTDIR\data.bak"
    DeleteRegKey HKCU "Software\Meridex"
  ${EndIf}
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR"
SectionEnd
