; The installer. script/package hands over VERSION, STAGE (the folder of what is installed) and OUTPUT.
;
; Silent: Ombrel-Setup.exe /S [/D=C:\folder]. Ends with 0, 2 when the game has the plug-in open, 3 when Windows refuses to
; register it.
Unicode true
SetCompressor /SOLID lzma
SetDateSave off
RequestExecutionLevel admin

!include LogicLib.nsh
!include MUI2.nsh

!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Ombrel"
!define DEFAULTS "$APPDATA\Ombrel\Settings\Ombrel_Settings.xml"
!define EXIT_IN_USE 2
!define EXIT_NOT_REGISTERED 3

Name "Ombrel ${VERSION}"
OutFile "${OUTPUT}"
InstallDir "$PROGRAMFILES32\Ombrel"
InstallDirRegKey HKLM "${UNINSTALL_KEY}" "InstallLocation"
BrandingText "Ombrel ${VERSION}"
VIProductVersion "${VERSION}"
VIAddVersionKey ProductName "Ombrel"
VIAddVersionKey FileDescription "Installs Ombrel"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey LegalCopyright "MIT License"

!define MUI_FINISHPAGE_TITLE "Ombrel is installed"
!define MUI_FINISHPAGE_TEXT "Start the game as always. Ombrel is in the framework's list of plugins, switched on, and \
says hello in chat once a character is in.$\r$\n$\r$\nSounds of your own go into the folder Sounds, and those that alarms \
loop into Sounds\Loop, in $INSTDIR."
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

; The game is 32-bit, and so are the framework's keys. Settings belong to everybody at the machine.
!macro TakeBearings
    SetRegView 32
    SetShellVarContext all
!macroend

; Waits until no game has the plug-in open. A silent run gives up.
!macro WaitForGame
    ${Do}
        ClearErrors
        ${IfNot} ${FileExists} "$INSTDIR\Ombrel.dll"
            ${ExitDo}
        ${EndIf}
        FileOpen $0 "$INSTDIR\Ombrel.dll" a
        ${IfNot} ${Errors}
            FileClose $0
            ${ExitDo}
        ${EndIf}
        MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "The game is running with Ombrel in it. Close the game, then try again." \
            /SD IDCANCEL IDRETRY +3
        SetErrorLevel ${EXIT_IN_USE}
        Abort "The game is running with Ombrel in it."
    ${Loop}
!macroend

Function .onInit
    !insertmacro TakeBearings
    ReadRegStr $0 HKLM "SOFTWARE\Decal\Agent" "AgentPath"
    ${If} $0 != ""
    ${AndIf} ${FileExists} "$0\Inject.dll"
        Return
    ${EndIf}
    MessageBox MB_YESNO|MB_ICONEXCLAMATION "The Decal framework was not found on this computer. Ombrel works only inside \
it, so nothing will happen in the game until Decal is installed.$\r$\n$\r$\nInstall Ombrel all the same?" /SD IDYES IDYES +2
    Quit
FunctionEnd

Section
    !insertmacro WaitForGame
    SetOutPath "$INSTDIR"
    File "${STAGE}\Ombrel.dll"
    File "${STAGE}\Ombrel_View.xml"
    File "${STAGE}\Install.txt"
    File "${STAGE}\License.txt"
    SetOutPath "$INSTDIR\style"
    File "${STAGE}\style\ombrellog.xsl"

    ; The player's own sounds and defaults stay.
    SetOverwrite off
    SetOutPath "$INSTDIR\Sounds"
    File /r "${STAGE}\Sounds\*.wav"
    CreateDirectory "$APPDATA\Ombrel\Data"
    SetOutPath "$APPDATA\Ombrel\Settings"
    File "${STAGE}\Settings\Ombrel_Settings.xml"
    SetOverwrite on
    SetOutPath "$INSTDIR"

    ; S-1-5-32-545 is the group of ordinary users in any language.
    nsExec::Exec '"$SYSDIR\icacls.exe" "$APPDATA\Ombrel" /grant *S-1-5-32-545:(OI)(CI)M'
    Pop $0
    ${If} $0 != 0
        DetailPrint "Users could not be given the right to change $APPDATA\Ombrel. Ombrel then saves only for administrators."
    ${EndIf}

    ExecWait '"$SYSDIR\regsvr32.exe" /s "$INSTDIR\Ombrel.dll"' $0
    ${If} $0 != 0
        MessageBox MB_OK|MB_ICONSTOP "Windows refused to register Ombrel (regsvr32 said $0)." /SD IDOK
        SetErrorLevel ${EXIT_NOT_REGISTERED}
        Abort "Windows refused to register Ombrel."
    ${EndIf}

    WriteUninstaller "$INSTDIR\uninstall.exe"
    WriteRegStr HKLM "${UNINSTALL_KEY}" "DisplayName" "Ombrel"
    WriteRegStr HKLM "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKLM "${UNINSTALL_KEY}" "Publisher" "Ombrel contributors"
    WriteRegStr HKLM "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKLM "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
    WriteRegStr HKLM "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
    WriteRegDWORD HKLM "${UNINSTALL_KEY}" "NoModify" 1
    WriteRegDWORD HKLM "${UNINSTALL_KEY}" "NoRepair" 1
    SectionGetSize 0 $0
    WriteRegDWORD HKLM "${UNINSTALL_KEY}" "EstimatedSize" $0
SectionEnd

Function un.onInit
    !insertmacro TakeBearings
FunctionEnd

; Takes the default settings away, unless the player has changed them.
Function un.RemoveUnchangedDefaults
    InitPluginsDir
    File "/oname=$PLUGINSDIR\shipped.xml" "${STAGE}\Settings\Ombrel_Settings.xml"
    ClearErrors
    FileOpen $0 "${DEFAULTS}" r
    ${If} ${Errors}
        Return
    ${EndIf}
    FileOpen $1 "$PLUGINSDIR\shipped.xml" r
    ${Do}
        ClearErrors
        FileReadByte $0 $2
        ${If} ${Errors}
            StrCpy $2 end
        ${EndIf}
        ClearErrors
        FileReadByte $1 $3
        ${If} ${Errors}
            StrCpy $3 end
        ${EndIf}
        ${If} $2 != $3
        ${OrIf} $2 == end
            ${ExitDo}
        ${EndIf}
    ${Loop}
    FileClose $0
    FileClose $1
    ${If} $2 == $3
        Delete "${DEFAULTS}"
    ${EndIf}
FunctionEnd

Section Uninstall
    !insertmacro WaitForGame
    ExecWait '"$SYSDIR\regsvr32.exe" /s /u "$INSTDIR\Ombrel.dll"'
    Delete "$INSTDIR\Ombrel.dll"
    Delete "$INSTDIR\Ombrel_View.xml"
    Delete "$INSTDIR\Install.txt"
    Delete "$INSTDIR\License.txt"
    Delete "$INSTDIR\style\ombrellog.xsl"
    Delete "$INSTDIR\uninstall.exe"
    !include "${STAGE}/../RemoveSounds.nsh"
    ; Folders with the player's sounds or settings in them stay.
    RMDir "$INSTDIR\style"
    RMDir "$INSTDIR\Sounds\Loop"
    RMDir "$INSTDIR\Sounds"
    RMDir "$INSTDIR"
    Call un.RemoveUnchangedDefaults
    RMDir "$APPDATA\Ombrel\Settings"
    RMDir "$APPDATA\Ombrel\Data"
    RMDir "$APPDATA\Ombrel"
    DeleteRegKey HKLM "${UNINSTALL_KEY}"
SectionEnd
