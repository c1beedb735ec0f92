// The entry table: one slot per export, in alphabetical order of the names,
// and the exported stubs, each of which only jumps through its slot. The stub
// takes no part in the call, so an export has exactly the arguments and
// result of its implementation, whatever its prototype.
#include <type_traits>

#include "core/common.h"
#include "pel_family_headers.inc"  // generated: every family's declarations

namespace pel::entry {
// One constant per export, typed by the public prototype.
#define PEL_EXPORT(name, ...) inline constexpr decltype(&::name) name = &__VA_ARGS__;
#include "pel_family_tables.inc"  // generated: every family's export table
#undef PEL_EXPORT
}  // namespace pel::entry

extern "C" {
PEL_HIDDEN extern const void* const pel_entry_table[];
const void* const pel_entry_table[] = {
#define PEL_SLOT(index, name) reinterpret_cast<const void*>(pel::entry::name),
#include "pel_entry_order.inc"  // generated: PEL_SLOT(index, name), sorted
#undef PEL_SLOT
};
}

#if defined(__x86_64__)
#define PEL_STUB(index, name)                                \
  asm(".text\n"                                              \
      ".globl " #name "\n"                                   \
      ".type " #name ", @function\n"                         \
      ".p2align 4\n" #name ":\n"                             \
      "  jmp *pel_entry_table+8*" #index "(%rip)\n"          \
      ".size " #name ", .-" #name "\n");
#elif defined(__i386__)
// Position-independent 32-bit code reaches the table through the GOT base,
// which needs the program counter; eax is free at a call boundary.
asm(".text\n"
    ".p2align 4\n"
    "pel_get_pc_eax:\n"
    "  movl (%esp), %eax\n"
    "  ret\n");
#define PEL_STUB(index, name)                                \
  asm(".text\n"                                              \
      ".globl " #name "\n"                                   \
      ".type " #name ", @function\n"                         \
      ".p2align 4\n" #name ":\n"                             \
      "  call pel_get_pc_eax\n"                              \
      "  addl $_GLOBAL_OFFSET_TABLE_, %eax\n"                \
      "  jmp *pel_entry_table@GOTOFF+4*" #index "(%eax)\n"   \
      ".size " #name ", .-" #name "\n");
#else
#error "entry stubs are written for x86-64 and i386"
#endif

#define PEL_SLOT(index, name) PEL_STUB(index, name)
#include "pel_entry_order.inc"
#undef PEL_SLOT
