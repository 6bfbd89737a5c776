#include "core/record_codec.h"

#include <bitset>
#include <cstring>
#include <utility>

namespace backbeat {
namespace {

using Kind = ValueType::Kind;

constexpr const char* doesNotFit = "is of another kind or does not fit";
constexpr const char* asksForTooMuch = "asks for more room than the size of the list allows";

// An honest list takes up to 12 bytes for each of its own; the small ones have room for whatever they say.
constexpr uint64_t allowanceAtLeast = 32 << 20;
constexpr uint64_t allowanceForEachByte = 24;

// What things cost beside the bytes of their content.
constexpr uint64_t entryCost = 16;
constexpr uint64_t keyCost = 64;   // that has to be read
constexpr uint64_t textCost = 16;  // outside of its string
constexpr uint64_t nodeCost = 96;  // of a map

// No record has nearly as many fields, nor any key as many letters.
constexpr size_t mostEntries = 1000;
constexpr size_t longestKey = 100;

template <class T>
const T& as(const void* value) {
  return *static_cast<const T*>(value);
}

const void* at(const void* first, size_t bytes) { return static_cast<const char*>(first) + bytes; }
void* at(void* first, size_t bytes) { return static_cast<char*>(first) + bytes; }

/// Whether two values are written as one object.
bool isSameObject(Kind kind, const void* a, const void* b) {
  switch (kind) {
    case Kind::flag: return as<bool>(a) == as<bool>(b);
    case Kind::integer: return as<int64_t>(a) == as<int64_t>(b);
    case Kind::real:
    case Kind::date: return std::memcmp(a, b, sizeof(double)) == 0;  // bit for bit: there are two zeros
    case Kind::text: return as<std::string>(a) == as<std::string>(b);
    case Kind::texts:
    case Kind::list:
    case Kind::record: break;
  }
  return false;
}

template <class T>
bool take(std::optional<T> found, void* out) {
  if (found) *static_cast<T*>(out) = std::move(*found);
  return found.has_value();
}

}  // namespace

RecordEncoder::Ref RecordEncoder::value(const ValueType& type, const void* from) {
  switch (type.kind) {
    case Kind::flag: return writer_.boolean(as<bool>(from));
    case Kind::integer: return writer_.integer(as<int64_t>(from));
    case Kind::real: return writer_.real(as<double>(from));
    case Kind::date: return writer_.date(as<Date>(from));
    case Kind::text: return writer_.text(as<std::string>(from));
    case Kind::texts: return texts(as<std::map<std::string, std::string>>(from));
    case Kind::list: return list(type, from);
    case Kind::record: break;
  }
  Before nothing;
  return record(type, keysOf(type), from, nothing);
}

RecordEncoder::Ref RecordEncoder::list(const ValueType& type, const void* from) {
  const ValueType& item = *type.item;
  const bool areRecords = item.kind == Kind::record;
  const void* items = type.items(from);
  const Room keys = areRecords ? keysOf(item) : Room();
  const Room refs = writer_.room(type.count(from));
  Before before;
  for (size_t i = 0; i < refs.count; ++i) {
    const void* place = at(items, i * item.size);
    writer_.put(refs, i, areRecords ? record(item, keys, place, before) : value(item, place));
  }
  return writer_.closeArray(refs);
}

RecordEncoder::Ref RecordEncoder::records(const ValueType& type, std::span<const void* const> items) {
  const Room keys = keysOf(type);
  const Room refs = writer_.room(items.size());
  Before before;
  for (size_t i = 0; i < items.size(); ++i) writer_.put(refs, i, record(type, keys, items[i], before));
  return writer_.closeArray(refs);
}

RecordEncoder::Ref RecordEncoder::texts(const std::map<std::string, std::string>& from) {
  const Room keys = writer_.room(from.size());
  const Room values = writer_.room(from.size());
  size_t i = 0;
  for (const auto& [key, text] : from) {
    writer_.put(keys, i, writer_.text(key));
    writer_.put(values, i++, writer_.text(text));
  }
  return writer_.closeDictionary(keys, values);
}

RecordEncoder::Room RecordEncoder::keysOf(const ValueType& type) {
  const Room keys = writer_.room(type.fields.size());
  for (size_t i = 0; i < keys.count; ++i) writer_.put(keys, i, writer_.text(type.fields[i].key));
  return keys;
}

// Records that stand together are much alike: what is as in the one before it is the same object and needs no search.
RecordEncoder::Ref RecordEncoder::record(const ValueType& type, Room keys, const void* from, Before& before) {
  const Room values = writer_.room(keys.count);
  for (size_t i = 0; i < values.count; ++i) {
    const FieldType& field = type.fields[i];
    const void* const place = at(from, field.offset);
    const bool isAsBefore = before.record && isSameObject(field.type.kind, place, at(before.record, field.offset));
    writer_.put(values, i, isAsBefore ? writer_.placed(before.values, i) : value(field.type, place));
  }
  before = {from, values};
  return writer_.closeDictionary(keys, values);
}

RecordDecoder::RecordDecoder(std::string_view propertyList)
    : reader_(PropertyListReader::open(propertyList)),
      allowance_(allowanceAtLeast + allowanceForEachByte * propertyList.size()) {}

std::optional<PropertyListReader::Entries> RecordDecoder::rootEntries() const {
  return reader_ ? reader_->dictionary(reader_->root()) : std::nullopt;
}

std::optional<std::string> RecordDecoder::keyText(Ref ref) const {
  const std::optional<size_t> units = reader_->textUnits(ref);
  return units && *units <= longestKey ? reader_->text(ref) : std::nullopt;
}

bool RecordDecoder::read(Ref ref, const ValueType& type, void* out) {
  problem_.clear();
  if (value(ref, type, out)) return true;
  if (problem_.empty()) problem_ = doesNotFit;
  return false;
}

bool RecordDecoder::readRecords(Ref ref, RecordBuffer& out) {
  problem_.clear();
  const size_t before = out.size();
  const auto add = [](void* buffer) { return static_cast<RecordBuffer*>(buffer)->add(); };
  if (appendItems(ref, {&out, add, out.type()})) return true;
  if (problem_.empty()) problem_ = doesNotFit;
  out.shrink(before);
  return false;
}

bool RecordDecoder::value(Ref ref, const ValueType& type, void* out) {
  switch (type.kind) {
    case Kind::flag: return take(reader_->boolean(ref), out);
    case Kind::integer: return take(reader_->integer(ref), out);
    case Kind::real: return take(reader_->real(ref), out);
    case Kind::date: return take(reader_->date(ref), out);
    case Kind::text: return text(ref, *static_cast<std::string*>(out));
    case Kind::texts: return texts(ref, *static_cast<std::map<std::string, std::string>*>(out));
    case Kind::list: break;
    case Kind::record: {
      KnownKeys known;
      return record(ref, type, known, out);
    }
  }
  type.shrink(out, 0);
  return appendItems(ref, {out, type.add, *type.item});
}

bool RecordDecoder::appendItems(Ref ref, const Target& target) {
  const auto items = reader_->array(ref);
  if (!items) return false;
  const ValueType& item = target.item;
  KnownKeys known;
  for (size_t i = 0; i < items->size(); ++i) {
    if (!allow(item.size)) return false;
    void* place = target.add(target.list);
    const bool isRecord = item.kind == Kind::record;
    const bool read = isRecord ? record((*items)[i], item, known, place) : value((*items)[i], item, place);
    if (!read) return refuse("entry " + std::to_string(i + 1), doesNotFit);
  }
  return true;
}

bool RecordDecoder::record(Ref ref, const ValueType& type, KnownKeys& known, void* out) {
  const std::vector<FieldType>& fields = type.fields;
  const auto entries = reader_->dictionary(ref);
  if (!entries) return false;
  if (entries->size() > mostEntries) return refuse("a record", "has too many fields");
  if (!allow(entryCost * entries->size())) return false;
  std::bitset<maxFields> seen;
  for (size_t i = 0; i < entries->size(); ++i) {
    const size_t number = fieldOf(type, entries->keys[i], i, known);
    if (!problem_.empty()) return false;
    if (number == fields.size()) continue;
    const FieldType& field = fields[number];
    if (seen[number]) return refuse(field.key, "is there twice");
    if (!value(entries->values[i], field.type, at(out, field.offset))) {
      return refuse(field.key, doesNotFit);
    }
    seen[number] = true;
  }
  if (seen.count() == fields.size()) return true;
  size_t missing = 0;
  while (seen[missing]) ++missing;
  return refuse(fields[missing].key, "is missing");
}

bool RecordDecoder::texts(Ref ref, std::map<std::string, std::string>& out) {
  const auto entries = reader_->dictionary(ref);
  if (!entries) return false;
  for (size_t i = 0; i < entries->size(); ++i) {
    std::string key;
    std::string value;
    if (!allow(nodeCost) || !text(entries->keys[i], key) || !text(entries->values[i], value)) return false;
    if (!out.emplace(std::move(key), std::move(value)).second) return false;
  }
  return true;
}

// A UTF-16 unit takes up to three bytes.
bool RecordDecoder::text(Ref ref, std::string& out) {
  const std::optional<size_t> units = reader_->textUnits(ref);
  return units && allow(textCost + *units) && take(reader_->text(ref), &out);
}

// The number of the field of that key, or the count of fields when none has it.
size_t RecordDecoder::fieldOf(const ValueType& type, Ref key, size_t place, KnownKeys& known) {
  if (place < known.size() && known[place].key == key) return known[place].field;
  const std::vector<FieldType>& fields = type.fields;
  if (!allow(keyCost)) return fields.size();
  const std::optional<std::string> name = keyText(key);
  size_t field = 0;
  while (field < fields.size() && name != fields[field].key) ++field;
  if (place >= known.size() && place < 2 * fields.size()) known.resize(place + 1, {~Ref{0}, 0});
  if (place < known.size()) known[place] = {key, field};
  return field;
}

// Puts the place before what is known of the trouble; false for the caller to pass on.
bool RecordDecoder::refuse(std::string_view place, const char* reason) {
  const std::string trouble = problem_.empty() ? std::string(" ") + reason : ": " + problem_;
  problem_ = std::string(place) + trouble;
  return false;
}

bool RecordDecoder::allow(uint64_t bytes) {
  if (bytes > allowance_) {
    problem_ = asksForTooMuch;
    return false;
  }
  allowance_ -= bytes;
  return true;
}

}  // namespace backbeat
