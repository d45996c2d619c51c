; The installer for Windows. packaging/windows/pack calls makensis with
;
;   VERSION, VERSION4  the version, and the same with four numbers
;   STAGED             the folder with all that is installed
;   REMOVAL            a file of instructions that remove exactly that again
;   KILOBYTES          its size
;   ICON, SIDE         its pictures: the icon, and the one beside the first and the last page
;   OUTPUT             the installer
;
; On the command line it takes /S (asks nothing), /CurrentUser or /AllUsers, and /D=FOLDER as the
; last. Exit codes beside those of every NSIS installer, 1 cancelled and 2 ended half-way: 3 a program
; is running, 4 what was installed before cannot be removed, 5 there are no rights for all users, 6 this
; Windows is too old.

Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
SetDateSave off
Name "Tessel"
OutFile "${OUTPUT}"
BrandingText "Tessel ${VERSION}"
ManifestDPIAware true
ManifestLongPathAware true
ShowInstDetails nevershow
ShowUninstDetails nevershow

VIProductVersion "${VERSION4}"
VIFileVersion "${VERSION4}"
VIAddVersionKey "ProductName" "Tessel"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "FileDescription" "Installs Tessel"
VIAddVersionKey "CompanyName" "Tessel"
VIAddVersionKey "LegalCopyright" "Copyright 2026 its owner. No licence has been chosen yet."

; Whoever has the rights may choose; without them, and where nobody is asked, it is for one user.
!define MULTIUSER_EXECUTIONLEVEL Highest
!define MULTIUSER_MUI
!define MULTIUSER_INSTALLMODE_COMMANDLINE
!define MULTIUSER_INSTALLMODE_DEFAULT_CURRENTUSER
!define MULTIUSER_INSTALLMODE_INSTDIR "Tessel"
!define MULTIUSER_USE_PROGRAMFILES64
!define ENTRY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Tessel"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_KEY "${ENTRY}"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_VALUENAME "InstallLocation"
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_KEY "${ENTRY}"
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_VALUENAME "InstallLocation"
!include MultiUser.nsh
!include MUI2.nsh
!include LogicLib.nsh
!include WinVer.nsh
!include WinCore.nsh
!include Integration.nsh

Var folder ; that /D= names
!define OPEN_EXISTING 3 ; of CreateFile
!define KIND "Tessel.Hall" ; of files that end in .tessel
!define FORMER "FormerKind" ; where the kind is kept that they had before
!define MENU "$SMPROGRAMS\Tessel"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_WELCOMEFINISHPAGE_BITMAP "${SIDE}"
!define MUI_WELCOMEFINISHPAGE_BITMAP_STRETCH AspectFitHeight
!define MUI_WELCOMEPAGE_TITLE "Tessel ${VERSION}"
!define MUI_WELCOMEPAGE_TEXT "This installs the Divide / Combine Room Wizard, its field kit (tesselctl), a simulated hall for training (tessel-hall), and the guide.$\r$\n$\r$\nA version that is installed already is replaced. Halls and work that you saved stay as they are.$\r$\n$\r$\n$_CLICK"
!define MUI_FINISHPAGE_RUN "$INSTDIR\tessel.exe"
!define MUI_FINISHPAGE_RUN_TEXT "Start the wizard"
!define MUI_FINISHPAGE_SHOWREADME "$INSTDIR\guide\index.html"
!define MUI_FINISHPAGE_SHOWREADME_TEXT "Open the guide"
!define MUI_FINISHPAGE_SHOWREADME_NOTCHECKED
!insertmacro MUI_PAGE_WELCOME
!define MULTIUSER_PAGE_CUSTOMFUNCTION_LEAVE takeFolder
!insertmacro MULTIUSER_PAGE_INSTALLMODE
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE English

; Says why, where somebody reads it, and ends with an exit code.
!macro GiveUp code why
    MessageBox MB_OK|MB_ICONSTOP "${why}" /SD IDOK
    SetErrorLevel ${code}
    Quit
!macroend

; A running program cannot be replaced or removed, and would leave half of it. Windows calls it shared;
; what is denied for another reason is so the next time too.
!macro RequireEnded folder program
    ${Do}
        System::Call 'KERNEL32::CreateFile(t "${folder}\${program}", i ${GENERIC_READ}|${GENERIC_WRITE}, i 0, p 0, i ${OPEN_EXISTING}, i 0, p 0) p .r0 ?e'
        Pop $1
        ${If} $0 P<> ${INVALID_HANDLE_VALUE}
            System::Call 'KERNEL32::CloseHandle(p r0)'
            ${ExitDo}
        ${ElseIf} $1 = ${ERROR_ACCESS_DENIED}
            !insertmacro GiveUp 4 "${folder}\${program} cannot be replaced or removed: Windows denies access to it."
        ${ElseIf} $1 <> ${ERROR_SHARING_VIOLATION}
            ${ExitDo} ; none is there
        ${EndIf}
        ${If} ${Cmd} `MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "${program} is running. Close it, then try again." /SD IDCANCEL IDCANCEL`
            SetErrorLevel 3
            Quit
        ${EndIf}
    ${Loop}
!macroend

!macro RequireAllEnded folder
    ${If} "${folder}" != ""
        !insertmacro RequireEnded "${folder}" tessel.exe
        !insertmacro RequireEnded "${folder}" tesselctl.exe
        !insertmacro RequireEnded "${folder}" tessel-hall.exe
    ${EndIf}
!macroend

; Where MultiUser.nsh would show a box to nobody.
!macro RequireRights
    ${If} ${Silent}
        ${GetParameters} $0
        ClearErrors
        ${GetOptions} $0 "/AllUsers" $1
        ${IfNot} ${Errors}
            UserInfo::GetAccountType
            Pop $2
            ${If} $2 != "Admin"
                !insertmacro GiveUp 5 "There are no rights to do this for all users."
            ${EndIf}
        ${EndIf}
        ClearErrors
    ${EndIf}
!macroend

; Choosing for whom it is installs it in the place that is usual for that.
Function takeFolder
    ${If} $folder != ""
        StrCpy $INSTDIR $folder
    ${EndIf}
FunctionEnd

Function .onInit
    ${IfNot} ${AtLeastWin10}
        !insertmacro GiveUp 6 "Tessel needs Windows 10 or later."
    ${EndIf}
    !insertmacro RequireRights
    StrCpy $folder $INSTDIR
    !insertmacro MULTIUSER_INIT
    Call takeFolder
FunctionEnd

Function un.onInit
    !insertmacro RequireRights
    !insertmacro MULTIUSER_UNINIT
FunctionEnd

; Two copies open the same files, and only one of them would be renewed by whoever has the rights.
Function requireOnlyCopy
    ReadRegStr $R1 HKCU "${ENTRY}" "InstallLocation"
    ReadRegStr $R2 HKLM "${ENTRY}" "InstallLocation"
    ${GetParameters} $0
    ClearErrors
    ${GetOptions} $0 "/CurrentUser" $1
    ${If} ${Errors}
    ${AndIf} $MultiUser.InstallMode == "CurrentUser"
    ${AndIf} $R1 == ""
    ${AndIf} $R2 != ""
    ${AndIf} ${Cmd} `MessageBox MB_YESNO|MB_ICONQUESTION|MB_DEFBUTTON2 "Tessel is installed for all users of this computer:$\r$\n$R2$\r$\n$\r$\nAn administrator can replace that. Install a second copy, for you alone?" /SD IDNO IDNO`
        SetErrorLevel 5
        Quit
    ${EndIf}
FunctionEnd

; Also what is to be removed from another place, and before any of it is.
Function requireAllEnded
    !insertmacro RequireAllEnded "$INSTDIR"
    ReadRegStr $R1 HKCU "${ENTRY}" "InstallLocation"
    !insertmacro RequireAllEnded "$R1"
    ${If} $MultiUser.InstallMode == "AllUsers"
        ReadRegStr $R1 HKLM "${ENTRY}" "InstallLocation"
        !insertmacro RequireAllEnded "$R1"
    ${EndIf}
FunctionEnd

; Each version knows itself what it has installed.
!macro RemoveOlder root mode
    ReadRegStr $R1 ${root} "${ENTRY}" "InstallLocation"
    ${If} $R1 != ""
    ${AndIf} ${FileExists} "$R1\uninstall.exe"
        ExecWait '"$R1\uninstall.exe" /S /${mode} _?=$R1' $R2
        ${If} $R2 <> 0
            !insertmacro GiveUp 4 "The version that is installed in $R1 could not be removed."
        ${EndIf}
        Delete "$R1\uninstall.exe"
        RMDir "$R1"
    ${EndIf}
!macroend

; What one user has would go on opening that user's files, so it goes too where it is for all.
Function removeOlder
    !insertmacro RemoveOlder HKCU CurrentUser
    ${If} $MultiUser.InstallMode == "AllUsers"
        !insertmacro RemoveOlder HKLM AllUsers
    ${EndIf}
FunctionEnd

Function enterIntoMenu
    SetOutPath "$INSTDIR"
    CreateDirectory "${MENU}"
    CreateShortcut "${MENU}\Tessel Room Wizard.lnk" "$INSTDIR\tessel.exe"
    CreateShortcut /NoWorkingDir "${MENU}\Tessel Field Kit.lnk" "$SYSDIR\cmd.exe" \
        '/k "set "PATH=$INSTDIR;%PATH%" & cd /d "%USERPROFILE%" & tesselctl --help"' \
        "$INSTDIR\tesselctl.exe"
    CreateShortcut "${MENU}\Tessel Guide.lnk" "$INSTDIR\guide\index.html"
FunctionEnd

Function takeFiles
    ReadRegStr $0 SHCTX "Software\Classes\.tessel" ""
    ${If} $0 != "${KIND}"
        WriteRegStr SHCTX "Software\Classes\${KIND}" "${FORMER}" $0
    ${EndIf}
    WriteRegStr SHCTX "Software\Classes\.tessel" "" "${KIND}"
    WriteRegStr SHCTX "Software\Classes\.tessel\OpenWithProgids" "${KIND}" ""
    WriteRegStr SHCTX "Software\Classes\${KIND}" "" "Tessel hall configuration"
    WriteRegStr SHCTX "Software\Classes\${KIND}\DefaultIcon" "" "$INSTDIR\tessel.exe,0"
    WriteRegStr SHCTX "Software\Classes\${KIND}\shell\open\command" "" '"$INSTDIR\tessel.exe" "%1"'
    ${NotifyShell_AssocChanged}
FunctionEnd

Function enterIntoPrograms
    WriteRegStr SHCTX "${ENTRY}" "DisplayName" "Tessel"
    WriteRegStr SHCTX "${ENTRY}" "DisplayVersion" "${VERSION}"
    WriteRegStr SHCTX "${ENTRY}" "DisplayIcon" "$INSTDIR\tessel.exe,0"
    WriteRegStr SHCTX "${ENTRY}" "Publisher" "Tessel"
    WriteRegStr SHCTX "${ENTRY}" "InstallLocation" "$INSTDIR"
    WriteRegStr SHCTX "${ENTRY}" "UninstallString" '"$INSTDIR\uninstall.exe" /$MultiUser.InstallMode'
    WriteRegStr SHCTX "${ENTRY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S /$MultiUser.InstallMode'
    WriteRegDWORD SHCTX "${ENTRY}" "EstimatedSize" ${KILOBYTES}
    WriteRegDWORD SHCTX "${ENTRY}" "NoModify" 1
    WriteRegDWORD SHCTX "${ENTRY}" "NoRepair" 1
FunctionEnd

Section
    Call requireOnlyCopy
    Call requireAllEnded
    Call removeOlder
    SetOutPath "$INSTDIR"
    File /r "${STAGED}/*"
    WriteUninstaller "$INSTDIR\uninstall.exe"
    Call enterIntoMenu
    Call takeFiles
    Call enterIntoPrograms
SectionEnd

; Files that ended in .tessel before become again what they were, unless another program has taken them.
Function un.giveFilesBack
    ReadRegStr $0 SHCTX "Software\Classes\.tessel" ""
    ${If} $0 == "${KIND}"
        ReadRegStr $1 SHCTX "Software\Classes\${KIND}" "${FORMER}"
        ${If} $1 == ""
            DeleteRegValue SHCTX "Software\Classes\.tessel" ""
        ${Else}
            WriteRegStr SHCTX "Software\Classes\.tessel" "" $1
        ${EndIf}
    ${EndIf}
    DeleteRegValue SHCTX "Software\Classes\.tessel\OpenWithProgids" "${KIND}"
    DeleteRegKey /ifempty SHCTX "Software\Classes\.tessel\OpenWithProgids"
    DeleteRegKey /ifempty SHCTX "Software\Classes\.tessel"
    DeleteRegKey SHCTX "Software\Classes\${KIND}"
    ${NotifyShell_AssocChanged}
FunctionEnd

Section Uninstall
    !insertmacro RequireAllEnded "$INSTDIR"
    SetOutPath "$TEMP" ; a folder that a program stands in cannot be removed
    Delete "${MENU}\Tessel Room Wizard.lnk"
    Delete "${MENU}\Tessel Field Kit.lnk"
    Delete "${MENU}\Tessel Guide.lnk"
    RMDir "${MENU}"
    Call un.giveFilesBack
    DeleteRegKey SHCTX "${ENTRY}"
    !include "${REMOVAL}"
    Delete "$INSTDIR\uninstall.exe"
    RMDir "$INSTDIR"
SectionEnd
