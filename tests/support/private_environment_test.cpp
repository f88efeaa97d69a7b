#include "private_environment.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <string>

namespace mivo {
namespace {

namespace fs = std::filesystem;

class PrivateEnvironmentVariable : public testing::TestWithParam<const char*> {};

TEST_P(PrivateEnvironmentVariable, NamesAFolderOfTheTestsOwn) {
  const char* value = std::getenv(GetParam());
  ASSERT_NE(value, nullptr);
  EXPECT_TRUE(fs::is_directory(value));
  EXPECT_EQ(std::string(value).find(PrivateFolder().string() + "/"), 0u);
}

INSTANTIATE_TEST_SUITE_P(All, PrivateEnvironmentVariable,
                         testing::Values("HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME",
                                         "XDG_STATE_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR",
                                         "TMPDIR"));

TEST(PrivateEnvironment, TemporaryFilesLieInThePrivateFolder) {
  EXPECT_EQ(fs::temp_directory_path(), PrivateFolder() / "tmp");
}

TEST(PrivateEnvironment, OutlivesAForkedChild) {
  const pid_t child = fork();
  ASSERT_GE(child, 0);
  if (child == 0) std::exit(0);
  int status = -1;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  EXPECT_EQ(status, 0);
  EXPECT_TRUE(fs::is_directory(PrivateFolder() / "home"));
}

}  // namespace
}  // namespace mivo
