include(HostHeaders)
mivo_host_headers(xxHash::xxhash xxhash.h)
set(xxHash_FOUND TRUE)
