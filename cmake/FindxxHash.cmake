# xxHash as a header, for which Debian has no CMake file of its own.
find_path(xxHash_INCLUDE_DIR xxhash.h REQUIRED)
mark_as_advanced(xxHash_INCLUDE_DIR)
add_library(xxHash::xxhash INTERFACE IMPORTED)
target_include_directories(xxHash::xxhash INTERFACE ${xxHash_INCLUDE_DIR})
set(xxHash_FOUND TRUE)
