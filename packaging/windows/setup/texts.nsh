; The setup's own texts; buttons and pages bring theirs.
!macro Text NAME ENGLISH GERMAN ITALIAN
  LangString Text${NAME} ${LANG_ENGLISH} "${ENGLISH}"
  LangString Text${NAME} ${LANG_GERMAN} "${GERMAN}"
  LangString Text${NAME} ${LANG_ITALIAN} "${ITALIAN}"
!macroend

!insertmacro Text Running \
  "Orvinel is running. Close it, then choose Retry." \
  "Orvinel läuft gerade. Beende es und wähle dann Wiederholen." \
  "Orvinel è in esecuzione. Chiudilo, poi scegli Riprova."
!insertmacro Text NewerThere \
  "Version $1 is installed there, which is newer than ${VERSION}. Replace it?" \
  "Dort ist Version $1 installiert, die neuer als ${VERSION} ist. Ersetzen?" \
  "Lì è installata la versione $1, più recente della ${VERSION}. Sostituirla?"
!insertmacro Text Unfinished \
  "An update of Orvinel was cut off there. Start Orvinel once, which takes it back, then run this setup again." \
  "Dort wurde eine Aktualisierung von Orvinel unterbrochen. Starte Orvinel einmal, das nimmt sie zurück, und dann dieses Setup noch einmal." \
  "Lì un aggiornamento di Orvinel è stato interrotto. Avvia Orvinel una volta, così viene annullato, poi lancia di nuovo questo programma."
!insertmacro Text NotWritable \
  "Nothing can be written to $INSTDIR. Choose a folder of your own." \
  "In $INSTDIR kann nicht geschrieben werden. Wähle einen eigenen Ordner." \
  "Non si può scrivere in $INSTDIR. Scegli una cartella tua."
!insertmacro Text Failed \
  "$Failed could not be replaced. Everything is as it was before." \
  "$Failed konnte nicht ersetzt werden. Alles ist, wie es vorher war." \
  "Impossibile sostituire $Failed. Tutto è come prima."
!insertmacro Text PutBackFailed \
  "$Failed could not be put back. Restart the machine and run this setup again." \
  "$Failed konnte nicht zurückgelegt werden. Starte den Rechner neu und dieses Setup noch einmal." \
  "Impossibile rimettere a posto $Failed. Riavvia il computer e lancia di nuovo questo programma."
!insertmacro Text Guide "Guide" "Handbuch" "Guida"
!insertmacro Text Progress "Progress" "Fortschritt" "Progressi"
!insertmacro Text Atlas "Atlas" "Atlas" "Atlante"
!insertmacro Text BackUp "Back up" "Sichern" "Salva una copia"
!insertmacro Text Uninstall "Uninstall Orvinel" "Orvinel entfernen" "Rimuovi Orvinel"
!insertmacro Text PersonalStays \
  "Your characters, marks and notes were kept. They lie in" \
  "Deine Charaktere, Einträge und Notizen sind erhalten geblieben. Sie liegen in" \
  "I tuoi personaggi, i segni e le note sono rimasti. Si trovano in"
!insertmacro Text UpdateStays \
  "An update was cut off. What it had put aside and was not brought with Orvinel was kept. It lies in" \
  "Eine Aktualisierung wurde unterbrochen. Was sie beiseite gelegt hatte und nicht mit Orvinel kam, ist erhalten geblieben. Es liegt in" \
  "Un aggiornamento è stato interrotto. Ciò che aveva messo da parte e non era arrivato con Orvinel è rimasto. Si trova in"
