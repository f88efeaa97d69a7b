#ifndef MIVO_RECORD_FINDING_H
#define MIVO_RECORD_FINDING_H

#include <cstdint>
#include <string>
#include <string_view>

namespace mivo {

/// What reading a text can find fault with. The readers stay silent and carry on or give up by
/// their own rules; a finding only says what happened, to whoever wants to know.
enum class FindingKind {
  // What was left out. The rest of the data was read.
  FieldWithoutValue,    ///< a field that is neither a tag nor "KEY:value"
  UnknownKey,           ///< a key that the record does not know
  MalformedEscape,      ///< a field with an escape cut off by its end; the data count as ended
  FieldSplit,           ///< an over-long field: its rest is another field, a character is lost
  ValueIgnored,         ///< a value out of the range that the key allows
  SurplusValue,         ///< more values than the record has room for
  UnknownRecord,        ///< a record of unknown kind, skipped
  VertexDropped,        ///< a polygon vertex that repeats the one before or closes the polygon
  ObjectDropped,        ///< a drawing object whose record could not be read
  ObjectClosedWrongly,  ///< why: a closing tag that is not the object's
  ObjectIncomplete,     ///< why: the record is closed before all that it must hold was read
  ObjectValueInvalid,   ///< why: a value that the object cannot live with
  BitPatternSkipped,    ///< a bit pattern that stands before the name or the size of its pattern
  PatternMissing,       ///< a component names a pattern that has not been read
  PatternUnused,        ///< a pattern that no component can name or does name
  AliasTargetMissing,   ///< an alias of a name that has not been read
  DataCutOff,           ///< the data end inside an open record or library block

  // What was changed while it was read.
  NameChanged,      ///< a name that was taken already
  BlocksReduced,    ///< a shared-block or fixed-block component with more than one block
  TextCutAtNul,     ///< a text that holds a NUL
  BitsBeyondWidth,  ///< set bits beyond the width of a bit pattern
  NotCanonical,     ///< what was read would read back differently once saved
  LaterVersion,     ///< the file's version is later than the one that is read and written

  // What failed the read. What was read before it stays.
  NotALibrary,          ///< the first field opens neither a library nor schematic data
  UnclosedRecord,       ///< the data end inside a record that must be closed
  WrongClosingTag,      ///< a closing tag that does not belong here
  IncompleteRecord,     ///< a record closed before all that it must hold was read
  InvalidValue,         ///< a value that the record cannot live with
  PinBeforeSize,        ///< a pin that precedes the size or the block count of its component
  MalformedBitPattern,  ///< a bit pattern that is not closed by its own tag
  BitPatternsTooLarge,  ///< the bit patterns of the data pass the limit for all of them together
  OutOfProportion,      ///< what the data hold would take far more memory than their length allows
  OutOfMemory,          ///< the memory does not suffice; nothing that was read before it stays
};

/// The kinds are numbered from 0.
inline constexpr std::int32_t kFindingKinds =
    static_cast<std::int32_t>(FindingKind::OutOfMemory) + 1;

enum class Severity { Warning, Error };

/// Error for what failed the read, Warning for everything else.
[[nodiscard]] Severity SeverityOf(FindingKind kind) noexcept;

/// One English sentence without a final stop, for listings and the status bar; empty for a number
/// that is no kind.
[[nodiscard]] std::u16string_view MessageOf(FindingKind kind) noexcept;

struct Finding {
  FindingKind kind;
  std::int32_t line = 0;    ///< of the field with which it showed, counted from 1
  std::int32_t column = 0;  ///< of that field's first character, in code units, counted from 1
  std::u16string record;    ///< opening tag of the innermost open record; empty outside all records
  std::u16string text;      ///< the field, name or value concerned; cut to 80 code units

  bool operator==(const Finding&) const = default;
};

/// Takes the findings of a read as they occur.
class FindingSink {
 public:
  virtual ~FindingSink() = default;
  virtual void Report(const Finding& finding) = 0;
};

}  // namespace mivo

#endif
