#ifndef MIVO_SETTINGS_PROFILE_H
#define MIVO_SETTINGS_PROFILE_H

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace mivo {

/// The content of an INI file: sections of KEY=value lines.
///
/// Section and key names are compared without regard to the case of ASCII letters; of several equal
/// ones the first counts. Everything that is not changed, comments, blank lines, order and encoding
/// included, is written back byte for byte.
class Profile {
 public:
  /// An empty file in UTF-16 little-endian, which is what the program creates.
  Profile() = default;

  /// Any bytes: UTF-16 little-endian with byte-order mark, UTF-8 with or without, or 8-bit text in
  /// the system's code page.
  explicit Profile(std::string_view bytes);

  /// The value as decimal text, after leading blanks, up to the first other character; `fallback`
  /// when there is no such key.
  [[nodiscard]] std::int32_t GetInt(std::u16string_view section, std::u16string_view key,
                                    std::int32_t fallback) const;

  /// The value without blanks around it and without a pair of quotation marks around the rest;
  /// `fallback` when there is no such key.
  [[nodiscard]] std::u16string GetString(std::u16string_view section, std::u16string_view key,
                                         std::u16string_view fallback) const;

  /// Replaces the value, or adds the key at the end of its section, or both at the end of the file.
  /// Section and key are ASCII. False when the value was there already.
  bool SetInt(std::u16string_view section, std::u16string_view key, std::int32_t value);

  /// The file's content.
  [[nodiscard]] std::string Bytes() const;

 private:
  enum class Encoding { Utf16, Utf8, EightBit };

  /// Where a key's value stands in units_.
  struct Value {
    std::size_t begin;
    std::size_t end;
  };
  struct Place {
    std::optional<Value> value;
    std::optional<std::size_t> sectionEnd;  ///< behind the section's last line that is not blank
  };

  [[nodiscard]] Place Find(std::u16string_view section, std::u16string_view key) const;
  [[nodiscard]] std::optional<std::u16string> Text(std::u16string_view section,
                                                   std::u16string_view key) const;

  Encoding encoding_ = Encoding::Utf16;
  bool hasMark_ = true;
  bool oddByte_ = false;  ///< a UTF-16 file with half a unit at its end, kept in lastByte_
  char lastByte_ = 0;
  // The content without byte-order mark: UTF-16 units, or one unit per byte, so that nothing is
  // lost in a conversion.
  std::u16string units_;
};

}  // namespace mivo

#endif
