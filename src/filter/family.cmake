# Filters: the general filter with border; box, median, minimum and maximum
# filters. Float sums keep the order the code writes, so that every
# instruction set gives the same bits: no source may fuse a multiply and an
# add.
set(pel_filter_sources general.cpp rank.cpp window.cpp row_filter_kernels.cpp)
pel_family(TABLES general_exports.inc rank_exports.inc SOURCES ${pel_filter_sources})
list(TRANSFORM pel_filter_sources PREPEND ${CMAKE_CURRENT_LIST_DIR}/)
set_source_files_properties(${pel_filter_sources} PROPERTIES COMPILE_OPTIONS -ffp-contract=off)
