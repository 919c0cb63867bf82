; The installer: for one user, without an administrator. scripts/package.sh calls makensis with
;   RELEASE, MAJOR, MINOR  the version
;   ARCHITECTURE           x64 or x86
;   CONTENTS               the folder that the portable zip holds
;   OUTPUT                 the installer to write
;
; /S installs in silence, /D=FOLDER (last, without quotes) into that folder, /MODERN=1 with the mode for today's desktops.
; The uninstaller keeps calendar.dat and the settings; in silence too, unless it is given /FORGET=1.

!if ${ARCHITECTURE} == x64
  Target amd64-unicode
!else
  Target x86-ansi  ; runs on the first systems too
!endif
SetCompressor /SOLID lzma
SetDateSave off  ; the same bytes whenever it is built
RequestExecutionLevel user

!include MUI2.nsh
!include LogicLib.nsh
!include WinVer.nsh
!include FileFunc.nsh

!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Meridex"
!define RUN_KEY "Software\Microsoft\Windows\CurrentVersion\Run"
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
!define MUI_DIRECTORYPAGE_TEXT_TOP "The calendar keeps its events in this folder, so it must be one that you may write to."

!insertmacro MUI_PAGE_COMPONENTS
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

; A running calendar is asked to close by the window by which its instances know each other. It gets five seconds.
!macro CLOSE_CALENDAR
  StrCpy $R1 50
  ${Do}
    FindWindow $R0 "Meridex_Instance"
    ${If} $R0 == 0
    ${OrIf} $R1 == 0
      ${ExitDo}
    ${EndIf}
    System::Call "user32::PostMessageA(p R0, i ${WM_CLOSE}, p 0, p 0)"
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
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "Meridex"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "${RELEASE}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\meridex.exe"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoRepair" 1
  ${GetSize} "$INSTDIR" "/S=0K" $R0 $R1 $R2
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "EstimatedSize" $R0
SectionEnd

Section "Sample wallpaper packs" SECTION_PACKS
  SetOutPath "$INSTDIR\Default"
  File "${CONTENTS}\Default\*.*"
  SetOutPath "$INSTDIR\Seasons"
  File "${CONTENTS}\Seasons\*.*"
SectionEnd

Section /o "Mode for today's desktops" SECTION_MODERN
  WriteRegStr HKCU "Software\Meridex\Desktop" "Modern" "1"
SectionEnd

!insertmacro MUI_FUNCTION_DESCRIPTION_BEGIN
  !insertmacro MUI_DESCRIPTION_TEXT ${SECTION_PROGRAM} "The calendar and its guide."
  !insertmacro MUI_DESCRIPTION_TEXT ${SECTION_PACKS} "Pictures for the desktop that change with the month."
  !insertmacro MUI_DESCRIPTION_TEXT ${SECTION_MODERN} "For screens wider than 2184 pixels, shells that start again, and a \
    calendar that outlives a power cut."
!insertmacro MUI_FUNCTION_DESCRIPTION_END

; The mode is offered where the system is new enough for it.
Function .onInit
  ${IfNot} ${AtLeastWin7}
    SectionSetText ${SECTION_MODERN} ""  ; hides it
    Return
  ${EndIf}
  ${GetParameters} $R0
  ${GetOptions} $R0 "/MODERN=" $R1
  ${If} $R1 == 1
    SectionSetFlags ${SECTION_MODERN} ${SF_SELECTED}
  ${EndIf}
FunctionEnd

Section "Uninstall"
  ${GetParameters} $R0
  ${GetOptions} $R0 "/FORGET=" $R9
  ${IfNot} ${Silent}
    MessageBox MB_YESNO|MB_ICONQUESTION|MB_DEFBUTTON2 "Do you want to delete your events and settings too?" IDNO keep
    StrCpy $R9 1
    keep:
  ${EndIf}
  !insertmacro CLOSE_CALENDAR
  Delete "$INSTDIR\meridex.exe"
  RMDir /r "$INSTDIR\guide"
  ; The pictures that were installed, and the bitmap that the calendar makes of one of them. What else lies there stays.
  StrCpy $R1 12
  ${DoWhile} $R1 > 0
    Delete "$INSTDIR\Default\$R1.jpg"
    Delete "$INSTDIR\Default\$R1.bmp"
    Delete "$INSTDIR\Seasons\$R1.jpg"
    Delete "$INSTDIR\Seasons\$R1.bmp"
    IntOp $R1 $R1 - 1
  ${Loop}
  Delete "$INSTDIR\Default\settings.ini"
  Delete "$INSTDIR\Seasons\settings.ini"
  RMDir "$INSTDIR\Default"
  RMDir "$INSTDIR\Seasons"
  Delete "${START_MENU}\Meridex.lnk"
  Delete "${START_MENU}\Guide.lnk"
  Delete "${START_MENU}\Uninstall Meridex.lnk"
  RMDir "${START_MENU}"
  DeleteRegValue HKCU "${RUN_KEY}" "Meridex"
  DeleteRegKey HKCU "${UNINSTALL_KEY}"
  ${If} $R9 == 1
    Delete "$INSTDIR\calendar.dat"
    Delete "$INSTDIR\data.bak"
    DeleteRegKey HKCU "Software\Meridex"
  ${EndIf}
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR"
SectionEnd
