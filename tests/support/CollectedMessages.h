#pragma once

#include "platform/CollectedMessages.h"

namespace tarnwick::test {

using tarnwick::CollectedMessages;

}  // namespace tarnwick::test
