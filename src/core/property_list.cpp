#include "core/property_list.h"

#include <algorithm>
#include <bit>
#include <cstring>

#include "core/text.h"

namespace backbeat {
namespace {

constexpr std::string_view magic = "bplist00";
constexpr size_t trailerSize = 32;
constexpr double secondsTo2001 = 978'307'200;  // property lists count dates from 2001-01-01
// A larger table is given back: the few entries of a usual chunk would lie scattered in it, past the nearest cache.
constexpr size_t firstTableSize = 256;

// The upper half of an object's marker byte.
enum Kind : uint8_t {
  plain = 0x0,
  integral = 0x1,
  floating = 0x2,
  instant = 0x3,
  bytes = 0x4,
  asciiText = 0x5,
  utf16Text = 0x6,
  list = 0xA,
  table = 0xD,
};
constexpr uint8_t falseMarker = 0x08;
constexpr uint8_t trueMarker = 0x09;
constexpr uint8_t longCount = 0xF;

template <size_t width>
char* writeBigEndian(char* out, uint64_t value) {
  for (size_t i = 0; i < width; ++i) out[i] = static_cast<char>(value >> (8 * (width - 1 - i)));
  return out + width;
}

// `width` is 1, 2, 4 or 8.
char* writeBigEndian(char* out, uint64_t value, size_t width) {
  switch (width) {
    case 1: return writeBigEndian<1>(out, value);
    case 2: return writeBigEndian<2>(out, value);
    case 4: return writeBigEndian<4>(out, value);
    default: return writeBigEndian<8>(out, value);
  }
}

uint64_t readBigEndian(const char* in, size_t width) {
  uint64_t value = 0;
  for (size_t i = 0; i < width; ++i) value = value << 8 | static_cast<uint8_t>(in[i]);
  return value;
}

// 1, 2, 4 or 8: the bytes in which the format can hold the number.
size_t widthOf(uint64_t value) {
  if (value <= 0xFF) return 1;
  if (value <= 0xFFFF) return 2;
  return value <= 0xFFFFFFFF ? 4 : 8;
}

// The head of an object that has a count: at most ten bytes.
char* writeMarker(char* out, uint8_t kind, size_t count) {
  if (count < longCount) {
    *out++ = static_cast<char>(kind << 4 | count);
    return out;
  }
  const size_t width = widthOf(count);
  *out++ = static_cast<char>(kind << 4 | longCount);
  *out++ = static_cast<char>(integral << 4 | std::countr_zero(width));
  return writeBigEndian(out, count, width);
}

uint64_t mixed(uint64_t hash, uint64_t word) {
  hash = (hash ^ word) * 0x9E3779B97F4A7C15u;
  return hash ^ hash >> 32;
}

uint64_t loadWord(const char* at) {
  uint64_t word;
  std::memcpy(&word, at, sizeof word);
  return word;
}

// Only tells texts of one writer apart, so its value may differ between machines.
uint64_t textHash(std::string_view text) {
  const char* at = text.data();
  size_t left = text.size();
  uint64_t hash = mixed(0, left);
  if (left >= 8) {
    for (; left > 8; at += 8, left -= 8) hash = mixed(hash, loadWord(at));
    return mixed(hash, loadWord(at + left - 8));
  }
  uint64_t tail = 0;
  for (size_t i = 0; i < left; ++i) tail = tail << 8 | static_cast<uint8_t>(at[i]);
  return mixed(hash, tail);
}

bool isAscii(std::string_view text) {
  const char* at = text.data();
  size_t left = text.size();
  uint64_t seen = 0;
  for (; left >= 8; at += 8, left -= 8) seen |= loadWord(at);
  for (; left > 0; ++at, --left) seen |= static_cast<uint8_t>(*at);
  return (seen & 0x8080808080808080u) == 0;
}

// Writes the object and tells how long it is; there is always room for eight bytes behind the marker.
size_t writeNumber(char* out, uint64_t bits, uint8_t kind) {
  if (kind == plain) {
    *out = static_cast<char>(bits ? trueMarker : falseMarker);
    return 1;
  }
  const size_t width = kind == integral ? widthOf(bits) : 8;  // widths below eight bytes hold no sign
  *out = static_cast<char>(kind << 4 | std::countr_zero(width));
  writeBigEndian<8>(out + 1, bits << (64 - 8 * width));
  return 1 + width;
}

std::string utf8FromUtf16(std::string_view bigEndian) {
  std::string result;
  result.reserve(bigEndian.size());
  const auto unit = [&](size_t at) { return static_cast<char32_t>(readBigEndian(bigEndian.data() + at, 2)); };
  for (size_t at = 0; at < bigEndian.size(); at += 2) {
    char32_t value = unit(at);
    const char32_t next = at + 2 < bigEndian.size() ? unit(at + 2) : 0;
    if (value >= 0xD800 && value < 0xDC00 && next >= 0xDC00 && next < 0xE000) {
      value = 0x10000 + ((value - 0xD800) << 10) + (next - 0xDC00);
      at += 2;
    }
    appendCodePoint(result, value);
  }
  return result;
}

}  // namespace

PropertyListWriter::PropertyListWriter()
    : scalars_(magic), scalarsSize_(magic.size()), numbers_(firstTableSize), texts_(firstTableSize) {}

PropertyListWriter::Ref PropertyListWriter::newScalar() {
  offsets_.push_back(scalarsSize_);
  return static_cast<Ref>(offsets_.size() - 1);
}

// Where the next scalar goes, which takes no more bytes than that. The caller counts those it took.
char* PropertyListWriter::scalarBytes(size_t most) {
  if (scalars_.size() < scalarsSize_ + most) scalars_.resize(2 * scalars_.size() + most);
  return scalars_.data() + scalarsSize_;
}

PropertyListWriter::Ref PropertyListWriter::integer(int64_t value) {
  return number(static_cast<uint64_t>(value), integral);
}

PropertyListWriter::Ref PropertyListWriter::real(double value) {
  return number(std::bit_cast<uint64_t>(value), floating);
}

PropertyListWriter::Ref PropertyListWriter::boolean(bool value) { return number(value, plain); }

PropertyListWriter::Ref PropertyListWriter::date(Date value) {
  return number(std::bit_cast<uint64_t>(value.seconds - secondsTo2001), instant);
}

PropertyListWriter::Ref PropertyListWriter::number(uint64_t bits, uint8_t kind) {
  const size_t last = numbers_.size() - 1;
  size_t place = static_cast<size_t>(mixed(kind, bits)) & last;
  for (; numbers_[place].round == round_; place = (place + 1) & last) {
    if (numbers_[place].bits == bits && numbers_[place].kind == kind) return numbers_[place].ref;
  }
  const Ref ref = newScalar();
  numbers_[place] = {bits, round_, kind, ref};
  scalarsSize_ += writeNumber(scalarBytes(9), bits, kind);
  if (++numberCount_ * 2 > numbers_.size()) growNumbers();
  return ref;
}

void PropertyListWriter::growNumbers() {
  std::vector<KnownNumber> larger(numbers_.size() * 4);
  const size_t last = larger.size() - 1;
  for (const KnownNumber& known : numbers_) {
    if (known.round != round_) continue;
    size_t place = static_cast<size_t>(mixed(known.kind, known.bits)) & last;
    while (larger[place].round == round_) place = (place + 1) & last;
    larger[place] = known;
  }
  numbers_ = std::move(larger);
}

PropertyListWriter::Ref PropertyListWriter::text(std::string_view utf8) {
  const uint64_t hash = textHash(utf8);
  const size_t last = texts_.size() - 1;
  size_t place = static_cast<size_t>(hash) & last;
  for (; texts_[place].round == round_; place = (place + 1) & last) {
    const KnownText& known = texts_[place];
    const std::string_view bytes = known.isAscii ? scalars_ : textBytes_;
    if (known.hash == hash && bytes.substr(known.start, known.size) == utf8) return known.ref;
  }
  const Ref ref = newScalar();
  texts_[place] = {hash, textBytes_.size(), utf8.size(), round_, isAscii(utf8), ref};
  if (texts_[place].isAscii) {
    putMarker(asciiText, utf8.size());
    texts_[place].start = scalarsSize_;
    putBytes(utf8);
  } else {
    textBytes_.append(utf8);
    putUtf16(utf8);
  }
  if (++textCount_ * 2 > texts_.size()) growTexts();
  return ref;
}

void PropertyListWriter::growTexts() {
  std::vector<KnownText> larger(texts_.size() * 4);
  const size_t last = larger.size() - 1;
  for (const KnownText& known : texts_) {
    if (known.round != round_) continue;
    size_t place = static_cast<size_t>(known.hash) & last;
    while (larger[place].round == round_) place = (place + 1) & last;
    larger[place] = known;
  }
  texts_ = std::move(larger);
}

void PropertyListWriter::putMarker(uint8_t kind, size_t count) {
  char* const out = scalarBytes(10);
  scalarsSize_ += static_cast<size_t>(writeMarker(out, kind, count) - out);
}

void PropertyListWriter::putBytes(std::string_view bytes) {
  bytes.copy(scalarBytes(bytes.size()), bytes.size());
  scalarsSize_ += bytes.size();
}

void PropertyListWriter::putUtf16(std::string_view utf8) {
  utf16_.clear();
  for (size_t position = 0; position < utf8.size();) {
    const char32_t point = nextCodePoint(utf8, position);
    if (point < 0x10000) {
      utf16_.push_back(static_cast<char16_t>(point));
    } else {
      utf16_.push_back(static_cast<char16_t>(0xD800 + ((point - 0x10000) >> 10)));
      utf16_.push_back(static_cast<char16_t>(0xDC00 + ((point - 0x10000) & 0x3FF)));
    }
  }
  putMarker(utf16Text, utf16_.size());
  char* out = scalarBytes(2 * utf16_.size());
  for (const char16_t unit : utf16_) out = writeBigEndian<2>(out, unit);
  scalarsSize_ += 2 * utf16_.size();
}

PropertyListWriter::Ref PropertyListWriter::data(std::string_view value) {
  const Ref ref = newScalar();
  putMarker(bytes, value.size());
  putBytes(value);
  return ref;
}

PropertyListWriter::Room PropertyListWriter::room(size_t count) {
  const Room room{refs_.size(), count};
  refs_.resize(refs_.size() + count);
  return room;
}

PropertyListWriter::Room PropertyListWriter::roomFor(std::span<const Ref> refs) {
  const Room filled = room(refs.size());
  std::copy(refs.begin(), refs.end(), refs_.begin() + static_cast<std::ptrdiff_t>(filled.first));
  return filled;
}

PropertyListWriter::Ref PropertyListWriter::newContainer(bool isDictionary, Room keys, Room items) {
  offsets_.push_back(0);
  const Ref ref = static_cast<Ref>(offsets_.size() - 1);
  containers_.push_back({ref, isDictionary, keys, items});
  return ref;
}

PropertyListWriter::Ref PropertyListWriter::closeArray(Room items) { return newContainer(false, {}, items); }

PropertyListWriter::Ref PropertyListWriter::closeDictionary(Room keys, Room values) {
  return newContainer(true, keys, values);
}

PropertyListWriter::Ref PropertyListWriter::array(std::span<const Ref> items) { return closeArray(roomFor(items)); }

PropertyListWriter::Ref PropertyListWriter::dictionary(std::span<const Ref> keys, std::span<const Ref> values) {
  const Room keyRoom = roomFor(keys);
  return closeDictionary(keyRoom, roomFor(values));
}

size_t PropertyListWriter::containerBytes(size_t refSize) const {
  size_t total = 0;
  for (const Container& container : containers_) {
    const size_t count = container.items.count;
    total += (count < longCount ? 1 : 2 + widthOf(count)) + (container.keys.count + count) * refSize;
  }
  return total;
}

// The containers, refs of `width` bytes in them, behind what is in the file already; tells where they end.
template <size_t width>
char* PropertyListWriter::writeContainers(char* file, char* out) {
  for (const Container& container : containers_) {
    offsets_[container.self] = static_cast<size_t>(out - file);
    out = writeMarker(out, container.isDictionary ? table : list, container.items.count);
    for (const Room room : {container.keys, container.items}) {
      for (size_t i = 0; i < room.count; ++i) out = writeBigEndian<width>(out, refs_[room.first + i]);
    }
  }
  return out;
}

namespace {

template <size_t width>
char* writeOffsets(char* out, const std::vector<size_t>& offsets) {
  for (const size_t offset : offsets) out = writeBigEndian<width>(out, offset);
  return out;
}

}  // namespace

Bytes PropertyListWriter::finish(Ref root) {
  const size_t refSize = widthOf(offsets_.size() - 1);
  const size_t tableStart = scalarsSize_ + containerBytes(refSize);
  const size_t offsetSize = widthOf(tableStart);
  const size_t fileSize = tableStart + offsets_.size() * offsetSize + trailerSize;
  Bytes file;
  file.reserve(fileSize);
  file.append(scalars_, 0, scalarsSize_);
  file.resize(fileSize);
  char* out = file.data() + scalarsSize_;
  switch (refSize) {
    case 1: out = writeContainers<1>(file.data(), out); break;
    case 2: out = writeContainers<2>(file.data(), out); break;
    default: out = writeContainers<4>(file.data(), out); break;
  }
  switch (offsetSize) {
    case 1: out = writeOffsets<1>(out, offsets_); break;
    case 2: out = writeOffsets<2>(out, offsets_); break;
    case 4: out = writeOffsets<4>(out, offsets_); break;
    default: out = writeOffsets<8>(out, offsets_); break;
  }
  out += 6;  // reserved bytes, zero
  *out++ = static_cast<char>(offsetSize);
  *out++ = static_cast<char>(refSize);
  out = writeBigEndian<8>(out, offsets_.size());
  out = writeBigEndian<8>(out, root);
  writeBigEndian<8>(out, tableStart);
  forgetObjects();
  return file;
}

void PropertyListWriter::forgetObjects() {
  scalarsSize_ = magic.size();
  offsets_.clear();
  containers_.clear();
  refs_.clear();
  textBytes_.clear();
  numberCount_ = textCount_ = 0;
  const bool roundsUsedUp = ++round_ == 0;
  if (roundsUsedUp || numbers_.size() > firstTableSize) numbers_ = std::vector<KnownNumber>(firstTableSize);
  if (roundsUsedUp || texts_.size() > firstTableSize) texts_ = std::vector<KnownText>(firstTableSize);
  if (roundsUsedUp) round_ = 1;
}

std::optional<PropertyListReader> PropertyListReader::open(std::string_view bytes) {
  if (bytes.size() < magic.size() + 1 + trailerSize || !bytes.starts_with(magic)) return {};
  const char* trailer = bytes.data() + bytes.size() - trailerSize;
  PropertyListReader reader(bytes);
  reader.offsetWidth_ = static_cast<uint8_t>(trailer[6]);
  reader.refWidth_ = static_cast<uint8_t>(trailer[7]);
  reader.objectCount_ = readBigEndian(trailer + 8, 8);
  reader.root_ = readBigEndian(trailer + 16, 8);
  const uint64_t tableStart = readBigEndian(trailer + 24, 8);
  const auto isWidth = [](uint8_t width) { return width >= 1 && width <= 8; };
  if (!isWidth(reader.offsetWidth_) || !isWidth(reader.refWidth_)) return {};
  const size_t tableEnd = bytes.size() - trailerSize;
  if (tableStart < magic.size() || tableStart > tableEnd) return {};
  if (reader.objectCount_ > (tableEnd - tableStart) / reader.offsetWidth_) return {};
  if (reader.root_ >= reader.objectCount_) return {};
  reader.objectsEnd_ = static_cast<size_t>(tableStart);
  return reader;
}

std::optional<PropertyListReader::Object> PropertyListReader::object(Ref ref) const {
  if (ref >= objectCount_) return {};
  const uint64_t offset =
      readBigEndian(bytes_.data() + objectsEnd_ + static_cast<size_t>(ref) * offsetWidth_, offsetWidth_);
  if (offset < magic.size() || offset >= objectsEnd_) return {};
  const size_t at = static_cast<size_t>(offset);
  return Object{static_cast<uint8_t>(bytes_[at]), at + 1};
}

// The count of an object that has one, and in `body` where its content begins.
std::optional<size_t> PropertyListReader::count(const Object& object, size_t& body) const {
  body = object.body;
  const uint8_t small = object.marker & 0xF;
  if (small != longCount) return small;
  if (body >= objectsEnd_) return {};
  const uint8_t marker = static_cast<uint8_t>(bytes_[body++]);
  const size_t width = size_t{1} << (marker & 0xF);
  if (marker >> 4 != integral || (marker & 0xF) > 3 || width > objectsEnd_ - body) return {};
  const uint64_t result = readBigEndian(bytes_.data() + body, width);
  body += width;
  if (result > objectsEnd_) return {};
  return static_cast<size_t>(result);
}

// The content of an object made of `unit` bytes for each it counts.
std::optional<std::string_view> PropertyListReader::counted(const Object& object, size_t unit) const {
  size_t body;
  const std::optional<size_t> units = count(object, body);
  if (!units || *units > (objectsEnd_ - body) / unit) return {};
  return bytes_.substr(body, *units * unit);
}

std::optional<int64_t> PropertyListReader::integer(Ref ref) const {
  const std::optional<Object> found = object(ref);
  if (!found || found->marker >> 4 != integral || (found->marker & 0xF) > 4) return {};
  const size_t width = size_t{1} << (found->marker & 0xF);
  if (width > objectsEnd_ - found->body) return {};
  const char* body = bytes_.data() + found->body;
  if (width <= 8) return static_cast<int64_t>(readBigEndian(body, width));
  const uint64_t upper = readBigEndian(body, 8);
  const int64_t lower = static_cast<int64_t>(readBigEndian(body + 8, 8));
  const uint64_t signExtension = lower < 0 ? ~uint64_t{0} : 0;
  if (upper != signExtension) return {};
  return lower;
}

std::optional<double> PropertyListReader::real(Ref ref) const {
  const std::optional<Object> found = object(ref);
  if (!found || found->marker >> 4 != floating) return {};
  const size_t width = size_t{1} << (found->marker & 0x7);
  if (width > objectsEnd_ - found->body) return {};
  const uint64_t bits = readBigEndian(bytes_.data() + found->body, std::min<size_t>(width, 8));
  switch (found->marker & 0xF) {
    case 2: return std::bit_cast<float>(static_cast<uint32_t>(bits));
    case 3: return std::bit_cast<double>(bits);
    default: return {};
  }
}

std::optional<bool> PropertyListReader::boolean(Ref ref) const {
  const std::optional<Object> found = object(ref);
  if (!found || (found->marker != falseMarker && found->marker != trueMarker)) return {};
  return found->marker == trueMarker;
}

std::optional<Date> PropertyListReader::date(Ref ref) const {
  const std::optional<Object> found = object(ref);
  if (!found || found->marker != (instant << 4 | 3) || 8 > objectsEnd_ - found->body) return {};
  return Date{std::bit_cast<double>(readBigEndian(bytes_.data() + found->body, 8)) + secondsTo2001};
}

std::optional<size_t> PropertyListReader::textUnits(Ref ref) const {
  const std::optional<Object> found = object(ref);
  if (!found) return {};
  const uint8_t kind = found->marker >> 4;
  if (kind != asciiText && kind != utf16Text) return {};
  size_t body;
  return count(*found, body);
}

std::optional<std::string> PropertyListReader::text(Ref ref) const {
  const std::optional<Object> found = object(ref);
  if (!found) return {};
  const uint8_t kind = found->marker >> 4;
  if (kind != asciiText && kind != utf16Text) return {};
  const std::optional<std::string_view> content = counted(*found, kind == asciiText ? 1 : 2);
  if (!content) return {};
  if (kind == utf16Text) return utf8FromUtf16(*content);
  if (!isAscii(*content)) return {};
  return std::string(*content);
}

std::optional<std::string_view> PropertyListReader::data(Ref ref) const {
  const std::optional<Object> found = object(ref);
  if (!found || found->marker >> 4 != bytes) return {};
  return counted(*found, 1);
}

std::optional<PropertyListRefs> PropertyListReader::array(Ref ref) const {
  const std::optional<Object> found = object(ref);
  if (!found || found->marker >> 4 != list) return {};
  const std::optional<std::string_view> content = counted(*found, refWidth_);
  if (!content) return {};
  return PropertyListRefs(content->data(), content->size() / refWidth_, refWidth_);
}

std::optional<PropertyListReader::Entries> PropertyListReader::dictionary(Ref ref) const {
  const std::optional<Object> found = object(ref);
  if (!found || found->marker >> 4 != table) return {};
  const std::optional<std::string_view> content = counted(*found, size_t{2} * refWidth_);
  if (!content) return {};
  const size_t entries = content->size() / (size_t{2} * refWidth_);
  return Entries{PropertyListRefs(content->data(), entries, refWidth_),
                 PropertyListRefs(content->data() + content->size() / 2, entries, refWidth_)};
}

}  // namespace backbeat
