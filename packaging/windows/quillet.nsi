; The installer: for the current user only, without an administrator, so that the program can update
; the fee schedule in its own folder. Needs VERSION, STAGE (what to install) and OUTPUT.
;
; Switches: /S asks nothing, /D=FOLDER (last) sets the folder. The uninstaller asks whether the
; settings go too; with /S they stay unless /SETTINGS is given.
Unicode true
Target amd64-unicode

!include FileFunc.nsh
!include LogicLib.nsh
!include MUI2.nsh

!define UNINSTALL "Software\Microsoft\Windows\CurrentVersion\Uninstall\Quillet"
!define SETTINGS "Software\Velmor\Quillet US"
!define AUCTION "Quillet.Auction"

Name "Quillet"
OutFile "${OUTPUT}"
RequestExecutionLevel user
InstallDir "$LOCALAPPDATA\Programs\Quillet"
InstallDirRegKey HKCU "${UNINSTALL}" "InstallLocation"
ManifestDPIAware true
SetCompressor /SOLID lzma

VIProductVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "Quillet"
VIAddVersionKey "FileDescription" "Installs Quillet"
VIAddVersionKey "CompanyName" "Velmor"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "LegalCopyright" ""

!define MUI_ICON "${STAGE}/../quillet.ico"
!define MUI_UNICON "${STAGE}/../quillet.ico"
!define MUI_WELCOMEFINISHPAGE_BITMAP "${STAGE}/../installer.bmp"
!define MUI_FINISHPAGE_RUN "$INSTDIR\quillet.exe"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

!macro TellShell
  System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)'
!macroend

Section
  SetOutPath "$INSTDIR"
  File "${STAGE}/quillet.exe"
  File "${STAGE}/quillet-calc.exe"
  ; A schedule fetched by an update is newer than the one in the installer.
  SetOverwrite ifnewer
  File "${STAGE}/UpdateUS_*.dat"
  SetOverwrite on
  File /r "${STAGE}/Licences"
  WriteUninstaller "$INSTDIR\uninstall.exe"
  CreateShortcut "$SMPROGRAMS\Quillet.lnk" "$INSTDIR\quillet.exe"

  WriteRegStr HKCU "Software\Classes\${AUCTION}" "" "Quillet auction"
  WriteRegStr HKCU "Software\Classes\${AUCTION}\DefaultIcon" "" "$INSTDIR\quillet.exe,0"
  WriteRegStr HKCU "Software\Classes\${AUCTION}\shell\open\command" "" '"$INSTDIR\quillet.exe" "%1"'
  WriteRegStr HKCU "Software\Classes\.qlt" "" "${AUCTION}"
  !insertmacro TellShell

  WriteRegStr HKCU "${UNINSTALL}" "DisplayName" "Quillet"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayIcon" "$INSTDIR\quillet.exe"
  WriteRegStr HKCU "${UNINSTALL}" "Publisher" "Velmor"
  WriteRegStr HKCU "${UNINSTALL}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL}" "NoRepair" 1
  ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
  WriteRegDWORD HKCU "${UNINSTALL}" "EstimatedSize" $0
SectionEnd

Function un.RemoveSettings
  DeleteRegKey HKCU "${SETTINGS}"
  DeleteRegKey /ifempty HKCU "Software\Velmor"
  RMDir /r "$LOCALAPPDATA\Quillet"
FunctionEnd

; Asks, unless the switch says so. A silent run without it keeps the settings.
Function un.MayRemoveSettings
  ${GetParameters} $0
  ClearErrors
  ${GetOptions} $0 "/SETTINGS" $1
  ${IfNot} ${Errors}
    Call un.RemoveSettings
  ${Else}
    MessageBox MB_YESNO|MB_ICONQUESTION|MB_DEFBUTTON2 \
      "Remove your settings too? Your auctions stay in any case." /SD IDNO IDNO keep
    Call un.RemoveSettings
    keep:
  ${EndIf}
FunctionEnd

Section "Uninstall"
  Delete "$INSTDIR\quillet.exe"
  Delete "$INSTDIR\quillet-calc.exe"
  !include "${STAGE}/../schedules.nsh"
  Delete "$INSTDIR\QlDebug.log"
  RMDir /r "$INSTDIR\Licences"
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR"
  Delete "$SMPROGRAMS\Quillet.lnk"

  ReadRegStr $0 HKCU "Software\Classes\.qlt" ""
  ${If} $0 == "${AUCTION}"
    DeleteRegValue HKCU "Software\Classes\.qlt" ""
    DeleteRegKey /ifempty HKCU "Software\Classes\.qlt"
  ${EndIf}
  DeleteRegKey HKCU "Software\Classes\${AUCTION}"
  !insertmacro TellShell
  DeleteRegKey HKCU "${UNINSTALL}"
  Call un.MayRemoveSettings
SectionEnd
