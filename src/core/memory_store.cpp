#include "core/memory_store.h"

#include <algorithm>
#include <iterator>
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

bool MemoryStore::keepSnapshot(std::string_view name) {
  if (failures_ > 0) return false;
  return snapshots_.emplace(name, rows).second;
}

void MemoryStore::dropSnapshot(std::string_view name) {
  if (const auto found = snapshots_.find(name); found != snapshots_.end()) snapshots_.erase(found);
}

std::vector<KeptCopy> MemoryStore::snapshots() {
  std::vector<KeptCopy> kept;
  for (const auto& [name, copy] : snapshots_) {
    KeptCopy& one = kept.emplace_back(KeptCopy{name});
    for (const auto& [row, value] : copy) {
      const auto* object = std::get_if<Bytes>(&value);
      one.bytes += static_cast<int64_t>(row.first.size() + (object ? object->size() : sizeof(int64_t)));
    }
  }
  return kept;
}

bool MemoryStore::restoreSnapshot(std::string_view name) {
  const auto found = snapshots_.find(name);
  if (found == snapshots_.end() || failures_ > 0) return false;
  rows = exchanged(rows, found->second);
  return true;
}

/// What is there once `after` has taken the place of `before`.
MemoryStore::Rows MemoryStore::exchanged(const Rows& before, const Rows& after) {
  const auto isDevices = [](const Rows::value_type& row) { return row.first.first == deviceKey; };
  if (std::none_of(before.begin(), before.end(), isDevices)) return after;
  Rows result;
  std::copy_if(before.begin(), before.end(), std::inserter(result, result.end()), isDevices);
  std::remove_copy_if(after.begin(), after.end(), std::inserter(result, result.end()), isDevices);
  return result;
}

bool MemoryStore::replaceAll(std::span<const Write> replacement) {
  const Rows before = std::exchange(rows, {});
  const bool committed = commit(replacement);
  rows = committed ? exchanged(before, rows) : before;
  return committed;
}

}  // namespace backbeat
