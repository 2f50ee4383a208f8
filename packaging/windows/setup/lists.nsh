; Reading Data\Installed.txt (packaging/installed.md), and the sums of files; for the uninstaller. What an update does is
; planned by the updater, which reads them itself (src/updater/SetupPlan.h).
!define WORK "$INSTDIR\Setup.tmp"
!define UPDATE "$INSTDIR\Update.tmp" ; the updater's
!define LIST "Data\Installed.txt"

Var List     ; the list that is being read
Var Sum      ; of its latest line
Var Path     ; of its latest line, with \; empty behind the last
Var Campaign ; the campaign folder that $Path lies in; empty: in none

!macro FolderFunctions UN

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

!macroend
!insertmacro FolderFunctions ""
!insertmacro FolderFunctions "un."

; Path on the stack -> SHA-256 of the file as in the lists; empty when it cannot be read.
Function un.SumOf
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
Function un.NextEntry
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
    Call un.UseBackslashes
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
Function un.UseBackslashes
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

; $1: a list. $0: 1 when it knows the sum $3, of whatever file.
Function un.FindSum
  StrCpy $0 0
  ClearErrors
  FileOpen $List $1 r
  ${Do}
    ClearErrors
    FileRead $List $2
    ${If} ${Errors}
      ${Break}
    ${EndIf}
    StrCpy $2 $2 64
    ${If} $2 == $3
      StrCpy $0 1
      ${Break}
    ${EndIf}
  ${Loop}
  FileClose $List
  ClearErrors
FunctionEnd

; Path on the stack. $0: 1 when what the file holds was brought, under whatever name: as it was, in another language, or by
; an update that was cut off. Where that was so the lists of both versions are there.
Function un.IsAsBrought
  Exch $4
  Push $List
  Push $4
  Call un.SumOf
  Pop $3
  StrCpy $0 0
  ${If} $3 != ""
    ${ForEach} $4 1 3 + 1
      ${If} $4 = 1
        StrCpy $1 "$INSTDIR\${LIST}"
      ${ElseIf} $4 = 2
        StrCpy $1 "${UPDATE}\new\${LIST}"
      ${Else}
        StrCpy $1 "${UPDATE}\old\${LIST}"
      ${EndIf}
      Call un.FindSum
      ${If} $0 = 1
        ${Break}
      ${EndIf}
    ${Next}
  ${EndIf}
  Pop $List
  Pop $4
FunctionEnd

; The program's files go, whatever they hold; of campaigns and languages only what is as it was brought.
Function un.RemoveInstalled
  StrCpy $5 "${UPDATE}\new\${LIST}"
  Call un.RemoveListed
  StrCpy $5 "$INSTDIR\${LIST}"
  Call un.RemoveListed
  ${If} ${FileExists} "${UPDATE}"
    Call un.RemoveUpdate
  ${EndIf}
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

; What the list $5 names.
Function un.RemoveListed
  ${IfNot} ${FileExists} $5
    Return
  ${EndIf}
  FileOpen $List $5 r
  ${Do}
    Call un.NextEntry
    ${If} $Path == ""
      ${Break}
    ${EndIf}
    Call un.MayGo
    ${If} $0 = 1
      Call un.DeletePatiently
      Call un.RemoveEmptyFolders
    ${EndIf}
  ${Loop}
  FileClose $List
FunctionEnd

; Virus scanners and the search index hold a file for an instant.
Function un.DeletePatiently
  ${ForEach} $0 1 20 + 1
    ClearErrors
    Delete "$INSTDIR\$Path"
    ${IfNot} ${Errors}
      ${Break}
    ${EndIf}
    Sleep 50
  ${Next}
  ClearErrors
FunctionEnd

; $0: 1 when $Path may go.
Function un.MayGo
  StrCpy $0 $Path 13
  ${If} $Campaign == ""
  ${AndIf} $0 != "Data\Language"
    StrCpy $0 1
  ${Else}
    Push "$INSTDIR\$Path"
    Call un.IsAsBrought
  ${EndIf}
FunctionEnd

; What an update that was cut off has prepared, and what it has put aside; of that nothing that was not brought.
Function un.RemoveUpdate
  Push "${UPDATE}\old"
  Call un.RemoveBroughtBelow
  RMDir /r "${UPDATE}\new"
  RMDir /r "${UPDATE}\repair"
  ${IfNot} ${FileExists} "${UPDATE}\old"
    Delete "${UPDATE}\begun"
  ${EndIf}
  RMDir "${UPDATE}"
FunctionEnd

; Folder on the stack. The list in it is asked to the last.
Function un.RemoveBroughtBelow
  Exch $6
  Push $7
  Push $8
  FindFirst $7 $8 "$6\*"
  ${DoWhile} $8 != ""
    ${If} $8 == "."
    ${OrIf} $8 == ".."
    ${ElseIf} ${FileExists} "$6\$8\*"
      Push "$6\$8"
      Call un.RemoveBroughtBelow
    ${ElseIf} "$6\$8" != "${UPDATE}\old\${LIST}"
      Push "$6\$8"
      Call un.IsAsBrought
      ${If} $0 = 1
        Delete "$6\$8"
      ${EndIf}
    ${EndIf}
    FindNext $7 $8
  ${Loop}
  FindClose $7
  ${If} $6 == "${UPDATE}\old"
    Delete "$6\${LIST}"
    RMDir "$6\Data"
  ${EndIf}
  RMDir $6
  ClearErrors
  Pop $8
  Pop $7
  Pop $6
FunctionEnd
