# GoogleTest for the Windows test programs, built from Debian's source package with this
# tree's compilers (the -posix ones: GoogleTest needs std::mutex).
set(TARNWELL_GOOGLETEST_SOURCE /usr/src/googletest/googletest CACHE PATH "GoogleTest sources")
if(NOT EXISTS ${TARNWELL_GOOGLETEST_SOURCE}/CMakeLists.txt)
  message(FATAL_ERROR "No GoogleTest sources in ${TARNWELL_GOOGLETEST_SOURCE}: run scripts/setup --windows")
endif()
set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
add_subdirectory(${TARNWELL_GOOGLETEST_SOURCE} ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)
# GoogleTest names its targets GTest::gtest and GTest::gtest_main itself.
