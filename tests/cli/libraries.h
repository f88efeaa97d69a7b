#ifndef MIVO_TESTS_CLI_LIBRARIES_H
#define MIVO_TESTS_CLI_LIBRARIES_H

#include <string>
#include <string_view>

// Small files for the commands to work on.

namespace mivo {

/// A component with an alias, and one with a pattern and a bit pattern; as this program writes it.
inline const std::string kGoodLibrary =
    "+TARSL_LIB_V.1.0\n"
    "VER:82\n"
    "PROP:Parts\n"
    "+COMP,N:7400\n"
    "X:4,Y:3,B:2\n"
    "TYPE:GEN,FB:0\n"
    "R:U\n"
    "+PIN,N:A,DF:FFFFFFFF,L:L1,T:,M:1,M:4,-PIN\n"
    "NOTE:Four%20gates,MFR:Maker,MFRPN:SN7400N,PKG:DIP14,-COMP\n"
    "+PTN,N:LED,X:21,Y:11\n"
    "+BMP\n"
    "A@@@@@\n" +
    []() {
      std::string rows;
      for (int i = 0; i < 10; ++i) rows += "@@@@@@\n";
      return rows;
    }() +
    "-BMP\n"
    "+L,W:1,S:0,CV:0,X:0,Y:0,X:20,Y:10,-L\n"
    "-PTN\n"
    "+COMP,N:LED\n"
    "X:2,Y:1,B:1\n"
    "TYPE:FXB,FB:3\n"
    "R:D\n"
    "P:LED\n"
    "NOTE:,MFR:,MFRPN:,PKG:,-COMP\n"
    "+ALIAS,A:74HC00,N:7400,-ALIAS\n"
    "-TARSL_LIB_V.1.0\n";

/// A library with nothing in it, as this program writes it.
inline constexpr std::string_view kEmptyLibrary =
    "+TARSL_LIB_V.1.0\nVER:82\nPROP:\n-TARSL_LIB_V.1.0\n";

/// One component record of the given name, as this program writes it.
inline std::string ComponentRecord(std::string_view name) {
  return "+COMP,N:" + std::string(name) +
         "\nX:4,Y:3,B:1\nTYPE:GEN,FB:0\nR:U\nNOTE:,MFR:,MFRPN:,PKG:,-COMP\n";
}

/// Component records named N0, N1 and so on.
inline std::string NumberedComponents(int count) {
  std::string records;
  for (int i = 0; i < count; ++i) {
    std::string name = "N";
    name += std::to_string(i);
    records += ComponentRecord(name);
  }
  return records;
}

inline std::string LibraryOf(std::string_view records) {
  return "+TARSL_LIB_V.1.0\nVER:82\nPROP:\n" + std::string(records) + "-TARSL_LIB_V.1.0\n";
}

/// A good component, then one whose width, in line 10, fails the load.
inline const std::string kFailingLibrary =
    LibraryOf(ComponentRecord("GOOD") + "+COMP,N:BAD\nX:-4,Y:3,B:1\n-COMP\n");

/// Schematic data with the same component in two library blocks.
inline const std::string kSchematic =
    "+TARSL_DATA_V.1.0\n"
    "+COMPONENT\n"
    "+TARSL_LIB_V.1.0\n"
    "VER:82\n" +
    ComponentRecord("R") +
    "-TARSL_LIB_V.1.0\n"
    "X:40,Y:30,LIB:R,N:R,R:U\n"
    "-COMPONENT\n"
    "+COMPONENT\n"
    "+TARSL_LIB_V.1.0\n"
    "VER:82\n" +
    ComponentRecord("R") +
    "-TARSL_LIB_V.1.0\n"
    "-COMPONENT\n"
    "-TARSL_DATA_V.1.0\n";

}  // namespace mivo

#endif
