// Writes JSON, append only. Reading it is nobody's business here.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace backbeat {

class JsonWriter {
 public:
  JsonWriter& beginObject();
  JsonWriter& endObject();
  JsonWriter& beginArray();
  JsonWriter& endArray();
  JsonWriter& key(std::string_view name);
  JsonWriter& text(std::string_view utf8);
  JsonWriter& number(int64_t value);
  JsonWriter& number(double value);  ///< null for what JSON has no word for (infinity, NaN)
  JsonWriter& flag(bool value);
  JsonWriter& null();

  const std::string& str() const { return out_; }

 private:
  void separate();

  std::string out_;
  bool first_ = true;
};

}  // namespace backbeat
