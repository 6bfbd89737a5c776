#include "core/record_codec.h"

#include <bitset>
#include <utility>

namespace backbeat {
namespace {

using Kind = ValueType::Kind;

template <class T>
const T& as(const void* value) {
  return *static_cast<const T*>(value);
}

const void* at(const void* first, size_t bytes) { return static_cast<const char*>(first) + bytes; }
void* at(void* first, size_t bytes) { return static_cast<char*>(first) + bytes; }

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
  return record(type, keysOf(type), from);
}

RecordEncoder::Ref RecordEncoder::list(const ValueType& type, const void* from) {
  const ValueType& item = *type.item;
  const bool areRecords = item.kind == Kind::record;
  const size_t first = pending_.size();
  const size_t count = type.count(from);
  const void* items = type.items(from);
  const Keys keys = areRecords ? keysOf(item) : Keys();
  for (size_t i = 0; i < count; ++i) {
    const void* place = at(items, i * item.size);
    const Ref ref = areRecords ? record(item, keys, place) : value(item, place);
    pending_.push_back(ref);
  }
  return closeArray(first);
}

RecordEncoder::Ref RecordEncoder::records(const ValueType& type, std::span<const void* const> items) {
  const size_t first = pending_.size();
  const Keys keys = keysOf(type);
  for (const void* item : items) {
    const Ref ref = record(type, keys, item);
    pending_.push_back(ref);
  }
  return closeArray(first);
}

RecordEncoder::Ref RecordEncoder::texts(const std::map<std::string, std::string>& from) {
  std::vector<Ref> keys;
  std::vector<Ref> values;
  for (const auto& [key, text] : from) {
    keys.push_back(writer_.text(key));
    values.push_back(writer_.text(text));
  }
  return writer_.dictionary(keys, values);
}

RecordEncoder::Keys RecordEncoder::keysOf(const ValueType& type) {
  Keys keys;
  keys.reserve(type.fields.size());
  for (const FieldType& field : type.fields) keys.push_back(writer_.text(field.key));
  return keys;
}

RecordEncoder::Ref RecordEncoder::record(const ValueType& type, const Keys& keys, const void* from) {
  const size_t first = pending_.size();
  for (const FieldType& field : type.fields) {
    const Ref ref = value(field.type, at(from, field.offset));
    pending_.push_back(ref);
  }
  const Ref ref = writer_.dictionary(keys, std::span(pending_).subspan(first));
  pending_.resize(first);
  return ref;
}

RecordEncoder::Ref RecordEncoder::closeArray(size_t first) {
  const Ref ref = writer_.array(std::span(pending_).subspan(first));
  pending_.resize(first);
  return ref;
}

RecordDecoder::RecordDecoder(std::string_view propertyList)
    : reader_(PropertyListReader::open(propertyList)), allowance_(32 * uint64_t{propertyList.size()} + (64 << 20)) {}

std::optional<PropertyListReader::Entries> RecordDecoder::rootEntries() const {
  return reader_ ? reader_->dictionary(reader_->root()) : std::nullopt;
}

bool RecordDecoder::read(Ref ref, const ValueType& type, void* out) {
  problem_.clear();
  if (value(ref, type, out)) return true;
  if (problem_.empty()) problem_ = "is of another kind or does not fit";
  return false;
}

bool RecordDecoder::append(const ValueType& type, void* out) {
  const size_t before = type.count(out);
  const auto items = reader_ ? reader_->array(reader_->root()) : std::nullopt;
  if (items && appendItems(*items, type, out)) return true;
  type.shrink(out, before);
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
  const auto items = reader_->array(ref);
  return items && appendItems(*items, type, out);
}

// No `reserve`: chunk after chunk goes onto the same vector, and exact growth would copy it each time.
bool RecordDecoder::appendItems(const PropertyListRefs& items, const ValueType& type, void* out) {
  const ValueType& item = *type.item;
  KnownKeys known;
  for (size_t i = 0; i < items.size(); ++i) {
    if (!allow(item.size)) return false;
    void* place = type.add(out);
    const bool isRecord = item.kind == Kind::record;
    const bool read = isRecord ? record(items[i], item, known, place) : value(items[i], item, place);
    if (!read) return refuse("entry " + std::to_string(i + 1), "is of another kind or does not fit");
  }
  return true;
}

bool RecordDecoder::record(Ref ref, const ValueType& type, KnownKeys& known, void* out) {
  const std::vector<FieldType>& fields = type.fields;
  const auto entries = reader_->dictionary(ref);
  if (!entries || !allow(8 * uint64_t{entries->size()})) return false;
  std::bitset<maxFields> seen;
  for (size_t i = 0; i < entries->size(); ++i) {
    const size_t number = fieldOf(type, entries->keys[i], i, known);
    if (number == fields.size()) continue;
    const FieldType& field = fields[number];
    if (seen[number]) return refuse(field.key, "is there twice");
    if (!value(entries->values[i], field.type, at(out, field.offset))) {
      return refuse(field.key, "is of another kind or does not fit");
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
    if (!text(entries->keys[i], key) || !text(entries->values[i], value)) return false;
    if (!out.emplace(std::move(key), std::move(value)).second) return false;
  }
  return true;
}

bool RecordDecoder::text(Ref ref, std::string& out) { return take(reader_->text(ref), &out) && allow(out.size()); }

// The number of the field of that key, or the count of fields when none has it.
size_t RecordDecoder::fieldOf(const ValueType& type, Ref key, size_t place, KnownKeys& known) const {
  if (place < known.size() && known[place].key == key) return known[place].field;
  const std::vector<FieldType>& fields = type.fields;
  const std::optional<std::string> name = reader_->text(key);
  size_t field = 0;
  while (field < fields.size() && name != fields[field].key) ++field;
  if (place >= known.size() && place < 2 * fields.size()) known.resize(place + 1, {~Ref{0}, 0});
  if (place < known.size()) known[place] = {key, field};
  return field;
}

// Puts the place before what is known of the trouble; false for the caller to pass on.
bool RecordDecoder::refuse(std::string_view place, const char* otherwise) {
  const std::string trouble = problem_.empty() ? std::string(" ") + otherwise : ": " + problem_;
  problem_ = std::string(place) + trouble;
  return false;
}

// A genuine list never asks for much more than it holds; one that names the same large object over and over does.
bool RecordDecoder::allow(uint64_t bytes) {
  if (bytes > allowance_) return false;
  allowance_ -= bytes;
  return true;
}

}  // namespace backbeat
