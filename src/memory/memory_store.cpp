#include "memory/memory_store.h"

#include <algorithm>
#include <tuple>

#include "memory/letter_case.h"

namespace memory {

std::string Memory_Store::Get(const std::string& application, const std::string& section, const std::string& key,
                              const std::string& default_text) {
  const auto found = values_.find({Folded(application), Folded(section), Folded(key)});
  return found == values_.end() ? default_text : found->second.Text;
}

void Memory_Store::Save(const std::string& application, const std::string& section, const std::string& key,
                        const std::string& text) {
  const Address address{Folded(application), Folded(section), Folded(key)};
  // A value that is replaced keeps its names as they were first spelled.
  values_.try_emplace(address, Value{section, key, {}}).first->second.Text = text;
}

std::vector<Memory_Store::Value> Memory_Store::Values(const std::string& application) const {
  std::vector<Value> values;
  for (const auto& [address, value] : values_)
    if (address.front() == Folded(application)) values.push_back(value);
  std::sort(values.begin(), values.end(),
            [](const Value& a, const Value& b) { return std::tie(a.Section, a.Key) < std::tie(b.Section, b.Key); });
  return values;
}

}  // namespace memory
