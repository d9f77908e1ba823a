; The installer. ./package calls it with VERSION, SIZE in kilobytes, SETUP (the file to make), and the commands that BRING the
; files and REMOVE them. Registering is left to the libraries themselves, which know what to write.

Unicode true
SetCompressor /SOLID lzma
ManifestDPIAware true
AllowSkipFiles off
OutFile "${SETUP}"
Name "K73053"
BrandingText "K73053 ${VERSION}"

VIProductVersion "${VERSION}.0"
VIAddVersionKey ProductName "K73053"
VIAddVersionKey ProductVersion "${VERSION}"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey FileDescription "Setup of K73053"
VIAddVersionKey LegalCopyright ""

!define ENTRY "Software\Microsoft\Windows\CurrentVersion\Uninstall\K73053"

!define MULTIUSER_MUI
!define MULTIUSER_EXECUTIONLEVEL Highest
!define MULTIUSER_INSTALLMODE_COMMANDLINE
!define MULTIUSER_INSTALLMODE_INSTDIR "K73053"
!define MULTIUSER_USE_PROGRAMFILES64
!include MultiUser.nsh
!include MUI2.nsh
!include x64.nsh

!insertmacro MULTIUSER_PAGE_INSTALLMODE
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"
!insertmacro MUI_LANGUAGE "French"

LangString NotRegistered ${LANG_ENGLISH} "The library could not be registered; nothing is installed. regsvr32 ended with"
LangString NotRegistered ${LANG_FRENCH} "L'enregistrement a échoué ; rien n'est installé. Code de regsvr32 :"

LangString InUse ${LANG_ENGLISH} "is in use; nothing has been changed. End the training host, and start again."
LangString InUse ${LANG_FRENCH} "est utilisé ; rien n'a été modifié. Fermez le logiciel de formation et recommencez."

; Ends with exit code 2 where a program of FOLDER runs or a library of it is loaded: what is in use can be neither replaced
; nor removed. Open to writing is what nobody has loaded.
!macro DEMAND_FREE FOLDER
    !insertmacro DEMAND_FREE_FILE "${FOLDER}\x86\K73053.dll"
    !insertmacro DEMAND_FREE_FILE "${FOLDER}\x64\K73053.dll"
    !insertmacro DEMAND_FREE_FILE "${FOLDER}\tools\exercise-host.exe"
    !insertmacro DEMAND_FREE_FILE "${FOLDER}\tools\powerpnt-standin.exe"
!macroend
!macro DEMAND_FREE_FILE FILE
    ${If} ${FileExists} "${FILE}"
        ClearErrors
        FileOpen $1 "${FILE}" a
        ${If} ${Errors}
            SetErrorLevel 2
            Abort "${FILE} $(InUse)"
        ${EndIf}
        FileClose $1
    ${EndIf}
!macroend

; Call ${PREFIX}Register: with "" or "/u " in $1, registers the libraries for whom the installation is, or takes that back.
; Leaves 0 in $0 where both have done it, otherwise the exit code of the one that has not.
!macro DEFINE_REGISTER PREFIX
    Function ${PREFIX}Register
        ${If} $MultiUser.InstallMode == "CurrentUser"
            StrCpy $1 "$1/n /i:user "
        ${EndIf}
        ; This is a program of 32 bits: its system folder is that of 32 bits.
        ExecWait '"$SYSDIR\regsvr32.exe" /s $1"$INSTDIR\x86\K73053.dll"' $0
        ${If} ${RunningX64}
            ExecWait '"$WINDIR\Sysnative\regsvr32.exe" /s $1"$INSTDIR\x64\K73053.dll"' $2
            ${If} $2 != 0
                StrCpy $0 $2
            ${EndIf}
        ${EndIf}
    FunctionEnd
!macroend
!insertmacro DEFINE_REGISTER ""
!insertmacro DEFINE_REGISTER "un."

!macro REMOVE_FILES
    SetOutPath $TEMP ; a current folder cannot be removed
    !include "${REMOVE}"
    Delete "$INSTDIR\uninstall.exe"
    RMDir "$INSTDIR"
!macroend

Function .onInit
    Push $INSTDIR ; of /D=, or empty
    ${If} ${RunningX64}
        SetRegView 64
    ${EndIf}
    !insertmacro MULTIUSER_INIT
    Pop $0
    ${If} $0 != ""
        StrCpy $INSTDIR $0
    ${EndIf}
FunctionEnd

Function un.onInit
    ${If} ${RunningX64}
        SetRegView 64
    ${EndIf}
    !insertmacro MULTIUSER_UNINIT
    ReadRegStr $0 HKCU "${ENTRY}" "InstallLocation"
    ${If} $0 == $INSTDIR
        Call un.MultiUser.InstallMode.CurrentUser
    ${Else}
        Call un.MultiUser.InstallMode.AllUsers
    ${EndIf}
FunctionEnd

Section
    !insertmacro DEMAND_FREE $INSTDIR
    ; Another version makes room, wherever it is; it refuses where it is in use itself.
    ReadRegStr $0 SHCTX "${ENTRY}" "InstallLocation"
    ${If} $0 != ""
    ${AndIf} ${FileExists} "$0\uninstall.exe"
        !insertmacro DEMAND_FREE $0
        StrCpy $1 2 ; where it does not even start
        ExecWait '"$0\uninstall.exe" /S _?=$0' $1
        ${If} $1 != 0
            SetErrorLevel 2
            Abort "$0 $(InUse)"
        ${EndIf}
        Delete "$0\uninstall.exe"
        RMDir "$0"
    ${EndIf}

    !include "${BRING}"
    WriteUninstaller "$INSTDIR\uninstall.exe"

    StrCpy $1 ""
    Call Register
    ${If} $0 != 0
        Push $0
        StrCpy $1 "/u "
        Call Register
        !insertmacro REMOVE_FILES
        Pop $0
        SetErrorLevel 2
        Abort "$(NotRegistered) $0."
    ${EndIf}

    WriteRegStr SHCTX "${ENTRY}" "DisplayName" "K73053"
    WriteRegStr SHCTX "${ENTRY}" "DisplayVersion" "${VERSION}"
    WriteRegStr SHCTX "${ENTRY}" "InstallLocation" "$INSTDIR"
    WriteRegStr SHCTX "${ENTRY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
    WriteRegStr SHCTX "${ENTRY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
    WriteRegDWORD SHCTX "${ENTRY}" "EstimatedSize" ${SIZE}
    WriteRegDWORD SHCTX "${ENTRY}" "NoModify" 1
    WriteRegDWORD SHCTX "${ENTRY}" "NoRepair" 1
SectionEnd

Section Uninstall
    !insertmacro DEMAND_FREE $INSTDIR
    StrCpy $1 "/u "
    Call un.Register
    !insertmacro REMOVE_FILES
    DeleteRegKey SHCTX "${ENTRY}"
SectionEnd
