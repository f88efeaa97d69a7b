# mivo_host_headers(TARGET NAME...)
#
# A library of nothing but headers, which Debian has for every system in /usr/include. That folder
# as a whole would hide mingw's own headers, so the target gets a folder with links to those that
# are named.
function(mivo_host_headers target)
  set(folder ${CMAKE_BINARY_DIR}/host-headers/${target})
  string(REPLACE "::" "-" folder ${folder})
  file(MAKE_DIRECTORY ${folder})
  foreach(name IN LISTS ARGN)
    if(NOT EXISTS /usr/include/${name})
      message(FATAL_ERROR "/usr/include/${name} is missing; script/packages lists its package.")
    endif()
    file(CREATE_LINK /usr/include/${name} ${folder}/${name} SYMBOLIC)
  endforeach()
  add_library(${target} INTERFACE IMPORTED)
  target_include_directories(${target} INTERFACE ${folder})
endfunction()
