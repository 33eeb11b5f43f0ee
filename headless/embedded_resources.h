// The resource scripts compiled into the headless backend.
#pragma once

#include "headless/rc_template.h"

namespace kvs::headless {
const ResourceFiles& embeddedResources();
}
