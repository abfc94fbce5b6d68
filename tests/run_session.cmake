# Plays one session script and compares its transcript with the expected one.
get_filename_component(dir ${SCRIPT} DIRECTORY)
get_filename_component(name ${SCRIPT} NAME_WE)
set(expected_file ${dir}/${name}.expected)
string(RANDOM LENGTH 8 tag)
set(settings_file $ENV{TMPDIR})
if(NOT settings_file)
  set(settings_file /tmp)
endif()
set(ENV{TARNWELL_SETTINGS} ${settings_file}/tarnwell-session-${name}-${tag}.ini)
# EMULATOR runs a Windows build's program (under Wine); OPTIONS go before the script. A
# script named strict_* is played with --strict.
if(name MATCHES "^strict_")
  list(APPEND OPTIONS --strict)
endif()
execute_process(
  COMMAND ${EMULATOR} ${TARNWELL} run ${OPTIONS} ${SCRIPT}
  WORKING_DIRECTORY ${SOURCE_DIR}
  OUTPUT_VARIABLE actual ERROR_VARIABLE errors RESULT_VARIABLE rc)
file(REMOVE $ENV{TARNWELL_SETTINGS})
# A crash or a sanitizer report fails the test whatever the transcript says.
foreach(alarm "runtime error:" "AddressSanitizer" "LeakSanitizer" "terminate called" "Segmentation fault")
  string(FIND "${errors}" "${alarm}" found)
  if(NOT found EQUAL -1)
    message(FATAL_ERROR "${SCRIPT} reported \"${alarm}\":\n${errors}")
  endif()
endforeach()
# A run that ends with another status than 0 says so as the transcript's last line, so
# the expected transcript must state it.
if(NOT rc EQUAL 0)
  string(APPEND actual "[exit status ${rc}]\n")
endif()
if(NOT EXISTS ${expected_file})
  message(FATAL_ERROR "No expected transcript ${expected_file}. Actual:\n${actual}${errors}")
endif()
file(READ ${expected_file} expected)
if(NOT actual STREQUAL expected)
  file(WRITE ${settings_file}/${name}.actual "${actual}")
  execute_process(COMMAND diff -u ${expected_file} ${settings_file}/${name}.actual OUTPUT_VARIABLE d)
  message(FATAL_ERROR "Transcript differs from ${expected_file} (rc ${rc}):\n${d}\n${errors}")
endif()
