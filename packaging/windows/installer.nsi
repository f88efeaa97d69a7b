; The installer, for the current user alone: no administrator is needed.
; Given with /D: STAGE, the folder to pack; VERSION, as four numbers; VERSION_TEXT; OUTPUT, the installer to write; ICON.

Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
ManifestDPIAware true
ManifestSupportedOS Win10
RequestExecutionLevel user

!include MUI2.nsh
!include FileFunc.nsh

!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Mivo"
!define CLASSES "Software\Classes"

Name "Mivo"
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\Mivo"
InstallDirRegKey HKCU "${UNINSTALL_KEY}" "InstallLocation"
VIProductVersion "${VERSION}"
VIAddVersionKey ProductName "Mivo"
VIAddVersionKey FileDescription "Installs Mivo"
VIAddVersionKey FileVersion "${VERSION_TEXT}"
VIAddVersionKey LegalCopyright "MIT licence; contains Qt under the LGPL, version 3"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_ABORTWARNING
!define MUI_FINISHPAGE_RUN "$INSTDIR\mivo.exe"
!insertmacro MUI_PAGE_LICENSE "${STAGE}\licences\Mivo.txt"
!insertmacro MUI_PAGE_COMPONENTS
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

; A file type of which another program is in charge already stays with it; Mivo is then offered by "Open with".
!macro RegisterType EXTENSION CLASS DESCRIPTION
  WriteRegStr HKCU "${CLASSES}\${CLASS}" "" "${DESCRIPTION}"
  WriteRegStr HKCU "${CLASSES}\${CLASS}\DefaultIcon" "" '"$INSTDIR\mivo.exe",0'
  WriteRegStr HKCU "${CLASSES}\${CLASS}\shell\open\command" "" '"$INSTDIR\mivo.exe" "%1"'
  WriteRegStr HKCU "${CLASSES}\${EXTENSION}\OpenWithProgids" "${CLASS}" ""
  ReadRegStr $0 HKCR "${EXTENSION}" ""
  StrCmp $0 "" 0 +2
  WriteRegStr HKCU "${CLASSES}\${EXTENSION}" "" "${CLASS}"
!macroend

!macro UnregisterType EXTENSION CLASS
  DeleteRegKey HKCU "${CLASSES}\${CLASS}"
  DeleteRegValue HKCU "${CLASSES}\${EXTENSION}\OpenWithProgids" "${CLASS}"
  DeleteRegKey /ifempty HKCU "${CLASSES}\${EXTENSION}\OpenWithProgids"
  ReadRegStr $0 HKCU "${CLASSES}\${EXTENSION}" ""
  StrCmp $0 "${CLASS}" 0 +2
  DeleteRegValue HKCU "${CLASSES}\${EXTENSION}" ""
  DeleteRegKey /ifempty HKCU "${CLASSES}\${EXTENSION}"
!macroend

!macro TypesChanged
  ${RefreshShellIcons}
!macroend

Section "Mivo" SectionMivo
  SectionIn RO
  SetOutPath "$INSTDIR"
  File "${STAGE}\mivo.exe"
  File "${STAGE}\mivo-cli.exe"
  File "${STAGE}\README.txt"
  File /r "${STAGE}\doc"
  File /r "${STAGE}\licences"
  File /r "${STAGE}\samples"

  CreateShortCut "$SMPROGRAMS\Mivo.lnk" "$INSTDIR\mivo.exe"
  !insertmacro RegisterType ".ZLB" "Mivo.Library" "Component library"
  !insertmacro RegisterType ".ZSC" "Mivo.Schematic" "Schematic"
  !insertmacro TypesChanged

  ; The settings of the user. The program uses this file when it is there, and never makes it itself.
  CreateDirectory "$LOCALAPPDATA\HallvarnONLINE"
  IfFileExists "$LOCALAPPDATA\HallvarnONLINE\MIVO.INI" settings_are_there
  FileOpen $0 "$LOCALAPPDATA\HallvarnONLINE\MIVO.INI" w
  FileWriteByte $0 "255" ; UTF-16, in which the system's profile functions then go on writing
  FileWriteByte $0 "254"
  FileClose $0
settings_are_there:

  WriteUninstaller "$INSTDIR\uninstall.exe"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "Mivo"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION_TEXT}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\mivo.exe"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoRepair" 1
  ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "EstimatedSize" "$0"
SectionEnd

Section /o "German texts" SectionGerman
  SetOutPath "$INSTDIR"
  File "${STAGE}\languages\de\mivo_lang.dll"
  File "${STAGE}\languages\de\qtbase_de.qm"
SectionEnd

; The settings stay: they are the user's. So does what the user put into the folder.
Section "Uninstall"
  Delete "$INSTDIR\mivo.exe"
  Delete "$INSTDIR\mivo-cli.exe"
  Delete "$INSTDIR\mivo_lang.dll"
  Delete "$INSTDIR\qtbase_de.qm"
  Delete "$INSTDIR\README.txt"
  RMDir /r "$INSTDIR\doc"
  RMDir /r "$INSTDIR\licences"
  RMDir /r "$INSTDIR\samples"
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR"
  Delete "$SMPROGRAMS\Mivo.lnk"
  !insertmacro UnregisterType ".ZLB" "Mivo.Library"
  !insertmacro UnregisterType ".ZSC" "Mivo.Schematic"
  !insertmacro TypesChanged
  DeleteRegKey HKCU "${UNINSTALL_KEY}"
SectionEnd

!insertmacro MUI_FUNCTION_DESCRIPTION_BEGIN
  !insertmacro MUI_DESCRIPTION_TEXT ${SectionMivo} "The editor, its command-line tool and sample libraries."
  !insertmacro MUI_DESCRIPTION_TEXT ${SectionGerman} "Mivo speaks German. Without them it speaks English."
!insertmacro MUI_FUNCTION_DESCRIPTION_END
