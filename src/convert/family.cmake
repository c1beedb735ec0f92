# Conversion, scaling, threshold and compare: the export tables and sources.
pel_family(
  TABLES convert_exports.inc scale_exports.inc threshold_exports.inc compare_exports.inc
  SOURCES convert.cpp scale.cpp threshold.cpp compare.cpp row_convert_kernels.cpp
          row_threshold_kernels.cpp)
# Results are defined with a multiply and an add rounded apart; a fused
# multiply-add on the targets that have one would change them.
set_source_files_properties(
  ${CMAKE_CURRENT_LIST_DIR}/convert.cpp ${CMAKE_CURRENT_LIST_DIR}/scale.cpp
  ${CMAKE_CURRENT_LIST_DIR}/row_convert_kernels.cpp ${CMAKE_CURRENT_LIST_DIR}/row_threshold_kernels.cpp
  PROPERTIES COMPILE_OPTIONS -ffp-contract=off)
