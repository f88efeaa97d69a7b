#include "little_memory.h"

#include <sys/resource.h>
#include <unistd.h>

#include <fstream>

#include "child_process.h"

namespace mivo {

std::string RunWithLittleMemory(const std::function<std::string()>& action) {
  return RunInChild([&]() -> std::string {
    std::size_t pages = 0;
    std::ifstream("/proc/self/statm") >> pages;
    const rlim_t now = pages * static_cast<rlim_t>(sysconf(_SC_PAGESIZE));
    const rlimit limit{now + (rlim_t{16} << 20), RLIM_INFINITY};
    if (pages == 0 || setrlimit(RLIMIT_AS, &limit) != 0) return "no limit";
    return action();
  });
}

}  // namespace mivo
