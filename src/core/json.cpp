#include "core/json.h"

#include <cmath>
#include <cstdio>

namespace backbeat {

void JsonWriter::separate() {
  if (!first_) out_ += ',';
  first_ = false;
}

JsonWriter& JsonWriter::beginObject() {
  separate();
  out_ += '{';
  first_ = true;
  return *this;
}

JsonWriter& JsonWriter::endObject() {
  out_ += '}';
  first_ = false;
  return *this;
}

JsonWriter& JsonWriter::beginArray() {
  separate();
  out_ += '[';
  first_ = true;
  return *this;
}

JsonWriter& JsonWriter::endArray() {
  out_ += ']';
  first_ = false;
  return *this;
}

JsonWriter& JsonWriter::key(std::string_view name) {
  text(name);
  out_ += ':';
  first_ = true;
  return *this;
}

JsonWriter& JsonWriter::text(std::string_view utf8) {
  separate();
  out_ += '"';
  size_t plain = 0;  // where the stretch begins that stands as it is
  for (size_t i = 0; i < utf8.size(); ++i) {
    const char c = utf8[i];
    const bool control = static_cast<unsigned char>(c) < 0x20;
    if (c != '"' && c != '\\' && !control) continue;
    out_ += utf8.substr(plain, i - plain);
    plain = control ? i + 1 : i;
    char escape[8] = "\\";
    if (control) std::snprintf(escape, sizeof escape, "\\u%04x", static_cast<unsigned>(c));
    out_ += escape;
  }
  out_ += utf8.substr(plain);
  out_ += '"';
  return *this;
}

JsonWriter& JsonWriter::number(int64_t value) {
  separate();
  out_ += std::to_string(value);
  return *this;
}

JsonWriter& JsonWriter::number(double value) {
  if (!std::isfinite(value)) return null();
  separate();
  // A whole number that needs no exponent, printed much quicker.
  if (std::fabs(value) < 1e9 && std::trunc(value) == value && !std::signbit(value)) {
    out_ += std::to_string(static_cast<int64_t>(value));
    return *this;
  }
  char digits[32];
  std::snprintf(digits, sizeof digits, "%.9g", value);
  out_ += digits;
  return *this;
}

JsonWriter& JsonWriter::flag(bool value) {
  separate();
  out_ += value ? "true" : "false";
  return *this;
}

JsonWriter& JsonWriter::null() {
  separate();
  out_ += "null";
  return *this;
}

}  // namespace backbeat
