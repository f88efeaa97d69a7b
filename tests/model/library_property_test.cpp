#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>

#include "library_description.h"
#include "library_generators.h"
#include "library_testing.h"

// What holds for every library, and for every file.

namespace mivo {
namespace {

RC_GTEST_PROP(LibraryProperty, IsTheSameAfterASaveAndALoad, ()) {
  const auto library = *GenCanonicalLibrary();
  const std::string saved = Saved(*library);
  const LoadedLibrary again(saved);
  RC_ASSERT(again.loaded);
  RC_ASSERT(again.findings.all.empty());
  RC_ASSERT(Describe(again.library) == Describe(*library));
  RC_ASSERT(Saved(again.library) == saved);
}

/// One thing that happens to a file on its way.
struct Damage {
  int kind;
  std::size_t place;
  std::size_t length;
};

void showValue(const Damage& damage, std::ostream& out) {
  out << "kind " << damage.kind << " at " << damage.place << " for " << damage.length;
}

rc::Gen<Damage> GenDamage() {
  return rc::gen::build<Damage>(
      rc::gen::set(&Damage::kind, rc::gen::resize(rc::kNominalSize, rc::gen::inRange(0, 7))),
      rc::gen::set(&Damage::place,
                   rc::gen::resize(rc::kNominalSize, rc::gen::inRange<std::size_t>(0, 1 << 20))),
      rc::gen::set(&Damage::length, rc::gen::inRange<std::size_t>(0, 20)));
}

/// The start of the line that holds `place`.
std::size_t LineStart(const std::string& text, std::size_t place) {
  const std::size_t end = place == 0 ? std::string::npos : text.rfind('\n', place - 1);
  return end == std::string::npos ? 0 : end + 1;
}

std::size_t LineEnd(const std::string& text, std::size_t place) {
  const std::size_t end = text.find('\n', place);
  return end == std::string::npos ? text.size() : end + 1;
}

void Apply(const Damage& damage, std::string& text) {
  static const std::string kPieces[] = {",",
                                        "\n",
                                        "%",
                                        "%4",
                                        "%00",
                                        "+",
                                        "-",
                                        ":",
                                        "\xFF",
                                        "\xEF\xBF\xBF",
                                        "+COMP,",
                                        "-COMP,",
                                        "+PIN,",
                                        "-PIN,",
                                        "+PTN,",
                                        "-PTN,",
                                        "+BMP,",
                                        "-BMP,",
                                        "+ALIAS,",
                                        "X:-1,",
                                        "B:0,",
                                        "X:99999,",
                                        "+TARSL_LIB_V.1.0,",
                                        "-TARSL_LIB_V.1.0,",
                                        "TYPE:SHB,",
                                        "P:R,",
                                        "N:R(1),",
                                        "+L,",
                                        "-L,",
                                        "+PG,N:3,"};
  const std::size_t place = text.empty() ? 0 : damage.place % text.size();
  const std::size_t start = LineStart(text, place);
  const std::string line = text.substr(start, LineEnd(text, place) - start);
  switch (damage.kind) {
    case 0:  // a piece lost
      text.erase(place, damage.length);
      break;
    case 1:  // a line lost
      text.erase(start, line.size());
      break;
    case 2:  // a line twice
      text.insert(start, line);
      break;
    case 3:  // a line moved to the end
      text.erase(start, line.size());
      text += line;
      break;
    case 4:  // the rest lost
      text.resize(place);
      break;
    case 5:  // a byte changed
      if (!text.empty())
        text[place] = static_cast<char>(text[place] + static_cast<char>(damage.length));
      break;
    default:  // something put in
      text.insert(place, kPieces[damage.place % std::size(kPieces)]);
  }
}

RC_GTEST_PROP(LibraryProperty, LoadsAgainWhateverWasLoadedAndSaved, ()) {
  const auto library = *GenCanonicalLibrary();
  const auto damages = *rc::gen::scale(0.2, rc::gen::container<std::vector<Damage>>(GenDamage()));
  std::string bytes = Saved(*library);
  for (const Damage& damage : damages) Apply(damage, bytes);

  const LoadedLibrary first(bytes);
  const std::string saved = Saved(first.library);
  const LoadedLibrary second(saved);
  RC_ASSERT(second.loaded);
  const auto names = first.Names();
  RC_ASSERT(second.Names().size() ==
            names.size() - static_cast<std::size_t>(std::ranges::count(names, u"")));
  const std::string again = Saved(second.library);
  RC_ASSERT(Saved(LoadedLibrary(again).library) == again);
}

}  // namespace
}  // namespace mivo
