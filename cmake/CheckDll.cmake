# Checks an add-in DLL by its tables (run with cmake -P):
#   DLL       the DLL, or OBJDUMP_OUTPUT: a saved `objdump -p` of one (to test this check)
#   ARCH      x86_64 or i686
#   WORK_DIR  a scratch folder
# A host on Windows 2000 or XP refuses a DLL that imports a function its system DLLs lack,
# and a designer's machine has no mingw-w64 runtime DLLs: both show in the import table.
cmake_minimum_required(VERSION 3.22)
set(triple ${ARCH}-w64-mingw32)
if(OBJDUMP_OUTPUT)
  file(READ ${OBJDUMP_OUTPUT} table)
else()
  execute_process(COMMAND ${triple}-objdump -p ${DLL} OUTPUT_VARIABLE table RESULT_VARIABLE rc)
  if(NOT rc EQUAL 0)
    message(FATAL_ERROR "objdump cannot read ${DLL}")
  endif()
endif()
set(problems "")

# The format of the architecture: the 32-bit host releases load PE32 only.
if(ARCH STREQUAL "i686")
  set(format "file format pei-i386")
  set(magic "Magic[ \t]+010b[ \t]+\\(PE32\\)")
else()
  set(format "file format pei-x86-64")
  set(magic "Magic[ \t]+020b[ \t]+\\(PE32\\+\\)")
endif()
if(NOT table MATCHES "${format}" OR NOT table MATCHES "${magic}")
  string(APPEND problems "\n  not a ${ARCH} DLL (${format}, ${magic})")
endif()

# Exactly the four exports of an in-process COM server.
string(REGEX MATCH "\\[Ordinal/Name Pointer\\] Table\n([^\n]+\n)*" exports "${table}")
string(REGEX MATCHALL "\\[ *[0-9]+\\] [A-Za-z_@0-9]+" exports "${exports}")
list(TRANSFORM exports REPLACE "^\\[ *[0-9]+\\] " "")
list(SORT exports)
if(NOT exports STREQUAL "DllCanUnloadNow;DllGetClassObject;DllRegisterServer;DllUnregisterServer")
  string(APPEND problems "\n  exports are [${exports}], not the four COM exports")
endif()

# Imports, by DLL. Lines: "DLL Name: X" then "<hint-rva> <ordinal> <name>" per function.
set(system_dlls advapi32 comctl32 comdlg32 gdi32 kernel32 msvcrt ole32 oleaut32 shell32 shlwapi user32 version)
set(api_functions "")
set(crt_functions "")
set(dll "")
string(REPLACE "\n" ";" lines "${table}")
foreach(line IN LISTS lines)
  if(line MATCHES "DLL Name: ([^ \t]+)")
    set(name ${CMAKE_MATCH_1})
    string(TOLOWER "${name}" dll)
    string(REGEX REPLACE "\\.dll$" "" dll "${dll}")
    if(NOT dll IN_LIST system_dlls)
      string(APPEND problems "\n  imports from ${name}, which is no system DLL")
      set(dll "")  # its functions need no further look
    endif()
  elseif(dll AND line MATCHES "^\t[0-9a-f]+\t +[0-9]+ +([A-Za-z_][A-Za-z_0-9@]*)$")
    if(dll STREQUAL "msvcrt")
      list(APPEND crt_functions ${CMAKE_MATCH_1})
    else()
      list(APPEND api_functions ${CMAKE_MATCH_1})
    endif()
  elseif(line STREQUAL "" OR line MATCHES "^[A-Z]")
    set(dll "")
  endif()
endforeach()
if(NOT api_functions AND NOT crt_functions)
  string(APPEND problems "\n  no imports found: the table was not read")
endif()

# XP's msvcrt.dll predates the secure and per-thread-locale functions later ones have.
foreach(f IN LISTS crt_functions)
  if(f MATCHES "_s$|^_get_|^_set_invalid_parameter_handler$|^_create_locale$|^_free_locale$|^_configthreadlocale$")
    string(APPEND problems "\n  msvcrt.dll ${f}: newer than XP")
  endif()
endforeach()

# The SDK headers say when each system function arrived: with _WIN32_WINNT at XP they
# declare none newer, so taking the address of one fails to compile.
set(source "// clang-format off\n#include <windows.h>\n#include <ole2.h>\n#include <olectl.h>\n")
string(APPEND source "#include <shlobj.h>\n#include <shlwapi.h>\n#include <commdlg.h>\n#include <commctrl.h>\n")
foreach(f IN LISTS api_functions)
  string(APPEND source "const void* ${f}_at_xp = reinterpret_cast<const void*>(&::${f});\n")
endforeach()
file(MAKE_DIRECTORY ${WORK_DIR})
file(WRITE ${WORK_DIR}/imports.cpp "${source}")
execute_process(
  COMMAND ${CMAKE_COMMAND} -E env LC_ALL=C
          ${triple}-g++-win32 -fsyntax-only -D_WIN32_WINNT=0x0501 -DWINVER=0x0501 ${WORK_DIR}/imports.cpp
  ERROR_VARIABLE errors RESULT_VARIABLE rc)
if(NOT rc EQUAL 0)
  string(REGEX MATCHALL "'::[A-Za-z_0-9]+' has not been declared" undeclared "${errors}")
  list(TRANSFORM undeclared REPLACE "^'::([A-Za-z_0-9]+)' has not been declared$" "\\1")
  list(REMOVE_DUPLICATES undeclared)
  foreach(f IN LISTS undeclared)
    string(APPEND problems "\n  ${f}: newer than XP (not declared at _WIN32_WINNT 0x0501)")
  endforeach()
  if(NOT undeclared)
    string(APPEND problems "\n  the import check does not compile:\n${errors}")
  endif()
endif()

if(problems)
  message(FATAL_ERROR "${DLL}${OBJDUMP_OUTPUT}:${problems}")
endif()
list(LENGTH api_functions api_count)
list(LENGTH crt_functions crt_count)
message(STATUS "${ARCH}: PE format, four COM exports, ${api_count} system and ${crt_count} C runtime imports, none newer than XP")
