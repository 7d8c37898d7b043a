#pragma once

#include <string>

#include "model/modBandSaw.h"
#include "store/modBytes.h"

namespace tarnwick {

// The image of a record in a file: every field in order at its own width, without gaps; whole numbers and
// doubles little-endian, texts as their bytes. RecordImageSize bytes, and no byte or bit of a record is lost
// on the way there and back.

/// Appends the image of `saw`.
void AppendRecord(std::string& out, const BandSaw& saw);

/// Takes the image of one record. Fields that the bytes do not reach are zero; a field that they end in has
/// the bytes that are there.
[[nodiscard]] BandSaw TakeRecord(ByteReader& bytes);

}  // namespace tarnwick
