# Arithmetic: two images with scale factor, constants, one-operand functions.
set(pel_arith_sources binary.cpp div.cpp constant.cpp unary.cpp shortcut.cpp row_int_kernels.cpp
                      row_float_kernels.cpp)
pel_family(
  TABLES binary_exports.inc div_exports.inc constant_exports.inc unary_exports.inc
  SOURCES ${pel_arith_sources})
# Results are defined by single-precision steps rounded one at a time: a
# fused multiply-add on the targets that have one would round differently
# from those without.
list(TRANSFORM pel_arith_sources PREPEND ${CMAKE_CURRENT_LIST_DIR}/)
set_source_files_properties(${pel_arith_sources} PROPERTIES COMPILE_OPTIONS -ffp-contract=off)
