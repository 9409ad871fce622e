; The installer, made by tools/windows.sh, which defines VERSION, FOLDER (what is installed), FILES (the list of it) and OUTPUT.
; For the user alone, without an administrator's rights: so the folder of the geoid models is his to write to.
Target amd64-unicode ; as the program: on a 32-bit Windows neither starts
SetCompressor /SOLID lzma
RequestExecutionLevel user

!include MUI2.nsh
!include FileFunc.nsh

!define NAME "Coordinate System Manager"
!define KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\CoordinateSystemManager"
!define PROGRAM "bin\coordsystem_manager.exe"

Name "${NAME}"
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\${NAME}"
InstallDirRegKey HKCU "${KEY}" "InstallLocation"
VIProductVersion "${VERSION}.0"
VIAddVersionKey FileDescription "${NAME}, installer"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey ProductName "${NAME}"
VIAddVersionKey ProductVersion "${VERSION}"
VIAddVersionKey LegalCopyright ""

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_PAGE_CUSTOMFUNCTION_LEAVE refuseFolderOfOthers
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!define MUI_FINISHPAGE_RUN "$INSTDIR\${PROGRAM}"
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"
!insertmacro MUI_LANGUAGE "German"
!insertmacro MUI_LANGUAGE "French"
!insertmacro MUI_LANGUAGE "Spanish"
!insertmacro MUI_LANGUAGE "SimpChinese"

LangString notWritable ${LANG_ENGLISH} "You can't write to this folder, so you could not add geoid models later. Please choose another one."
LangString notWritable ${LANG_GERMAN} "In diesen Ordner können Sie nicht schreiben und dort später keine Geoidmodelle hinzufügen. Bitte wählen Sie einen anderen."
LangString notWritable ${LANG_FRENCH} "Vous ne pouvez pas écrire dans ce dossier, ni y ajouter plus tard des modèles de géoïde. Veuillez en choisir un autre."
LangString notWritable ${LANG_SPANISH} "No puede escribir en esta carpeta ni añadir después modelos de geoide. Elija otra, por favor."
LangString notWritable ${LANG_SIMPCHINESE} "您无权写入此文件夹，以后将无法添加大地水准面模型。请选择其他文件夹。"

; Sets the error flag when the folder can't be written to.
Function tryFolder
    ClearErrors
    CreateDirectory "$INSTDIR"
    FileOpen $0 "$INSTDIR\writable.tmp" w
    IfErrors done
    FileClose $0
    Delete "$INSTDIR\writable.tmp"
done:
FunctionEnd

Function refuseFolderOfOthers
    Call tryFolder
    IfErrors 0 writable
    MessageBox MB_OK|MB_ICONEXCLAMATION "$(notWritable)"
    Abort
writable:
FunctionEnd

Section
    Call tryFolder ; asked again for an installation without windows
    IfErrors 0 writable
    SetErrorLevel 2
    Abort "$(notWritable)"
writable:
    ; What an older version had and this one lacks goes first.
    IfFileExists "$INSTDIR\uninstall.exe" 0 fresh
    ExecWait '"$INSTDIR\uninstall.exe" /S _?=$INSTDIR'
fresh:
    SetOutPath "$INSTDIR"
    File /r "${FOLDER}/*"
    CreateDirectory "$INSTDIR\etc\Vornhalde\data\GeoidData"
    WriteUninstaller "$INSTDIR\uninstall.exe"
    SetOutPath "$INSTDIR\bin" ; the shortcut's own folder
    CreateShortCut "$SMPROGRAMS\${NAME}.lnk" "$INSTDIR\${PROGRAM}"
    WriteRegStr HKCU "${KEY}" "DisplayName" "${NAME}"
    WriteRegStr HKCU "${KEY}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKCU "${KEY}" "DisplayIcon" "$INSTDIR\${PROGRAM}"
    WriteRegStr HKCU "${KEY}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKCU "${KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
    WriteRegStr HKCU "${KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
    ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
    IntFmt $0 "0x%08X" $0
    WriteRegDWORD HKCU "${KEY}" "EstimatedSize" $0
    WriteRegDWORD HKCU "${KEY}" "NoModify" 1
    WriteRegDWORD HKCU "${KEY}" "NoRepair" 1
SectionEnd

; Takes away what was installed, file by file: geoid models that were added since stay, and so does the user's catalogue,
; which lies elsewhere.
Section un.installed
    !include "${FILES}"
    Delete "$INSTDIR\uninstall.exe"
    RMDir "$INSTDIR"
    Delete "$SMPROGRAMS\${NAME}.lnk"
    DeleteRegKey HKCU "${KEY}"
SectionEnd
