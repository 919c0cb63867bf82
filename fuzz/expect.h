// What the fuzz targets demand. A demand that isn't met ends the process, which the fuzzer takes for a finding.
#pragma once

#include <cstdio>
#include <cstdlib>

inline void Expect(bool holds, const char* demand) {
  if (holds) return;
  std::fprintf(stderr, "Not so: %s\n", demand);
  std::abort();
}
