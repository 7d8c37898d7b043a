#include "store/modImage.h"

#include <bit>
#include <concepts>
#include <cstdint>
#include <limits>
#include <type_traits>

#include "model/modFields.h"

namespace tarnwick {
namespace {

static_assert(std::numeric_limits<double>::is_iec559 && sizeof(double) == 8);

/// Appends each field that it is shown.
struct Packer {
  std::string& Out;

  template <std::integral Whole>
  void operator()(const char* /*name*/, Whole value) const {
    AppendNumber(Out, static_cast<std::make_unsigned_t<Whole>>(value), sizeof value);
  }
  void operator()(const char* /*name*/, double value) const {
    AppendNumber(Out, std::bit_cast<std::uint64_t>(value), sizeof value);
  }
  void operator()(const char* name, const SegmentMeasures& measures) const {
    for (const double measure : measures) (*this)(name, measure);
  }
  template <std::size_t N>
  void operator()(const char* /*name*/, const FixedText<N>& text) const {
    Out += text.View();
  }
};

/// Fills each field that it is shown.
struct Unpacker {
  ByteReader& Bytes;

  template <std::integral Whole>
  void operator()(const char* /*name*/, Whole& value) const {
    value = static_cast<Whole>(Bytes.Number(sizeof value));
  }
  void operator()(const char* /*name*/, double& value) const {
    value = std::bit_cast<double>(Bytes.Number(sizeof value));
  }
  void operator()(const char* name, SegmentMeasures& measures) const {
    for (double& measure : measures) (*this)(name, measure);
  }
  template <std::size_t N>
  void operator()(const char* /*name*/, FixedText<N>& text) const {
    Bytes.Bytes(text.Bytes.data(), N);
  }
};

}  // namespace

void AppendRecord(std::string& out, const BandSaw& saw) { ForEachField(saw, Packer{out}); }

BandSaw TakeRecord(ByteReader& bytes) {
  BandSaw saw;
  ForEachField(saw, Unpacker{bytes});
  return saw;
}

}  // namespace tarnwick
