#pragma once

#include <string>
#include <vector>

#include "model/modBandSaw.h"
#include "model/modEntity.h"
#include "model/modZoom.h"

namespace tarnwick::cli {

/// The record as nested objects by its own member names: every field, flags as the numbers stored.
void AppendRecordJson(std::string& json, const BandSaw& saw);

/// The head of a drawing list, with the `Count` of its entities.
void AppendHeaderJson(std::string& json, const EntityList& drawing);

void AppendExtentsJson(std::string& json, const Extents& extents);

void AppendMessagesJson(std::string& json, const std::vector<std::string>& messages);

/// An array of objects: `Kind`, trimmed, and the fields of that kind.
void AppendEntitiesJson(std::string& json, const EntityList& drawing);

}  // namespace tarnwick::cli
