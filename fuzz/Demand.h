#pragma once

#include <cstdlib>

namespace tarnwick::fuzz {

/// What has to hold whatever the bytes are; else the fuzzer has found something.
inline void Demand(bool holds) {
  if (!holds) std::abort();
}

}  // namespace tarnwick::fuzz
