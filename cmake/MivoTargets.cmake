# The kinds of target that Mivo is made of, so that each folder's CMakeLists.txt only says
# what is in the folder and which folders lie below it.

# Carries the warnings, the sanitizers and the floating-point rule to every target of ours.
add_library(mivo_build_flags INTERFACE)
target_compile_options(
  mivo_build_flags
  INTERFACE -Wall
            -Wextra
            -Wpedantic
            -Wshadow
            -Wconversion
            -Wnon-virtual-dtor
            -Woverloaded-virtual
            # Fused multiply-add would make hit tests differ from compiler to compiler.
            -ffp-contract=off)
if(MIVO_WERROR)
  target_compile_options(mivo_build_flags INTERFACE -Werror)
endif()
if(MIVO_SANITIZE)
  set(_mivo_sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all
                       -fno-omit-frame-pointer)
  target_compile_options(mivo_build_flags INTERFACE ${_mivo_sanitizers})
  target_compile_definitions(mivo_build_flags INTERFACE _GLIBCXX_ASSERTIONS)
  target_link_options(mivo_build_flags INTERFACE ${_mivo_sanitizers})
endif()

# mivo_library(NAME SOURCES <cpp...> HEADERS <h...> LINK <targets...> [PRIVATE_LINK <targets...>])
#
# A folder of src/ as a static library. Its include path is the folder itself and is passed on only
# to those who link it, so an include that reaches upwards does not compile.
function(mivo_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;HEADERS;LINK;PRIVATE_LINK" ${ARGN})
  add_library(${name} STATIC ${ARG_SOURCES})
  target_sources(${name} PUBLIC FILE_SET HEADERS BASE_DIRS ${CMAKE_CURRENT_SOURCE_DIR} FILES
                                ${ARG_HEADERS})
  set_target_properties(${name} PROPERTIES VERIFY_INTERFACE_HEADER_SETS ${MIVO_DEVELOPER})
  target_link_libraries(${name} PUBLIC ${ARG_LINK} PRIVATE mivo_build_flags ${ARG_PRIVATE_LINK})
  if(MIVO_FUZZ) # lets the fuzz targets see which of its code they reach
    target_compile_options(${name} PRIVATE -fsanitize=fuzzer-no-link)
  endif()
endfunction()

# mivo_test(NAME SOURCES <cpp...> [POSIX_SOURCES <cpp...>] [WINDOWS_SOURCES <cpp...>] LINK
# <targets...>)
#
# One GoogleTest executable per source folder, linked to that folder's library only, so that a test
# cannot quietly come to need an upper layer. It runs in an environment of its own (tests/support).
# ctest tries the same cases of a property every time; started by hand, the program tries new ones.
# POSIX_SOURCES and WINDOWS_SOURCES are compiled for such a system only; whole files about properties
# count as POSIX, because there is no RapidCheck for Windows.
function(mivo_test name)
  cmake_parse_arguments(ARG "" "" "SOURCES;POSIX_SOURCES;WINDOWS_SOURCES;LINK" ${ARGN})
  if(WIN32)
    list(APPEND ARG_SOURCES ${ARG_WINDOWS_SOURCES})
  else()
    list(APPEND ARG_SOURCES ${ARG_POSIX_SOURCES})
  endif()
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE ${ARG_LINK} mivo_test_support mivo_build_flags GTest::gmock
                                        GTest::gtest_main)
  if(WIN32) # all is linked statically, what draws off screen only on demand
    qt_import_plugins(${name} INCLUDE Qt6::QOffscreenIntegrationPlugin)
  endif()
  # A test is compiled far longer than it runs.
  target_compile_options(${name} PRIVATE $<$<CONFIG:Release>:-O1> $<$<CONFIG:Debug>:-O0>)
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
  if(CMAKE_CROSSCOMPILING) # a process of Wine for every single test would take far too long
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES TIMEOUT 300)
    return()
  endif()
  gtest_discover_tests(
    ${name}
    TEST_PREFIX ${name}.
    NO_PRETTY_VALUES # the case's own name, not the bytes of its parameter
    DISCOVERY_MODE PRE_TEST
    DISCOVERY_TIMEOUT 120
    PROPERTIES TIMEOUT 300 ENVIRONMENT RC_PARAMS=seed=1)
endfunction()
