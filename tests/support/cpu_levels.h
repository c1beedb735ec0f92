// Runs a test body under every dispatch level that both this machine and the
// build have, from the scalar reference up to the widest vectors.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include "hwy/targets.h"

namespace peltest {

// The levels, best last; the scalar reference is always first.
inline std::vector<int64_t> CpuLevels() {
  std::vector<int64_t> levels = hwy::SupportedAndGeneratedTargets();
  std::sort(levels.begin(), levels.end(), [](int64_t a, int64_t b) { return a > b; });
  return levels;
}

inline std::string CpuLevelName(int64_t level) { return hwy::TargetName(level); }

// Restores the normal choice when a test body leaves, even on failure.
class CpuLevelScope {
 public:
  explicit CpuLevelScope(int64_t level) { Choose(level); }
  ~CpuLevelScope() { Choose(0); }
  CpuLevelScope(const CpuLevelScope&) = delete;
  CpuLevelScope& operator=(const CpuLevelScope&) = delete;

 private:
  // 0 returns to the normal choice. The chosen-target cache is refreshed so
  // that the very next dispatched call sees the change.
  static void Choose(int64_t level) {
    hwy::SetSupportedTargetsForTest(level);
    hwy::GetChosenTarget().Update(hwy::SupportedTargets());
  }
};

template <class F>
void ForEachCpuLevel(F&& body) {
  for (int64_t level : CpuLevels()) {
    SCOPED_TRACE("cpu level " + CpuLevelName(level));
    CpuLevelScope scope(level);
    body();
  }
}

}  // namespace peltest
