#include "locked_file.h"

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <string>

#include "child_process.h"
#include "temp_folder.h"

#ifndef _WIN32
#include <sys/stat.h>

#include "unprivileged_user.h"
#endif

namespace mivo {
namespace {

using Outcome = LockedFile::Outcome;

#ifndef _WIN32  // where the folder decides
TEST(LockedFile, IsCreatedForItsOwnerAlone) {
  const TempFolder folder;
  LockedFile file;
  ASSERT_EQ(file.Acquire(folder / "lock"), Outcome::Locked);
  struct stat status {};
  ASSERT_EQ(stat((folder / "lock").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777, 0600u);
  EXPECT_EQ(file.Path(), folder / "lock");
}
#endif

TEST(LockedFile, OnlyOneHasIt) {
  const TempFolder folder;
  LockedFile first;
  LockedFile second;
  ASSERT_EQ(first.Acquire(folder / "lock"), Outcome::Locked);
  EXPECT_EQ(second.Acquire(folder / "lock"), Outcome::HeldElsewhere);
  EXPECT_FALSE(second.IsHeld());
  first.Release();
  EXPECT_EQ(second.Acquire(folder / "lock"), Outcome::Locked);
}

#ifndef _WIN32  // there is no fork
TEST(LockedFile, AnotherProcessIsRefusedToo) {
  const TempFolder folder;
  LockedFile file;
  ASSERT_EQ(file.Acquire(folder / "lock"), Outcome::Locked);
  EXPECT_EQ(RunInChild([&]() -> std::string {
              LockedFile other;
              return other.Acquire(folder / "lock") == Outcome::HeldElsewhere ? "held" : "free";
            }),
            "held");
}

TEST(LockedFile, AKilledProcessHoldsNothing) {
  const TempFolder folder;
  ASSERT_EQ(RunInChild([&]() -> std::string {
              LockedFile file;
              if (file.Acquire(folder / "lock") == Outcome::Locked) std::raise(SIGKILL);
              return "not locked";
            }),
            "signal 9");
  LockedFile file;
  EXPECT_EQ(file.Acquire(folder / "lock"), Outcome::Locked);
}
#endif

TEST(LockedFile, AMissingFileIsNotAcquiredAsExisting) {
  const TempFolder folder;
  LockedFile file;
  EXPECT_EQ(file.AcquireExisting(folder / "lock"), Outcome::Failed);
  EXPECT_TRUE(folder.Names().empty());
}

#ifndef _WIN32  // no permissions keep files out of a folder there
TEST(LockedFile, AFolderThatTakesNothingIsAFailure) {
  const TempFolder folder;
  const UnprivilegedUser user;
  ASSERT_EQ(chmod(folder.Path().c_str(), 0555), 0);
  LockedFile file;
  EXPECT_EQ(file.Acquire(folder / "lock"), Outcome::Failed);
  EXPECT_FALSE(file.Write("bytes"));
  ASSERT_EQ(chmod(folder.Path().c_str(), 0755), 0);
}
#endif

TEST(LockedFile, WritesOneBehindTheOther) {
  const TempFolder folder;
  LockedFile file;
  ASSERT_EQ(file.Acquire(folder / "lock"), Outcome::Locked);
  EXPECT_TRUE(file.Write("one "));
  EXPECT_TRUE(file.Write("two"));
  EXPECT_EQ(BytesOf(folder / "lock"), "one two");
}

TEST(LockedFile, RemoveTakesTheFileAway) {
  const TempFolder folder;
  LockedFile file;
  ASSERT_EQ(file.Acquire(folder / "lock"), Outcome::Locked);
  file.Remove();
  EXPECT_FALSE(file.IsHeld());
  EXPECT_TRUE(folder.Names().empty());
  file.Remove();
}

TEST(LockedFile, ReleaseLeavesTheFile) {
  const TempFolder folder;
  LockedFile file;
  ASSERT_EQ(file.Acquire(folder / "lock"), Outcome::Locked);
  file.Release();
  EXPECT_EQ(folder.Names(), std::vector<std::string>{"lock"});
}

}  // namespace
}  // namespace mivo
