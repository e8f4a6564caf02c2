# Flags of all our own targets. They hold for the directories added after this file.

# No fused multiply-add and no fast math anywhere: the same deck gives the same numbers on every platform.
if(MSVC)
  add_compile_options("$<$<COMPILE_LANGUAGE:CXX>:/fp:precise;/utf-8;/W4>")
  if(BTZ_DEVELOPER)
    add_compile_options("$<$<COMPILE_LANGUAGE:CXX>:/WX>")
  endif()
  set(BTZ_LIBRARY_OPTIONS /GR- /D_HAS_EXCEPTIONS=0)
else()
  add_compile_options("$<$<COMPILE_LANGUAGE:CXX>:-ffp-contract=off;-Wall;-Wextra;-Wpedantic;-Wshadow>")
  if(BTZ_DEVELOPER)
    add_compile_options("$<$<COMPILE_LANGUAGE:CXX>:-Werror>")
  endif()
  # No path of the build machine gets into the library.
  set(BTZ_LIBRARY_OPTIONS -fno-exceptions -fno-rtti "-ffile-prefix-map=${PROJECT_SOURCE_DIR}/=")
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # GCC 12 sees overruns in the standard library's own strings and sorts that are not there. The library, which uses neither, keeps these.
    add_compile_options("$<$<COMPILE_LANGUAGE:CXX>:-Wno-array-bounds;-Wno-restrict;-Wno-stringop-overflow;-Wno-stringop-overread>")
    list(APPEND BTZ_LIBRARY_OPTIONS -Warray-bounds -Wrestrict -Wstringop-overflow -Wstringop-overread)
  endif()
endif()

if(BTZ_SANITIZE)
  # The vptr check needs type information, which the library's objects do without.
  set(sanitizers -fsanitize=address,undefined -fno-sanitize=vptr)
  add_compile_options(${sanitizers} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(${sanitizers})
endif()

if(BTZ_COVERAGE)
  add_compile_options(--coverage -fprofile-update=atomic)
  add_link_options(--coverage)
endif()
