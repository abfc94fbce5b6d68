# Cross-compiling for Windows with Debian's mingw-w64. Included by the two toolchain
# files, which set TARNWELL_MINGW_ARCH (x86_64 or i686).
#
# Debian ships each compiler in two thread models. The add-in DLL is built with -win32:
# the -posix runtime (winpthreads) imports GetTickCount64, which the XP system DLLs lack,
# and a host on XP would refuse to load the DLL. GoogleTest needs std::mutex, which only
# the -posix runtime has, so the test programs are built with -posix.
set(TARNWELL_MINGW_THREADS win32 CACHE STRING
    "mingw-w64 thread model: win32 (the add-in DLL) or posix (the test programs)")
set_property(CACHE TARNWELL_MINGW_THREADS PROPERTY STRINGS win32 posix)
# try_compile projects read this file again: hand them the same choice.
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES TARNWELL_MINGW_ARCH TARNWELL_MINGW_THREADS)

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR ${TARNWELL_MINGW_ARCH})
set(TARNWELL_MINGW_TRIPLE ${TARNWELL_MINGW_ARCH}-w64-mingw32)
set(CMAKE_C_COMPILER ${TARNWELL_MINGW_TRIPLE}-gcc-${TARNWELL_MINGW_THREADS})
set(CMAKE_CXX_COMPILER ${TARNWELL_MINGW_TRIPLE}-g++-${TARNWELL_MINGW_THREADS})
set(CMAKE_RC_COMPILER ${TARNWELL_MINGW_TRIPLE}-windres)
set(CMAKE_OBJDUMP ${TARNWELL_MINGW_TRIPLE}-objdump)

# Libraries and headers come from the mingw-w64 tree only, never from the Linux system.
set(CMAKE_FIND_ROOT_PATH /usr/${TARNWELL_MINGW_TRIPLE})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Static C and C++ runtimes: the DLL and the test programs import only system DLLs.
foreach(kind EXE SHARED MODULE)
  set(CMAKE_${kind}_LINKER_FLAGS_INIT "-static")
endforeach()

# The host releases the add-in serves ran on Windows 2000 and XP: the headers then hide
# every function newer than XP, so using one is a compile error. Text crosses the Win32
# boundary as UTF-16: the W functions are the default.
set(CMAKE_CXX_FLAGS_INIT "-D_WIN32_WINNT=0x0501 -DWINVER=0x0501 -DUNICODE -D_UNICODE")
set(CMAKE_C_FLAGS_INIT "${CMAKE_CXX_FLAGS_INIT}")
# GCC 12 warns falsely about std::string concatenation at -O3 (its bug 105329).
string(APPEND CMAKE_CXX_FLAGS_INIT " -Wno-restrict")
