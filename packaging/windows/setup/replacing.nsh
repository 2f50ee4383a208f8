; Replacing what is there by what was unpacked into ${WORK}\new, all or nothing.
;
; The updater of the new version, started in "new", writes two lists: bring.txt, what is to come from there, and gone.txt,
; what is to go (src/updater/SetupPlan.h). While "begun" is there, each
; path of them is in one of these states, and PutBack leads from each of them to the first one:
;   in "new", not in "old"     nothing has happened (an old file may be in its place)
;   in "new" and in "old"      the old one has been put aside
;   neither in "new"           it is in its place; the old one, if any, is in "old"
; Deleting "begun" makes the replacement hold.

Var Bring  ; the list that is being read
Var Failed ; the path that could not be replaced

; From and to on the stack, below $INSTDIR; the folder is made. Virus scanners and the search index open what has just
; been written, for an instant. The error flag is set when it does not work.
Function Move
  Exch $1
  Exch
  Exch $0
  Push $2
  ${GetParent} "$INSTDIR\$1" $2
  CreateDirectory $2
  ${ForEach} $2 1 20 + 1
    ClearErrors
    Rename "$INSTDIR\$0" "$INSTDIR\$1"
    ${IfNot} ${Errors}
      StrCpy $2 moved
      ${Break}
    ${EndIf}
    Sleep 50
  ${Next}
  ${If} $2 == moved
    ClearErrors
  ${Else}
    SetErrors ; asking has cleared it
  ${EndIf}
  Pop $2
  Pop $0
  Pop $1
FunctionEnd

!macro Move FROM TO
  Push "${FROM}"
  Push "${TO}"
  Call Move
!macroend
!define Move "!insertmacro Move"

; At the first time the language of the setup; later the one that was chosen follows.
Function ChooseFirstLanguage
  StrCpy $2 ""
  ${If} ${FileExists} "$INSTDIR\Data\Language.txt"
    Return
  ${ElseIf} $LANGUAGE = ${LANG_GERMAN}
    StrCpy $2 "Deutsch"
  ${ElseIf} $LANGUAGE = ${LANG_ITALIAN}
    StrCpy $2 "Italiano"
  ${EndIf}
  ${If} $2 != ""
    System::Call 'kernel32::CopyFileW(w "${WORK}\new\Data\Languages\$2.txt", w "${WORK}\new\Data\Language.txt", i 0)'
  ${EndIf}
FunctionEnd

; $Failed stays empty when it works.
Function Plan
  StrCpy $Failed ""
  CreateDirectory "${WORK}\old"
  Call ChooseFirstLanguage
  ClearErrors
  ExecWait '"${WORK}\new\update.exe"' $0
  ${If} ${Errors}
  ${OrIf} $0 <> 0
    StrCpy $Failed "update.exe"
  ${EndIf}
  ClearErrors
  FileOpen $List "${WORK}\inTheWay.txt" r
  ${IfNot} ${Errors}
    FileRead $List $Failed
    FileClose $List
    ${TrimNewLines} $Failed $Failed
  ${EndIf}
  ClearErrors
FunctionEnd

; What is in the place of $Path goes to "old".
Function PutAside
  ClearErrors
  ${If} ${FileExists} "$INSTDIR\$Path"
    ${Move} $Path "Setup.tmp\old\$Path"
  ${EndIf}
FunctionEnd

; Calls ACTION for each $Path of a list of the plan, until ACTION sets the error flag.
!macro ForEachPath LIST ACTION
  FileOpen $Bring "${WORK}\${LIST}" r
  ${Do}
    ClearErrors
    FileRead $Bring $Path
    ${If} ${Errors}
      ClearErrors
      ${Break}
    ${EndIf}
    ${TrimNewLines} $Path $Path
    Call ${ACTION}
    ${If} ${Errors}
      StrCpy $Failed $Path
      ${Break}
    ${EndIf}
  ${Loop}
  FileClose $Bring
!macroend

Function BringOne
  Call PutAside
  ${If} ${Errors}
    SetErrors ; asking has cleared it
    Return
  ${EndIf}
  ${Move} "Setup.tmp\new\$Path" $Path
FunctionEnd

; $Failed stays empty when it works.
Function Replace
  StrCpy $Failed ""
  FileOpen $0 "${WORK}\begun" w
  FileClose $0
  StrCpy $Path "orvinel.exe" ; first, so that nobody starts it halfway
  Call PutAside
  ${If} ${Errors}
    StrCpy $Failed $Path
    Return
  ${EndIf}
  !insertmacro ForEachPath bring.txt BringOne
  ${If} $Failed == ""
    !insertmacro ForEachPath gone.txt PutAside
  ${EndIf}
FunctionEnd

Function PutBackOne
  ClearErrors
  ${IfNot} ${FileExists} "${WORK}\new\$Path"
  ${AndIf} ${FileExists} "$INSTDIR\$Path"
    ${Move} $Path "Setup.tmp\new\$Path"
    ${If} ${Errors}
      SetErrors ; asking has cleared it
      Return
    ${EndIf}
    Push $Path
    Call RemoveEmptyFolders
    Pop $Path
  ${EndIf}
  Call FetchFromOld
FunctionEnd

Function FetchFromOld
  ClearErrors
  ${If} ${FileExists} "${WORK}\old\$Path"
    ${Move} "Setup.tmp\old\$Path" $Path
  ${EndIf}
FunctionEnd

; Takes back a replacement that was begun and has not come to its end.
Function PutBack
  Push $Failed
  StrCpy $Failed ""
  ${If} ${FileExists} "${WORK}\begun"
    !insertmacro ForEachPath gone.txt FetchFromOld
    ${If} $Failed == ""
      !insertmacro ForEachPath bring.txt PutBackOne
    ${EndIf}
    ${If} $Failed != ""
      !insertmacro Refuse "$(TextPutBackFailed)"
    ${EndIf}
    Delete "${WORK}\begun"
  ${EndIf}
  RMDir /r "${WORK}"
  ClearErrors
  Pop $Failed
FunctionEnd

Function RemoveEmptyFoldersOfOne
  Call RemoveEmptyFolders
FunctionEnd

; The replacement holds.
Function CleanUp
  Delete "${WORK}\begun"
  !insertmacro ForEachPath gone.txt RemoveEmptyFoldersOfOne
  RMDir /r "${WORK}"
  ClearErrors
FunctionEnd
