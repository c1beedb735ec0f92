# Image FFT and packed-spectrum products.
pel_family(TABLES fft_exports.inc SOURCES fft.cpp row_fft_kernels.cpp)
# Results must be the same bits on every instruction set, so no fused
# multiply-add may replace a product and a sum that the code wrote apart.
# -ffp-contract=off alone is not enough: GCC's vectoriser still turns scalar
# complex products into fused multiply-add-subtract, so it stays off here
# (the kernels are vectorised by hand).
set_source_files_properties(${CMAKE_CURRENT_LIST_DIR}/fft.cpp ${CMAKE_CURRENT_LIST_DIR}/row_fft_kernels.cpp
                            PROPERTIES COMPILE_OPTIONS "-ffp-contract=off;-fno-tree-vectorize")
