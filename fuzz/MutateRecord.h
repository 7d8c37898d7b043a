#pragma once

#include <array>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <random>
#include <vector>

#include "model/modFields.h"
#include "store/modSave.h"

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t most);

namespace tarnwick::fuzz {

// Nine tenths of a design file are texts. Bytes that are changed anywhere would seldom meet a measure.

/// A number in the file.
struct NumberPlace {
  std::size_t At{}, Size{};
};

/// Collects the places of all numbers, in the order of the file.
class NumberPlaces {
 public:
  template <class Number>
  void operator()(const char*, const Number&) {
    Places.push_back({at_, sizeof(Number)});
    at_ += sizeof(Number);
  }
  template <class Number, std::size_t count>
  void operator()(const char* name, const std::array<Number, count>& numbers) {
    for (const Number& number : numbers) (*this)(name, number);
  }
  template <std::size_t size>
  void operator()(const char*, const FixedText<size>&) {
    at_ += size;
  }

  std::vector<NumberPlace> Places;

 private:
  std::size_t at_ = BandSawFileSize - RecordImageSize;
};

inline const std::vector<NumberPlace>& PlacesOfNumbers() {
  static const std::vector<NumberPlace> places = [] {
    NumberPlaces collect;
    const BandSaw saw;
    ForEachField(saw, collect);
    return collect.Places;
  }();
  return places;
}

using Engine = std::minstd_rand;

/// A measure as people type it, or one that nobody would.
inline double AnyMeasure(Engine& engine) {
  using Limits = std::numeric_limits<double>;
  static constexpr double odd[] = {0,
                                   -0.0,
                                   1e-12,
                                   1e-6,
                                   0.00004,
                                   0.25,
                                   0.5,
                                   1,
                                   2,
                                   3,
                                   12,
                                   15,
                                   45,
                                   89.999,
                                   90,
                                   180,
                                   270,
                                   359.5,
                                   360,
                                   361,
                                   720,
                                   32767,
                                   32768,
                                   1e6,
                                   1e15,
                                   1e16,
                                   1e100,
                                   1e160,
                                   1e300,
                                   Limits::max(),
                                   Limits::min(),
                                   Limits::denorm_min(),
                                   Limits::epsilon(),
                                   Limits::infinity(),
                                   Limits::quiet_NaN()};
  const double number = odd[engine() % std::size(odd)];
  switch (engine() % 8) {
    case 0:
      return -number;
    case 1:
      return std::nextafter(number, Limits::infinity());
    case 2:
    case 3:
    case 4:
      return static_cast<double>(engine() % 100000) / 10000;
    case 5:
      return static_cast<double>(engine() % 100000) / 1000;
    default:
      return number;
  }
}

inline std::int64_t AnyWhole(Engine& engine) {
  static constexpr std::int64_t odd[] = {0,  -1,    1,      2,      3,     4,      5,          6,
                                         7,  8,     9,      10,     11,    12,     21,         28,
                                         60, 32767, -32768, -32767, 65535, 100000, 2147483647, -2147483648LL};
  return engine() % 4 == 0 ? static_cast<std::int64_t>(engine() % 60) : odd[engine() % std::size(odd)];
}

/// Puts another number at a place: one that is worth trying, or one that stands elsewhere.
inline void ChangeNumber(std::uint8_t* file, Engine& engine) {
  const auto& places = PlacesOfNumbers();
  const NumberPlace place = places[engine() % places.size()];
  const NumberPlace other = places[engine() % places.size()];
  if (place.Size == other.Size && engine() % 4 == 0) {
    std::memmove(file + place.At, file + other.At, place.Size);
  } else if (place.Size == sizeof(double)) {
    const double measure = AnyMeasure(engine);
    std::memcpy(file + place.At, &measure, sizeof measure);
  } else {
    const std::int64_t whole = AnyWhole(engine);
    std::memcpy(file + place.At, &whole, place.Size);  // the lower bytes, on the machines that fuzz
  }
}

/// Changes a whole design file of `size` bytes into another one; what lies behind the record may grow.
/// @return its size
inline std::size_t MutateDesign(std::uint8_t* file, std::size_t size, std::size_t most, unsigned seed) {
  if (most < BandSawFileSize) return LLVMFuzzerMutate(file, size, most);
  Engine engine(seed + 1);
  const std::string blank = BandSawText({});
  if (size < BandSawFileSize) {
    std::memcpy(file + size, blank.data() + size, BandSawFileSize - size);
    size = BandSawFileSize;
  }
  std::memcpy(file, blank.data(), BandSawFileSize - RecordImageSize);  // its header
  switch (engine() % 8) {
    case 0: {
      constexpr std::size_t mostBehind = 8;
      const std::size_t behind = std::min(most - BandSawFileSize, mostBehind);
      const std::size_t had = std::min(size - BandSawFileSize, behind);
      return BandSawFileSize + (behind > 0 ? LLVMFuzzerMutate(file + BandSawFileSize, had, behind) : 0);
    }
    case 1: {
      constexpr std::size_t header = BandSawFileSize - RecordImageSize;
      LLVMFuzzerMutate(file + header, RecordImageSize, RecordImageSize);
      return size;
    }
    default:
      for (unsigned changes = 1 + engine() % 4; changes > 0; --changes) ChangeNumber(file, engine);
      return size;
  }
}

}  // namespace tarnwick::fuzz
