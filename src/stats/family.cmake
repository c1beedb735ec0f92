# Statistics: sums, means, norms, dot products, extremes, range counts and
# histograms. The float reductions fix their order of operations, so no
# source of the family may fuse a multiply and an add.
set(pel_stats_sources sums.cpp dot.cpp extremes.cpp histogram.cpp row_reduce_kernels.cpp
    row_extreme_kernels.cpp)
pel_family(
  TABLES sums_exports.inc dot_exports.inc extremes_exports.inc histogram_exports.inc
  SOURCES ${pel_stats_sources})
list(TRANSFORM pel_stats_sources PREPEND ${CMAKE_CURRENT_LIST_DIR}/)
set_source_files_properties(${pel_stats_sources} PROPERTIES COMPILE_OPTIONS -ffp-contract=off)
