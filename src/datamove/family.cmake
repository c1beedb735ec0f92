# Copy and set: the export tables and the sources of the family.
pel_family(
  TABLES copy_exports.inc set_exports.inc masked_exports.inc channel_exports.inc planar_exports.inc
  SOURCES copy.cpp set.cpp row_kernels.cpp masked.cpp row_mask_kernels.cpp channel.cpp planar.cpp
          row_channel_kernels.cpp)
