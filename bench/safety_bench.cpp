// What safety costs on a library of 1,000 components: an operation with the recovery file against
// the same without it, and a save with its safety copy against the same without one. Wall-clock
// time, since writing is part of it.

#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "comp_edit_doc.h"
#include "file_writer.h"
#include "generated_library.h"
#include "library_guard.h"
#include "median.h"
#include "path_text.h"
#include "recovery_journal.h"
#include "table_row.h"

namespace mivo::bench {
namespace {

constexpr int kComponents = 1000;
constexpr int kRounds = 200;
constexpr int kSaves = 40;

/// No operation may take that much longer, in milliseconds.
constexpr double kMostAdded = 5;

void Print(const char* what, double without, double with) {
  const std::string name = std::string("safety: ") + what;
  PrintRow({name, with, "ms", with / without, "without safety"});
  PrintRow(
      {.what = name + ", added", .measured = with - without, .unit = "ms", .limit = kMostAdded});
}

/// A library with one of its components under edit.
class Session {
 public:
  Session(const std::string& content, const std::filesystem::path& file) {
    if (!doc_.Load(content, TextFromPath(file))) std::exit(1);
    for (const auto& entry : doc_.Names().Entries()) entries_.push_back(entry.get());
    component_ = doc_.Components()[kComponents / 2].get();
    edit_.Load(component_);
  }

  [[nodiscard]] LibraryView View() const { return {doc_, entries_}; }

  /// Gives a pin another number, as an operation of its own.
  void Operate(int round) {
    edit_.RaiseOperation();
    if (!edit_.PickPinByLocation(component_->Pins().front().location)) std::exit(1);
    edit_.SingleSelection()->Pin()->SetNumber(0, round % 2 == 0 ? u"even" : u"odd");
    edit_.SetSelectionChanged(true);
    edit_.ReleaseSelection();
  }

  /// What the main frame does after each operation.
  void Record(RecoveryJournal& journal) const {
    journal.RecordNames(View());
    SComponent now = *component_;
    edit_.CopyTo(now);
    journal.RecordComponent(View(), *component_, now);
  }

 private:
  SMivoDoc doc_;
  std::vector<NameEntry*> entries_;
  SComponent* component_;
  SCompEditDoc edit_;
};

void MeasureOperations(const std::string& content, const std::filesystem::path& folder,
                       const RecoveryStart& start) {
  const std::filesystem::path file = PathFromText(*start.path);
  std::vector<double> without, with, first;
  Session plain(content, file);
  Session recorded(content, file);
  RecoveryJournal journal(folder / "recovery");
  for (int round = 0; round < kRounds; ++round) {
    without.push_back(Milliseconds([&] { plain.Operate(round); }));
    if (round % 20 == 0) {  // as after a save: the library has to be written first
      journal.Begin(recorded.View(), start, RecoveryJournal::Origin::Loaded);
      first.push_back(Milliseconds([&] {
        recorded.Operate(round);
        recorded.Record(journal);
      }));
    } else {
      with.push_back(Milliseconds([&] {
        recorded.Operate(round);
        recorded.Record(journal);
      }));
    }
  }
  journal.Discard();
  Print("first operation after a save", Median(without), Median(first));
  Print("any other operation", Median(without), Median(with));
}

void MeasureSaves(const std::string& content, const std::filesystem::path& folder,
                  const RecoveryStart& start) {
  const std::filesystem::path file = PathFromText(*start.path);
  Session session(content, file);
  LibraryGuard guard(folder / "state");
  guard.Opened(session.View(), start.identity, LibraryGuard::Losses::None);
  std::vector<double> without, with;
  for (int round = 0; round < kSaves; ++round) {
    without.push_back(Milliseconds([&] {
      FileWriter writer(file);
      if (!session.View().doc.Write(writer, session.View().entries) || !writer.Commit()) {
        std::exit(1);
      }
    }));
    // Another content each time, or there would be nothing new to keep.
    {
      FileWriter writer(file);
      if (!writer.Write(content + std::to_string(round)) || !writer.Commit()) std::exit(1);
    }
    with.push_back(Milliseconds([&] {
      if (!guard.Save(session.View(), *start.path).saved) std::exit(1);
    }));
  }
  Print("save", Median(without), Median(with));
}

void MeasureAll() {
  std::string folder = std::filesystem::temp_directory_path() / "mivo-bench-XXXXXX";
  if (mkdtemp(folder.data()) == nullptr) std::exit(1);
  std::string content;
  StringByteSink sink(content);
  if (!WriteGeneratedLibrary(sink, kComponents, Names::Distinct)) std::exit(1);
  const std::filesystem::path file = std::filesystem::path(folder) / "library.ZLB";
  {
    FileWriter writer(file);
    if (!writer.Write(content) || !writer.Commit()) std::exit(1);
  }
  const RecoveryStart start{TextFromPath(file), IdentityOf(content)};
  MeasureOperations(content, folder, start);
  MeasureSaves(content, folder, start);
  std::filesystem::remove_all(folder);
}

}  // namespace
}  // namespace mivo::bench

int main() {
  mivo::bench::MeasureAll();
  return 0;
}
