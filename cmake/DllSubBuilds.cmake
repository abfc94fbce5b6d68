# The add-in DLL of both architectures, built with the -win32 compilers in sub-builds of
# this -posix test tree, so that one `windows` build and test run covers what a designer
# installs. TARNWELL_DLL_<arch> and TARNWELL_INSTALLER_<arch> name what the tests use.
include(ExternalProject)
include(${CMAKE_CURRENT_LIST_DIR}/DllChecks.cmake)
foreach(arch x86_64 i686)
  set(dir ${CMAKE_BINARY_DIR}/dll-${arch})
  ExternalProject_Add(tarnwell_dll_${arch}
    SOURCE_DIR ${CMAKE_SOURCE_DIR}
    BINARY_DIR ${dir}
    CMAKE_ARGS -DCMAKE_TOOLCHAIN_FILE=${CMAKE_SOURCE_DIR}/cmake/mingw-w64-${arch}.cmake
               -DTARNWELL_MINGW_THREADS=win32 -DCMAKE_BUILD_TYPE=${CMAKE_BUILD_TYPE}
    BUILD_ALWAYS ON
    INSTALL_COMMAND ""
    BUILD_BYPRODUCTS ${dir}/win/dll/Tarnwell.dll)
  set(TARNWELL_DLL_${arch} ${dir}/win/dll/Tarnwell.dll)
  if(arch STREQUAL "x86_64")
    set(TARNWELL_INSTALLER_${arch} ${dir}/win/installer/Tarnwell-setup-x64.exe)
  else()
    set(TARNWELL_INSTALLER_${arch} ${dir}/win/installer/Tarnwell-setup.exe)
  endif()
  tarnwell_dll_checks(dll.${arch} ${TARNWELL_DLL_${arch}} ${arch})
endforeach()

# The check itself catches what it is for: a table with functions newer than XP and an
# import from the -posix runtime's DLL.
add_test(NAME dll.check-catches-newer-imports
  COMMAND ${CMAKE_COMMAND} -DOBJDUMP_OUTPUT=${CMAKE_SOURCE_DIR}/win/tests/fixtures/vista-imports.objdump
          -DARCH=i686 -DWORK_DIR=${CMAKE_BINARY_DIR}/dll-check-self -P ${CMAKE_CURRENT_LIST_DIR}/CheckDll.cmake)
set_tests_properties(dll.check-catches-newer-imports PROPERTIES PASS_REGULAR_EXPRESSION
  "libwinpthread-1.dll, which is no system DLL.*RegDeleteTreeW: newer than XP.*GetTickCount64: newer than XP")
