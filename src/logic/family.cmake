# Logic and shifts: the export tables and the sources of the family.
pel_family(TABLES logic_exports.inc shift_exports.inc
           SOURCES logic.cpp shift.cpp row_kernels.cpp)
