#include "hostile_library.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

#include "text_encoding.h"

namespace mivo {
namespace {

std::string Repeated(std::string_view text, std::size_t bytes) {
  std::string result;
  result.reserve(bytes + text.size());
  while (result.size() < bytes) result += text;
  return result;
}

/// What `record` makes of 0, 1, 2, ... one behind the other.
std::string Counted(std::size_t bytes, const std::function<std::string(int)>& record) {
  std::string result;
  result.reserve(bytes + bytes / 8);
  for (int n = 0; result.size() < bytes; ++n) result += record(n);
  return result;
}

std::string Name(int n) {
  std::string name = "N";
  return name += std::to_string(n);
}

std::string InComponent(const std::string& records) {
  return "+COMP,N:A,X:1,Y:1,B:255," + records + "-COMP,";
}

std::string InPattern(const std::string& records) {
  return "+PTN,N:p,X:1,Y:1," + records + "-PTN,+COMP,N:A,P:p,X:1,Y:1,B:1,-COMP,";
}

/// Components whose names all have the same std::hash in the GNU library, which is MurmurHash64A
/// with a key that everybody knows: for any first half of a name there is a second one that leads
/// to the wanted state.
std::string ComponentsOfOneHash(std::size_t bytes) {
  constexpr std::uint64_t kFactor = 0xC6A4A7935BD1E995;
  constexpr std::uint64_t kInverse = [] {
    std::uint64_t inverse = 1;
    for (int i = 0; i < 6; ++i) inverse *= 2 - kFactor * inverse;
    return inverse;
  }();
  constexpr std::uint64_t kStart = 0xC70F6907 ^ 16 * kFactor;
  constexpr std::uint64_t kWanted = 0;
  const auto shifted = [](std::uint64_t value) { return value ^ value >> 47; };  // undoes itself
  const auto isPlain = [](char16_t c) { return c > 0x7F && c < 0xFFFE && (c & 0xF800) != 0xD800; };
  std::string result;
  for (std::uint32_t n = 0; result.size() < bytes; ++n) {
    const std::array<char16_t, 4> first = {static_cast<char16_t>(0x4000 + n % 0x1000),
                                           static_cast<char16_t>(0x4000 + n / 0x1000), u'A', u'A'};
    std::uint64_t word;
    std::memcpy(&word, first.data(), sizeof word);
    const std::uint64_t state = (kStart ^ shifted(word * kFactor) * kFactor) * kFactor;
    word = shifted((state ^ kWanted) * kInverse) * kInverse;
    std::array<char16_t, 4> second;
    std::memcpy(second.data(), &word, sizeof word);
    if (!std::all_of(second.begin(), second.end(), isPlain)) continue;
    result += "+COMP,N:" + Utf16ToUtf8({first.data(), first.size()}) +
              Utf16ToUtf8({second.data(), second.size()}) + ",X:1,Y:1,B:1,-COMP,";
  }
  return result;
}

}  // namespace

const std::vector<HostileCase>& HostileCases() {
  static const std::vector<HostileCase> cases = {
      {"Pins", [](std::size_t bytes) { return InComponent(Repeated("+PIN,-PIN,", bytes)); }},
      {"PinsOf255Blocks",
       [](std::size_t bytes) { return InComponent(Repeated("+PIN,M:1,-PIN,", bytes)); }},
      {"PinsWithTheLastOf255Numbers",
       [](std::size_t bytes) {
         return InComponent(Repeated("+PIN," + Repeated("M:,", 254 * 3) + "M:1,-PIN,", bytes));
       }},
      {"Lines", [](std::size_t bytes) { return InPattern(Repeated("+L,-L,", bytes)); }},
      {"Ellipses", [](std::size_t bytes) { return InPattern(Repeated("+C,-C,", bytes)); }},
      {"Arcs", [](std::size_t bytes) { return InPattern(Repeated("+AR,-AR,", bytes)); }},
      {"Polygons",
       [](std::size_t bytes) {
         return InPattern(Repeated("+PG,N:3,X:0,Y:0,X:1,Y:1,X:2,Y:0,-PG,", bytes));
       }},
      {"Texts",
       [](std::size_t bytes) { return InPattern(Repeated("+TX,X:0,Y:0,S:A,FS:8,-TX,", bytes)); }},
      {"Patterns",
       [](std::size_t bytes) {
         return Counted(bytes, [](int n) { return "+PTN,N:" + Name(n) + ",-PTN,"; });
       }},
      {"BitPatterns",
       [](std::size_t bytes) {
         return Counted(bytes,
                        [](int n) { return "+PTN,X:1,Y:1,N:" + Name(n) + ",+BMP,-BMP,-PTN,"; });
       }},
      {"Components",
       [](std::size_t bytes) {
         return Counted(bytes, [](int n) { return "+COMP,N:" + Name(n) + ",X:1,Y:1,B:1,-COMP,"; });
       }},
      {"ComponentsOfOneName",
       [](std::size_t bytes) { return Repeated("+COMP,N:R,X:1,Y:1,B:1,-COMP,", bytes); }},
      {"NamesAndTheirNumbers",
       [](std::size_t bytes) {
         return Repeated("+COMP,N:R,X:1,Y:1,B:1,-COMP,+COMP,N:R(1),X:1,Y:1,B:1,-COMP,", bytes);
       }},
      {"ComponentsOfOneHash", ComponentsOfOneHash},
      {"ComponentsWithOnePattern",
       [](std::size_t bytes) {
         return "+PTN,N:p,X:501,Y:501,-PTN," + Repeated("+COMP,N:R,P:p,X:1,Y:1,B:1,-COMP,", bytes);
       }},
      {"NamesOfTheLongestLength",
       [](std::size_t bytes) {
         return Repeated("+COMP,N:" + std::string(32766, 'x') + ",X:1,Y:1,B:1,-COMP,", bytes);
       }},
      {"AliasesOfAliases",
       [](std::size_t bytes) {
         return "+COMP,N:N0,X:1,Y:1,B:1,-COMP," + Counted(bytes, [](int n) {
                  return "+ALIAS,N:" + Name(n) + ",A:" + Name(n + 1) + ",-ALIAS,";
                });
       }},
      {"AliasesEachTwice",
       [](std::size_t bytes) {
         return "+COMP,N:R,X:1,Y:1,B:1,-COMP," +
                Counted(bytes, [](int n) { return "+ALIAS,N:R,A:" + Name(n / 2) + ",-ALIAS,"; });
       }},
      {"OneField", [](std::size_t bytes) { return "PROP:" + std::string(bytes, 'x') + ","; }},
      {"OneFieldOfEscapes",
       [](std::size_t bytes) { return "PROP:" + Repeated("%41", bytes) + ","; }},
      {"UnclosedRecords", [](std::size_t bytes) { return Repeated("+A,", bytes); }},
      {"UnclosedObjects", [](std::size_t bytes) { return "+PTN," + Repeated("+L,", bytes); }},
      {"Commas", [](std::size_t bytes) { return std::string(bytes, ','); }},
  };
  return cases;
}

const std::vector<HostileObject>& HostileObjects() {
  static const std::string corners = "X:-2147483648,Y:-2147483648,X:2147483647,Y:2147483647,";
  static const std::vector<HostileObject> objects = {
      {"Ordinary", "+L,W:1,X:0,Y:0,X:500,Y:500,-L"},
      {"Line", "+L,W:1," + corners + "-L"},
      {"DottedLine", "+L,W:9,S:1," + corners + "-L"},
      {"LineOfTheWidestPen", "+L,W:2147483647," + corners + "-L"},
      {"Curve", "+L,W:1,CV:1," + corners + corners + "-L"},
      {"DottedCurve",
       "+L,W:3,S:1,CV:1,X:-2147483648,Y:0,X:2147483647,Y:500,X:2147483647,Y:0,"
       "X:-2147483648,Y:500,-L"},
      {"CurveOfTheWidestPen",
       "+L,W:2147483647,CV:1,X:-1000000,Y:-1000000,X:1000000,Y:1000000,X:1000000,Y:-1000000,"
       "X:-1000000,Y:1000000,-L"},
      {"Ellipse", "+C,W:1,F:1," + corners + "-C"},
      {"FlatEllipse", "+C,W:1,F:1,X:-2147483648,Y:0,X:2147483647,Y:3,-C"},
      {"EllipseOfTheWidestPen", "+C,W:2147483647,F:-1,X:-1000000,Y:0,X:1000000,Y:500,-C"},
      {"DottedEllipse", "+C,W:60,S:1,F:-1,X:-2147483648,Y:0,X:2147483647,Y:500,-C"},
      {"Polygon", "+PG,W:1,F:1,N:3," + corners + "X:2147483647,Y:-2147483648,-PG"},
      {"PolygonOfTheWidestPen",
       "+PG,W:2147483647,F:-1,N:3," + corners + "X:2147483647,Y:-2147483648,-PG"},
      {"Arc", "+AR,W:1,X:250,Y:250,R:2147483647,B:0,E:5000,-AR"},
      {"ArcSeenAtItsEdge", "+AR,W:1,X:100000000,Y:250,R:99999900,B:100,E:5700,-AR"},
      {"ArcOfTheWidestPen", "+AR,W:2147483647,X:0,Y:0,R:1000000,B:0,E:5000,-AR"},
      {"ArcOfAllAngles", "+AR,W:1,S:1,X:250,Y:250,R:200,B:-2147483648,E:2147483647,-AR"},
      {"Text", "+TX,X:250,Y:250,A:8,D:0,S:TEXT,FN:Arial,FS:2147483647,FF:BI,-TX"},
      {"FarText", "+TX,X:2147483647,Y:-2147483648,A:0,D:1,S:TEXT,FN:Arial,FS:80,-TX"},
      {"LongText", "+TX,X:2,Y:2,A:0,D:1,S:" + std::string(32000, 'W') + ",FN:Arial,FS:80,-TX"},
  };
  return objects;
}

void PrintTo(const HostileObject& object, std::ostream* out) {
  *out << object.name;
}

std::string LibraryWith(const HostileObject& object) {
  return "+TARSL_LIB_V.1.0\nVER:82\n+PTN,N:A,X:501,Y:501\n" + object.record +
         "\n-PTN\n+COMP,N:A,P:A\nX:50,Y:50,B:1\n-COMP\n-TARSL_LIB_V.1.0\n";
}

void PrintTo(const HostileCase& hostile, std::ostream* out) {
  *out << hostile.name;
}

std::string HostileLibrary(const HostileCase& hostile, std::size_t bytes, int version) {
  return "+TARSL_LIB_V.1.0\nVER:" + std::to_string(version) + "\n" + hostile.records(bytes) +
         "-TARSL_LIB_V.1.0\n";
}

}  // namespace mivo
