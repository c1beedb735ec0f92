# Resize and warps: the export tables and the sources of the family.
pel_family(
  TABLES resize_query_exports.inc resize_exports.inc
         warp_matrix_exports.inc warp_setup_exports.inc warp_exports.inc
  SOURCES resize_query.cpp resize.cpp row_resize_kernels.cpp
          warp_matrix.cpp warp_setup.cpp warp.cpp row_warp_kernels.cpp)

# The float kernels promise one rounding per product and per sum on every
# instruction set; a multiply and add fused by the compiler would round once.
set_source_files_properties(${CMAKE_CURRENT_LIST_DIR}/row_resize_kernels.cpp
                            ${CMAKE_CURRENT_LIST_DIR}/row_warp_kernels.cpp
                            ${CMAKE_CURRENT_LIST_DIR}/warp_matrix.cpp
                            PROPERTIES COMPILE_OPTIONS -ffp-contract=off)
