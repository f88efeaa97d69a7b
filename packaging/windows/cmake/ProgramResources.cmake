# What the files of packaging/windows add to an executable, so that src/ says only that it wants it.
enable_language(RC)
set(_mivo_packaging ${CMAKE_CURRENT_LIST_DIR}/..)

# The version text stands in the sources.
file(STRINGS ${PROJECT_SOURCE_DIR}/src/base/program_version.h MIVO_VERSION_TEXT REGEX "kProgramVersion =")
string(REGEX REPLACE ".*u\"(.*)\".*" "\\1" MIVO_VERSION_TEXT "${MIVO_VERSION_TEXT}")

# mivo_program_resources(TARGET DESCRIPTION [ICON]): manifest, version information, and the icon
function(mivo_program_resources target DESCRIPTION)
  set(NAME ${target})
  set(MANIFEST ${_mivo_packaging}/program.manifest)
  set(inputs ${MANIFEST})
  if("ICON" IN_LIST ARGN)
    set(ICON_LINE "1 ICON \"${_mivo_packaging}/mivo.ico\"")
    list(APPEND inputs ${_mivo_packaging}/mivo.ico)
  endif()
  set(script ${CMAKE_CURRENT_BINARY_DIR}/${target}.rc)
  configure_file(${_mivo_packaging}/program.rc.in ${script} @ONLY)
  target_sources(${target} PRIVATE ${script})
  set_property(SOURCE ${script} PROPERTY OBJECT_DEPENDS ${inputs})
endfunction()
