#include "name_index.h"

#include <algorithm>
#include <utility>

#include "integer.h"
#include "number_text.h"
#include "vector_room.h"

namespace mivo {
namespace {

struct NumberedName {
  std::u16string_view base;
  std::int32_t number;
};

/// "BASE(12)" as BASE and 12, "BASE()" as BASE and 0; any other name as itself and 0.
NumberedName SplitNumber(std::u16string_view name) {
  if (name.ends_with(u')')) {
    std::size_t digits = name.size() - 1;
    while (digits > 0 && name[digits - 1] >= u'0' && name[digits - 1] <= u'9') --digits;
    if (digits > 0 && name[digits - 1] == u'(') {
      return {name.substr(0, digits - 1), ParseInt(name.substr(digits))};
    }
  }
  return {name, 0};
}

/// `base` without what would leave no room for a number, however long; no half of a surrogate pair
/// is left over.
std::u16string_view Shortened(std::u16string_view base) {
  constexpr std::size_t kLongestNumber = std::u16string_view(u"(-2147483648)").size();
  constexpr std::size_t kLimit = NameIndex::kMaxNumberedLength - kLongestNumber;
  if (base.size() <= kLimit) return base;
  const bool splitsPair = (base[kLimit - 1] & 0xFC00) == 0xD800;
  return base.substr(0, splitsPair ? kLimit - 1 : kLimit);
}

std::u16string WithNumber(std::u16string_view base, std::int32_t number) {
  std::u16string name(base);
  name.push_back(u'(');
  name.append(IntText(number));
  name.push_back(u')');
  return name;
}

}  // namespace

NameEntry* NameIndex::Find(std::u16string_view name) const {
  const auto found = byName_.find(name);
  return found == byName_.end() ? nullptr : *found;
}

std::u16string NameIndex::UniqueName(std::u16string_view name) {
  if (Find(name) == nullptr) return std::u16string(name);
  const auto [whole, number] = SplitNumber(name);
  const std::u16string_view base = Shortened(whole);
  return WithNumber(base, FirstFree(base, number));
}

std::int32_t NameIndex::FirstFree(std::u16string_view base, std::int32_t start) {
  // Every number found taken gets a link to the next one worth trying, and links passed are
  // shortened, so that a thousand components of one name cost no more than a thousand names.
  std::map<std::int32_t, std::int32_t>& next = taken_[std::u16string(base)];
  const std::int32_t first = WrapAdd(start, 1);
  const auto withinAttempts = [start](std::int32_t number) {
    return static_cast<std::uint32_t>(WrapSub(number, start)) <= std::uint32_t{kMaxAttempts};
  };
  std::int32_t number = first;
  while (withinAttempts(number)) {
    const auto link = next.find(number);
    if (link != next.end()) {
      number = link->second;
    } else if (Find(WithNumber(base, number)) != nullptr) {
      next.emplace(number, WrapAdd(number, 1));
      number = WrapAdd(number, 1);
    } else {
      break;
    }
  }
  for (std::int32_t passed = first; passed != number;) {
    passed = std::exchange(next.find(passed)->second, number);
  }
  return withinAttempts(number) ? number : WrapAdd(start, kMaxAttempts);
}

NameEntry* NameIndex::AddIfFree(std::u16string_view name, SComponent* component) {
  auto entry = std::make_unique<NameEntry>(std::u16string(name), component);
  MakeRoomForOne(entries_);
  if (!byName_.insert(entry.get()).second) return nullptr;
  return entries_.emplace_back(std::move(entry)).get();
}

NameEntry* NameIndex::Add(std::u16string name, SComponent* component) {
  auto entry = std::make_unique<NameEntry>(std::move(name), component);
  MakeRoomForOne(entries_);
  byName_.insert(entry.get());
  return entries_.emplace_back(std::move(entry)).get();
}

void NameIndex::Forget(const NameEntry& entry) {
  taken_.clear();
  const auto found = byName_.find(entry.name_);
  if (*found != &entry) return;
  byName_.erase(found);
  const auto successor = std::find_if(entries_.begin(), entries_.end(), [&](const auto& other) {
    return other.get() != &entry && other->name_ == entry.name_;
  });
  if (successor != entries_.end()) byName_.insert(successor->get());
}

void NameIndex::Rename(NameEntry& entry, std::u16string name) {
  Forget(entry);
  entry.name_ = std::move(name);
  const auto first = std::find_if(entries_.begin(), entries_.end(),
                                  [&](const auto& other) { return other->name_ == entry.name_; });
  byName_.erase(entry.name_);
  byName_.insert(first->get());
}

void NameIndex::Remove(NameEntry& entry) {
  Forget(entry);
  std::erase_if(entries_, [&](const auto& other) { return other.get() == &entry; });
}

void NameIndex::Clear() {
  taken_.clear();
  byName_.clear();
  entries_.clear();
}

}  // namespace mivo
