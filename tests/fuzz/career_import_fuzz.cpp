// Any bytes handed to the import: refused with a reason, or a career that is stored, loaded and exported like any
// other.
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "core/career_file.h"
#include "core/memory_store.h"
#include "core/save_file.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace backbeat;
  ImportedCareer career = importCareer({reinterpret_cast<const char*>(data), size});
  if (career.state.has_value() != career.problem.empty()) std::abort();
  if (!career.state) return 0;
  const Bytes file = exportCareer(*career.state);
  const ImportedCareer again = importCareer(file);
  if (!again.state || !again.missing.empty() || exportCareer(*again.state) != file) std::abort();
  MemoryStore store;
  if (!store.replaceAll(rowsOf(*career.state))) std::abort();
  GameState loaded;
  const LoadReport report = SaveFile(store).load(loaded);
  if (!report.readable || !report.damaged.empty()) std::abort();
  return 0;
}
