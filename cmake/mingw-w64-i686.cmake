# Windows i686 with mingw-w64: the host releases the add-in targets are 32-bit programs,
# so this is the DLL a designer installs.
set(TARNWELL_MINGW_ARCH i686)
include(${CMAKE_CURRENT_LIST_DIR}/mingw-w64.cmake)
