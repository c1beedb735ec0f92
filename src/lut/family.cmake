# Lookup tables and palettes: the export tables and sources.
pel_family(
  TABLES lut_exports.inc palette_exports.inc
  SOURCES lut.cpp palette.cpp row_lut_kernels.cpp)
# Interpolated curves are defined by a multiply and an add rounded apart; a
# fused multiply-add would change them.
set_source_files_properties(${CMAKE_CURRENT_LIST_DIR}/lut.cpp PROPERTIES COMPILE_OPTIONS -ffp-contract=off)
