; The installer: for one user, without administrator's rights, into a folder that the user may write. File types are offered in
; "Openen met"; which program opens them stays as it was. makensis gets VERSION, FILES (the folder with the program), LIST (what
; the uninstaller takes away) and OUT.
Target amd64-unicode
ManifestDPIAware true
RequestExecutionLevel user
SetCompressor /SOLID lzma
SetCompressorDictSize 32
Name "KrasPret"
OutFile "${OUT}"
InstallDir "$LOCALAPPDATA\Programs\KrasPret"
InstallDirRegKey HKCU "Software\KrasPret" "Folder"
BrandingText "KrasPret ${VERSION}"

!include MUI2.nsh
!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_FINISHPAGE_RUN "$INSTDIR\kraspret.exe"
!define MUI_FINISHPAGE_NOREBOOTSUPPORT
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "Dutch"

VIProductVersion "${VERSION}.0"
VIAddVersionKey /LANG=${LANG_DUTCH} "ProductName" "KrasPret"
VIAddVersionKey /LANG=${LANG_DUTCH} "FileDescription" "KrasPret installeren"
VIAddVersionKey /LANG=${LANG_DUTCH} "FileVersion" "${VERSION}"
VIAddVersionKey /LANG=${LANG_DUTCH} "ProductVersion" "${VERSION}"
VIAddVersionKey /LANG=${LANG_DUTCH} "LegalCopyright" "Copyright (c) 2026 the KrasPret founders, MIT"

!define CLASSES "Software\Classes"
!define LISTED "Software\Microsoft\Windows\CurrentVersion\Uninstall\KrasPret"

; A running program cannot be replaced or taken away.
!macro RefuseWhileRunning
  IfFileExists "$INSTDIR\kraspret.exe" 0 +6
    ClearErrors
    FileOpen $0 "$INSTDIR\kraspret.exe" a
    IfErrors 0 +3
      MessageBox MB_OK|MB_ICONEXCLAMATION "KrasPret staat nog open. Sluit het eerst." /SD IDOK
      Abort
    FileClose $0
!macroend

!macro OfferType TYPE
  WriteRegStr HKCU "${CLASSES}\${TYPE}\OpenWithProgids" "KrasPret.Tekening" ""
  WriteRegStr HKCU "${CLASSES}\Applications\kraspret.exe\SupportedTypes" "${TYPE}" ""
!macroend

!macro WithdrawType TYPE
  DeleteRegValue HKCU "${CLASSES}\${TYPE}\OpenWithProgids" "KrasPret.Tekening"
  DeleteRegKey /ifempty HKCU "${CLASSES}\${TYPE}\OpenWithProgids"
  DeleteRegKey /ifempty HKCU "${CLASSES}\${TYPE}"
!macroend

Section
  !insertmacro RefuseWhileRunning
  SetOutPath "$INSTDIR"
  File /r "${FILES}/*"
  WriteUninstaller "$INSTDIR\verwijderen.exe"
  CreateShortCut "$SMPROGRAMS\KrasPret.lnk" "$INSTDIR\kraspret.exe"

  WriteRegStr HKCU "Software\KrasPret" "Folder" "$INSTDIR"
  WriteRegStr HKCU "${LISTED}" "DisplayName" "KrasPret"
  WriteRegStr HKCU "${LISTED}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${LISTED}" "DisplayIcon" "$INSTDIR\kraspret.exe"
  WriteRegStr HKCU "${LISTED}" "Publisher" "The KrasPret founders"
  WriteRegStr HKCU "${LISTED}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${LISTED}" "UninstallString" '"$INSTDIR\verwijderen.exe"'
  WriteRegStr HKCU "${LISTED}" "QuietUninstallString" '"$INSTDIR\verwijderen.exe" /S'
  WriteRegDWORD HKCU "${LISTED}" "NoModify" 1
  WriteRegDWORD HKCU "${LISTED}" "NoRepair" 1

  WriteRegStr HKCU "${CLASSES}\KrasPret.Tekening" "" "Tekening"
  WriteRegStr HKCU "${CLASSES}\KrasPret.Tekening\shell\open" "FriendlyAppName" "KrasPret"
  WriteRegStr HKCU "${CLASSES}\KrasPret.Tekening\shell\open\command" "" '"$INSTDIR\kraspret.exe" "%1"'
  WriteRegStr HKCU "${CLASSES}\Applications\kraspret.exe" "FriendlyAppName" "KrasPret"
  WriteRegStr HKCU "${CLASSES}\Applications\kraspret.exe\shell\open\command" "" '"$INSTDIR\kraspret.exe" "%1"'
  !insertmacro OfferType ".bmp"
  !insertmacro OfferType ".gif"
  !insertmacro OfferType ".jpg"
SectionEnd

Section "Uninstall"
  !insertmacro RefuseWhileRunning
  ; Only what was installed, and the file of the mirror: a child's own pictures may lie here too.
  !include "${LIST}"
  Delete "$INSTDIR\temp.bmp"
  Delete "$INSTDIR\verwijderen.exe"
  SetOutPath "$TEMP"
  RMDir "$INSTDIR"
  Delete "$SMPROGRAMS\KrasPret.lnk"

  !insertmacro WithdrawType ".bmp"
  !insertmacro WithdrawType ".gif"
  !insertmacro WithdrawType ".jpg"
  DeleteRegKey HKCU "${CLASSES}\Applications\kraspret.exe"
  DeleteRegKey HKCU "${CLASSES}\KrasPret.Tekening"
  DeleteRegKey HKCU "${LISTED}"
  DeleteRegKey HKCU "Software\KrasPret"
SectionEnd
