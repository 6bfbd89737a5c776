#include "core/memory_store.h"

#include <limits>

namespace backbeat {

bool MemoryStore::commit(std::span<const Write> writes) {
  if (failures_ > 0) {
    --failures_;
    return false;
  }
  ++commits;
  for (const Write& write : writes) {
    ++rowWrites;
    if (!write.value) {
      rows.erase({write.key, write.chunk});
      continue;
    }
    if (const auto* object = std::get_if<Bytes>(&*write.value)) bytes += static_cast<int64_t>(object->size());
    rows.insert_or_assign({write.key, write.chunk}, *write.value);
  }
  return true;
}

bool MemoryStore::visitRows(const std::function<void(std::string_view, int32_t, const Value&)>& visit) {
  for (const auto& [row, value] : rows) visit(row.first, row.second, value);
  return true;
}

void MemoryStore::quarantine(std::string_view key) {
  const auto first = rows.lower_bound({std::string(key), std::numeric_limits<int32_t>::min()});
  auto last = first;
  for (; last != rows.end() && last->first.first == key; ++last)
    quarantined.insert_or_assign(last->first, last->second);
  rows.erase(first, last);
}

}  // namespace backbeat
