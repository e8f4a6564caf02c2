# The packages around the library, all from the distribution: GoogleTest for the tests; CLI11, fmt and nlohmann-json for the program.
# Afterwards the targets GTest::gmock_main, CLI11::CLI11, fmt::fmt-header-only and nlohmann_json::nlohmann_json exist in every build.

if(NOT CMAKE_CROSSCOMPILING)
  find_package(GTest REQUIRED)
  find_package(CLI11 REQUIRED)
  find_package(fmt REQUIRED)
  find_package(nlohmann_json REQUIRED)
  return()
endif()

# A cross build has no packages of its own. GoogleTest is built from the sources that the distribution installs.
set(BTZ_GOOGLETEST_SOURCE /usr/src/googletest CACHE PATH "Folder of the GoogleTest sources")
set(BUILD_GMOCK ON)
set(INSTALL_GTEST OFF)
add_subdirectory("${BTZ_GOOGLETEST_SOURCE}" googletest EXCLUDE_FROM_ALL SYSTEM)
if(NOT TARGET GTest::gmock_main)
  add_library(GTest::gmock_main ALIAS gmock_main)
endif()

# The other three are used as headers only. /usr/include itself would hide the cross compiler's own headers, so a folder of links
# shows these three and nothing else.
set(headerLinks "${PROJECT_BINARY_DIR}/header_only")
file(MAKE_DIRECTORY "${headerLinks}")
foreach(folder CLI fmt nlohmann)
  find_path(BTZ_${folder}_PARENT NAMES ${folder} PATHS /usr/include NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH REQUIRED)
  file(CREATE_LINK "${BTZ_${folder}_PARENT}/${folder}" "${headerLinks}/${folder}" SYMBOLIC)
endforeach()
foreach(package CLI11::CLI11 fmt::fmt-header-only nlohmann_json::nlohmann_json)
  add_library(${package} INTERFACE IMPORTED GLOBAL)
  target_include_directories(${package} SYSTEM INTERFACE "${headerLinks}")
endforeach()
target_compile_definitions(fmt::fmt-header-only INTERFACE FMT_HEADER_ONLY=1)
