; The add-in's installer: copies the DLL, registers it (the keys by which the host finds
; it), and adds an uninstaller that removes every file and key the installer wrote. The
; designer's settings (HKCU\Software\VB and VBA Program Settings\Tarnwell) are theirs: both
; leave them alone.
;
; Later hosts find add-ins by an .addin manifest in the all-users Inventor Addins folder
; instead of the registry: the installer writes the build's manifest there, naming the DLL
; where it was installed.
;
; makensis -D: DLL (the DLL to install), MANIFEST (the build's Tarnwell.addin), TARGET (x86-unicode for the 32-bit host releases,
; amd64-unicode for the copy the tests run under wine64), OUTFILE, VERSION.
Unicode true
!include WordFunc.nsh
Target ${TARGET}
Name "Tarnwell"
OutFile "${OUTFILE}"
RequestExecutionLevel admin
SetCompressor /SOLID lzma
!if ${TARGET} == "amd64-unicode"
InstallDir "$PROGRAMFILES64\Tarnwell"
!else
InstallDir "$PROGRAMFILES\Tarnwell"
!endif

!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Tarnwell"
!define ADDINS_FOLDER "$APPDATA\Autodesk\Inventor Addins"
!define BUILT_ASSEMBLY "<Assembly>Tarnwell.dll</Assembly>"

; Copies the build's manifest into the add-ins folder, its DLL named by full path.
Function WriteManifest
  InitPluginsDir
  File "/oname=$PLUGINSDIR\Tarnwell.addin" "${MANIFEST}"
  SetShellVarContext all
  CreateDirectory "${ADDINS_FOLDER}"
  FileOpen $0 "$PLUGINSDIR\Tarnwell.addin" r
  FileOpen $1 "${ADDINS_FOLDER}\Tarnwell.addin" w
  next:
    FileRead $0 $2
    StrCmp $2 "" done
    ${WordReplace} $2 "${BUILT_ASSEMBLY}" "<Assembly>$INSTDIR\Tarnwell.dll</Assembly>" "+" $2
    FileWrite $1 $2
    Goto next
  done:
  FileClose $0
  FileClose $1
  SetShellVarContext current
FunctionEnd

Page directory
Page instfiles
UninstPage uninstConfirm
UninstPage instfiles

Section "Tarnwell"
  SetOutPath "$INSTDIR"
  File "/oname=Tarnwell.dll" "${DLL}"
  ClearErrors
  RegDLL "$INSTDIR\Tarnwell.dll"
  IfErrors 0 registered
    ; Nothing half installed: the DLL goes again and the installer reports failure.
    Delete "$INSTDIR\Tarnwell.dll"
    RMDir "$INSTDIR"
    MessageBox MB_OK|MB_ICONSTOP "Tarnwell.dll could not be registered." /SD IDOK
    Abort
  registered:
  Call WriteManifest
  WriteUninstaller "$INSTDIR\Uninstall.exe"
  WriteRegStr HKLM "${UNINSTALL_KEY}" "DisplayName" "Tarnwell"
  WriteRegStr HKLM "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKLM "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKLM "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\Uninstall.exe"'
  WriteRegDWORD HKLM "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD HKLM "${UNINSTALL_KEY}" "NoRepair" 1
SectionEnd

Section "Uninstall"
  UnRegDLL "$INSTDIR\Tarnwell.dll"
  Delete "$INSTDIR\Tarnwell.dll"
  Delete "$INSTDIR\Uninstall.exe"
  RMDir "$INSTDIR"
  SetShellVarContext all
  Delete "${ADDINS_FOLDER}\Tarnwell.addin"
  ; Only when empty: other add-ins' manifests may live there.
  RMDir "${ADDINS_FOLDER}"
  RMDir "$APPDATA\Autodesk"
  SetShellVarContext current
  DeleteRegKey HKLM "${UNINSTALL_KEY}"
SectionEnd
