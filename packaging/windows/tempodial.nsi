; The setup program of the add-in for Outlook, for the user who runs it, or with /AllUsers for all; build-installer makes it.
; Given: VERSION, CONTENT (the folder that is installed), OUT (the program to write), and FINISH where the program that
; uninstalls is to be signed.
;
; Each version lies in a folder of its own, to which the registry is switched: so a module that Outlook holds is never
; written over.

Unicode true
ManifestDPIAware true
Name "Tempodial"
OutFile "${OUT}"
RequestExecutionLevel user
ShowInstDetails nevershow
ShowUninstDetails nevershow
BrandingText "Tempodial ${VERSION}"

; In a setup program for 64 bits alone, what is for 32 bits is never reached.
!pragma warning disable 6012

!include FileFunc.nsh
!include LogicLib.nsh
!include WinVer.nsh
!include x64.nsh

!define PROGID "Tempodial.Connect"
!define CLSID "{6C1F8A52-3D0E-4B7B-9E57-2A94C60D7F13}"
!define ADDINS "Microsoft\Office\Outlook\Addins\${PROGID}"
!define PRODUCT "Lindenfold\Tempodial"
!define UNINSTALL "Software\Microsoft\Windows\CurrentVersion\Uninstall\Tempodial"
!define RUNONCE "Software\Microsoft\Windows\CurrentVersion\RunOnce"
!define NO_RIGHTS 5
!define TOO_OLD 6

VIProductVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "Tempodial"
VIAddVersionKey "CompanyName" "Lindenfold"
VIAddVersionKey "FileDescription" "Tempodial setup"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "LegalCopyright" ""

Page directory
Page instfiles
UninstPage uninstConfirm
UninstPage instfiles

!ifdef FINISH
    !uninstfinalize '${FINISH} "%1"' = 0
!endif

Var All ; 1 for all users

; Ends with an exit status and, when somebody is there to read it, a text.
!macro Refuse status text
    MessageBox MB_OK|MB_ICONSTOP "${text}" /SD IDOK
    SetErrorLevel ${status}
    Quit
!macroend

!macro ForAll
    StrCpy $All 1
    SetShellVarContext all
    UserInfo::GetAccountType
    Pop $0
    ${If} $0 != "Admin"
        !insertmacro Refuse ${NO_RIGHTS} "Only an administrator can do this for all users: run it as one."
    ${EndIf}
!macroend

!macro ForUser
    StrCpy $All 0
    SetShellVarContext current
!macroend

; Takes away a folder of a version. One whose module Outlook holds stays whole, since it is in use, and goes when the user,
; or an administrator, signs in again, or with the next setup.
; "For" is "" in the setup and "un." in the program that uninstalls, which can't share functions.
!macro Functions For
Function ${For}RemoveVersion
    Exch $R0
    Delete "$INSTDIR\$R0\x64\Tempodial.dll"
    Delete "$INSTDIR\$R0\x86\Tempodial.dll"
    ${If} ${FileExists} "$INSTDIR\$R0\x64\Tempodial.dll"
    ${OrIf} ${FileExists} "$INSTDIR\$R0\x86\Tempodial.dll"
        WriteRegStr SHCTX "${RUNONCE}" "Tempodial $R0" '"$SYSDIR\cmd.exe" /d /c rmdir /s /q "$INSTDIR\$R0"'
    ${Else}
        DeleteRegValue SHCTX "${RUNONCE}" "Tempodial $R0"
        RMDir /r "$INSTDIR\$R0"
    ${EndIf}
    Pop $R0
FunctionEnd

; Takes away all folders of versions but the one that is passed. They are known by the modules in them.
Function ${For}RemoveVersionsBut
    Exch $R1
    FindFirst $R2 $R3 "$INSTDIR\*"
    ${DoWhile} $R3 != ""
        ${If} $R3 != "$R1"
        ${AndIf} $R3 != "."
        ${AndIf} $R3 != ".."
            ${If} ${FileExists} "$INSTDIR\$R3\x64\Tempodial.dll"
            ${OrIf} ${FileExists} "$INSTDIR\$R3\x86\Tempodial.dll"
                Push $R3
                Call ${For}RemoveVersion
            ${EndIf}
        ${EndIf}
        FindNext $R2 $R3
    ${Loop}
    FindClose $R2
    Pop $R1
FunctionEnd
!macroend
!insertmacro Functions ""
!insertmacro Functions "un."

; The path of a key of software in the view of 32-bit programs. Both views are written by their own paths, from the
; 64-bit one where there is one.
!define OTHER "Wow6432Node\"

!macro ClassKeys view module
    WriteRegStr SHCTX "Software\Classes\${view}CLSID\${CLSID}" "" "Tempodial"
    WriteRegStr SHCTX "Software\Classes\${view}CLSID\${CLSID}\InprocServer32" "" "$INSTDIR\${VERSION}\${module}\Tempodial.dll"
    WriteRegStr SHCTX "Software\Classes\${view}CLSID\${CLSID}\InprocServer32" "ThreadingModel" "Apartment"
    WriteRegStr SHCTX "Software\Classes\${view}CLSID\${CLSID}\ProgID" "" "${PROGID}"
!macroend

!macro AddInKeys root view
    WriteRegStr ${root} "Software\${view}${ADDINS}" "FriendlyName" "Tempodial"
    WriteRegStr ${root} "Software\${view}${ADDINS}" "Description" "Tempodial Outlook AddOn"
    WriteRegDWORD ${root} "Software\${view}${ADDINS}" "LoadBehavior" 3
    WriteRegDWORD ${root} "Software\${view}${ADDINS}" "CommandLineSafe" 0
    WriteRegDWORD ${root} "Software\${view}${ADDINS}" "RequireShutdownNotification" 1
!macroend

!macro MachineKeys view
    !insertmacro AddInKeys HKLM "${view}"
    WriteRegStr HKLM "Software\${view}${PRODUCT}" "Install Directory" "$INSTDIR\${VERSION}"
!macroend

Function .onInit
    ${IfNot} ${AtLeastWin7}
        !insertmacro Refuse ${TOO_OLD} "Tempodial needs Windows 7 or later."
    ${EndIf}
    ${If} ${RunningX64}
        SetRegView 64
    ${EndIf}
    ${GetParameters} $0
    ClearErrors
    ${GetOptions} $0 "/AllUsers" $1
    ${If} ${Errors}
        !insertmacro ForUser
    ${Else}
        !insertmacro ForAll
    ${EndIf}
    ; A folder that is given goes before the one that the installed version is in.
    ${If} $INSTDIR == ""
        ReadRegStr $INSTDIR SHCTX "${UNINSTALL}" "InstallLocation"
    ${EndIf}
    ${If} $INSTDIR == ""
        ${If} $All = 1
            StrCpy $INSTDIR "$PROGRAMFILES64\Tempodial"
        ${Else}
            StrCpy $INSTDIR "$LOCALAPPDATA\Programs\Tempodial"
        ${EndIf}
    ${EndIf}
FunctionEnd

; A module of the same version that Outlook holds can't be written over, but it can be renamed.
!macro MakeRoom module
    Delete "$INSTDIR\${VERSION}\${module}\*.old"
    Delete "$INSTDIR\${VERSION}\${module}\Tempodial.dll"
    ${If} ${FileExists} "$INSTDIR\${VERSION}\${module}\Tempodial.dll"
        System::Call 'kernel32::GetTickCount()i.r0'
        Rename "$INSTDIR\${VERSION}\${module}\Tempodial.dll" "$INSTDIR\${VERSION}\${module}\Tempodial-$0.old"
    ${EndIf}
!macroend

Section
    ; This version may have been told to go.
    DeleteRegValue SHCTX "${RUNONCE}" "Tempodial ${VERSION}"
    !insertmacro MakeRoom x64
    !insertmacro MakeRoom x86
    SetOutPath "$INSTDIR\${VERSION}"
    File /r "${CONTENT}\*"
    SetOutPath "$INSTDIR"
    WriteUninstaller "$INSTDIR\uninstall.exe"

    ${If} ${RunningX64}
        !insertmacro ClassKeys "" x64
        !insertmacro ClassKeys "${OTHER}" x86
    ${Else}
        !insertmacro ClassKeys "" x86
    ${EndIf}
    WriteRegStr SHCTX "Software\Classes\${PROGID}\CLSID" "" "${CLSID}"
    !insertmacro AddInKeys HKCU ""
    ${If} $All = 1
        !insertmacro MachineKeys ""
        ${If} ${RunningX64}
            !insertmacro MachineKeys "${OTHER}"
        ${EndIf}
    ${EndIf}

    WriteRegStr SHCTX "${UNINSTALL}" "DisplayName" "Tempodial"
    WriteRegStr SHCTX "${UNINSTALL}" "DisplayVersion" "${VERSION}"
    WriteRegStr SHCTX "${UNINSTALL}" "Publisher" "Lindenfold"
    WriteRegStr SHCTX "${UNINSTALL}" "InstallLocation" "$INSTDIR"
    WriteRegStr SHCTX "${UNINSTALL}" "UninstallString" '"$INSTDIR\uninstall.exe"'
    WriteRegStr SHCTX "${UNINSTALL}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
    WriteRegDWORD SHCTX "${UNINSTALL}" "NoModify" 1
    WriteRegDWORD SHCTX "${UNINSTALL}" "NoRepair" 1

    ; The keys name this version now, so nobody asks for the older ones any more.
    Push "${VERSION}"
    Call RemoveVersionsBut
SectionEnd

Function un.onInit
    ${If} ${RunningX64}
        SetRegView 64
    ${EndIf}
    ReadRegStr $0 HKLM "${UNINSTALL}" "InstallLocation"
    ${If} $0 == $INSTDIR
        !insertmacro ForAll
    ${Else}
        !insertmacro ForUser
    ${EndIf}
FunctionEnd

; The data folder, the user's values of the registry, and all that is in the mailbox stay.
Section Uninstall
    DeleteRegKey SHCTX "Software\Classes\CLSID\${CLSID}"
    DeleteRegKey SHCTX "Software\Classes\${OTHER}CLSID\${CLSID}"
    DeleteRegKey SHCTX "Software\Classes\${PROGID}"
    DeleteRegKey HKCU "Software\${ADDINS}"
    ${If} $All = 1
        DeleteRegKey HKLM "Software\${ADDINS}"
        DeleteRegKey HKLM "Software\${OTHER}${ADDINS}"
        DeleteRegValue HKLM "Software\${PRODUCT}" "Install Directory"
        DeleteRegValue HKLM "Software\${OTHER}${PRODUCT}" "Install Directory"
        DeleteRegKey /ifempty HKLM "Software\${PRODUCT}"
        DeleteRegKey /ifempty HKLM "Software\${OTHER}${PRODUCT}"
    ${EndIf}
    DeleteRegKey SHCTX "${UNINSTALL}"
    Push ""
    Call un.RemoveVersionsBut
    Delete "$INSTDIR\uninstall.exe"
    RMDir "$INSTDIR"
SectionEnd
