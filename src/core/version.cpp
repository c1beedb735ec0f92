#include "core/version.h"

namespace pel::core {

namespace {
// The revision appears twice: as the build number and in the version text.
constexpr PelLibraryVersion kVersion = {
    2021, 11, 0, static_cast<int>(0xCD107B02u), {'w', '7', 0, 0},
    "pelIP SSE2 (w7)", "2021.11.0 (r0xcd107b02)", "Jan 30 2024",
};
}  // namespace

const PelLibraryVersion* GetLibVersion() { return &kVersion; }

}  // namespace pel::core
