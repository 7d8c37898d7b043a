#pragma once

#include <benchmark/benchmark.h>

#include <cstring>
#include <vector>

namespace tarnwick::bench {

/// The floor under all that makes data: copying as many bytes into memory that is there already.
inline void MeasureCopy(benchmark::State& state, const void* bytes, std::size_t size) {
  std::vector<char> copy(size);
  for (auto _ : state) {
    std::memcpy(copy.data(), bytes, size);
    benchmark::ClobberMemory();
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(size) * state.iterations());
}

}  // namespace tarnwick::bench
