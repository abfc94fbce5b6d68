; The add-in's installer: copies the DLL, registers it (the keys by which the host finds
; it), and adds an uninstaller that removes every file and key the installer wrote. The
; designer's settings (HKCU\Software\VB and VBA Program Settings\Tarnwell) are theirs: both
; leave them alone.
;
; makensis -D: DLL (the DLL to install), TARGET (x86-unicode for the 32-bit host releases,
; amd64-unicode for the copy the tests run under wine64), OUTFILE, VERSION.
Unicode true
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
  DeleteRegKey HKLM "${UNINSTALL_KEY}"
SectionEnd
