# btz_add_test(NAME name COMMAND command... LABELS label... [ENVIRONMENT VAR=value...] [TIMEOUT seconds])
#
# Adds one test. Labels: `quick` for what runs before every commit, `full` for the rest; `golden`, `abi`, `wine` tell the kind.
# In a cross build a program of this build runs under Wine, in the build folder's own Wine prefix, while the fixture `wine` keeps
# one Wine process alive: otherwise every test would wait for a Wine server to start and to end.
set(BTZ_WINE_PREFIX "${PROJECT_BINARY_DIR}/wine")
set(BTZ_WINE_ENVIRONMENT "WINEPREFIX=${BTZ_WINE_PREFIX}" "WINEDEBUG=-all" "WINEDLLOVERRIDES=mscoree,mshtml=")

function(btz_run_under_wine name)
  if(CMAKE_CROSSCOMPILING)
    set_property(TEST ${name} APPEND PROPERTY FIXTURES_REQUIRED wine)
    set_property(TEST ${name} APPEND PROPERTY LABELS wine)
    set_property(TEST ${name} APPEND PROPERTY ENVIRONMENT ${BTZ_WINE_ENVIRONMENT})
  endif()
endfunction()

function(btz_add_test)
  cmake_parse_arguments(PARSE_ARGV 0 arg "" "NAME;TIMEOUT" "COMMAND;LABELS;ENVIRONMENT")
  if(NOT arg_TIMEOUT)
    set(arg_TIMEOUT 300)
  endif()
  add_test(NAME ${arg_NAME} COMMAND ${arg_COMMAND})
  set_tests_properties(${arg_NAME} PROPERTIES TIMEOUT ${arg_TIMEOUT})
  set_property(TEST ${arg_NAME} PROPERTY LABELS ${arg_LABELS})
  set_property(TEST ${arg_NAME} PROPERTY ENVIRONMENT ${arg_ENVIRONMENT})
  btz_run_under_wine(${arg_NAME})
endfunction()
