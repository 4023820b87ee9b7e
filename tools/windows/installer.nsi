; The installer, Italian: for this user or for all users of the machine. What the program keeps on drive C isn't touched,
; neither by the installation nor by its removal.
Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
Name "VaBo"
BrandingText "VaBo ${VERSION}"
OutFile "${OUTPUT}"

!define MULTIUSER_EXECUTIONLEVEL Highest
!define MULTIUSER_MUI
!define MULTIUSER_INSTALLMODE_COMMANDLINE
!define MULTIUSER_USE_PROGRAMFILES64
!define MULTIUSER_INSTALLMODE_INSTDIR "VaBo"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_KEY "Software\VaBo"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_VALUENAME "Folder"
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_KEY "Software\VaBo"
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_VALUENAME "Folder"
!define MULTIUSER_INIT_TEXT_ADMINREQUIRED "Per tutti gli utenti installa o rimuove soltanto un amministratore: \
  avviare con «Esegui come amministratore»."
!define MULTIUSER_INIT_TEXT_POWERREQUIRED "${MULTIUSER_INIT_TEXT_ADMINREQUIRED}"
!define MULTIUSER_INIT_TEXT_ALLUSERSNOTPOSSIBLE "${MULTIUSER_INIT_TEXT_ADMINREQUIRED}"
!include MultiUser.nsh
!include MUI2.nsh
!include LogicLib.nsh

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define UNINSTALL "Software\Microsoft\Windows\CurrentVersion\Uninstall\VaBo"

!define MULTIUSER_PAGE_CUSTOMFUNCTION_LEAVE KeepGivenFolder
!insertmacro MULTIUSER_PAGE_INSTALLMODE
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "Italian"

VIProductVersion "${VERSION}.0"
VIAddVersionKey /LANG=1040 "ProductName" "VaBo"
VIAddVersionKey /LANG=1040 "FileDescription" "Installazione di VaBo"
VIAddVersionKey /LANG=1040 "FileVersion" "${VERSION}"
VIAddVersionKey /LANG=1040 "LegalCopyright" "Copyright (c) 2026 the maintainers"

; A program that runs can be neither replaced nor removed, and half of either would be worse than none.
!macro RefuseWhileOneRuns
  !insertmacro RefuseWhileItRuns "vabo.exe"
  !insertmacro RefuseWhileItRuns "vabo-start.exe"
  !insertmacro RefuseWhileItRuns "vabo-provision.exe"
!macroend
!macro RefuseWhileItRuns FILE
  ${If} ${FileExists} "$INSTDIR\${FILE}"
    ClearErrors
    FileOpen $0 "$INSTDIR\${FILE}" a
    ${If} ${Errors}
      MessageBox MB_OK|MB_ICONSTOP "VaBo è in uso. Chiudere il programma e riprovare." /SD IDOK
      SetErrorLevel 2
      Abort
    ${EndIf}
    FileClose $0
  ${EndIf}
!macroend

; A silent installation asks nobody and tells nobody, but by its result.
Function EndSilentlyWithoutTheRights
  ${GetParameters} $0
  ${StrStr} $0 $0 "/AllUsers"
  UserInfo::GetAccountType
  Pop $1
  ${If} ${Silent}
  ${AndIf} $0 != ""
  ${AndIf} $1 != "Admin"
    SetErrorLevel 2
    Quit
  ${EndIf}
FunctionEnd

; The choice of the mode sets the folder; one that the command names (/D=) counts more.
Var GivenFolder
Function KeepGivenFolder
  ${If} $GivenFolder != ""
    StrCpy $INSTDIR $GivenFolder
  ${EndIf}
FunctionEnd

Function .onInit
  SetRegView 64
  StrCpy $GivenFolder $INSTDIR
  Call EndSilentlyWithoutTheRights
  !insertmacro MULTIUSER_INIT
  Call KeepGivenFolder
FunctionEnd

; What removes is in the folder that it removes, whichever was installed last.
Function un.onInit
  SetRegView 64
  StrCpy $GivenFolder $INSTDIR
  !insertmacro MULTIUSER_UNINIT
  StrCpy $INSTDIR $GivenFolder
FunctionEnd

Section
  !insertmacro RefuseWhileOneRuns
  SetOutPath "$INSTDIR"
  File /r "${CONTENT}/*"
  WriteUninstaller "$INSTDIR\rimuovi.exe"
  CreateShortcut "$SMPROGRAMS\VaBo.lnk" "$INSTDIR\vabo-start.exe"
  WriteRegStr SHCTX "Software\VaBo" "Folder" "$INSTDIR"
  WriteRegStr SHCTX "${UNINSTALL}" "DisplayName" "VaBo"
  WriteRegStr SHCTX "${UNINSTALL}" "DisplayVersion" "${VERSION}"
  WriteRegStr SHCTX "${UNINSTALL}" "DisplayIcon" "$INSTDIR\vabo.exe"
  WriteRegStr SHCTX "${UNINSTALL}" "UninstallString" '"$INSTDIR\rimuovi.exe" /$MultiUser.InstallMode'
  WriteRegStr SHCTX "${UNINSTALL}" "QuietUninstallString" '"$INSTDIR\rimuovi.exe" /$MultiUser.InstallMode /S'
  WriteRegDWORD SHCTX "${UNINSTALL}" "NoModify" 1
  WriteRegDWORD SHCTX "${UNINSTALL}" "NoRepair" 1
SectionEnd

; Only what was installed is removed; whatever else stands in the folder stays.
Section "Uninstall"
  !insertmacro RefuseWhileOneRuns
  !include "${INSTALLED}"
  Delete "$INSTDIR\rimuovi.exe"
  RMDir "$INSTDIR"
  ReadRegStr $0 SHCTX "Software\VaBo" "Folder"
  ${If} $0 == $INSTDIR
    Delete "$SMPROGRAMS\VaBo.lnk"
    DeleteRegKey SHCTX "${UNINSTALL}"
    DeleteRegKey SHCTX "Software\VaBo"
  ${EndIf}
SectionEnd
