// How an export is declared, once, and what is derived from the declaration.
//
// Each implementation file has a table <file>_exports.inc of lines
//
//     PEL_EXPORT(peliCopy_8u_C1R, pel::datamove::Copy<Pel8u, 1>)
//
// naming the exported function and the function that implements it. From
// these tables the build generates the alphabetical entry order, the linker's
// list of exported names and the list the symbol test checks. The table is
// read three times:
//   - by its own .cpp, with PEL_EXPORT = PEL_INSTANTIATE_EXPORT, so that
//     every implementation is compiled there and has exactly the public
//     prototype (a mismatch is a compile error);
//   - by entry_table.cpp, which fills one slot per export;
//   - by CMake (names only).
#pragma once

#define PEL_INSTANTIATE_EXPORT(name, ...) \
  [[gnu::used]] static constexpr decltype(&::name) pel_instance_##name = &__VA_ARGS__;
