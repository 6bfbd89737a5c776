#include "shell/page_store.h"

#include <algorithm>
#include <iterator>
#include <limits>

#include "shell/row_bytes.h"

namespace backbeat {
namespace {

constexpr std::string_view quarantinePrefix = "quarantine/";

// Chunk numbers that make a write of a batch an order to the page; its key is the name of a copy.
constexpr int32_t keepCopy = -10;
constexpr int32_t forgetCopy = -11;

}  // namespace

bool PageStore::addRow(std::string_view row) {
  const bool checked = isChecked(row);
  std::optional<Write> read = takeRow(row);
  if (!read || !read->value || !row.empty()) return false;
  if (!checked) unchecked_.emplace_back(read->key, read->chunk);
  rows_.insert_or_assign({std::move(read->key), read->chunk}, std::move(*read->value));
  return true;
}

void PageStore::giveChecks() {
  for (const auto& [key, chunk] : std::exchange(unchecked_, {})) appendRow(batch_, {key, chunk, rows_[{key, chunk}]});
}

Bytes PageStore::takeBatch() { return std::exchange(batch_, {}); }

bool PageStore::commit(std::span<const Write> writes) {
  for (const Write& write : writes) appendRow(batch_, write);
  return true;
}

bool PageStore::visitRows(const std::function<void(std::string_view, int32_t, const Value&)>& visit) {
  for (const auto& [row, value] : rows_) {
    if (!row.first.starts_with(quarantinePrefix)) visit(row.first, row.second, value);
  }
  return true;
}

size_t PageStore::countRows(std::string_view key) {
  const auto first = rows_.lower_bound({std::string(key), std::numeric_limits<int32_t>::min()});
  return static_cast<size_t>(
      std::distance(first, std::find_if(first, rows_.end(), [&](const auto& row) { return row.first.first != key; })));
}

void PageStore::quarantine(std::string_view key) {
  std::vector<Write> writes;
  const auto first = rows_.lower_bound({std::string(key), std::numeric_limits<int32_t>::min()});
  auto last = first;
  for (; last != rows_.end() && last->first.first == key; ++last) {
    writes.push_back({last->first.first, last->first.second, std::nullopt});
    writes.push_back({std::string(quarantinePrefix) + std::string(key), last->first.second, std::move(last->second)});
  }
  rows_.erase(first, last);
  commit(writes);
}

bool PageStore::keepSnapshot(std::string_view name) {
  if (!snapshots_.emplace(name, 0).second) return false;
  const Write order{std::string(name), keepCopy, std::nullopt};
  return commit({&order, 1});
}

void PageStore::measureSnapshot(std::string_view name, int64_t bytes) {
  const auto found = snapshots_.find(name);
  if (found != snapshots_.end()) found->second = bytes;
}

std::vector<KeptCopy> PageStore::snapshots() {
  std::vector<KeptCopy> kept;
  for (const auto& [name, bytes] : snapshots_) kept.push_back({name, bytes});
  return kept;
}

void PageStore::dropSnapshot(std::string_view name) {
  const auto found = snapshots_.find(name);
  if (found == snapshots_.end()) return;
  const Write order{found->first, forgetCopy, std::nullopt};
  snapshots_.erase(found);
  commit({&order, 1});
}

}  // namespace backbeat
