; Reading Data\Installed.txt (packaging/installed.md), and the sums of files; for setup and uninstaller.
!define WORK "$INSTDIR\Setup.tmp"
!define LIST "Data\Installed.txt"

Var List     ; the list that is being read
Var Sum      ; of its latest line
Var Path     ; of its latest line, with \; empty behind the last
Var Campaign ; the campaign folder that $Path lies in; empty: in none

!macro ListFunctions UN

; Path on the stack -> SHA-256 of the file as in the lists; empty when it cannot be read.
Function ${UN}SumOf
  Exch $0
  Push $1
  Push $2
  Push $3
  Push $4
  Push $5
  Push $6
  StrCpy $6 ""
  ClearErrors
  FileOpen $1 $0 r
  ${IfNot} ${Errors}
    FileSeek $1 0 END $2
    StrCpy $4 0
    System::Call 'kernel32::CreateFileMappingW(p r1, p 0, i 2, i 0, i 0, p 0) p .r3'
    ${If} $3 P<> 0
      System::Call 'kernel32::MapViewOfFile(p r3, i 4, i 0, i 0, p 0) p .r4'
    ${EndIf}
    ${If} $2 = 0
    ${OrIf} $4 P<> 0
      System::Alloc 32
      Pop $5
      System::Call 'bcrypt::BCryptHash(p 0x41, p 0, i 0, p r4, i r2, p r5, i 32) i .r0'
      ${If} $0 = 0
        System::Call 'crypt32::CryptBinaryToStringW(p r5, i 32, i 0x4000000C, w .r6, *i 65) i .r0'
      ${EndIf}
      System::Free $5
    ${EndIf}
    System::Call 'kernel32::UnmapViewOfFile(p r4)'
    System::Call 'kernel32::CloseHandle(p r3)'
    FileClose $1
  ${EndIf}
  ClearErrors
  StrCpy $0 $6
  Pop $6
  Pop $5
  Pop $4
  Pop $3
  Pop $2
  Pop $1
  Exch $0
FunctionEnd

; The next line of $List. Paths that lead out of the folder are passed over.
Function ${UN}NextEntry
  Push $0
  Push $1
  Push $2
  ${Do}
    ClearErrors
    FileRead $List $0
    ${If} ${Errors}
      StrCpy $Path ""
      ${Break}
    ${EndIf}
    ${TrimNewLines} $0 $0
    StrCpy $Sum $0 64
    StrCpy $Path $0 "" 66
    Call ${UN}UseBackslashes
  ${LoopUntil} $Path != ""
  StrCpy $Campaign $Path 9
  ${If} $Campaign == "Campaign."
    ${WordFind} $Path "\" "+1" $Campaign
  ${Else}
    StrCpy $Campaign ""
  ${EndIf}
  ClearErrors
  Pop $2
  Pop $1
  Pop $0
FunctionEnd

; In $Path, which becomes empty when it leads out of the folder. Uses $0 to $2.
Function ${UN}UseBackslashes
  StrCpy $1 ""
  StrCpy $2 $Path 1
  ${If} $2 == "/"
  ${OrIf} $2 == "\"
    StrCpy $Path ""
  ${EndIf}
  ${DoWhile} $Path != ""
    StrCpy $0 $Path 2
    StrCpy $2 $Path 1
    ${If} $0 == ".."
    ${OrIf} $2 == ":"
      StrCpy $Path ""
      StrCpy $1 ""
      ${Break}
    ${EndIf}
    ${If} $2 == "/"
      StrCpy $2 "\"
    ${EndIf}
    StrCpy $1 "$1$2"
    StrCpy $Path $Path "" 1
  ${Loop}
  StrCpy $Path $1
FunctionEnd

; A program of the folder that runs, or empty: the system lets nobody write to it.
Function ${UN}RunningProgram
  Push $0
  Push $1
  Push $2
  Push $3
  StrCpy $3 ""
  FindFirst $0 $1 "$INSTDIR\*.exe"
  ${DoWhile} $1 != ""
    ${If} $1 != "Uninstall.exe"
      System::Call 'kernel32::CreateFileW(w "$INSTDIR\$1", i 0x40000000, i 7, p 0, i 3, i 0, p 0) p .r2 ?e'
      Exch $4
      ${If} $4 = 32 ; sharing violation
        StrCpy $3 $1
      ${EndIf}
      Pop $4
      ${If} $2 P<> -1
        System::Call 'kernel32::CloseHandle(p r2)'
      ${EndIf}
    ${EndIf}
    FindNext $0 $1
  ${Loop}
  FindClose $0
  StrCpy $0 $3
  Pop $3
  Pop $2
  Pop $1
  Exch $0
FunctionEnd

; Removes the folders that have become empty on the way to $Path.
Function ${UN}RemoveEmptyFolders
  Push $0
  StrCpy $0 $Path
  ${Do}
    ${GetParent} $0 $0
    ${If} $0 == ""
      ${Break}
    ${EndIf}
    RMDir "$INSTDIR\$0"
  ${Loop}
  ClearErrors
  Pop $0
FunctionEnd

; Sum on the stack -> the first language file of the list at $1 that has it, or empty. Of $Path and $Sum nothing stays.
Function ${UN}LanguageOfSum
  Exch $0
  Push $2
  Push $List
  StrCpy $2 ""
  FileOpen $List $1 r
  ${Do}
    Call ${UN}NextEntry
    ${If} $Path == ""
      ${Break}
    ${EndIf}
    ${If} $Sum == $0
      StrCpy $2 $Path 13
      ${If} $2 == "Data\Language"
        StrCpy $2 $Path
        ${Break}
      ${EndIf}
      StrCpy $2 ""
    ${EndIf}
  ${Loop}
  FileClose $List
  ClearErrors
  Pop $List
  StrCpy $0 $2
  Pop $2
  Exch $0
FunctionEnd

!macroend
!insertmacro ListFunctions ""
!insertmacro ListFunctions "un."

; The program's files go, whatever they hold; of campaigns and languages only what is as it was brought.
Function un.RemoveInstalled
  StrCpy $1 "$INSTDIR\${LIST}"
  FileOpen $List $1 r
  ${Do}
    Call un.NextEntry
    ${If} $Path == ""
      ${Break}
    ${EndIf}
    StrCpy $2 $Path
    Call un.IsBrought
    StrCpy $Path $2
    ${If} $0 = 1
      Delete "$INSTDIR\$Path"
      Call un.RemoveEmptyFolders
    ${EndIf}
  ${Loop}
  FileClose $List
  Delete "$INSTDIR\${LIST}"
  Delete "$INSTDIR\update.dat"
  Delete "$INSTDIR\Uninstall.exe"
  RMDir /r "$INSTDIR\Pages" ; made anew at each wish
  RMDir /r "${WORK}"
  RMDir "$INSTDIR\Data\Languages"
  RMDir "$INSTDIR\Data"
  SetOutPath "$TEMP"
  RMDir "$INSTDIR"
FunctionEnd

; $0: 1 when $Path may go.
Function un.IsBrought
  StrCpy $0 $Path 13
  ${If} $Campaign == ""
  ${AndIf} $0 != "Data\Language"
    StrCpy $0 1
    Return
  ${EndIf}
  Push "$INSTDIR\$Path"
  Call un.SumOf
  Pop $3
  StrCpy $0 0
  ${If} $3 == $Sum
    StrCpy $0 1
  ${ElseIf} $Campaign == ""
    Push $3
    Call un.LanguageOfSum
    Pop $3
    ${If} $3 != ""
      StrCpy $0 1
    ${EndIf}
  ${EndIf}
FunctionEnd
