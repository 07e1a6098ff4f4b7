// Registry of translation engines and the ids of their handles.
#include "kz/engine.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>
#include <optional>

CGenId::CGenId() : pools_of_id{} {}

std::int16_t CGenId::GetId(std::uint8_t mask) {
  auto* const id = std::find_if(std::begin(pools_of_id), std::end(pools_of_id),
                                [mask](std::uint8_t pools) { return (pools & mask) == 0; });
  if (id == std::end(pools_of_id)) return -1;
  *id |= mask;
  return static_cast<std::int16_t>(id - pools_of_id);
}

void CGenId::DelId(std::uint8_t mask, std::int16_t id) {
  if (id >= 0 && id <= 255) pools_of_id[id] &= static_cast<std::uint8_t>(~mask);
}

namespace {

constexpr std::uint8_t kEnginePool = 1;

struct Entry {
  void* engine = nullptr;  // null in a free entry
  std::uint8_t dtb = 0;
};

// What the process shares.
struct Registry {
  void* kernel = nullptr;
  // Handles are 0 and 1 whatever number of entries is asked for, so that the table has these two.
  std::optional<std::array<Entry, 2>> engines;
  CGenId ids;

  // The entry of a handle, null when there is none.
  Entry* entry(int handle) {
    const bool exists = engines.has_value() && handle >= 0 && handle < 2;
    return exists ? &(*engines)[static_cast<std::size_t>(handle)] : nullptr;
  }
};

Registry registry;

}  // namespace

int16_t kz_comm_init_kernel(void* kernel) {
  if (kernel == nullptr) return 0;
  registry.kernel = kernel;
  return 1;
}

void kz_comm_free_kernel() {}

int16_t kz_data_init(int16_t /*entries*/) {
  if (!registry.engines.has_value()) registry.engines.emplace();
  return 1;
}

void kz_data_free() { registry.engines.reset(); }

int16_t GetNewEngineHandler() {
  kz_data_init(2);
  return registry.ids.GetId(kEnginePool);
}

int16_t SetKZEngine(void* engine, uint8_t dtb) {
  if (engine == nullptr) return -1;
  const std::int16_t handle = GetNewEngineHandler();
  if (Entry* const entry = registry.entry(handle)) *entry = {engine, dtb};
  return handle;
}

void* KZEngine(uint16_t handle) {
  const Entry* const entry = registry.entry(handle);
  return entry != nullptr ? entry->engine : nullptr;
}

void* KZDTBEngine(uint16_t handle) {
  const Entry* const entry = registry.entry(handle);
  return entry != nullptr && entry->dtb == 1 ? entry->engine : nullptr;
}

void FreeEngineHandler(uint16_t handle) {
  Entry* const entry = registry.entry(handle);
  if (entry == nullptr) return;
  *entry = {};
  registry.ids.DelId(kEnginePool, static_cast<std::int16_t>(handle));
}

int16_t GetNewHandler(uint8_t mask) { return registry.ids.GetId(mask); }

void FreeHandler(uint8_t mask, int16_t id) { registry.ids.DelId(mask, id); }
