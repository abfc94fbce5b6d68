# Static checks of a built add-in DLL, read from its headers and tables with objdump:
# the PE format of its architecture, the four COM exports and nothing else, imports from
# system DLLs only, and no imported function newer than Windows XP.
function(tarnwell_dll_checks name dll arch)
  add_test(NAME ${name}.tables
    COMMAND ${CMAKE_COMMAND} -DDLL=${dll} -DARCH=${arch} -DSOURCE_DIR=${CMAKE_SOURCE_DIR}
            -DWORK_DIR=${CMAKE_CURRENT_BINARY_DIR}/${name}-check -P ${CMAKE_SOURCE_DIR}/cmake/CheckDll.cmake)
  set_tests_properties(${name}.tables PROPERTIES TIMEOUT 120)
endfunction()
