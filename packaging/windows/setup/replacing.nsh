; Replacing what is there by what was unpacked into ${WORK}\new, all or nothing.
;
; Plan writes two lists: bring.txt, what is to come from "new", and gone.txt, what is to go. While "begun" is there, each
; path of them is in one of these states, and PutBack leads from each of them to the first one:
;   in "new", not in "old"     nothing has happened (an old file may be in its place)
;   in "new" and in "old"      the old one has been put aside
;   neither in "new"           it is in its place; the old one, if any, is in "old"
; Deleting "begun" makes the replacement hold.

Var Known  ; the list of what was brought before
Var Bring  ; the list that is being written
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

; $0 becomes the NN of the folder name Campaign.NN.Name on the stack.
Function NumberOf
  Exch $0
  ${WordFind} $0 "." "+2" $0
  ClearErrors
FunctionEnd

; Marks, in the folders "keep" and "numbers", what stays as it is.
Function KeepCampaigns
  FileOpen $List $Known r
  ${Do}
    Call NextEntry
    ${If} $Path == ""
      ${Break}
    ${EndIf}
    ${If} $Campaign != ""
    ${AndIf} ${FileExists} "$INSTDIR\$Campaign"
    ${AndIfNot} ${FileExists} "${WORK}\keep\$Campaign"
      Push "$INSTDIR\$Path"
      Call SumOf
      Pop $1
      ${If} $1 != $Sum
        CreateDirectory "${WORK}\keep\$Campaign"
      ${EndIf}
    ${EndIf}
  ${Loop}
  FileClose $List
  FindFirst $3 $4 "$INSTDIR\Campaign.*"
  ${DoWhile} $4 != ""
    Call CountBrought
    ${GetSize} "$INSTDIR\$4" "/S=0K" $0 $1 $2
    ${If} $1 != $5
      CreateDirectory "${WORK}\keep\$4"
    ${EndIf}
    ${If} ${FileExists} "${WORK}\keep\$4"
      Push $4
      Call NumberOf
      CreateDirectory "${WORK}\numbers\$0"
      Pop $0
    ${EndIf}
    FindNext $3 $4
  ${Loop}
  FindClose $3
  ClearErrors
FunctionEnd

; $5: how many files were brought into the campaign folder $4.
Function CountBrought
  StrCpy $5 0
  FileOpen $List $Known r
  ${Do}
    Call NextEntry
    ${If} $Path == ""
      ${Break}
    ${EndIf}
    ${If} $Campaign == $4
      IntOp $5 $5 + 1
    ${EndIf}
  ${Loop}
  FileClose $List
FunctionEnd

; The language that was chosen follows; one of the player's own stays. At the first time: that of the setup.
Function ChooseLanguage
  StrCpy $2 ""
  ${If} ${FileExists} "$INSTDIR\Data\Language.txt"
    Push "$INSTDIR\Data\Language.txt"
    Call SumOf
    StrCpy $1 $Known
    Call LanguageOfSum
    Pop $2
    ${If} $2 == ""
      CreateDirectory "${WORK}\keep\Data\Language.txt"
    ${EndIf}
  ${ElseIf} $LANGUAGE = ${LANG_GERMAN}
    StrCpy $2 "Data\Languages\Deutsch.txt"
  ${ElseIf} $LANGUAGE = ${LANG_ITALIAN}
    StrCpy $2 "Data\Languages\Italiano.txt"
  ${EndIf}
  ${If} $2 != ""
  ${AndIf} $2 != "Data\Language.txt"
    System::Call 'kernel32::CopyFileW(w "${WORK}\new\$2", w "${WORK}\new\Data\Language.txt", i 0)'
  ${EndIf}
  FindFirst $3 $4 "$INSTDIR\Data\Languages\*.txt"
  ${DoWhile} $4 != ""
    Push "$INSTDIR\Data\Languages\$4"
    Call SumOf
    StrCpy $1 $Known
    Call LanguageOfSum
    Pop $2
    ${If} $2 == ""
      CreateDirectory "${WORK}\keep\Data\Languages\$4"
    ${EndIf}
    FindNext $3 $4
  ${Loop}
  FindClose $3
  ClearErrors
FunctionEnd

; $0: 1 when $Path is to be brought.
Function IsWanted
  StrCpy $0 0
  ${If} ${FileExists} "${WORK}\keep\$Path"
    Return
  ${EndIf}
  ${If} $Path == "Data\Characters.txt"
  ${AndIf} ${FileExists} "$INSTDIR\Personal"
    Return
  ${EndIf}
  ${If} $Campaign != ""
    ${If} ${FileExists} "${WORK}\keep\$Campaign"
      Return
    ${EndIf}
    Push $Campaign
    Call NumberOf
    StrCpy $1 $0
    Pop $0
    StrCpy $0 0
    ${If} ${FileExists} "${WORK}\numbers\$1"
    ${AndIfNot} ${FileExists} "$INSTDIR\$Campaign"
      Return
    ${EndIf}
  ${EndIf}
  StrCpy $0 1
FunctionEnd

; $0: 1 when the new version has no $Path, and the player has not made it his own.
Function IsGone
  StrCpy $0 0
  ${If} ${FileExists} "${WORK}\new\$Path"
  ${OrIfNot} ${FileExists} "$INSTDIR\$Path"
    Return
  ${EndIf}
  ${If} $Campaign != ""
  ${AndIf} ${FileExists} "${WORK}\keep\$Campaign"
    Return
  ${EndIf}
  Push "$INSTDIR\$Path"
  Call SumOf
  Pop $1
  ${If} $1 == $Sum
    StrCpy $0 1
  ${EndIf}
FunctionEnd

; LIST is gone through; the paths for which TEST says so are written to OUT.
!macro Select LIST TEST OUT LAST
  FileOpen $List "${LIST}" r
  FileOpen $Bring "${WORK}\${OUT}" w
  ${Do}
    Call NextEntry
    ${If} $Path == ""
      ${Break}
    ${EndIf}
    Call ${TEST}
    ${If} $0 = 1
      FileWrite $Bring "$Path$\r$\n"
    ${EndIf}
  ${Loop}
  FileWrite $Bring "${LAST}"
  FileClose $Bring
  FileClose $List
!macroend

Function Plan
  StrCpy $Known "$INSTDIR\${LIST}"
  ${IfNot} ${FileExists} $Known
    StrCpy $Known "${WORK}\new\${LIST}"
  ${EndIf}
  CreateDirectory "${WORK}\old"
  CreateDirectory "${WORK}\keep"
  CreateDirectory "${WORK}\numbers"
  Call KeepCampaigns
  Call ChooseLanguage
  !insertmacro Select "${WORK}\new\${LIST}" IsWanted bring.txt "Uninstall.exe$\r$\n${LIST}$\r$\n"
  !insertmacro Select "$Known" IsGone gone.txt ""
FunctionEnd

; What is in the place of $Path goes to "old".
Function PutAside
  ClearErrors
  ${If} ${FileExists} "$INSTDIR\$Path"
    ${Move} $Path "Setup.tmp\old\$Path"
  ${EndIf}
FunctionEnd

; Calls ACTION for each $Path of a list that Select has written, until ACTION sets the error flag.
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
