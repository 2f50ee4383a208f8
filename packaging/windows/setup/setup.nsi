; The setup for one user of a Windows machine. makensis is given VERSION, FOLDER (what is to be installed), SIZE (of it,
; in KB), ICON, PICTURE and OUTPUT.
Target amd64-unicode
Unicode true
!ifdef QUICK ; for trying it
  SetCompressor zlib
!else
  SetCompressor /SOLID lzma
!endif
CRCCheck force
RequestExecutionLevel user
ManifestDPIAware true
ManifestLongPathAware true
ManifestSupportedOS Win10
AllowSkipFiles off
ShowInstDetails nevershow
ShowUninstDetails nevershow

Name "Orvinel"
OutFile "${OUTPUT}"
BrandingText "Orvinel ${VERSION}"
!define LISTED "Software\Microsoft\Windows\CurrentVersion\Uninstall\Orvinel"
InstallDir "$LOCALAPPDATA\Programs\Orvinel"
InstallDirRegKey HKCU "${LISTED}" "InstallLocation"

VIProductVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "Orvinel"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "FileDescription" "Orvinel setup"
VIAddVersionKey "CompanyName" "The Orvinel authors"
VIAddVersionKey "LegalCopyright" "MIT licence"

!include MUI2.nsh
!include LogicLib.nsh
!include FileFunc.nsh
!include TextFunc.nsh
!include WordFunc.nsh

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_WELCOMEFINISHPAGE_BITMAP "${PICTURE}"
!define MUI_ABORTWARNING
!define MUI_LANGDLL_REGISTRY_ROOT HKCU
!define MUI_LANGDLL_REGISTRY_KEY "${LISTED}"
!define MUI_LANGDLL_REGISTRY_VALUENAME "Language"
!define MUI_FINISHPAGE_RUN "$INSTDIR\orvinel.exe"
!insertmacro MUI_PAGE_WELCOME
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"
!insertmacro MUI_LANGUAGE "German"
!insertmacro MUI_LANGUAGE "Italian"
!insertmacro MUI_RESERVEFILE_LANGDLL

; Ends what cannot go on; the exit code is 2.
!macro Refuse TEXT
  MessageBox MB_OK|MB_ICONSTOP "${TEXT}" /SD IDOK
  SetErrorLevel 2
  Quit
!macroend

!include texts.nsh
!include lists.nsh
!include replacing.nsh

; Each program of the folder, since each could be halfway through a file that is to be replaced.
!macro AskToClose UN
  ${Do}
    Call ${UN}RunningProgram
    Pop $0
    ${If} $0 == ""
      ${Break}
    ${EndIf}
    ${If} ${Cmd} `MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$(TextRunning)$\r$\n$\r$\n$0" /SD IDCANCEL IDCANCEL`
      SetErrorLevel 2
      Quit
    ${EndIf}
  ${Loop}
!macroend

Function .onInit
  !insertmacro MUI_LANGDLL_DISPLAY
FunctionEnd

Function un.onInit
  !insertmacro MUI_UNGETLANGUAGE
FunctionEnd

; Silently an older version takes no newer one's place.
Function RefuseOlder
  ClearErrors
  FileOpen $0 "$INSTDIR\Data\Version.txt" r
  ${If} ${Errors}
    Return
  ${EndIf}
  FileRead $0 $1
  FileClose $0
  ${TrimNewLines} $1 $1
  ${VersionCompare} "$1" "${VERSION}" $2
  ${If} $2 = 1
    ${If} ${Cmd} `MessageBox MB_YESNO|MB_ICONQUESTION|MB_DEFBUTTON2 "$(TextNewerThere)" /SD IDNO IDNO`
      SetErrorLevel 2
      Quit
    ${EndIf}
  ${EndIf}
FunctionEnd

Section
  !insertmacro AskToClose ""
  ${If} ${FileExists} "$INSTDIR\Update.tmp\begun" ; the updater's, which alone can take it back
    !insertmacro Refuse "$(TextUnfinished)"
  ${EndIf}
  Call PutBack ; what an earlier setup was not allowed to finish
  Call RefuseOlder
  ClearErrors
  CreateDirectory "${WORK}\new"
  ${If} ${Errors}
    !insertmacro Refuse "$(TextNotWritable)"
  ${EndIf}
  SetOutPath "${WORK}\new"
  File /r "${FOLDER}/*"
  WriteUninstaller "${WORK}\new\Uninstall.exe"
  SetOutPath "$INSTDIR" ; the folder where a setup stands cannot be removed
  Call Plan
  !insertmacro AskToClose ""
  ${If} $Failed == ""
    Call Replace
  ${EndIf}
  ${If} $Failed != ""
    Call PutBack
    !insertmacro Refuse "$(TextFailed)"
  ${EndIf}
  Call CleanUp
  Call ListProgram
  Call FillStartMenu
SectionEnd

; What could not be unpacked has replaced nothing yet.
Function .onInstFailed
  SetOutPath "$TEMP"
  RMDir /r "${WORK}"
  RMDir "$INSTDIR"
  SetErrorLevel 2
FunctionEnd

Function ListProgram
  WriteRegStr HKCU "${LISTED}" "DisplayName" "Orvinel"
  WriteRegStr HKCU "${LISTED}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${LISTED}" "DisplayIcon" "$INSTDIR\orvinel.exe,0"
  WriteRegStr HKCU "${LISTED}" "Publisher" "The Orvinel authors"
  WriteRegStr HKCU "${LISTED}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${LISTED}" "UninstallString" '"$INSTDIR\Uninstall.exe"'
  WriteRegStr HKCU "${LISTED}" "QuietUninstallString" '"$INSTDIR\Uninstall.exe" /S'
  WriteRegStr HKCU "${LISTED}" "Language" "$LANGUAGE"
  WriteRegDWORD HKCU "${LISTED}" "EstimatedSize" ${SIZE}
  WriteRegDWORD HKCU "${LISTED}" "NoModify" 1
  WriteRegDWORD HKCU "${LISTED}" "NoRepair" 1
FunctionEnd

!define MENU "$SMPROGRAMS\Orvinel"

Function FillStartMenu
  RMDir /r "${MENU}" ; entries of another language
  CreateDirectory "${MENU}"
  CreateShortcut "${MENU}\Orvinel.lnk" "$INSTDIR\orvinel.exe"
  CreateShortcut "${MENU}\$(TextProgress).lnk" "$INSTDIR\orvinel-beside.exe" report
  CreateShortcut "${MENU}\$(TextAtlas).lnk" "$INSTDIR\orvinel-beside.exe" atlas
  CreateShortcut "${MENU}\$(TextBackUp).lnk" "$INSTDIR\orvinel-beside.exe" backup
  CreateShortcut "${MENU}\$(TextGuide).lnk" "$INSTDIR\Data\Guide\guide.html"
  CreateShortcut "${MENU}\$(TextUninstall).lnk" "$INSTDIR\Uninstall.exe"
FunctionEnd

Section Uninstall
  !insertmacro AskToClose "un."
  Call un.RemoveInstalled
  RMDir /r "${MENU}"
  DeleteRegKey HKCU "${LISTED}"
  ${If} ${FileExists} "$INSTDIR\Personal"
    MessageBox MB_OK|MB_ICONINFORMATION "$(TextPersonalStays)$\r$\n$\r$\n$INSTDIR\Personal" /SD IDOK
  ${EndIf}
  ${If} ${FileExists} "${UPDATE}"
    MessageBox MB_OK|MB_ICONINFORMATION "$(TextUpdateStays)$\r$\n$\r$\n${UPDATE}" /SD IDOK
  ${EndIf}
SectionEnd
