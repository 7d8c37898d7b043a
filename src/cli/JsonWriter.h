#pragma once

#include <string>
#include <vector>

#include "model/modBandSaw.h"
#include "model/modEntity.h"
#include "model/modZoom.h"
#include "power/modPowerEstimate.h"

namespace tarnwick::cli {

/// The record as nested objects by its own member names: every field, flags as the numbers stored.
void AppendRecordJson(std::string& json, const BandSaw& saw);

/// The head of a drawing list, with the `Count` of its entities.
void AppendHeaderJson(std::string& json, const EntityList& drawing);

void AppendExtentsJson(std::string& json, const Extents& extents);

/// The power figures of a design in the order in which they are worked out, with what the feed index makes of
/// the gullet.
void AppendPowerJson(std::string& json, const BandSaw& saw, double feedIndex);

/// The four rows of the estimates as objects by their members' names.
void AppendEstimatesJson(std::string& json, const PowerEstimates& rows);

void AppendMessagesJson(std::string& json, const std::vector<std::string>& messages);

/// An array of objects: `Kind`, trimmed, and the fields of that kind.
void AppendEntitiesJson(std::string& json, const EntityList& drawing);

}  // namespace tarnwick::cli
