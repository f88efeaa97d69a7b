# Debian has no RapidCheck for Windows, only its headers: properties compile, and count as skipped.
include(HostHeaders)
mivo_host_headers(rapidcheck rapidcheck rapidcheck.h)
target_include_directories(rapidcheck BEFORE INTERFACE ${PROJECT_SOURCE_DIR}/tests/support/windows)
# What only properties call is called by nobody.
target_compile_options(rapidcheck INTERFACE -Wno-unused-function)
set(rapidcheck_FOUND TRUE)
