#ifndef MIVO_TESTS_SUPPORT_PRIVATE_ENVIRONMENT_H
#define MIVO_TESTS_SUPPORT_PRIVATE_ENVIRONMENT_H

#include <filesystem>

namespace mivo {

/// The folder that holds this test program's home, settings and temporary files; new and empty when
/// the program starts, removed when it ends. Programs that the test starts use it too: the
/// environment variables HOME, XDG_*_HOME, XDG_RUNTIME_DIR and TMPDIR (on Windows APPDATA,
/// LOCALAPPDATA, TMP and TEMP) point into it. Besides, Qt draws off screen unless QT_QPA_PLATFORM
/// says otherwise, and the locale is C.UTF-8.
[[nodiscard]] const std::filesystem::path& PrivateFolder();

}  // namespace mivo

#endif
