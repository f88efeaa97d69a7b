include(HostHeaders)
mivo_host_headers(tsl::robin_map tsl)
set(tsl-robin-map_FOUND TRUE)
