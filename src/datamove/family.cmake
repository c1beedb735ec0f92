# Copy and set; mirror, transpose, channel swap and border extension: the
# export tables and the sources of the family.
pel_family(
  TABLES copy_exports.inc set_exports.inc masked_exports.inc channel_exports.inc planar_exports.inc
         mirror_exports.inc swap_exports.inc border_exports.inc
  SOURCES copy.cpp set.cpp row_kernels.cpp masked.cpp row_mask_kernels.cpp channel.cpp planar.cpp
          row_channel_kernels.cpp mirror.cpp swap.cpp border.cpp row_mirror_kernels.cpp
          row_transpose_kernels.cpp)
