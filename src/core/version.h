#pragma once
#include "peli.h"

namespace pel::core {
const PelLibraryVersion* GetLibVersion();
}
