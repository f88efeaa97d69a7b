#include "finding.h"

namespace mivo {

Severity SeverityOf(FindingKind kind) noexcept {
  return kind >= FindingKind::NotALibrary ? Severity::Error : Severity::Warning;
}

std::string_view MessageOf(FindingKind kind) noexcept {
  switch (kind) {
    case FindingKind::FieldWithoutValue:
      return "field without a key and a value is ignored";
    case FindingKind::UnknownKey:
      return "unknown key is ignored";
    case FindingKind::MalformedEscape:
      return "the end of the field cuts off an escape; what follows counts as cut off, too";
    case FindingKind::FieldSplit:
      return "field is too long and is split, one character is lost";
    case FindingKind::ValueIgnored:
      return "value out of range is ignored";
    case FindingKind::SurplusValue:
      return "more values than the record has room for";
    case FindingKind::UnknownRecord:
      return "unknown record is skipped";
    case FindingKind::VertexDropped:
      return "repeated vertex of a polygon is dropped";
    case FindingKind::ObjectDropped:
      return "drawing object cannot be read and is dropped";
    case FindingKind::ObjectClosedWrongly:
      return "closing tag does not belong to the drawing object";
    case FindingKind::ObjectIncomplete:
      return "drawing object is closed before it is complete";
    case FindingKind::ObjectValueInvalid:
      return "invalid value in a drawing object";
    case FindingKind::BitPatternSkipped:
      return "bit pattern before the name and size of its pattern is skipped";
    case FindingKind::PatternMissing:
      return "no pattern of this name precedes the component";
    case FindingKind::PatternUnused:
      return "no component uses this pattern, which saving leaves out";
    case FindingKind::AliasTargetMissing:
      return "alias of an unknown name is dropped";
    case FindingKind::DataCutOff:
      return "the data end here, inside an open record";
    case FindingKind::NameChanged:
      return "name is taken already and gets a number";
    case FindingKind::BlocksReduced:
      return "shared or fixed block: one block is kept, further pin numbers are dropped";
    case FindingKind::TextCutAtNul:
      return "text is cut at a NUL character";
    case FindingKind::BitsBeyondWidth:
      return "bits beyond the width of the pattern are cleared";
    case FindingKind::NotCanonical:
      return "saving and loading again would change this";
    case FindingKind::NotALibrary:
      return "this is neither a component library nor a schematic";
    case FindingKind::UnclosedRecord:
      return "the data end inside a record";
    case FindingKind::WrongClosingTag:
      return "closing tag does not belong here";
    case FindingKind::IncompleteRecord:
      return "record is closed before it is complete";
    case FindingKind::InvalidValue:
      return "invalid value";
    case FindingKind::PinBeforeSize:
      return "pin precedes the size or the block count of its component";
    case FindingKind::MalformedBitPattern:
      return "bit pattern is not closed by its own tag";
    case FindingKind::BitPatternsTooLarge:
      return "bit patterns take more than 1 GiB";
  }
  return "";
}

}  // namespace mivo
