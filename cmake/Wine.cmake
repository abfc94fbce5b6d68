# Runs the Windows test programs under wine64. Every test that starts a Windows program
# requires the fixture `wine`, which prepares the build's own prefix and keeps one Wine
# server up for the whole run.
find_program(TARNWELL_WINE64 wine64 PATHS /usr/lib/wine REQUIRED)
find_program(TARNWELL_WINESERVER wineserver PATHS /usr/lib/wine REQUIRED)
set(TARNWELL_WINEPREFIX ${CMAKE_BINARY_DIR}/wineprefix)
set(TARNWELL_WINE ${CMAKE_BINARY_DIR}/wine)
configure_file(${CMAKE_CURRENT_LIST_DIR}/wine.sh.in ${TARNWELL_WINE} @ONLY
               FILE_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE
                                WORLD_READ WORLD_EXECUTE)
set(CMAKE_CROSSCOMPILING_EMULATOR ${TARNWELL_WINE})

add_test(NAME wine.start COMMAND ${TARNWELL_WINE} --start)
set_tests_properties(wine.start PROPERTIES FIXTURES_SETUP wine TIMEOUT 180)
add_test(NAME wine.stop COMMAND ${TARNWELL_WINE} --stop)
set_tests_properties(wine.stop PROPERTIES FIXTURES_CLEANUP wine TIMEOUT 30)

# A GoogleTest program run as one test under Wine: one Wine process per area keeps the
# run short. A program that hangs (a window-less timer, a modal loop) fails on its TIMEOUT.
function(tarnwell_wine_test name)
  cmake_parse_arguments(T "" "" "SOURCES;LIBS" ${ARGN})
  add_executable(${name} ${T_SOURCES})
  target_link_libraries(${name} PRIVATE ${T_LIBS} GTest::gtest GTest::gtest_main)
  target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR})
  add_test(NAME ${name} COMMAND ${name} --gtest_brief=1)
  set_tests_properties(${name} PROPERTIES FIXTURES_REQUIRED wine TIMEOUT 120)
endfunction()
