#include "finding.h"

namespace mivo {

Severity SeverityOf(FindingKind kind) noexcept {
  return kind >= FindingKind::NotALibrary ? Severity::Error : Severity::Warning;
}

std::u16string_view MessageOf(FindingKind kind) noexcept {
  switch (kind) {
    case FindingKind::FieldWithoutValue:
      return u"field without a key and a value is ignored";
    case FindingKind::UnknownKey:
      return u"unknown key is ignored";
    case FindingKind::MalformedEscape:
      return u"the end of the field cuts off an escape; what follows counts as cut off, too";
    case FindingKind::FieldSplit:
      return u"field is too long and is split, one character is lost";
    case FindingKind::ValueIgnored:
      return u"value out of range is ignored";
    case FindingKind::SurplusValue:
      return u"more values than the record has room for";
    case FindingKind::UnknownRecord:
      return u"unknown record is skipped";
    case FindingKind::VertexDropped:
      return u"repeated vertex of a polygon is dropped";
    case FindingKind::ObjectDropped:
      return u"drawing object cannot be read and is dropped";
    case FindingKind::ObjectClosedWrongly:
      return u"closing tag does not belong to the drawing object";
    case FindingKind::ObjectIncomplete:
      return u"drawing object is closed before it is complete";
    case FindingKind::ObjectValueInvalid:
      return u"invalid value in a drawing object";
    case FindingKind::BitPatternSkipped:
      return u"bit pattern before the name and size of its pattern is skipped";
    case FindingKind::PatternMissing:
      return u"no pattern of this name precedes the component";
    case FindingKind::PatternUnused:
      return u"no component uses this pattern, which saving leaves out";
    case FindingKind::AliasTargetMissing:
      return u"alias of an unknown name is dropped";
    case FindingKind::DataCutOff:
      return u"the data end here, inside an open record";
    case FindingKind::NameChanged:
      return u"name is taken already and gets a number";
    case FindingKind::BlocksReduced:
      return u"shared or fixed block: one block is kept, further pin numbers are dropped";
    case FindingKind::TextCutAtNul:
      return u"text is cut at a NUL character";
    case FindingKind::BitsBeyondWidth:
      return u"bits beyond the width of the pattern are cleared";
    case FindingKind::NotCanonical:
      return u"saving and loading again would change this";
    case FindingKind::LaterVersion:
      return u"file of a later version: what only that version knows is lost";
    case FindingKind::NotALibrary:
      return u"this is neither a component library nor a schematic";
    case FindingKind::UnclosedRecord:
      return u"the data end inside a record";
    case FindingKind::WrongClosingTag:
      return u"closing tag does not belong here";
    case FindingKind::IncompleteRecord:
      return u"record is closed before it is complete";
    case FindingKind::InvalidValue:
      return u"invalid value";
    case FindingKind::PinBeforeSize:
      return u"pin precedes the size or the block count of its component";
    case FindingKind::MalformedBitPattern:
      return u"bit pattern is not closed by its own tag";
    case FindingKind::BitPatternsTooLarge:
      return u"bit patterns take more than 1 GiB";
    case FindingKind::OutOfProportion:
      return u"too many records for so short a text";
    case FindingKind::OutOfMemory:
      return u"the memory does not suffice";
  }
  return u"";
}

}  // namespace mivo
