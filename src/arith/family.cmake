# Arithmetic: two images with scale factor, constants, one-operand functions.
pel_family(
  TABLES binary_exports.inc div_exports.inc constant_exports.inc unary_exports.inc
  SOURCES binary.cpp div.cpp constant.cpp unary.cpp shortcut.cpp row_int_kernels.cpp
          row_float_kernels.cpp)
