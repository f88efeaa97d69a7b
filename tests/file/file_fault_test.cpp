// Every call of the system that replacing a file makes fails once, or stays failed, or is the last
// one before the process is killed. The file must hold the old or the new content each time.

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <string>
#include <tuple>

#include "child_process.h"
#include "file_calls.h"
#include "file_writer.h"
#include "temp_folder.h"

namespace mivo {
namespace {

namespace fs = std::filesystem;

const std::string kOld(5000, 'o');
const std::string kNew(9000, 'n');

enum class Fault { Once, FromThenOn, KilledBefore, KilledAfter };

/// The system's calls with something that happens at the n-th.
class FaultyCalls final : public FileCalls {
 public:
  FaultyCalls(int at, Fault fault, std::error_code error) : at_(at), fault_(fault), error_(error) {}

  /// Whether there was an n-th call.
  [[nodiscard]] bool Happened() const { return count_ >= at_; }

  std::error_code OpenToWrite(const fs::path& path, NativeFile& file) override {
    return Run([&] { return FileCalls::OpenToWrite(path, file); });
  }
  std::error_code Create(const fs::path& path, NativeFile::Access access,
                         NativeFile& file) override {
    return Run([&] { return FileCalls::Create(path, access, file); });
  }
  std::error_code TakeAccess(NativeFile& file, const NativeFile& from) override {
    return Run([&] { return FileCalls::TakeAccess(file, from); });
  }
  /// A write that fails has written a part.
  std::error_code Write(NativeFile& file, std::string_view bytes) override {
    const std::size_t part = bytes.size() / 2;
    if (!IsDue()) return FileCalls::Write(file, bytes);
    static_cast<void>(FileCalls::Write(file, bytes.substr(0, part)));
    return Fail([&] { return FileCalls::Write(file, bytes.substr(part)); });
  }
  std::error_code SetSize(NativeFile& file, std::uint64_t size) override {
    return Run([&] { return FileCalls::SetSize(file, size); });
  }
  std::error_code Flush(NativeFile& file) override {
    return Run([&] { return FileCalls::Flush(file); });
  }
  /// A file whose close fails is closed all the same.
  std::error_code Close(NativeFile& file) override {
    const bool isDue = IsDue();
    const std::error_code result = FileCalls::Close(file);
    return isDue ? Fail([&] { return result; }) : result;
  }
  std::error_code MoveOver(const fs::path& source, const fs::path& target) override {
    return Run([&] { return FileCalls::MoveOver(source, target); });
  }
  void FlushFolderOf(const fs::path& path) override {
    static_cast<void>(Run([&] {
      FileCalls::FlushFolderOf(path);
      return std::error_code();
    }));
  }
  void Remove(const fs::path& path) override {
    static_cast<void>(Run([&] {
      FileCalls::Remove(path);
      return std::error_code();
    }));
  }

 private:
  bool IsDue() {
    ++count_;
    return count_ == at_ || (count_ > at_ && fault_ == Fault::FromThenOn);
  }

  template <typename Call>
  std::error_code Fail(Call call) {
    if (fault_ == Fault::KilledBefore) std::raise(SIGKILL);
    if (fault_ == Fault::KilledAfter) {
      static_cast<void>(call());
      std::raise(SIGKILL);
    }
    return error_;
  }

  template <typename Call>
  std::error_code Run(Call call) {
    return IsDue() ? Fail(call) : call();
  }

  const int at_;
  const Fault fault_;
  const std::error_code error_;
  int count_ = 0;
};

enum class Target { New, Existing, WithTwoNames };

class FileFaultTest : public testing::TestWithParam<std::tuple<Target, int>> {
 protected:
  static constexpr int kMostCalls = 100;

  [[nodiscard]] Target GetTarget() const { return std::get<0>(GetParam()); }
  [[nodiscard]] std::error_code Error() const {
    return {std::get<1>(GetParam()), std::system_category()};
  }

  /// Makes the target as it is before the save.
  void Prepare(const TempFolder& folder) const {
    if (GetTarget() == Target::New) return;
    const fs::path path = folder.Put("file", kOld);
    if (GetTarget() == Target::WithTwoNames) fs::create_hard_link(path, folder / "other name");
  }

  /// What the target holds, in one word.
  [[nodiscard]] static std::string KindOf(const fs::path& path) {
    if (!fs::exists(path)) return "nothing";
    const std::string content = BytesOf(path);
    if (content == kOld) return "old";
    return content == kNew ? "new" : "torn";
  }

  [[nodiscard]] std::string Before() const {
    return GetTarget() == Target::New ? "nothing" : "old";
  }
  [[nodiscard]] std::size_t Names() const { return GetTarget() == Target::WithTwoNames ? 2 : 1; }

  struct Outcome {
    bool saved;
    bool inPlace;
  };
  static Outcome Save(const fs::path& path, FileCalls& calls) {
    FileWriter writer(path, FileWriter::Durability::OnDisk, FileWriter::Rewriting::WhenNeeded,
                      calls);
    const bool written = writer.Write(kNew);
    const bool inPlace = writer.RewritesInPlace();
    return {writer.Commit() && written, inPlace};
  }

  /// The next save puts everything in order.
  void ExpectNextSaveToCleanUp(const TempFolder& folder) const {
    EXPECT_LE(folder.Names().size(), Names() + 1) << "more than one temporary file";
    EXPECT_TRUE(Save(folder / "file", FileCalls::OfTheSystem()).saved);
    EXPECT_EQ(KindOf(folder / "file"), "new");
    EXPECT_EQ(folder.Names().size(), Names());
  }
};

TEST_P(FileFaultTest, AFailureOfAnyCallLeavesTheOldOrTheNewContent) {
  int n = 1;
  for (bool happened = true; happened && n < kMostCalls; ++n) {
    SCOPED_TRACE(n);
    const TempFolder folder;
    Prepare(folder);
    FaultyCalls calls(n, Fault::Once, Error());
    const bool saved = Save(folder / "file", calls).saved;
    happened = calls.Happened();
    EXPECT_EQ(KindOf(folder / "file"), saved ? "new" : Before());
    ExpectNextSaveToCleanUp(folder);
  }
  EXPECT_GT(n, 5) << "there are calls that can fail";
  EXPECT_LT(n, kMostCalls) << "the save comes to an end without a failure";
}

TEST_P(FileFaultTest, ASystemThatFailsFromACallOnKeepsAFileThatIsReplaced) {
  bool happened = true;
  for (int n = 1; happened && n < kMostCalls; ++n) {
    SCOPED_TRACE(n);
    const TempFolder folder;
    Prepare(folder);
    FaultyCalls calls(n, Fault::FromThenOn, Error());
    const auto [saved, inPlace] = Save(folder / "file", calls);
    happened = calls.Happened();
    // A file that is rewritten in place cannot be mended when nothing can be written.
    if (saved || !inPlace) {
      EXPECT_EQ(KindOf(folder / "file"), saved ? "new" : Before());
    }
    ExpectNextSaveToCleanUp(folder);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Faults, FileFaultTest,
    testing::Combine(testing::Values(Target::New, Target::Existing, Target::WithTwoNames),
                     testing::Values(ENOSPC, EIO, EACCES, EDQUOT, EROFS, ENOENT)));

class FileKillTest : public FileFaultTest {};

TEST_P(FileKillTest, AProcessKilledAtAnyCallLeavesTheOldOrTheNewContent) {
  for (const Fault fault : {Fault::KilledBefore, Fault::KilledAfter}) {
    bool happened = true;
    int n = 1;
    for (; happened && n < kMostCalls; ++n) {
      SCOPED_TRACE(n);
      const TempFolder folder;
      Prepare(folder);
      const std::string outcome = RunInChild([&]() -> std::string {
        FaultyCalls calls(n, fault, {});
        return Save(folder / "file", calls).saved ? "saved" : "failed";
      });
      happened = outcome == "signal 9";
      if (!happened) {
        EXPECT_EQ(outcome, "saved");
      }
      const std::string kind = KindOf(folder / "file");
      EXPECT_TRUE(kind == Before() || kind == "new") << kind;
      ExpectNextSaveToCleanUp(folder);
    }
    EXPECT_GT(n, 5);
  }
}

// A file with two names is no case here: the half of each is what the copy kept elsewhere is for.
INSTANTIATE_TEST_SUITE_P(Kills, FileKillTest,
                         testing::Combine(testing::Values(Target::New, Target::Existing),
                                          testing::Values(0)));

TEST(FileKill, TheTemporaryFileOfALivingProcessStays) {
  const TempFolder folder;
  FileWriter running(folder / "file");
  ASSERT_TRUE(running.Write("running"));
  FileWriter other(folder / "file");
  ASSERT_TRUE(other.Write("other"));
  ASSERT_TRUE(other.Commit());
  EXPECT_EQ(BytesOf(folder / "file"), "other");
  EXPECT_TRUE(running.Commit());
  EXPECT_EQ(BytesOf(folder / "file"), "running");
}

TEST(FileKill, OnlyTemporaryFilesOfTheSameTargetGo) {
  const TempFolder folder;
  for (const char* name : {".file.mivo-abc123", ".other.mivo-abc123", ".file.mivo-abc1234",
                           ".file.mivo-abc12", "file.mivo-abc123"}) {
    folder.Put(name, "left");
  }
  FileWriter writer(folder / "file");
  ASSERT_TRUE(writer.Commit());
  EXPECT_EQ(folder.Names(),
            (std::vector<std::string>{".file.mivo-abc12", ".file.mivo-abc1234",
                                      ".other.mivo-abc123", "file", "file.mivo-abc123"}));
}

}  // namespace
}  // namespace mivo
