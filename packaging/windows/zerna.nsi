; The German installer, for one user and without an administrator. Called with
;   -DVERSION=1.0.1 -DVERSION4=1.0.1.0 -DSTAGE=folder -DLISTE=list.nsh -DOUT=file.exe -DICON=zerna.ico -DKILOBYTES=…
; STAGE holds the program's files; LISTE deletes just these (macro Dateien) and their folders (macro Ordner).
Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
RequestExecutionLevel user
ManifestDPIAware true
ManifestLongPathAware true

!include MUI2.nsh
!include FileFunc.nsh
!include LogicLib.nsh
!include "${LISTE}"

!define UNINSTALL "Software\Microsoft\Windows\CurrentVersion\Uninstall\Zerna"
!define KLASSEN "Software\Classes"
!define EINSTELLUNGEN "Software\KoltZerna"
!define SITZUNGEN "$LOCALAPPDATA\KoltZerna"

Name "Zerna ${VERSION}"
OutFile "${OUT}"
InstallDir "$LOCALAPPDATA\Programs\Zerna"
InstallDirRegKey HKCU "${UNINSTALL}" "InstallLocation"
VIProductVersion "${VERSION4}"
VIAddVersionKey /LANG=1031 "ProductName" "Zerna"
VIAddVersionKey /LANG=1031 "LegalCopyright" "siehe LIZENZEN.txt"
VIAddVersionKey /LANG=1031 "FileDescription" "Zerna einrichten"
VIAddVersionKey /LANG=1031 "FileVersion" "${VERSION}"
VIAddVersionKey /LANG=1031 "ProductVersion" "${VERSION}"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_ABORTWARNING
!define MUI_FINISHPAGE_RUN "$INSTDIR\zerna.exe"
!define MUI_FINISHPAGE_RUN_TEXT "Zerna starten"
!insertmacro MUI_PAGE_WELCOME
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "German"

; Leaves 1 in $R0 if the element table differs from the one that was installed, which lies in the folder "original".
!macro VERGLEICHE un
Function ${un}TabelleGeaendert
    StrCpy $R0 0
    IfFileExists "$INSTDIR\elemente.dat" 0 ende
    StrCpy $R0 1
    IfFileExists "$INSTDIR\original\elemente.dat" 0 ende
    FileOpen $R1 "$INSTDIR\elemente.dat" r
    FileOpen $R2 "$INSTDIR\original\elemente.dat" r
    ${Do}
        ClearErrors
        FileReadByte $R1 $R3
        ${If} ${Errors}
            StrCpy $R3 "Ende"
        ${EndIf}
        ClearErrors
        FileReadByte $R2 $R4
        ${If} ${Errors}
            StrCpy $R4 "Ende"
        ${EndIf}
        ${If} $R3 != $R4
            ${Break}
        ${ElseIf} $R3 == "Ende"
            StrCpy $R0 0
            ${Break}
        ${EndIf}
    ${Loop}
    FileClose $R1
    FileClose $R2
ende:
FunctionEnd

; A program that runs keeps its file open for itself.
Function ${un}WarteAufEnde
    ${Do}
        IfFileExists "$INSTDIR\zerna.exe" 0 ende
        ClearErrors
        FileOpen $R1 "$INSTDIR\zerna.exe" a
        ${IfNot} ${Errors}
            FileClose $R1
            ${Break}
        ${EndIf}
        MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION \
            "Zerna läuft noch. Bitte beenden Sie das Programm und versuchen Sie es dann noch einmal." \
            /SD IDCANCEL IDRETRY nocheinmal
        SetErrorLevel 2
        Abort "Zerna läuft noch."
nocheinmal:
    ${Loop}
ende:
FunctionEnd
!macroend
!insertmacro VERGLEICHE ""
!insertmacro VERGLEICHE "un."

Section "Zerna"
    Call WarteAufEnde
    Call TabelleGeaendert
    SetOutPath "$INSTDIR"
    ${If} $R0 == 1
        DetailPrint "Die geänderte Elementtabelle elemente.dat bleibt."
        Rename "$INSTDIR\elemente.dat" "$INSTDIR\elemente.dat.behalten"
    ${EndIf}
    RMDir /r "$INSTDIR\lizenzen" ; an earlier version had others
    File /r "${STAGE}\*"
    ${If} $R0 == 1
        Delete "$INSTDIR\elemente.dat"
        Rename "$INSTDIR\elemente.dat.behalten" "$INSTDIR\elemente.dat"
    ${EndIf}
    WriteUninstaller "$INSTDIR\Zerna entfernen.exe"

    CreateShortCut "$SMPROGRAMS\Zerna.lnk" "$INSTDIR\zerna.exe"

    WriteRegStr HKCU "${KLASSEN}\.zerna" "" "Zerna.Legierung"
    WriteRegStr HKCU "${KLASSEN}\.zerna" "Content Type" "application/x-zerna"
    WriteRegStr HKCU "${KLASSEN}\Zerna.Legierung" "" "Legierung"
    WriteRegStr HKCU "${KLASSEN}\Zerna.Legierung\DefaultIcon" "" "$INSTDIR\zerna.exe,1"
    WriteRegStr HKCU "${KLASSEN}\Zerna.Legierung\shell\open\command" "" '"$INSTDIR\zerna.exe" "%1"'
    ${RefreshShellIcons}

    WriteRegStr HKCU "${UNINSTALL}" "DisplayName" "Zerna"
    WriteRegStr HKCU "${UNINSTALL}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKCU "${UNINSTALL}" "DisplayIcon" "$INSTDIR\zerna.exe"
    WriteRegStr HKCU "${UNINSTALL}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKCU "${UNINSTALL}" "UninstallString" '"$INSTDIR\Zerna entfernen.exe"'
    WriteRegStr HKCU "${UNINSTALL}" "QuietUninstallString" '"$INSTDIR\Zerna entfernen.exe" /S'
    WriteRegDWORD HKCU "${UNINSTALL}" "EstimatedSize" "${KILOBYTES}"
    WriteRegDWORD HKCU "${UNINSTALL}" "NoModify" 1
    WriteRegDWORD HKCU "${UNINSTALL}" "NoRepair" 1
SectionEnd

Section "Uninstall"
    Call un.WarteAufEnde
    Call un.TabelleGeaendert
    ${If} $R0 == 1
        DetailPrint "Die geänderte Elementtabelle bleibt in $INSTDIR."
    ${Else}
        Delete "$INSTDIR\elemente.dat"
    ${EndIf}
    !insertmacro Dateien
    Delete "$INSTDIR\Zerna entfernen.exe"
    !insertmacro Ordner
    RMDir "$INSTDIR"
    Delete "$SMPROGRAMS\Zerna.lnk"

    DeleteRegKey HKCU "${KLASSEN}\Zerna.Legierung"
    ReadRegStr $R1 HKCU "${KLASSEN}\.zerna" ""
    ${If} $R1 == "Zerna.Legierung" ; else another program has taken the type over
        DeleteRegKey HKCU "${KLASSEN}\.zerna"
    ${EndIf}
    ${RefreshShellIcons}
    DeleteRegKey HKCU "${UNINSTALL}"

    MessageBox MB_YESNO|MB_ICONQUESTION|MB_DEFBUTTON2 \
        "Sollen auch Ihre Einstellungen gelöscht werden (zuletzt gewählte Elemente, Fensterlage, Bildgrößen)?" \
        /SD IDNO IDNO behalten
    DeleteRegKey HKCU "${EINSTELLUNGEN}"
    RMDir /r "${SITZUNGEN}"
behalten:
    ${If} $R0 == 1
        MessageBox MB_OK|MB_ICONINFORMATION \
            "Sie haben die Elementtabelle geändert. Sie bleibt liegen:$\r$\n$INSTDIR\elemente.dat" /SD IDOK
    ${EndIf}
SectionEnd
