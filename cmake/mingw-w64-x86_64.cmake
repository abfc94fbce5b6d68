# Windows x86_64 with mingw-w64: the build whose programs the tests run under wine64,
# and the DLL later 64-bit host releases load.
set(TARNWELL_MINGW_ARCH x86_64)
include(${CMAKE_CURRENT_LIST_DIR}/mingw-w64.cmake)
