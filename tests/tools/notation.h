#ifndef MIVO_TESTS_TOOLS_NOTATION_H
#define MIVO_TESTS_TOOLS_NOTATION_H

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "comp_edit_doc.h"
#include "component.h"

// Pins and drawing objects in a line each, as the sequences write them:
//
//   pin L3 NAME 7,8 type 4 mask 1     numbers of all blocks, "-" for none; name "" when empty
//   line 0,0 10,0 w2 s1 curve 3,3 7,3
//   ellipse 0,0 10,20 w2 s1 f1
//   polygon 0,0 10,0 5,5 w2 s1 f1
//   arc 10,10 r5 0-1440 w2 s1
//   text 5,5 "words" size 12 face "Arial" bold italic align 5 vertical
//
// What has its first value (width 1, style 0, no fill, ...) is left out.

namespace mivo {

[[nodiscard]] std::string Describe(const SCompPin& pin);
[[nodiscard]] std::string Describe(const SPtnObj& object);
[[nodiscard]] std::string Describe(const SCompEditElm& element);

/// All alive elements, or the selection, with "; " between them; "none" for none.
[[nodiscard]] std::string DescribeDocument(const SCompEditDoc& document);
[[nodiscard]] std::string DescribeSelection(const SCompEditDoc& document);

/// Pins and objects of a component, pins first.
[[nodiscard]] std::string DescribeComponent(const SComponent& component);

/// Adds the pins and objects of `elements`, written as above with ";" between them. Throws
/// std::invalid_argument for anything else.
void AddElements(SComponent& component, std::string_view elements);

/// `parts` in one.
[[nodiscard]] std::string Concat(std::initializer_list<std::string_view> parts);

/// Words separated by blanks. A word in double quotes may hold blanks and loses the quotes.
[[nodiscard]] std::vector<std::string> Words(std::string_view text);
[[nodiscard]] std::vector<std::string> SplitAt(std::string_view text, char separator);

/// "12,-3"; throws std::invalid_argument for anything else.
[[nodiscard]] SPoint ParsePoint(std::string_view text);
[[nodiscard]] std::int32_t ParseNumber(std::string_view text);
/// "L3"
[[nodiscard]] SPinLocation ParsePlace(std::string_view text);

}  // namespace mivo

#endif
