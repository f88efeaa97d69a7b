# From the sources that Debian's libgtest-dev brings along; they name their targets like the package.
set(BUILD_GMOCK ON)
set(INSTALL_GTEST OFF)
add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)
set(GTest_FOUND TRUE)
